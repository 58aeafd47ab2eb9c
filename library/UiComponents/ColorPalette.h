// Internal: the fixed palette, for the panel that shows it and for CustomColors, which adds none of it.
#pragma once

#include <QColor>

#include <array>

namespace ColorPalette {

constexpr int RowCount = 8;
constexpr int ColumnCount = 9;

using Row = std::array<QColor, ColumnCount>;

/// Greys, pure hues, then tints and shades of those; all opaque and of the RGB model. Made by the
/// compiler, so that it is there before any other object that is constructed while libraries load.
extern const std::array<Row, RowCount> Rows;

/// Compares as QColor does: with alpha, and with the colour model.
bool contains(const QColor& color);

} // namespace ColorPalette
