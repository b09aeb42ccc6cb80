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

// What an entry was found to have: enough to set its times without another
// look.
struct KnownTimes {
    EntryDisk::State State;
    std::optional<std::string> Stored; // with the entry, as its text
    int StoredError = 0;               // why that could not be told
};

// Reads the times of the entry that has this name, a link as itself, with the
// Created that is stored before the one that the disk tells. Gives 0 or the
// system's error number.
int GetEntryTimes(EntryDisk& disk, const std::string& path, EntryTimes& times, KnownTimes& known);

// Sets the times of an entry that was just found to have these, without opening
// it. Gives 0 or an error, and then no time has changed. It does less than
// SetEntryTimes: no mode is loosened for it.
int SetKnownTimes(EntryDisk& disk, const std::string& path, const EntryTimes& times,
                  const KnownTimes& known);

// Sets the times of the entry, a link as itself. Created is stored only where
// the disk would show another second; a birth time that is right by itself
// needs nothing stored, and what was stored is removed. Where the disk knows no
// birth time, the written one is shown for it.
//
// Gives 0 or the system's error number, and then no time has changed: ENOTSUP
// where a Created that was to change cannot be kept.
int SetEntryTimes(EntryDisk& disk, const Descriptor& entry, const EntryTimes& times);

} // namespace tavo
