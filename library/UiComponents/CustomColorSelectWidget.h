// Internal: the selector of ColorPickerWidget.

#pragma once

#include <WidgetToolkit/OvFrame.h>

#include <QColor>

#include <memory>

/**
 * A ColorPlaneWidget above a labelled slider for its hue: a selector of any opaque colour.
 *
 * The object names are "colorPlane", "huePanel", "hueLabel" and "hueSlider". setColor() takes effect on the
 * next turn of the event loop.
 *
 * The slider's hues are integers from 0 to 359. If a colour that is set has another hue than the slider and
 * the marker is inside the plane, the change of the slider is reported as the user's, and the plane then
 * shows the reported colour.
 */
class CustomColorSelectWidget : public OvFrame
{
    Q_OBJECT

public:
    /// @p parent owns the selector.
    explicit CustomColorSelectWidget(QWidget* parent = nullptr);
    ~CustomColorSelectWidget() override;

    /// Shows @p color, opaque; an invalid colour counts as black.
    void setColor(const QColor& color);

    /// As setColor(), but reports nothing, and shows @p color itself.
    void startFrom(const QColor& color);

Q_SIGNALS:
    /// The plane reported @p color, as RGB; invalid if the marker was outside the plane.
    void colorChanged(QColor color);

protected:
    void changeEvent(QEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
