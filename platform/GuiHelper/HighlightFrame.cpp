#include "HighlightFrame.h"

#include "HighlightFrameOverlay.h"

#include <QChildEvent>
#include <QPointer>

namespace Orvane::Gui {

class HighlightFrame::Private
{
public:
    const QPointer<QWidget> target;
    QPointer<HighlightFrameOverlay> overlay;
    /// The overlay's address, for the event of its removal, when the pointer is null already.
    const QObject* overlayChild = nullptr;
};

HighlightFrame::HighlightFrame(QWidget* target)
    : d(new Private{target, nullptr, nullptr})
{
    if (!target) {
        return;
    }
    for (QObject* child : target->children()) {
        watchSibling(child);
    }
    // Created without a parent, so that the filter knows it and can keep its ChildAdded event from the
    // target.
    d->overlay = new HighlightFrameOverlay;
    d->overlayChild = d->overlay;
    target->installEventFilter(this);
    d->overlay->setParent(target);
    d->overlay->coverParent();
    d->overlay->show();
}

HighlightFrame::~HighlightFrame()
{
    if (!d->overlay) {
        return;
    }
    if (d->target && !d->target->testAttribute(Qt::WA_WState_InPaintEvent)) {
        d->overlay->erase();
    }
    if (d->overlay) {
        // The filter keeps the ChildRemoved event from the target. deleteLater(), since a target that is
        // being hidden may be iterating over its children.
        d->overlay->hide();
        d->overlay->setParent(nullptr);
        d->overlay->deleteLater();
    }
}

bool HighlightFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->target) {
        if (targetEvent(event)) {
            return true;
        }
    } else if (d->overlay && event->type() == QEvent::ZOrderChange && watched->parent() == d->target) {
        d->overlay->raise();
    }
    return QObject::eventFilter(watched, event);
}

/// Returns whether the event is kept from the target.
bool HighlightFrame::targetEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
        if (d->overlay) {
            d->overlay->coverParent();
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
    if (child == d->overlayChild) {
        if (event->removed()) {
            // Another child may get the same address.
            d->overlayChild = nullptr;
        }
        return true;
    }
    if (event->removed()) {
        child->removeEventFilter(this);
    } else if (event->added() && d->overlay && child->isWidgetType()) {
        watchSibling(child);
        d->overlay->raise();
    }
    return false;
}

/// Only the raised widget gets the event of raise(). Overlays are not watched: two of them on one
/// target would raise each other endlessly.
void HighlightFrame::watchSibling(QObject* child)
{
    if (child->isWidgetType() && !qobject_cast<HighlightFrameOverlay*>(child)) {
        child->installEventFilter(this);
    }
}

} // namespace Orvane::Gui
