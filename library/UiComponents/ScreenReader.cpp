#include "ScreenReader.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QtMath>
#ifdef QT_X11EXTRAS_LIB
#include <QX11Info>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>
#endif

#include <algorithm>

namespace {

QPoint toDevice(const QPointF& position, const QScreen& screen)
{
    const QPoint corner = screen.geometry().topLeft();
    return corner + ((position - corner) * screen.devicePixelRatio()).toPoint();
}

QRect toDevice(const QRect& area, const QScreen& screen)
{
    const QPoint afterLast = area.bottomRight() + QPoint(1, 1);
    return {toDevice(area.topLeft(), screen), toDevice(afterLast, screen) - QPoint(1, 1)};
}

QRegion toDevice(const QRegion& area)
{
    QRegion result;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRegion onScreen = area & screen->geometry();
        for (const QRect& part : onScreen) {
            result += toDevice(part, *screen);
        }
    }
    return result;
}

/// @p color below the overlay.
QRgb darkened(QRgb color)
{
    const auto channel = [](int value) { return value - value / 128; };
    return qRgb(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)));
}

/// Calls @p function with each pixel of @p area that both have.
template <typename Function>
void combine(const ScreenReader::Picture& from, ScreenReader::Picture& to, const QRect& area,
             Function function)
{
    const QRect shared = area & from.area() & to.area();
    for (int y = shared.top(); y <= shared.bottom(); ++y) {
        const auto* source = reinterpret_cast<const QRgb*>(from.image.constScanLine(y - from.corner.y()));
        auto* target = reinterpret_cast<QRgb*>(to.image.scanLine(y - to.corner.y()));
        for (int x = shared.left(); x <= shared.right(); ++x) {
            function(source[x - from.corner.x()], target[x - to.corner.x()]);
        }
    }
}

#ifdef QT_X11EXTRAS_LIB
/// Asks the server once, where QScreen::grabWindow() does so several times. Null where its pixels are not
/// RGB32.
QImage grabRoot(const QRect& pixels)
{
    xcb_connection_t* const connection = QX11Info::connection();
    const auto cookie = xcb_get_image(
        connection, XCB_IMAGE_FORMAT_Z_PIXMAP, static_cast<xcb_drawable_t>(QX11Info::appRootWindow()),
        static_cast<int16_t>(pixels.x()), static_cast<int16_t>(pixels.y()),
        static_cast<uint16_t>(pixels.width()), static_cast<uint16_t>(pixels.height()), ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> reply(
        xcb_get_image_reply(connection, cookie, nullptr), &std::free);
    const int count = pixels.width() * pixels.height();
    if (!reply || reply->depth != 24 || QSysInfo::ByteOrder != QSysInfo::LittleEndian ||
        xcb_get_image_data_length(reply.get()) != count * int(sizeof(QRgb))) {
        return {};
    }
    QImage image(pixels.size(), QImage::Format_RGB32);
    const auto* const data = reinterpret_cast<const QRgb*>(xcb_get_image_data(reply.get()));
    std::transform(data, data + count, reinterpret_cast<QRgb*>(image.bits()),
                   [](QRgb pixel) { return qRgb(0, 0, 0) | pixel; });
    return image;
}
#endif

class PlatformScreens : public ScreenSource
{
public:
    PlatformScreens() { m_clock.start(); }

    Grabs grabs() const override
    {
        if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
            return Grabs::Always;
        }
#ifdef QT_X11EXTRAS_LIB
        if (QX11Info::isPlatformX11() && !QX11Info::isCompositingManagerRunning()) {
            return Grabs::Never;
        }
#endif
        return Grabs::OnceComposed;
    }

    QImage grab(QScreen& screen, const QRect& pixels) override
    {
#ifdef QT_X11EXTRAS_LIB
        if (QX11Info::isPlatformX11()) {
            const QImage image = grabRoot(pixels);
            if (!image.isNull()) {
                return image;
            }
        }
#endif
        // A point more on each side: grabWindow() rounds the corner and the size.
        const QPoint corner = screen.geometry().topLeft();
        const qreal ratio = screen.devicePixelRatio();
        const QRectF exact(QPointF(pixels.topLeft() - corner) / ratio, QSizeF(pixels.size()) / ratio);
        const QRect points = exact.toAlignedRect().adjusted(-1, -1, 1, 1) & QRect(QPoint(), screen.size());
        const QPixmap grabbed = screen.grabWindow(0, points.x(), points.y(), points.width(), points.height());
        const QPoint first = pixels.topLeft() - toDevice(points.topLeft() + corner, screen);
        QImage image = grabbed.toImage().convertToFormat(QImage::Format_RGB32);
        image.setDevicePixelRatio(1.0);
        return image.isNull() ? image : image.copy(QRect(first, pixels.size()));
    }

    qint64 now() const override
    {
        return m_clock.elapsed();
    }

private:
    QElapsedTimer m_clock;
};

} // namespace

