#pragma once

#include <QtGlobal>

/**
 * The time that the program, Qt included, lives in.
 *
 * Real time makes no two runs alike. Once it is virtual, time stands still while code runs; it moves by
 * advance(), and by as much as an event loop would wait.
 */
namespace Clock {

void makeVirtual();
void advance(int milliseconds);

/// What this thread has cost up to now, whatever the time.
qint64 cpuMilliseconds();

} // namespace Clock
