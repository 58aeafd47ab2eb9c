// Rendering the plane of the colours of one hue, and a step of its hue slider.

#include "Compare.h"

#include <UiComponents/ColorPlaneImage.h>
#include <UiComponents/ColorPlaneWidget.h>

#include <QCoreApplication>
#include <QPainter>
#include <QWidget>

#include <cstring>
#include <memory>

using namespace Bench;

namespace {

/// Each rendering takes another of the whole hues, whose planes do not all cost the same.
class Hues
{
public:
    double next() { return nextDegrees() / 360.0; }
    int nextDegrees() { return m_degrees = (m_degrees + 97) % 360; }

private:
    int m_degrees = 0;
};

void renderPlainly(QImage& image, double hue)
{
    const int width = image.width();
    const int height = image.height();
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            line[x] = QColor::fromHsvF(hue, static_cast<double>(x) / (width - 1),
                                       1.0 - static_cast<double>(y) / (height - 1), 1.0)
                          .rgb();
        }
    }
}

std::shared_ptr<QImage> square(int size)
{
    auto image = std::make_shared<QImage>(size, size, QImage::Format_RGB32);
    image->fill(Qt::black);
    return image;
}

/// The image as the widget makes it.
std::shared_ptr<QImage> planeImage(int size)
{
    auto image = std::make_shared<QImage>(ColorPlaneImage::makeImage({size, size}));
    image->fill(Qt::black);
    return image;
}

Side rendering(int size, ColorPlaneImage::Path path)
{
    return {[image = planeImage(size), hues = Hues(), path]() mutable {
        ColorPlaneImage::render(*image, hues.next(), path);
    }};
}

Pair againstPlainLoop(int size, ColorPlaneImage::Path path)
{
    return {rendering(size, path),
            {[image = square(size), hues = Hues()]() mutable { renderPlainly(*image, hues.next()); }}};
}

Pair againstMemset(int size)
{
    return {rendering(size, ColorPlaneImage::fastestPath()), {[image = square(size), value = 0]() mutable {
                std::memset(image->bits(), ++value & 0xFF, static_cast<std::size_t>(image->sizeInBytes()));
            }}};
}

/// The widget as it is without any of our care: each hue is rendered at once, pixel by pixel.
class PlainPlane : public QWidget
{
public:
    void setHue(int degrees)
    {
        QImage image(size(), QImage::Format_RGB32);
        renderPlainly(image, degrees / 360.0);
        m_plane = QPixmap::fromImage(image);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.drawPixmap(rect(), m_plane);
    }

private:
    QPixmap m_plane;
};

template <typename Plane>
Side hueStep(int size)
{
    auto plane = std::make_shared<Plane>();
    plane->resize(size, size);
    plane->show();
    plane->setHue(1);
    QCoreApplication::processEvents();
    return {[plane, hues = Hues()]() mutable {
        plane->setHue(hues.nextDegrees());
        QCoreApplication::processEvents();
    }};
}

template <int size>
Pair avx2()
{
    return againstPlainLoop(size, ColorPlaneImage::Path::Avx2);
}
template <int size>
Pair baseline()
{
    return againstPlainLoop(size, ColorPlaneImage::Path::Sse2);
}

/// A processor without a path has no row of it.
bool addRowOf(ColorPlaneImage::Path path, const char* name, Goal goal, Pair (*make)())
{
    return ColorPlaneImage::isSupported(path) && addRow(name, goal, make);
}

using ColorPlaneImage::Path;

[[maybe_unused]] const bool rows[] = {
    addRowOf(Path::Avx2, "ColorPlane/render 256 x 256 with AVX2, against the plain loop", atMost(1.0 / 45),
             avx2<256>),
    addRowOf(Path::Avx2, "ColorPlane/render 512 x 512 with AVX2, against the plain loop", atMost(1.0 / 50),
             avx2<512>),
    addRowOf(Path::Avx2, "ColorPlane/render 1024 x 1024 with AVX2, against the plain loop", atMost(1.0 / 50),
             avx2<1024>),
    addRowOf(Path::Avx2, "ColorPlane/render 2048 x 2048 with AVX2, against the plain loop", atMost(1.0 / 50),
             avx2<2048>),
    addRowOf(Path::Sse2, "ColorPlane/render 256 x 256 with SSE2, against the plain loop", atMost(1.0 / 20),
             baseline<256>),
    addRowOf(Path::Sse2, "ColorPlane/render 512 x 512 with SSE2, against the plain loop", atMost(1.0 / 20),
             baseline<512>),
    addRowOf(Path::Sse2, "ColorPlane/render 1024 x 1024 with SSE2, against the plain loop", atMost(1.0 / 20),
             baseline<1024>),
};

UIC_COMPARE("ColorPlane/render 512 x 512 on any processor, against the plain loop", noGoal(),
            [] { return againstPlainLoop(512, Path::Plain); });
UIC_COMPARE("ColorPlane/render 1024 x 1024, against memset of its bytes", atMost(1.0 / 0.15),
            [] { return againstMemset(1024); });
UIC_COMPARE("ColorPlane/hue step to the painted plane, 512 x 512, against the plain loop", atMost(1.0 / 33),
            [] {
                return Pair{hueStep<ColorPlaneWidget>(512), hueStep<PlainPlane>(512)};
            });

} // namespace
