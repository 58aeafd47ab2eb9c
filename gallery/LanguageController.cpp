#include "LanguageController.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

LanguageController::LanguageController(QObject* parent)
    : QObject(parent)
    , m_language(languages().constFirst())
{
}

LanguageController::~LanguageController()
{
    removeTranslators();
}

QStringList LanguageController::languages()
{
    return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("ja")};
}

QString LanguageController::nativeName(const QString& code)
{
    // QLocale says "American English".
    return code == QLatin1String("en") ? QStringLiteral("English") : QLocale(code).nativeLanguageName();
}

void LanguageController::setLanguage(const QString& code)
{
    if (code == m_language || !languages().contains(code)) {
        return;
    }
    removeTranslators();
    m_language = code;
    QLocale::setDefault(QLocale(code));
    if (code != languages().constFirst()) {
        const QString ours = QStringLiteral(":/translations");
        load(QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        load(QStringLiteral("uicomponents_") + code, ours);
        load(QStringLiteral("gallery_") + code, ours);
        load(QStringLiteral("titlecard_") + code, QCoreApplication::applicationDirPath());
    }
    Q_EMIT languageChanged(code);
}

void LanguageController::removeTranslators()
{
    for (const auto& translator : m_translators) {
        QCoreApplication::removeTranslator(translator.get());
    }
    m_translators.clear();
}

void LanguageController::load(const QString& name, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(name, folder)) {
        QCoreApplication::installTranslator(translator.get());
        m_translators.push_back(std::move(translator));
    }
}
