// Internal: the picking cursor that WidgetColorPicker lends to its target.

#pragma once

#include <QCursor>
#include <QPointer>
#include <QWidget>

/// Replaces the cursor of a widget for as long as it exists, and brings back the former one, or none where
/// the widget had none of its own. The widget may die first. Several on one widget may go in any order: it
/// has the cursor of the latest one that is left. Without a widget it is the cursor of the whole application
/// that is overridden.
class CursorGuard
{
public:
    CursorGuard(QWidget* widget, const QCursor& cursor);
    ~CursorGuard();
    CursorGuard(const CursorGuard&) = delete;
    CursorGuard& operator=(const CursorGuard&) = delete;

    /// For a widget that is being destroyed: nothing is brought back.
    void leaveAlone();

private:
    const bool m_isForApplication;
    QPointer<QWidget> m_widget;
    bool m_hadOwnCursor;
    QCursor m_former;
};
