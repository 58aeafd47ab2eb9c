#pragma once

#include <QtUtility/QtUtilityExport.h>

#include <QObject>

#include <memory>

namespace Orvane::Util {

/**
 * The part of Scheduler that does not depend on its target's type. Do not use it by itself.
 */
class QTUTILITY_EXPORT SchedulerBase : public QObject
{
    Q_OBJECT

public:
    ~SchedulerBase() override;

    /// Requests a call. The first request makes one pending; requests while it is pending are merged into it
    /// and do not delay it. Does nothing while the scheduler is disabled. May be called from any thread while
    /// the scheduler lives, also from inside the call, where it requests the next one.
    void schedule();

    /// Enables or disables the scheduler; enabled by default. A disabled one takes no requests and drops a
    /// call that comes due; a pending call is made if the scheduler is enabled again in time.
    void setEnabled(bool enabled);
    bool isEnabled() const;

    /// Whether a call is pending; false while the call runs.
    bool isPending() const;

protected:
    explicit SchedulerBase(int delayMs);

    /// Makes the call. May delete the scheduler.
    virtual void call() = 0;

    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    class QTUTILITY_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
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
 * The call is made once, the delay after the first request of a burst. Unlike with a debounce, later requests
 * do not restart the delay: a steady stream of requests gets one call for each delay. A request after, or
 * from inside, the call starts the next burst.
 *
 * The first request posts an event, the others only see that one is pending. The delay starts when the event
 * loop of the scheduler's thread delivers the event; the call runs in that thread. The timer is coarse, with
 * a tolerance of 5 %.
 *
 * The target is not owned and must outlive the scheduler, which is usually its member. Destroying the
 * scheduler drops a pending call. The call may delete the target with the scheduler in it.
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
