#include "Scheduler.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimerEvent>

namespace {

// The bits of the state. One atomic value holds both, so that all threads see them change together.
constexpr int enabledBit = 2;
constexpr int pendingBit = 4;
constexpr int enabledAndPending = enabledBit | pendingBit;

} // namespace

namespace Orvane::Util {

SchedulerBase::SchedulerBase(int delayMs)
    : m_state(enabledBit)
    , m_delay(qMax(0, delayMs))
{
}

SchedulerBase::~SchedulerBase() = default;

void SchedulerBase::schedule()
{
    int idle = enabledBit;
    if (m_state.compare_exchange_strong(idle, enabledAndPending)) {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

void SchedulerBase::setEnabled(bool enabled)
{
    if (enabled) {
        m_state.fetch_or(enabledBit);
    } else {
        m_state.fetch_and(~enabledBit);
    }
}

bool SchedulerBase::isEnabled() const
{
    return (m_state.load() & enabledBit) != 0;
}

bool SchedulerBase::isPending() const
{
    return (m_state.load() & pendingBit) != 0;
}

void SchedulerBase::customEvent(QEvent* event)
{
    if (event->type() != QEvent::User) {
        QObject::customEvent(event);
        return;
    }
    if (m_state.load() == enabledAndPending) {
        if (m_timerId == 0) {
            m_timerId = startTimer(m_delay, Qt::CoarseTimer);
        }
        return;
    }
    int disabledAndPending = pendingBit;
    m_state.compare_exchange_strong(disabledAndPending, 0);
}

void SchedulerBase::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timerId) {
        QObject::timerEvent(event);
        return;
    }
    killTimer(m_timerId);
    m_timerId = 0;
    const int before = m_state.fetch_and(~pendingBit);
    if ((before & enabledBit) != 0) {
        call(); // may have deleted this
    }
}

} // namespace Orvane::Util
