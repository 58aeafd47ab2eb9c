#include "TestMain.h"

#include <Settings/Settings.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QStringList threeColors()
{
    return {QStringLiteral("#ff8800"), QStringLiteral("#00ff88"), QStringLiteral("#8800ff")};
}

QString storeFile()
{
    return QSettings().fileName();
}

/// Runs the code in another process, which is killed at its end before any clean-up of its own.
template <typename Code>
bool inKilledProcess(Code code)
{
    const pid_t child = fork();
    if (child == 0) {
        code();
        raise(SIGKILL);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFSIGNALED(status) &&
           WTERMSIG(status) == SIGKILL;
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

} // namespace

class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("UiComponents tests"));
        QVERIFY(QDir(QFileInfo(storeFile()).path()).removeRecursively());
        Settings::setStore(nullptr);
    }

    void nothingWrittenYet()
    {
        QCOMPARE(Settings::userCustomColors(), QStringList());
        QVERIFY2(!QFileInfo::exists(storeFile()), "reading must not make a file");
    }

    void keepsAnyTexts_data()
    {
        QTest::addColumn<QStringList>("names");

        QStringList thousand;
        for (int i = 0; i < 1000; ++i) {
            thousand += QString::number(i);
        }
        QTest::newRow("three") << threeColors();
        QTest::newRow("one") << QStringList{QStringLiteral("#00ff88")};
        QTest::newRow("none") << QStringList();
        QTest::newRow("one empty text") << QStringList{QLatin1String("")};
        QTest::newRow("two empty texts") << QStringList{QLatin1String(""), QLatin1String("")};
        QTest::newRow("repeats") << threeColors() + threeColors();
        QTest::newRow("what an ini file gives a meaning")
            << QStringList{QStringLiteral("a, b; c=d"), QStringLiteral("\"x\\"), QStringLiteral("@Invalid()"),
                           QStringLiteral("[x]\n%41"), QStringLiteral(" blanks ")};
        QTest::newRow("one text with a comma") << QStringList{QStringLiteral("a, b")};
        QTest::newRow("one text with an at sign") << QStringList{QStringLiteral("@Variant(x)")};
        QTest::newRow("other scripts") << QStringList{QString::fromUtf8("größe"), QString::fromUtf8("色😀")};
        QTest::newRow("thousand") << thousand;
    }

    void keepsAnyTexts()
    {
        QFETCH(QStringList, names);
        Settings::setUserCustomColors({QStringLiteral("before")});
        Settings::setUserCustomColors(names);
        QCOMPARE(Settings::userCustomColors(), names);
        // Another program's view of the file, past every cache of this one.
        const QString copy = storeFile() + QStringLiteral(".copy");
        QVERIFY(QFile::copy(storeFile(), copy));
        QCOMPARE(
            QSettings(copy, QSettings::IniFormat).value(QStringLiteral("userCustomColors")).toStringList(),
            names);
    }

    void usesOneKeyOfTheHostApplication()
    {
        Settings::setUserCustomColors(threeColors());
        QVERIFY(storeFile().startsWith(QDir::homePath()));
        QVERIFY(storeFile().contains(QStringLiteral("UiComponents tests/tst_Settings")));
        QCOMPARE(QSettings().allKeys(), QStringList{QStringLiteral("userCustomColors")});
    }

    void leavesOtherKeysAlone()
    {
        QSettings().setValue(QStringLiteral("host/value"), 7);
        Settings::setUserCustomColors(threeColors());
        Settings::setUserCustomColors({});
        QCOMPARE(QSettings().value(QStringLiteral("host/value")).toInt(), 7);
    }

    void survivesAKillRightAfterTheWrite()
    {
        QVERIFY(inKilledProcess([] { Settings::setUserCustomColors(threeColors()); }));
        QCOMPARE(Settings::userCustomColors(), threeColors());
        QVERIFY(inKilledProcess([] { Settings::setUserCustomColors({}); }));
        QCOMPARE(Settings::userCustomColors(), QStringList());
    }

    void sizesOfAnotherProcessesListDoNotMatter()
    {
        // A file of the same size is easily taken for the one that was read before.
        Settings::setUserCustomColors({QStringLiteral("#111111")});
        QCOMPARE(Settings::userCustomColors(), QStringList{QStringLiteral("#111111")});
        const QDateTime before = QFileInfo(storeFile()).lastModified();
        QTRY_VERIFY([&] {
            return inKilledProcess([] { Settings::setUserCustomColors({QStringLiteral("#222222")}); }) &&
                   QFileInfo(storeFile()).lastModified() != before;
        }());
        QCOMPARE(Settings::userCustomColors(), QStringList{QStringLiteral("#222222")});
    }

    void oddStores_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<bool>("isCopied");

        const QStringList red{QStringLiteral("red")};
        QTest::newRow("empty file") << QByteArray() << QStringList() << false;
        QTest::newRow("number") << QByteArray("[General]\nuserCustomColors=5\n")
                                << QStringList{QStringLiteral("5")} << false;
        QTest::newRow("text") << QByteArray("[General]\nuserCustomColors=red\n") << red << false;
        QTest::newRow("bytes") << QByteArray("[General]\nuserCustomColors=@ByteArray(red)\n") << red << false;
        QTest::newRow("rectangle") << QByteArray("[General]\nuserCustomColors=@Rect(1 2 3 4)\n")
                                   << QStringList() << false;
        QTest::newRow("broken variant")
            << QByteArray("[General]\nuserCustomColors=@Variant(\\0)\n") << QStringList() << false;
        QTest::newRow("group of that name")
            << QByteArray("[userCustomColors]\na=1\n") << QStringList() << false;
        QTest::newRow("values of the host")
            << QByteArray("[General]\nuserCustomColors=red\n\n[host]\nsize=@Size(3 4)\n") << red << false;
        QTest::newRow("no ini file") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << QStringList()
                                     << true;
        QTest::newRow("broken section") << QByteArray("[General\nuserCustomColors=red\n") << red << true;
        QTest::newRow("broken line") << QByteArray("broken line\n") << QStringList() << true;
        QTest::newRow("broken line before")
            << QByteArray("[General]\nbroken\nuserCustomColors=red\n") << red << true;
        QTest::newRow("broken value of the host")
            << QByteArray("[General]\nhost=@Variant(\\0)\n") << QStringList() << true;
        QTest::newRow("comment") << QByteArray("; of the user\n[General]\n") << QStringList() << true;
    }

    void oddStores()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isCopied);
        QVERIFY(writeFile(storeFile(), content));
        QTEST(Settings::userCustomColors(), "expected");
        // And it can be written over, but for what would be lost.
        const QString lost = QStringLiteral("dropped lines of ") + QRegularExpression::escape(storeFile());
        if (isCopied) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lost));
        }
        Settings::setUserCustomColors(threeColors());
        QCOMPARE(Settings::userCustomColors(), threeColors());
        QVERIFY(inKilledProcess([] { Settings::setUserCustomColors({}); }));
        QCOMPARE(Settings::userCustomColors(), QStringList());

        const QDir folder = QFileInfo(storeFile()).dir();
        const QStringList copies = folder.entryList({QStringLiteral("*.before-*")});
        QCOMPARE(copies.size(), isCopied ? 1 : 0);
        if (isCopied) {
            QFile copy(folder.filePath(copies.constFirst()));
            QVERIFY(copy.open(QIODevice::ReadOnly));
            QCOMPARE(copy.readAll(), content);
        }
    }

    void unwritableStore()
    {
        // A file in the place of the folder stops even root.
        const QString folder = QFileInfo(storeFile()).path();
        QVERIFY(writeFile(folder, "in the way"));
        Settings::setUserCustomColors(threeColors());
        QCOMPARE(Settings::userCustomColors(), threeColors());
        Settings::setUserCustomColors({});
        QCOMPARE(Settings::userCustomColors(), QStringList());

        QVERIFY(QFile::remove(folder));
        Settings::setUserCustomColors(threeColors());
        QVERIFY(QFileInfo::exists(storeFile()));
        QVERIFY(inKilledProcess([] { Settings::setUserCustomColors({QStringLiteral("red")}); }));
        QCOMPARE(Settings::userCustomColors(), QStringList{QStringLiteral("red")});
    }

    void withoutAnOrganization()
    {
        QCoreApplication::setOrganizationName(QString());
        QCOMPARE(Settings::userCustomColors(), QStringList());
        Settings::setUserCustomColors(threeColors());
        QCOMPARE(Settings::userCustomColors(), threeColors());
        const QString name = QCoreApplication::applicationName();
        const QString file = QSettings(name, name).fileName();
        QVERIFY(QFileInfo::exists(file));
        QVERIFY(QFile::remove(file));
        QCOMPARE(Settings::userCustomColors(), QStringList());
    }
};

UIC_TEST_MAIN(tst_Settings)
#include "tst_Settings.moc"
