#include "HighlightFrame.h"

#include "HighlightFrameOverlay.h"

#include <QChildEvent>

namespace Orvane::Gui {

HighlightFrame::HighlightFrame(QWidget* target)
    : m_target(target)
{
    if (!target) {
        return;
    }
    for (QObject* child : target->children()) {
        watchSibling(child);
    }
    // Created without a parent, so that the filter knows it and can keep its ChildAdded event from the
    // target.
    m_overlay = new HighlightFrameOverlay;
    m_overlayChild = m_overlay;
    target->installEventFilter(this);
    m_overlay->setParent(target);
    m_overlay->coverParent();
    m_overlay->show();
}

HighlightFrame::~HighlightFrame()
{
    if (!m_overlay) {
        return;
    }
    if (m_target && !m_target->testAttribute(Qt::WA_WState_InPaintEvent)) {
        m_overlay->erase();
    }
    if (m_overlay) {
        // The filter keeps the ChildRemoved event from the target. deleteLater(), since a target that is
        // being hidden may be iterating over its children.
        m_overlay->hide();
        m_overlay->setParent(nullptr);
        m_overlay->deleteLater();
    }
}

bool HighlightFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_target) {
        if (targetEvent(event)) {
            return true;
        }
    } else if (m_overlay && event->type() == QEvent::ZOrderChange && watched->parent() == m_target) {
        m_overlay->raise();
    }
    return QObject::eventFilter(watched, event);
}

/// Returns whether the event is kept from the target.
bool HighlightFrame::targetEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
        if (m_overlay) {
            m_overlay->coverParent();
        }
        return false;
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
    case QEvent::ChildRemoved:
        return targetChildEvent(static_cast<QChildEvent*>(event));
    default:
        return false;
    }
}

bool HighlightFrame::targetChildEvent(const QChildEvent* event)
{
    QObject* const child = event->child();
    if (child == m_overlayChild) {
        if (event->removed()) {
            // Another child may get the same address.
            m_overlayChild = nullptr;
        }
        return true;
    }
    if (event->removed()) {
        child->removeEventFilter(this);
    } else if (event->added() && m_overlay && child->isWidgetType()) {
        watchSibling(child);
        m_overlay->raise();
    }
    return false;
}

/// Only the raised widget itself is told of QWidget::raise(). Overlays are not watched: two of them on one
/// target would raise each other endlessly.
void HighlightFrame::watchSibling(QObject* child)
{
    if (child->isWidgetType() && !qobject_cast<HighlightFrameOverlay*>(child)) {
        child->installEventFilter(this);
    }
}

} // namespace Orvane::Gui
