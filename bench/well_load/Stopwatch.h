// bench/well_load/Stopwatch.h
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

/// What one run took, in seconds. Ratios are made of processor time, which other programs on the
/// machine disturb least; nothing measured here waits for anything else.
struct Took {
    double wall;
    double processor;
};

template <class Work> Took timed(Work work)
{
    using Clock = std::chrono::steady_clock;
    const auto processor = [] {
        timespec now{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
    };
    const auto wallStart = Clock::now();
    const double processorStart = processor();
    work();
    return {std::chrono::duration<double>(Clock::now() - wallStart).count(),
        processor() - processorStart};
}

inline double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// The median over the rounds of how many times `over` the runs took.
inline double medianRatio(const std::vector<Took>& runs, const std::vector<Took>& over)
{
    std::vector<double> ratios;
    for (std::size_t i = 0; i < runs.size(); ++i)
        ratios.push_back(runs[i].processor / over[i].processor);
    return median(ratios);
}

inline double medianWall(const std::vector<Took>& runs)
{
    std::vector<double> walls;
    for (const Took& run : runs)
        walls.push_back(run.wall);
    return median(walls);
}

inline double leastWall(const std::vector<Took>& runs)
{
    return std::ranges::min(runs, {}, &Took::wall).wall;
}

inline void showGoal(const char* name, double value, double limit)
{
    std::printf(
        "%-34s %7.2f  at most %6.2f  %s\n", name, value, limit, value <= limit ? "met" : "MISSED");
}
