#pragma once

// Internal: the picking cursor that WidgetColorPicker lends to its target.

#include <QCursor>
#include <QPointer>
#include <QWidget>

/// Replaces the cursor of a widget for as long as it exists, and brings back the former one, or none where
/// the widget had none of its own. The widget may die first. Without a widget it is the cursor of the whole
/// application that is overridden.
class CursorGuard
{
public:
    CursorGuard(QWidget* widget, const QCursor& cursor);
    ~CursorGuard();
    CursorGuard(const CursorGuard&) = delete;
    CursorGuard& operator=(const CursorGuard&) = delete;

private:
    const bool m_isForApplication;
    const QPointer<QWidget> m_widget;
    const bool m_hadOwnCursor;
    const QCursor m_former;
};
