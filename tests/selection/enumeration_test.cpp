#include "selection/enumeration.h"

#include "core/screens.h"
#include "support/disk_ground.h"
#include "support/memory_clock.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Enumeration : public ::testing::TestWithParam<Ground> {
protected:
    Enumeration()
        : ground(GetParam()), p(ground.P), s(ground.P.state), f(ground.Main),
          list(ground.Main.lsvSelMain)
    {
    }

    void AddFiles(const Texts& paths)
    {
        for (const std::string& path : paths)
            ground.AddFile(path);
    }
    void Fill(const std::string& filter, bool subFolders = false)
    {
        Sel_List_Fill(p, ground.Full("d/"), subFolders, filter);
    }
    // Rows of one walk, as they come.
    Texts Walk(const std::string& filter, std::int16_t subFolders)
    {
        list.DeleteAllItems();
        Sel_Files_Get(p, ground.Full("d"), filter, subFolders, list, f);
        return Paths();
    }
    Texts Column(const std::string& key) const { return List_Column(list, key); }
    Texts Names() const { return Column("Name"); }
    // The rows' full names as tests write them, below the folder d.
    Texts Paths() const
    {
        const std::size_t above = ground.Full("d/").size();
        Texts paths;
        for (int row = 1; row <= list.Count(); ++row) {
            std::string path(list.Cell(row, 1));
            path = path.substr(above) + std::string(list.Text(row));
            std::replace(path.begin(), path.end(), '\\', '/');
            paths.push_back(path);
        }
        return paths;
    }
    // The captions that the window shows in a walk below d, as tests write
    // them.
    Texts Captions(const std::function<void()>& walk)
    {
        const std::string above = ground.Full("d/");
        Texts captions;
        const Connection listener = f.Changed.Listen([&](Prop what) {
            if (what != Prop::Caption)
                return;
            std::string caption = f.Caption();
            if (caption.starts_with(above))
                caption = caption.substr(above.size());
            std::replace(caption.begin(), caption.end(), '\\', '/');
            captions.push_back(caption);
        });
        walk();
        return captions;
    }
    std::string Cell(int row, const std::string& key) const
    {
        return std::string(list.Cell(row, list.ColumnByKey(key)));
    }

    DiskGround ground;
    Program& p;
    SharedState& s;
    FrmMain& f;
    ListView& list;
};

INSTANTIATE_TEST_SUITE_P(OnEveryDisk, Enumeration, ::testing::ValuesIn(everyGround),
                         [](const auto& test) { return Ground_Name(test.param); });

Texts Sorted(Texts texts)
{
    std::sort(texts.begin(), texts.end());
    return texts;
}

struct FilterCase {
    const char* Filter;
    Texts Names;
};

} // namespace

// -- Filters.

TEST_P(Enumeration, A_filter_is_a_row_of_patterns)
{
    const Texts all{"a.txt", "b.TXT", "c.jpg", "noext", ".profile", "x.tar.gz", " blank.txt"};
    const Texts texts{"a.txt", "b.TXT", " blank.txt"};
    const Texts texts2{"a.txt", "a.txt", "b.TXT", "b.TXT", " blank.txt", " blank.txt"};
    Texts twice = texts;
    twice.insert(twice.end(), all.begin(), all.end());
    const FilterCase cases[] = {
        {"", all},
        {"*.*", all},
        {"*", all},
        {"*.txt", texts},
        {"*.txt;", texts},
        {";*.txt", texts},
        {";", {}},
        {";;", {}},
        {"*.txt;*.*", twice},
        {"*.txt;;*.jpg", {"a.txt", "b.TXT", " blank.txt", "c.jpg"}},
        {"*.txt;*.txt", texts2},
        {" *.txt", {" blank.txt"}},
        {"*.txt; *.jpg", texts},
        {"?.txt", {"a.txt", "b.TXT"}},
        {"*.", {"noext"}},
        {"a.txt", {"a.txt"}},
        {"q*", {}},
        {"x.*", {"x.tar.gz"}},
    };
    for (const std::string& name : all)
        ground.AddFile("d/" + name);
    ground.AddFolder("d/folder.txt");
    for (const FilterCase& wanted : cases) {
        Fill(wanted.Filter);
        EXPECT_EQ(Sorted(Names()), Sorted(wanted.Names)) << wanted.Filter;
    }
}

