#include "FakePlatform.h"
#include "TestMain.h"

#include <UiComponents/ScreenGrabber.h>

Q_DECLARE_METATYPE(ScreenSource::Grabs)

namespace {

const QRgb loupeColor = qRgb(255, 0, 255);

/// A screen whose compositor is as late as a test wants it: what it shows is set, and so is the time.
class Screen : public ScreenSource
{
public:
    explicit Screen(Grabs grabs = Grabs::OnceComposed)
        : kind(grabs)
    {
    }

    static QRgb below(const QPoint& point)
    {
        return qRgb((point.x() * 7 + 1) % 256, (point.y() * 5 + 2) % 256, (point.x() + point.y()) % 256);
    }
    static QRgb covered(QRgb color)
    {
        const auto dark = [](int channel) { return channel < 128 ? channel : channel - 1; };
        return qRgb(dark(qRed(color)), dark(qGreen(color)), dark(qBlue(color)));
    }

    Grabs grabs() const override { return kind; }

    QImage grab(QScreen& /*screen*/, const QRect& area) override
    {
        grabbed.append(area);
        if (isBlind) {
            return {};
        }
        QImage image(area.size(), QImage::Format_RGB32);
        for (int y = 0; y < area.height(); ++y) {
            for (int x = 0; x < area.width(); ++x) {
                image.setPixel(x, y, shownAt(area.topLeft() + QPoint(x, y)));
            }
        }
        return image;
    }

    qint64 now() const override { return time; }

    QRgb shownAt(const QPoint& point) const
    {
        if (loupe.contains(point)) {
            return loupeColor;
        }
        return hasOverlay ? covered(bare(point)) : bare(point);
    }
    QRgb bare(const QPoint& point) const { return hasChanged ? ~below(point) | 0xff000000U : below(point); }

    Grabs kind;
    bool isBlind = false;
    bool hasOverlay = false;
    bool hasChanged = false;
    QRegion loupe;
    qint64 time = 1000;
    QVector<QRect> grabbed;
};

const QRect everything(0, 0, 800, 600);

/// A grabber below a window that has covered the screen for long.
struct Settled
{
    explicit Settled(ScreenGrabber::Cover cover = ScreenGrabber::Cover::Overlay,
                     ScreenSource::Grabs kind = ScreenSource::Grabs::OnceComposed)
        : screen(kind)
        , grabber(everything, cover, screen)
    {
        grabber.paint(this, QRegion());
        screen.hasOverlay = cover == ScreenGrabber::Cover::Overlay;
        wait();
        screen.grabbed.clear();
    }

    void wait() { screen.time += 10000; }

    Screen screen;
    ScreenGrabber grabber;
};

int difference(const QColor& one, const QColor& other)
{
    return qMax(qMax(qAbs(one.red() - other.red()), qAbs(one.green() - other.green())),
                qAbs(one.blue() - other.blue()));
}

QColor corrected(QRgb seen)
{
    const double factor = 255.0 / 254.0;
    return QColor::fromRgbF(qRed(seen) / 255.0 * factor, qGreen(seen) / 255.0 * factor,
                            qBlue(seen) / 255.0 * factor);
}

constexpr int size = 13;

QRgb pixelOf(const ScreenGrabber::Detail& detail, const QPoint& point)
{
    return detail.picture.toImage().pixel(point);
}

} // namespace

