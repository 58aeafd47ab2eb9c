// Internal: the faces of the buttons of ColorPickerWidget, and its preview.

#pragma once

#include <QString>

class QColor;
class QWidget;

namespace ColorPickerWidgetFaces {

/// The style sheet of both: @p color as background, opaque; transparent for an invalid colour.
QString styleSheet(const QColor& color);

/// Sets that style sheet, where it differs.
void paint(QWidget* widget, const QColor& color);

} // namespace ColorPickerWidgetFaces
