#include "MessageWatch.h"

#include <utility>

namespace {

// For the handler, which is a plain function.
MessageWatch* current = nullptr;

/// Qt's off-screen platform logs this for windows with a minimum size or a mask, and for pop-ups.
bool isPlatformRemark(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

} // namespace

MessageWatch::MessageWatch()
{
    Q_ASSERT_X(!current, "MessageWatch", "one at a time");
    current = this;
    m_previous = qInstallMessageHandler(&MessageWatch::handle);
}

MessageWatch::~MessageWatch()
{
    qInstallMessageHandler(m_previous);
    current = nullptr;
}

QStringList MessageWatch::takeWarnings()
{
    return std::exchange(m_warnings, {});
}

void MessageWatch::handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (isPlatformRemark(message)) {
        return;
    }
    if (type != QtDebugMsg && type != QtInfoMsg) {
        current->m_warnings.append(message);
    }
    if (current->m_previous) {
        current->m_previous(type, context, message);
    }
}
