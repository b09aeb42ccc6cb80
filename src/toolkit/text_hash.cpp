#include "toolkit/text_hash.h"

#include "toolkit/text.h"

#include <cstddef>
#include <cstring>

namespace tavo {

namespace {

constexpr std::uint64_t highBits = 0x8080808080808080u;

constexpr std::uint64_t Ones(unsigned value)
{
    return 0x0101010101010101u * value;
}

// Eight bytes at once: a sum sets the high bit of each byte from a letter on,
// without a carry since the high bits were cleared before.
std::uint64_t LowerAscii(std::uint64_t word)
{
    const std::uint64_t low = word & ~highBits;
    const std::uint64_t fromA = low + Ones(0x80 - 'A');
    const std::uint64_t behindZ = low + Ones(0x80 - 'Z' - 1);
    const std::uint64_t upper = fromA & ~behindZ & ~word & highBits;
    return word | (upper >> 2);
}

std::uint64_t WordAt(std::string_view text, std::size_t at)
{
    std::uint64_t word = 0;
    const std::size_t left = text.size() - at;
    std::memcpy(&word, text.data() + at, left < 8 ? left : 8);
    return word;
}

template <bool Fold>
std::uint32_t Hash(std::string_view text, std::uint64_t& allBits)
{
    std::uint64_t hash = 0x2545F4914F6CDD1Du;
    for (std::size_t at = 0; at < text.size(); at += 8) {
        const std::uint64_t word = WordAt(text, at);
        allBits |= word;
        hash = (hash ^ (Fold ? LowerAscii(word) : word)) * 0x9E3779B97F4A7C15u;
        hash ^= hash >> 29;
    }
    hash = (hash ^ text.size()) * 0xD6E8FEB86659FD93u;
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

} // namespace

std::uint32_t Text_Hash(std::string_view text)
{
    std::uint64_t allBits = 0;
    return Hash<false>(text, allBits);
}

std::uint32_t Text_FoldHash(std::string_view text)
{
    std::uint64_t allBits = 0;
    const std::uint32_t hash = Hash<true>(text, allBits);
    if ((allBits & highBits) == 0)
        return hash;
    // Some characters beyond ASCII fold to ASCII letters, so a folded text
    // goes the way of the plain ones.
    return Hash<true>(FoldCase(text), allBits);
}

} // namespace tavo
