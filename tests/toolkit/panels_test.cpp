#include "toolkit/panels.h"

#include "toolkit/form.h"

#include "event_log.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

struct ProgressCase {
    double Min, Max, Set, Held;
};

const ProgressCase progressCases[] = {
    {0, 100, 50, 50}, {0, 100, 150, 100}, {0, 100, -5, 0},
    {10, 20, 0, 10},  {10, 20, 99, 20},   {0, 0.5, 0.25, 0.25},
};

TEST(ProgressBar, Its_value_is_held_between_its_bounds)
{
    for (const ProgressCase& row : progressCases) {
        Form form("frm");
        ProgressBar bar(form, "prb");
        bar.Min = row.Min;
        bar.Max = row.Max;
        bar.Value = row.Set;
        EXPECT_EQ(bar.Value, row.Held) << row.Min << " " << row.Max << " " << row.Set;
    }
}

TEST(ProgressBar, New_bounds_hold_the_value_too)
{
    Form form("frm");
    ProgressBar bar(form, "prb");
    bar.Value = 80;
    EventLog log;
    log.WatchNotice(bar, Prop::Range, "range");
    log.WatchNotice(bar, Prop::Value, "value");
    bar.Max = 90;
    EXPECT_EQ(log.Take(), "range");
    bar.Max = 60;
    EXPECT_EQ(log.Take(), "range value");
    EXPECT_EQ(bar.Value, 60);
    EXPECT_EQ(bar.PropertyText("Value"), "60");
    EXPECT_EQ(bar.PropertyText("Min"), "0");
    EXPECT_EQ(bar.PropertyText("Max"), "60");
    EXPECT_EQ(bar.PropertyText("Left"), "0");
}

struct ScaleCase {
    bool Pixels, OuterPixels;
    double Border, Width, ScaleWidth;
};

const ScaleCase scaleCases[] = {
    {false, false, 0, 1500, 1500},  {true, false, 0, 1500, 100}, {true, false, 30, 1500, 96},
    {false, false, 30, 1500, 1440}, {false, true, 0, 10, 150},   {true, true, 0, 10, 10},
    {true, false, 30, 20, 0},
};

TEST(PictureBox, Its_scale_is_twips_or_pixels_inside_the_border)
{
    for (const ScaleCase& row : scaleCases) {
        Form form("frm");
        PictureBox outer(form, "outer"), box(form, "pic");
        outer.PixelScale = row.OuterPixels;
        box.Container = &outer;
        box.PixelScale = row.Pixels;
        box.BorderTwips = row.Border;
        box.Width = box.Height = row.Width;
        EXPECT_EQ(box.ScaleWidth(), row.ScaleWidth) << row.Width << " " << row.Border;
        EXPECT_EQ(box.ScaleHeight(), row.ScaleWidth) << row.Width << " " << row.Border;
    }
}

TEST(Frame, Its_scale_is_twips_in_any_container)
{
    Form form("frm");
    PictureBox outer(form, "outer");
    Frame frame(form, "fra");
    frame.Caption = "Frame";
    frame.Width = 20;
    frame.Height = 10;
    EXPECT_EQ(frame.PropertyText("ScaleWidth"), "20");
    outer.PixelScale = true;
    frame.Container = &outer;
    EXPECT_EQ(frame.PropertyText("ScaleWidth"), "300");
    EXPECT_EQ(frame.PropertyText("ScaleHeight"), "150");
    EXPECT_EQ(frame.PropertyText("Caption"), "Frame");
}

TEST(PictureBox, Its_picture_prints_as_what_it_shows)
{
    Form form("frm");
    PictureBox box(form, "pic");
    EXPECT_EQ(box.PropertyText("Picture"), "none");
    box.Picture = PictureRef::OfIcon('F', smallIconPixels);
    EXPECT_EQ(box.PropertyText("Picture"), "icon F");
    const auto one = std::make_shared<Bitmap>(80, 60), other = std::make_shared<Bitmap>(80, 60);
    box.Picture = PictureRef::OfBitmap(one);
    EXPECT_EQ(box.PropertyText("Picture"), "80x60");
    EXPECT_EQ(box.PropertyText("Stretch"), "False");
    EXPECT_EQ(box.PropertyText("ScaleWidth"), "0");
    EXPECT_EQ(box.PropertyText("Caption"), std::nullopt);
    EventLog log;
    log.WatchNotice(box, Prop::Picture, "picture");
    box.Picture = PictureRef::OfBitmap(one);
    EXPECT_EQ(log.Take(), "");
    box.Picture = PictureRef::OfBitmap(other);
    EXPECT_EQ(log.Take(), "picture");
}

