#include "FormatFileSize.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace {

constexpr int defaultKiloSize = 1024;
constexpr int maxPrecision = 15; // significant digits of a double

// Indexed by the power of the kilobyte.
constexpr const char* unitTexts[] = {
    QT_TRANSLATE_NOOP("FormatFileSize", "%1 B"),  QT_TRANSLATE_NOOP("FormatFileSize", "%1 KB"),
    QT_TRANSLATE_NOOP("FormatFileSize", "%1 MB"), QT_TRANSLATE_NOOP("FormatFileSize", "%1 GB"),
    QT_TRANSLATE_NOOP("FormatFileSize", "%1 TB"), QT_TRANSLATE_NOOP("FormatFileSize", "%1 PB"),
    QT_TRANSLATE_NOOP("FormatFileSize", "%1 EB"),
};
constexpr int maxPower = 6;

/// The decimals before the division: a half in thousands is no half as a double, such as 1.005.
double rounded(double number, double unit, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::round(number * scale / unit) / scale + 0.0; // no negative zero
}

} // namespace

namespace Orvane::Util {

QString FormatFileSize(qint64 bytes, int precision, FileSizeUnit unit, int kiloSize)
{
    const double kilo = kiloSize > 1 && kiloSize < defaultKiloSize ? kiloSize : defaultKiloSize;
    const bool isFixed = unit >= FileSizeUnit::Byte && unit <= FileSizeUnit::Exa;
    const int fixedPower = static_cast<int>(unit) - static_cast<int>(FileSizeUnit::Byte);

    auto number = static_cast<double>(bytes);
    int power = 0;
    int decimals = 0;
    while (isFixed ? power < fixedPower : power < maxPower && std::abs(number) >= kilo) {
        const double inUnit = std::pow(kilo, ++power);
        decimals = precision >= 0                                       ? qMin(precision, maxPrecision)
                   : std::abs(static_cast<double>(bytes)) < 10 * inUnit ? 2
                                                                        : 1;
        number = rounded(static_cast<double>(bytes), inUnit, decimals);
    }
    while (precision < 0 && decimals > 0 && rounded(number, 1.0, decimals - 1) == number) {
        --decimals;
    }
    const QLocale locale;
    const QString text = power == 0 ? locale.toString(bytes) : locale.toString(number, 'f', decimals);
    return QCoreApplication::translate("FormatFileSize", unitTexts[power]).arg(text);
}

} // namespace Orvane::Util
