#include "renamelist/undo.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "fileactions/attributes.h"
#include "fileactions/date_time.h"
#include "fileactions/mp3_run.h"
#include "renamelist/act_panel.h"
#include "renamelist/act_run.h"
#include "renamelist/executor.h"
#include "renamelist/row_walk.h"
#include "selection/paths.h"
#include "toolkit/text.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

int Count_Of(const RunRows& rows)
{
    return static_cast<int>(rows.size());
}

// Only rows that really changed have something to go back to.
RunRows Rows_Changed(Program& p)
{
    Act_Stage(p, "Building Undo List...");
    const ListView& list = p.main.lsvRename;
    p.main.lsvRename.SetColumnCells(p.state.colErrors, "");
    RunRows rows;
    for (int row = 1; row <= list.Count(); ++row)
        if (!list.Cell(row, p.state.colUndoName).empty())
            rows.push_back(row);
    p.desktop.DoEvents();
    return rows;
}

// The way back of names. Each row's request is made by the caller, who knows
// the stage.
class NameUndo {
public:
    NameUndo(Program& p, const RunRows& rows) : p_(p), list_(p.main.lsvRename), rows_(rows) {}

    // In one pass: these names differ in case only.
    void RunCase()
    {
        Act_Stage(p_, "Undoing Last Change Case...");
        const auto back = [this](int row) { BackToFirst(row, std::string(list_.Text(row))); };
        Walk(back, [this] { return p_.state.ActCancel; });
    }

    // A chain of names cannot be taken back in place, so all rows go to
    // temporary names first.
    void RunNames()
    {
        isAside_.assign(static_cast<std::size_t>(list_.Count()) + 1, false);
        Act_Stage(p_, "Undoing Last Rename (1 of 2)...");
        if (!Walk([this](int row) { StepAside(row); }, [this] { return IsEnded(); }))
            return;
        counts_ = {};
        Act_Stage(p_, "Undoing Last Rename (2 of 2)...");
        Walk([this](int row) { BackToFirst(row, NameBefore(row)); }, [this] { return IsEnded(); });
    }

    int Errors() const { return counts_.Errors; }

private:
    // All rows, then those whose name was taken once more, as long as that
    // frees a name: the row in the way may have gone back meanwhile. False
    // when it was ended.
    template <class Work, class Ended>
    bool Walk(Work work, Ended ended)
    {
        RunRows waiting = rows_;
        for (int step = 1;;) {
            RunRows again;
            for (const int row : waiting) {
                Act_Progress(p_, std::min(step++, Count_Of(rows_)), Count_Of(rows_));
                const int failed = counts_.Errors;
                work(row);
                if (counts_.Errors > failed && p_.state.RenErrCode == renConflict)
                    again.push_back(row);
                Act_Panel_Update(p_, counts_.Done, counts_.Errors, counts_.Unchanged);
                p_.desktop.DoEvents();
                if (ended())
                    return false;
            }
            if (again.empty() || again.size() == waiting.size())
                return true;
            counts_.Errors -= Count_Of(again);
            waiting = std::move(again);
        }
    }

    void Apply(int row, std::string name, std::string_view extOf, std::string origName)
    {
        const std::string path(list_.Cell(row, p_.state.colPath));
        RenameRequest request;
        request.OldFull = path + std::string(list_.Text(row));
        request.NewFull = path + name;
        request.NewName = std::move(name);
        request.NewExt = Name_GetExt(extOf);
        request.OrigName = std::move(origName);
        request.RowPos = row;
        Ren_File_Apply(p_, request, counts_);
    }

    void StepAside(int row)
    {
        constexpr int keptLength = 254;
        const std::string now(list_.Text(row));
        const std::string kept =
            p_.files.Rules().Utf8 ? RightWithinBytes(now, keptLength) : Right(now, keptLength);
        const int done = counts_.Done;
        Apply(row, "~" + kept, now, std::string(list_.Cell(row, p_.state.colUndoName)));
        isAside_[static_cast<std::size_t>(row)] = counts_.Done > done;
    }

    void BackToFirst(int row, std::string nameBefore)
    {
        const std::string first(list_.Cell(row, p_.state.colUndoName));
        Apply(row, first, first, std::move(nameBefore));
    }

    // A row that was not moved aside still bears that name.
    std::string NameBefore(int row) const
    {
        const std::string_view now = list_.Text(row);
        return isAside_[static_cast<std::size_t>(row)] ? Right(now, Len(now) - 1)
                                                       : std::string(now);
    }

    // A person who wants to stop half way is asked whether that is meant.
    bool IsEnded()
    {
        if (!p_.state.ActCancel)
            return false;
        const BoxAnswer answer =
            p_.Say("Some Files have Temporary File Names!\nDo You Still Wish to Cancel?",
                   BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No);
        if (answer == BoxAnswer::Yes)
            return true;
        p_.state.ActCancel = false;
        return false;
    }

    Program& p_;
    const ListView& list_;
    const RunRows& rows_;
    RowCounters counts_;
    std::vector<bool> isAside_;
};

int Names_Undo(Program& p, const RunRows& rows)
{
    NameUndo undo(p, rows);
    undo.RunNames();
    return undo.Errors();
}

int Case_Undo(Program& p, const RunRows& rows)
{
    NameUndo undo(p, rows);
    undo.RunCase();
    return undo.Errors();
}

// What a mode's records change back, row by row.
using RowUndo = std::string (*)(Program& p, int row, RowCounters& counters);

template <RowUndo Undo>
int Records_Undo(Program& p, const RunRows& rows)
{
    const auto undo = [&p](int row, RowCounters& counters) { return Undo(p, row, counters); };
    return Rows_Walk(p, rows, undo).Errors;
}

// The way back of a mode. Moves and copies have none.
struct ModeUndo {
    RenameMode Mode;
    std::string_view Stage; // empty where the way tells its own
    int (*Walk)(Program& p, const RunRows& rows);
};

constexpr ModeUndo modeUndos[] = {
    {modeAttributes, "Undoing Last Change Attributes...", Records_Undo<Attr_Undo_Row>},
    {modeCase, "", Case_Undo},
    {modeDateTime, "Undoing Last Change Date and Time...", Records_Undo<DT_Undo_Row>},
    {modeNameNumber, "", Names_Undo},
    {modeSearchReplace, "", Names_Undo},
    {modeMp3Tag, "Undoing Last MP3 Tag Update...", Records_Undo<MP3_Undo_Row>},
};

int Mode_Undo(Program& p, const RunRows& rows)
{
    const auto* undo = std::ranges::find(modeUndos, p.state.LastMode, &ModeUndo::Mode);
    if (undo == std::end(modeUndos))
        return 0;
    if (!undo->Stage.empty())
        Act_Stage(p, undo->Stage);
    return undo->Walk(p, rows);
}

} // namespace

void Undo_Run(Program& p)
{
    ListView& list = p.main.lsvRename;
    const bool sorted = list.Sorted();
    list.SetSorted(false);
    const int errors = Mode_Undo(p, Rows_Changed(p));
    list.RestoreSorted(sorted); // an undo reorders no rows
    if (list.Count() > 0) {
        list.EnsureVisible(1);
        list.SetSelected(1, true);
    }
    list.SetColumnCaption(p.state.colErrors, "Errors: " + std::to_string(errors));
}

} // namespace tavo
