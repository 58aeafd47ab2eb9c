#include "CustomizationText.h"

#include <algorithm>

bool CustomizationText::suits(QLocale::Script script)
{
    switch (script) {
    case QLocale::AnyScript:
    case QLocale::LatinScript:
    case QLocale::GreekScript:
    case QLocale::CyrillicScript:
    case QLocale::ArmenianScript:
    case QLocale::GeorgianScript:
    case QLocale::HebrewScript:
    case QLocale::CopticScript:
        return true;
    default:
        return false;
    }
}

bool CustomizationText::suits(const QString& title)
{
    const auto characters = title.toUcs4();
    return std::all_of(characters.cbegin(), characters.cend(), [](uint character) {
        switch (QChar::script(character)) {
        case QChar::Script_Unknown: // such as private use, for icon fonts
        case QChar::Script_Inherited:
        case QChar::Script_Common:
        case QChar::Script_Latin:
        case QChar::Script_Greek:
        case QChar::Script_Cyrillic:
        case QChar::Script_Armenian:
        case QChar::Script_Georgian:
        case QChar::Script_Hebrew:
        case QChar::Script_Coptic:
            return true;
        default:
            return false;
        }
    });
}

QString CustomizationText::label(const QString& title, bool bold)
{
    if (title.isEmpty()) {
        return {};
    }
    QString text = title.toHtmlEscaped();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    // One paragraph: another one would have a margin and a direction of its own.
    for (const QChar lineBreak :
         {QChar(u'\n'), QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)}) {
        text.replace(lineBreak, QLatin1String("<br/>"));
    }
    // QTextDocument marks the beginning and end of a frame with these.
    for (const QChar mark : {QChar(0xfdd0), QChar(0xfdd1)}) {
        text.replace(mark, QChar(QChar::ReplacementCharacter));
    }
    const QString element = bold ? QString::fromLatin1("b") : QString::fromLatin1("span");
    return QLatin1Char('<') + element + QLatin1String(" style=\"white-space: pre-wrap\">") + text +
           QLatin1String("</") + element + QLatin1Char('>');
}
