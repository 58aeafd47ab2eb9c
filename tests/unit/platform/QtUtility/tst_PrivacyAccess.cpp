#include "TestMain.h"

#include <QtUtility/PrivacyAccess.h>

using Orvane::Util::AccessStatus;
using Orvane::Util::IsPrivacyAccessGranted;
using Orvane::Util::PrivacyType;
using Orvane::Util::RequestPrivacyAccess;

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

    // Off screen in the test run; the same test on Wayland sees the other answer.
    void statusOfTheRunningPlatform()
    {
        const bool canGrab = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
        QCOMPARE(IsPrivacyAccessGranted(PrivacyType::ScreenCapture),
                 canGrab ? AccessStatus::Granted : AccessStatus::Unavailable);
    }

    void aRequestTellsWhetherAccessIsGranted()
    {
        QCOMPARE(RequestPrivacyAccess(PrivacyType::ScreenCapture),
                 IsPrivacyAccessGranted(PrivacyType::ScreenCapture) == AccessStatus::Granted);
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
