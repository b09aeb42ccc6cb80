#include "controls/frm_color.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

constexpr std::int32_t System(int number)
{
    return static_cast<std::int32_t>(0x80000000u | static_cast<unsigned>(number));
}

Key Plain(int code)
{
    Key key;
    key.Code = code;
    return key;
}

constexpr double narrow = 1770, wide = 5970;

class ColorForm : public testing::Test {
protected:
    ColorForm() { rig.Start(); }

    void Open(std::int32_t current, bool custom)
    {
        state().ColorCurrent = current;
        state().ColorDefault = System(5);
        state().ColorCustom = custom;
        form().EnsureLoaded();
        form().SetVisible(true);
    }
    SharedState& state() { return rig.P().state; }
    FrmColor& form() { return rig.P().Color(); }

    // "red green blue" of the fields, and of the sliders.
    std::string Fields()
    {
        FrmColor& f = form();
        return f.txtColor[1].Text.Get() + " " + f.txtColor[2].Text.Get() + " "
               + f.txtColor[3].Text.Get();
    }
    std::string Sliders()
    {
        FrmColor& f = form();
        return *f.hsbColor[1].PropertyText("Value") + " " + *f.hsbColor[2].PropertyText("Value")
               + " " + *f.hsbColor[3].PropertyText("Value");
    }
    // The person empties the field and types.
    void Type(int index, const std::string& text)
    {
        TextBox& field = form().txtColor[index];
        field.SetFocus();
        field.Select(0, 99);
        for (const char c : text)
            form().PersonKey(&field, Key_FromChar(static_cast<char32_t>(c)));
    }

    ProgramRig rig{MemoryDisk::Flavour::Posix};
};

TEST_F(ColorForm, Its_texts_read_to_the_letter)
{
    FrmColor& f = form();
    const std::pair<const Control*, std::string> rows[] = {
        {&f.cmdCustom, "&Custom >>"}, {&f.lblColor[1], "Red"},     {&f.lblColor[2], "Green"},
        {&f.lblColor[3], "Blue"},     {&f.lblColorOld, "Current"}, {&f.lblColorNew, "New"},
        {&f.cmdColorDef, "&Default"}, {&f.cmdCancel, "&Cancel"},
    };
    for (const auto& [control, caption] : rows)
        EXPECT_EQ(control->PropertyText("Caption"), caption) << control->FullName();
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(f.txtColor[i].Text.Get(), "0") << i;
        EXPECT_EQ(f.txtColor[i].MaxLength, 3) << i;
        EXPECT_EQ(f.hsbColor[i].Min, 0) << i;
        EXPECT_EQ(f.hsbColor[i].Max, 255) << i;
        EXPECT_EQ(f.hsbColor[i].LargeChange, 10) << i;
    }
}

TEST_F(ColorForm, There_are_six_rows_of_eight_boxes)
{
    constexpr std::int32_t colours[6][8] = {
        {0xFFFFFF, 0xC0C0FF, 0xC0E0FF, 0xC0FFFF, 0xC0FFC0, 0xFFFFC0, 0xFFC0C0, 0xFFC0FF},
        {0xE0E0E0, 0x8080FF, 0x80C0FF, 0x80FFFF, 0x80FF80, 0xFFFF80, 0xFF8080, 0xFF80FF},
        {0xC0C0C0, 0x0000FF, 0x0080FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000, 0xFF00FF},
        {0x808080, 0x0000C0, 0x0040C0, 0x00C0C0, 0x00C000, 0xC0C000, 0xC00000, 0xC000C0},
        {0x404040, 0x000080, 0x004080, 0x008080, 0x008000, 0x808000, 0x800000, 0x800080},
        {0x000000, 0x000040, 0x404080, 0x004040, 0x004000, 0x404000, 0x400000, 0x400040}};
    for (int row = 0; row < 6; ++row)
        for (int column = 0; column < 8; ++column) {
            const PictureBox& box = form().picColorSys[row * 8 + column];
            EXPECT_EQ(box.BackColor, colours[row][column]) << row << ", " << column;
            EXPECT_EQ(box.Left, 120 + column * 180) << row << ", " << column;
            EXPECT_EQ(box.Top, 120 + row * 180) << row << ", " << column;
            EXPECT_EQ(box.Width, 180);
            EXPECT_EQ(box.Height, 180);
        }
    EXPECT_EQ(form().picColorSys.High(), 47);
}

