#pragma once

#include "platform/posix/descriptor.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tavo {

// What the safe change of a file asks of the system. Every call gives 0 or the
// system's error number, and none follows a link that a path names.
class EditDisk {
public:
    // Whose a file is and who may do what with it.
    struct Rights {
        std::uint32_t Owner = 0, Group = 0, Mode = 0;
        friend bool operator==(const Rights&, const Rights&) = default;
    };
    static constexpr std::uint32_t sameOwner = 0xFFFF'FFFF;

    virtual ~EditDisk() = default;

    // The text in a link; EINVAL for what is none.
    virtual int ReadLink(const std::string& path, std::string& target) = 0;
    virtual int OpenFolder(const std::string& path, Descriptor& folder) = 0;
    // Locks the folder against others that lock it, until the descriptor
    // closes. EWOULDBLOCK while somebody else has it.
    virtual int Lock(const Descriptor& folder) = 0;
    // Waits `lockPause` for a lock.
    virtual void Pause() = 0;
    // The whole of a regular file.
    virtual int Read(const std::string& path, std::string& bytes) = 0;
    virtual int Look(const std::string& path, Rights& rights) = 0;
    // 0 when the file may be written; nobody may write one without any right
    // to that.
    virtual int MayWrite(const std::string& path) = 0;
    // Digits and letters that nobody can foresee.
    virtual int MakeUnique(std::string& text) = 0;
    // Makes a new file for writing; EEXIST for anything that is there.
    virtual int Create(const std::string& path, std::uint32_t mode, Descriptor& file) = 0;
    virtual int Look(const Descriptor& file, Rights& rights) = 0;
    // `sameOwner` leaves the owner.
    virtual int SetOwner(const Descriptor& file, std::uint32_t owner, std::uint32_t group) = 0;
    virtual int SetMode(const Descriptor& file, std::uint32_t mode) = 0;
    virtual int Write(const Descriptor& file, std::string_view bytes, std::size_t& written) = 0;
    // Returns when the file, or the folder's list of names, is on the disk.
    virtual int Sync(const Descriptor& entry) = 0;
    // Renames and replaces.
    virtual int Move(const std::string& from, const std::string& to) = 0;
    virtual int Unlink(const std::string& path) = 0;
};

// The calls of the system itself.
std::unique_ptr<EditDisk> SystemEditDisk();

// Puts into a file what `change` makes of its bytes (of none when there is no
// file; only a missing folder is an error). The bytes are read under a lock,
// so that programs that change the file this way one after the other lose
// nothing of each other; who holds the lock for longer than two seconds is not
// waited for.
//
// The new file takes the old one's place in one step and has its mode and
// owner, as far as the user may give them. A link stays, and what it leads to
// is replaced. When nothing changes, nothing is touched.
//
// Gives 0 or the system's error number. After an error the old file is whole
// and the only one; where the very last step failed, to make the list of names
// durable, the new one is.
int ChangeFile(EditDisk& disk, const std::string& path,
               const std::function<std::string(const std::string& bytes)>& change);

} // namespace tavo
