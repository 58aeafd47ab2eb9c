// Internal: what ColorPickerWidget shows to choose any colour.

#pragma once

#include <WidgetToolkit/OvFrame.h>

#include <QColor>

#include <memory>

/**
 * A ColorPlaneWidget above a labelled slider for its hue: a selector of any opaque colour.
 *
 * Its parts have the object names "colorPlane", "huePanel", "hueLabel" and "hueSlider". A colour that is
 * set appears on the next turn of the event loop, once for each setColor().
 *
 * The slider's hues are whole degrees from 0 to 359. Where a colour that is set has another hue than the
 * slider and the marker is inside the plane, the slider's step is reported like the user's, and the plane
 * then shows that reported colour.
 */
class CustomColorSelectWidget : public OvFrame
{
    Q_OBJECT

public:
    /// @p parent owns the selector.
    explicit CustomColorSelectWidget(QWidget* parent = nullptr);
    ~CustomColorSelectWidget() override;

    /// Shows @p color, without its alpha; an invalid one counts as black.
    void setColor(const QColor& color);

    /// As setColor(), but nothing is reported on the way and @p color is what appears: the selector begins
    /// anew.
    void startFrom(const QColor& color);

Q_SIGNALS:
    /// The plane reported @p color, always as RGB; invalid if the marker was outside of the plane.
    void colorChanged(QColor color);

protected:
    void changeEvent(QEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
