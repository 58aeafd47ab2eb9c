// Internal: the fixed palette of ColorPickerWidget, whose colours CustomColors does not add, and how many own
// colours stand below it.

#pragma once

#include <QColor>

#include <array>

namespace ColorPalette {

constexpr int rowCount = 8;
constexpr int columnCount = 9;

/// With so many own colours, each one that is added replaces the oldest; the panel has as many buttons.
constexpr int maxOwnColors = 8;

using Row = std::array<QColor, columnCount>;

/// Greys, pure hues, then tints and shades of those; all opaque and in the RGB model. Initialised at compile
/// time, so that static objects of other files can use it.
extern const std::array<Row, rowCount> rows;

/// Compares as QColor does: with alpha, and with the colour model.
bool contains(const QColor& color);

} // namespace ColorPalette
