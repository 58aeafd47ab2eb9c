// Internal: what PrivacyAccess knows about Qt's platforms.

#pragma once

#include <QtUtility/PrivacyAccess.h>

#include <QString>

namespace Orvane::Util {

/// The status of @p type, as far as the platform's name @p platformName tells (see
/// QGuiApplication::platformName()).
AccessStatus platformAccess(const QString& platformName, PrivacyType type);

} // namespace Orvane::Util
