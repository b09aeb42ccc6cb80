#include "thumb_ground.h"

#include <algorithm>
#include <random>

namespace tavo {
namespace {

int Icon_Over(ThumbGround& g, Control& target, double x)
{
    g.F().PersonDragOver(&target, x, 15);
    return g.F().DragSource()->DragIcon;
}

TEST(ThumbDrag, The_pointer_tells_the_side)
{
    ThumbGround g(3);
    g.Pictures(81, 80); // 79 high and 80 wide: its half is 600 twips
    g.Show(3, 1);
    Thumb_Create(g.P(), true);
    g.Drag(1);
    struct Row {
        double X;
        int Icon;
    };
    static constexpr Row rows[] = {{0, 1}, {599, 1}, {600, 1}, {601, 2}, {1199, 2}};
    for (const Row& row : rows)
        EXPECT_EQ(Icon_Over(g, g.F().imgThumbs[3], row.X), row.Icon) << row.X;
    EXPECT_EQ(Icon_Over(g, g.F().picThumbs, 0), 0);
    EXPECT_EQ(Icon_Over(g, g.F().imgThumbs[2], 0), 1);
    EXPECT_EQ(Icon_Over(g, g.F().imgThumbsC, 0), 5);
    EXPECT_EQ(Icon_Over(g, g.F().picThumbs, 0), 0);
}

TEST(ThumbDrag, A_box_that_holds_nothing_shows_and_moves_nothing)
{
    ThumbGround g(3);
    g.Show(3, 1);
    g.F().imgThumbsC.Drag();
    EXPECT_EQ(Icon_Over(g, g.F().imgThumbs[2], 0), -1);
    EXPECT_EQ(Icon_Over(g, g.F().imgThumbsC, 0), 0);
    g.DropOn(3, true);
    EXPECT_EQ(g.Order(), "1 2 3");
    EXPECT_EQ(g.F().DragSource(), nullptr);
}

TEST(ThumbDrag, A_cell_that_goes_ends_its_drag)
{
    ThumbGround g(10);
    g.Show(2, 2);
    g.Drag(4);
    Icon_Over(g, g.F().lblThumbsSU, 15);
    EXPECT_TRUE(g.F().tmrThumbsScrollU.Enabled);
    g.Room(1, 2);
    EXPECT_EQ(g.F().imgThumbs.High(), 2);
    EXPECT_EQ(g.F().DragSource(), nullptr);
    EXPECT_FALSE(g.F().tmrThumbsScrollU.Enabled);
}

struct StripCase {
    Label FrmMain::*Strip;
    Timer FrmMain::*Scroll;
    int From, End, Step, Icon;
};

constexpr StripCase strips[] = {
    {&FrmMain::lblThumbsSD, &FrmMain::tmrThumbsScrollD, 3, 1, -1, 3},
    {&FrmMain::lblThumbsSU, &FrmMain::tmrThumbsScrollU, 2, 4, 1, 4},
};

TEST(ThumbDrag, The_strips_scroll_until_the_end)
{
    for (const StripCase& strip : strips) {
        ThumbGround g(10);
        g.Show(2, 2);
        FrmMain& f = g.F();
        Label& bar = f.*strip.Strip;
        Timer& timer = f.*strip.Scroll;
        EXPECT_EQ(timer.Interval, 200);
        f.vsbThumbs.Value = strip.From;
        g.Drag(1);
        EXPECT_EQ(Icon_Over(g, bar, 15), strip.Icon);
        EXPECT_TRUE(timer.Enabled);
        for (int at = strip.From; at != strip.End; at += strip.Step) {
            EXPECT_EQ(f.vsbThumbs.Value, at);
            EXPECT_EQ(f.imgThumbs[1].ToolTipText.Get(), ThumbGround::Name((at - 1) * 2 + 1));
            EXPECT_EQ(Icon_Over(g, bar, 30), strip.Icon);
            timer.Tick();
        }
        timer.Tick();
        EXPECT_EQ(f.vsbThumbs.Value, strip.End);
        EXPECT_EQ(Icon_Over(g, bar, 15), 0);
        EXPECT_FALSE(timer.Enabled);
        // At the end it does not even begin.
        EXPECT_EQ(Icon_Over(g, f.picThumbs, 15), 0);
        EXPECT_EQ(Icon_Over(g, bar, 15), 0);
        EXPECT_FALSE(timer.Enabled);
    }
}

TEST(ThumbDrag, To_leave_a_strip_to_drop_on_it_and_to_give_up_ends_its_scrolling)
{
    for (const StripCase& strip : strips) {
        ThumbGround g(10);
        g.Show(2, 2);
        FrmMain& f = g.F();
        Timer& timer = f.*strip.Scroll;
        f.vsbThumbs.Value = strip.From;
        g.Drag(1);
        Icon_Over(g, f.*strip.Strip, 15);
        EXPECT_EQ(Icon_Over(g, f.imgThumbs[1], 15), 1);
        EXPECT_FALSE(timer.Enabled);
        Icon_Over(g, f.*strip.Strip, 15);
        EXPECT_TRUE(timer.Enabled);
        f.PersonDragDrop();
        EXPECT_FALSE(timer.Enabled);
        EXPECT_EQ(f.imgThumbs[1].DragIcon, -1);
        EXPECT_EQ(g.Order(), "1 2 3 4 5 6 7 8 9 10");
        g.Drag(1);
        Icon_Over(g, f.*strip.Strip, 15);
        Key escape;
        escape.Code = keyEscape;
        f.PersonKey(nullptr, escape);
        EXPECT_FALSE(timer.Enabled);
        EXPECT_EQ(f.DragSource(), nullptr);
    }
}

TEST(ThumbDrop, One_picture_goes_to_the_side_it_was_dropped_on)
{
    struct Row {
        int From, To;
        bool Right;
        const char* Order;
    };
    static constexpr Row rows[] = {
        {1, 3, false, "2 1 3 4 5"}, {1, 3, true, "2 3 1 4 5"},  {5, 3, false, "1 2 5 3 4"},
        {5, 3, true, "1 2 3 5 4"},  {2, 2, false, "1 2 3 4 5"}, {2, 2, true, "1 2 3 4 5"},
        {3, 1, false, "3 1 2 4 5"}, {3, 1, true, "1 3 2 4 5"},  {1, 5, true, "2 3 4 5 1"},
        {1, 2, false, "1 2 3 4 5"}, {2, 1, true, "1 2 3 4 5"},  {5, 4, true, "1 2 3 4 5"},
    };
    for (const Row& row : rows) {
        ThumbGround g(5);
        g.Show(5, 1);
        g.Drag(row.From);
        g.DropOn(row.To, row.Right);
        const std::string what = std::to_string(row.From) + " on " + std::to_string(row.To)
                                 + (row.Right ? " right" : " left");
        EXPECT_EQ(g.Order(), row.Order) << what;
        EXPECT_EQ(g.S().LastRow, row.From) << what;
        if (std::string(row.Order) != "1 2 3 4 5") {
            const int at =
                static_cast<int>(std::string(row.Order).find(std::to_string(row.From))) / 2 + 1;
            EXPECT_EQ(g.Selected(), std::to_string(at)) << what;
            EXPECT_EQ(g.S().SelAnchor, at) << what;
        }
        EXPECT_EQ(g.F().imgThumbs[1].ToolTipText.Get(), std::string(g.List().Text(1))) << what;
    }
}

TEST(ThumbDrop, A_sorted_list_is_so_no_more)
{
    ThumbGround g(3);
    g.Show(3, 1);
    g.Rig.Click("ID_byName");
    EXPECT_TRUE(g.List().Sorted());
    g.List().SetAllSelected(false);
    g.Drag(1);
    g.DropOn(3, true);
    EXPECT_FALSE(g.List().Sorted());
    EXPECT_EQ(g.List().Column(0).Mark, SortMark::None);
}

TEST(ThumbDrop, All_rows_selected_stay_where_they_are)
{
    ThumbGround g(4);
    g.Show(4, 1);
    g.List().SetAllSelected(true);
    g.Drag(1);
    g.DropOn(4, true);
    EXPECT_EQ(g.Order(), "1 2 3 4");
    EXPECT_EQ(g.List().SelCount(), 4);
}

TEST(ThumbDrop, A_group_gathers_at_the_top_by_the_left_half_of_the_first_cell)
{
    ThumbGround g(6);
    g.Show(6, 1);
    for (const int row : {3, 5, 6})
        g.List().SetSelected(row, true);
    g.List().SetSelected(1, false);
    g.Drag(5);
    g.DropOn(1, false);
    EXPECT_EQ(g.Order(), "3 5 6 1 2 4");
    EXPECT_EQ(g.Selected(), "1 2 3");
}

TEST(ThumbDrop, Nothing_moves_while_a_long_operation_is_under_way)
{
    ThumbGround g(4);
    g.Show(4, 1);
    g.Drag(1);
    const LongOperation operation(g.P());
    g.DropOn(4, true);
    EXPECT_EQ(g.Order(), "1 2 3 4");
}

// -- The model: what a person expects of a drop. The group stands together
// where it was let go, and neither it nor the others change their order.

std::vector<int> Model(std::vector<int> rows, const std::vector<int>& selected, int from,
                       int target, bool right)
{
    const int count = static_cast<int>(rows.size());
    if (static_cast<int>(selected.size()) == count)
        return rows;
    const auto isSelected = [&](int name) {
        return std::ranges::find(selected, name) != selected.end();
    };
    if (selected.size() == 1) {
        const int name = rows[static_cast<std::size_t>(from - 1)];
        const int goal = rows[static_cast<std::size_t>(target - 1)];
        if (from == target)
            return rows;
        std::erase(rows, name);
        const auto at = std::ranges::find(rows, goal);
        rows.insert(right ? at + 1 : at, name);
        return rows;
    }
    // The place by the row that was pressed; rows up to there that are not
    // selected come first, unless the group lies wholly behind it.
    int place = target;
    if (!right && target > 1 && from < target)
        place = target - 1;
    if (right && from > target)
        place = target + 1;
    const auto end = rows.begin() + place;
    const int before = std::any_of(rows.begin(), end, isSelected) ? place : place - 1;
    std::vector<int> result;
    for (int i = 0; i < before; ++i)
        if (!isSelected(rows[static_cast<std::size_t>(i)]))
            result.push_back(rows[static_cast<std::size_t>(i)]);
    for (const int name : rows)
        if (isSelected(name))
            result.push_back(name);
    for (int i = before; i < count; ++i)
        if (!isSelected(rows[static_cast<std::size_t>(i)]))
            result.push_back(rows[static_cast<std::size_t>(i)]);
    return result;
}

std::vector<int> Numbers(ThumbGround& g)
{
    std::vector<int> numbers;
    for (int row = 1; row <= g.List().Count(); ++row)
        numbers.push_back(static_cast<int>(Val(g.List().Text(row).substr(1))));
    return numbers;
}

TEST(ThumbDrop, Does_what_the_model_says_over_random_lists)
{
    std::mt19937 random(20261122);
    const auto upTo = [&random](int most) {
        return static_cast<int>(random() % static_cast<unsigned>(most)) + 1;
    };
    for (int round = 0; round < 300; ++round) {
        const int rows = upTo(24);
        ThumbGround g(rows);
        g.Show(upTo(6), upTo(4));
        for (int drop = 0; drop < 60; ++drop) {
            g.F().vsbThumbs.Value = upTo(g.F().vsbThumbs.Max);
            g.List().SetAllSelected(false);
            // Many drops take one row, some a group, a few all.
            const int kind = upTo(3);
            for (int row = 1; row <= rows; ++row)
                if (kind > 1 && (kind == 3 ? upTo(3) == 1 : upTo(8) != 1))
                    g.List().SetSelected(row, true);
            const auto cellOf = [&] {
                int cell = upTo(g.S().Cells);
                while (Cell_Row(g.P(), cell) == 0)
                    cell = upTo(g.S().Cells);
                return cell;
            };
            const int fromCell = cellOf(), from = Cell_Row(g.P(), fromCell);
            g.Drag(fromCell); // selects it where it is not selected
            std::vector<int> before = Numbers(g), selected;
            for (const int row : g.List().SelectedRows())
                selected.push_back(before[static_cast<std::size_t>(row - 1)]);
            const int cell = cellOf(), target = Cell_Row(g.P(), cell);
            const bool right = upTo(2) == 1;
            g.DropOn(cell, right);
            ASSERT_EQ(Numbers(g), Model(before, selected, from, target, right))
                << "round " << round << " drop " << drop << ": " << selected.size() << " of "
                << rows << ", row " << from << " on " << target << (right ? " right" : " left");
            std::vector<int> still;
            for (const int row : g.List().SelectedRows())
                still.push_back(Numbers(g)[static_cast<std::size_t>(row - 1)]);
            ASSERT_EQ(still, selected) << "round " << round << " drop " << drop;
            ASSERT_EQ(g.S().LastRow, from);
        }
    }
}

// -- The side box.

void Park(ThumbGround& g, int cell)
{
    g.Drag(cell);
    g.F().PersonDragOver(&g.F().imgThumbsC, 10, 10);
    g.F().PersonDragDrop();
}

TEST(ThumbSide, Parks_the_picture_or_the_icon_of_the_row)
{
    ThumbGround g(4);
    g.Pictures(160, 80);
    g.Rig.Desktop.Pictures.erase("/p/a02.jpg");
    g.Show(4, 1);
    Thumb_Create(g.P(), true);
    FrmMain& f = g.F();
    for (const int cell : {1, 2, 3}) {
        Park(g, cell);
        EXPECT_EQ(f.imgThumbsC.ToolTipText.Get(), ThumbGround::Name(cell)) << cell;
        EXPECT_EQ(*f.imgThumbsC.PropertyText("Picture"), cell == 2 ? "icon P" : "80x40") << cell;
        EXPECT_EQ(f.imgThumbsC.Left + f.imgThumbsC.Width / 2,
                  f.shpThumbsSelC.Left + f.shpThumbsSelC.Width / 2)
            << cell;
        EXPECT_EQ(f.imgThumbsC.Top + f.imgThumbsC.Height / 2,
                  f.shpThumbsSelC.Top + f.shpThumbsSelC.Height / 2)
            << cell;
        EXPECT_TRUE(f.imgThumbsC.Visible) << cell;
    }
    EXPECT_EQ(g.Order(), "1 2 3 4");
    // Dropped on itself it stays, whatever row was pressed last.
    g.Press(1);
    f.imgThumbsC.Drag();
    f.PersonDragOver(&f.imgThumbsC, 10, 10);
    f.PersonDragDrop();
    EXPECT_EQ(f.imgThumbsC.ToolTipText.Get(), "a03.jpg");
}

TEST(ThumbSide, Its_picture_is_dropped_into_the_grid_alone)
{
    ThumbGround g(5);
    g.Show(5, 1);
    Park(g, 4);
    g.List().SetAllSelected(false);
    g.ClickCell(2);
    g.Press(3, shiftCtrl);
    const int last = g.S().LastRow;
    g.F().imgThumbsC.Drag();
    g.DropOn(1, false);
    EXPECT_EQ(g.Order(), "4 1 2 3 5");
    EXPECT_EQ(g.Selected(), "1 3 4");
    EXPECT_EQ(g.S().LastRow, last);
}

TEST(ThumbSide, A_name_that_is_gone_is_neither_dropped_nor_found)
{
    ThumbGround g(5);
    g.Show(2, 1);
    Park(g, 2);
    g.List().SetText(2, "renamed.jpg");
    g.F().vsbThumbs.Value = 3;
    const int last = g.S().LastRow;
    g.F().imgThumbsC.Drag();
    g.DropOn(1, true);
    EXPECT_EQ(g.List().Text(2), "renamed.jpg");
    EXPECT_EQ(g.S().LastRow, last);
    g.F().cmdThumbsFind.PersonClick();
    EXPECT_EQ(g.F().vsbThumbs.Value, 3);
}

TEST(ThumbSide, Find_scrolls_to_the_row)
{
    ThumbGround g(20);
    g.Show(3, 2);
    struct Row {
        int Parked, Top;
    };
    // Line 7 is the last one, and the last page begins with line 6.
    static constexpr Row rows[] = {{1, 1}, {3, 1}, {4, 2}, {9, 3}, {19, 6}, {20, 6}};
    EXPECT_EQ(g.F().vsbThumbs.Max, 6);
    for (const Row& row : rows) {
        g.F().vsbThumbs.Value = Line_Held(g.P(), Row_Line(g.P(), row.Parked));
        Park(g, row.Parked - (g.F().vsbThumbs.Value - 1) * 3);
        g.F().vsbThumbs.Value = row.Top == 1 ? 5 : 1;
        g.F().cmdThumbsFind.PersonClick();
        EXPECT_EQ(g.F().vsbThumbs.Value, row.Top) << row.Parked;
    }
}

TEST(ThumbSide, Find_with_nothing_parked_does_nothing)
{
    ThumbGround g(20);
    g.Show(3, 2);
    g.F().vsbThumbs.Value = 4;
    g.F().cmdThumbsFind.PersonClick();
    EXPECT_EQ(g.F().vsbThumbs.Value, 4);
}

} // namespace
} // namespace tavo
