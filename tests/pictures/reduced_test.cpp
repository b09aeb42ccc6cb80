#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/picture_reader.h"
#include "hosts/pictures/pictures.h"

#include "samples.h"
#include "support/temp_folder.h"

#include <QColorSpace>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <limits>
#include <random>

// Pictures that are made smaller while they are read, as thumbnails are.

namespace tavo::pictures {
namespace {

constexpr int most = std::numeric_limits<int>::max();

bool Is_Confined(const Sample& sample)
{
    return std::ranges::find(Kinds_All(), sample.Kind, &KindRules::Kind)->Confined;
}

// A decoder that is asked for less must not look away from what is broken.
void Verdicts_Expect(const TempFolder& folder, const std::string& bytes, const std::string& what)
{
    folder.Write("picture", bytes);
    const BitmapPtr whole = Bitmap_Load(folder.Path("picture"), 0, 0);
    for (const int bound : {1, 80}) {
        const BitmapPtr small = Bitmap_Load(folder.Path("picture"), bound, bound);
        ASSERT_EQ(small != nullptr, whole != nullptr) << what << ", bound " << bound;
        if (small == nullptr)
            continue;
        EXPECT_EQ(small->Width(), whole->Width()) << what << ", bound " << bound;
        EXPECT_EQ(small->Height(), whole->Height()) << what << ", bound " << bound;
        const BitmapPtr painted = Bitmap_Paint(*small, 9, 7);
        ASSERT_NE(painted, nullptr) << what << ", bound " << bound;
        EXPECT_EQ(Image_Of(*painted).size(), QSize(9, 7)) << what << ", bound " << bound;
    }
}

TEST(PictureReduced, A_picture_cut_short_has_the_verdict_of_the_whole)
{
    const TempFolder folder("pictures_reduced_cut");
    for (const Sample& sample : Samples()) {
        const std::size_t size = sample.Bytes.size();
        for (const std::size_t left : {size / 8, size / 2, size * 15 / 16, size - 1, size})
            Verdicts_Expect(folder, sample.Bytes.substr(0, left),
                            sample.Name + ": " + std::to_string(left) + " bytes");
    }
}

TEST(PictureReduced, A_picture_of_flipped_bits_has_the_verdict_of_the_whole)
{
    const TempFolder folder("pictures_reduced_bits");
    std::mt19937 chance(20261122);
    for (const Sample& sample : Samples()) {
        const int rounds = Is_Confined(sample) ? 3 : 60;
        for (int round = 0; round < rounds; ++round) {
            std::string bytes = sample.Bytes;
            for (int flip = 0; flip < 3; ++flip)
                Bit_Flip(bytes[chance() % bytes.size()], chance() % 8);
            Verdicts_Expect(folder, bytes, sample.Name + ", round " + std::to_string(round));
        }
    }
}

// A JPEG's end is far behind what a small picture of it needs.
TEST(PictureReduced, A_large_jpeg_without_its_end_is_none)
{
    const TempFolder folder("pictures_reduced_large");
    const std::string bytes = Bytes_Of(Image_Colours({1600, 1200}), "jpeg");
    for (const std::size_t missing : {std::size_t{1}, std::size_t{2}, bytes.size() / 8})
        Verdicts_Expect(folder, bytes.substr(0, bytes.size() - missing),
                        std::to_string(missing) + " bytes missing");
    folder.Write("picture", bytes.substr(0, bytes.size() - 2));
    EXPECT_EQ(Bitmap_Load(folder.Path("picture"), 80, 80), nullptr);
}

// A number of kilobytes that the system tells of this process.
long Kilobytes(const std::string& key)
{
    std::ifstream table("/proc/self/status");
    for (std::string word; table >> word;)
        if (long number = 0; word == key && table >> number)
            return number;
    ADD_FAILURE() << "nothing is told of " << key;
    return 0;
}

// How many megabytes the process grows by at the peak of a load.
long Load_Megabytes(const std::string& path, int bound)
{
    // Forgets the peak up to now.
    std::ofstream("/proc/self/clear_refs") << 5;
    const long before = Kilobytes("VmRSS:");
    EXPECT_NE(Bitmap_Load(path, bound, bound), nullptr) << bound;
    return (Kilobytes("VmHWM:") - before) / 1024;
}

TEST(PictureReduced, A_jpeg_made_small_is_never_in_memory_as_a_whole)
{
    const TempFolder folder("pictures_reduced_memory");
    QImage image(6000, 4000, QImage::Format_RGB32);
    image.fill(0xff405060);
    folder.Write("picture", Bytes_Of(image, "jpeg"));
    const long whole = static_cast<long>(image.sizeInBytes() / 1024 / 1024);
    image = QImage();
    // So it would be seen if it were.
    EXPECT_GE(Load_Megabytes(folder.Path("picture"), 0), whole / 2);
    EXPECT_LT(Load_Megabytes(folder.Path("picture"), 80), whole / 4);
    EXPECT_LT(Load_Megabytes(folder.Path("picture"), 1500), whole / 4);
}

TEST(PictureReduced, What_no_memory_holds_is_not_painted)
{
    const TempFolder folder("pictures_reduced_paint");
    folder.Write("picture", Samples().front().Bytes);
    const BitmapPtr good = Bitmap_Load(folder.Path("picture"), 0, 0);
    ASSERT_NE(good, nullptr);
    struct Row {
        int Width, Height;
    };
    const Row rows[] = {{most, most},     {most, 1},        {1, most},        {30'000, 30'000},
                        {512'000'001, 1}, {1, 512'000'001}, {65'536, 65'536}, {most / 4, most / 4}};
    for (const Row& row : rows)
        EXPECT_EQ(Bitmap_Paint(*good, row.Width, row.Height), nullptr)
            << row.Width << "x" << row.Height;
    for (const double scale : {0.0, -1.0, 1e-9, 1e9, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(Bitmap_Paint(*good, {100, 100}, scale), nullptr) << scale;
}

TEST(PictureReduced, Bounds_that_are_none_keep_the_whole_picture)
{
    const TempFolder folder("pictures_reduced_bounds");
    folder.Write("picture", Samples().front().Bytes);
    struct Row {
        int Width, Height;
    };
    for (const Row row : {Row{-1, -1}, Row{0, 80}, Row{-80, 80}, Row{most, most}, Row{1, 0}}) {
        const BitmapPtr loaded = Bitmap_Load(folder.Path("picture"), row.Width, row.Height);
        ASSERT_NE(loaded, nullptr) << row.Width << "x" << row.Height;
        EXPECT_EQ(Image_Of(*loaded).size(), QSize(60, 40)) << row.Width << "x" << row.Height;
    }
}

// Whoever makes it smaller, the decoder, we, or first the one and then the
// other: fine lines become grey, and no stripes.
TEST(PictureReduced, A_chequered_file_becomes_one_grey)
{
    QImage board(640, 480, QImage::Format_RGB32);
    for (int y = 0; y < board.height(); ++y)
        for (int x = 0; x < board.width(); ++x)
            board.setPixel(x, y, (x + y) % 2 == 0 ? 0xffffffff : 0xff000000);
    const TempFolder folder("pictures_reduced_board");
    for (const char* format : {"jpeg", "png", "bmp", "webp", "tiff"}) {
        folder.Write("picture", Bytes_Of(board, format, 100));
        for (const int bound : {40, 80, 100, 130, 300}) {
            const BitmapPtr loaded = Bitmap_Load(folder.Path("picture"), bound, bound);
            ASSERT_NE(loaded, nullptr) << format << " in " << bound;
            const BitmapPtr painted = Bitmap_Paint(*loaded, bound, bound * 3 / 4);
            ASSERT_NE(painted, nullptr) << format << " in " << bound;
            const QImage& image = Image_Of(*painted);
            int darkest = 255, lightest = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x) {
                    darkest = std::min(darkest, qGray(image.pixel(x, y)));
                    lightest = std::max(lightest, qGray(image.pixel(x, y)));
                }
            // Where a dot covers few others, one more or less of them counts.
            const int apart = 640 % bound == 0 ? 2 : 640 / bound > 4 ? 16 : 64;
            EXPECT_NEAR((darkest + lightest) / 2.0, 127, 8) << format << " in " << bound;
            EXPECT_LE(lightest - darkest, apart) << format << " in " << bound;
        }
    }
}

// A thousand thumbnails would each carry the words and profile of its photo.
TEST(PictureReduced, A_thumbnail_holds_nothing_but_its_dots)
{
    const TempFolder folder("pictures_reduced_words");
    QImage image = Image_Colours({400, 300});
    image.setText("Description", QString(20'000, 'x'));
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    folder.Write("picture", Bytes_Of(image, "png"));
    const BitmapPtr loaded = Bitmap_Load(folder.Path("picture"), 80, 80);
    ASSERT_NE(loaded, nullptr);
    const BitmapPtr painted = Bitmap_Paint(*loaded, 40, 30);
    ASSERT_NE(painted, nullptr);
    for (const BitmapPtr& bitmap : {loaded, painted}) {
        EXPECT_EQ(Image_Of(*bitmap).text("Description"), QString());
        EXPECT_FALSE(Image_Of(*bitmap).colorSpace().isValid());
    }
}

TEST(PictureReduced, A_dot_of_a_thumbnail_is_four_bytes_however_it_was_stored)
{
    const TempFolder folder("pictures_reduced_bytes");
    for (const Sample& sample : Samples()) {
        folder.Write("picture", sample.Bytes);
        const BitmapPtr loaded = Bitmap_Load(folder.Path("picture"), 0, 0);
        ASSERT_NE(loaded, nullptr) << sample.Name;
        for (const int width : {loaded->Width(), 13}) {
            const BitmapPtr painted = Bitmap_Paint(*loaded, width, loaded->Height());
            ASSERT_NE(painted, nullptr) << sample.Name;
            EXPECT_EQ(Image_Of(*painted).sizeInBytes(), width * loaded->Height() * 4)
                << sample.Name;
        }
    }
}

TEST(PictureReader, Broken_pictures_are_passed_over_without_a_word)
{
    const TempFolder folder("pictures_silence");
    std::fflush(stderr);
    testing::internal::CaptureStderr();
    for (const Sample& sample : Samples()) {
        folder.Write("picture", sample.Bytes.substr(0, sample.Bytes.size() / 2));
        EXPECT_EQ(Bitmap_Load(folder.Path("picture"), 0, 0), nullptr) << sample.Name;
    }
    std::fputs("a word of the host", stderr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a word of the host");
}

} // namespace
} // namespace tavo::pictures
