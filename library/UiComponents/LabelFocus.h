// Internal: how the label of a component with several parts leads to the first of them.

#pragma once

#include <QWidget>

namespace LabelFocus {

/// A label focuses its buddy only if the buddy's own policy takes the focus. With this one only labels and
/// setFocus() reach the component: Tab goes to its parts, and a click or wheel beside them gives no focus.
constexpr auto policy = static_cast<Qt::FocusPolicy>(Qt::WheelFocus & ~Qt::StrongFocus);

inline void lead(QWidget* component, QWidget* part, Qt::FocusPolicy componentPolicy = policy)
{
    component->setFocusPolicy(componentPolicy);
    component->setFocusProxy(part);
}

} // namespace LabelFocus
