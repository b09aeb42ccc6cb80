#include "renamelist/rename_list.h"

#include "support/list_run.h"

#include <algorithm>
#include <random>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Order : public ListRun {
protected:
    // Rows a, b, c ... without files behind them.
    void LoadRows(int count)
    {
        Texts paths;
        for (int i = 0; i < count; ++i)
            paths.push_back("d/" + std::string(1, static_cast<char>('a' + i)));
        ground.Load(paths);
    }

    std::string NamesJoined() const
    {
        std::string joined;
        for (const std::string& name : ground.Names())
            joined += name;
        return joined;
    }

    std::string SelectedJoined() const
    {
        std::string joined;
        for (const std::string& name : ground.SelectedNames())
            joined += name;
        return joined;
    }

    // The headers that carry a mark: "Name+" ascending, "Name-" descending.
    static Texts Marks(const ListView& list)
    {
        Texts marks;
        for (int column = 0; column < list.ColumnCount(); ++column) {
            const ColumnHeader& header = list.Column(column);
            if (header.Mark != SortMark::None)
                marks.push_back(header.Key + (header.Mark == SortMark::Up ? "+" : "-"));
        }
        return marks;
    }

    void Sort(const char* key) { Ren_List_Sort(p, ground.List, ground.List.ColumnByKey(key)); }
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Order, bothDialects, Dialect_Name);

} // namespace

// -- Sorting.

TEST_P(Order, Each_column_sorts_as_text_and_turns_round_at_the_next_click)
{
    LoadRows(3);
    const struct {
        const char *Key, *Cells[3], *Up, *Down;
    } cases[] = {
        {"Path", {"/b/", "/C/", "/a/"}, "cab", "bac"},
        {"Type", {"txt", "", "JPG"}, "bca", "acb"},
        {"Size", {"        10KB", "         9KB", "       100KB"}, "bac", "cab"},
        {"UndoName", {"B", "a", "c"}, "bac", "cab"},
        {"Errors", {"Name Conflict", "", "Missing"}, "bca", "acb"},
        {"Modified",
         {"12/31/1999 11:59 PM", "01/01/2000 12:00 AM", "01/01/2000 12:00 PM"},
         "abc",
         "cba"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.Key);
        LoadRows(3);
        const int column = ground.List.ColumnByKey(test.Key);
        for (int row = 1; row <= 3; ++row)
            ground.List.SetCell(row, column, test.Cells[row - 1]);
        Sort(test.Key);
        EXPECT_EQ(NamesJoined(), test.Up);
        EXPECT_EQ(Marks(ground.List), (Texts{std::string(test.Key) + "+"}));
        EXPECT_TRUE(ground.List.Sorted());
        EXPECT_EQ(ground.List.SortKey(), column);
        Sort(test.Key);
        EXPECT_EQ(NamesJoined(), test.Down);
        EXPECT_EQ(Marks(ground.List), (Texts{std::string(test.Key) + "-"}));
        EXPECT_EQ(ground.List.SortOrder(), 1);
        for (int row = 1; row <= 3; ++row)
            EXPECT_EQ(ground.Cell(ground.RowOf(std::string(1, static_cast<char>('a' + row - 1))),
                                  test.Key),
                      test.Cells[row - 1]);
    }
}

TEST_P(Order, A_first_click_on_another_header_keeps_the_direction)
{
    LoadRows(3);
    Sort("Name");
    EXPECT_EQ(NamesJoined(), "cba");
    Sort("Path");
    EXPECT_EQ(ground.List.SortOrder(), 1);
    EXPECT_EQ(Marks(ground.List), (Texts{"Path-"}));
    EXPECT_EQ(NamesJoined(), "cba");
    Sort("Name");
    EXPECT_EQ(NamesJoined(), "cba");
    Sort("Name");
    EXPECT_EQ(NamesJoined(), "abc");
    EXPECT_EQ(Marks(ground.List), (Texts{"Name+"}));
}

