#include "PrivacyAccessPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "ResultTable.h"

#include <QtUtility/PrivacyAccess.h>

#include <QGuiApplication>

namespace {

using Orvane::Util::AccessStatus;
using Orvane::Util::PrivacyType;

struct Permission
{
    const char* name;
    PrivacyType type;
};

constexpr Permission Permissions[] = {
    {"ScreenCapture", PrivacyType::ScreenCapture},
    {"InputMonitoring", PrivacyType::InputMonitoring},
    {"InputControl", PrivacyType::InputControl},
};

QString text(AccessStatus status)
{
    switch (status) {
    case AccessStatus::Granted:
        return PrivacyAccessPage::tr("granted");
    case AccessStatus::Denied:
        return PrivacyAccessPage::tr("denied");
    case AccessStatus::Unavailable:
        return PrivacyAccessPage::tr("not available on this platform");
    }
    return {};
}

} // namespace

PageInfo PrivacyAccessPage::info()
{
    return {QStringLiteral("privacy-access"),
            tr("Privacy access"),
            PageGroup::Services,
            {tr("permission"), tr("screen"), tr("capture")},
            {QStringLiteral("PrivacyAccess")},
            &createPage<PrivacyAccessPage>};
}

PrivacyAccessPage::PrivacyAccessPage(QWidget* parent)
    : Page(info(),
           tr("Whether the system lets the program read the screen and the input of other programs, asked "
              "without troubling the user."),
           parent)
{
    auto* results = new ResultTable;
    addDemonstration(QString(), results);
    results->setResult(tr("Platform"), QGuiApplication::platformName());
    for (const Permission& permission : Permissions) {
        const QString name = QString::fromUtf8(permission.name);
        results->setResult(name, text(Orvane::Util::IsPrivacyAccessGranted(permission.type)));
        properties()->addAction(tr("Request %1").arg(name), [this, results, name, type = permission.type] {
            const bool isGranted = Orvane::Util::RequestPrivacyAccess(type);
            signalLog()->addLine(
                QStringLiteral("RequestPrivacyAccess(%1) → %2")
                    .arg(name, isGranted ? QStringLiteral("true") : QStringLiteral("false")));
            results->setResult(name, text(Orvane::Util::IsPrivacyAccessGranted(type)));
        });
    }
}
