#include "ScreenGrabber.h"

#include "LibraryObject.h"

#include <QtUtility/PrivacyAccess.h>

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QtMath>
#ifdef QT_X11EXTRAS_LIB
#include <QX11Info>

#include <cstdlib>
#include <xcb/xcb.h>
#endif

#include <algorithm>

namespace {

// By their numbers, which every platform shares; a host's own may have other names for them.
constexpr auto screenCapture = static_cast<Orvane::Util::PrivacyType>(5);
constexpr auto granted = static_cast<Orvane::Util::AccessStatus>(0);

QPoint toDevice(const QPointF& position, const QScreen& screen)
{
    const QPoint corner = screen.geometry().topLeft();
    return corner + ((position - corner) * screen.devicePixelRatio()).toPoint();
}

/// All of the screen.
QRect toDevice(const QScreen& screen)
{
    const QRect area = screen.geometry();
    return {area.topLeft(), toDevice(area.bottomRight() + QPoint(1, 1), screen) - QPoint(1, 1)};
}

/// What a painting in @p area may touch.
QRect toDevice(const QRect& area, const QScreen& screen)
{
    const QPoint corner = screen.geometry().topLeft();
    const qreal ratio = screen.devicePixelRatio();
    const QRectF scaled(QPointF(area.topLeft() - corner) * ratio, QSizeF(area.size()) * ratio);
    return scaled.toAlignedRect().translated(corner) & toDevice(screen);
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

/// RGB32 leaves the alpha open.
QRgb opaque(QRgb color)
{
    return color | qRgb(0, 0, 0);
}

/// @p color below the overlay.
QRgb darkened(QRgb color)
{
    const auto channel = [](int value) { return value - value / 128; };
    return qRgb(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)));
}

/// Calls @p function with each pixel of @p area that both have.
template <typename Function>
void combine(const ScreenGrabber::Picture& from, ScreenGrabber::Picture& to, const QRect& area,
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

void copy(const ScreenGrabber::Picture& from, ScreenGrabber::Picture& to, const QRegion& area)
{
    for (const QRect& part : area) {
        combine(from, to, part, [](QRgb source, QRgb& target) { target = opaque(source); });
    }
}

#ifdef QT_X11EXTRAS_LIB
/// Asks the server once, where QScreen::grabWindow() does so several times. Null where its pixels are not
/// RGB32.
QImage grabRoot(xcb_connection_t* connection, const QRect& pixels)
{
    const auto cookie = xcb_get_image(
        connection, XCB_IMAGE_FORMAT_Z_PIXMAP, static_cast<xcb_drawable_t>(QX11Info::appRootWindow()),
        static_cast<int16_t>(pixels.x()), static_cast<int16_t>(pixels.y()),
        static_cast<uint16_t>(pixels.width()), static_cast<uint16_t>(pixels.height()), ~0U);
    std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> reply(
        xcb_get_image_reply(connection, cookie, nullptr), &std::free);
    const int count = pixels.width() * pixels.height();
    if (!reply || reply->depth != 24 || QSysInfo::ByteOrder != QSysInfo::LittleEndian ||
        xcb_get_image_data_length(reply.get()) != count * int(sizeof(QRgb))) {
        return {};
    }
    // Not copied, since the first touch of new memory takes as long as all the rest.
    uchar* const data = xcb_get_image_data(reply.get());
    return {data, pixels.width(), pixels.height(), QImage::Format_RGB32, std::free, reply.release()};
}
#endif

class PlatformScreens : public ScreenSource
{
public:
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
        if (xcb_connection_t* const connection = QX11Info::connection()) {
            QImage image = grabRoot(connection, pixels);
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
        return QDeadlineTimer::current().deadline();
    }
};

} // namespace

bool mayReadScreen()
{
    return Orvane::Util::IsPrivacyAccessGranted(screenCapture) == granted;
}

void askForScreen()
{
    Orvane::Util::RequestPrivacyAccess(screenCapture);
}

ScreenSource& ScreenSource::platform()
{
    static PlatformScreens screens;
    return screens;
}

ScreenSource::~ScreenSource() = default;

