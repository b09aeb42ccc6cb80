#include "support/memory_disk.h"

#include "support/memory_clock.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using Flavour = MemoryDisk::Flavour;
using Texts = std::vector<std::string>;

Texts Listed(Files& disk, const std::string& pattern)
{
    Texts names;
    FindData found;
    const FindHandle handle = disk.FindFirstFileA(pattern, found);
    if (handle == invalidFind)
        return names;
    do
        names.push_back(found.Name);
    while (disk.FindNextFileA(handle, found));
    disk.FindClose(handle);
    return names;
}

int Rename(Files& disk, const std::string& from, const std::string& to)
{
    return disk.SHFileOperationA({foRename, from, to, fofQuiet});
}

MemoryDisk WindowsDisk()
{
    MemoryDisk disk;
    for (const char* name : {"b.txt", "A.TXT", "c", "_x", "Z", "[y", "\u00e4.txt", "10", "2"})
        disk.AddFile("C:\\d\\" + std::string(name), name);
    disk.AddFolder("C:\\d\\sub");
    return disk;
}

} // namespace

TEST(MemoryDisk, Entries_come_by_upper_case_names_behind_the_dots)
{
    MemoryDisk disk = WindowsDisk();
    EXPECT_EQ(Listed(disk, "C:\\d\\*"), (Texts{".", "..", "10", "2", "A.TXT", "b.txt", "c", "sub",
                                               "Z", "[y", "_x", "\u00e4.txt"}));
    EXPECT_EQ(Listed(disk, "C:\\*"), (Texts{"d"}));
    EXPECT_EQ(disk.LastError(), diskOk);
}

struct PatternCase {
    const char *What, *Pattern;
    Texts Wanted;
};

TEST(MemoryDisk, Windows_searches)
{
    const PatternCase cases[] = {
        {"a pattern", "C:\\d\\*.txt", {"A.TXT", "b.txt", "\u00e4.txt"}},
        {"a name in another case", "c:\\D\\a.txt", {"A.TXT"}},
        {"an accent in another case", "C:\\d\\\u00c4.TXT", {"\u00e4.txt"}},
        {"a dot behind the name", "C:\\d\\b.txt.", {"b.txt"}},
        {"names without a dot", "C:\\d\\c*.", {"c"}},
        {"slashes", "C:/d//./sub/../c", {"c"}},
        {"the folder itself", "C:\\d\\sub\\.", {"sub"}},
        {"a device", "C:\\d\\nul.x", {"NUL.X"}},
    };
    MemoryDisk disk = WindowsDisk();
    for (const auto& row : cases)
        EXPECT_EQ(Listed(disk, row.Pattern), row.Wanted) << row.What;
}

struct CodeCase {
    const char *What, *Path;
    int Code;
};

TEST(MemoryDisk, Windows_searches_that_find_nothing)
{
    const CodeCase cases[] = {
        {"no such name", "C:\\d\\q", 2},
        {"no match", "C:\\d\\q*", 2},
        {"a folder with a backslash", "C:\\d\\", 2},
        {"a root with a backslash", "C:\\", 2},
        {"a drive alone", "C:", 2},
        {"no such folder", "C:\\q\\*", 3},
        {"no such folder with a backslash", "C:\\q\\", 3},
        {"a file for a folder", "C:\\d\\c\\x", 3},
        {"wildcards in a folder", "C:\\?\\x", 3},
        {"no such drive", "D:\\x", 3},
        {"empty", "", 3},
        {"no path", "x", 3},
        {"a folder that is closed", "C:\\closed\\*", 5},
        {"a character that no name may hold", "C:\\d\\a:b", 123},
    };
    MemoryDisk disk = WindowsDisk();
    disk.AddFile("C:\\closed\\x");
    disk.SetUnreadable("C:\\closed");
    for (const auto& row : cases) {
        FindData found;
        EXPECT_EQ(disk.FindFirstFileA(row.Path, found), invalidFind) << row.What;
        EXPECT_EQ(disk.LastError(), row.Code) << row.What;
        EXPECT_FALSE(disk.Exists(row.Path)) << row.What;
        EXPECT_EQ(disk.LastError(), row.Code) << row.What;
    }
    FindData found;
    disk.FindFirstFileA("C:\\" + std::string(260, 'x'), found);
    EXPECT_EQ(disk.LastError(), 206);
    EXPECT_EQ(disk.OpenSearches(), 0);
}

