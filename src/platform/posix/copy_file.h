#pragma once

#include "platform/posix/transfer_disk.h"

#include <string>

namespace tavo {

// Copies the content of a file into a new one: as a clone that shares it where
// the file system can, else inside the system, else by reading and writing.
// Gives 0 or the system's error number.
int CopyContent(TransferDisk& disk, const Descriptor& from, const Descriptor& to);

// Gives a new file or folder what the old one had beside its content: owner,
// extended attributes, mode and times, the created time among them. What the
// target's file system or the user's rights refuse is left out; where the
// owner or the group is, nobody gets more rights by it. Gives 0 or the
// system's error number.
int CopyProperties(TransferDisk& disk, const Descriptor& from, const TransferDisk::Entry& data,
                   const Descriptor& to);

// The same for a link, which has only an owner and times.
int CopyLinkProperties(TransferDisk& disk, const TransferDisk::Entry& data,
                       const Descriptor& folder, const std::string& name);

// Returns when the file, or the folder's list of names, is on the disk, or at
// once where the file system does not know this for such an entry.
int SyncEntry(TransferDisk& disk, const Descriptor& entry);

} // namespace tavo
