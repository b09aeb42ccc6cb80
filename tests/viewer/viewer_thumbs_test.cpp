#include "viewer/frm_viewer.h"

#include "support/viewer_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

const std::vector<ViewedFile> threeFiles = {{"a.jpg", 300, 200}, {"b.txt"}, {"c.jpg", 100, 300}};
constexpr const char* making = "[Settings]\nAutoThumbs=1\n";

std::string Size_Of(const BitmapPtr& bitmap)
{
    return bitmap ? std::to_string(bitmap->Width()) + "x" + std::to_string(bitmap->Height())
                  : "none";
}

// The sizes in the buffer by their slots.
Names Buffer(ViewerRig& rig)
{
    Names sizes;
    for (const BitmapPtr& bitmap : rig.P().state.ThumbBuffer)
        sizes.push_back(Size_Of(bitmap));
    return sizes;
}

std::string Tag(ViewerRig& rig, int row)
{
    return std::string(rig.List().Tag(row));
}

TEST(ViewerThumbs, Without_the_setting_the_buffer_is_never_touched)
{
    ViewerRig rig(threeFiles);
    rig.Open(1);
    rig.Tool_Click("ID_ImgNext");
    EXPECT_EQ(Buffer(rig), (Names{"none"}));
    EXPECT_EQ(Tag(rig, 1), "");
    EXPECT_TRUE(rig.Desktop.Paintings.empty());
    EXPECT_FALSE(rig.Main().tmrRefreshThumbs.Enabled);
}

TEST(ViewerThumbs, A_flag_of_another_number_is_not_set)
{
    ViewerRig rig(threeFiles, "[Settings]\nAutoThumbs=2\n");
    rig.Open(1);
    EXPECT_EQ(Buffer(rig), (Names{"none"}));
}

TEST(ViewerThumbs, Each_picture_that_is_looked_at_gets_the_next_slot)
{
    ViewerRig rig(threeFiles, making);
    rig.Open(1);
    EXPECT_EQ(Buffer(rig), (Names{"none", "80x53"}));
    EXPECT_EQ(Tag(rig, 1), "1");
    EXPECT_TRUE(rig.Main().tmrRefreshThumbs.Enabled);
    EXPECT_EQ(rig.V().picThumbMake.Width, 80);
    EXPECT_EQ(rig.V().picThumbMake.Height, 53);
    rig.Tool_Click("ID_ImgNext");
    EXPECT_EQ(Buffer(rig), (Names{"none", "80x53", "26x80"}));
    EXPECT_EQ(Tag(rig, 3), "2");
    EXPECT_EQ(rig.V().imgOriginal.PropertyText("Picture"), "100x300") << "and is still shown";
}

TEST(ViewerThumbs, The_slot_lies_behind_all_that_there_are_empty_ones_too)
{
    ViewerRig rig(threeFiles, making);
    rig.P().state.ThumbBuffer.resize(5);
    rig.Open(1);
    EXPECT_EQ(Tag(rig, 1), "5");
    EXPECT_EQ(Buffer(rig), (Names{"none", "none", "none", "none", "none", "80x53"}));
}

TEST(ViewerThumbs, A_row_that_has_one_gets_none_anew)
{
    ViewerRig rig(threeFiles, making);
    rig.Open(1);
    rig.Tool_Click("ID_ImgNext");
    rig.Main().tmrRefreshThumbs.Enabled = false;
    rig.Wishes();
    rig.Tool_Click("ID_ImgNext");
    EXPECT_EQ(rig.Wishes(), (Names{"a.jpg"}));
    EXPECT_EQ(rig.P().state.ThumbBuffer.size(), 3u);
    EXPECT_FALSE(rig.Main().tmrRefreshThumbs.Enabled);
}

TEST(ViewerThumbs, A_file_that_cannot_be_read_gets_none)
{
    ViewerRig rig(threeFiles, making);
    rig.Open(2);
    EXPECT_EQ(rig.Wishes(), (Names{"b.txt"})) << "and is not tried twice";
    EXPECT_EQ(Tag(rig, 2), "");
    EXPECT_EQ(Buffer(rig), (Names{"none"}));
}

TEST(ViewerThumbs, A_file_that_is_gone_the_second_time_gets_none)
{
    ViewerRig rig(threeFiles);
    rig.Open(1);
    rig.P().state.AutoThumbs = 1;
    rig.Desktop.Pictures.clear();
    Viewer_Thumb_Make(rig.P(), 1);
    EXPECT_EQ(Tag(rig, 1), "");
    EXPECT_EQ(Buffer(rig), (Names{"none"}));
    EXPECT_EQ(rig.V().imgOriginal.PropertyText("Picture"), "300x200");
}

struct GifRow {
    const char *What, *Name, *Type;
    int Gif;
    bool Makes;
    const char* Shown;
};

