#pragma once

#include <QStringList>
#include <QtGlobal>

/**
 * Collects warnings and errors for as long as it exists, and passes all messages on.
 */
class MessageWatch
{
public:
    MessageWatch();
    ~MessageWatch();
    MessageWatch(const MessageWatch&) = delete;
    MessageWatch& operator=(const MessageWatch&) = delete;

    /// Returns the warnings since the last call.
    QStringList takeWarnings();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QtMessageHandler m_previous = nullptr;
    QStringList m_warnings;
};
