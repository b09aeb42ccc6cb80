#include "platform/posix/unique_text.h"

#include "platform/posix/descriptor.h"

#include <array>
#include <cerrno>
#include <string_view>
#include <sys/random.h>

namespace tavo {

int MakeUniqueText(std::string& text)
{
    std::array<unsigned char, 8> bytes;
    const ssize_t count =
        WithoutInterrupts([&] { return ::getrandom(bytes.data(), bytes.size(), 0); });
    if (count != static_cast<ssize_t>(bytes.size()))
        return count < 0 ? errno : EIO;
    constexpr std::string_view digits = "0123456789abcdef";
    text.clear();
    for (const unsigned char byte : bytes) {
        text.push_back(digits[byte >> 4]);
        text.push_back(digits[byte & 15]);
    }
    return 0;
}

} // namespace tavo
