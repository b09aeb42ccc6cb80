#include "viewer/frm_viewer.h"

#include "controls/frm_color.h"
#include "support/viewer_rig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

const std::vector<ViewedFile> threeFiles = {{"a.jpg", 300, 200}, {"b.txt"}, {"c.jpg", 100, 50}};

constexpr auto windowColour = static_cast<std::int32_t>(0x80000005);

// -- The window's controls and the list

TEST(ViewerSync, With_an_empty_list_nothing_is_shown_and_nothing_can_be_done)
{
    ViewerRig rig({});
    FrmViewer& v = rig.P().Viewer();
    Viewer_Open(rig.P(), 0);
    v.PersonActivate(true);
    for (const auto* id : {"ID_ShowPlayF", "ID_ShowPlayR", "ID_ShowStop", "ID_SizeWindow",
                           "ID_Seconds", "ID_ImgPrev", "ID_ImgNext"})
        EXPECT_FALSE(rig.Tool_Of(id)->Enabled) << id;
    for (const auto* id : {"ID_Enlarge", "ID_Shrink", "ID_BackColor", "ID_ShowTavo", "ID_Exit"})
        EXPECT_TRUE(rig.Tool_Of(id)->Enabled) << id;
    for (const ScrollBar* bar : {&v.hsbCurImage, &v.hsbImage, &v.vsbImage})
        EXPECT_FALSE(bar->Enabled) << bar->Name();
    EXPECT_EQ(rig.Image(), "nothing");
    EXPECT_EQ(rig.Panels(), "|");
    EXPECT_TRUE(rig.Wishes().empty());
}

TEST(ViewerSync, With_one_row_there_is_nowhere_to_go)
{
    ViewerRig rig({{"a.jpg", 300, 200}});
    FrmViewer& v = rig.Open();
    for (const auto* id :
         {"ID_ShowPlayF", "ID_ShowPlayR", "ID_ShowStop", "ID_Seconds", "ID_ImgPrev", "ID_ImgNext"})
        EXPECT_FALSE(rig.Tool_Of(id)->Enabled) << id;
    EXPECT_TRUE(rig.Tool_Of("ID_SizeWindow")->Enabled);
    EXPECT_FALSE(v.hsbCurImage.Enabled);
    EXPECT_EQ(v.hsbCurImage.Min, 1);
    EXPECT_EQ(v.hsbCurImage.Max, 1);
}

TEST(ViewerSync, With_one_row_the_window_is_sized_only_while_nothing_scales)
{
    for (const bool enlarge : {false, true})
        for (const bool shrink : {false, true}) {
            ViewerRig rig({{"a.jpg", 300, 200}});
            rig.P().state.ViewEnlarge = enlarge;
            rig.P().state.ViewShrink = shrink;
            rig.Open();
            EXPECT_EQ(rig.Tool_Of("ID_SizeWindow")->Enabled, !enlarge && !shrink);
        }
}

TEST(ViewerSync, With_several_rows_all_is_on)
{
    ViewerRig rig(threeFiles);
    rig.P().state.ViewShrink = true;
    FrmViewer& v = rig.Open();
    for (const auto* id : {"ID_ShowPlayF", "ID_ShowPlayR", "ID_ShowStop", "ID_SizeWindow",
                           "ID_Seconds", "ID_ImgPrev", "ID_ImgNext"})
        EXPECT_TRUE(rig.Tool_Of(id)->Enabled) << id;
    EXPECT_TRUE(v.hsbCurImage.Enabled);
    EXPECT_EQ(v.hsbCurImage.Min, 1);
    EXPECT_EQ(v.hsbCurImage.Max, 3);
}

TEST(ViewerSync, The_preview_is_as_large_as_a_thumbnail_and_the_margin)
{
    ViewerRig rig(threeFiles);
    rig.P().state.ThumbLook.Width = 120;
    rig.P().state.ThumbLook.Height = 70;
    rig.P().state.ThumbLook.Margin = 6;
    rig.Open();
    EXPECT_EQ(rig.V().cmdThumb.Width, 126);
    EXPECT_EQ(rig.V().cmdThumb.Height, 76);
}

TEST(ViewerSync, Coming_back_it_shows_the_list_as_it_is_now)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open(3);
    v.PersonActivate(false);
    rig.List().Remove(1);
    rig.P().state.RenCount = rig.List().Count();
    rig.Wishes();
    v.PersonActivate(true);
    EXPECT_EQ(v.hsbCurImage.Max, 2);
    EXPECT_EQ(v.hsbCurImage.Value, 2);
    EXPECT_EQ(rig.Panels(), "Image: 2 of 2|c.jpg");
}

