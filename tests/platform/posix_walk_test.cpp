#include "platform/posix/posix_files.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <sys/resource.h>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

// All names that a search gives.
Names Walk(Files& files, const std::string& pattern, bool foldersOnly = false)
{
    Names names;
    FindData found;
    const FindHandle handle =
        foldersOnly ? files.FindFirstFolder(pattern, found) : files.FindFirstFileA(pattern, found);
    if (handle == invalidFind)
        return names;
    do
        names.push_back(found.Name);
    while (files.FindNextFileA(handle, found));
    EXPECT_EQ(files.LastError(), diskNoMoreFiles);
    files.FindClose(handle);
    return names;
}

TEST(PosixWalk, Names_come_in_byte_order_behind_the_dots)
{
    TempFolder folder("order");
    PosixFiles files;
    const Names names = {" ",
                         "!",
                         "-a",
                         "1",
                         "10",
                         "2",
                         "A",
                         "B",
                         "[",
                         "_",
                         "a",
                         "a\nb",
                         "longprefix_1",
                         "longprefix_10",
                         "longprefix_2",
                         "longprefix_longer",
                         "\xC3\xA4",
                         "\xFF"};
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        folder.Write(*name);
    Names wanted = {".", ".."};
    wanted.insert(wanted.end(), names.begin(), names.end());
    EXPECT_EQ(Walk(files, folder.Path("*")), wanted);
    EXPECT_EQ(Walk(files, folder.Path("*.*")), wanted);
    EXPECT_EQ(Walk(files, folder.Path("longprefix_*")),
              (Names{"longprefix_1", "longprefix_10", "longprefix_2", "longprefix_longer"}));
}

TEST(PosixWalk, Dots_come_only_when_the_pattern_takes_them)
{
    TempFolder folder("dots");
    PosixFiles files;
    folder.Write(".a");
    folder.Write("b.txt");
    EXPECT_EQ(Walk(files, folder.Path(".*")), (Names{".", "..", ".a"}));
    EXPECT_EQ(Walk(files, folder.Path("*.txt")), Names{"b.txt"});
    EXPECT_EQ(Walk(files, folder.Path("*..*")), (Names{".", ".."}));
    EXPECT_EQ(Walk(files, folder.Path("?")), Names{});
    TempFolder empty("empty");
    EXPECT_EQ(Walk(files, empty.Path("*")), (Names{".", ".."}));
}

TEST(PosixWalk, The_root_has_no_dots)
{
    PosixFiles files;
    const Names names = Walk(files, "/*");
    EXPECT_FALSE(names.empty());
    EXPECT_EQ(std::count(names.begin(), names.end(), "."), 0);
    EXPECT_EQ(std::count(names.begin(), names.end(), ".."), 0);
    EXPECT_EQ(Walk(files, "//*"), names);
}

TEST(PosixWalk, A_name_without_wildcards_is_looked_up_as_the_disk_does_it)
{
    TempFolder folder("exact");
    PosixFiles files;
    folder.Write("a.txt", "123");
    folder.Write("a. ");
    EXPECT_EQ(Walk(files, folder.Path("a.txt")), Names{"a.txt"});
    EXPECT_EQ(Walk(files, folder.Path("A.txt")), Names{});
    EXPECT_EQ(Walk(files, folder.Path("a.txt.")), Names{});
    EXPECT_EQ(Walk(files, folder.Path("a. ")), Names{"a. "});
    FindData found;
    const FindHandle handle = files.FindFirstFileA(folder.Path("a.txt"), found);
    ASSERT_NE(handle, invalidFind);
    EXPECT_EQ(found.Size, 3u);
}

TEST(PosixWalk, A_pattern_stays_one_where_an_entry_has_that_very_name)
{
    TempFolder folder("starname");
    PosixFiles files;
    folder.Write("*.txt");
    folder.Write("a.txt");
    folder.Write("b.TXT");
    EXPECT_EQ(Walk(files, folder.Path("*.txt")), (Names{"*.txt", "a.txt", "b.TXT"}));
    EXPECT_EQ(Walk(files, folder.Path("a.*")), Names{"a.txt"});
}