TEST(ImageBox, Takes_the_size_of_its_picture_while_it_is_not_stretched)
{
    Form form("frm");
    PictureBox grid(form, "grid");
    grid.PixelScale = true;
    ImageBox inGrid(form, "a"), alone(form, "b");
    inGrid.Container = &grid;
    const auto picture = std::make_shared<Bitmap>(80, 60);
    for (ImageBox* image : {&inGrid, &alone}) {
        image->Move(5, 5, 7, 9);
        image->Picture = PictureRef::OfBitmap(picture);
        const double unit = image == &inGrid ? 1 : 15;
        EXPECT_EQ(image->Width, 80 * unit);
        EXPECT_EQ(image->Height, 60 * unit);
        EXPECT_EQ(image->Left, 5);
        image->Picture = PictureRef();
        EXPECT_EQ(image->Width, 80 * unit) << "it keeps its size without a picture";
        image->Stretch = true;
        image->Picture = PictureRef::OfIcon('F', largeIconPixels);
        EXPECT_EQ(image->Width, 80 * unit);
        image->Stretch = false;
        EXPECT_EQ(image->Width, 32 * unit);
    }
}

TEST(PictureRef, Of_no_bitmap_is_nothing)
{
    EXPECT_EQ(PictureRef::OfBitmap(nullptr), PictureRef());
}

TEST(Shape, Its_border_prints)
{
    Form form("frm");
    Shape shape(form, "shp");
    shape.BorderColor = -2147483635;
    shape.BorderWidth = 7;
    EXPECT_EQ(shape.PropertyText("BorderColor"), "-2147483635");
    EXPECT_EQ(shape.PropertyText("BorderWidth"), "7");
    EXPECT_EQ(shape.PropertyText("Visible"), "True");
    EXPECT_EQ(shape.PropertyText("Caption"), std::nullopt);
}

TEST(PictureBox, Tells_when_something_in_it_changes)
{
    Form form("frm");
    PictureBox box(form, "pic");
    EventLog log;
    log.On(box.InsideChanged, "inside");
    {
        Label label(form, "lbl");
        label.Container = &box;
        label.Caption = "x";
        EXPECT_EQ(log.Take(), "inside");
        label.Caption = "x";
        EXPECT_EQ(log.Take(), "");
    }
    EXPECT_EQ(log.Take(), "inside");
    box.BackColor = 5;
    EXPECT_EQ(log.Take(), "");
}

TEST(StatusBar, Panels_count_from_1)
{
    Form form("frm");
    StatusBar bar(form, "stb", 3);
    std::string told;
    bar.PanelChanged = [&](int number) { told += std::to_string(number); };
    bar.SetPanel(2, "two");
    bar.SetPanel(2, "two");
    bar.SetPanel(0, "x");
    bar.SetPanel(4, "x");
    bar.SetPanel(3, "three");
    EXPECT_EQ(told, "23");
    EXPECT_EQ(bar.PanelCount(), 3);
    EXPECT_EQ(bar.Panel(0), "");
    EXPECT_EQ(bar.Panel(9), "");
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {"Panels(1)", ""},
        {"Panels(2)", "two"},
        {"Panels(3)", "three"},
        {"Panels(0)", std::nullopt},
        {"Panels(4)", std::nullopt},
        {"Panels()", std::nullopt},
        {"Panels(-1)", std::nullopt},
        {"Panels(2", std::nullopt},
        {"Panels", std::nullopt},
        {"Panels(99999999999)", std::nullopt},
        {"Panels(a)", std::nullopt},
        {"Name", "stb"},
    };
    for (const auto& [property, text] : rows)
        EXPECT_EQ(bar.PropertyText(property), text) << property;
}

TEST(Timer, It_starts_switched_off_and_runs_with_an_interval_only)
{
    Form form("frm");
    Timer timer(form, "tmr");
    EXPECT_FALSE(timer.Enabled);
    EXPECT_FALSE(timer.Runs());
    timer.Enabled = true;
    EXPECT_FALSE(timer.Runs());
    timer.Interval = 250;
    EXPECT_TRUE(timer.Runs());
    EXPECT_EQ(timer.PropertyText("Interval"), "250");
    EXPECT_EQ(timer.PropertyText("Enabled"), "True");
    timer.Enabled = false;
    EXPECT_FALSE(timer.Runs());
}

TEST(Label, A_refresh_tells_the_host_to_paint)
{
    Form form("frm");
    Label label(form, "lbl");
    EventLog log;
    log.WatchNotice(label, Prop::Caption, "paint");
    label.Refresh();
    EXPECT_EQ(log.Take(), "paint");
}

} // namespace
} // namespace tavo
