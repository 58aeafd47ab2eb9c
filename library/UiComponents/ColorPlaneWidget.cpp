#include "ColorPlaneWidget.h"

#include "HsvPlane.h"

#include <QEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QStyleOptionFocusRect>

namespace {

constexpr double noHue = -2.0;
constexpr int fullCircle = 360;
constexpr QPoint noMarker(-1, -1);
constexpr int longStep = 10; // pixels
constexpr int focusWidth = 2;

double hueOf(int degrees)
{
    return qBound(0, degrees, fullCircle) / static_cast<double>(fullCircle);
}

QColor inverse(const QColor& color)
{
    return {255 - color.red(), 255 - color.green(), 255 - color.blue()};
}

QPoint pinned(const QPoint& point, const QRect& rect)
{
    return {qBound(rect.left(), point.x(), rect.right()), qBound(rect.top(), point.y(), rect.bottom())};
}

QPoint stepOf(const QKeyEvent& event)
{
    const int step = event.modifiers().testFlag(Qt::ShiftModifier) ? longStep : 1;
    switch (event.key()) {
    case Qt::Key_Left:
        return {-step, 0};
    case Qt::Key_Right:
        return {step, 0};
    case Qt::Key_Up:
        return {0, -step};
    case Qt::Key_Down:
        return {0, step};
    default:
        return {};
    }
}

} // namespace

class ColorPlaneWidget::Private
{
public:
    explicit Private(ColorPlaneWidget* widget)
        : owner(widget)
    {
    }

    void takeSize();
    QColor colorAt(const QPoint& point) const;
    void placeMarker(const QPoint& point);
    bool isDragging() const { return QWidget::mouseGrabber() == owner; }
    void stopDragging();
    const QImage& upToDateImage();

    ColorPlaneWidget* const owner;
    double hue = noHue;
    int markerRadius = 8;
    int markerBorderWidth = 2;
    QPoint markerPos = noMarker;
    QColor markerColor;
    // The plane is fully described by these and the hue. A hidden widget is told of its new size late, so
    // this is not always the widget's.
    QSize planeSize = {0, 0};

    // What was painted last.
    QImage image;
    double imageHue = noHue;
    int renderings = 0;
};

void ColorPlaneWidget::Private::takeSize()
{
    if (qFuzzyCompare(hue, noHue)) {
        return;
    }
    planeSize = owner->size().isEmpty() ? QSize(0, 0) : owner->size();
    owner->setAttribute(Qt::WA_OpaquePaintEvent, !planeSize.isEmpty());
}

QColor ColorPlaneWidget::Private::colorAt(const QPoint& point) const
{
    if (!QRect(QPoint(), planeSize).contains(point)) {
        return {};
    }
    return HsvPlane::pixel(hue, planeSize, point);
}

void ColorPlaneWidget::Private::placeMarker(const QPoint& point)
{
    markerPos = point;
    markerColor = inverse(colorAt(point));
}

void ColorPlaneWidget::Private::stopDragging()
{
    if (isDragging()) {
        owner->releaseMouse();
    }
}

const QImage& ColorPlaneWidget::Private::upToDateImage()
{
    const bool fits = image.size() == planeSize;
    if (!fits) {
        image = QImage();
        image = HsvPlane::makeImage(planeSize);
    }
    if (!image.isNull() && (!fits || hue != imageHue)) {
        HsvPlane::render(image, hue);
        imageHue = hue;
        ++renderings;
    }
    return image;
}

ColorPlaneWidget::ColorPlaneWidget(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    setFocusPolicy(Qt::StrongFocus);
}

ColorPlaneWidget::~ColorPlaneWidget() = default;

int ColorPlaneWidget::markerRadius() const
{
    return d->markerRadius;
}

void ColorPlaneWidget::setMarkerRadius(int radius)
{
    if (d->markerRadius == radius) {
        return;
    }
    d->markerRadius = radius;
    update();
}

int ColorPlaneWidget::markerBorderWidth() const
{
    return d->markerBorderWidth;
}

void ColorPlaneWidget::setMarkerBorderWidth(int width)
{
    if (d->markerBorderWidth == width) {
        return;
    }
    d->markerBorderWidth = width;
    update();
}

QColor ColorPlaneWidget::hsvColor() const
{
    return d->colorAt(d->markerPos);
}

void ColorPlaneWidget::setHsvColor(const QColor& color)
{
    if (!color.isValid()) {
        return;
    }
    d->hue = hueOf(color.hue());
    d->takeSize();
    d->placeMarker({qRound(color.hsvSaturationF() * (d->planeSize.width() - 1)),
                    qRound((1.0 - color.valueF()) * (d->planeSize.height() - 1))});
    update();
}

void ColorPlaneWidget::setHue(int degrees)
{
    const double hue = hueOf(degrees);
    if (qFuzzyCompare(hue, d->hue)) {
        return;
    }
    d->hue = hue;
    d->takeSize();
    update();
    if (rect().contains(d->markerPos)) {
        Q_EMIT hsvColorChanged(hsvColor());
    }
}

void ColorPlaneWidget::removeMarker()
{
    d->markerPos = noMarker;
    update();
}

int ColorPlaneWidget::renderings() const
{
    return d->renderings;
}

void ColorPlaneWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const QImage& image = d->upToDateImage();
    if (image.isNull()) {
        return;
    }
    QPainter painter(this);
    painter.drawImage(rect(), image);
    if (rect().contains(d->markerPos) && d->markerColor.isValid()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(
            QPen(d->markerColor, d->markerBorderWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(d->markerPos, d->markerRadius, d->markerRadius);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        // A style may fill what it frames, and would tint the colours.
        const QRect inside = rect().adjusted(focusWidth, focusWidth, -focusWidth, -focusWidth);
        painter.setClipRegion(QRegion(rect()) - inside);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void ColorPlaneWidget::resizeEvent(QResizeEvent* event)
{
    d->takeSize();
    QWidget::resizeEvent(event);
}

void ColorPlaneWidget::hideEvent(QHideEvent* event)
{
    // A pop-up can close during a drag, and Qt leaves the grab with a hidden widget.
    d->stopDragging();
    QWidget::hideEvent(event);
}

void ColorPlaneWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        d->stopDragging();
    }
    QWidget::changeEvent(event);
}

void ColorPlaneWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    d->placeMarker(event->pos());
    update();
    grabMouse();
    Q_EMIT hsvColorChanged(hsvColor());
}

void ColorPlaneWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->isDragging()) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    const QPoint point = pinned(event->pos(), rect());
    if (point == d->markerPos) {
        return;
    }
    d->placeMarker(point);
    update();
    Q_EMIT hsvColorChanged(hsvColor());
}

void ColorPlaneWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !d->isDragging()) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    const QPoint point = pinned(event->pos(), rect());
    if (point != d->markerPos) {
        d->placeMarker(point);
    }
    update();
    releaseMouse();
    Q_EMIT hsvColorChanged(hsvColor());
}

void ColorPlaneWidget::keyPressEvent(QKeyEvent* event)
{
    const QPoint step = stepOf(*event);
    if (step.isNull() || d->planeSize.isEmpty()) {
        QWidget::keyPressEvent(event);
        return;
    }
    const QPoint point = pinned(d->markerPos + step, rect());
    if (point == d->markerPos) {
        return;
    }
    d->placeMarker(point);
    update();
    Q_EMIT hsvColorChanged(hsvColor());
}
