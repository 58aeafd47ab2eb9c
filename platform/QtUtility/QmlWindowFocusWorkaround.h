#pragma once

#include <QtUtility/QtUtilityExport.h>

class QWidget;

namespace Orvane::Util {

/**
 * Keeps the focus in a QML view that is hosted in a dialog's window.
 *
 * When the host of a view is taken out of a window and put into one again, Qt forgets which widget had the
 * focus and gives it to the window, or to the first widget in the tab order: keys no longer reach the QML
 * scene. With the workaround the first widget in @p qmlHost that can take the focus (visible, enabled, with a
 * focus policy; in tab order, the host itself last) gets it
 *
 * - when the dialog is shown, and when the host is put into it while it is shown, wherever else in the window
 *   the focus is;
 * - when the window becomes active and the focus was lost: nothing has it, or a hidden widget, or the window
 *   or another widget around the host. A widget beside the view that the user moved to keeps it.
 *
 * A focus inside the host never moves, and no other event has an effect. The workaround finds the view by its
 * focus policy alone, so it works for every kind of view that takes the focus.
 *
 * @param dialog the widget that is shown; usually the window itself.
 * @param qmlHost holds the view. It may be put into the dialog at any time, at any depth, and taken out
 * again.
 *
 * Neither is owned; the workaround ends when either is deleted. Applying it to a pair again, or with a null
 * argument, does nothing.
 */
QTUTILITY_EXPORT void ApplyQmlWindowFocusWorkaround(QWidget* dialog, QWidget* qmlHost);

} // namespace Orvane::Util
