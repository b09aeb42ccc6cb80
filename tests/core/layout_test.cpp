#include "core/layout.h"

#include "core/screens.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

// The frame takes nothing off and the status bar 300 twips, so that the client
// area is easy to reckon with.
class Layout : public testing::Test {
protected:
    Layout()
    {
        program.main.stbMain.Height = 300;
        for (const char* file : {"/d/a.txt", "/d/b.txt"})
            rig.Disk.AddFile(file);
        program.Start();
        program.main.lsvSelMain.PersonSelectAll();
        Size(9000, 8300);
    }

    void Size(double width, double height) { program.main.PersonResize(width, height); }
    void ToRename(int mode)
    {
        program.main.atbMain.PersonClick(*program.main.atbMain.Find("ID_CreateList"));
        Mode_Set(program, mode);
    }

    ProgramRig rig{MemoryDisk::Flavour::Posix};
    Program program{rig.Disk, rig.Profile, rig.Desktop, StartInfo{"/app", "/d/"}};
    FrmMain& main = program.main;
};

std::string Rect(const Control& control)
{
    const auto text = [](double value) { return std::to_string(static_cast<int>(value)); };
    return text(control.Left) + " " + text(control.Top) + " " + text(control.Width) + " "
           + text(control.Height);
}

TEST_F(Layout, The_client_area_is_the_window_less_the_status_bar)
{
    EXPECT_EQ(program.state.ClientW, 9000);
    EXPECT_EQ(program.state.ClientH, 8000);
    EXPECT_EQ(program.state.MinHeight, 5250 - 300);
}

TEST_F(Layout, A_window_below_the_minimum_keeps_the_minimum_layout)
{
    Size(3000, 2000);
    EXPECT_EQ(program.state.ClientW, 6732);
    EXPECT_EQ(program.state.ClientH, 4950);
    EXPECT_EQ(Rect(main.fraSelect), "0 0 6732 4950");
}

TEST_F(Layout, The_selection_fills_the_client_area)
{
    EXPECT_EQ(Rect(main.fraSelect), "0 0 9000 8000");
    EXPECT_EQ(Rect(main.ftvSelMain), "0 0 3600 8000");
    EXPECT_EQ(Rect(main.lblSelDBX), "3600 0 50 8000");
    EXPECT_EQ(Rect(main.lsvSelMain), "3650 0 5350 8000");
    EXPECT_FALSE(main.picSelPreview.Visible);
    EXPECT_FALSE(main.lblSelDBY.Visible);
}

TEST_F(Layout, With_the_preview_the_tree_shares_its_column)
{
    main.lblSelDBY.Top = 5000;
    program.state.SelPreview = 1;
    Main_Layout(program);
    EXPECT_EQ(Rect(main.ftvSelMain), "0 0 3600 5000");
    EXPECT_EQ(Rect(main.lblSelDBY), "0 5000 3600 50");
    EXPECT_EQ(Rect(main.picSelPreview), "0 5050 3600 2950");
    EXPECT_TRUE(main.picSelPreview.Visible);
    EXPECT_TRUE(main.lblSelDBY.Visible);
}

TEST_F(Layout, The_split_bars_are_held_to_their_limits)
{
    program.state.SelPreview = 1;
    main.lblSelDBX.Left = 8900;
    main.lblSelDBY.Top = 7900;
    Main_Layout(program);
    EXPECT_EQ(main.lblSelDBX.Left, 9000 - 1290);
    EXPECT_EQ(main.lblSelDBY.Top, 8000 - 1000);
    Size(7000, 6300);
    EXPECT_EQ(main.lblSelDBX.Left, 7000 - 1290);
    EXPECT_EQ(main.lblSelDBY.Top, 6000 - 1000);
}

TEST_F(Layout, The_list_lies_under_the_panel_and_over_its_edges)
{
    ToRename(modeNameNumber);
    const Frame& panel = main.ctlRbRenMode[modeNameNumber];
    const int height = static_cast<int>(panel.Height);
    EXPECT_EQ(Rect(panel), "0 0 9000 " + std::to_string(height));
    EXPECT_EQ(Rect(main.lsvRename),
              "-30 " + std::to_string(height - 30) + " 9060 " + std::to_string(8000 - height + 60));
}

TEST_F(Layout, The_height_of_the_panel_is_that_of_its_mode)
{
    ToRename(modeNameNumber);
    for (int mode = 0; mode <= 7; ++mode) {
        Mode_Set(program, mode);
        const double height = main.ctlRbRenMode[mode].Height;
        EXPECT_GT(height, 0) << mode;
        EXPECT_EQ(main.lsvRename.Top, height - 30) << mode;
    }
    // A host that needs more room says so.
    main.ctlRbRenMode[modeCase].Height = 2222;
    Mode_Set(program, modeCase);
    EXPECT_EQ(main.lsvRename.Top, 2222 - 30);
}

TEST_F(Layout, Frames_stand_in_the_middle_of_their_panels)
{
    ToRename(modeNameNumber);
    struct Row {
        int Mode;
        const Frame& Control;
    };
    for (const Row& row : {Row{modeAttributes, main.fraAttribCtr}, Row{modeCase, main.fraCaseCtr},
                           Row{modeDateTime, main.fraDTCtr}}) {
        Mode_Set(program, row.Mode);
        EXPECT_EQ(row.Control.Left, (9000 - row.Control.Width) / 2) << row.Mode;
    }
}

