#include "platform/posix/file_edit.h"

#include "support/faulty_edit_disk.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

const std::string oldBytes = "old\n", newBytes = "new and longer\n";

// Several buffers long, so that a half written one would show.
const std::string longOld(300'000, 'o'), longNew(200'000, 'n');

class FileEdits : public testing::Test {
protected:
    int Change(EditDisk& on, const std::string& bytes = newBytes)
    {
        return ChangeFile(on, file, [&bytes](const std::string&) { return bytes; });
    }
    unsigned ModeOf(const std::string& name) const
    {
        struct stat data = {};
        EXPECT_EQ(::stat(folder.Path(name).c_str(), &data), 0);
        return data.st_mode & 07777u;
    }

    TempFolder folder{"file_edit"};
    std::string file = folder.Path("Tavo.ini");
    FaultyEditDisk disk;
};

TEST_F(FileEdits, A_file_is_made_changed_and_emptied)
{
    EXPECT_EQ(Change(disk), 0);
    EXPECT_EQ(folder.Read("Tavo.ini"), newBytes);
    const auto doubled = [](const std::string& bytes) { return bytes + bytes; };
    EXPECT_EQ(ChangeFile(disk, file, doubled), 0);
    EXPECT_EQ(folder.Read("Tavo.ini"), newBytes + newBytes);
    EXPECT_EQ(Change(disk, ""), 0);
    EXPECT_EQ(folder.Read("Tavo.ini"), "");
    EXPECT_EQ(Change(disk, longNew), 0);
    EXPECT_EQ(folder.Read("Tavo.ini"), longNew);
    EXPECT_EQ(folder.Names(), Names{"Tavo.ini"});
}

