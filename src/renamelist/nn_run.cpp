#include "renamelist/nn_run.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/act_panel.h"
#include "renamelist/executor.h"
#include "renamelist/name_builder.h"
#include "selection/paths.h"
#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::int16_t numbersFollowPosition = 1;

// One run. `done_` is asked by walk position and, for a row that blocks, by
// list position; the two are the same thing only when all rows run.
class NNWalk {
public:
    NNWalk(Program& p, const RunRows& rows)
        : p_(p), list_(p.main.lsvRename), rows_(rows),
          names_(p.main.txtNameNum[nnName].Text.Get(), p.main.txtNameNum[nnExt].Text.Get(), p.state,
                 p.files),
          allRows_(static_cast<int>(rows.size()) == list_.Count()), counter_(names_.Start())
    {
    }

    void Run()
    {
        if (names_.Counts())
            RunCounted();
        else
            RunPlain();
    }

private:
    int RowCount() const { return static_cast<int>(rows_.size()); }
    int RowAt(int i) const { return rows_[static_cast<std::size_t>(i - 1)]; }
    bool IsDone(int i) const { return done_[static_cast<std::size_t>(i)]; }
    void SetDone(int i) { done_[static_cast<std::size_t>(i)] = true; }

    void RunPlain()
    {
        Act_Stage(p_, "Renaming Files...");
        for (int i = 1; i <= RowCount(); ++i) {
            Act_Progress(p_, i, RowCount());
            MakeRequest(RowAt(i));
            request_.OrigName = list_.Text(RowAt(i));
            Ren_File_Apply(p_, request_, counters_);
            if (!Breathe())
                return;
        }
    }

    void RunCounted()
    {
        KeepFirstNames();
        Act_Stage(p_, "Numbering Files...");
        done_.assign(static_cast<std::size_t>(std::max(list_.Count(), RowCount())) + 1, false);
        for (walk_ = 1; walk_ <= RowCount(); ++walk_) {
            Act_Progress(p_, walk_, RowCount());
            if (IsDone(walk_))
                continue;
            NumberRow();
            if (p_.state.ActCancel || !Breathe())
                return;
        }
    }

    // A row can be given a temporary name before its turn, and undo must go
    // back to its true first one.
    void KeepFirstNames()
    {
        Act_Stage(p_, "Buffering Undo Names...");
        firstNames_.reserve(rows_.size());
        for (const int row : rows_)
            firstNames_.emplace_back(list_.Text(row));
        p_.desktop.DoEvents();
    }

    void MakeRequest(int row)
    {
        baseName_ = list_.Text(row);
        extension_.clear();
        request_.OldFull = list_.Cell(row, p_.state.colPath);
        request_.NewFull = request_.OldFull;
        request_.OldFull += baseName_;
        Name_Split(baseName_, extension_);
        names_.Build(request_.OldFull, baseName_, extension_, counter_);
        request_.NewName = names_.NewName();
        request_.NewExt = names_.NewExt();
        request_.NewFull += names_.NewName();
        request_.RowPos = row;
    }

    void NumberRow()
    {
        MakeRequest(RowAt(walk_));
        request_.OrigName = firstNames_[static_cast<std::size_t>(walk_ - 1)];
        Ren_File_Apply(p_, request_, counters_);
        if (p_.state.ActCancel)
            return;
        if (p_.state.RenErrCode == renConflict) {
            ResolveConflict();
            return;
        }
        SetDone(walk_);
        if (!p_.state.RenFailed)
            ++counter_;
    }

    // The row of this run that stands in the way, 0 if none: only one of the
    // same folder counts, and one outside the run can't be moved.
    int FindBlocker(int row) const
    {
        const bool exactFirst = !p_.files.Rules().CaseBlind;
        const int blocker = list_.FindItemWhere(names_.NewName(), p_.state.colPath,
                                                list_.Cell(row, p_.state.colPath), exactFirst);
        return blocker != 0 && !allRows_ && !list_.Selected(blocker) ? 0 : blocker;
    }

