// Internal: who has the keyboard, for Pipette.

#pragma once

/// Whether another program has the keyboard, as the window manager has it. Qt reports an application inactive
/// also while nobody has it, as between two windows of which a slow window manager has taken it from one and
/// not yet given it to the other. True where nothing tells.
bool isFocusOfAnotherProgram();
