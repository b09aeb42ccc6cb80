#pragma once

#include "platform/posix/descriptor.h"

#include <string>
#include <string_view>

namespace tavo {

// Something that takes bytes and is no file: a pipe, a printer, a terminal. All
// calls give 0 or the system's error number.
class DeviceOutput {
public:
    // Waits for nobody: ENXIO for a pipe that nobody reads.
    int Open(const std::string& path);
    // All of the bytes. EAGAIN when nothing could be written for `patience`,
    // EPIPE when nobody reads any more.
    int Write(std::string_view bytes);

    int PatienceMilliseconds = 2000;

private:
    int WaitForRoom() const;

    Descriptor device_;
};

} // namespace tavo
