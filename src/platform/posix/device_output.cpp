#include "platform/posix/device_output.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>

namespace tavo {

namespace {

// While it lives, a pipe without readers is an error and no signal, which would
// end the program.
class NoPipeSignal {
public:
    NoPipeSignal()
    {
        sigset_t waiting;
        sigemptyset(&pipe_);
        sigaddset(&pipe_, SIGPIPE);
        sigpending(&waiting);
        isOthers_ = sigismember(&waiting, SIGPIPE) == 1;
        pthread_sigmask(SIG_BLOCK, &pipe_, &before_);
    }
    ~NoPipeSignal()
    {
        const timespec atOnce{};
        if (!isOthers_)
            WithoutInterrupts([&] { return ::sigtimedwait(&pipe_, nullptr, &atOnce); });
        pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    }
    NoPipeSignal(const NoPipeSignal&) = delete;
    NoPipeSignal& operator=(const NoPipeSignal&) = delete;

private:
    sigset_t pipe_, before_;
    bool isOthers_ = false;
};

} // namespace

int DeviceOutput::Open(const std::string& path)
{
    constexpr int flags = O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    device_ = Descriptor(WithoutInterrupts([&] { return ::open(path.c_str(), flags); }));
    return device_.IsOpen() ? 0 : errno;
}

int DeviceOutput::Write(std::string_view bytes)
{
    const NoPipeSignal noSignal;
    while (!bytes.empty()) {
        const ssize_t count = WithoutInterrupts(
            [&] { return ::write(device_.Number(), bytes.data(), bytes.size()); });
        const int error = count < 0 ? errno : 0;
        if (count == 0 || (error != 0 && error != EAGAIN))
            return count == 0 ? EIO : error;
        if (error == EAGAIN) {
            if (const int timeOut = WaitForRoom())
                return timeOut;
            continue;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

int DeviceOutput::WaitForRoom() const
{
    pollfd wait{device_.Number(), POLLOUT, 0};
    const int ready = WithoutInterrupts([&] { return ::poll(&wait, 1, PatienceMilliseconds); });
    if (ready < 0)
        return errno;
    return ready == 0 ? EAGAIN : 0;
}

} // namespace tavo