TEST_F(ColorForm, Narrow_it_is_boxes_and_a_button)
{
    Open(0x123456, false);
    EXPECT_EQ(form().Width(), narrow);
    EXPECT_TRUE(form().cmdCustom.Enabled);
    EXPECT_FALSE(form().picCustom.Visible);
    for (const Control* part : form().Controls())
        if (part->Container == &form().picCustom) {
            EXPECT_FALSE(part->IsShown()) << part->FullName();
        }
    EXPECT_EQ(form().picColorCur.BackColor, 0x123456);
    EXPECT_EQ(form().picColorNew.BackColor, 0x123456);
}

TEST_F(ColorForm, Wide_it_has_the_sliders_at_once)
{
    Open(0x123456, true);
    EXPECT_EQ(form().Width(), wide);
    EXPECT_FALSE(form().cmdCustom.Enabled);
    EXPECT_TRUE(form().picCustom.Visible);
    EXPECT_EQ(Fields(), "86 52 18");
    EXPECT_EQ(Sliders(), "86 52 18");
    EXPECT_EQ(form().picColorNew.BackColor, 0x123456);
}

TEST_F(ColorForm, In_the_narrow_form_each_box_is_chosen_by_one_click)
{
    for (int box = 0; box < FrmColor::boxCount; ++box) {
        Open(0x010203, false);
        form().picColorSys[box].PersonClick();
        EXPECT_FALSE(form().Loaded()) << box;
        EXPECT_EQ(state().ColorCurrent, form().picColorSys[box].BackColor.Get()) << box;
    }
}

TEST_F(ColorForm, In_the_wide_form_each_box_is_only_tried)
{
    Open(0x010203, true);
    for (int box = 0; box < FrmColor::boxCount; ++box) {
        form().picColorSys[box].PersonClick();
        EXPECT_TRUE(form().Loaded()) << box;
        EXPECT_EQ(form().picColorNew.BackColor, form().picColorSys[box].BackColor.Get()) << box;
        EXPECT_EQ(Fields(), Sliders()) << box;
    }
    EXPECT_EQ(form().picColorCur.BackColor, 0x010203);
    EXPECT_EQ(state().ColorCurrent, 0x010203);
    form().picColorSys[2].PersonClick();
    EXPECT_EQ(Fields(), "255 224 192");
    form().cmdOk.PersonClick();
    EXPECT_EQ(state().ColorCurrent, 0xC0E0FF);
    EXPECT_FALSE(form().Loaded());
}

TEST_F(ColorForm, The_button_widens_it_for_the_colour_in_use)
{
    Open(0x0000C0, false);
    form().cmdCustom.PersonClick();
    EXPECT_TRUE(state().ColorCustom);
    EXPECT_TRUE(form().Loaded());
    EXPECT_TRUE(form().hsbColor[1].HasFocus());
    EXPECT_EQ(form().Width(), wide);
    EXPECT_FALSE(form().cmdCustom.Enabled);
    EXPECT_TRUE(form().picCustom.Visible);
    EXPECT_EQ(Fields(), "192 0 0");
    EXPECT_EQ(Sliders(), "192 0 0");
    EXPECT_EQ(form().picColorNew.BackColor, 0x0000C0);
}

TEST_F(ColorForm, It_stays_inside_the_screen)
{
    const double right = rig.Desktop.ScreenWidth(), bottom = rig.Desktop.ScreenHeight();
    struct Row {
        double Left, Top;
    };
    for (const Row& row :
         {Row{-900, -300}, Row{right, bottom}, Row{right - narrow, bottom - 100}, Row{300, 450}}) {
        FrmColor& f = form();
        f.Move(row.Left, row.Top, f.Width(), f.Height());
        Open(0, false);
        EXPECT_EQ(f.Left(), std::clamp(row.Left, 0.0, right - f.Width())) << row.Left;
        EXPECT_EQ(f.Top(), std::clamp(row.Top, 0.0, bottom - f.Height())) << row.Top;
        f.cmdCustom.PersonClick();
        EXPECT_EQ(f.Left(), std::clamp(row.Left, 0.0, right - wide)) << row.Left;
        f.PersonClose();
    }
}

