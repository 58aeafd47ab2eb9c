#pragma once

#include <ApplicationUtility/ApplicationUtilityExport.h>

#include <QString>

/**
 * What the application adapts to the user's language.
 */
namespace Customization {

/**
 * A label text that shows @p title as a heading, in a weight that suits the current language, which is
 * that of the default QLocale at the time of the call: call it again when the language changes.
 *
 * The heading is bold where both the language is written in, and all letters of the title belong to,
 * scripts that have a tradition of bold type: Latin, Greek, Cyrillic, Armenian, Georgian, Hebrew and
 * Coptic. It has the label's own weight otherwise: bold fills in the strokes of Chinese, Japanese and
 * Korean and of the Indic and South-East Asian scripts at label size, breaks the joins of Arabic, and is
 * made up by thickening where a font has none. So the headings of one interface look alike, and a title
 * that is not translated yet, or names a foreign work, stays legible. Digits, punctuation, symbols and
 * emoji suit every weight.
 *
 * The title is text, not markup: "<b>&amp;" is shown with just these characters. Line breaks, tabs and
 * runs of blanks are kept, and lines still wrap where the label wraps. The result is always rich text
 * to Qt (Qt::AutoText and Qt::RichText show it alike), and has no direction of its own, so a title in a
 * right-to-left script runs from the right as it does in a plain label. The empty title gives the empty
 * string.
 */
APPLICATIONUTILITY_EXPORT QString localeDependedBoldText(const QString& title);

} // namespace Customization
