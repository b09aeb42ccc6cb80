#include "hosts/pictures/pictures.h"

#include "samples.h"

#include <QColor>
#include <QTransform>

#include <gtest/gtest.h>

#include <set>

namespace tavo::pictures {
namespace {

struct Means {
    double Red = 0, Green = 0, Blue = 0, Alpha = 0;
};

Means Means_Of(const QImage& image)
{
    Means means;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb colour = image.pixel(x, y);
            means.Red += qRed(colour);
            means.Green += qGreen(colour);
            means.Blue += qBlue(colour);
            means.Alpha += qAlpha(colour);
        }
    const double dots = double(image.width()) * image.height();
    return {means.Red / dots, means.Green / dots, means.Blue / dots, means.Alpha / dots};
}

// Lines of one dot, black and white, which a scaler that only picks dots turns
// into stripes or into one of the two.
QImage Lines(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, (x + y) % 2 == 0 ? 0xffffffff : 0xff000000);
    return image;
}

TEST(PictureScale, Fit_takes_the_whole_part_of_the_other_side)
{
    struct Row {
        QSize Full, Bound, Wanted;
    };
    const Row rows[] = {
        {{100, 300}, {80, 80}, {26, 80}},   {{300, 100}, {80, 80}, {80, 26}},
        {{10, 10}, {80, 80}, {10, 10}},     {{80, 80}, {80, 80}, {80, 80}},
        {{81, 80}, {80, 80}, {80, 79}},     {{10'000, 1}, {80, 80}, {80, 1}},
        {{1, 10'000}, {80, 80}, {1, 80}},   {{160, 160}, {80, 80}, {80, 80}},
        {{100, 50}, {}, {100, 50}},         {{100, 50}, {0, 80}, {100, 50}},
        {{65'000, 40'000}, {3, 2}, {3, 1}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Size_Fit(row.Full, row.Bound), row.Wanted)
            << row.Full.width() << "x" << row.Full.height() << " in " << row.Bound.width() << "x"
            << row.Bound.height();
}

TEST(PictureScale, Fine_lines_become_an_even_grey)
{
    for (const QSize size : {QSize(20, 20), QSize(25, 10), QSize(7, 31), QSize(1, 1)}) {
        const QImage image = Scale_Smooth(Lines({200, 200}), size);
        ASSERT_EQ(image.size(), size);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                EXPECT_NEAR(qRed(image.pixel(x, y)), 127, 12)
                    << size.width() << "x" << size.height() << " at " << x << "," << y;
    }
}

// Shrunk by whole numbers each dot is the mean of those that it covers.
TEST(PictureScale, A_chequered_board_an_eighth_as_large_is_one_grey)
{
    for (const QSize full : {QSize(64, 64), QSize(800, 80), QSize(8, 8), QSize(80, 1600)}) {
        const QImage image = Scale_Smooth(Lines(full), full / 8);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                EXPECT_NEAR(qRed(image.pixel(x, y)), 127, 1)
                    << full.width() << "x" << full.height() << " at " << x << "," << y;
    }
}

// A scaler that picks dots, or looks at four of them only, loses it.
TEST(PictureScale, A_thin_line_keeps_its_share_wherever_it_is)
{
    constexpr int side = 96, share = 8;
    for (int place = 0; place < side; ++place) {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(0xff000000);
        for (int i = 0; i < side; ++i)
            image.setPixel(place, i, 0xffffffff);
        const QImage narrow = Scale_Smooth(image, {side / share, side / share});
        const QImage low =
            Scale_Smooth(image.transformed(QTransform().rotate(90)), {side / share, side / share});
        EXPECT_NEAR(Means_Of(narrow).Red, 255.0 / side, 0.3) << "column " << place;
        EXPECT_NEAR(Means_Of(low).Red, 255.0 / side, 0.3) << "row " << place;
        EXPECT_NEAR(qRed(narrow.pixel(place / share, 3)), 255.0 / share, 2) << "column " << place;
    }
}

TEST(PictureScale, An_edge_made_larger_is_a_soft_slope)
{
    QImage image(4, 4, QImage::Format_RGB32);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            image.setPixel(x, y, x < 2 ? 0xff000000 : 0xffffffff);
    const QImage large = Scale_Smooth(image, {64, 64});
    std::set<int> levels;
    for (int x = 0; x < 64; ++x) {
        levels.insert(qRed(large.pixel(x, 30)));
        EXPECT_EQ(large.pixel(x, 30), large.pixel(x, 5)) << x;
        if (x > 0) {
            const int step = qRed(large.pixel(x, 30)) - qRed(large.pixel(x - 1, 30));
            EXPECT_GE(step, 0) << x;
            EXPECT_LE(step, 40) << x;
        }
    }
    EXPECT_EQ(*levels.begin(), 0);
    EXPECT_EQ(*levels.rbegin(), 255);
    EXPECT_GE(levels.size(), 8u);
}

TEST(PictureScale, The_mean_colour_stays)
{
    const QImage image = Image_Colours({300, 200});
    const Means before = Means_Of(image);
    for (const QSize size : {QSize(30, 20), QSize(97, 61), QSize(600, 410), QSize(3, 200)}) {
        const Means after = Means_Of(Scale_Smooth(image, size));
        EXPECT_NEAR(after.Red, before.Red, 2) << size.width();
        EXPECT_NEAR(after.Green, before.Green, 2) << size.width();
        EXPECT_NEAR(after.Blue, before.Blue, 2) << size.width();
    }
}

// What cannot be seen has no say in the colour: no dark seam round a shape.
TEST(PictureScale, Clear_dots_do_not_stain_their_neighbours)
{
    QImage image(64, 64, QImage::Format_ARGB32);
    image.fill(qRgba(0, 0, 0, 0));
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 33; ++x)
            image.setPixel(x, y, qRgba(255, 200, 100, 255));
    const QImage small = Scale_Smooth(image, {8, 8});
    ASSERT_TRUE(small.hasAlphaChannel());
    for (int x = 0; x < 8; ++x) {
        const QColor colour = small.pixelColor(x, 4);
        if (colour.alpha() < 16)
            continue;
        EXPECT_NEAR(colour.red(), 255, 8) << x;
        EXPECT_NEAR(colour.green(), 200, 8) << x;
    }
    EXPECT_NEAR(Means_Of(small).Alpha, 255.0 * 33 / 64, 3);
    EXPECT_EQ(qAlpha(small.pixel(0, 0)), 255);
    EXPECT_EQ(qAlpha(small.pixel(7, 0)), 0);
}

// Half a red dot beside a whole blue one is a third of what is seen.
TEST(PictureScale, A_dot_weighs_by_its_opacity)
{
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(255, 0, 0, 128));
    image.setPixel(1, 0, qRgba(0, 0, 255, 255));
    const QColor colour = Scale_Smooth(image, {1, 1}).pixelColor(0, 0);
    EXPECT_NEAR(colour.red(), 85, 3);
    EXPECT_NEAR(colour.blue(), 170, 3);
    EXPECT_NEAR(colour.alpha(), 192, 2);
}

TEST(PictureScale, Every_kind_of_image_is_scaled)
{
    for (int format = QImage::Format_Mono; format < QImage::NImageFormats; ++format) {
        const QImage image =
            Image_Colours({40, 30}).convertToFormat(static_cast<QImage::Format>(format));
        ASSERT_FALSE(image.isNull()) << format;
        EXPECT_EQ(Scale_Smooth(image, {13, 9}).size(), QSize(13, 9)) << format;
        EXPECT_EQ(Scale_Smooth(image, {80, 90}).size(), QSize(80, 90)) << format;
    }
}

TEST(PictureScale, Nothing_gives_nothing)
{
    EXPECT_TRUE(Scale_Smooth({}, {10, 10}).isNull());
    EXPECT_TRUE(Scale_Smooth(Lines({9, 9}), {}).isNull());
    EXPECT_TRUE(Scale_Smooth(Lines({9, 9}), {0, 4}).isNull());
}

} // namespace
} // namespace tavo::pictures