TEST(PosixWalk, Wildcards_in_a_folder_are_plain_characters)
{
    TempFolder folder("starfolder");
    PosixFiles files;
    folder.Write("*/a");
    folder.Write("other/b");
    EXPECT_EQ(Walk(files, folder.Path("*/*")), (Names{".", "..", "a"}));
    EXPECT_EQ(Walk(files, folder.Path("?/*")), Names{});
    EXPECT_EQ(files.LastError(), diskMissingFolder);
}

struct FailRow {
    const char* What;
    std::string Pattern;
    int Code;
};

TEST(PosixWalk, A_search_that_finds_nothing_says_why)
{
    TempFolder folder("fail");
    PosixFiles files;
    folder.Write("file");
    folder.MakeFolder("sub");
    folder.MakeLink("loop", "loop");
    using namespace std::string_literals;
    const FailRow rows[] = {
        {"no such name", folder.Path("missing"), diskMissing},
        {"no name that matches", folder.Path("*.x"), diskMissing},
        {"no pattern left", folder.Path("sub/?. "), diskMissing},
        {"a slash at the end", folder.Path("sub/"), diskMissing},
        {"a slash behind nothing", folder.Path("missing/"), diskMissingFolder},
        {"no such folder", folder.Path("missing/a"), diskMissingFolder},
        {"no such folder, pattern", folder.Path("missing/*"), diskMissingFolder},
        {"a file as folder", folder.Path("file/a"), diskMissingFolder},
        {"a file as folder, pattern", folder.Path("file/*"), diskMissingFolder},
        {"a folder that is a loop of links", folder.Path("loop/*"), 2000 + ELOOP},
        {"nothing", "", diskMissingFolder},
        {"the root alone", "/", diskMissing},
        {"no full path", "file", diskMissingFolder},
        {"no full path, pattern", "*", diskMissingFolder},
        {"a NUL", folder.Path("file\0"s), diskBadName},
        {"a NUL and a pattern", folder.Path("\0*"s), diskBadName},
        {"256 bytes", folder.Path(std::string(256, 'x')), diskBadName},
    };
    for (const FailRow& row : rows) {
        FindData found;
        found.Name = "untouched";
        EXPECT_EQ(files.FindFirstFileA(row.Pattern, found), invalidFind) << row.What;
        EXPECT_EQ(files.LastError(), row.Code) << row.What;
        EXPECT_EQ(found.Name, "untouched") << row.What;
    }
}

TEST(PosixWalk, A_closed_folder_is_denied)
{
    TempFolder folder("closed");
    PosixFiles files;
    folder.Write("sub/a.txt");
    folder.SetMode("sub", 0000);
    const auto codeOf = [&](const char* pattern) {
        return AsPlainUser([&] {
            FindData found;
            const bool none = files.FindFirstFileA(folder.Path(pattern), found) == invalidFind;
            return none ? files.LastError() : 0;
        });
    };
    EXPECT_EQ(codeOf("sub/*"), diskDenied);
    EXPECT_EQ(codeOf("sub/a.txt"), diskDenied);
    EXPECT_EQ(codeOf("sub/"), diskMissing);
    EXPECT_EQ(codeOf("sub/a/b"), diskDenied);
    // One may go in but not look round.
    folder.SetMode("sub", 0311);
    EXPECT_EQ(codeOf("sub/*"), diskDenied);
    EXPECT_EQ(codeOf("sub/a.txt"), diskOk);
}

TEST(PosixWalk, Where_names_may_be_read_but_nothing_more_they_are_listed)
{
    TempFolder folder("namesonly");
    PosixFiles files;
    folder.Write("sub/a.txt", "123");
    folder.MakeFolder("sub/b");
    folder.MakeLink("sub/c", "b");
    folder.SetMode("sub", 0444);
    const int right = AsPlainUser([&] {
        FindData a, b, c;
        const FindHandle handle = files.FindFirstFileA(folder.Path("sub/?"), b);
        const bool more = files.FindNextFileA(handle, c);
        files.FindClose(files.FindFirstFileA(folder.Path("sub/*.txt"), a));
        return handle != invalidFind && more && a.Name == "a.txt" && a.Attributes == 0
               && a.Size == 0 && a.Written == FileTime{} && b.Name == "b"
               && b.Attributes == attrDirectory && c.Name == "c" && c.Attributes == attrReparse;
    });
    folder.SetMode("sub", 0755);
    EXPECT_EQ(right, 1);
}

