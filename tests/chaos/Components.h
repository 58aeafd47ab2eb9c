#pragma once

#include <functional>
#include <vector>

class QObject;
class QWidget;
class World;

/**
 * A public component: how a host makes one, and which calls Qt's meta-object does not know.
 */
struct Component
{
    struct Call
    {
        const char* name;
        std::function<void(QObject*, World&)> make;
    };

    const char* name;
    std::function<QObject*(World&, QWidget* parent)> make;
    std::vector<Call> calls;
};

namespace Components {

const std::vector<Component>& all();

/// Makes the windows of @p world.
void build(World& world);

/// Makes one component in @p parent, which may be null, and shows it. Returns it if it is a widget there.
QWidget* make(World& world, QWidget* parent);

/// Takes in the colour panels of the pop-up that is open.
void takeInPanels(World& world);

} // namespace Components
