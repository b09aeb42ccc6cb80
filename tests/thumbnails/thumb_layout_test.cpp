#include "thumb_ground.h"

namespace tavo {
namespace {

TEST(ThumbLayout, Columns_lines_and_the_end_of_the_bar)
{
    struct Row {
        int Rows, Columns, Lines, Cells, Max;
        bool Scrolls;
    };
    static constexpr Row rows[] = {
        {10, 3, 2, 6, 3, true},   {9, 3, 2, 6, 2, true},   {7, 3, 2, 6, 2, true},
        {6, 3, 2, 6, 1, false},   {5, 3, 2, 5, 1, false},  {1, 3, 2, 1, 1, false},
        {12, 3, 4, 12, 1, false}, {13, 3, 4, 12, 2, true}, {100, 1, 1, 1, 100, true},
        {99, 7, 3, 21, 13, true},
    };
    for (const Row& row : rows) {
        ThumbGround g(row.Rows);
        g.Show(row.Columns, row.Lines);
        const SharedState& s = g.S();
        const std::string what = std::to_string(row.Rows) + " in " + std::to_string(row.Columns)
                                 + "x" + std::to_string(row.Lines);
        EXPECT_EQ(s.Columns, row.Columns) << what;
        EXPECT_EQ(s.Rows, row.Lines) << what;
        EXPECT_EQ(s.Cells, row.Cells) << what;
        EXPECT_EQ(g.F().vsbThumbs.Min, 1) << what;
        EXPECT_EQ(g.F().vsbThumbs.Max, row.Max) << what;
        EXPECT_EQ(g.F().vsbThumbs.Enabled, row.Scrolls) << what;
        EXPECT_EQ(g.F().vsbThumbs.LargeChange, row.Scrolls ? row.Lines : 1) << what;
        EXPECT_EQ(g.F().imgThumbs.High(), row.Cells) << what;
        EXPECT_EQ(g.F().shpThumbsSel.High(), row.Cells) << what;
        EXPECT_EQ(g.F().lblThumbs.High(), row.Cells) << what;
    }
}

// The last page shows the last row, and not a line less than that.
TEST(ThumbLayout, At_the_bars_end_the_last_row_is_in_sight)
{
    for (int rows = 1; rows <= 40; ++rows) {
        ThumbGround g(rows);
        for (const int columns : {1, 2, 3, 5}) {
            g.Show(columns, 2);
            g.F().vsbThumbs.Value = g.F().vsbThumbs.Max.Get();
            const int first = (g.F().vsbThumbs.Value - 1) * columns + 1;
            EXPECT_LE(first, rows) << rows << " in " << columns;
            EXPECT_GE(first + 2 * columns - 1, rows) << rows << " in " << columns;
        }
    }
}

TEST(ThumbLayout, Cells_stand_in_lines_with_a_gap_of_6)
{
    ThumbGround g(7);
    g.Show(3, 3);
    const int stepX = 90 + 6, stepY = 90 + 6 + 17;
    for (int cell = 1; cell <= 7; ++cell) {
        const int column = (cell - 1) % 3, line = (cell - 1) / 3;
        const Shape& frame = g.F().shpThumbsSel[cell];
        EXPECT_EQ(frame.Left, 6 + column * stepX) << cell;
        EXPECT_EQ(frame.Top, 6 + line * stepY) << cell;
        EXPECT_EQ(frame.Width, 90) << cell;
        EXPECT_EQ(frame.Height, 90) << cell;
        const Label& caption = g.F().lblThumbs[cell];
        EXPECT_EQ(caption.Left, frame.Left) << cell;
        EXPECT_EQ(caption.Top, frame.Top + 90) << cell;
        EXPECT_EQ(caption.Width, 90) << cell;
        EXPECT_EQ(caption.Height, 252.0 / 15) << cell;
    }
}

TEST(ThumbLayout, A_window_narrower_than_a_cell_has_no_columns_and_still_a_line)
{
    ThumbGround g(5);
    g.Show(2, 2);
    g.F().picThumbs.Width = 15 * 40;
    g.F().picThumbs.Height = 15 * 40;
    Thumb_Layout(g.P());
    EXPECT_EQ(g.S().Columns, 0);
    EXPECT_EQ(g.S().Rows, 1);
    EXPECT_EQ(g.S().Cells, 0);
    EXPECT_EQ(g.F().imgThumbs.High(), 1);
    EXPECT_FALSE(g.F().imgThumbs[1].Visible) << "it would show a row that it does not stand for";
    EXPECT_EQ(g.F().vsbThumbs.Max, 1);
    EXPECT_FALSE(g.F().vsbThumbs.Enabled);
    g.Pictures(8, 8);
    Thumb_Create(g.P(), true);
    EXPECT_EQ(g.List().Tag(5), "5");
    g.Show(2, 2);
    EXPECT_EQ(g.F().imgThumbs.High(), 4);
}

TEST(ThumbLayout, Numbers_beyond_16_bits_leave_the_old_ones)
{
    ThumbGround g(5);
    g.Show(2, 2);
    g.F().picThumbs.Width = 15 * 96 * 40000.0;
    Thumb_Layout(g.P());
    EXPECT_EQ(g.S().Columns, 2);
    EXPECT_EQ(g.S().Cells, 4);
    // Cells without a step cannot be counted.
    g.Room(2, 2);
    g.S().ThumbLook.CellWidth = -6;
    Thumb_Layout(g.P());
    EXPECT_EQ(g.S().Columns, 2);
    // A picture smaller than nothing leaves no cell.
    g.S().ThumbLook.CellWidth = -60;
    Thumb_Layout(g.P());
    EXPECT_LT(g.S().Columns, 0);
    EXPECT_EQ(g.F().imgThumbs.High(), 1);
}

TEST(ThumbLayout, Rows_beyond_16_bits_are_not_shown)
{
    ThumbGround g(1);
    {
        const ListFreezeGuard freeze(g.List());
        for (int row = 2; row <= 33000; ++row)
            g.List().Add(std::to_string(row));
    }
    g.S().RenCount = g.List().Count();
    g.Show(1, 3);
    EXPECT_EQ(g.F().vsbThumbs.Max, 1); // the bar's end did not fit
    g.Show(10, 3);
    EXPECT_EQ(g.F().vsbThumbs.Max, 3298);
    g.F().vsbThumbs.Value = 3277; // its cells are 32761 to 32790
    EXPECT_EQ(g.F().imgThumbs[7].ToolTipText.Get(), "32767");
    EXPECT_TRUE(g.F().imgThumbs[7].Visible);
    EXPECT_FALSE(g.F().imgThumbs[8].Visible);
    EXPECT_FALSE(g.F().shpThumbsSel[8].Visible);
    const int last = g.S().LastRow;
    g.ClickCell(8);
    EXPECT_EQ(g.S().LastRow, last);
    g.ClickCell(7);
    EXPECT_EQ(g.S().LastRow, 32767);
}

TEST(ThumbLayout, In_the_list_view_nothing_is_done)
{
    ThumbGround g(5);
    g.F().tmrRedrawThumbs.Enabled = true;
    Thumb_Layout(g.P());
    EXPECT_FALSE(g.F().tmrRedrawThumbs.Enabled);
    EXPECT_EQ(g.S().Columns, 0);
    EXPECT_EQ(g.S().ThumbLook.Margin, 4);
    g.F().tmrRefreshThumbs.Enabled = true;
    Thumb_Refresh(g.P());
    EXPECT_FALSE(g.F().tmrRefreshThumbs.Enabled);
    EXPECT_FALSE(g.F().imgThumbs[1].Visible);
}

TEST(ThumbRefresh, Cells_show_name_picture_selection_and_caption)
{
    ThumbGround g(5);
    g.Pictures(160, 80);
    g.Show(2, 2);
    Thumb_Create(g.P(), true);
    g.List().SetTag(2, "");
    g.List().SetSelected(3, true);
    g.F().vsbThumbs.Value = 1;
    Thumb_Refresh(g.P());
    for (int cell = 1; cell <= 4; ++cell) {
        const ImageBox& image = g.F().imgThumbs[cell];
        const Shape& frame = g.F().shpThumbsSel[cell];
        EXPECT_EQ(image.ToolTipText.Get(), ThumbGround::Name(cell)) << cell;
        EXPECT_EQ(g.F().lblThumbs[cell].Caption.Get(), ThumbGround::Name(cell)) << cell;
        EXPECT_EQ(*image.PropertyText("Picture"), cell == 2 ? "icon P" : "80x40") << cell;
        EXPECT_EQ(image.Left, frame.Left + (90 - image.Width) / 2) << cell;
        EXPECT_EQ(image.Top, frame.Top + (90 - image.Height) / 2) << cell;
        const bool selected = cell == 1 || cell == 3;
        EXPECT_EQ(frame.BorderColor, selected ? -2147483635 : -2147483633) << cell;
        EXPECT_TRUE(image.Visible && frame.Visible && g.F().lblThumbs[cell].Visible) << cell;
    }
    EXPECT_EQ(g.F().imgThumbs[2].Width, 32);
}

TEST(ThumbRefresh, Cells_behind_the_end_are_hidden)
{
    ThumbGround g(5);
    g.Show(2, 2);
    g.F().vsbThumbs.Value = 2;
    EXPECT_EQ(g.F().imgThumbs[3].ToolTipText.Get(), "a05.jpg");
    EXPECT_TRUE(g.F().imgThumbs[3].Visible);
    EXPECT_FALSE(g.F().imgThumbs[4].Visible);
    EXPECT_FALSE(g.F().shpThumbsSel[4].Visible);
    EXPECT_FALSE(g.F().lblThumbs[4].Visible);
}

TEST(ThumbRefresh, A_list_that_goes_empty_hides_them_all)
{
    ThumbGround g(3);
    g.Show(3, 1);
    g.List().PersonSelectAll();
    g.Rig.Desktop.OnModal([](Form& form) { form.Find("cmdRemove", 1)->PersonClick(); });
    g.Rig.Desktop.Answer(BoxAnswer::Ok);
    g.Rig.Click("ID_SelDelete");
    g.F().cmdActDone.PersonClick();
    EXPECT_EQ(g.List().Count(), 0);
    for (int cell = 1; cell <= g.F().imgThumbs.High(); ++cell)
        EXPECT_FALSE(g.F().imgThumbs[cell].Visible) << cell;
}

TEST(ThumbRefresh, The_order_of_the_list_is_that_of_the_grid)
{
    ThumbGround g(4);
    g.Show(4, 1);
    g.F().atbMain.Find("ID_SelDistance")->Box->Text = "2";
    g.Rig.Click("ID_SelUp");
    EXPECT_EQ(g.Order(), "2 3 1 4");
    EXPECT_EQ(g.F().imgThumbs[3].ToolTipText.Get(), "a01.jpg");
    EXPECT_EQ(g.F().shpThumbsSel[3].BorderColor, -2147483635);
    g.Rig.Click("ID_byName");
    g.Rig.Click("ID_byName");
    EXPECT_EQ(g.F().imgThumbs[1].ToolTipText.Get(), std::string(g.List().Text(1)));
}

TEST(ThumbCaption, Flips_with_its_texts_and_the_height_of_a_line)
{
    ThumbGround g(4);
    g.Show(2, 2);
    Tool& tool = *g.F().atbMain.Find("ID_ThumbCaption");
    Tool& align = *g.F().atbMain.Find("ID_mnuCapAlign");
    EXPECT_EQ(tool.Caption.Get(), "&Hide Caption");
    g.Rig.Click("ID_ThumbCaption");
    EXPECT_EQ(tool.Caption.Get(), "Show &Caption");
    EXPECT_FALSE(align.Enabled);
    EXPECT_FALSE(g.S().ThumbLook.CaptionShown);
    EXPECT_FALSE(g.F().lblThumbs[1].Visible);
    EXPECT_EQ(g.F().shpThumbsSel[3].Top, 6 + 96);
    g.Rig.Click("ID_ThumbCaption");
    EXPECT_EQ(tool.Caption.Get(), "Hide &Caption");
    EXPECT_TRUE(align.Enabled);
    EXPECT_TRUE(g.F().lblThumbs[1].Visible);
    EXPECT_EQ(g.F().shpThumbsSel[3].Top, 6 + 96 + 17);
}

TEST(ThumbAlign, One_of_three_tools_is_pressed)
{
    ThumbGround g(2);
    g.Show(2, 1);
    const char* ids[] = {"ID_AlignLeft", "ID_AlignRight", "ID_AlignCenter"};
    for (const int wanted : {0, 1, 1, 2, 0}) {
        g.Rig.Click(ids[wanted]);
        EXPECT_EQ(g.S().ThumbLook.Align, wanted);
        EXPECT_EQ(g.F().lblThumbs[2].Alignment, wanted);
        for (int k = 0; k < 3; ++k)
            EXPECT_EQ(g.F().atbMain.Find(ids[k])->Checked, k == wanted) << wanted << ids[k];
    }
}

TEST(ThumbSide, The_column_follows_the_look)
{
    ThumbGround g(2);
    g.Show(2, 1);
    FrmMain& f = g.F();
    Thumb_Scheme_Apply(g.P(), "100,60,2");
    EXPECT_EQ(f.shpThumbsSelC.Width, 1350); // not by a scheme alone
    Thumb_Side_Fit(g.P());
    EXPECT_EQ(f.shpThumbsSelC.Width, 15 * (60 + 4 + 6));
    EXPECT_EQ(f.shpThumbsSelC.Height, 15 * (100 + 4 + 6));
    EXPECT_EQ(f.imgThumbsC.Left, f.shpThumbsSelC.Left + 120);
    EXPECT_EQ(f.imgThumbsC.Top, f.shpThumbsSelC.Top + 120);
    EXPECT_EQ(f.imgThumbsC.Width, f.shpThumbsSelC.Width - 240);
    EXPECT_EQ(f.imgThumbsC.Height, f.shpThumbsSelC.Height - 240);
    EXPECT_EQ(f.cmdThumbsFind.Left, f.shpThumbsSelC.Left);
    EXPECT_EQ(f.cmdThumbsFind.Top, f.shpThumbsSelC.Top + f.shpThumbsSelC.Height + 120);
    EXPECT_EQ(f.cmdThumbsFind.Width, f.shpThumbsSelC.Width);
    EXPECT_EQ(f.picThumbs.Left, f.shpThumbsSelC.Left + f.shpThumbsSelC.Width + 120);
}

} // namespace
} // namespace tavo
