// Internal: scripts and rich text, for Customization.

#pragma once

#include <QLocale>
#include <QString>

namespace CustomizationText {

/// Whether bold type suits a language that is written in @p script; true for QLocale::AnyScript.
bool suits(QLocale::Script script);

/// Whether bold type suits every letter of @p title.
bool suits(const QString& title);

/// Rich text that shows @p title literally, bold or in the label's weight.
QString label(const QString& title, bool bold);

} // namespace CustomizationText
