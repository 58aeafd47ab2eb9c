// Internal: a button of ColorPickerWidget's palette or of its own colours.

#pragma once

#include <QColor>
#include <QToolButton>

#include <optional>

/// A tool button that offers a colour. What it says of it, to readers and in its tool tip, it works out when
/// it is asked. Besides the arrow keys of Qt's groups of buttons, Home and End go to the ends of its row, and
/// Page Up and Page Down to those of its column; they check what they come to where the arrow keys would. It
/// calls itself a QToolButton, to style sheets too.
class ColorButton : public QToolButton // clazy:exclude=missing-qobject-macro
{
public:
    using QToolButton::QToolButton;

    /// Invalid for no colour. Empty by default: then the place is.
    const std::optional<QColor>& color() const { return m_color; }

    /// Shows it, if it is another one.
    void setColor(const QColor& color);

    /// The colour in words and numbers, translated.
    QString spokenColor() const;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    ColorButton* endOfLine(int key) const;
    void goTo(ColorButton* target);

    std::optional<QColor> m_color;
};