TEST(MemoryDisk, An_existence_test_honours_wildcards_where_names_cannot_hold_them)
{
    MemoryDisk windows = WindowsDisk();
    EXPECT_TRUE(windows.Exists("C:\\d\\b*"));
    EXPECT_TRUE(windows.Exists("C:\\d\\con"));
    EXPECT_FALSE(windows.Stat("C:\\d\\b*").has_value());

    MemoryDisk posix(Flavour::Posix);
    posix.AddFile("/d/b.txt");
    EXPECT_FALSE(posix.Exists("/d/b*"));
    posix.AddFile("/d/b*");
    EXPECT_TRUE(posix.Exists("/d/b*"));
    EXPECT_FALSE(posix.Exists("/d/B*"));
}

TEST(MemoryDisk, Posix_names_are_exact_and_patterns_are_not)
{
    MemoryDisk disk(Flavour::Posix);
    for (const char* name : {"a", "A", "a.TXT", "b.txt ", "\xff.txt", "c.txt"})
        disk.AddFile("/d/" + std::string(name));
    EXPECT_EQ(Listed(disk, "/d/*.txt"), (Texts{"a.TXT", "c.txt", "\xff.txt"}));
    EXPECT_EQ(Listed(disk, "/d/A"), (Texts{"A"}));
    EXPECT_EQ(Listed(disk, "/d/C.TXT"), (Texts{}));
    EXPECT_EQ(disk.LastError(), diskMissing);
    EXPECT_EQ(Listed(disk, "/d/"), (Texts{}));
    EXPECT_EQ(disk.LastError(), diskMissing);
}

TEST(MemoryDisk, A_search_goes_on_when_entries_or_the_folder_vanish)
{
    MemoryDisk disk = WindowsDisk();
    FindData found;
    const FindHandle handle = disk.FindFirstFileA("C:\\d\\*.txt", found);
    disk.Remove("C:\\d\\b.txt");
    EXPECT_TRUE(disk.FindNextFileA(handle, found));
    EXPECT_EQ(found.Name, "\u00e4.txt");
    disk.Remove("C:\\d");
    EXPECT_FALSE(disk.FindNextFileA(handle, found));
    EXPECT_EQ(disk.LastError(), diskNoMoreFiles);
    EXPECT_EQ(disk.OpenSearches(), 1);
    disk.FindClose(handle);
    EXPECT_EQ(disk.OpenSearches(), 0);
    EXPECT_FALSE(disk.FindNextFileA(handle, found));
}

TEST(MemoryDisk, An_entry_tells_its_data)
{
    MemoryDisk disk;
    disk.AddFile("C:\\a.txt", "four");
    const FileTime written = Clock_Moment(2001, 3, 7), created = Clock_Moment(2000, 1, 1);
    disk.SetTimes("C:\\a.txt", written, created);
    disk.SetAttributes("C:\\a.txt", attrReadOnly | attrHidden);
    const auto data = disk.Stat("c:\\A.TXT");
    ASSERT_TRUE(data.has_value());
    EXPECT_EQ(data->Name, "a.txt");
    EXPECT_EQ(data->Size, 4u);
    EXPECT_EQ(data->Attributes, static_cast<std::uint32_t>(attrReadOnly | attrHidden));
    EXPECT_EQ(data->Written, written);
    EXPECT_EQ(data->Created, created);

    disk.SetSize("C:\\a.txt", 5000000000);
    EXPECT_EQ(disk.Stat("C:\\a.txt")->Size, 5000000000u);
    EXPECT_FALSE(disk.ReadWhole("C:\\a.txt", 4999999999).has_value());
    disk.SetSize("C:\\a.txt", 6);
    EXPECT_EQ(disk.ReadWhole("C:\\a.txt", 6), std::string("four\0\0", 6));
}

