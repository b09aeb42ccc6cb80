#include "selection/selection_events.h"

#include "core/screens.h"
#include "selection/selection_screen.h"
#include "support/disk_ground.h"
#include "support/memory_clock.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class SelectionEvents : public ::testing::TestWithParam<Ground> {
protected:
    SelectionEvents()
        : ground(GetParam()), p(ground.P), s(ground.P.state), f(ground.Main),
          tree(ground.Main.ftvSelMain), list(ground.Main.lsvSelMain)
    {
        for (const char* path : {"d/a.txt", "d/b.jpg", "d/sub/c.txt", "e/f.txt", "e/g.txt"})
            ground.AddFile(path);
        Sel_Open(p, ground.Full("d/"));
    }

    Texts Names() const { return List_Column(list, "Name"); }
    Texts SelectedNames() const
    {
        Texts names;
        for (int row = list.NextSelected(0); row > 0; row = list.NextSelected(row))
            names.emplace_back(list.Text(row));
        return names;
    }
    std::string Address() const { return ground.G.ToolOf("ID_sAddress").Box->Text; }
    int Walks(const std::function<void()>& act)
    {
        const int before = ground.G.Desktop.Turns();
        act();
        return (ground.G.Desktop.Turns() - before) / 2;
    }
    // The node of a folder below the one in hand.
    FolderNode& Below(const std::string& caption)
    {
        for (const auto& node : tree.Current()->Children)
            if (node->Caption == caption)
                return *node;
        ADD_FAILURE() << "No such node: " << caption;
        return *tree.Current();
    }
    Texts BelowInHand()
    {
        Texts captions;
        for (const auto& node : tree.Current()->Children)
            captions.push_back(node->Caption);
        return captions;
    }
    void AddFoldersForTheTree()
    {
        for (const char* folder : {"d/B", "d/a", "d/.hidden", "d/x y", "d/B/.below"})
            ground.AddFolder(folder);
        ground.AddLink("d/link", "e");
        ground.AddLink("d/filelink", "d/a.txt");
        if (GetParam() != Ground::Windows)
            return;
        for (const char* folder : {"d/.hidden", "d/B/.below"})
            ground.Memory()->SetAttributes(ground.Full(folder), attrDirectory | attrHidden);
    }
    // Files come from a file manager: no separator at the end.
    void Drop(const Texts& paths)
    {
        Texts full;
        for (const std::string& path : paths)
            full.push_back(ground.Full(path));
        list.FilesDropped(full);
    }

    DiskGround ground;
    Program& p;
    SharedState& s;
    FrmMain& f;
    FolderTree& tree;
    ListView& list;
};

INSTANTIATE_TEST_SUITE_P(OnEveryDisk, SelectionEvents,
                         ::testing::Values(Ground::Windows, Ground::Linux, Ground::RealDisk),
                         [](const auto& test) { return Ground_Name(test.param); });

} // namespace

// -- The tree.

TEST_P(SelectionEvents, A_click_on_a_node_walks_its_folder)
{
    EXPECT_EQ(Walks([&] { tree.PersonNode(Below("sub")); }), 1);
    EXPECT_EQ(s.StartPath, ground.Full("d/sub/"));
    EXPECT_EQ(Address(), ground.Full("d/sub/"));
    EXPECT_EQ(Names(), (Texts{"c.txt"}));
    EXPECT_EQ(Walks([&] { tree.PersonNode(*tree.Current()); }), 1);
}

TEST_P(SelectionEvents, Off_the_screen_the_folder_changes_without_a_walk)
{
    Screen_Show(p, screenRename, false);
    EXPECT_EQ(Walks([&] { tree.SetFolder(ground.Full("e/")); }), 0);
    EXPECT_EQ(s.StartPath, ground.Full("e/"));
    EXPECT_EQ(Address(), ground.Full("e/"));
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
}

TEST_P(SelectionEvents, A_node_that_is_no_folder_of_the_disk_is_ignored)
{
    const Texts windows{"", "Computer", "::{20D04FE0}", "C:", "d\\e", "/d/", "\\d\\"};
    const Texts linuxOnes{"", "Computer", "trash:///", "C:\\d\\", "d/e", "\\\\srv\\share\\"};
    for (const std::string& path : GetParam() == Ground::Windows ? windows : linuxOnes) {
        EXPECT_EQ(Walks([&] { tree.FolderClick(path); }), 0) << path;
        EXPECT_EQ(s.StartPath, ground.Full("d/")) << path;
        EXPECT_EQ(Address(), ground.Full("d/")) << path;
    }
}

