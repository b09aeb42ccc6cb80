#include "core/commands.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tavo {
namespace {

using Ids = std::set<std::string_view>;

// Tools that no code acts on, for good.
const Ids inert = {"ID_ThumbShow",  "ID_ListShow", "ID_ArrangeLarge", "ID_ArrangeSmall",
                   "ID_ph#",        "ID_phON",     "ID_phOE",         "ID_mnuAlign",
                   "ID_mnuCaption", "ID_Wizard"};

bool IsClickable(const Command& command)
{
    return command.Kind == ToolKind::Button || command.Kind == ToolKind::Toggle
           || command.Kind == ToolKind::DropDown;
}

TEST(CommandTable, No_id_stands_twice)
{
    Ids ids;
    for (const Command& command : Commands())
        EXPECT_TRUE(ids.insert(command.Id).second) << command.Id;
}

TEST(CommandTable, Every_tool_has_an_id_a_caption_and_a_category)
{
    for (const Command& command : Commands()) {
        EXPECT_TRUE(command.Id.starts_with("ID_")) << command.Id;
        EXPECT_FALSE(command.Caption.empty()) << command.Id;
        EXPECT_FALSE(command.Category.empty()) << command.Id;
    }
}

TEST(CommandTable, Every_button_does_something_but_those_that_are_named_here)
{
    Ids without;
    for (const Command& command : Commands())
        if (IsClickable(command) && !command.Run)
            without.insert(command.Id);
    Ids expected;
    for (const std::string_view id : inert)
        if (const Command* command = Command_Find(id); command && IsClickable(*command))
            expected.insert(id);
    EXPECT_EQ(without, expected);
}

TEST(CommandTable, Inert_tools_are_there)
{
    for (const std::string_view id : inert)
        EXPECT_NE(Command_Find(id), nullptr) << id;
}

TEST(CommandTable, Menus_boxes_and_labels_have_no_handler)
{
    for (const Command& command : Commands())
        if (!IsClickable(command)) {
            EXPECT_EQ(command.Run, nullptr) << command.Id;
        }
}

TEST(CommandTable, Five_tools_have_shortcuts_and_no_other)
{
    std::set<std::pair<std::string_view, std::string_view>> shortcuts;
    for (const Command& command : Commands())
        if (!command.Shortcut.empty())
            shortcuts.insert({command.Id, command.Shortcut});
    const std::set<std::pair<std::string_view, std::string_view>> expected = {
        {"ID_Cut", "Ctrl+X"},  {"ID_Copy", "Ctrl+C"},   {"ID_Paste", "Ctrl+V"},
        {"ID_Undo", "Ctrl+Z"}, {"ID_SelAll", "Ctrl+A"},
    };
    EXPECT_EQ(shortcuts, expected);
}

TEST(CommandTable, An_id_is_looked_up_exactly)
{
    EXPECT_NE(Command_Find("ID_RenAll"), nullptr);
    EXPECT_EQ(Command_Find("id_renall"), nullptr);
    EXPECT_EQ(Command_Find("ID_Ren"), nullptr);
    EXPECT_EQ(Command_Find(""), nullptr);
}

struct Texts {
    const char *Id, *Caption, *Description, *Tip;
};

TEST(CommandTable, Texts_read_to_the_letter)
{
    static constexpr Texts rows[] = {
        {"ID_NewList", "&Select", "Creates a New Rename List", "Switch to Selection Mode"},
        {"ID_CreateList", "&Rename", "Creates a New Rename List", "Switch to Rename Mode"},
        {"ID_DefLoad", "&Load Defaults", "Loads the Saved Default Settings",
         "Load Default Settings"},
        {"ID_SelAll", "Select &All", "Selects All Files in the Selection List",
         "Select All Files in File List"},
        {"ID_SelFolder", "Files", "Toggle File to Folder Renaming Support",
         "Enable\\Disable Folder Renaming"},
        // The descriptions agree with the ids, captions and tips with what the
        // rows do on the screen.
        {"ID_SelUp", "&Down", "Move the Selected Files Up", "Move Selected Items Down"},
        {"ID_SelDown", "&Up", "Move the Selected Files Down", "Move Selected Items Up"},
        {"ID_byDate", "by &Date", "Sort List by Modified Time and  Date", ""},
        {"ID_DateTime", "&Date && Time", "View / Set Date and Time", ""},
        {"ID_MP3Tag", "MP3 &Tag ( ID3v1.1 )", "Edit the Music File MP3 ID3v1.1 Version Tag", ""},
        {"ID_AutoFill", "Fill", "Rename Fields are Auto Filled when a Listitem is Clicked.",
         "Auto Fill Information when Listitem is Clicked"},
        {"ID_ThumbClear", "Clea&r", "Clear the Thumbnail Buffer", ""},
        {"ID_Views", "&Views",
         "Click Button to Toggle Between Thumbnail and List, Click Down Arrow for List of Views",
         ""},
        {"ID_RenameList", "Re&name List", "", ""},
        {"ID_ph#", "<#>", "Number Place Holder", "Insert Number Place Holder"},
    };
    for (const Texts& row : rows) {
        const Command* command = Command_Find(row.Id);
        ASSERT_NE(command, nullptr) << row.Id;
        EXPECT_EQ(command->Caption, row.Caption) << row.Id;
        EXPECT_EQ(command->Description, row.Description) << row.Id;
        EXPECT_EQ(command->Tip, row.Tip) << row.Id;
    }
}

TEST(CommandBands, Every_entry_is_a_tool)
{
    for (const BandPlan& plan : CommandBands())
        for (const std::string_view id : plan.Tools)
            if (!id.empty() && id != "-") {
                EXPECT_NE(Command_Find(id), nullptr) << plan.Name << ": " << id;
            }
}

TEST(CommandBands, No_list_is_full_to_its_last_place)
{
    for (const BandPlan& plan : CommandBands())
        EXPECT_TRUE(plan.Tools.back().empty()) << plan.Name;
}

TEST(CommandBands, Every_menu_has_its_entries)
{
    for (const Command& command : Commands()) {
        if (command.Kind != ToolKind::Menu)
            continue;
        const auto plan = std::ranges::find(CommandBands(), command.Id, &BandPlan::Name);
        EXPECT_NE(plan, CommandBands().end()) << command.Id;
    }
}

std::string Entries_Of(const Band& band)
{
    std::string text;
    for (const Tool* tool : band.Tools())
        text += (tool->Kind() == ToolKind::Separator ? "-" : tool->Name()) + " ";
    return text;
}

TEST(CommandBands, The_built_bands_hold_the_tools_in_order)
{
    struct Row {
        const char *Band, *Entries;
    };
    static constexpr Row rows[] = {
        {"Menu", "ID_mnuFile ID_mnuEdit ID_mnuView ID_mnuFavorites ID_mnuThumbnail "
                 "ID_mnuTSchemes ID_mnuTemplates ID_mnuWindow ID_mnuHelp "},
        {"Standard", "ID_NewList - ID_SelDown ID_SelDistance ID_SelUp ID_SelGroup ID_SelDelete - "
                     "ID_Views - ID_Viewer ID_ViewerUp - ID_RenameList ID_AutoFill - ID_RenUndo "
                     "ID_RenSelected ID_RenAll "},
        {"Selection", "ID_CreateList - ID_SelAll ID_SelClear - ID_SelFolder ID_SelSubFiles - "
                      "ID_sFilter ID_SelUseFilter ID_FilAdd - ID_SelPreviewOn ID_SelPreviewOff "},
        {"Address", "ID_lblAddress: ID_sAddress ID_SelUsePath "},
        {"ID_mnuArrange", "ID_byName ID_byType ID_bySize ID_byDate ID_byUndoName ID_byError "},
        {"ID_mnuToolbars", "ID_tbAddress - ID_tbTextLabels "},
        {"ID_mnuFavorites", "ID_FavAdd ID_FavOrganize "},
    };
    ProgramRig rig;
    rig.Start();
    for (const Row& row : rows) {
        const Band* band = rig.Main().atbMain.FindBand(row.Band);
        ASSERT_NE(band, nullptr) << row.Band;
        EXPECT_EQ(Entries_Of(*band), row.Entries) << row.Band;
    }
}

TEST(CommandBands, The_box_of_modes_lists_the_seven_choices)
{
    ProgramRig rig;
    rig.Start();
    const std::vector<std::string> expected = {
        "Attributes",    "Change Case",      "Date & Time",      "Move & Copy",
        "Name & Number", "Search & Replace", "MP3 Tag (ID3v1.1)"};
    EXPECT_EQ(rig.Main().atbMain.Find("ID_RenameList")->Combo()->Items(), expected);
}

} // namespace
} // namespace tavo
