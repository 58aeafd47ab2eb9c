#pragma once

#include <QObject>
#include <QStringList>
#include <QTranslator>

/**
 * The language of the application's texts: the gallery's, the example's, the library's and, where it is
 * installed, Qt's own.
 */
class LanguageController : public QObject
{
    Q_OBJECT

public:
    /// Starts with English.
    explicit LanguageController(QObject* parent = nullptr);
    ~LanguageController() override;

    /// The codes of all languages.
    static QStringList languages();

    /// The language's name in itself.
    static QString nativeName(const QString& code);

    QString language() const { return m_language; }

    /// An unknown code changes nothing.
    void setLanguage(const QString& code);

Q_SIGNALS:
    /// From now on, tr() returns texts in the language @p code, and the layout has its direction.
    void languageChanged(const QString& code);

private:
    void load(const QString& code);

    QString m_language;
    QTranslator m_gallery;
    QTranslator m_titleCard;
};
