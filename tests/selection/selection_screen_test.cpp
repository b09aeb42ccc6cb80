#include "selection/selection_screen.h"

#include "core/screens.h"
#include "renamelist/rename_list.h"
#include "settings/named_lists.h"
#include "support/disk_ground.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

// The selection screen on folder d with two files and a subfolder.
class SelectionScreen : public ::testing::TestWithParam<Ground> {
protected:
    SelectionScreen()
        : ground(GetParam()), p(ground.P), s(ground.P.state), f(ground.Main),
          list(ground.Main.lsvSelMain), desktop(ground.G.Desktop)
    {
        for (const char* path : {"d/a.txt", "d/b.jpg", "d/sub/c.txt", "e/f.txt", "e/g.gif"})
            ground.AddFile(path);
        s.Filters.push_back({"Texts", "*.txt"});
        s.Filters.push_back({"Pictures", "*.jpg;*.gif"});
        Sel_Open(p, ground.Full("d/"));
    }

    bool IsWindows() const { return GetParam() == Ground::Windows; }
    Texts Names() const { return List_Column(list, "Name"); }
    // A walk lets events run twice.
    int Walks(const std::function<void()>& act)
    {
        const int before = desktop.Turns();
        act();
        EXPECT_EQ((desktop.Turns() - before) % 2, 0);
        return (desktop.Turns() - before) / 2;
    }
    TextBox& AddressBox() { return *ground.G.ToolOf("ID_sAddress").Box; }
    ComboBox& FilterBox() { return *ground.G.ToolOf("ID_sFilter").Combo(); }
    std::string Address() { return AddressBox().Text; }
    std::string TreeFolder() { return f.ftvSelMain.Folder(); }
    void Click(const std::string& tool) { ground.G.ToolOf(tool).PersonClick(); }
    void Return(TextBox& box)
    {
        box.SetFocus();
        f.PersonKey(&box, Key{keyReturn, shiftNone, 13});
    }

    DiskGround ground;
    Program& p;
    SharedState& s;
    FrmMain& f;
    ListView& list;
    ScriptedDesktop& desktop;
};

INSTANTIATE_TEST_SUITE_P(OnEveryDisk, SelectionScreen,
                         ::testing::Values(Ground::Windows, Ground::Linux, Ground::RealDisk),
                         [](const auto& test) { return Ground_Name(test.param); });

} // namespace

// -- Opening.

TEST_P(SelectionScreen, Opening_shows_the_folder_everywhere)
{
    EXPECT_EQ(s.CurScreen, screenSelection);
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(Address(), ground.Full("d/"));
    EXPECT_EQ(TreeFolder(), ground.Full("d/"));
    ASSERT_NE(f.ftvSelMain.Current(), nullptr);
    EXPECT_TRUE(f.ftvSelMain.Current()->Expanded);
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
    EXPECT_EQ(ground.G.Panel(1), "Total: 2");
    EXPECT_EQ(ground.G.Panel(2), "Select Files for New List");
    EXPECT_EQ(ground.G.Panel(3), "Selected: 0");
    EXPECT_TRUE(f.Visible());
}

TEST_P(SelectionScreen, Opening_walks_once_from_whatever_screen)
{
    EXPECT_EQ(Walks([&] { Sel_Open(p, ground.Full("e/")); }), 1);
    EXPECT_EQ(Walks([&] { Sel_Open(p, ground.Full("e/")); }), 1);
    Screen_Show(p, screenRename, false);
    EXPECT_EQ(Walks([&] { Sel_Open(p, ground.Full("d")); }), 1);
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
    Screen_Show(p, screenRename, false);
    EXPECT_EQ(Walks([&] { Click("ID_NewList"); }), 1);
}

TEST_P(SelectionScreen, Opening_nothing_opens_the_programs_own_folder)
{
    Sel_Open(p, "");
    EXPECT_EQ(s.StartPath, s.AppFolder);
    EXPECT_EQ(TreeFolder(), s.AppFolder);
}

TEST_P(SelectionScreen, Opening_a_folder_that_is_gone_stays_where_it_was)
{
    EXPECT_EQ(Walks([&] { Sel_Open(p, ground.Full("gone/")); }), 1);
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(Address(), ground.Full("d/"));
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
}

