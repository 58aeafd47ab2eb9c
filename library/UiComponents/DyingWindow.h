// Internal: what keeps SearchWidget and EditSession from reporting to a window that is destroyed.

#pragma once

#include <QWidget>

namespace DyingWindow {

/// A window takes the keyboard from its widgets when it is destroyed, while they are intact but their
/// listeners may not be. It has left the focus chain by then.
inline bool is(const QWidget* window)
{
    return !window->nextInFocusChain();
}

} // namespace DyingWindow
