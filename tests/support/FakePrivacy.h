#pragma once

#include <QtUtility/PrivacyAccess.h>

#include <QVector>

/// In the place of the platform's functions, as a host may bring its own. One program has one of them.
namespace FakePrivacy {

/// Whether the program may read the screen.
extern Orvane::Util::AccessStatus screenAccess;

/// What the program has asked for, by their numbers.
extern QVector<int> requests;

/// Lets the program read the screen, and forgets what it asked for.
void reset();

} // namespace FakePrivacy