TEST_P(Enumeration, A_name_without_wildcards_is_looked_up_as_the_disk_does_it)
{
    AddFiles({"d/a.txt"});
    Fill("A.TXT");
    const bool blind = GetParam() == Ground::Windows || GetParam() == Ground::CaseBlindStick;
    EXPECT_EQ(list.Count(), blind ? 1 : 0);
}

TEST_P(Enumeration, A_pattern_that_is_none_finds_nothing)
{
    AddFiles({"d/a.txt"});
    for (const char* filter : {"|", "a\"b", "<", "...", " "}) {
        Fill(filter);
        EXPECT_EQ(list.Count(), 0) << filter;
        EXPECT_EQ(ground.G.Panel(1), "Total: 0");
    }
}

// -- Rows.

TEST_P(Enumeration, A_row_tells_name_path_size_type_and_date)
{
    AddFiles({"d/Picture.JPG"});
    Fill("*.*");
    ASSERT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Text(1), "Picture.JPG");
    EXPECT_EQ(Cell(1, "Path"), ground.Full("d/"));
    EXPECT_EQ(Cell(1, "Size"), "         1KB");
    EXPECT_EQ(Cell(1, "Type"), "JPG");
    EXPECT_EQ(Cell(1, "Modified").size(), std::string("03/07/2001 09:05 PM").size());
    EXPECT_EQ(list.Icon(1), "P");
    EXPECT_EQ(list.SmallIcon(1), "P");
    EXPECT_EQ(list.Tag(1), "");
    EXPECT_FALSE(list.Selected(1));
    EXPECT_EQ(list.SelectedItem(), 0);
}

struct TypeCase {
    const char *Name, *Type;
    const char *Icon, *IconWithGif;
};

TEST_P(Enumeration, The_type_is_what_stands_behind_the_last_point)
{
    const TypeCase cases[] = {
        {"archive.tar.gz", "gz", "F", "F"},
        {".profile", "profile", "F", "F"},
        {"noext", "", "F", "F"},
        {"PICTURE.JPG", "JPG", "P", "P"},
        {"anim.GIF", "GIF", "F", "P"},
        {"song.mp3", "mp3", "M", "M"},
    };
    for (const TypeCase& wanted : cases) {
        ground.AddFile(std::string("d/") + wanted.Name);
        for (const int gif : {0, 1}) {
            s.Gif = static_cast<std::uint8_t>(gif);
            Fill(wanted.Name);
            ASSERT_EQ(list.Count(), 1) << wanted.Name;
            EXPECT_EQ(Cell(1, "Type"), wanted.Type) << wanted.Name;
            EXPECT_EQ(list.Icon(1), gif ? wanted.IconWithGif : wanted.Icon) << wanted.Name;
        }
    }
}

struct SizeCase {
    std::uint64_t Bytes;
    const char* Wanted;
};

TEST_P(Enumeration, Sizes_are_whole_kibibytes_and_one_in_twelve_places)
{
    const SizeCase cases[] = {
        {0, "         1KB"},
        {1, "         1KB"},
        {1023, "         1KB"},
        {1024, "         2KB"},
        {1024 * 1024, "     1,025KB"},
        {2147483647, " 2,097,152KB"},
        {2147483648, "-2,097,152KB"},
        {4294967296, "         1KB"},
        {4294967296 + 1024, "         2KB"},
    };
    for (const SizeCase& wanted : cases) {
        if (ground.Memory())
            ground.Memory()->SetSize(ground.Full("d/a"), wanted.Bytes);
        else if (wanted.Bytes <= 1024 * 1024)
            ground.Real()->Write("d/a", std::string(wanted.Bytes, 'x'));
        else
            continue;
        Fill("*.*");
        EXPECT_EQ(Column("Size"), (Texts{wanted.Wanted})) << wanted.Bytes;
    }
}

struct DateCase {
    int Hour, Minute, Second, Zone;
    const char* Wanted;
};

