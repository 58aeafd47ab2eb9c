#pragma once

#include <QtUtility/QtUtilityExport.h>

class QWidget;

namespace Orvane::Util {

/**
 * Keeps the keyboard in a QML view that is hosted in a dialog's window.
 *
 * Qt forgets which widget had the focus when the host of a view is taken out of a window and put into
 * one again, and then gives the keyboard to the window itself, or to whichever widget comes first in the
 * tab order: keys no longer reach the QML scene although it fills the dialog. With the workaround the
 * first widget in @p qmlHost that can take the focus (visible, enabled, with a focus policy; in tab
 * order, the host itself last) gets it
 *
 * - when the dialog is shown, and when the host is put into it while it is shown, wherever the focus is
 *   elsewhere in the window;
 * - when the window becomes active and the focus was lost: nothing has it, or a hidden widget, or the
 *   window or another widget around the host. A widget beside the view that the user moved to keeps it.
 *
 * A focus inside the host is never moved, and nothing happens at any other event. The workaround finds
 * the view through its focus policy alone: it works for every kind of view, and for none when nothing in
 * the host takes the focus.
 *
 * @param dialog the widget that is shown; usually the window itself.
 * @param qmlHost holds the view. It may be put into the dialog at any time, at any depth, and be taken
 * out again.
 *
 * Neither is owned. Applied to the same pair again, or with a null argument, it does nothing; it ends
 * when either of them dies.
 */
QTUTILITY_EXPORT void ApplyQmlWindowFocusWorkaround(QWidget* dialog, QWidget* qmlHost);

} // namespace Orvane::Util
