#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QVariant>

#include <optional>
#include <random>
#include <vector>

/**
 * Choices that a seed repeats, and values such as no test thinks of.
 */
class Random
{
public:
    explicit Random(quint64 seed)
        : m_engine(seed)
    {
    }

    quint64 next() { return m_engine(); }
    /// 0 to @p end - 1.
    int below(int end) { return static_cast<int>(m_engine() % static_cast<quint64>(end)); }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool oneIn(int count) { return below(count) == 0; }

    template <typename T>
    T oneOf(const std::vector<T>& values)
    {
        return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
    }

    /// Mostly small, and the ends of what an int holds.
    int integer();
    /// Mostly small, and infinities, NaN and the ends of what a double holds.
    double real();
    /// A side in pixels of which a window can have two.
    int length();
    QSize size() { return {length(), length()}; }
    /// In or near a rectangle of that size.
    QPoint pointAround(const QSize& size);
    /// Empty, long, from right to left, marked up, malformed.
    QString text();
    /// A text, a folder that exists, or one that cannot be used.
    QString path();
    /// Of all models, translucent, extended, invalid.
    QColor color();
    std::optional<QColor> optionalColor();
    QString styleSheet();
    /// A value of a type of Qt's; invalid for a type that is not known here.
    QVariant value(int type);

private:
    std::mt19937_64 m_engine;
};
