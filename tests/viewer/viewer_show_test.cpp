#include "viewer/frm_viewer.h"

#include "support/viewer_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

const std::vector<ViewedFile> fourFiles = {
    {"a.jpg", 30, 20}, {"b.txt"}, {"c.jpg", 30, 20}, {"d.jpg", 30, 20}};

bool IsDown(ViewerRig& rig, const char* id)
{
    return rig.Tool_Of(id)->Checked;
}

TEST(ViewerShow, At_rest_the_timers_are_off_and_wait_a_second)
{
    ViewerRig rig(fourFiles);
    FrmViewer& v = rig.Open();
    for (const Timer* timer : {&v.tmrAutoShow, &v.tmrHideThumb}) {
        EXPECT_FALSE(timer->Enabled) << timer->Name();
        EXPECT_EQ(timer->Interval, 1000) << timer->Name();
    }
    EXPECT_EQ(rig.Seconds().Text.Get(), "1");
}

TEST(ViewerShow, It_walks_the_pictures_forward_and_never_ends)
{
    ViewerRig rig(fourFiles);
    FrmViewer& v = rig.Open(1);
    rig.Tool_Click("ID_ShowPlayF");
    EXPECT_TRUE(v.tmrAutoShow.Runs());
    EXPECT_TRUE(IsDown(rig, "ID_ShowPlayF"));
    EXPECT_FALSE(IsDown(rig, "ID_ShowPlayR"));
    EXPECT_EQ(v.hsbCurImage.Value, 1) << "nothing moves before the first tick";
    for (const int place : {3, 4, 1, 3}) {
        v.tmrAutoShow.Tick();
        EXPECT_EQ(v.hsbCurImage.Value, place);
    }
}

TEST(ViewerShow, And_backward)
{
    ViewerRig rig(fourFiles);
    FrmViewer& v = rig.Open(1);
    rig.Tool_Click("ID_ShowPlayF");
    rig.Tool_Click("ID_ShowPlayR");
    EXPECT_FALSE(IsDown(rig, "ID_ShowPlayF"));
    EXPECT_TRUE(IsDown(rig, "ID_ShowPlayR"));
    EXPECT_FALSE(rig.P().state.ShowForward);
    for (const int place : {4, 3, 1}) {
        v.tmrAutoShow.Tick();
        EXPECT_EQ(v.hsbCurImage.Value, place);
    }
}

TEST(ViewerShow, Pressed_again_it_stays_down_and_goes_on)
{
    ViewerRig rig(fourFiles);
    rig.Open(1);
    rig.Tool_Click("ID_ShowPlayF");
    rig.Tool_Click("ID_ShowPlayF");
    EXPECT_TRUE(IsDown(rig, "ID_ShowPlayF"));
    EXPECT_TRUE(rig.V().tmrAutoShow.Enabled);
}

TEST(ViewerShow, A_list_without_pictures_stays_on_its_row)
{
    ViewerRig rig({{"a.txt"}, {"b.txt"}});
    FrmViewer& v = rig.Open(2);
    rig.Tool_Click("ID_ShowPlayF");
    v.tmrAutoShow.Tick();
    EXPECT_EQ(v.hsbCurImage.Value, 2);
    EXPECT_TRUE(v.tmrAutoShow.Enabled);
}

TEST(ViewerShow, Stop_ends_it)
{
    for (const char* way : {"ID_ShowPlayF", "ID_ShowPlayR"}) {
        ViewerRig rig(fourFiles);
        rig.Open();
        rig.Tool_Click(way);
        rig.Tool_Click("ID_ShowStop");
        EXPECT_FALSE(rig.V().tmrAutoShow.Enabled) << way;
        EXPECT_FALSE(IsDown(rig, way)) << way;
    }
}

TEST(ViewerShow, Another_window_in_front_ends_it_and_it_does_not_begin_again)
{
    for (const char* way : {"ID_ShowPlayF", "ID_ShowPlayR"}) {
        ViewerRig rig(fourFiles);
        FrmViewer& v = rig.Open();
        rig.Tool_Click(way);
        v.PersonActivate(false);
        EXPECT_FALSE(v.tmrAutoShow.Enabled) << way;
        EXPECT_FALSE(IsDown(rig, way)) << way;
        v.PersonActivate(true);
        EXPECT_FALSE(v.tmrAutoShow.Enabled) << way;
    }
}

TEST(ViewerShow, Coming_to_the_front_ends_what_still_runs)
{
    ViewerRig rig(fourFiles);
    rig.Open();
    rig.Tool_Click("ID_ShowPlayR");
    Viewer_Sync(rig.P());
    EXPECT_FALSE(rig.V().tmrAutoShow.Enabled);
    EXPECT_FALSE(IsDown(rig, "ID_ShowPlayR"));
}

struct IntervalRow {
    const char* Text;
    int Interval; // was 1000
};

