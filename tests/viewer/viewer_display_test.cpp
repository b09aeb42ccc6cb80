#include "viewer/frm_viewer.h"

#include "support/viewer_rig.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

const std::vector<ViewedFile> threeFiles = {{"a.jpg", 300, 200}, {"b.jpg", 100, 50}, {"c.txt"}};

TEST(ViewerDisplay, A_picture_is_shown_in_its_natural_size_in_the_middle)
{
    ViewerRig rig({{"a.jpg", 300, 201}});
    rig.Open();
    rig.Size_View(401, 301);
    EXPECT_EQ(rig.Image(), "50.5,50 300x201");
    EXPECT_EQ(rig.Panels(), "Image: 1 of 1|a.jpg");
    EXPECT_EQ(rig.P().state.ImgWidth, 300);
    EXPECT_EQ(rig.P().state.ImgHeight, 201);
}

struct FitRow {
    const char* What;
    int Width, Height; // of the picture; the view has 400 x 300
    bool Enlarge, Shrink;
    const char* Image;
};

constexpr FitRow fitRows[] = {
    {"small, nothing on", 100, 50, false, false, "150,125 100x50"},
    {"small, only shrink on", 100, 50, false, true, "150,125 100x50"},
    {"small, enlarge: the width limits", 100, 50, true, false, "0,50 400x200"},
    {"small, enlarge: the height limits", 100, 90, true, false, "33.5,0 333x300"},
    {"small, both on", 100, 50, true, true, "0,50 400x200"},
    {"of the view's shape", 80, 60, true, false, "0,0 400x300"},
    {"exactly the view, nothing on", 400, 300, false, false, "0,0 400x300"},
    {"exactly the view is not big: enlarge keeps it", 400, 300, true, false, "0,0 400x300"},
    {"exactly the view is not big: shrink leaves it", 400, 300, false, true, "0,0 400x300"},
    {"one dot too wide, shrink", 401, 300, false, true, "0,0.5 400x299"},
    {"large, nothing on", 800, 900, false, false, "0,0 800x900"},
    {"large, only enlarge on", 800, 900, true, false, "0,0 800x900"},
    {"large, shrink: the height limits", 800, 900, false, true, "67,0 266x300"},
    {"large, shrink: the width limits", 4000, 1000, false, true, "0,100 400x100"},
    {"too high alone is big", 100, 600, false, true, "175,0 50x300"},
    {"too wide alone is big", 800, 100, false, true, "0,125 400x50"},
    {"the other side shrinks to nothing", 100000, 10, false, true, "0,150 400x0"},
};

TEST(ViewerDisplay, Pictures_are_scaled_when_big_to_shrink_and_when_not_to_enlarge)
{
    for (const FitRow& row : fitRows) {
        ViewerRig rig({{"a.jpg", row.Width, row.Height}});
        rig.Open();
        rig.Size_View(400, 300);
        rig.P().state.ViewEnlarge = row.Enlarge;
        rig.P().state.ViewShrink = row.Shrink;
        Viewer_Fit(rig.P());
        EXPECT_EQ(rig.Image(), row.Image) << row.What;
        const bool natural = rig.V().imgOriginal.Width.Get() == row.Width
                             && rig.V().imgOriginal.Height.Get() == row.Height;
        EXPECT_EQ(rig.V().imgOriginal.Stretch, !natural || (row.Enlarge && row.Width <= 400))
            << row.What;
    }
}

struct BarRow {
    const char* What;
    int Width, Height; // of the picture; the view has 400 x 300
    bool Across, Down;
    int Pointer;
    const char *AcrossBar, *DownBar; // min max large small
};

constexpr BarRow barRows[] = {
    {"fits", 400, 300, false, false, pointerDefault, "0 0 1 1", "0 0 1 1"},
    {"too wide", 1000, 300, true, false, pointerLeftRight, "0 600 400 20", "0 0 1 1"},
    {"too high", 400, 301, false, true, pointerUpDown, "0 0 1 1", "0 1 300 15"},
    {"both", 401, 1300, true, true, pointerAll, "0 1 400 20", "0 1000 300 15"},
};

