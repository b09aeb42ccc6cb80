#pragma once

#include "platform/posix/descriptor.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tavo {

// A program of our own that works on one open file in a process of its own,
// where it may crash, loop or run out of memory and harm nobody. What it prints
// is its result. It is killed when its time is over or this object ends.
class Worker {
public:
    using Clock = std::chrono::steady_clock;

    // Starts `program` with the open file `input` as its standard input. Its
    // complaints go nowhere. None when it cannot be started.
    static std::optional<Worker> Start(const std::string& program,
                                       const std::vector<std::string>& arguments, int input,
                                       std::chrono::milliseconds time);
    Worker(Worker&& other) noexcept;
    Worker& operator=(Worker&&) = delete;
    ~Worker();

    // Exactly `count` bytes of what it prints; false when it printed less or
    // its time is over.
    bool Read(char* bytes, std::size_t count);

private:
    Worker(int process, Descriptor output, Clock::time_point end)
        : process_(process), output_(std::move(output)), end_(end)
    {
    }
    bool WaitForOutput() const;

    int process_ = -1;
    Descriptor output_;
    Clock::time_point end_;
};

// What the memory of this machine still has room for, in bytes, without
// taking it from what runs. The largest number where that cannot be told.
std::uint64_t Memory_Available();

// Binds the calling process, which is such a worker, for the rest of its life:
// no more memory and processor time than this, no file written, no trace left
// by a crash, and no life after the one who started it.
void Worker_Confine(std::uint64_t memoryBytes, std::chrono::seconds time);

// Writes all of it to the worker's standard output.
bool Worker_Print(const char* bytes, std::size_t count);

} // namespace tavo
