// Internal: a button of ColorPickerWidget's palette or of its own colours.

#pragma once

#include <QColor>
#include <QToolButton>

#include <optional>

/// A tool button that offers a colour. Computes its tool tip and its accessible text on demand. Besides the
/// arrow keys of Qt's groups of buttons, Home and End go to the ends of its row, and Page Up and Page Down to
/// those of its column; they check the button there where the arrow keys would. Style sheets select it as a
/// QToolButton.
class ColorPickerWidgetButton : public QToolButton // clazy:exclude=missing-qobject-macro
{
public:
    using QToolButton::QToolButton;

    /// Invalid for no colour; empty, the default, for an unused place.
    const std::optional<QColor>& color() const { return m_color; }

    /// Shows it, if it is another one.
    void setColor(const QColor& color);

    /// The colour in words and numbers, translated.
    QString spokenColor() const;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    ColorPickerWidgetButton* endOfLine(int key) const;
    void goTo(ColorPickerWidgetButton* target);

    std::optional<QColor> m_color;
};
