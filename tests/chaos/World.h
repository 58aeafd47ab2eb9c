#pragma once

#include "Random.h"

#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

struct Component;
class Listener;

/// What goes on at a moment.
enum class Doing {
    Signal = 1,
    Mouse = 2,
    Wheel = 4,
    Typing = 8, ///< keys, input methods, the clipboard
    Entering = 16,
    Showing = 32, ///< or hiding, closing, moving to another parent
    Forcing = 64, ///< a setter that several signals lie behind: of a range, of a state
    Call = 128,   ///< another setter or slot
    Deleting = 256,
    Other = 512,    ///< focus, style, language, models, time ...
    Leaving = 1024, ///< a widget, for another or for a pop-up
};
Q_DECLARE_FLAGS(Doings, Doing)
Q_DECLARE_OPERATORS_FOR_FLAGS(Doings)

/// Something that is under way: an action upon an object, or a signal of one.
struct Frame
{
    QPointer<QObject> object;
    QByteArray name;
    Doings doing;
    int level = 0;                ///< how many event loops run
    QPointer<QWidget> focusTaker; ///< of one that leaves a widget
};

/// A component of a window, and what is known of it.
struct Part
{
    QPointer<QObject> object;
    const Component* component = nullptr;
};

/**
 * Random windows and what is done to them, from their making to their end.
 */
class World : public QObject
{
public:
    World(quint64 seed, QObject* parent);
    ~World() override;

    /// How many steps it has in it.
    int steps() const { return m_steps; }

    /// One action of the user, the host or the system, with what slots make of it.
    void step();
    /// In an event loop in the middle of something: one step while there are some in @p budget, and then the
    /// end of all loops.
    void stepInLoop(int& budget);

    /// Lets events run until there are none; see Invariants::checkAtRest().
    void rest();
    /// Ends whatever waits for the user, and lets go of buttons and keys.
    void settle();
    /// Deletes all that is left.
    void clear();

    /// Takes @p object in as a part of the window: hears its signals and acts on it.
    void add(QObject* object, const Component* component);
    bool isPart(const QObject* object) const;
    /// The innermost part that @p object is or lies in, which is what hosts delete; or itself.
    QObject* partAround(QObject* object) const;

    void addTop(QWidget* widget);

    /// Any widget of the windows, an inner one too; null where there is none.
    QWidget* anyWidget();
    /// A part that is a widget, or null.
    QWidget* anyPartWidget();
    Part anyPart();
    QWidget* anyTop();

    /// Deletes @p victim, at once where @p now is set; where that is forbidden, once everything is over.
    void remove(QObject* victim, bool now);
    /// Deletes it once nothing is under way any more.
    void removeAtTheEnd(QObject* victim);

    /// Whether nothing is under way but the present event loop, which delivers what was put off.
    bool isLeftToEvents() const;

    /// Whether somebody is being destroyed.
    bool isDeleting() const;

    /// Runs an event loop in the middle of everything, in which other steps are taken.
    void runLoop();

    /// What a host's own function may do when it is called for @p object: anything, as a slot may.
    void callHost(QObject* object);

    /// Takes all that is pressed now for left by Qt.
    void noteLeft();

    /// A sentence for the journal.
    static QString nameOf(const QObject* object);

    Random random;
    QVector<QPointer<QWidget>> tops;
    QVector<Part> parts;
    /// Models, pickers, pipettes: anything without a window.
    QVector<QPointer<QObject>> others;
    /// What is lent to parts as long as they live.
    std::vector<std::shared_ptr<void>> lent;

    /// What is under way, outermost first.
    QVector<Frame> frames;

    /// What Qt leaves pressed until the next release: hiddenButtonStaysPressed, blockedButtonStaysPressed,
    /// secondReleaseIsLost, menuTakesARelease, spinBoxKeepsARelease.
    QVector<QPointer<QObject>> leftByQt;

    Qt::MouseButtons buttons;
    QPointer<QWidget> mouseWidget;
    int timestamp = 0; ///< of the mouse's last event, in ms

private:
    void guard(int budget, const std::function<void()>& action);
    void endLoops();

    int m_steps = 0;
    int m_depth = 0;
    int m_endings = 0;
    QVector<QEventLoop*> m_loops;
    QVector<QPointer<QObject>> m_doomed;
    std::vector<std::unique_ptr<Listener>> m_listeners;
};

/// A frame of the world as long as it lives.
class Under
{
public:
    Under(World& world, Doings doing, QObject* object, const QByteArray& name);
    ~Under();
    Under(const Under&) = delete;
    Under& operator=(const Under&) = delete;

private:
    World& m_world;
};
