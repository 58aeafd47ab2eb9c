// Internal: the saturation and value square of one hue, for ColorPlaneWidget.

#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QSize>

/**
 * The picture that shows all colours of one hue: saturation grows to the right, value grows upwards.
 *
 * Its pixel (x, y) in a size of W × H is
 *
 *     QColor::fromHsvF(hue, x / (W - 1), 1 - y / (H - 1), 1.0).rgb()
 *
 * bit for bit. A hue is a fraction from 0.0 to 1.0, both of which are red. In a picture one pixel wide or
 * high these fractions are 0 / 0, and its colours are what QColor makes of that.
 */
namespace HsvPlane {

/// One pixel, by the formula. @p at lies inside of @p size.
QRgb pixel(double hue, const QSize& size, const QPoint& at);

/// The ways to make the whole picture; all give the same one.
enum class Path {
    Plain, ///< on every processor
    Sse2,  ///< on every x86-64
    Avx2,  ///< with AVX2 and FMA
};

/// Whether this processor can take @p path, and this program was built with it.
bool isSupported(Path path);

/// The fastest of the supported ones.
Path fastestPath();

/// An image without content that render() fills the fastest. Null where there is no memory for it.
QImage makeImage(const QSize& size);

/// Fills @p image, which is of Format_RGB32 or null, with the picture in the image's size. @p path must be
/// supported.
void render(QImage& image, double hue, Path path = fastestPath());

} // namespace HsvPlane
