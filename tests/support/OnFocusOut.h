#pragma once

#include <QEvent>
#include <QWidget>

#include <functional>
#include <utility>

/// Calls a function when a widget loses the focus.
class OnFocusOut : public QObject
{
public:
    OnFocusOut(QWidget* widget, std::function<void()> call)
        : m_call(std::move(call))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusOut) {
            m_call();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    const std::function<void()> m_call;
};