std::string Bar_Text(const ScrollBar& bar)
{
    return std::to_string(bar.Min) + " " + std::to_string(bar.Max) + " "
           + std::to_string(bar.LargeChange) + " " + std::to_string(bar.SmallChange);
}

TEST(ViewerDisplay, The_pan_bars_reach_what_the_view_hides)
{
    for (const BarRow& row : barRows) {
        ViewerRig rig({});
        rig.P().Viewer().EnsureLoaded();
        rig.Size_View(400, 300);
        FrmViewer& v = rig.V();
        v.imgOriginal.Picture =
            PictureRef::OfBitmap(std::make_shared<Bitmap>(row.Width, row.Height));
        rig.P().state.ImgWidth = row.Width;
        rig.P().state.ImgHeight = row.Height;
        Viewer_Fit(rig.P());
        EXPECT_EQ(v.hsbImage.Enabled, row.Across) << row.What;
        EXPECT_EQ(v.vsbImage.Enabled, row.Down) << row.What;
        EXPECT_EQ(Bar_Text(v.hsbImage), row.AcrossBar) << row.What;
        EXPECT_EQ(Bar_Text(v.vsbImage), row.DownBar) << row.What;
        EXPECT_EQ(v.imgOriginal.MousePointer, row.Pointer) << row.What;
    }
}

TEST(ViewerDisplay, Steps_of_the_bars_are_rounded_half_to_even)
{
    struct Row {
        int View, Large, Small;
    };
    // 0.05 of the large step: 15.5 and 16.5 both lie half way.
    static constexpr Row rows[] = {{310, 310, 16}, {330, 330, 16}, {350, 350, 18}, {312, 312, 16}};
    for (const Row& row : rows) {
        ViewerRig rig({{"a.jpg", 3000, 10}});
        rig.Open();
        rig.Size_View(row.View, 300);
        EXPECT_EQ(rig.V().hsbImage.LargeChange, row.Large) << row.View;
        EXPECT_EQ(rig.V().hsbImage.SmallChange, row.Small) << row.View;
    }
}

TEST(ViewerDisplay, A_view_without_any_size_leaves_the_steps)
{
    ViewerRig rig({{"a.jpg", 3000, 2000}});
    rig.Open();
    rig.Size_View(400, 300);
    rig.V().PersonResize(60, 60);
    EXPECT_EQ(rig.V().picViewWin.ScaleWidth(), 0);
    EXPECT_EQ(rig.V().picViewWin.ScaleHeight(), 0);
    EXPECT_EQ(rig.V().hsbImage.Max, 3000);
    EXPECT_EQ(rig.V().vsbImage.Max, 2000);
    EXPECT_EQ(rig.V().hsbImage.LargeChange, 400);
    EXPECT_EQ(rig.V().vsbImage.LargeChange, 300);
    rig.P().state.ViewShrink = true;
    Viewer_Fit(rig.P());
    EXPECT_EQ(rig.Image(), "0,0 0x0");
}

TEST(ViewerDisplay, The_bars_move_the_picture_each_in_its_direction)
{
    ViewerRig rig({{"a.jpg", 1000, 900}});
    rig.Open();
    rig.Size_View(400, 300);
    rig.V().hsbImage.PersonScroll(250);
    EXPECT_EQ(rig.Image(), "-250,0 1000x900");
    rig.V().vsbImage.PersonDrag(70);
    EXPECT_EQ(rig.Image(), "-250,-70 1000x900");
    rig.V().vsbImage.PersonScroll(100000);
    EXPECT_EQ(rig.Image(), "-250,-600 1000x900");
}

TEST(ViewerDisplay, A_picture_that_is_only_too_high_stays_in_the_middle)
{
    ViewerRig rig({{"a.jpg", 100, 900}});
    rig.Open();
    rig.Size_View(400, 300);
    rig.V().vsbImage.PersonScroll(50);
    EXPECT_EQ(rig.Image(), "150,-50 100x900");
}

