// Internal: what components change for the time of a call that may delete them.

#pragma once

#include <QPointer>
#include <QScopeGuard>

#include <utility>

/// As QScopedValueRollback, for a member of @p owner or of its private object, which the call may delete.
template <typename Value, typename Owner>
[[nodiscard]] auto scopedChange(Value& member, Value value, Owner* owner)
{
    return qScopeGuard([&member, before = std::exchange(member, value), self = QPointer<Owner>(owner)] {
        if (self) {
            member = before;
        }
    });
}