class tst_ScreenGrabber : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QGuiApplication::primaryScreen()->geometry().intersected(everything), everything);
    }

    void picturesAreTakenOnce()
    {
        Screen screen;
        const ScreenGrabber part(QRect(10, 20, 30, 40), ScreenGrabber::Cover::Nothing, screen);
        QCOMPARE(screen.grabbed, QVector<QRect>({QRect(10, 20, 30, 40)}));
        QVERIFY(part.picture(*QGuiApplication::primaryScreen()).isNull());
        screen.grabbed.clear();
        const ScreenGrabber all(QGuiApplication::primaryScreen()->geometry(), ScreenGrabber::Cover::Nothing,
                                screen);
        const QImage picture = all.picture(*QGuiApplication::primaryScreen()).toImage();
        QCOMPARE(picture.size(), QGuiApplication::primaryScreen()->size());
        QCOMPARE(picture.pixel(11, 22), Screen::below({11, 22}));
        screen.grabbed.clear();
        const ScreenGrabber elsewhere(QRect(-50, -50, 20, 20), ScreenGrabber::Cover::Nothing, screen);
        QCOMPARE(screen.grabbed, QVector<QRect>());
    }

    // A grab may show the overlay already, or not yet.
    void uncoveredPixelsComeFromThePicture()
    {
        Screen screen;
        ScreenGrabber grabber(everything, ScreenGrabber::Cover::Overlay, screen);
        screen.hasChanged = true;
        const QPoint point(200, 300);
        for (const int elapsed : {0, 10, ScreenGrabber::settleTime - 100}) {
            screen.time += elapsed;
            QCOMPARE(grabber.colorAt(point), QColor(Screen::below(point)));
            QCOMPARE(grabber.around(point, size, *QGuiApplication::primaryScreen()).color,
                     QColor(Screen::below(point)));
            // Only the first painting of a window covers the screen.
            grabber.paint(this, QRegion());
        }
        screen.hasOverlay = true;
        screen.time += ScreenGrabber::settleTime;
        QCOMPARE(grabber.colorAt(point), corrected(screen.shownAt(point)));
        // Of a second one as well.
        grabber.paint(&screen, QRegion());
        const QPoint other(400, 300);
        QCOMPARE(grabber.colorAt(other), QColor(Screen::below(other)));
    }

    void coveredPixelsAreCorrected()
    {
        Settled settled;
        for (const QPoint& point : {QPoint(0, 0), QPoint(36, 51), QPoint(799, 599)}) {
            const QColor expected = corrected(settled.screen.shownAt(point));
            QCOMPARE(settled.grabber.colorAt(point), expected);
            QCOMPARE(settled.grabber.around(point, size, *QGuiApplication::primaryScreen()).color, expected);
            QCOMPARE(expected.alpha(), 255);
        }
        // A pixel needs no more than itself.
        QCOMPARE(settled.screen.grabbed.first(), QRect(0, 0, 1, 1));
    }

    void everyValueBelowTheOverlay()
    {
        Settled settled;
        for (int x = 0; x < 256; ++x) {
            const QColor color = settled.grabber.colorAt(QPoint(x, 300));
            const QColor below(Screen::below({x, 300}));
            // It makes 127 and 128 one.
            QCOMPARE(color.red(), below.red() == 127 ? 128 : below.red());
            QCOMPARE(color.blue(), below.blue() == 127 ? 128 : below.blue());
        }
    }

    void nothingOverTheScreenIsNotCorrected()
    {
        Screen screen;
        ScreenGrabber grabber(QRegion(), ScreenGrabber::Cover::Nothing, screen);
        QCOMPARE(grabber.colorAt(QPoint(36, 51)), QColor(Screen::below({36, 51})));
    }

    void paintedPixelsComeFromThePicture_data()
    {
        QTest::addColumn<int>("sinceGone");
        QTest::addColumn<bool>("isLive");
        QTest::newRow("there") << -1 << false;
        QTest::newRow("just gone") << 0 << false;
        QTest::newRow("gone two frames ago") << 33 << false;
        QTest::newRow("gone on a slow machine") << ScreenGrabber::settleTime - 1 << false;
        QTest::newRow("long gone") << ScreenGrabber::settleTime << true;
    }

    void paintedPixelsComeFromThePicture()
    {
        QFETCH(int, sinceGone);
        QFETCH(bool, isLive);
        Settled settled;
        const QRect loupe(100, 100, 40, 40);
        settled.grabber.paint(&settled, loupe);
        settled.screen.loupe = loupe;
        settled.wait();
        if (sinceGone >= 0) {
            settled.grabber.paint(&settled, QRect(500, 400, 40, 40));
            settled.screen.time += sinceGone;
            settled.screen.loupe = sinceGone < 40 ? loupe : QRect(500, 400, 40, 40);
        }
        for (const QPoint& point : {loupe.topLeft(), loupe.center(), loupe.bottomRight()}) {
            const QRgb below = Screen::below(point);
            QCOMPARE(settled.grabber.colorAt(point),
                     isLive ? corrected(Screen::covered(below)) : QColor(below));
        }
        // What it has not touched is grabbed all along.
        for (const QPoint& beside : {loupe.bottomLeft() + QPoint(0, 1), loupe.topRight() + QPoint(1, 0)}) {
            QCOMPARE(settled.grabber.colorAt(beside), corrected(settled.screen.shownAt(beside)));
        }
    }

    void eachPainterHasItsPlaces()
    {
        Settled settled;
        const QRect loupe(100, 100, 40, 40);
        const int first = 0;
        const int second = 0;
        settled.grabber.paint(&first, loupe);
        settled.grabber.paint(&second, QRegion());
        settled.wait();
        settled.screen.loupe = loupe;
        QCOMPARE(settled.grabber.colorAt(loupe.center()), QColor(Screen::below(loupe.center())));
        // What a painter that has gone has painted goes with it.
        settled.grabber.remove(&first);
        QCOMPARE(settled.grabber.colorAt(loupe.center()), QColor(Screen::below(loupe.center())));
        settled.screen.loupe = QRegion();
        settled.wait();
        QCOMPARE(settled.grabber.colorAt(loupe.center()), corrected(settled.screen.shownAt(loupe.center())));
    }

    // A pick may begin while the last one can still be seen, of another picker and of another area.
    void nextReaderKnowsWhatTheLastPainted()
    {
        Settled last;
        const QRect loupe(100, 100, 40, 40);
        last.grabber.paint(&last, loupe);
        last.screen.loupe = loupe;
        last.wait();
        last.grabber.remove(&last, QRect(0, 0, 200, 200));
        last.screen.hasChanged = true;
        ScreenGrabber next(QRect(90, 90, 200, 200), ScreenGrabber::Cover::Nothing, last.screen);
        for (const QPoint& point : {loupe.center(), QPoint(190, 190)}) {
            QCOMPARE(next.colorAt(point), QColor(Screen::below(point)));
        }
        last.screen.loupe = QRegion();
        last.screen.hasOverlay = false;
        const QPoint beside(210, 210);
        QCOMPARE(next.colorAt(beside), QColor(last.screen.bare(beside)));
        last.wait();
        for (const QPoint& point : {loupe.center(), QPoint(190, 190)}) {
            QCOMPARE(next.colorAt(point), QColor(last.screen.bare(point)));
        }
    }

    // The pictures are those of the new grabber where nothing is in its way.
    void nextReaderTakesItsOwnPicture()
    {
        Settled last(ScreenGrabber::Cover::Nothing);
        last.screen.hasChanged = true;
        ScreenGrabber next(everything, ScreenGrabber::Cover::Overlay, last.screen);
        const QPoint point(200, 300);
        QCOMPARE(next.colorAt(point), QColor(last.screen.bare(point)));
    }

    // Or it would keep what was there at the start for as long as something is over it.
    void refreshLooksBeforeItIsPaintedOver()
    {
        Settled settled;
        const QRect loupe(100, 100, 40, 40);
        const QRect part(100, 100, 40, 10);
        settled.grabber.paint(&settled, part);
        settled.screen.loupe = part;
        settled.screen.hasChanged = true;
        settled.grabber.refresh(loupe, *QGuiApplication::primaryScreen());
        QCOMPARE(settled.screen.grabbed, QVector<QRect>({QRect(100, 110, 40, 30)}));
        settled.grabber.paint(&settled, loupe);
        settled.screen.loupe = loupe;
        QVERIFY(difference(settled.grabber.colorAt(QPoint(110, 130)),
                           QColor(settled.screen.bare({110, 130}))) <= 1);
        QCOMPARE(settled.grabber.colorAt(QPoint(110, 105)), QColor(Screen::below({110, 105})));
    }

    void grabsRefreshThePicture()
    {
        Settled settled;
        QScreen& screen = *QGuiApplication::primaryScreen();
        const QPoint point(200, 300);
        // 127 below the overlay is as good as 128: the picture keeps what it knows.
        const QPoint same(18, 300);
        QCOMPARE(qRed(Screen::below(same)), 127);
        settled.grabber.around(same, size, screen);
        settled.screen.hasChanged = true;
        settled.grabber.around(point, size, screen);
        settled.grabber.paint(&settled, everything);
        QCOMPARE(settled.grabber.colorAt(same).red(), 127);
        const QColor changed(~Screen::below(point) | 0xff000000U);
        const QColor kept = settled.grabber.colorAt(point);
        QVERIFY(qAbs(kept.red() - changed.red()) <= 1);
        QVERIFY(qAbs(kept.green() - changed.green()) <= 1);
        // As far as it was grabbed.
        QCOMPARE(settled.grabber.colorAt(point + QPoint(7, 0)), QColor(Screen::below(point + QPoint(7, 0))));
    }

    void detailIsPutTogether()
    {
        Settled settled;
        const QPoint point(200, 300);
        // Over the upper right quarter of what is asked for.
        const QRect loupe(201, 250, 50, 50);
        settled.grabber.paint(&settled, loupe);
        settled.screen.loupe = loupe;
        settled.wait();
        const auto detail = settled.grabber.around(point, size, *QGuiApplication::primaryScreen());
        QCOMPARE(detail.picture.size(), QSize(size, size));
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const QPoint at = point + QPoint(x - 6, y - 6);
                const bool isKept = loupe.contains(at);
                QCOMPARE(pixelOf(detail, {x, y}),
                         isKept ? Screen::below(at) : Screen::covered(Screen::below(at)));
            }
        }
        QCOMPARE(settled.screen.grabbed.size(), 1);
    }

    void edgesOfTheScreen_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::newRow("top left") << QPoint(0, 0);
        QTest::newRow("bottom right") << QGuiApplication::primaryScreen()->geometry().bottomRight();
        QTest::newRow("left") << QPoint(3, 300);
        QTest::newRow("top") << QPoint(300, 5);
    }

    void edgesOfTheScreen()
    {
        QFETCH(QPoint, point);
        Settled settled;
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const auto detail = settled.grabber.around(point, size, *QGuiApplication::primaryScreen());
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const QPoint at = point + QPoint(x - 6, y - 6);
                QCOMPARE(pixelOf(detail, {x, y}),
                         screen.contains(at) ? Screen::covered(Screen::below(at)) : 0U);
            }
        }
        QCOMPARE(detail.color, corrected(settled.screen.shownAt(point)));
        QVERIFY(screen.contains(settled.screen.grabbed.first()));
    }

    void opaqueWindowsAreNotRead()
    {
        Settled settled(ScreenGrabber::Cover::Overlay, ScreenSource::Grabs::Never);
        settled.grabber.paint(&settled, everything);
        const QPoint point(200, 300);
        QCOMPARE(settled.grabber.colorAt(point), QColor(Screen::below(point)));
        const auto detail = settled.grabber.around(point, size, *QGuiApplication::primaryScreen());
        QCOMPARE(detail.color, QColor(Screen::below(point)));
        QCOMPARE(pixelOf(detail, {6, 6}), Screen::below(point));
        QCOMPARE(settled.screen.grabbed, QVector<QRect>());

        // Without a cover there are none.
        Settled bare(ScreenGrabber::Cover::Nothing, ScreenSource::Grabs::Never);
        bare.screen.hasChanged = true;
        QCOMPARE(bare.grabber.colorAt(point), QColor(bare.screen.shownAt(point)));
    }

    void windowsOfTheirOwnAreAlwaysRead()
    {
        Screen screen;
        screen.kind = ScreenSource::Grabs::Always;
        ScreenGrabber grabber(everything, ScreenGrabber::Cover::Overlay, screen);
        QCOMPARE(screen.grabbed, QVector<QRect>());
        const QPoint point(200, 300);
        QCOMPARE(grabber.colorAt(point), corrected(Screen::below(point)));
        QVERIFY(grabber.picture(*QGuiApplication::primaryScreen()).isNull());
    }

    void grabsOfThePlatform_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<ScreenSource::Grabs>("grabs");
        QTest::newRow("off screen") << QStringLiteral("offscreen") << ScreenSource::Grabs::Always;
        // As off screen, where nobody says that there is any.
        QTest::newRow("X11 without a compositor") << QStringLiteral("xcb") << ScreenSource::Grabs::Never;
        QTest::newRow("Wayland") << QStringLiteral("wayland") << ScreenSource::Grabs::OnceComposed;
        QTest::newRow("macOS") << QStringLiteral("cocoa") << ScreenSource::Grabs::OnceComposed;
    }

    void grabsOfThePlatform()
    {
        QFETCH(const QString, platform);
        const PlatformName name(platform);
        QTEST(ScreenSource::platform().grabs(), "grabs");
    }

    void withoutAnyPicture()
    {
        Screen screen;
        screen.isBlind = true;
        const QPoint point(200, 300);
        ScreenGrabber covered(everything, ScreenGrabber::Cover::Overlay, screen);
        QCOMPARE(covered.colorAt(point), QColor(Qt::black));
        const auto detail = covered.around(point, size, *QGuiApplication::primaryScreen());
        QCOMPARE(pixelOf(detail, {6, 6}), 0U);
        QCOMPARE(detail.color, QColor(Qt::black));
        ScreenGrabber bare(everything, ScreenGrabber::Cover::Nothing, screen);
        QVERIFY(!bare.colorAt(point).isValid());

        /// A large area without a picture says nothing of a single pixel.
        class OnePixel : public Screen
        {
            QImage grab(QScreen& of, const QRect& area) override
            {
                return area.size() == QSize(1, 1) ? Screen::grab(of, area) : QImage();
            }
        } onePixel;
        onePixel.kind = ScreenSource::Grabs::Always;
        ScreenGrabber grabber(everything, ScreenGrabber::Cover::Overlay, onePixel);
        QCOMPARE(grabber.around(point, size, *QGuiApplication::primaryScreen()).color,
                 corrected(Screen::below(point)));
    }

    void pointOnNoScreen()
    {
        Settled settled;
        QVERIFY(!settled.grabber.colorAt(QPoint(-100, 5000)).isValid());
    }

    void pointOfADevicePixel()
    {
        QCOMPARE(pointAt(QPointF(7.5, 9.9)), QPoint(7, 9));
        QCOMPARE(pointAt(QPointF(-0.5, -1)), QPoint(-1, -1));
        // The quotient of a pixel and a ratio may be a little less than it should.
        QCOMPARE(pointAt(QPointF(6.9999999, 9)), QPoint(7, 9));
    }
};

UIC_TEST_MAIN(tst_ScreenGrabber)
#include "tst_ScreenGrabber.moc"
