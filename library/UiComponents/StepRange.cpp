#include "StepRange.h"

#include <cmath>
#include <limits>

double StepRange::stepOf(int decimals)
{
    return std::pow(10.0, -static_cast<double>(decimals));
}

int StepRange::nearestStep(double value, int decimals)
{
    using Steps = std::numeric_limits<int>;
    const double step = std::round(std::pow(10.0, decimals) * value);
    if (std::isnan(step)) {
        return 0;
    }
    // Converting a double beyond the range of int is undefined.
    if (step >= Steps::max()) {
        return Steps::max();
    }
    return step <= Steps::min() ? Steps::min() : static_cast<int>(step);
}