TEST(PosixWalk, A_link_to_a_folder_is_listed_as_a_folder)
{
    TempFolder folder("walklinks");
    PosixFiles files;
    folder.Write("file");
    folder.MakeFolder("folder");
    folder.MakeLink("to_file", "file");
    folder.MakeLink("to_folder", "folder");
    folder.MakeLink("to_nothing", "missing");
    const std::pair<const char*, std::uint32_t> wanted[] = {
        {"file", 0},
        {"folder", attrDirectory},
        {"to_file", attrReparse},
        {"to_folder", attrReparse | attrDirectory},
        {"to_nothing", attrReparse},
    };
    FindData found;
    FindHandle handle = files.FindFirstFileA(folder.Path("?*."), found);
    for (const auto& [name, attributes] : wanted) {
        ASSERT_NE(handle, invalidFind) << name;
        EXPECT_EQ(found.Name, name);
        EXPECT_EQ(found.Attributes, attributes) << name;
        if (!files.FindNextFileA(handle, found))
            handle = invalidFind;
    }
    EXPECT_EQ(handle, invalidFind);
    EXPECT_EQ(Walk(files, folder.Path("*"), true), (Names{".", "..", "folder", "to_folder"}));
    EXPECT_EQ(Walk(files, folder.Path("f*"), true), Names{"folder"});
    EXPECT_EQ(Walk(files, folder.Path("to_folder"), true), Names{"to_folder"});
    EXPECT_EQ(Walk(files, folder.Path("to_file"), true), Names{});
    EXPECT_EQ(files.LastError(), diskMissing);
    EXPECT_EQ(Walk(files, folder.Path("to_folder/*")), (Names{".", ".."}));
}

TEST(PosixWalk, What_vanishes_while_the_search_goes_on_is_passed_over)
{
    TempFolder folder("vanish");
    PosixFiles files;
    for (const char* name : {"a", "b", "c", "d", "e"})
        folder.Write(name);
    FindData found;
    const FindHandle handle = files.FindFirstFileA(folder.Path("?"), found);
    ASSERT_NE(handle, invalidFind);
    EXPECT_EQ(found.Name, "a");
    folder.Remove("a");
    folder.Remove("b");
    folder.Remove("c");
    folder.Write("bb");
    ASSERT_TRUE(files.FindNextFileA(handle, found));
    EXPECT_EQ(found.Name, "d");
    folder.Remove("e");
    EXPECT_FALSE(files.FindNextFileA(handle, found));
    EXPECT_EQ(files.LastError(), diskNoMoreFiles);
}

TEST(PosixWalk, A_search_goes_on_in_its_folder_when_that_gets_another_name)
{
    TempFolder folder("moved");
    PosixFiles files;
    folder.Write("sub/a", "1");
    folder.Write("sub/b", "22");
    FindData found;
    const FindHandle handle = files.FindFirstFileA(folder.Path("sub/?"), found);
    ASSERT_EQ(std::rename(folder.Path("sub").c_str(), folder.Path("new").c_str()), 0);
    ASSERT_TRUE(files.FindNextFileA(handle, found));
    EXPECT_EQ(found.Name, "b");
    EXPECT_EQ(found.Size, 2u);
}

TEST(PosixWalk, Searches_run_side_by_side_and_end_for_good)
{
    TempFolder folder("handles");
    PosixFiles files;
    for (const char* name : {"a1", "a2", "b1", "b2"})
        folder.Write(name);
    FindData a, b;
    const FindHandle first = files.FindFirstFileA(folder.Path("a*"), a);
    const FindHandle second = files.FindFirstFileA(folder.Path("b*"), b);
    EXPECT_NE(first, second);
    EXPECT_TRUE(files.FindNextFileA(first, a));
    EXPECT_TRUE(files.FindNextFileA(second, b));
    EXPECT_EQ(a.Name + b.Name, "a2b2");
    EXPECT_FALSE(files.FindNextFileA(first, a));
    EXPECT_FALSE(files.FindNextFileA(first, a));
    files.FindClose(second);
    EXPECT_FALSE(files.FindNextFileA(second, b));
    EXPECT_FALSE(files.FindNextFileA(invalidFind, b));
    EXPECT_EQ(files.LastError(), diskNoMoreFiles);
    EXPECT_EQ(a.Name + b.Name, "a2b2");
    files.FindClose(first);
    files.FindClose(12345);
}

