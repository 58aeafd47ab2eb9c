#include "DevicePixel.h"

#include <QtMath>

namespace {

struct Place
{
    int corner;
    int index;
};

Place placeAlong(double position, double scale)
{
    const int pixel = qRound(position * scale);
    // Where a picture begins is rounded too.
    const auto begin = [scale](int corner) { return qRound(corner * scale); };
    int corner = qFloor(pixel / scale);
    if (begin(corner) > pixel) {
        --corner;
    }
    return {corner, pixel - begin(corner)};
}

} // namespace

DevicePixel devicePixelAt(const QPointF& position, double scale)
{
    const Place across = placeAlong(position.x(), scale);
    const Place down = placeAlong(position.y(), scale);
    const int sizeOfOne = qMax(1, qRound(scale));
    const bool fitsOne = qMax(across.index, down.index) < sizeOfOne;
    return {QPoint(across.corner, down.corner), fitsOne ? 1 : 2, QPoint(across.index, down.index)};
}
