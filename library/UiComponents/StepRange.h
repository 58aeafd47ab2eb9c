// Internal: the arithmetic of steps and decimals in the inputs of fractions.

#pragma once

/**
 * Steps of which each is one unit of the last of some decimals.
 */
namespace StepRange {

/// The size of a step: 10 to the power of minus @p decimals.
double stepOf(int decimals);

/// How many steps @p value is from 0, to the nearest whole one, halves away from zero. What is beyond 32
/// bits becomes the largest or least number there is; NaN becomes 0.
int nearestStep(double value, int decimals);

} // namespace StepRange
