// Internal: the object names of the parts of components.

#pragma once

#include <QLatin1String>

/// Gives @p part the name by which style sheets and hosts find it.
template <typename Part>
Part* named(const char* name, Part* part)
{
    part->setObjectName(QLatin1String(name));
    return part;
}