TEST(MemoryDisk, Reading_fails_with_a_code)
{
    MemoryDisk disk;
    disk.AddFile("C:\\d\\closed", "x");
    disk.SetUnreadable("C:\\d\\closed");
    const CodeCase cases[] = {{"missing", "C:\\d\\q", 2},
                              {"missing folder", "C:\\q\\q", 3},
                              {"closed", "C:\\d\\closed", 5},
                              {"a folder", "C:\\d", 5}};
    for (const auto& row : cases) {
        EXPECT_FALSE(disk.ReadWhole(row.Path, 100).has_value()) << row.What;
        EXPECT_EQ(disk.LastError(), row.Code) << row.What;
    }
}

TEST(MemoryDisk, A_link_is_listed_as_a_link_and_leads_on)
{
    MemoryDisk disk(Flavour::Posix);
    disk.AddFile("/d/sub/x.txt", "far");
    disk.AddLink("/d/sub/up", "/d");
    disk.AddLink("/d/gone", "/nowhere");
    disk.AddLink("/d/round", "/d/round");
    disk.AddLink("/d/file", "/d/sub/x.txt");
    EXPECT_EQ(disk.Stat("/d/sub/up")->Attributes,
              static_cast<std::uint32_t>(attrReparse | attrDirectory));
    EXPECT_EQ(disk.Stat("/d/gone")->Attributes, static_cast<std::uint32_t>(attrReparse));
    EXPECT_EQ(disk.FolderIdentity("/d/sub/up/sub/up"), disk.FolderIdentity("/d"));
    EXPECT_NE(disk.FolderIdentity("/d/sub"), disk.FolderIdentity("/d"));
    EXPECT_FALSE(disk.FolderIdentity("/d/gone").has_value());
    EXPECT_FALSE(disk.FolderIdentity("/d/round").has_value());
    EXPECT_FALSE(disk.FolderIdentity("/d/file").has_value());
    EXPECT_EQ(disk.ReadWhole("/d/file", 10), "far");
    EXPECT_EQ(disk.ReadWhole("/d/sub/up/sub/x.txt", 10), "far");
    EXPECT_EQ(Rename(disk, "/d/file", "/d/other"), 0);
    EXPECT_TRUE(disk.Has("/d/sub/x.txt"));
    EXPECT_EQ(disk.Dump(),
              (Texts{"/d/", "/d/gone -> /nowhere", "/d/other -> /d/sub/x.txt",
                     "/d/round -> /d/round", "/d/sub/", "/d/sub/up -> /d", "/d/sub/x.txt = far"}));
}

struct RenameCase {
    const char *What, *From, *To;
    int Code;
    const char* Stored; // what `To` is called then
};

