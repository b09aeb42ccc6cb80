#pragma once

#include "platform/posix/entry_disk.h"

#include <optional>
#include <string>
#include <string_view>

namespace tavo {

// The three times of an entry; one of 0 is left alone.
struct EntryTimes {
    FileTime Created, Accessed, Written;
};

// Linux has no call that sets when an entry was created. A time that somebody
// did set is kept in the extended attribute `user.tavo.created`, as the
// decimal digits of a FileTime's ticks: hundreds of nanoseconds since
// 1601-01-01 in UTC. None for any other text.
std::optional<FileTime> ParseCreated(std::string_view text);

// Puts the time that is stored with the entry, if there is one, in the place of
// the one that the disk tells.
void TakeStoredCreated(const std::string& path, FileTime& created);

// Sets the times of the entry, a link as itself. Created is stored only where
// the disk would show another second; a birth time that is right by itself
// needs nothing stored, and what was stored is removed. Where the disk knows no
// birth time, the written one is shown for it.
//
// Gives 0 or the system's error number, and then no time has changed: ENOTSUP
// where a Created that was to change cannot be kept.
int SetEntryTimes(EntryDisk& disk, const Descriptor& entry, const EntryTimes& times);

} // namespace tavo
