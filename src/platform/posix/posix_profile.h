#pragma once

#include "platform/collecting_profile.h"
#include "platform/posix/file_edit.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tavo {

// Settings files on Linux. Each call sees the file as it is at that moment;
// what was taken from it is kept only as long as nothing shows that it has
// changed since.
class PosixProfile : public CollectingProfile {
public:
    explicit PosixProfile(std::unique_ptr<EditDisk> disk = SystemEditDisk())
        : disk_(std::move(disk))
    {
    }

protected:
    const ProfileText& TextOf(const std::string& file) override;
    bool Apply(const std::string& file, const std::vector<ProfileChange>& changes) override;

private:
    struct State {
        std::uint64_t Device = 0, Node = 0, SizeBytes = 0;
        std::int64_t Written = 0, Changed = 0; // nanoseconds since 1970
        friend bool operator==(const State&, const State&) = default;
    };
    struct Kept {
        State Of;
        bool Trusted = false;
        std::string Bytes;
        ProfileText Text;
    };

    static std::optional<State> Look(const std::string& file);
    // Null when the file cannot be read.
    const ProfileText* Read(const std::string& file);

    std::unique_ptr<EditDisk> disk_;
    std::map<std::string, Kept> files_;
    ProfileText nothing_;
};

} // namespace tavo