TEST(MemoryDisk, Windows_renames)
{
    const RenameCase cases[] = {
        {"plainly", "C:\\d\\c", "C:\\d\\new", 0, "new"},
        {"case only", "C:\\d\\new", "C:\\d\\NEW", 0, "NEW"},
        {"source in another case", "c:\\D\\new", "C:\\d\\c", 0, "c"},
        {"case of an accent", "C:\\d\\\u00e4.txt", "C:\\d\\\u00c4.txt", 0, "\u00c4.txt"},
        {"dots at the end go", "C:\\d\\b.txt", "C:\\d\\b2. .", 0, "b2"},
        {"asked with a dot", "C:\\d\\b2.", "C:\\d\\b.txt", 0, "b.txt"},
        {"the same name", "C:\\d\\c", "C:\\d\\c", 183, "c"},
        {"the same but for a dot", "C:\\d\\c", "C:\\d\\c.", 183, "c"},
        {"an existing file", "C:\\d\\c", "C:\\d\\a.txt", 183, "A.TXT"},
        {"an existing folder", "C:\\d\\c", "C:\\d\\SUB", 183, "sub"},
        {"a device", "C:\\d\\c", "C:\\d\\LPT1.doc", 183, ""},
        {"dots and blanks only", "C:\\d\\c", "C:\\d\\. .", 183, "d"},
        {"into another folder", "C:\\d\\c", "C:\\d\\sub\\c", 0, "c"},
        {"a folder with a backslash", "C:\\d\\sub\\", "C:\\d\\sub2", 0, "sub2"},
        {"a folder into itself", "C:\\d\\sub2", "C:\\d\\sub2\\x", 87, ""},
        {"source missing", "C:\\d\\q", "C:\\d\\r", 1026, ""},
        {"source folder missing", "C:\\q\\q", "C:\\d\\r", 3, ""},
        {"a file with a backslash", "C:\\d\\Z\\", "C:\\d\\r", 3, ""},
        {"target folder missing", "C:\\d\\Z", "C:\\q\\r", 3, ""},
        {"bad character", "C:\\d\\Z", "C:\\d\\a?", 123, ""},
        {"a stream", "C:\\d\\Z", "C:\\d\\a:b", 123, ""},
        {"a control character", "C:\\d\\Z", "C:\\d\\a\nb", 123, ""},
        {"empty source", "", "C:\\d\\r", 5, ""},
        {"empty target", "C:\\d\\Z", "", 87, ""},
    };
    MemoryDisk disk = WindowsDisk();
    for (const auto& row : cases) {
        EXPECT_EQ(Rename(disk, row.From, row.To), row.Code) << row.What;
        EXPECT_EQ(disk.LastError(), row.Code) << row.What;
        EXPECT_EQ(disk.StoredName(row.To), row.Stored) << row.What;
    }
    EXPECT_EQ(disk.Content("C:\\d\\sub2\\c"), "c");
}

TEST(MemoryDisk, Windows_names_have_255_characters_at_most_and_paths_259)
{
    MemoryDisk disk;
    disk.AddFile("C:\\a");
    disk.AddFile("C:\\dd\\a");
    EXPECT_EQ(Rename(disk, "C:\\a", "C:\\" + std::string(256, 'x')), 123);
    EXPECT_EQ(Rename(disk, "C:\\dd\\a", "C:\\dd\\" + std::string(254, 'x')), 206);
    EXPECT_EQ(Rename(disk, "C:\\a", "C:\\" + std::string(255, 'x')), 0);
}

TEST(MemoryDisk, Posix_renames)
{
    const RenameCase cases[] = {
        {"case of an exact name", "/d/a", "/d/A", 0, "A"},
        {"an existing file", "/d/A", "/d/b", 183, "b"},
        {"the same name", "/d/b", "/d/b", 183, "b"},
        {"a name of all sorts", "/d/b", "/d/*?:\\<.", 0, "*?:\\<."},
        {"a device's name", "/d/A", "/d/con", 0, "con"},
        {"source missing", "/d/q", "/d/r", 2, ""},
        {"source folder missing", "/q/q", "/d/r", 3, ""},
        {"target folder missing", "/d/con", "/q/r", 3, ""},
        {"empty name", "/d/con", "/d/", 123, "d"},
        {"a dot", "/d/con", "/d/.", 123, "d"},
        {"two dots", "/d/con", "/d/..", 123, ""},
        {"a folder into itself", "/d", "/d/x", 2022, ""},
    };
    MemoryDisk disk(Flavour::Posix);
    disk.AddFile("/d/a");
    disk.AddFile("/d/b");
    for (const auto& row : cases) {
        EXPECT_EQ(Rename(disk, row.From, row.To), row.Code) << row.What;
        EXPECT_EQ(disk.StoredName(row.To), row.Stored) << row.What;
    }
    EXPECT_EQ(Rename(disk, "/d/con", "/d/" + std::string(256, 'x')), 123);
    EXPECT_EQ(Rename(disk, "/d/con", "/d/" + std::string(255, 'x')), 0);
}

