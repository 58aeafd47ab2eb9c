#pragma once

#include <QEvent>
#include <QObject>

#include <functional>
#include <utility>

/// Calls a function before an object sees an event of a type; before any object does, for the application.
class OnEvent : public QObject
{
public:
    OnEvent(QEvent::Type type, QObject* object, std::function<void()> call)
        : m_type(type)
        , m_call(std::move(call))
    {
        object->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == m_type) {
            m_call();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    const QEvent::Type m_type;
    const std::function<void()> m_call;
};
