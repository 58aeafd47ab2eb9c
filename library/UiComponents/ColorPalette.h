// Internal: the fixed palette of ColorPickerWidget, whose colours CustomColors does not add.
#pragma once

#include <QColor>

#include <array>

namespace ColorPalette {

constexpr int RowCount = 8;
constexpr int ColumnCount = 9;

using Row = std::array<QColor, ColumnCount>;

/// Greys, pure hues, then tints and shades of those; all opaque and in the RGB model. Initialised at compile
/// time, so that static objects of other files can use it.
extern const std::array<Row, RowCount> Rows;

/// Compares as QColor does: with alpha, and with the colour model.
bool contains(const QColor& color);

} // namespace ColorPalette
