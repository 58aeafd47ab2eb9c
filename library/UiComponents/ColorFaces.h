// Internal: the faces of ColorPickerWidget: the colours that it offers, and the current one.

#pragma once

#include <QString>

class QColor;
class QWidget;

namespace ColorFaces {

/// The style sheet of a face: @p color as background, opaque; transparent for an invalid colour.
QString styleSheet(const QColor& color);

/// Sets that style sheet, where it differs.
void paint(QWidget* face, const QColor& color);

} // namespace ColorFaces
