#include "platform/posix/worker.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <limits>
#include <poll.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace tavo {

namespace {

// AddressSanitizer keeps more addresses to itself than any bound allows.
#ifdef __SANITIZE_ADDRESS__
constexpr bool boundsAddresses = false;
#else
constexpr bool boundsAddresses = true;
#endif

class SpawnPlan {
public:
    SpawnPlan()
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawnattr_init(&attributes);
    }
    ~SpawnPlan()
    {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    // The host may hold back signals that the worker must die of.
    bool Prepare(int input, int output)
    {
        sigset_t none;
        sigemptyset(&none);
        return posix_spawnattr_setsigmask(&attributes, &none) == 0
               && posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK) == 0
               && posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO) == 0
               && posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO) == 0
               && posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY,
                                                   0)
                      == 0;
    }

    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
};

void Limit_Set(int which, std::uint64_t value)
{
    const rlimit limit{value, value};
    ::setrlimit(static_cast<__rlimit_resource>(which), &limit);
}

} // namespace

std::optional<Worker> Worker::Start(const std::string& program,
                                    const std::vector<std::string>& arguments, int input,
                                    std::chrono::milliseconds time)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return std::nullopt;
    Descriptor output(ends[0]);
    const Descriptor printed(ends[1]);
    SpawnPlan plan;
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    pid_t process = -1;
    if (!plan.Prepare(input, printed.Number())
        || ::posix_spawn(&process, program.c_str(), &plan.actions, &plan.attributes, words.data(),
                         environ)
               != 0)
        return std::nullopt;
    return Worker(process, std::move(output), Clock::now() + time);
}

Worker::Worker(Worker&& other) noexcept
    : process_(std::exchange(other.process_, -1)), output_(std::move(other.output_)),
      end_(other.end_)
{
}

Worker::~Worker()
{
    if (process_ < 0)
        return;
    ::kill(process_, SIGKILL);
    WithoutInterrupts([this] { return ::waitpid(process_, nullptr, 0); });
}

bool Worker::WaitForOutput() const
{
    using std::chrono::milliseconds;
    pollfd wait{output_.Number(), POLLIN, 0};
    for (;;) {
        const auto left = std::chrono::ceil<milliseconds>(end_ - Clock::now()).count();
        if (left <= 0)
            return false;
        const int ready = ::poll(&wait, 1, static_cast<int>(std::min<long>(left, 1 << 20)));
        if (ready > 0)
            return true;
        if (ready < 0 && errno != EINTR)
            return false;
    }
}

bool Worker::Read(char* bytes, std::size_t count)
{
    while (count > 0) {
        if (!WaitForOutput())
            return false;
        const auto got = WithoutInterrupts([&] { return ::read(output_.Number(), bytes, count); });
        if (got <= 0)
            return false;
        bytes += got;
        count -= static_cast<std::size_t>(got);
    }
    return true;
}

std::uint64_t Memory_Available()
{
    constexpr std::string_view key = "MemAvailable:";
    std::ifstream table("/proc/meminfo");
    for (std::string line; std::getline(table, line);) {
        if (!line.starts_with(key))
            continue;
        const auto digit = std::min(line.find_first_not_of(' ', key.size()), line.size());
        std::uint64_t kilobytes = 0;
        std::from_chars(line.data() + digit, line.data() + line.size(), kilobytes);
        return kilobytes * 1024;
    }
    return std::numeric_limits<std::uint64_t>::max();
}

void Worker_Confine(std::uint64_t memoryBytes, std::chrono::seconds time)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // To write to a file is to fail, not to die, for libraries try it.
    std::signal(SIGXFSZ, SIG_IGN);
    Limit_Set(RLIMIT_FSIZE, 0);
    Limit_Set(RLIMIT_CORE, 0);
    Limit_Set(RLIMIT_CPU, static_cast<std::uint64_t>(time.count()));
    if (boundsAddresses)
        Limit_Set(RLIMIT_AS, memoryBytes);
}

bool Worker_Print(const char* bytes, std::size_t count)
{
    while (count > 0) {
        const auto done = WithoutInterrupts([&] { return ::write(STDOUT_FILENO, bytes, count); });
        if (done <= 0)
            return false;
        bytes += done;
        count -= static_cast<std::size_t>(done);
    }
    return true;
}

} // namespace tavo
