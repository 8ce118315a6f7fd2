#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace tessel::bench {

/// Brings the machine into the state in which a program meets a document: nothing of it in the processor's
/// caches, as after reading a file once, and the pieces of memory that the last round freed joined, which the
/// allocator would else put off until the next large request. Without this, small documents would only be
/// measured in the caches.
inline void settle()
{
    static std::vector<char> other(64 * 1024 * 1024);
    for (std::size_t i = 0; i < other.size(); i += 64)
        ++other[i];
    benchmark::DoNotOptimize(other.data());
    void *large = std::malloc(64 * 1024);
    benchmark::DoNotOptimize(large);
    std::free(large);
}

/// Times \a work alone, after \a prepare: what it makes is freed while the clock stands. The fastest round is
/// what tables show.
template<typename Work, typename Prepare>
void measure(benchmark::State &state, Work &&work, Prepare &&prepare)
{
    using Clock = std::chrono::steady_clock;
    double best = std::numeric_limits<double>::max();
    for ([[maybe_unused]] auto round : state) {
        prepare();
        const auto start = Clock::now();
        const auto result = work();
        benchmark::DoNotOptimize(&result);
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        state.SetIterationTime(seconds);
        best = std::min(best, seconds);
    }
    state.counters["best"] = best;
}

/// One line of the table that all benchmarks share: a figure, that of its peer in the same run, and the
/// ratio, which stays below the limit; 0: there is none. The peer of a growth is the same work on a small
/// input.
inline void printRow(const std::string &title, double ours, double peer, const char *unit, double limit = 0)
{
    std::printf("%-58s %12.4g %12.4g %-8s %7.3f ", title.c_str(), ours, peer, unit, ours / peer);
    if (limit > 0)
        std::printf("%6.2f%s\n", limit, ours > limit * peer ? " over" : "");
    else
        std::printf("%6s\n", "");
}

/// Keeps the fastest round of each measurement for the table, which alone goes to standard output.
class Collector : public benchmark::ConsoleReporter {
public:
    Collector() { SetOutputStream(&std::cerr); }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const double time = run.counters.at("best").value;
            const auto known = seconds.emplace(run.run_name.function_name, time).first;
            known->second = std::min(known->second, time);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> seconds;
};

} // namespace tessel::bench
