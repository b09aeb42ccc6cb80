#include "platform/posix/posix_files.h"

#include "platform/posix/disk_entry.h"
#include "platform/posix/disk_error.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace tavo {
namespace {

constexpr std::int64_t unixZero = 116'444'736'000'000'000;

FileTime AtSecond(std::int64_t seconds)
{
    return {unixZero + seconds * 10'000'000};
}

TEST(PosixFiles, Stat_reads_one_entry_by_its_exact_name)
{
    TempFolder folder("stat");
    PosixFiles files;
    folder.Write("File", "12345");
    const timespec times[2] = {{1000, 100}, {2000, 200}};
    ASSERT_EQ(::utimensat(AT_FDCWD, folder.Path("File").c_str(), times, 0), 0);
    const auto data = files.Stat(folder.Path("File"));
    ASSERT_TRUE(data);
    EXPECT_EQ(data->Name, "File");
    EXPECT_EQ(data->Size, 5u);
    EXPECT_EQ(data->Attributes, 0u);
    EXPECT_EQ(data->Accessed.Ticks, AtSecond(1000).Ticks + 1);
    EXPECT_EQ(data->Written.Ticks, AtSecond(2000).Ticks + 2);
    // Born now, or where no birth is kept, as old as it was written.
    EXPECT_GE(data->Created.Ticks, data->Written.Ticks);
    EXPECT_EQ(files.LastError(), diskOk);

    EXPECT_FALSE(files.Stat(folder.Path("file")));
    EXPECT_EQ(files.LastError(), diskMissing);
    EXPECT_FALSE(files.Stat(folder.Path("missing/file")));
    EXPECT_EQ(files.LastError(), diskMissingFolder);
    EXPECT_FALSE(files.Stat(folder.Path("File/file")));
    EXPECT_EQ(files.LastError(), diskMissingFolder);
}

TEST(PosixFiles, Stat_and_Exists_take_wildcards_for_plain_characters)
{
    TempFolder folder("plain");
    PosixFiles files;
    folder.Write("a.txt");
    EXPECT_FALSE(files.Exists(folder.Path("*")));
    EXPECT_FALSE(files.Exists(folder.Path("?.txt")));
    EXPECT_FALSE(files.Stat(folder.Path("*.txt")));
    folder.Write("*.txt", "star");
    EXPECT_TRUE(files.Exists(folder.Path("*.txt")));
    EXPECT_EQ(files.Stat(folder.Path("*.txt"))->Size, 4u);
}

struct ExistsRow {
    const char* What;
    std::string Name;
    bool Exists;
};

TEST(PosixFiles, Exists_looks_for_the_very_name)
{
    TempFolder folder("exists");
    PosixFiles files;
    folder.Write("file");
    folder.MakeFolder("folder");
    folder.MakeLink("dangling", "missing");
    folder.Write("new\nline");
    folder.Write("\xFF");
    folder.Write(std::string(255, 'x'));
    using namespace std::string_literals;
    const ExistsRow rows[] = {
        {"a file", "file", true},
        {"a folder", "folder", true},
        {"another case", "FILE", false},
        {"a link to nowhere", "dangling", true},
        {"a line end", "new\nline", true},
        {"a stray byte", "\xFF", true},
        {"255 bytes", std::string(255, 'x'), true},
        {"256 bytes", std::string(256, 'x'), false},
        {"a trailing dot", "file.", false},
        {"a trailing blank", "file ", false},
        {"a device name", "nul", false},
        {"a slash behind", "folder/", false},
        {"behind a file", "file/x", false},
        {"behind a NUL", "file\0x"s, false},
        {"nothing", "", false},
    };
    for (const ExistsRow& row : rows) {
        EXPECT_EQ(files.Exists(folder.Path(row.Name)), row.Exists) << row.What;
        EXPECT_EQ(files.Stat(folder.Path(row.Name)).has_value(), row.Exists) << row.What;
        EXPECT_EQ(files.LastError() == diskOk, row.Exists) << row.What;
    }
    EXPECT_TRUE(files.Exists("/"));
    EXPECT_EQ(files.Stat("/")->Attributes & attrDirectory, attrDirectory);
    EXPECT_FALSE(files.Exists(""));
    EXPECT_FALSE(files.Exists("tmp"));
}

struct AttributeRow {
    const char* Text;
    std::uint32_t Mask;
};

constexpr AttributeRow attributeRows[] = {
    {"0x0", 0},         {"0x2", 2},   {"0x4", 4},   {"0x20", 32},
    {"0x22", 34},       {"0x26", 38}, {"0x27", 38}, {"0xffffff", 38},
    {"0x2A", 34},       {"2", 0},     {"", 0},      {"zz", 0},
    {"0x", 0},          {"0xg", 0},   {"0X2", 0},   {"0x2 or more", 2},
    {"0x123456789", 0},
};

TEST(PosixFiles, Stored_attributes_are_hexadecimal_text)
{
    for (const AttributeRow& row : attributeRows)
        EXPECT_EQ(ParseStoredAttributes(row.Text), row.Mask) << row.Text;
    using namespace std::string_view_literals;
    EXPECT_EQ(ParseStoredAttributes("0x22\0\x03\0"sv), 34u);
}

TEST(PosixFiles, Archive_hidden_and_system_come_with_an_exact_name_and_not_in_a_walk)
{
    TempFolder folder("attributes");
    PosixFiles files;
    folder.Write("a.txt");
    const std::string path = folder.Path("a.txt");
    ASSERT_EQ(::setxattr(path.c_str(), "user.DOSATTRIB", "0x26", 4, 0), 0)
        << "the folder for temporary files keeps no extended attributes";
    EXPECT_EQ(files.Stat(path)->Attributes, 38u);
    FindData found;
    files.FindClose(files.FindFirstFileA(path, found));
    EXPECT_EQ(found.Attributes, 38u);
    files.FindClose(files.FindFirstFileA(folder.Path("*.txt"), found));
    EXPECT_EQ(found.Name, "a.txt");
    EXPECT_EQ(found.Attributes, 0u);
    folder.Write(".hidden");
    EXPECT_EQ(files.Stat(folder.Path(".hidden"))->Attributes, 0u);
}

struct ModeRow {
    unsigned Mode;
    bool ReadOnly;
};

TEST(PosixFiles, Read_only_means_that_nobody_may_write)
{
    TempFolder folder("readonly");
    PosixFiles files;
    folder.Write("a");
    folder.MakeFolder("folder");
    const ModeRow rows[] = {
        {0000, true},  {0400, true},  {0444, true},  {0555, true},
        {0200, false}, {0020, false}, {0466, false}, {0644, false},
    };
    for (const ModeRow& row : rows) {
        folder.SetMode("a", row.Mode);
        folder.SetMode("folder", row.Mode);
        const std::uint32_t wanted = row.ReadOnly ? attrReadOnly : 0u;
        EXPECT_EQ(files.Stat(folder.Path("a"))->Attributes, wanted) << std::oct << row.Mode;
        EXPECT_EQ(files.Stat(folder.Path("folder"))->Attributes, wanted | attrDirectory)
            << std::oct << row.Mode;
    }
}

TEST(PosixFiles, A_link_is_the_link_and_tells_whether_it_leads_to_a_folder)
{
    TempFolder folder("links");
    PosixFiles files;
    folder.Write("file", "content");
    folder.MakeFolder("folder");
    folder.MakeLink("to_file", "file");
    folder.MakeLink("to_folder", "folder");
    folder.MakeLink("to_nothing", "missing");
    folder.MakeLink("loop", "loop");
    folder.MakeLink("far", "to_folder");
    const auto attributes = [&](const char* name) {
        return files.Stat(folder.Path(name))->Attributes;
    };
    EXPECT_EQ(attributes("to_file"), std::uint32_t{attrReparse});
    EXPECT_EQ(attributes("to_folder"), std::uint32_t{attrReparse | attrDirectory});
    EXPECT_EQ(attributes("to_nothing"), std::uint32_t{attrReparse});
    EXPECT_EQ(attributes("loop"), std::uint32_t{attrReparse});
    EXPECT_EQ(attributes("far"), std::uint32_t{attrReparse | attrDirectory});
    EXPECT_EQ(files.Stat(folder.Path("to_nothing"))->Size, 7u);
}

TEST(PosixFiles, One_folder_has_one_identity_on_all_its_ways)
{
    TempFolder folder("identity");
    PosixFiles files;
    folder.MakeFolder("a/below");
    folder.MakeFolder("b");
    folder.MakeLink("link", "a");
    folder.Write("file");
    const auto identity = files.FolderIdentity(folder.Path("a"));
    ASSERT_TRUE(identity);
    EXPECT_EQ(files.FolderIdentity(folder.Path("a/")), identity);
    EXPECT_EQ(files.FolderIdentity(folder.Path("link")), identity);
    EXPECT_EQ(files.FolderIdentity(folder.Path("a/below/..")), identity);
    EXPECT_NE(files.FolderIdentity(folder.Path("b")), identity);
    EXPECT_FALSE(files.FolderIdentity(folder.Path("file")));
    EXPECT_EQ(files.LastError(), diskMissingFolder);
    EXPECT_FALSE(files.FolderIdentity(folder.Path("missing")));
    EXPECT_FALSE(files.FolderIdentity("relative"));
}

TEST(PosixFiles, ReadWhole_gives_all_bytes_up_to_the_limit)
{
    TempFolder folder("whole");
    PosixFiles files;
    std::string bytes;
    for (int count = 0; count < 100'000; ++count)
        bytes.push_back(static_cast<char>(count));
    folder.Write("file", bytes);
    folder.Write("empty");
    folder.MakeLink("link", "file");
    EXPECT_EQ(files.ReadWhole(folder.Path("file"), 100'000), bytes);
    EXPECT_EQ(files.ReadWhole(folder.Path("link"), UINT64_MAX), bytes);
    EXPECT_EQ(files.ReadWhole(folder.Path("empty"), 0), "");
    EXPECT_EQ(files.LastError(), diskOk);
    EXPECT_FALSE(files.ReadWhole(folder.Path("file"), 99'999));
    EXPECT_EQ(files.LastError(), ownCodeBase + EFBIG);
    EXPECT_FALSE(files.ReadWhole(folder.Path("missing"), 10));
    EXPECT_EQ(files.LastError(), diskMissing);
}

TEST(PosixFiles, ReadWhole_reads_files_whose_size_is_not_told)
{
    PosixFiles files;
    const auto status = files.ReadWhole("/proc/self/status", 1 << 20);
    ASSERT_TRUE(status);
    EXPECT_NE(status->find("Name:"), status->npos);
    EXPECT_FALSE(files.ReadWhole("/proc/self/status", 10));
}

TEST(PosixFiles, ReadWhole_waits_for_nobody_and_reads_no_folder)
{
    TempFolder folder("pipe");
    PosixFiles files;
    ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0644), 0);
    EXPECT_FALSE(files.ReadWhole(folder.Path("pipe"), 10));
    EXPECT_EQ(files.LastError(), ownCodeBase + EINVAL);
    EXPECT_FALSE(files.ReadWhole(folder.Path(), 10));
    EXPECT_FALSE(files.ReadWhole("/dev/null", 10));
}

TEST(PosixFiles, Each_operation_changes_the_disk_and_reports)
{
    struct Row {
        FileOpFunc Func;
        const char *From, *To;
        int Code;
        std::vector<std::string> Names;
    };
    const Row rows[] = {
        {foRename, "a", "b", diskOk, {"b"}},     {foRename, "a", "c", diskMissing, {"b"}},
        {foCopy, "b", "c", diskOk, {"b", "c"}},  {foMove, "b", "c", diskExists, {"b", "c"}},
        {foMove, "b", "d", diskOk, {"c", "d"}},  {foDelete, "c", "", diskOk, {"d"}},
        {foDelete, "c", "", diskMissing, {"d"}},
    };
    TempFolder folder("operations");
    PosixFiles files;
    folder.Write("a", "1");
    for (const Row& row : rows) {
        const std::string to = *row.To ? folder.Path(row.To) : "";
        EXPECT_EQ(files.SHFileOperationA({row.Func, folder.Path(row.From), to, fofQuiet}), row.Code)
            << row.Func << ' ' << row.From;
        EXPECT_EQ(files.LastError(), row.Code) << row.Func << ' ' << row.From;
        EXPECT_EQ(folder.Names(), row.Names) << row.Func << ' ' << row.From;
    }
}

TEST(PosixFiles, Wildcards_in_a_rename_are_names)
{
    TempFolder folder("wildrename");
    PosixFiles files;
    folder.Write("a");
    folder.Write("b");
    EXPECT_EQ(files.SHFileOperationA({foRename, folder.Path("*"), folder.Path("c"), fofQuiet}),
              diskMissing);
    EXPECT_EQ(files.SHFileOperationA({foRename, folder.Path("a"), folder.Path("?"), fofQuiet}),
              diskOk);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"?", "b"}));
}

TEST(PosixFiles, The_tree_begins_with_home_and_the_root)
{
    PosixFiles files;
    const auto places = files.RootPlaces();
    ASSERT_GE(places.size(), 2u);
    EXPECT_EQ(places[0].Caption, "Home");
    EXPECT_EQ(places[0].Path, files.SpecialFolderPath(SpecialFolder::Home));
    EXPECT_EQ(places[1].Caption, "File System");
    EXPECT_EQ(places[1].Path, "/");
    for (const RootPlace& place : places) {
        EXPECT_TRUE(place.Path.starts_with('/') && place.Path.ends_with('/')) << place.Path;
        EXPECT_FALSE(place.Caption.empty()) << place.Path;
    }
}

TEST(PosixFiles, Local_time_is_told_by_the_port)
{
    PosixFiles files;
    SystemTime time;
    EXPECT_TRUE(files.FileTimeToLocalSystemTime(AtSecond(86'400 * 180), time));
    EXPECT_EQ(time.Year, 1970);
    EXPECT_EQ(files.LastError(), diskOk);
    EXPECT_FALSE(files.FileTimeToLocalSystemTime({}, time));
    EXPECT_NE(files.LastError(), diskOk);
    EXPECT_EQ(time.Year, 1970);
}

} // namespace
} // namespace tavo
