#pragma once

#include <QtUtility/QtUtilityExport.h>

namespace Orvane::Util {

/// What an operating system may keep programs from until the user allows it. The numbers are fixed.
enum class PrivacyType {
    InputMonitoring = 3, ///< seeing keys and buttons that go to other programs
    InputControl = 4,    ///< sending keys and clicks to other programs
    ScreenCapture = 5,   ///< reading what other programs show on the screen
};

/// Whether a program has a permission. Anything but Granted means that it does not have it (yet).
enum class AccessStatus {
    Granted = 0,
    Denied,      ///< the user has not allowed it, or took it back
    Unavailable, ///< this platform cannot do it at all, so asking is of no use
};

/**
 * Whether the program may do @p type now. Never asks the user, and returns at once.
 *
 * macOS is asked itself. X11 and Windows know no such permissions: everything is granted; so it is on
 * Qt's offscreen platform, which tests use. On Wayland, and on Qt's minimal platform, none of it works,
 * and the answer is Unavailable, which saves the user a picture of black pixels. What decides is the
 * platform of the running QGuiApplication: a program that runs through Xwayland counts as X11, although
 * it sees at most the windows of other X11 programs, and may read black instead.
 *
 * A number that is none of the enumerators is no permission that anybody guards: granted.
 */
QTUTILITY_EXPORT AccessStatus IsPrivacyAccessGranted(PrivacyType type);

/**
 * Asks for @p type where the system lets programs ask, and returns whether it is granted afterwards.
 *
 * macOS shows its own dialog, once in the life of an installation, and does not wait for the answer: the
 * result is then false, and the permission holds from the program's next start. Everywhere else nothing
 * is asked and the result is that of IsPrivacyAccessGranted().
 */
QTUTILITY_EXPORT bool RequestPrivacyAccess(PrivacyType type);

} // namespace Orvane::Util