TEST(ViewerSync, A_row_that_stands_in_the_view_already_is_not_read_again)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open(1);
    rig.Wishes();
    v.PersonActivate(false);
    v.PersonActivate(true);
    EXPECT_TRUE(rig.Wishes().empty());
    v.PersonActivate(false);
    rig.Cell(1, "Name", "c.jpg");
    v.PersonActivate(true);
    EXPECT_EQ(rig.Wishes(), (Names{"c.jpg"})) << "a row of another name is";
}

TEST(ViewerSync, A_list_that_was_emptied_leaves_nothing)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open(3);
    rig.List().DeleteAllItems();
    rig.Wishes();
    v.hsbCurImage.PersonScroll(2);
    rig.Tool_Click("ID_ImgNext");
    v.hsbCurImage.PersonDrag(3);
    rig.P().state.RenCount = 0;
    v.PersonActivate(false);
    v.PersonActivate(true);
    EXPECT_EQ(rig.Image(), "nothing");
    EXPECT_FALSE(v.hsbCurImage.Enabled);
    EXPECT_TRUE(rig.Wishes().empty());
}

// -- Opening and closing

TEST(ViewerOpen, It_comes_up_in_the_middle_of_the_screen_and_not_modal)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open();
    EXPECT_TRUE(v.Visible());
    EXPECT_EQ(rig.Desktop.Forms.back().Name, "frmViewer");
    EXPECT_FALSE(rig.Desktop.Forms.back().Modal);
    EXPECT_EQ(v.Left(), (rig.Desktop.ScreenWidth() - v.Width()) / 2);
    EXPECT_EQ(v.Top(), (rig.Desktop.ScreenHeight() - v.Height()) / 2);
}

TEST(ViewerOpen, Its_colour_is_that_of_the_settings_from_the_start)
{
    ViewerRig rig(threeFiles, "[Defaults]\nColViewWin=255\ntbvTextLabels=0\n");
    FrmViewer& v = rig.Open();
    EXPECT_EQ(v.picViewWin.BackColor, 255);
    EXPECT_FALSE(rig.Tool_Of("ID_tbTextLabels")->Checked);
    EXPECT_EQ(rig.Tool_Of("ID_ImgNext")->Style, ToolStyle::Picture);
}

TEST(ViewerOpen, Once_in_sight_the_tool_brings_it_forward_as_it_is)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open(2);
    v.SetState(WindowState::Minimised);
    rig.Wishes();
    rig.List().PersonSelect({3}, 3);
    const auto shown = rig.Desktop.Forms.size();
    rig.Click("ID_Viewer");
    EXPECT_EQ(rig.Desktop.Forms.size(), shown + 1);
    EXPECT_EQ(v.State(), WindowState::Normal);
    EXPECT_EQ(v.hsbCurImage.Value, 2);
    EXPECT_TRUE(rig.Wishes().empty());
    v.SetState(WindowState::Maximised);
    rig.Click("ID_Viewer");
    EXPECT_EQ(v.State(), WindowState::Maximised);
}

TEST(ViewerOpen, Closed_it_hides_and_opens_again_on_the_row_of_then_with_its_flags)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open(1);
    rig.Tool_Click("ID_Shrink");
    v.Move(300, 450, 7500, 6000);
    v.PersonClose();
    EXPECT_FALSE(v.Visible());
    EXPECT_TRUE(v.Loaded());
    EXPECT_EQ(rig.P().ViewerInSight(), nullptr);
    EXPECT_EQ(v.imgOriginal.PropertyText("Picture"), "none");
    rig.Wishes();
    rig.Open(3);
    EXPECT_EQ(rig.Wishes(), (Names{"c.jpg"}));
    EXPECT_TRUE(rig.P().state.ViewShrink);
    EXPECT_TRUE(rig.Tool_Of("ID_Shrink")->Checked);
    EXPECT_EQ(v.Left(), 300);
}

TEST(ViewerOpen, Its_own_exit_hides_it_too)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open();
    rig.Tool_Click("ID_ShowPlayF");
    rig.Tool_Click("ID_Exit");
    EXPECT_FALSE(v.Visible());
    EXPECT_FALSE(v.tmrAutoShow.Enabled);
    EXPECT_TRUE(rig.Main().Loaded());
}

