#include "PrivacyAccess.h"

#include "PlatformPrivacy.h"

#include <QGuiApplication>

#ifdef Q_OS_MACOS
#include <CoreGraphics/CoreGraphics.h>
#endif

namespace {

using Orvane::Util::PrivacyType;

#ifdef Q_OS_MACOS
bool systemAllows(PrivacyType type)
{
    if (__builtin_available(macOS 10.15, *)) {
        switch (type) {
        case PrivacyType::InputMonitoring:
            return CGPreflightListenEventAccess();
        case PrivacyType::InputControl:
            return CGPreflightPostEventAccess();
        case PrivacyType::ScreenCapture:
            return CGPreflightScreenCaptureAccess();
        }
    }
    return true;
}

void askSystem(PrivacyType type)
{
    if (__builtin_available(macOS 10.15, *)) {
        switch (type) {
        case PrivacyType::InputMonitoring:
            CGRequestListenEventAccess();
            break;
        case PrivacyType::InputControl:
            CGRequestPostEventAccess();
            break;
        case PrivacyType::ScreenCapture:
            CGRequestScreenCaptureAccess();
            break;
        }
    }
}
#else
bool systemAllows(PrivacyType type)
{
    Q_UNUSED(type)
    return true;
}

void askSystem(PrivacyType type)
{
    Q_UNUSED(type)
}
#endif

} // namespace

Orvane::Util::AccessStatus Orvane::Util::IsPrivacyAccessGranted(PrivacyType type)
{
    const AccessStatus onPlatform = platformAccess(QGuiApplication::platformName(), type);
    if (onPlatform != AccessStatus::Granted) {
        return onPlatform;
    }
    return systemAllows(type) ? AccessStatus::Granted : AccessStatus::Denied;
}

bool Orvane::Util::RequestPrivacyAccess(PrivacyType type)
{
    if (IsPrivacyAccessGranted(type) == AccessStatus::Denied) {
        askSystem(type);
    }
    return IsPrivacyAccessGranted(type) == AccessStatus::Granted;
}
