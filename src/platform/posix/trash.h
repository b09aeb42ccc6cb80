#pragma once

#include <memory>
#include <string>

namespace tavo {

// The desktop's trash.
class Trash {
public:
    virtual ~Trash() = default;

    // Moves an entry there, a link as itself; gives a DiskCode. `path` is its
    // full name without a slash at the end. Where there is no trash for it
    // that fails, and the entry stays.
    virtual int Take(const std::string& path) = 0;
};

// The trash of freedesktop.org: the one in the user's data folder, and those
// of other disks at the top of each.
std::unique_ptr<Trash> DesktopTrash();

} // namespace tavo