ScreenSource& ScreenSource::platform()
{
    static PlatformScreens screens;
    return screens;
}

ScreenSource::~ScreenSource() = default;

QColor ScreenReader::overlayColor()
{
    return {0, 0, 0, 1};
}

std::shared_ptr<ScreenReader> ScreenReader::shared(const QRegion& area, Cover cover)
{
    static std::weak_ptr<ScreenReader> present;
    auto reader = present.lock();
    if (!reader || reader->m_cover != cover || reader->m_area != toDevice(area)) {
        // Not std::make_shared(): see the constructor of WidgetColorPicker.
        reader.reset(new ScreenReader(area, cover));
        present = reader;
    }
    return reader;
}

ScreenReader::ScreenReader(const QRegion& area, Cover cover, ScreenSource& source)
    : m_source(&source)
    , m_grabs(source.grabs())
    , m_cover(cover)
    , m_area(toDevice(area))
{
    if (m_grabs == ScreenSource::Grabs::Always) {
        return;
    }
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        const QRect part = (m_area & toDevice(screen->geometry(), *screen)).boundingRect();
        m_pictures.append({part.topLeft(), part.isEmpty() ? QImage() : source.grab(*screen, part)});
    }
}

QPixmap ScreenReader::picture(QScreen& screen) const
{
    const int index = QGuiApplication::screens().indexOf(&screen);
    QPixmap pixmap = QPixmap::fromImage(m_pictures.value(index).image);
    pixmap.setDevicePixelRatio(screen.devicePixelRatio());
    return pixmap;
}

void ScreenReader::paint(const QWidget& window, const QRegion& painted)
{
    Window& known = m_windows[&window];
    const QRegion cover = m_cover == Cover::Overlay ? toDevice(QRegion(window.geometry())) : QRegion();
    const QRegion now = toDevice(painted);
    // Pixels of a native window that has grown are arbitrary.
    if (known.cover != cover) {
        noteChange((known.cover + cover).boundingRect());
    }
    if (known.painted != now) {
        noteChange(known.painted.boundingRect());
    }
    known = {cover, now};
}

void ScreenReader::remove(const QWidget& window)
{
    const Window gone = m_windows.take(&window);
    noteChange((gone.cover + gone.painted).boundingRect());
}

QColor ScreenReader::colorAt(const QPointF& position)
{
    QScreen* const screen = QGuiApplication::screenAt(pointAt(position));
    if (!screen) {
        return {};
    }
    const QRect pixel(toDevice(position, *screen), QSize(1, 1));
    if (!unsettled(pixel).isEmpty()) {
        for (const Picture& picture : qAsConst(m_pictures)) {
            if (picture.area().contains(pixel)) {
                return QColor(picture.image.pixel(pixel.topLeft() - picture.corner));
            }
        }
    }
    const QImage live = m_source->grab(*screen, pixel);
    if (live.isNull()) {
        return m_cover == Cover::Overlay ? QColor(Qt::black) : QColor();
    }
    return belowCover(live.pixel(0, 0));
}

