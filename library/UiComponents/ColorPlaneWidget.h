// Internal: the saturation and value plane of CustomColorSelectWidget.

#pragma once

#include <QColor>
#include <QWidget>

#include <memory>

/**
 * All colours of one hue, and a ring-shaped marker that the user drags over them.
 *
 * Saturation grows to the right, in right-to-left layouts too, and value grows upwards. The widget paints
 * nothing until it has a hue. The marker keeps its pixel when hue or size change, so the colour under it may
 * change without a signal on a resize.
 *
 * The plane is rendered in the paint event, once for all changes before. The colour under the marker is
 * computed by itself, so it is up to date at once.
 *
 * The marker has the inverse colour of the pixel that it was placed on.
 * @see PlaneDrag for mouse and keys
 */
class ColorPlaneWidget : public QWidget
{
    Q_OBJECT
    /// The radius of the marker in pixels; 8 by default.
    Q_PROPERTY(int markerRadius READ markerRadius WRITE setMarkerRadius)
    /// The width of the marker's line in pixels; 2 by default.
    Q_PROPERTY(int markerBorderWidth READ markerBorderWidth WRITE setMarkerBorderWidth)

public:
    /// @p parent owns the widget.
    explicit ColorPlaneWidget(QWidget* parent = nullptr);
    ~ColorPlaneWidget() override;

    int markerRadius() const;
    void setMarkerRadius(int radius);

    int markerBorderWidth() const;
    void setMarkerBorderWidth(int width);

    /// The colour under the marker, as RGB. Invalid without a hue, and where the marker is outside the
    /// plane.
    QColor hsvColor() const;

    /// Shows the plane of @p color's hue, red for a grey, and places the marker on the pixel nearest to the
    /// colour. Emits nothing. An invalid colour is ignored.
    void setHsvColor(const QColor& color);

    /// Shows the plane of the hue @p degrees, clamped to 0 to 360. The marker keeps its position and colour.
    /// Emits hsvColorChanged() if the hue differs and the marker is inside the widget.
    void setHue(int degrees);

    /// Removes the marker until a colour is set or the user places it. Emits nothing.
    void removeMarker();

Q_SIGNALS:
    /// The colour under the marker, after the user pressed, moved or released it, or setHue() changed the
    /// plane. Emitted for every press and release. Invalid where hsvColor() is.
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
    void focusInEvent(QFocusEvent* event) override;

private:
    friend class PlaneDrag;
    class Private;
    const std::unique_ptr<Private> d;
};
