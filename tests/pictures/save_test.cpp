#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/picture_reader.h"
#include "hosts/pictures/pictures.h"

#include "samples.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <limits>
#include <set>
#include <sys/resource.h>

namespace tavo::pictures {
namespace {

using namespace std::string_literals;

constexpr int most = std::numeric_limits<int>::max();

BitmapPtr Good(const TempFolder& folder)
{
    folder.Write("good", Bytes_Of(Image_Colours({80, 60}), "png"));
    return Bitmap_Load(folder.Path("good"), 0, 0);
}

TEST(PictureSave, A_picture_is_written_dot_by_dot)
{
    const TempFolder folder("pictures_save");
    const BitmapPtr good = Good(folder);
    ASSERT_NE(good, nullptr);
    EXPECT_EQ(Bitmap_SavePng(*good, 80, 60, folder.Path("\xff.png")), "");
    const auto loaded = Load(folder.Path("\xff.png"));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->Image.convertToFormat(QImage::Format_RGB32), Image_Colours({80, 60}));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"good", "\xff.png"}));
}

TEST(PictureSave, Another_size_is_written_smoothly)
{
    const TempFolder folder("pictures_save_size");
    const BitmapPtr good = Good(folder);
    ASSERT_NE(good, nullptr);
    for (const QSize size : {QSize(40, 50), QSize(1, 1), QSize(200, 7)}) {
        ASSERT_EQ(Bitmap_SavePng(*good, size.width(), size.height(), folder.Path("out")), "");
        const auto loaded = Load(folder.Path("out"));
        ASSERT_TRUE(loaded);
        EXPECT_EQ(loaded->Image.convertToFormat(QImage::Format_RGB32),
                  Scale_Smooth(Image_Colours({80, 60}), size))
            << size.width() << "x" << size.height();
    }
}

TEST(PictureSave, Opacity_stays)
{
    const TempFolder folder("pictures_save_clear");
    const BitmapPtr page = Bitmap_OfClass('F');
    ASSERT_NE(page, nullptr);
    ASSERT_EQ(Bitmap_SavePng(*page, 32, 32, folder.Path("out")), "");
    const auto loaded = Load(folder.Path("out"));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->Image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(loaded->Image.pixel(8, 8), 0xffffffffu);
}

TEST(PictureSave, A_name_without_a_folder_is_one_of_the_folder_in_hand)
{
    const TempFolder folder("pictures_save_here");
    const BitmapPtr good = Good(folder);
    ASSERT_NE(good, nullptr);
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    EXPECT_EQ(Bitmap_SavePng(*good, 8, 6, "out.png"), "");
    std::filesystem::current_path(before);
    EXPECT_TRUE(folder.Has("out.png"));
}

TEST(PictureSave, What_cannot_be_written_is_told_and_leaves_all_as_it_was)
{
    const TempFolder folder("pictures_save_not");
    const BitmapPtr good = Good(folder);
    ASSERT_NE(good, nullptr);
    folder.MakeFolder("folder");
    folder.MakeLink("device", "/dev/full");
    struct Row {
        const char* Name;
        int Width, Height;
        std::string Target;
    };
    const Row rows[] = {
        {"no width", 0, 50, folder.Path("new")},
        {"no height", 50, -1, folder.Path("new")},
        {"too many dots", most, most, folder.Path("new")},
        {"no such folder", 5, 5, folder.Path("no/new")},
        {"a file for a folder", 5, 5, folder.Path("good/new")},
        {"a folder", 5, 5, folder.Path("folder")},
        {"a device", 5, 5, folder.Path("device")},
        {"no name", 5, 5, ""},
        {"a name that is cut", 5, 5, folder.Path("new\0name"s)},
    };
    const auto names = folder.Names();
    for (const Row& row : rows) {
        EXPECT_NE(Bitmap_SavePng(*good, row.Width, row.Height, row.Target), "") << row.Name;
        EXPECT_EQ(folder.Names(), names) << row.Name;
    }
    EXPECT_NE(Bitmap_SavePng(Bitmap(80, 60), 8, 6, folder.Path("new")), "");
    EXPECT_EQ(folder.Names(), names);
}

// Half a picture on a full disk would pass for a whole one until it is opened.
TEST(PictureSave, A_full_disk_leaves_the_file_that_was_there)
{
    const TempFolder folder("pictures_save_full");
    const BitmapPtr good = Good(folder);
    ASSERT_NE(good, nullptr);
    folder.Write("old", "what was there");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
    folder.SetMode("old", 0666);
    const auto names = folder.Names();
    const int failed = AsPlainUser([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit few{200, 200};
        ::setrlimit(RLIMIT_FSIZE, &few);
        int result = Bitmap_SavePng(*good, 1, 1, folder.Path("small")).empty() ? 1 : 0;
        for (const char* name : {"new", "old"})
            result += Bitmap_SavePng(*good, 80, 60, folder.Path(name)).empty() ? 0 : 1;
        return result;
    });
    EXPECT_EQ(failed, 3);
    EXPECT_TRUE(folder.Has("small"));
    folder.Remove("small");
    EXPECT_EQ(folder.Names(), names);
    EXPECT_EQ(folder.Read("old"), "what was there");
}

TEST(PictureSave, A_plane_is_one_colour_to_the_last_dot)
{
    const BitmapPtr plane = Bitmap_Plain(0x123456, 7, 3);
    ASSERT_NE(plane, nullptr);
    EXPECT_EQ(plane->Width(), 7);
    EXPECT_EQ(plane->Height(), 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 7; ++x)
            EXPECT_EQ(Image_Of(*plane).pixel(x, y), 0xff123456u) << x << "," << y;
    EXPECT_EQ(Bitmap_Plain(0, 0, 5), nullptr);
    EXPECT_EQ(Bitmap_Plain(0, 5, -5), nullptr);
    EXPECT_EQ(Bitmap_Plain(0, most, most), nullptr);
}

TEST(PictureSave, Each_class_has_a_page_of_its_own)
{
    std::set<std::string> pages;
    for (const char letter : "FDPM?"s) {
        const BitmapPtr page = Bitmap_OfClass(letter);
        ASSERT_NE(page, nullptr) << letter;
        EXPECT_EQ(page->Width(), 32) << letter;
        EXPECT_EQ(Image_Of(*page).size(), QSize(32, 32)) << letter;
        EXPECT_TRUE(pages.insert(Bytes_Of(Image_Of(*page), "png")).second) << letter;
        EXPECT_EQ(Bytes_Of(Image_Of(*Bitmap_OfClass(letter)), "png"),
                  Bytes_Of(Image_Of(*page), "png"))
            << letter;
    }
}

} // namespace
} // namespace tavo::pictures