TEST_F(ColorForm, Before_it_opens_it_has_the_size_of_the_narrow_form)
{
    EXPECT_EQ(form().Width(), narrow);
    Open(0, true);
    form().cmdCancel.PersonClick();
    EXPECT_EQ(form().Width(), narrow);
}

TEST_F(ColorForm, A_host_may_need_another_size)
{
    form().SetExtent({3000, 9000, 3900});
    EXPECT_EQ(form().Width(), 3000);
    EXPECT_EQ(form().Height(), 3900);
    Open(0, false);
    EXPECT_EQ(form().Width(), 3000);
    form().cmdCustom.PersonClick();
    EXPECT_EQ(form().Width(), 9000);
    form().SetExtent({3300, 9300, 4200}); // the fonts have changed meanwhile
    EXPECT_EQ(form().Width(), 9300);
    EXPECT_EQ(form().Height(), 4200);
}

TEST_F(ColorForm, A_cancel_gives_back_what_came_in)
{
    for (const std::int32_t colour : {0x00123456, 0x00FFFFFF, 0, System(5), System(15)}) {
        Open(colour, true);
        form().hsbColor[1].PersonScroll(77);
        form().hsbColor[3].PersonDrag(12);
        Type(2, "99");
        form().picColorSys[20].PersonClick();
        form().cmdCancel.PersonClick();
        EXPECT_FALSE(form().Loaded()) << colour;
        EXPECT_EQ(state().ColorCurrent, colour);
    }
}

TEST_F(ColorForm, The_frame_and_the_escape_key_change_nothing_either)
{
    const auto byEscape = [this] { form().PersonKey(nullptr, Plain(keyEscape)); };
    const auto byFrame = [this] { form().PersonClose(); };
    for (const bool custom : {false, true})
        for (const std::function<void()>& close : {std::function<void()>(byEscape), {byFrame}}) {
            Open(System(15), custom);
            if (custom)
                form().hsbColor[2].PersonScroll(9);
            close();
            EXPECT_FALSE(form().Loaded()) << custom;
            EXPECT_EQ(state().ColorCurrent, System(15)) << custom;
        }
}

TEST_F(ColorForm, Return_takes_the_new_colour)
{
    Open(0, true);
    form().picColorSys[0].PersonClick();
    form().PersonKey(nullptr, Plain(keyReturn));
    EXPECT_FALSE(form().Loaded());
    EXPECT_EQ(state().ColorCurrent, 0xFFFFFF);
}

TEST_F(ColorForm, Return_and_escape_work_from_a_field)
{
    for (const int code : {keyReturn, keyEscape}) {
        Open(0x010203, true);
        Type(1, "9");
        form().PersonKey(&form().txtColor[1], Key_FromChar(static_cast<char32_t>(code)));
        EXPECT_FALSE(form().Loaded()) << code;
        EXPECT_EQ(state().ColorCurrent, code == keyReturn ? 0x010209 : 0x010203);
    }
}

TEST_F(ColorForm, A_system_colour_is_shown_by_its_bytes_and_kept)
{
    Open(0x00FF00, true);
    form().cmdColorDef.PersonClick();
    EXPECT_EQ(form().picColorNew.BackColor, System(5));
    EXPECT_EQ(Fields(), "5 0 0");
    EXPECT_EQ(Sliders(), "5 0 0");
    form().cmdOk.PersonClick();
    EXPECT_EQ(state().ColorCurrent, System(5));
}

