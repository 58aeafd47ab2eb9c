// Internal: the arithmetic of points, of PointSelectionPlane and PlaneDrag.

#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

/**
 * Maps pixels of a widget to points in the rectangle that it stands for, and back.
 */
namespace PointMapping {

/// Units per pixel.
struct Scale
{
    double x = 1.0;
    double y = 1.0;
};

/// The scale at which the first pixel of @p size is the left and top limit, and the last one the right and
/// bottom limit. For one pixel it is infinite, or NaN for limits without extent; for inverted limits
/// negative.
Scale scaleOf(const QRectF& limits, const QSize& size);

/// The point at @p pixel of @p size. The last pixel is exactly the right or bottom limit, without rounding
/// errors.
QPointF toPoint(const QPointF& pixel, const QRectF& limits, const Scale& scale, const QSize& size);

/// The position of @p point in pixels, neither rounded nor clamped; 0, infinite or NaN without a scale.
QPointF toPixel(const QPointF& point, const QRectF& limits, const Scale& scale);

/// The pixel in @p rect nearest to @p pixel; the top left one of an empty rectangle.
QPoint pinned(const QPoint& pixel, const QRect& rect);

/// @p pixel moved by @p step, and clamped to @p rect. NaN becomes the left or top edge.
QPointF stepped(const QPointF& pixel, const QPoint& step, const QRect& rect);

/// Compares exactly: QPointF's own operator takes nearly equal points for the same. False for NaN.
inline bool isSame(const QPointF& one, const QPointF& other)
{
    return one.x() == other.x() && one.y() == other.y();
}

/// True if @p pixel, rounded, is in @p rect; false for an infinite one and NaN.
bool isInside(const QPointF& pixel, const QRect& rect);

} // namespace PointMapping
