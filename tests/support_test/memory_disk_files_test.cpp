#include "support/memory_disk.h"

#include "support/memory_clock.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using Flavour = MemoryDisk::Flavour;

constexpr Flavour allFlavours[] = {Flavour::Windows, Flavour::Posix, Flavour::PosixCaseBlind};
constexpr std::uint32_t allFour = attrReadOnly | attrHidden | attrSystem | attrArchive;

bool IsWindows(Flavour flavour)
{
    return flavour == Flavour::Windows;
}

std::string PathOf(Flavour flavour, const std::string& name)
{
    return (IsWindows(flavour) ? "C:\\d\\" : "/d/") + name;
}

// A file with ten bytes, a Read-Only one, a folder, and a link to the first.
MemoryDisk FilledDisk(Flavour flavour)
{
    MemoryDisk disk(flavour);
    disk.AddFile(PathOf(flavour, "file"), "0123456789");
    disk.AddFile(PathOf(flavour, "read-only"), "x");
    disk.SetAttributes(PathOf(flavour, "read-only"), attrReadOnly);
    disk.AddFolder(PathOf(flavour, "folder"));
    disk.AddLink(PathOf(flavour, "link"), PathOf(flavour, "file"));
    disk.AddLink(PathOf(flavour, "to nowhere"), PathOf(flavour, "missing"));
    return disk;
}

} // namespace

TEST(MemoryDiskFiles, Attributes_are_exactly_what_was_set)
{
    for (const Flavour flavour : allFlavours) {
        MemoryDisk disk = FilledDisk(flavour);
        const std::string file = PathOf(flavour, "file"), folder = PathOf(flavour, "folder");
        EXPECT_EQ(disk.GetFileAttributesA(file), IsWindows(flavour) ? attrArchive : 0u);
        for (std::uint32_t bits = 0; bits < 256; ++bits) {
            EXPECT_TRUE(disk.SetFileAttributesA(file, bits));
            EXPECT_EQ(disk.GetFileAttributesA(file), bits & allFour) << bits;
            EXPECT_TRUE(disk.SetFileAttributesA(folder, bits));
            EXPECT_EQ(disk.GetFileAttributesA(folder), (bits & allFour) | attrDirectory) << bits;
        }
        EXPECT_EQ(disk.Stat(file)->Attributes, allFour);
    }
}

TEST(MemoryDiskFiles, Attributes_of_a_link_are_set_on_Windows_alone)
{
    for (const Flavour flavour : allFlavours) {
        MemoryDisk disk = FilledDisk(flavour);
        const std::string link = PathOf(flavour, "link");
        const auto target = disk.GetFileAttributesA(PathOf(flavour, "file"));
        EXPECT_EQ(disk.GetFileAttributesA(link), attrReparse);
        EXPECT_EQ(disk.SetFileAttributesA(link, attrHidden), IsWindows(flavour));
        EXPECT_EQ(disk.LastError(), IsWindows(flavour) ? 0 : 2095);
        EXPECT_EQ(disk.GetFileAttributesA(PathOf(flavour, "file")), target);
    }
    MemoryDisk posix = FilledDisk(Flavour::Posix);
    posix.SetFileAttributesA("/d/link", 0);
    EXPECT_EQ(posix.LastErrorText(), "Operation not supported");
}

struct TextRow {
    int Code;
    const char *Windows, *Posix;
};

TEST(MemoryDiskFiles, Every_code_has_its_words)
{
    const TextRow rows[] = {
        {diskMissing, "File not found", "No such file or directory"},
        {diskMissingFolder, "Path not found", "No such file or directory"},
        {diskDenied, "Access denied", "Permission denied"},
        {diskInUse, "Sharing violation", "Device or resource busy"},
        {diskExists, "File already exists", "File exists"},
        {2028, "No space left on device", "No space left on device"},
        {77, "Error 77", "Error 77"},
    };
    for (const TextRow& row : rows) {
        for (const Flavour flavour : allFlavours) {
            MemoryDisk disk = FilledDisk(flavour);
            disk.Fail("SetFileAttributesA", 1, row.Code);
            EXPECT_FALSE(disk.SetFileAttributesA(PathOf(flavour, "file"), 1));
            EXPECT_EQ(disk.LastErrorText(), IsWindows(flavour) ? row.Windows : row.Posix);
            EXPECT_TRUE(disk.SetFileAttributesA(PathOf(flavour, "file"), 1));
            EXPECT_EQ(disk.LastErrorText(), "");
        }
    }
}

