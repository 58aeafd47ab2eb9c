#include "LayoutMetricsWatch.h"

#include <QCoreApplication>
#include <QLayout>
#include <QWidget>

QEvent::Type LayoutMetricsWatch::eventType()
{
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}

void LayoutMetricsWatch::check(const QLayout* layout, int horizontalSpacing, int verticalSpacing)
{
    const QMargins margins = layout->contentsMargins();
    if (margins == m_margins && horizontalSpacing == m_horizontalSpacing &&
        verticalSpacing == m_verticalSpacing) {
        return;
    }
    m_margins = margins;
    m_horizontalSpacing = horizontalSpacing;
    m_verticalSpacing = verticalSpacing;
    // A layout inside another one has the same parent widget, but not its controller's attention.
    if (QWidget* const owner = layout->parentWidget(); owner && owner->layout() == layout) {
        QEvent event(eventType());
        QCoreApplication::sendEvent(owner, &event);
    }
}