TEST_P(Order, A_load_sorts_ascending_whatever_was_clicked_before)
{
    LoadRows(3);
    Sort("Name");
    Sort("Path");
    ASSERT_EQ(ground.List.SortOrder(), 1);
    LoadRows(4);
    EXPECT_EQ(NamesJoined(), "abcd");
    EXPECT_EQ(Marks(ground.List), Texts{});
    EXPECT_FALSE(ground.List.Sorted());
}

// Dates are rewritten into a form that sorts, while events are let in.
TEST_P(Order, Dates_read_as_always_after_a_sort)
{
    LoadRows(4);
    const Texts dates = {"03/09/2001 01:05 PM", "11/30/1998 12:05 AM", "no date", ""};
    for (int row = 1; row <= 4; ++row)
        ground.List.SetCell(row, s.colModified, dates[static_cast<std::size_t>(row - 1)]);
    Texts meanwhile;
    ground.During(1, [&] { meanwhile = ground.Column("Modified"); });
    Sort("Modified");
    EXPECT_EQ(meanwhile, (Texts{"", "1998/11/30 00:05", "2001/03/09 13:05", "no date"}));
    EXPECT_EQ(ground.Column("Modified"),
              (Texts{"", "11/30/1998 12:05 AM", "03/09/2001 01:05 PM", "no date"}));
}

TEST_P(Order, The_date_column_can_be_rewritten_and_back)
{
    LoadRows(2);
    ground.List.SetCell(1, s.colModified, "03/09/2001 01:05 PM");
    ground.List.SetCell(2, s.colModified, "12/31/9999 12:00 AM");
    Ren_Date_Swap(p, ground.List, s.colModified, true);
    EXPECT_EQ(ground.Column("Modified"), (Texts{"2001/03/09 13:05", "9999/12/31 00:00"}));
    Ren_Date_Swap(p, ground.List, s.colModified, true);
    EXPECT_EQ(ground.Column("Modified"), (Texts{"2001/03/09 13:05", "9999/12/31 00:00"}));
    Ren_Date_Swap(p, ground.List, s.colModified, false);
    EXPECT_EQ(ground.Column("Modified"), (Texts{"03/09/2001 01:05 PM", "12/31/9999 12:00 AM"}));
}

TEST_P(Order, Sorting_the_selection_list_marks_that_list_alone)
{
    LoadRows(2);
    for (const char* name : {"b", "a"}) {
        const std::string_view cells[] = {name, "/", "", "", "03/09/2001 01:05 PM"};
        f.lsvSelMain.AddRow(cells, 5, "F");
    }
    f.lsvSelMain.SetSortKey(1);
    int redrawn = 0;
    const Connection ear = p.RowsRedrawn.Listen([&redrawn] { ++redrawn; });
    Ren_List_Sort(p, f.lsvSelMain, f.lsvSelMain.ColumnByKey("Name"));
    EXPECT_EQ(f.lsvSelMain.Text(1), "a");
    EXPECT_EQ(Marks(f.lsvSelMain), (Texts{"Name+"}));
    EXPECT_EQ(Marks(ground.List), Texts{});
    EXPECT_EQ(redrawn, 0);
    Ren_List_Sort(p, f.lsvSelMain, f.lsvSelMain.ColumnByKey("Modified"));
    EXPECT_EQ(f.lsvSelMain.Cell(1, 4), "03/09/2001 01:05 PM");
    Sort("Name");
    EXPECT_EQ(redrawn, 1);
    EXPECT_EQ(Marks(f.lsvSelMain), (Texts{"Modified+"}));
}

TEST_P(Order, A_column_that_is_none_sorts_nothing)
{
    LoadRows(2);
    for (const int column : {-1, 7, 99})
        Ren_List_Sort(p, ground.List, column);
    EXPECT_FALSE(ground.List.Sorted());
    EXPECT_EQ(NamesJoined(), "ab");
}

TEST_P(Order, The_selection_goes_along_with_a_sort)
{
    LoadRows(4);
    ground.Select({1, 3});
    Sort("Name");
    EXPECT_EQ(NamesJoined(), "dcba");
    EXPECT_EQ(SelectedJoined(), "ca");
    EXPECT_EQ(ground.List.SelectedItem(), 2);
}

