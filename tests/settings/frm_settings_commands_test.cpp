#include "settings/frm_settings.h"
#include "settings/settings_pages.h"
#include "settings/window_layout.h"
#include "support/program_rig.h"
#include "viewer/frm_viewer.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class SettingsCommands : public testing::Test {
protected:
    SettingsCommands()
    {
        rig.Disk.AddFile("/pics/a.jpg");
        rig.Start("/pics/", "[Favorites]\r\nHome=/home/\r\n[Templates]\r\nOne=a:b\r\n");
    }
    // Clicks the tool; `work` is what the person does in the dialog.
    void Open(const char* tool, const std::function<void(FrmSettings&)>& work)
    {
        rig.Desktop.OnModal([&](Form& form) {
            ASSERT_EQ(&form, &rig.P().Settings());
            work(rig.P().Settings());
            form.Unload();
        });
        rig.Click(tool);
        EXPECT_EQ(rig.Desktop.ModalsLeft(), 0) << tool;
    }
    ProgramRig rig{MemoryDisk::Flavour::Posix};
};

TEST_F(SettingsCommands, Each_command_opens_its_page)
{
    struct Row {
        const char *Tool, *Page, *Caption;
    };
    const Row rows[] = {
        {"ID_Settings", "Defaults", "Settings"},
        {"ID_FavAdd", "Favorites", "Enter New Name and Press Add"},
        {"ID_FilAdd", "Filters", "Enter New Filter and Press Add"},
        {"ID_WinAdd", "Windows", "Settings"},
        {"ID_FavOrganize", "Favorites", "Settings"},
        {"ID_TmpOrg", "Templates", "Settings"},
        {"ID_WinOrganize", "Windows", "Settings"},
        {"ID_TSchemesOrg", "Schemes", "Settings"},
    };
    for (const Row& row : rows) {
        // A command is there whether or not its menu is in sight.
        rig.Main().atbMain.Find("ID_mnuTSchemes")->Visible = true;
        rig.Main().atbMain.Find("ID_mnuTemplates")->Visible = true;
        Open(row.Tool, [&](FrmSettings& form) {
            EXPECT_EQ(form.ataSettings.SelectedKey(), row.Page) << row.Tool;
            EXPECT_EQ(form.Caption(), row.Caption) << row.Tool;
            EXPECT_FALSE(form.ItemDirty) << row.Tool;
        });
        EXPECT_TRUE(rig.Desktop.Forms.back().Modal);
    }
}

TEST_F(SettingsCommands, Proposals_stand_in_the_boxes)
{
    const std::string filter = rig.Main().atbMain.Find("ID_sFilter")->Box->Text;
    const std::string layout = Win_Layout_Text(rig.P());
    struct Row {
        const char* Tool;
        int Page;
        const char* Name;
        std::string Data;
    };
    const Row rows[] = {
        {"ID_FavAdd", pageFavorites, "Enter New Name and Press Add", "/pics/"},
        {"ID_FilAdd", pageFilters, "Enter New Filter and Press Add", filter},
        {"ID_WinAdd", pageWindows, "New Window Layout", layout},
    };
    for (const Row& row : rows)
        Open(row.Tool, [&](FrmSettings& form) {
            EXPECT_EQ(form.txtName[row.Page].Text.Get(), row.Name) << row.Tool;
            EXPECT_EQ(form.txtData[row.Page].Text.Get(), row.Data) << row.Tool;
            EXPECT_EQ(form.CurRow, -1) << row.Tool; // no row of the list is meant
            form.PersonActivate(true);
            EXPECT_TRUE(form.txtName[row.Page].HasFocus()) << row.Tool;
            EXPECT_EQ(form.txtName[row.Page].SelText(), row.Name) << row.Tool;
            form.PersonActivate(false);
        });
}

TEST_F(SettingsCommands, A_proposal_is_added_by_add)
{
    Open("ID_FavAdd", [&](FrmSettings& form) {
        form.txtName[pageFavorites].SetFocus();
        form.txtName[pageFavorites].PersonText("Pictures");
        form.cmdAdd[pageFavorites].PersonClick();
        form.cmdOk.PersonClick();
    });
    ASSERT_EQ(List_Last(rig.P().state.Favorites), 2);
    EXPECT_EQ(rig.P().state.Favorites[2].Name, "Pictures");
    EXPECT_EQ(rig.P().state.Favorites[2].Data, "/pics/");
    EXPECT_EQ(rig.Main().cbomcdPath.Items(), (std::vector<std::string>{"Home", "Pictures"}));
}

