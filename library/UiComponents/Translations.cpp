#include "Translations.h"

#include "LibraryObject.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <algorithm>

#ifdef UIC_CATALOGUES
/// Outside every namespace, as the macro demands: a static library's resources do not register themselves.
static void initCatalogues()
{
    Q_INIT_RESOURCE(uicomponents_catalogues);
}
#else
static void initCatalogues() {}
#endif

namespace {

QString catalogues()
{
    initCatalogues();
    return QString::fromLatin1(":/uicomponents/translations");
}

// By its translation Qt takes the direction of a new language, with or without a catalogue of its own.
[[maybe_unused]] const char* const textOfQt = QT_TRANSLATE_NOOP("QGuiApplication", "QT_LAYOUT_DIRECTION");

/// Installed once, and filled with one language after the other, to keep their places among the host's.
class Texts : public QObject // clazy:exclude=missing-qobject-macro
{
public:
    explicit Texts(QObject* parent)
        : QObject(parent)
    {
        QCoreApplication::installTranslator(&qt);
        QCoreApplication::installTranslator(&components);
    }

    QTranslator qt;
    QTranslator components;
};

Texts* texts()
{
    static QPointer<Texts> shared;
    if (!shared) {
        shared = new Texts(libraryObject());
    }
    return shared;
}

/// QTranslator takes no folder for the current one.
bool loadComponents(const QLocale& locale, const QString& folder)
{
    return !folder.isEmpty() && texts()->components.load(locale, QString::fromLatin1("uicomponents"),
                                                         QString::fromLatin1("_"), folder);
}

/// The first language of @p locale that @p folder or the library has.
bool loadFirst(const QLocale& locale, const QString& folder)
{
    const QStringList wanted = locale.uiLanguages();
    return std::any_of(wanted.begin(), wanted.end(), [&folder](const QString& language) {
        const QLocale one(language);
        return loadComponents(one, folder) || loadComponents(one, catalogues());
    });
}

bool loadQt(const QString& code, const QString& folder)
{
    return !folder.isEmpty() && texts()->qt.load(QString::fromLatin1("qtbase_") + code, folder);
}

} // namespace

QStringList Translations::languages(const QString& folder)
{
    const QString prefix = QString::fromLatin1("uicomponents_");
    const QString suffix = QString::fromLatin1(".qm");
    QStringList codes;
    for (const QString& place : {catalogues(), folder}) {
        const QStringList names =
            place.isEmpty() ? QStringList() : QDir(place).entryList({prefix + QLatin1Char('*') + suffix});
        for (const QString& name : names) {
            codes.append(name.mid(prefix.size()).chopped(suffix.size()));
        }
    }
    codes.removeDuplicates();
    codes.sort();
    return codes;
}

bool Translations::load(const QLocale& locale, const QString& folder)
{
    const bool isFound = loadFirst(locale, folder);
    if (!isFound) {
        loadComponents(QLocale(QLocale::English), catalogues());
    }
    const QString code = texts()->components.language();
    if (!loadQt(code, folder)) {
        loadQt(code, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    }
    // Otherwise the direction changes in the event loop, over one that the host has set meanwhile.
    QCoreApplication::sendPostedEvents(QCoreApplication::instance(), QEvent::LanguageChange);
    return isFound;
}
