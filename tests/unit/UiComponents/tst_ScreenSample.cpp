#include "TestMain.h"

#include <UiComponents/ScreenSample.h>

#include <QPainter>
#include <QScreen>

using ScreenSample::ScreenArea;

Q_DECLARE_METATYPE(ScreenSample::ScreenArea)

namespace {

constexpr QSize loupe(ScreenSample::loupePixels, ScreenSample::loupePixels);

/// As QScreen::grabWindow() scales a corner.
QPoint scaled(const QPoint& point, qreal ratio)
{
    return {qRound(point.x() * ratio), qRound(point.y() * ratio)};
}

/// A window of pixels that all differ, for the off-screen platform to read.
class PixelWindow : public QWidget
{
public:
    static QColor pixelAt(const QPoint& point) { return {point.x() % 256, point.y() % 256, 77}; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QImage image(size(), QImage::Format_RGB32);
        for (int y = 0; y < height(); ++y) {
            for (int x = 0; x < width(); ++x) {
                image.setPixelColor(x, y, pixelAt({x, y}));
            }
        }
        QPainter(this).drawImage(0, 0, image);
    }
};

} // namespace

class tst_ScreenSample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void grabArea_data();
    void grabArea();
    void centerPixelIsThatOfASmallGrab_data();
    void centerPixelIsThatOfASmallGrab();
    void centerPixelOfWholeScales();

    void grabReadsTheScreen();
    void grabOfNothingIsNull();
    void outsideOfAllScreensIsTransparent_data();
    void outsideOfAllScreensIsTransparent();
    void pictureInsideStaysTheSame();

    void overlayIsTakenOff_data();
    void overlayIsTakenOff();
    void overlayIsTakenOffEveryValue();
};

void tst_ScreenSample::grabArea_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("one pixel") << QRect(0, 0, 800, 600) << QPoint(10, 20) << QSize(1, 1)
                               << QRect(10, 20, 1, 1);
    QTest::newRow("loupe") << QRect(0, 0, 800, 600) << QPoint(10, 20) << loupe << QRect(4, 14, 13, 13);
    QTest::newRow("even size") << QRect(0, 0, 800, 600) << QPoint(10, 20) << QSize(4, 2)
                               << QRect(8, 19, 4, 2);
    QTest::newRow("corner") << QRect(0, 0, 800, 600) << QPoint(0, 0) << loupe << QRect(-6, -6, 13, 13);
    QTest::newRow("second screen on the right")
        << QRect(1280, 100, 800, 600) << QPoint(1290, 120) << loupe << QRect(4, 14, 13, 13);
    QTest::newRow("screen left and above")
        << QRect(-800, -600, 800, 600) << QPoint(-1, -600) << loupe << QRect(793, -6, 13, 13);
}

void tst_ScreenSample::grabArea()
{
    QFETCH(QRect, screen);
    QFETCH(QPoint, point);
    QFETCH(QSize, size);
    QFETCH(QRect, expected);
    QCOMPARE(ScreenSample::grabArea(point, size, screen), expected);
}

void tst_ScreenSample::centerPixelIsThatOfASmallGrab_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QRect>("screen");
    for (const qreal ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0}) {
        QTest::addRow("%g", ratio) << ratio << QRect(0, 0, 800, 600);
        QTest::addRow("%g, left and above", ratio) << ratio << QRect(-801, -601, 801, 601);
    }
}

// Both pictures begin at a pixel of the screen that Qt has rounded by itself.
void tst_ScreenSample::centerPixelIsThatOfASmallGrab()
{
    QFETCH(qreal, ratio);
    QFETCH(QRect, screen);
    for (int i = 0; i < 100; ++i) {
        const QPoint point = screen.topLeft() + QPoint(i, 2 * i);
        const QPoint small = scaled(ScreenSample::grabArea(point, {1, 1}, screen).topLeft(), ratio);
        const QPoint large = scaled(ScreenSample::grabArea(point, loupe, screen).topLeft(), ratio);
        const QPoint center = ScreenSample::centerPixel(point, loupe, screen, ratio);
        QCOMPARE(large + center, small);
        QVERIFY(QRect({0, 0}, (QSizeF(loupe) * ratio).toSize()).contains(center));
    }
}

