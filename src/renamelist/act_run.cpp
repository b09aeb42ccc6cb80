#include "renamelist/act_run.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/screens.h"
#include "renamelist/act_panel.h"
#include "renamelist/nn_run.h"
#include "renamelist/preview.h"
#include "renamelist/rename_list.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tavo {

namespace {

using RowWalk = void (*)(Program& p, const RunRows& rows);

struct PanelLabel {
    std::string_view Caption, Tip;
};

// What a run of a mode does and how the panel names its counts.
struct ModePlan {
    RenameMode Mode;
    RowWalk Walk;
    std::array<PanelLabel, 3> Labels;
};

constexpr std::array<PanelLabel, 3> renameLabels = {{
    {"Renamed:", "Number of Files Renamed"},
    {"Skipped due to Error:", "Number of Files Skipped Due to Error during Rename Attempt"},
    {"Renaming Unnecessary:", "Number of Files with Correct Name Already"},
}};

// Modes that stand here can run; all others refuse before anything is asked.
constexpr ModePlan modePlans[] = {
    {modeNameNumber, NN_Run, renameLabels},
};

void Mode_Work(Program& p, int action, int count);
void Refresh_Work(Program& p, int action, int count);
void Remove_Work(Program& p, int action, int count);

constexpr int always = 0;

// One action. `Question` comes from `AskFrom` rows on unless its warning is
// off, the panel from `PanelFrom` rows on. With `RunsMode` it rests on the
// mode in hand and its input.
struct ActionPlan {
    Action Code;
    bool RunsMode;
    std::string_view Question;
    int AskFrom;
    int PanelFrom;
    void (*Work)(Program& p, int action, int count);
};

constexpr ActionPlan actionPlans[] = {
    {actAll, true, "Update All the Files?", always, always, Mode_Work},
    {actSelected, true, "Update the Selected Files?", 2, 2, Mode_Work},
    {actRefresh, false, "", always, always, Refresh_Work},
    {actRemove, false, "", always, 2, Remove_Work},
};

const ActionPlan* Action_Find(int action)
{
    const auto* plan = std::ranges::find(actionPlans, action, &ActionPlan::Code);
    return plan == std::end(actionPlans) ? nullptr : plan;
}

const ModePlan* Mode_Find(int mode)
{
    const auto* plan = std::ranges::find(modePlans, mode, &ModePlan::Mode);
    return plan == std::end(modePlans) ? nullptr : plan;
}

// -- The start of a run.

bool Run_IsAgreed(Program& p, const ActionPlan& plan, int count)
{
    if (plan.Question.empty() || p.state.SupWarnRen == 1 || count < plan.AskFrom)
        return true;
    return p.Say(std::string(plan.Question), BoxIcon::Question, BoxButtons::OkCancel,
                 BoxAnswer::Cancel)
           == BoxAnswer::Ok;
}

void Run_Reset(SharedState& s)
{
    s.ActShow = true;
    s.ActCancel = false;
    s.ActPaused = false;
    s.RenFailed = false;
    s.RenErrCode = 0;
}

void Panel_Open(Program& p)
{
    FrmMain& f = p.main;
    f.prbAction.Value = f.prbAction.Min.Get();
    f.cmdActPause.Caption = "&Pause";
    f.cmdActPause.Enabled = true;
    f.cmdActCancel.Enabled = true;
    f.cmdActDone.Enabled = false;
    Act_Panel_Setup(p, true, "", "", "");
    Act_Stage(p, "Preparing to Start...");
    p.state.ActPrevView = p.state.CurScreen;
    Screen_Show(p, screenAction, false);
    Tools_RunEnable(p, false);
    p.desktop.DoEvents();
}

void Panel_Close(Program& p)
{
    FrmMain& f = p.main;
    Act_Stage(p, "Finished! Click Done to Continue...");
    f.SetCaption(Title_Get(p.state.RenMode));
    f.cmdActPause.Enabled = false;
    f.cmdActCancel.Enabled = false;
    f.cmdActDone.Enabled = true;
    f.cmdActDone.SetFocus();
    if (p.state.actClose == 1 || !p.state.ActShow)
        Act_Done(p);
}

// -- Actions 0 and 1.

// A run discards the undo data of the last one even if it fails at once.
void Rows_Clear(Program& p)
{
    Act_Stage(p, "Clearing UndoName and Error Columns...");
    p.main.lsvRename.SetColumnCells(p.state.colErrors, "");
    p.main.lsvRename.SetColumnCells(p.state.colUndoName, "");
    p.desktop.DoEvents();
}

RunRows Rows_Selected(const ListView& list, int count)
{
    RunRows rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int row = list.NextSelected(0); row > 0; row = list.NextSelected(row))
        rows.push_back(row);
    return rows;
}

RunRows Rows_All(int count)
{
    RunRows rows(static_cast<std::size_t>(count));
    for (int row = 1; row <= count; ++row)
        rows[static_cast<std::size_t>(row - 1)] = row;
    return rows;
}

RunRows Rows_Collect(Program& p, int action, int count)
{
    if (count != 1)
        Act_Stage(p, "Getting Selected Items...");
    return action == actAll ? Rows_All(count) : Rows_Selected(p.main.lsvRename, count);
}

