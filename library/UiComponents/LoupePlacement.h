// Internal: where Pipette puts its loupe, without a widget.

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/**
 * The loupe's place beside the cursor. Everything is in pixels of the desktop (logical ones); a screen left
 * of or above the first has negative ones.
 */
namespace LoupePlacement {

/// The numbers are fixed.
enum Placement {
    BelowRight = 0,
    BelowLeft = 1,
    AboveLeft = 2,
    AboveRight = 3, ///< where there is room
};

/// The placement for the cursor at @p cursor: below it within one loupe's height of the screen's top, left of
/// it within one loupe's width of the right edge. The other two edges decide nothing: above right, the loupe
/// does not reach them.
Placement placementAt(const QPoint& cursor, const QRect& screen, const QSize& loupe);

/// From the cursor to the top-left corner of a loupe of that size. Nothing for a number that is no placement.
QSize offset(int placement, const QSize& loupe);

} // namespace LoupePlacement
