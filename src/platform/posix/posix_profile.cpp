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
    kept.Text = ProfileText(bytes);
    return &kept.Text;
}

std::string PosixProfile::GetPrivateProfileStringA(const std::string& section,
                                                   std::optional<std::string> key,
                                                   const std::string& fallback, int size,
                                                   const std::string& file)
{
    const ProfileText nothing;
    const ProfileText* text = Read(file);
    return ProfileAnswer(text ? *text : nothing, section, key, fallback, size);
}

} // namespace tavo
