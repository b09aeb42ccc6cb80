#include "platform/posix/posix_profile.h"

#include "platform/posix/disk_entry.h"
#include "platform/posix/disk_error.h"

#include <ctime>
#include <sys/stat.h>

namespace tavo {

namespace {

constexpr std::uint64_t largestFile = 64u << 20;
// A file written so shortly before may be written again within one tick of
// the disk's clock, and would look the same.
constexpr std::int64_t settledAfter = 2'000'000'000;

std::int64_t Nanoseconds(const timespec& time)
{
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

std::int64_t NowNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return Nanoseconds(now);
}

} // namespace

std::optional<PosixProfile::State> PosixProfile::Look(const std::string& file)
{
    struct stat data;
    if (CheckPath(file) != 0 || ::stat(file.c_str(), &data) != 0)
        return std::nullopt;
    return State{data.st_dev, data.st_ino, static_cast<std::uint64_t>(data.st_size),
                 Nanoseconds(data.st_mtim), Nanoseconds(data.st_ctim)};
}

const ProfileText* PosixProfile::Read(const std::string& file)
{
    const auto state = Look(file);
    if (!state) {
        files_.erase(file);
        return nullptr;
    }
    Kept& kept = files_[file];
    if (kept.Trusted && kept.Of == *state)
        return &kept.Text;
    const std::int64_t now = NowNanoseconds();
    std::string bytes;
    if (ReadRegularFile(file, largestFile, bytes) != 0) {
        files_.erase(file);
        return nullptr;
    }
    kept.Of = *state;
    kept.Trusted = state->Changed < now - settledAfter;
    // Right after a save the file is read again and again, and is the same.
    if (bytes != kept.Bytes) {
        kept.Text = ProfileText(bytes);
        kept.Bytes = std::move(bytes);
    }
    return &kept.Text;
}

const ProfileText& PosixProfile::TextOf(const std::string& file)
{
    const ProfileText* text = Read(file);
    return text ? *text : nothing_;
}

bool PosixProfile::Apply(const std::string& file, const std::vector<ProfileChange>& changes)
{
    const auto change = [&changes](const std::string& bytes) {
        ProfileText text(bytes);
        for (const ProfileChange& one : changes)
            text.Write(one);
        return text.Bytes();
    };
    return ChangeFile(*disk_, file, change) == 0;
}

} // namespace tavo