// Goes down into every folder and leaves each search open on the way.
std::size_t CountBelow(Files& files, const std::string& path)
{
    std::size_t count = 0;
    FindData found;
    FindHandle handle = files.FindFirstFolder(path + "*", found);
    bool more = handle != invalidFind;
    while (more) {
        if (found.Name != "." && found.Name != "..")
            count += 1 + CountBelow(files, path + found.Name + '/');
        more = files.FindNextFileA(handle, found);
    }
    return count;
}

TEST(PosixWalk, Searches_inside_searches_outnumber_the_descriptors_of_a_program)
{
    constexpr std::size_t levels = 200;
    TempFolder folder("deep");
    std::string path;
    // A sibling on each level, so that every search has more to give.
    for (std::size_t level = 0; level < levels; ++level) {
        folder.MakeFolder(path + "a");
        folder.MakeFolder(path + "b");
        path += "a/";
    }
    const int right = AsPlainUser([&] {
        const rlimit few = {100, 100};
        PosixFiles files;
        return ::setrlimit(RLIMIT_NOFILE, &few) == 0
               && CountBelow(files, folder.Path()) == 2 * levels;
    });
    EXPECT_EQ(right, 1);
}

TEST(PosixWalk, A_search_that_let_go_of_its_folder_takes_no_other_for_it)
{
    TempFolder folder("letgo");
    PosixFiles files;
    folder.Write("first/a");
    folder.Write("first/b");
    folder.Write("second/a");
    folder.Write("second/b");
    for (int number = 0; number < 100; ++number) {
        folder.Write("many/" + std::to_string(number) + "/a");
        folder.Write("many/" + std::to_string(number) + "/b");
    }
    FindData found;
    const FindHandle first = files.FindFirstFileA(folder.Path("first/?"), found);
    const FindHandle second = files.FindFirstFileA(folder.Path("second/?"), found);
    for (int number = 0; number < 100; ++number) {
        const std::string pattern = "many/" + std::to_string(number) + "/?";
        ASSERT_NE(files.FindFirstFileA(folder.Path(pattern), found), invalidFind) << number;
    }
    ASSERT_EQ(std::rename(folder.Path("first").c_str(), folder.Path("old").c_str()), 0);
    folder.Write("first/b", "not the one that was listed");
    EXPECT_FALSE(files.FindNextFileA(first, found));
    ASSERT_TRUE(files.FindNextFileA(second, found));
    EXPECT_EQ(found.Name, "b");
}

TEST(PosixWalk, Names_of_any_bytes_and_length_come_back_as_they_are)
{
    TempFolder folder("bytes");
    PosixFiles files;
    const std::string longest(255, 'x');
    const Names names = {"\n", "\x01", " lead", "a\\b", longest, "\x80\xFF", "\xED\xA0\x80"};
    for (const std::string& name : names)
        folder.Write(name, name);
    Names wanted = names;
    std::sort(wanted.begin(), wanted.end());
    EXPECT_EQ(Walk(files, folder.Path("*.")), wanted);
    FindData found;
    files.FindClose(files.FindFirstFileA(folder.Path("x*"), found));
    EXPECT_EQ(found.Size, 255u);
}

TEST(PosixWalk, A_large_folder_is_listed_whole_and_in_order)
{
    TempFolder folder("large");
    PosixFiles files;
    // Some differ only behind the bytes that are compared first.
    Names wanted = {"file_with_a_name_12345678_b.txt", "file_with_a_name_12345678_a.txt",
                    "file_with_a_name_12345678_\xFF.txt", "file_with_a_name_12345678.txt"};
    for (int number = 0; number < 1500; ++number)
        wanted.push_back("file_with_a_name_" + std::to_string(number * 7919 % 1500) + ".txt");
    for (const std::string& name : wanted)
        folder.Write(name);
    std::sort(wanted.begin(), wanted.end());
    EXPECT_EQ(Walk(files, folder.Path("*.txt")), wanted);
}

} // namespace
} // namespace tavo
