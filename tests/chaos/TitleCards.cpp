// A user who does anything at all with the application of examples/titlecard. Fails when a story of edits and
// the stack of undo come to differ; the sanitizers see the rest.

#include "Random.h"
#include "SameCards.h"
#include "TestMain.h"

#include <UiComponents/EditSession.h>
#include <UiComponents/PathSelectionWidget.h>

#include <QCommandLineParser>
#include <QFileDialog>
#include <QUndoStack>

#include <cstdio>
#include <examples/titlecard/Canvas.h>
#include <examples/titlecard/Editor.h>
#include <examples/titlecard/Inspector.h>

using namespace TitleCard;

namespace {

/// A warning is a failure, but for what the offscreen platform says.
bool hasWarned = false;

void takeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
        hasWarned = hasWarned || type != QtDebugMsg;
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

/// Each event comes in a turn of its own, also inside of a dialog that one of them opened.
class User : public QObject
{
public:
    User(Editor& editor, quint64 seed, int events)
        : m_editor(editor)
        , m_random(seed)
        , m_left(events)
    {
        next();
    }

    bool isContent() const { return m_isContent && !hasWarned; }

private:
    void next()
    {
        QMetaObject::invokeMethod(
            this, [this] { act(); }, Qt::QueuedConnection);
    }

    void act()
    {
        QWidget* const modal = QApplication::activeModalWidget();
        // In a dialog for files anything would be done to those of this machine.
        if (modal && (m_left <= 0 || qobject_cast<QFileDialog*>(modal))) {
            next();
            modal->close();
            return;
        }
        if (m_left <= 0) {
            finish();
            return;
        }
        keepInside();
        activate();
        --m_left;
        next();
        constexpr int eventsBetweenChecks = 500;
        if (m_left % eventsBetweenChecks == 0 && isAtRest()) {
            check();
        } else if (m_random.oneIn(3)) {
            pressKey();
        } else if (m_random.oneIn(12)) {
            turnWheel();
        } else {
            moveMouse();
        }
    }

    /// No picture is written but below the folder in which this runs.
    void keepInside()
    {
        auto* const folder = m_editor.findChild<PathSelectionWidget*>();
        if (folder->path().contains(QLatin1Char('/'))) {
            folder->setPath(QStringLiteral("pictures"));
        }
    }

    /// A pop-up that closes takes the keyboard with it on the offscreen platform.
    void activate()
    {
        QWidget* const modal = QApplication::activeModalWidget();
        const QWindow* const focus = QGuiApplication::focusWindow();
        if (!QApplication::activePopupWidget() && (!focus || !focus->isVisible())) {
            (modal ? modal : &m_editor)->activateWindow();
        }
    }

    QWidget* anyWindow()
    {
        QWidget* const popup = QApplication::activePopupWidget();
        QWidget* const above = popup ? popup : QApplication::activeModalWidget();
        if (above && !m_random.oneIn(8)) {
            return above;
        }
        std::vector<QWidget*> windows;
        const auto all = QApplication::topLevelWidgets();
        for (QWidget* window : all) {
            if (window->isVisible() && window->windowHandle()) {
                windows.push_back(window);
            }
        }
        return m_random.oneOf(windows);
    }

    void moveMouse()
    {
        QWidget* const window = anyWindow();
        std::vector<QWidget*> parts = {window};
        const auto inner = window->findChildren<QWidget*>();
        for (QWidget* part : inner) {
            if (part->window() == window && part->isVisible()) {
                parts.push_back(part);
            }
        }
        QWidget* const part = m_random.oneOf(parts);
        const QPoint place = part->mapTo(
            window, QPoint(m_random.below(part->width() + 1), m_random.below(part->height() + 1)));
        const QPoint global = window->windowHandle()->mapToGlobal(place);
        const bool isChange = m_random.oneIn(2) || !m_buttons;
        const Qt::MouseButton button = m_buttons           ? Qt::MouseButton(int(m_buttons))
                                       : m_random.oneIn(9) ? Qt::RightButton
                                                           : Qt::LeftButton;
        if (isChange) {
            m_buttons ^= button;
        }
        const auto type = !isChange   ? QEvent::MouseMove
                          : m_buttons ? QEvent::MouseButtonPress
                                      : QEvent::MouseButtonRelease;
        QCursor::setPos(global);
        qt_handleMouseEvent(window->windowHandle(), place, global, m_buttons,
                            isChange ? button : Qt::NoButton, type,
                            m_random.oneIn(9) ? Qt::ControlModifier : Qt::NoModifier, m_time += 200);
    }

