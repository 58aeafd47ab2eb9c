// Internal: the arithmetic between slider steps and values, used by OvDoubleSlider and WidgetBinding.

#pragma once

/**
 * Values of a slider that counts in steps, and their reading with a number of decimals.
 */
namespace StepMapping {

/// The ratio between steps and values, kept as a fraction where that is exact: 3 steps of 0.1 are 0.3
/// and not 3 × 0.1, which is 0.30000000000000004.
class Scale
{
public:
    Scale() = default;
    /// @p multiplier is the value of one step: positive and finite.
    explicit Scale(double multiplier);

    /// The value of @p step; a value too large for a double becomes the largest one.
    double valueOf(int step) const;

    /// The step nearest to @p value, halves away from zero. A value that is a half in its decimal
    /// notation counts as one, whichever way its double is off. Steps beyond 32 bits become the last one
    /// of 32 bits. NaN gives 0.
    int stepOf(double value) const;

private:
    double m_numerator = 1.0;
    double m_denominator = 1.0;
};

/// True for what can be a multiplier: positive and finite.
bool isMultiplier(double number);

/// What a QDoubleSpinBox with @p decimals makes of @p value.
double rounded(double value, int decimals);

} // namespace StepMapping
