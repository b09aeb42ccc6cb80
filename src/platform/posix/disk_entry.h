#pragma once

#include "platform/files.h"

#include <string>

namespace tavo {

// Reads the data of one entry of the folder behind the open descriptor
// `folder` (AT_FDCWD for full paths) into everything of `found` but the name.
// A link is read as itself; attrReparse marks it, and attrDirectory stands
// beside it when it leads to a folder. A folder has no size. Created is the
// birth time, or the written time on disks without one. Gives 0 or the
// system's error number.
//
// Archive, Hidden and System are left out: they would cost a call a file.
// `isFile` tells whether it is a regular file.
int ReadEntry(int folder, const char* name, FindData& found, bool* isFile = nullptr);

// Archive, Hidden and System as the entry's extended attribute
// `user.DOSATTRIB` keeps them: the text `0x` and hexadecimal digits, to which
// file servers may add data of their own. None without it; a link has none.
// Gives 0 or the system's error number: ENOTSUP where the disk keeps no such
// thing.
int ReadStoredAttributes(const std::string& path, std::uint32_t& attributes);

// The bits that such a text holds; 0 for any other text.
std::uint32_t ParseStoredAttributes(std::string_view text);

// The whole of a regular file of at most `limit` bytes. Gives 0 or the
// system's error number: EISDIR for a folder, EINVAL for what else is no
// regular file (a pipe is not waited for), EFBIG beyond the limit.
int ReadRegularFile(const std::string& path, std::uint64_t limit, std::string& bytes);

} // namespace tavo
