#include "World.h"

#include "Actions.h"
#include "Components.h"
#include "Exceptions.h"
#include "Invariants.h"
#include "Journal.h"
#include "Listener.h"
#include "Reader.h"
#include "RealUser.h"

#include <UiComponents/Pipette.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <QApplication>
#include <QDialog>
#include <QDrag>
#include <QMouseEvent>
#include <QSplitter>
#include <QThread>
#include <QTimer>
#include <QToolTip>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int deepest = 4;
constexpr int patience = 100;
constexpr int maxEndings = 3000;

int loopLevel()
{
    return QThread::currentThread()->loopLevel();
}

void stopPick(QObject* object)
{
    if (auto* picker = qobject_cast<AbstractColorPicker*>(object)) {
        picker->stop();
    } else if (auto* pipette = qobject_cast<Pipette*>(object)) {
        pipette->stopPicking();
    } else if (auto* button = qobject_cast<WidgetColorPickerButton*>(object)) {
        button->stopPicking();
    }
}

void closePopups()
{
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
        if (popup == QApplication::activePopupWidget()) {
            Journal::fail(QStringLiteral("a pop-up does not close: %1").arg(World::nameOf(popup)));
        }
    }
}

void endModal(QWidget* widget)
{
    if (auto* dialog = qobject_cast<QDialog*>(widget)) {
        dialog->reject();
    } else if (widget) {
        widget->close();
    }
}

/// Whether no user comes to it. Qt hides the handle before the first widget of a splitter, and moves it to a
/// place that it has not worked out.
bool isOutOfReach(const QObject* object)
{
    const auto* const splitter = qobject_cast<const QSplitter*>(object->parent());
    return object->inherits("HighlightFrameOverlay") || (splitter && splitter->handle(0) == object);
}

void release(QObject* object)
{
    QMouseEvent event(QEvent::MouseButtonRelease, QPoint(-9, -9), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(object, &event);
}

} // namespace

World::World(quint64 seed, QObject* parent)
    : QObject(parent)
    , random(seed)
    , m_steps(20 + random.below(180))
{
    Reader::listen(random.oneIn(3) ? this : nullptr);
    guard(0, [this] { Components::build(*this); });
}

World::~World()
{
    Reader::listen(nullptr);
}

void World::step()
{
    if (frames.isEmpty()) {
        for (const auto& object : qAsConst(m_doomed)) {
            if (object) {
                object->deleteLater();
            }
        }
        m_doomed.clear();
    }
    Components::takeInPanels(*this);
    guard(random.below(8), [this] { Actions::act(*this); });
}

/// Runs @p action. In event loops that it begins, @p budget other steps are taken, and then all loops end.
void World::guard(int budget, const std::function<void()>& action)
{
    Invariants::noteStep();
    const int level = loopLevel();
    QTimer heart;
    connect(&heart, &QTimer::timeout, this, [this, level, &budget] {
        if (loopLevel() > level) {
            stepInLoop(budget);
        }
    });
    heart.start(1);
    ++m_depth;
    action();
    --m_depth;
    if (frames.isEmpty()) {
        m_endings = 0;
    }
    Invariants::noteStep();
}

void World::stepInLoop(int& budget)
{
    if (budget > 0 && m_depth < deepest) {
        --budget;
        step();
    } else {
        guard(0, [this] { endLoops(); });
    }
}

void World::endLoops()
{
    if (++m_endings > maxEndings) {
        Journal::fail(QStringLiteral("an event loop does not end"));
    }
    Journal::note(QStringLiteral("end of the loops"));
    for (QEventLoop* loop : qAsConst(m_loops)) {
        loop->quit();
    }
    const auto present = parts;
    const auto presentOthers = others;
    for (const auto& object : presentOthers) {
        stopPick(object);
    }
    for (const Part& part : present) {
        stopPick(part.object);
    }
    if (RealUser::isThere()) {
        QDrag::cancel();
    }
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    if (m_endings % patience == 0) {
        // One without a size is nobody's modal one: sizelessDialogIsNotModal.
        const auto presentTops = tops;
        for (const auto& top : presentTops) {
            if (auto* dialog = qobject_cast<QDialog*>(top)) {
                dialog->reject();
            }
        }
        for (const Part& part : present) {
            if (auto* dialog = qobject_cast<QDialog*>(part.object)) {
                dialog->reject();
            }
        }
        // Qt waits for ever for a menu that was closed while it was being opened.
        const auto widgets = QApplication::allWidgets();
        for (QWidget* widget : widgets) {
            if (widget->inherits("QMenu")) {
                widget->show();
                widget->close();
            }
        }
    }
    endModal(QApplication::activeModalWidget());
}

void World::rest()
{
    guard(0, [] { Invariants::checkAtRest(); });
}

