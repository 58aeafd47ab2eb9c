#pragma once

#include "World.h"

/**
 * What users, hosts and systems do.
 */
namespace Actions {

/// How long a button is shown pressed that is clicked without a mouse, in ms.
constexpr int maxClick = 200;

/// Takes one action, by chance.
void act(World& world);

/// One call, or one property, of @p object.
void call(World& world, QObject* object);

void enable(World& world, QWidget* widget, bool on);

/// Makes a component in a window that is in use.
void make(World& world);

/// Gives @p widget another parent, or none.
void move(World& world, QWidget* widget);

/// Releases the buttons that are pressed.
void letGo(World& world);

/// What the actions changed of the application is as at its start again.
void resetApplication();

} // namespace Actions
