#pragma once

namespace Orvane::Util {

/// The studio's own names.
enum class PrivacyType { Screen = 5, Network = 90 };
enum class AccessStatus { Open = 0, Closed = 7 };

/// The studio forbids everything until it is asked.
AccessStatus IsPrivacyAccessGranted(PrivacyType type);
bool RequestPrivacyAccess(PrivacyType type);

} // namespace Orvane::Util
