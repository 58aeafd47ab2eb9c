#include "TestMain.h"

#include <gallery/LayerBlending.h>

namespace {

QImage plain(const QColor& color)
{
    QImage image(3, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/// Of rounding, in each channel: Qt rounds every product of a formula.
bool isNear(const QColor& one, const QColor& other)
{
    const int max = 2;
    return qAbs(one.red() - other.red()) <= max && qAbs(one.green() - other.green()) <= max &&
           qAbs(one.blue() - other.blue()) <= max && one.alpha() == other.alpha();
}

} // namespace

class tst_LayerBlending : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modes_data()
    {
        QTest::addColumn<BlendingMode>("mode");
        QTest::addColumn<QColor>("expected");

        // Below is (0.8, 0.4, 0.2), the layer (0.4, 0.6, 0.2).
        QTest::newRow("SourceOver") << BlendingMode::SourceOver << QColor(102, 153, 51);
        QTest::newRow("Multiply") << BlendingMode::Multiply << QColor(82, 61, 10);
        QTest::newRow("Screen") << BlendingMode::Screen << QColor(224, 194, 92);
        QTest::newRow("Overlay") << BlendingMode::Overlay << QColor(194, 122, 20);
        QTest::newRow("HardLight") << BlendingMode::HardLight << QColor(163, 133, 20);
        QTest::newRow("Lighten") << BlendingMode::Lighten << QColor(204, 153, 51);
        QTest::newRow("Darken") << BlendingMode::Darken << QColor(102, 102, 51);
        QTest::newRow("Difference") << BlendingMode::Difference << QColor(102, 51, 0);
        QTest::newRow("Exclusion") << BlendingMode::Exclusion << QColor(143, 133, 82);
        QTest::newRow("ColorDodge") << BlendingMode::ColorDodge << QColor(255, 255, 64);
        QTest::newRow("ColorBurn") << BlendingMode::ColorBurn << QColor(128, 0, 0);
        QTest::newRow("SoftLight") << BlendingMode::SoftLight << QColor(196, 114, 27);
        QTest::newRow("LinearDodge") << BlendingMode::LinearDodge << QColor(255, 255, 102);
        // Luminosity 0.498 below, 0.496 in the layer.
        QTest::newRow("Color") << BlendingMode::Color << QColor(103, 154, 52);
    }

    void modes()
    {
        QFETCH(BlendingMode, mode);
        QFETCH(QColor, expected);
        const QColor found =
            blended(plain(QColor(204, 102, 51)), plain(QColor(102, 153, 51)), mode).pixelColor(1, 1);
        QVERIFY2(isNear(found, expected), qPrintable(found.name()));
    }

    void transparentLayerChangesNothing_data()
    {
        QTest::addColumn<int>("number");
        for (int number = 0; number < 14; ++number) {
            QTest::addRow("%d", number) << number;
        }
    }

    void transparentLayerChangesNothing()
    {
        QFETCH(int, number);
        const QColor below(204, 102, 51);
        const auto mode = static_cast<BlendingMode>(number);
        const QColor byAlpha = blended(plain(below), plain(Qt::transparent), mode).pixelColor(1, 1);
        const QColor byOpacity = blended(plain(below), plain(QColor(102, 153, 51)), mode, 0).pixelColor(1, 1);
        QVERIFY2(isNear(byAlpha, below), qPrintable(byAlpha.name()));
        QVERIFY2(isNear(byOpacity, below), qPrintable(byOpacity.name()));
    }

    void alphaAndOpacityMix_data() { transparentLayerChangesNothing_data(); }

    // Half of a blended colour is half way from what lies below, whatever the mode, also where it is clipped.
    void alphaAndOpacityMix()
    {
        QFETCH(int, number);
        const auto mode = static_cast<BlendingMode>(number);
        const QColor below(204, 102, 51);
        const QColor full = blended(plain(below), plain(QColor(102, 153, 51)), mode).pixelColor(1, 1);
        const QColor half((below.red() + full.red()) / 2, (below.green() + full.green()) / 2,
                          (below.blue() + full.blue()) / 2);
        const QColor byAlpha = blended(plain(below), plain(QColor(102, 153, 51, 128)), mode).pixelColor(1, 1);
        const QColor byOpacity =
            blended(plain(below), plain(QColor(102, 153, 51)), mode, 0.5).pixelColor(1, 1);
        QVERIFY2(isNear(byAlpha, half), qPrintable(byAlpha.name()));
        QVERIFY2(isNear(byOpacity, half), qPrintable(byOpacity.name()));
    }

    void colorKeepsLuminosity()
    {
        const auto luminosity = [](const QColor& color) {
            return 0.3 * color.red() + 0.59 * color.green() + 0.11 * color.blue();
        };
        for (const QColor& below :
             {QColor(0, 0, 0), QColor(30, 30, 30), QColor(250, 240, 255), QColor(0, 0, 255)}) {
            for (const QColor& layer : {QColor(255, 0, 0), QColor(0, 255, 0), QColor(128, 128, 128)}) {
                const QColor found =
                    blended(plain(below), plain(layer), BlendingMode::Color).pixelColor(0, 0);
                QVERIFY2(qAbs(luminosity(found) - luminosity(below)) <= 1, qPrintable(found.name()));
            }
        }
    }

    void everyPixelIsBlended()
    {
        for (const BlendingMode mode :
             {BlendingMode::LinearDodge, BlendingMode::Color, BlendingMode::Multiply}) {
            const QImage picture = blended(plain(QColor(204, 102, 51)), plain(QColor(0, 0, 255)), mode);
            QCOMPARE(picture.size(), QSize(3, 2));
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    QCOMPARE(picture.pixel(x, y), picture.pixel(0, 0));
                }
            }
            QVERIFY(picture.pixelColor(0, 0) != QColor(204, 102, 51));
        }
    }

    void emptyPictures()
    {
        QVERIFY(blended(QImage(), QImage(), BlendingMode::Color).isNull());
        QVERIFY(blended(QImage(), QImage(), BlendingMode::LinearDodge).isNull());
    }
};

UIC_TEST_MAIN(tst_LayerBlending)
#include "tst_LayerBlending.moc"
