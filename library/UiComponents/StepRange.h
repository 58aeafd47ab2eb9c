// Internal: the arithmetic of steps and decimals, for DoubleSliderInputWidget and PointSelectorWidget.

#pragma once

/**
 * Steps of one unit of the last decimal.
 */
namespace StepRange {

/// The size of a step: 10 to the power of minus @p decimals.
double stepOf(int decimals);

/// The number of steps from 0 to @p value, rounded, halves away from zero. It is clamped to int; NaN gives 0.
int nearestStep(double value, int decimals);

} // namespace StepRange
