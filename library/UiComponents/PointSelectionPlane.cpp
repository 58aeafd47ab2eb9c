#include "PointSelectionPlane.h"

#include "AccessibleFactory.h"
#include "PlaneDrag.h"
#include "PointMapping.h"
#include "PointSelectionPlanePropertyHelper.h"

#include <WidgetToolkit/Util.h>

#include <QEvent>
#include <QLine>
#include <QPainter>
#include <QPen>

#include <cmath>

class PointSelectionPlane::Private : public PlaneDrag
{
public:
    explicit Private(PointSelectionPlane* plane)
        : PlaneDrag(plane)
        , q(plane)
        , style(new PointSelectionPlanePropertyHelper(plane))
    {
    }

    void updateScale();
    void locatePoint();
    QPointF pixel() const override { return pixelPosition; }
    void placeMarker(const QPointF& pixel) override;
    void stepMarker(const QPointF& pixel) override;
    void report() override;
    QPointF values() const override { return point; }
    QRectF range() const override { return limits; }
    void takeValues(const QPointF& values) override;
    void paintAxes(QPainter& painter) const;
    void paintMarker(QPainter& painter) const;

    PointSelectionPlane* const q;
    QPointF pixelPosition = {-1.0, -1.0};
    QPointF point = {-1.0, -1.0};
    QRectF limits;
    PointMapping::Scale scale;
    QColor background;
    PointSelectionPlanePropertyHelper* const style;
    // Without one there is no marker, even if the limits contain the initial point.
    bool hasPoint = false;
};

void PointSelectionPlane::Private::updateScale()
{
    scale = PointMapping::scaleOf(limits, q->size());
    locatePoint();
}

void PointSelectionPlane::Private::locatePoint()
{
    if (hasPoint) {
        pixelPosition = PointMapping::toPixel(point, limits, scale);
    }
}

void PointSelectionPlane::Private::placeMarker(const QPointF& pixel)
{
    hasPoint = true;
    pixelPosition = pixel;
    point = PointMapping::toPoint(pixel, limits, scale, q->size());
}

void PointSelectionPlane::Private::stepMarker(const QPointF& pixel)
{
    const QPointF before = point;
    const bool keepsX = hasPoint && pixel.x() == pixelPosition.x();
    const bool keepsY = hasPoint && pixel.y() == pixelPosition.y();
    placeMarker(pixel);
    // The other coordinate keeps its exact value.
    if (keepsX) {
        point.setX(before.x());
    }
    if (keepsY) {
        point.setY(before.y());
    }
}

void PointSelectionPlane::Private::takeValues(const QPointF& values)
{
    hasPoint = true;
    point = values;
    locatePoint();
}

void PointSelectionPlane::Private::report()
{
    Q_EMIT q->pointChanged(point);
}

void PointSelectionPlane::Private::paintAxes(QPainter& painter) const
{
    const QRect rect = q->rect();
    const QPoint centre = rect.center();
    const QLine vertical(centre.x(), rect.top(), centre.x(), rect.bottom());
    const QLine horizontal(rect.left(), centre.y(), rect.right(), centre.y());
    painter.drawLines(&vertical, 1);
    painter.drawLines(&horizontal, 1);
}

void PointSelectionPlane::Private::paintMarker(QPainter& painter) const
{
    const double radius = style->markerRadius();
    if (!std::isfinite(radius)) {
        return; // QPainter would warn
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(style->markerColor());
    painter.drawEllipse(pixelPosition, radius, radius);
}

PlaneDrag* PlaneDrag::of(PointSelectionPlane* plane)
{
    return plane->d.get();
}

PointSelectionPlane::PointSelectionPlane(QWidget* parent)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    setFocusPolicy(Qt::StrongFocus);
}

PointSelectionPlane::~PointSelectionPlane() = default;

void PointSelectionPlane::setLimits(const QRectF& limits)
{
    d->limits = limits;
    d->updateScale();
    update();
}

void PointSelectionPlane::setPoint(const QPointF& point)
{
    const QPointF before = d->point;
    d->takeValues(point);
    update();
    d->announce(before);
}

QPointF PointSelectionPlane::point()
{
    return d->point;
}

void PointSelectionPlane::mousePressEvent(QMouseEvent* event)
{
    if (!d->press(*event)) {
        OvFrame::mousePressEvent(event);
    }
}

void PointSelectionPlane::mouseReleaseEvent(QMouseEvent* event)
{
    if (!d->release(*event)) {
        OvFrame::mouseReleaseEvent(event);
    }
}

void PointSelectionPlane::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->move(*event)) {
        OvFrame::mouseMoveEvent(event);
    }
}

void PointSelectionPlane::keyPressEvent(QKeyEvent* event)
{
    if (!d->pressKey(*event)) {
        OvFrame::keyPressEvent(event);
    }
}

void PointSelectionPlane::focusInEvent(QFocusEvent* event)
{
    d->focus.focusIn(*event);
    OvFrame::focusInEvent(event);
}

void PointSelectionPlane::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    // The palette's colours, where no sheet sets others.
    const auto colorOr = [this](const QColor& color, QPalette::ColorRole role) {
        return color.isValid() ? color : palette().color(role);
    };
    painter.fillRect(rect(), colorOr(d->background, QPalette::Base));
    painter.setPen(QPen(QBrush(colorOr(d->style->coordLinesColor(), QPalette::Text), Qt::SolidPattern),
                        d->style->coordLinesWidth(), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    d->paintAxes(painter);
    if (PointMapping::isInside(d->pixelPosition, rect()) && d->style->markerColor().isValid()) {
        d->paintMarker(painter);
    }
    d->focus.paint(painter);
}

void PointSelectionPlane::resizeEvent(QResizeEvent* event)
{
    d->updateScale();
    d->background = d->style->fillColor();
    OvFrame::resizeEvent(event);
}

void PointSelectionPlane::hideEvent(QHideEvent* event)
{
    d->stop();
    OvFrame::hideEvent(event);
}

void PointSelectionPlane::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        if (!isEnabled()) {
            d->stop();
        }
        // Qt does not apply qproperty values of other states by itself.
        const QColor before = d->style->fillColor();
        Util::repolishWidget(d->style);
        if (d->style->fillColor() != before) {
            d->background = d->style->fillColor();
        }
    } else if (event->type() == QEvent::StyleChange) {
        // Qt may polish the plane under a new sheet before its children.
        Util::repolishWidget(d->style);
        d->background = d->style->fillColor();
    }
    OvFrame::changeEvent(event);
}