TEST(MemoryDisk, A_stick_under_Linux_is_blind_to_case)
{
    MemoryDisk disk(Flavour::PosixCaseBlind);
    disk.AddFile("/d/a.txt", "1");
    disk.AddFile("/d/b.txt", "2");
    EXPECT_TRUE(disk.Exists("/d/A.TXT"));
    EXPECT_EQ(Rename(disk, "/d/a.txt", "/d/A.TXT"), 0);
    EXPECT_EQ(disk.StoredName("/d/a.txt"), "A.TXT");
    EXPECT_EQ(Rename(disk, "/d/a.txt", "/d/B.txt"), 183);
    EXPECT_FALSE(disk.Rules().CaseBlind);
}

TEST(MemoryDisk, Rights_and_open_files_refuse_a_rename)
{
    MemoryDisk disk;
    disk.AddFile("C:\\d\\a");
    disk.AddFile("C:\\locked\\a");
    disk.SetLocked("C:\\locked");
    disk.SetInUse("C:\\d\\a");
    EXPECT_EQ(Rename(disk, "C:\\locked\\a", "C:\\locked\\b"), 5);
    EXPECT_EQ(Rename(disk, "C:\\d\\a", "C:\\d\\b"), 32);
    EXPECT_EQ(Rename(disk, "C:\\d", "C:\\e"), 5);
    disk.SetInUse("C:\\d\\a", false);
    disk.SetLocked("C:\\locked", false);
    EXPECT_EQ(Rename(disk, "C:\\d\\a", "C:\\locked\\b"), 0);
    EXPECT_EQ(Rename(disk, "C:\\d", "C:\\e"), 0);
}

TEST(MemoryDisk, Renaming_keeps_attributes_and_times)
{
    MemoryDisk disk;
    disk.AddFile("C:\\a");
    disk.SetAttributes("C:\\a", attrReadOnly | attrSystem);
    disk.SetTimes("C:\\a", Clock_Moment(2001, 3, 7));
    const auto before = disk.Stat("C:\\a");
    EXPECT_EQ(Rename(disk, "C:\\a", "C:\\b"), 0);
    const auto after = disk.Stat("C:\\b");
    EXPECT_EQ(after->Attributes, before->Attributes);
    EXPECT_EQ(after->Written, before->Written);
}

TEST(MemoryDisk, Calls_are_counted_by_name)
{
    MemoryDisk disk;
    disk.AddFile("C:\\a");
    disk.Exists("C:\\a");
    disk.Exists("C:\\b");
    Rename(disk, "C:\\a", "C:\\b");
    EXPECT_EQ(disk.Calls("Exists"), 2);
    EXPECT_EQ(disk.Calls("SHFileOperationA"), 1);
    EXPECT_EQ(disk.Calls("Stat"), 0);
    EXPECT_EQ(disk.Calls(), 3);
    disk.ForgetCalls();
    EXPECT_EQ(disk.Calls(), 0);
}

TEST(MemoryDisk, A_call_fails_when_its_turn_comes)
{
    MemoryDisk disk;
    disk.AddFile("C:\\a");
    disk.Exists("C:\\a");
    disk.Fail("Exists", 2, 5);
    EXPECT_TRUE(disk.Exists("C:\\a"));
    EXPECT_FALSE(disk.Exists("C:\\a"));
    EXPECT_EQ(disk.LastError(), 5);
    EXPECT_TRUE(disk.Exists("C:\\a"));
}

TEST(MemoryDisk, Every_kind_of_call_can_fail)
{
    MemoryDisk disk = WindowsDisk();
    FindData found;
    const FindHandle handle = disk.FindFirstFileA("C:\\d\\*", found);
    disk.FailWhen([](const MemoryDisk::Call&) { return 5; });
    SystemTime time;
    EXPECT_EQ(disk.FindFirstFileA("C:\\d\\*", found), invalidFind);
    EXPECT_FALSE(disk.FindNextFileA(handle, found));
    EXPECT_EQ(disk.LastError(), 5);
    EXPECT_FALSE(disk.Stat("C:\\d").has_value());
    EXPECT_FALSE(disk.FolderIdentity("C:\\d").has_value());
    EXPECT_FALSE(disk.ReadWhole("C:\\d\\c", 9).has_value());
    EXPECT_FALSE(disk.FileTimeToLocalSystemTime({0}, time));
    EXPECT_TRUE(disk.RootPlaces().empty());
    EXPECT_EQ(disk.SpecialFolderPath(SpecialFolder::Home), "");
    EXPECT_EQ(Rename(disk, "C:\\d\\c", "C:\\d\\q"), 5);
    EXPECT_TRUE(disk.Has("C:\\d\\c"));
    disk.FindClose(handle);
    EXPECT_EQ(disk.OpenSearches(), 0);
}

