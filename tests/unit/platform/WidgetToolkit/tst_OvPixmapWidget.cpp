#include "TestMain.h"

#include <WidgetToolkit/OvPixmapWidget.h>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

QString dataFile(const char* name)
{
    return QStringLiteral(UIC_TEST_DATA "/") + QLatin1String(name);
}

/// 16 x 8 pixels, red, green and blue for 30 ms each, for ever.
QString threeFrames()
{
    return dataFile("three-frames.gif");
}

/// Does with its picture what the guides do with theirs: from the start when shown, off when hidden.
class GuideLikeWidget : public QWidget
{
public:
    GuideLikeWidget()
        : picture(new OvPixmapWidget(this))
    {
    }

    OvPixmapWidget* const picture;

protected:
    void showEvent(QShowEvent* event) override
    {
        QWidget::showEvent(event);
        if (QMovie* movie = picture->movie()) {
            if (movie->state() == QMovie::Running) {
                movie->stop();
            }
            movie->start();
        }
    }
    void hideEvent(QHideEvent* event) override
    {
        QWidget::hideEvent(event);
        if (QMovie* movie = picture->movie()) {
            movie->stop();
        }
    }
};

/// Paints @p widget as on a screen of the given scale. The background is white.
QImage picture(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// The rectangle of pixels that are not white.
QRect paintedRect(const QImage& image)
{
    QRect painted;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                painted |= QRect(x, y, 1, 1);
            }
        }
    }
    return painted;
}

} // namespace

