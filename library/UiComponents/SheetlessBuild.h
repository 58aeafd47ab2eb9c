// Internal: how ColorPickerWidget makes its many parts quickly.

#pragma once

#include <functional>

namespace SheetlessBuild {

/// Runs @p build once, which constructs widgets, without any look into the style sheets that apply to them.
///
/// Many widgets ask their style for a hint while they are constructed or get a sheet. For that Qt matches all
/// rules of all sheets against the widget, and does so again when the widget is polished, with its name and
/// its properties known; only the second result is ever seen. Widgets that were made in here look and behave
/// as others do, but they were matched once: under an application's sheet of some hundred rules most of the
/// time of their construction is saved.
///
/// Only construction belongs in @p build: whoever asks a style in there gets the answer without a sheet. Set
/// sheets, properties and names as usual, but polish, show or measure nothing.
void run(const std::function<void()>& build);

} // namespace SheetlessBuild
