#pragma once

#include "platform/posix/content_disk.h"
#include "platform/posix/device_output.h"
#include "platform/posix/new_file.h"

#include <string>
#include <string_view>

namespace tavo {

// A file that is written from its beginning and takes the place of an older one
// only when it is whole. All calls give 0 or the system's error number. One that
// ends without Close, or after a failure, leaves the old file or none.
//
// It is made under a hidden name beside the old one, whose mode and owner it
// gets as far as the user may give them. A link stays, and what it leads to is
// replaced. Where the folder takes no other file but the old one may be
// written, the bytes are kept until Close and then written over the old ones,
// which are put back if that fails. What is no file (a device, a pipe) is
// written to as it comes, and never waited for without end.
class OutputFile {
public:
    OutputFile(EditDisk& disk, ContentDisk& contents)
        : disk_(disk), contents_(contents), file_(disk, NewFile::Sight::Hidden)
    {
    }

    // EISDIR for a folder, EACCES for a file that may not be written.
    int Open(const std::string& path);
    // Gives the first failure of all. Bytes are gathered, so that a failure may
    // only show with a later call.
    int Write(std::string_view bytes);
    int Close();

private:
    enum class Way { Beside, Over, Device };

    int MakeFile();
    void Flush();
    int PutInPlace();
    int WriteOver(std::string_view bytes);

    EditDisk& disk_;
    ContentDisk& contents_;
    NewFile file_;
    DeviceOutput device_;
    Way way_ = Way::Beside;
    bool isThere_ = false;
    std::string path_; // with the links at its end followed
    std::string gathered_;
    int error_ = 0;
};

} // namespace tavo
