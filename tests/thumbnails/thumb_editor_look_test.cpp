#include "thumb_editor_ground.h"

#include "controls/frm_color.h"

namespace tavo {
namespace {

using EditorLook = Editor;

// -- Sizes

TEST_F(EditorLook, Return_in_a_box_of_a_size_holds_it)
{
    Begin();
    struct Row {
        const char *Typed, *Text;
        int Value;
    };
    static constexpr Row rows[] = {
        {"500", "128", 128}, {"129", "128", 128},  {"128", "128", 128},      {"60", "60", 60},
        {"59", "60", 60},    {"1", "60", 60},      {"", "80", 80},           {"090", "090", 90},
        {"a7b0x", "70", 70}, {"70.5", "128", 128}, {"99999999", "128", 128},
    };
    for (const auto* id : {"ID_Width", "ID_Height"})
        for (const Row& row : rows) {
            OpenLook();
            Type(id, row.Typed);
            Press(id, keyReturn);
            EXPECT_TRUE(f().Loaded()) << "Return is not for OK";
            EXPECT_EQ(Text(id), row.Text) << id << ": " << row.Typed;
            const bool width = std::string_view(id) == "ID_Width";
            EXPECT_EQ(width ? f().Work.Width : f().Work.Height, row.Value) << row.Typed;
            EXPECT_EQ(width ? f().Work.Height : f().Work.Width, 80) << row.Typed;
            EXPECT_EQ(width ? f().Work.CellWidth : f().Work.CellHeight, row.Value + 10);
            EXPECT_EQ(width ? f().imgPreview.Width : f().imgPreview.Height, row.Value);
            f().Unload();
        }
}

TEST_F(EditorLook, A_box_that_is_left_holds_its_size_too)
{
    Begin();
    OpenLook();
    Type("ID_Height", "12");
    EXPECT_EQ(f().Work.Height, 80) << "not while it is typed";
    tool("ID_Width").Box->SetFocus();
    EXPECT_EQ(Text("ID_Height"), "60");
    EXPECT_EQ(Sizes(), "60x80 border 3 cell 90x70");
    tool("ID_Width").Box->PersonText("");
    f().cmdOk.SetFocus();
    EXPECT_EQ(Text("ID_Width"), "60");
    EXPECT_EQ(Sizes(), "60x60 border 3 cell 70x70");
}

TEST_F(EditorLook, Only_the_box_in_hand_is_held_and_both_are_read)
{
    Begin();
    OpenScheme("30,40");
    Type("ID_Width", "500");
    tool("ID_Height").Box->Text = "31";
    Press("ID_Width", keyReturn);
    EXPECT_EQ(Sizes(), "31x128 border 3 cell 138x41");
}

TEST_F(EditorLook, The_keys_that_edit_pass_and_escape_cancels)
{
    Begin();
    OpenLook();
    TextBox& box = *tool("ID_Width").Box;
    struct Row {
        int Key, After;
    };
    for (const Row& row :
         {Row{'0', '0'}, Row{'9', '9'}, Row{8, 8}, Row{3, 3}, Row{22, 22}, Row{24, 24}, Row{26, 26},
          Row{'.', 0}, Row{'-', 0}, Row{'a', 0}, Row{' ', 0}, Row{keyEscape, keyEscape}}) {
        int key = row.Key;
        box.KeyPress(key);
        EXPECT_EQ(key, row.After) << row.Key;
    }
    int letter = 'a';
    tool("ID_BorderWidth").Box->KeyPress(letter);
    EXPECT_EQ(letter, 'a') << "the filter is for the sizes";
    Press("ID_Width", keyEscape);
    EXPECT_FALSE(f().Loaded());
}

TEST_F(EditorLook, A_number_is_held_between_two_others)
{
    Begin();
    OpenLook();
    struct Row {
        const char *Text, *Held;
    };
    for (const Row& row :
         {Row{"4", "5"}, Row{"5", "5"}, Row{"05", "05"}, Row{"7.5", "7.5"}, Row{"10", "10"},
          Row{"11", "10"}, Row{"", "5"}, Row{"x", "5"}, Row{"-9", "5"}, Row{"1e30", "10"}}) {
        tool("ID_Width").Box->Text = row.Text;
        Thumb_Field_Clamp(tool("ID_Width"), 5, 10);
        EXPECT_EQ(Text("ID_Width"), row.Held) << row.Text;
    }
}

TEST_F(EditorLook, A_border_of_the_list_is_taken_at_once)
{
    Begin();
    OpenScheme("80,80,1");
    for (int index = 7; index >= 0; --index) {
        tool("ID_BorderWidth").Combo()->PersonChoose(index);
        const int border = index + 2;
        EXPECT_EQ(f().Work.BorderWidth, border);
        EXPECT_EQ(f().Work.CellWidth, 84 + 2 * border);
        EXPECT_EQ(f().shpPreview.BorderWidth, border);
        EXPECT_EQ(f().shpPreview.Width, 84 + 2 * border);
    }
}

// -- Colours

TEST_F(EditorLook, A_chip_lets_choose_its_colour)
{
    Begin();
    rig.Main().Move(3000, 2000, 12000, 9000);
    for (const bool scheme : {false, true})
        for (int i = 0; i <= 5; ++i) {
            s().ThumbLook.Color.fill(100 + i);
            s().SchemeEditText = "80,80,3,1,2,3,1,4,5,6";
            s().ColorCustom = true;
            Open(scheme);
            const std::int32_t before = f().Work.Color[static_cast<std::size_t>(i)];
            rig.Desktop.OnModal([&](Form& form) {
                EXPECT_EQ(form.Name(), "frmColor");
                EXPECT_EQ(s().ColorCurrent, before) << i;
                EXPECT_EQ(s().ColorDefault, builtIn[i]) << i;
                EXPECT_FALSE(s().ColorCustom);
                EXPECT_EQ(form.Left(), f().Left() + f().fraColor.Left) << i;
                EXPECT_EQ(form.Top(), f().Top() + f().fraColor.Top + f().picColor[i].Top) << i;
                rig.P().Color().picColorSys[9].PersonClick();
            });
            f().picColor[i].PersonClick();
            EXPECT_EQ(f().Work.Color[static_cast<std::size_t>(i)], 0x8080FF) << i;
            EXPECT_EQ(f().picColor[i].BackColor, 0x8080FF) << i;
            f().Unload();
        }
    EXPECT_EQ(rig.Desktop.ModalsLeft(), 0);
}

TEST_F(EditorLook, A_colour_that_is_not_chosen_stays)
{
    Begin();
    OpenLook();
    rig.Desktop.OnModal([](Form& form) { form.PersonClose(); });
    f().picColor[5].PersonClick();
    EXPECT_EQ(f().Work.Color[5], builtIn[5]);
    EXPECT_EQ(f().picPreview.BackColor, builtIn[5]);
}

TEST_F(EditorLook, The_selector_stays_on_the_screen)
{
    Begin();
    OpenLook();
    f().Move(rig.Desktop.ScreenWidth() - 100, rig.Desktop.ScreenHeight() - 100, f().Width(),
             f().Height());
    rig.Desktop.OnModal([&](Form& form) {
        EXPECT_EQ(form.Left() + form.Width(), rig.Desktop.ScreenWidth());
        EXPECT_EQ(form.Top() + form.Height(), rig.Desktop.ScreenHeight());
        form.PersonClose();
    });
    f().picColor[0].PersonClick();
}

TEST_F(EditorLook, A_label_puts_its_colour_back_and_shows_one_border)
{
    Begin();
    for (const bool scheme : {false, true})
        for (int i = 0; i <= 5; ++i) {
            s().ThumbLook.Color.fill(7);
            s().SchemeEditText = "80,80,3,1,2,3,1,4,5,6";
            Open(scheme);
            f().ShowNormal = i != 0;
            f().lblColor[i].PersonClick();
            EXPECT_EQ(f().Work.Color[static_cast<std::size_t>(i)], builtIn[i]) << i;
            EXPECT_EQ(f().picColor[i].BackColor, builtIn[i]) << i;
            EXPECT_EQ(f().ShowNormal, i == 0) << i;
            EXPECT_EQ(f().shpPreview.BorderColor, f().Work.Color[i == 0 ? 0 : 1]) << i;
            f().Unload();
        }
}

// -- The preview

TEST_F(EditorLook, The_preview_shows_one_border_or_the_other)
{
    Begin();
    OpenScheme("80,80,3,1,2,3,1,4,5,6");
    const auto Shown = [this] {
        return std::to_string(f().shpPreview.BorderColor) + "|" + f().lblColor[0].Caption.Get()
               + "|" + f().lblColor[1].Caption.Get() + "|" + f().imgPreview.ToolTipText.Get();
    };
    const std::string selected =
        "2|Normal Border|Selected Border - Active|Click to Show Normal Border Color";
    EXPECT_EQ(Shown(), selected);
    f().imgPreview.PersonClick();
    EXPECT_EQ(Shown(),
              "3|Normal Border - Active|Selected Border|Click to Show Selected Border Color");
    f().imgPreview.PersonClick();
    EXPECT_EQ(Shown(), selected);
}

TEST_F(EditorLook, The_preview_stands_in_the_middle)
{
    Begin();
    for (const auto* record :
         {"80,80,3,1,2,3,1,4,5,6", "60,128,9,1,2,3,0,4,5,6", "30,300,1,1,2,3,2,4,5,6"}) {
        OpenScheme(record);
        const ThumbLook& look = f().Work;
        const Shape& frame = f().shpPreview;
        EXPECT_EQ(frame.Width, look.CellWidth) << record;
        EXPECT_EQ(frame.Height, look.CellHeight) << record;
        EXPECT_EQ(frame.Left * 2 + frame.Width, f().picPreview.ScaleWidth()) << record;
        EXPECT_EQ(frame.Top * 2 + frame.Height, f().picPreview.ScaleHeight()) << record;
        EXPECT_EQ(frame.BackColor, 1) << record;
        EXPECT_EQ(frame.BorderWidth, look.BorderWidth) << record;
        EXPECT_EQ(f().imgPreview.Width, look.Width) << record;
        EXPECT_EQ(f().imgPreview.Height, look.Height) << record;
        EXPECT_EQ(f().imgPreview.Left * 2 + look.Width, frame.Left * 2 + frame.Width) << record;
        EXPECT_EQ(f().imgPreview.Top * 2 + look.Height, frame.Top * 2 + frame.Height) << record;
        EXPECT_EQ(f().lblPreview.Left, frame.Left) << record;
        EXPECT_EQ(f().lblPreview.Top, frame.Top + frame.Height) << record;
        EXPECT_EQ(f().lblPreview.Width, frame.Width) << record;
        EXPECT_EQ(f().lblPreview.Height, 17) << record;
        EXPECT_EQ(f().lblPreview.BackColor, 4) << record;
        EXPECT_EQ(f().lblPreview.ForeColor, 5) << record;
        EXPECT_EQ(f().picPreview.BackColor, 6) << record;
        f().Unload();
    }
}

TEST_F(EditorLook, The_alignment_tools_exclude_each_other)
{
    Begin();
    OpenLook();
    struct Row {
        const char *Id, *Pressed;
        int Alignment;
    };
    for (const Row& row : {Row{"ID_AlignLeft", "Left", 0}, Row{"ID_AlignRight", "Right", 1},
                           Row{"ID_AlignRight", "Right", 1}, Row{"ID_AlignCenter", "Center", 2}}) {
        tool(row.Id).PersonClick();
        EXPECT_EQ(Pressed(), row.Pressed);
        EXPECT_EQ(f().Work.Align, row.Alignment) << row.Id;
        EXPECT_EQ(f().lblPreview.Alignment, row.Alignment) << row.Id;
    }
    EXPECT_EQ(s().ThumbLook.Align, 2);
}

} // namespace
} // namespace tavo
