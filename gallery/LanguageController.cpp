#include "LanguageController.h"

#include <UiComponents/Translations.h>

#include <QCoreApplication>
#include <QLocale>

LanguageController::LanguageController(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::installTranslator(&m_gallery);
    QCoreApplication::installTranslator(&m_titleCard);
    load(QStringLiteral("en"));
}

LanguageController::~LanguageController() = default;

QStringList LanguageController::languages()
{
    return Translations::languages();
}

QString LanguageController::nativeName(const QString& code)
{
    // QLocale says "American English" and "español de España".
    if (code == QLatin1String("en")) {
        return QStringLiteral("English");
    }
    if (code == QLatin1String("es")) {
        return QStringLiteral("Español");
    }
    const QLocale locale(code);
    const QString name = locale.nativeLanguageName();
    return locale.toUpper(name.mid(0, 1)) + name.mid(1);
}

void LanguageController::setLanguage(const QString& code)
{
    if (code != m_language && languages().contains(code)) {
        load(code);
        Q_EMIT languageChanged(code);
    }
}

void LanguageController::load(const QString& code)
{
    const QString ours = QStringLiteral(":/gallery/translations");
    const QLocale locale(code);
    m_language = code;
    QLocale::setDefault(locale);
    m_gallery.load(QStringLiteral("gallery_") + code, ours);
    m_titleCard.load(QStringLiteral("titlecard_") + code, ours);
    Translations::load(locale);
}
