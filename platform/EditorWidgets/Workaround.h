#pragma once

#include <EditorWidgets/EditorWidgetsExport.h>

class QWidget;

/**
 * Workarounds for differences between the desktops that the editor runs on.
 */
namespace Workaround::Ui {

/// Prepares @p widget, which it does not own, for the workarounds. Call it in the widget's constructor; a
/// second call and a null widget do nothing.
///
/// The only workaround is for rounded corners. It acts while the dynamic property "roundedEdges" is true,
/// whether that is set before or after the call:
///
/// - the widget is translucent, so that its corners show what lies behind them, and a window asks the desktop
///   for no shadow, which would be drawn around the rectangle;
/// - what a style sheet draws for the widget (background, border, `border-radius`) is painted, which Qt
///   leaves out for translucent widgets. As always, this holds for Qt's own plain classes, dialogs and
///   frames; a class of the host's paints it itself (`QStyle::PE_Widget`) or sets `Qt::WA_StyledBackground`;
/// - a dialog or plain QWidget that no sheet draws is filled with its palette, with corners of 6 pixels.
///
/// For a window, set the property before the window is first shown or asked for its window id: the native
/// window keeps its pixel format. Without a compositing desktop the corners are black.
///
/// Setting the property to false reverts all this. Visibility, geometry and the kind of window never change.
/// A child widget, or one in a QGraphicsProxyWidget, is painted the same way.
EDITORWIDGETS_EXPORT void apply(QWidget* widget);

} // namespace Workaround::Ui