TEST_P(SelectionScreen, The_root_can_be_opened)
{
    if (ground.Memory() == nullptr)
        return; // nobody knows what lies there
    ground.AddFile("at the top");
    Sel_Open(p, ground.Full(""));
    EXPECT_EQ(s.StartPath, ground.Full(""));
    EXPECT_EQ(Names(), (Texts{"at the top"}));
}

// -- The address box.

struct AddressCase {
    const char* What;
    std::string Typed, Wanted;
    int Walks;
};

TEST_P(SelectionScreen, The_address_box_goes_to_a_folder_or_is_corrected)
{
    const std::string d = ground.Full("d/"), e = ground.Full("e/");
    std::string bare = e;
    bare.pop_back();
    std::vector<AddressCase> cases = {
        {"a folder", e, e, 1},
        {"without its separator", bare, e, 1},
        {"with blanks round it", "  " + e + " ", e, 1},
        {"the folder in hand", d, d, 1},
        {"no such folder", ground.Full("gone"), d, 0},
        {"a file", ground.Full("d/a.txt"), d, 0},
        {"no full name", "sub", d, 0},
        {"empty", "", "", 0},
        {"blanks", "   ", "   ", 0},
    };
    if (IsWindows()) {
        cases.push_back({"a separator alone is an empty box", "\\", "\\", 0});
        cases.push_back({"in another case", "c:\\E", "C:\\e\\", 1});
        cases.push_back({"the root of the drive", "C:", "C:\\", 1});
    } else {
        cases.push_back({"the root", "/", "/", 1});
        cases.push_back({"in another case", ground.Full("E"), d, 0});
        cases.push_back({"the folder in hand in another case", ground.Full("D"), d, 0});
        cases.push_back({"more separators than it needs", ground.Full("sub") + "//../e", d, 0});
    }
    for (const AddressCase& wanted : cases)
        for (const bool byReturn : {false, true}) {
            SCOPED_TRACE(wanted.What);
            Sel_Open(p, d);
            AddressBox().SetFocus();
            AddressBox().PersonText(wanted.Typed);
            EXPECT_EQ(Walks([&] {
                          if (byReturn)
                              Return(AddressBox());
                          else
                              Click("ID_SelUsePath");
                      }),
                      wanted.Walks);
            EXPECT_EQ(Address(), wanted.Wanted);
            if (wanted.Walks > 0) {
                EXPECT_EQ(s.StartPath, wanted.Wanted);
                EXPECT_EQ(TreeFolder(), wanted.Wanted);
            } else {
                EXPECT_EQ(s.StartPath, d);
                EXPECT_EQ(TreeFolder(), d);
            }
        }
}

TEST_P(SelectionScreen, Nothing_is_gone_to_while_a_walk_goes_on)
{
    bool tried = false;
    desktop.EachTurn = [&](int) {
        if (tried)
            return;
        tried = true;
        AddressBox().Text = ground.Full("e/");
        Sel_Address_Apply(p);
        Sel_Open(p, ground.Full("e/"));
        FilterBox().Text = "*.gif";
        Sel_Filter_Apply(p);
        Sel_Filter_Clear(p);
    };
    Click("ID_RefreshList");
    EXPECT_TRUE(tried);
    EXPECT_EQ(TreeFolder(), ground.Full("d/"));
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(s.Filter, "*.*");
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
}

// -- Filters.

TEST_P(SelectionScreen, A_chosen_filter_is_applied_at_once)
{
    EXPECT_EQ(FilterBox().ListIndex(), 0);
    EXPECT_EQ(Walks([&] { FilterBox().PersonChoose(1); }), 1);
    EXPECT_EQ(s.Filter, "*.txt");
    EXPECT_EQ(Names(), (Texts{"a.txt"}));
    list.PersonSelectAll();
    EXPECT_EQ(Walks([&] { FilterBox().PersonChoose(2); }), 1);
    EXPECT_EQ(Names(), (Texts{"b.jpg"}));
    EXPECT_EQ(ground.G.Panel(3), "Selected: 0");
}

