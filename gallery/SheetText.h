#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <memory>

struct QMetaObject;

namespace QCss {
struct StyleSheet;
}

/**
 * The text of a style sheet, read with Qt's own parser, and the lines of what is in it. Lines count from 1.
 *
 * It is stricter than Qt, which silently ignores what it cannot read inside a rule.
 */
class SheetText
{
    Q_DECLARE_TR_FUNCTIONS(SheetText)

public:
    struct Declaration
    {
        QString property;
        QString value;
        int line = 0;
    };

    struct Rule
    {
        QVector<Declaration> declarations;
        int line = 0;
    };

    /// Empty @p text is a sheet without rules.
    explicit SheetText(QString text = QString());

    QString text() const { return m_text; }

    /// The line of the first error; 0 when there is none.
    int errorLine() const { return m_errorLine; }

    /// Says what is wrong there, in the present language.
    QString error() const { return m_error; }

    /// All rules; those before the first error that Qt would not pass over. Rules below an at-rule are left
    /// out, as in widgets.
    QVector<Rule> rules() const { return m_rules; }

    /// The sheet as Qt compares it with widgets. The order of a rule in it is its index in rules().
    const QCss::StyleSheet& sheet() const;

private:
    class Reader;

    QString m_text;
    QVector<Rule> m_rules;
    int m_errorLine = 0;
    QString m_error;
    /// Made when it is asked for: Qt logs warnings for some errors.
    mutable std::shared_ptr<const QCss::StyleSheet> m_sheet;
};

/// The name by which a type selector selects a class: that of a class in a namespace has dashes for colons.
QString selectorName(const QMetaObject* meta);
