#include "PointingWidgetPlacement.h"

#include <QBitmap>
#include <QImage>
#include <QPainter>
#include <QtMath>

#include <limits>

using ArrowPosition = PointingWidget::ArrowPosition;
using ArrowSide = PointingWidget::ArrowSide;

namespace {

/// A part of one axis, both ends included.
struct Span
{
    int first = 0;
    int last = -1;

    int length() const { return last - first + 1; }
};

bool isHorizontal(ArrowSide side)
{
    return side == ArrowSide::Top || side == ArrowSide::Bottom;
}

/// Whether the arrow is at the top or left, so that the bubble lies below or right of its target.
bool isLeading(ArrowSide side)
{
    return side == ArrowSide::Top || side == ArrowSide::Left;
}

ArrowSide opposite(ArrowSide side)
{
    switch (side) {
    case ArrowSide::Top:
        return ArrowSide::Bottom;
    case ArrowSide::Bottom:
        return ArrowSide::Top;
    case ArrowSide::Left:
        return ArrowSide::Right;
    case ArrowSide::Right:
        break;
    }
    return ArrowSide::Left;
}

Span horizontal(const QRect& rect)
{
    return {rect.left(), rect.right()};
}

Span vertical(const QRect& rect)
{
    return {rect.top(), rect.bottom()};
}

/// Returns the start nearest to @p start of a span of @p length inside @p area, or the area's edge where its
/// text begins, if it is too long.
int slideInto(const Span& area, int start, int length, bool beginsAtEnd)
{
    if (length > area.length()) {
        return beginsAtEnd ? area.last - length + 1 : area.first;
    }
    return qBound(area.first, start, area.last - length + 1);
}

/// The possible positions of the middle of the arrow's foot, on a side of @p length.
Span footSpan(const BubbleShape& shape, int length)
{
    const int clearance = shape.borderWidth + shape.radius + shape.arrowWidth / 2;
    const int middle = qMax(0, length - 1) / 2;
    return {qMin(clearance, middle), qMax(length - 1 - clearance, middle)};
}

int nominalFoot(const BubbleRequest& request, int length)
{
    const Span span = footSpan(request.shape, length);
    int foot = (length - 1) / 2;
    if (request.position == ArrowPosition::Start) {
        foot = span.first;
    } else if (request.position == ArrowPosition::End) {
        foot = span.last;
    }
    // In 64 bits, since the offset may be any int.
    foot = int(qBound<qint64>(span.first, qint64(foot) + request.offset, span.last));
    const bool mirrored = isHorizontal(request.side) && request.direction == Qt::RightToLeft;
    return mirrored ? length - 1 - foot : foot;
}

ArrowSide sideWithRoom(ArrowSide wanted, const Span& area, int target, int depth)
{
    const int behind = area.last - target + 1;
    const int before = target - area.first + 1;
    const int here = isLeading(wanted) ? behind : before;
    const int there = isLeading(wanted) ? before : behind;
    if (here >= depth) {
        return wanted;
    }
    return there > here ? opposite(wanted) : wanted;
}

qreal snapped(qreal value, qreal scale)
{
    return std::round(value * scale) / scale;
}

} // namespace

PointingWidgetPlacement placeBubble(const BubbleRequest& request)
{
    const bool across = isHorizontal(request.side);
    const Span alongArea = across ? horizontal(request.area) : vertical(request.area);
    const Span depthArea = across ? vertical(request.area) : horizontal(request.area);
    const int length = across ? request.size.width() : request.size.height();
    const int depth = across ? request.size.height() : request.size.width();
    const QPoint target = withinReach(request.target);
    const int alongTarget = across ? target.x() : target.y();
    const int depthTarget = across ? target.y() : target.x();
    const bool rightToLeft = request.direction == Qt::RightToLeft;

    PointingWidgetPlacement placement;
    placement.side = sideWithRoom(request.side, depthArea, depthTarget, depth);
    const bool leading = isLeading(placement.side);

    const int along =
        slideInto(alongArea, alongTarget - nominalFoot(request, length), length, across && rightToLeft);
    const int deep =
        slideInto(depthArea, leading ? depthTarget : depthTarget - depth + 1, depth, !across && rightToLeft);

    const int tipAlong = qBound(0, alongTarget - along, qMax(0, length - 1));
    const int tipDeep = leading ? 0 : qMax(0, depth - 1);
    const Span foot = footSpan(request.shape, length);
    placement.base = qBound(foot.first, tipAlong, foot.last);
    placement.tip = across ? QPoint(tipAlong, tipDeep) : QPoint(tipDeep, tipAlong);
    placement.geometry = QRect(across ? QPoint(along, deep) : QPoint(deep, along), request.size);
    return placement;
}

QMargins bubbleMargins(const BubbleShape& shape, ArrowSide side)
{
    // The point of a quarter circle nearest to the corner is 1 - sqrt(1/2) radii inside.
    const int inset = shape.borderWidth + qCeil(shape.radius * (1 - M_SQRT1_2));
    QMargins margins(inset, inset, inset, inset);
    switch (side) {
    case ArrowSide::Top:
        margins.setTop(inset + shape.arrowLength);
        break;
    case ArrowSide::Right:
        margins.setRight(inset + shape.arrowLength);
        break;
    case ArrowSide::Bottom:
        margins.setBottom(inset + shape.arrowLength);
        break;
    case ArrowSide::Left:
        margins.setLeft(inset + shape.arrowLength);
        break;
    }
    return margins;
}

