#pragma once

class World;

/**
 * Somebody who has the windows read aloud: hears what changes in the middle of the change, and acts.
 */
namespace Reader {

/// To the windows of @p world until the next call; null for none.
void listen(const World* world);

/// One look at a widget, or at one that was looked at before and may be gone; and perhaps an action.
void act(World& world);

} // namespace Reader
