// bench/support/Ratio.h
#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

/// Times `system` and `plain`, which do the same, in turn, so that whatever else the machine does
/// falls on both. The time shown is that of `system`; the counter `ratio` is its part of the time
/// of `plain`. For benchmarks with UseManualTime.
template <typename System, typename Plain>
void measureRatio(benchmark::State& state, const System& system, const Plain& plain)
{
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;
    Seconds ofSystem{0};
    Seconds ofPlain{0};
    for (auto _ : state) {
        const auto begin = Clock::now();
        system();
        const auto middle = Clock::now();
        plain();
        const Seconds taken = middle - begin;
        state.SetIterationTime(taken.count());
        ofSystem += taken;
        ofPlain += Clock::now() - middle;
    }
    state.counters["ratio"] = ofSystem / ofPlain;
}