TEST_F(SettingsCommands, A_proposal_left_alone_changes_nothing)
{
    for (const char* tool : {"ID_FavAdd", "ID_FilAdd", "ID_WinAdd"})
        Open(tool, [&](FrmSettings& form) { form.cmdOk.PersonClick(); });
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
    EXPECT_EQ(List_Last(rig.P().state.Favorites), 1);
    EXPECT_EQ(rig.P().state.Favorites[1].Name, "Home");
    EXPECT_EQ(List_Last(rig.P().state.Windows), 0);
}

TEST_F(SettingsCommands, A_proposed_name_is_longer_than_a_person_could_type)
{
    Open("ID_FilAdd", [&](FrmSettings& form) {
        EXPECT_GT(static_cast<int>(form.txtName[pageFilters].Text.Get().size()),
                  form.txtName[pageFilters].MaxLength.Get());
        form.cmdAdd[pageFilters].PersonClick();
        form.cmdOk.PersonClick();
    });
    EXPECT_EQ(rig.P().state.Filters[1].Name, "Enter New Filter and Press Add");
}

TEST_F(SettingsCommands, During_a_long_operation_they_are_refused)
{
    for (const char* tool : {"ID_Settings", "ID_FavAdd", "ID_FilAdd", "ID_WinAdd", "ID_FavOrganize",
                             "ID_TmpOrg", "ID_WinOrganize", "ID_TSchemesOrg"}) {
        const std::size_t before = rig.Desktop.Forms.size();
        const LongOperation operation(rig.P());
        rig.Main().atbMain.ToolClick(*rig.Main().atbMain.Find(tool));
        EXPECT_EQ(rig.Desktop.Forms.size(), before) << tool;
    }
}

TEST_F(SettingsCommands, While_it_is_up_it_is_not_opened_again)
{
    Open("ID_Settings", [&](FrmSettings& form) {
        const std::size_t before = rig.Desktop.Forms.size();
        Settings_Open(rig.P(), pageFilters);
        EXPECT_EQ(rig.Desktop.Forms.size(), before);
        EXPECT_EQ(form.ataSettings.SelectedKey(), "Defaults");
    });
}

TEST_F(SettingsCommands, The_digits_follow_their_option)
{
    rig.MakeList();
    rig.Box(nnStartBox, "100");
    rig.Box(nnDigitsBox, "1");
    Open("ID_Settings", [](FrmSettings& form) {
        form.chkSet[4].PersonClick();
        form.cmdOk.PersonClick();
    });
    EXPECT_EQ(rig.Main().txtNameNum[nnDigitsBox].Text.Get(), "3");
}

TEST_F(SettingsCommands, The_preview_follows_but_on_the_selection_screen)
{
    Open("ID_Settings", [](FrmSettings&) {});
    EXPECT_EQ(rig.Main().stbMain.Panel(2), "Select Files for New List");
    rig.MakeList();
    rig.Main().lsvRename.PersonSelect({1}, 1);
    rig.Main().stbMain.SetPanel(2, "old");
    Open("ID_TmpOrg", [](FrmSettings&) {});
    EXPECT_NE(rig.Main().stbMain.Panel(2), "old");
}

// -- The layout record

TEST_F(SettingsCommands, A_layout_tells_both_windows)
{
    Program& p = rig.P();
    p.main.Move(150, 300, 9000, 6000);
    EXPECT_EQ(Win_Layout_Text(p), "150,300,9000,6000,0,0,0,0,0,0");
    p.main.SetState(WindowState::Maximised);
    EXPECT_EQ(Win_Layout_Text(p), "0,0,0,0,2,0,0,0,0,0");
    p.main.SetState(WindowState::Minimised);
    EXPECT_EQ(Win_Layout_Text(p), "0,0,0,0,1,0,0,0,0,0");
    p.main.SetState(WindowState::Normal);
    rig.Desktop.Show(p.Viewer());
    p.Viewer().Move(15, 30, 4500, 3000.5);
    EXPECT_EQ(Win_Layout_Text(p), "150,300,9000,6000,0,15,30,4500,3000.5,0");
    p.Viewer().SetState(WindowState::Maximised);
    EXPECT_EQ(Win_Layout_Text(p), "150,300,9000,6000,0,0,0,0,0,2");
    p.main.SetVisible(false);
    EXPECT_EQ(Win_Layout_Text(p), "0,0,0,0,0,0,0,0,0,2");
    p.main.SetVisible(true);
}

TEST_F(SettingsCommands, A_layout_comes_back_from_its_record)
{
    Program& p = rig.P();
    p.main.Move(150, 300, 9000, 6000);
    const std::string record = Win_Layout_Text(p);
    p.main.Move(0, 0, 7000, 5000);
    Win_Layout_Apply(p, record);
    EXPECT_EQ(Win_Layout_Text(p), record);
}

} // namespace
} // namespace tavo
