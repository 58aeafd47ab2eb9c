#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QtTest>

/// Counts the timers that go off in the application, without the clock that it measures time by.
class TimerCounter : public QObject
{
public:
    TimerCounter() { QCoreApplication::instance()->installEventFilter(this); }

    /// As many as while the clock ticks @p ticks times, every 10 ms. -1 when the clock stands still.
    int countDuring(int ticks)
    {
        int ticked = 0;
        const auto counting = connect(&m_clock, &QTimer::timeout, this, [&ticked] { ++ticked; });
        m_count = 0;
        m_clock.start(10);
        const bool done = QTest::qWaitFor([&] { return ticked >= ticks; }, 60000);
        m_clock.stop();
        disconnect(counting);
        return done ? m_count : -1;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Waiting for a condition uses a timer of the event dispatcher's.
        if (event->type() == QEvent::Timer && watched != &m_clock &&
            !watched->inherits("QAbstractEventDispatcher")) {
            ++m_count;
        }
        return false;
    }

private:
    QTimer m_clock;
    int m_count = 0;
};

/// How many timers of @p root and of what it owns are started, whenever they are due. A QMovie hides its own:
/// ask for its state.
inline int startedTimers(QObject* root)
{
    int count = QAbstractEventDispatcher::instance()->registeredTimers(root).size();
    const QObjectList& children = root->children();
    for (QObject* child : children) {
        count += startedTimers(child);
    }
    return count;
}
