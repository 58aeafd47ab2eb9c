#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <QPointF>
#include <QRectF>

#include <memory>

/**
 * A pad on which the user picks a point by clicking and dragging.
 *
 *     auto* plane = new PointSelectionPlane(panel);
 *     plane->setLimits({-1.0, -1.0, 2.0, 2.0});
 *     plane->setPoint({0.25, 0.0});
 *     connect(plane, &PointSelectionPlane::pointChanged, this, &Panel::moveLight);
 *
 * The pad stands for a rectangle of limits in the host's units: its first pixel is exactly the left and top
 * limit, its last one exactly the right and bottom limit. The y axis points down, as the widget's does, and
 * nothing is mirrored from right to left: a point is a place, not a text. Limits of negative width or height
 * turn the axis round.
 *
 * A press of the left button takes the point under it, and the mouse is grabbed until the button is let go:
 * a drag can leave the pad and the window, while the point stays on the edge. The grab ends as well, without
 * a report, when the pad is hidden or disabled meanwhile. With focus, which a click and Tab give, the arrow
 * keys move the point by one pixel, with Shift by ten, and stop at the edges.
 *
 * The point is kept as it is when the pad is resized, also during a drag, and when the limits change. It may
 * lie outside of the limits; then no marker is drawn. A pad of one pixel or without limits has no scale: what
 * is picked there is NaN or (0, 0), and the marker's place means nothing.
 *
 * The pad paints a flat background, two axes through its middle, which do not follow the point, and a round
 * marker at the point. It has no frame, and no size of its own: the style sheet gives it one. Users who came
 * by keyboard see the style's focus rectangle on top.
 *
 * **Style sheet.** Colours and sizes are those of a hidden child:
 *
 *     PointSelectionPlane { min-width: 120px; min-height: 120px; }
 *     PointSelectionPlanePropertyHelper {
 *         qproperty-MarkerRadius: 5;       qproperty-MarkerColor: white;
 *         qproperty-FillColor: #202020;    qproperty-CoordLinesWidth: 1;    qproperty-CoordLinesColor: gray;
 *     }
 *
 * A rule of `PointSelectionPlanePropertyHelper[enabled="false"]` is for the disabled plane.
 *
 * Without a valid MarkerColor there is no marker; other colours that are missing are black. A FillColor takes
 * effect when the pad is resized next, the other values when it is painted next. A host that changes the
 * sheet of a visible pad can send it a QResizeEvent of its present size.
 */
class UICOMPONENTS_EXPORT PointSelectionPlane : public OvFrame
{
    Q_OBJECT

public:
    /// @p parent owns the plane as usual. A new one has no limits, and its point, (-1, -1), has no marker.
    explicit PointSelectionPlane(QWidget* parent);
    ~PointSelectionPlane() override;

    /// Sets the rectangle that the pad stands for. The point stays, wherever it then lies, and nothing is
    /// emitted. Infinite limits and NaN are taken; as long as they last, what is picked and the marker's
    /// place mean nothing.
    void setLimits(const QRectF& limits);

    /// Sets the point, also one outside of the limits, infinite or NaN, and moves the marker. Emits nothing.
    void setPoint(const QPointF& point);

    /// The point that was set or chosen last, never clamped.
    QPointF point();

Q_SIGNALS:
    /// The user chose @p point: a press is reported where it happens, a move as far as it changes the pixel,
    /// a key as far as it moves the marker, and the release of the button always. A slot may delete the
    /// plane.
    void pointChanged(QPointF point);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