TEST_P(SelectionEvents, Real_folders_get_their_separator)
{
    const Texts windows{"C:\\d", "\\\\srv\\share", "Z:\\"};
    const Texts linuxOnes{"/d", "/", "/a:b"};
    for (const std::string& path : GetParam() == Ground::Windows ? windows : linuxOnes) {
        tree.FolderClick(path);
        EXPECT_EQ(s.StartPath, path.back() == p.files.Rules().Separator
                                   ? path
                                   : path + p.files.Rules().Separator);
        EXPECT_EQ(Address(), s.StartPath);
    }
}

TEST_P(SelectionEvents, A_click_while_a_walk_goes_on_is_ignored)
{
    ground.G.Desktop.EachTurn = [&](int) { tree.FolderClick(ground.Full("e/")); };
    ground.G.ToolOf("ID_SelSubFiles").PersonClick();
    ground.G.Desktop.EachTurn = nullptr;
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg", "c.txt"}));
}

TEST_P(SelectionEvents, The_tree_shows_folders_that_are_not_hidden)
{
    AddFoldersForTheTree();
    tree.Refresh();
    EXPECT_EQ(BelowInHand(), (Texts{"a", "B", "link", "sub", "x y"}));
    EXPECT_TRUE(tree.Source.HasChildren(ground.Full("d/")));
    EXPECT_FALSE(tree.Source.HasChildren(ground.Full("d/sub/")));
    EXPECT_FALSE(tree.Source.HasChildren(ground.Full("d/B/"))); // it has a hidden one alone
    EXPECT_FALSE(tree.Source.HasChildren(ground.Full("gone/")));
}

TEST_P(SelectionEvents, Ctrl_H_in_the_tree_shows_hidden_folders_last_and_takes_them_away)
{
    AddFoldersForTheTree();
    tree.SetFocus();
    const Key toggle{'H', shiftCtrl};
    EXPECT_EQ(Walks([&] { f.PersonKey(&tree, toggle); }), 0);
    EXPECT_EQ(BelowInHand(), (Texts{"a", "B", "link", "sub", "x y", ".hidden"}));
    EXPECT_TRUE(tree.Source.HasChildren(ground.Full("d/B/")));
    f.PersonKey(&tree, toggle);
    EXPECT_EQ(BelowInHand(), (Texts{"a", "B", "link", "sub", "x y"}));
}

TEST_P(SelectionEvents, A_hidden_folder_that_is_gone_to_has_a_node)
{
    AddFoldersForTheTree();
    Sel_Open(p, ground.Full("d/.hidden/"));
    ASSERT_NE(tree.Current(), nullptr);
    EXPECT_EQ(tree.Current()->Path, ground.Full("d/.hidden/"));
    EXPECT_EQ(s.StartPath, ground.Full("d/.hidden/"));
    tree.SetFocus();
    for (const Key key : {Key{keyF5}, Key{'H', shiftCtrl}, Key{'H', shiftCtrl}}) {
        f.PersonKey(&tree, key);
        ASSERT_NE(tree.Current(), nullptr);
        EXPECT_EQ(tree.Current()->Path, ground.Full("d/.hidden/"));
    }
}

TEST_P(SelectionEvents, A_slow_folder_is_read_only_when_somebody_opens_it)
{
    if (!ground.Memory())
        return;
    ground.AddFolder("d/sub/deep");
    const std::string slow = ground.Full("d/sub/");
    ground.Memory()->SetSlow(slow);
    Texts looks;
    ground.Memory()->BeforeEach([&](const MemoryDisk::Call& call) {
        if (call.Path.starts_with(slow))
            looks.push_back(call.Name);
    });
    tree.Refresh();
    for (FolderNode* node : tree.NodesInSight())
        tree.MayOpen(*node);
    EXPECT_TRUE(tree.MayOpen(Below("sub")));
    EXPECT_EQ(looks, Texts());
    tree.Expand(Below("sub"), true);
    EXPECT_NE(looks, Texts());
    EXPECT_EQ(Below("sub").Children.size(), 1u);
}

TEST_P(SelectionEvents, F5_in_the_tree_reads_it_anew)
{
    ground.AddFolder("d/new");
    tree.SetFocus();
    EXPECT_EQ(Walks([&] { f.PersonKey(&tree, Key{keyF5}); }), 0);
    EXPECT_EQ(Below("new").Caption, "new");
}

