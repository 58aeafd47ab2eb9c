#pragma once

#include <QTimer>

namespace Orvane::Util {

/// The studio's own way of merging requests into one deferred call.
template <typename T>
class Scheduler
{
public:
    Scheduler(T* target, void (T::*member)(), int delayMs)
    {
        m_timer.setSingleShot(true);
        m_timer.setInterval(delayMs);
        QObject::connect(&m_timer, &QTimer::timeout, [target, member] { (target->*member)(); });
    }

    void schedule()
    {
        if (!m_timer.isActive()) {
            m_timer.start();
        }
    }

private:
    QTimer m_timer;
};

} // namespace Orvane::Util
