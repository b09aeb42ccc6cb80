#include "hosts/pictures/icon_folder.h"

#include "samples.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace tavo::pictures {
namespace {

struct Image {
    std::uint32_t Width, Height, Bytes;
};

std::string Folder_Bytes(std::uint32_t count, const std::vector<Image>& images)
{
    std::string bytes = Low(0, 2) + Low(1, 2) + Low(count, 2);
    for (const Image& image : images)
        bytes += Low(image.Width, 1) + Low(image.Height, 1) + Low(0, 6) + Low(image.Bytes, 4)
                 + Low(0, 4);
    return bytes;
}

TEST(PictureIcons, The_largest_image_is_the_one_of_most_dots_and_then_of_most_bytes)
{
    const std::vector<Image> many(300, {1, 1, 1});
    std::vector<Image> late = many;
    late[299].Width = 200;
    struct Row {
        const char* Name;
        std::string Bytes;
        int Largest;
    };
    const Row rows[] = {
        {"nothing", "", 0},
        {"half a head", Folder_Bytes(1, {}).substr(0, 5), 0},
        {"no image", Folder_Bytes(0, {{16, 16, 1}, {32, 32, 1}}), 0},
        {"one", Folder_Bytes(1, {{16, 16, 9}, {32, 32, 9}}), 0},
        {"the last", Folder_Bytes(3, {{16, 16, 9}, {31, 32, 9}, {32, 32, 9}}), 2},
        {"0 stands for 256", Folder_Bytes(3, {{255, 255, 9}, {0, 0, 1}, {48, 48, 9}}), 1},
        {"one side of 256", Folder_Bytes(2, {{0, 1, 9}, {17, 16, 9}}), 1},
        {"more colours", Folder_Bytes(3, {{32, 32, 5}, {32, 32, 0xffffffff}, {32, 32, 7}}), 1},
        {"the first of equals", Folder_Bytes(2, {{32, 32, 5}, {32, 32, 5}}), 0},
        {"fewer than promised", Folder_Bytes(9, {{16, 16, 9}, {32, 32, 9}}), 1},
        {"a half one", Folder_Bytes(2, {{16, 16, 9}, {32, 32, 9}}).substr(0, 37), 0},
        {"too many to look at", Folder_Bytes(300, late), 0},
    };
    const TempFolder folder("pictures_icon_folder");
    for (const Row& row : rows) {
        folder.Write("icon", row.Bytes);
        const auto file = RegularFile::Open(folder.Path("icon"));
        ASSERT_TRUE(file) << row.Name;
        EXPECT_EQ(Icon_FindLargest(*file), row.Largest) << row.Name;
    }
}

} // namespace
} // namespace tavo::pictures
