#pragma once

#include <cstdlib>
#include <string>

namespace tavo {

// Sets a variable of the environment, and sets it back.
class Variable_Set {
public:
    Variable_Set(const char* name, const std::string& value) : name_(name)
    {
        const char* old = std::getenv(name);
        had_ = old != nullptr;
        old_ = old ? old : "";
        ::setenv(name, value.c_str(), 1);
    }
    Variable_Set(const Variable_Set&) = delete;
    Variable_Set& operator=(const Variable_Set&) = delete;
    ~Variable_Set()
    {
        if (had_)
            ::setenv(name_, old_.c_str(), 1);
        else
            ::unsetenv(name_);
    }

private:
    const char* name_;
    bool had_ = false;
    std::string old_;
};

} // namespace tavo