void tst_ScreenSample::centerPixelOfWholeScales()
{
    const QRect screen(0, 0, 800, 600);
    QCOMPARE(ScreenSample::centerPixel({50, 51}, loupe, screen, 1.0), QPoint(6, 6));
    QCOMPARE(ScreenSample::centerPixel({50, 51}, loupe, screen, 2.0), QPoint(12, 12));
    QCOMPARE(ScreenSample::centerPixel({50, 51}, {1, 1}, screen, 2.0), QPoint(0, 0));
}

void tst_ScreenSample::grabReadsTheScreen()
{
    PixelWindow window;
    window.setGeometry(100, 50, 200, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QScreen& screen = *QGuiApplication::primaryScreen();
    const QPoint point(180, 120);
    const QImage picture = ScreenSample::grab(screen, point, loupe).toImage();
    QCOMPARE(picture.size(), loupe);
    for (int y = 0; y < loupe.height(); ++y) {
        for (int x = 0; x < loupe.width(); ++x) {
            QCOMPARE(picture.pixelColor(x, y), PixelWindow::pixelAt(QPoint(80 - 6 + x, 70 - 6 + y)));
        }
    }
    const std::optional<QColor> color = ScreenSample::colorAt(screen, point);
    QVERIFY(color);
    QCOMPARE(*color, ScreenSample::withoutOverlay(picture.pixelColor(6, 6)));
}

// Not black.
void tst_ScreenSample::grabOfNothingIsNull()
{
    QScreen& screen = *QGuiApplication::primaryScreen();
    QVERIFY(ScreenSample::grab(screen, QPoint(10, 10), loupe).isNull());
    QVERIFY(!ScreenSample::colorAt(screen, QPoint(10, 10)));
}

void tst_ScreenSample::outsideOfAllScreensIsTransparent_data()
{
    QTest::addColumn<QVector<ScreenArea>>("screens");
    QTest::addColumn<int>("screen");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QRect>("inside"); // pixels of the picture

    const ScreenArea single{{0, 0, 800, 600}, 1.0};
    using Areas = QVector<ScreenArea>;
    QTest::newRow("top left corner") << Areas{single} << 0 << QPoint(0, 0) << QRect(6, 6, 7, 7);
    QTest::newRow("bottom right corner") << Areas{single} << 0 << QPoint(799, 599) << QRect(0, 0, 7, 7);
    QTest::newRow("right edge") << Areas{single} << 0 << QPoint(797, 300) << QRect(0, 0, 9, 13);
    QTest::newRow("scale 2") << Areas{{{0, 0, 400, 300}, 2.0}} << 0 << QPoint(0, 299) << QRect(12, 0, 14, 14);
    QTest::newRow("scale 1.5") << Areas{{{0, 0, 400, 300}, 1.5}} << 0 << QPoint(0, 100)
                               << QRect(9, 0, 11, 20);
    const ScreenArea right{{800, 100, 640, 480}, 1.0};
    QTest::newRow("neighbour") << Areas{single, right} << 0 << QPoint(799, 300) << QRect(0, 0, 13, 13);
    QTest::newRow("neighbour that is lower")
        << Areas{single, right} << 1 << QPoint(800, 100) << QRect(0, 0, 13, 13);
    const ScreenArea left{{-640, -480, 640, 480}, 1.0};
    QTest::newRow("screen left and above")
        << Areas{single, left} << 1 << QPoint(-640, -300) << QRect(6, 0, 7, 13);
    // A scaled screen takes more physical pixels than its size, up to where its neighbour begins.
    QTest::newRow("neighbour of a scaled screen") << Areas{{{0, 0, 400, 300}, 2.0}, {{800, 0, 640, 600}, 1.0}}
                                                  << 0 << QPoint(399, 150) << QRect(0, 0, 26, 26);
}

void tst_ScreenSample::outsideOfAllScreensIsTransparent()
{
    QFETCH(QVector<ScreenArea>, screens);
    QFETCH(int, screen);
    QFETCH(QPoint, point);
    QFETCH(QRect, inside);
    const qreal ratio = screens.at(screen).ratio;
    QPixmap picture((QSizeF(loupe) * ratio).toSize());
    picture.fill(Qt::red);
    picture.setDevicePixelRatio(ratio);

    const QPixmap result = ScreenSample::withoutOutside(picture, point, loupe, screens, screen);
    QCOMPARE(result.size(), picture.size());
    QCOMPARE(result.devicePixelRatio(), ratio);
    const QImage image = result.toImage();
    const bool isCutByTheOther = inside == QRect(0, 0, 13, 13) && screen == 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            bool expected = inside.contains(x, y);
            if (isCutByTheOther) {
                // On the first screen's height left of its own left edge, and on nothing above itself.
                expected = x < 6 || y >= 6;
            }
            QVERIFY2(image.pixelColor(x, y) == QColor(expected ? Qt::red : Qt::transparent),
                     qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
        }
    }
}