void World::settle()
{
    guard(0, [this] {
        Journal::note(QStringLiteral("settle"));
        if (RealUser::isThere()) {
            RealUser::finish();
        }
        QToolTip::hideText();
        endLoops();
        closePopups();
        if (RealUser::isThere()) {
            RealUser::comeBack();
            closePopups(); // of a button that the mouse has let go only now
            noteLeft();
        }
        Actions::letGo(*this);
        for (const auto& object : qAsConst(others)) {
            if (object && object->inherits("Orvane::Gui::HighlightFrame")) {
                delete object;
            }
        }
        const auto left = leftByQt;
        for (const auto& object : left) {
            if (object && Invariants::isPressed(object)) {
                release(object);
            }
        }
    });
}

void World::clear()
{
    guard(0, [this] {
        for (const auto& object : qAsConst(m_doomed)) {
            remove(object, false);
        }
        for (const auto& object : qAsConst(others)) {
            remove(object, random.oneIn(2));
        }
        for (const auto& top : qAsConst(tops)) {
            remove(top, random.oneIn(2));
        }
    });
}

void World::add(QObject* object, const Component* component)
{
    parts.append({object, component});
    m_listeners.push_back(std::make_unique<Listener>(*this, object));
    Journal::note(QStringLiteral("made %1").arg(nameOf(object)));
}

bool World::isPart(const QObject* object) const
{
    return std::any_of(parts.begin(), parts.end(),
                       [object](const Part& part) { return part.object == object; });
}

QObject* World::partAround(QObject* object) const
{
    QObject* part = object;
    while (part && !isPart(part)) {
        part = part->parent();
    }
    return part ? part : object;
}

void World::addTop(QWidget* widget)
{
    constexpr int maxSide = 5000;
    widget->setMaximumSize(maxSide, maxSide);
    tops.append(widget);
}

QWidget* World::anyTop()
{
    tops.removeAll(nullptr);
    return tops.isEmpty() ? nullptr : tops[random.below(tops.size())].data();
}

QWidget* World::anyWidget()
{
    QWidget* widget = anyTop();
    if (random.oneIn(3)) {
        widget = random.oneIn(2) ? QApplication::activePopupWidget() : QApplication::activeWindow();
    }
    while (widget) {
        QVector<QWidget*> children;
        for (QObject* child : widget->children()) {
            if (child->isWidgetType() && !isOutOfReach(child)) {
                children.append(static_cast<QWidget*>(child));
            }
        }
        if (children.isEmpty() || random.oneIn(6)) {
            break;
        }
        widget = children[random.below(children.size())];
    }
    return widget;
}

Part World::anyPart()
{
    QVector<Part> present;
    for (const Part& part : qAsConst(parts)) {
        if (part.object) {
            present.append(part);
        }
    }
    return present.isEmpty() ? Part() : present[random.below(present.size())];
}

QWidget* World::anyPartWidget()
{
    return qobject_cast<QWidget*>(anyPart().object);
}

void World::remove(QObject* victim, bool now)
{
    if (!victim) {
        return;
    }
    const int row = Exceptions::forbidding(*this, victim);
    Journal::note(QStringLiteral("delete %1 %2")
                      .arg(nameOf(victim), now ? QStringLiteral("now") : QStringLiteral("later")) +
                  (row < 0 ? QString() : QStringLiteral(", but for row %1").arg(row)));
    if (row >= 0) {
        removeAtTheEnd(victim);
    } else if (!now) {
        victim->deleteLater();
    } else {
        const Under under(*this, Doing::Deleting, victim, "delete");
        delete victim;
    }
}

/// Not deleteLater(): an inner loop would see to it in the middle of what is under way.
void World::removeAtTheEnd(QObject* victim)
{
    m_doomed.append(victim);
}

bool World::isLeftToEvents() const
{
    return frames.isEmpty() || frames.last().level < loopLevel();
}

bool World::isDeleting() const
{
    return std::any_of(frames.begin(), frames.end(),
                       [](const Frame& frame) { return frame.doing.testFlag(Doing::Deleting); });
}

void World::runLoop()
{
    QEventLoop loop;
    m_loops.append(&loop);
    loop.exec();
    m_loops.removeOne(&loop);
}

void World::callHost(QObject* object)
{
    const Under under(*this, Doing::Signal, object, "callback");
    const int deed = random.below(16);
    if (deed == 0 && !Exceptions::forbidsLoop(*this) && !isDeleting()) {
        runLoop();
    } else if (deed == 1) {
        remove(anyPart().object, true);
    } else if (deed == 2) {
        remove(random.oneIn(2) ? anyTop() : object, true);
    }
}

void World::noteLeft()
{
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (Invariants::isPressed(widget)) {
            leftByQt.append(widget);
        }
    }
}

QString World::nameOf(const QObject* object)
{
    if (!object) {
        return QStringLiteral("nothing");
    }
    return QStringLiteral("%1 \"%2\"")
        .arg(QLatin1String(object->metaObject()->className()), object->objectName().left(20));
}

Under::Under(World& world, Doings doing, QObject* object, const QByteArray& name)
    : m_world(world)
{
    world.frames.append({object, name, doing, loopLevel(), nullptr});
}

Under::~Under()
{
    m_world.frames.removeLast();
}
