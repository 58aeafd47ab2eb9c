#pragma once

#include <QString>

#include <cmath>

/// The decimal number of these digits, the last @p decimals of them behind the mark: the nearest double,
/// without any arithmetic of doubles on the way.
inline double decimalNumber(qint64 digits, int decimals)
{
    QString text = QString::number(std::abs(digits)).rightJustified(decimals + 1, QLatin1Char('0'));
    text.insert(text.size() - decimals, QLatin1Char('.'));
    return (digits < 0 ? QStringLiteral("-") + text : text).toDouble();
}