TEST_P(Order, The_row_in_hand_stays_in_view)
{
    LoadRows(5);
    ground.ToolOf("ID_SelDistance").Box->Text.SetQuietly("2");
    ground.Select({4});
    ShownRows shown(ground.List);
    Sort("Name");
    EXPECT_EQ(shown.Last, 2);
    Ren_List_Arrange(p, "Up");
    EXPECT_EQ(shown.Last, 4);
    Ren_List_Arrange(p, "Down");
    EXPECT_EQ(shown.Last, 2);
    ground.Select({1, 2, 5});
    Ren_List_Arrange(p, "Group");
    EXPECT_EQ(shown.Last, 3);
}

// -- Moving.

namespace {

struct MoveCase {
    const char* What;
    int Count;
    std::vector<int> Selected;
    int Distance;
    bool Downward;
    const char *Names, *SelectedAfter;
};

const MoveCase moveCases[] = {
    {"one down", 5, {2}, 1, true, "acbde", "b"},
    {"one down by three", 5, {2}, 3, true, "acdeb", "b"},
    {"one up", 5, {4}, 1, false, "abdce", "d"},
    {"one up by three", 5, {4}, 3, false, "dabce", "d"},
    {"block down, held to its shape", 7, {3, 4, 5}, 5, true, "abfgcde", "cde"},
    {"spread rows down, held to their shape", 7, {1, 3, 5}, 5, true, "bdafcge", "ace"},
    {"block up, held to its shape", 7, {3, 4, 5}, 5, false, "cdeabfg", "cde"},
    {"spread rows up, held to their shape", 7, {3, 5, 7}, 5, false, "caebgdf", "ceg"},
    {"last row down", 3, {3}, 1, true, "abc", "c"},
    {"first row up", 3, {1}, 1, false, "abc", "a"},
    {"last row among others holds them all", 4, {2, 4}, 2, true, "abcd", "bd"},
    {"first row among others holds them all", 4, {1, 3}, 2, false, "abcd", "ac"},
    {"all rows", 3, {1, 2, 3}, 2, true, "abc", "abc"},
    {"no row", 3, {}, 2, true, "abc", ""},
    {"by nothing", 3, {2}, 0, true, "abc", "b"},
    {"by less than nothing", 3, {2}, -1, false, "abc", "b"},
    {"by more than there can be", 3, {1}, 2147483647, true, "bca", "a"},
    {"up by more than there can be", 3, {3}, 2147483647, false, "cab", "c"},
    {"a list of one", 1, {1}, 5, true, "a", "a"},
};

} // namespace

TEST_P(Order, Selected_rows_move)
{
    for (const MoveCase& test : moveCases) {
        SCOPED_TRACE(test.What);
        LoadRows(test.Count);
        ground.Select(test.Selected);
        const int turns = ground.Desktop.Turns();
        Ren_Rows_MoveSelected(p, test.Distance, test.Downward);
        EXPECT_EQ(NamesJoined(), test.Names);
        EXPECT_EQ(SelectedJoined(), test.SelectedAfter);
        EXPECT_EQ(ground.Desktop.Turns(), turns + 1);
    }
}

TEST_P(Order, Three_rows_moved_by_5_with_two_rows_behind_them_move_by_2)
{
    LoadRows(10);
    ground.Select({6, 7, 8});
    Ren_Rows_MoveSelected(p, 5, true);
    EXPECT_EQ(NamesJoined(), "abcdeijfgh");
}

namespace {

// The moves and the grouping, walked row by row over a plain vector.
struct PlainRows {
    std::vector<std::pair<int, bool>> Rows; // number, selected

