#include "RealUser.h"

#include "Invariants.h"
#include "Journal.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <qpa/qplatformwindow.h>

#include <dlfcn.h>

namespace {

constexpr int longestWait = 20000; // ms
constexpr int corner = 2; // In it, the mouse goes to show that all has arrived, and for nothing else.

/// Those of Xlib and of its test extension, which has no headers everywhere.
template <typename Function>
Function* find(const char* library, const char* name)
{
    void* const handle = dlopen(library, RTLD_NOW);
    void* const function = handle ? dlsym(handle, name) : nullptr;
    if (!function) {
        Journal::fail(QStringLiteral("there is no ") + QLatin1String(name));
    }
    return reinterpret_cast<Function*>(function);
}

constexpr const char* xlib = "libX11.so.6";
constexpr const char* xtest = "libXtst.so.6";

void* display = nullptr;
QPoint lastCorner;
int received = 0;
bool hasMoved = false;

/// Makes the server take what was done.
void flush()
{
    static auto* const sync = find<int(void*, int)>(xlib, "XSync");
    sync(display, 0);
}

void change(unsigned button, bool isDown)
{
    static auto* const fake = find<int(void*, unsigned, int, unsigned long)>(xtest, "XTestFakeButtonEvent");
    fake(display, button, isDown, 0);
    flush();
}

void change(const char* key, bool isDown)
{
    static auto* const symbolOf = find<unsigned long(const char*)>(xlib, "XStringToKeysym");
    static auto* const codeOf = find<unsigned char(void*, unsigned long)>(xlib, "XKeysymToKeycode");
    static auto* const fake = find<int(void*, unsigned, int, unsigned long)>(xtest, "XTestFakeKeyEvent");
    fake(display, codeOf(display, symbolOf(key)), isDown, 0);
    flush();
}

void moveTo(const QPoint& point)
{
    static auto* const fake = find<int(void*, int, int, int, unsigned long)>(xtest, "XTestFakeMotionEvent");
    fake(display, 0, point.x(), point.y(), 0);
    flush();
}

unsigned numberOf(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::MiddleButton:
        return 2;
    case Qt::RightButton:
        return 3;
    case Qt::ForwardButton:
        return 9;
    default:
        return 8;
    }
}

bool isOfTheLibraries(const QObject* object)
{
    const QByteArray path = Invariants::libraryOf(object);
    return path.contains("/libUiComponents") || path.contains("/libPlatform");
}

/// Qt remembers the window of a press beyond its end, if it was hidden before the press arrived.
void forgetPress(const QObject* window, QPlatformSurfaceEvent::SurfaceEventType type)
{
    const auto* dying = qobject_cast<const QWindow*>(window);
    if (dying && dying->handle() && type == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed) {
        dying->handle()->setVisible(false);
    }
}

Doings doingOf(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return Doing::Mouse;
    case QEvent::Wheel:
        return Doing::Wheel;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        switch (static_cast<const QKeyEvent&>(event).key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Doing::Entering;
        case Qt::Key_Escape:
            return Doing::Typing | Doing::Showing;
        default:
            return Doing::Typing;
        }
    case QEvent::Close:
        return Doing::Showing;
    default:
        return Doing::Other;
    }
}

} // namespace

void RealUser::begin()
{
    display = find<void*(const char*)>(xlib, "XOpenDisplay")(nullptr);
    if (!display) {
        Journal::fail(QStringLiteral("there is no X server"));
    }
}

bool RealUser::isThere()
{
    return display;
}

void RealUser::moveMouse(const QPoint& point)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    moveTo({qBound(corner, point.x(), screen.right()), qBound(corner, point.y(), screen.bottom())});
}

void RealUser::press(Qt::MouseButton button)
{
    change(numberOf(button), true);
}

void RealUser::release(Qt::MouseButton button)
{
    change(numberOf(button), false);
}

void RealUser::turnWheel(bool up)
{
    const unsigned button = up ? 4 : 5;
    change(button, true);
    change(button, false);
}

void RealUser::strike(const char* name, Qt::KeyboardModifiers modifiers)
{
    // Alt is the window manager's.
    for (const bool isDown : {true, false}) {
        if (modifiers.testFlag(Qt::ControlModifier)) {
            change("Control_L", isDown);
        }
        if (modifiers.testFlag(Qt::ShiftModifier)) {
            change("Shift_L", isDown);
        }
        if (isDown) {
            change(name, true);
            change(name, false);
        }
    }
}

void RealUser::finish()
{
    for (const auto button :
         {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton, Qt::BackButton, Qt::ForwardButton}) {
        release(button);
    }
    lastCorner = QPoint(1, 1) - lastCorner;
    moveTo(lastCorner);
    if (!QTest::qWaitFor([] { return QCursor::pos() == lastCorner; }, longestWait)) {
        Journal::fail(QStringLiteral("the mouse does not arrive"));
    }
    QCoreApplication::processEvents();
}

void RealUser::comeBack()
{
    if (QGuiApplication::mouseButtons() == Qt::NoButton) {
        return;
    }
    QWidget window(nullptr, Qt::BypassWindowManagerHint);
    window.setGeometry(0, 0, corner, corner);
    window.show();
    hasMoved = false;
    const auto isReached = [] {
        lastCorner = QPoint(1, 1) - lastCorner;
        moveTo(lastCorner);
        return hasMoved;
    };
    if (!QTest::qWaitFor(isReached, longestWait)) {
        Journal::fail(QStringLiteral("the mouse does not come back"));
    }
}

std::optional<Doings> RealUser::hear(const QObject* receiver, const QEvent& event)
{
    if (!display) {
        return std::nullopt;
    }
    if (event.type() == QEvent::PlatformSurface) {
        forgetPress(receiver, static_cast<const QPlatformSurfaceEvent&>(event).surfaceEventType());
    }
    if (!event.spontaneous()) {
        return std::nullopt;
    }
    hasMoved = hasMoved || event.type() == QEvent::MouseMove;
    const Doings doing = doingOf(event);
    const QObject* part = receiver->isWidgetType() && !doing.testFlag(Doing::Other) ? receiver : nullptr;
    while (part && !isOfTheLibraries(part)) {
        part = part->parent();
    }
    received += part ? 1 : 0;
    return doing;
}

int RealUser::count()
{
    return received;
}
