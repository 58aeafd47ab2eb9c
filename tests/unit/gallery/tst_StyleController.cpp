#include "TestMain.h"

#include <UiComponents/PointSelectionPlane.h>

#include <gallery/GalleryApplication.h>
#include <gallery/StyleController.h>

class tst_StyleController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        write("own.qss", "QLabel { min-width: 111px; }");
    }

    void cleanup() { qApp->setStyleSheet(QString()); }

    void builtIn_data()
    {
        QTest::addColumn<QString>("style");
        QTest::newRow("dark") << "dark";
        QTest::newRow("light") << "light";
        QTest::newRow("high-contrast") << "high-contrast";
        QTest::newRow("none") << "none";
    }

    void builtIn()
    {
        QFETCH(QString, style);
        StyleController controller;
        QSignalSpy applied(&controller, &StyleController::styleApplied);
        QVERIFY(StyleController::builtInStyles().contains(style));
        QVERIFY(controller.setStyle(style));
        QCOMPARE(controller.style(), style);
        QCOMPARE(applied.count(), 1);
        QCOMPARE(qApp->styleSheet().isEmpty(), style == "none");
        QVERIFY(style == "none" || QFile::exists(":/styles/" + style + ".qss"));
        // With what the gallery's own window adds.
        QCOMPARE(qApp->styleSheet().contains("#specimenCard"), style != "none");
    }

    void planesAreFilledAnew()
    {
        StyleController controller;
        QVERIFY(controller.setStyle(QStringLiteral("dark")));
        PointSelectionPlane plane(nullptr);
        plane.show();
        const QColor dark = plane.grab().toImage().pixelColor(2, 2);
        QVERIFY(controller.setStyle(QStringLiteral("light")));
        const QColor light = plane.grab().toImage().pixelColor(2, 2);
        QVERIFY(light.lightness() > dark.lightness());
    }

    void theSameStyleAgain()
    {
        StyleController controller;
        QSignalSpy applied(&controller, &StyleController::styleApplied);
        QVERIFY(controller.setStyle("dark"));
        QVERIFY(controller.setStyle("dark"));
        QCOMPARE(applied.count(), 1);
    }

    void aFile()
    {
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        QCOMPARE(controller.style(), path("own.qss"));
        QVERIFY(labelWidth() >= 111);
        QCOMPARE(qApp->styleSheet(), QString("QLabel { min-width: 111px; }"));
    }

    void aFileThatIsNotThere()
    {
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        QSignalSpy applied(&controller, &StyleController::styleApplied);
        QVERIFY(!controller.setStyle(path("missing.qss")));
        QVERIFY(!controller.setStyle(m_folder->path()));
        QVERIFY(!controller.setStyle(QString()));
        QCOMPARE(controller.style(), path("own.qss"));
        QCOMPARE(applied.count(), 0);
        QVERIFY(labelWidth() >= 111);
    }

    void replacedTwice()
    {
        // The watch on a file ends with the file: the second replacement shows whether it was renewed.
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        replace("own.qss", "QLabel { min-width: 222px; }");
        QTRY_VERIFY(labelWidth() >= 222);
        replace("own.qss", "QLabel { min-width: 333px; }");
        QTRY_VERIFY(labelWidth() >= 333);
        write("own.qss", "QLabel { min-width: 444px; }");
        QTRY_VERIFY(labelWidth() >= 444);
    }

    void removedAndWrittenAnew()
    {
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        // A file of its own announces that the removal has been noticed.
        QFileSystemWatcher witness({m_folder->path()});
        QSignalSpy noticed(&witness, &QFileSystemWatcher::directoryChanged);
        QVERIFY(QFile::remove(path("own.qss")));
        QVERIFY(noticed.wait());
        QVERIFY(labelWidth() >= 111);
        write("own.qss", "QLabel { min-width: 222px; }");
        QTRY_VERIFY(labelWidth() >= 222);
    }

    void savedWithoutChange()
    {
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        QSignalSpy applied(&controller, &StyleController::styleApplied);
        replace("own.qss", "QLabel { min-width: 111px; }");
        replace("own.qss", "QLabel { min-width: 222px; }");
        QTRY_VERIFY(labelWidth() >= 222);
        QCOMPARE(applied.count(), 1);
    }

    void saveTellsWhetherItDid()
    {
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        QVERIFY(controller.save());
        QVERIFY(QDir(m_folder->path()).removeRecursively());
        QVERIFY(!controller.save());
    }

    void anotherFileOfTheFolder()
    {
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        QSignalSpy applied(&controller, &StyleController::styleApplied);
        write("other.qss", "QLabel { min-width: 222px; }");
        // The next change of the sheet itself is the first that is applied.
        write("own.qss", "QLabel { min-width: 333px; }");
        QTRY_VERIFY(labelWidth() >= 333);
        QCOMPARE(applied.count(), 1);
    }

    void afterABuiltInStyleTheFileIsLeftAlone()
    {
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        QVERIFY(controller.setStyle("none"));
        QSignalSpy applied(&controller, &StyleController::styleApplied);
        QFileSystemWatcher witness({path("own.qss")});
        QSignalSpy noticed(&witness, &QFileSystemWatcher::fileChanged);
        write("own.qss", "QLabel { min-width: 222px; }");
        QVERIFY(noticed.wait());
        QVERIFY(labelWidth() < 111);
        QCOMPARE(applied.count(), 0);
    }

    void relativeUrls()
    {
        QImage image(24, 24, QImage::Format_RGB32);
        image.fill(Qt::green);
        QVERIFY(image.save(path("green.png")));
        write("own.qss", "QLabel { background-image: url(green.png); }");
        StyleController controller;
        QVERIFY(controller.setStyle(path("own.qss")));
        QLabel label;
        label.resize(24, 24);
        QCOMPARE(label.grab().toImage().pixelColor(12, 12), QColor(Qt::green));
    }

    void urls_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << "QLabel { color: red; }"
                              << "QLabel { color: red; }";
        QTest::newRow("relative") << "image: url(a/b.png);"
                                  << "image: url(\"/sheets/a/b.png\");";
        QTest::newRow("quoted") << "image: url( 'b c.png' );"
                                << "image: url(\"/sheets/b c.png\");";
        QTest::newRow("several") << "url(a) url(/b) url(\"c\")"
                                 << "url(\"/sheets/a\") url(/b) url(\"/sheets/c\")";
        QTest::newRow("resource") << "image: url(:/a.png);"
                                  << "image: url(:/a.png);";
        QTest::newRow("search path") << "image: url(icons:a.png);"
                                     << "image: url(icons:a.png);";
        QTest::newRow("not closed") << "image: url(a.png"
                                    << "image: url(a.png";
        QTest::newRow("empty") << ""
                               << "";
    }

    void urls()
    {
        QFETCH(QString, sheet);
        QTEST(withAbsoluteUrls(sheet, "/sheets"), "expected");
    }

private:
    void write(const QString& name, const QByteArray& contents) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(contents), contents.size());
    }

    void replace(const QString& name, const QByteArray& contents) const
    {
        // As many editors save: a new file takes the old one's name.
        write(name + ".new", contents);
        QVERIFY(QFile::remove(path(name)));
        QVERIFY(QFile::rename(path(name + ".new"), path(name)));
    }

    int labelWidth() const
    {
        QLabel label;
        label.ensurePolished();
        return label.minimumSizeHint().width();
    }

    QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

UIC_TEST_MAIN(tst_StyleController)
#include "tst_StyleController.moc"
