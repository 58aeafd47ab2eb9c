// Internal: what PrivacyAccess knows about Qt's platforms.
#pragma once

#include <QtUtility/PrivacyAccess.h>

#include <QString>

namespace Orvane::Util {

/// The status of @p type on the Qt platform @p platformName (see QGuiApplication::platformName()), as
/// far as the platform's name tells.
AccessStatus platformAccess(const QString& platformName, PrivacyType type);

} // namespace Orvane::Util
