#include "ScreenReader.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QtMath>
#ifdef QT_X11EXTRAS_LIB
#include <QX11Info>
#endif

#include <algorithm>

namespace {

QPoint toDevice(const QPoint& point, qreal ratio)
{
    // As QScreen::grabWindow() finds the corner of what it reads.
    return {qRound(point.x() * ratio), qRound(point.y() * ratio)};
}

QRect toDevice(const QRect& area, qreal ratio)
{
    const QPoint corner = toDevice(area.topLeft(), ratio);
    const QPoint end = toDevice(area.topLeft() + QPoint(area.width(), area.height()), ratio);
    return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

/// An image whose top-left pixel lies at @p corner of some common coordinates.
template <typename Image>
struct Placed
{
    Image& image;
    QPoint corner;

    QRect rect() const { return {corner, image.size()}; }
};

/// RGB32 leaves the alpha open.
QRgb opaque(QRgb color)
{
    return qRgb(0, 0, 0) | color;
}

void copy(const Placed<const QImage>& from, const Placed<QImage>& to, const QRect& area)
{
    const QRect shared = area & from.rect() & to.rect();
    for (int y = shared.top(); y <= shared.bottom(); ++y) {
        const auto* source = reinterpret_cast<const QRgb*>(from.image.constScanLine(y - from.corner.y()));
        auto* target = reinterpret_cast<QRgb*>(to.image.scanLine(y - to.corner.y()));
        const QRgb* const begin = source + shared.left() - from.corner.x();
        std::transform(begin, begin + shared.width(), target + shared.left() - to.corner.x(), &opaque);
    }
}

QRgb withOverlay(QRgb color)
{
    const auto darkened = [](int channel) { return channel - channel / 128; };
    return qRgb(darkened(qRed(color)), darkened(qGreen(color)), darkened(qBlue(color)));
}

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

    QImage grab(QScreen& screen, const QRect& area) override
    {
        QImage image = screen.grabWindow(0, area.x(), area.y(), area.width(), area.height())
                           .toImage()
                           .convertToFormat(QImage::Format_RGB32);
        image.setDevicePixelRatio(1.0);
        return image;
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

ScreenReader::ScreenReader(const QRegion& area, Cover cover, ScreenSource& source)
    : m_source(&source)
    , m_cover(cover)
{
    if (source.grabs() == ScreenSource::Grabs::Always) {
        return;
    }
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        const QRect geometry = screen->geometry();
        const QRect part = (area & geometry).boundingRect().translated(-geometry.topLeft());
        if (!part.isEmpty()) {
            m_pictures.append({screen, geometry, toDevice(part.topLeft(), screen->devicePixelRatio()),
                               source.grab(*screen, part)});
        }
    }
}

bool ScreenReader::isOfPresentScreens() const
{
    const auto screens = QGuiApplication::screens();
    return std::equal(screens.begin(), screens.end(), m_pictures.begin(), m_pictures.end(),
                      [](const QScreen* screen, const Picture& picture) {
                          return picture.screen == screen && picture.geometry == screen->geometry();
                      });
}

QPixmap ScreenReader::picture(const QScreen& screen) const
{
    for (const Picture& picture : m_pictures) {
        if (picture.screen == &screen) {
            QPixmap pixmap = QPixmap::fromImage(picture.image);
            pixmap.setDevicePixelRatio(screen.devicePixelRatio());
            return pixmap;
        }
    }
    return {};
}

void ScreenReader::paint(const QWidget& window, const QRegion& painted)
{
    const qint64 now = m_source->now();
    const QPair<const QWidget*, QRect> covering(&window, window.geometry());
    if (!m_covering.contains(covering)) {
        m_covering.append(covering);
        m_coveredAt = now;
    }
    const auto isLongGone = [now](const Painting& painting) {
        return painting.goneAt && now - *painting.goneAt >= settleTime;
    };
    m_paintings.erase(std::remove_if(m_paintings.begin(), m_paintings.end(), isLongGone), m_paintings.end());

    const auto current =
        std::find_if(m_paintings.begin(), m_paintings.end(), [&window](const Painting& painting) {
            return painting.window == &window && !painting.goneAt;
        });
    if (current != m_paintings.end()) {
        if (current->area == painted) {
            return;
        }
        current->goneAt = now;
    }
    if (!painted.isEmpty()) {
        m_paintings.append({&window, painted, std::nullopt});
    }
}

void ScreenReader::remove(const QWidget& window)
{
    for (Painting& painting : m_paintings) {
        if (painting.window == &window) {
            painting.goneAt = painting.goneAt.value_or(m_source->now());
        }
    }
    const auto isItsOwn = [&window](const auto& covering) { return covering.first == &window; };
    m_covering.erase(std::remove_if(m_covering.begin(), m_covering.end(), isItsOwn), m_covering.end());
    if (m_covering.isEmpty()) {
        m_coveredAt.reset();
    }
}

QColor ScreenReader::colorAt(const QPointF& position)
{
    const QPoint point = pointAt(position);
    QScreen* const screen = QGuiApplication::screenAt(point);
    if (!screen) {
        return {};
    }
    const qreal ratio = screen->devicePixelRatio();
    const DevicePixel pixel = devicePixelAt(position - screen->geometry().topLeft(), ratio);
    if (!unsettled(QRect(point, QSize(1, 1))).isEmpty()) {
        if (const auto color = remembered(*screen, toDevice(pixel.area.topLeft(), ratio) + pixel.index)) {
            return *color;
        }
    }
    const QImage live = m_source->grab(*screen, pixel.area);
    return belowCover(live.valid(pixel.index) ? live.pixelColor(pixel.index) : QColor());
}

ScreenReader::Detail ScreenReader::around(const QPoint& point, int size, QScreen& screen)
{
    const qreal ratio = screen.devicePixelRatio();
    const QRect geometry = screen.geometry();
    const QRect area(point - QPoint(size / 2, size / 2), QSize(size, size));
    const QRect inside = area & geometry;
    const QRegion unsettledPart = unsettled(inside);
    const QRegion settled = QRegion(inside) - unsettledPart;

    // Device pixels of the desktop.
    const auto onDesktop = [&](const QRect& part) {
        return toDevice(part.translated(-geometry.topLeft()), ratio).translated(geometry.topLeft());
    };
    QImage result((QSizeF(size, size) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    const Placed<QImage> target{result, onDesktop(area).topLeft()};
    bool isEmpty = true;
    for (const Picture& picture : qAsConst(m_pictures)) {
        const Placed<const QImage> source{picture.image, picture.geometry.topLeft() + picture.corner};
        copy(source, target, source.rect());
        isEmpty = isEmpty && picture.image.isNull();
    }

    const QImage live =
        settled.isEmpty() ? QImage() : m_source->grab(screen, inside.translated(-geometry.topLeft()));
    const Placed<const QImage> source{live, onDesktop(inside).topLeft()};
    Picture* const picture = pictureOf(screen);
    for (const QRect& part : settled) {
        copy(source, target, onDesktop(part));
        if (picture) {
            refresh(*picture, live, source.corner - geometry.topLeft(),
                    onDesktop(part).translated(-geometry.topLeft()));
        }
    }

    const QPoint middle = onDesktop(QRect(point, QSize(1, 1))).topLeft();
    const bool isLive = settled.contains(point) && source.rect().contains(middle);
    Detail detail;
    detail.color = isLive ? belowCover(live.pixelColor(middle - source.corner)) : colorAt(point);
    if (!isEmpty || !live.isNull()) {
        result.setDevicePixelRatio(ratio);
        detail.picture = QPixmap::fromImage(std::move(result));
    }
    return detail;
}

ScreenReader::Picture* ScreenReader::pictureOf(const QScreen& screen)
{
    const auto found = std::find_if(m_pictures.begin(), m_pictures.end(),
                                    [&screen](const Picture& picture) { return picture.screen == &screen; });
    return found == m_pictures.end() || found->image.isNull() ? nullptr : &*found;
}

std::optional<QColor> ScreenReader::remembered(const QScreen& screen, const QPoint& pixel)
{
    const Picture* const picture = pictureOf(screen);
    if (!picture || !picture->image.valid(pixel - picture->corner)) {
        return std::nullopt;
    }
    return QColor(picture->image.pixel(pixel - picture->corner));
}

/// Whether the cover is what a grab shows over all pixels.
bool ScreenReader::isCovered() const
{
    return m_cover == Cover::Nothing || (m_coveredAt && m_source->now() - *m_coveredAt >= settleTime);
}

/// The part of @p area where a grab may show what windows have painted besides the cover.
QRegion ScreenReader::painted(const QRect& area) const
{
    const qint64 now = m_source->now();
    // One more around it for what a fractional ratio rounds.
    const QRect wider = area.adjusted(-1, -1, 1, 1);
    QRegion result;
    for (const Painting& painting : m_paintings) {
        if (painting.area.intersects(wider) && (!painting.goneAt || now - *painting.goneAt < settleTime)) {
            for (const QRect& part : painting.area) {
                result += part.adjusted(-1, -1, 1, 1) & area;
            }
        }
    }
    return result;
}

/// The part of @p area whose pixels a grab may show with something else than the cover on them.
QRegion ScreenReader::unsettled(const QRect& area) const
{
    switch (m_source->grabs()) {
    case ScreenSource::Grabs::Always:
        return {};
    case ScreenSource::Grabs::Never:
        return area;
    case ScreenSource::Grabs::OnceComposed:
        break;
    }
    return isCovered() ? painted(area) : area;
}

QColor ScreenReader::belowCover(const QColor& seen) const
{
    if (m_cover == Cover::Nothing) {
        return seen.isValid() ? QColor(seen.rgb()) : QColor();
    }
    const qreal factor = 1.0 / (1.0 - overlayColor().alphaF());
    return QColor::fromRgbF(seen.redF() * factor, seen.greenF() * factor, seen.blueF() * factor, 1.0);
}

/// A pixel that is still the same stays, with the cover over it or without: 127 and 128 are one value under
/// an overlay.
void ScreenReader::refresh(Picture& picture, const QImage& live, const QPoint& corner,
                           const QRect& pixels) const
{
    const QRect shared = pixels & QRect(picture.corner, picture.image.size()) & QRect(corner, live.size());
    for (int y = shared.top(); y <= shared.bottom(); ++y) {
        const auto* seen = reinterpret_cast<const QRgb*>(live.constScanLine(y - corner.y())) - corner.x();
        auto* kept =
            reinterpret_cast<QRgb*>(picture.image.scanLine(y - picture.corner.y())) - picture.corner.x();
        for (int x = shared.left(); x <= shared.right(); ++x) {
            const QRgb same = opaque(kept[x]);
            const QRgb now = opaque(seen[x]);
            if (now != same && (m_cover == Cover::Nothing || now != withOverlay(same))) {
                kept[x] = belowCover(QColor(now)).rgb();
            }
        }
    }
}

namespace {

struct Place
{
    int corner;
    int index;
};

Place placeAlong(double position, double ratio)
{
    const int pixel = qRound(position * ratio);
    // Where a picture begins is rounded too.
    const auto begin = [ratio](int corner) { return qRound(corner * ratio); };
    int corner = qFloor(pixel / ratio);
    if (begin(corner) > pixel) {
        --corner;
    }
    return {corner, pixel - begin(corner)};
}

} // namespace

DevicePixel devicePixelAt(const QPointF& position, qreal ratio)
{
    const Place across = placeAlong(position.x(), ratio);
    const Place down = placeAlong(position.y(), ratio);
    const int sizeOfOne = qMax(1, qRound(ratio));
    const int extent = qMax(across.index, down.index) < sizeOfOne ? 1 : 2;
    return {QRect(across.corner, down.corner, extent, extent), QPoint(across.index, down.index)};
}

QPoint pointAt(const QPointF& position)
{
    // A place on a scaled screen is a quotient, and may be a little less than it should.
    constexpr double tolerance = 0.001;
    return {qFloor(position.x() + tolerance), qFloor(position.y() + tolerance)};
}
