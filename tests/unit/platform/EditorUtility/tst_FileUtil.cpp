#include "MarkingTranslator.h"
#include "NormalUser.h"
#include "TestMain.h"

#include <EditorUtility/FileUtil.h>

#include <sys/stat.h>

using FileUtil::Read;
using FileUtil::Write;

namespace {

bool setMode(const QString& path, mode_t mode)
{
    return chmod(QFile::encodeName(path).constData(), mode) == 0;
}

} // namespace

class tst_FileUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_before = QDir::currentPath(); }

    // A tree that every user may enter, though not change.
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        QVERIFY(setMode(m_dir->path(), 0755));
        m_root = QFileInfo(m_dir->path()).canonicalFilePath();
        const QDir root(m_root);
        QVERIFY(root.mkpath(QStringLiteral("folder/inner")));
        QVERIFY(root.mkdir(QStringLiteral("<b>a\nb&amp;")));
        QFile file(at(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(QStringLiteral("folder"), at(QStringLiteral("link"))));
        QVERIFY(QFile::link(QStringLiteral("folder/inner"), at(QStringLiteral("deepLink"))));
        QVERIFY(QFile::link(QStringLiteral("file"), at(QStringLiteral("fileLink"))));
        QVERIFY(QFile::link(QStringLiteral("nowhere"), at(QStringLiteral("dangling"))));
        QVERIFY(QFile::link(QStringLiteral("circle"), at(QStringLiteral("circle"))));
        QCOMPARE(mkfifo(QFile::encodeName(at(QStringLiteral("pipe"))).constData(), 0600), 0);
    }

    void cleanup()
    {
        QVERIFY(QDir::setCurrent(m_before));
        m_dir.reset();
    }

    void cleanupTestCase() { QVERIFY(QDir::setCurrent(m_before)); }

    void numbersAreFixed()
    {
        QCOMPARE(static_cast<int>(Write), 1);
        QCOMPARE(static_cast<int>(Read), 4);
        QCOMPARE(static_cast<int>(Read | Write), 5);
    }

    void validity_data()
    {
        QTest::addColumn<QString>("name"); // below the test's folder
        QTest::addColumn<bool>("expected");

        QTest::newRow("folder") << QStringLiteral("folder") << true;
        QTest::newRow("folder with slashes") << QStringLiteral("folder//inner/") << true;
        QTest::newRow("missing") << QStringLiteral("missing/below") << true;
        QTest::newRow("odd characters") << QStringLiteral("<b>a\nb&amp;") << true;
        QTest::newRow("missing, with odd characters") << QStringLiteral("new\nline <i>&") << true;
        QTest::newRow("link to a folder") << QStringLiteral("link/inner") << true;
        QTest::newRow("dangling link") << QStringLiteral("dangling") << false;
        QTest::newRow("dangling link on the way") << QStringLiteral("dangling/x") << false;
        QTest::newRow("circular link") << QStringLiteral("circle/x") << false;
        QTest::newRow("file at the end") << QStringLiteral("file") << false;
        QTest::newRow("file with a slash") << QStringLiteral("file/") << false;
        QTest::newRow("file on the way") << QStringLiteral("file/below") << false;
        QTest::newRow("file left again") << QStringLiteral("file/../folder") << false;
        QTest::newRow("link to a file") << QStringLiteral("fileLink") << false;
        QTest::newRow("link to a file on the way") << QStringLiteral("fileLink/a/b") << false;
        QTest::newRow("pipe") << QStringLiteral("pipe") << false;
        QTest::newRow("NUL") << QStringLiteral("folder") + QChar(QChar::Null) << false;
        QTest::newRow("half a surrogate pair") << QStringLiteral("a") + QChar(0xdc00) << false;
        QTest::newRow("name of max length") << QString(255, QLatin1Char('x')) << true;
        QTest::newRow("name too long") << QString(256, QLatin1Char('x')) << false;
        QTest::newRow("path too long") << QStringLiteral("x/").repeated(2048) << false;
    }

    // The same below an absolute and a relative path, with a message only where something is wrong.
    void validity()
    {
        QFETCH(QString, name);
        QFETCH(bool, expected);
        QVERIFY(QDir::setCurrent(m_root));
        for (const QString& path : {at(name), name, QStringLiteral("./") + name}) {
            QString error = QStringLiteral("untouched");
            QCOMPARE(FileUtil::isPathValid(path, &error), expected);
            QCOMPARE(error == QLatin1String("untouched"), expected);
            QVERIFY(expected || error.contains(path));
        }
    }

    void messagesHoldThePathAsItStands_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");

        const QString longName(256, QLatin1Char('x'));
        const QString longPath = QStringLiteral("x/").repeated(2048);
        const QString withNul = QStringLiteral("a") + QChar(QChar::Null) + QStringLiteral("b");
        QTest::newRow("empty") << QString() << QStringLiteral("No path is given");
        QTest::newRow("resource") << QStringLiteral(":/x") << QStringLiteral("Not a path on a disk: :/x");
        QTest::newRow("NUL") << withNul
                             << QStringLiteral(
                                    "The path has characters that names on this disk cannot have: ") +
                                    withNul;
        QTest::newRow("name too long")
            << longName << QStringLiteral("A name in the path is too long: ") + longName;
        QTest::newRow("path too long") << longPath << QStringLiteral("The path is too long: ") + longPath;
        QTest::newRow("file")
            << QStringLiteral("/dev/null/<b>%1&amp;\n%2")
            << QStringLiteral("There is something else in the place of a folder: /dev/null/<b>%1&amp;\n%2");
    }

    void messagesHoldThePathAsItStands()
    {
        QFETCH(QString, path);
        QString error;
        QVERIFY(!FileUtil::isPathValid(path, &error));
        QTEST(error, "expected");
        const MarkingTranslator translator("FileUtil");
        QVERIFY(!FileUtil::isPathValid(path, &error));
        QVERIFY2(error.startsWith(QLatin1Char('<')) && error.endsWith(QLatin1Char('>')), qPrintable(error));
    }

    void errorMayBeNull()
    {
        QVERIFY(!FileUtil::isPathValid(QString(), nullptr));
        QVERIFY(!FileUtil::isPathValid(at(QStringLiteral("file")), nullptr));
        QVERIFY(FileUtil::isPathValid(m_root, nullptr));
    }

    void closest_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected"); // below the test's folder; null: that folder itself

        QTest::newRow("folder") << QStringLiteral("/folder") << QStringLiteral("/folder");
        QTest::newRow("missing") << QStringLiteral("/folder/a/b/c") << QStringLiteral("/folder");
        QTest::newRow("closing slashes")
            << QStringLiteral("/folder/inner//") << QStringLiteral("/folder/inner");
        QTest::newRow("doubled slashes")
            << QStringLiteral("//folder///inner/x") << QStringLiteral("/folder/inner");
        QTest::newRow("single dots") << QStringLiteral("/./folder/./inner/.")
                                     << QStringLiteral("/folder/inner");
        QTest::newRow("up from a folder") << QStringLiteral("/folder/inner/..") << QStringLiteral("/folder");
        QTest::newRow("up to the top") << QStringLiteral("/folder/..") << QString();
        QTest::newRow("up from a missing one")
            << QStringLiteral("/a/b/../../folder/x") << QStringLiteral("/folder");
        QTest::newRow("down again on the way")
            << QStringLiteral("/a/../folder/b/../inner") << QStringLiteral("/folder/inner");
        QTest::newRow("file") << QStringLiteral("/file") << QString();
        QTest::newRow("below a file") << QStringLiteral("/file/a/b") << QString();
        QTest::newRow("up from a file") << QStringLiteral("/file/../folder") << QStringLiteral("/folder");
        QTest::newRow("pipe") << QStringLiteral("/pipe/x") << QString();
        QTest::newRow("link") << QStringLiteral("/link/x") << QStringLiteral("/link");
        QTest::newRow("dangling link") << QStringLiteral("/dangling") << QString();
        QTest::newRow("below a dangling link") << QStringLiteral("/dangling/x/y") << QString();
        QTest::newRow("circular link") << QStringLiteral("/circle/x") << QString();
        QTest::newRow("odd characters")
            << QStringLiteral("/<b>a\nb&amp;/x") << QStringLiteral("/<b>a\nb&amp;");
        QTest::newRow("name too long")
            << QStringLiteral("/folder/") + QString(256, QLatin1Char('x')) << QStringLiteral("/folder");
        QTest::newRow("path too long")
            << QStringLiteral("/folder") + QStringLiteral("/x").repeated(3000) << QStringLiteral("/folder");
        QTest::newRow("NUL") << QStringLiteral("/folder/a") + QChar(QChar::Null) << QStringLiteral("/folder");
    }

    void closest()
    {
        QFETCH(QString, name);
        QFETCH(QString, expected);
        const QString found = FileUtil::closestPath(m_root + name);
        QCOMPARE(found, m_root + expected);
        QVERIFY(QFileInfo(found).isDir());
        QCOMPARE(FileUtil::closestPath(found), found);
    }

    void closestOfRelativePaths()
    {
        QVERIFY(QDir::setCurrent(m_root));
        QCOMPARE(FileUtil::closestPath(QStringLiteral("folder/x")), QStringLiteral("folder"));
        QCOMPARE(FileUtil::closestPath(QStringLiteral("./folder//inner/")), QStringLiteral("folder/inner"));
        QCOMPARE(FileUtil::closestPath(QStringLiteral("missing")), QStringLiteral("."));
        QCOMPARE(FileUtil::closestPath(QStringLiteral("file/x")), QStringLiteral("."));
        QCOMPARE(FileUtil::closestPath(QStringLiteral("folder/..")), QStringLiteral("."));
        QCOMPARE(FileUtil::closestPath(QStringLiteral("../x/y z")), QStringLiteral(".."));
        QCOMPARE(FileUtil::closestPath(QString()), QString());
        QCOMPARE(FileUtil::closestPath(QStringLiteral(":/qt-project.org")), QString());

        // A folder whose name begins like a resource's is reached from its parent.
        QVERIFY(QDir().mkdir(QStringLiteral("./:x")));
        QCOMPARE(FileUtil::closestPath(QStringLiteral("./:x/y")), QStringLiteral("./:x"));
    }

    // Qt cannot spell the name; what it makes of it does not exist on disk.
    void closestBelowNamesThatAreNoText()
    {
        const QByteArray raw = QFile::encodeName(m_root) + "/folder/caf\xE9";
        QCOMPARE(mkdir(raw.constData(), 0755), 0);
        const QString path = QFile::decodeName(raw);
        QVERIFY(path.contains(QChar(QChar::ReplacementCharacter)));
        QCOMPARE(FileUtil::closestPath(path), at(QStringLiteral("folder")));
        QCOMPARE(FileUtil::closestPath(path + QStringLiteral("/x")), at(QStringLiteral("folder")));
        QVERIFY(FileUtil::isPathValid(path, nullptr));
        QVERIFY(!FileUtil::isOperationAllowed(path, Read));

        // Nor does the current folder have to have a name.
        QCOMPARE(chdir(raw.constData()), 0);
        QCOMPARE(FileUtil::closestPath(QStringLiteral("x")), QStringLiteral("."));
        QVERIFY(FileUtil::isOperationAllowed(QStringLiteral("."), Read | Write));
        QVERIFY(QDir::setCurrent(m_before));
        QCOMPARE(rmdir(raw.constData()), 0);
    }

    // Encoding such a name gives that of another folder.
    void charactersThatCannotBeStoredNameNothing()
    {
        const QString path = at(QStringLiteral("a")) + QChar(0xdc00);
        const QString other = QFile::decodeName(QFile::encodeName(path));
        QVERIFY(QDir().mkdir(other));
        QCOMPARE(FileUtil::closestPath(other), other);
        QCOMPARE(FileUtil::closestPath(path), m_root);
        QVERIFY(!FileUtil::isOperationAllowed(path, Read));
    }

    void closestBelowALinkGoesUpFromItsTarget()
    {
        const QString found = FileUtil::closestPath(at(QStringLiteral("deepLink/../x")));
        QCOMPARE(QFileInfo(found).canonicalFilePath(), at(QStringLiteral("folder")));
        const QString higher = FileUtil::closestPath(at(QStringLiteral("deepLink/../../folder")));
        QCOMPARE(QFileInfo(higher).canonicalFilePath(), at(QStringLiteral("folder")));
    }

    void closestOfWhatANormalUserMayNotSee()
    {
        const QString folder = at(QStringLiteral("folder"));
        QVERIFY(setMode(folder, 0));
        const Answer answer = askAsNormalUser(
            [&] { return FileUtil::closestPath(folder + QStringLiteral("/inner/x")) == folder; });
        QVERIFY(setMode(folder, 0755));
        QCOMPARE(answer, Answer::Yes);
    }

    void closestFollowsTheDisk()
    {
        const QString path = at(QStringLiteral("folder/inner"));
        QCOMPARE(FileUtil::closestPath(path), path);
        QVERIFY(QDir().rmdir(path));
        QCOMPARE(FileUtil::closestPath(path), at(QStringLiteral("folder")));
    }

    void nothingIsAllowedThere_data()
    {
        QTest::addColumn<QString>("path");

        QTest::newRow("empty") << QString();
        QTest::newRow("missing") << QStringLiteral("missing");
        QTest::newRow("dangling link") << QStringLiteral("dangling");
        QTest::newRow("below a file") << QStringLiteral("file/x");
        QTest::newRow("file with a slash") << QStringLiteral("file/");
        QTest::newRow("NUL") << QStringLiteral("folder") + QChar(QChar::Null);
        QTest::newRow("resource") << QStringLiteral(":/qt-project.org");
        QTest::newRow("name too long") << QString(256, QLatin1Char('x'));
        QTest::newRow("URL") << QStringLiteral("file:///");
    }

    void nothingIsAllowedThere()
    {
        QFETCH(QString, path);
        QVERIFY(QDir::setCurrent(m_root));
        for (const FileUtil::Operations operations : {FileUtil::Operations(), FileUtil::Operations(Read),
                                                      FileUtil::Operations(Write), Read | Write}) {
            QVERIFY(!FileUtil::isOperationAllowed(path, operations));
        }
    }

    void ownFolderAndFile()
    {
        for (const QString& path : {at(QStringLiteral("folder")), at(QStringLiteral("folder/")),
                                    at(QStringLiteral("file")), at(QStringLiteral("link"))}) {
            QVERIFY(FileUtil::isOperationAllowed(path, Read));
            QVERIFY(FileUtil::isOperationAllowed(path, Write));
            QVERIFY(FileUtil::isOperationAllowed(path, Read | Write));
            QVERIFY(FileUtil::isOperationAllowed(path, {}));
            QVERIFY(!FileUtil::isOperationAllowed(path, FileUtil::Operations(QFlag(2))));
            QVERIFY(!FileUtil::isOperationAllowed(path, FileUtil::Operations(QFlag(12))));
        }
        QVERIFY(QDir::setCurrent(m_root));
        QVERIFY(FileUtil::isOperationAllowed(QStringLiteral("folder"), Read | Write));
        QVERIFY(FileUtil::isOperationAllowed(QStringLiteral("."), Read | Write));
        QVERIFY(FileUtil::isOperationAllowed(QStringLiteral("/"), Read));
    }

    void permissionsOfANormalUser_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("read");
        QTest::addColumn<bool>("write");

        const QString folder = QStringLiteral("folder");
        QTest::newRow("folder: all") << folder << 7 << true << true;
        QTest::newRow("folder: no write") << folder << 5 << true << false;
        QTest::newRow("folder: no read") << folder << 3 << false << true;
        QTest::newRow("folder: no search") << folder << 6 << false << false;
        QTest::newRow("folder: search only") << folder << 1 << false << false;
        QTest::newRow("folder: write only") << folder << 2 << false << false;
        QTest::newRow("folder: read only") << folder << 4 << false << false;
        QTest::newRow("folder: nothing") << folder << 0 << false << false;
        const QString file = QStringLiteral("file");
        QTest::newRow("file: both") << file << 6 << true << true;
        QTest::newRow("file: read") << file << 4 << true << false;
        QTest::newRow("file: write") << file << 2 << false << true;
        QTest::newRow("file: execute") << file << 1 << false << false;
        QTest::newRow("file: nothing") << file << 0 << false << false;
    }

    void permissionsOfANormalUser()
    {
        QFETCH(QString, name);
        QFETCH(int, mode);
        QFETCH(bool, read);
        QFETCH(bool, write);
        const QString path = at(name);
        // For the owner, as whom a normal user runs these tests, and for the others, as whom root asks.
        QVERIFY(setMode(path, static_cast<mode_t>(mode << 6 | mode)));
        const auto ask = [&](FileUtil::Operations operations) {
            return askAsNormalUser([&] { return FileUtil::isOperationAllowed(path, operations); });
        };
        const Answer canRead = ask(Read);
        const Answer canWrite = ask(Write);
        const Answer canDoBoth = ask(Read | Write);
        const Answer isThere = ask({});
        const bool isRoot = geteuid() == 0;
        const bool rootCan = FileUtil::isOperationAllowed(path, Read | Write);
        QVERIFY(setMode(path, 0755));

        QCOMPARE(canRead, read ? Answer::Yes : Answer::No);
        QCOMPARE(canWrite, write ? Answer::Yes : Answer::No);
        QCOMPARE(canDoBoth, read && write ? Answer::Yes : Answer::No);
        QCOMPARE(isThere, Answer::Yes);
        QVERIFY(!isRoot || rootCan);
    }

    void belowALockedFolder()
    {
        const QString folder = at(QStringLiteral("folder"));
        const QString inner = folder + QStringLiteral("/inner");
        QVERIFY(setMode(inner, 0777));
        QVERIFY(setMode(folder, 0));
        const Answer answer = askAsNormalUser([&] { return FileUtil::isOperationAllowed(inner, Read); });
        const Answer isValid = askAsNormalUser([&] { return FileUtil::isPathValid(inner, nullptr); });
        QVERIFY(setMode(folder, 0755));
        QCOMPARE(answer, Answer::No);
        QCOMPARE(isValid, Answer::Yes);
    }

    void linksCountAsTheirTargets()
    {
        QVERIFY(setMode(at(QStringLiteral("folder")), 0555));
        const auto ask = [&](FileUtil::Operations operations) {
            return askAsNormalUser(
                [&] { return FileUtil::isOperationAllowed(at(QStringLiteral("link")), operations); });
        };
        const Answer canRead = ask(Read);
        const Answer canWrite = ask(Write);
        QVERIFY(setMode(at(QStringLiteral("folder")), 0755));
        QCOMPARE(canRead, Answer::Yes);
        QCOMPARE(canWrite, Answer::No);
    }

    // A program that gave up privileges only for the time being, as installers do.
    void effectiveUserCounts()
    {
        if (geteuid() != 0) {
            QTest::qSkip("only root can take on another effective user", __FILE__, __LINE__);
            return;
        }
        const QString folder = at(QStringLiteral("folder"));
        QVERIFY(setMode(folder, 0700));
        QCOMPARE(seteuid(65534), 0);
        const bool asNobody = FileUtil::isOperationAllowed(folder, Read);
        QCOMPARE(seteuid(0), 0);
        QVERIFY(!asNobody);
        QVERIFY(FileUtil::isOperationAllowed(folder, Read));
    }

    void readOnlyFileSystem()
    {
        const QByteArray folder = QFile::encodeName(at(QStringLiteral("folder")));
        const auto mountReadOnly = [&folder] { return mountEmpty(folder, MS_RDONLY); };
        const auto ask = [&](FileUtil::Operations operations) {
            return askInChild(mountReadOnly, [&] {
                return FileUtil::isOperationAllowed(QFile::decodeName(folder), operations);
            });
        };
        const Answer canRead = ask(Read);
        if (canRead == Answer::Unknown) {
            QTest::qSkip("only where a user may mount file systems", __FILE__, __LINE__);
            return;
        }
        QCOMPARE(canRead, Answer::Yes);
        QCOMPARE(ask(Write), Answer::No);
        QCOMPARE(ask(Read | Write), Answer::No);
        QCOMPARE(ask({}), Answer::Yes);
    }

private:
    QString at(const QString& name) const { return m_root + QLatin1Char('/') + name; }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_root;
    QString m_before;
};

UIC_TEST_MAIN(tst_FileUtil)
#include "tst_FileUtil.moc"
