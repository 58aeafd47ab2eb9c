#pragma once

#include <EditorWidgets/EditorWidgetsExport.h>

#include <QString>

class QWidget;

/**
 * The editor's colour variants of plain controls.
 */
namespace ColorHint {

/// Gives @p widget the colour variant @p hint, one of the eight names of WidgetToolkit/StyleHints.h, as
/// its style hint (see Util::applyStyleHint()); it replaces the hint that the widget had. The empty
/// string drops the hint. Any other text is ignored and leaves the widget's hint as it is; a null widget
/// does nothing.
EDITORWIDGETS_EXPORT void applyColorHint(QWidget* widget, const QString& hint);

} // namespace ColorHint
