#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo::bench {

// One line of the table. Tavo and Limit are in one unit; a Goal is the largest
// good Tavo / Limit, or, where there is no Limit, the largest good Tavo.
struct Result {
    std::string Work;
    double Tavo = 0, Limit = 0;
    std::string Unit;
    double Goal = 0;
};

// Wall is what a person waits. Cpu leaves out what other programs take, for a
// machine that is busy; it also leaves out waiting for the disk.
enum class Clock { Wall, Cpu };

// What the measurements share.
struct Plan {
    std::string Folder; // for files, with its slash; is there and empty
    int Repeats = 5;
    int Files = 100'000; // of runs over many files
    Clock By = Clock::Wall;
    std::string Only; // works whose name holds this; all when empty
    std::vector<Result> Results;

    bool Wants(std::string_view work) const { return work.find(Only) != work.npos; }
};

// Seconds that `work` takes, once.
double Seconds(Clock clock, const std::function<void()>& work);
double Median(std::vector<double> values);

// What is done and undone to measure one thing: `Ready` is not timed.
struct Contender {
    std::function<void()> Ready, Work;
};

struct Pair {
    double Tavo = 0, Limit = 0; // seconds, medians
};

// Both by turns, so that a machine whose speed wanders is as slow for the one
// as for the other; after a first turn that does not count.
Pair Measure(const Plan& plan, const Contender& tavo, const Contender& limit);
double Measure(const Plan& plan, const Contender& tavo);

// What the program has taken of memory and not given back.
double HeapBytes();

// Tells what is going on, on standard error.
void Note(const std::string& text);
// The table, on standard output.
void Print(const Plan& plan);

// Ends the program when a measurement would be of something else than meant.
[[noreturn]] void Fail(const std::string& what);
inline void Require(bool good, const std::string& what)
{
    if (!good)
        Fail(what);
}

} // namespace tavo::bench
