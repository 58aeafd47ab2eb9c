// Internal: how the user moves the marker of ColorPlaneWidget and PointSelectionPlane.

#pragma once

#include <QPointF>

class QKeyEvent;
class QMouseEvent;
class QPainter;
class QWidget;

/**
 * The mouse and the keys of a plane, whose private object derives from this.
 *
 * A press of the left button places the marker and grabs the mouse; a drag pins the marker to the nearest
 * edge. The arrow keys move it by a pixel, by ten with Shift. The handlers return false for an event that is
 * the base class's. After true the plane may be gone: each ends with a report, unless nothing has moved.
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
    /// Always ends with a report.
    bool release(const QMouseEvent& event);
    bool pressKey(const QKeyEvent& event);

    /// Gives the mouse back, without a report. Qt leaves the grab with a hidden or disabled widget, where it
    /// swallows every click of the application.
    void stop() const;

    /// Draws the style's focus frame for users who come by keyboard.
    void paintFocus(QPainter& painter) const;

protected:
    /// Where the marker is, in pixels.
    virtual QPointF pixel() const = 0;
    virtual void placeMarker(const QPointF& pixel) = 0;
    /// As placeMarker(), for a step by key: along one axis.
    virtual void stepMarker(const QPointF& pixel);
    virtual void report() = 0;

private:
    bool isDragging() const;

    QWidget* const m_plane;
};