QColor ScreenGrabber::overlayColor()
{
    return {0, 0, 0, 1};
}

struct ScreenGrabber::Memory
{
    /// What was painted and is no longer.
    struct Trace
    {
        QRegion area;
        qint64 begin;
        qint64 end;
    };

    ScreenSource* source;
    QRegion screens;
    /// Of two that share pixels the later one holds.
    QVector<Picture> pictures;
    QHash<const void*, QRegion> painted;
    QVector<Trace> traces;
};

ScreenGrabber::ScreenGrabber(const QRegion& area, Cover cover, ScreenSource& source)
    : m_source(&source)
    , m_cover(cover)
{
    static std::weak_ptr<Memory> present;
    QRegion all;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        all += toDevice(*screen);
    }
    m_memory = present.lock();
    if (!m_memory || m_memory->source != &source || m_memory->screens != all) {
        m_memory = std::make_shared<Memory>(Memory{&source, all, {}, {}, {}});
        present = m_memory;
    }
    if (source.grabs() == ScreenSource::Grabs::Always) {
        return;
    }
    QVector<Picture>& pictures = m_memory->pictures;
    for (QScreen* screen : screens) {
        const QRect part = (toDevice(area) & toDevice(*screen)).boundingRect();
        Picture picture = {part.topLeft(), part.isEmpty() ? QImage() : source.grab(*screen, part)};
        if (picture.image.isNull()) {
            continue;
        }
        // Pixels that an earlier pick may still cover are copied from its picture.
        const QRegion untrusted = touched(picture.area());
        for (const Picture& former : qAsConst(pictures)) {
            copy(former, picture, untrusted);
        }
        const auto isReplaced = [&picture](const Picture& former) {
            return picture.area().contains(former.area());
        };
        pictures.erase(std::remove_if(pictures.begin(), pictures.end(), isReplaced), pictures.end());
        pictures.append(picture);
    }
}

QPixmap ScreenGrabber::picture(QScreen& screen) const
{
    const QRect area = toDevice(screen);
    const Picture* const found = pictureOf(area);
    QPixmap pixmap =
        found ? QPixmap::fromImage(found->image.copy(area.translated(-found->corner))) : QPixmap();
    pixmap.setDevicePixelRatio(screen.devicePixelRatio());
    return pixmap;
}

void ScreenGrabber::paint(const void* painter, const QRegion& painted)
{
    QHash<const void*, QRegion>& places = m_memory->painted;
    if (!places.contains(painter)) {
        m_settledAt = m_source->now() + settleTime;
    }
    const QRegion place = toDevice(painted);
    noteTrace(places.value(painter) - place);
    places.insert(painter, place);
}

void ScreenGrabber::remove(const void* painter, const QRegion& area)
{
    noteTrace(m_memory->painted.take(painter) + toDevice(area));
}

void ScreenGrabber::refresh(const QRect& area, QScreen& screen)
{
    if (!m_memory->pictures.isEmpty()) {
        const QRect pixels = toDevice(area, screen);
        grab(screen, QRegion(pixels) - hidden(pixels));
    }
}

void ScreenGrabber::settle() const
{
    auto* const timer = new QTimer(libraryObject());
    QObject::connect(timer, &QTimer::timeout, timer, [timer, kept = *this] { timer->deleteLater(); });
    timer->start(settleTime);
}

QColor ScreenGrabber::colorAt(const QPointF& position)
{
    QScreen* const screen = QGuiApplication::screenAt(pointAt(position));
    if (!screen) {
        return {};
    }
    const QRect pixel(toDevice(position, *screen), QSize(1, 1));
    const Picture* const known = hidden(pixel).isEmpty() ? nullptr : pictureOf(pixel);
    if (known) {
        return known->image.pixel(pixel.topLeft() - known->corner);
    }
    const QImage live = grab(*screen, pixel).image;
    if (live.isNull()) {
        return m_cover == Cover::Overlay ? QColor(Qt::black) : QColor();
    }
    return belowCover(live.pixel(0, 0));
}