TEST_P(SelectionEvents, F5_in_the_list_walks_anew)
{
    ground.AddFile("d/new.txt");
    list.SetFocus();
    EXPECT_EQ(Walks([&] { f.PersonKey(&list, Key{keyF5}); }), 1);
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg", "new.txt"}));
}

// -- Headers.

TEST_P(SelectionEvents, A_header_sorts_its_column)
{
    for (const char* name : {"d/a.txt", "d/b.jpg"})
        ground.Remove(name);
    const struct {
        const char* Name;
        std::size_t Size;
        int Year, Month;
    } files[] = {{"d/a.z", 3000, 2001, 12}, {"d/b.y", 2000000, 2002, 1}, {"d/c.x", 0, 2000, 6}};
    for (const auto& file : files) {
        ground.AddFile(file.Name);
        if (!ground.Memory())
            continue;
        ground.Memory()->SetSize(ground.Full(file.Name), file.Size);
        ground.Memory()->SetTimes(ground.Full(file.Name), Clock_Moment(file.Year, file.Month, 1));
    }
    Sel_Open(p, ground.Full("d/"));
    // Path is the column sorted by already, so its header turns the order.
    list.ColumnClick(1);
    EXPECT_EQ(list.SortOrder(), 1);
    list.ColumnClick(list.ColumnByKey("Name"));
    EXPECT_EQ(Names(), (Texts{"c.x", "b.y", "a.z"}));
    list.ColumnClick(list.ColumnByKey("Name"));
    EXPECT_EQ(Names(), (Texts{"a.z", "b.y", "c.x"}));
    list.ColumnClick(list.ColumnByKey("Type"));
    EXPECT_EQ(Names(), (Texts{"c.x", "b.y", "a.z"}));
    if (!ground.Memory())
        return;
    list.ColumnClick(list.ColumnByKey("Size"));
    EXPECT_EQ(Names(), (Texts{"c.x", "a.z", "b.y"}));
    list.ColumnClick(list.ColumnByKey("Modified"));
    EXPECT_EQ(Names(), (Texts{"c.x", "a.z", "b.y"}));
    EXPECT_EQ(List_Column(list, "Modified"),
              (Texts{"06/01/2000 12:00 AM", "12/01/2001 12:00 AM", "01/01/2002 12:00 AM"}));
}

// -- Splitters.

namespace {

struct Rect {
    double Left, Top, Width, Height;
    friend bool operator==(const Rect&, const Rect&) = default;
};

void PrintTo(const Rect& r, std::ostream* out)
{
    *out << r.Left << "," << r.Top << " " << r.Width << "x" << r.Height;
}

Rect Place(const Control& control)
{
    return {control.Left, control.Top, control.Width, control.Height};
}

void Put(Control& control, const Rect& rect)
{
    control.Move(rect.Left, rect.Top, rect.Width, rect.Height);
}

} // namespace

class Splitters : public SelectionEvents {
protected:
    Splitters()
    {
        Put(tree, {0, 0, 3000, 3000});
        Put(f.lblSelDBX, {3000, 0, 50, 6000});
        Put(list, {3050, 0, 5000, 6000});
        Put(f.lblSelDBY, {0, 3000, 3000, 50});
        Put(f.picSelPreview, {0, 3050, 3000, 2000});
    }
    static Control::Mouse At(double x, double y, int button = 1)
    {
        return {button, shiftNone, x, y};
    }
};

INSTANTIATE_TEST_SUITE_P(OnLinux, Splitters, ::testing::Values(Ground::Linux),
                         [](const auto& test) { return Ground_Name(test.param); });

struct DragCase {
    const char* What;
    std::vector<double> Moves;
    double TreeWidth; // and the list takes the rest
};