TEST_P(SelectionScreen, A_typed_filter_is_applied_by_Return_or_the_tool_and_not_kept)
{
    const std::size_t filters = s.Filters.size();
    for (const bool byReturn : {false, true}) {
        FilterBox().PersonChoose(0);
        FilterBox().SetFocus();
        FilterBox().PersonText("b*");
        EXPECT_EQ(FilterBox().ListIndex(), -1);
        EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
        EXPECT_EQ(Walks([&] {
                      if (byReturn)
                          Return(FilterBox());
                      else
                          Sel_Filter_Apply(p);
                  }),
                  1);
        EXPECT_EQ(s.Filter, "b*");
        EXPECT_EQ(Names(), (Texts{"b.jpg"}));
        EXPECT_EQ(s.Filters.size(), filters);
    }
}

TEST_P(SelectionScreen, The_chosen_filter_is_applied_again_by_the_tool)
{
    FilterBox().PersonChoose(1);
    ground.AddFile("d/new.txt");
    EXPECT_EQ(Walks([&] { Click("ID_SelUseFilter"); }), 1);
    EXPECT_EQ(Names(), (Texts{"a.txt", "new.txt"}));
}

TEST_P(SelectionScreen, Clearing_goes_back_to_the_first_filter)
{
    FilterBox().PersonChoose(1);
    EXPECT_EQ(Walks([&] { Click("ID_SelClear"); }), 1);
    EXPECT_EQ(FilterBox().ListIndex(), 0);
    EXPECT_EQ(s.Filter, "*.*");
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
    EXPECT_EQ(Walks([&] { Click("ID_SelClear"); }), 1);

    FilterBox().PersonChoose(1);
    Screen_Show(p, screenRename, false);
    EXPECT_EQ(Walks([&] { Sel_Filter_Clear(p); }), 0);
    EXPECT_EQ(s.Filter, "*.txt");
}

TEST_P(SelectionScreen, The_filter_stays_when_the_folder_changes)
{
    FilterBox().PersonChoose(1);
    AddressBox().PersonText(ground.Full("e/"));
    Click("ID_SelUsePath");
    EXPECT_EQ(Names(), (Texts{"f.txt"}));
}

// -- Folders and subfolders.

TEST_P(SelectionScreen, The_tool_for_folders_switches_the_mode_and_walks)
{
    Tool& tool = ground.G.ToolOf("ID_SelFolder");
    EXPECT_EQ(tool.Caption.Get(), "Files");
    EXPECT_EQ(Walks([&] { tool.PersonClick(); }), 1);
    EXPECT_EQ(s.SelFolderMode, 1);
    EXPECT_EQ(tool.Caption.Get(), "Folders");
    EXPECT_FALSE(ground.G.ToolOf("ID_SelSubFiles").Enabled);
    EXPECT_EQ(Names(), (Texts{"sub"}));
    EXPECT_EQ(Walks([&] { tool.PersonClick(); }), 1);
    EXPECT_EQ(s.SelFolderMode, 0);
    EXPECT_EQ(tool.Caption.Get(), "Files");
    EXPECT_TRUE(ground.G.ToolOf("ID_SelSubFiles").Enabled);
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
}

TEST_P(SelectionScreen, Out_of_sight_the_mode_changes_without_a_walk)
{
    Screen_Show(p, screenRename, false);
    EXPECT_EQ(Walks([&] { Sel_FolderMode_Toggle(p, true); }), 0);
    EXPECT_EQ(s.SelFolderMode, 1);
    EXPECT_FALSE(ground.G.ToolOf("ID_SelSubFiles").Enabled);
}

TEST_P(SelectionScreen, Subfolders_are_walked_once_and_not_the_next_time)
{
    EXPECT_EQ(Walks([&] { Click("ID_SelSubFiles"); }), 1);
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg", "c.txt"}));
    EXPECT_EQ(ground.G.Panel(1), "Total: 3");
    f.ftvSelMain.PersonNode(*f.ftvSelMain.Current());
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
}

// -- The selection.

