#pragma once

#include "World.h"

#include <QEvent>
#include <QPoint>

#include <optional>

/**
 * The X server's mouse and keyboard, in the place of the events that the actions make. What comes of them
 * comes when it comes: no seed repeats it.
 */
namespace RealUser {

/// From now on.
void begin();
bool isThere();

void moveMouse(const QPoint& point);
void press(Qt::MouseButton button);
void release(Qt::MouseButton button);
void turnWheel(bool up);
/// Strikes the key that the server knows by @p name, while those of @p modifiers are down.
void strike(const char* name, Qt::KeyboardModifiers modifiers);

/// Lets go of the buttons, and returns when all that was done has arrived.
void finish();

/// Moves the mouse over a window if Qt takes a button for pressed that was released over none. After begin().
void comeBack();

/// What goes on while @p receiver gets @p event: nothing, unless it comes from the window system.
std::optional<Doings> hear(const QObject* receiver, const QEvent& event);

/// How often the mouse or the keyboard has reached a widget of the libraries, or a part of one.
int count();

} // namespace RealUser
