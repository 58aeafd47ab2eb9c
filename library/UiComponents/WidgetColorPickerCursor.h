// Internal: the picking cursor that WidgetColorPicker lends to its target.

#pragma once

#include <QCursor>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <optional>

/// Replaces the cursor of a widget for as long as it exists, and brings back the former one, or none. The
/// widget may be deleted first. Several on one widget may be destroyed in any order: it has the cursor of the
/// latest one left.
class WidgetColorPickerCursor
{
public:
    WidgetColorPickerCursor(QWidget* widget, const QCursor& cursor)
        : m_widget(widget)
    {
        if (widget->testAttribute(Qt::WA_SetCursor)) {
            m_former = widget->cursor();
        }
        guards().append(this);
        widget->setCursor(cursor);
    }

    ~WidgetColorPickerCursor()
    {
        QVector<WidgetColorPickerCursor*>& all = guards();
        const auto next = all.erase(std::find(all.begin(), all.end(), this));
        const auto heir = std::find_if(next, all.end(), [this](const WidgetColorPickerCursor* other) {
            return other->m_widget == m_widget;
        });
        if (!m_widget) {
            return;
        }
        if (heir != all.end()) {
            // It took this one's cursor for the widget's own.
            (*heir)->m_former = m_former;
        } else if (m_former) {
            m_widget->setCursor(*m_former);
        } else {
            // Setting the inherited one would keep the widget from ever following its parent's again.
            m_widget->unsetCursor();
        }
    }

    Q_DISABLE_COPY(WidgetColorPickerCursor)

private:
    /// In the order in which they began.
    static QVector<WidgetColorPickerCursor*>& guards()
    {
        static QVector<WidgetColorPickerCursor*> all;
        return all;
    }

    const QPointer<QWidget> m_widget;
    std::optional<QCursor> m_former;
};