TEST_P(Enumeration, Dates_are_local_month_first_and_without_seconds)
{
    if (ground.Memory() == nullptr)
        return; // its clock is the machine's
    const DateCase cases[] = {
        {21, 5, 0, 0, "03/07/2001 09:05 PM"},   {21, 5, 59, 0, "03/07/2001 09:05 PM"},
        {0, 0, 0, 0, "03/07/2001 12:00 AM"},    {12, 0, 0, 0, "03/07/2001 12:00 PM"},
        {23, 30, 0, 60, "03/08/2001 12:30 AM"}, {0, 30, 0, -60, "03/06/2001 11:30 PM"},
    };
    ground.AddFile("d/a");
    for (const DateCase& wanted : cases) {
        ground.Memory()->SetZone(wanted.Zone);
        ground.Memory()->SetTimes(ground.Full("d/a"), Clock_Moment(2001, 3, 7, wanted.Hour,
                                                                   wanted.Minute, wanted.Second));
        Fill("*.*");
        EXPECT_EQ(Column("Modified"), (Texts{wanted.Wanted}));
    }
}

TEST_P(Enumeration, A_time_that_cannot_be_told_shows_the_one_before_it)
{
    if (ground.Memory() == nullptr)
        return;
    AddFiles({"d/a", "d/b", "d/c"});
    ground.Memory()->SetTimes(ground.Full("d/a"), Clock_Moment(2001, 3, 7, 21, 5));
    ground.Memory()->SetTimes(ground.Full("d/b"), FileTime{-1});
    ground.Memory()->SetTimes(ground.Full("d/c"), Clock_Moment(2002, 1, 2));
    Fill("*.*");
    EXPECT_EQ(Column("Modified"),
              (Texts{"03/07/2001 09:05 PM", "03/07/2001 09:05 PM", "01/02/2002 12:00 AM"}));
}

TEST_P(Enumeration, Hidden_system_and_read_only_files_are_listed_like_the_rest)
{
    AddFiles({"d/a", "d/b"});
    if (ground.Memory())
        ground.Memory()->SetAttributes(ground.Full("d/a"), attrReadOnly | attrHidden | attrSystem);
    else
        ground.Real()->SetMode("d/a", 0444);
    Fill("*.*");
    EXPECT_EQ(Names(), (Texts{"a", "b"}));
}

TEST_P(Enumeration, A_name_ends_at_a_nul)
{
    if (ground.Memory() == nullptr)
        return; // holds no such names
    ground.Memory()->AddFile(ground.Full(std::string("d/a.txt\0x", 9)));
    Fill("*.*");
    EXPECT_EQ(Names(), (Texts{"a.txt"}));
}

// -- Folder mode.

TEST_P(Enumeration, Folder_mode_lists_folders_alone)
{
    AddFiles({"d/a.txt", "d/sub/b.txt", "d/texts.txt/c", "d/.hidden/c"});
    s.SelFolderMode = 1;
    Fill("*.*");
    EXPECT_EQ(Sorted(Names()), (Texts{".hidden", "sub", "texts.txt"}));
    for (int row = 1; row <= list.Count(); ++row) {
        EXPECT_EQ(Cell(row, "Size"), "-");
        EXPECT_EQ(Cell(row, "Type"), "-");
        EXPECT_EQ(Cell(row, "Path"), ground.Full("d/"));
        EXPECT_EQ(list.Icon(row), "D");
    }
    Fill("*.txt");
    EXPECT_EQ(Names(), (Texts{"texts.txt"}));
    Fill("sub");
    EXPECT_EQ(Names(), (Texts{"sub"}));
    Fill("a.txt");
    EXPECT_EQ(Names(), Texts{});
}

// -- Subfolders.

TEST_P(Enumeration, A_folder_comes_before_its_subfolders)
{
    AddFiles({"d/z", "d/sub/y", "d/sub/deep/x", "d/a/w", "d/a/more.txt"});
    EXPECT_EQ(Walk("*.*", -1), (Texts{"z", "a/more.txt", "a/w", "sub/y", "sub/deep/x"}));
    EXPECT_EQ(Walk("*.txt", -1), (Texts{"a/more.txt"}));
}