class tst_OvPixmapWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutMovie()
    {
        const OvPixmapWidget widget;
        QVERIFY(!widget.movie());
        QVERIFY(widget.moviePath().isEmpty());
        QVERIFY(!widget.hasHeightForWidth());
        QCOMPARE(widget.heightForWidth(100), -1);
        QCOMPARE(widget.sizeHint(), QSize(0, 0));
    }

    void loads()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        QVERIFY(widget.movie());
        QCOMPARE(widget.moviePath(), threeFrames());
        QCOMPARE(widget.movie()->fileName(), threeFrames());
        QCOMPARE(widget.movie()->currentFrameNumber(), 0);
    }

    void noMovie_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing file") << dataFile("missing.gif");
        QTest::newRow("folder") << QStringLiteral(UIC_TEST_DATA);
        QTest::newRow("no image") << dataFile("not-an-image.gif");
        QTest::newRow("no frame behind the header") << dataFile("truncated.gif");
        QTest::newRow("missing resource") << QStringLiteral(":/missing.gif");
        QTest::newRow("blank") << QStringLiteral(" ");
        QTest::newRow("no file name") << QStringLiteral("a%1b").arg(QChar(0));
        static const QTemporaryDir folder;
        const QString pipe = folder.filePath(QStringLiteral("pipe.gif"));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QTest::newRow("pipe that nobody writes into") << pipe;
    }

    void noMovie()
    {
        QFETCH(QString, path);
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        widget.resize(50, 50);
        widget.show();
        widget.setMoviePath(path);
        QVERIFY(!widget.movie());
        QCOMPARE(widget.moviePath(), path);
        QCOMPARE(widget.sizeHint(), QSize(0, 0));
        QVERIFY(paintedRect(picture(widget)).isNull());
        widget.hide();
        widget.show();
    }

    void samePathKeepsTheMovie()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        const QPointer<QMovie> movie = widget.movie();
        widget.setMoviePath(threeFrames());
        QCOMPARE(widget.movie(), movie.data());
    }

    void samePathTriesAgain()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("late.gif"));
        OvPixmapWidget widget;
        widget.setMoviePath(path);
        QVERIFY(!widget.movie());
        QVERIFY(QFile::copy(threeFrames(), path));
        widget.setMoviePath(path);
        QVERIFY(widget.movie());
    }

    void emptyPathRemovesTheMovie()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        const QPointer<QMovie> movie = widget.movie();
        widget.setMoviePath(QString());
        QVERIFY(!widget.movie());
        QVERIFY(widget.moviePath().isEmpty());
        QTRY_VERIFY(!movie);
    }

    void replacingWhilePlaying()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        widget.show();
        const QPointer<QMovie> first = widget.movie();
        QCOMPARE(first->state(), QMovie::Running);
        widget.setMoviePath(dataFile("no-delay.gif"));
        QVERIFY(widget.movie() != first);
        QCOMPARE(widget.movie()->state(), QMovie::Running);
        QCOMPARE(widget.sizeHint(), QSize(8, 8));
        QTRY_VERIFY(!first);
    }

    void pathIsAProperty()
    {
        OvPixmapWidget widget;
        widget.setStyleSheet(
            QStringLiteral("OvPixmapWidget { qproperty-moviePath: \"%1\"; }").arg(threeFrames()));
        widget.ensurePolished();
        QVERIFY(widget.movie());
        QCOMPARE(widget.property("moviePath").toString(), threeFrames());
    }

    void playsFromTheFirstFrameWhenShown()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        QVERIFY(widget.movie()->state() != QMovie::Running);
        QSignalSpy frames(widget.movie(), &QMovie::frameChanged);
        widget.show();
        QCOMPARE(widget.movie()->state(), QMovie::Running);
        QCOMPARE(widget.movie()->currentFrameNumber(), 0);
        // On a busy machine more than one frame goes by between two looks.
        QTRY_VERIFY(!frames.isEmpty());
        QCOMPARE(frames.first().first().toInt(), 1);
    }

    void playsWhenSetWhileShown()
    {
        OvPixmapWidget widget;
        widget.show();
        widget.setMoviePath(threeFrames());
        QCOMPARE(widget.movie()->state(), QMovie::Running);
        QCOMPARE(widget.movie()->currentFrameNumber(), 0);
        QTRY_COMPARE(widget.movie()->currentFrameNumber(), 2);
    }

    void pausesWhileHidden()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        widget.show();
        QTRY_COMPARE(widget.movie()->currentFrameNumber(), 1);
        OvPixmapWidget clock;
        clock.setMoviePath(threeFrames());
        clock.show();
        widget.hide();
        QSignalSpy frames(widget.movie(), &QMovie::frameChanged);
        QSignalSpy ticks(clock.movie(), &QMovie::frameChanged);
        QCOMPARE(widget.movie()->state(), QMovie::Paused);
        QTRY_VERIFY(ticks.count() >= 5);
        QCOMPARE(frames.count(), 0);
        widget.show();
        QCOMPARE(widget.movie()->state(), QMovie::Running);
        QCOMPARE(widget.movie()->currentFrameNumber(), 1);
        QTRY_COMPARE(widget.movie()->currentFrameNumber(), 2);
    }

    void pausesWhileParentIsHidden()
    {
        QWidget window;
        auto* widget = new OvPixmapWidget(&window);
        widget->setMoviePath(threeFrames());
        window.show();
        QCOMPARE(widget->movie()->state(), QMovie::Running);
        window.hide();
        QCOMPARE(widget->movie()->state(), QMovie::Paused);
        window.show();
        QCOMPARE(widget->movie()->state(), QMovie::Running);
    }

    void whatTheHostStoppedStaysSo()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        QMovie* const movie = widget.movie();
        movie->stop();
        widget.show();
        QCOMPARE(movie->state(), QMovie::NotRunning);
        widget.hide();
        widget.show();
        QCOMPARE(movie->state(), QMovie::NotRunning);
        movie->start();
        movie->setPaused(true);
        widget.hide();
        widget.show();
        QCOMPARE(movie->state(), QMovie::Paused);
        movie->setPaused(false);
        widget.hide();
        movie->stop();
        widget.show();
        QCOMPARE(movie->state(), QMovie::NotRunning);
    }

    void startedWhileHiddenWaits()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        widget.movie()->stop();
        qRegisterMetaType<QMovie::MovieState>();
        QSignalSpy states(widget.movie(), &QMovie::stateChanged);
        widget.movie()->start();
        QTRY_COMPARE(widget.movie()->state(), QMovie::Paused);
        QCOMPARE(states.count(), 2);
        QCOMPARE(states.at(0).first().value<QMovie::MovieState>(), QMovie::Running);
        QCOMPARE(states.at(1).first().value<QMovie::MovieState>(), QMovie::Paused);
        widget.show();
        QCOMPARE(widget.movie()->state(), QMovie::Running);
    }

    void startAndStopInTheParentsEvents()
    {
        GuideLikeWidget guide;
        guide.picture->setMoviePath(threeFrames());
        QMovie* const movie = guide.picture->movie();
        for (int showing = 0; showing < 2; ++showing) {
            guide.show();
            QCOMPARE(movie->state(), QMovie::Running);
            QCOMPARE(movie->currentFrameNumber(), 0);
            QTRY_COMPARE(movie->currentFrameNumber(), 1);
            guide.hide();
            QCOMPARE(movie->state(), QMovie::NotRunning);
        }
    }

    void parentStartsBeforeThePictureIsShown()
    {
        GuideLikeWidget guide;
        guide.picture->hide();
        guide.picture->setMoviePath(threeFrames());
        QMovie* const movie = guide.picture->movie();
        guide.show();
        QTRY_COMPARE(movie->state(), QMovie::Paused);
        guide.picture->show();
        QCOMPARE(movie->state(), QMovie::Running);

        // A restored window tells its own widget first and the children afterwards.
        movie->stop();
        guide.picture->hide();
        movie->start();
        guide.picture->show();
        QCOMPARE(movie->state(), QMovie::Running);
        QTRY_COMPARE(movie->currentFrameNumber(), 1);
    }

    void lastFrameStays_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QColor>("color");
        QTest::newRow("one frame") << dataFile("one-frame.gif") << QColor(Qt::yellow);
        QTest::newRow("played once") << dataFile("plays-once.gif") << QColor(Qt::blue);
    }

    void lastFrameStays()
    {
        QFETCH(QString, file);
        QFETCH(QColor, color);
        OvPixmapWidget widget;
        widget.setMoviePath(file);
        QCOMPARE(widget.sizeHint(), QSize(8, 8));
        widget.resize(8, 8);
        widget.show();
        QTRY_COMPARE(widget.movie()->state(), QMovie::NotRunning);
        QCOMPARE(picture(widget).pixelColor(4, 4), color);
    }

    void sizeHintIsTheSizeOfTheImage()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        QCOMPARE(widget.sizeHint(), QSize(16, 8));
        widget.setContentsMargins(1, 2, 3, 4);
        QCOMPARE(widget.sizeHint(), QSize(20, 14));
    }

    void heightFollowsWidth_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::newRow("own size") << 16 << 8;
        QTest::newRow("larger") << 160 << 80;
        QTest::newRow("rounded up") << 5 << 3;
        QTest::newRow("nothing") << 0 << 0;
        QTest::newRow("negative") << -4 << 0;
        QTest::newRow("largest") << std::numeric_limits<int>::max() << QWIDGETSIZE_MAX;
    }

    void heightFollowsWidth()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        QVERIFY(widget.hasHeightForWidth());
        QCOMPARE(widget.heightForWidth(width), height);
    }

    void layoutKeepsTheAspectRatio()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* widget = new OvPixmapWidget(&window);
        layout->addWidget(widget);
        QVERIFY(!layout->hasHeightForWidth());
        widget->setMoviePath(threeFrames());
        QVERIFY(layout->hasHeightForWidth());
        QCOMPARE(layout->totalHeightForWidth(400), 200);
        widget->setMoviePath(QString());
        QVERIFY(!layout->hasHeightForWidth());
    }

    void paintsInTheMiddle_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("painted");
        QTest::newRow("own size") << QSize(16, 8) << QRect(0, 0, 16, 8);
        QTest::newRow("wide") << QSize(100, 20) << QRect(30, 0, 40, 20);
        QTest::newRow("tall") << QSize(40, 100) << QRect(0, 40, 40, 20);
        QTest::newRow("small") << QSize(8, 8) << QRect(0, 2, 8, 4);
        QTest::newRow("one pixel") << QSize(1, 1) << QRect(0, 0, 1, 1);
    }

    void paintsInTheMiddle()
    {
        QFETCH(QSize, size);
        QFETCH(QRect, painted);
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        widget.resize(size);
        const QImage image = picture(widget);
        QCOMPARE(paintedRect(image), painted);
        QCOMPARE(image.pixelColor(painted.center()), QColor(Qt::red));
    }

    void paintsInsideTheSheetsBox()
    {
        OvPixmapWidget widget;
        widget.setStyleSheet(QStringLiteral("OvPixmapWidget { border: 2px solid blue; padding: 3px; }"));
        widget.setMoviePath(threeFrames());
        widget.ensurePolished();
        QCOMPARE(widget.sizeHint(), QSize(26, 18));
        widget.resize(42, 26);
        const QImage image = picture(widget);
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(3, 3), QColor(Qt::white));
        QCOMPARE(image.pixelColor(5, 5), QColor(Qt::red));
        QCOMPARE(image.pixelColor(36, 20), QColor(Qt::red));
        QCOMPARE(image.pixelColor(37, 21), QColor(Qt::white));
    }

    void paintsEachFrame()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        widget.resize(32, 16);
        const QColor colors[] = {Qt::red, Qt::green, Qt::blue};
        for (int frame = 0; frame < 3; ++frame) {
            QVERIFY(widget.movie()->jumpToFrame(frame));
            QCOMPARE(picture(widget).pixelColor(16, 8), colors[frame]);
            // From the cache.
            QCOMPARE(picture(widget).pixelColor(16, 8), colors[frame]);
        }
    }

    void paintsAtScaleTwo()
    {
        // A chequerboard shows blurring: at scale 2 a widget of 4 x 2 logical pixels has
        // exactly one device pixel for each of the image's 8 x 4.
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("chequers.png"));
        QImage chequers(8, 4, QImage::Format_RGB32);
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 8; ++x) {
                chequers.setPixelColor(x, y, (x + y) % 2 ? Qt::black : Qt::red);
            }
        }
        QVERIFY(chequers.save(path));
        OvPixmapWidget widget;
        widget.setMoviePath(path);
        QVERIFY(widget.movie());
        widget.resize(4, 2);
        QImage image(8, 4, QImage::Format_RGB32);
        image.setDevicePixelRatio(2);
        image.fill(Qt::white);
        widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        image.setDevicePixelRatio(1);
        QCOMPARE(image, chequers);
    }

    void paintsAtOddSizes()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        for (int width = 0; width < 12; ++width) {
            for (int height = 0; height < 12; ++height) {
                widget.resize(width, height);
                QImage image(12, 12, QImage::Format_RGB32);
                image.fill(Qt::white);
                widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
                const QRect painted = paintedRect(image);
                QVERIFY(QRect(0, 0, width, height).contains(painted) || painted.isNull());
                QCOMPARE(painted.isNull(), width == 0 || height == 0);
            }
        }
    }

    void hugeWidgetTakesLittleMemory()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        const QColor color = widget.movie()->currentImage().pixelColor(1, 1);
        widget.resize(50, 50);
        QImage image = picture(widget);
        const auto maxMemory = [] {
            rusage usage = {};
            getrusage(RUSAGE_SELF, &usage);
            return usage.ru_maxrss;
        };
        const long before = maxMemory();
        // A picture of that size takes 512 MB.
        widget.resize(16000, 16000);
        widget.render(&image, QPoint(), QRegion(7975, 7975, 50, 50), QWidget::DrawChildren);
        QVERIFY2(maxMemory() - before < 100 * 1024, qPrintable(QString::number(maxMemory() - before)));
        QCOMPARE(image.pixelColor(25, 25), color);
    }

    void windowThatCannotBePainted()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        QTest::ignoreMessage(QtWarningMsg, "QWidget::paintEngine: Should no longer be called");
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin: Paint device returned engine == 0, type: 1");
        QPaintEvent event(widget.rect());
        QApplication::sendEvent(&widget, &event);
    }

    void disabledPictureLooksDisabled()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        widget.resize(16, 8);
        QCOMPARE(picture(widget).pixelColor(8, 4), QColor(Qt::red));
        widget.setEnabled(false);
        const QColor disabled = picture(widget).pixelColor(8, 4);
        QVERIFY(disabled.hsvSaturation() < 128);
        widget.setEnabled(true);
        QCOMPARE(picture(widget).pixelColor(8, 4), QColor(Qt::red));
    }

    void replacedInASlotOfItsMovie()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        const QPointer<QMovie> first = widget.movie();
        // QMovie goes on behind its signals. It would read freed memory unnoticed: Qt is not instrumented.
        bool outlivesItsSlot = false;
        connect(first.data(), &QMovie::frameChanged, &widget, [&] {
            widget.setMoviePath(dataFile("no-delay.gif"));
            outlivesItsSlot = !first.isNull();
        });
        widget.show();
        QTRY_VERIFY(!first);
        QVERIFY(outlivesItsSlot);
        QCOMPARE(widget.movie()->state(), QMovie::Running);
        QCOMPARE(widget.sizeHint(), QSize(8, 8));
    }

    void deletedInASlotOfItsMovie_data()
    {
        QTest::addColumn<bool>("onPause");
        QTest::newRow("next frame") << false;
        QTest::newRow("pause while hidden") << true;
    }

    void deletedInASlotOfItsMovie()
    {
        QFETCH(bool, onPause);
        QWidget window;
        QPointer<OvPixmapWidget> widget = new OvPixmapWidget(&window);
        widget->setMoviePath(threeFrames());
        const QPointer<QMovie> movie = widget->movie();
        bool outlivesItsSlot = false;
        const auto destroy = [&] {
            delete widget;
            outlivesItsSlot = !movie.isNull();
        };
        window.show();
        if (onPause) {
            widget->hide();
            connect(widget->movie(), &QMovie::stateChanged, &window, [destroy](QMovie::MovieState state) {
                if (state == QMovie::Paused) {
                    destroy();
                }
            });
            widget->movie()->start();
        } else {
            connect(widget->movie(), &QMovie::frameChanged, &window, destroy);
        }
        QTRY_VERIFY(!widget);
        QTRY_VERIFY(!movie);
        QVERIFY(outlivesItsSlot);
    }

    void movieDiesWithTheWidget()
    {
        auto widget = std::make_unique<OvPixmapWidget>();
        widget->setMoviePath(threeFrames());
        const QPointer<QMovie> movie = widget->movie();
        qRegisterMetaType<QMovie::MovieState>();
        QSignalSpy states(movie.data(), &QMovie::stateChanged);
        widget.reset();
        QCOMPARE(states.count(), 0);
        QTRY_VERIFY(!movie);
    }

    void movieDeletedByTheHost()
    {
        OvPixmapWidget widget;
        widget.setMoviePath(threeFrames());
        widget.show();
        delete widget.movie();
        QVERIFY(!widget.movie());
        QVERIFY(paintedRect(picture(widget)).isNull());
        widget.hide();
        widget.setMoviePath(threeFrames());
        QVERIFY(widget.movie());
    }
};

UIC_TEST_MAIN(tst_OvPixmapWidget)
#include "tst_OvPixmapWidget.moc"
