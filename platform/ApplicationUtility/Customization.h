#pragma once

#include <ApplicationUtility/ApplicationUtilityExport.h>

#include <QString>

/**
 * What the application adapts to the user's language.
 */
namespace Customization {

/**
 * Returns a label text that shows @p title as a heading, in a weight that suits the current language: that of
 * the default QLocale. Call it again when the language changes.
 *
 * The heading is bold where the language and all letters of the title use scripts with a tradition of bold
 * type: Latin, Greek, Cyrillic, Armenian, Georgian, Hebrew and Coptic. Otherwise it has the label's weight:
 * at label size bold fills in the strokes of Chinese, Japanese, Korean, Indic and South-East Asian scripts,
 * breaks the joins of Arabic, and is synthesised where a font has none. A title that is not translated yet,
 * or names a foreign work, stays legible. Digits, punctuation, symbols and emoji suit every weight.
 *
 * The title is plain text: "<b>&amp;" is shown with these characters. Line breaks, tabs and runs of blanks
 * are kept, and lines wrap where the label wraps. The result is rich text to Qt, with Qt::AutoText and
 * Qt::RichText alike, and has no direction of its own: a title in a right-to-left script runs from the right,
 * as in a plain label. The empty title gives the empty string.
 */
APPLICATIONUTILITY_EXPORT QString localeDependedBoldText(const QString& title);

} // namespace Customization
