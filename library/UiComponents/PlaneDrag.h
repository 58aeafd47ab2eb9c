// Internal: mouse and keys of ColorPlaneWidget and PointSelectionPlane.

#pragma once

#include <QPointF>

class QKeyEvent;
class QMouseEvent;
class QPainter;
class QWidget;

/**
 * Moves the marker of a plane, whose private object derives from this.
 *
 * A press of the left button places the marker and grabs the mouse; a drag outside the plane pins it to the
 * nearest edge. The arrow keys move it by a pixel, by ten with Shift. Handlers return false for events that
 * belong to the base class, and otherwise end with a report, in which the plane may be deleted. A move or a
 * key that leaves the marker in its place is not reported.
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

    /// Releases the mouse without a report. A hidden or disabled widget would keep the grab, and with it
    /// every click in the application.
    void stop() const;

    /// Draws the style's focus rectangle, if the plane got the focus by keyboard.
    void paintFocus(QPainter& painter) const;

protected:
    /// The position of the marker.
    virtual QPointF pixel() const = 0;
    virtual void placeMarker(const QPointF& pixel) = 0;
    /// As placeMarker(), for a step along one axis.
    virtual void stepMarker(const QPointF& pixel);
    virtual void report() = 0;

private:
    bool isDragging() const;

    QWidget* const m_plane;
};
