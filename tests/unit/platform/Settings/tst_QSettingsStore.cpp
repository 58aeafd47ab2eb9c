#include "TestMain.h"

#include <Settings/QSettingsStore.h>

#include <sys/stat.h>
#include <unistd.h>

class tst_QSettingsStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItWrote()
    {
        QSettingsStore store;
        QVERIFY(store.write(QStringLiteral("number"), 7));
        QVERIFY(store.write(QStringLiteral("text"), QStringLiteral("x")));
        QCOMPARE(store.read(QStringLiteral("number")).toInt(), 7);
        QCOMPARE(QSettingsStore().read(QStringLiteral("text")).toString(), QStringLiteral("x"));
    }

    void aMissingKeyIsInvalid() { QVERIFY(!QSettingsStore().read(QStringLiteral("missing")).isValid()); }

    void saysWhetherItCouldWrite()
    {
        const QString folder = QFileInfo(QSettings().fileName()).path();
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QDir(folder).removeRecursively());
        QFile inTheWay(folder);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        QVERIFY(!QSettingsStore().write(QStringLiteral("number"), 7));
        QVERIFY(inTheWay.remove());
        QVERIFY(QSettingsStore().write(QStringLiteral("number"), 7));
    }

    void pipesHoldNobodyUp_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("pipe");
        QTest::addColumn<bool>("isOwn");

        const QString own = QFileInfo(QSettings().fileName()).path() + QStringLiteral("/..");
        const QString organization = QCoreApplication::organizationName();
        const QString application = organization + QLatin1Char('/') + QCoreApplication::applicationName();
        QTest::newRow("the user's own") << own << application << true;
        QTest::newRow("of the organisation") << own << organization << false;
        for (const char* folder : {"system", "more"}) {
            const QString path = QString::fromLatin1(folder);
            QTest::addRow("%s, of the application", folder) << path << application << false;
            QTest::addRow("%s, of the organisation", folder) << path << organization << false;
        }
    }

    // QSettings reads what the organisation and the system have to add, too.
    void pipesHoldNobodyUp()
    {
        QFETCH(const QString, folder);
        QFETCH(const QString, pipe);
        QFETCH(const bool, isOwn);
        const QTemporaryDir others;
        const char* const variable = "XDG_CONFIG_DIRS";
        const QByteArray before = qgetenv(variable);
        qputenv(variable, QFile::encodeName(others.filePath(QStringLiteral("system")) + QLatin1Char(':') +
                                            others.filePath(QStringLiteral("more"))));
        const QString path = QDir::cleanPath(QDir(others.path()).filePath(folder + QLatin1Char('/') + pipe)) +
                             QStringLiteral(".conf");
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile::remove(path);
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);

        for (int i = 0; i < 2; ++i) {
            QTest::ignoreMessage(QtWarningMsg,
                                 qPrintable(QStringLiteral("This is no file of settings: ") + path));
        }
        constexpr int tooLong = 20; // s
        alarm(tooLong);
        const bool isWritten = QSettingsStore().write(QStringLiteral("number"), 7);
        const QVariant read = QSettingsStore().read(QStringLiteral("number"));
        alarm(0);
        QVERIFY(QFile::remove(path));
        before.isNull() ? qunsetenv(variable) : qputenv(variable, before);
        QCOMPARE(isWritten, !isOwn);
        QCOMPARE(read.isValid(), !isOwn);
    }

    void followsTheApplicationsNames()
    {
        QSettingsStore store;
        QVERIFY(store.write(QStringLiteral("owner"), QStringLiteral("first")));
        const QString name = QCoreApplication::applicationName();
        QCoreApplication::setApplicationName(QStringLiteral("another program"));
        const bool isInvalid = !store.read(QStringLiteral("owner")).isValid();
        QCoreApplication::setApplicationName(name);
        QVERIFY(isInvalid);
        QCOMPARE(store.read(QStringLiteral("owner")).toString(), QStringLiteral("first"));
    }
};

UIC_TEST_MAIN(tst_QSettingsStore)
#include "tst_QSettingsStore.moc"
