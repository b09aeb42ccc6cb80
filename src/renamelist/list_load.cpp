#include "renamelist/rename_list.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/screens.h"
#include "core/start_up.h"
#include "renamelist/preview.h"
#include "selection/enumeration.h"
#include "selection/paths.h"
#include "toolkit/text.h"
#include "viewer/frm_viewer.h"

#include <algorithm>
#include <array>

namespace tavo {

namespace {

constexpr int rowsBetweenEvents = 1000;

// Where a selection list keeps its cells.
enum SourceColumn { srcName = 0, srcPath = 1, srcSize = 2, srcType = 3, srcModified = 4 };

struct NewRow {
    std::string_view Name, Path, Size, Type, Modified, Icon;
};

// The columns of the list may stand in any order.
void Row_Append(const SharedState& s, ListView& list, const NewRow& row)
{
    std::array<std::string_view, 256> cells; // column numbers have one byte
    const int count = list.ColumnCount();
    std::fill_n(cells.begin(), count, std::string_view());
    cells[s.colName] = row.Name;
    cells[s.colPath] = row.Path;
    cells[s.colSize] = row.Size;
    cells[s.colType] = row.Type;
    cells[s.colModified] = row.Modified;
    list.AddRow(cells.data(), count, row.Icon);
}

// -- From the selection.

void Rows_Copy(Program& p, const ListView& source, int first, int last)
{
    ListView& list = p.main.lsvRename;
    const ListFreezeGuard freeze(list);
    for (int row = source.NextSelected(first - 1); row > 0 && row <= last;
         row = source.NextSelected(row)) {
        const std::string type = LCase(source.Cell(row, srcType));
        Row_Append(p.state, list,
                   {source.Cell(row, srcName), source.Cell(row, srcPath), source.Cell(row, srcSize),
                    type, source.Cell(row, srcModified), source.SmallIcon(row)});
    }
}

// The share counts all rows walked against the selected ones, so it passes 100
// where few are selected.
void Load_ShowShare(Program& p, int row, int selected)
{
    const auto share = std::int64_t{row} * 100 / std::max(selected, 1);
    p.main.stbMain.SetPanel(2, "Loading Rename List... (" + std::to_string(share) + "%)");
    p.desktop.DoEvents();
}

void Selection_Copy(Program& p, const ListView& source)
{
    const int count = source.Count();
    const int selected = source.SelCount();
    for (int done = 0; done < count && !p.state.ActCancel;) {
        const int last = std::min(done + rowsBetweenEvents, count);
        Rows_Copy(p, source, done + 1, last);
        done = last;
        if (done % rowsBetweenEvents == 0)
            Load_ShowShare(p, done, selected);
    }
}

// -- From a drop.

// `local` is kept from row to row: a stamp that cannot be told shows the one
// before it.
void Drop_AddRow(Program& p, std::string path, const FindData& data, SystemTime& local)
{
    std::string name;
    Path_Split(path, name, p.files.Rules());
    if (name.empty())
        return;
    const bool folder = p.state.SelFolderMode == 1;
    const std::string type = folder ? "-" : LCase(Name_GetExt(name));
    const std::string size = folder ? "-" : Size_Text(data);
    p.files.FileTimeToLocalSystemTime(data.Written, local);
    const std::string modified = Modified_Text(local);
    const char icon = Sel_Class_Get(type, p.state.Gif);
    Row_Append(p.state, p.main.lsvRename, {name, path, size, type, modified, {&icon, 1}});
}

void Drop_Add(Program& p, const std::string& dropped, SystemTime& local)
{
    const bool folderMode = p.state.SelFolderMode == 1;
    std::string path = dropped;
    const bool folder = Folder_Exists(p.files, path);
    if (folder && !folderMode) {
        Sel_Files_Get(p, path, "*.*", 0, p.main.lsvRename, p.main);
        return;
    }
    if (folder != folderMode)
        return;
    if (const auto data = p.files.Stat(path))
        Drop_AddRow(p, path, *data, local);
}

// -- Showing what was loaded.

void Rows_SortByName(Program& p)
{
    ListView& list = p.main.lsvRename;
    list.SetSortKey(p.state.colName);
    list.SetSortOrder(0);
    list.SetSorted(true);
    list.SetSorted(false);
    Ren_Marks_Clear(list);
}

void List_Show(Program& p)
{
    FrmMain& f = p.main;
    f.lsvRename.Visible = true;
    f.stbMain.SetPanel(1, "Total Files: " + std::to_string(p.state.RenCount));
    f.stbMain.SetPanel(3, "Selected: 1");
    List_LeaveEmptyState(p);
    Rows_SortByName(p);
    f.lsvRename.SetAllSelected(false);
    f.lsvRename.SetSelected(1, true);
    Row_Click(p);
}

// Both come to the front in turn, so that they keep their order on the screen.
void Windows_InOrder(Program& p)
{
    FrmViewer* const viewer = p.ViewerInSight();
    if (!viewer)
        return;
    p.desktop.Show(*viewer);
    p.desktop.Show(p.main);
}

} // namespace

void Ren_List_Prepare(Program& p)
{
    SharedState& s = p.state;
    FrmMain& f = p.main;
    f.stbMain.SetPanel(1, "");
    f.stbMain.SetPanel(2, "Preparing Rename List...");
    f.stbMain.SetPanel(3, "");
    s.ActCancel = false;
    s.ActReady = true;
    s.RenCount = 0;
    s.ThumbBuffer.assign(1, nullptr);
    Cols_Init(p);
    f.lsvRename.DeleteAllItems();
    f.lsvRename.SetSorted(false);
    f.stbMain.SetPanel(2, "Loading Rename List...");
    p.desktop.DoEvents();
}

void Ren_List_FromSelection(Program& p, ListView& source)
{
    const LongOperation operation(p);
    if (!operation)
        return;
    Tools_SelEnable(p, false);
    Ren_List_Prepare(p);
    Selection_Copy(p, source);
    Tools_SelEnable(p, true);
    p.desktop.DoEvents();
    Ren_List_Finish(p);
    Screen_Show(p, screenRename, false);
}

void Ren_List_FromDrop(Program& p, const std::vector<std::string>& paths)
{
    const LongOperation operation(p);
    if (!operation)
        return;
    Ren_List_Prepare(p);
    {
        const ListFreezeGuard freeze(p.main.lsvRename);
        SystemTime local;
        for (const std::string& path : paths)
            Drop_Add(p, path, local);
    }
    p.desktop.DoEvents();
    Ren_List_Finish(p);
}

void Ren_List_Create(Program& p)
{
    if (p.Busy())
        return;
    FrmMain& f = p.main;
    if (f.lsvSelMain.SelCount() > 0) {
        Ren_FolderMode_Apply(p, p.state.SelFolderMode);
        Ren_List_FromSelection(p, f.lsvSelMain);
        return;
    }
    if (f.lsvRename.Count() > 0)
        Mode_Set(p, p.state.RenMode);
    else
        Ren_List_Clear(p);
    Screen_Show(p, screenRename, false);
}

void Ren_List_Finish(Program& p)
{
    {
        const FreezeGuard freeze(p.main);
        ListView& list = p.main.lsvRename;
        p.state.RenCount = list.Count();
        if (p.state.RenCount >= 1)
            List_Show(p);
        else
            Ren_List_Clear(p);
        list.EnsureVisible(1);
        p.RowsCounted();
    }
    Windows_InOrder(p);
}

void Ren_List_Clear(Program& p)
{
    p.state.RenCount = 0;
    List_SetEmptyState(p);
    p.RowsRedrawn();
}

void Ren_FolderMode_Apply(Program& p, int mode)
{
    constexpr auto windowColour = static_cast<std::int32_t>(0x80000005);
    constexpr auto faceColour = static_cast<std::int32_t>(0x8000000F);
    FrmMain& f = p.main;
    const bool folders = mode == 1;
    p.state.SelFolderMode = folders ? 1 : 0;
    f.txtNameNum[nnExt].Enabled = !folders;
    f.txtNameNum[nnExt].BackColor = folders ? faceColour : windowColour;
    if (folders)
        f.optSearchMode[3].Value = true;
    f.optSearchMode[1].Enabled = !folders;
    f.optSearchMode[2].Enabled = !folders;
}

} // namespace tavo
