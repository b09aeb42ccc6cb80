#pragma once

#include "platform/posix/descriptor.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// One mounted file system. `Point` is where, without a slash at its end but
// for the root's own; `Root` is what part of the file system is shown there.
struct Mount {
    std::string Root, Point, Type, Source;
};

// The mounts in the text of /proc/self/mountinfo. Lines without a point or a
// type are passed over.
std::vector<Mount> ParseMounts(std::string_view mountInfo);

// What a link holds; empty for all that is no link.
using LinkReader = std::function<std::string(const std::string& path)>;

// The point of the slow mount that this path leads to or through: one of a
// network, of a program, or one that mounts when somebody looks in. Empty when
// there is none. Links on the way are followed, but none on a slow mount. The
// root is never slow: this program itself came from there.
std::string SlowMountOn(const std::vector<Mount>& mounts, const std::string& path,
                        const LinkReader& readLink);

// The mounts of this machine as they are now.
class MountTable {
public:
    const std::vector<Mount>& Now();
    std::string SlowMountOn(const std::string& path);

private:
    bool HasChanged() const;

    std::vector<Mount> mounts_;
    Descriptor watch_;
};

} // namespace tavo
