#include "thumb_editor_ground.h"

#include "core/commands.h"
#include "settings/frm_settings.h"
#include "thumbnails/thumb_editor_parts.h"

#include <algorithm>
#include <functional>
#include <set>

namespace tavo {
namespace {

// -- The tools

TEST(EditorCommands, No_id_stands_twice_and_each_has_a_caption_and_a_category)
{
    std::set<std::string_view> ids;
    for (const Command& command : Editor_Commands()) {
        EXPECT_TRUE(ids.insert(command.Id).second) << command.Id;
        EXPECT_FALSE(command.Caption.empty()) << command.Id;
        EXPECT_FALSE(command.Category.empty()) << command.Id;
    }
}

TEST(EditorCommands, Every_button_does_something_and_every_tool_can_be_reached)
{
    for (const Command& command : Editor_Commands()) {
        const bool button = command.Kind == ToolKind::Button || command.Kind == ToolKind::Toggle;
        EXPECT_EQ(command.Run != nullptr, button) << command.Id;
        const bool stands = std::ranges::any_of(Editor_Bands(), [&](const BandPlan& plan) {
            return std::ranges::find(plan.Tools, command.Id) != plan.Tools.end();
        });
        EXPECT_TRUE(stands) << command.Id;
    }
    for (const BandPlan& plan : Editor_Bands())
        for (const std::string_view id : plan.Tools)
            if (!id.empty() && id != "-") {
                EXPECT_NE(std::ranges::find(Editor_Commands(), id, &Command::Id),
                          Editor_Commands().end())
                    << plan.Name << ": " << id;
            }
}

TEST(EditorCommands, Texts_read_to_the_letter)
{
    struct Texts {
        const char *Id, *Caption, *Tip;
    };
    static constexpr Texts rows[] = {
        {"ID_AlignLeft", "Align &Left", "&Align Caption Left"},
        {"ID_AlignRight", "Align &Right", "&Align Caption Right"},
        {"ID_AlignCenter", "Align &Center", "&Center Caption"},
        {"ID_TSchemesAdd", "&Add to Schemes...", ""},
        {"ID_TSchemesOrg", "&Organize Schemes...", ""},
        {"ID_TSchemesDef", "&Default Scheme", ""},
        {"ID_tbTextLabels", "&Text Labels", "Display Text Labels under Toolbar Buttons"},
        {"ID_Exit", "E&xit", "Exit without Saving"},
        {"ID_BorderWidth", "Border", "Width of Thumbnail Border in Pixels"},
        {"ID_Width", "Width", "Width of Thumbnail in Pixels"},
        {"ID_Height", "Height", "Height of Thumbnail in Pixels"},
    };
    for (const Texts& row : rows) {
        const auto found = std::ranges::find(Editor_Commands(), row.Id, &Command::Id);
        ASSERT_NE(found, Editor_Commands().end()) << row.Id;
        EXPECT_EQ(found->Caption, row.Caption) << row.Id;
        EXPECT_EQ(found->Tip, row.Tip) << row.Id;
        if (found->Id == "ID_BorderWidth") {
            EXPECT_EQ(found->Description, "Sets the Border Width in Pixels");
        }
    }
}

TEST_F(Editor, Its_controls_read_to_the_letter)
{
    Begin();
    constexpr std::string_view captions[] = {"Normal Border",        "Selected Border - Active",
                                             "Thumbnail Background", "Caption Text",
                                             "Caption Background",   "Window Background"};
    for (int i = 0; i <= 5; ++i) {
        EXPECT_EQ(f().lblColor[i].Caption.Get(), captions[i]) << i;
        EXPECT_EQ(f().lblColor[i].ToolTipText.Get(), "Click to Set Default Color") << i;
        EXPECT_EQ(f().picColor[i].Container, &f().fraColor) << i;
    }
    EXPECT_EQ(f().picColor.High(), 5);
    EXPECT_EQ(f().lblPreview.Caption.Get(), "Name.Ext");
    EXPECT_FALSE(f().imgOriginal.Visible);
    EXPECT_FALSE(f().picThumb.Visible);
    const std::vector<std::string> widths = {"2", "3", "4", "5", "6", "7", "8", "9"};
    EXPECT_EQ(tool("ID_BorderWidth").Combo()->Items(), widths);
}

// -- Opening

TEST_F(Editor, On_the_look_in_force_it_copies_it)
{
    Begin();
    s().ThumbLook.Color = {1, 2, 3, 4, 5, 6};
    s().ThumbLook.Align = 1;
    OpenLook();
    EXPECT_EQ(f().Caption(), "Thumbnail Editor");
    EXPECT_TRUE(tool("ID_TSchemesAdd").Enabled);
    EXPECT_TRUE(tool("ID_TSchemesOrg").Enabled);
    EXPECT_EQ(Sizes(), "80x80 border 3 cell 90x90");
    EXPECT_EQ(Text("ID_Width"), "80");
    EXPECT_EQ(Text("ID_Height"), "80");
    EXPECT_EQ(Text("ID_BorderWidth"), "3");
    EXPECT_EQ(tool("ID_BorderWidth").Combo()->ListIndex(), 1);
    EXPECT_EQ(Pressed(), "Right");
    EXPECT_EQ(f().lblPreview.Alignment, 1);
    for (int i = 0; i <= 5; ++i)
        EXPECT_EQ(f().picColor[i].BackColor, i + 1) << i;
}

TEST_F(Editor, On_the_look_in_force_it_holds_the_sizes)
{
    Begin();
    struct Row {
        std::int16_t Height, Width, Border;
        const char* Held;
        int Index;
    };
    static constexpr Row rows[] = {
        {60, 128, 2, "60x128 border 2 cell 136x68", 0},
        {128, 60, 9, "128x60 border 9 cell 82x150", 7},
        {59, 129, 1, "60x128 border 2 cell 136x68", 0},
        {30, 500, 10, "60x128 border 9 cell 150x82", 7},
        {-5, 0, 0, "60x60 border 2 cell 68x68", 0},
        {32767, 80, -3, "128x80 border 2 cell 88x136", 0},
    };
    for (const Row& row : rows) {
        ThumbLook& look = s().ThumbLook;
        look.Height = row.Height;
        look.Width = row.Width;
        look.BorderWidth = row.Border;
        const std::string before = Sizes_Of(look);
        OpenLook();
        EXPECT_EQ(Sizes(), row.Held) << before;
        EXPECT_EQ(tool("ID_BorderWidth").Combo()->ListIndex(), row.Index) << before;
        EXPECT_EQ(Text("ID_Height"), std::to_string(f().Work.Height)) << before;
        EXPECT_EQ(Text("ID_Width"), std::to_string(f().Work.Width)) << before;
        EXPECT_EQ(Sizes_Of(look), before) << "the look in force waits for OK";
        f().Unload();
    }
}

TEST_F(Editor, The_cell_is_measured_by_the_margin_of_the_look)
{
    Begin();
    s().ThumbLook.Margin = 6; // as after the first layout of the grid
    OpenLook();
    EXPECT_EQ(Sizes(), "80x80 border 3 cell 92x92");
    f().Unload();
    OpenScheme("100,70,4");
    EXPECT_EQ(Sizes(), "100x70 border 4 cell 84x114");
}

TEST_F(Editor, On_a_record_it_shows_what_stands_there)
{
    Begin();
    OpenScheme("100,60,5,11,22,33,0,44,55,66");
    EXPECT_EQ(f().Caption(), "Scheme Editor");
    EXPECT_FALSE(tool("ID_TSchemesAdd").Enabled);
    EXPECT_FALSE(tool("ID_TSchemesOrg").Enabled);
    EXPECT_EQ(Sizes(), "100x60 border 5 cell 74x114");
    EXPECT_EQ(Text("ID_Height"), "100");
    EXPECT_EQ(Text("ID_Width"), "60");
    EXPECT_EQ(Text("ID_BorderWidth"), "5");
    EXPECT_EQ(Pressed(), "Left");
    EXPECT_EQ(f().lblPreview.Alignment, 0);
    const std::int32_t colours[] = {33, 22, 11, 55, 44, 66};
    for (int i = 0; i <= 5; ++i)
        EXPECT_EQ(f().picColor[i].BackColor, colours[i]) << i;
}

TEST_F(Editor, A_record_is_not_held_to_what_can_be_typed)
{
    Begin();
    struct Row {
        const char *Record, *Sizes, *Border, *Out;
    };
    const std::string tail = ",-2147483633,-2147483635,-2147483633,2,-2147483643,-2147483630,"
                             "-2147483643";
    static constexpr Row rows[] = {
        {"", "80x80 border 3 cell 90x90", "3", "80,80,3"},
        {"100,60", "100x60 border 3 cell 70x110", "3", "100,60,3"},
        {"100,,5", "100x0 border 5 cell 14x114", "5", "100,0,5"},
        {"30,30,1", "30x30 border 1 cell 36x36", "", "30,30,1"},
        {"300,200,10", "300x200 border 10 cell 224x324", "", "300,200,10"},
        {"80,80,0", "80x80 border 0 cell 84x84", "", "80,80,0"},
        {"80,80,9", "80x80 border 9 cell 102x102", "9", "80,80,9"},
        {"80,80,2", "80x80 border 2 cell 88x88", "2", "80,80,2"},
    };
    for (const Row& row : rows) {
        OpenScheme(row.Record);
        EXPECT_EQ(Sizes(), row.Sizes) << row.Record;
        EXPECT_EQ(Text("ID_BorderWidth"), row.Border) << row.Record;
        EXPECT_EQ(tool("ID_BorderWidth").Combo()->ListIndex() == -1, *row.Border == 0)
            << row.Record;
        f().cmdOk.PersonClick();
        EXPECT_EQ(s().SchemeEditText, row.Out + tail) << row.Record;
    }
}

TEST_F(Editor, Another_alignment_presses_the_centre_and_stays)
{
    Begin();
    OpenScheme("80,80,3,1,2,3,7,4,5,6");
    EXPECT_EQ(Pressed(), "Center");
    EXPECT_EQ(Thumb_Editor_Record(f()), "80,80,3,1,2,3,7,4,5,6");
}

TEST_F(Editor, It_stands_over_its_owner)
{
    Begin();
    rig.Main().Move(3000, 2000, 12000, 9000);
    OpenLook();
    EXPECT_EQ(f().Left() + f().Width() / 2, 9000);
    EXPECT_EQ(f().Top() + f().Height() / 2, 6500);
    f().Unload();
    FrmSettings& settings = rig.P().Settings();
    settings.EnsureLoaded();
    settings.Move(500, 700, settings.Width(), settings.Height());
    OpenScheme("");
    EXPECT_EQ(f().Left() + f().Width() / 2, 500 + settings.Width() / 2);
    EXPECT_EQ(f().Top() + f().Height() / 2, 700 + settings.Height() / 2);
}

TEST_F(Editor, The_next_opening_knows_nothing_of_the_last_one)
{
    Begin();
    OpenLook();
    f().imgPreview.PersonClick();
    f().lblColor[2].PersonClick();
    Type("ID_Width", "99");
    Press("ID_Width", keyReturn);
    f().cmdCancel.PersonClick();
    s().ThumbLook.Color[2] = 77;
    OpenLook();
    EXPECT_FALSE(f().ShowNormal);
    EXPECT_EQ(Text("ID_Width"), "80");
    EXPECT_EQ(f().picColor[2].BackColor, 77);
}

// -- Schemes

const std::string schemes = "[ThumbSchemes]\n"
                            "Small=30,30,1,1,2,3,0,4,5,6\n"
                            "Wide=60,120,5\n";

class EditorSchemes : public Editor {
protected:
    std::string Menu()
    {
        std::string menu;
        for (const Tool* entry : f().atbThumbs.FindBand("ID_mnuTSchemes")->Tools())
            menu += (menu.empty() ? "" : "|")
                    + (entry->Kind() == ToolKind::Separator ? "-" : entry->Caption.Get());
        return menu;
    }
};

const std::string fixedTools = "&Add to Schemes...|&Organize Schemes...|&Default Scheme";

TEST_F(EditorSchemes, The_list_stands_behind_the_fixed_tools)
{
    Begin(schemes);
    OpenLook();
    EXPECT_EQ(Menu(), fixedTools + "|-|Small|Wide");
    f().Unload();
    OpenLook();
    EXPECT_EQ(Menu(), fixedTools + "|-|Small|Wide");
}

TEST_F(EditorSchemes, An_empty_list_leaves_the_fixed_tools)
{
    Begin();
    OpenLook();
    EXPECT_EQ(Menu(), fixedTools);
}

TEST_F(EditorSchemes, An_entry_comes_into_the_form_as_it_is)
{
    Begin(schemes);
    s().Scheme = "mine";
    for (const bool scheme : {false, true}) {
        s().SchemeEditText.clear();
        Open(scheme);
        tool("ID_Scheme1").PersonClick();
        EXPECT_EQ(Thumb_Editor_Record(f()), "30,30,1,1,2,3,0,4,5,6") << scheme;
        EXPECT_EQ(f().imgPreview.Width, 30) << scheme;
        EXPECT_EQ(Text("ID_BorderWidth"), "") << scheme;
        tool("ID_Scheme2").PersonClick();
        EXPECT_EQ(Sizes(), "60x120 border 5 cell 134x74") << scheme;
        tool("ID_TSchemesDef").PersonClick();
        EXPECT_EQ(Thumb_Editor_Record(f()), defaultScheme) << scheme;
        f().Unload();
    }
    EXPECT_EQ(s().Scheme, "mine");
    EXPECT_EQ(s().ThumbLook.Width, 80);
}

TEST_F(EditorSchemes, An_entry_beyond_the_list_does_nothing)
{
    Begin(schemes);
    OpenLook();
    s().ThumbSchemes.resize(2);
    tool("ID_Scheme2").PersonClick();
    EXPECT_EQ(Sizes(), "80x80 border 3 cell 90x90");
}

TEST_F(EditorSchemes, The_look_is_proposed_as_a_new_scheme)
{
    Begin(schemes);
    OpenLook();
    f().lblColor[0].PersonClick();
    tool("ID_BorderWidth").Combo()->PersonChoose(4);
    rig.Desktop.OnModal([&](Form& form) {
        EXPECT_EQ(form.Name(), "frmSettings");
        FrmSettings& settings = rig.P().Settings();
        EXPECT_EQ(settings.ataSettings.SelectedKey(), "Schemes");
        EXPECT_EQ(settings.txtName[pageSchemes].Text.Get(), "New Scheme");
        EXPECT_EQ(settings.txtData[pageSchemes].Text.Get(),
                  "80,80,6,-2147483633,-2147483635,-2147483633,2,-2147483643,-2147483630,"
                  "-2147483643");
        s().ThumbSchemes.push_back({"New", "70,70"});
        form.PersonClose();
    });
    tool("ID_TSchemesAdd").PersonClick();
    EXPECT_TRUE(f().Loaded());
    EXPECT_EQ(Menu(), fixedTools + "|-|Small|Wide|New");
    EXPECT_EQ(f().Work.BorderWidth, 6);
}

TEST_F(EditorSchemes, The_schemes_can_be_organised_meanwhile)
{
    Begin(schemes);
    OpenLook();
    rig.Desktop.OnModal([&](Form& form) {
        EXPECT_EQ(form.Name(), "frmSettings");
        EXPECT_EQ(rig.P().Settings().ataSettings.SelectedKey(), "Schemes");
        EXPECT_EQ(rig.P().Settings().txtName[pageSchemes].Text.Get(), "Small");
        s().ThumbSchemes.resize(1);
        form.PersonClose();
    });
    tool("ID_TSchemesOrg").PersonClick();
    EXPECT_TRUE(f().Loaded());
    EXPECT_EQ(Menu(), fixedTools);
}

// -- The other tools

TEST_F(Editor, Text_labels_are_those_of_its_own_bar)
{
    Begin();
    s().tbtTextLabels = 1;
    s().tbsTextLabels = 0;
    OpenLook();
    EXPECT_TRUE(tool("ID_tbTextLabels").Checked);
    EXPECT_EQ(tool("ID_AlignLeft").Style, ToolStyle::PictureAndText);
    tool("ID_tbTextLabels").PersonClick();
    EXPECT_EQ(s().tbtTextLabels, 0);
    EXPECT_EQ(tool("ID_AlignLeft").Style, ToolStyle::Picture);
    tool("ID_tbTextLabels").PersonClick();
    EXPECT_EQ(s().tbtTextLabels, 1);
    EXPECT_EQ(tool("ID_AlignLeft").Style, ToolStyle::PictureAndText);
    EXPECT_EQ(s().tbsTextLabels, 0);
    f().Unload();
    s().tbtTextLabels = 0;
    OpenLook();
    EXPECT_FALSE(tool("ID_tbTextLabels").Checked);
    EXPECT_EQ(tool("ID_AlignLeft").Style, ToolStyle::Picture);
}

TEST_F(Editor, Help_opens_from_both_tools)
{
    Begin();
    OpenLook();
    for (const auto* id : {"ID_HelpContents", "ID_HelpIndex"}) {
        rig.Desktop.Executions.clear();
        tool(id).PersonClick();
        ASSERT_EQ(rig.Desktop.Executions.size(), 1u) << id;
        EXPECT_EQ(rig.Desktop.Executions[0].Address, "/app/help/index.htm") << id;
    }
}

TEST_F(Editor, About_comes_up_over_it)
{
    Begin();
    OpenLook();
    f().Move(1000, 2000, f().Width(), f().Height());
    rig.Desktop.OnModal([&](Form& form) {
        EXPECT_EQ(form.Name(), "frmAbout");
        EXPECT_EQ(form.Left() + form.Width() / 2, 1000 + f().Width() / 2);
        form.PersonClose();
    });
    tool("ID_About").PersonClick();
    EXPECT_EQ(rig.Desktop.ModalsLeft(), 0);
    EXPECT_TRUE(f().Loaded());
}

// -- The end

TEST_F(Editor, Nothing_is_applied_without_OK)
{
    Begin();
    const ThumbLook before = s().ThumbLook;
    const std::function<void()> ends[] = {
        [this] { f().cmdCancel.PersonClick(); }, [this] { tool("ID_Exit").PersonClick(); },
        [this] { f().PersonClose(); }, [this] { f().PersonKey(nullptr, Key_FromChar(27)); }};
    for (const bool scheme : {false, true})
        for (const auto& end : ends) {
            s().SchemeEditText = "70,70";
            Open(scheme);
            Type("ID_Width", "99");
            Press("ID_Width", keyReturn);
            f().lblColor[0].PersonClick();
            tool("ID_AlignLeft").PersonClick();
            end();
            EXPECT_FALSE(f().Loaded());
            EXPECT_EQ(s().SchemeEditText, "70,70");
            EXPECT_EQ(Sizes_Of(s().ThumbLook), Sizes_Of(before));
            EXPECT_EQ(s().ThumbLook.Color, before.Color);
            EXPECT_EQ(s().ThumbLook.Align, before.Align);
        }
}

TEST_F(Editor, OK_gives_a_record_back)
{
    Begin();
    OpenScheme("100,70,4,11,22,33,0,44,55,66");
    tool("ID_AlignRight").PersonClick();
    f().lblColor[4].PersonClick();
    f().cmdOk.PersonClick();
    EXPECT_FALSE(f().Loaded());
    EXPECT_EQ(s().SchemeEditText, "100,70,4,11,22,33,1,-2147483643,55,66");
    EXPECT_EQ(s().ThumbLook.Width, 80);
}

TEST_F(Editor, OK_puts_the_look_in_force)
{
    Begin(schemes);
    s().Scheme = "Small";
    s().ThumbLook.CaptionShown = false;
    OpenLook();
    Type("ID_Height", "100");
    tool("ID_AlignLeft").PersonClick();
    f().lblColor[2].PersonClick();
    f().cmdOk.PersonClick(); // which leaves the box
    EXPECT_FALSE(f().Loaded());
    EXPECT_EQ(Sizes_Of(s().ThumbLook), "100x80 border 3 cell 90x110");
    EXPECT_EQ(s().ThumbLook.Align, 0);
    EXPECT_FALSE(s().ThumbLook.CaptionShown);
    EXPECT_EQ(s().Scheme, "Small");
    EXPECT_EQ(s().ThumbSchemes[1].Data, "30,30,1,1,2,3,0,4,5,6");
}

TEST_F(Editor, Another_size_draws_the_thumbnails_there_are_anew)
{
    struct Row {
        const char *Tool, *Typed;
        bool Filled, Resized;
    };
    for (const Row& row :
         {Row{"ID_Width", "100", true, true}, Row{"ID_Height", "61", true, true},
          Row{"ID_Width", "80", true, false}, Row{"ID_Width", "100", false, false}}) {
        Begin();
        if (row.Filled)
            s().ThumbBuffer.push_back(std::make_shared<Bitmap>(80, 40));
        bool shown = false;
        if (row.Resized)
            rig.Desktop.OnModal([&](Form& form) {
                EXPECT_EQ(form.Name(), "frmThumbResize");
                EXPECT_TRUE(f().Loaded());
                EXPECT_EQ(s().ThumbLook.Width, f().Work.Width);
                shown = true;
                form.PersonActivate(true);
            });
        OpenLook();
        Type(row.Tool, row.Typed);
        f().cmdOk.PersonClick();
        EXPECT_EQ(shown, row.Resized) << row.Tool << " " << row.Typed;
        EXPECT_EQ(rig.Desktop.ModalsLeft(), 0);
        EXPECT_FALSE(f().Loaded());
    }
}

TEST_F(Editor, The_mode_is_that_of_the_opening)
{
    Begin();
    OpenLook();
    s().SchemeEditMode = true; // the settings tried to open it meanwhile
    s().SchemeEditText = "70,70";
    tool("ID_BorderWidth").Combo()->PersonChoose(0);
    f().cmdOk.PersonClick();
    EXPECT_EQ(s().SchemeEditText, "70,70");
    EXPECT_EQ(s().ThumbLook.BorderWidth, 2);
}

// -- What opens it

TEST_F(Editor, It_is_shown_once)
{
    Begin();
    OpenLook();
    Thumb_Editor_Show(rig.P());
    EXPECT_EQ(rig.Desktop.Forms.size(), 1u); // the main window
}

TEST_F(Editor, A_new_scheme_is_made_in_the_mode_of_the_last_caller)
{
    for (const bool scheme : {false, true}) {
        Begin();
        s().SchemeEditMode = scheme;
        rig.Desktop.OnModal([&](Form& form) {
            EXPECT_EQ(form.Caption(), scheme ? "Scheme Editor" : "Thumbnail Editor");
            form.PersonClose();
        });
        Tool_Click(rig.P(), *rig.Main().atbMain.Find("ID_TSchemesAdd"));
        EXPECT_EQ(rig.Desktop.ModalsLeft(), 0);
        EXPECT_EQ(s().SchemeEditMode, scheme);
    }
}

TEST_F(Editor, Nothing_opens_it_during_a_long_operation)
{
    Begin();
    const LongOperation operation(rig.P());
    for (const auto* id : {"ID_ThumbLayout", "ID_TSchemesAdd"})
        Tool_Click(rig.P(), *rig.Main().atbMain.Find(id));
    EXPECT_FALSE(f().Loaded());
}

TEST(ThumbLayoutEdit, The_grid_and_its_side_column_follow)
{
    ThumbGround g(9);
    g.Show(3, 2);
    g.S().SchemeEditMode = true;
    g.Rig.Desktop.OnModal([&](Form& form) {
        EXPECT_EQ(form.Caption(), "Thumbnail Editor");
        FrmThumbEditor& editor = g.P().ThumbEditor();
        Thumb_Editor_Load(editor, "100,70,4,11,22,33,0,44,55,66");
        editor.cmdOk.PersonClick();
    });
    g.Rig.Click("ID_ThumbLayout");
    EXPECT_FALSE(g.S().SchemeEditMode);
    EXPECT_EQ(g.S().ThumbLook.CellWidth, 84);
    EXPECT_EQ(g.S().ThumbLook.CellHeight, 114);
    const Shape& side = g.F().shpThumbsSelC;
    EXPECT_EQ(side.Width, 84 * 15);
    EXPECT_EQ(side.Height, 114 * 15);
    EXPECT_EQ(g.F().cmdThumbsFind.Top, side.Top + side.Height + 120);
    EXPECT_EQ(g.F().cmdThumbsFind.Width, side.Width);
    EXPECT_EQ(g.F().picThumbs.Left, side.Left + side.Width + 120);
    EXPECT_EQ(g.F().picThumbs.BackColor, 66);
    EXPECT_EQ(g.F().shpThumbsSel[1].Width, 84);
    EXPECT_EQ(g.F().shpThumbsSel[1].BorderWidth, 4);
    EXPECT_EQ(g.F().shpThumbsSel[1].BorderColor, 22);
    EXPECT_EQ(g.F().shpThumbsSel[2].BorderColor, 33);
    EXPECT_EQ(g.F().lblThumbs[1].Alignment, 0);
    EXPECT_TRUE(g.F().atbMain.Find("ID_AlignLeft")->Checked);
}

TEST(ThumbLayoutEdit, A_cancel_leaves_the_look_and_fits_the_side_column)
{
    ThumbGround g(4);
    g.Show(2, 2);
    Thumb_Scheme_Apply(g.P(), "100,100"); // from the menu: the side box stays
    EXPECT_EQ(g.F().shpThumbsSelC.Width, 1350);
    g.Rig.Desktop.OnModal([](Form& form) { form.PersonClose(); });
    g.Rig.Click("ID_ThumbLayout");
    EXPECT_EQ(g.S().ThumbLook.CellWidth, 112);
    EXPECT_EQ(g.F().shpThumbsSelC.Width, 112 * 15);
}

TEST(ThumbLayoutEdit, An_untouched_look_takes_the_margin_of_the_grid)
{
    ThumbGround g(4);
    g.Show(2, 2);
    EXPECT_EQ(g.S().ThumbLook.CellWidth, 90);
    g.Rig.Desktop.OnModal([&](Form&) { g.P().ThumbEditor().cmdOk.PersonClick(); });
    g.Rig.Click("ID_ThumbLayout");
    EXPECT_EQ(g.S().ThumbLook.CellWidth, 92);
    EXPECT_EQ(g.F().shpThumbsSel[1].Width, 92);
}

} // namespace
} // namespace tavo
