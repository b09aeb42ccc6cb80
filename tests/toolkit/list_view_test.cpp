#include "toolkit/list_view.h"

#include "toolkit/form.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavo {
namespace {

// Writes down what it hears, a word a notice.
class Recorder : public ListObserver {
public:
    void BeginInsert(int first, int last) override { Note("+", first, last); }
    void EndInsert() override { Log += "."; }
    void BeginRemove(int first, int last) override { Note("-", first, last); }
    void EndRemove() override { Log += "."; }
    void BeginReset() override { Log += " reset"; }
    void EndReset() override { Log += "."; }
    void CellsChanged(int first, int last) override { Note("cells", first, last); }
    void SelectionChanged(int first, int last) override { Note("sel", first, last); }
    void SelectedItemChanged() override { Log += " item"; }
    void ColumnsChanged() override { Log += " columns"; }
    void ShowRow(int position) override { Log += " show" + std::to_string(position); }

    std::string Take() { return std::exchange(Log, ""); }
    std::string Log;

private:
    void Note(const char* what, int first, int last)
    {
        Log += " " + std::string(what) + std::to_string(first) + "-" + std::to_string(last);
    }
};

class ListViewTest : public testing::Test {
protected:
    ListViewTest()
    {
        list.AddColumn({.Key = "Name", .Caption = "File"});
        list.AddColumn({.Key = "Path", .Caption = "Folder", .Shared = true});
        list.AddColumn({.Key = "Size", .Caption = "Size"});
        list.ItemClick = [this] { clicks += " item" + std::to_string(list.SelectedItem()); };
        list.Click = [this] { clicks += " beside"; };
        list.SetObserver(&heard);
    }
    ~ListViewTest() override { list.SetObserver(nullptr); }

    void Fill(const std::string& names)
    {
        for (const char name : names)
            list.Add(std::string(1, name));
        heard.Take();
    }
    // The names in order, selected ones in brackets, `*` behind the
    // SelectedItem.
    std::string Shown() const
    {
        std::string text;
        for (int i = 1; i <= list.Count(); ++i) {
            const std::string name(list.Text(i));
            text += list.Selected(i) ? "[" + name + "]" : name;
            text += i == list.SelectedItem() ? "*" : "";
        }
        return text;
    }
    void Press(int code, int shift = shiftNone) { list.PersonKey(Key{code, shift, 0}); }

