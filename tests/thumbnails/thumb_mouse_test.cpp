#include "thumb_ground.h"

namespace tavo {
namespace {

TEST(ThumbMouse, A_press_picks_rows_by_the_keys_that_are_held)
{
    struct Press {
        int Cell, Shift;
        const char* Selected;
        int Anchor;
    };
    static constexpr Press presses[] = {
        {3, shiftNone, "3", 3},
        {5, shiftCtrl, "3 5", 5},
        {5, shiftCtrl, "3", 5},
        {8, shiftShift, "5 6 7 8", 5},
        {2, shiftShift, "2 3 4 5", 2}, // the low end is the fixed one from here on
        {7, shiftShift, "2 3 4 5 6 7", 2},
        {4, shiftNone, "2 3 4 5 6 7", 4}, // a selected row stays so: it may be dragged
        {9, shiftNone, "9", 9},
        {9, shiftShift, "9", 9},
        {6, shiftShift | shiftCtrl, "6", 6}, // neither one nor the other
    };
    ThumbGround g(9);
    g.Show(9, 1);
    for (const Press& press : presses) {
        g.Press(press.Cell, press.Shift);
        EXPECT_EQ(g.Selected(), press.Selected) << press.Cell << " with " << press.Shift;
        EXPECT_EQ(g.S().SelAnchor, press.Anchor) << press.Cell << " with " << press.Shift;
        EXPECT_EQ(g.S().LastRow, press.Cell);
        for (int cell = 1; cell <= 9; ++cell)
            EXPECT_EQ(g.F().shpThumbsSel[cell].BorderColor == -2147483635, g.List().Selected(cell))
                << cell << " after " << press.Cell;
    }
}

TEST(ThumbMouse, The_anchor_is_held_to_the_list)
{
    ThumbGround g(4);
    g.Show(4, 1);
    g.S().SelAnchor = 30;
    g.Press(3, shiftShift);
    EXPECT_EQ(g.Selected(), "3 4");
    EXPECT_EQ(g.S().SelAnchor, 3);
}

TEST(ThumbMouse, A_press_is_a_click_on_the_row)
{
    ThumbGround g(4);
    g.Show(4, 1);
    g.Press(3);
    EXPECT_EQ(g.S().CurRow, "3");
    EXPECT_EQ(g.F().stbMain.Panel(3), "Selected: 1");
    EXPECT_EQ(g.List().SelectedItem(), 3);
    g.Press(1, shiftCtrl);
    EXPECT_EQ(g.F().stbMain.Panel(3), "Selected: 2");
}

TEST(ThumbMouse, A_release_narrows_the_selection)
{
    ThumbGround g(5);
    g.Show(5, 1);
    g.Press(2);
    g.Press(4, shiftShift);
    g.Release(4, shiftShift);
    EXPECT_EQ(g.Selected(), "2 3 4");
    g.Press(3);
    EXPECT_EQ(g.Selected(), "2 3 4");
    g.Release(3);
    EXPECT_EQ(g.Selected(), "3");
    EXPECT_EQ(g.S().SelAnchor, 3);
    g.Press(5, shiftCtrl);
    g.Release(5, shiftCtrl);
    EXPECT_EQ(g.Selected(), "3 5");
}

TEST(ThumbMouse, The_cell_stands_for_the_row_that_is_scrolled_there)
{
    ThumbGround g(9);
    g.Show(2, 2);
    g.F().vsbThumbs.Value = 3;
    g.ClickCell(2);
    EXPECT_EQ(g.Selected(), "6");
    EXPECT_EQ(g.S().LastRow, 6);
}

TEST(ThumbMouse, A_press_on_a_page_that_the_bar_has_left_only_shows_the_right_one)
{
    ThumbGround g(9);
    g.Show(2, 2);
    g.F().vsbThumbs.PersonDrag(3);
    Thumb_Refresh(g.P()); // by a timer, while the thumb is held
    g.F().vsbThumbs.PersonScroll(1);
    const std::string selected = g.Selected();
    g.Press(2);
    EXPECT_EQ(g.Selected(), selected);
    EXPECT_EQ(g.F().imgThumbs[2].ToolTipText.Get(), "a02.jpg");
    g.Press(2);
    EXPECT_EQ(g.Selected(), "2");
}

TEST(ThumbMouse, The_background_takes_the_selection_away)
{
    ThumbGround g(4);
    g.Show(4, 1);
    g.Press(1);
    g.Press(3, shiftShift);
    g.F().picThumbs.PersonClick();
    EXPECT_EQ(g.Selected(), "");
    for (int cell = 1; cell <= 4; ++cell)
        EXPECT_EQ(g.F().shpThumbsSel[cell].BorderColor, -2147483633) << cell;
}

TEST(ThumbMouse, The_right_button_brings_the_viewer_up_on_the_row)
{
    ThumbGround g(4);
    g.Pictures(10, 10);
    g.Show(2, 1);
    g.F().vsbThumbs.Value = 2;
    const std::string selected = g.Selected();
    g.Press(1, shiftNone, 2);
    Form* viewer = g.P().FindForm("frmViewer");
    ASSERT_NE(viewer, nullptr);
    EXPECT_TRUE(viewer->Visible());
    EXPECT_EQ(*viewer->Find("hsbCurImage")->PropertyText("Value"), "3");
    EXPECT_EQ(g.Selected(), selected);
    g.Press(2, shiftNone, 4); // any other button does nothing
    EXPECT_EQ(*viewer->Find("hsbCurImage")->PropertyText("Value"), "3");
}

TEST(ThumbMouse, A_drag_begins_beyond_60_twips)
{
    struct Row {
        double X, Y;
        int Button;
        bool Drags;
    };
    static constexpr Row rows[] = {
        {300, 300, 1, false}, {360, 300, 1, false}, {361, 300, 1, true},
        {300, 360, 1, false}, {300, 361, 1, true},  {239, 300, 1, true},
        {240, 240, 1, false}, {900, 900, 0, false}, {900, 900, 2, false},
    };
    for (const Row& row : rows) {
        ThumbGround g(2);
        g.Show(2, 1);
        g.Press(1);
        g.F().imgThumbs[1].MouseMove({row.Button, shiftNone, row.X, row.Y});
        EXPECT_EQ(g.F().DragSource() == &g.F().imgThumbs[1], row.Drags)
            << row.X << "," << row.Y << " button " << row.Button;
    }
}

TEST(ThumbMouse, A_move_without_a_press_drags_nothing)
{
    ThumbGround g(2);
    g.Show(2, 1);
    g.DragPressed(1);
    EXPECT_EQ(g.F().DragSource(), nullptr);
}

TEST(ThumbKeys, Return_renames_the_one_that_is_selected)
{
    ThumbGround g(2, "[Settings]\nRetRename=1\n");
    g.Show(2, 1);
    g.ClickCell(2);
    g.Rig.Box(nnName, "new");
    g.Rig.Box(nnExt, "<OE>");
    g.Rig.Desktop.Answer(BoxAnswer::Ok);
    Key key;
    key.Code = keyReturn;
    g.F().PersonKey(nullptr, key);
    EXPECT_EQ(g.List().Text(2), "new.jpg");
    EXPECT_EQ(g.List().Text(1), "a01.jpg");
}

} // namespace
} // namespace tavo
