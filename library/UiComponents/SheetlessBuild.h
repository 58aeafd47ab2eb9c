// Internal: lets ColorPickerWidget construct its many parts quickly.

#pragma once

#include <functional>

namespace SheetlessBuild {

/// Calls @p build, which constructs widgets, with style sheets switched off.
///
/// Many widgets ask their style for a hint while they are constructed or get a sheet. For each, Qt matches
/// all rules of all sheets against the widget, and again when it polishes the widget, with its name and
/// properties set; only the second result is ever visible. Widgets constructed in here look and behave as
/// others do, but are matched once.
///
/// @p build only constructs: any question to a style is answered without the sheets. It may set sheets,
/// properties and names, but must not polish, show or measure widgets.
void run(const std::function<void()>& build);

} // namespace SheetlessBuild
