#include "support/windows_names.h"

#include "support/text_points.h"

#include <algorithm>
#include <array>

namespace tavo::windows {

namespace {

constexpr std::array<std::string_view, 6> devices = {"CON", "PRN",    "AUX",
                                                     "NUL", "CONIN$", "CONOUT$"};
constexpr std::string_view badCharacters = "<>?*|\":";

} // namespace

bool IsDevice(std::string_view name)
{
    std::string base = points::Upper(name.substr(0, name.find('.')));
    base.erase(base.find_last_not_of(' ') + 1);
    if (std::find(devices.begin(), devices.end(), base) != devices.end())
        return true;
    const bool port = base.starts_with("COM") || base.starts_with("LPT");
    return port && base.size() == 4 && base[3] >= '1' && base[3] <= '9';
}

bool HasBadCharacter(std::string_view name)
{
    return std::any_of(name.begin(), name.end(), [](char c) {
        return static_cast<unsigned char>(c) < 32 || badCharacters.find(c) != badCharacters.npos;
    });
}

std::string Stored(std::string_view name)
{
    return std::string(name.substr(0, name.find_last_not_of(". ") + 1));
}

} // namespace tavo::windows
