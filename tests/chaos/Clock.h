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
/// Goes on to the next full second: Qt's timers depend on what is left of it.
void align();
void advance(int milliseconds);

/// What this thread has cost up to now, whatever the time.
qint64 cpuMilliseconds();
/// How long it has waited up to now for anything but a processor, in real time; 0 while time is not virtual.
qint64 waitedMilliseconds();

} // namespace Clock
