#include "TestMain.h"

#include <QtUtility/Scheduler.h>

#include <array>
#include <functional>
#include <thread>

using Orvane::Util::Scheduler;

namespace {

class Target
{
public:
    explicit Target(int delayMs = 0)
        : scheduler(this, &Target::called, delayMs)
    {
    }

    int calls = 0;
    std::function<void()> onCall;
    Scheduler<Target> scheduler;

private:
    void called()
    {
        ++calls;
        if (onCall) {
            const auto action = onCall; // outlives this object
            action();
        }
    }
};

/// Counts what reaches a scheduler, and can hold back its timer.
class Probe : public QObject
{
    Q_OBJECT

public:
    explicit Probe(QObject* scheduler)
        : m_scheduler(scheduler)
    {
        m_scheduler->installEventFilter(this);
    }

    int events = 0;
    int timeouts = 0;
    bool holdsTimer = false;

    bool eventFilter(QObject*, QEvent* event) override
    {
        events += event->type() == QEvent::User ? 1 : 0;
        if (event->type() == QEvent::Timer) {
            ++timeouts;
            return holdsTimer;
        }
        return false;
    }

    QList<QAbstractEventDispatcher::TimerInfo> timers() const
    {
        return QAbstractEventDispatcher::instance()->registeredTimers(m_scheduler);
    }

    void deliverPosted() const { QCoreApplication::sendPostedEvents(m_scheduler); }

private:
    QObject* const m_scheduler;
};

} // namespace

