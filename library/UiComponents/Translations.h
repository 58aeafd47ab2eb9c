#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QString>
#include <QStringList>

class QLocale;

/**
 * The language of the texts that the components show, and of those for readers.
 *
 *     QApplication application(argc, argv);
 *     Translations::load(QLocale());
 *
 * The catalogues are part of the library, wherever it is installed, built or copied to. Without a call the
 * texts are those of the sources, which are English but for the blending modes: they have names such as
 * "SourceOver".
 *
 * QLocale::setDefault(), which decides how numbers are written, stays with the host, as do its own texts: it
 * loads them before these. For the GUI thread only.
 * @see ColorBlendingComboBox
 */
namespace Translations {

/// The codes of all languages, sorted, such as "de" and "zh_CN": those of the library, and of the files
/// "uicomponents_<code>.qm" in @p folder.
UICOMPONENTS_EXPORT QStringList languages(const QString& folder = QString());

/// Gives all texts of the components the language of @p locale, or the first that there is of those that its
/// user reads (QLocale::uiLanguages()), and Qt's own texts the same one. The application gets the layout
/// direction of that language at once, as by any change of language; who wants another sets it afterwards.
/// Every widget gets a LanguageChange from the event loop; until then it keeps its texts.
///
/// A catalogue "uicomponents_<code>.qm" in @p folder, which is the host's, goes before the library's, as does
/// one of Qt, "qtbase_<code>.qm", before that of Qt's installation. There may be none of Qt: its texts are
/// English then.
///
/// The language takes the place of the one before. Returns false where there is no catalogue: then the
/// language is English. A QTranslator that the host has installed after the first call is asked before these,
/// which is how a host has other words for single texts.
///
/// Needs the application, and ends with it. Before the library is unloaded, its texts go by themselves.
UICOMPONENTS_EXPORT bool load(const QLocale& locale, const QString& folder = QString());

} // namespace Translations
