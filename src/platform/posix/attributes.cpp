#include "platform/posix/attributes.h"

#include "platform/posix/disk_entry.h"

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace tavo {

namespace {

using State = EntryDisk::State;

constexpr const char* textName = "user.DOSATTRIB";
constexpr std::uint32_t inText = attrHidden | attrSystem | attrArchive;
constexpr std::uint32_t allFour = inText | attrReadOnly;
constexpr std::uint32_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr std::uint32_t anyRead = S_IRUSR | S_IRGRP | S_IROTH;

std::optional<std::string> TextOf(std::uint32_t attributes)
{
    if ((attributes & inText) == 0)
        return std::nullopt;
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", attributes & inText);
    return text;
}

bool Says(const std::optional<std::string>& text, std::uint32_t wanted)
{
    const std::uint32_t bits = wanted & inText;
    return text ? bits != 0 && ParseStoredAttributes(*text) == bits : bits == 0;
}

bool IsReadOnly(std::uint32_t mode)
{
    return (mode & anyWrite) == 0;
}

std::uint32_t ModeFor(std::uint32_t mode, bool readOnly, EntryDisk& disk)
{
    if (IsReadOnly(mode) == readOnly)
        return mode;
    if (readOnly)
        return mode & ~anyWrite;
    const std::uint32_t given = (S_IWUSR | (mode & anyRead) >> 1) & ~disk.UserMask();
    return mode | (given != 0 ? given : std::uint32_t{S_IWUSR});
}

int SetReadOnly(EntryDisk& disk, const Descriptor& entry, const State& before, bool readOnly)
{
    const std::uint32_t mode = ModeFor(before.Mode, readOnly, disk);
    if (mode == before.Mode)
        return 0;
    if (const int error = disk.SetMode(entry, mode))
        return error;
    // Some file systems take any mode and keep none.
    State after;
    const int error = disk.Look(entry, after);
    if (error != 0)
        return error;
    return IsReadOnly(after.Mode) == readOnly ? 0 : ENOTSUP;
}

int SetFatAttributes(EntryDisk& disk, const Descriptor& entry, std::uint32_t now,
                     std::uint32_t wanted)
{
    const std::uint32_t byte = (now & ~allFour) | (wanted & allFour);
    return byte == now ? 0 : disk.SetFat(entry, byte);
}

int SetTextAndMode(EntryDisk& disk, const Descriptor& entry, const State& before,
                   const std::optional<std::string>& oldText, std::uint32_t wanted)
{
    const bool readOnly = (wanted & attrReadOnly) != 0;
    const bool isOther = !Says(oldText, wanted);
    // In the order that needs the mode loosened least.
    const bool modeFirst = !readOnly && IsReadOnly(before.Mode);
    State now = before;
    int error = 0;
    if (modeFirst) {
        error = SetReadOnly(disk, entry, before, readOnly);
        now.Mode = ModeFor(before.Mode, readOnly, disk);
    }
    if (error == 0 && isOther)
        error = StoreText(disk, entry, now, textName, TextOf(wanted));
    if (error == 0 && !modeFirst)
        error = SetReadOnly(disk, entry, before, readOnly);
    if (error == 0)
        return 0;
    // The mode first: the new one may forbid the text.
    disk.SetMode(entry, before.Mode);
    if (isOther)
        StoreText(disk, entry, before, textName, oldText);
    return error;
}

} // namespace

int AddStoredAttributes(EntryDisk& disk, const std::string& path, std::uint32_t& attributes)
{
    std::uint32_t stored = 0;
    int error = ReadStoredAttributes(path, stored);
    if (error != ENOTSUP) {
        attributes |= stored;
        return error;
    }
    Descriptor entry;
    error = disk.Open(path, entry);
    if (error == 0)
        error = disk.GetFat(entry, stored);
    if (error == 0)
        attributes = (attributes & ~allFour) | (stored & allFour);
    return error == ENOTSUP ? 0 : error;
}

int SetAttributes(EntryDisk& disk, const std::string& path, std::uint32_t wanted, bool isFile)
{
    Descriptor entry;
    State before;
    if (const int error = isFile ? disk.OpenFile(path, entry) : disk.Open(path, entry))
        return error;
    if (const int error = disk.Look(entry, before))
        return error;
    // A link has none of the four, and can be given none.
    if (before.What == EntryDisk::Kind::Link)
        return (wanted & allFour) == 0 ? 0 : ENOTSUP;

    std::optional<std::string> text;
    const int error = LoadText(disk, entry, before, textName, text);
    if (error == ENOTSUP) {
        std::uint32_t byte = 0;
        const int noFat = disk.GetFat(entry, byte);
        if (noFat == 0)
            return SetFatAttributes(disk, entry, byte, wanted);
        if (noFat != ENOTSUP)
            return noFat;
    } else if (error != 0) {
        return error;
    }
    return SetTextAndMode(disk, entry, before, text, wanted);
}

} // namespace tavo
