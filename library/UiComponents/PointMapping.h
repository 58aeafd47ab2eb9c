// Internal: the arithmetic of PointSelectionPlane and PlaneDrag.

#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

/**
 * Between the pixels of a widget and the points of the rectangle that it stands for.
 */
namespace PointMapping {

/// Units per pixel, both ways.
struct Scale
{
    double x = 1.0;
    double y = 1.0;
};

/// The scale at which the first pixel of a widget of @p size stands for the left and top limit and the last
/// one for the right and bottom limit. A widget of one pixel has no scale: infinite, or NaN where the limits
/// are as narrow. Limits that are turned upside down have negative ones.
Scale scaleOf(const QRectF& limits, const QSize& size);

/// The point under @p pixel of a widget of @p size. Its last pixels are exactly the right and bottom limits,
/// whatever multiplying by the scale would make of them.
QPointF toPoint(const QPointF& pixel, const QRectF& limits, const Scale& scale, const QSize& size);

/// Where @p point is in pixels, neither rounded nor clamped; 0, infinite or NaN where the scale does not
/// tell.
QPointF toPixel(const QPointF& point, const QRectF& limits, const Scale& scale);

/// The pixel of @p rect that is nearest to @p pixel; the top left one of an empty rectangle.
QPoint pinned(const QPoint& pixel, const QRect& rect);

/// A step from @p pixel to the nearest place in @p rect. What is NaN begins at the left or top edge.
QPointF stepped(const QPointF& pixel, const QPoint& step, const QRect& rect);

/// True if @p pixel, rounded, lies in @p rect, edges included. An infinite one and NaN do not.
bool isInside(const QPointF& pixel, const QRect& rect);

} // namespace PointMapping
