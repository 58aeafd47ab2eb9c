#pragma once

#include <QString>

/**
 * The vocabulary of colour variants that a host's style sheet gives a look.
 *
 * Each constant's text is its own name. Hand one to Util::applyStyleHint() or
 * ColorHint::applyColorHint(); a style sheet then selects the widget with, say,
 * `QLineEdit[styleHint="INPUT_LIGHT"]`. The set is shared with the host: the toolkit attaches no
 * meaning to a name.
 *
 * The constants are built once when a library is loaded, without allocating, and destroyed when it is
 * unloaded. Do not use them from the constructor of another object with static storage duration.
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

/// The name of the toolkit's empty resource stream. It is part of the vocabulary that the toolkit hands
/// out; nothing in this repository reads it.
inline const QString RESOURCE_EMPTY_STREAM = QStringLiteral("RESOURCE##EMPTY_STREAM");