struct OpenRow {
    const char *What, *Name;
    int WindowsRead, WindowsWrite, WindowsTimes;
    int PosixRead, PosixWrite, PosixTimes;
};

TEST(MemoryDiskFiles, What_may_be_opened_for_what)
{
    const OpenRow rows[] = {
        {"file", "file", 0, 0, 0, 0, 0, 0},
        {"read-only", "read-only", 0, 5, 5, 0, 5, 0},
        {"folder", "folder", 5, 5, 5, 5, 5, 0},
        {"link", "link", 0, 0, 0, 0, 0, 0},
        {"link to nowhere", "to nowhere", 2, 2, 2, 2, 2, 0},
        {"missing", "missing", 2, 2, 2, 2, 2, 2},
        {"in use", "in use", 0, 32, 32, 0, 32, 0},
        {"unreadable", "unreadable", 5, 5, 0, 5, 5, 0},
    };
    for (const OpenRow& row : rows) {
        for (const Flavour flavour : allFlavours) {
            MemoryDisk disk = FilledDisk(flavour);
            disk.SetInUse(PathOf(flavour, "in use"));
            disk.SetUnreadable(PathOf(flavour, "unreadable"));
            const bool windows = IsWindows(flavour);
            const std::pair<OpenMode, int> modes[] = {
                {OpenMode::Read, windows ? row.WindowsRead : row.PosixRead},
                {OpenMode::ReadWrite, windows ? row.WindowsWrite : row.PosixWrite},
                {OpenMode::Times, windows ? row.WindowsTimes : row.PosixTimes}};
            for (const auto& [mode, code] : modes) {
                const FileHandle file = disk.OpenFile(PathOf(flavour, row.Name), mode);
                EXPECT_EQ(disk.LastError(), code) << row.What << ' ' << windows;
                EXPECT_EQ(file != noFile, code == 0) << row.What;
            }
        }
    }
    MemoryDisk windows;
    EXPECT_EQ(windows.OpenFile("C:\\no\\file", OpenMode::Times), noFile);
    EXPECT_EQ(windows.LastError(), diskMissing);
    MemoryDisk posix(Flavour::Posix);
    EXPECT_EQ(posix.OpenFile("/no/file", OpenMode::Times), noFile);
    EXPECT_EQ(posix.LastError(), diskMissingFolder);
}

TEST(MemoryDiskFiles, Windows_sets_no_times_under_a_path_of_128_characters)
{
    for (const Flavour flavour : allFlavours) {
        for (const std::size_t length : {127u, 128u}) {
            std::string path = PathOf(flavour, "\u00e4");
            path.append(length + 1 - path.size(), 'x'); // the letter has two bytes
            MemoryDisk disk(flavour);
            disk.AddFile(path, "x");
            const bool fits = length == 127 || !IsWindows(flavour);
            EXPECT_EQ(disk.OpenFile(path, OpenMode::Times) != noFile, fits) << length;
            EXPECT_NE(disk.OpenFile(path, OpenMode::ReadWrite), noFile) << length;
        }
    }
}

TEST(MemoryDiskFiles, Times_are_set_on_the_link_or_on_what_it_leads_to)
{
    for (const Flavour flavour : allFlavours) {
        MemoryDisk disk = FilledDisk(flavour);
        const FileHandle file = disk.OpenFile(PathOf(flavour, "link"), OpenMode::Times);
        EXPECT_TRUE(disk.SetFileTime(file, {1}, {2}, {3}));
        EXPECT_TRUE(disk.SetFileTime(file, {}, {}, {4}));
        EXPECT_TRUE(disk.SetFileTime(file, {}, {}, {}));
        disk.CloseHandle(file);
        const auto set = *disk.Stat(PathOf(flavour, IsWindows(flavour) ? "file" : "link"));
        EXPECT_EQ(set.Created.Ticks, 1);
        EXPECT_EQ(set.Accessed.Ticks, 2);
        EXPECT_EQ(set.Written.Ticks, 4);
        const auto other = *disk.Stat(PathOf(flavour, IsWindows(flavour) ? "link" : "file"));
        EXPECT_EQ(other.Written.Ticks, 0);
    }
}

