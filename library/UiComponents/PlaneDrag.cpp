#include "PlaneDrag.h"

#include "PointMapping.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWidget>

namespace {

constexpr int longStep = 10; // pixels
constexpr int focusWidth = 2;

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

PlaneDrag::PlaneDrag(QWidget* plane)
    : m_plane(plane)
{
}

PlaneDrag::~PlaneDrag() = default;

bool PlaneDrag::press(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    placeMarker(event.pos());
    m_plane->update();
    m_plane->grabMouse();
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
        placeMarker(point);
        m_plane->update();
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
    if (point != pixel()) {
        placeMarker(point);
    }
    m_plane->update();
    m_plane->releaseMouse();
    report();
    return true;
}

bool PlaneDrag::pressKey(const QKeyEvent& event)
{
    const QPoint step = stepOf(event);
    if (step.isNull()) {
        return false;
    }
    const QPointF point = PointMapping::stepped(pixel(), step, m_plane->rect());
    if (point != pixel()) {
        stepMarker(point);
        m_plane->update();
        report();
    }
    return true;
}

void PlaneDrag::stop() const
{
    if (isDragging()) {
        m_plane->releaseMouse();
    }
}

void PlaneDrag::paintFocus(QPainter& painter) const
{
    if (!m_plane->hasFocus() || !m_plane->window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        return;
    }
    // Clipped, since some styles fill the focus rectangle, which would tint the plane.
    const QRect inside = m_plane->rect().adjusted(focusWidth, focusWidth, -focusWidth, -focusWidth);
    painter.setClipRegion(QRegion(m_plane->rect()) - inside);
    painter.setRenderHint(QPainter::Antialiasing, false);
    QStyleOptionFocusRect option;
    option.initFrom(m_plane);
    m_plane->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, m_plane);
}

void PlaneDrag::stepMarker(const QPointF& pixel)
{
    placeMarker(pixel);
}

bool PlaneDrag::isDragging() const
{
    return QWidget::mouseGrabber() == m_plane;
}