TEST(ViewerOpen, The_end_of_the_program_ends_it)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open();
    rig.Tool_Click("ID_ShowPlayF");
    rig.Main().Unload();
    EXPECT_FALSE(rig.P().state.MainAlive);
    EXPECT_FALSE(v.Loaded());
    EXPECT_FALSE(v.Visible());
    EXPECT_FALSE(v.tmrAutoShow.Enabled);
}

TEST(ViewerOpen, A_grid_may_open_it_on_any_row)
{
    ViewerRig rig(threeFiles);
    Viewer_Open(rig.P(), 3);
    EXPECT_EQ(rig.Wishes(), (Names{"c.jpg"}));
    Viewer_Open(rig.P(), 1);
    EXPECT_EQ(rig.Panels(), "Image: 1 of 3|a.jpg");
    Viewer_Open(rig.P(), 9);
    EXPECT_EQ(rig.Panels(), "Image: 1 of 3|a.jpg") << "a row that is none leaves it";
}

TEST(ViewerOpen, A_longer_list_is_followed_before_the_viewer_is_in_front)
{
    ViewerRig rig({{"a.jpg", 30, 20}});
    rig.Open();
    for (const char* name : {"x.jpg", "y.jpg", "z.jpg"})
        rig.List().AddRow(std::vector<std::string_view>{name}.data(), 1, "F");
    rig.P().state.RenCount = 4;
    rig.Wishes();
    Viewer_Open(rig.P(), 3);
    EXPECT_EQ(rig.Panels(), "Image: 3 of 4|y.jpg");
    EXPECT_EQ(rig.Wishes().size(), 1u);
}

// -- The list's rows lead it

TEST(ViewerUp, A_click_on_a_row_shows_it_while_the_tool_is_down)
{
    ViewerRig rig(threeFiles);
    rig.Open(1);
    rig.List().PersonSelect({2}, 2);
    EXPECT_EQ(rig.V().hsbCurImage.Value, 1) << "not down";
    rig.Click("ID_ViewerUp");
    EXPECT_EQ(rig.Panels(), "Image: 2 of 3|b.txt") << "at once";
    rig.List().PersonSelect({3}, 3);
    EXPECT_EQ(rig.Panels(), "Image: 3 of 3|c.jpg");
    rig.Click("ID_ViewerUp");
    rig.List().PersonSelect({1}, 1);
    EXPECT_EQ(rig.V().hsbCurImage.Value, 3) << "up again";
}

TEST(ViewerUp, A_viewer_out_of_sight_reads_nothing)
{
    ViewerRig rig(threeFiles);
    rig.Click("ID_ViewerUp");
    rig.List().PersonSelect({2}, 2);
    EXPECT_EQ(Viewer_Find(rig.P()), nullptr);
    rig.Open(1).PersonClose();
    rig.Wishes();
    rig.List().PersonSelect({3}, 3);
    EXPECT_TRUE(rig.Wishes().empty());
}

TEST(ViewerUp, It_reads_the_row_before_the_mode_takes_it)
{
    ViewerRig rig(threeFiles);
    rig.Click("ID_ViewerUp");
    rig.Open(1);
    Names order;
    const Connection taken = rig.P().RowTaken.Listen([&](int row) {
        order.push_back("taken " + std::to_string(row) + " " + rig.P().state.OldName);
    });
    const Connection shown = rig.P().RowShown.Listen([&](int row) {
        order.push_back("shown " + std::to_string(row) + " " + rig.P().state.OldName);
    });
    rig.List().PersonSelect({3}, 3);
    EXPECT_EQ(order, (Names{"taken 3 a", "shown 3 c"}));
}

TEST(ViewerUp, A_new_list_brings_both_windows_to_the_front_in_turn)
{
    ViewerRig rig(threeFiles);
    rig.Click("ID_NewList");
    rig.MakeList();
    for (const auto& shown : rig.Desktop.Forms)
        EXPECT_NE(shown.Name, "frmViewer") << "it is not in sight";
    rig.Open(3);
    rig.Click("ID_NewList");
    rig.Desktop.Forms.clear();
    rig.MakeList();
    ASSERT_EQ(rig.Desktop.Forms.size(), 2u);
    EXPECT_EQ(rig.Desktop.Forms[0].Name, "frmViewer");
    EXPECT_EQ(rig.Desktop.Forms[1].Name, "frmMain");
    EXPECT_FALSE(rig.Main().Frozen());
}

