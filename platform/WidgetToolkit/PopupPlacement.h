// Internal: where OvComboBox puts its pop-up.

#pragma once

#include <QRect>

namespace PopupPlacement {

/// @p popup as Qt has placed it, at least @p width wide, flush with @p box on the side where the text
/// begins, and inside @p screen. It never gets narrower, save that nothing is larger than the screen.
QRect widened(const QRect& popup, int width, const QRect& box, Qt::LayoutDirection direction,
              const QRect& screen);

} // namespace PopupPlacement
