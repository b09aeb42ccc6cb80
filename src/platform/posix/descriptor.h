#pragma once

#include <cerrno>
#include <unistd.h>

#include <utility>

namespace tavo {

// Owns an open file of the system and closes it at its end. -1 is none.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { Close(); }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    // Gives the file away: somebody else closes it.
    int Release() { return std::exchange(number_, -1); }
    void Close()
    {
        if (number_ >= 0)
            ::close(std::exchange(number_, -1));
    }

private:
    int number_ = -1;
};

// Calls `call()`, which gives -1 and errno on failure, again for as long as
// signals cut it short.
template <typename Call>
auto WithoutInterrupts(Call call) -> decltype(call())
{
    for (;;) {
        const auto result = call();
        if (result != -1 || errno != EINTR)
            return result;
    }
}

} // namespace tavo