// -- The search

struct FindRow {
    const char* What;
    const char* Types; // a letter a row: P a picture, x another
    int Start;
    bool Forward;
    int Found;
};

constexpr FindRow findRows[] = {
    {"the next one", "PPP", 1, true, 2},
    {"the one before", "PPP", 2, false, 1},
    {"round the end", "PPP", 3, true, 1},
    {"round the front", "PPP", 1, false, 3},
    {"others are passed over", "PxxPx", 1, true, 4},
    {"backwards too", "PxxPx", 4, false, 1},
    {"round the end and on", "xPxPx", 4, true, 2},
    {"none but itself", "xPx", 2, true, 2},
    {"none at all", "xxx", 2, true, 2},
    {"none at all, backwards", "xxx", 1, false, 1},
    {"from one that is none", "xxP", 1, true, 3},
};

TEST(ViewerFind, It_goes_to_the_next_picture_round_the_list)
{
    for (const FindRow& row : findRows) {
        std::vector<ViewedFile> files;
        for (std::size_t i = 0; row.Types[i]; ++i)
            files.push_back({std::to_string(i) + (row.Types[i] == 'P' ? ".jpg" : ".txt"), 10, 10});
        ViewerRig rig(files);
        rig.Open(row.Start);
        rig.Tool_Click(row.Forward ? "ID_ImgNext" : "ID_ImgPrev");
        EXPECT_EQ(rig.V().hsbCurImage.Value, row.Found) << row.What;
    }
}

TEST(ViewerFind, Eight_types_count_as_pictures_in_any_case_whatever_the_setting_for_gifs)
{
    struct Row {
        const char* Type;
        bool Counts;
    };
    static constexpr Row rows[] = {{"jpeg", true}, {"jpg", true},  {"gif", true},  {"bmp", true},
                                   {"wmf", true},  {"emf", true},  {"ico", true},  {"cur", true},
                                   {"JPG", true},  {"jpe", false}, {"png", false}, {"", false},
                                   {"jpg ", false}};
    for (const Row& row : rows) {
        ViewerRig rig({{"a.txt"}, {"b.txt"}});
        rig.Open(1);
        rig.Cell(2, "Type", row.Type);
        Viewer_Image_Find(rig.P(), true);
        EXPECT_EQ(rig.V().hsbCurImage.Value, row.Counts ? 2 : 1) << row.Type;
    }
}

// -- Scaling, and the window at the picture's size

TEST(ViewerTools, Enlarge_and_shrink_are_mirrored_by_their_flags)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    rig.Size_View(400, 300);
    const SharedState& s = rig.P().state;
    Tool& size = *rig.Tool_Of("ID_SizeWindow");
    rig.Tool_Click("ID_Enlarge");
    EXPECT_TRUE(s.ViewEnlarge);
    EXPECT_FALSE(size.Enabled);
    EXPECT_EQ(rig.Image(), "0,17 400x266");
    rig.Tool_Click("ID_Shrink");
    EXPECT_TRUE(s.ViewShrink);
    rig.Tool_Click("ID_Enlarge");
    EXPECT_FALSE(s.ViewEnlarge);
    EXPECT_FALSE(size.Enabled) << "the other one is still down";
    EXPECT_EQ(rig.Image(), "50,50 300x200");
    rig.Tool_Click("ID_Shrink");
    EXPECT_TRUE(size.Enabled);
}

TEST(ViewerTools, The_window_becomes_as_large_as_the_picture_needs)
{
    for (const auto& file : {ViewedFile{"a.jpg", 300, 200}, {"a.jpg", 1200, 700}}) {
        ViewerRig rig({file});
        FrmViewer& v = rig.Open();
        v.Move(0, 0, 9610, 7207); // not whole pixels
        rig.Tool_Click("ID_SizeWindow");
        EXPECT_EQ(v.picViewWin.ScaleWidth(), file.Width);
        EXPECT_EQ(v.picViewWin.ScaleHeight(), file.Height);
        EXPECT_EQ(v.Left(), 0);
        EXPECT_FALSE(v.hsbImage.Enabled);
    }
}