TEST(ViewerDisplay, The_bars_keep_their_places_from_picture_to_picture)
{
    ViewerRig rig({{"a.jpg", 1000, 900}, {"b.jpg", 500, 310}, {"c.jpg", 1000, 900}});
    rig.Open();
    rig.Size_View(400, 300);
    rig.V().hsbImage.PersonScroll(250);
    rig.V().vsbImage.PersonScroll(5);
    rig.V().hsbCurImage.PersonScroll(2);
    EXPECT_EQ(rig.Image(), "-100,-5 500x310");
    rig.V().hsbCurImage.PersonScroll(3);
    EXPECT_EQ(rig.Image(), "-100,-5 1000x900");
}

// -- Panning by mouse. Places are in twips from the picture's corner as it
// stands at that moment.

struct Step {
    double X, Y;
    const char* Image;
};

void Press(FrmViewer& v, double x, double y, int button = 1)
{
    v.imgOriginal.MouseDown({button, shiftNone, x, y});
}

void Move(FrmViewer& v, double x, double y, int button = 1)
{
    v.imgOriginal.MouseMove({button, shiftNone, x, y});
}

TEST(ViewerPan, The_picture_follows_the_hand)
{
    ViewerRig rig({{"a.jpg", 1000, 900}});
    FrmViewer& v = rig.Open();
    rig.Size_View(400, 300);
    Press(v, 3000, 3000);
    Move(v, 2850, 2925); // ten to the left, five up
    EXPECT_EQ(rig.Image(), "-10,-5 1000x900");
    Move(v, 3000, 3000); // the corner has followed: no move of the hand
    EXPECT_EQ(rig.Image(), "-10,-5 1000x900");
    Move(v, 3015, 3000);
    EXPECT_EQ(rig.Image(), "-9,-5 1000x900");
}

TEST(ViewerPan, Places_are_rounded_to_whole_pixels)
{
    ViewerRig rig({{"a.jpg", 1000, 900}});
    FrmViewer& v = rig.Open();
    rig.Size_View(400, 300);
    Press(v, 3007, 3008);
    EXPECT_EQ(rig.P().state.PanX, 200);
    EXPECT_EQ(rig.P().state.PanY, 201);
    Move(v, 2992.5, 3008); // 199.5 goes to the even 200
    EXPECT_EQ(rig.Image(), "0,0 1000x900");
    Move(v, 2977.5, 3008); // 198.5 to 198
    EXPECT_EQ(rig.Image(), "-2,0 1000x900");
}

TEST(ViewerPan, Behind_the_end_the_start_moves_along)
{
    ViewerRig rig({{"a.jpg", 1000, 900}});
    FrmViewer& v = rig.Open();
    rig.Size_View(400, 300);
    Press(v, 3000, 3000);
    Move(v, 3300, 3000); // 20 to the right, and the picture is at its end
    EXPECT_EQ(rig.Image(), "0,0 1000x900");
    EXPECT_EQ(rig.P().state.PanX, 220);
    Move(v, 3285, 3000); // one back: the picture goes at once
    EXPECT_EQ(rig.Image(), "-1,0 1000x900");
    Move(v, -15000, 3000); // far beyond the other end
    EXPECT_EQ(rig.Image(), "-600,0 1000x900");
    Move(v, (rig.P().state.PanX + 1) * 15, 3000);
    EXPECT_EQ(rig.Image(), "-599,0 1000x900");
}

TEST(ViewerPan, Only_bars_that_are_on_move)
{
    ViewerRig rig({{"a.jpg", 1000, 200}});
    FrmViewer& v = rig.Open();
    rig.Size_View(400, 300);
    Press(v, 1500, 1500);
    Move(v, 1350, 1350);
    EXPECT_EQ(rig.Image(), "-10,50 1000x200");
}

TEST(ViewerPan, Nothing_pans_without_the_left_button)
{
    ViewerRig rig({{"a.jpg", 1000, 900}});
    FrmViewer& v = rig.Open();
    rig.Size_View(400, 300);
    Move(v, 1500, 1500);
    EXPECT_EQ(rig.Image(), "0,0 1000x900") << "not pressed at all";
    Press(v, 3000, 3000, 2);
    Move(v, 1500, 1500, 2);
    EXPECT_EQ(rig.Image(), "0,0 1000x900") << "the right button";
    Press(v, 3000, 3000);
    v.imgOriginal.MouseUp({1, shiftNone, 3000, 3000});
    Move(v, 1500, 1500);
    EXPECT_EQ(rig.Image(), "0,0 1000x900") << "let go";
}

