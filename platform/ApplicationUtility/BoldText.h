// Internal: what Customization knows about scripts and rich text.
#pragma once

#include <QLocale>
#include <QString>

namespace BoldText {

/// Whether bold type suits a language that is written in @p script. A locale without a script does.
bool suits(QLocale::Script script);

/// Whether bold type suits every letter of @p title.
bool suits(const QString& title);

/// Rich text that shows the characters of @p title, bold or in the label's weight.
QString label(const QString& title, bool bold);

} // namespace BoldText
