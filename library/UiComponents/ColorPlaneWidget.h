// Internal: the saturation and value square of CustomColorSelectWidget.

#pragma once

#include <QColor>
#include <QWidget>

#include <memory>

/**
 * All colours of one hue, and a ring-shaped marker that the user drags over them.
 *
 * Saturation grows to the right, also from right to left, and value grows upwards. The widget shows nothing
 * until it has a hue. Each change of hue or size makes another plane; the marker stays on its pixel, so the
 * colour under it can change without a signal when the widget is resized.
 *
 * The plane is rendered when it is painted, once for all changes since. Colours under the marker are
 * computed one by one, so that nothing else has to wait for it.
 *
 * The left button places the marker and drags it; the mouse is grabbed meanwhile and the marker pinned to
 * the nearest edge. With focus, the arrow keys move it by a pixel, by ten with Shift. The marker's colour is
 * the inverse of the pixel below it, from when it was placed.
 */
class ColorPlaneWidget : public QWidget
{
    Q_OBJECT
    /// The radius of the marker in pixels; 8 at first.
    Q_PROPERTY(int markerRadius READ markerRadius WRITE setMarkerRadius)
    /// The width of the marker's line in pixels; 2 at first.
    Q_PROPERTY(int markerBorderWidth READ markerBorderWidth WRITE setMarkerBorderWidth)

public:
    /// @p parent owns the widget as usual.
    explicit ColorPlaneWidget(QWidget* parent = nullptr);
    ~ColorPlaneWidget() override;

    int markerRadius() const;
    void setMarkerRadius(int radius);

    int markerBorderWidth() const;
    void setMarkerBorderWidth(int width);

    /// The colour of the pixel under the marker, as RGB. Invalid while there is no plane, and where the
    /// marker is outside of it.
    QColor hsvColor() const;

    /// Shows the plane of @p color's hue, red for a grey, and places the marker on the nearest of its pixels
    /// to the colour. Emits nothing. An invalid colour is ignored.
    void setHsvColor(const QColor& color);

    /// Shows the plane of the hue @p degrees, which is clamped to 0 to 360. The marker keeps its place and
    /// its own colour. Emits hsvColorChanged() if the hue differs and the marker lies inside the widget.
    void setHue(int degrees);

    /// Takes the marker off the plane, to where a new widget has it, until a colour is set or the mouse is
    /// pressed. Emits nothing.
    void removeMarker();

Q_SIGNALS:
    /// The colour under the marker, after the user pressed, moved or released it or setHue() changed the
    /// plane; a press and a release are always reported. Invalid as hsvColor() is.
    void hsvColorChanged(QColor hsvColor);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
