#include "stand.h"

#include "core/start_up.h"
#include "measure.h"
#include "renamelist/act_run.h"
#include "renamelist/rename_list.h"
#include "selection/enumeration.h"

#include <array>
#include <cstdio>

namespace tavo::bench {

Stand::Stand(const std::string& folder)
    : P(files_, profile_, desktop_, {folder, folder}), Selection(P.main.lsvSelMain),
      Renames(P.main.lsvRename)
{
    P.Start();
    P.state.SupWarnRen = 1;
    P.state.SupWarnUndo = 1;
    P.state.actClose = 1;
    P.state.RenMode = modeNameNumber;
}

void Stand::Walk(const std::string& folder, bool subFolders, const std::string& filter)
{
    Sel_List_Fill(P, folder, subFolders, filter);
}

void Stand::Load(const std::string& folder)
{
    Walk(folder, false, "");
    Selection.SetAllSelected(true);
    Ren_List_FromSelection(P, Selection);
    P.state.RenMode = modeNameNumber;
}

void Stand::Number(const std::string& nameTemplate, int start)
{
    P.main.txtNameNum[nnName].Text = nameTemplate;
    P.main.txtNameNum[nnExt].Text = "<OE>";
    P.main.optNNStyle[1].Value = true;
    P.main.txtNameNum[nnStartBox].Text = std::to_string(start);
    P.main.txtNameNum[nnDigitsBox].Text = "6";
    Act_Run(P, actAll);
    const std::string errors(Renames.Column(P.state.colErrors).Caption);
    Require(errors == "Errors: " || errors == "Errors: 0", "renaming failed: " + errors);
}

void Stand::ChangedAre(int count)
{
    const std::string errors(Renames.Column(P.state.colErrors).Caption);
    Require(errors == "Errors: " || errors == "Errors: 0", "rows failed: " + errors);
    const std::string changed = P.main.lblActionInfo[1].Caption;
    Require(changed == std::to_string(count), "only " + changed + " rows changed");
}

void Stand::Run(RenameMode mode)
{
    P.state.RenMode = mode;
    Act_Run(P, actAll);
    ChangedAre(Renames.Count());
}

void Stand::Undo()
{
    Act_Run(P, actUndo);
    ChangedAre(Renames.Count());
}

std::string Row_Name(int number)
{
    char text[32];
    std::snprintf(text, sizeof text, "holiday_%07d.jpg", number);
    return text;
}

void Rows_Fill(Program& p, int count)
{
    const SharedState& s = p.state;
    ListView& list = p.main.lsvRename;
    Cols_Init(p);
    list.DeleteAllItems();
    list.SetSorted(false);
    const ListFreezeGuard freeze(list);
    std::array<std::string_view, 7> cells;
    for (int row = 1; row <= count; ++row) {
        const std::string name = Row_Name(row);
        const std::string folder = "/home/ada/pictures/" + std::to_string(row / 1000) + "/";
        const std::string size = std::to_string(row % 9000 + 1000) + " KB";
        char modified[32];
        std::snprintf(modified, sizeof modified, "%02d/%02d/2024 %02d:%02d %s", row % 12 + 1,
                      row % 28 + 1, row % 12 + 1, row % 60, row % 2 == 0 ? "AM" : "PM");
        cells[s.colName] = name;
        cells[s.colPath] = folder;
        cells[s.colSize] = size;
        cells[s.colType] = "jpg";
        cells[s.colModified] = modified;
        list.AddRow(cells.data(), static_cast<int>(cells.size()), "P");
    }
}

} // namespace tavo::bench
