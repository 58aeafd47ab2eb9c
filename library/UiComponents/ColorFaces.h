// Internal: the faces of ColorPickerWidget, which are the colours that it offers and the one that it has.

#pragma once

#include <QString>

class QColor;
class QWidget;

namespace ColorFaces {

/// The sheet of a face: its background is @p color without alpha, transparent for an invalid one.
QString styleSheet(const QColor& color);

/// Gives @p face that sheet, if it has another.
void paint(QWidget* face, const QColor& color);

} // namespace ColorFaces