// The usual case costs nothing.
void tst_ScreenSample::pictureInsideStaysTheSame()
{
    QPixmap picture(13, 13);
    picture.fill(Qt::red);
    const QVector<ScreenArea> screens = {{{0, 0, 800, 600}, 1.0}};
    QCOMPARE(ScreenSample::withoutOutside(picture, {6, 6}, loupe, screens, 0).cacheKey(), picture.cacheKey());
    QCOMPARE(ScreenSample::withoutOutside(picture, {793, 593}, loupe, screens, 0).cacheKey(),
             picture.cacheKey());
    QVERIFY(ScreenSample::withoutOutside(QPixmap(), {0, 0}, loupe, screens, 0).isNull());
}

void tst_ScreenSample::overlayIsTakenOff_data()
{
    QTest::addColumn<QColor>("seen");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("black") << QColor(0, 0, 0) << QColor(0, 0, 0);
    QTest::newRow("white below the overlay") << QColor(254, 254, 254) << QColor(255, 255, 255);
    QTest::newRow("dark") << QColor(1, 60, 126) << QColor(1, 60, 126);
    QTest::newRow("light") << QColor(128, 199, 253) << QColor(129, 200, 254);
    QTest::newRow("becomes opaque") << QColor(10, 20, 30, 40) << QColor(10, 20, 30);
}

void tst_ScreenSample::overlayIsTakenOff()
{
    QFETCH(QColor, seen);
    QFETCH(QColor, expected);
    const QColor color = ScreenSample::withoutOverlay(seen);
    QCOMPARE(color.name(QColor::HexArgb), expected.name(QColor::HexArgb));
    QCOMPARE(color.alphaF(), 1.0);
    QVERIFY(qAbs(color.redF() - seen.redF() * 255.0 / 254.0) < 1e-4);
    QVERIFY(qAbs(color.greenF() - seen.greenF() * 255.0 / 254.0) < 1e-4);
    QVERIFY(qAbs(color.blueF() - seen.blueF() * 255.0 / 254.0) < 1e-4);
}

void tst_ScreenSample::overlayIsTakenOffEveryValue()
{
    for (int value = 0; value < 256; ++value) {
        const int seen = value < 128 ? value : value - 1;
        const int expected = value == 127 ? 128 : value;
        const QColor color = ScreenSample::withoutOverlay(QColor(seen, seen, seen));
        QCOMPARE(color.red(), expected);
        QCOMPARE(color.green(), expected);
        QCOMPARE(color.blue(), expected);
    }
    // Only where nothing has blended the overlay with it.
    const QColor brighter = ScreenSample::withoutOverlay(QColor(255, 255, 255));
    QCOMPARE(brighter.spec(), QColor::ExtendedRgb);
    QVERIFY(brighter.redF() > 1.0);
    QCOMPARE(brighter.name(), QStringLiteral("#ffffff"));
}

UIC_TEST_MAIN(tst_ScreenSample)
#include "tst_ScreenSample.moc"