TEST_P(Splitters, The_upright_bar_moves_in_whole_steps_or_not_at_all)
{
    const DragCase cases[] = {
        {"to the right", {500}, 3500},
        {"to the left", {-500}, 2500},
        {"step by step", {100, 200, -50}, 3250},
        {"the place it was taken at is no move", {20}, 3000},
        {"nor is the same place again", {100, 100}, 3100},
        {"a fraction counts as its whole number", {100, 100.4}, 3100},
        {"above the limit by a twip", {-1799}, 1201},
        {"the limit itself is refused whole", {-1800}, 3000},
        {"and so is what lies beyond", {-2500}, 3000},
        {"a smaller step goes on", {-2500, -1000}, 2000},
        {"the list's limit is refused, too", {3800}, 3000},
        {"up to a twip", {3799}, 6799},
    };
    for (const DragCase& wanted : cases) {
        SCOPED_TRACE(wanted.What);
        Put(tree, {0, 0, 3000, 3000});
        Put(f.lblSelDBX, {3000, 0, 50, 6000});
        Put(list, {3050, 0, 5000, 6000});
        Put(f.picSelPreview, {0, 3050, 3000, 2000});
        f.lblSelDBX.MouseDown(At(20, 7));
        EXPECT_EQ(s.SplitX, 20);
        for (const double x : wanted.Moves)
            f.lblSelDBX.MouseMove(At(x, 7));
        f.lblSelDBX.MouseUp(At(0, 7));
        EXPECT_EQ(s.SplitX, noDrag);
        EXPECT_EQ(Place(tree), (Rect{0, 0, wanted.TreeWidth, 3000}));
        EXPECT_EQ(f.lblSelDBX.Left, wanted.TreeWidth);
        EXPECT_EQ(f.picSelPreview.Width, wanted.TreeWidth);
        EXPECT_EQ(Place(list), (Rect{wanted.TreeWidth + 50, 0, 8000 - wanted.TreeWidth, 6000}));
    }
}

TEST_P(Splitters, The_level_bar_moves_in_whole_steps_or_not_at_all)
{
    const DragCase cases[] = {
        {"down", {500}, 3500},
        {"up", {-500}, 2500},
        {"above the limit by a twip", {-1999}, 1001},
        {"the limit itself is refused whole", {-2000}, 3000},
        {"the panel's limit is refused, too", {1000}, 3000},
        {"up to a twip", {999}, 3999},
    };
    for (const DragCase& wanted : cases) {
        SCOPED_TRACE(wanted.What);
        Put(tree, {0, 0, 3000, 3000});
        Put(f.lblSelDBY, {0, 3000, 3000, 50});
        Put(f.picSelPreview, {0, 3050, 3000, 2000});
        f.lblSelDBY.MouseDown(At(7, 20));
        EXPECT_EQ(s.SplitY, 20);
        for (const double y : wanted.Moves)
            f.lblSelDBY.MouseMove(At(7, y));
        f.lblSelDBY.MouseUp(At(7, 0));
        EXPECT_EQ(s.SplitY, noDrag);
        const double height = wanted.TreeWidth;
        EXPECT_EQ(Place(tree), (Rect{0, 0, 3000, height}));
        EXPECT_EQ(f.lblSelDBY.Top, height);
        EXPECT_EQ(Place(f.picSelPreview), (Rect{0, height + 50, 3000, 5000 - height}));
    }
}

TEST_P(Splitters, Only_the_left_button_drags)
{
    for (Label* bar : {&f.lblSelDBX, &f.lblSelDBY}) {
        bar->MouseMove(At(300, 300));
        bar->MouseDown(At(20, 20, 2));
        bar->MouseMove(At(300, 300));
        EXPECT_EQ(Place(tree), (Rect{0, 0, 3000, 3000}));
    }
    EXPECT_EQ(s.SplitX, noDrag);
    EXPECT_EQ(s.SplitY, noDrag);
}

TEST_P(Splitters, The_picture_follows_while_the_preview_is_on)
{
    ground.G.Desktop.Pictures["p"] = {400, 10};
    Sel_Preview_Show(p, "p");
    EXPECT_EQ(f.imgSelPreview.Width, 3000);
    f.lblSelDBX.MouseDown(At(20, 0));
    f.lblSelDBX.MouseMove(At(1000, 0));
    EXPECT_EQ(f.imgSelPreview.Width, 3000);
    s.SelPreview = 1;
    f.lblSelDBX.MouseMove(At(500, 0));
    EXPECT_EQ(f.imgSelPreview.Width, 4500);
    f.lblSelDBX.MouseUp(At(0, 0));
    f.lblSelDBY.MouseDown(At(0, 20));
    f.lblSelDBY.MouseMove(At(0, 100));
    EXPECT_EQ(f.imgSelPreview.Top, 894); // 1900 high, and the picture 112
}

// -- Drops.

