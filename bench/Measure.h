// Two ways to the same end, timed in turns in one run, so that what else the machine does meets both: only
// their ratio says anything on another machine.
#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string_view>
#include <vector>

namespace Traces::Bench {

/// Processor time of this process in microseconds.
inline double ProcessorMicroseconds()
{
    return static_cast<double>(std::clock()) * 1E6 / static_cast<double>(CLOCKS_PER_SEC);
}

/// Keeps the compiler from leaving out work whose result nobody reads.
template <class T>
void Keep(const T& value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

struct Times {
    double Ours, Theirs; ///< microseconds a call
};

/// The least time of each over many rounds: what other processes do only adds to it. Both are called with
/// the number of the call, so that they can vary what they work on.
template <class Ours, class Theirs>
Times TimeInTurns(Ours&& ours, Theirs&& theirs)
{
    constexpr int rounds = 40;
    constexpr double roundMicroseconds = 5000;
    const auto round = [](auto& work, int calls) {
        const double begin = ProcessorMicroseconds();
        for (int call = 0; call < calls; ++call)
            work(call);
        return (ProcessorMicroseconds() - begin) / calls;
    };
    const auto callsFor = [&](auto& work) {
        constexpr int trial = 16;
        return static_cast<int>(roundMicroseconds / std::max(round(work, trial), 0.01)) + 1;
    };
    const int ourCalls = callsFor(ours);
    const int theirCalls = callsFor(theirs);
    Times least{1E30, 1E30};
    for (int i = 0; i < rounds; ++i) {
        least.Ours = std::min(least.Ours, round(ours, ourCalls));
        least.Theirs = std::min(least.Theirs, round(theirs, theirCalls));
    }
    return least;
}

/// Prints a line a comparison, and remembers whether all kept their limits.
class Report {
public:
    Report() { std::printf("%-58s %10s %10s %7s %7s\n", "", "ours/us", "other/us", "ratio", "limit"); }

    void Add(std::string_view what, const Times& times, double limit)
    {
        const double ratio = times.Ours / times.Theirs;
        const bool kept = ratio <= limit;
        allKept = allKept && kept;
        std::printf("%-58.*s %10.2f %10.2f %7.3f %7.2f%s\n", static_cast<int>(what.size()), what.data(),
                    times.Ours, times.Theirs, ratio, limit, kept ? "" : "  MISSED");
        std::fflush(stdout);
    }

    /// A figure for the reader's judgement, without a limit.
    void Note(std::string_view what, const Times& times)
    {
        std::printf("%-58.*s %10.2f %10.2f %7.3f\n", static_cast<int>(what.size()), what.data(), times.Ours,
                    times.Theirs, times.Ours / times.Theirs);
    }

    int ExitStatus() const { return allKept ? 0 : 1; }

private:
    bool allKept = true;
};

} // namespace Traces::Bench
