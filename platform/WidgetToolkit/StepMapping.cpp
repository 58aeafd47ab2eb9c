#include "StepMapping.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Limits = std::numeric_limits<double>;

// The product of a 32-bit step and a numerator up to this is exact in a double.
constexpr double maxExactNumerator = 4194304.0;
// Multipliers with more decimals are not taken for decimal fractions.
constexpr int maxDecimals = 12;

/// pow(10, -3) may differ from 0.001 by a few units in the last place.
bool isNearly(double number, double meant)
{
    return std::abs(number - meant) <= 4 * Limits::epsilon() * std::abs(meant);
}

} // namespace

StepMapping::Scale::Scale(double multiplier)
    : m_numerator(multiplier)
{
    const double inverse = std::round(1.0 / multiplier);
    if (inverse >= 1.0 && inverse < 1e15 && isNearly(1.0 / multiplier, inverse)) {
        m_numerator = 1.0;
        m_denominator = inverse;
        return;
    }
    double power = 1.0;
    for (int decimals = 0; decimals <= maxDecimals; ++decimals, power *= 10.0) {
        const double numerator = std::round(multiplier * power);
        if (numerator > maxExactNumerator) {
            return;
        }
        if (numerator >= 1.0 && isNearly(multiplier * power, numerator)) {
            m_numerator = numerator;
            m_denominator = power;
            return;
        }
    }
}

double StepMapping::Scale::valueOf(int step) const
{
    const double value = step * m_numerator / m_denominator;
    return std::clamp(value, Limits::lowest(), Limits::max());
}

int StepMapping::Scale::stepOf(double value) const
{
    using Steps = std::numeric_limits<int>;
    if (std::isnan(value)) {
        return 0;
    }
    const double exact = value / m_numerator * m_denominator;
    const double half = 0.5 + 2 * Limits::epsilon() * std::abs(exact);
    const double step = std::trunc(exact + std::copysign(half, exact));
    if (step >= Steps::max()) {
        return Steps::max();
    }
    return step <= Steps::min() ? Steps::min() : static_cast<int>(step);
}

bool StepMapping::isMultiplier(double number)
{
    return std::isfinite(number) && number > 0.0;
}

double StepMapping::rounded(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toDouble();
}