TEST_P(SelectionEvents, A_single_folder_is_gone_to)
{
    list.SetAllSelected(true);
    const int turns = ground.G.Desktop.Turns();
    Drop({"e"});
    EXPECT_EQ(ground.G.Desktop.Foregrounds, (Texts{"frmMain"}));
    EXPECT_EQ(ground.G.Desktop.Turns(), turns + 3); // its own, and two of the walk
    EXPECT_EQ(s.StartPath, ground.Full("e/"));
    EXPECT_EQ(tree.Folder(), ground.Full("e/"));
    EXPECT_EQ(Names(), (Texts{"f.txt", "g.txt"}));
    EXPECT_EQ(SelectedNames(), Texts{});
    Drop({"d/"});
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
}

TEST_P(SelectionEvents, A_file_of_another_folder_is_gone_to_and_selected)
{
    Drop({"e/g.txt"});
    EXPECT_EQ(s.StartPath, ground.Full("e/"));
    EXPECT_EQ(SelectedNames(), (Texts{"g.txt"}));
    EXPECT_EQ(ground.G.Panel(3), "Selected: 1");
}

TEST_P(SelectionEvents, Several_are_looked_for_in_the_folder_of_the_first)
{
    Drop({"e/f.txt", "e/gone", "e/g.txt"});
    EXPECT_EQ(SelectedNames(), (Texts{"f.txt", "g.txt"}));
    Drop({"d/b.jpg", "e/a.txt"});
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(SelectedNames(), (Texts{"a.txt", "b.jpg"}));
}

TEST_P(SelectionEvents, Several_folders_are_looked_for_like_files)
{
    Drop({"d/sub", "d/a.txt"});
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(SelectedNames(), (Texts{"a.txt"}));
}

TEST_P(SelectionEvents, In_folder_mode_a_folder_is_selected_in_the_one_above)
{
    ground.G.ToolOf("ID_SelFolder").PersonClick();
    Drop({"d/sub"});
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(SelectedNames(), (Texts{"sub"}));
    Drop({"d/sub/"});
    EXPECT_EQ(SelectedNames(), (Texts{"sub"}));
}

TEST_P(SelectionEvents, A_drop_deselects_what_was_selected)
{
    list.PersonSelect({1}, 1);
    Drop({"d/b.jpg"});
    EXPECT_EQ(SelectedNames(), (Texts{"b.jpg"}));
}

TEST_P(SelectionEvents, A_drop_stops_when_all_rows_are_counted)
{
    Drop({"d/a.txt", "d/a.txt", "d/b.jpg"});
    EXPECT_EQ(SelectedNames(), (Texts{"a.txt"}));
}

TEST_P(SelectionEvents, An_empty_drop_changes_nothing)
{
    list.PersonSelect({1}, 1);
    Drop({});
    EXPECT_EQ(SelectedNames(), (Texts{"a.txt"}));
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
}

TEST_P(SelectionEvents, A_folder_that_cannot_be_reached_leaves_the_tree)
{
    list.PersonSelect({1}, 1);
    Drop({"gone/x"});
    EXPECT_EQ(SelectedNames(), Texts{});
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(tree.Folder(), ground.Full("d/"));
    EXPECT_EQ(Names(), (Texts{"a.txt", "b.jpg"}));
    EXPECT_TRUE(ground.G.Desktop.Boxes.empty());
}

TEST_P(SelectionEvents, The_exact_name_is_selected_before_one_in_another_case)
{
    if (GetParam() == Ground::Windows)
        return; // holds no such names
    ground.AddFile("d/A.TXT");
    Drop({"d/A.TXT"});
    EXPECT_EQ(SelectedNames(), (Texts{"A.TXT"}));
    Drop({"d/a.txt"});
    EXPECT_EQ(SelectedNames(), (Texts{"a.txt"}));
}

TEST_P(SelectionEvents, A_drop_while_a_walk_goes_on_is_refused)
{
    ground.G.Desktop.EachTurn = [&](int) { Drop({"e/f.txt"}); };
    ground.G.ToolOf("ID_SelSubFiles").PersonClick();
    ground.G.Desktop.EachTurn = nullptr;
    EXPECT_EQ(s.StartPath, ground.Full("d/"));
    EXPECT_EQ(tree.Folder(), ground.Full("d/"));
    EXPECT_EQ(SelectedNames(), Texts{});
    EXPECT_TRUE(ground.G.Desktop.Foregrounds.empty());
}

} // namespace tavo
