#include "hosts/console/control_face.h"

#include "hosts/console/system_colours.h"
#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/pictures.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"
#include "toolkit/text_box.h"

#include "samples.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace tavo::console {
namespace {

using pictures::Image_Colours;
using pictures::ImageBitmap;

constexpr double twipsPerPixel = 15;
constexpr std::int32_t olive = 0x008080; // red and green, blue in the high byte

class ControlFace : public testing::Test {
protected:
    // What the control's file holds; a null image when there is none.
    QImage Saved(const Control& control)
    {
        why_ = Face_Save(control, twipsPerPixel, folder_.Path("face.png"));
        const auto loaded = pictures::Load(folder_.Path("face.png"));
        return loaded ? loaded->Image : QImage();
    }
    static PictureRef Colours(QSize size)
    {
        return PictureRef::OfBitmap(std::make_shared<ImageBitmap>(Image_Colours(size), size));
    }

    TempFolder folder_{"control_face"};
    Form form_{"frmTest"};
    PictureBox box_{form_, "picBox"};
    ImageBox image_{form_, "imgBox", 3};
    PictureButton button_{form_, "cmdBox"};
    std::string why_;
};

TEST_F(ControlFace, A_picture_is_saved_in_its_own_size)
{
    box_.Move(0, 0, 150, 150);
    box_.Picture = Colours({40, 20});
    EXPECT_EQ(Saved(box_).convertToFormat(QImage::Format_RGB32), Image_Colours({40, 20}));
    button_.Move(0, 0, 150, 150);
    button_.Picture = Colours({20, 40});
    EXPECT_EQ(Saved(button_).size(), QSize(20, 40));
    image_.Picture = Colours({10, 40});
    EXPECT_EQ(Saved(image_).size(), QSize(10, 40));
    EXPECT_EQ(why_, "");
}

// A picture that was read with fewer dots than it has is as large all the same.
TEST_F(ControlFace, A_reduced_picture_is_saved_in_the_size_of_the_whole)
{
    image_.Picture =
        PictureRef::OfBitmap(std::make_shared<ImageBitmap>(Image_Colours({10, 5}), QSize(80, 40)));
    EXPECT_EQ(Saved(image_).size(), QSize(80, 40));
}

TEST_F(ControlFace, A_stretched_picture_is_saved_in_the_size_of_the_control)
{
    image_.Stretch = true;
    image_.Picture = Colours({40, 20});
    image_.Move(0, 0, 300, 450);
    EXPECT_EQ(Saved(image_), pictures::Scale_Smooth(Image_Colours({40, 20}), {20, 30}));
    // The control's frame is no part of it, and a half dot makes a whole one.
    box_.Stretch = true;
    box_.BorderTwips = 30;
    box_.Picture = Colours({40, 20});
    box_.Move(0, 0, 367.5, 360);
    EXPECT_EQ(Saved(box_).size(), QSize(21, 20));
    box_.PixelScale = true;
    EXPECT_EQ(Saved(box_).size(), QSize(21, 20));
    image_.Container = &box_;
    image_.Move(0, 0, 12, 7);
    EXPECT_EQ(Saved(image_).size(), QSize(12, 7));
}

TEST_F(ControlFace, A_box_or_button_without_a_picture_is_a_plane_of_its_colour)
{
    const auto isPlane = [](const QImage& image, QSize size, QRgb colour) {
        QImage plane(size, QImage::Format_RGB32);
        plane.fill(colour);
        return image.convertToFormat(QImage::Format_RGB32) == plane;
    };
    box_.BackColor = olive;
    box_.BorderTwips = 15;
    box_.Move(0, 0, 330, 180);
    EXPECT_TRUE(isPlane(Saved(box_), {20, 10}, 0xff808000));
    button_.BackColor = static_cast<std::int32_t>(0x8000000f);
    button_.Move(0, 0, 300, 150);
    EXPECT_TRUE(isPlane(Saved(button_), {20, 10}, 0xfff0f0f0));
    // In a box that counts pixels a button's size does too.
    box_.PixelScale = true;
    button_.Container = &box_;
    button_.Move(0, 0, 6, 4);
    EXPECT_TRUE(isPlane(Saved(button_), {6, 4}, 0xfff0f0f0));
}

TEST_F(ControlFace, A_class_icon_is_saved_as_a_sheet)
{
    image_.Picture = PictureRef::OfIcon('F', largeIconPixels);
    const QImage large = Saved(image_);
    EXPECT_EQ(large.size(), QSize(32, 32));
    image_.Picture = PictureRef::OfIcon('F', smallIconPixels);
    EXPECT_EQ(Saved(image_).size(), QSize(16, 16));
    image_.Picture = PictureRef::OfIcon('M', largeIconPixels);
    EXPECT_NE(Saved(image_), large);
    image_.Stretch = true;
    image_.Move(0, 0, 900, 600);
    EXPECT_EQ(Saved(image_).size(), QSize(60, 40));
}

TEST_F(ControlFace, What_cannot_be_saved_says_so_and_leaves_no_file)
{
    TextBox text(form_, "txtBox");
    PictureBox huge(form_, "picHuge"), flat(form_, "picFlat");
    huge.Move(0, 0, 1e9, 1e9);
    flat.Move(0, 0, 500, 7);
    struct Row {
        const Control& Target;
        std::string Why;
    };
    const Row rows[] = {
        {text, "txtBox has no picture to save"},
        {image_, "imgBox(3) has no picture to save"},
        {flat, "picFlat is too small to save"},
        {huge, "cannot write " + folder_.Path("face.png") + ": no memory for the picture"},
    };
    for (const Row& row : rows) {
        EXPECT_TRUE(Saved(row.Target).isNull()) << row.Why;
        EXPECT_EQ(why_, row.Why);
    }
    EXPECT_EQ(folder_.Names(), std::vector<std::string>());
}

TEST(SystemColours, Each_number_has_a_colour_and_others_are_turned_round)
{
    struct Row {
        std::uint32_t Colour, Dots;
    };
    const Row rows[] = {
        {0, 0},
        {0xff, 0xff0000},
        {0x123456, 0x563412},
        {0x80000000, 0xc8c8c8},
        {0x80000005, 0xffffff},
        {0x8000000d, 0x3399ff},
        {0x8000000f, 0xf0f0f0},
        {0x80000018, 0xffffe1},
        {0x80000019, 0},
        {0xffffffff, 0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Dots_OfColour(static_cast<std::int32_t>(row.Colour)), row.Dots)
            << std::hex << row.Colour;
}

} // namespace
} // namespace tavo::console