TEST_P(SelectionScreen, All_and_inverted_selections_are_counted)
{
    Click("ID_SelAll");
    EXPECT_EQ(list.SelCount(), 2);
    EXPECT_EQ(ground.G.Panel(3), "Selected: 2");
    list.PersonSelect({2}, 2);
    EXPECT_EQ(ground.G.Panel(3), "Selected: 1");
    Click("ID_SelInvert");
    EXPECT_TRUE(list.Selected(1));
    EXPECT_FALSE(list.Selected(2));
    EXPECT_EQ(ground.G.Panel(3), "Selected: 1");
    list.PersonSelect({}, 0);
    EXPECT_EQ(ground.G.Panel(3), "Selected: 0");
}

TEST_P(SelectionScreen, Off_the_screen_all_and_inverted_mean_the_rename_list)
{
    ground.Load({"d/x", "d/y", "d/z"});
    Screen_Show(p, screenRename, false);
    Click("ID_SelAll");
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_EQ(ground.List.SelCount(), 3);
    EXPECT_EQ(ground.G.Panel(3), "Selected: 3");
    ground.G.Select({2});
    Click("ID_SelInvert");
    EXPECT_EQ(ground.G.SelectedNames(), (Texts{"x", "z"}));
    EXPECT_EQ(ground.G.Panel(3), "Selected: 2");
}

TEST_P(SelectionScreen, Arrow_keys_show_the_row_when_they_are_let_go)
{
    list.SetFocus();
    for (const char* name : {"Down", "Down", "Up", "Left", "Right"}) {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key));
        f.stbMain.SetPanel(3, "");
        f.PersonKey(&list, key);
        EXPECT_EQ(ground.G.Panel(3), "Selected: 1") << name;
    }
    f.stbMain.SetPanel(3, "");
    f.PersonKey(&list, Key{keyF6});
    EXPECT_EQ(ground.G.Panel(3), "");
}

// -- The preview.

struct PictureCase {
    const char *Name, *Shown;
    int Gif;
    bool Asked; // the loader was
};

TEST_P(SelectionScreen, The_preview_goes_by_the_ending_and_then_by_the_loader)
{
    const PictureCase cases[] = {
        {"a.png", "30x20", 0, true}, {"a.gif", "icon F", 0, false},   {"A.GIF", "icon F", 0, false},
        {"a.gif", "30x20", 1, true}, {"a.mp3", "icon M", 0, false},   {"mp3", "icon M", 0, false},
        {"a.xyz", "30x20", 0, true}, {"text.bmp", "icon F", 0, true}, {"readme", "icon F", 0, true},
    };
    for (const PictureCase& wanted : cases) {
        const std::string path = ground.Full(std::string("d/") + wanted.Name);
        desktop.Pictures.clear();
        if (wanted.Name[0] == 'a' || wanted.Name[0] == 'A')
            desktop.Pictures[path] = {30, 20};
        desktop.PictureWishes.clear();
        s.Gif = static_cast<std::uint8_t>(wanted.Gif);
        Sel_Preview_Show(p, path);
        EXPECT_EQ(f.imgSelPreview.PropertyText("Picture"), wanted.Shown) << wanted.Name;
        EXPECT_EQ(desktop.PictureWishes, wanted.Asked ? Texts{path} : Texts{}) << wanted.Name;
        EXPECT_TRUE(f.imgSelPreview.Visible) << wanted.Name;
        EXPECT_TRUE(f.imgSelPreview.Stretch) << wanted.Name;
    }
    EXPECT_TRUE(desktop.Boxes.empty());
}

struct FitCase {
    const char* What;
    int PanelWidth, PanelHeight; // twips
    int Width, Height;           // pixels of 15 twips
    double Left, Top, WantedWidth, WantedHeight;
};