constexpr GifRow gifRows[] = {
    {"left out", "a.gif", "gif", 0, false, "icon F"},
    {"by its name in any case", "a.GiF", "gif", 0, false, "icon F"},
    {"taken in", "a.gif", "gif", 1, true, "90x60"},
    {"the name decides here", "a.gif", "jpg", 0, false, "90x60"},
    // The two tests differ: what the view left out is read for the thumbnail,
    // and then stands in the view.
    {"and not the type", "a.jpg", "gif", 0, true, "90x60"},
    {"the whole ending", "agif", "jpg", 0, true, "90x60"},
};

TEST(ViewerThumbs, A_gif_is_told_by_the_end_of_its_name)
{
    for (const GifRow& row : gifRows) {
        ViewerRig rig({{row.Name, 90, 60}}, making);
        rig.P().state.Gif = static_cast<std::uint8_t>(row.Gif);
        rig.Cell(1, "Type", row.Type);
        rig.Open();
        EXPECT_EQ(Tag(rig, 1) == "1", row.Makes) << row.What;
        EXPECT_EQ(rig.V().imgOriginal.PropertyText("Picture"), row.Shown) << row.What;
    }
}

TEST(ViewerThumbs, A_long_operation_keeps_the_buffer_for_itself)
{
    ViewerRig rig(threeFiles, making);
    {
        const LongOperation operation(rig.P());
        Viewer_Open(rig.P(), 1);
    }
    EXPECT_EQ(Buffer(rig), (Names{"none"}));
    EXPECT_EQ(Tag(rig, 1), "");
    rig.Wishes();
    Viewer_Thumb_Make(rig.P(), 1);
    EXPECT_EQ(Tag(rig, 1), "1");
}

TEST(ViewerThumbs, A_position_that_is_no_row_gets_none)
{
    ViewerRig rig(threeFiles);
    rig.Open(1);
    rig.P().state.AutoThumbs = 1;
    for (const int row : {0, -1, 4, 2147483647})
        Viewer_Thumb_Make(rig.P(), row);
    EXPECT_EQ(Buffer(rig), (Names{"none"}));
}

// -- The preview while the position bar is dragged

TEST(ViewerPreview, It_shows_the_thumbnail_or_the_icon_before_anything_is_read)
{
    ViewerRig rig(threeFiles, making);
    FrmViewer& v = rig.Open(1);
    rig.Wishes();
    v.hsbCurImage.PersonDrag(3);
    EXPECT_TRUE(v.cmdThumb.Visible);
    EXPECT_EQ(v.cmdThumb.PropertyText("Picture"), "icon P");
    EXPECT_EQ(rig.Panels(), "Image: 1 of 3|c.jpg");
    v.hsbCurImage.PersonDrag(1);
    EXPECT_EQ(v.cmdThumb.PropertyText("Picture"), "80x53");
    EXPECT_EQ(rig.Panels(), "Image: 1 of 3|a.jpg");
    EXPECT_TRUE(rig.Wishes().empty());
}

TEST(ViewerPreview, A_slot_beyond_the_buffer_shows_the_icon)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open(1);
    for (const char* tag : {"7", "1e300", "-3", "words"}) {
        rig.List().SetTag(3, tag);
        v.hsbCurImage.PersonDrag(2);
        v.hsbCurImage.PersonDrag(3);
        EXPECT_EQ(v.cmdThumb.PropertyText("Picture"), "icon P") << tag;
    }
}

TEST(ViewerPreview, Each_place_gives_it_a_full_second)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open(1);
    std::string turns;
    const Connection heard = v.tmrHideThumb.Changed.Listen([&](Prop what) {
        if (what == Prop::Enabled)
            turns += v.tmrHideThumb.Enabled ? "on " : "off ";
    });
    v.hsbCurImage.PersonDrag(2);
    EXPECT_EQ(turns, "on ");
    v.hsbCurImage.PersonDrag(3);
    EXPECT_EQ(turns, "on off on ");
    EXPECT_TRUE(v.tmrHideThumb.Runs());
    v.tmrHideThumb.Tick();
    EXPECT_FALSE(v.cmdThumb.Visible);
    EXPECT_FALSE(v.tmrHideThumb.Enabled);
}

TEST(ViewerPreview, It_lies_within_the_view)
{
    ViewerRig rig(threeFiles);
    FrmViewer& v = rig.Open(1);
    for (const auto& [width, height] : {std::pair{400, 300}, {50, 40}}) {
        rig.Size_View(width, height);
        v.hsbCurImage.PersonDrag(v.hsbCurImage.Value == 2 ? 3 : 2);
        EXPECT_GE(v.cmdThumb.Left, 0) << width;
        EXPECT_GE(v.cmdThumb.Top, 0) << width;
        if (width > v.cmdThumb.Width) {
            EXPECT_LE(v.cmdThumb.Left + v.cmdThumb.Width, width);
            EXPECT_LE(v.cmdThumb.Top + v.cmdThumb.Height, height);
        }
    }
}

} // namespace
} // namespace tavo
