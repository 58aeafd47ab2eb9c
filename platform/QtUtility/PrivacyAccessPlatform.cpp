#include "PrivacyAccessPlatform.h"

Orvane::Util::AccessStatus Orvane::Util::platformAccess(const QString& platformName, PrivacyType type)
{
    switch (type) {
    case PrivacyType::InputMonitoring:
    case PrivacyType::InputControl:
    case PrivacyType::ScreenCapture: {
        // Both have variants: "wayland-egl", "minimalegl".
        const bool isConfined = platformName.startsWith(QLatin1String("wayland"), Qt::CaseInsensitive) ||
                                platformName.startsWith(QLatin1String("minimal"), Qt::CaseInsensitive);
        return isConfined ? AccessStatus::Unavailable : AccessStatus::Granted;
    }
    }
    return AccessStatus::Granted;
}
