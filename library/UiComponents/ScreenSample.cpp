#include "ScreenSample.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRegion>
#include <QScreen>
#ifdef QT_X11EXTRAS_LIB
#include <QX11Info>
#endif

namespace {

// As QScreen::grabWindow() finds the corner of what it reads.
QPoint physical(const QPoint& point, qreal ratio)
{
    return {qRound(point.x() * ratio), qRound(point.y() * ratio)};
}

} // namespace

QColor ScreenSample::overlayColor()
{
    return {0, 0, 0, 1};
}

bool ScreenSample::areWindowsBlended()
{
#ifdef QT_X11EXTRAS_LIB
    return QGuiApplication::platformName() != QLatin1String("xcb") || QX11Info::isCompositingManagerRunning();
#else
    return true;
#endif
}

QRect ScreenSample::grabArea(const QPoint& point, const QSize& size, const QRect& screen)
{
    return {point - screen.topLeft() - QPoint(size.width() / 2, size.height() / 2), size};
}

QPoint ScreenSample::centerPixel(const QPoint& point, const QSize& size, const QRect& screen, qreal ratio)
{
    return physical(grabArea(point, {1, 1}, screen).topLeft(), ratio) -
           physical(grabArea(point, size, screen).topLeft(), ratio);
}

QPixmap ScreenSample::grab(QScreen& screen, const QPoint& point, const QSize& size)
{
    const QRect area = grabArea(point, size, screen.geometry());
    return screen.grabWindow(0, area.x(), area.y(), area.width(), area.height());
}

QPixmap ScreenSample::withoutOutside(const QPixmap& picture, const QPoint& point, const QSize& size,
                                     const QVector<ScreenArea>& screens, int screen)
{
    const ScreenArea& grabbed = screens.at(screen);
    const QRect area = grabArea(point, size, grabbed.geometry);
    if (picture.isNull()) {
        return picture;
    }
    // The corner of a screen is the same in pixels of the desktop and in physical ones; its size is not.
    const QPoint corner = grabbed.geometry.topLeft() + physical(area.topLeft(), grabbed.ratio);
    QRegion outside(QRect(corner, picture.size()));
    for (const ScreenArea& other : screens) {
        const QSizeF otherSize = QSizeF(other.geometry.size()) * other.ratio;
        outside -= QRect(other.geometry.topLeft(), otherSize.toSize());
    }
    if (outside.isEmpty()) {
        return picture;
    }
    QImage cleared = picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    cleared.setDevicePixelRatio(1.0);
    QPainter painter(&cleared);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect& part : outside.translated(-corner)) {
        painter.fillRect(part, Qt::transparent);
    }
    painter.end();
    cleared.setDevicePixelRatio(picture.devicePixelRatioF());
    return QPixmap::fromImage(cleared);
}

QColor ScreenSample::withoutOverlay(const QColor& seen)
{
    const qreal factor = 1.0 / (1.0 - overlayColor().alphaF());
    return QColor::fromRgbF(seen.redF() * factor, seen.greenF() * factor, seen.blueF() * factor, 1.0);
}

std::optional<QColor> ScreenSample::colorAt(QScreen& screen, const QPoint& point)
{
    const QPixmap picture = grab(screen, point, {1, 1});
    if (picture.isNull()) {
        return std::nullopt;
    }
    return withoutOverlay(picture.toImage().pixelColor(0, 0));
}
