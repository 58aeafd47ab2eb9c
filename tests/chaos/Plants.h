#pragma once

#include <QString>

class World;

/**
 * Faults that the program has to find, for its own test.
 */
namespace Plants {

/// Plants the fault of that name in @p world; false where there is none of it.
bool plant(const QString& name, World& world);

} // namespace Plants