TEST_P(Enumeration, Nothing_but_minus_one_walks_the_subfolders)
{
    AddFiles({"d/z", "d/sub/y"});
    for (const int value : {0, 1, 255, -2})
        EXPECT_EQ(Walk("*.*", static_cast<std::int16_t>(value)), (Texts{"z"})) << value;
    EXPECT_EQ(Walk("*.*", -1), (Texts{"z", "sub/y"}));
}

TEST_P(Enumeration, The_caption_shows_each_folder_and_then_the_title)
{
    AddFiles({"d/a/x", "d/b/c/y", "d/b/z"});
    const int alive = ground.G.Desktop.StillAlives();
    f.SetCaption("before");
    EXPECT_EQ(Captions([&] { Fill("nothing*", true); }), (Texts{"a", "b", "b/c", "Tavo"}));
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(ground.G.Desktop.StillAlives(), alive + 3);
    f.SetCaption("before");
    EXPECT_EQ(Captions([&] { Fill("*.*"); }), (Texts{"Tavo"}));
}

TEST_P(Enumeration, Each_pattern_walks_the_whole_tree_anew)
{
    AddFiles({"d/a/x.txt"});
    f.SetCaption("before");
    EXPECT_EQ(Captions([&] { Fill("*.txt;q;*.*", true); }), (Texts{"a", "Tavo"}));
    EXPECT_EQ(ground.G.Desktop.StillAlives(), 3);
    EXPECT_EQ(Names(), (Texts{"x.txt", "x.txt"}));
    // An empty pattern finds nothing, and walks all the same.
    Fill(";", true);
    EXPECT_EQ(ground.G.Desktop.StillAlives(), 4);
    EXPECT_EQ(list.Count(), 0);
}

TEST_P(Enumeration, Subfolders_in_folder_mode_give_their_folders)
{
    AddFiles({"d/a/b/x", "d/c/x"});
    s.SelFolderMode = 1;
    EXPECT_EQ(Walk("*.*", -1), (Texts{"a", "c", "a/b"}));
}

// -- Links.

TEST_P(Enumeration, A_link_that_leads_back_is_not_entered)
{
    AddFiles({"d/a.txt", "d/sub/b.txt"});
    ground.AddLink("d/sub/back", "d");
    ground.AddLink("d/sub/here", "d/sub");
    ground.AddLink("d/self", "d/self");
    EXPECT_EQ(Sorted(Walk("*.txt", -1)), (Texts{"a.txt", "sub/b.txt"}));
}

TEST_P(Enumeration, A_link_to_another_folder_is_entered_as_a_folder)
{
    AddFiles({"d/a.txt", "other/b.txt", "other/deep/c.txt"});
    ground.AddLink("d/link", "other");
    ground.AddLink("d/again", "other");
    EXPECT_EQ(Sorted(Walk("*.txt", -1)),
              (Texts{"a.txt", "again/b.txt", "again/deep/c.txt", "link/b.txt", "link/deep/c.txt"}));
    EXPECT_EQ(Walk("*.*", 0), (Texts{"a.txt"}));
    s.SelFolderMode = 1;
    EXPECT_EQ(Sorted(Walk("*.*", 0)), (Texts{"again", "link"}));
}

// Two folders that lead to each other: each is entered once on the way.
TEST_P(Enumeration, Links_round_a_corner_end)
{
    AddFiles({"d/a/1.txt", "d/b/2.txt"});
    ground.AddLink("d/a/to_b", "d/b");
    ground.AddLink("d/b/to_a", "d/a");
    EXPECT_EQ(Sorted(Walk("*.txt", -1)),
              (Texts{"a/1.txt", "a/to_b/2.txt", "b/2.txt", "b/to_a/1.txt"}));
}

// Behind such a link the start itself comes by as a folder of its own.
TEST_P(Enumeration, A_link_above_the_start_does_not_lead_into_it_again)
{
    AddFiles({"d/a.txt", "d/sub/b.txt", "e/c.txt"});
    ground.AddLink("d/sub/up", "");
    EXPECT_EQ(Sorted(Walk("*.txt", -1)), (Texts{"a.txt", "sub/b.txt", "sub/up/e/c.txt"}));
}