TEST_P(SelectionScreen, A_picture_is_shrunk_to_the_panel_and_stands_in_its_middle)
{
    const FitCase cases[] = {
        {"a small one keeps its size", 3000, 2000, 16, 16, 1380, 880, 240, 240},
        {"one of the panel's size", 3000, 1500, 200, 100, 0, 0, 3000, 1500},
        {"too wide", 3000, 2000, 300, 100, 0, 500, 3000, 1000},
        {"too high, and whole twips", 3000, 2000, 100, 300, 1167, 0, 666, 2000},
        {"too wide and too high alike", 3000, 1500, 400, 200, 0, 0, 3000, 1500},
        {"too wide alone", 1000, 2000, 100, 100, 0, 500, 1000, 1000},
        {"too high alone", 2000, 1000, 100, 100, 500, 0, 1000, 1000},
        {"a fraction of the height is cut", 1000, 2000, 100, 33, 0, 835, 1000, 330},
    };
    for (const FitCase& wanted : cases) {
        SCOPED_TRACE(wanted.What);
        f.picSelPreview.Width = wanted.PanelWidth;
        f.picSelPreview.Height = wanted.PanelHeight;
        desktop.Pictures["p"] = {wanted.Width, wanted.Height};
        Sel_Preview_Show(p, "p");
        EXPECT_EQ(f.imgSelPreview.Left, wanted.Left);
        EXPECT_EQ(f.imgSelPreview.Top, wanted.Top);
        EXPECT_EQ(f.imgSelPreview.Width, wanted.WantedWidth);
        EXPECT_EQ(f.imgSelPreview.Height, wanted.WantedHeight);
    }
}

TEST_P(SelectionScreen, Without_the_preview_no_picture_is_read)
{
    list.PersonSelect({1}, 1);
    EXPECT_TRUE(desktop.PictureWishes.empty());
}

TEST_P(SelectionScreen, Switching_the_preview_on_shows_the_row_at_once)
{
    list.PersonSelect({2}, 2);
    desktop.Pictures[ground.Full("d/b.jpg")] = {30, 20};
    Click("ID_SelPreviewOn");
    EXPECT_EQ(s.SelPreview, 1);
    EXPECT_FALSE(ground.G.ToolOf("ID_SelPreviewOn").Visible);
    EXPECT_TRUE(ground.G.ToolOf("ID_SelPreviewOff").Visible);
    EXPECT_TRUE(f.lblSelDBY.Visible);
    EXPECT_TRUE(f.picSelPreview.Visible);
    EXPECT_EQ(f.ftvSelMain.Height, f.lblSelDBY.Top.Get());
    EXPECT_EQ(f.imgSelPreview.PropertyText("Picture"), "30x20");
    EXPECT_EQ(desktop.PictureWishes, (Texts{ground.Full("d/b.jpg")}));

    Click("ID_SelPreviewOff");
    EXPECT_EQ(s.SelPreview, 0);
    EXPECT_TRUE(ground.G.ToolOf("ID_SelPreviewOn").Visible);
    EXPECT_FALSE(ground.G.ToolOf("ID_SelPreviewOff").Visible);
    EXPECT_FALSE(f.lblSelDBY.Visible);
    EXPECT_FALSE(f.picSelPreview.Visible);
    EXPECT_EQ(f.ftvSelMain.Height, f.fraSelect.Height.Get());
    EXPECT_EQ(desktop.PictureWishes.size(), 1U);
}

TEST_P(SelectionScreen, A_bar_at_the_very_top_comes_down_when_the_preview_is_switched_on)
{
    f.lblSelDBY.Top = 799;
    Sel_Preview_Switch(p, true);
    EXPECT_EQ(f.lblSelDBY.Top, f.fraSelect.Height.Get() / 2);
    f.lblSelDBY.Top = 800;
    Sel_Preview_Switch(p, true);
    EXPECT_EQ(f.lblSelDBY.Top, 800);
}

TEST_P(SelectionScreen, Without_a_row_the_preview_shows_nothing)
{
    Click("ID_SelPreviewOn");
    EXPECT_TRUE(desktop.PictureWishes.empty());
    EXPECT_FALSE(f.imgSelPreview.Visible);
    list.PersonSelect({1}, 1);
    EXPECT_TRUE(f.imgSelPreview.Visible);
    EXPECT_EQ(desktop.PictureWishes, (Texts{ground.Full("d/a.txt")}));
    // The row is gone with the walk.
    FilterBox().PersonChoose(2);
    EXPECT_FALSE(f.imgSelPreview.Visible);
    EXPECT_EQ(desktop.PictureWishes.size(), 1U);
}

TEST_P(SelectionScreen, A_folder_shows_the_plain_file)
{
    Click("ID_SelPreviewOn");
    Click("ID_SelFolder");
    list.PersonSelect({1}, 1);
    EXPECT_EQ(f.imgSelPreview.PropertyText("Picture"), "icon F");
}

} // namespace tavo
