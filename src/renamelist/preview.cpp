#include "renamelist/preview.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/name_builder.h"
#include "renamelist/nn_panel.h"
#include "selection/paths.h"
#include "toolkit/text.h"

namespace tavo {

namespace {

constexpr int outcomePanel = 2;

// The name in hand, split in file mode, whole in folder mode.
void Row_Take(Program& p, int row)
{
    SharedState& s = p.state;
    const ListView& list = p.main.lsvRename;
    s.OldName = list.Text(row);
    s.OldExt.clear();
    s.FullName = std::string(list.Cell(row, s.colPath)) + s.OldName;
    if (s.SelFolderMode == 0)
        Name_Split(s.OldName, s.OldExt);
}

// Counts by the row's place in the list, whatever a run over other rows would
// make of it.
std::string NN_Outcome(Program& p, int row)
{
    NameBuilder names(p.main.txtNameNum[nnName].Text.Get(), p.main.txtNameNum[nnExt].Text.Get(),
                      p.state);
    names.Build(p.state.OldName, p.state.OldExt, names.Start() + row - 1);
    return names.NewName();
}

void NN_AutoFill(Program& p)
{
    SharedState& s = p.state;
    if (s.nnAutoFill != 1 || !s.ActReady)
        return;
    const bool keepsExt = s.ProExt == 1 && s.SelFolderMode == 0;
    p.main.txtNameNum[nnName].Text = s.OldName;
    p.main.txtNameNum[nnExt].Text = keepsExt ? "<OE>" : s.OldExt;
    if (s.nnAppTmp == 1)
        Tmpl_Load(p, s.nnAppTmpDef);
}

void NN_Row_Click(Program& p)
{
    p.state.PreviewOn = false;
    NN_AutoFill(p);
    p.state.PreviewOn = true;
    Preview_Show(p);
}

} // namespace

void Box_SelectAll(TextBox& box)
{
    box.Select(0, Len(box.Text.Get()));
}

void Row_Click(Program& p)
{
    ListView& list = p.main.lsvRename;
    if (list.Count() == 0)
        return;
    p.main.stbMain.SetPanel(3, "Selected: " + std::to_string(list.SelCount()));
    p.state.PreviewOn = true;
    const int row = list.SelectedItem();
    if (row == 0)
        return;
    p.state.CurRow = std::to_string(row);
    Row_Take(p, row);
    p.state.CurFile = p.state.FullName;
    if (p.state.RenMode == modeNameNumber)
        NN_Row_Click(p);
    p.RowShown(row);
}

void Preview_Show(Program& p)
{
    const int row = p.main.lsvRename.SelectedItem();
    if (!p.state.PreviewOn || row == 0)
        return;
    Row_Take(p, row);
    if (p.state.RenMode == modeNameNumber)
        p.main.stbMain.SetPanel(outcomePanel, NN_Outcome(p, row));
    else if (p.state.RenMode == modeMoveCopy)
        p.main.stbMain.SetPanel(outcomePanel, std::string(p.main.lsvRename.Text(row)));
}

} // namespace tavo