TEST_F(FileEdits, What_does_not_change_is_not_touched)
{
    EXPECT_EQ(Change(disk, ""), 0);
    EXPECT_EQ(folder.Names(), Names{});
    folder.Write("Tavo.ini", newBytes);
    struct stat before = {}, after = {};
    ASSERT_EQ(::stat(file.c_str(), &before), 0);
    EXPECT_EQ(Change(disk), 0);
    ASSERT_EQ(::stat(file.c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(before.st_ctim.tv_nsec, after.st_ctim.tv_nsec);
    EXPECT_EQ(disk.CountOf("Create"), 0u);
    // Not even the right to write it is asked for.
    folder.SetMode("Tavo.ini", 0444);
    EXPECT_EQ(Change(disk), 0);
}

TEST_F(FileEdits, Short_writes_are_gone_on_with)
{
    disk.MostWritten = 4;
    EXPECT_EQ(Change(disk), 0);
    EXPECT_EQ(folder.Read("Tavo.ini"), newBytes);
    EXPECT_EQ(disk.CountOf("Write"), 4u);
    disk.MostWritten = 0;
    EXPECT_EQ(Change(disk, oldBytes), EIO);
    EXPECT_EQ(folder.Read("Tavo.ini"), newBytes);
    EXPECT_EQ(folder.Names(), Names{"Tavo.ini"});
}

TEST_F(FileEdits, The_mode_stays)
{
    for (const unsigned mode : {0600u, 0644u, 0666u, 0640u, 0755u, 0200u}) {
        folder.Write("Tavo.ini", oldBytes);
        folder.SetMode("Tavo.ini", mode);
        const bool isReadable = mode != 0200 || ::geteuid() == 0;
        EXPECT_EQ(Change(disk), isReadable ? 0 : EACCES);
        EXPECT_EQ(ModeOf("Tavo.ini"), mode);
        folder.Remove("Tavo.ini");
    }
    const mode_t mask = ::umask(027);
    EXPECT_EQ(Change(disk), 0);
    ::umask(mask);
    EXPECT_EQ(ModeOf("Tavo.ini"), 0640u);
}

// A file of somebody else, and what the system lets its user do.
class OthersFile : public FaultyEditDisk {
public:
    int OwnerError = 0, GroupError = 0;
    std::uint32_t WantedMode = 0, GivenMode = 0;
    std::uint32_t Owner = 0, Group = 0;

    int Look(const std::string&, Rights& rights) override
    {
        rights = {4001, 4002, WantedMode};
        return 0;
    }
    int Look(const Descriptor&, Rights& rights) override
    {
        rights = {4003, 4004, 0600};
        GivenMode = 0600;
        return 0;
    }
    int SetOwner(const Descriptor&, std::uint32_t owner, std::uint32_t group) override
    {
        const int error = owner == sameOwner ? GroupError : OwnerError;
        if (error == 0) {
            Owner = owner;
            Group = group;
        }
        return error;
    }
    int SetMode(const Descriptor&, std::uint32_t mode) override
    {
        GivenMode = mode;
        return 0;
    }
};

TEST_F(FileEdits, The_owner_stays_where_the_user_may_give_files_away)
{
    constexpr auto same = EditDisk::sameOwner;
    struct Row {
        const char* What;
        int OwnerError, GroupError;
        std::uint32_t Mode;
        int Wanted;
        std::uint32_t Owner, Group, GivenMode;
    };
    const Row rows[] = {
        {"both", 0, 0, 0664, 0, 4001, 4002, 0664},
        {"both, with all bits", 0, 0, 06755, 0, 4001, 4002, 06755},
        {"the group alone", EPERM, 0, 0664, 0, same, 4002, 0664},
        {"and no right to run as it", EPERM, 0, 06755, 0, same, 4002, 0755},
        {"an owner that the system can't spell", EINVAL, 0, 0640, 0, same, 4002, 0640},
        {"none: another group gets no more than all", EPERM, EPERM, 0640, 0, 0, 0, 0600},
        {"none, and all may read", EPERM, EPERM, 0664, 0, 0, 0, 0644},
        {"none, and the owner alone may", EPERM, EPERM, 0600, 0, 0, 0, 0600},
        {"a broken disk", EIO, 0, 0664, EIO, 0, 0, 0600},
        {"a broken disk, second time", EPERM, EIO, 0664, EIO, 0, 0, 0600},
    };
    for (const Row& row : rows) {
        folder.Write("Tavo.ini", oldBytes);
        OthersFile others;
        others.OwnerError = row.OwnerError;
        others.GroupError = row.GroupError;
        others.WantedMode = row.Mode;
        EXPECT_EQ(Change(others), row.Wanted) << row.What;
        EXPECT_EQ(others.Owner, row.Owner) << row.What;
        EXPECT_EQ(others.Group, row.Group) << row.What;
        EXPECT_EQ(others.GivenMode, row.GivenMode) << row.What;
        EXPECT_EQ(folder.Read("Tavo.ini"), row.Wanted == 0 ? newBytes : oldBytes) << row.What;
        EXPECT_EQ(folder.Names(), Names{"Tavo.ini"}) << row.What;
    }
}

TEST_F(FileEdits, A_link_stays_and_its_file_is_replaced)
{
    folder.Write("real/settings", oldBytes);
    folder.MakeFolder("links");
    folder.MakeLink("links/one", "../real/settings");
    folder.MakeLink("Tavo.ini", folder.Path("links/one"));
    EXPECT_EQ(Change(disk), 0);
    EXPECT_EQ(folder.Read("real/settings"), newBytes);
    EXPECT_EQ(folder.LinkTarget("Tavo.ini"), folder.Path("links/one"));
    EXPECT_EQ(folder.LinkTarget("links/one"), "../real/settings");
    EXPECT_EQ(folder.Names("real"), Names{"settings"});
    EXPECT_EQ(folder.Names("links"), Names{"one"});

    folder.Remove("real/settings");
    EXPECT_EQ(Change(disk, oldBytes), 0);
    EXPECT_EQ(folder.Read("real/settings"), oldBytes);

    folder.Remove("links/one");
    folder.MakeLink("links/one", "../missing/settings");
    EXPECT_EQ(Change(disk), ENOENT);
    folder.Remove("links/one");
    folder.MakeLink("links/one", "../Tavo.ini");
    EXPECT_EQ(Change(disk), ELOOP);
}

TEST_F(FileEdits, What_is_no_file_or_has_no_folder_is_refused)
{
    folder.MakeFolder("Tavo.ini");
    EXPECT_EQ(Change(disk), EISDIR);
    folder.Remove("Tavo.ini");
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(Change(disk), EINVAL);
    EXPECT_EQ(folder.Names(), Names{"Tavo.ini"});
    file = folder.Path("missing/Tavo.ini");
    EXPECT_EQ(Change(disk), ENOENT);
    EXPECT_EQ(Change(disk, ""), ENOENT);
    folder.Write("plain");
    file = folder.Path("plain/Tavo.ini");
    EXPECT_EQ(Change(disk), ENOTDIR);
    file = "Tavo.ini";
    EXPECT_EQ(Change(disk), ENOENT);
}

TEST_F(FileEdits, What_may_not_be_written_is_refused)
{
    folder.MakeFolder("closed");
    folder.Write("closed/Tavo.ini", oldBytes);
    folder.SetMode("closed/Tavo.ini", 0666);
    folder.SetMode("closed", 0555);
    file = folder.Path("closed/Tavo.ini");
    EXPECT_EQ(AsPlainUser([&] { return Change(disk); }), EACCES);
    EXPECT_EQ(folder.Names("closed"), Names{"Tavo.ini"});
    folder.SetMode("closed", 0777);
    folder.SetMode("closed/Tavo.ini", 0444);
    EXPECT_EQ(AsPlainUser([&] { return Change(disk); }), EACCES);
    EXPECT_EQ(Change(disk), EACCES) << "root too";
    folder.SetMode("closed/Tavo.ini", 0000);
    EXPECT_EQ(AsPlainUser([&] { return Change(disk); }), EACCES);
    folder.SetMode("closed/Tavo.ini", 0666);
    EXPECT_EQ(folder.Read("closed/Tavo.ini"), oldBytes);
    EXPECT_EQ(AsPlainUser([&] { return Change(disk); }), 0);
    EXPECT_EQ(folder.Read("closed/Tavo.ini"), newBytes);
    EXPECT_EQ(folder.Names("closed"), Names{"Tavo.ini"});
}

TEST_F(FileEdits, A_name_of_the_longest_length_has_a_shorter_one_beside_it)
{
    std::string name(127, 'x');
    while (name.size() < 255)
        name += "ä";
    file = folder.Path(name);
    EXPECT_EQ(Change(disk), 0);
    EXPECT_EQ(Change(disk, oldBytes), 0);
    EXPECT_EQ(folder.Names(), Names{name});
}

TEST_F(FileEdits, A_name_that_is_taken_is_passed_over)
{
    class FirstTaken : public FaultyEditDisk {
    public:
        int Create(const std::string& path, std::uint32_t mode, Descriptor& opened) override
        {
            Paths.push_back(path);
            return Paths.size() < 3 ? EEXIST : FaultyEditDisk::Create(path, mode, opened);
        }
        Names Paths;
    } taken;
    EXPECT_EQ(Change(taken), 0);
    ASSERT_EQ(taken.Paths.size(), 3u);
    EXPECT_NE(taken.Paths[0], taken.Paths[1]);
    EXPECT_TRUE(taken.Paths[2].starts_with(file + '.'));
    EXPECT_EQ(folder.Names(), Names{"Tavo.ini"});
    disk.FailAll = "Create";
    disk.Error = EEXIST;
    EXPECT_EQ(Change(disk, oldBytes), EEXIST);
    EXPECT_EQ(folder.Read("Tavo.ini"), newBytes);
}

// Fails each call in turn, on a file that is there or is not.
void FailEachCall(TempFolder& folder, bool hasOld, int error)
{
    const auto change = [](const std::string&) { return newBytes; };
    for (std::size_t number = 1;; ++number) {
        if (hasOld) {
            folder.Write("Tavo.ini", oldBytes);
            folder.SetMode("Tavo.ini", 0644);
        }
        FaultyEditDisk disk;
        disk.MostWritten = 10;
        disk.FailAt = number;
        disk.Error = error;
        const int result = ChangeFile(disk, folder.Path("Tavo.ini"), change);
        if (disk.Calls.size() < number) {
            EXPECT_EQ(result, 0);
            EXPECT_EQ(disk.Calls.size(), hasOld ? 15u : 11u);
            folder.Remove("Tavo.ini");
            return;
        }
        const std::string what = disk.Calls[number - 1] + ", call " + std::to_string(number);
        // Without a lock a save goes on, but not on a broken disk. The very
        // last call comes when the new file is in place.
        const bool isLockGone = disk.Calls[number - 1] == "Lock" && error != EIO;
        const bool isLast = disk.Calls[number - 1] == "Sync" && disk.CountOf("Move") == 1;
        EXPECT_EQ(result, isLockGone ? 0 : error) << what;
        if (isLockGone || isLast) {
            EXPECT_EQ(folder.Read("Tavo.ini"), newBytes) << what;
            folder.Remove("Tavo.ini");
        } else if (hasOld) {
            EXPECT_EQ(folder.Read("Tavo.ini"), oldBytes) << what;
        }
        EXPECT_EQ(folder.Names(), hasOld && !isLockGone && !isLast ? Names{"Tavo.ini"} : Names{})
            << what;
    }
}

TEST_F(FileEdits, Each_call_that_fails_leaves_the_old_file_alone)
{
    for (const int error : {EIO, ENOSPC, EACCES, EROFS, EDQUOT, EPERM}) {
        SCOPED_TRACE(error);
        FailEachCall(folder, true, error);
        FailEachCall(folder, false, error);
    }
}

TEST_F(FileEdits, A_failure_that_cannot_be_tidied_up_leaves_the_old_file_too)
{
    folder.Write("Tavo.ini", oldBytes);
    disk.FailAll = "Unlink";
    disk.Error = EIO;
    disk.FailAt = 9;
    EXPECT_EQ(Change(disk), EIO);
    EXPECT_EQ(disk.Calls, (Names{"ReadLink", "OpenFolder", "Lock", "Read", "MayWrite", "Look",
                                 "MakeUnique", "Create", "Look at the new file", "Unlink"}));
    EXPECT_EQ(folder.Read("Tavo.ini"), oldBytes);
}

TEST_F(FileEdits, A_disk_that_cannot_sync_folders_is_no_failure)
{
    for (const int error : {EINVAL, ENOTSUP, EBADF}) {
        FaultyEditDisk plain;
        plain.Error = error;
        plain.FailAt = 10;
        EXPECT_EQ(Change(plain), 0);
        EXPECT_EQ(plain.Calls.back(), "Sync");
        EXPECT_EQ(plain.Calls.size(), 10u);
        folder.Remove("Tavo.ini");
    }
}

TEST_F(FileEdits, A_lock_is_waited_for_but_not_for_ever)
{
    const Descriptor other(::open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_EQ(::flock(other.Number(), LOCK_EX), 0);
    disk.Waited = [&] {
        if (disk.Pauses == 3)
            ::flock(other.Number(), LOCK_UN);
    };
    EXPECT_EQ(Change(disk), 0);
    EXPECT_EQ(disk.Pauses, 3);
    ASSERT_EQ(::flock(other.Number(), LOCK_EX | LOCK_NB), 0) << "it was given back";
    EXPECT_EQ(Change(disk, oldBytes), 0);
    EXPECT_EQ(disk.Pauses, 3 + 200);
    EXPECT_EQ(folder.Read("Tavo.ini"), oldBytes);
    EXPECT_EQ(folder.Names(), Names{"Tavo.ini"});
}

// Calls `work` in a process of its own that may be killed on the way.
pid_t Begin(const std::function<int()>& work)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    return child;
}

// Was it killed?
bool WaitForKill(pid_t child)
{
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

TEST_F(FileEdits, A_kill_at_any_call_leaves_the_old_file_or_the_new_one)
{
    for (const bool isBehind : {false, true}) {
        int killed = 0;
        for (bool goesOn = true; goesOn;) {
            folder.Write("Tavo.ini", longOld);
            folder.SetMode("Tavo.ini", 0644);
            FaultyEditDisk deadly;
            deadly.MostWritten = 50'000;
            (isBehind ? deadly.KillBehind : deadly.KillBefore) =
                static_cast<std::size_t>(killed) + 1;
            goesOn = WaitForKill(Begin([&] { return Change(deadly, longNew); }));
            killed += goesOn;
            const std::string left = folder.Read("Tavo.ini");
            EXPECT_TRUE(left == longOld || left == longNew) << killed;
            // What it held and left behind is in nobody's way.
            EXPECT_EQ(Change(disk, newBytes), 0);
            EXPECT_EQ(folder.Read("Tavo.ini"), newBytes);
        }
        EXPECT_EQ(killed, 17);
    }
    EXPECT_EQ(disk.Pauses, 0);
}

TEST_F(FileEdits, A_kill_at_any_moment_leaves_a_whole_file_and_readers_see_no_other)
{
    std::minstd_rand random(20);
    for (int round = 0; round < 12; ++round) {
        folder.Write("Tavo.ini", longOld);
        const pid_t child = Begin([&] {
            disk.IsHasty = true;
            disk.MostWritten = 4096;
            for (int save = 0; save < 20'000; ++save) {
                if (Change(disk, save % 2 == 0 ? longNew : longOld) != 0)
                    return 1;
            }
            return 0;
        });
        // It dies after so many changes were seen, somewhere in the next one.
        std::string seen = longOld;
        for (auto changes = random() % 8; changes > 0;) {
            const std::string now = folder.Read("Tavo.ini");
            ASSERT_TRUE(now == longOld || now == longNew) << now.size();
            changes -= now != seen;
            seen = now;
            ASSERT_EQ(::waitpid(child, nullptr, WNOHANG), 0) << "it has ended before";
        }
        for (auto reads = random() % 4; reads > 0; --reads)
            folder.Read("Tavo.ini");
        ::kill(child, SIGKILL);
        EXPECT_TRUE(WaitForKill(child));
        const std::string left = folder.Read("Tavo.ini");
        EXPECT_TRUE(left == longOld || left == longNew) << left.size();
        EXPECT_LE(folder.Names().size(), static_cast<std::size_t>(round) + 2);
    }
}

TEST_F(FileEdits, Programs_that_change_a_file_at_once_lose_nothing_of_each_other)
{
    constexpr int writers = 3, saves = 50;
    std::vector<pid_t> children;
    for (int writer = 0; writer < writers; ++writer) {
        children.push_back(Begin([&] {
            disk.IsHasty = true;
            disk.WaitForEver(folder.Path());
            const auto addLetter = [writer](const std::string& bytes) {
                return bytes + static_cast<char>('a' + writer);
            };
            for (int save = 0; save < saves; ++save) {
                if (ChangeFile(disk, file, addLetter) != 0)
                    return 1;
            }
            return 0;
        }));
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    const std::string letters = folder.Read("Tavo.ini");
    for (int writer = 0; writer < writers; ++writer)
        EXPECT_EQ(std::count(letters.begin(), letters.end(), 'a' + writer), saves);
    EXPECT_EQ(folder.Names(), Names{"Tavo.ini"});
}

} // namespace
} // namespace tavo