// -- What is loaded

TEST(ViewerDisplay, It_loads_the_row_that_it_was_opened_on_and_no_other)
{
    ViewerRig rig(threeFiles);
    rig.Open(2);
    EXPECT_EQ(rig.Wishes(), (Names{"b.jpg"}));
    EXPECT_EQ(rig.V().hsbCurImage.Value, 2);
    EXPECT_EQ(rig.Panels(), "Image: 2 of 3|b.jpg");
}

TEST(ViewerDisplay, The_file_is_found_by_its_folder_and_name_on_every_disk)
{
    struct Row {
        MemoryDisk::Flavour Flavour;
        const char* Path;
    };
    for (const Row& row : {Row{MemoryDisk::Flavour::Windows, "C:\\p\\b.jpg"},
                           Row{MemoryDisk::Flavour::Posix, "/p/b.jpg"}}) {
        ViewerRig rig(threeFiles, "", row.Flavour);
        rig.Open(2);
        EXPECT_EQ(rig.Desktop.PictureWishes, Names{row.Path});
        EXPECT_EQ(rig.V().imgOriginal.PropertyText("Picture"), "100x50") << row.Path;
    }
}

TEST(ViewerDisplay, A_file_that_is_no_picture_shows_its_icon_without_a_word)
{
    ViewerRig rig(threeFiles);
    rig.Open(3);
    EXPECT_EQ(rig.Wishes(), (Names{"c.txt"}));
    EXPECT_EQ(rig.V().imgOriginal.PropertyText("Picture"), "icon F");
    EXPECT_EQ(rig.P().state.ImgWidth, largeIconPixels);
    EXPECT_TRUE(rig.V().imgOriginal.Visible);
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

struct GifRow {
    const char *What, *Type;
    int Gif;
    const char* Picture;
};

constexpr GifRow gifRows[] = {
    {"left out", "gif", 0, "icon F"},     {"in any case", "GiF", 0, "icon F"},
    {"taken in", "gif", 1, "90x60"},      {"the cell decides, not the name", "jpg", 0, "90x60"},
    {"another type", "gifx", 0, "90x60"},
};

TEST(ViewerDisplay, A_gif_is_shown_when_the_setting_says_so)
{
    for (const GifRow& row : gifRows) {
        ViewerRig rig({{"a.gif", 90, 60}});
        rig.P().state.Gif = static_cast<std::uint8_t>(row.Gif);
        rig.Cell(1, "Type", row.Type);
        rig.Open();
        EXPECT_EQ(rig.V().imgOriginal.PropertyText("Picture"), row.Picture) << row.What;
        EXPECT_EQ(rig.Wishes().empty(), std::string(row.Picture) != "90x60") << row.What;
    }
}

TEST(ViewerDisplay, A_new_picture_takes_the_preview_away)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    rig.V().hsbCurImage.PersonDrag(2);
    EXPECT_TRUE(rig.V().cmdThumb.Visible);
    EXPECT_EQ(rig.V().stbMain.Panel(1), "Image: 1 of 3") << "not loaded before it is let go";
    rig.V().hsbCurImage.PersonScroll(2);
    EXPECT_FALSE(rig.V().cmdThumb.Visible);
    EXPECT_FALSE(rig.V().tmrHideThumb.Enabled);
    EXPECT_EQ(rig.Wishes(), (Names{"a.jpg", "b.jpg"}));
}

TEST(ViewerDisplay, A_natural_size_comes_back_behind_a_scaled_picture)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    rig.Size_View(400, 300);
    rig.Tool_Click("ID_Enlarge");
    EXPECT_EQ(rig.Image(), "0,17 400x266");
    rig.V().hsbCurImage.PersonScroll(2);
    EXPECT_EQ(rig.P().state.ImgWidth, 100);
    rig.Tool_Click("ID_Enlarge");
    EXPECT_EQ(rig.Image(), "150,125 100x50");
}

