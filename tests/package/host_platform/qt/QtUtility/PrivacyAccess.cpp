#include "PrivacyAccess.h"

namespace {

bool isAskedForTheScreen = false;

} // namespace

Orvane::Util::AccessStatus Orvane::Util::IsPrivacyAccessGranted(PrivacyType type)
{
    return type == PrivacyType::Screen && isAskedForTheScreen ? AccessStatus::Open : AccessStatus::Closed;
}

bool Orvane::Util::RequestPrivacyAccess(PrivacyType type)
{
    isAskedForTheScreen = type == PrivacyType::Screen;
    return isAskedForTheScreen;
}
