#include "NormalUser.h"
#include "TestMain.h"

#include <FileSystem/FS.h>

#include <sys/stat.h>

class tst_FS : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        QFile file(m_dir.filePath(QStringLiteral("file.gif")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QDir dir(m_dir.path());
        QVERIFY(dir.mkdir(QStringLiteral("folder")));
        QVERIFY(dir.mkdir(QString::fromUtf8("Größe \n <b>")));
        QVERIFY(QFile::link(QStringLiteral("file.gif"), dir.filePath(QStringLiteral("link"))));
        QVERIFY(QFile::link(QStringLiteral("folder"), dir.filePath(QStringLiteral("folderLink"))));
        QVERIFY(QFile::link(QStringLiteral("nowhere"), dir.filePath(QStringLiteral("dangling"))));
        QVERIFY(QFile::link(QStringLiteral("circle"), dir.filePath(QStringLiteral("circle"))));
    }

    void exists_data()
    {
        QTest::addColumn<QString>("name"); // below the test's folder
        QTest::addColumn<bool>("expected");

        QTest::newRow("file") << QStringLiteral("file.gif") << true;
        QTest::newRow("folder") << QStringLiteral("folder") << true;
        QTest::newRow("folder with a slash") << QStringLiteral("folder/") << true;
        QTest::newRow("odd characters") << QString::fromUtf8("Größe \n <b>") << true;
        QTest::newRow("dots on the way") << QStringLiteral("folder/.././/file.gif") << true;
        QTest::newRow("link to a file") << QStringLiteral("link") << true;
        QTest::newRow("link to a folder") << QStringLiteral("folderLink") << true;
        QTest::newRow("dangling link") << QStringLiteral("dangling") << false;
        QTest::newRow("circular link") << QStringLiteral("circle") << false;
        QTest::newRow("missing") << QStringLiteral("missing") << false;
        QTest::newRow("other case") << QStringLiteral("FILE.GIF") << false;
        QTest::newRow("below a file") << QStringLiteral("file.gif/x") << false;
        QTest::newRow("NUL at the end") << QStringLiteral("file.gif") + QChar(QChar::Null) << false;
        QTest::newRow("NUL inside") << QStringLiteral("file.gif") + QChar(QChar::Null) + QLatin1Char('x')
                                    << false;
        QTest::newRow("name too long") << QString(256, QLatin1Char('x')) << false;
        QTest::newRow("path too long") << QString(5000, QLatin1Char('/')) + QStringLiteral("x") << false;
    }

    void exists()
    {
        QFETCH(QString, name);
        QTEST(FS::exists(m_dir.path() + QLatin1Char('/') + name), "expected");
    }

    void relativePathsStartAtTheCurrentFolder()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_dir.path()));
        const bool file = FS::exists(QStringLiteral("file.gif"));
        const bool folder = FS::exists(QStringLiteral("."));
        const bool missing = FS::exists(QStringLiteral("missing"));
        const bool empty = FS::exists(QString()) || FS::exists(QLatin1String(""));
        const bool null = FS::exists(QString(QChar::Null));
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(file);
        QVERIFY(folder);
        QVERIFY(!missing);
        QVERIFY(!empty);
        QVERIFY(!null);
    }

    void resources()
    {
        // Qt's widgets library brings resources of its own.
        QVERIFY(FS::exists(QStringLiteral(":/qt-project.org")));
        QVERIFY(FS::exists(QStringLiteral(":/")));
        QVERIFY(!FS::exists(QStringLiteral(":/qt-project.org/missing")));
        QVERIFY(!FS::exists(QStringLiteral("qrc:/qt-project.org")));
    }

    void asksTheDiskEachTime()
    {
        const QString path = m_dir.filePath(QStringLiteral("comes and goes"));
        QVERIFY(!FS::exists(path));
        QVERIFY(QDir().mkdir(path));
        QVERIFY(FS::exists(path));
        QVERIFY(QDir().rmdir(path));
        QVERIFY(!FS::exists(path));
    }

    void whatANormalUserMayNotSeeDoesNotExist()
    {
        const QString locked = m_dir.filePath(QStringLiteral("locked"));
        const QString inside = locked + QStringLiteral("/inside");
        QVERIFY(QDir().mkpath(inside));
        QCOMPARE(chmod(qPrintable(m_dir.path()), 0755), 0);
        QCOMPARE(chmod(qPrintable(locked), 0), 0);
        const Answer lockedItself = askAsNormalUser([&] { return FS::exists(locked); });
        const Answer lockedInside = askAsNormalUser([&] { return FS::exists(inside); });
        QCOMPARE(chmod(qPrintable(locked), 0700), 0);
        QCOMPARE(lockedItself, Answer::Yes);
        QCOMPARE(lockedInside, Answer::No);
    }

private:
    QTemporaryDir m_dir;
};

UIC_TEST_MAIN(tst_FS)
#include "tst_FS.moc"
