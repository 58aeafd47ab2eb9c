// Internal: mouse and keys of ColorPlaneWidget and PointSelectionPlane.

#pragma once

#include "FocusOutline.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

class ColorPlaneWidget;
class PointSelectionPlane;
class QKeyEvent;
class QMouseEvent;
class QWidget;

/**
 * Moves the marker of a plane, whose private object derives from this.
 *
 * A press of the left button places the marker and grabs the mouse; a drag outside the plane pins it to the
 * nearest edge. The arrow keys move it by a pixel, by ten with Shift; Page Up and Page Down by a tenth of the
 * height; Home and End to the left and right edge, with Control to the top and bottom. Handlers return false
 * for events that belong to the base class, and otherwise end with a report, in which the plane may be
 * deleted. A move or a key that leaves the marker in its place is not reported. To readers the marker is two
 * numbers, in the units of the plane.
 */
class PlaneDrag
{
public:
    explicit PlaneDrag(QWidget* plane);
    virtual ~PlaneDrag();
    PlaneDrag(const PlaneDrag&) = delete;
    PlaneDrag& operator=(const PlaneDrag&) = delete;

    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    bool pressKey(const QKeyEvent& event);
    /// Whether a key would move the marker beyond the edge, which leaves it in its place.
    bool isAtEdge(const QKeyEvent& event) const;

    /// Releases the mouse without a report. A hidden or disabled widget would keep the grab, and with it
    /// every click in the application.
    void stop() const;

    static PlaneDrag* of(ColorPlaneWidget* plane);
    static PlaneDrag* of(PointSelectionPlane* plane);

    /// The marker's position in units; their range, from the left and top edge; the size of a pixel.
    virtual QPointF values() const = 0;
    virtual QRectF range() const = 0;
    QSizeF step() const;
    /// As if a key had moved the marker to @p value, bounded, along the axis 0 or 1.
    void setValue(int axis, double value);
    /// Notifies readers of each coordinate that differs from @p before.
    void announce(const QPointF& before) const;

    FocusOutline focus;

protected:
    /// The position of the marker.
    virtual QPointF pixel() const = 0;
    virtual void placeMarker(const QPointF& pixel) = 0;
    /// As placeMarker(), for a step along one axis.
    virtual void stepMarker(const QPointF& pixel);
    /// As placeMarker(), in units.
    virtual void takeValues(const QPointF& values) = 0;
    virtual void report() = 0;

private:
    bool isDragging() const;

    QWidget* const m_plane;
};