    Form form{"frmTest"};
    ListView list{form, "lsvTest"};
    Recorder heard;
    std::string clicks;
};

TEST_F(ListViewTest, Columns_are_found_by_their_key_exactly)
{
    EXPECT_EQ(list.ColumnCount(), 3);
    EXPECT_EQ(list.ColumnByKey("Size"), 2);
    EXPECT_EQ(list.ColumnByKey("size"), -1);
    list.SetColumnMark(1, SortMark::Up);
    list.SetColumnMark(1, SortMark::Up);
    list.SetColumnCaption(2, "Errors: 1");
    list.SetColumnCaption(2, "Errors: 1");
    list.SetColumnCaption(9, "x");
    list.SetColumnMark(-1, SortMark::Up);
    EXPECT_EQ(list.Column(1).Mark, SortMark::Up);
    EXPECT_EQ(list.Column(2).Caption, "Errors: 1");
    EXPECT_EQ(heard.Take(), " columns columns");
}

TEST_F(ListViewTest, Rows_are_added_at_the_end_or_before_a_position)
{
    EXPECT_EQ(list.Add("b"), 1);
    EXPECT_EQ(list.Add("a", 1), 1);
    EXPECT_EQ(list.Add("c", 3), 3);
    EXPECT_EQ(list.Add("x", 5), 0);
    EXPECT_EQ(list.Add("x", -1), 0);
    const std::string_view cells[] = {"d", "p", "12"};
    EXPECT_EQ(list.AddRow(cells, 3, "M"), 4);
    EXPECT_EQ(Shown(), "abcd");
    EXPECT_EQ(list.Cell(4, 2), "12");
    EXPECT_EQ(list.Icon(4), "M");
    EXPECT_EQ(heard.Take(), " +1-1. +1-1. +3-3. +4-4.");
}

TEST_F(ListViewTest, Writing_gives_false_beyond_the_list_and_tells_changes_alone)
{
    Fill("ab");
    EXPECT_TRUE(list.SetText(2, "B"));
    EXPECT_TRUE(list.SetText(2, "B"));
    EXPECT_TRUE(list.SetCell(1, 1, "p"));
    EXPECT_TRUE(list.SetIcons(1, "F", "F"));
    EXPECT_TRUE(list.SetIcons(1, "F", "F"));
    EXPECT_TRUE(list.SetKey(1, "k"));
    EXPECT_TRUE(list.SetTag(1, "t"));
    EXPECT_EQ(heard.Take(), " cells2-2 cells1-1 cells1-1");
    list.SetColumnCells(1, "p");
    list.SetColumnCells(1, "p");
    EXPECT_EQ(heard.Take(), " cells2-2");
    EXPECT_FALSE(list.SetText(3, "x"));
    EXPECT_FALSE(list.SetCell(1, 3, "x"));
    EXPECT_FALSE(list.SetIcons(0, "x", "x"));
    EXPECT_FALSE(list.SetKey(3, "x"));
    EXPECT_FALSE(list.SetTag(3, "x"));
    EXPECT_FALSE(list.Remove(3));
    EXPECT_FALSE(list.MoveRow(1, 3));
    EXPECT_FALSE(list.MoveRow(0, 1));
    EXPECT_EQ(heard.Take(), "");
    EXPECT_EQ(list.Key(1), "k");
    EXPECT_EQ(list.Tag(1), "t");
}

TEST_F(ListViewTest, The_row_that_takes_the_place_of_a_removed_SelectedItem_is_it_then)
{
    Fill("abc");
    list.SetSelected(2, true);
    heard.Take();
    list.Remove(2);
    EXPECT_EQ(Shown(), "ac*");
    EXPECT_EQ(heard.Take(), " -2-2. item");
    list.Remove(1);
    EXPECT_EQ(Shown(), "c*");
    EXPECT_EQ(heard.Take(), " -1-1.");
    list.Add("d");
    list.SetSelectedItem(2);
    list.Remove(2);
    EXPECT_EQ(Shown(), "c*");
    list.Remove(1);
    EXPECT_EQ(list.SelectedItem(), 0);
}

TEST_F(ListViewTest, A_moved_row_takes_all_with_it_but_its_selection)
{
    Fill("abcd");
    list.SetCell(1, 1, "p");
    list.SetIcons(1, "M", "S");
    list.SetKey(1, "k");
    list.SetTag(1, "t");
    list.SetSelected(1, true);
    heard.Take();
    EXPECT_TRUE(list.MoveRow(1, 3));
    EXPECT_EQ(Shown(), "bca*d");
    EXPECT_EQ(heard.Take(), " -1-1. +3-3. item");
    EXPECT_EQ(list.Cell(3, 1), "p");
    EXPECT_EQ(list.Icon(3), "M");
    EXPECT_EQ(list.SmallIcon(3), "S");
    EXPECT_EQ(list.Key(3), "k");
    EXPECT_EQ(list.Tag(3), "t");
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_TRUE(list.MoveRow(4, 1));
    EXPECT_EQ(Shown(), "dbca*");
    EXPECT_TRUE(list.MoveRow(2, 2));
    EXPECT_EQ(heard.Take(), " -4-4. +1-1.");
}

TEST_F(ListViewTest, Deleting_all_leaves_no_SelectedItem_and_Sorted_as_it_was)
{
    Fill("ba");
    list.SetSorted(true);
    list.SetSelected(1, true);
    heard.Take();
    list.DeleteAllItems();
    EXPECT_EQ(heard.Take(), " reset. item");
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_EQ(list.SelectedItem(), 0);
    EXPECT_TRUE(list.Sorted());
    list.DeleteAllItems();
    EXPECT_EQ(heard.Take(), "");
    Fill("x");
    EXPECT_EQ(Shown(), "x");
}

TEST_F(ListViewTest, Selecting_by_code_makes_the_row_the_SelectedItem)
{
    Fill("abcd");
    list.SetSelected(2, true);
    EXPECT_EQ(heard.Take(), " sel2-2 item");
    list.SetSelected(4, true);
    list.SetSelected(2, true);
    EXPECT_EQ(Shown(), "a[b]*c[d]");
    heard.Take();
    list.SetSelected(2, true);
    list.SetSelected(9, true);
    list.SetSelected(1, false);
    EXPECT_EQ(heard.Take(), "");
    list.SetSelected(2, false);
    EXPECT_EQ(Shown(), "ab*c[d]");
    EXPECT_EQ(list.NextSelected(0), 4);
    EXPECT_EQ(list.NextSelected(-3), 4);
    EXPECT_EQ(list.NextSelected(4), 0);
    list.SetSelectedItem(0);
    EXPECT_EQ(Shown(), "abc[d]");
    list.SetSelectedItem(5);
    EXPECT_EQ(list.SelectedItem(), 0);
}

TEST_F(ListViewTest, Selecting_all_and_inverting_leave_the_SelectedItem)
{
    Fill("abcd");
    list.SetSelected(2, true);
    heard.Take();
    list.SetAllSelected(true);
    EXPECT_EQ(Shown(), "[a][b]*[c][d]");
    EXPECT_EQ(heard.Take(), " sel1-4");
    list.SetSelected(3, false);
    list.InvertSelection();
    EXPECT_EQ(Shown(), "ab*[c]d");
    EXPECT_EQ(list.SelCount(), 1);
    heard.Take();
    list.SetAllSelected(false);
    list.SetAllSelected(false);
    EXPECT_EQ(heard.Take(), " sel3-3");
    EXPECT_EQ(list.SelectedItem(), 2);
}

TEST_F(ListViewTest, Sorting_happens_when_it_goes_on_and_when_key_or_order_change)
{
    Fill("bca");
    list.SetSelected(1, true);
    heard.Take();
    list.SetSortOrder(1);
    EXPECT_EQ(Shown(), "[b]*ca");
    list.SetSorted(true);
    EXPECT_EQ(Shown(), "c[b]*a");
    EXPECT_EQ(heard.Take(), " reset.");
    list.SetSortOrder(0);
    EXPECT_EQ(Shown(), "a[b]*c");
    list.SetText(1, "z");
    list.Add("m");
    EXPECT_EQ(Shown(), "z[b]*cm") << "changes move nothing";
    list.SetSorted(true);
    list.SetSortKey(0);
    list.SetSortOrder(0);
    EXPECT_EQ(Shown(), "z[b]*cm") << "the value that it has does nothing";
    for (int i = 1; i <= 4; ++i)
        list.SetCell(i, 1, i % 2 ? "q" : "p");
    heard.Take();
    list.SetSortKey(1);
    EXPECT_EQ(Shown(), "[b]*mzc");
    list.SetSortKey(2);
    EXPECT_EQ(heard.Take(), " reset.") << "nothing is told of rows in order";
    list.SetSortKey(7);
    list.SetSortOrder(2);
    EXPECT_EQ(list.SortKey(), 2);
    EXPECT_EQ(list.SortOrder(), 0);
    list.SetSorted(false);
    EXPECT_EQ(Shown(), "[b]*mzc");
}

TEST_F(ListViewTest, The_order_of_texts_is_the_lists_own)
{
    for (const char* name : {"co-op", "coop", "con"})
        list.Add(name);
    list.SetSorted(true);
    EXPECT_EQ(Shown(), "co-opconcoop");
    list.SetSorted(false);
    list.Order = Collation::WordSort;
    list.SetSorted(true);
    EXPECT_EQ(Shown(), "concoopco-op");
}

TEST_F(ListViewTest, A_freeze_tells_its_changes_of_rows_as_one_reset)
{
    Fill("abc");
    {
        const ListFreezeGuard outer(list);
        list.SetText(1, "x");
        EXPECT_EQ(heard.Take(), "");
        list.Remove(2);
        EXPECT_EQ(heard.Take(), " reset");
        {
            const ListFreezeGuard inner(list);
            list.Add("d");
            list.MoveRow(1, 3);
        }
        list.SetSelected(1, true);
        list.EnsureVisible(3);
        list.SetColumnMark(0, SortMark::Down);
        EXPECT_EQ(heard.Take(), "");
    }
    EXPECT_EQ(heard.Take(), ". item columns show3");
    EXPECT_EQ(Shown(), "[c]*dx");
    list.Freeze(false);
    EXPECT_FALSE(list.Frozen());
}

TEST_F(ListViewTest, A_freeze_without_changes_of_rows_tells_one_range)
{
    Fill("abcdef");
    list.Freeze(true);
    list.SetText(4, "x");
    list.SetText(2, "y");
    list.SetSelected(5, true);
    list.SetSelected(3, true);
    list.SetSelected(3, false);
    list.EnsureVisible(2);
    list.Freeze(false);
    EXPECT_EQ(heard.Take(), " cells2-4 sel3-5 item show2");
    list.Freeze(true);
    list.SetText(4, "x");
    list.Freeze(false);
    EXPECT_EQ(heard.Take(), "");
}

TEST_F(ListViewTest, A_row_to_show_that_goes_inside_the_freeze_is_not_shown)
{
    Fill("abc");
    list.Freeze(true);
    list.EnsureVisible(2);
    list.Remove(2);
    list.Add("n");
    list.Freeze(false);
    EXPECT_EQ(heard.Take(), " reset.");
}

TEST_F(ListViewTest, An_observer_that_comes_inside_a_freeze_hears_whole_pairs)
{
    Fill("abc");
    Recorder other;
    list.Freeze(true);
    list.Remove(1);
    list.SetObserver(&other);
    list.Remove(1);
    list.Freeze(false);
    EXPECT_EQ(heard.Take(), " reset.");
    EXPECT_EQ(other.Take(), " reset.");
    list.SetObserver(nullptr);
    list.Remove(1);
    EXPECT_EQ(other.Take(), "");
}

TEST_F(ListViewTest, A_person_selects_exactly_the_rows_given)
{
    Fill("abcdef");
    list.SetSelected(1, true);
    list.SetSelected(3, true);
    heard.Take();
    list.PersonSelect({5, 3, 99, 0, 5}, 5);
    EXPECT_EQ(Shown(), "ab[c]d[e]*f");
    EXPECT_EQ(heard.Take(), " sel1-5 item");
    EXPECT_EQ(clicks, " item5");
    list.PersonSelect({}, 0);
    EXPECT_EQ(Shown(), "abcde*f");
    EXPECT_EQ(clicks, " item5 beside");
    list.PersonSelect({}, 2);
    EXPECT_EQ(Shown(), "ab*cdef");
    list.PersonSelectAll();
    EXPECT_EQ(list.SelCount(), 6);
    EXPECT_EQ(clicks, " item5 beside item2 item6");
}

TEST_F(ListViewTest, Selecting_all_of_no_rows_is_a_click_beside)
{
    list.PersonSelectAll();
    EXPECT_EQ(clicks, " beside");
}

TEST_F(ListViewTest, What_the_hosts_own_view_selects_is_taken_over_silently)
{
    Fill("abcde");
    list.PersonSelectRange(-2, 2, true);
    list.PersonSelectRange(4, 9, true);
    list.PersonSelectRange(2, 2, false);
    EXPECT_EQ(Shown(), "[a]bc[d][e]");
    EXPECT_EQ(heard.Take(), "");
    EXPECT_EQ(clicks, "");
    list.PersonClicked(4);
    list.PersonClicked(0);
    EXPECT_EQ(Shown(), "[a]bc[d]*[e]");
    EXPECT_EQ(clicks, " item4 beside");
}

TEST_F(ListViewTest, A_press_selects_by_the_keys_held_and_is_a_click)
{
    Fill("abcdef");
    struct {
        int Position, Shift;
        const char* Wanted;
    } const steps[] = {
        {3, shiftNone, "ab[c]*def"},    {5, shiftShift, "ab[c][d][e]*f"},
        {2, shiftShift, "a[b]*[c]def"}, {5, shiftCtrl, "a[b][c]d[e]*f"},
        {3, shiftCtrl, "a[b]c*d[e]f"},  {4, shiftShift, "ab[c][d]*ef"},
        {6, shiftNone, "abcde[f]*"},    {0, shiftNone, "abcde[f]*"},
    };
    for (const auto& step : steps) {
        list.PersonPress(step.Position, step.Shift);
        EXPECT_EQ(Shown(), step.Wanted) << step.Position << " " << step.Shift;
    }
    EXPECT_EQ(clicks, " item3 item5 item2 item5 item3 item4 item6 beside");
}

TEST_F(ListViewTest, A_handler_of_the_click_may_change_the_list)
{
    Fill("abc");
    list.ItemClick = [this] {
        list.DeleteAllItems();
        list.Add("new");
    };
    list.PersonSelect({1, 2}, 2);
    EXPECT_EQ(Shown(), "new");
}

TEST_F(ListViewTest, Keys_move_the_SelectedItem_and_select_it_alone)
{
    Fill(std::string(50, 'x'));
    struct {
        int Code, Shift, Item, Selected;
    } const steps[] = {
        {keyDown, shiftNone, 1, 1},      {keyDown, shiftNone, 2, 1},
        {keyUp, shiftNone, 1, 1},        {keyUp, shiftNone, 1, 1},
        {keyPageDown, shiftNone, 21, 1}, {keyPageDown, shiftNone, 41, 1},
        {keyPageDown, shiftNone, 50, 1}, {keyDown, shiftNone, 50, 1},
        {keyPageUp, shiftNone, 30, 1},   {keyHome, shiftNone, 1, 1},
        {keyEnd, shiftNone, 50, 1},      {keyUp, shiftShift, 49, 2},
        {keyPageUp, shiftShift, 29, 22}, {keyDown, shiftShift, 30, 21},
        {keyEnd, shiftShift, 50, 1},     {keyUp, shiftCtrl, 49, 1},
        {keySpace, shiftCtrl, 49, 2},    {keyUp, shiftShift, 48, 2},
        {keySpace, shiftNone, 48, 1},    {keyDown, shiftAlt, 48, 1},
        {'A', shiftNone, 48, 1},         {keyReturn, shiftNone, 48, 1},
    };
    int number = 0;
    for (const auto& step : steps) {
        SCOPED_TRACE(number++);
        Press(step.Code, step.Shift);
        EXPECT_EQ(list.SelectedItem(), step.Item);
        EXPECT_EQ(list.SelCount(), step.Selected);
    }
    EXPECT_EQ(clicks, "");
}

TEST_F(ListViewTest, Keys_on_an_empty_list_or_with_no_SelectedItem_do_no_harm)
{
    Press(keyDown);
    Press(keySpace);
    EXPECT_EQ(heard.Take(), "");
    Fill("abc");
    Press(keySpace);
    EXPECT_EQ(Shown(), "abc");
    Press(keyEnd, shiftShift);
    EXPECT_EQ(Shown(), "ab[c]*");
    list.PersonSelect({1}, 1);
    Press(keyEnd, shiftShift);
    EXPECT_EQ(Shown(), "[a][b][c]*");
    list.Remove(1);
    Press(keyUp, shiftShift);
    EXPECT_EQ(Shown(), "[b]*[c]");
}

TEST_F(ListViewTest, Properties_print_by_name)
{
    Fill("abc");
    list.SetSelected(2, true);
    list.SetSortKey(1);
    list.SetSortOrder(1);
    list.SetView(ListLook::List);
    const char* const table[][2] = {
        {"Count", "3"},   {"SelCount", "1"},   {"SelectedItem", "2"},
        {"SortKey", "1"}, {"SortOrder", "1"},  {"Sorted", "False"},
        {"View", "2"},    {"Visible", "True"}, {"Name", "lsvTest"},
    };
    for (const auto& row : table)
        EXPECT_EQ(list.PropertyText(row[0]).value_or("none"), row[1]) << row[0];
    EXPECT_FALSE(list.PropertyText("Caption").has_value());
}

TEST_F(ListViewTest, Another_view_and_a_refresh_reach_the_host)
{
    Fill("ab");
    int states = 0;
    const Connection host = list.Changed.Listen([&](Prop what) { states += what == Prop::State; });
    list.SetView(ListLook::List);
    list.SetView(ListLook::List);
    EXPECT_EQ(states, 1);
    list.Refresh();
    list.EnsureVisible(2);
    list.EnsureVisible(3);
    EXPECT_EQ(heard.Take(), " cells1-2 show2");
}

} // namespace
} // namespace tavo
