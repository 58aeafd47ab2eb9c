// Internal: how OvBoxLayout and OvGridLayout tell the controller of their owner, at once, that code gave them
// other metrics.

#pragma once

#include <QEvent>
#include <QMargins>

class QLayout;

/// Remembers the metrics of a layout. Qt announces that they changed only by an event that is posted, and
/// a widget that is shown or grabbed in the same turn would be measured before that.
class LayoutMetricsWatch
{
public:
    /// Of the event that the layout's parent widget gets.
    static QEvent::Type eventType();

    /// To be called whenever @p layout is invalidated: sends the event when its metrics differ from those
    /// at the last call.
    void check(const QLayout* layout, int horizontalSpacing, int verticalSpacing);

private:
    QMargins m_margins{-1, -1, -1, -1};
    int m_horizontalSpacing = -1;
    int m_verticalSpacing = -1;
};
