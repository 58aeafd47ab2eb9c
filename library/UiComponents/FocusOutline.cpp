#include "FocusOutline.h"

#include <QFocusEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWidget>

namespace {

constexpr int outlineWidth = 2;

} // namespace

FocusOutline::FocusOutline(QWidget* widget)
    : m_widget(widget)
{
}

void FocusOutline::focusIn(const QFocusEvent& event)
{
    switch (event.reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        m_isByKeyboard = true;
        break;
    case Qt::MouseFocusReason:
        m_isByKeyboard = false;
        break;
    case Qt::OtherFocusReason:
        m_isByKeyboard = m_widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
        break;
    default: // the window has been away
        break;
    }
    m_widget->update();
}

void FocusOutline::paint(QPainter& painter) const
{
    if (!m_widget->hasFocus() || !m_isByKeyboard) {
        return;
    }
    // Clipped, since some styles fill the focus rectangle, which would tint what is painted.
    const QMargins outline(outlineWidth, outlineWidth, outlineWidth, outlineWidth);
    const QRect inside = m_widget->rect().marginsRemoved(outline);
    painter.setClipRegion(QRegion(m_widget->rect()) - inside);
    painter.setRenderHint(QPainter::Antialiasing, false);
    QStyleOptionFocusRect option;
    option.initFrom(m_widget);
    option.state |= QStyle::State_KeyboardFocusChange;
    m_widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, m_widget);
}