class tst_Scheduler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEnabledAndIdle()
    {
        Target target(100);
        QVERIFY(target.scheduler.isEnabled());
        QVERIFY(!target.scheduler.isPending());
        QVERIFY(Probe(&target.scheduler).timers().isEmpty());
    }

    void callsOnce()
    {
        Target target;
        target.scheduler.schedule();
        QVERIFY(target.scheduler.isPending());
        QCOMPARE(target.calls, 0);
        QTRY_COMPARE(target.calls, 1);
        QVERIFY(!target.scheduler.isPending());
        QVERIFY(Probe(&target.scheduler).timers().isEmpty());
        // Time enough for a timer that was not stopped.
        Target later;
        later.scheduler.schedule();
        QTRY_COMPARE(later.calls, 1);
        QCOMPARE(target.calls, 1);
    }

    void theDelayStartsWithTheFirstRequest()
    {
        Target target(100);
        Probe probe(&target.scheduler);
        target.scheduler.schedule();
        QVERIFY(probe.timers().isEmpty());
        probe.deliverPosted();
        const auto timers = probe.timers();
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.first().interval, 100);
        QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
        // A request while the timer runs neither restarts it nor posts.
        target.scheduler.schedule();
        probe.deliverPosted();
        QCOMPARE(probe.timers().size(), 1);
        QCOMPARE(probe.timers().constFirst().timerId, timers.first().timerId);
        QCOMPARE(probe.events, 1);
        QTRY_COMPARE(target.calls, 1);
        QCOMPARE(probe.timeouts, 1);
    }

    void aRequestAfterTheCallStartsTheNextBurst()
    {
        Target target;
        Probe probe(&target.scheduler);
        for (int burst = 1; burst <= 3; ++burst) {
            target.scheduler.schedule();
            target.scheduler.schedule();
            QTRY_COMPARE(target.calls, burst);
            QCOMPARE(probe.events, burst);
        }
    }

    void aRequestInsideTheCallStartsTheNextBurst()
    {
        Target target;
        Probe probe(&target.scheduler);
        target.onCall = [&] {
            if (target.calls < 3) {
                target.scheduler.schedule();
                target.scheduler.schedule();
            }
        };
        target.scheduler.schedule();
        QTRY_COMPARE(target.calls, 3);
        QCOMPARE(probe.events, 3);
        QVERIFY(!target.scheduler.isPending());
    }

    void isNotPendingInsideTheCall()
    {
        Target target;
        bool wasPending = true;
        target.onCall = [&] { wasPending = target.scheduler.isPending(); };
        target.scheduler.schedule();
        QTRY_COMPARE(target.calls, 1);
        QVERIFY(!wasPending);
    }

    void disabledTakesNoRequest()
    {
        Target target;
        Probe probe(&target.scheduler);
        target.scheduler.setEnabled(false);
        QVERIFY(!target.scheduler.isEnabled());
        target.scheduler.schedule();
        QVERIFY(!target.scheduler.isPending());
        probe.deliverPosted();
        QCOMPARE(probe.events, 0);

        target.scheduler.setEnabled(true);
        QVERIFY(target.scheduler.isEnabled());
        QVERIFY(!target.scheduler.isPending());
        target.scheduler.schedule();
        QTRY_COMPARE(target.calls, 1);
    }

    void disabledBeforeTheEvent()
    {
        Target target;
        Probe probe(&target.scheduler);
        target.scheduler.schedule();
        target.scheduler.setEnabled(false);
        QVERIFY(target.scheduler.isPending());
        probe.deliverPosted();
        QVERIFY(!target.scheduler.isPending());
        QVERIFY(probe.timers().isEmpty());
        // The dropped request does not come back.
        target.scheduler.setEnabled(true);
        QVERIFY(!target.scheduler.isPending());
        target.scheduler.schedule();
        QTRY_COMPARE(target.calls, 1);
        QCOMPARE(probe.events, 2);
    }

    void disabledBeforeTheTimer()
    {
        Target target;
        Probe probe(&target.scheduler);
        target.scheduler.schedule();
        probe.deliverPosted();
        target.scheduler.setEnabled(false);
        QTRY_COMPARE(probe.timeouts, 1);
        QVERIFY(!target.scheduler.isPending());
        QVERIFY(!target.scheduler.isEnabled());
        QVERIFY(probe.timers().isEmpty());
        QCOMPARE(target.calls, 0);

        target.scheduler.setEnabled(true);
        target.scheduler.schedule();
        QTRY_COMPARE(target.calls, 1);
    }

    void disabledInsideTheCall()
    {
        Target target;
        bool wasPending = false;
        target.onCall = [&] {
            target.scheduler.schedule();
            target.scheduler.setEnabled(false);
            wasPending = target.scheduler.isPending();
        };
        target.scheduler.schedule();
        QTRY_COMPARE(target.calls, 1);
        QVERIFY(wasPending);
        QTRY_VERIFY(!target.scheduler.isPending());
        QCOMPARE(target.calls, 1);
    }

    void enabledAgainBeforeTheEvent()
    {
        Target target;
        Probe probe(&target.scheduler);
        target.scheduler.schedule();
        target.scheduler.setEnabled(false);
        target.scheduler.setEnabled(true);
        target.scheduler.schedule(); // merged with the one that is still pending
        probe.deliverPosted();
        QCOMPARE(probe.events, 1);
        QTRY_COMPARE(target.calls, 1);
    }

    void enabledAgainBeforeTheTimer()
    {
        Target target(20);
        Probe probe(&target.scheduler);
        target.scheduler.schedule();
        probe.deliverPosted();
        const int timer = probe.timers().constFirst().timerId;
        target.scheduler.setEnabled(false);
        target.scheduler.setEnabled(true);
        target.scheduler.schedule();
        QCOMPARE(probe.timers().constFirst().timerId, timer);
        QTRY_COMPARE(target.calls, 1);
        QCOMPARE(probe.events, 1);
    }

    void strangeEventsChangeNothing()
    {
        Target target(20);
        Probe probe(&target.scheduler);
        QEvent user(QEvent::User);
        QEvent other(QEvent::Type(QEvent::User + 1));
        QCoreApplication::sendEvent(&target.scheduler, &user); // while idle
        QVERIFY(probe.timers().isEmpty());
        QVERIFY(target.scheduler.isEnabled());

        target.scheduler.schedule();
        QCoreApplication::sendEvent(&target.scheduler, &other); // while pending, of another type
        QVERIFY(probe.timers().isEmpty());
        probe.deliverPosted();
        QCoreApplication::sendEvent(&target.scheduler, &user); // while the timer runs
        QCOMPARE(probe.timers().size(), 1);
        QTRY_COMPARE(target.calls, 1);
        QVERIFY(probe.timers().isEmpty());
    }

    void strangeTimersChangeNothing()
    {
        Target target;
        Probe probe(&target.scheduler);
        target.scheduler.schedule();
        probe.deliverPosted();
        const int timer = probe.timers().constFirst().timerId;
        QTimerEvent strange(timer + 1000);
        QCoreApplication::sendEvent(&target.scheduler, &strange);
        QCOMPARE(target.calls, 0);
        QVERIFY(target.scheduler.isPending());
        // The time can be moved by hand, which tests of whole fields do.
        QTimerEvent ours(timer);
        QCoreApplication::sendEvent(&target.scheduler, &ours);
        QCOMPARE(target.calls, 1);
        QVERIFY(probe.timers().isEmpty());
    }

    void destroyedBeforeTheCall_data()
    {
        QTest::addColumn<bool>("isTimerRunning");
        QTest::newRow("an event is posted") << false;
        QTest::newRow("a timer is running") << true;
    }

    void destroyedBeforeTheCall()
    {
        QFETCH(bool, isTimerRunning);
        int calls = 0;
        auto target = std::make_unique<Target>();
        target->onCall = [&] { ++calls; };
        target->scheduler.schedule();
        if (isTimerRunning) {
            Probe(&target->scheduler).deliverPosted();
        }
        target.reset();
        Target later;
        later.scheduler.schedule();
        QTRY_COMPARE(later.calls, 1);
        QCOMPARE(calls, 0);
    }

    void targetDeletedInsideTheCall()
    {
        bool isDeleted = false;
        auto* target = new Target;
        target->onCall = [&isDeleted, target] {
            target->scheduler.schedule(); // dropped with the scheduler
            delete target;
            isDeleted = true;
        };
        target->scheduler.schedule();
        QTRY_VERIFY(isDeleted);
        Target later;
        later.scheduler.schedule();
        QTRY_COMPARE(later.calls, 1);
    }

    void negativeDelays()
    {
        Target target(-1);
        target.scheduler.schedule();
        QTRY_COMPARE(target.calls, 1);
    }

    void nothingToCall()
    {
        Target target;
        Scheduler<Target> noTarget(nullptr, nullptr, 0);
        Scheduler<Target> noMember(&target, nullptr, 0);
        noTarget.schedule();
        noMember.schedule();
        QTRY_VERIFY(!noTarget.isPending() && !noMember.isPending());
        QCOMPARE(target.calls, 0);
    }

    void requestsFromManyThreads()
    {
        Target target;
        Probe probe(&target.scheduler);
        bool isInOurThread = false;
        target.onCall = [&] { isInOurThread = QThread::currentThread() == target.scheduler.thread(); };
        std::array<std::thread, 4> threads;
        for (std::thread& thread : threads) {
            thread = std::thread([&target] {
                for (int n = 0; n < 1000; ++n) {
                    target.scheduler.schedule();
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        QCOMPARE(target.calls, 0);
        QTRY_COMPARE(target.calls, 1);
        QCOMPARE(probe.events, 1);
        QVERIFY(isInOurThread);
    }
};

UIC_TEST_MAIN(tst_Scheduler)
#include "tst_Scheduler.moc"
