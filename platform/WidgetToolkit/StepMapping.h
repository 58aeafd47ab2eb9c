// Internal: the arithmetic between slider steps and values, used by OvDoubleSlider and WidgetBinding.

#pragma once

/**
 * Converts between the integer steps of a slider and values, and rounds values as spin boxes do.
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

    /// The value of @p step, clamped to the range of a double.
    double valueOf(int step) const;

    /// The step nearest to @p value, halves away from zero. A value that is a half in decimal notation counts
    /// as a half, whatever its double is. Steps are clamped to 32 bits; NaN gives 0.
    int stepOf(double value) const;

private:
    double m_numerator = 1.0;
    double m_denominator = 1.0;
};

/// True if @p number is positive and finite.
bool isMultiplier(double number);

/// Rounds @p value as a QDoubleSpinBox with @p decimals does.
double rounded(double value, int decimals);

} // namespace StepMapping
