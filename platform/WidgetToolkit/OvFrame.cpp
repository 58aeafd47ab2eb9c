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
    // Qt polishes before the first show, and components may replace a layout after that.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish) {
        applyLayoutMetrics();
    }
    return QFrame::event(event);
}
