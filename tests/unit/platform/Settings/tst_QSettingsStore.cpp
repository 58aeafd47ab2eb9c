#include "TestMain.h"

#include <Settings/QSettingsStore.h>

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