void Panel_ShowMode(Program& p, const ModePlan& plan)
{
    const auto& labels = plan.Labels;
    Act_Panel_Setup(p, false, labels[0].Caption, labels[1].Caption, labels[2].Caption);
    for (int k = 1; k <= 3; ++k)
        p.main.lblAction[k].ToolTipText = std::string(labels[static_cast<std::size_t>(k - 1)].Tip);
}

// Back to where the person was typing.
void Focus_GiveBack(Program& p)
{
    if (p.state.RenMode != modeNameNumber)
        return;
    TextBox& box = p.main.txtNameNum[p.state.NameBoxFocus == nnExt ? nnExt : nnName];
    box.SetFocus();
    Box_SelectAll(box);
}

void Row_Advance(Program& p, int row)
{
    ListView& list = p.main.lsvRename;
    if (row >= list.Count() || p.state.AutoSelNext != 1)
        return;
    list.SetSelected(row, false);
    list.SetSelected(row + 1, true);
    list.EnsureVisible(row + 1);
    Row_Click(p);
    Focus_GiveBack(p);
}

// While rows change their names the list must not sort them elsewhere.
void Rows_Walk(Program& p, const ModePlan& plan, const RunRows& rows)
{
    ListView& list = p.main.lsvRename;
    const bool sorted = rows.size() > 1 && list.Sorted();
    list.SetSorted(false);
    p.desktop.DoEvents();
    Panel_ShowMode(p, plan);
    p.state.OldName.clear();
    p.state.OldExt.clear();
    plan.Walk(p, rows);
    list.RestoreSorted(sorted); // a run never reorders rows
}

void Mode_Work(Program& p, int action, int count)
{
    const ModePlan* plan = Mode_Find(p.state.RenMode);
    if (plan == nullptr)
        return;
    Rows_Clear(p);
    const RunRows rows = Rows_Collect(p, action, count);
    Rows_Walk(p, *plan, rows);
    p.state.ActReady = true;
    p.state.LastRows = static_cast<std::int32_t>(rows.size());
    p.state.LastMode = plan->Mode;
    p.main.lsvRename.SetColumnCaption(p.state.colErrors,
                                      "Errors: " + p.main.lblActionInfo[2].Caption.Get());
    if (rows.size() == 1)
        Row_Advance(p, rows.front());
}

// -- Actions 2 and 3.

void Refresh_Work(Program& p, int, int)
{
    Act_Panel_Setup(p, false, "Removed:", "Updated:", "");
    Ren_List_Refresh(p);
}

void Remove_Work(Program& p, int, int)
{
    Act_Panel_Setup(p, false, "Removed:", "", "");
    Ren_List_RemoveSelected(p);
}

// -- Buttons.

// The walk stands below this spin, in its own call of the pump. The click that
// goes on comes in through the spin and ends it from inside. A close that is
// pending ends it, too: a window that is to go cannot be paused again.
void Pause_Click(Program& p)
{
    SharedState& s = p.state;
    s.ActPaused = !s.ActPaused;
    if (s.ActPaused) {
        p.main.cmdActPause.Caption = "Continue";
        s.ActSavedInfo = p.main.lblActionInfo[0].Caption;
        Act_Stage(p, "Paused... Press Continue to Restart");
    } else {
        p.main.cmdActPause.Caption = "&Pause";
        Act_Stage(p, s.ActSavedInfo);
    }
    while (s.ActPaused && !p.ClosePending)
        p.desktop.DoEvents();
}

void Cancel_Click(SharedState& s)
{
    s.ActCancel = true;
    s.ActPaused = false;
}

} // namespace

void Act_Run(Program& p, int action)
{
    const ActionPlan* plan = Action_Find(action);
    if (plan == nullptr || (plan->RunsMode && Mode_Find(p.state.RenMode) == nullptr))
        return;
    const LongOperation operation(p);
    if (!operation)
        return;
    Run_Reset(p.state);
    const ListView& list = p.main.lsvRename;
    const int count = action == actAll ? list.Count() : list.SelCount();
    if (plan->RunsMode && Act_Validate(p) != 1)
        return;
    if (!Run_IsAgreed(p, *plan, count))
        return;
    p.state.ActShow = count >= plan->PanelFrom;
    if (p.state.ActShow)
        Panel_Open(p);
    plan->Work(p, action, count);
    Panel_Close(p);
}

void Act_Done(Program& p)
{
    SharedState& s = p.state;
    s.RenCount = p.main.lsvRename.Count();
    if (s.ActShow) {
        Screen_Show(p, s.ActPrevView, false);
        Tools_RunEnable(p, true);
        p.main.stbMain.SetPanel(1, "Total Files: " + std::to_string(s.RenCount));
    }
    if (s.RenCount < 1) {
        Ren_List_Clear(p);
        return;
    }
    Preview_Show(p);
    p.RowsRedrawn();
}

void Act_Wire(Program& p)
{
    FrmMain& f = p.main;
    f.cmdActPause.Click = [&p] { Pause_Click(p); };
    f.cmdActCancel.Click = [&p] { Cancel_Click(p.state); };
    f.cmdActDone.Click = [&p] { Act_Done(p); };
}

} // namespace tavo
