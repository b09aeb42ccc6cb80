#include "fileactions/move_copy.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/act_panel.h"
#include "renamelist/executor.h"
#include "renamelist/row_walk.h"
#include "selection/paths.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int moves = 1;
constexpr std::string_view unknown = "Unknown", missing = "Missing";

// Where a file goes. When a hundred names are taken the target is the bare
// folder, and the name one that was not looked for.
struct Target {
    std::string Path, Name;
};

Target Target_Find(Program& p, const std::string& folder, const std::string& name)
{
    constexpr int tries = 100;
    Target target{folder, name};
    for (int j = 1; j <= tries; ++j) {
        if (!File_Exists(p.files, folder + target.Name)) {
            target.Path += target.Name;
            break;
        }
        target.Name = "Copy [" + std::to_string(j) + "] " + name;
    }
    return target;
}

// True when the file is where it should be.
bool Row_Copy(Program& p, int row, const std::string& folder)
{
    ListView& list = p.main.lsvRename;
    const std::string name(list.Cell(row, p.state.colName));
    const Target target = Target_Find(p, folder, name);
    FileOperation op;
    op.Func = p.state.mcdMode == moves ? foMove : foCopy;
    op.From = std::string(list.Cell(row, p.state.colPath)) + name;
    op.To = target.Path;
    if (p.files.SHFileOperationA(op) != diskOk)
        return false;
    list.SetCell(row, p.state.colName, target.Name);
    list.SetCell(row, p.state.colPath, folder);
    return true;
}

// Takes the file away, and with it the row; gives the status.
std::string_view Row_Delete(Program& p, int row, int flags, RowCounters& counters)
{
    ListView& list = p.main.lsvRename;
    FileOperation op;
    op.Func = foDelete;
    op.Flags = flags;
    op.From =
        std::string(list.Cell(row, p.state.colPath)) + std::string(list.Cell(row, p.state.colName));
    const bool isThere = File_Exists(p.files, op.From);
    if (!isThere || p.files.SHFileOperationA(op) != diskOk) {
        ++counters.Errors;
        return isThere ? unknown : missing;
    }
    list.Remove(row);
    ++counters.Done;
    return {};
}

void Folder_Browse(Program& p)
{
    if (const auto folder = p.desktop.SHBrowseForFolderA("Select a Path"))
        p.main.txtmcdPath.Text = *folder;
}

void Favorite_Choose(Program& p)
{
    const int index = p.main.cbomcdPath.ListIndex() + 1;
    if (index >= 1 && index <= List_Last(p.state.Favorites))
        p.main.txtmcdPath.Text = p.state.Favorites[static_cast<std::size_t>(index)].Data;
}

} // namespace

void Copy_Run(Program& p, const RunRows& rows)
{
    Act_Stage(p, p.state.mcdMode == moves ? "Moving Files..." : "Copying Files...");
    const std::string folder = Path_AddSlash(p.main.txtmcdPath.Text.Get(), p.files.Rules());
    Rows_Walk(p, rows, [&](int row, RowCounters& counters) {
        const bool done = Row_Copy(p, row, folder);
        ++(done ? counters.Done : counters.Errors);
        return done ? std::string_view() : unknown;
    });
}

// The rows are taken down first: what events do to the selection on the way
// deletes no other file.
void Delete_Run(Program& p, int count, bool recycle)
{
    Act_Stage(p, recycle ? "Recycling Files..." : "Deleting Files...");
    const int flags = recycle ? fofQuietRecycle : fofQuiet;
    ListView& list = p.main.lsvRename;
    const RunRows chosen = list.SelectedRows();
    const int total = list.Count();
    RowCounters counters;
    std::string_view status;
    for (int i = 1; i <= total; ++i) {
        Act_Progress(p, i, total);
        const int position = i - counters.Done;
        if (std::ranges::binary_search(chosen, i))
            status = Row_Delete(p, position, flags, counters);
        Act_Panel_Update(p, counters.Done, counters.Errors, 0);
        if (i <= list.Count())
            list.SetCell(i, p.state.colErrors, status);
        p.desktop.DoEvents();
        if (p.state.ActCancel || counters.Done + counters.Errors == count)
            break;
    }
    p.state.RenCount = list.Count();
}

void Copy_Mode_Show(Program& p)
{
    p.main.lblmcd[0].Caption = p.state.mcdMode == moves ? "Move To" : "Copy To";
}

void Copy_Panel_Wire(Program& p)
{
    for (const auto& option : p.main.optmcdMode) {
        const int mode = option->Index();
        option->Click = [&p, mode] {
            p.state.mcdMode = static_cast<std::uint8_t>(mode);
            Copy_Mode_Show(p);
        };
    }
    p.main.cmdmcdPath.Click = [&p] { Folder_Browse(p); };
    p.main.cbomcdPath.Click = [&p] { Favorite_Choose(p); };
}

} // namespace tavo
