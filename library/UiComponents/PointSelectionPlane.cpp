#include "PointSelectionPlane.h"

#include "PointMapping.h"
#include "PointSelectionPlanePropertyHelper.h"

#include <WidgetToolkit/Util.h>

#include <QKeyEvent>
#include <QLine>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <cmath>

namespace {

constexpr int longStep = 10; // pixels

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

class PointSelectionPlane::Private
{
public:
    explicit Private(PointSelectionPlane* plane)
        : owner(plane)
        , style(new PointSelectionPlanePropertyHelper(plane))
    {
    }

    void updateScale();
    void locatePoint();
    void takePixel(const QPointF& pixel);
    bool isDragging() const { return QWidget::mouseGrabber() == owner; }
    void stopDragging() const;
    void paintAxes(QPainter& painter) const;
    void paintMarker(QPainter& painter) const;

    PointSelectionPlane* const owner;
    QPointF pixelPosition = {-1.0, -1.0};
    QPointF point = {-1.0, -1.0};
    QRectF limits;
    PointMapping::Scale scale;
    QPixmap background;
    PointSelectionPlanePropertyHelper* const style;
    // Until there is one, the marker stays outside, also of limits that contain the initial point.
    bool hasPoint = false;
};

void PointSelectionPlane::Private::updateScale()
{
    scale = PointMapping::scaleOf(limits, owner->size());
    locatePoint();
}

void PointSelectionPlane::Private::locatePoint()
{
    if (hasPoint) {
        pixelPosition = PointMapping::toPixel(point, limits, scale);
    }
}

void PointSelectionPlane::Private::takePixel(const QPointF& pixel)
{
    hasPoint = true;
    pixelPosition = pixel;
    point = PointMapping::toPoint(pixel, limits, scale, owner->size());
}

void PointSelectionPlane::Private::stopDragging() const
{
    if (isDragging()) {
        owner->releaseMouse();
    }
}

void PointSelectionPlane::Private::paintAxes(QPainter& painter) const
{
    const QRect rect = owner->rect();
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
        return; // QPainter would complain
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(style->markerColor());
    painter.drawEllipse(pixelPosition, radius, radius);
}

PointSelectionPlane::PointSelectionPlane(QWidget* parent)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
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
    d->hasPoint = true;
    d->point = point;
    d->locatePoint();
    update();
}

QPointF PointSelectionPlane::point()
{
    return d->point;
}

void PointSelectionPlane::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        OvFrame::mousePressEvent(event);
        return;
    }
    d->takePixel(event->pos());
    update();
    grabMouse();
    Q_EMIT pointChanged(d->point);
}

void PointSelectionPlane::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !d->isDragging()) {
        OvFrame::mouseReleaseEvent(event);
        return;
    }
    const QPointF pixel = PointMapping::pinned(event->pos(), rect());
    if (pixel != d->pixelPosition) {
        d->takePixel(pixel);
    }
    update();
    releaseMouse();
    Q_EMIT pointChanged(d->point);
}

void PointSelectionPlane::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->isDragging()) {
        OvFrame::mouseMoveEvent(event);
        return;
    }
    const QPointF pixel = PointMapping::pinned(event->pos(), rect());
    if (pixel == d->pixelPosition) {
        return;
    }
    d->takePixel(pixel);
    update();
    Q_EMIT pointChanged(d->point);
}

void PointSelectionPlane::keyPressEvent(QKeyEvent* event)
{
    const QPoint step = stepOf(*event);
    if (step.isNull()) {
        OvFrame::keyPressEvent(event);
        return;
    }
    const QPointF pixel = PointMapping::stepped(d->pixelPosition, step, rect());
    if (pixel == d->pixelPosition) {
        return;
    }
    const QPointF before = d->point;
    const bool keepsX = d->hasPoint && pixel.x() == d->pixelPosition.x();
    const bool keepsY = d->hasPoint && pixel.y() == d->pixelPosition.y();
    d->takePixel(pixel);
    // The coordinate across the step is not to suffer from being worked out anew.
    if (keepsX) {
        d->point.setX(before.x());
    }
    if (keepsY) {
        d->point.setY(before.y());
    }
    update();
    Q_EMIT pointChanged(d->point);
}

void PointSelectionPlane::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.drawPixmap(rect(), d->background);
    painter.setPen(QPen(QBrush(d->style->coordLinesColor(), Qt::SolidPattern), d->style->coordLinesWidth(),
                        Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    d->paintAxes(painter);
    if (PointMapping::isInside(d->pixelPosition, rect()) && d->style->markerColor().isValid()) {
        d->paintMarker(painter);
    }
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void PointSelectionPlane::resizeEvent(QResizeEvent* event)
{
    d->updateScale();
    d->background = QPixmap(size());
    d->background.fill(d->style->fillColor());
    OvFrame::resizeEvent(event);
}

void PointSelectionPlane::hideEvent(QHideEvent* event)
{
    // Qt leaves the grab with a hidden widget, where it swallows every click of the application.
    d->stopDragging();
    OvFrame::hideEvent(event);
}

void PointSelectionPlane::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        if (!isEnabled()) {
            d->stopDragging();
        }
        // Qt does not watch for a sheet's properties of the other state.
        Util::repolishWidget(d->style);
    }
    OvFrame::changeEvent(event);
}
