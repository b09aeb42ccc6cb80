#include "hosts/pictures/icon_folder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tavo::pictures {

namespace {

constexpr std::size_t folderAt = 6, entrySize = 16;
constexpr int mostImages = 256;

unsigned Byte(const char* bytes, std::size_t at)
{
    return static_cast<unsigned char>(bytes[at]);
}

// Area and bytes. 0 stands for a width of 256.
using Rank = std::pair<unsigned, std::uint32_t>;

Rank Rank_Of(const char* entry)
{
    const auto side = [entry](std::size_t place) { return (Byte(entry, place) + 255) % 256 + 1; };
    return {side(0) * side(1),
            Byte(entry, 8) | Byte(entry, 9) << 8 | Byte(entry, 10) << 16 | Byte(entry, 11) << 24};
}

} // namespace

int Icon_FindLargest(const RegularFile& file)
{
    char told[2] = {};
    file.Read(4, told, sizeof told);
    const int images = std::min(mostImages, static_cast<int>(Byte(told, 0) | Byte(told, 1) << 8));
    std::array<char, entrySize> entry;
    Rank best{0, 0};
    int largest = 0;
    for (int image = 0; image < images; ++image) {
        const auto at = folderAt + static_cast<std::size_t>(image) * entrySize;
        if (file.Read(at, entry.data(), entrySize) < entrySize)
            break;
        if (const Rank rank = Rank_Of(entry.data()); rank > best) {
            best = rank;
            largest = image;
        }
    }
    return largest;
}

} // namespace tavo::pictures
