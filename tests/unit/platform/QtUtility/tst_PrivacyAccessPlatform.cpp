#include "TestMain.h"

#include <QtUtility/PrivacyAccessPlatform.h>

using Orvane::Util::AccessStatus;
using Orvane::Util::PrivacyType;

Q_DECLARE_METATYPE(Orvane::Util::AccessStatus)

class tst_PrivacyAccessPlatform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void platforms_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<AccessStatus>("expected");

        for (const char* granted : {"xcb", "windows", "direct2d", "cocoa", "offscreen", "vnc", "eglfs",
                                    "linuxfb", "a platform of tomorrow", "xcb-wayland"}) {
            QTest::newRow(granted) << QString::fromLatin1(granted) << AccessStatus::Granted;
        }
        QTest::newRow("no application") << QString() << AccessStatus::Granted;
        for (const char* unavailable :
             {"wayland", "wayland-egl", "wayland-xcomposite-glx", "Wayland", "minimal", "minimalegl"}) {
            QTest::newRow(unavailable) << QString::fromLatin1(unavailable) << AccessStatus::Unavailable;
        }
    }

    void platforms()
    {
        QFETCH(QString, platform);
        QFETCH(AccessStatus, expected);
        for (const auto type :
             {PrivacyType::InputMonitoring, PrivacyType::InputControl, PrivacyType::ScreenCapture}) {
            QCOMPARE(Orvane::Util::platformAccess(platform, type), expected);
        }
        for (const int unknown : {0, 1, 2, 6, -5, 1000}) {
            QCOMPARE(Orvane::Util::platformAccess(platform, PrivacyType(unknown)), AccessStatus::Granted);
        }
    }
};

UIC_TEST_MAIN(tst_PrivacyAccessPlatform)
#include "tst_PrivacyAccessPlatform.moc"