struct BytesRow {
    const char* What;
    std::uint64_t Offset;
    const char *Bytes, *Wanted; // null when it must fail
};

TEST(MemoryDiskFiles, Bytes_are_read_and_written)
{
    const BytesRow rows[] = {
        {"front", 0, "abc", "abc3456789"},
        {"across the end", 8, "abcd", "01234567abcd"},
        {"behind the end", 10, "tag", "0123456789tag"},
        {"with a gap", 11, "abc", nullptr},
    };
    for (const BytesRow& row : rows) {
        for (const Flavour flavour : allFlavours) {
            MemoryDisk disk = FilledDisk(flavour);
            const FileHandle file = disk.OpenFile(PathOf(flavour, "link"), OpenMode::ReadWrite);
            EXPECT_EQ(disk.WriteBytes(file, row.Offset, row.Bytes), row.Wanted != nullptr);
            const std::string wanted = row.Wanted ? row.Wanted : "0123456789";
            EXPECT_EQ(disk.FileLength(file), wanted.size()) << row.What;
            EXPECT_EQ(disk.ReadBytes(file, 0, SIZE_MAX), wanted) << row.What;
            EXPECT_EQ(disk.ReadBytes(file, 1, 3), wanted.substr(1, 3)) << row.What;
            EXPECT_EQ(disk.ReadBytes(file, 100, 3), "") << row.What;
            disk.CloseHandle(file);
            EXPECT_EQ(disk.Content(PathOf(flavour, "file")), wanted) << row.What;
            EXPECT_EQ(disk.Stat(PathOf(flavour, "file"))->Size, wanted.size()) << row.What;
        }
    }
}

