// Internal: the geometry of PointingWidget, without a widget.

#pragma once

#include <EditorWidgets/PointingWidget.h>

#include <QMargins>
#include <QPainterPath>
#include <QPoint>
#include <QRect>
#include <QVector>

/// The metrics of a bubble, in pixels, none negative.
struct BubbleShape
{
    int borderWidth = 1;
    int radius = 6;
    int arrowWidth = 16;
    int arrowLength = 8;
};

/// What a placement depends on. All rectangles and points are in one coordinate system.
struct BubbleRequest
{
    QSize size; ///< of the bubble, arrow included
    QPoint target;
    PointingWidget::ArrowSide side = PointingWidget::ArrowSide::Top;
    PointingWidget::ArrowPosition position = PointingWidget::ArrowPosition::Center;
    int offset = 0;
    BubbleShape shape;
    QRect area; ///< the bubble stays inside
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// Where the bubble goes and how its arrow is drawn.
struct PointingWidgetPlacement
{
    QRect geometry;
    PointingWidget::ArrowSide side = PointingWidget::ArrowSide::Top;
    QPoint tip; ///< the pixel at the arrow's tip, in the bubble's coordinates
    /// The pixel in the middle of the arrow's foot, along its side, in the bubble's coordinates.
    int base = 0;
};

PointingWidgetPlacement placeBubble(const BubbleRequest& request);

/// The margins of the content: arrow, border and rounded corners.
QMargins bubbleMargins(const BubbleShape& shape, PointingWidget::ArrowSide side);

/// The minimum size in which corners and arrow are drawn in full.
QSize minimumBubbleSize(const BubbleShape& shape, PointingWidget::ArrowSide side);

/// The centre line of the border, for a pen of bubblePenWidth() with round joins, on whole device pixels at
/// @p scale. Empty for a size in which nothing can be drawn.
QPainterPath bubblePath(const PointingWidgetPlacement& placement, const BubbleShape& shape, qreal scale = 1);

/// The width of the border, rounded to device pixels at @p scale; at least one, unless there is no border.
qreal bubblePenWidth(const BubbleShape& shape, qreal scale = 1);

/// The pixels that the bubble paints, partly covered ones included.
QRegion bubbleRegion(const PointingWidgetPlacement& placement, const BubbleShape& shape);

/// A limit of coordinates whose sums fit into an int.
constexpr int bubbleReach = 1 << 28;

/// The point nearest to @p point whose coordinates are between -bubbleReach and bubbleReach.
QPoint withinReach(const QPoint& point);

/// The index of the rectangle that contains @p point or else is nearest to it; -1 for none.
int nearestArea(const QPoint& point, const QVector<QRect>& areas);
