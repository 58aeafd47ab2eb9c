#pragma once

#include <QEvent>
#include <QWidget>

#include <functional>
#include <utility>

/// Calls a function before a widget sees an event of a type.
class OnEvent : public QObject
{
public:
    OnEvent(QEvent::Type type, QWidget* widget, std::function<void()> call)
        : m_type(type)
        , m_call(std::move(call))
    {
        widget->installEventFilter(this);
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
