#pragma once

#include <QtUtility/QtUtilityExport.h>

namespace Orvane::Util {

/// What an operating system may deny programs until the user allows it. The numbers are fixed.
enum class PrivacyType {
    InputMonitoring = 3, ///< seeing keys and buttons that go to other programs
    InputControl = 4,    ///< sending keys and clicks to other programs
    ScreenCapture = 5,   ///< reading what other programs show on the screen
};

/// Whether a program has a permission.
enum class AccessStatus {
    Granted = 0,
    Denied,      ///< the user has not allowed it yet, or no longer does
    Unavailable, ///< this platform cannot do it, so do not ask
};

/**
 * Returns whether the program may do @p type now. Never asks the user, and returns at once.
 *
 * macOS decides by itself. X11, Windows and Qt's offscreen platform have no such permissions: everything is
 * granted. On Wayland and on Qt's minimal platform nothing of it works: the result is Unavailable, also
 * where the desktop's portal hands out single colours or pictures that the user has chosen. The
 * platform is that of the running QGuiApplication: a program under Xwayland counts as X11, although it sees
 * at most the windows of other X11 programs, and may read black instead.
 *
 * A number that is no enumerator is granted.
 */
QTUTILITY_EXPORT AccessStatus IsPrivacyAccessGranted(PrivacyType type);

/**
 * Asks for @p type where the system lets programs ask, and returns whether it is granted afterwards.
 *
 * macOS shows its own dialog, once for each installation, and does not wait for the answer: the result is
 * then false, and the permission holds from the program's next start. Elsewhere nothing is asked, and the
 * result is that of IsPrivacyAccessGranted().
 */
QTUTILITY_EXPORT bool RequestPrivacyAccess(PrivacyType type);

} // namespace Orvane::Util
