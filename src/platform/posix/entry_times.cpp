#include "platform/posix/entry_times.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <sys/xattr.h>

namespace tavo {

namespace {

using State = EntryDisk::State;
using Kind = EntryDisk::Kind;
using OptionalText = std::optional<std::string>;

constexpr const char* textName = "user.tavo.created";
constexpr std::int64_t ticksPerSecond = 10'000'000;

// A time without parts of a second stands for the whole of its second: texts
// that users see hold no more, and who writes back what he read changes
// nothing.
bool IsMeantBy(FileTime shown, FileTime wanted)
{
    if (shown == wanted)
        return true;
    const std::int64_t second = shown.Ticks / ticksPerSecond - (shown.Ticks % ticksPerSecond < 0);
    return wanted.Ticks % ticksPerSecond == 0 && wanted.Ticks / ticksPerSecond == second;
}

bool KeepsTexts(Kind kind)
{
    return kind == Kind::File || kind == Kind::Folder;
}

// Tells apart "cannot be kept here" from "went wrong".
int LoadStored(EntryDisk& disk, const Descriptor& entry, const State& state, OptionalText& text)
{
    return KeepsTexts(state.What) ? LoadText(disk, entry, state, textName, text) : ENOTSUP;
}

FileTime ShownFor(const State& state, FileTime written)
{
    return state.Birth.value_or(written.Ticks != 0 ? written : state.Written);
}

// The text that is to stand there so that `times.Created` is shown; the old
// one where that does.
OptionalText TextFor(const State& state, const EntryTimes& times, const OptionalText& old)
{
    if (IsMeantBy(ShownFor(state, times.Written), times.Created))
        return std::nullopt;
    const auto stored = old ? ParseCreated(*old) : std::nullopt;
    if (stored && IsMeantBy(*stored, times.Created))
        return old;
    return std::to_string(times.Created.Ticks);
}

int SetPlainTimes(EntryDisk& disk, const Descriptor& entry, const EntryTimes& times)
{
    if (times.Accessed.Ticks == 0 && times.Written.Ticks == 0)
        return 0;
    return disk.SetTimes(entry, times.Accessed, times.Written);
}

int SetAllTimes(EntryDisk& disk, const Descriptor& entry, const State& state,
                const EntryTimes& times, const OptionalText& old)
{
    const OptionalText text = TextFor(state, times, old);
    if (text == old)
        return SetPlainTimes(disk, entry, times);
    int error = StoreText(disk, entry, state, textName, text);
    if (error == 0)
        error = SetPlainTimes(disk, entry, times);
    if (error == 0)
        return 0;
    disk.SetMode(entry, state.Mode);
    StoreText(disk, entry, state, textName, old);
    return error;
}

int StoreOrRemove(EntryDisk& disk, const std::string& path, const OptionalText& text)
{
    return text ? disk.SetText(path, textName, *text) : disk.RemoveText(path, textName);
}

} // namespace

std::optional<FileTime> ParseCreated(std::string_view text)
{
    std::int64_t ticks = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, ticks);
    if (result.ec != std::errc{} || result.ptr != end || ticks == 0)
        return std::nullopt;
    return FileTime{ticks};
}

void TakeStoredCreated(const std::string& path, FileTime& created)
{
    std::array<char, 32> text;
    const ssize_t length = ::lgetxattr(path.c_str(), textName, text.data(), text.size());
    if (length <= 0)
        return;
    const auto stored = ParseCreated({text.data(), static_cast<std::size_t>(length)});
    created = stored.value_or(created);
}

int GetEntryTimes(EntryDisk& disk, const std::string& path, EntryTimes& times, KnownTimes& known)
{
    if (const int error = disk.Look(path, known.State))
        return error;
    const State& state = known.State;
    times = {ShownFor(state, {}), state.Accessed, state.Written};
    // Who only reads doesn't loosen the mode, so that a text may stay unseen.
    std::string text;
    const int error = KeepsTexts(state.What) ? disk.GetText(path, textName, text) : ENOTSUP;
    known.StoredError = error == ENODATA ? 0 : error;
    if (error != 0)
        return 0;
    times.Created = ParseCreated(text).value_or(times.Created);
    known.Stored = std::move(text);
    return 0;
}

int SetKnownTimes(EntryDisk& disk, const std::string& path, const EntryTimes& times,
                  const KnownTimes& known)
{
    OptionalText text = known.Stored;
    if (times.Created.Ticks != 0) {
        if (known.StoredError != 0)
            return known.StoredError;
        text = TextFor(known.State, times, known.Stored);
    }
    const bool isOther = text != known.Stored;
    int error = isOther ? StoreOrRemove(disk, path, text) : 0;
    if (error != 0 || (times.Accessed.Ticks == 0 && times.Written.Ticks == 0))
        return error;
    error = disk.SetTimes(path, times.Accessed, times.Written);
    if (error != 0 && isOther)
        StoreOrRemove(disk, path, known.Stored);
    return error;
}

int SetEntryTimes(EntryDisk& disk, const Descriptor& entry, const EntryTimes& times)
{
    if (times.Created.Ticks == 0)
        return SetPlainTimes(disk, entry, times);
    State state;
    if (const int error = disk.Look(entry, state))
        return error;
    OptionalText old;
    const int error = LoadStored(disk, entry, state, old);
    if (error == 0)
        return SetAllTimes(disk, entry, state, times, old);
    // Where no time can be kept, the one that is shown anyway may be asked for.
    const bool isShown = IsMeantBy(ShownFor(state, times.Written), times.Created)
                         || IsMeantBy(ShownFor(state, {}), times.Created);
    if (error != ENOTSUP || !isShown)
        return error;
    return SetPlainTimes(disk, entry, times);
}

} // namespace tavo