ScreenReader::Detail ScreenReader::around(const QPoint& point, int size, QScreen& screen)
{
    const qreal ratio = screen.devicePixelRatio();
    const QRect pixels(toDevice(point - QPoint(size / 2, size / 2), screen),
                       (QSizeF(size, size) * ratio).toSize());
    const QRect inside = pixels & toDevice(screen.geometry(), screen);
    const QRegion settled = QRegion(inside) - unsettled(inside);
    const Picture live = {inside.topLeft(), settled.isEmpty() ? QImage() : m_source->grab(screen, inside)};
    const auto refresh = [this](QRgb seen, QRgb& kept) {
        // What may still be the same stays: 127 and 128 are one value below the overlay.
        if (seen != (m_cover == Cover::Overlay ? darkened(kept) : kept)) {
            kept = belowCover(seen).rgb();
        }
    };
    for (const QRect& part : settled) {
        for (Picture& picture : m_pictures) {
            combine(live, picture, part, refresh);
        }
    }

    Picture shown = live;
    if (settled != QRegion(pixels)) {
        shown = {pixels.topLeft(), QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied)};
        shown.image.fill(Qt::transparent);
        const auto copy = [](QRgb seen, QRgb& pixel) { pixel = seen; };
        for (const Picture& picture : qAsConst(m_pictures)) {
            combine(picture, shown, pixels, copy);
        }
        for (const QRect& part : settled) {
            combine(live, shown, part, copy);
        }
    }

    const QPoint middle = toDevice(point, screen);
    const bool isLive = settled.contains(middle) && live.area().contains(middle);
    shown.image.setDevicePixelRatio(ratio);
    return {QPixmap::fromImage(shown.image),
            isLive ? belowCover(live.image.pixel(middle - live.corner)) : colorAt(point)};
}

/// Changes of a short while are one: a hand makes a thousand in a second.
void ScreenReader::noteChange(const QRect& area)
{
    constexpr qint64 shortWhile = 50;
    const qint64 now = m_source->now();
    while (!m_changes.isEmpty() && now - m_changes.constFirst().end >= settleTime) {
        m_changes.removeFirst();
    }
    if (!m_changes.isEmpty() && now - m_changes.constLast().begin < shortWhile) {
        m_changes.last().area |= area;
        m_changes.last().end = now;
    } else {
        m_changes.append({area, now, now});
    }
}

/// The part of @p area where a grab may show something else than the screen with the cover over it.
QRegion ScreenReader::unsettled(const QRect& area) const
{
    if (m_grabs == ScreenSource::Grabs::Always) {
        return {};
    }
    if (m_grabs == ScreenSource::Grabs::Never && m_cover == Cover::Overlay) {
        return area;
    }
    QRegion result = m_cover == Cover::Overlay ? area : QRect();
    for (const Window& window : m_windows) {
        if (window.cover.intersects(area)) {
            result -= window.cover;
        }
    }
    for (const Window& window : m_windows) {
        if (window.painted.intersects(area)) {
            result += window.painted & area;
        }
    }
    const qint64 now = m_source->now();
    for (const Change& change : m_changes) {
        if (change.area.intersects(area) && now - change.end < settleTime) {
            result += change.area & area;
        }
    }
    return result;
}

QColor ScreenReader::belowCover(QRgb seen) const
{
    const QColor color(seen);
    if (m_cover == Cover::Nothing) {
        return color;
    }
    const qreal factor = 1.0 / (1.0 - overlayColor().alphaF());
    return QColor::fromRgbF(color.redF() * factor, color.greenF() * factor, color.blueF() * factor);
}

QPoint pointAt(const QPointF& position)
{
    // A place on a scaled screen is a quotient, and may be a little less than it should.
    constexpr double tolerance = 0.001;
    return {qFloor(position.x() + tolerance), qFloor(position.y() + tolerance)};
}
