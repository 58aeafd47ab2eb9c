// Internal: renders the plane of ColorPlaneWidget.

#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QSize>

/**
 * An image of all colours of one hue: saturation grows to the right, value grows upwards.
 *
 * At the size W × H its pixel (x, y) is
 *
 *     QColor::fromHsvF(hue, x / (W - 1), 1 - y / (H - 1), 1.0).rgb()
 *
 * bit for bit. Hues are from 0.0 to 1.0, both of which are red. In an image one pixel wide or high the
 * fractions are 0 / 0, and the colours are what QColor makes of that.
 */
namespace ColorPlaneImage {

/// One pixel. @p at is inside @p size.
QRgb pixel(double hue, const QSize& size, const QPoint& at);

/// The instructions to render with; all give the same image.
enum class Path {
    Plain, ///< on every processor
    Sse2,  ///< on every x86-64
    Avx2,  ///< with AVX2 and FMA
};

/// Whether this processor and this build support @p path.
bool isSupported(Path path);

/// The fastest supported path.
Path fastestPath();

/// An uninitialised image, aligned for render(). Null where there is no memory for it.
QImage makeImage(const QSize& size);

/// Renders into @p image, which has Format_RGB32 or is null. @p path must be supported.
void render(QImage& image, double hue, Path path = fastestPath());

} // namespace ColorPlaneImage
