#include "Scheduler.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimerEvent>

#include <atomic>

namespace {

// The bits of the state. One atomic value holds both, so that all threads see them change together.
constexpr int enabledBit = 2;
constexpr int pendingBit = 4;
constexpr int enabledAndPending = enabledBit | pendingBit;

} // namespace

namespace Orvane::Util {

class SchedulerBase::Private
{
public:
    explicit Private(int delayMs)
        : delay(qMax(0, delayMs))
    {
    }

    std::atomic<int> state{enabledBit};
    const int delay;
    int timerId = 0;
};

SchedulerBase::SchedulerBase(int delayMs)
    : d(std::make_unique<Private>(delayMs))
{
}

SchedulerBase::~SchedulerBase() = default;

void SchedulerBase::schedule()
{
    int idle = enabledBit;
    if (d->state.compare_exchange_strong(idle, enabledAndPending)) {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

void SchedulerBase::setEnabled(bool enabled)
{
    if (enabled) {
        d->state.fetch_or(enabledBit);
    } else {
        d->state.fetch_and(~enabledBit);
    }
}

bool SchedulerBase::isEnabled() const
{
    return (d->state.load() & enabledBit) != 0;
}

bool SchedulerBase::isPending() const
{
    return (d->state.load() & pendingBit) != 0;
}

void SchedulerBase::customEvent(QEvent* event)
{
    if (event->type() != QEvent::User) {
        QObject::customEvent(event);
        return;
    }
    if (d->state.load() == enabledAndPending) {
        if (d->timerId == 0) {
            d->timerId = startTimer(d->delay, Qt::CoarseTimer);
        }
        return;
    }
    int disabledAndPending = pendingBit;
    d->state.compare_exchange_strong(disabledAndPending, 0);
}

void SchedulerBase::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != d->timerId) {
        QObject::timerEvent(event);
        return;
    }
    killTimer(d->timerId);
    d->timerId = 0;
    const int before = d->state.fetch_and(~pendingBit);
    if ((before & enabledBit) != 0) {
        call(); // may have deleted this
    }
}

} // namespace Orvane::Util
