#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// The port to settings files of sections and keys.
class Profile {
public:
    virtual ~Profile() = default;

    // The text of `key` in `section`, trimmed and cut to `size` - 1 bytes (no
    // character is split); `fallback` when the key or the file is missing.
    // With an empty optional for `key`: the names of all keys in file order,
    // each followed by a NUL, cut to `size` - 2 bytes.
    virtual std::string GetPrivateProfileStringA(const std::string& section,
                                                 std::optional<std::string> key,
                                                 const std::string& fallback, int size,
                                                 const std::string& file) = 0;
};

} // namespace tavo
