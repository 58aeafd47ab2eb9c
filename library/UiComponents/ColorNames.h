// Internal: names of colours, for tool tips and accessibility.

#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace ColorNames {

/// Lightness from 0 to 1, chroma from 0 to about 0.32, and hue from 0 to 360 degrees, of OKLab.
struct Perceived
{
    double lightness = 0.0;
    double chroma = 0.0;
    double hue = 0.0;
};

/// How a person sees an opaque @p color.
Perceived perceived(const QColor& color);

/// A translated name that people use for such a colour, as "dark red". Empty for an invalid one.
QString inWords(const QColor& color);

/// The text for a value: "orange, #ff8040", with ", 50 %" behind it if it is not opaque, or that there is
/// no colour or that there are several.
QString valueText(const std::optional<QColor>& color);

} // namespace ColorNames
