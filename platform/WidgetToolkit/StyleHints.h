#pragma once

#include <QString>

/**
 * @file
 * The colour variants whose look is up to the host's style sheet.
 *
 * Each constant's text is its own name. Pass one to Util::applyStyleHint() or ColorHint::applyColorHint(); a
 * sheet then selects, say, `QLineEdit[styleHint="INPUT_LIGHT"]`. The toolkit gives the names no meaning.
 *
 * The constants are created, without allocating, when a library is loaded, and destroyed when it is unloaded.
 * Do not use them in the constructor of another object with static storage duration.
 */
// clazy:excludeall=non-pod-global-static

inline const QString LIGHT_GREY_ONE = QStringLiteral("LIGHT_GREY_ONE");
inline const QString LIGHT_GREY_TWO = QStringLiteral("LIGHT_GREY_TWO");
inline const QString WITHOUT_BG1 = QStringLiteral("WITHOUT_BG1");
inline const QString WITHOUT_BG2 = QStringLiteral("WITHOUT_BG2");
inline const QString WITHOUT_BG3 = QStringLiteral("WITHOUT_BG3");
inline const QString SELECT_LIGHT = QStringLiteral("SELECT_LIGHT");
inline const QString INPUT_LIGHT = QStringLiteral("INPUT_LIGHT");
inline const QString SLIDER_LIGHT = QStringLiteral("SLIDER_LIGHT");

/// The name of the toolkit's empty resource stream, for hosts; nothing in this repository reads it.
inline const QString RESOURCE_EMPTY_STREAM = QStringLiteral("RESOURCE##EMPTY_STREAM");
