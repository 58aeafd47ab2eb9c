#pragma once

#include <EditorWidgets/EditorWidgetsExport.h>

#include <QString>

class QWidget;

/**
 * The editor's colour variants of plain controls.
 */
namespace ColorHint {

/// Sets the style hint of @p widget to @p hint, one of the eight names of WidgetToolkit/StyleHints.h (see
/// Util::applyStyleHint()). The empty string drops the hint. Any other text is ignored; a null widget does
/// nothing.
EDITORWIDGETS_EXPORT void applyColorHint(QWidget* widget, const QString& hint);

} // namespace ColorHint
