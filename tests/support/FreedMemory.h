#pragma once

#include <cstddef>

/**
 * Tells whether anybody wrote into memory that was deleted already.
 *
 * The sanitizer sees only code that was compiled with it, and Qt is not: a handler of Qt's that goes on
 * using a widget that a slot has deleted passes unnoticed. While a watch is alive, every block that its
 * thread deletes with operator delete, in whatever library, is filled with a pattern and kept.
 *
 * A program that uses it has FreedMemory.cpp among its sources, which replaces its operator new and delete.
 * One watch at a time, and only briefly: the memory is not reused until its end.
 */
class FreedMemoryWatch
{
public:
    FreedMemoryWatch();
    /// Gives the memory back.
    ~FreedMemoryWatch();
    FreedMemoryWatch(const FreedMemoryWatch&) = delete;
    FreedMemoryWatch& operator=(const FreedMemoryWatch&) = delete;

    /// Blocks that were deleted since the watch began.
    std::size_t deleted() const;

    /// How many of them no longer hold the pattern.
    std::size_t writtenAfterwards() const;
};
