#include "TestMain.h"

#include <UiComponents/ColorPlaneImage.h>

#include <algorithm>
#include <cmath>
#include <random>

Q_DECLARE_METATYPE(ColorPlaneImage::Path)

using ColorPlaneImage::Path;

namespace {

/// Not a function of the tested unit: this loop is what it promises to equal.
QImage plainPlane(double hue, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            line[x] = QColor::fromHsvF(hue, static_cast<double>(x) / (width - 1),
                                       1.0 - static_cast<double>(y) / (height - 1), 1.0)
                          .rgb();
        }
    }
    return image;
}

QImage rendered(double hue, int width, int height, Path path)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(0x12345678);
    ColorPlaneImage::render(image, hue, path);
    return image;
}

const std::vector<std::pair<Path, const char*>>& paths()
{
    static const std::vector<std::pair<Path, const char*>> all{
        {Path::Plain, "plain"}, {Path::Sse2, "SSE2"}, {Path::Avx2, "AVX2"}};
    return all;
}

QString where(const QImage& got, const QImage& expected)
{
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            if (got.pixel(x, y) != expected.pixel(x, y)) {
                return QStringLiteral("(%1, %2): %3 instead of %4")
                    .arg(x)
                    .arg(y)
                    .arg(got.pixel(x, y), 0, 16)
                    .arg(expected.pixel(x, y), 0, 16);
            }
        }
    }
    return QStringLiteral("another format or size");
}

/// Empty if every path that this processor has gives the plain loop's plane.
QString difference(double hue, int width, int height)
{
    const QImage expected = plainPlane(hue, width, height);
    for (const auto& [path, name] : paths()) {
        if (!ColorPlaneImage::isSupported(path)) {
            continue;
        }
        const QImage got = rendered(hue, width, height, path);
        if (got != expected) {
            return QStringLiteral("%1, hue %2, %3 x %4: ")
                       .arg(QLatin1String(name))
                       .arg(hue, 0, 'g', 17)
                       .arg(width)
                       .arg(height) +
                   where(got, expected);
        }
    }
    return {};
}

std::vector<double> randomHues(int count)
{
    std::mt19937 generator(20);
    std::uniform_real_distribution<double> hues(0.0, 1.0);
    std::vector<double> result(static_cast<std::size_t>(count));
    std::generate(result.begin(), result.end(), [&] { return hues(generator); });
    return result;
}

// Compared as text, so that a difference says where it is.
#define COMPARE_WITH_PLAIN(hue, width, height) QCOMPARE(difference(hue, width, height), QString())

} // namespace

