#pragma once

#include "platform/posix/entry_disk.h"

#include <cstdint>
#include <string>

namespace tavo {

// Adds Archive, Hidden and System to the attributes of an entry that is no
// link: those of its extended attribute, or on FAT those of the file system
// itself, whose Read-Only then counts too. Gives 0 or the system's error
// number when they may not be read; a disk that keeps none has none.
int AddStoredAttributes(EntryDisk& disk, const std::string& path, std::uint32_t& attributes);

// Gives the entry exactly those of Read-Only, Archive, Hidden and System that
// are in `wanted`. Gives 0 or the system's error number: ENOTSUP for a link and
// for what the file system cannot keep.
//
// Read-Only takes all write bits away. To clear it gives them back as the
// user's mask has them, to those who may read, and at the least to the owner;
// an entry that anybody may write already stays as it is. The other three are
// kept in `user.DOSATTRIB`, and without any of them that is removed. What file
// servers add behind the text repeats the attributes in their own form, so it
// does not outlive a change; a text that says what is wanted stays as it is.
//
// When a call fails, what it did before is undone. Ended from outside between
// two calls it may leave one of the attributes changed and not yet the other,
// or an entry that the owner may write.
//
// `isFile` tells that a file has just been seen there, which saves looking.
int SetAttributes(EntryDisk& disk, const std::string& path, std::uint32_t wanted,
                  bool isFile = false);

} // namespace tavo
