#include "Compare.h"

#include <QApplication>
#include <QStyleFactory>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <vector>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace Bench;
using Clock = std::chrono::steady_clock;

namespace {

constexpr double secondsOfASample = 1e-3;
constexpr double secondsOfARow = 3.0;
constexpr int minPairs = 25;
constexpr int maxPairs = 601;
constexpr int measurementsOfAnAmount = 5;

std::optional<Clock::time_point> stoppedAt;

/// Library code that leaves the upper halves of the AVX registers dirty makes the plain SSE code after it
/// several times slower, which would be counted against whichever side comes next.
void cleanVectorRegisters()
{
#if defined(__x86_64__) && defined(__GNUC__)
    static const bool hasAvx = __builtin_cpu_supports("avx") != 0;
    if (hasAvx) {
        __asm__ volatile("vzeroupper");
    }
#endif
}

double timeOf(const Side& side, int repetitions)
{
    if (side.before) {
        side.before();
    }
    cleanVectorRegisters();
    stoppedAt.reset();
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < repetitions; ++i) {
        side.run();
    }
    const Clock::time_point end = stoppedAt.value_or(Clock::now());
    if (side.after) {
        side.after();
    }
    // What a sample posted (paints, layouts, deferred deletes) must not be paid for in the next one.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return std::chrono::duration<double>(end - start).count() / repetitions;
}

int repetitionsFor(const Side& side)
{
    timeOf(side, 1);
    if (side.before || side.after) {
        return 1;
    }
    int repetitions = 1;
    for (double once = timeOf(side, 1); once * repetitions < secondsOfASample && repetitions < 1 << 24;) {
        repetitions *= 2;
        once = timeOf(side, repetitions);
    }
    return repetitions;
}

struct Estimate
{
    double median = 0.0;
    double low = 0.0;
    double high = 0.0;
};

/// The median and its 95 % interval, from the order of the samples alone.
Estimate estimate(std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    const auto count = static_cast<double>(samples.size());
    const auto at = [&samples, count](double rank) {
        const double last = count - 1.0;
        return samples[static_cast<std::size_t>(std::clamp(std::round(rank), 0.0, last))];
    };
    const double halfWidth = 0.98 * std::sqrt(count);
    const double middle = (count - 1.0) / 2.0;
    return {at(middle), at(middle - halfWidth), at(middle + halfWidth)};
}

/// The names are those that the run script reads.
void report(benchmark::State& state, const std::string& path, Goal goal, const char* unit,
            const std::vector<double>& ours, const std::vector<double>& references)
{
    const bool compared = !references.empty();
    std::vector<double> decisive;
    for (std::size_t i = 0; i < ours.size(); ++i) {
        decisive.push_back(compared ? ours[i] / references[i] : ours[i]);
    }
    const Estimate result = estimate(decisive);

    state.SetLabel(path + '|' + unit);
    const double median = estimate(ours).median;
    state.SetIterationTime(median);
    state.counters["ours"] = median;
    if (compared) {
        state.counters["reference"] = estimate(references).median;
        state.counters["ratio"] = result.median;
    }
    state.counters["low"] = result.low;
    state.counters["high"] = result.high;
    if (goal.kind != Goal::None) {
        state.counters["goal"] = goal.limit;
    }
}

void runRow(benchmark::State& state, const std::string& path, Goal goal, const std::function<Pair()>& make)
{
    const Pair pair = make();
    const bool compared = static_cast<bool>(pair.reference.run);
    if (compared == (goal.kind == Goal::Seconds)) {
        state.SkipWithError("a ratio needs a reference, and an absolute goal has none");
        return;
    }
    const int oursRepeated = repetitionsFor(pair.ours);
    const int referenceRepeated = compared ? repetitionsFor(pair.reference) : 0;

    std::vector<double> ours;
    std::vector<double> references;
    const auto sampleOurs = [&] { ours.push_back(timeOf(pair.ours, oursRepeated) / pair.operations); };
    const auto sampleReference = [&] {
        if (compared) {
            references.push_back(timeOf(pair.reference, referenceRepeated) / pair.operations);
        }
    };
    const Clock::time_point start = Clock::now();
    const auto goesOn = [&] {
        const auto taken = static_cast<int>(ours.size());
        return taken < minPairs ||
               (taken < maxPairs &&
                std::chrono::duration<double>(Clock::now() - start).count() < secondsOfARow);
    };
    while (goesOn()) {
        if (ours.size() % 2 == 0) {
            sampleOurs();
            sampleReference();
        } else {
            sampleReference();
            sampleOurs();
        }
    }
    report(state, path, goal, "s", ours, references);
}

void runRow(benchmark::State& state, const std::string& path, Goal goal, Amounts (*make)())
{
    const Amounts amounts = make();
    amounts.ours();
    amounts.reference();
    std::vector<double> ours;
    std::vector<double> references;
    for (int i = 0; i < measurementsOfAnAmount; ++i) {
        ours.push_back(static_cast<double>(amounts.ours()));
        references.push_back(static_cast<double>(amounts.reference()));
    }
    if (*std::min_element(references.begin(), references.end()) <= 0.0) {
        state.SkipWithError("the allocator cannot tell how much it handed out");
        return;
    }
    report(state, path, goal, "B", ours, references);
}

template <typename Make>
bool addRowOf(const std::string& path, Goal goal, const Make& make)
{
    // A row samples by itself, so that the two sides alternate: one iteration is the whole row.
    benchmark::RegisterBenchmark(path.c_str(),
                                 [path, goal, make](benchmark::State& state) {
                                     for ([[maybe_unused]] auto _ : state) {
                                         try {
                                             runRow(state, path, goal, make);
                                         } catch (const std::runtime_error& error) {
                                             state.SkipWithError(error.what());
                                         }
                                     }
                                 })
        ->Iterations(1)
        ->UseManualTime();
    return true;
}

} // namespace

bool Bench::addRow(const std::string& path, Goal goal, const std::function<Pair()>& make)
{
    return addRowOf(path, goal, make);
}

bool Bench::addRow(const std::string& path, Goal goal, Amounts (*make)())
{
    return addRowOf(path, goal, make);
}

void Bench::stopClock()
{
    stoppedAt = Clock::now();
}

qint64 Bench::allocatedBytes()
{
#if defined(__GLIBC__)
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
#else
    return 0;
#endif
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
