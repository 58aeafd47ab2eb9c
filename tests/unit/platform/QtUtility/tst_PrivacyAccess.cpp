#include "FakePlatform.h"
#include "TestMain.h"

#include <QtUtility/PrivacyAccess.h>

using Orvane::Util::AccessStatus;
using Orvane::Util::IsPrivacyAccessGranted;
using Orvane::Util::PrivacyType;
using Orvane::Util::RequestPrivacyAccess;

Q_DECLARE_METATYPE(AccessStatus)

class tst_PrivacyAccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreFixed()
    {
        QCOMPARE(static_cast<int>(PrivacyType::ScreenCapture), 5);
        QCOMPARE(static_cast<int>(AccessStatus::Granted), 0);
        QVERIFY(static_cast<int>(AccessStatus::Denied) != 0);
        QVERIFY(static_cast<int>(AccessStatus::Unavailable) != 0);
    }

    void screen_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<AccessStatus>("status");
        QTest::newRow("as the test runs") << QGuiApplication::platformName() << AccessStatus::Granted;
        QTest::newRow("X11") << QStringLiteral("xcb") << AccessStatus::Granted;
        QTest::newRow("Wayland") << QStringLiteral("wayland") << AccessStatus::Unavailable;
    }

    void screen()
    {
        QFETCH(const QString, platform);
        QFETCH(const AccessStatus, status);
        const PlatformName name(platform);
        QCOMPARE(IsPrivacyAccessGranted(PrivacyType::ScreenCapture), status);
        QCOMPARE(RequestPrivacyAccess(PrivacyType::ScreenCapture), status == AccessStatus::Granted);
    }

    void unknownPermissionsAreGranted()
    {
        for (const int number : {0, 1, 6, -1, 4711}) {
            QCOMPARE(IsPrivacyAccessGranted(PrivacyType(number)), AccessStatus::Granted);
            QVERIFY(RequestPrivacyAccess(PrivacyType(number)));
        }
    }
};

UIC_TEST_MAIN(tst_PrivacyAccess)
#include "tst_PrivacyAccess.moc"
