#include "selection/selection_screen.h"

#include "core/frm_main.h"
#include "core/layout.h"
#include "core/program.h"
#include "core/screens.h"
#include "core/windows.h"
#include "selection/enumeration.h"
#include "selection/paths.h"
#include "selection/selection_events.h"
#include "settings/named_lists.h"
#include "toolkit/text.h"

namespace tavo {

namespace {

TextBox& Address_Box(Program& p)
{
    return *p.main.atbMain.Find("ID_sAddress")->Box;
}

ComboBox& Filter_Box(Program& p)
{
    return *p.main.atbMain.Find("ID_sFilter")->Combo();
}

void Sel_Walk(Program& p)
{
    Sel_List_Fill(p, p.state.StartPath, false, p.state.Filter);
}

} // namespace

void Sel_Tree_Goto(Program& p, const std::string& path)
{
    FolderTree& tree = p.main.ftvSelMain;
    tree.SetFolder(Path_WithoutDetours(p.files, path));
    tree.ExpandFolder();
    tree.EnsureVisible();
}

void Sel_Tree_Click(Program& p, const std::string& path)
{
    if (p.Busy() || !p.files.Rules().IsRealPath(path))
        return;
    p.state.StartPath = Path_AddSlash(path, p.files.Rules());
    if (p.state.CurScreen == screenSelection && p.state.TreeWalks)
        Sel_Walk(p);
    Address_Box(p).Text = p.state.StartPath;
}

void Sel_Open(Program& p, const std::string& path)
{
    if (p.Busy())
        return;
    p.state.TreeWalks = false;
    Sel_Tree_Goto(p, path.empty() ? p.state.AppFolder : path);
    p.state.TreeWalks = true;
    Screen_Show(p, screenSelection, false);
    p.desktop.Show(p.main);
    p.main.Refresh();
    Sel_Walk(p);
}

void Sel_Address_Apply(Program& p)
{
    const PathRules& rules = p.files.Rules();
    TextBox& box = Address_Box(p);
    const std::string typed = Trim(box.Text.Get());
    const std::string path = Path_AddSlash(typed, rules);
    const bool isBareSeparator = path.size() == 1 && !rules.RootKeepsSlash;
    if (p.Busy() || typed.empty() || isBareSeparator)
        return;
    Sel_Tree_Goto(p, path);
    const std::string reached = Path_AddSlash(p.main.ftvSelMain.Folder(), rules);
    const bool isSame = rules.CaseBlind ? SameText(reached, path) : reached == path;
    if (!isSame)
        box.Text = reached;
}

void Sel_Status_Update(Program& p)
{
    ListView& list = p.main.lsvSelMain;
    p.main.stbMain.SetPanel(3, "Selected: " + std::to_string(list.SelCount()));
    const int row = list.SelectedItem();
    if (p.state.SelPreview != 1)
        return;
    if (row > 0)
        Sel_Preview_Show(p, std::string(list.Cell(row, 1)) + std::string(list.Text(row)));
    else
        p.main.imgSelPreview.Visible = false;
}

void Sel_Filter_Apply(Program& p)
{
    if (p.Busy())
        return;
    const ComboBox& box = Filter_Box(p);
    const int row = box.ListIndex();
    if (row < 0)
        p.state.Filter = box.Text.Get();
    else if (row <= List_Last(p.state.Filters))
        p.state.Filter = p.state.Filters[static_cast<std::size_t>(row)].Data;
    Sel_Walk(p);
    Sel_Status_Update(p);
}

void Sel_Filter_Clear(Program& p)
{
    if (p.Busy() || !p.main.fraSelect.IsShown())
        return;
    Filter_Choose(p, 0);
    p.state.Filter = p.state.Filters[0].Data;
    Sel_Walk(p);
}

void Sel_FolderMode_Toggle(Program& p, bool folders)
{
    p.state.SelFolderMode = folders ? 1 : 0;
    p.main.atbMain.Find("ID_SelFolder")->Caption = folders ? "Folders" : "Files";
    p.main.atbMain.Find("ID_SelSubFiles")->Enabled = !folders;
    if (p.main.lsvSelMain.IsShown())
        Sel_Walk(p);
}

} // namespace tavo
