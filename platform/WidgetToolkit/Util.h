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
 * Functions that set what a style sheet selects, and that bind controls to each other.
 * @see LayoutController, ColorHint, OvDoubleSlider, OvSpinBox
 */
namespace Util {

/// Sets the dynamic property "styleHint" of @p widget to @p hint, which a sheet selects with
/// `[styleHint="error"]`, and re-polishes the widget. After an empty hint not even a plain `[styleHint]`
/// selects the widget. A null widget and an unchanged hint do nothing.
WIDGETTOOLKIT_EXPORT void applyStyleHint(QWidget* widget, const QString& hint);

/// Sets the dynamic or declared property @p name of @p widget to @p value and, only if that changes it,
/// re-polishes the widget, so that property selectors take effect at once. Values of different types differ
/// (true and 1); an invalid one removes a dynamic property. Where the widget's padding, border or margin
/// changes with the property, the layout follows on the next turn of the event loop. The children are not
/// re-polished: a rule that selects a child by its parent's property takes effect when the child is polished
/// again. A null widget or name does nothing.
WIDGETTOOLKIT_EXPORT void applyProperty(QWidget* widget, const char* name, const QVariant& value);

/// Unpolishes and polishes @p widget with its style, after a change that the sheet reads but Qt does not
/// watch. Does nothing for a null widget and one that was never polished.
WIDGETTOOLKIT_EXPORT void repolishWidget(QWidget* widget);

/// Gives @p widget a controller of its layout, which it owns: a hidden child of class
/// `InstalledLayoutController` whose properties a sheet sets (see LayoutController). Returns the present one
/// for a widget that is a controller itself or has one; null for null.
WIDGETTOOLKIT_EXPORT LayoutController* installLayoutController(QWidget* widget);

/// Keeps a slider and a spin box on the same value, in both directions, until either is deleted. Neither is
/// owned. The spin box takes the slider's range and value, and follows both at once from then on; the slider
/// follows the spin box's value, and its range, which a spin box does not announce, at the next value. Each
/// side emits once for a change. A slot must use deleteLater() for a spin box while the user types or steps
/// in it, and for a slider in setRange(), since Qt still uses them after the signal. Binding a pair again, or
/// a null argument, does nothing.
WIDGETTOOLKIT_EXPORT void bindWidgets(QAbstractSlider* slider, QSpinBox* spinBox);

/// The same for fractions, through the slider's multiplier. A typed value reads back digit for digit: the
/// slider never rewrites the spin box, and its handle goes to the nearest step, halves away from zero. Both
/// may be set up in any order: a spin box with too few decimals leaves the slider's value alone, and takes it
/// in full once it has them: an OvDoubleSpinBox at once, a plain QDoubleSpinBox, which does not announce its
/// decimals, when it is next shown, painted, focused or given a value; where that is by showing or focusing
/// it, a slot must use deleteLater() for it, too. Ranges that the slider's 32-bit steps cannot count are
/// clamped on the slider only.
WIDGETTOOLKIT_EXPORT void bindWidgets(OvDoubleSlider* slider, QDoubleSpinBox* spinBox);

namespace Details {

/// Returns the object name for the name of a member: "guideWidget" for "m_guideWidget". A name without the
/// prefix, or with nothing behind it, is returned unchanged; null gives an empty string.
WIDGETTOOLKIT_EXPORT QString removeClassMemberPrefix(const char* memberName);

} // namespace Details

} // namespace Util
