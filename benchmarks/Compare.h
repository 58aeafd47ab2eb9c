// Internal: what the benchmark programs of this folder register their rows with.

#pragma once

#include <QtGlobal>

#include <functional>
#include <string>

/**
 * Rows of the benchmark table.
 *
 * Only ratios inside one run mean something on a shared machine, so a row times two sides: ours and a
 * reference. Their samples alternate (ours first in one pair, the reference first in the next), a fast
 * side is repeated until a sample takes about a millisecond, and the row reports the median of the pairs'
 * ratios with its 95 % interval. A goal is missed when that whole interval lies above it; a median above
 * and an interval that reaches down to the goal is "within noise".
 *
 * To add a row, write in a Bench<Topic>.cpp that benchmarks/CMakeLists.txt names:
 *
 *     UIC_COMPARE("slider/set a new value", atMost(1.10), [] {
 *         auto ours = std::make_shared<ElegantSlider>();
 *         auto reference = std::make_shared<QSlider>();
 *         return Pair{{[=, v = 0]() mutable { ours->setValue(++v % 100); }},
 *                     {[=, v = 0]() mutable { reference->setValue(++v % 100); }}};
 *     });
 *
 * The function makes the fixtures once, when the row's turn comes and the application exists; they die
 * with the row. Nothing else is needed: `benchmarks/run` finds the row and puts it into the table.
 *
 * - Work that must not be timed goes into Side::before and Side::after, around every sample. Such a side
 *   runs once a sample, so it should take some 50 µs or more by itself. stopClock() ends what is timed of a
 *   sample before run() returns.
 * - A row without a reference has a goal in absolute time: `atMostMicroseconds(0.25)` and an empty second
 *   side.
 * - A row that is only reported has `noGoal()`.
 * - A row of memory returns Amounts instead of a Pair; see allocatedBytes().
 * - A fixture that finds that something else is timed than the row says throws a std::runtime_error: the row
 *   fails with its text, and benchmarks/run with it.
 *
 * Rows that differ in an argument are added by addRow(), with a function that captures it.
 */
namespace Bench {

/// What a row has to hold.
struct Goal
{
    enum Kind { None, Ratio, Seconds };

    Kind kind = None;
    double limit = 0.0;
};

constexpr Goal noGoal()
{
    return {};
}
constexpr Goal atMost(double ratio)
{
    return {Goal::Ratio, ratio};
}
constexpr Goal atMostMicroseconds(double microseconds)
{
    return {Goal::Seconds, microseconds * 1e-6};
}

/// One of the two things that are timed.
struct Side
{
    std::function<void()> run = {};
    std::function<void()> before = {};
    std::function<void()> after = {};
};

struct Pair
{
    Side ours;
    Side reference;
    /// How many operations one run() does; the times in the table are those of one.
    int operations = 1;
};

/// Two amounts that are measured, a few times each.
struct Amounts
{
    std::function<qint64()> ours;
    std::function<qint64()> reference;
};

/// Only for a side with `before` or `after`: what its run() does from here on is not timed.
void stopClock();

/// Bytes that the program holds from the allocator at the moment; 0 where the allocator cannot tell.
qint64 allocatedBytes();

bool addRow(const std::string& path, Goal goal, const std::function<Pair()>& make);
bool addRow(const std::string& path, Goal goal, Amounts (*make)());

} // namespace Bench

#define UIC_BENCH_JOIN_(a, b) a##b
#define UIC_BENCH_JOIN(a, b) UIC_BENCH_JOIN_(a, b)

#define UIC_COMPARE(path, goal, ...)                                                                         \
    static const bool UIC_BENCH_JOIN(uicBenchRow, __LINE__) = Bench::addRow(path, goal, __VA_ARGS__)
