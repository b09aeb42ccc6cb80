#include "measure.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <malloc.h>

namespace tavo::bench {

double Seconds(Clock clock, const std::function<void()>& work)
{
    const clockid_t id = clock == Clock::Wall ? CLOCK_MONOTONIC : CLOCK_PROCESS_CPUTIME_ID;
    const auto now = [id] {
        timespec time{};
        clock_gettime(id, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    };
    const double start = now();
    work();
    return now() - start;
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

namespace {

double Turn(const Plan& plan, const Contender& contender)
{
    if (contender.Ready)
        contender.Ready();
    return Seconds(plan.By, contender.Work);
}

} // namespace

Pair Measure(const Plan& plan, const Contender& tavo, const Contender& limit)
{
    std::vector<double> ours, theirs;
    for (int turn = 0; turn <= plan.Repeats; ++turn) {
        const double limitSeconds = Turn(plan, limit);
        const double tavoSeconds = Turn(plan, tavo);
        if (turn == 0)
            continue;
        ours.push_back(tavoSeconds);
        theirs.push_back(limitSeconds);
    }
    return {Median(ours), Median(theirs)};
}

double Measure(const Plan& plan, const Contender& tavo)
{
    std::vector<double> times;
    for (int turn = 0; turn <= plan.Repeats; ++turn)
        times.push_back(Turn(plan, tavo));
    times.erase(times.begin());
    return Median(times);
}

double HeapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void Note(const std::string& text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
}

void Print(const Plan& plan)
{
    std::printf("%-58s %11s %11s %7s %7s\n", "work", "Tavo", "limit", "ratio", "goal");
    for (const Result& row : plan.Results) {
        const double share = row.Limit > 0 ? row.Tavo / row.Limit : row.Tavo;
        char limit[32] = "", ratio[32] = "";
        if (row.Limit > 0) {
            std::snprintf(limit, sizeof limit, "%.2f %s", row.Limit, row.Unit.c_str());
            std::snprintf(ratio, sizeof ratio, "%.2f", share);
        }
        std::printf("%-58s %8.2f %-2s %11s %7s %7g  %s\n", row.Work.c_str(), row.Tavo,
                    row.Unit.c_str(), limit, ratio, row.Goal,
                    share <= row.Goal ? "reached" : "missed");
    }
}

void Fail(const std::string& what)
{
    std::fprintf(stderr, "tavo-bench: %s\n", what.c_str());
    std::exit(1);
}

} // namespace tavo::bench
