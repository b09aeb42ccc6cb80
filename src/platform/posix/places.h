#pragma once

#include "platform/files.h"
#include "platform/posix/mounts.h"

#include <string>
#include <vector>

namespace tavo {

// The volumes to show beside Home and the root, in the order of their paths:
// of these mounts everything below /media,
// /run/media and /mnt, and other disks, but not the ones that make up the
// system (such as /boot) nor folders and files mounted a second time. The
// caption is the last part of the path.
std::vector<RootPlace> MountedVolumes(const std::vector<Mount>& mounts);

// The user's own folder, from HOME or the list of users; "/" without one.
// These folders end in a slash, and they need not exist.
std::string HomeFolder();
// For files that nobody needs tomorrow: TMPDIR or /tmp/.
std::string TempFolder();
// Where programs keep what belongs to the user, and how the user set them up.
std::string DataHomeFolder();
std::string ConfigHomeFolder();
// The files in the user's own trash.
std::string TrashFolder();

} // namespace tavo
