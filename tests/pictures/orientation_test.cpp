#include "hosts/pictures/orientation.h"

#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/picture_reader.h"
#include "hosts/pictures/pictures.h"
#include "samples.h"
#include "support/temp_folder.h"

#include <QBuffer>
#include <QImageWriter>

#include <gtest/gtest.h>

namespace tavo::pictures {
namespace {

using namespace std::string_literals;

constexpr QRgb red = 0xffff0000, green = 0xff00ff00, blue = 0xff0000ff, white = 0xffffffff;
constexpr int width = 64, height = 32;

// What lies in the corners after the turn: top left, top right, bottom left,
// bottom right.
struct Row {
    unsigned Number;
    QRgb Corners[4];
};

// By the meaning of the numbers: where the stored first row and first column
// are to be seen.
constexpr Row rows[] = {
    {0, {red, green, blue, white}}, // no number: as it is stored
    {1, {red, green, blue, white}}, {2, {green, red, white, blue}},
    {3, {white, blue, green, red}}, {4, {blue, white, red, green}},
    {5, {red, blue, green, white}}, {6, {blue, red, white, green}},
    {7, {white, green, blue, red}}, {8, {green, white, red, blue}},
    {9, {red, green, blue, white}}, {0xffff, {red, green, blue, white}},
};

// Four quarters of one colour each, so that loss in JPEG does no harm.
QImage Quarters()
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y,
                           y < height / 2 ? (x < width / 2 ? red : green)
                                          : (x < width / 2 ? blue : white));
    return image;
}

std::string Jpeg_Turned(unsigned number, bool bigEnd)
{
    const std::string block = "Exif\0\0"s + Exif_Block(number, bigEnd);
    return Bytes_Of(Quarters(), "jpeg", 95)
        .insert(2, "\xff\xe1" + High(static_cast<std::uint32_t>(block.size() + 2), 2) + block);
}

std::string Png_Turned(unsigned number, bool bigEnd)
{
    constexpr std::size_t behindHeader = 33;
    return Bytes_Of(Quarters(), "png")
        .insert(behindHeader, Chunk("eXIf", Exif_Block(number, bigEnd)));
}

// A WebP of one chunk becomes one with a head that tells of Exif data behind.
std::string WebP_Turned(unsigned number, bool bigEnd)
{
    const std::string chunk = Bytes_Of(Quarters(), "webp", 100).substr(12);
    const std::string block = Exif_Block(number, bigEnd);
    const std::string body = "WEBPVP8X"s + Low(10, 4) + "\x08\0\0\0"s + Low(width - 1, 3)
                             + Low(height - 1, 3) + chunk + "EXIF"
                             + Low(static_cast<std::uint32_t>(block.size()), 4) + block;
    return "RIFF" + Low(static_cast<std::uint32_t>(body.size()), 4) + body;
}

std::string Tiff_Turned(unsigned number, bool)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "tiff");
    writer.setTransformation(Turn_OfNumber(number));
    EXPECT_TRUE(writer.write(Quarters()));
    return buffer.data().toStdString();
}

bool IsNear(QRgb one, QRgb other)
{
    constexpr int loss = 30;
    return std::abs(qRed(one) - qRed(other)) < loss && std::abs(qGreen(one) - qGreen(other)) < loss
           && std::abs(qBlue(one) - qBlue(other)) < loss;
}

void Corners_Expect(const QImage& image, const Row& row, const std::string& what)
{
    const int x = image.width() / 4, y = image.height() / 4;
    const QPoint places[] = {{x, y}, {3 * x, y}, {x, 3 * y}, {3 * x, 3 * y}};
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(IsNear(image.pixel(places[i]), row.Corners[i]))
            << what << ", number " << row.Number << ", corner " << i;
}

