// Internal: the style sheet that the benchmark programs run under.

#pragma once

#include <QString>

namespace Bench {

/// A style sheet of 300 rules in the mix that a large application has: type, class, descendant and child
/// selectors, object names, dynamic properties, style hints, states and sub-controls. Two of its rules
/// select the values "active" and "idle" of the property "mode" on any push button.
QString applicationSheet();

} // namespace Bench
