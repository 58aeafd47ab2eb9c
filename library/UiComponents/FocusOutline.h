// Internal: the mark of the keyboard's focus around what PlaneDrag and GuidePicture paint.

#pragma once

class QFocusEvent;
class QPainter;
class QWidget;

/// The edge of the style's focus rectangle, while a widget has the focus and got it by keyboard.
class FocusOutline
{
public:
    explicit FocusOutline(QWidget* widget);

    /// Notes the reason of the focus.
    void focusIn(const QFocusEvent& event);
    void paint(QPainter& painter) const;

private:
    QWidget* const m_widget;
    bool m_isByKeyboard = false;
};
