#include "ColorNames.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace {

constexpr double grayChroma = 0.015;
constexpr double mutedChroma = 0.05;
constexpr double paleChroma = 0.09;
constexpr double lightChroma = 0.14;
constexpr double paleLightness = 0.8;
constexpr double deepLightness = 0.33;
constexpr double clearDifference = 0.095;
constexpr int degreesOfCircle = 360;

/// Hues up to an angle, and how light they are where they are strongest. Below a lightness of their own some
/// have another name.
struct HueName
{
    double end;
    const char* name;
    double typicalLightness;
    const char* dimName = nullptr;
    double dimLightness = 0.0;
};

constexpr std::array<HueName, 13> hueNames{{
    {12.0, QT_TRANSLATE_NOOP("ColorNames", "pink"), 0.68},
    {37.0, QT_TRANSLATE_NOOP("ColorNames", "red"), 0.63},
    {62.0, QT_TRANSLATE_NOOP("ColorNames", "orange"), 0.7, QT_TRANSLATE_NOOP("ColorNames", "brown"), 0.55},
    {100.0, QT_TRANSLATE_NOOP("ColorNames", "golden yellow"), 0.85, QT_TRANSLATE_NOOP("ColorNames", "brown"),
     0.6},
    {118.0, QT_TRANSLATE_NOOP("ColorNames", "yellow"), 0.96, QT_TRANSLATE_NOOP("ColorNames", "olive"), 0.7},
    {139.0, QT_TRANSLATE_NOOP("ColorNames", "yellow green"), 0.88},
    {165.0, QT_TRANSLATE_NOOP("ColorNames", "green"), 0.87},
    {190.0, QT_TRANSLATE_NOOP("ColorNames", "turquoise"), 0.82},
    {205.0, QT_TRANSLATE_NOOP("ColorNames", "cyan"), 0.9},
    {240.0, QT_TRANSLATE_NOOP("ColorNames", "azure"), 0.79},
    {280.0, QT_TRANSLATE_NOOP("ColorNames", "blue"), 0.47},
    {312.0, QT_TRANSLATE_NOOP("ColorNames", "violet"), 0.55},
    {335.0, QT_TRANSLATE_NOOP("ColorNames", "magenta"), 0.7},
}};

/// Greys up to a lightness.
struct GrayName
{
    double end;
    const char* name;
};

constexpr std::array<GrayName, 7> grayNames{{
    {0.18, QT_TRANSLATE_NOOP("ColorNames", "black")},
    {0.35, QT_TRANSLATE_NOOP("ColorNames", "very dark grey")},
    {0.5, QT_TRANSLATE_NOOP("ColorNames", "dark grey")},
    {0.72, QT_TRANSLATE_NOOP("ColorNames", "grey")},
    {0.87, QT_TRANSLATE_NOOP("ColorNames", "light grey")},
    {0.985, QT_TRANSLATE_NOOP("ColorNames", "very light grey")},
    {2.0, QT_TRANSLATE_NOOP("ColorNames", "white")},
}};

QString translated(const char* text)
{
    return QCoreApplication::translate("ColorNames", text);
}

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

/// Pink is on both sides of 0.
const HueName& hueNameAt(double hue)
{
    for (const HueName& candidate : hueNames) {
        if (hue < candidate.end) {
            return candidate;
        }
    }
    return hueNames.front();
}

QString shade(const ColorNames::Perceived& seen, const HueName& hue, const QString& name)
{
    const double difference = seen.lightness - hue.typicalLightness;
    if (seen.lightness < deepLightness) {
        return translated(QT_TRANSLATE_NOOP("ColorNames", "very dark %1")).arg(name);
    }
    if (seen.lightness > paleLightness && seen.chroma < paleChroma) {
        return translated(QT_TRANSLATE_NOOP("ColorNames", "very light %1")).arg(name);
    }
    if (seen.chroma < mutedChroma) {
        return translated(QT_TRANSLATE_NOOP("ColorNames", "greyish %1")).arg(name);
    }
    if (seen.lightness < hue.dimLightness) {
        return name;
    }
    if (difference < -clearDifference) {
        return translated(QT_TRANSLATE_NOOP("ColorNames", "dark %1")).arg(name);
    }
    if (difference > clearDifference || (seen.lightness > paleLightness && seen.chroma < lightChroma)) {
        return translated(QT_TRANSLATE_NOOP("ColorNames", "light %1")).arg(name);
    }
    return name;
}

} // namespace

/// The formula and its numbers are Björn Ottosson's: "A perceptual color space for image processing", 2020,
/// https://bottosson.github.io/posts/oklab/.
ColorNames::Perceived ColorNames::perceived(const QColor& color)
{
    const double red = linear(color.redF());
    const double green = linear(color.greenF());
    const double blue = linear(color.blueF());
    const double l = std::cbrt(0.4122214708 * red + 0.5363325363 * green + 0.0514459929 * blue);
    const double m = std::cbrt(0.2119034982 * red + 0.6806995451 * green + 0.1073969566 * blue);
    const double s = std::cbrt(0.0883024619 * red + 0.2817188376 * green + 0.6299787005 * blue);

    Perceived result;
    result.lightness = 0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s;
    const double a = 1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s;
    const double b = 0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s;
    result.chroma = std::hypot(a, b);
    result.hue = std::atan2(b, a) * degreesOfCircle / (2.0 * std::acos(-1.0));
    if (result.hue < 0.0) {
        result.hue += degreesOfCircle;
    }
    return result;
}

QString ColorNames::inWords(const QColor& color)
{
    if (!color.isValid()) {
        return {};
    }
    const Perceived seen = perceived(color.toRgb());
    if (seen.chroma < grayChroma) {
        for (const GrayName& gray : grayNames) {
            if (seen.lightness < gray.end) {
                return translated(gray.name);
            }
        }
    }
    const HueName& hue = hueNameAt(seen.hue);
    const bool isDim = hue.dimName && seen.lightness < hue.dimLightness;
    return shade(seen, hue, translated(isDim ? hue.dimName : hue.name));
}

QString ColorNames::valueText(const std::optional<QColor>& color)
{
    if (!color) {
        return translated(QT_TRANSLATE_NOOP("ColorNames", "several colours"));
    }
    if (!color->isValid()) {
        return translated(QT_TRANSLATE_NOOP("ColorNames", "no colour"));
    }
    const QString opaque =
        translated(QT_TRANSLATE_NOOP("ColorNames", "%1, %2")).arg(inWords(*color), color->name());
    const int percent = qRound(color->alphaF() * 100.0);
    return color->alpha() == 255
               ? opaque
               : translated(QT_TRANSLATE_NOOP("ColorNames", "%1, %2 %")).arg(opaque).arg(percent);
}
