#include "FakePrivacy.h"

using Orvane::Util::AccessStatus;
using Orvane::Util::PrivacyType;

AccessStatus FakePrivacy::screenAccess = AccessStatus::Granted;
QVector<int> FakePrivacy::requests;

void FakePrivacy::reset()
{
    screenAccess = AccessStatus::Granted;
    requests.clear();
}

AccessStatus Orvane::Util::IsPrivacyAccessGranted(PrivacyType type)
{
    return type == PrivacyType::ScreenCapture ? FakePrivacy::screenAccess : AccessStatus::Granted;
}

bool Orvane::Util::RequestPrivacyAccess(PrivacyType type)
{
    FakePrivacy::requests.append(static_cast<int>(type));
    return false;
}
