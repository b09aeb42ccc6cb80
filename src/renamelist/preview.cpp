#include "renamelist/preview.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "fileactions/attributes.h"
#include "fileactions/date_time.h"
#include "fileactions/mp3_panel.h"
#include "renamelist/change_case.h"
#include "renamelist/name_builder.h"
#include "renamelist/name_walks.h"
#include "renamelist/nn_panel.h"
#include "selection/paths.h"
#include "toolkit/text.h"

#include <algorithm>
#include <iterator>

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
                      p.state, p.files);
    names.Build(p.state.FullName, p.state.OldName, p.state.OldExt, names.Start() + row - 1);
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

// -- What a click on a row shows, by mode. False ends the click there.

bool NN_Row_Click(Program& p)
{
    p.state.PreviewOn = false;
    NN_AutoFill(p);
    p.state.PreviewOn = true;
    Preview_Show(p);
    return true;
}

bool Case_Row_Click(Program& p)
{
    Preview_Show(p);
    return true;
}

bool SR_Row_Click(Program& p)
{
    p.main.lblSearchRange[1].Caption =
        "Len: " + std::to_string(Len(p.state.OldName)) + "." + std::to_string(Len(p.state.OldExt));
    Preview_Show(p);
    return true;
}

bool DT_Row_Click(Program& p)
{
    if (File_Exists(p.files, p.state.FullName))
        DT_Form_Fill(p, p.state.FullName);
    else
        p.main.stbMain.SetPanel(outcomePanel, "Error Getting Date and Time!");
    return true;
}

// The ending decides alone; whether there is a tag in it is not asked here.
bool MP3_Row_Click(Program& p)
{
    const bool mayHaveTag =
        File_Exists(p.files, p.state.FullName) && UCase(p.state.OldExt) == "MP3";
    if (p.state.nnAutoFill == 1)
        MP3_Tag_Show(p, mayHaveTag ? p.state.FullName : std::string());
    p.main.stbMain.SetPanel(outcomePanel, mayHaveTag ? "Tag was Found!" : "NO Tag was Found!");
    return true;
}

// -- What the row in hand would become.

std::string Case_Outcome(Program& p, int row)
{
    std::string name(p.main.lsvRename.Text(row));
    Case_Apply(name, Case_Rules(p.state), p.state.CaseWordList, p.state.ccWord);
    return name;
}

std::string SR_Outcome(Program& p, int)
{
    std::string name = p.state.OldName, extension = p.state.OldExt;
    const SearchTask task = SR_Task(p);
    if (!task.Find.empty() || task.Type == searchRange)
        SR_Apply(name, extension, task);
    return extension.empty() ? name : name + '.' + extension;
}

std::string Copy_Outcome(Program& p, int row)
{
    return std::string(p.main.lsvRename.Text(row));
}

struct ModeShow {
    RenameMode Mode;
    bool (*Click)(Program& p);
    std::string (*Outcome)(Program& p, int row);
};

constexpr ModeShow modeShows[] = {
    {modeAttributes, Attr_Row_Show, nullptr},   {modeCase, Case_Row_Click, Case_Outcome},
    {modeDateTime, DT_Row_Click, nullptr},      {modeMoveCopy, nullptr, Copy_Outcome},
    {modeNameNumber, NN_Row_Click, NN_Outcome}, {modeSearchReplace, SR_Row_Click, SR_Outcome},
    {modeMp3Tag, MP3_Row_Click, nullptr},
};

const ModeShow* Show_Of(Program& p)
{
    const auto* show = std::ranges::find(modeShows, p.state.RenMode, &ModeShow::Mode);
    return show == std::end(modeShows) ? nullptr : show;
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
    p.RowTaken(row);
    Row_Take(p, row);
    p.state.CurFile = p.state.FullName;
    const ModeShow* show = Show_Of(p);
    if (show && show->Click && !show->Click(p))
        return;
    p.RowShown(row);
}

void Preview_Show(Program& p)
{
    const int row = p.main.lsvRename.SelectedItem();
    if (!p.state.PreviewOn || row == 0)
        return;
    Row_Take(p, row);
    const ModeShow* show = Show_Of(p);
    if (show && show->Outcome)
        p.main.stbMain.SetPanel(outcomePanel, show->Outcome(p, row));
}

} // namespace tavo