    std::string AsideName(std::string_view name, int digit) const
    {
        constexpr int keptLength = 253;
        const std::string kept =
            p_.files.Rules().Utf8 ? RightWithinBytes(name, keptLength) : Right(name, keptLength);
        return std::to_string(digit) + kept;
    }

    // Can a row in its own way get out of it? Not when the name that it would
    // be moved aside to gives itself for the new one again: that would never
    // end.
    bool StandsInItsOwnWay(int row) const
    {
        const std::string aside = AsideName(list_.Text(row), 0);
        std::string base = aside, extension;
        Name_Split(base, extension);
        NameBuilder names = names_;
        names.Build(request_.OldFull, base, extension, counter_);
        return SameText(names.NewName(), aside);
    }

    void ResolveConflict()
    {
        const int row = RowAt(walk_);
        const int blocker = FindBlocker(row);
        const bool movesAside = p_.state.PreList == numbersFollowPosition;
        const bool isItself = movesAside && blocker == row && !IsDone(row);
        if (blocker == 0 || (isItself && StandsInItsOwnWay(row))) {
            SetDone(walk_);
            return;
        }
        --counters_.Errors;
        if (IsDone(blocker))
            return;
        if (movesAside)
            MoveAside(blocker);
        else
            GiveName(blocker);
    }

    // Numbers follow the list: the blocker steps aside, and this row runs
    // again with the same number.
    void MoveAside(int blocker)
    {
        if (!RenameAside(blocker)) {
            SetDone(walk_);
            return;
        }
        --walk_;
        --counters_.Done;
    }

    // Tries the digits 0 to 8. A try fails also as unnecessary, when a name of
    // the greatest length is its own temporary one.
    bool RenameAside(int blocker)
    {
        constexpr int tries = 9;
        const std::string first(list_.Text(blocker));
        const std::string path(list_.Cell(blocker, p_.state.colPath));
        RenameRequest aside;
        aside.OldFull = path + first;
        aside.NewExt = names_.NewExt();
        // One that steps aside once more still goes back to where it began.
        const std::string_view before = list_.Cell(blocker, p_.state.colUndoName);
        aside.OrigName = before.empty() ? std::string_view(first) : before;
        aside.RowPos = blocker;
        for (int digit = 0; digit < tries; ++digit) {
            aside.NewName = AsideName(first, digit);
            aside.NewFull = path + aside.NewName;
            Ren_File_Apply(p_, aside, counters_);
            if (!p_.state.RenFailed)
                return true;
            --counters_.Errors;
        }
        return false;
    }

    // The blocker may keep the number it has. When it has the new name to the
    // letter, that counts as unnecessary and the failure of this row stands.
    void GiveName(int blocker)
    {
        RenameRequest keep = request_;
        keep.OrigName = list_.Text(blocker);
        keep.OldFull = std::string(list_.Cell(RowAt(walk_), p_.state.colPath)) + keep.OrigName;
        keep.NewExt = names_.NewExt();
        keep.RowPos = blocker;
        Ren_File_Apply(p_, keep, counters_);
        SetDone(blocker);
        if (p_.state.RenFailed)
            return;
        ++counter_;
        --walk_;
    }

    // Shows the counts and lets the person in; false to stop.
    bool Breathe()
    {
        Act_Panel_Update(p_, counters_.Done, counters_.Errors, counters_.Unchanged);
        p_.desktop.DoEvents();
        return !p_.state.ActCancel;
    }

    Program& p_;
    ListView& list_;
    const RunRows& rows_;
    NameBuilder names_;
    const bool allRows_;
    std::int64_t counter_;
    RowCounters counters_;
    RenameRequest request_;
    std::string baseName_, extension_;
    std::vector<std::string> firstNames_;
    std::vector<bool> done_;
    int walk_ = 0;
};

} // namespace

void NN_Run(Program& p, const RunRows& rows)
{
    NNWalk(p, rows).Run();
}

} // namespace tavo
