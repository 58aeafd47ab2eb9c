#pragma once

#include <QTranslator>

/// Puts every text of one context into angle brackets, so that texts that were translated are seen.
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const char* context)
        : m_context(context)
    {
    }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return m_context == context ? QLatin1Char('<') + QLatin1String(text) + QLatin1Char('>') : QString();
    }

private:
    const QByteArray m_context;
};
