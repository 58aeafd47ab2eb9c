#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <QPointF>
#include <QRectF>

#include <memory>

/**
 * A plane on which the user picks a point by clicking and dragging.
 *
 *     auto* plane = new PointSelectionPlane(panel);
 *     plane->setLimits({-1.0, -1.0, 2.0, 2.0});
 *     plane->setPoint({0.25, 0.0});
 *     connect(plane, &PointSelectionPlane::pointChanged, this, &Panel::moveLight);
 *
 * **Scale.** The first pixel is exactly the left and top limit, the last one the right and bottom limit, in
 * the host's units. The y axis points down; nothing is mirrored from right to left.
 *
 * **Input.** The left button takes the point under it and grabs the mouse: a drag may leave the plane and the
 * window, while the point stays on the edge. Hiding or disabling the plane ends the grab without a report.
 *
 * **Readers.** They find a group of two sliders, x and y, in the host's units, which they may set while the
 * plane is enabled; the keys are those of the plane. A step is announced once, and a drag when it is over.
 *
 * **Painting.** A flat background, two fixed axes through the middle, a round marker at the point, and, for
 * users who come by keyboard, the edge of the style's focus rectangle. Size and frame are the sheet's;
 * colours and sizes are properties of a hidden child:
 *
 *     PointSelectionPlane { min-width: 120px; min-height: 120px; }
 *     PointSelectionPlanePropertyHelper {
 *         qproperty-MarkerRadius: 5;       qproperty-MarkerColor: white;
 *         qproperty-FillColor: #202020;    qproperty-CoordLinesWidth: 1;    qproperty-CoordLinesColor: gray;
 *     }
 *
 * `PointSelectionPlanePropertyHelper[enabled="false"]` is for the disabled plane. Without a valid MarkerColor
 * there is no marker; other missing colours are those of the palette. A new sheet takes effect at once. Of
 * values that code sets, FillColor does so on the next resize, the others on the next paint.
 * @see PointSelectorWidget
 */
class UICOMPONENTS_EXPORT PointSelectionPlane : public OvFrame
{
    Q_OBJECT

public:
    /// @p parent owns the plane. It has no limits by default, and its point, (-1, -1), has no marker.
    explicit PointSelectionPlane(QWidget* parent);
    ~PointSelectionPlane() override;

    /// Sets the rectangle that the plane stands for. Keeps the point, wherever it then lies, and emits
    /// nothing. A negative width or height inverts the axis. A plane of one pixel or without limits has no
    /// scale: a pick gives NaN or (0, 0), and the marker's place means nothing; so it is with infinite limits
    /// and NaN.
    void setLimits(const QRectF& limits);

    /// Sets the point and moves the marker; a point outside the limits, infinite or NaN has none. Emits
    /// nothing.
    void setPoint(const QPointF& point);

    /// The point last set or chosen, never clamped; neither a resize nor new limits change it.
    QPointF point();

Q_SIGNALS:
    /// The user chose @p point. Emitted for each press, for a move that changes the pixel, for a key that
    /// moves the marker or a reader that does, and for each release of the button.
    void pointChanged(QPointF point);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    /// With focus, by click or Tab, the arrow keys move the point by one pixel, with Shift by ten; Page Up
    /// and Page Down by a tenth of the height, Home and End to the left and right edge, with Control to the
    /// top and bottom.
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    friend class PlaneDrag;
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
