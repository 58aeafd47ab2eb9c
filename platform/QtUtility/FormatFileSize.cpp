#include "FormatFileSize.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

constexpr int defaultKiloSize = 1024;
constexpr int automaticPrecision = -1;
constexpr int maximumPrecision = 60; // 1024 to the power of 6 in the denominator needs no more

// Indexed by the unit's distance from bytes.
constexpr const char* unitTexts[] = {
    QT_TRANSLATE_NOOP("FormatFileSize", "%1 B"),  QT_TRANSLATE_NOOP("FormatFileSize", "%1 KB"),
    QT_TRANSLATE_NOOP("FormatFileSize", "%1 MB"), QT_TRANSLATE_NOOP("FormatFileSize", "%1 GB"),
    QT_TRANSLATE_NOOP("FormatFileSize", "%1 TB"), QT_TRANSLATE_NOOP("FormatFileSize", "%1 PB"),
    QT_TRANSLATE_NOOP("FormatFileSize", "%1 EB"),
};
constexpr int largestPower = 6;

struct Decimal
{
    quint64 whole = 0;
    QByteArray decimals;

    bool isZero() const { return whole == 0 && decimals.count('0') == decimals.size(); }
};

// The factor is at most 1024 to the power of 6, so that a remainder times ten fits.
Decimal divide(quint64 amount, quint64 factor, int precision)
{
    Decimal result{amount / factor, {}};
    quint64 rest = amount % factor;
    for (int i = 0; i < precision; ++i) {
        rest *= 10;
        result.decimals += static_cast<char>('0' + rest / factor);
        rest %= factor;
    }
    if (rest < factor - rest) {
        return result;
    }
    int last = result.decimals.size() - 1;
    while (last >= 0 && result.decimals.at(last) == '9') {
        result.decimals[last--] = '0';
    }
    if (last < 0) {
        ++result.whole;
    } else {
        result.decimals[last] = static_cast<char>(result.decimals.at(last) + 1);
    }
    return result;
}

Decimal inUnit(quint64 amount, quint64 factor, int precision)
{
    if (factor == 1) {
        return Decimal{amount, {}};
    }
    if (precision != automaticPrecision) {
        return divide(amount, factor, precision);
    }
    Decimal result = divide(amount, factor, amount / factor < 10 ? 2 : 1);
    while (result.decimals.endsWith('0')) {
        result.decimals.chop(1);
    }
    return result;
}

QString localized(const Decimal& number, bool negative)
{
    const QLocale locale;
    QString text = locale.toString(number.whole);
    if (negative && !number.isZero()) {
        text.prepend(locale.negativeSign());
    }
    if (!number.decimals.isEmpty()) {
        text += locale.decimalPoint();
        for (const char digit : number.decimals) {
            text += QChar(locale.zeroDigit().unicode() + (digit - '0'));
        }
    }
    return text;
}

} // namespace

namespace Orvane::Util {

QString FormatFileSize(qint64 bytes, int precision, FileSizeUnit unit, int kiloSize)
{
    const quint64 kilo = kiloSize > 1 && kiloSize < defaultKiloSize ? kiloSize : defaultKiloSize;
    const int digits = qBound(automaticPrecision, precision, maximumPrecision);
    const bool negative = bytes < 0;
    // Negated as unsigned: the smallest value has no positive counterpart.
    const quint64 amount = negative ? 0 - static_cast<quint64>(bytes) : static_cast<quint64>(bytes);

    const bool isFixed = unit >= FileSizeUnit::Byte && unit <= FileSizeUnit::Exa;
    const int fixedPower = static_cast<int>(unit) - static_cast<int>(FileSizeUnit::Byte);
    int power = 0;
    quint64 factor = 1;
    const auto moreToGo = [&] {
        if (isFixed) {
            return power < fixedPower;
        }
        return power < largestPower && inUnit(amount, factor, digits).whole >= kilo;
    };
    while (moreToGo()) {
        factor *= kilo;
        ++power;
    }
    return QCoreApplication::translate("FormatFileSize", unitTexts[power])
        .arg(localized(inUnit(amount, factor, digits), negative));
}

} // namespace Orvane::Util
