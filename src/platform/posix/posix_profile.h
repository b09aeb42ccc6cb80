#pragma once

#include "platform/profile.h"
#include "platform/profile_text.h"

#include <cstdint>
#include <map>

namespace tavo {

// Settings files on Linux. Each call sees the file as it is at that moment;
// what was taken from it is kept only as long as nothing shows that it has
// changed since.
class PosixProfile : public Profile {
public:
    std::string GetPrivateProfileStringA(const std::string& section, std::optional<std::string> key,
                                         const std::string& fallback, int size,
                                         const std::string& file) override;

private:
    struct State {
        std::uint64_t Device = 0, Node = 0, SizeBytes = 0;
        std::int64_t Written = 0, Changed = 0; // nanoseconds since 1970
        friend bool operator==(const State&, const State&) = default;
    };
    struct Kept {
        State Of;
        bool Trusted = false;
        ProfileText Text;
    };

    static std::optional<State> Look(const std::string& file);
    // Null when the file cannot be read.
    const ProfileText* Read(const std::string& file);

    std::map<std::string, Kept> files_;
};

} // namespace tavo
