#include "LayerBlending.h"

#include <QPainter>

#include <algorithm>
#include <optional>

namespace {

/// Channels from 0 to 1.
struct Rgb
{
    double red = 0;
    double green = 0;
    double blue = 0;
};

using Blend = Rgb (*)(const Rgb& below, const Rgb& layer);

std::optional<QPainter::CompositionMode> compositionMode(BlendingMode mode)
{
    switch (mode) {
    case BlendingMode::Overlay:
        return QPainter::CompositionMode_Overlay;
    case BlendingMode::Lighten:
        return QPainter::CompositionMode_Lighten;
    case BlendingMode::ColorDodge:
        return QPainter::CompositionMode_ColorDodge;
    case BlendingMode::SourceOver:
        return QPainter::CompositionMode_SourceOver;
    case BlendingMode::Screen:
        return QPainter::CompositionMode_Screen;
    case BlendingMode::Difference:
        return QPainter::CompositionMode_Difference;
    case BlendingMode::Multiply:
        return QPainter::CompositionMode_Multiply;
    case BlendingMode::Darken:
        return QPainter::CompositionMode_Darken;
    case BlendingMode::ColorBurn:
        return QPainter::CompositionMode_ColorBurn;
    case BlendingMode::HardLight:
        return QPainter::CompositionMode_HardLight;
    case BlendingMode::SoftLight:
        return QPainter::CompositionMode_SoftLight;
    case BlendingMode::Exclusion:
        return QPainter::CompositionMode_Exclusion;
    case BlendingMode::Color:
    case BlendingMode::LinearDodge: // CompositionMode_Plus adds before it regards the layer's alpha
        break;
    }
    return std::nullopt;
}

double luminosity(const Rgb& color)
{
    return 0.3 * color.red + 0.59 * color.green + 0.11 * color.blue;
}

/// Brings the channels back into their range without a change of luminosity.
Rgb clipped(const Rgb& color)
{
    const double grey = luminosity(color);
    const double lowest = std::min({color.red, color.green, color.blue});
    const double highest = std::max({color.red, color.green, color.blue});
    double factor = 1;
    if (lowest < 0) {
        factor = std::min(factor, grey / (grey - lowest));
    }
    if (highest > 1) {
        factor = std::min(factor, (1 - grey) / (highest - grey));
    }
    return {grey + (color.red - grey) * factor, grey + (color.green - grey) * factor,
            grey + (color.blue - grey) * factor};
}

Rgb color(const Rgb& below, const Rgb& layer)
{
    const double shift = luminosity(below) - luminosity(layer);
    return clipped({layer.red + shift, layer.green + shift, layer.blue + shift});
}

Rgb linearDodge(const Rgb& below, const Rgb& layer)
{
    return {std::min(1.0, below.red + layer.red), std::min(1.0, below.green + layer.green),
            std::min(1.0, below.blue + layer.blue)};
}

Rgb channels(QRgb pixel)
{
    return {qRed(pixel) / 255.0, qGreen(pixel) / 255.0, qBlue(pixel) / 255.0};
}

int mixed(double below, double blend, double alpha)
{
    return qRound(255 * (below + alpha * (blend - below)));
}

void blendByHand(QImage& picture, const QImage& layer, Blend blend, double opacity)
{
    const QImage straight = layer.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* const belowLine = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const auto* const layerLine = reinterpret_cast<const QRgb*>(straight.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const Rgb below = channels(belowLine[x]);
            const Rgb result = blend(below, channels(layerLine[x]));
            const double alpha = qAlpha(layerLine[x]) / 255.0 * opacity;
            belowLine[x] = qRgb(mixed(below.red, result.red, alpha), mixed(below.green, result.green, alpha),
                                mixed(below.blue, result.blue, alpha));
        }
    }
}

} // namespace

QImage blended(const QImage& below, const QImage& layer, BlendingMode mode, double opacity)
{
    QImage picture = below.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (const auto composition = compositionMode(mode)) {
        QPainter painter(&picture);
        painter.setCompositionMode(*composition);
        painter.setOpacity(opacity);
        painter.drawImage(QPoint(), layer);
    } else {
        blendByHand(picture, layer, mode == BlendingMode::Color ? color : linearDodge, opacity);
    }
    return picture;
}
