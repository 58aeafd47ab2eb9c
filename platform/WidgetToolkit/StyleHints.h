#pragma once

#include <QString>

/**
 * @file
 * The colour variants whose look is up to the host's style sheet.
 *
 * Each constant's text is its own name. Pass one to Util::applyStyleHint() or ColorHint::applyColorHint(); a
 * sheet then selects, say, `QLineEdit[styleHint="INPUT_LIGHT"]`. The toolkit gives the names no meaning.
 *
 * The constants are created when a library is loaded, and destroyed when it is unloaded. Do not use them in
 * the constructor of another object with static storage duration.
 */
// clazy:excludeall=non-pod-global-static

inline const QString LIGHT_GREY_ONE = QString::fromLatin1("LIGHT_GREY_ONE");
inline const QString LIGHT_GREY_TWO = QString::fromLatin1("LIGHT_GREY_TWO");
inline const QString WITHOUT_BG1 = QString::fromLatin1("WITHOUT_BG1");
inline const QString WITHOUT_BG2 = QString::fromLatin1("WITHOUT_BG2");
inline const QString WITHOUT_BG3 = QString::fromLatin1("WITHOUT_BG3");
inline const QString SELECT_LIGHT = QString::fromLatin1("SELECT_LIGHT");
inline const QString INPUT_LIGHT = QString::fromLatin1("INPUT_LIGHT");
inline const QString SLIDER_LIGHT = QString::fromLatin1("SLIDER_LIGHT");

/// The name of the toolkit's empty resource stream, for hosts; nothing in this repository reads it.
inline const QString RESOURCE_EMPTY_STREAM = QString::fromLatin1("RESOURCE##EMPTY_STREAM");
