// Internal: the picking cursor that WidgetColorPicker lends to its target.

#pragma once

#include <QCursor>
#include <QPointer>
#include <QWidget>

#include <optional>

/// Replaces the cursor of a widget for as long as it exists, and brings back the former one, or none where
/// the widget had none of its own. The widget may die first. Several on one widget may go in any order: it
/// has the cursor of the latest one that is left.
class CursorGuard
{
public:
    CursorGuard(QWidget* widget, const QCursor& cursor);
    ~CursorGuard();
    CursorGuard(const CursorGuard&) = delete;
    CursorGuard& operator=(const CursorGuard&) = delete;

private:
    const QPointer<QWidget> m_widget;
    /// Empty where the widget had none of its own.
    std::optional<QCursor> m_former;
};