TEST_F(Layout, Boxes_stretch_with_the_panel_and_leave_a_margin)
{
    ToRename(modeNameNumber);
    const auto right = [](const Control& c) { return c.Left + c.Width; };
    for (const double width : {9000.0, 12000.0, 7000.0}) {
        Size(width, 8300);
        EXPECT_EQ(right(main.fraNNCtr), width - 120);
        EXPECT_EQ(right(main.txtNameNum[nnName]), width - 120);
        EXPECT_EQ(right(main.txtNameNum[nnExt]), width - 120);
        EXPECT_EQ(right(main.txtSearchReplace), width - 120);
        for (const auto& option : main.optSearchMode)
            EXPECT_EQ(right(*option), width - 240);
        EXPECT_EQ(right(main.cmdmcdPath), width - 120);
        EXPECT_LT(right(main.txtmcdPath), main.cmdmcdPath.Left);
        for (const auto& box : main.txtMP3)
            EXPECT_EQ(right(*box), main.fraMP3.Width - 60);
        EXPECT_EQ(right(main.cboMP3Genre), main.fraMP3.Width - 60);
    }
}

TEST_F(Layout, The_action_panel_keeps_its_controls_in_the_middle)
{
    ToRename(modeNameNumber);
    Screen_Show(program, screenAction, false);
    const double top = main.ctlRbRenMode[modeNameNumber].Height;
    EXPECT_EQ(Rect(main.picAction), "0 " + std::to_string(static_cast<int>(top)) + " 9000 "
                                        + std::to_string(static_cast<int>(8000 - top)));
    const Frame& controls = main.fraActControls;
    EXPECT_EQ(controls.Left, (9000 - controls.Width) / 2);
    EXPECT_EQ(controls.Top, (8000 - top - controls.Height) / 2);
}

TEST_F(Layout, The_thumbnails_are_laid_out_once_after_a_burst_of_resizes)
{
    ToRename(modeNameNumber);
    program.state.RenCount = 1;
    EXPECT_FALSE(main.tmrRedrawThumbs.Enabled);
    Screen_Show(program, screenThumbnails, false);
    for (const double width : {9100.0, 9200.0, 9300.0})
        Size(width, 8300);
    EXPECT_EQ(program.state.Columns, 0);
    EXPECT_TRUE(main.tmrRedrawThumbs.Enabled);
    EXPECT_EQ(main.tmrRedrawThumbs.Interval, 100);
    main.tmrRedrawThumbs.Tick();
    EXPECT_GT(program.state.Columns, 0);
    EXPECT_FALSE(main.tmrRedrawThumbs.Enabled);
    const double top = main.ctlRbRenMode[modeNameNumber].Height;
    EXPECT_EQ(main.picThumbnails.Top, top);
    EXPECT_EQ(main.picThumbnails.Width, 9300);
}

TEST_F(Layout, The_grid_lies_between_side_column_strips_and_scroll_bar)
{
    ToRename(modeNameNumber);
    Screen_Show(program, screenThumbnails, false);
    Size(9300, 8300);
    const PictureBox &page = main.picThumbnails, &grid = main.picThumbs;
    EXPECT_EQ(grid.Left, main.shpThumbsSelC.Left + main.shpThumbsSelC.Width + 120);
    EXPECT_EQ(main.vsbThumbs.Left, grid.Left + grid.Width);
    EXPECT_EQ(main.vsbThumbs.Left + main.vsbThumbs.Width, page.Width);
    EXPECT_EQ(main.vsbThumbs.Height, page.Height);
    EXPECT_EQ(main.lblThumbsSD.Top, 0);
    EXPECT_EQ(main.lblThumbsSD.Height, 240);
    EXPECT_EQ(grid.Top, 240);
    EXPECT_EQ(main.lblThumbsSU.Top, grid.Top + grid.Height);
    EXPECT_EQ(main.lblThumbsSU.Top + main.lblThumbsSU.Height, page.Height);
    for (const Label* strip : {&main.lblThumbsSD, &main.lblThumbsSU}) {
        EXPECT_EQ(strip->Left, grid.Left);
        EXPECT_EQ(strip->Width, grid.Width);
    }
}

TEST_F(Layout, Nothing_moves_while_resizing_is_off)
{
    program.state.ResizeOn = false;
    Size(11000, 8300);
    EXPECT_EQ(program.state.ClientW, 9000);
    Main_Layout(program);
    EXPECT_EQ(main.fraSelect.Width, 9000);
    program.state.ResizeOn = true;
    Form_Resize(program);
    EXPECT_EQ(main.fraSelect.Width, 11000);
}

TEST_F(Layout, The_address_box_takes_the_width_of_its_band)
{
    const double before = main.atbMain.Find("ID_sAddress")->Width;
    Size(10000, 8300);
    EXPECT_EQ(main.atbMain.Find("ID_sAddress")->Width, before + 1000);
}

} // namespace
} // namespace tavo