TEST(ViewerDisplay, A_position_beyond_the_list_shows_nothing)
{
    ViewerRig rig(threeFiles);
    rig.Open(3);
    rig.List().Remove(3);
    rig.Wishes();
    Viewer_Show_Current(rig.P());
    EXPECT_EQ(rig.Image(), "nothing");
    EXPECT_EQ(rig.Panels(), "|");
    EXPECT_EQ(rig.V().imgOriginal.PropertyText("Picture"), "none");
    EXPECT_EQ(rig.P().state.ImgWidth, 0);
    EXPECT_TRUE(rig.Wishes().empty());
}

TEST(ViewerDisplay, Without_a_viewer_nothing_happens)
{
    ViewerRig rig(threeFiles);
    Program& p = rig.P();
    Viewer_Show_Current(p);
    Viewer_Fit(p);
    Viewer_Layout(p);
    Viewer_Sync(p);
    Viewer_Move(p, 1);
    Viewer_Image_Find(p, true);
    Viewer_Thumb_Make(p, 1);
    Viewer_Hide(p);
    EXPECT_EQ(Viewer_Find(p), nullptr);
    EXPECT_TRUE(rig.Wishes().empty());
}

// -- The window's parts

struct Rect {
    double Left, Top, Right, Bottom;
};

Rect Rect_Of(const Control& control)
{
    return {control.Left, control.Top, control.Left + control.Width, control.Top + control.Height};
}

TEST(ViewerLayout, The_parts_share_the_window_out)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open();
    for (const auto& [width, height] :
         {std::pair{9600.0, 7200.0}, {12345.0, 6789.0}, {4000.0, 3000.0}, {28800.0, 16200.0}}) {
        v.PersonResize(width, height);
        const Rect view = Rect_Of(v.picViewWin), down = Rect_Of(v.vsbImage),
                   across = Rect_Of(v.hsbImage), place = Rect_Of(v.hsbCurImage),
                   status = Rect_Of(v.stbMain);
        EXPECT_EQ(status.Left, 0) << width;
        EXPECT_EQ(status.Right, width);
        EXPECT_EQ(status.Bottom, height);
        EXPECT_EQ(place.Bottom, status.Top - 30) << width;
        EXPECT_EQ(place.Left, 60);
        EXPECT_EQ(place.Right, width - 60);
        EXPECT_EQ(view.Left, 30);
        EXPECT_EQ(view.Top, 30);
        EXPECT_EQ(down.Left, view.Right + 30) << width;
        EXPECT_LE(down.Right, width - 30);
        EXPECT_GT(down.Right, width - 30 - 15) << "no more than a part of a pixel is left";
        EXPECT_EQ(down.Bottom, view.Bottom);
        EXPECT_EQ(across.Top, view.Bottom + 30) << width;
        EXPECT_LE(across.Bottom, place.Top - 60);
        EXPECT_GT(across.Bottom, place.Top - 60 - 15);
        EXPECT_EQ(across.Right, view.Right);
        EXPECT_EQ(v.picViewWin.ScaleWidth(), std::floor(v.picViewWin.ScaleWidth())) << width;
    }
}

TEST(ViewerLayout, A_window_of_almost_no_size_has_no_part_below_zero)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open();
    v.PersonResize(15, 15);
    for (const Control* part : std::initializer_list<const Control*>{
             &v.picViewWin, &v.vsbImage, &v.hsbImage, &v.hsbCurImage, &v.stbMain}) {
        EXPECT_GE(part->Width, 0) << part->Name();
        EXPECT_GE(part->Height, 0) << part->Name();
    }
}

TEST(ViewerLayout, A_new_size_fits_the_picture_anew)
{
    ViewerRig rig(threeFiles);
    rig.Open();
    rig.Size_View(400, 300);
    EXPECT_EQ(rig.Image(), "50,50 300x200");
    rig.Size_View(200, 300);
    EXPECT_EQ(rig.Image(), "0,50 300x200");
    EXPECT_TRUE(rig.V().hsbImage.Enabled);
}

} // namespace
} // namespace tavo
