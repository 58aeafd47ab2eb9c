// Internal: where ColorPickerWidget opens the selector, and where pop-ups may be.

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

namespace SelectorPlacement {

/// Returns the top left corner of a pop-up of @p size, @p offset pixels to the right of @p button and with
/// the same bottom edge. Without room at the right, and with room at the left, it goes to the button's left,
/// at the same distance; then it is moved into @p area, whose top left corner it takes if it is larger. An
/// empty area sets no limits.
QPoint besideButton(const QRect& button, const QSize& size, int offset, const QRect& area);

/// Where a pop-up of @p widget may be, on the desktop: its screen, or, on Wayland, where a program does not
/// know the screen around its windows, the window below all pop-ups.
QRect areaFor(const QWidget& widget);

} // namespace SelectorPlacement
