#pragma once

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/**
 * The language of the application's texts: the gallery's, the library's and, where it is installed, Qt's
 * own.
 */
class LanguageController : public QObject
{
    Q_OBJECT

public:
    explicit LanguageController(QObject* parent = nullptr);
    /// Removes its translations from the application.
    ~LanguageController() override;

    /// The codes of all languages; the first is that of the source texts.
    static QStringList languages();

    /// The language's name in itself.
    static QString nativeName(const QString& code);

    QString language() const { return m_language; }

    /// An unknown code changes nothing.
    void setLanguage(const QString& code);

Q_SIGNALS:
    /// From now on, tr() returns texts in the language @p code.
    void languageChanged(const QString& code);

private:
    void removeTranslators();
    void load(const QString& name, const QString& folder);

    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
