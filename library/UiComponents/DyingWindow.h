// Internal: what keeps SearchWidget and EditSession from reporting to a window that is destroyed.

#pragma once

#include <QWidget>

namespace DyingWindow {

/// A window that is destroyed takes the focus from its widgets, which are intact then, while the receivers of
/// their signals may not be. It has left the focus chain by then.
inline bool is(const QWidget* window)
{
    return !window->nextInFocusChain();
}

} // namespace DyingWindow