QSize minimumBubbleSize(const BubbleShape& shape, ArrowSide side)
{
    const int corners = 2 * (shape.borderWidth + shape.radius);
    const QSize size(corners + shape.arrowWidth, corners + shape.arrowLength);
    return isHorizontal(side) ? size : size.transposed();
}

qreal bubblePenWidth(const BubbleShape& shape, qreal scale)
{
    return shape.borderWidth == 0 ? 0 : qMax(snapped(shape.borderWidth, scale), 1 / scale);
}

QPainterPath bubblePath(const PointingWidgetPlacement& placement, const BubbleShape& shape, qreal scale)
{
    // As if the arrow were at the top, then rotated: "along" is x and "deep" is y.
    const bool across = isHorizontal(placement.side);
    const QSizeF size = across ? placement.geometry.size() : placement.geometry.size().transposed();
    const qreal half = bubblePenWidth(shape, scale) / 2;
    const qreal arrowLength = snapped(shape.arrowLength, scale);
    const QRectF body(QPointF(half, arrowLength + half), QPointF(size.width() - half, size.height() - half));
    if (body.width() <= 0 || body.height() <= 0) {
        return {};
    }
    // The radius is that of the outer edge; the path is half a pen inside.
    const qreal radius = qBound<qreal>(0, shape.radius - half, qMin(body.width(), body.height()) / 2);
    const qreal middle = placement.base + 0.5;
    const qreal left = qBound(body.left() + radius, middle - shape.arrowWidth / 2.0, body.right() - radius);
    const qreal right = qBound(body.left() + radius, middle + shape.arrowWidth / 2.0, body.right() - radius);
    const qreal tip =
        qBound(half, (across ? placement.tip.x() : placement.tip.y()) + 0.5, size.width() - half);

    QPainterPath path;
    path.moveTo(body.left() + radius, body.top());
    if (arrowLength > 0 && shape.arrowWidth > 0) {
        path.lineTo(left, body.top());
        path.lineTo(tip, half);
        path.lineTo(right, body.top());
    }
    const qreal diameter = 2 * radius;
    path.lineTo(body.right() - radius, body.top());
    path.arcTo(body.right() - diameter, body.top(), diameter, diameter, 90, -90);
    path.lineTo(body.right(), body.bottom() - radius);
    path.arcTo(body.right() - diameter, body.bottom() - diameter, diameter, diameter, 0, -90);
    path.lineTo(body.left() + radius, body.bottom());
    path.arcTo(body.left(), body.bottom() - diameter, diameter, diameter, 270, -90);
    path.lineTo(body.left(), body.top() + radius);
    path.arcTo(body.left(), body.top(), diameter, diameter, 180, -90);
    path.closeSubpath();

    const qreal w = placement.geometry.width();
    const qreal h = placement.geometry.height();
    switch (placement.side) {
    case ArrowSide::Top:
        break;
    case ArrowSide::Bottom:
        return QTransform(1, 0, 0, -1, 0, h).map(path);
    case ArrowSide::Left:
        return QTransform(0, 1, 1, 0, 0, 0).map(path);
    case ArrowSide::Right:
        return QTransform(0, 1, -1, 0, w, 0).map(path);
    }
    return path;
}

QRegion bubbleRegion(const PointingWidgetPlacement& placement, const BubbleShape& shape)
{
    if (placement.geometry.isEmpty()) {
        return {};
    }
    // With a pen one pixel wider on each side, since without antialiasing only pixels are drawn whose centre
    // is covered. (The polygons of a QPainterPathStroker cancel out where a leaning arrow meets a corner.)
    QImage picture(placement.geometry.size(), QImage::Format_MonoLSB);
    // The colours of QBitmap, which are inverse to QImage's.
    picture.setColorTable({QColor(Qt::color0).rgb(), QColor(Qt::color1).rgb()});
    picture.fill(0);
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::color1, shape.borderWidth + 2, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(Qt::color1);
    painter.drawPath(bubblePath(placement, shape));
    painter.end();
    return {QBitmap::fromImage(picture)};
}

QPoint withinReach(const QPoint& point)
{
    return {qBound(-bubbleReach, point.x(), bubbleReach), qBound(-bubbleReach, point.y(), bubbleReach)};
}

int nearestArea(const QPoint& point, const QVector<QRect>& areas)
{
    int nearest = -1;
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < areas.size(); ++i) {
        const QRect& area = areas.at(i);
        const qint64 dx = qint64(point.x()) - qBound(area.left(), point.x(), area.right());
        const qint64 dy = qint64(point.y()) - qBound(area.top(), point.y(), area.bottom());
        const qint64 distance = dx * dx + dy * dy;
        if (distance < shortest) {
            shortest = distance;
            nearest = i;
        }
    }
    return nearest;
}
