#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Puts every text of one context into angle brackets while it lives, so that texts that are translated are
/// seen. Whatever hears of a new language has heard of it when the constructor or the destructor returns.
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const char* context)
        : m_context(context)
    {
        QCoreApplication::installTranslator(this);
        QCoreApplication::processEvents();
    }
    ~MarkingTranslator() override
    {
        QCoreApplication::removeTranslator(this);
        QCoreApplication::processEvents();
    }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return m_context == context ? QLatin1Char('<') + QLatin1String(text) + QLatin1Char('>') : QString();
    }

private:
    const QByteArray m_context;
};