TEST(MemoryDisk, A_fault_may_look_at_the_call)
{
    MemoryDisk disk = WindowsDisk();
    disk.FailWhen([](const MemoryDisk::Call& call) {
        return call.Name == "SHFileOperationA" && call.To.ends_with("bad") ? 112 : 0;
    });
    EXPECT_EQ(Rename(disk, "C:\\d\\c", "C:\\d\\bad"), 112);
    EXPECT_EQ(Rename(disk, "C:\\d\\c", "C:\\d\\good"), 0);
}

TEST(MemoryDisk, Another_program_can_come_in_between)
{
    MemoryDisk disk(Flavour::Posix);
    disk.AddFile("/d/a", "mine");
    disk.Before("SHFileOperationA", 1, [&](const MemoryDisk::Call& call) {
        disk.AddFile(call.To, "theirs");
        EXPECT_TRUE(disk.Exists(call.To));
    });
    int calls = 0;
    disk.BeforeEach([&](const MemoryDisk::Call&) { ++calls; });
    EXPECT_FALSE(disk.Exists("/d/b"));
    EXPECT_EQ(Rename(disk, "/d/a", "/d/b"), 183);
    EXPECT_EQ(disk.Content("/d/b"), "theirs");
    EXPECT_EQ(disk.Content("/d/a"), "mine");
    EXPECT_EQ(calls, 2);
    disk.MoveEntry("/d/a", "/d/b");
    EXPECT_EQ(disk.Dump(), (Texts{"/d/", "/d/b = mine"}));
}

TEST(MemoryDisk, Local_time_is_a_fixed_way_from_UTC)
{
    MemoryDisk disk;
    disk.SetZone(-300);
    SystemTime out;
    EXPECT_TRUE(disk.FileTimeToLocalSystemTime(Clock_Moment(2001, 3, 7, 2, 5), out));
    EXPECT_EQ(out, (SystemTime{2001, 3, 2, 6, 21, 5, 0, 0}));
    const SystemTime before = out;
    EXPECT_FALSE(disk.FileTimeToLocalSystemTime({0}, out));
    EXPECT_EQ(out, before);
    EXPECT_NE(disk.LastError(), 0);
}

TEST(MemoryDisk, Roots_are_the_drives)
{
    MemoryDisk windows;
    windows.AddDrive("D:");
    windows.AddFile("d:\\x", "on d");
    const auto places = windows.RootPlaces();
    ASSERT_EQ(places.size(), 2u);
    EXPECT_EQ(places[1].Path, "D:\\");
    EXPECT_EQ(windows.Content("D:\\x"), "on d");

    MemoryDisk posix(Flavour::Posix);
    ASSERT_EQ(posix.RootPlaces().size(), 2u);
    EXPECT_EQ(posix.RootPlaces()[1].Path, "/");
    EXPECT_TRUE(posix.Exists("/"));
}

TEST(MemoryDisk, A_share_is_a_root_too)
{
    MemoryDisk disk;
    disk.AddDrive("\\\\server\\share");
    disk.AddFile("\\\\server\\share\\d\\x", "there");
    EXPECT_EQ(disk.Content("\\\\SERVER\\share\\d\\X"), "there");
}

TEST(MemoryDisk, What_lies_nowhere_changes_nothing)
{
    MemoryDisk disk;
    disk.AddFile("C:\\a");
    disk.AddFile("Q:\\x");
    disk.AddFile("C:\\a\\below a file");
    disk.SetSize("relative", 5);
    EXPECT_EQ(disk.Dump(), (Texts{"C:\\a = "}));
}

} // namespace tavo