class tst_ColorPlaneImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void supportedPaths()
    {
        QVERIFY(ColorPlaneImage::isSupported(Path::Plain));
        QVERIFY(ColorPlaneImage::isSupported(ColorPlaneImage::fastestPath()));
#if defined(__x86_64__) && defined(__GNUC__)
        QVERIFY(ColorPlaneImage::isSupported(Path::Sse2));
        const bool avx2 = __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("fma") != 0;
        QCOMPARE(ColorPlaneImage::isSupported(Path::Avx2), avx2);
        QVERIFY(ColorPlaneImage::fastestPath() == (avx2 ? Path::Avx2 : Path::Sse2));
#else
        QVERIFY(ColorPlaneImage::fastestPath() == Path::Plain);
#endif
    }

    void corners()
    {
        const QImage image = rendered(120 / 360.0, 64, 32, ColorPlaneImage::fastestPath());
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(63, 0), QColor(Qt::green));
        QCOMPARE(image.pixelColor(0, 31), QColor(Qt::black));
        QCOMPARE(image.pixelColor(63, 31), QColor(Qt::black));
        QCOMPARE(image.pixelColor(32, 31), QColor(Qt::black));
        QVERIFY(image.pixelColor(32, 0).saturation() > image.pixelColor(31, 0).saturation());
        QVERIFY(image.pixelColor(63, 15).value() > image.pixelColor(63, 16).value());
    }

    void pixelIsTheFormula()
    {
        const QSize size(37, 23);
        for (const double hue : randomHues(20)) {
            const QImage expected = plainPlane(hue, size.width(), size.height());
            for (int y = 0; y < size.height(); ++y) {
                for (int x = 0; x < size.width(); ++x) {
                    QCOMPARE(ColorPlaneImage::pixel(hue, size, {x, y}), expected.pixel(x, y));
                }
            }
        }
    }

    // The sizes differ from hue to hue, so that saturations and values do too.
    void everyIntegerHue()
    {
        for (int degrees = 0; degrees <= 360; ++degrees) {
            COMPARE_WITH_PLAIN(degrees / 360.0, 64 + degrees % 89, 64 + degrees % 61);
            // The sizes at which a byte's steps and the plane's meet most often.
            COMPARE_WITH_PLAIN(degrees / 360.0, 256, 52);
        }
    }

    void randomHuesOfEverySector()
    {
        const std::vector<double> hues = randomHues(1000);
        for (std::size_t i = 0; i < hues.size(); ++i) {
            COMPARE_WITH_PLAIN(hues[i], 60 + static_cast<int>(i % 97), 60 + static_cast<int>(i % 71));
        }
    }

    void everyWidth()
    {
        for (int width = 2; width <= 2048; ++width) {
            COMPARE_WITH_PLAIN(std::fmod(width * 0.618, 1.0), width, 5);
        }
    }

    void everyHeight()
    {
        for (int height = 2; height <= 2048; ++height) {
            COMPARE_WITH_PLAIN(height % 361 / 360.0, 5, height);
        }
    }

    void squares_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<double>("hue");
        QTest::newRow("2") << 2 << 0.1;
        QTest::newRow("3") << 3 << 0.9;
        QTest::newRow("255, yellow") << 255 << 60 / 360.0;
        QTest::newRow("256, orange") << 256 << 30 / 360.0;
        QTest::newRow("257, red") << 257 << 0.0;
        QTest::newRow("511") << 511 << 0.7777;
        QTest::newRow("512, violet") << 512 << 270 / 360.0;
        QTest::newRow("1023") << 1023 << 0.4321;
        QTest::newRow("1024, azure") << 1024 << 210 / 360.0;
        QTest::newRow("2047") << 2047 << 0.2345;
        QTest::newRow("2048, 359 degrees") << 2048 << 359 / 360.0;
    }

    void squares()
    {
        QFETCH(int, size);
        QFETCH(double, hue);
        COMPARE_WITH_PLAIN(hue, size, size);
    }

    void narrowWidths_data()
    {
        QTest::addColumn<int>("width");
        for (int width = 2; width <= 70; ++width) {
            QTest::addRow("%d wide", width) << width;
        }
    }

    // Around the widths of a vector and of a block of them, in each of the six sectors.
    void narrowWidths()
    {
        QFETCH(int, width);
        for (int sector = 0; sector < 6; ++sector) {
            COMPARE_WITH_PLAIN((sector + 0.37) / 6.0, width, 67);
        }
    }

    // Half-way between two primaries many exact values lie right between two bytes, and only the rounding
    // errors of QColor's own arithmetic say which one it is. A plane that never met one would prove nothing.
    void exactHalves()
    {
        constexpr int size = 256;
        int halves = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                // The channel between is (255 - y) (510 - x) / 510.
                halves += (255 - y) * (510 - x) % 510 == 255 ? 1 : 0;
            }
        }
        QVERIFY2(halves > 100, qPrintable(QString::number(halves)));
        for (int sector = 0; sector < 6; ++sector) {
            COMPARE_WITH_PLAIN((sector + 0.5) / 6.0, size, size);
        }
    }

    void onePixelWideOrHigh_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("1 x 1") << QSize(1, 1);
        QTest::newRow("1 x 2") << QSize(1, 2);
        QTest::newRow("2 x 1") << QSize(2, 1);
        QTest::newRow("1 x 100") << QSize(1, 100);
        QTest::newRow("100 x 1") << QSize(100, 1);
        QTest::newRow("1 x 2048") << QSize(1, 2048);
    }

    void onePixelWideOrHigh()
    {
        QFETCH(QSize, size);
        COMPARE_WITH_PLAIN(0.3, size.width(), size.height());
        COMPARE_WITH_PLAIN(1.0, size.width(), size.height());
        const QImage expected = plainPlane(0.3, size.width(), size.height());
        QCOMPARE(ColorPlaneImage::pixel(0.3, size, {0, 0}), expected.pixel(0, 0));
    }

    void nullImage()
    {
        QImage image;
        for (const auto& [path, name] : paths()) {
            if (ColorPlaneImage::isSupported(path)) {
                ColorPlaneImage::render(image, 0.5, path);
                QVERIFY2(image.isNull(), name);
            }
        }
    }

    void fullCircleIsRed()
    {
        for (const auto& [path, name] : paths()) {
            if (ColorPlaneImage::isSupported(path)) {
                QVERIFY2(rendered(1.0, 50, 40, path) == rendered(0.0, 50, 40, path), name);
            }
        }
        COMPARE_WITH_PLAIN(1.0, 50, 40);
    }

    void writesNothingBesideTheImage_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        for (const int width : {2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 65}) {
            QTest::addRow("%d wide", width) << width << 3;
        }
        // Large enough to be written past the caches, and rows that start at every alignment.
        QTest::addRow("streamed") << 1501 << 1400;
        QTest::addRow("streamed, narrower than a vector") << 7 << 300001;
        QTest::addRow("streamed, as wide as a vector") << 16 << 131073;
    }

    void writesNothingBesideTheImage()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        constexpr int margin = 83;
        constexpr QRgb untouched = 0x01020304;
        for (const auto& [path, name] : paths()) {
            if (!ColorPlaneImage::isSupported(path)) {
                continue;
            }
            const int stride = width + margin;
            std::vector<QRgb> pixels(std::size_t(margin + height * stride), untouched);
            QImage image(reinterpret_cast<uchar*>(pixels.data() + margin), width, height, stride * 4,
                         QImage::Format_RGB32);
            ColorPlaneImage::render(image, 0.4, path);
            QVERIFY2(image == plainPlane(0.4, width, height), name);
            for (std::size_t i = 0; i < pixels.size(); ++i) {
                const int column = (static_cast<int>(i) - margin) % stride;
                if (static_cast<int>(i) < margin || column >= width) {
                    QVERIFY2(pixels[i] == untouched, name);
                }
            }
        }
    }

    void madeImageIsAsAnyOther_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("invalid") << QSize();
        QTest::newRow("empty") << QSize(0, 5);
        QTest::newRow("1 x 1") << QSize(1, 1);
        QTest::newRow("small") << QSize(37, 20);
        QTest::newRow("streamed") << QSize(1501, 1400);
        QTest::newRow("more than memory can be addressed") << QSize(INT_MAX, INT_MAX);
    }

    void madeImageIsAsAnyOther()
    {
        QFETCH(QSize, size);
        QImage image = ColorPlaneImage::makeImage(size);
        QCOMPARE(image.isNull(), QImage(size, QImage::Format_RGB32).isNull());
        if (image.isNull()) {
            return;
        }
        QCOMPARE(image.size(), size);
        QCOMPARE(image.format(), QImage::Format_RGB32);
        const uchar* memory = image.constBits();
        for (const auto& [path, name] : paths()) {
            if (ColorPlaneImage::isSupported(path)) {
                ColorPlaneImage::render(image, 0.7, path);
                QVERIFY2(image == plainPlane(0.7, size.width(), size.height()), name);
            }
        }
        // Rendering into it never copied it.
        QCOMPARE(image.constBits(), memory);
    }
};

UIC_TEST_MAIN(tst_ColorPlaneImage)
#include "tst_ColorPlaneImage.moc"
