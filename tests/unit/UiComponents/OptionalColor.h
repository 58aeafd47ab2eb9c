#pragma once

#include <QColor>

#include <optional>

using OptionalColor = std::optional<QColor>;

inline QString text(const OptionalColor& color)
{
    if (!color) {
        return QStringLiteral("several");
    }
    return color->isValid() ? color->name(QColor::HexArgb) : QStringLiteral("none");
}
