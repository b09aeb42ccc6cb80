#include "hosts/pictures/confined.h"
#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/picture_reader.h"
#include "hosts/pictures/pictures.h"

#include "drawing_samples.h"
#include "samples.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tavo::pictures {
namespace {

using namespace std::string_literals;

std::string Told(QSize size)
{
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

bool IsNear(QRgb one, QRgb other, int distance)
{
    return std::abs(qRed(one) - qRed(other)) <= distance
           && std::abs(qGreen(one) - qGreen(other)) <= distance
           && std::abs(qBlue(one) - qBlue(other)) <= distance
           && std::abs(qAlpha(one) - qAlpha(other)) <= distance;
}

std::string Told(QRgb colour)
{
    char text[16];
    std::snprintf(text, sizeof text, "%08x", colour);
    return text;
}

TEST(PictureLoad, Each_sample_is_read_at_its_size)
{
    ASSERT_NE(Worker_Find(), "");
    const TempFolder folder("pictures_load");
    for (const Sample& sample : Samples()) {
        folder.Write("picture", sample.Bytes);
        const auto loaded = Load(folder.Path("picture"));
        ASSERT_TRUE(loaded) << sample.Name;
        EXPECT_EQ(loaded->Image.size(), loaded->FullSize) << sample.Name;
        if (!sample.Size.isNull() && sample.Size.isValid()) {
            EXPECT_EQ(Told(loaded->FullSize), Told(sample.Size)) << sample.Name;
        }
        const auto size = Size(folder.Path("picture"));
        ASSERT_TRUE(size) << sample.Name;
        EXPECT_EQ(Told(*size), Told(loaded->FullSize)) << sample.Name;
    }
}

TEST(PictureLoad, A_bound_gives_the_fitting_size_and_keeps_the_full_one)
{
    const TempFolder folder("pictures_bound");
    const QSize bounds[] = {{30, 30}, {7, 100}, {1, 1}, {1000, 3}, {1000, 1000}};
    for (const Sample& sample : Samples()) {
        folder.Write("picture", sample.Bytes);
        const auto whole = Load(folder.Path("picture"));
        ASSERT_TRUE(whole) << sample.Name;
        for (const QSize bound : bounds) {
            const auto loaded = Load(folder.Path("picture"), bound);
            ASSERT_TRUE(loaded) << sample.Name << " in " << Told(bound);
            EXPECT_EQ(Told(loaded->FullSize), Told(whole->FullSize)) << sample.Name;
            EXPECT_EQ(Told(loaded->Image.size()), Told(Size_Fit(whole->FullSize, bound)))
                << sample.Name << " in " << Told(bound);
        }
    }
}

TEST(PictureLoad, Formats_without_loss_give_back_every_dot)
{
    const TempFolder folder("pictures_dots");
    const QImage image = Image_Colours({60, 40});
    for (const char* format : {"png", "bmp", "tiff", "ppm", "ico"}) {
        folder.Write("picture", Bytes_Of(image, format));
        const auto loaded = Load(folder.Path("picture"));
        ASSERT_TRUE(loaded) << format;
        EXPECT_EQ(loaded->Image.convertToFormat(QImage::Format_RGB32), image) << format;
    }
}

TEST(PictureLoad, Dots_of_hand_written_pictures)
{
    struct Row {
        const char* Sample;
        int X, Y;
        QRgb Colour;
    };
    constexpr QRgb red = 0xffff0000, white = 0xffffffff, clear = 0;
    constexpr QRgb grey80 = 0xff808080;
    const Row rows[] = {
        {"bmp rle8", 0, 1, grey80},
        {"bmp rle8", 5, 1, grey80},
        {"bmp rle8", 6, 1, 0xff010101},
        {"bmp rle8", 7, 1, 0xff020202},
        {"bmp rle8", 2, 0, 0xff030303},
        {"bmp rle8", 5, 0, white},
        {"bmp rle4", 0, 1, 0xff111111},
        {"bmp rle4", 1, 1, white},
        {"bmp rle4", 7, 1, white},
        {"bmp rle4", 3, 0, 0xff444444},
        {"bmp rle4", 4, 0, 0xff555555},
        {"gif", 0, 0, 0xff000000},
        {"gif", 3, 0, red},
        {"gif", 6, 0, 0xff00ff00},
        {"gif", 9, 0, 0xff0000ff},
        {"tga", 0, 0, 0xff000000 + 39 * 60 * 5000},
        {"svg", 30, 20, red},
        {"svg", 2, 2, clear},
        {"svgz", 30, 20, red},
        {"wmf", 40, 30, red},
        {"wmf", 5, 5, white},
        {"wmf", 75, 55, white},
        {"wmf", 14, 14, red},
        {"wmf", 66, 46, red},
        {"emf", 40, 30, red},
        {"emf", 5, 5, clear},
        {"emf", 75, 55, clear},
        {"png with opacity", 10, 10, qRgba(200, 100, 50, 40)},
    };
    const TempFolder folder("pictures_hand");
    for (const Row& row : rows) {
        const auto sample = std::ranges::find(Samples(), row.Sample, &Sample::Name);
        ASSERT_NE(sample, Samples().end()) << row.Sample;
        folder.Write("picture", sample->Bytes);
        const auto loaded = Load(folder.Path("picture"));
        ASSERT_TRUE(loaded) << row.Sample;
        const QRgb colour = loaded->Image.pixel(row.X, row.Y);
        EXPECT_TRUE(IsNear(colour, row.Colour, 2))
            << row.Sample << " at " << row.X << "," << row.Y << ": " << Told(colour) << ", wanted "
            << Told(row.Colour);
    }
}

TEST(PictureLoad, Words_of_an_svg_are_drawn)
{
    const TempFolder folder("pictures_words");
    folder.Write("picture", Svg_BytesWithWords());
    const auto loaded = Load(folder.Path("picture"));
    ASSERT_TRUE(loaded);
    int dark = 0;
    for (int y = 0; y < loaded->Image.height(); ++y)
        for (int x = 0; x < loaded->Image.width(); ++x)
            dark += qAlpha(loaded->Image.pixel(x, y)) > 128 ? 1 : 0;
    EXPECT_GT(dark, 50);
}

TEST(PictureLoad, The_content_decides_and_not_the_name)
{
    const TempFolder folder("pictures_names");
    folder.Write("text.bmp", "These are words, and no picture at all.\n");
    folder.Write("picture.jpg", Bytes_Of(Image_Colours({8, 8}), "png"));
    folder.Write("picture.txt", Bytes_Of(Image_Colours({8, 8}), "jpeg"));
    folder.Write("picture", Bytes_Of(Image_Colours({8, 8}), "bmp"));
    EXPECT_FALSE(Load(folder.Path("text.bmp")));
    EXPECT_TRUE(Load(folder.Path("picture.jpg")));
    EXPECT_TRUE(Load(folder.Path("picture.txt")));
    EXPECT_TRUE(Load(folder.Path("picture")));
}

TEST(PictureLoad, Names_of_any_bytes_are_opened)
{
    const TempFolder folder("pictures_bytes");
    const std::string names[] = {
        "\xff\xfe.png", "\xe4\xf6\xfc.svg", "caf\xc3\xa9.png", "two\nlines.png",
        "-dash",        "100%41.png",       "*?.png",          " "};
    for (const std::string& name : names) {
        for (const char* sample : {"png", "svg"}) {
            folder.Write(name, std::ranges::find(Samples(), sample, &Sample::Name)->Bytes);
            EXPECT_TRUE(Load(folder.Path(name))) << name << " as " << sample;
        }
        const BitmapPtr bitmap = Bitmap_Load(folder.Path(name), 0, 0);
        ASSERT_NE(bitmap, nullptr) << name;
        EXPECT_EQ(bitmap->Width(), 60) << name;
    }
}

TEST(PictureLoad, Of_an_icon_file_the_largest_image_is_taken)
{
    // Three images, the middle one the largest.
    const int sides[] = {16, 48, 32};
    std::string folderOf = Low(0, 2) + Low(1, 2) + Low(3, 2), images;
    for (const int side : sides) {
        const std::string image = Bytes_Of(Image_Colours({side, side}), "ico").substr(22);
        folderOf += Low(static_cast<std::uint32_t>(side), 1)
                    + Low(static_cast<std::uint32_t>(side), 1) + Low(0, 2) + Low(1, 2) + Low(32, 2)
                    + Low(static_cast<std::uint32_t>(image.size()), 4)
                    + Low(static_cast<std::uint32_t>(6 + 3 * 16 + images.size()), 4);
        images += image;
    }
    const TempFolder folder("pictures_icon");
    folder.Write("icon", folderOf + images);
    const auto loaded = Load(folder.Path("icon"));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(Told(loaded->Image.size()), "48x48");
}

TEST(PictureLoad, A_large_jpeg_is_decoded_at_the_size_wanted)
{
    const TempFolder folder("pictures_large");
    folder.Write("large.jpg", Bytes_Of(Image_Colours({4000, 3000}), "jpeg"));
    const auto loaded = Load(folder.Path("large.jpg"), {100, 100});
    ASSERT_TRUE(loaded);
    EXPECT_EQ(Told(loaded->FullSize), "4000x3000");
    EXPECT_EQ(Told(loaded->Image.size()), "100x75");
    EXPECT_TRUE(IsNear(loaded->Image.pixel(50, 37), 0xff7f7f80, 24))
        << Told(loaded->Image.pixel(50, 37));
}

std::string Size_Of(const BitmapPtr& bitmap)
{
    return bitmap ? Told(QSize(bitmap->Width(), bitmap->Height())) : "none";
}

TEST(PictureReader, A_picture_has_its_own_size_whatever_the_bound)
{
    const TempFolder folder("pictures_reader");
    folder.Write("good", Bytes_Of(Image_Colours({80, 60}), "png"));
    folder.Write("bad", "words");
    EXPECT_EQ(Bitmap_Load(folder.Path("bad"), 64, 64), nullptr);
    EXPECT_EQ(Bitmap_Load(folder.Path("missing"), 64, 64), nullptr);
    for (const int bound : {0, 8, 40, 1000}) {
        const BitmapPtr bitmap = Bitmap_Load(folder.Path("good"), bound, bound);
        EXPECT_EQ(Size_Of(bitmap), "80x60") << bound;
        const int dots = bound == 0 || bound > 80 ? 80 : bound;
        EXPECT_EQ(Image_Of(*bitmap).width(), dots) << bound;
    }
}

TEST(PictureReader, Paints_a_picture_at_another_size)
{
    const TempFolder folder("pictures_paint");
    folder.Write("good", Bytes_Of(Image_Colours({80, 60}), "png"));
    const BitmapPtr whole = Bitmap_Load(folder.Path("good"), 0, 0);
    ASSERT_NE(whole, nullptr);
    EXPECT_EQ(Size_Of(Bitmap_Paint(*whole, 40, 30)), "40x30");
    EXPECT_EQ(Size_Of(Bitmap_Paint(*whole, 800, 600)), "800x600");
    EXPECT_EQ(Size_Of(Bitmap_Paint(*whole, 0, 30)), "1x30");
    EXPECT_EQ(Size_Of(Bitmap_Paint(*whole, -5, -5)), "1x1");
    EXPECT_EQ(Bitmap_Paint(*whole, 30000, 30000), nullptr);
    const BitmapPtr fine = Bitmap_Paint(*whole, {40, 30}, 2);
    ASSERT_NE(fine, nullptr);
    EXPECT_EQ(Size_Of(fine), "40x30");
    EXPECT_EQ(Told(Image_Of(*fine).size()), "80x60");
    // One that no host of this kind has made has no dots to draw.
    EXPECT_EQ(Bitmap_Paint(Bitmap(80, 60), 40, 30), nullptr);
}

} // namespace
} // namespace tavo::pictures
