#include "toolkit/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tavo {

namespace {

constexpr std::uint64_t EachByte = 0x0101010101010101;
constexpr std::uint64_t HighBits = 0x80 * EachByte;

struct SequenceForm {
    std::size_t Length;
    char32_t LeadBits;
    char32_t Lowest; // a smaller code point in this form is overlong
};

constexpr bool IsContinuation(unsigned char byte)
{
    return (byte & 0xC0) == 0x80;
}

constexpr SequenceForm FormOfLead(unsigned char lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return {2, lead & 0x1Fu, 0x80};
    if (lead >= 0xE0 && lead <= 0xEF)
        return {3, lead & 0x0Fu, 0x800};
    if (lead >= 0xF0 && lead <= 0xF4)
        return {4, lead & 0x07u, 0x10000};
    return {0, 0, 0};
}

constexpr bool IsScalar(char32_t code)
{
    return code < 0x110000 && (code < 0xD800 || code > 0xDFFF);
}

// 80 in each byte of `word` that is a letter from `first` to `last`; all
// bytes of `word` are below 80, so no sum runs over into its neighbour.
constexpr std::uint64_t LetterBits(std::uint64_t word, unsigned char first, unsigned char last)
{
    const std::uint64_t fromFirst = word + (0x80u - first) * EachByte;
    const std::uint64_t behindLast = word + (0x7Fu - last) * EachByte;
    return (fromFirst ^ behindLast) & HighBits;
}

// Flips the case bit of the letters `first` to `last`.
void FlipLetters(char* text, std::size_t count, unsigned char first, unsigned char last)
{
    std::size_t i = 0;
    for (; i + 8 <= count; i += 8) {
        std::uint64_t word;
        std::memcpy(&word, text + i, 8);
        const std::uint64_t ascii = ~(word & HighBits) & HighBits;
        word ^= (LetterBits(word & ~HighBits, first, last) & ascii) >> 2;
        std::memcpy(text + i, &word, 8);
    }
    for (; i < count; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte >= first && byte <= last)
            text[i] = static_cast<char>(byte ^ 0x20);
    }
}

} // namespace

Character NextCharAny(std::string_view text, std::size_t& bytePos)
{
    const auto lead = static_cast<unsigned char>(text[bytePos]);
    if (lead < 0x80) {
        ++bytePos;
        return {lead};
    }
    const Character stray{Character::StrayBase + lead};
    const SequenceForm form = FormOfLead(lead);
    if (form.Length == 0 || text.size() - bytePos < form.Length) {
        ++bytePos;
        return stray;
    }
    char32_t code = form.LeadBits;
    for (std::size_t i = 1; i < form.Length; ++i) {
        const auto byte = static_cast<unsigned char>(text[bytePos + i]);
        if (!IsContinuation(byte)) {
            ++bytePos;
            return stray;
        }
        code = code << 6 | (byte & 0x3Fu);
    }
    if (code < form.Lowest || !IsScalar(code)) {
        ++bytePos;
        return stray;
    }
    bytePos += form.Length;
    return {code};
}

Character PrevChar(std::string_view text, std::size_t& bytePos)
{
    const std::size_t end = bytePos;
    const std::size_t lowest = end - std::min<std::size_t>(end, 4);
    std::size_t lead = end - 1;
    while (lead > lowest && IsContinuation(static_cast<unsigned char>(text[lead])))
        --lead;
    std::size_t next = lead;
    const Character whole = NextChar(text.substr(0, end), next);
    if (next == end) {
        bytePos = lead;
        return whole;
    }
    bytePos = end - 1;
    return {Character::StrayBase + static_cast<unsigned char>(text[end - 1])};
}

void AppendChar(std::string& out, char32_t code)
{
    const auto add = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    const auto addTail = [&add, code](unsigned shift) { add(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80) {
        add(code);
    } else if (code >= Character::StrayBase) {
        if (code - Character::StrayBase >= 0x80 && code - Character::StrayBase <= 0xFF)
            add(code - Character::StrayBase);
    } else if (code < 0x800) {
        add(0xC0 | code >> 6);
        addTail(0);
    } else if (!IsScalar(code)) {
        return;
    } else if (code < 0x10000) {
        add(0xE0 | code >> 12);
        addTail(6);
        addTail(0);
    } else {
        add(0xF0 | code >> 18);
        addTail(12);
        addTail(6);
        addTail(0);
    }
}

bool IsCharBoundary(std::string_view text, std::size_t bytePos)
{
    if (bytePos == 0 || bytePos >= text.size())
        return true;
    const std::size_t lowest = bytePos - std::min<std::size_t>(bytePos, 3);
    for (std::size_t start = bytePos; start-- > lowest;) {
        if (IsContinuation(static_cast<unsigned char>(text[start])))
            continue;
        std::size_t next = start;
        NextChar(text, next);
        return next <= bytePos;
    }
    return true;
}

std::size_t AsciiPrefix(std::string_view text)
{
    std::size_t i = 0;
    for (; i + 8 <= text.size(); i += 8) {
        std::uint64_t word;
        std::memcpy(&word, text.data() + i, 8);
        if ((word & HighBits) != 0)
            break;
    }
    while (i < text.size() && static_cast<unsigned char>(text[i]) < 0x80)
        ++i;
    return i;
}

void AsciiLower(char* text, std::size_t count)
{
    FlipLetters(text, count, 'A', 'Z');
}

void AsciiUpper(char* text, std::size_t count)
{
    FlipLetters(text, count, 'a', 'z');
}

} // namespace tavo
