#pragma once

#include "platform/files.h"
#include "platform/posix/descriptor.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace tavo {

// What attributes and times ask of the system. An entry is opened as itself, a
// link too, and needs no right to its content; calls with a descriptor go to the
// entry that was opened, whatever has its name by then. Every call gives 0 or
// the system's error number.
class EntryDisk {
public:
    enum class Kind { File, Folder, Link, Other };
    struct State {
        Kind What = Kind::File;
        std::uint32_t Mode = 0; // the bits that chmod sets
        FileTime Accessed, Written;
        std::optional<FileTime> Birth; // none on disks that keep none
    };

    virtual ~EntryDisk() = default;

    virtual int Open(const std::string& path, Descriptor& entry) = 0;
    // The same for what was just seen to be a file.
    virtual int OpenFile(const std::string& path, Descriptor& entry) = 0;
    virtual int Look(const Descriptor& entry, State& state) = 0;

    // Extended attributes, by their full names. ENODATA where there is none of
    // that name, ENOTSUP where the file system keeps none at all.
    virtual int GetText(const Descriptor& entry, const char* name, std::string& bytes) = 0;
    virtual int SetText(const Descriptor& entry, const char* name, const std::string& bytes) = 0;
    virtual int RemoveText(const Descriptor& entry, const char* name) = 0;

    virtual int SetMode(const Descriptor& entry, std::uint32_t mode) = 0;
    // Accessed and written; one of 0 is left alone.
    virtual int SetTimes(const Descriptor& entry, FileTime accessed, FileTime written) = 0;

    // The attribute byte of a FAT file system; ENOTSUP on any other.
    virtual int GetFat(const Descriptor& entry, std::uint32_t& attributes) = 0;
    virtual int SetFat(const Descriptor& entry, std::uint32_t attributes) = 0;

    // The same for whatever has this name at the time, without opening it; a
    // link is not followed.
    virtual int Look(const std::string& path, State& state) = 0;
    virtual int GetText(const std::string& path, const char* name, std::string& bytes) = 0;
    virtual int SetText(const std::string& path, const char* name, const std::string& bytes) = 0;
    virtual int RemoveText(const std::string& path, const char* name) = 0;
    virtual int SetTimes(const std::string& path, FileTime accessed, FileTime written) = 0;

    // The rights that new files of this user do not get.
    virtual std::uint32_t UserMask() = 0;
};

// The calls of the system itself.
std::unique_ptr<EntryDisk> SystemEntryDisk();

// Puts `bytes` under this name, or nothing there when there are none to put.
// The owner may do so even where the mode lets nobody write: the mode is then
// loosened for the one call and put back behind it.
int StoreText(EntryDisk& disk, const Descriptor& entry, const EntryDisk::State& state,
              const char* name, const std::optional<std::string>& bytes);

// What stands under this name; none when nothing does. The mode is loosened
// for it like that where the owner may not read.
int LoadText(EntryDisk& disk, const Descriptor& entry, const EntryDisk::State& state,
             const char* name, std::optional<std::string>& bytes);

} // namespace tavo