    void Move(int from, int to)
    {
        auto row = Rows[static_cast<std::size_t>(from - 1)];
        row.second = true;
        Rows.erase(Rows.begin() + from - 1);
        Rows.insert(Rows.begin() + to - 1, row);
    }
    void MoveSelected(int distance, bool downward)
    {
        const int count = static_cast<int>(Rows.size());
        for (int step = 1; step <= count; ++step) {
            const int i = downward ? count + 1 - step : step;
            if (!Rows[static_cast<std::size_t>(i - 1)].second)
                continue;
            if (downward) {
                if (i + distance > count)
                    distance = count - i;
                Move(i, i + distance);
            } else {
                if (i - distance < 1)
                    distance = i - 1;
                Move(i, i - distance);
            }
        }
    }
    void Group()
    {
        int group = 0;
        for (int i = 1; i <= static_cast<int>(Rows.size()); ++i) {
            if (!Rows[static_cast<std::size_t>(i - 1)].second)
                continue;
            group = group == 0 ? i : group + 1;
            Move(i, group);
        }
    }
    Texts Names() const
    {
        Texts names;
        for (const auto& row : Rows)
            names.push_back(std::to_string(row.first) + (row.second ? "*" : ""));
        return names;
    }
};

} // namespace

TEST_P(Order, Moving_and_grouping_agree_with_a_plain_walk_over_random_lists)
{
    std::mt19937 random(20240229);
    for (int round = 0; round < 300; ++round) {
        const int count = static_cast<int>(random() % 40) + 1;
        const int distance = static_cast<int>(random() % 12);
        PlainRows plain;
        ground.List.DeleteAllItems();
        for (int i = 1; i <= count; ++i) {
            const bool selected = random() % 3 == 0;
            plain.Rows.emplace_back(i, selected);
            ground.List.Add(std::to_string(i));
            ground.List.SetSelected(i, selected);
        }
        const int what = static_cast<int>(random() % 3);
        SCOPED_TRACE(std::to_string(round) + ": " + std::to_string(what) + " by "
                     + std::to_string(distance));
        if (what == 2) {
            plain.Group();
            Ren_Rows_Group(p);
        } else {
            plain.MoveSelected(distance, what == 1);
            Ren_Rows_MoveSelected(p, distance, what == 1);
        }
        Texts names;
        for (int row = 1; row <= count; ++row)
            names.push_back(ground.Cell(row, "Name") + (ground.List.Selected(row) ? "*" : ""));
        ASSERT_EQ(names, plain.Names());
    }
}

TEST_P(Order, Moving_a_sorted_list_clears_the_mark_and_the_new_order_holds)
{
    LoadRows(3);
    Sort("Name");
    ground.SelectNames({"c"});
    Ren_Rows_MoveSelected(p, 1, true);
    EXPECT_EQ(NamesJoined(), "bca");
    EXPECT_FALSE(ground.List.Sorted());
    EXPECT_EQ(Marks(ground.List), Texts{});
    ground.List.SetCell(1, s.colName, "z");
    EXPECT_EQ(NamesJoined(), "zca");
}

TEST_P(Order, A_moved_row_takes_everything_along)
{
    LoadRows(3);
    const Texts keys = {"Name", "Path", "Size", "Type", "Modified", "UndoName", "Errors"};
    for (const std::string& key : keys)
        ground.List.SetCell(1, ground.List.ColumnByKey(key), "cell " + key);
    ground.List.SetIcons(1, "P", "M");
    ground.List.SetKey(1, "key");
    ground.List.SetTag(1, "42");
    ground.Select({1});
    Ren_Row_Move(p, 1, 3);
    for (const std::string& key : keys)
        EXPECT_EQ(ground.Cell(3, key), "cell " + key);
    EXPECT_EQ(ground.List.Icon(3), "P");
    EXPECT_EQ(ground.List.SmallIcon(3), "M");
    EXPECT_EQ(ground.List.Key(3), "key");
    EXPECT_EQ(ground.List.Tag(3), "42");
    EXPECT_FALSE(ground.List.Selected(3));
}