TEST_P(Enumeration, A_link_to_a_file_or_to_nowhere_is_a_file)
{
    AddFiles({"d/a.txt"});
    ground.AddLink("d/b.txt", "d/a.txt");
    ground.AddLink("d/nowhere.txt", "d/gone");
    Fill("*.txt", true);
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.txt", "nowhere.txt"}));
    s.SelFolderMode = 1;
    Fill("*.*");
    EXPECT_EQ(list.Count(), 0);
}

// -- Folders that cannot be walked.

TEST_P(Enumeration, A_folder_that_is_not_there_gives_no_rows_and_no_message)
{
    AddFiles({"d/a"});
    Fill("*.*");
    for (const char* path : {"gone/", "d/a/", "d/a"}) {
        Sel_List_Fill(p, ground.Full(path), true, "*.*");
        EXPECT_EQ(list.Count(), 0) << path;
        EXPECT_EQ(ground.G.Panel(1), "Total: 0");
    }
    EXPECT_TRUE(ground.G.Desktop.Boxes.empty());
}

TEST_P(Enumeration, A_folder_that_cannot_be_read_is_passed_over)
{
    AddFiles({"d/a.txt", "d/closed/b.txt", "d/open/c.txt"});
    if (ground.Memory()) {
        ground.Memory()->SetUnreadable(ground.Full("d/closed"));
        EXPECT_EQ(Walk("*.txt", -1), (Texts{"a.txt", "open/c.txt"}));
        return;
    }
    ground.Real()->SetMode("d/closed", 0);
    EXPECT_EQ(AsPlainUser([&] {
                  return Walk("*.txt", -1) == Texts{"a.txt", "open/c.txt"} ? 1 : 0;
              }),
              1);
}

TEST_P(Enumeration, A_folder_that_vanishes_as_it_is_entered_is_passed_over)
{
    AddFiles({"d/a.txt", "d/open/c.txt"});
    ground.AddFolder("d/gone");
    const Connection listener = f.Changed.Listen([&](Prop what) {
        if (what == Prop::Caption && f.Caption() == ground.Full("d/gone") && ground.Has("d/gone"))
            ground.Remove("d/gone");
    });
    EXPECT_EQ(Walk("*.txt", -1), (Texts{"a.txt", "open/c.txt"}));
    EXPECT_FALSE(ground.Has("d/gone"));
}

TEST_P(Enumeration, The_folder_in_hand_may_vanish_in_the_middle)
{
    if (ground.Memory() == nullptr)
        return; // needs to act between two calls
    AddFiles({"d/a", "d/b", "d/c"});
    ground.Memory()->Before("FindNextFileA", 3, [&](const MemoryDisk::Call&) {
        ground.Remove("d/b");
        ground.Remove("d/c");
        ground.Remove("d");
    });
    Fill("*.*", true);
    EXPECT_EQ(Names(), (Texts{"a"}));
    EXPECT_EQ(ground.Memory()->OpenSearches(), 0);
}

TEST_P(Enumeration, Names_of_the_disk_come_byte_for_byte)
{
    if (GetParam() == Ground::Windows)
        return; // holds no such names
    const Texts names{"\xff\xfe.txt",
                      "new\nline.txt",
                      "e\u0301.txt",
                      "\u00e9.txt",
                      std::string(251, 'x') + ".txt",
                      "*?.txt",
                      "tail. .txt"};
    for (const std::string& name : names)
        ground.AddFile("d/" + name);
    Fill("*.txt");
    EXPECT_EQ(Sorted(Names()), Sorted(names));
}

TEST_P(Enumeration, Names_that_differ_in_case_alone_are_two_rows)
{
    if (GetParam() == Ground::Windows || GetParam() == Ground::CaseBlindStick)
        return; // holds no such names
    AddFiles({"d/a.txt", "d/A.TXT"});
    Fill("*.txt");
    EXPECT_EQ(Sorted(Names()), (Texts{"A.TXT", "a.txt"}));
}

// -- The list afterwards.