TEST_F(ColorForm, The_sliders_take_over_once_one_is_touched)
{
    Open(System(5), true);
    EXPECT_EQ(form().picColorNew.BackColor, System(5));
    form().hsbColor[2].PersonDrag(16); // still held
    EXPECT_EQ(form().txtColor[2].Text.Get(), "16");
    EXPECT_EQ(form().picColorNew.BackColor, 0x001005);
    form().hsbColor[2].PersonScroll(32);
    EXPECT_EQ(form().picColorNew.BackColor, 0x002005);
    form().hsbColor[3].PersonKey(Plain(keyRight));
    EXPECT_EQ(form().picColorNew.BackColor, 0x012005);
    form().hsbColor[3].PersonKey(Plain(keyPageDown));
    EXPECT_EQ(Fields(), "5 32 11");
    EXPECT_EQ(form().picColorNew.BackColor, 0x0B2005);
}

TEST_F(ColorForm, A_click_on_the_colour_in_use_brings_it_back)
{
    Open(0x334455, true);
    form().hsbColor[1].PersonScroll(0);
    form().picColorCur.PersonClick();
    EXPECT_EQ(form().picColorNew.BackColor, 0x334455);
    EXPECT_EQ(Fields(), "85 68 51");
    EXPECT_EQ(Sliders(), "85 68 51");
}

TEST_F(ColorForm, What_is_typed_is_held_to_a_byte)
{
    struct Row {
        std::string Typed, Text;
        int Red;
    };
    for (const Row& row : {Row{"300", "255", 255}, Row{"255", "255", 255}, Row{"256", "255", 255},
                           Row{"7", "7", 7}, Row{"0", "0", 0}, Row{"1.5", "15", 15},
                           Row{"-5", "5", 5}, Row{"x9", "9", 9}, Row{"1234", "123", 123}}) {
        Open(0x0A0B0C, true);
        Type(1, row.Typed);
        EXPECT_EQ(form().txtColor[1].Text.Get(), row.Text) << row.Typed;
        EXPECT_EQ(form().hsbColor[1].Value, row.Red) << row.Typed;
        EXPECT_EQ(form().picColorNew.BackColor, 0x0A0B00 + row.Red) << row.Typed;
        form().cmdCancel.PersonClick();
    }
}

TEST_F(ColorForm, What_is_pasted_is_held_to_a_byte)
{
    struct Row {
        std::string Pasted, Text;
        int Green;
    };
    for (const Row& row : {Row{"", "0", 0}, Row{"-9", "0", 0}, Row{"999", "255", 255},
                           Row{"12", "12", 12}, Row{"9.9", "9.9", 10}, Row{"2.5", "2.5", 2},
                           Row{"9e9", "255", 255}, Row{"abc", "abc", 0}}) {
        Open(0x0A640C, true);
        form().txtColor[2].PersonText(row.Pasted);
        EXPECT_EQ(form().txtColor[2].Text.Get(), row.Text) << row.Pasted;
        EXPECT_EQ(form().hsbColor[2].Value, row.Green) << row.Pasted;
        EXPECT_EQ(form().picColorNew.BackColor, 0x0A000C + row.Green * 256) << row.Pasted;
        form().cmdCancel.PersonClick();
    }
}

TEST_F(ColorForm, A_field_is_selected_when_it_is_entered)
{
    Open(0xC8C8C8, true);
    form().txtColor[3].SetFocus();
    EXPECT_EQ(form().txtColor[3].SelText(), "200");
    form().PersonKey(&form().txtColor[3], Key_FromChar('5'));
    EXPECT_EQ(form().txtColor[3].Text.Get(), "5");
}

TEST_F(ColorForm, The_next_opening_knows_nothing_of_the_last_one)
{
    Open(0x010101, true);
    form().hsbColor[1].PersonScroll(200);
    form().PersonClose();
    Open(0x020202, true);
    EXPECT_EQ(Fields(), "2 2 2");
    EXPECT_EQ(Sliders(), "2 2 2");
    EXPECT_EQ(form().picColorCur.BackColor, 0x020202);
    EXPECT_EQ(form().picColorNew.BackColor, 0x020202);
}

} // namespace
} // namespace tavo
