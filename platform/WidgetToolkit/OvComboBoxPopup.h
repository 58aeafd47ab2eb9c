// Internal: where OvComboBox puts its pop-up.

#pragma once

#include <QRect>

namespace OvComboBoxPopup {

/// Returns Qt's placement @p popup widened to at least @p width, aligned with @p box at its leading edge and
/// kept inside @p screen. It never becomes narrower, unless the screen is.
QRect widened(const QRect& popup, int width, const QRect& box, Qt::LayoutDirection direction,
              const QRect& screen);

} // namespace OvComboBoxPopup
