#include "selection/selection_events.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/rename_list.h"
#include "selection/enumeration.h"
#include "selection/paths.h"
#include "selection/selection_screen.h"
#include "toolkit/collation.h"
#include "toolkit/numbers.h"

#include <algorithm>
#include <tuple>

namespace tavo {

namespace {

constexpr double treeLimitTwips = 1200;
constexpr double previewLimitTwips = 1000;

void Drag_Begin(std::int32_t& field, const Control::Mouse& mouse, double at)
{
    if (mouse.Button == 1)
        AssignChecked(field, at);
}

// How far the bar is to go; 0 when no drag is under way or nothing moved.
double Drag_Distance(std::int32_t& field, double at)
{
    std::int32_t whole = 0;
    if (field == noDrag || !AssignChecked(whole, at) || field == whole)
        return 0;
    field = whole;
    return at;
}

void SplitX_Move(Program& p, const Control::Mouse& mouse)
{
    FrmMain& main = p.main;
    const double by = Drag_Distance(p.state.SplitX, mouse.X);
    if (by == 0)
        return;
    const double treeWidth = main.ftvSelMain.Width + by;
    const double listWidth = main.lsvSelMain.Width - by;
    if (treeWidth > treeLimitTwips && listWidth > treeLimitTwips) {
        main.lblSelDBX.Left = main.lblSelDBX.Left + by;
        main.ftvSelMain.Width = treeWidth;
        main.picSelPreview.Width = treeWidth;
        main.lsvSelMain.Left = main.lsvSelMain.Left + by;
        main.lsvSelMain.Width = listWidth;
    }
    if (p.state.SelPreview == 1)
        Sel_Preview_Fit(p);
}

void SplitY_Move(Program& p, const Control::Mouse& mouse)
{
    FrmMain& main = p.main;
    const double by = Drag_Distance(p.state.SplitY, mouse.Y);
    if (by == 0)
        return;
    const double treeHeight = main.ftvSelMain.Height + by;
    const double panelHeight = main.picSelPreview.Height - by;
    if (treeHeight > previewLimitTwips && panelHeight > previewLimitTwips) {
        main.lblSelDBY.Top = main.lblSelDBY.Top + by;
        main.ftvSelMain.Height = treeHeight;
        main.picSelPreview.Height = panelHeight;
        main.picSelPreview.Top = main.picSelPreview.Top + by;
    }
    if (p.state.SelPreview == 1)
        Sel_Preview_Fit(p);
}

void Splitters_Wire(Program& p)
{
    FrmMain& main = p.main;
    main.lblSelDBX.MouseDown = [&p](const Control::Mouse& m) {
        Drag_Begin(p.state.SplitX, m, m.X);
    };
    main.lblSelDBY.MouseDown = [&p](const Control::Mouse& m) {
        Drag_Begin(p.state.SplitY, m, m.Y);
    };
    main.lblSelDBX.MouseUp = [&p](const Control::Mouse&) { p.state.SplitX = noDrag; };
    main.lblSelDBY.MouseUp = [&p](const Control::Mouse&) { p.state.SplitY = noDrag; };
    main.lblSelDBX.MouseMove = [&p](const Control::Mouse& m) { SplitX_Move(p, m); };
    main.lblSelDBY.MouseMove = [&p](const Control::Mouse& m) { SplitY_Move(p, m); };
}

// In the order of lists, hidden ones behind the others.
std::vector<std::string> Folders_Sorted(std::vector<ListedFolder> folders, Collation order)
{
    std::vector<std::tuple<bool, std::string, std::string>> keyed;
    for (ListedFolder& folder : folders) {
        std::string key;
        Sort_Key_Append(key, folder.Name, order);
        keyed.emplace_back(folder.Hidden, std::move(key), std::move(folder.Name));
    }
    std::sort(keyed.begin(), keyed.end());
    std::vector<std::string> names;
    names.reserve(keyed.size());
    for (auto& entry : keyed)
        names.push_back(std::move(std::get<2>(entry)));
    return names;
}

// The folders that the tree shows below this one.
std::vector<ListedFolder> Tree_Folders(Program& p, const std::string& path)
{
    std::vector<ListedFolder> folders = p.files.ListFolders(path);
    if (!p.main.ftvSelMain.ShowsHidden)
        std::erase_if(folders, [](const ListedFolder& folder) { return folder.Hidden; });
    return folders;
}

// As file managers have it.
constexpr int keyToggleHidden = 'H';

void Tree_KeyDown(FolderTree& tree, const Key& key)
{
    const bool toggles = key.Code == keyToggleHidden && key.Shift == shiftCtrl;
    if (toggles)
        tree.ShowsHidden = !tree.ShowsHidden;
    if (toggles || key.Code == keyF5)
        tree.Refresh();
}

void Tree_Wire(Program& p)
{
    FolderTree& tree = p.main.ftvSelMain;
    tree.Source.Separator = p.files.Rules().Separator;
    tree.Source.Roots = [&p] {
        std::vector<FolderSource::Place> places;
        for (const RootPlace& place : p.files.RootPlaces())
            places.push_back({place.Caption, place.Path});
        return places;
    };
    tree.Source.Children = [&p](const std::string& path) {
        return Folders_Sorted(Tree_Folders(p, path), p.main.lsvSelMain.Order);
    };
    tree.Source.HasChildren = [&p](const std::string& path) {
        return !Tree_Folders(p, path).empty();
    };
    tree.Source.IsSlow = [&p](const std::string& path) { return p.files.IsSlowFolder(path); };
    // Asked with its separator, so that the root of a drive is one, too.
    tree.Source.IsFolder = [&p](const std::string& path) {
        return p.files.FolderIdentity(path).has_value();
    };
    tree.Source.IsSameFolder = [&p](const std::string& left, const std::string& right) {
        return IsOneFolder(p.files, left, right);
    };
    tree.FolderClick = [&p](const std::string& path) { Sel_Tree_Click(p, path); };
    tree.KeyDown = [&tree](Key& key) { Tree_KeyDown(tree, key); };
}

void List_Wire(Program& p)
{
    ListView& list = p.main.lsvSelMain;
    list.ItemClick = [&p] { Sel_Status_Update(p); };
    list.Click = [&p] { Sel_Status_Update(p); };
    list.KeyDown = [&p](Key& key) {
        if (key.Code == keyF5)
            Sel_List_Fill(p, p.state.StartPath, false, p.state.Filter);
    };
    list.KeyUp = [&p](Key& key) {
        if (key.Code >= keyLeft && key.Code <= keyDown)
            Sel_Status_Update(p);
    };
    list.ColumnClick = [&p, &list](int column) { Ren_List_Sort(p, list, column); };
    list.FilesDropped = [&p](const std::vector<std::string>& paths) {
        Sel_Files_Dropped(p, paths);
    };
}

// The row of this name, 0 if none; the same spelling goes before another case.
int Row_Named(const ListView& list, const std::string& name)
{
    const int first = list.FindItem(name);
    for (int row = first; row > 0; row = list.FindItem(name, row))
        if (list.Text(row) == name)
            return row;
    return first;
}

void Dropped_Select(Program& p, const std::vector<std::string>& paths)
{
    ListView& list = p.main.lsvSelMain;
    int selected = 0;
    for (const std::string& path : paths) {
        if (selected >= list.Count())
            break;
        std::string folder = Path_RemoveSlash(path, p.files.Rules()), name;
        Path_Split(folder, name, p.files.Rules());
        const int row = Row_Named(list, name);
        if (row == 0)
            continue;
        list.SetSelected(row, true);
        ++selected;
    }
    Sel_Status_Update(p);
}

} // namespace

void Sel_Files_Dropped(Program& p, const std::vector<std::string>& paths)
{
    const PathRules& rules = p.files.Rules();
    if (p.Busy())
        return;
    p.desktop.SetForegroundWindow(p.main);
    p.desktop.DoEvents();
    if (paths.empty())
        return;
    p.main.lsvSelMain.SetAllSelected(false);
    std::string first = Path_RemoveSlash(paths.front(), rules);
    if (paths.size() == 1 && p.state.SelFolderMode == 0 && Folder_Exists(p.files, first)) {
        Sel_Tree_Goto(p, Path_AddSlash(first, rules));
        return;
    }
    std::string folder = first, name;
    Path_Split(folder, name, rules);
    Sel_Tree_Goto(p, folder);
    Dropped_Select(p, paths);
}

void Sel_Screen_Wire(Program& p)
{
    Tree_Wire(p);
    List_Wire(p);
    Splitters_Wire(p);
}

} // namespace tavo
