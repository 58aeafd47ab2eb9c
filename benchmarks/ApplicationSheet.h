// Internal: the style sheet that the benchmark programs run under.

#pragma once

#include <QString>

namespace Bench {

/// A style sheet of 300 rules in the mix that a large application has: type, class, descendant and child
/// selectors, object names, dynamic properties, style hints, states and sub-controls. On any push button
/// the values "active" and "idle" of the property "mode" differ in colour, "large" and "small" in padding.
QString applicationSheet();

} // namespace Bench
