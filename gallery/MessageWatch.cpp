#include "MessageWatch.h"

#include <utility>

namespace {

// The handler is a plain function, so the watch in use has to be found without it.
MessageWatch* current = nullptr;

/// Qt's off-screen platform says so of windows with a smallest size or a mask, and of pop-ups, which take
/// the keyboard; it is nobody's fault.
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
