#include "platform/posix/output_file.h"

#include "platform/posix/disk_error.h"
#include "platform/posix/posix_files.h"
#include "support/faulty_content_disk.h"
#include "support/faulty_edit_disk.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavo {

namespace {

using Names = std::vector<std::string>;

const std::string oldBytes = "old, and longer than the new\n", newBytes = "new\n";
// Several buffers long, so that a half written one would show.
const std::string longBytes(300'000, 'n');

class OutputFiles : public testing::Test {
protected:
    int Save(const std::string& bytes = newBytes)
    {
        OutputFile output(disk, contents);
        if (const int error = output.Open(file))
            return error;
        output.Write(std::string_view(bytes).substr(0, bytes.size() / 2));
        output.Write(std::string_view(bytes).substr(bytes.size() / 2));
        return output.Close();
    }
    struct stat StatOf(const std::string& name) const
    {
        struct stat data = {};
        EXPECT_EQ(::stat(folder.Path(name).c_str(), &data), 0);
        return data;
    }

    TempFolder folder{"output_file"};
    std::string file = folder.Path("list.txt");
    FaultyEditDisk disk;
    FaultyContentDisk contents;
};

} // namespace

TEST_F(OutputFiles, A_file_is_made_and_replaced)
{
    for (const std::string& bytes : {newBytes, longBytes, std::string(), oldBytes}) {
        EXPECT_EQ(Save(bytes), 0);
        EXPECT_EQ(folder.Read("list.txt"), bytes);
        EXPECT_EQ(folder.Names(), Names{"list.txt"});
    }
}

TEST_F(OutputFiles, Until_it_is_closed_the_old_one_stands_and_the_new_one_is_hidden)
{
    for (const bool hasOld : {false, true}) {
        if (hasOld)
            folder.Write("list.txt", oldBytes);
        OutputFile output(disk, contents);
        ASSERT_EQ(output.Open(file), 0);
        EXPECT_EQ(output.Write(longBytes), 0);
        Names names = folder.Names();
        ASSERT_EQ(names.size(), hasOld ? 2U : 1U);
        EXPECT_TRUE(names[0].starts_with(".list.txt.")) << names[0];
        if (hasOld) {
            EXPECT_EQ(folder.Read("list.txt"), oldBytes);
        }
        EXPECT_EQ(output.Close(), 0);
        EXPECT_EQ(folder.Read("list.txt"), longBytes);
        EXPECT_EQ(folder.Names(), Names{"list.txt"});
    }
}

TEST_F(OutputFiles, One_that_is_never_closed_leaves_the_old_one)
{
    folder.Write("list.txt", oldBytes);
    {
        OutputFile output(disk, contents);
        ASSERT_EQ(output.Open(file), 0);
        output.Write(longBytes);
    }
    EXPECT_EQ(folder.Read("list.txt"), oldBytes);
    EXPECT_EQ(folder.Names(), Names{"list.txt"});
}

TEST_F(OutputFiles, Bytes_are_gathered)
{
    OutputFile output(disk, contents);
    ASSERT_EQ(output.Open(file), 0);
    for (int i = 0; i < 10'000; ++i)
        EXPECT_EQ(output.Write("twenty bytes a line\n"), 0);
    EXPECT_EQ(output.Close(), 0);
    EXPECT_EQ(folder.Read("list.txt").size(), 200'000U);
    EXPECT_EQ(disk.CountOf("Write"), 4U);
}

TEST_F(OutputFiles, The_mode_stays_and_a_new_file_has_that_of_all_new_files)
{
    for (const unsigned mode : {0600U, 0644U, 0666U, 0755U}) {
        folder.Write("list.txt", oldBytes);
        folder.SetMode("list.txt", mode);
        EXPECT_EQ(Save(), 0);
        EXPECT_EQ(StatOf("list.txt").st_mode & 07777U, mode);
    }
    folder.Remove("list.txt");
    const mode_t mask = ::umask(027);
    EXPECT_EQ(Save(), 0);
    ::umask(mask);
    EXPECT_EQ(StatOf("list.txt").st_mode & 07777U, 0640U);
}

// A file of somebody else, whose user may give files away.
class OthersFile : public FaultyEditDisk {
public:
    Rights Given;

    using FaultyEditDisk::Look;
    int Look(const std::string&, Rights& rights) override
    {
        rights = {4001, 4002, 0640};
        return 0;
    }
    int SetOwner(const Descriptor&, std::uint32_t owner, std::uint32_t group) override
    {
        Given.Owner = owner;
        Given.Group = group;
        return 0;
    }
    int SetMode(const Descriptor&, std::uint32_t mode) override
    {
        Given.Mode = mode;
        return 0;
    }
};

TEST_F(OutputFiles, The_owner_stays_where_the_user_may_give_files_away)
{
    folder.Write("list.txt", oldBytes);
    OthersFile others;
    OutputFile output(others, contents);
    EXPECT_EQ(output.Open(file), 0);
    EXPECT_EQ(output.Write(newBytes), 0);
    EXPECT_EQ(output.Close(), 0);
    EXPECT_EQ(others.Given, (EditDisk::Rights{4001, 4002, 0640}));
    EXPECT_EQ(folder.Read("list.txt"), newBytes);
}

TEST_F(OutputFiles, A_link_is_written_through)
{
    folder.Write("real/file", oldBytes);
    folder.MakeFolder("links");
    folder.MakeLink("links/one", "../real/file");
    folder.MakeLink("list.txt", folder.Path("links/one"));
    EXPECT_EQ(Save(), 0);
    EXPECT_EQ(folder.Read("real/file"), newBytes);
    EXPECT_EQ(folder.LinkTarget("list.txt"), folder.Path("links/one"));
    EXPECT_EQ(folder.LinkTarget("links/one"), "../real/file");
    EXPECT_EQ(folder.Names("real"), Names{"file"});
    EXPECT_EQ(folder.Names("links"), Names{"one"});

    folder.Remove("real/file");
    EXPECT_EQ(Save(oldBytes), 0) << "to nowhere yet";
    EXPECT_EQ(folder.Read("real/file"), oldBytes);

    folder.Remove("links/one");
    folder.MakeLink("links/one", "../missing/file");
    EXPECT_EQ(Save(), ENOENT);
    folder.Remove("links/one");
    folder.MakeLink("links/one", "../list.txt");
    EXPECT_EQ(Save(), ELOOP);
}

TEST_F(OutputFiles, What_cannot_be_written_is_refused_at_once)
{
    folder.MakeFolder("list.txt");
    EXPECT_EQ(Save(), EISDIR);
    folder.Remove("list.txt");
    folder.Write("plain");
    folder.Write("list.txt", oldBytes);
    folder.SetMode("list.txt", 0444);
    EXPECT_EQ(Save(), EACCES) << "root too";
    EXPECT_EQ(AsPlainUser([&] { return Save(); }), EACCES);
    EXPECT_EQ(folder.Read("list.txt"), oldBytes);
    file = folder.Path("missing/list.txt");
    EXPECT_EQ(Save(), ENOENT);
    file = folder.Path("plain/list.txt");
    EXPECT_EQ(Save(), ENOTDIR);
    EXPECT_EQ(folder.Names(), (Names{"list.txt", "plain"}));
    folder.MakeFolder("closed");
    folder.SetMode("closed", 0555);
    file = folder.Path("closed/list.txt");
    EXPECT_EQ(AsPlainUser([&] { return Save(); }), EACCES);
    EXPECT_EQ(folder.Names("closed"), Names{});
}

TEST_F(OutputFiles, A_file_in_a_folder_that_takes_no_other_is_written_over)
{
    folder.MakeFolder("closed");
    folder.Write("closed/list.txt");
    folder.SetMode("closed/list.txt", 0666);
    folder.SetMode("closed", 0555);
    file = folder.Path("closed/list.txt");
    const auto node = StatOf("closed/list.txt").st_ino;
    for (const std::string& bytes : {oldBytes, newBytes, longBytes, std::string(), newBytes}) {
        EXPECT_EQ(AsPlainUser([&] { return Save(bytes); }), 0);
        EXPECT_EQ(folder.Read("closed/list.txt"), bytes);
        EXPECT_EQ(folder.Names("closed"), Names{"list.txt"});
    }
    EXPECT_EQ(StatOf("closed/list.txt").st_ino, node);
    const int unclosed = AsPlainUser([&] {
        OutputFile output(disk, contents);
        return output.Open(file) + output.Write(longBytes);
    });
    EXPECT_EQ(unclosed, 0);
    EXPECT_EQ(folder.Read("closed/list.txt"), newBytes) << "nothing before it is closed";
}

// The same where the folder only does not let the old file go.
TEST_F(OutputFiles, A_file_that_cannot_be_taken_away_is_written_over)
{
    for (const int error : {EACCES, EPERM, EROFS, EBUSY})
        for (const std::string& bytes : {newBytes, longBytes}) {
            folder.Write("list.txt", oldBytes);
            const auto node = StatOf("list.txt").st_ino;
            FaultyEditDisk mounted;
            mounted.FailAll = "Move";
            mounted.Error = error;
            OutputFile output(mounted, contents);
            EXPECT_EQ(output.Open(file), 0);
            output.Write(bytes);
            EXPECT_EQ(output.Close(), 0) << error;
            EXPECT_EQ(folder.Read("list.txt"), bytes);
            EXPECT_EQ(StatOf("list.txt").st_ino, node);
            EXPECT_EQ(folder.Names(), Names{"list.txt"});
        }
    folder.Remove("list.txt");
    disk.FailAll = "Move";
    disk.Error = EPERM;
    EXPECT_EQ(Save(), EPERM);
    EXPECT_EQ(folder.Names(), Names{});
}

// -- Failures.

namespace {

constexpr int someErrors[] = {EIO, ENOSPC, EDQUOT};

// Saves with each call of the one disk failing in turn, until none is left to
// fail. Of a call that fails the save must say so and leave the old file,
// except where the new one is in place already.
template <typename Fail, typename Calls>
void FailEachCall(TempFolder& folder, bool hasOld, bool closed, Fail fail, Calls calls)
{
    for (std::size_t number = 1;; ++number) {
        if (hasOld)
            folder.Write("list.txt", oldBytes);
        FaultyEditDisk disk;
        FaultyContentDisk contents;
        if (closed) {
            disk.FailAll = "Move";
            disk.Error = EPERM;
        }
        fail(disk, contents, number);
        int error = 0;
        {
            OutputFile output(disk, contents);
            error = output.Open(folder.Path("list.txt"));
            if (error == 0) {
                output.Write(longBytes);
                output.Write(newBytes);
                error = output.Close();
            }
        }
        const Names made = calls(disk, contents);
        const bool isDone = made.size() < number;
        const std::string what = isDone ? "none" : made[number - 1];
        const bool isInPlace = !closed && (disk.CountOf("Move") == 1) && what != "Move";
        SCOPED_TRACE(what + ", call " + std::to_string(number));
        EXPECT_EQ(error == 0, isDone || isInPlace);
        if (isDone || isInPlace) {
            EXPECT_EQ(folder.Read("list.txt"), longBytes + newBytes);
        } else if (hasOld) {
            EXPECT_EQ(folder.Read("list.txt"), oldBytes);
        }
        const bool isThere = hasOld || isDone || isInPlace;
        EXPECT_EQ(folder.Names(), isThere ? Names{"list.txt"} : Names{});
        if (isThere)
            folder.Remove("list.txt");
        if (isDone) {
            EXPECT_GT(number, 1U);
            return;
        }
    }
}

} // namespace

TEST_F(OutputFiles, Each_call_that_fails_leaves_the_old_file_alone)
{
    for (const int error : someErrors)
        for (const bool hasOld : {true, false}) {
            SCOPED_TRACE(error);
            FailEachCall(
                folder, hasOld, false,
                [error](FaultyEditDisk& edit, FaultyContentDisk&, std::size_t number) {
                    edit.FailAt = number;
                    edit.Error = error;
                    edit.MostWritten = 100'000;
                },
                [](const FaultyEditDisk& edit, const FaultyContentDisk&) { return edit.Calls; });
            FailEachCall(
                folder, hasOld, false,
                [error](FaultyEditDisk&, FaultyContentDisk& content, std::size_t number) {
                    content.Faults.FailAt = number;
                    content.Faults.Error = error;
                },
                [](const FaultyEditDisk&, const FaultyContentDisk& content) {
                    return content.Faults.Calls;
                });
        }
}

TEST_F(OutputFiles, So_does_each_call_that_fails_in_writing_over_it)
{
    for (const int error : someErrors) {
        SCOPED_TRACE(error);
        FailEachCall(
            folder, true, true,
            [error](FaultyEditDisk&, FaultyContentDisk& content, std::size_t number) {
                content.Faults.FailAt = number;
                content.Faults.Error = error;
                content.MostBytes = 100'000;
            },
            [](const FaultyEditDisk&, const FaultyContentDisk& content) {
                return content.Faults.Calls;
            });
    }
}

TEST_F(OutputFiles, What_is_written_over_a_longer_file_and_cannot_be_cut_is_put_back)
{
    folder.Write("list.txt", oldBytes);
    disk.FailAll = "Move";
    disk.Error = EBUSY;
    contents.Faults.FailAll = "Cut";
    contents.Faults.Error = EIO;
    EXPECT_EQ(Save(), EIO);
    EXPECT_EQ(folder.Read("list.txt"), oldBytes);
}

TEST_F(OutputFiles, Nothing_is_written_behind_a_gap)
{
    folder.Write("list.txt", oldBytes);
    disk.FailAll = "Write";
    disk.Error = ENOSPC;
    OutputFile output(disk, contents);
    ASSERT_EQ(output.Open(file), 0);
    EXPECT_EQ(output.Write(longBytes), ENOSPC);
    disk.FailAll.clear();
    EXPECT_EQ(output.Write(longBytes), ENOSPC);
    EXPECT_EQ(output.Close(), ENOSPC);
    EXPECT_EQ(folder.Read("list.txt"), oldBytes);
    EXPECT_EQ(folder.Names(), Names{"list.txt"});
}

// -- What is no file.

TEST_F(OutputFiles, A_device_is_written_to_and_stays)
{
    file = "/dev/null";
    EXPECT_EQ(Save(longBytes), 0);
    file = "/dev/full";
    EXPECT_EQ(Save(), ENOSPC);
    EXPECT_EQ(Save(longBytes), ENOSPC);
    struct stat data = {};
    for (const char* device : {"/dev/null", "/dev/full"}) {
        ASSERT_EQ(::stat(device, &data), 0);
        EXPECT_TRUE(S_ISCHR(data.st_mode)) << device;
    }
    folder.MakeLink("list.txt", "/dev/full");
    file = folder.Path("list.txt");
    EXPECT_EQ(Save(), ENOSPC);
    EXPECT_EQ(folder.LinkTarget("list.txt"), "/dev/full");
}

TEST_F(OutputFiles, A_pipe_is_written_to_while_somebody_reads_it)
{
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(Save(), ENXIO) << "nobody reads";
    Descriptor reader(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    ASSERT_TRUE(reader.IsOpen());
    EXPECT_EQ(Save(), 0);
    std::string got(100, '\0');
    EXPECT_EQ(::read(reader.Number(), got.data(), got.size()),
              static_cast<ssize_t>(newBytes.size()));
    EXPECT_TRUE(got.starts_with(newBytes));

    OutputFile output(disk, contents);
    ASSERT_EQ(output.Open(file), 0);
    reader.Close();
    EXPECT_EQ(output.Write(longBytes), EPIPE);
    EXPECT_EQ(output.Close(), EPIPE);
    EXPECT_TRUE(S_ISFIFO(StatOf("list.txt").st_mode));
}

TEST_F(OutputFiles, A_pipe_that_takes_nothing_is_not_waited_for_without_end)
{
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    const Descriptor reader(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    DeviceOutput pipe;
    pipe.PatienceMilliseconds = 1;
    ASSERT_EQ(pipe.Open(file), 0);
    EXPECT_EQ(pipe.Write(longBytes), EAGAIN);
}

// -- The port.

TEST_F(OutputFiles, The_port_tells_what_failed)
{
    PosixFiles files;
    folder.MakeFolder("folder");
    const struct {
        std::string Path;
        int Code;
    } refused[] = {
        {folder.Path("missing/list.txt"), diskMissingFolder},
        {folder.Path("folder"), diskDenied},
        {folder.Path("folder/"), diskMissing},
        {folder.Path("missing/"), diskMissingFolder},
        {"list.txt", diskMissingFolder},
        {"", diskMissingFolder},
        {folder.Path() + std::string("a\0b", 3), diskBadName},
        {folder.Path(std::string(256, 'x')), diskBadName},
    };
    for (const auto& row : refused) {
        EXPECT_EQ(files.OpenOutput(row.Path), noFile) << row.Path;
        EXPECT_EQ(files.LastError(), row.Code) << row.Path;
    }
    EXPECT_FALSE(files.WriteOutput(17, "x"));
    EXPECT_FALSE(files.CloseOutput(17));
    EXPECT_FALSE(files.CloseOutput(noFile));
    EXPECT_EQ(files.LastError(), DiskCodeOf(EBADF));
    EXPECT_EQ(folder.Names(), Names{"folder"});

    const FileHandle full = files.OpenOutput("/dev/full");
    ASSERT_NE(full, noFile);
    EXPECT_TRUE(files.WriteOutput(full, "x"));
    EXPECT_FALSE(files.CloseOutput(full));
    EXPECT_EQ(files.LastErrorText(), "No space left on device");
}

TEST_F(OutputFiles, Several_are_written_side_by_side)
{
    PosixFiles files;
    const FileHandle one = files.OpenOutput(folder.Path("one"));
    const FileHandle two = files.OpenOutput(folder.Path("t\xFFwo"));
    ASSERT_NE(one, noFile);
    ASSERT_NE(two, noFile);
    EXPECT_NE(one, two);
    EXPECT_FALSE(files.FileLength(one)) << "no file that can be read";
    EXPECT_TRUE(files.WriteOutput(one, "1"));
    EXPECT_TRUE(files.WriteOutput(two, "2"));
    EXPECT_TRUE(files.WriteOutput(one, std::string_view("\0x", 2)));
    EXPECT_TRUE(files.CloseOutput(two));
    EXPECT_FALSE(files.WriteOutput(two, "2"));
    EXPECT_EQ(folder.Read("t\xFFwo"), "2");
    EXPECT_TRUE(files.CloseOutput(one));
    EXPECT_EQ(folder.Read("one"), std::string("1\0x", 3));
}

TEST_F(OutputFiles, A_program_that_ends_in_the_midst_leaves_nothing_behind)
{
    folder.Write("list.txt", oldBytes);
    {
        PosixFiles files;
        files.WriteOutput(files.OpenOutput(file), longBytes);
    }
    EXPECT_EQ(folder.Read("list.txt"), oldBytes);
    EXPECT_EQ(folder.Names(), Names{"list.txt"});
}

} // namespace tavo