TEST(PictureOrientation, Each_number_of_each_format_brings_the_picture_upright)
{
    struct Format {
        const char* Name;
        std::string (*Make)(unsigned number, bool bigEnd);
    };
    const Format formats[] = {
        {"jpeg", Jpeg_Turned}, {"png", Png_Turned}, {"webp", WebP_Turned}, {"tiff", Tiff_Turned}};
    const TempFolder folder("pictures_turned");
    for (const Format& format : formats)
        for (const Row& row : rows)
            for (const bool bigEnd : {false, true}) {
                folder.Write("picture", format.Make(row.Number, bigEnd));
                const bool swaps = row.Number >= 5 && row.Number <= 8;
                const QSize full = swaps ? QSize(height, width) : QSize(width, height);
                const auto whole = Load(folder.Path("picture"));
                ASSERT_TRUE(whole) << format.Name << " " << row.Number;
                EXPECT_EQ(whole->FullSize, full) << format.Name << " " << row.Number;
                EXPECT_EQ(whole->Image.size(), full) << format.Name << " " << row.Number;
                EXPECT_EQ(Size(folder.Path("picture")), full) << format.Name << " " << row.Number;
                Corners_Expect(whole->Image, row, format.Name);
                const auto small = Load(folder.Path("picture"), {20, 12});
                ASSERT_TRUE(small) << format.Name << " " << row.Number;
                EXPECT_EQ(small->Image.size(), Size_Fit(full, {20, 12})) << format.Name;
                Corners_Expect(small->Image, row, format.Name + " made small"s);
            }
}

// As a thumbnail is made: the size is told upright, whatever is kept of the
// dots, and what is drawn has the right corners.
TEST(PictureOrientation, A_thumbnail_of_each_number_is_upright)
{
    const TempFolder folder("pictures_turned_thumbnail");
    for (const Row& row : rows)
        for (const int bound : {0, 1, 12, 24, 80}) {
            folder.Write("picture", Jpeg_Turned(row.Number, true));
            const bool swaps = row.Number >= 5 && row.Number <= 8;
            const QSize full = swaps ? QSize(height, width) : QSize(width, height);
            const BitmapPtr loaded = Bitmap_Load(folder.Path("picture"), bound, bound);
            ASSERT_NE(loaded, nullptr) << row.Number << " in " << bound;
            EXPECT_EQ(QSize(loaded->Width(), loaded->Height()), full) << row.Number;
            EXPECT_EQ(Image_Of(*loaded).size(), Size_Fit(full, {bound, bound})) << row.Number;
            if (bound == 1)
                continue; // one dot has no corners
            const BitmapPtr painted = Bitmap_Paint(*loaded, full.width() / 2, full.height() / 2);
            ASSERT_NE(painted, nullptr) << row.Number;
            EXPECT_EQ(Image_Of(*painted).size(), full / 2) << row.Number;
            Corners_Expect(Image_Of(*painted), row, "thumbnail in " + std::to_string(bound));
        }
}

TEST(PictureOrientation, A_block_that_is_broken_turns_nothing)
{
    const std::string good = Exif_Block(6, true);
    EXPECT_EQ(Turn_OfExif(good), QImageIOHandler::TransformationRotate90);
    EXPECT_EQ(Turn_OfExif("Exif\0\0"s + good), QImageIOHandler::TransformationRotate90);
    // The number ends at byte 20.
    for (std::size_t left = 0; left < 20; ++left)
        EXPECT_EQ(Turn_OfExif(good.substr(0, left)), QImageIOHandler::TransformationNone) << left;
    const std::string rows_[] = {
        "MM\0*\xff\xff\xff\xff"s + std::string(16, '\xff'),
        "II*\0\xfc\xff\xff\xff"s + std::string(16, '\1'),
        "MM\0*\0\0\0\x08\xff\xff"s,
        "words",
    };
    for (const std::string& block : rows_)
        EXPECT_EQ(Turn_OfExif(block), QImageIOHandler::TransformationNone) << block;
}

TEST(PictureOrientation, Chunks_that_lead_in_a_circle_or_nowhere_end)
{
    const TempFolder folder("pictures_chunks");
    const std::string head = "\x89PNG\r\n\x1a\n";
    const std::string bodies[] = {"", "\0\0\0"s, std::string(100'000, '\0'),
                                  std::string(100, '\xff'),
                                  "\xff\xff\xff\xff"
                                  "eXIf"};
    for (const std::string& body : bodies) {
        folder.Write("picture", head + body);
        const auto file = RegularFile::Open(folder.Path("picture"));
        ASSERT_TRUE(file);
        for (const PictureKind kind : {PictureKind::Png, PictureKind::WebP, PictureKind::Gif})
            EXPECT_EQ(Turn_InChunks(*file, kind), QImageIOHandler::TransformationNone);
    }
}

} // namespace
} // namespace tavo::pictures
