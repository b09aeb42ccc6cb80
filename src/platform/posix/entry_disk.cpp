#include "platform/posix/entry_disk.h"

#include <cerrno>
#include <sys/stat.h>

namespace tavo {

namespace {

// The system gives the rights of the content to the extended attributes of the
// user; with the mode it lets the owner do as he likes.
template <typename Call>
int WithOwnersRights(EntryDisk& disk, const Descriptor& entry, std::uint32_t mode, Call call)
{
    constexpr std::uint32_t ownersRights = S_IRUSR | S_IWUSR;
    const int refused = call();
    if (refused != EACCES || (mode & ownersRights) == ownersRights)
        return refused;
    if (disk.SetMode(entry, mode | ownersRights) != 0)
        return refused;
    const int error = call();
    const int notBack = disk.SetMode(entry, mode);
    return error != 0 ? error : notBack;
}

} // namespace

int StoreText(EntryDisk& disk, const Descriptor& entry, const EntryDisk::State& state,
              const char* name, const std::optional<std::string>& bytes)
{
    return WithOwnersRights(disk, entry, state.Mode, [&] {
        if (bytes)
            return disk.SetText(entry, name, *bytes);
        const int error = disk.RemoveText(entry, name);
        return error == ENODATA ? 0 : error;
    });
}

int LoadText(EntryDisk& disk, const Descriptor& entry, const EntryDisk::State& state,
             const char* name, std::optional<std::string>& bytes)
{
    std::string text;
    const int error =
        WithOwnersRights(disk, entry, state.Mode, [&] { return disk.GetText(entry, name, text); });
    bytes = error == 0 ? std::optional(text) : std::nullopt;
    return error == ENODATA ? 0 : error;
}

} // namespace tavo