// The text is what stands there, made right or not.
constexpr IntervalRow intervalRows[] = {
    {"5", 5000},
    {"2.5", 2500},
    {"0.5", 500},
    {"1.0009", 1000},
    {"90", 90000},
    {"", 0},
    {"words", 0},
    {"0", 0},
    {"3 words", 3000},
    {"-4", 1000},
    {"2147483", 2147483000},
    {"2147484", 1000},
    {"1e300", 1000},
    {"1e999", 1000},
};

TEST(ViewerSeconds, The_show_takes_the_delay_from_the_field)
{
    for (const IntervalRow& row : intervalRows) {
        ViewerRig rig(fourFiles);
        FrmViewer& v = rig.Open();
        rig.Seconds().Text = row.Text;
        rig.Tool_Click("ID_ShowPlayF");
        EXPECT_EQ(v.tmrAutoShow.Interval, row.Interval) << row.Text;
        EXPECT_EQ(v.tmrAutoShow.Runs(), row.Interval > 0) << row.Text;
    }
}

struct SecondsRow {
    const char *Typed, *Text;
    int Interval;
};

constexpr SecondsRow secondsRows[] = {
    {"5", "5", 5000},    {"0.5", "1", 1000},     {"0.999", "1", 1000},   {"90", "60", 60000},
    {"60", "60", 60000}, {"60.01", "60", 60000}, {"2.5", "2.5", 2500},   {"2.50", "2.5", 2500},
    {"007", "7", 7000},  {"", "1", 1000},        {".", "1", 1000},       {"3.x", "3", 3000},
    {"-8", "1", 1000},   {"1e999", "60", 60000}, {"1.5.5", "1.5", 1500},
};

TEST(ViewerSeconds, Return_makes_the_number_right_and_takes_it_at_once)
{
    for (const SecondsRow& row : secondsRows) {
        ViewerRig rig(fourFiles);
        rig.Open();
        rig.Seconds().SetFocus();
        rig.Seconds().PersonText(row.Typed);
        rig.Press(keyReturn, '\r');
        EXPECT_EQ(rig.Seconds().Text.Get(), row.Text) << row.Typed;
        EXPECT_EQ(rig.V().tmrAutoShow.Interval, row.Interval) << row.Typed;
        EXPECT_FALSE(rig.V().tmrAutoShow.Enabled) << row.Typed;
    }
}

TEST(ViewerSeconds, Leaving_makes_the_number_right_and_leaves_the_timer)
{
    for (const SecondsRow& row : secondsRows) {
        ViewerRig rig(fourFiles);
        rig.Open();
        rig.V().tmrAutoShow.Interval = 77;
        rig.Seconds().SetFocus();
        rig.Seconds().PersonText(row.Typed);
        rig.V().hsbCurImage.SetFocus();
        EXPECT_EQ(rig.Seconds().Text.Get(), row.Text) << row.Typed;
        EXPECT_EQ(rig.V().tmrAutoShow.Interval, 77) << row.Typed;
    }
}

TEST(ViewerSeconds, Return_in_a_running_show_begins_the_delay_anew)
{
    ViewerRig rig(fourFiles);
    FrmViewer& v = rig.Open();
    rig.Tool_Click("ID_ShowPlayF");
    std::string turns;
    const Connection heard = v.tmrAutoShow.Changed.Listen([&](Prop what) {
        if (what == Prop::Enabled)
            turns += v.tmrAutoShow.Enabled ? "on " : "off ";
    });
    rig.Seconds().Text = "4";
    rig.Press(keyReturn);
    EXPECT_EQ(v.tmrAutoShow.Interval, 4000);
    EXPECT_EQ(turns, "off on ");
    EXPECT_TRUE(IsDown(rig, "ID_ShowPlayF"));
}

TEST(ViewerSeconds, Other_keys_leave_the_number)
{
    ViewerRig rig(fourFiles);
    rig.Open();
    rig.Seconds().Text = "90";
    rig.Press(keyHome);
    EXPECT_EQ(rig.Seconds().Text.Get(), "90");
}

TEST(ViewerSeconds, Only_numbers_can_be_typed)
{
    ViewerRig rig(fourFiles);
    rig.Open();
    for (int code = 1; code < 256; ++code) {
        const bool passes = (code >= '0' && code <= '9') || code == 8 || code == 46 || code == 3
                            || code == 22 || code == 24 || code == 26;
        int key = code;
        rig.Seconds().KeyPress(key);
        EXPECT_EQ(key, passes ? code : 0) << code;
    }
}

TEST(ViewerSeconds, The_whole_number_is_selected_on_the_way_in)
{
    ViewerRig rig(fourFiles);
    rig.Open();
    rig.V().hsbCurImage.SetFocus();
    rig.Seconds().Text = "2.5";
    rig.Seconds().Select(1, 0);
    rig.Seconds().SetFocus();
    EXPECT_EQ(rig.Seconds().SelStart(), 0);
    EXPECT_EQ(rig.Seconds().SelLength(), 3);
}

} // namespace
} // namespace tavo
