#pragma once

#include <EditorWidgets/EditorWidgetsExport.h>

class QWidget;

/**
 * What the editor does to widgets where the desktops that it runs on disagree.
 */
namespace Workaround::Ui {

/// Prepares @p widget for the editor's user-interface workarounds. Call it once, in the widget's
/// constructor; a second call and a null widget do nothing. The widget is not owned.
///
/// There is one workaround, for real rounded corners. It acts while the dynamic property "roundedEdges"
/// is true, whether that was set before the call or is set after it:
///
/// - the widget is translucent, so that its corners show what lies behind them, and a window asks the
///   desktop for no shadow, which would be drawn around the rectangle;
/// - what a style sheet draws for the widget (background, border, `border-radius`) is painted all the
///   same: Qt leaves that out for translucent widgets. As always, this holds for Qt's own plain classes,
///   dialogs and frames; a class of the host's paints it itself (`QStyle::PE_Widget`) or sets
///   `Qt::WA_StyledBackground`;
/// - a dialog or plain QWidget that no sheet draws is filled with its palette, with corners of 6 pixels.
///
/// For a window the property must be true before the window is first shown (or asked for its window id):
/// its native window keeps the pixel format that it was made with. Without a compositing desktop the
/// corners are black.
///
/// Setting the property to false takes back what it brought. Visibility, geometry and the kind of window
/// are never touched. A child widget, or one that a QGraphicsProxyWidget shows, gets the same painting.
EDITORWIDGETS_EXPORT void apply(QWidget* widget);

} // namespace Workaround::Ui
