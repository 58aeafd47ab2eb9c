#pragma once

#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QString>

class LayoutController;
class OvDoubleSlider;
class QAbstractSlider;
class QDoubleSpinBox;
class QSpinBox;
class QVariant;
class QWidget;

/**
 * What components use to speak to the style sheet and to tie controls together.
 */
namespace Util {

/// Gives @p widget the style variant @p hint: sets the dynamic property "styleHint", which a sheet
/// selects with `[styleHint="error"]`, and re-polishes the widget. An empty hint drops the variant:
/// neither that selector nor a plain `[styleHint]` selects the widget any more. A null widget and an
/// unchanged hint do nothing.
WIDGETTOOLKIT_EXPORT void applyStyleHint(QWidget* widget, const QString& hint);

/// Sets the dynamic (or declared) property @p name of @p widget to @p value and, only when that changed
/// it, re-polishes the widget, so that property selectors take effect at once. A value of another type is
/// another value (true and 1), and an invalid one removes a dynamic property. Where the sheet's padding,
/// border or margin of the widget changes with the property, the layout follows on the next turn of the
/// event loop. The widget's children are not re-polished: a rule that reaches a child through its
/// parent's property takes effect on the child when the child itself is polished again. A null widget or
/// name does nothing.
WIDGETTOOLKIT_EXPORT void applyProperty(QWidget* widget, const char* name, const QVariant& value);

/// Unpolishes and polishes @p widget with its style, after a change that the sheet reads but Qt does not
/// watch. A widget that was never polished is left to its first polish. A null widget does nothing.
WIDGETTOOLKIT_EXPORT void repolishWidget(QWidget* widget);

/// Gives @p widget a controller of its layout: a hidden child of class `InstalledLayoutController` whose
/// properties a sheet sets (see LayoutController). The widget owns it. A widget that is a controller
/// itself, or has one already, returns that one; null returns null.
WIDGETTOOLKIT_EXPORT LayoutController* installLayoutController(QWidget* widget);

/// Keeps a slider and a spin box on the same value, in both directions, until either dies. Neither is
/// owned. On binding, the spin box takes the slider's range and value; from then on a change of range or
/// value of the slider goes to the spin box at once, and a change of value of the spin box goes to the
/// slider. A spin box does not announce a change of its range: it is taken over at its next value. No
/// change runs in a circle, and each side emits once for a change. A listener may delete either widget,
/// save the one whose own code goes on behind the signal: a spin box while the user types or steps in it,
/// a slider in setRange(). Binding the same pair twice is the same as once; a null argument does nothing.
WIDGETTOOLKIT_EXPORT void bindWidgets(QAbstractSlider* slider, QSpinBox* spinBox);

/// The same for fractions, through the slider's multiplier. A value that is typed reads back digit for
/// digit: the spin box is never rewritten by an echo, and the slider's handle goes to the nearest step,
/// halves away from zero. While the two are set up in any order, neither is moved because the other
/// cannot show a value yet: a spin box with too few decimals leaves the slider's value alone and takes
/// it over in full once it has them: an OvDoubleSpinBox at once, a plain QDoubleSpinBox, which does not
/// announce its decimals, when it is next shown, painted, focused or given a value. Ranges that the
/// slider's 32-bit steps cannot count are clamped on the slider and stay as they are on the spin box.
WIDGETTOOLKIT_EXPORT void bindWidgets(OvDoubleSlider* slider, QDoubleSpinBox* spinBox);

namespace Details {

/// Turns the name of a member into an object name: "m_guideWidget" becomes "guideWidget". A name without
/// the prefix, or with nothing behind it, is returned as it is; null gives an empty string.
WIDGETTOOLKIT_EXPORT QString removeClassMemberPrefix(const char* memberName);

} // namespace Details

} // namespace Util