TEST(ViewerTools, The_window_stops_at_the_end_of_the_screen_and_does_not_move)
{
    ViewerRig rig({{"a.jpg", 5000, 4000}});
    FrmViewer& v = rig.Open();
    v.Move(1500, 3000, 7500, 6000);
    rig.Tool_Click("ID_SizeWindow");
    EXPECT_EQ(v.Left(), 1500);
    EXPECT_EQ(v.Top(), 3000);
    EXPECT_EQ(v.Width(), rig.Desktop.ScreenWidth() - 1500);
    EXPECT_EQ(v.Height(), rig.Desktop.ScreenHeight() - 3000);
    v.Move(rig.Desktop.ScreenWidth() + 15, 3000, 7500, 6000);
    rig.Tool_Click("ID_SizeWindow");
    EXPECT_EQ(v.Width(), 7500) << "beside the screen there is no room at all";
}

TEST(ViewerTools, The_window_is_sized_in_the_normal_state_only)
{
    for (const auto state : {WindowState::Minimised, WindowState::Maximised}) {
        ViewerRig rig({{"a.jpg", 300, 200}});
        FrmViewer& v = rig.Open();
        const double width = v.Width();
        v.SetState(state);
        rig.Tool_Click("ID_SizeWindow");
        EXPECT_EQ(v.Width(), width);
    }
}

// -- The colour

TEST(ViewerColor, The_chosen_colour_is_that_of_the_view_and_of_the_settings)
{
    ViewerRig rig(threeFiles, "[Defaults]\nColViewWin=255\n");
    FrmViewer& v = rig.Open();
    SharedState& s = rig.P().state;
    s.ColorCustom = true;
    rig.Desktop.OnModal([&](Form& form) {
        EXPECT_EQ(form.Name(), "frmColor");
        EXPECT_EQ(s.ColorCurrent, 255);
        EXPECT_EQ(s.ColorDefault, windowColour);
        EXPECT_FALSE(s.ColorCustom);
        EXPECT_EQ(form.Left() + form.Width() / 2, v.Left() + v.Width() / 2);
        EXPECT_EQ(form.Top() + form.Height(), v.Top() + v.Height());
        rig.P().Color().picColorSys[1].PersonClick();
    });
    rig.Tool_Click("ID_BackColor");
    EXPECT_EQ(s.ColViewWin, 0xC0C0FF);
    EXPECT_EQ(v.picViewWin.BackColor, 0xC0C0FF);
}

TEST(ViewerColor, A_cancel_leaves_it)
{
    ViewerRig rig(threeFiles, "[Defaults]\nColViewWin=255\n");
    rig.Open();
    rig.Desktop.OnModal([&](Form& form) { form.PersonClose(); });
    rig.Tool_Click("ID_BackColor");
    EXPECT_EQ(rig.P().state.ColViewWin, 255);
    EXPECT_EQ(rig.V().picViewWin.BackColor, 255);
}

TEST(ViewerColor, The_dialog_stays_on_the_screen)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open();
    v.Move(-9000, rig.Desktop.ScreenHeight() - 1500, 9600, 7200);
    rig.Desktop.OnModal([&](Form& form) {
        EXPECT_EQ(form.Left(), 0);
        EXPECT_EQ(form.Top() + form.Height(), rig.Desktop.ScreenHeight());
        form.PersonClose();
    });
    rig.Tool_Click("ID_BackColor");
}

// -- The other tools

TEST(ViewerTools, The_preview_button_answers_fast_users_to_the_letter)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open();
    v.hsbCurImage.PersonDrag(2);
    v.cmdThumb.PersonClick();
    ASSERT_EQ(rig.Desktop.Boxes.size(), 1u);
    const MessageBox& box = rig.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Text, "Error: 22067 ( User Fast like Cheetah! )\n"
                        "Exposed Programmer Flaw: ( Button used to Pretty Up Thumbnail! )\n"
                        "\n"
                        "No Errors were Harmed during the Making of this Message!");
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Icon, BoxIcon::Critical);
    EXPECT_EQ(box.Buttons, BoxButtons::Ok);
    EXPECT_TRUE(v.cmdThumb.Visible);
    EXPECT_EQ(rig.Panels(), "Image: 1 of 3|b.txt");
}

TEST(ViewerTools, Show_Tavo_brings_the_main_window_up)
{
    for (const auto state : {WindowState::Normal, WindowState::Minimised, WindowState::Maximised}) {
        ViewerRig rig(threeFiles);
        rig.Open();
        rig.Main().SetState(state);
        rig.Tool_Click("ID_ShowTavo");
        EXPECT_EQ(rig.Desktop.Forms.back().Name, "frmMain");
        EXPECT_EQ(rig.Main().State(),
                  state == WindowState::Minimised ? WindowState::Normal : state);
    }
}

