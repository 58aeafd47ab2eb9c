#include "OvFrame.h"

#include <QEvent>

OvFrame::OvFrame(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

OvFrame::~OvFrame() = default;

QLayout* OvFrame::getLayout() const
{
    return layout();
}

bool OvFrame::event(QEvent* event)
{
    // Polish comes before the first show; a layout may be replaced after it.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish) {
        applyLayoutMetrics();
    }
    return QFrame::event(event);
}
