#include "ColorPlaneWidget.h"

#include "ColorPlaneImage.h"
#include "PlaneDrag.h"

#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QPen>

namespace {

constexpr double noHue = -2.0;
constexpr int fullCircle = 360;
constexpr QPoint noMarker(-1, -1);
constexpr double percent = 100.0;

double hueOf(int degrees)
{
    return qBound(0, degrees, fullCircle) / static_cast<double>(fullCircle);
}

QColor inverse(const QColor& color)
{
    return {255 - color.red(), 255 - color.green(), 255 - color.blue()};
}

} // namespace

class ColorPlaneWidget::Private : public PlaneDrag
{
public:
    explicit Private(ColorPlaneWidget* widget)
        : PlaneDrag(widget)
        , q(widget)
    {
    }

    void takeSize();
    QColor colorAt(const QPoint& point) const;
    QPointF pixel() const override { return markerPos; }
    void placeMarker(const QPointF& pixel) override;
    void report() override;
    QPointF values() const override;
    QRectF range() const override { return {0.0, percent, percent, -percent}; }
    void takeValues(const QPointF& values) override;
    const QImage& upToDateImage();

    ColorPlaneWidget* const q;
    double hue = noHue;
    int markerRadius = 8;
    int markerBorderWidth = 2;
    QPoint markerPos = noMarker;
    QColor markerColor;
    // Differs from the widget's size while a resize event is pending, as in a hidden widget.
    QSize planeSize = {0, 0};

    // Painted last.
    QImage image;
    double imageHue = noHue;
};

void ColorPlaneWidget::Private::takeSize()
{
    if (qFuzzyCompare(hue, noHue)) {
        return;
    }
    planeSize = q->size().isEmpty() ? QSize(0, 0) : q->size();
    q->setAttribute(Qt::WA_OpaquePaintEvent, !planeSize.isEmpty());
}

QColor ColorPlaneWidget::Private::colorAt(const QPoint& point) const
{
    if (!QRect(QPoint(), planeSize).contains(point)) {
        return {};
    }
    return ColorPlaneImage::pixel(hue, planeSize, point);
}

void ColorPlaneWidget::Private::placeMarker(const QPointF& pixel)
{
    markerPos = pixel.toPoint();
    markerColor = inverse(colorAt(markerPos));
}

/// Saturation and brightness, both in percent, and whole ones as far as the pixels go.
QPointF ColorPlaneWidget::Private::values() const
{
    if (!QRect(QPoint(), planeSize).contains(markerPos)) {
        return {};
    }
    const double saturation = markerPos.x() / qMax(1.0, planeSize.width() - 1.0);
    const double brightness = 1.0 - markerPos.y() / qMax(1.0, planeSize.height() - 1.0);
    return {saturation * percent, brightness * percent};
}

void ColorPlaneWidget::Private::takeValues(const QPointF& values)
{
    if (!planeSize.isEmpty()) {
        placeMarker({values.x() / percent * (planeSize.width() - 1),
                     (1.0 - values.y() / percent) * (planeSize.height() - 1)});
    }
}

void ColorPlaneWidget::Private::report()
{
    Q_EMIT q->hsvColorChanged(q->hsvColor());
}

const QImage& ColorPlaneWidget::Private::upToDateImage()
{
    const bool fits = image.size() == planeSize;
    if (!fits) {
        image = QImage();
        image = ColorPlaneImage::makeImage(planeSize);
    }
    if (!image.isNull() && (!fits || hue != imageHue)) {
        ColorPlaneImage::render(image, hue);
        imageHue = hue;
    }
    return image;
}

PlaneDrag* PlaneDrag::of(ColorPlaneWidget* plane)
{
    return plane->d.get();
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
    const QPointF before = d->values();
    d->placeMarker(QPoint(qRound(color.hsvSaturationF() * (d->planeSize.width() - 1)),
                          qRound((1.0 - color.valueF()) * (d->planeSize.height() - 1))));
    update();
    d->announce(before);
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
        d->report();
    }
}

void ColorPlaneWidget::removeMarker()
{
    d->markerPos = noMarker;
    update();
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
    }
    d->focus.paint(painter);
}

void ColorPlaneWidget::resizeEvent(QResizeEvent* event)
{
    d->takeSize();
    QWidget::resizeEvent(event);
}

void ColorPlaneWidget::hideEvent(QHideEvent* event)
{
    // A pop-up can close during a drag.
    d->stop();
    QWidget::hideEvent(event);
}

void ColorPlaneWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        d->stop();
    }
    QWidget::changeEvent(event);
}

void ColorPlaneWidget::mousePressEvent(QMouseEvent* event)
{
    if (!d->press(*event)) {
        QWidget::mousePressEvent(event);
    }
}

void ColorPlaneWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->move(*event)) {
        QWidget::mouseMoveEvent(event);
    }
}

void ColorPlaneWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!d->release(*event)) {
        QWidget::mouseReleaseEvent(event);
    }
}

void ColorPlaneWidget::keyPressEvent(QKeyEvent* event)
{
    if (d->planeSize.isEmpty() || !d->pressKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void ColorPlaneWidget::focusInEvent(QFocusEvent* event)
{
    d->focus.focusIn(*event);
    QWidget::focusInEvent(event);
}