TEST_P(Enumeration, The_list_stands_by_path_and_by_name_within_it)
{
    AddFiles({"d/b/2", "d/b/1", "d/a/3", "d/c", "d/B1"});
    list.SetSortKey(2);
    list.SetSortOrder(1);
    Fill("*.*", true);
    EXPECT_EQ(Paths(), (Texts{"B1", "c", "a/3", "b/1", "b/2"}));
    EXPECT_EQ(list.SortKey(), 1);
    EXPECT_EQ(list.SortOrder(), 0);
    EXPECT_FALSE(list.Sorted());
}

TEST_P(Enumeration, A_walk_takes_the_place_of_the_one_before)
{
    AddFiles({"d/a", "d/b"});
    Fill("*.*");
    list.SetAllSelected(true);
    list.SetSelectedItem(2);
    Fill("a");
    EXPECT_EQ(Names(), (Texts{"a"}));
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_EQ(list.SelectedItem(), 0);
    EXPECT_EQ(ground.G.Panel(1), "Total: 1");
    EXPECT_EQ(ground.G.Panel(3), "Selected: 0");
}

TEST_P(Enumeration, What_is_selected_while_it_goes_on_is_not_afterwards)
{
    AddFiles({"d/a", "d/b"});
    ground.G.Desktop.EachTurn = [&](int) { list.SetSelected(1, true); };
    Fill("*.*");
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_EQ(list.SelectedItem(), 0);
}

TEST_P(Enumeration, A_separator_behind_the_folder_is_added)
{
    AddFiles({"d/a"});
    Sel_List_Fill(p, ground.Full("d"), false, "*.*");
    EXPECT_EQ(Column("Path"), (Texts{ground.Full("d/")}));
}

// -- While it goes on.

TEST_P(Enumeration, A_walk_lets_events_run_twice_and_closes_what_it_opened)
{
    AddFiles({"d/a", "d/sub/b"});
    const int turns = ground.G.Desktop.Turns();
    if (ground.Memory())
        ground.Memory()->ForgetCalls();
    Fill("*.*");
    EXPECT_EQ(ground.G.Desktop.Turns(), turns + 2);
    if (ground.Memory()) {
        EXPECT_EQ(ground.Memory()->Calls("FindFirstFileA"), 1);
        EXPECT_EQ(ground.Memory()->Calls("FindClose"), 1);
    }
    Fill("*.*;*.txt", true);
    EXPECT_EQ(ground.G.Desktop.Turns(), turns + 4);
    if (ground.Memory()) {
        EXPECT_EQ(ground.Memory()->OpenSearches(), 0);
    }
}

TEST_P(Enumeration, The_screen_is_out_of_reach_while_it_goes_on)
{
    AddFiles({"d/a"});
    const char* const tools[] = {"ID_CreateList",  "ID_SelAll",  "ID_SelClear",   "ID_SelFolder",
                                 "ID_SelSubFiles", "ID_sFilter", "ID_SelUsePath", "ID_mnuEdit"};
    int seen = 0;
    ground.G.Desktop.EachTurn = [&](int) {
        ++seen;
        EXPECT_EQ(ground.G.Desktop.PointerNow(), Pointer::Busy);
        EXPECT_FALSE(f.fraSelect.Enabled);
        for (const char* id : tools)
            EXPECT_FALSE(ground.G.ToolOf(id).Enabled) << id;
        EXPECT_TRUE(p.Busy());
    };
    Fill("*.*");
    EXPECT_EQ(seen, 2);
    ground.G.Desktop.EachTurn = nullptr;
    EXPECT_EQ(ground.G.Desktop.PointerNow(), Pointer::Default);
    EXPECT_TRUE(f.fraSelect.Enabled);
    for (const char* id : tools)
        EXPECT_TRUE(ground.G.ToolOf(id).Enabled) << id;
    s.SelFolderMode = 1;
    Fill("*.*");
    EXPECT_FALSE(ground.G.ToolOf("ID_SelSubFiles").Enabled);
}

TEST_P(Enumeration, A_walk_inside_a_walk_is_refused)
{
    AddFiles({"d/a", "e/b"});
    ground.G.Desktop.EachTurn = [&](int) { Sel_List_Fill(p, ground.Full("e/"), false, "*.*"); };
    Fill("*.*");
    EXPECT_EQ(Names(), (Texts{"a"}));
}

} // namespace tavo
