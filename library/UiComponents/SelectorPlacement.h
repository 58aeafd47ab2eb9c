// Internal: where ColorPickerWidget opens the selector.

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace SelectorPlacement {

/// The top left corner of a pop-up of @p size whose left edge is @p offset pixels right of the right edge of
/// @p button and whose bottom edge is in line with that of the button. Where it would stick out of @p area at
/// the right and has room at the button's left, it goes there, at the same distance; what sticks out still is
/// moved as little as it takes to lie in the area. What is larger than the area begins at its top left
/// corner. An empty area limits nothing. All in one coordinate system.
QPoint besideButton(const QRect& button, const QSize& size, int offset, const QRect& area);

} // namespace SelectorPlacement
