#include "renamelist/executor.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "toolkit/text.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

// What a code of the disk means for a row.
struct Refusal {
    int Code;
    std::string_view Text;
    std::int32_t ErrCode;
};

// The shell's own code for a source that is not there.
constexpr int shellMissing = 1026;

constexpr Refusal refusals[] = {
    {diskMissing, "Missing", renMissing},       {diskMissingFolder, "Missing", renMissing},
    {shellMissing, "Missing", renMissing},      {diskDenied, "Access Denied", renDenied},
    {diskInUse, "Access Denied", renDenied},    {diskBadName, "Name Conflict", renConflict},
    {diskExists, "Name Conflict", renConflict},
};
constexpr Refusal anyOther = {0, "UnKnown", 0};

const Refusal& Refusal_Of(int code)
{
    const auto known = std::ranges::find(refusals, code, &Refusal::Code);
    return known == std::end(refusals) ? anyOther : *known;
}

bool Holds(std::string_view text, char wanted)
{
    return text.find(wanted) != std::string_view::npos;
}

// The disk sees full names only, so it cannot tell a separator in the new name
// from one in the path. Characters that the row's file has or had may stay:
// else no undo could bring them back.
bool Name_IsAllowed(Program& p, const RenameRequest& request)
{
    const PathRules& rules = p.files.Rules();
    const std::string_view name = request.NewName;
    if (Holds(name, '/') || Holds(name, rules.Separator))
        return false;
    std::size_t at = name.find_first_of(rules.Forbidden);
    if (at == std::string_view::npos)
        return true;
    const ListView& list = p.main.lsvRename;
    const std::string_view now = list.Cell(request.RowPos, p.state.colName);
    const std::string_view before = list.Cell(request.RowPos, p.state.colUndoName);
    for (; at != std::string_view::npos; at = name.find_first_of(rules.Forbidden, at + 1))
        if (!Holds(now, name[at]) && !Holds(before, name[at]))
            return false;
    return true;
}

// The names are lent to the operation, which saves copying two paths a row.
int Disk_Rename(Program& p, RenameRequest& request)
{
    FileOperation rename;
    rename.Func = foRename;
    rename.Flags = fofQuiet;
    rename.From.swap(request.OldFull);
    rename.To.swap(request.NewFull);
    const int code = p.files.SHFileOperationA(rename);
    rename.From.swap(request.OldFull);
    rename.To.swap(request.NewFull);
    return code;
}

// A target that exists and is the row's own file in another case goes on to
// the disk, which knows whether it tells the two names apart.
int Row_Rename(Program& p, RenameRequest& request)
{
    if (!Name_IsAllowed(p, request))
        return diskBadName;
    if (p.files.Exists(request.NewFull) && !SameText(request.OldFull, request.NewFull))
        return diskBadName;
    return Disk_Rename(p, request);
}

void Row_ShowSuccess(Program& p, RenameRequest& request)
{
    const SharedState& s = p.state;
    if (s.SelFolderMode == 1)
        request.NewExt = "-";
    ListView& list = p.main.lsvRename;
    list.SetCell(request.RowPos, s.colName, request.NewName);
    list.SetCell(request.RowPos, s.colType, request.NewExt);
    list.SetCell(request.RowPos, s.colUndoName, request.OrigName);
    list.SetCell(request.RowPos, s.colErrors, {});
}

void Row_ShowFailure(Program& p, int rowPos, int code)
{
    const Refusal& refusal = Refusal_Of(code);
    p.main.lsvRename.SetCell(rowPos, p.state.colErrors, refusal.Text);
    p.state.RenErrCode = refusal.ErrCode;
    p.state.RenFailed = true;
}

} // namespace

void Ren_File_Apply(Program& p, RenameRequest& request, RowCounters& counters)
{
    if (request.NewName == request.OrigName) {
        ++counters.Unchanged;
        return;
    }
    p.state.RenFailed = false;
    p.state.RenErrCode = 0;
    const int code = Row_Rename(p, request);
    if (code != diskOk) {
        Row_ShowFailure(p, request.RowPos, code);
        ++counters.Errors;
        return;
    }
    Row_ShowSuccess(p, request);
    ++counters.Done;
    p.desktop.DoEvents();
}

} // namespace tavo
