#include "platform/posix/open_files.h"

#include "support/entry_ground.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

namespace tavo {

namespace {

constexpr int badHandle = 2000 + EBADF;

FileHandle Open(EntryGround& ground, const std::string& name, OpenMode mode)
{
    return ground.Files.OpenFile(ground.Folder.Path(name), mode);
}

bool Write(EntryGround& ground, const std::string& name, std::uint64_t offset,
           std::string_view bytes)
{
    const FileHandle file = Open(ground, name, OpenMode::ReadWrite);
    const bool done = file != noFile && ground.Files.WriteBytes(file, offset, bytes);
    const int code = ground.Files.LastError();
    ground.Files.CloseHandle(file);
    return done && code == diskOk;
}

} // namespace

struct ReadRow {
    const char* What;
    std::uint64_t Offset;
    std::size_t Count;
    const char* Wanted;
};

TEST(OpenFiles, Bytes_are_read_as_far_as_there_are_any)
{
    const ReadRow rows[] = {
        {"all", 0, 10, "0123456789"},
        {"some", 3, 4, "3456"},
        {"none", 3, 0, ""},
        {"beyond the end", 8, 100, "89"},
        {"at the end", 10, 5, ""},
        {"behind the end", 1000, 5, ""},
        {"beyond all disks", UINT64_MAX, 5, ""},
        {"beyond all memory", 5, SIZE_MAX, "56789"},
    };
    for (const std::size_t most : {std::string::npos, std::size_t{3}}) {
        EntryGround ground("open");
        ground.Contents->MostBytes = most;
        ground.Folder.Write("a", "0123456789");
        const FileHandle file = Open(ground, "a", OpenMode::Read);
        for (const ReadRow& row : rows)
            EXPECT_EQ(ground.Files.ReadBytes(file, row.Offset, row.Count), row.Wanted) << row.What;
        EXPECT_EQ(ground.Files.FileLength(file), 10u);
        ground.Files.CloseHandle(file);
    }
}

TEST(OpenFiles, A_large_file_is_read_whole)
{
    EntryGround ground("open");
    std::string bytes;
    while (bytes.size() < 200'000)
        bytes += std::to_string(bytes.size());
    ground.Folder.Write("a", bytes);
    const FileHandle file = Open(ground, "a", OpenMode::Read);
    EXPECT_EQ(ground.Files.ReadBytes(file, 1, bytes.size()), bytes.substr(1));
}

struct WriteRow {
    const char* What;
    std::uint64_t Offset;
    const char *Bytes, *Wanted; // null when it must fail
};

const WriteRow writes[] = {
    {"front", 0, "abc", "abc3456789"},
    {"middle", 4, "abc", "0123abc789"},
    {"end", 7, "abc", "0123456abc"},
    {"across the end", 8, "abcd", "01234567abcd"},
    {"behind the end", 10, "abcdefgh", "0123456789abcdefgh"},
    {"nothing", 10, "", "0123456789"},
    {"with a gap", 11, "abc", nullptr},
    {"beyond all disks", UINT64_MAX, "abc", nullptr},
};

TEST(OpenFiles, Bytes_are_written_whole)
{
    for (const std::size_t most : {std::string::npos, std::size_t{3}, std::size_t{1}}) {
        for (const WriteRow& row : writes) {
            EntryGround ground("open");
            ground.Contents->MostBytes = most;
            ground.Folder.Write("a", "0123456789");
            EXPECT_EQ(Write(ground, "a", row.Offset, row.Bytes), row.Wanted != nullptr) << row.What;
            EXPECT_EQ(ground.Folder.Read("a"), row.Wanted ? row.Wanted : "0123456789") << row.What;
        }
    }
}

TEST(OpenFiles, A_full_disk_leaves_the_file_as_long_as_it_was)
{
    for (const WriteRow& row : writes) {
        for (std::uint64_t room = 10; room < 18; ++room) {
            EntryGround ground("open");
            ground.Contents->LongestFile = room;
            ground.Contents->MostBytes = 3;
            ground.Folder.Write("a", "0123456789");
            const bool done = Write(ground, "a", row.Offset, row.Bytes);
            const bool fits = row.Wanted && std::string_view(row.Wanted).size() <= room;
            EXPECT_EQ(done, fits) << row.What << ' ' << room;
            EXPECT_EQ(ground.Folder.Read("a"), done ? row.Wanted : "0123456789") << row.What;
        }
    }
}

TEST(OpenFiles, A_call_that_fails_leaves_the_bytes_as_they_were)
{
    for (const WriteRow& row : writes) {
        for (const int error : diskFaults) {
            for (std::size_t failing = 1;; ++failing) {
                EntryGround ground("open");
                ground.Contents->MostBytes = 3;
                ground.Folder.Write("a", "0123456789");
                auto& faults = ground.Contents->Faults;
                faults.FailAt = failing;
                faults.Error = error;
                const bool done = Write(ground, "a", row.Offset, row.Bytes);
                EXPECT_EQ(ground.Folder.Read("a"), done ? row.Wanted : "0123456789")
                    << row.What << ", " << error << " at call " << failing;
                if (failing > faults.Calls.size()) {
                    EXPECT_EQ(done, row.Wanted != nullptr) << row.What;
                    EXPECT_GE(failing, 5u) << row.What;
                    break;
                }
                EXPECT_FALSE(done) << row.What << ", call " << failing;
            }
        }
    }
}

TEST(OpenFiles, Bytes_that_were_read_come_back_when_writing_fails)
{
    constexpr std::string_view whole = "0123456789", bytes = "abcd";
    for (std::uint64_t offset = 0; offset <= whole.size(); ++offset) {
        for (const std::size_t most : {std::string::npos, std::size_t{3}}) {
            for (std::size_t failing = 1;; ++failing) {
                EntryGround ground("open");
                ground.Contents->MostBytes = most;
                ground.Folder.Write("a", std::string(whole));
                const FileHandle file = Open(ground, "a", OpenMode::ReadWrite);
                ASSERT_TRUE(ground.Files.ReadBytes(file, offset, bytes.size()));
                auto& faults = ground.Contents->Faults;
                const std::size_t before = faults.Calls.size();
                faults.FailAt = before + failing;
                faults.Error = ENOSPC;
                const bool done = ground.Files.WriteBytes(file, offset, bytes);
                ground.Files.CloseHandle(file);
                std::string wanted(whole);
                if (done)
                    wanted.replace(offset, bytes.size(), bytes);
                EXPECT_EQ(ground.Folder.Read("a"), wanted) << offset << ' ' << failing;
                if (failing > faults.Calls.size() - before) {
                    EXPECT_TRUE(done) << offset;
                    break;
                }
                EXPECT_FALSE(done) << offset << ' ' << failing;
            }
        }
    }
}

TEST(OpenFiles, What_was_written_is_no_longer_what_was_read)
{
    EntryGround ground("open");
    ground.Folder.Write("a", "0123456789");
    const FileHandle file = Open(ground, "a", OpenMode::ReadWrite);
    EXPECT_EQ(ground.Files.FileLength(file), 10u);
    EXPECT_EQ(ground.Files.ReadBytes(file, 8, 2), "89");
    EXPECT_TRUE(ground.Files.WriteBytes(file, 8, "xy"));
    EXPECT_TRUE(ground.Files.WriteBytes(file, 10, "more"));
    EXPECT_EQ(ground.Files.FileLength(file), 14u);
    ground.Contents->Faults.FailAt = ground.Contents->Faults.Calls.size() + 3;
    ground.Contents->Faults.Error = EIO;
    ground.Contents->MostBytes = 2;
    EXPECT_FALSE(ground.Files.WriteBytes(file, 8, "zz"));
    EXPECT_EQ(ground.Folder.Read("a"), "01234567xymore");
}

TEST(OpenFiles, A_read_that_fails_gives_nothing)
{
    for (std::size_t failing = 1; failing < 6; ++failing) {
        EntryGround ground("open");
        ground.Contents->MostBytes = 5;
        ground.Folder.Write("a", "0123456789");
        ground.Contents->Faults.FailAt = failing;
        ground.Contents->Faults.Error = EIO;
        const FileHandle file = Open(ground, "a", OpenMode::Read);
        EXPECT_EQ(file != noFile, failing > 3) << failing;
        EXPECT_EQ(ground.Files.ReadBytes(file, 0, 10), std::nullopt) << failing;
        EXPECT_EQ(ground.Files.LastErrorText(),
                  file != noFile ? "Input/output error" : "Bad file descriptor");
    }
}

TEST(OpenFiles, A_process_that_ends_leaves_old_or_new_bytes)
{
    for (const WriteRow& row : writes) {
        for (std::size_t call = 1; call < 8; ++call) {
            EntryGround ground("open");
            ground.Folder.Write("a", "0123456789");
            const pid_t child = ::fork();
            ASSERT_GE(child, 0);
            if (child == 0) {
                ground.Contents->Faults.KillBehind = call;
                Write(ground, "a", row.Offset, row.Bytes);
                ::_exit(0);
            }
            ASSERT_EQ(::waitpid(child, nullptr, 0), child);
            const std::string now = ground.Folder.Read("a");
            EXPECT_TRUE(now == "0123456789" || (row.Wanted && now == row.Wanted)) << row.What;
        }
    }
}

struct OpenRow {
    const char *What, *Path;
    int Read, Write, Times; // codes
};

TEST(OpenFiles, Only_regular_files_are_opened_for_their_bytes)
{
    EntryGround ground("open");
    ground.Folder.Write("file", "content");
    ground.Folder.Write("read-only", "content");
    ground.Folder.SetMode("read-only", 0444);
    ground.Folder.MakeFolder("folder");
    ground.Folder.MakeLink("to file", "file");
    ground.Folder.MakeLink("to folder", "folder");
    ground.Folder.MakeLink("to nowhere", "missing");
    ASSERT_EQ(::mkfifo(ground.Folder.Path("pipe").c_str(), 0666), 0);
    constexpr int noFileAtAll = 2000 + EINVAL;
    const OpenRow rows[] = {
        {"file", "file", 0, 0, 0},
        {"read-only file", "read-only", 0, diskDenied, 0},
        {"folder", "folder", diskDenied, diskDenied, 0},
        {"link", "to file", 0, 0, 0},
        {"link to a folder", "to folder", diskDenied, diskDenied, 0},
        {"link to nowhere", "to nowhere", diskMissing, diskMissing, 0},
        {"pipe", "pipe", noFileAtAll, noFileAtAll, 0},
        {"missing", "missing", diskMissing, diskMissing, diskMissing},
        {"in a missing folder", "missing/a", diskMissingFolder, diskMissingFolder,
         diskMissingFolder},
        {"slash behind a link", "to folder/", diskMissing, diskMissing, diskMissing},
    };
    for (const OpenRow& row : rows) {
        const std::pair<OpenMode, int> modes[] = {{OpenMode::Read, row.Read},
                                                  {OpenMode::ReadWrite, row.Write},
                                                  {OpenMode::Times, row.Times}};
        for (const auto& [mode, code] : modes) {
            const FileHandle file = Open(ground, row.Path, mode);
            EXPECT_EQ(ground.Files.LastError(), code) << row.What;
            EXPECT_EQ(file != noFile, code == diskOk) << row.What;
            if (file != noFile)
                ground.Files.CloseHandle(file);
        }
    }
    EXPECT_EQ(ground.Files.OpenFile("/dev/null", OpenMode::ReadWrite), noFile);
    EXPECT_EQ(ground.Files.OpenFile("relative", OpenMode::Read), noFile);
}

TEST(OpenFiles, A_link_gives_the_bytes_of_what_it_leads_to)
{
    EntryGround ground("open");
    ground.Folder.Write("song", "0123456789");
    ground.Folder.MakeLink("link", "song");
    EXPECT_TRUE(Write(ground, "link", 10, "tag"));
    EXPECT_EQ(ground.Folder.Read("song"), "0123456789tag");
    EXPECT_EQ(ground.Folder.LinkTarget("link"), "song");
}

TEST(OpenFiles, A_handle_does_what_it_was_opened_for)
{
    EntryGround ground("open");
    ground.Folder.Write("a", "0123456789");
    const FileTime moment{125'911'584'000'000'000};
    const FileHandle reading = Open(ground, "a", OpenMode::Read);
    const FileHandle writing = Open(ground, "a", OpenMode::ReadWrite);
    const FileHandle times = Open(ground, "a", OpenMode::Times);
    EXPECT_FALSE(ground.Files.WriteBytes(reading, 0, "x"));
    EXPECT_EQ(ground.Files.LastError(), badHandle);
    EXPECT_FALSE(ground.Files.WriteBytes(times, 0, "x"));
    EXPECT_FALSE(ground.Files.ReadBytes(times, 0, 1));
    EXPECT_FALSE(ground.Files.FileLength(times));
    EXPECT_FALSE(ground.Files.SetFileTime(writing, {}, moment, moment));
    EXPECT_TRUE(ground.Files.ReadBytes(writing, 0, 1));
    EXPECT_EQ(ground.Folder.Read("a"), "0123456789");
    for (const FileHandle file : {reading, writing, times, noFile, -1, 99}) {
        ground.Files.CloseHandle(file);
        EXPECT_FALSE(ground.Files.ReadBytes(file, 0, 1)) << file;
        EXPECT_EQ(ground.Files.LastError(), badHandle) << file;
        EXPECT_FALSE(ground.Files.SetFileTime(file, {}, moment, moment)) << file;
    }
}

TEST(OpenFiles, Many_files_are_opened_and_closed_in_turn)
{
    EntryGround ground("open");
    ground.Folder.Write("a", "x");
    for (int turn = 0; turn < 3000; ++turn) {
        const FileHandle file = Open(ground, "a", OpenMode::Times);
        ASSERT_NE(file, noFile) << turn;
        ground.Files.CloseHandle(file);
    }
}

} // namespace tavo
