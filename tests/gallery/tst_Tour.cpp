#include "TestMain.h"

#include <algorithm>
#include <cstdlib>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/PageRegistry.h>
#include <gallery/StyleController.h>
#include <gallery/Tour.h>
#include <utility>

class tst_Tour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void onePage()
    {
        const QTemporaryDir folder;
        Tour tour(request(folder.filePath("new/folder"), "frame"));
        QVERIFY2(tour.run(), qPrintable(tour.failures().join('\n')));
        const QStringList pictures = QDir(folder.filePath("new/folder")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(pictures, (QStringList{"frame-dark.png", "frame-high-contrast.png", "frame-light.png",
                                        "frame-none.png"}));
        const QImage dark(folder.filePath("new/folder/frame-dark.png"));
        const QImage light(folder.filePath("new/folder/frame-light.png"));
        QCOMPARE(dark.size(), QSize(1100, 760));
        QVERIFY(dark != light);
    }

    // By the program without a display, as ./run starts it, and here.
    void everyPageAlikeEachTime()
    {
        const QTemporaryDir one;
        const QTemporaryDir other;
        const auto [status, errors] = runGallery({"--tour", one.path()});
        QVERIFY2(status == 0, errors.constData());
        Tour tour(request(other.path(), QString()));
        QVERIFY2(tour.run(), qPrintable(tour.failures().join('\n')));
        const QStringList pictures = QDir(one.path()).entryList(QDir::Files);
        QCOMPARE(pictures.size(), StyleController::builtInStyles().size() * PageRegistry::pages().size());
        for (const QString& name : pictures) {
            // Outlines of letters, which are all that a title card has: QPainterPath::addText() has them
            // begin a 64th of a pixel further or not, by what FreeType was asked for before.
            const int tolerance = name.startsWith("title-card") ? 8 : 0;
            QVERIFY2(difference(QImage(one.filePath(name)), QImage(other.filePath(name))) <= tolerance,
                     qPrintable(name));
        }
    }

    void aPageThatDoesNotExist()
    {
        const QTemporaryDir folder;
        const auto [status, errors] = runGallery({"--tour", folder.path(), "--page", "no-such-page"});
        QVERIFY(status != 0);
        QVERIFY2(errors.contains("no-such-page"), errors.constData());
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void aFolderThatCannotBeMade()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        Tour tour(request(file.fileName() + "/below", "frame"));
        QVERIFY(!tour.run());
        QCOMPARE(tour.failures().size(), 1);
    }

    void aPictureThatCannotBeWritten()
    {
        const QTemporaryDir folder;
        // A folder where the picture should go stops root as well.
        QVERIFY(QDir(folder.path()).mkdir("frame-dark.png"));
        Tour tour(request(folder.path(), "frame"));
        QVERIFY(!tour.run());
        QCOMPARE(tour.failures().size(), 1);
        QVERIFY(tour.failures().constFirst().startsWith("frame-dark.png"));
    }

    void aWarningFailsIt()
    {
        const QTemporaryDir folder;
        QTest::ignoreMessage(QtWarningMsg, "out of order");
        QTimer::singleShot(0, this, [] { qWarning("out of order"); });
        Tour tour(request(folder.path(), "frame"));
        QVERIFY(!tour.run());
        QCOMPARE(tour.failures(), QStringList{"frame-dark.png: out of order"});
    }

private:
    /// Exit status and errors.
    static std::pair<int, QByteArray> runGallery(const QStringList& arguments)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(name);
        }
        QProcess gallery;
        gallery.setProcessEnvironment(environment);
        gallery.start(UIC_GALLERY, arguments);
        gallery.waitForFinished(-1);
        return {gallery.exitStatus() == QProcess::NormalExit ? gallery.exitCode() : -1,
                gallery.readAllStandardError()};
    }

    /// The largest between the channels of two pixels in one place.
    static int difference(const QImage& one, const QImage& other)
    {
        if (one.size() != other.size()) {
            return 255;
        }
        int largest = 0;
        for (int y = 0; y < one.height() && one != other; ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const QRgb a = one.pixel(x, y);
                const QRgb b = other.pixel(x, y);
                largest = std::max({largest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                    std::abs(qBlue(a) - qBlue(b))});
            }
        }
        return largest;
    }

    static CommandLine request(const QString& folder, const QString& page)
    {
        CommandLine line;
        line.action = CommandLine::Action::Tour;
        line.tourFolder = folder;
        line.page = page;
        return line;
    }
};

UIC_TEST_MAIN(tst_Tour)
#include "tst_Tour.moc"
