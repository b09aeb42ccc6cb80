#pragma once

#include "platform/posix/transfer_disk.h"

#include <cstddef>
#include <functional>
#include <string>

namespace tavo {

// So many folders of one walk are held open; those above them are opened again
// on the way back, since a system allows a program no more than about a
// thousand and folders may lie deeper than that.
inline constexpr std::size_t mostOpenLevels = 32;

// Opens the folder above `below` again; EBUSY when that is no longer the one
// called `id`, because somebody has moved folders about meanwhile.
int OpenAgain(TransferDisk& disk, const Descriptor& below, const FolderId& id, Descriptor& folder);

// Is asked for each entry that is no folder; what may not go is kept.
using MayGo = std::function<bool(const TransferDisk::Entry& entry)>;

// Removes an entry for good, a folder with all that is in it and a link as
// itself. A disk that is mounted below the folder is not emptied: EBUSY. The
// first failure ends it, EBUSY for what may not go. `removed` counts the
// entries that went, folders too. Gives 0 or the system's error number.
int RemoveTree(TransferDisk& disk, const Descriptor& folder, const std::string& name,
               std::size_t& removed, const MayGo& mayGo = nullptr);

} // namespace tavo
