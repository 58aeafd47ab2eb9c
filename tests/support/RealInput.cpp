#include "RealInput.h"

#include "NativeScreens.h"
#include "OnEvent.h"
#include "WaylandInput.h"

#include <QCursor>
#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QSaveFile>
#include <QScreen>
#include <QStringList>
#include <QTest>
#include <QWidget>

namespace {

constexpr int dragSteps = 8;
/// For what a busy machine does late, in ms.
constexpr int patience = 30000;

/// Moves to @p place of the screen, where the point @p target of the desktop is.
bool moveAndWait(const QPoint& place, const QPoint& target)
{
    if (WaylandInput::isRunning()) {
        // Again until Qt has asked for the pointer, which comes with its first use.
        return QTest::qWaitFor(
            [place, target] { return WaylandInput::moveTo(place) && QCursor::pos() == target; }, patience);
    }
    // Qt asks the server for the position. The events that are on their way by then are handled before
    // the next move, or Qt would make one of the two.
    const bool hasArrived =
        RealInput::xdotool(QStringLiteral("mousemove %1 %2").arg(place.x()).arg(place.y())) &&
        QTest::qWaitFor([target] { return QCursor::pos() == target; }, patience);
    QCoreApplication::processEvents();
    return hasArrived;
}

bool pressButton(bool down)
{
    return WaylandInput::isRunning()
               ? WaylandInput::pressButton(down)
               : RealInput::xdotool(down ? QStringLiteral("mousedown 1") : QStringLiteral("mouseup 1"));
}

} // namespace

bool RealInput::showAndActivate(QWidget* window)
{
    window->show();
    window->activateWindow();
    if (WaylandInput::isRunning()) {
        // The compositor activates new windows; programs cannot.
        return QTest::qWaitForWindowExposed(window, patience) &&
               QTest::qWaitFor([window] { return window->isActiveWindow(); }, patience);
    }
    return QTest::qWaitForWindowExposed(window, patience) && QTest::qWaitForWindowActive(window, patience);
}

bool RealInput::moveTo(const QWidget* widget, const QPoint& point)
{
    const QPoint target = widget->mapToGlobal(point);
    return moveAndWait(WaylandInput::isRunning() ? WaylandInput::placeOf(widget, point)
                                                 : NativeScreens::pixelAt(target),
                       target);
}

bool RealInput::click(const QWidget* widget, const QPoint& point)
{
    if (!moveTo(widget, point)) {
        return false;
    }
    return WaylandInput::isRunning() ? pressButton(true) && pressButton(false)
                                     : xdotool(QStringLiteral("click --delay 0 1"));
}

bool RealInput::click(const QWidget* widget)
{
    return click(widget, widget->rect().center());
}

bool RealInput::clickInto(const QWidget* widget)
{
    bool isReleased = false;
    const OnEvent release(QEvent::MouseButtonRelease, QCoreApplication::instance(),
                          [&] { isReleased = true; });
    return click(widget) && QTest::qWaitFor([&] { return isReleased && widget->hasFocus(); }, patience);
}

bool RealInput::drag(const QWidget* widget, const QPoint& from, const QPoint& to)
{
    // Global points: the widget may follow the mouse.
    const QPoint start = widget->mapToGlobal(from);
    const QPoint way = widget->mapToGlobal(to) - start;
    const QPoint place = WaylandInput::isRunning() ? WaylandInput::placeOf(widget, from) : QPoint();
    const auto moveBy = [start, place](const QPoint& distance) {
        const QPoint target = start + distance;
        return moveAndWait(WaylandInput::isRunning() ? place + distance : NativeScreens::pixelAt(target),
                           target);
    };
    if (!moveBy({}) || !pressButton(true)) {
        return false;
    }
    bool isThere = true;
    for (int step = 1; step <= dragSteps && isThere; ++step) {
        isThere = moveBy(way * step / dragSteps);
    }
    return pressButton(false) && isThere;
}

bool RealInput::wheel(const QWidget* widget, const QPoint& point, int notches)
{
    if (WaylandInput::isRunning()) {
        return moveTo(widget, point) && WaylandInput::turnWheel(notches);
    }
    // X has no wheel: buttons 4 and 5 are its two directions.
    const int button = notches > 0 ? 4 : 5;
    return moveTo(widget, point) &&
           xdotool(QStringLiteral("click --delay 0 --repeat %1 %2").arg(qAbs(notches)).arg(button));
}

bool RealInput::type(const QString& text)
{
    if (WaylandInput::isRunning()) {
        return WaylandInput::type(text);
    }
    return QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("type"), QStringLiteral("--delay"),
                                                         QStringLiteral("5"), text}) == 0;
}

bool RealInput::key(const QString& name)
{
    return WaylandInput::isRunning() ? WaylandInput::key(name) : xdotool(QStringLiteral("key ") + name);
}

bool RealInput::xdotool(const QString& commands)
{
    return QProcess::execute(QStringLiteral("xdotool"), commands.split(QLatin1Char(' '))) == 0;
}

QColor RealInput::pixel(const QWidget* widget, const QPoint& point)
{
    if (WaylandInput::isRunning()) {
        return WaylandInput::pixel(WaylandInput::placeOf(widget, point));
    }
    const QPoint global = widget->mapToGlobal(point);
    QScreen* screen = QGuiApplication::screenAt(global);
    if (!screen) {
        return {};
    }
    const QPoint local = global - screen->geometry().topLeft();
    return screen->grabWindow(0, local.x(), local.y(), 1, 1).toImage().pixelColor(0, 0);
}

bool RealInput::saveScreenshot(const QString& name)
{
    const QDir folder(qEnvironmentVariable("UIC_SCREENSHOTS", QDir::tempPath()));
    if (WaylandInput::isRunning()) {
        return folder.mkpath(QStringLiteral(".")) &&
               WaylandInput::saveScreenshot(folder.filePath(name + QStringLiteral(".png")));
    }
    // Another run of the same test may be writing the same picture.
    QSaveFile file(folder.filePath(name + QStringLiteral(".png")));
    return folder.mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly) &&
           QGuiApplication::primaryScreen()->grabWindow(0).save(&file, "PNG") && file.commit();
}
