#include "NativeScreens.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>

QPoint NativeScreens::pixelAt(const QPoint& point)
{
    const QScreen* screen = QGuiApplication::screenAt(point);
    if (!screen) {
        return point;
    }
    const QPoint corner = screen->geometry().topLeft();
    return corner + (QPointF(point - corner) * screen->devicePixelRatio()).toPoint();
}

QRect NativeScreens::geometry(const QScreen* screen)
{
    // An odd size was rounded up when it was divided by a fractional scale.
    const QSizeF size = QSizeF(screen->size()) * screen->devicePixelRatio();
    return {screen->geometry().topLeft(), QSize(int(size.width()) & ~1, int(size.height()) & ~1)};
}

QRect NativeScreens::desktop()
{
    QRect all;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        all |= geometry(screen);
    }
    return all;
}

bool NativeScreens::xrandr(const QStringList& arguments)
{
    // The second one has the server look for what is connected, or Qt may not see the change.
    return QProcess::execute(QStringLiteral("xrandr"), arguments) == 0 &&
           QProcess::execute(QStringLiteral("sh"),
                             {QStringLiteral("-c"), QStringLiteral("xrandr >/dev/null")}) == 0;
}
