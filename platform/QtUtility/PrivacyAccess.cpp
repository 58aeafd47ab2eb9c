#include "PrivacyAccess.h"

#include "PrivacyAccessPlatform.h"

#include <QGuiApplication>

#ifdef Q_OS_MACOS
#include <CoreGraphics/CoreGraphics.h>

namespace {

using Orvane::Util::PrivacyType;

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

} // namespace
#endif

Orvane::Util::AccessStatus Orvane::Util::IsPrivacyAccessGranted(PrivacyType type)
{
    const AccessStatus onPlatform = platformAccess(QGuiApplication::platformName(), type);
#ifdef Q_OS_MACOS
    if (onPlatform == AccessStatus::Granted && !systemAllows(type)) {
        return AccessStatus::Denied;
    }
#endif
    return onPlatform;
}

bool Orvane::Util::RequestPrivacyAccess(PrivacyType type)
{
#ifdef Q_OS_MACOS
    if (IsPrivacyAccessGranted(type) == AccessStatus::Denied) {
        askSystem(type);
    }
#endif
    return IsPrivacyAccessGranted(type) == AccessStatus::Granted;
}
