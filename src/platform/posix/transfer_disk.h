#pragma once

#include "platform/files.h"
#include "platform/posix/descriptor.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// What copying and deleting ask of the system. An entry is named by its open
// folder and its name, so that nothing is lost when a folder above it gets
// another name meanwhile, and so that no path grows too long. Every call gives
// 0 or the system's error number, and none but OpenFolder(path) follows a link.
class TransferDisk {
public:
    enum class EntryKind { File, Folder, Link, Other };

    // A moment of the system's clock, since 1970.
    struct Stamp {
        std::int64_t Seconds = 0;
        std::uint32_t Nanoseconds = 0;
        friend bool operator==(const Stamp&, const Stamp&) = default;
    };
    struct Entry {
        EntryKind Kind = EntryKind::Other;
        FolderId Id;
        bool IsMount = false; // another file system begins here
        std::uint64_t Size = 0;
        std::uint32_t Owner = 0, Group = 0, Mode = 0;
        Stamp Accessed, Written;
        std::optional<Stamp> Born; // none where the file system keeps no such time
    };
    static constexpr std::uint32_t sameOwner = 0xFFFF'FFFF;

    virtual ~TransferDisk() = default;

    virtual int OpenFolder(const std::string& path, Descriptor& folder) = 0;
    virtual int OpenFolder(const Descriptor& above, const std::string& name,
                           Descriptor& folder) = 0;
    // The folder that this one lies in; the root lies in itself.
    virtual int OpenAbove(const Descriptor& folder, Descriptor& above) = 0;
    virtual int Look(const Descriptor& open, Entry& entry) = 0;
    virtual int Look(const Descriptor& folder, const std::string& name, Entry& entry) = 0;
    // 0 when entries may be made and removed in this folder.
    virtual int MayChange(const Descriptor& folder) = 0;
    // All names but `.` and `..`, in no certain order.
    virtual int List(const Descriptor& folder, std::vector<std::string>& names) = 0;
    // Digits and letters that nobody can foresee.
    virtual int MakeUnique(std::string& text) = 0;

    // These make what only its owner may see and change; EEXIST for anything
    // that is there.
    virtual int MakeFolder(const Descriptor& folder, const std::string& name) = 0;
    virtual int MakeFile(const Descriptor& folder, const std::string& name, Descriptor& file) = 0;
    virtual int MakeLink(const Descriptor& folder, const std::string& name,
                         const std::string& target) = 0;
    virtual int ReadLink(const Descriptor& folder, const std::string& name,
                         std::string& target) = 0;
    // Opens a file for reading, leaving its accessed time alone where it may.
    virtual int OpenFile(const Descriptor& folder, const std::string& name, Descriptor& file) = 0;

    // Makes `to` share all that is in `from`.
    virtual int Clone(const Descriptor& from, const Descriptor& to) = 0;
    // Copies up to `count` bytes from `offset` on inside the system, which may
    // do none although there are some.
    virtual int CopyRange(const Descriptor& from, const Descriptor& to, std::uint64_t offset,
                          std::size_t count, std::size_t& copied) = 0;
    // Reads up to as many bytes as `bytes` has room for and cuts it to them.
    virtual int Read(const Descriptor& file, std::uint64_t offset, std::string& bytes) = 0;
    virtual int Write(const Descriptor& file, std::uint64_t offset, std::string_view bytes,
                      std::size_t& written) = 0;
    // Closes the file; a network disk tells only now that it is full.
    virtual int Close(Descriptor& file) = 0;

    // Extended attributes, by their full names; ENOTSUP where the file system
    // keeps none at all.
    virtual int ListAttributes(const Descriptor& entry, std::vector<std::string>& names) = 0;
    virtual int GetAttribute(const Descriptor& entry, const std::string& name,
                             std::string& value) = 0;
    virtual int SetAttribute(const Descriptor& entry, const std::string& name,
                             std::string_view value) = 0;
    // The attribute byte of a FAT file system; ENOTSUP on any other.
    virtual int GetFat(const Descriptor& entry, std::uint32_t& attributes) = 0;
    virtual int SetFat(const Descriptor& entry, std::uint32_t attributes) = 0;
    // `sameOwner` leaves the owner.
    virtual int SetOwner(const Descriptor& entry, std::uint32_t owner, std::uint32_t group) = 0;
    virtual int SetMode(const Descriptor& entry, std::uint32_t mode) = 0;
    virtual int SetTimes(const Descriptor& entry, Stamp accessed, Stamp written) = 0;
    virtual int SetLinkOwner(const Descriptor& folder, const std::string& name, std::uint32_t owner,
                             std::uint32_t group) = 0;
    virtual int SetLinkTimes(const Descriptor& folder, const std::string& name, Stamp accessed,
                             Stamp written) = 0;

    // Returns when the file, or the folder's list of names, is on the disk.
    virtual int Sync(const Descriptor& entry) = 0;
    // Returns when all that was written to the entry's file system is.
    virtual int SyncAll(const Descriptor& entry) = 0;

    virtual int Unlink(const Descriptor& folder, const std::string& name) = 0;
    // Removes an empty folder.
    virtual int RemoveFolder(const Descriptor& folder, const std::string& name) = 0;
};

// The calls of the system itself.
std::unique_ptr<TransferDisk> SystemTransferDisk();

} // namespace tavo
