// Internal: who has the keyboard, for Pipette.

#pragma once

/// Whether another program has the keyboard. Qt reports an application inactive also while nobody has it, as
/// between two windows of which a slow window manager has taken it from one and not yet given it to the
/// other, and while it has not heard yet that a window of its own has it. True where the platform does not
/// tell.
bool isFocusOfAnotherProgram();
