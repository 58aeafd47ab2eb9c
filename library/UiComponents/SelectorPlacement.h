// Internal: where ColorPickerWidget opens the selector.

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace SelectorPlacement {

/// Returns the top left corner of a pop-up of @p size, @p offset pixels to the right of @p button and with
/// the same bottom edge. Without room at the right, and with room at the left, it goes to the button's left,
/// at the same distance; then it is moved into @p area, whose top left corner it takes if it is larger. An
/// empty area sets no limits.
QPoint besideButton(const QRect& button, const QSize& size, int offset, const QRect& area);

} // namespace SelectorPlacement
