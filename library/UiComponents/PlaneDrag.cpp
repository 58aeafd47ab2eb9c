#include "PlaneDrag.h"

#include "AccessibleEvents.h"
#include "PointMapping.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include <cmath>

namespace {

constexpr int longStep = 10; // pixels
constexpr int pages = 10;

/// What is too long for a plane of @p size is pinned to its edge.
QPoint stepOf(const QKeyEvent& event, const QSize& size)
{
    const int step = event.modifiers().testFlag(Qt::ShiftModifier) ? longStep : 1;
    const int page = qMax(1, size.height() / pages);
    const bool isUpright = event.modifiers().testFlag(Qt::ControlModifier);
    const QPoint end = isUpright ? QPoint(0, size.height()) : QPoint(size.width(), 0);
    switch (event.key()) {
    case Qt::Key_Left:
        return {-step, 0};
    case Qt::Key_Right:
        return {step, 0};
    case Qt::Key_Up:
        return {0, -step};
    case Qt::Key_Down:
        return {0, step};
    case Qt::Key_PageUp:
        return {0, -page};
    case Qt::Key_PageDown:
        return {0, page};
    case Qt::Key_Home:
        return -end;
    case Qt::Key_End:
        return end;
    default:
        return {};
    }
}

} // namespace

PlaneDrag::PlaneDrag(QWidget* plane)
    : focus(plane)
    , m_plane(plane)
{
}

PlaneDrag::~PlaneDrag() = default;

bool PlaneDrag::press(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    const QPointF before = values();
    placeMarker(event.pos());
    m_plane->update();
    m_plane->grabMouse();
    announce(before);
    report();
    return true;
}

bool PlaneDrag::move(const QMouseEvent& event)
{
    if (!isDragging()) {
        return false;
    }
    const QPointF point = PointMapping::pinned(event.pos(), m_plane->rect());
    if (point != pixel()) {
        const QPointF before = values();
        placeMarker(point);
        m_plane->update();
        announce(before);
        report();
    }
    return true;
}

bool PlaneDrag::release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !isDragging()) {
        return false;
    }
    const QPointF point = PointMapping::pinned(event.pos(), m_plane->rect());
    const QPointF before = values();
    if (point != pixel()) {
        placeMarker(point);
    }
    m_plane->update();
    m_plane->releaseMouse();
    announce(before);
    report();
    return true;
}

bool PlaneDrag::pressKey(const QKeyEvent& event)
{
    const QPoint move = stepOf(event, m_plane->size());
    if (move.isNull()) {
        return false;
    }
    const QPointF point = PointMapping::stepped(pixel(), move, m_plane->rect());
    if (point != pixel()) {
        const QPointF before = values();
        stepMarker(point);
        m_plane->update();
        announce(before);
        report();
    }
    return true;
}

bool PlaneDrag::isAtEdge(const QKeyEvent& event) const
{
    const QPoint move = stepOf(event, m_plane->size());
    return !move.isNull() && PointMapping::stepped(pixel(), move, m_plane->rect()) == pixel();
}

void PlaneDrag::stop() const
{
    if (isDragging()) {
        m_plane->releaseMouse();
    }
}

QSizeF PlaneDrag::step() const
{
    const QRectF all = range();
    return {std::abs(all.width()) / qMax(1, m_plane->width() - 1),
            std::abs(all.height()) / qMax(1, m_plane->height() - 1)};
}

void PlaneDrag::setValue(int axis, double value)
{
    const QRectF all = range().normalized();
    const QPointF before = values();
    QPointF wanted = before;
    (axis == 0 ? wanted.rx() : wanted.ry()) = value;
    wanted = {qBound(all.left(), wanted.x(), all.right()), qBound(all.top(), wanted.y(), all.bottom())};
    if (!m_plane->isEnabled() || PointMapping::isSame(wanted, before) || std::isnan(value)) {
        return;
    }
    const QPointF place = pixel();
    takeValues(wanted);
    if (PointMapping::isSame(pixel(), place) && PointMapping::isSame(values(), before)) {
        return; // a fraction of a pixel
    }
    m_plane->update();
    announce(before);
    report();
}

void PlaneDrag::announce(const QPointF& before) const
{
    const QPointF now = values();
    if (now.x() != before.x()) {
        AccessibleEvents::valueChanged(m_plane, 0);
    }
    if (now.y() != before.y()) {
        AccessibleEvents::valueChanged(m_plane, 1);
    }
}

void PlaneDrag::stepMarker(const QPointF& pixel)
{
    placeMarker(pixel);
}

bool PlaneDrag::isDragging() const
{
    return QWidget::mouseGrabber() == m_plane;
}
