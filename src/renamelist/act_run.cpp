#include "renamelist/act_run.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/screens.h"
#include "fileactions/attributes.h"
#include "fileactions/date_time.h"
#include "fileactions/move_copy.h"
#include "fileactions/mp3_run.h"
#include "renamelist/act_panel.h"
#include "renamelist/name_walks.h"
#include "renamelist/nn_run.h"
#include "renamelist/preview.h"
#include "renamelist/rename_list.h"
#include "renamelist/undo.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tavo {

namespace {

using RowWalk = void (*)(Program& p, const RunRows& rows);

// How the panel names the three counts of a run.
using CountLabels = std::array<std::string_view, 3>;

constexpr CountLabels renameLabels = {"Renamed:", "Skipped due to Error:", "Renaming Unnecessary:"};
constexpr CountLabels tagLabels = {"Updated Tags:", "Skipped due to Error:", "Tag was Identical:"};
constexpr CountLabels moveLabels = {"Files Moved:", "Skipped due to Error:", ""};
constexpr CountLabels copyLabels = {"Files Copied:", "Skipped due to Error:", ""};
constexpr CountLabels deleteLabels = {"Files Deleted:", "Skipped due to Error:", ""};

// What a run of a mode does and how its counts are named. Modes that stand here
// can run; the empty list's refuses before anything is asked.
struct ModePlan {
    RenameMode Mode;
    RowWalk Walk;
    CountLabels Labels = renameLabels;
};

constexpr ModePlan modePlans[] = {
    {modeAttributes, Attr_Run},           {modeCase, Case_Run},     {modeDateTime, DT_Run},
    {modeMoveCopy, Copy_Run, moveLabels}, {modeNameNumber, NN_Run}, {modeSearchReplace, SR_Run},
    {modeMp3Tag, MP3_Run, tagLabels},
};

int Count_All(Program& p)
{
    return p.main.lsvRename.Count();
}

int Count_Selected(Program& p)
{
    return p.main.lsvRename.SelCount();
}

int Count_LastRun(Program& p)
{
    return p.state.LastRows;
}

void Mode_Work(Program& p, int action, int count);
void Refresh_Work(Program& p, int action, int count);
void Remove_Work(Program& p, int action, int count);
void Undo_Work(Program& p, int action, int count);
void Delete_Work(Program& p, int action, int count);

constexpr int always = 0;

// One action and the rows it counts. `Question` comes from `AskFrom` rows on
// unless its warning is suppressed, the panel from `PanelFrom` rows on. With
// `RunsMode` it rests on the mode in hand and its input.
struct ActionPlan {
    Action Code;
    bool RunsMode;
    int (*Count)(Program& p);
    std::string_view Question;
    std::int16_t SharedState::*Suppressed;
    int AskFrom;
    int PanelFrom;
    void (*Work)(Program& p, int action, int count);
};

constexpr auto warnRun = &SharedState::SupWarnRen;
constexpr auto warnUndo = &SharedState::SupWarnUndo;

constexpr ActionPlan actionPlans[] = {
    {actAll, true, Count_All, "Update All the Files?", warnRun, always, always, Mode_Work},
    {actSelected, true, Count_Selected, "Update the Selected Files?", warnRun, 2, 2, Mode_Work},
    {actRefresh, false, Count_Selected, "", warnRun, always, always, Refresh_Work},
    {actRemove, false, Count_Selected, "", warnRun, always, 2, Remove_Work},
    {actUndo, false, Count_LastRun, "Undo the Last Rename Action?", warnUndo, 2, 2, Undo_Work},
    {actDelete, false, Count_Selected, "", warnRun, always, 2, Delete_Work},
    {actRecycle, false, Count_Selected, "", warnRun, always, 2, Delete_Work},
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
    if (plan.Question.empty() || p.state.*plan.Suppressed == 1 || count < plan.AskFrom)
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
    return action == actAll ? Rows_All(count) : p.main.lsvRename.SelectedRows();
}

void Panel_ShowLabels(Program& p, const CountLabels& labels)
{
    Act_Panel_Setup(p, false, labels[0], labels[1], labels[2]);
}

// Moves and copies skip nothing as unnecessary and tell nothing by tips.
void Panel_ShowMode(Program& p, const ModePlan& plan)
{
    static constexpr std::string_view tips[] = {
        "Number of Files Renamed", "Number of Files Skipped Due to Error during Rename Attempt",
        "Number of Files with Correct Name Already"};
    constexpr int moves = 1;
    const bool isCopy = plan.Mode == modeMoveCopy && p.state.mcdMode != moves;
    Panel_ShowLabels(p, isCopy ? copyLabels : plan.Labels);
    if (plan.Mode == modeMoveCopy)
        return;
    for (int k = 1; k <= 3; ++k)
        p.main.lblAction[k].ToolTipText = std::string(tips[k - 1]);
}

// The box in which the person was typing; null where there is none.
TextBox* Box_LastUsed(Program& p)
{
    constexpr int dateBoxes = 10, firstField = 1, lastDate = 5, genre = 7;
    FrmMain& f = p.main;
    const int field = p.state.FieldFocus;
    switch (p.state.RenMode) {
    case modeNameNumber: return f.txtNameNum.At(p.state.NameBoxFocus == nnExt ? nnExt : nnName);
    case modeDateTime: {
        const bool isDate = field > dateBoxes && field <= dateBoxes + lastDate;
        return f.txtDateTime.At(isDate ? field - dateBoxes : firstField);
    }
    case modeMp3Tag:
        if (field == genre)
            return &f.cboMP3Genre;
        return f.txtMP3.At(field > 0 && field < genre ? field : firstField);
    default: return nullptr;
    }
}

// Back to where the person was typing.
void Focus_GiveBack(Program& p)
{
    if (TextBox* box = Box_LastUsed(p)) {
        box->SetFocus();
        Box_SelectAll(*box);
    }
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
template <class Walk>
void Unsorted_Walk(Program& p, int count, Walk walk)
{
    ListView& list = p.main.lsvRename;
    const bool sorted = count > 1 && list.Sorted();
    list.SetSorted(false);
    p.desktop.DoEvents();
    walk();
    list.RestoreSorted(sorted); // a run never reorders rows
    p.state.ActReady = true;
}

void Errors_Head(Program& p)
{
    p.main.lsvRename.SetColumnCaption(p.state.colErrors,
                                      "Errors: " + p.main.lblActionInfo[2].Caption.Get());
}

void Mode_Work(Program& p, int action, int count)
{
    const ModePlan* plan = Mode_Find(p.state.RenMode);
    if (plan == nullptr)
        return;
    Rows_Clear(p);
    const RunRows rows = Rows_Collect(p, action, count);
    Unsorted_Walk(p, static_cast<int>(rows.size()), [&] {
        Panel_ShowMode(p, *plan);
        p.state.OldName.clear();
        p.state.OldExt.clear();
        plan->Walk(p, rows);
    });
    p.state.LastRows = static_cast<std::int32_t>(rows.size());
    p.state.LastMode = plan->Mode;
    Errors_Head(p);
    if (rows.size() == 1)
        Row_Advance(p, rows.front());
}

// -- Actions 2 to 6.

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

void Undo_Work(Program& p, int, int)
{
    Act_Panel_Setup(p, false, "Undo Successful:", "Skipped due to Error:", "");
    Undo_Run(p);
}

void Delete_Work(Program& p, int action, int count)
{
    Panel_ShowLabels(p, deleteLabels);
    Rows_Clear(p);
    Unsorted_Walk(p, count, [&] { Delete_Run(p, count, action == actRecycle); });
    Errors_Head(p);
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
    const int count = plan->Count(p);
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
    p.RowsCounted();
}

void Act_Wire(Program& p)
{
    FrmMain& f = p.main;
    f.cmdActPause.Click = [&p] { Pause_Click(p); };
    f.cmdActCancel.Click = [&p] { Cancel_Click(p.state); };
    f.cmdActDone.Click = [&p] { Act_Done(p); };
}

} // namespace tavo