TEST_P(Order, A_row_moved_to_its_own_place_or_to_none_stays)
{
    LoadRows(3);
    ground.Select({2});
    Ren_Row_Move(p, 2, 2);
    EXPECT_TRUE(ground.List.Selected(2));
    for (const auto& [from, to] : {std::pair{1, 0}, {1, 4}, {0, 1}, {4, 1}, {-1, 2}})
        Ren_Row_Move(p, from, to);
    EXPECT_EQ(NamesJoined(), "abc");
}

// -- Grouping.

namespace {

struct GroupCase {
    const char* What;
    int Count;
    std::vector<int> Selected;
    const char *Names, *SelectedAfter;
};

const GroupCase groupCases[] = {
    {"behind the first", 6, {2, 4, 6}, "abdfce", "bdf"},
    {"from the top", 5, {1, 5}, "aebcd", "ae"},
    {"together already", 5, {2, 3, 4}, "abcde", "bcd"},
    {"one", 3, {2}, "abc", "b"},
    {"none", 3, {}, "abc", ""},
    {"all", 3, {1, 2, 3}, "abc", "abc"},
    {"a list of one", 1, {1}, "a", "a"},
};

} // namespace

TEST_P(Order, Selected_rows_are_grouped)
{
    for (const GroupCase& test : groupCases) {
        SCOPED_TRACE(test.What);
        LoadRows(test.Count);
        ground.Select(test.Selected);
        Ren_Rows_Group(p);
        EXPECT_EQ(NamesJoined(), test.Names);
        EXPECT_EQ(SelectedJoined(), test.SelectedAfter);
    }
}

TEST_P(Order, Grouping_a_sorted_list_clears_the_mark_and_the_block_holds)
{
    LoadRows(5);
    Sort("Name");
    ground.SelectNames({"e", "a"});
    Ren_List_Arrange(p, "Group");
    EXPECT_EQ(NamesJoined(), "eadcb");
    EXPECT_FALSE(ground.List.Sorted());
    EXPECT_EQ(Marks(ground.List), Texts{});
}

// -- The commands.

TEST_P(Order, Up_counts_positions_up_and_Down_counts_them_down)
{
    LoadRows(5);
    int redrawn = 0;
    const Connection ear = p.RowsRedrawn.Listen([&redrawn] { ++redrawn; });
    ground.ToolOf("ID_SelDistance").Box->Text.SetQuietly("2");
    ground.Select({2});
    Ren_List_Arrange(p, "Up");
    EXPECT_EQ(NamesJoined(), "acdbe");
    Ren_List_Arrange(p, "Down");
    EXPECT_EQ(NamesJoined(), "abcde");
    ground.Select({1, 4});
    Ren_List_Arrange(p, "Group");
    EXPECT_EQ(NamesJoined(), "adbce");
    EXPECT_EQ(redrawn, 3);
    EXPECT_FALSE(f.Frozen());
    EXPECT_FALSE(ground.List.Frozen());
}

TEST_P(Order, A_list_of_one_row_stays_as_it_was)
{
    LoadRows(1);
    ground.ToolOf("ID_SelDistance").Box->Text.SetQuietly("1");
    for (const char* direction : {"Up", "Down", "Group"})
        Ren_List_Arrange(p, direction);
    Sort("Name");
    Sort("Modified");
    EXPECT_EQ(NamesJoined(), "a");
    EXPECT_EQ(SelectedJoined(), "a");
}

TEST_P(Order, The_distance_is_the_number_in_the_box)
{
    const struct {
        const char *Text, *Names;
    } cases[] = {
        {"1", "bacdef"},   {" 3 ", "bcdaef"}, {"2.5", "bcadef"},
        {"0", "abcdef"},   {"-4", "abcdef"},  {"", "abcdef"},
        {"abc", "abcdef"}, {"99", "bcdefa"},  {"99999999999", "abcdef"},
    };
    for (const auto& test : cases) {
        LoadRows(6);
        ground.Select({1});
        ground.ToolOf("ID_SelDistance").Box->Text.SetQuietly(test.Text);
        Ren_List_Arrange(p, "Up");
        EXPECT_EQ(NamesJoined(), test.Names) << test.Text;
    }
}

} // namespace tavo
