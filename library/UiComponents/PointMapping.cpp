#include "PointMapping.h"

#include <QRect>

#include <cmath>

namespace {

double bounded(double pixel, int step, int first, int last)
{
    return std::isnan(pixel) ? first : qBound<double>(first, pixel + step, last);
}

double coordinateOf(double pixel, int pixels, double scale, double first, double last)
{
    return pixels > 1 && pixel == pixels - 1 ? last : pixel * scale + first;
}

} // namespace

PointMapping::Scale PointMapping::scaleOf(const QRectF& limits, const QSize& size)
{
    // Division by zero is intended: one pixel has no scale.
    return {limits.width() / (size.width() - 1.0), limits.height() / (size.height() - 1.0)};
}

QPointF PointMapping::toPoint(const QPointF& pixel, const QRectF& limits, const Scale& scale,
                              const QSize& size)
{
    return {coordinateOf(pixel.x(), size.width(), scale.x, limits.left(), limits.right()),
            coordinateOf(pixel.y(), size.height(), scale.y, limits.top(), limits.bottom())};
}

QPointF PointMapping::toPixel(const QPointF& point, const QRectF& limits, const Scale& scale)
{
    return {(point.x() - limits.left()) / scale.x, (point.y() - limits.top()) / scale.y};
}

QPoint PointMapping::pinned(const QPoint& pixel, const QRect& rect)
{
    return {qBound(rect.left(), pixel.x(), rect.right()), qBound(rect.top(), pixel.y(), rect.bottom())};
}

QPointF PointMapping::stepped(const QPointF& pixel, const QPoint& step, const QRect& rect)
{
    return {bounded(pixel.x(), step.x(), rect.left(), rect.right()),
            bounded(pixel.y(), step.y(), rect.top(), rect.bottom())};
}

bool PointMapping::isInside(const QPointF& pixel, const QRect& rect)
{
    // QPointF::toPoint() is undefined beyond the range of int.
    constexpr double farOut = 1e9;
    return std::abs(pixel.x()) < farOut && std::abs(pixel.y()) < farOut && rect.contains(pixel.toPoint());
}
