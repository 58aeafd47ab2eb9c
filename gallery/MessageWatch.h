#pragma once

#include <QStringList>
#include <QtGlobal>

/**
 * Collects the warnings and worse that are logged while it lives, and passes messages on.
 */
class MessageWatch
{
public:
    MessageWatch();
    ~MessageWatch();
    MessageWatch(const MessageWatch&) = delete;
    MessageWatch& operator=(const MessageWatch&) = delete;

    /// The warnings since the last call.
    QStringList takeWarnings();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QtMessageHandler m_previous = nullptr;
    QStringList m_warnings;
};