TEST(MemoryDiskFiles, What_has_a_size_alone_goes_on_with_NULs)
{
    MemoryDisk disk;
    disk.AddFile("C:\\a", "xy");
    disk.SetSize("C:\\a", 5'000'000'000);
    const FileHandle file = disk.OpenFile("C:\\a", OpenMode::Read);
    EXPECT_EQ(disk.FileLength(file), 5'000'000'000u);
    EXPECT_EQ(disk.ReadBytes(file, 1, 3), (std::string{'y', '\0', '\0'}));
    EXPECT_EQ(disk.ReadBytes(file, 4'999'999'998, 10), std::string(2, '\0'));
}

TEST(MemoryDiskFiles, A_handle_does_what_it_was_opened_for)
{
    for (const Flavour flavour : allFlavours) {
        MemoryDisk disk = FilledDisk(flavour);
        const std::string path = PathOf(flavour, "file");
        const int wrong = IsWindows(flavour) ? 5 : 2009, bad = IsWindows(flavour) ? 6 : 2009;
        const FileHandle reading = disk.OpenFile(path, OpenMode::Read);
        const FileHandle writing = disk.OpenFile(path, OpenMode::ReadWrite);
        const FileHandle times = disk.OpenFile(path, OpenMode::Times);
        EXPECT_EQ(disk.OpenFiles(), 3);
        EXPECT_FALSE(disk.WriteBytes(reading, 0, "x"));
        EXPECT_EQ(disk.LastError(), wrong);
        EXPECT_FALSE(disk.SetFileTime(writing, {1}, {1}, {1}));
        EXPECT_EQ(disk.LastError(), wrong);
        EXPECT_FALSE(disk.ReadBytes(times, 0, 1));
        EXPECT_FALSE(disk.FileLength(times));
        EXPECT_FALSE(disk.WriteBytes(times, 0, "x"));
        EXPECT_TRUE(disk.ReadBytes(writing, 0, 1));
        for (const FileHandle file : {reading, writing, times}) {
            disk.CloseHandle(file);
            EXPECT_EQ(disk.LastError(), diskOk);
            disk.CloseHandle(file);
            EXPECT_EQ(disk.LastError(), bad);
            EXPECT_FALSE(disk.ReadBytes(file, 0, 1));
            EXPECT_EQ(disk.LastError(), bad);
        }
        EXPECT_EQ(disk.OpenFiles(), 0);
        EXPECT_EQ(disk.Content(path), "0123456789");
    }
}

TEST(MemoryDiskFiles, An_open_file_stays_open_when_it_loses_its_name)
{
    MemoryDisk disk = FilledDisk(Flavour::Posix);
    const FileHandle file = disk.OpenFile("/d/file", OpenMode::ReadWrite);
    disk.MoveEntry("/d/file", "/d/other");
    EXPECT_TRUE(disk.WriteBytes(file, 10, "tag"));
    EXPECT_EQ(disk.Content("/d/other"), "0123456789tag");
    disk.Remove("/d/other");
    EXPECT_EQ(disk.ReadBytes(file, 10, 3), "tag");
}

TEST(MemoryDiskFiles, Every_call_is_counted_and_fails_on_demand)
{
    MemoryDisk disk = FilledDisk(Flavour::Windows);
    const std::string path = "C:\\d\\file";
    const FileHandle writing = disk.OpenFile(path, OpenMode::ReadWrite);
    const FileHandle times = disk.OpenFile(path, OpenMode::Times);
    FileTime moment;
    const std::pair<const char*, std::function<bool()>> calls[] = {
        {"GetFileAttributesA", [&] { return disk.GetFileAttributesA(path).has_value(); }},
        {"SetFileAttributesA", [&] { return disk.SetFileAttributesA(path, 0); }},
        {"OpenFile", [&] { return disk.OpenFile(path, OpenMode::Read) != noFile; }},
        {"SetFileTime", [&] { return disk.SetFileTime(times, {1}, {1}, {1}); }},
        {"FileLength", [&] { return disk.FileLength(writing).has_value(); }},
        {"ReadBytes", [&] { return disk.ReadBytes(writing, 0, 1).has_value(); }},
        {"WriteBytes", [&] { return disk.WriteBytes(writing, 0, "x"); }},
        {"LocalSystemTimeToFileTime",
         [&] {
             return disk.LocalSystemTimeToFileTime({2000, 1, 0, 1, 0, 0, 0, 0}, moment);
         }},
        {"CloseHandle",
         [&] {
             disk.CloseHandle(times);
             return disk.LastError() == diskOk;
         }},
    };
    for (const auto& [name, call] : calls) {
        const auto before = disk.Dump();
        disk.ForgetCalls();
        disk.Fail(name, 1, 77);
        EXPECT_FALSE(call()) << name;
        EXPECT_EQ(disk.LastError(), 77) << name;
        EXPECT_EQ(disk.Dump(), before) << name;
        EXPECT_EQ(disk.Calls(name), 1) << name;
        EXPECT_EQ(disk.Calls(), 1) << name;
        const bool isClosed = std::string(name) == "CloseHandle";
        EXPECT_EQ(call(), !isClosed) << name;
    }
}

TEST(MemoryDiskFiles, Local_time_goes_back_by_the_zone)
{
    for (const Flavour flavour : allFlavours) {
        MemoryDisk disk(flavour);
        for (const int zone : {0, 60, -300, 345}) {
            disk.SetZone(zone);
            const FileTime moment = Clock_Moment(2024, 2, 29, 12, 30, 15, 250);
            SystemTime local;
            FileTime back;
            ASSERT_TRUE(disk.FileTimeToLocalSystemTime(moment, local));
            EXPECT_TRUE(disk.LocalSystemTimeToFileTime(local, back));
            EXPECT_EQ(back, moment) << zone;
        }
    }
}

TEST(MemoryDiskFiles, What_is_no_time_leaves_the_last_value)
{
    const SystemTime rows[] = {
        {2001, 2, 0, 29, 0, 0, 0, 0},   {1900, 2, 0, 29, 0, 0, 0, 0},  {2024, 0, 0, 1, 0, 0, 0, 0},
        {2024, 13, 0, 1, 0, 0, 0, 0},   {2024, 4, 0, 31, 0, 0, 0, 0},  {2024, 4, 0, 0, 0, 0, 0, 0},
        {2024, 1, 0, 1, 24, 0, 0, 0},   {2024, 1, 0, 1, 0, 60, 0, 0},  {2024, 1, 0, 1, 0, 0, 60, 0},
        {2024, 1, 0, 1, 0, 0, 0, 1000}, {1600, 12, 0, 31, 0, 0, 0, 0}, {2024, 1, 0, 1, -1, 0, 0, 0},
        {1601, 1, 0, 1, 0, 0, 0, 0},    {0, 0, 0, 0, 0, 0, 0, 0},
    };
    for (const Flavour flavour : allFlavours) {
        MemoryDisk disk(flavour);
        FileTime moment{77};
        for (const SystemTime& row : rows) {
            EXPECT_FALSE(disk.LocalSystemTimeToFileTime(row, moment))
                << row.Month << ' ' << row.Day;
            EXPECT_EQ(moment.Ticks, 77);
            EXPECT_EQ(disk.LastError(), IsWindows(flavour) ? 87 : 2022);
        }
    }
}

// -- Output

TEST(MemoryDiskFiles, Output_takes_its_place_when_it_is_closed)
{
    for (const Flavour flavour : allFlavours) {
        MemoryDisk disk = FilledDisk(flavour);
        for (const char* name : {"file", "link", "new", "to nowhere"}) {
            const std::string path = PathOf(flavour, name);
            const auto before = disk.Dump();
            const FileHandle file = disk.OpenOutput(path);
            ASSERT_NE(file, noFile) << name;
            EXPECT_TRUE(disk.WriteOutput(file, "a"));
            EXPECT_TRUE(disk.WriteOutput(file, "b"));
            EXPECT_EQ(disk.Dump(), before) << name;
            EXPECT_EQ(disk.OpenFiles(), 1);
            EXPECT_TRUE(disk.CloseOutput(file));
            EXPECT_EQ(disk.OpenFiles(), 0);
            EXPECT_FALSE(disk.WriteOutput(file, "c"));
            EXPECT_FALSE(disk.CloseOutput(file));
        }
        for (const char* name : {"file", "new", "missing"})
            EXPECT_EQ(disk.Content(PathOf(flavour, name)), "ab") << name;
        EXPECT_EQ(disk.Stat(PathOf(flavour, "file"))->Size, 2U);
    }
}

TEST(MemoryDiskFiles, Output_is_refused_where_nothing_can_be_written)
{
    for (const Flavour flavour : allFlavours) {
        MemoryDisk disk = FilledDisk(flavour);
        disk.AddFile(PathOf(flavour, "held"));
        disk.SetInUse(PathOf(flavour, "held"));
        const std::string closed = IsWindows(flavour) ? "C:\\closed\\" : "/closed/";
        disk.AddFile(closed + "old");
        disk.SetLocked(closed);
        const struct {
            std::string Path;
            int Code;
        } rows[] = {
            {PathOf(flavour, "folder"), diskDenied},
            {PathOf(flavour, "read-only"), diskDenied},
            {PathOf(flavour, "held"), diskInUse},
            {closed + "new", diskDenied},
            {PathOf(flavour, ""), IsWindows(flavour) ? diskExists : diskBadName},
        };
        const auto before = disk.Dump();
        for (const auto& row : rows) {
            EXPECT_EQ(disk.OpenOutput(row.Path), noFile) << row.Path;
            EXPECT_EQ(disk.LastError(), row.Code) << row.Path;
        }
        EXPECT_EQ(disk.Dump(), before);
        EXPECT_NE(disk.OpenOutput(closed + "old"), noFile);
    }
}

TEST(MemoryDiskFiles, Output_that_fails_leaves_the_old_file)
{
    for (const Flavour flavour : allFlavours)
        for (const char* call : {"OpenOutput", "WriteOutput", "CloseOutput"}) {
            MemoryDisk disk = FilledDisk(flavour);
            const auto before = disk.Dump();
            disk.Fail(call, 1, 77);
            const FileHandle file = disk.OpenOutput(PathOf(flavour, "file"));
            EXPECT_EQ(disk.WriteOutput(file, "a"), call == std::string("CloseOutput"));
            EXPECT_EQ(disk.WriteOutput(file, "b"), call == std::string("CloseOutput"));
            EXPECT_FALSE(disk.CloseOutput(file)) << call;
            EXPECT_EQ(disk.Dump(), before) << call;
            EXPECT_EQ(disk.OpenFiles(), 0) << call;
        }
}

} // namespace tavo