ScreenGrabber::Detail ScreenGrabber::around(const QPoint& point, int size, QScreen& screen)
{
    const qreal ratio = screen.devicePixelRatio();
    const QRect pixels(toDevice(point - QPoint(size / 2, size / 2), screen),
                       (QSizeF(size, size) * ratio).toSize());
    const QRect inside = pixels & toDevice(screen);
    const QRegion seen = QRegion(inside) - hidden(inside);
    const Picture live = grab(screen, seen);
    Picture shown = live;
    if (live.area() != pixels || seen != QRegion(pixels)) {
        shown = {pixels.topLeft(), QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied)};
        shown.image.fill(Qt::transparent);
        for (const Picture& picture : qAsConst(m_memory->pictures)) {
            copy(picture, shown, pixels);
        }
        copy(live, shown, seen);
    }

    const QPoint middle = toDevice(point, screen);
    const bool isLive = seen.contains(middle) && !live.image.isNull();
    shown.image.setDevicePixelRatio(ratio);
    return {QPixmap::fromImage(shown.image),
            isLive ? belowCover(live.image.pixel(middle - live.corner)) : colorAt(point)};
}

/// Traces of a short while are one: a hand makes a thousand in a second.
void ScreenGrabber::noteTrace(const QRegion& area)
{
    constexpr qint64 shortWhile = 50;
    const qint64 now = m_source->now();
    QVector<Memory::Trace>& traces = m_memory->traces;
    while (!traces.isEmpty() && now - traces.constFirst().end >= settleTime) {
        traces.removeFirst();
    }
    if (area.isEmpty()) {
        return;
    }
    if (!traces.isEmpty() && now - traces.constLast().begin < shortWhile) {
        traces.last().area += area;
        traces.last().end = now;
    } else {
        traces.append({area, now, now});
    }
}

/// The part of @p area where a grab may show something else than the screen with the cover over it.
QRegion ScreenGrabber::hidden(const QRect& area) const
{
    const bool isCoverHere = m_cover == Cover::Nothing || m_source->now() >= m_settledAt ||
                             m_source->grabs() == ScreenSource::Grabs::Always;
    return isCoverHere ? touched(area) : area;
}

/// The part of @p area where a grab may show what pickers have painted.
QRegion ScreenGrabber::touched(const QRect& area) const
{
    QRegion result;
    if (m_source->grabs() == ScreenSource::Grabs::Always) {
        return result;
    }
    const qint64 now = m_source->now();
    for (const QRegion& painted : qAsConst(m_memory->painted)) {
        if (painted.intersects(area)) {
            result += painted & area;
        }
    }
    for (const Memory::Trace& trace : qAsConst(m_memory->traces)) {
        if (now - trace.end < settleTime && trace.area.intersects(area)) {
            result += trace.area & area;
        }
    }
    return result;
}

/// Grabs @p area, in which nothing is hidden, and keeps what is new. What may be the same stays: 127 and 128
/// are one value below the overlay.
ScreenGrabber::Picture ScreenGrabber::grab(QScreen& screen, const QRegion& area)
{
    const QRect bounds = area.boundingRect();
    Picture live = {bounds.topLeft(), bounds.isEmpty() ? QImage() : m_source->grab(screen, bounds)};
    const auto keep = [this](QRgb seen, QRgb& kept) {
        if (opaque(seen) != (m_cover == Cover::Overlay ? darkened(kept) : opaque(kept))) {
            kept = belowCover(seen).rgb();
        }
    };
    for (const QRect& part : area) {
        for (Picture& picture : m_memory->pictures) {
            combine(live, picture, part, keep);
        }
    }
    return live;
}

/// The picture that has all of @p area, or null.
const ScreenGrabber::Picture* ScreenGrabber::pictureOf(const QRect& area) const
{
    const QVector<Picture>& pictures = m_memory->pictures;
    const auto found = std::find_if(pictures.crbegin(), pictures.crend(), [&area](const Picture& picture) {
        return picture.area().contains(area);
    });
    return found == pictures.crend() ? nullptr : &*found;
}

QColor ScreenGrabber::belowCover(QRgb seen) const
{
    QColor color(seen);
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
