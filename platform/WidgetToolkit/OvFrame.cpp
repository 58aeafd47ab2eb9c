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
    // Components zero a layout's margins when they build it, which may be after the sheet was applied.
    // Qt posts a layout request for every such change, and polishes before the first show.
    const bool metricsMayDiffer = event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish;
    if (metricsMayDiffer) {
        applyLayoutMetrics();
    }
    return QFrame::event(event);
}
