#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

// QTest moves without a button, takes the point (0, 0) for the middle and warns of points outside.

inline void sendMouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
                      Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void press(QWidget& widget, const QPoint& at, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(widget, QEvent::MouseButtonPress, at, button, button);
}

inline void drag(QWidget& widget, const QPoint& to)
{
    sendMouse(widget, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
}

inline void release(QWidget& widget, const QPoint& at, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}