    void turnWheel()
    {
        QWidget* const window = anyWindow();
        const QPoint place(m_random.below(window->width() + 1), m_random.below(window->height() + 1));
        QWidget* const part = window->childAt(place) ? window->childAt(place) : window;
        QWheelEvent event(part->mapFrom(window, place), window->mapToGlobal(place), QPoint(),
                          QPoint(0, m_random.oneIn(2) ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(part, &event);
    }

    void pressKey()
    {
        const auto keys = QString::fromLatin1(
                              "Tab Shift+Backtab Return Esc Space Up Down Left Right PgUp Home End Del "
                              "Backspace F1 F4 0 7 - . A F Ctrl+A Ctrl+C Ctrl+V Ctrl+X Ctrl+N Ctrl+S Ctrl+Z "
                              "Ctrl+Z Ctrl+Shift+Z Ctrl+Shift+E")
                              .split(QLatin1Char(' '));
        const int combination =
            QKeySequence(keys.at(m_random.below(keys.size())), QKeySequence::PortableText)[0];
        const Qt::KeyboardModifiers modifiers(combination & Qt::KeyboardModifierMask);
        const int key = combination & ~Qt::KeyboardModifierMask;
        const QPointer<QWindow> window = QGuiApplication::focusWindow();
        const QString text = key <= Qt::Key_Z && !modifiers ? QString(QChar(key)).toLower() : QString();
        if (window &&
            !qt_sendShortcutOverrideEvent(window, ulong(m_time += 200), key, modifiers, text, false, 1) &&
            window) {
            qt_handleKeyEvent(window, QEvent::KeyPress, Qt::Key(key), modifiers, text);
        }
        if (window) {
            qt_handleKeyEvent(window, QEvent::KeyRelease, Qt::Key(key), modifiers, text);
        }
    }

    bool isAtRest() const
    {
        return !m_buttons && !QApplication::activeModalWidget() && !QApplication::activePopupWidget();
    }

    /// All that was done can be undone, and done again.
    void check()
    {
        {
            // What is being edited is a step too.
            const EditSession::Refresh refresh(m_editor.inspector());
        }
        QUndoStack* const stack = m_editor.undoStack();
        const QVector<Card> made = m_editor.document()->cards();
        const int steps = stack->index();
        stack->setIndex(0);
        require(m_editor.document()->cards().isEmpty(), "cards are left when all is undone");
        stack->setIndex(steps);
        require(isSame(m_editor.document()->cards(), made), "the cards differ when all is done again");
        for (const int id : m_editor.canvas()->selection()) {
            require(m_editor.document()->find(id), "a card is selected that is not there");
        }
    }

    void require(bool holds, const char* what)
    {
        if (!holds) {
            std::fprintf(stderr, "%d events before the end: %s\n", m_left, what);
            m_isContent = false;
        }
    }

    void finish()
    {
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            next();
            popup->close();
            return;
        }
        check();
        std::printf("%d edits and %d cards at the end\n", m_editor.undoStack()->count(),
                    m_editor.document()->cards().size());
        QCoreApplication::quit();
    }

    Editor& m_editor;
    Random m_random;
    int m_left;
    int m_time = 0;
    Qt::MouseButtons m_buttons;
    bool m_isContent = true;
};

} // namespace

int main(int argc, char** argv)
{
    const TestEnvironment environment;
    QApplication application(argc, argv);
    TestEnvironment::prepareApplication();
    QGuiApplication::setQuitOnLastWindowClosed(false);
    Q_INIT_RESOURCE(styles);
    Q_INIT_RESOURCE(titlecard);

    QCommandLineParser options;
    options.addOptions({{QStringLiteral("events"), QStringLiteral("How many events."), QStringLiteral("N"),
                         QStringLiteral("1000")},
                        {QStringLiteral("seed"), QStringLiteral("Of all of them."), QStringLiteral("S"),
                         QStringLiteral("1")}});
    options.addHelpOption();
    options.process(application);
    qInstallMessageHandler(takeMessage);

    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    auto editor = std::make_unique<Editor>(QStringLiteral(":"));
    editor->setStyle(QStringLiteral("dark"));
    editor->show();
    editor->startFirstTour();
    const User user(*editor, options.value(QStringLiteral("seed")).toULongLong(),
                    options.value(QStringLiteral("events")).toInt());
    QApplication::exec();
    editor.reset();
    return TestEnvironment::reportLeftovers(user.isContent() ? 0 : 1);
}