TEST(ViewerTools, Text_labels_follow_their_tool)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    EXPECT_TRUE(rig.Tool_Of("ID_tbTextLabels")->Checked);
    EXPECT_EQ(rig.Tool_Of("ID_ImgNext")->Style, ToolStyle::PictureAndText);
    rig.Tool_Click("ID_tbTextLabels");
    EXPECT_EQ(rig.P().state.tbvTextLabels, 0);
    EXPECT_EQ(rig.Tool_Of("ID_ImgNext")->Style, ToolStyle::Picture);
    rig.Tool_Click("ID_tbTextLabels");
    EXPECT_EQ(rig.P().state.tbvTextLabels, 1);
    EXPECT_EQ(rig.Tool_Of("ID_ImgNext")->Style, ToolStyle::PictureAndText);
    EXPECT_EQ(rig.P().state.tbsTextLabels, 1) << "those of the main window have their own";
}

TEST(ViewerTools, Help_opens_the_pages)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    rig.Tool_Click("ID_HelpContents");
    ASSERT_EQ(rig.Desktop.Executions.size(), 1u);
    EXPECT_EQ(rig.Desktop.Executions[0].Address, "/app/help/index.htm");
}

TEST(ViewerTools, Show_Preview_stands_there_and_does_nothing)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    rig.Wishes();
    const std::string before = rig.Image() + rig.Panels();
    rig.Tool_Click("ID_ShowPreview");
    rig.V().hsbCurImage.PersonDrag(2);
    EXPECT_TRUE(rig.V().cmdThumb.Visible);
    rig.V().hsbCurImage.PersonDrag(1);
    EXPECT_EQ(rig.Image() + rig.Panels(), before);
}

struct ToolRow {
    const char *Id, *Caption, *Tip;
    ToolKind Kind;
};

constexpr ToolRow toolRows[] = {
    {"ID_Enlarge", "Enlarge", "Enlarge Small Images to Fit Display", ToolKind::Toggle},
    {"ID_Shrink", "Shrink", "Shrink Large Images to Fit Display", ToolKind::Toggle},
    {"ID_SizeWindow", "Size Window", "Size Window to Show Entire Image", ToolKind::Button},
    {"ID_Seconds", "Seconds", "Seconds to Delay", ToolKind::Edit},
    {"ID_BackColor", "Background Color", "Set Background Color", ToolKind::Button},
    {"ID_ImgNext", "Next Image", "Find Next Image", ToolKind::Button},
    {"ID_ImgPrev", "Previous Image", "Find Previous Image", ToolKind::Button},
    {"ID_ShowTavo", "Show Tavo", "Show Rename Window", ToolKind::Button},
    {"ID_ShowPlayF", "Play Forward", "Auto Show Next Image", ToolKind::Toggle},
    {"ID_ShowStop", "Stop", "Stop Auto Show", ToolKind::Button},
    {"ID_ShowPlayR", "Play Reverse", "Auto Show Previous Image", ToolKind::Toggle},
    {"ID_ShowPreview", "Show Preview", "Hide Thumbnail Preview during Scrolling", ToolKind::Button},
};

TEST(ViewerTools, Texts_read_to_the_letter_and_all_stand_on_the_bar)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    const auto& bar = rig.V().atbView.FindBand("Standard")->Tools();
    for (const ToolRow& row : toolRows) {
        Tool* tool = rig.Tool_Of(row.Id);
        ASSERT_NE(tool, nullptr) << row.Id;
        EXPECT_EQ(tool->Caption.Get(), row.Caption) << row.Id;
        EXPECT_EQ(tool->ToolTipText.Get(), row.Tip) << row.Id;
        EXPECT_EQ(tool->Kind(), row.Kind) << row.Id;
        EXPECT_EQ(std::ranges::count(bar, tool), 1) << row.Id;
    }
    EXPECT_EQ(rig.Tool_Of("ID_Seconds")->Description.Get(),
              "Time (Seconds) used for Picture Delay in Auto Show");
}

TEST(ViewerTools, Every_tool_is_in_reach)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    for (Tool* tool : rig.V().atbView.Tools()) {
        int places = 0;
        for (const auto& band : rig.V().atbView.Bands())
            places += static_cast<int>(std::ranges::count(band->Tools(), tool));
        EXPECT_GE(places, 1) << tool->Name();
        EXPECT_TRUE(tool->IsShown()) << tool->Name();
    }
}

} // namespace
} // namespace tavo
