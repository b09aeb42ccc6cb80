#pragma once

#include "platform/posix/posix_files.h"
#include "support/faulty_content_disk.h"
#include "support/faulty_entry_disk.h"
#include "support/temp_folder.h"

#include <cerrno>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace tavo {

// A real folder and the disk of Linux over it, whose calls can fail.
struct EntryGround {
    explicit EntryGround(std::string_view test) : Folder(test), Files(Calls()) {}

    TempFolder Folder;
    FaultyEntryDisk* Entries = nullptr;
    FaultyContentDisk* Contents = nullptr;
    PosixFiles Files;

    // What is stored with the entry under this name, byte for byte.
    std::optional<std::string> Text(const std::string& name, const char* text) const
    {
        char bytes[256];
        const ssize_t length = ::lgetxattr(Folder.Path(name).c_str(), text, bytes, sizeof bytes);
        if (length < 0)
            return std::nullopt;
        return std::string(bytes, static_cast<std::size_t>(length));
    }
    void SetText(const std::string& name, const char* text, const std::string& bytes) const
    {
        ::lsetxattr(Folder.Path(name).c_str(), text, bytes.data(), bytes.size(), 0);
    }
    // Does the file system of temporary files keep texts with its entries?
    bool KeepsTexts() const
    {
        return ::setxattr(Folder.Path().c_str(), "user.tavo.test", "1", 1, 0) == 0
               || errno != ENOTSUP;
    }
    unsigned Mode(const std::string& name) const
    {
        struct stat data {};
        ::lstat(Folder.Path(name).c_str(), &data);
        return data.st_mode & 07777u;
    }

private:
    PosixCalls Calls()
    {
        auto entries = std::make_unique<FaultyEntryDisk>();
        auto contents = std::make_unique<FaultyContentDisk>();
        Entries = entries.get();
        Contents = contents.get();
        return {nullptr, std::move(entries), std::move(contents)};
    }
};

// The errors that each call fails with in turn.
inline constexpr int diskFaults[] = {EIO, EACCES, ENOSPC, EROFS};

} // namespace tavo
