#include "support/text_points.h"

namespace tavo::points {

namespace {

struct CaseRange {
    char32_t First, Last; // lower-case letters
    int Step;             // from the lower-case letter to its upper-case one
    bool Pairs;           // only every second character is a lower-case one
};

constexpr CaseRange caseRanges[] = {
    {U'a', U'z', -32, false},   {0xE0, 0xF6, -32, false},   {0xF8, 0xFE, -32, false},
    {0xFF, 0xFF, 0x79, false},  {0x101, 0x12F, -1, true},   {0x133, 0x137, -1, true},
    {0x13A, 0x148, -1, true},   {0x14B, 0x177, -1, true},   {0x17A, 0x17E, -1, true},
    {0x3B1, 0x3C1, -32, false}, {0x3C3, 0x3CB, -32, false}, {0x430, 0x44F, -32, false},
    {0x450, 0x45F, -80, false},
};

std::size_t Length_FromLead(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

unsigned char ByteAt(std::string_view text, std::size_t pos)
{
    return static_cast<unsigned char>(text[pos]);
}

bool IsShortest(std::string_view text, std::size_t pos)
{
    const unsigned char lead = ByteAt(text, pos), next = ByteAt(text, pos + 1);
    switch (lead) {
    case 0xE0: return next >= 0xA0;
    case 0xED: return next < 0xA0;
    case 0xF0: return next >= 0x90;
    case 0xF4: return next < 0x90;
    default: return true;
    }
}

std::size_t Length_At(std::string_view text, std::size_t pos)
{
    const std::size_t length = Length_FromLead(ByteAt(text, pos));
    if (length < 2 || pos + length > text.size())
        return 1;
    for (std::size_t i = 1; i < length; ++i)
        if ((ByteAt(text, pos + i) & 0xC0) != 0x80)
            return 1;
    return IsShortest(text, pos) ? length : 1;
}

char32_t Decode(std::string_view character)
{
    const unsigned char lead = ByteAt(character, 0);
    if (character.size() == 1)
        return lead;
    char32_t point = lead & (0x7Fu >> character.size());
    for (std::size_t i = 1; i < character.size(); ++i)
        point = (point << 6) | (ByteAt(character, i) & 0x3Fu);
    return point;
}

void Append(std::string& out, char32_t point)
{
    if (point < 0x80) {
        out += static_cast<char>(point);
        return;
    }
    if (point < 0x800) {
        out += static_cast<char>(0xC0 | (point >> 6));
    } else {
        out += static_cast<char>(0xE0 | (point >> 12));
        out += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    }
    out += static_cast<char>(0x80 | (point & 0x3F));
}

int UpperStep(char32_t point)
{
    for (const CaseRange& range : caseRanges) {
        if (point < range.First || point > range.Last)
            continue;
        return range.Pairs && (point - range.First) % 2 != 0 ? 0 : range.Step;
    }
    return 0;
}

} // namespace

std::vector<std::string_view> Split(std::string_view text)
{
    std::vector<std::string_view> out;
    for (std::size_t pos = 0; pos < text.size(); pos += out.back().size())
        out.push_back(text.substr(pos, Length_At(text, pos)));
    return out;
}

std::size_t Count(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t pos = 0; pos < text.size(); pos += Length_At(text, pos))
        ++count;
    return count;
}

std::string Upper(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        const auto character = text.substr(pos, Length_At(text, pos));
        pos += character.size();
        const bool stray = character.size() == 1 && ByteAt(character, 0) >= 0x80;
        const char32_t point = stray ? 0 : Decode(character);
        const int step = UpperStep(point);
        if (step == 0)
            out += character;
        else
            Append(out, static_cast<char32_t>(static_cast<int>(point) + step));
    }
    return out;
}

bool SameBlind(std::string_view left, std::string_view right)
{
    return Upper(left) == Upper(right);
}

std::string Right(std::string_view text, std::size_t count)
{
    const auto characters = Split(text);
    std::string out;
    const std::size_t first = characters.size() > count ? characters.size() - count : 0;
    for (std::size_t i = first; i < characters.size(); ++i)
        out += characters[i];
    return out;
}

std::string RightBytes(std::string_view text, std::size_t bytes)
{
    std::size_t cut = 0;
    for (const auto character : Split(text)) {
        if (text.size() - cut <= bytes)
            break;
        cut += character.size();
    }
    return std::string(text.substr(cut));
}

} // namespace tavo::points
