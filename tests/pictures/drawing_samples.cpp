#include "drawing_samples.h"

#include "samples.h"

#include <algorithm>
#include <vector>

namespace tavo::pictures {

namespace {

using Words = std::vector<std::uint32_t>;

std::string Wmf_Record(std::uint32_t function, const Words& words)
{
    std::string data;
    for (const std::uint32_t word : words)
        data += Low(word, 2);
    return Low(static_cast<std::uint32_t>(3 + words.size()), 4) + Low(function, 2) + data;
}

std::string Emf_Record(std::uint32_t type, const Words& words)
{
    std::string data;
    for (const std::uint32_t word : words)
        data += Low(word, 4);
    return Low(type, 4) + Low(static_cast<std::uint32_t>(8 + data.size()), 4) + data;
}

// Ten to a dot, at 96 dots an inch.
std::string Wmf_Frame()
{
    const std::string frame = Low(0x9ac6cdd7, 4) + Low(0, 2) + Low(0, 4) + Low(800, 2) + Low(600, 2)
                              + Low(960, 2) + Low(0, 4);
    unsigned sum = 0;
    for (std::size_t at = 0; at < frame.size(); at += 2)
        sum ^=
            static_cast<unsigned char>(frame[at]) | static_cast<unsigned char>(frame[at + 1]) << 8;
    return frame + Low(sum, 2);
}

} // namespace

std::string Svg_Bytes()
{
    return "<?xml version=\"1.0\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"60\" "
           "height=\"40\"><rect x=\"10\" y=\"10\" width=\"40\" height=\"20\" "
           "fill=\"red\"/></svg>\n";
}

std::string Svg_BytesWithWords()
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"60\" height=\"40\">"
           "<text x=\"5\" y=\"30\" font-size=\"24\">Tavo</text></svg>";
}

std::string Wmf_Bytes(bool isPlaceable)
{
    const std::string records = Wmf_Record(0x103, {8}) + Wmf_Record(0x20b, {0, 0})
                                + Wmf_Record(0x20c, {600, 800}) + Wmf_Record(0x2fc, {0, 255, 0, 0})
                                + Wmf_Record(0x12d, {0}) + Wmf_Record(0x41b, {500, 700, 100, 100})
                                + Wmf_Record(0, {});
    const std::string header = Low(1, 2) + Low(9, 2) + Low(0x300, 2)
                               + Low(static_cast<std::uint32_t>(18 + records.size()) / 2, 4)
                               + Low(4, 2) + Low(7, 4) + Low(0, 2);
    return (isPlaceable ? Wmf_Frame() : "") + header + records;
}

std::string Emf_Bytes()
{
    const std::string records = Emf_Record(39, {1, 0, 255, 0}) + Emf_Record(37, {1})
                                + Emf_Record(43, {10, 10, 70, 50}) + Emf_Record(14, {0, 16, 20});
    constexpr std::uint32_t headerSize = 88;
    const auto size = static_cast<std::uint32_t>(headerSize + records.size());
    return Emf_Record(1, {0,    0, 80, 60, 0, 0, 2117, 1588, 0x464d4520, 0x10000,
                          size, 5, 2,  0,  0, 0, 1024, 768,  271,        203})
           + records;
}

} // namespace tavo::pictures
