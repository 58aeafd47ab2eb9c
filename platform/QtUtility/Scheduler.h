#pragma once

#include <QtUtility/QtUtilityExport.h>

#include <QObject>

#include <atomic>

namespace Orvane::Util {

/**
 * The part of a Scheduler that does not know whom it calls. Not to be used by itself.
 */
class QTUTILITY_EXPORT SchedulerBase : public QObject
{
    Q_OBJECT

public:
    ~SchedulerBase() override;

    /// Asks for a call. The first request makes one pending; requests while it is pending are merged
    /// into it and do not put it off. Nothing happens while the scheduler is disabled. May be called
    /// from any thread while the scheduler lives, also from inside the call, where it asks for the next
    /// one.
    void schedule();

    /// A disabled scheduler takes no requests, and a call that comes due while it is disabled is
    /// dropped. Enabling it again in time lets a pending call through. Enabled at first.
    void setEnabled(bool enabled);
    bool isEnabled() const;

    /// Whether a request waits for its call. It no longer does while the call runs.
    bool isPending() const;

    /// Milliseconds from the first request to the call.
    int delay() const { return m_delay; }

protected:
    explicit SchedulerBase(int delayMs);

    /// Makes the call. May delete the scheduler.
    virtual void call() = 0;

    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    std::atomic<int> m_state;
    const int m_delay;
    int m_timerId = 0;
};

/**
 * Merges bursts of requests into one deferred call of a member function.
 *
 *     class Field : public QWidget
 *     {
 *         void report();
 *         Orvane::Util::Scheduler<Field> m_reportScheduler{this, &Field::report, 100};
 *     };
 *
 * The call is made once, the delay after the first request of a burst; later requests do not restart the
 * delay, so a steady stream of requests still gets its calls, one for each delay. That is what sets it
 * apart from a debounce. A request after, or from inside, the call starts the next burst.
 *
 * Requests cost next to nothing: the first one posts an event, the others see that one is pending. The
 * delay starts when the event loop of the scheduler's thread gets to the event; the call runs in that
 * thread. The timer is coarse: expect 5 % of tolerance.
 *
 * The target is not owned and must outlive the scheduler, which is usually its member. Destroying the
 * scheduler drops a pending call. The target, with the scheduler in it, may be deleted inside the call.
 */
template <typename T>
class Scheduler final : public SchedulerBase
{
public:
    using Member = void (T::*)();

    /// Calls @p member of @p target @p delayMs milliseconds after the first request; a negative delay
    /// counts as 0, the next turn of the event loop. With a null target or member nothing is called.
    Scheduler(T* target, Member member, int delayMs)
        : SchedulerBase(delayMs)
        , m_target(target)
        , m_member(member)
    {
    }

private:
    void call() override
    {
        if (m_target && m_member) {
            (m_target->*m_member)();
        }
    }

    T* const m_target;
    const Member m_member;
};

} // namespace Orvane::Util
