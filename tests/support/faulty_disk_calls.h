#pragma once

#include <csignal>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// Writes down the calls that go through it, and can fail, or end the whole
// process, at any of them.
class FaultyCalls {
public:
    // The names of all calls so far.
    std::vector<std::string> Calls;
    // The number of the call, from 1, that fails with this error, or at which
    // the process is killed: before anything is done, or behind it. 0 for none.
    std::size_t FailAt = 0, KillBefore = 0, KillBehind = 0;
    int Error = 0;
    // All calls of this name fail.
    std::string FailAll;

    // Makes the call, which gives 0 or an error, unless it is to fail.
    template <typename Call>
    int Do(std::string_view name, Call call)
    {
        Calls.emplace_back(name);
        if (KillBefore == Calls.size())
            std::raise(SIGKILL);
        if (FailAt == Calls.size() || FailAll == name)
            return Error;
        const int error = call();
        if (KillBehind == Calls.size())
            std::raise(SIGKILL);
        return error;
    }
};

} // namespace tavo
