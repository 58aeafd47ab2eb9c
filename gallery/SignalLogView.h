#pragma once

#include <QFrame>

class QPlainTextEdit;
class SignalLogger;

/**
 * The signals of a page's components, newest last, with a button that clears them.
 */
class SignalLogView : public QFrame
{
    Q_OBJECT

public:
    explicit SignalLogView(QWidget* parent = nullptr);
    ~SignalLogView() override;

    /// Shows every signal of @p object from now on, under the name @p name.
    void watch(const QObject* object, const char* name);

    /// Adds a line of the page's own, such as the result of a call.
    void addLine(const QString& line);

    void clear();

private:
    QPlainTextEdit* const m_text;
    SignalLogger* const m_logger;
};
