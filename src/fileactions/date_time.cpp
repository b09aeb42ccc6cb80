#include "fileactions/date_time.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "fileactions/file_times.h"
#include "renamelist/row_walk.h"
#include "selection/paths.h"
#include "toolkit/dates.h"

namespace tavo {

namespace {

// What a run sets: the times of the boxes, and which of them are meant.
struct TimeChange {
    FileStamps Form;
    bool Created, Modified, Accessed;
};

// Taken once, so that what is typed during a run has no effect on it.
TimeChange Change_Take(Program& p)
{
    const SharedState& s = p.state;
    return {Stamps_Of(p.files, DT_Form_Get(p)), s.dtCreate == 1, s.dtMod == 1, s.dtAccess == 1};
}

FileStamps Stamps_Changed(FileStamps stamps, const TimeChange& change)
{
    const auto take = [&](FileTime FileStamps::*moment, std::string FileTimes::*text) {
        stamps.*moment = change.Form.*moment;
        stamps.Texts.*text = change.Form.Texts.*text;
    };
    if (change.Created)
        take(&FileStamps::Created, &FileTimes::Created);
    if (change.Modified)
        take(&FileStamps::Modified, &FileTimes::Modified);
    if (change.Accessed)
        take(&FileStamps::Accessed, &FileTimes::Accessed);
    return stamps;
}

std::string Row_Path(Program& p, int row)
{
    const ListView& list = p.main.lsvRename;
    std::string path(list.Cell(row, p.state.colPath));
    return path.append(list.Text(row));
}

std::string Row_Fail(RowCounters& counters, std::string_view status)
{
    ++counters.Errors;
    return std::string(status);
}

std::string Row_Done(Program& p, int row, const FileStamps& before, RowCounters& counters)
{
    p.main.lsvRename.SetCell(row, p.state.colUndoName,
                             DT_Undo_Build(Times_Marked(p.files, before)));
    ++counters.Done;
    return {};
}

// Times that cannot be read could not be brought back either, so such a file
// is not changed.
std::string Row_Apply(Program& p, int row, const TimeChange& change, RowCounters& counters)
{
    const std::string path = Row_Path(p, row);
    FileStamps before;
    const bool isKnown = File_Stamps_Get(p.files, path, before);
    if (!isKnown && !File_Exists(p.files, path))
        return Row_Fail(counters, "Missing");
    const FileStamps wanted = Stamps_Changed(before, change);
    if (wanted.Texts == before.Texts) {
        ++counters.Unchanged;
        return {};
    }
    if (!isKnown || !File_Times_Set(p.files, path, wanted, before))
        return Row_Fail(counters, "Unknown");
    return Row_Done(p, row, before, counters);
}

} // namespace

FileTimes DT_Form_Get(Program& p)
{
    const auto& boxes = p.main.txtDateTime;
    const int year = p.desktop.Now().Year;
    const auto date = [&](int box) { return Format_Date(boxes[box].Text, dateMask, year); };
    const auto clock = [&](int box) { return Format_Date(boxes[box].Text, time24Mask, year); };
    return {date(1) + '|' + clock(2), date(3) + '|' + clock(4),
            date(5) + '|' + std::string(accessedTime)};
}

void DT_Form_Fill(Program& p, const std::string& path)
{
    const auto& boxes = p.main.txtDateTime;
    FileTimes times = File_Times_Get(p.files, path);
    boxes[1].Text = Str_GetToken(times.Created, "|", "");
    boxes[2].Text = times.Created;
    boxes[3].Text = Str_GetToken(times.Modified, "|", "");
    boxes[4].Text = times.Modified;
    boxes[5].Text = Str_GetToken(times.Accessed, "|", "");
}

void DT_Run(Program& p, const RunRows& rows)
{
    Act_Stage(p, "Changing Date and Time...");
    const TimeChange change = Change_Take(p);
    Rows_Walk(p, rows,
              [&](int row, RowCounters& counters) { return Row_Apply(p, row, change, counters); });
}

std::string DT_Undo_Row(Program& p, int row, RowCounters& counters)
{
    const std::string path = Row_Path(p, row);
    FileStamps present;
    const bool isKnown = File_Stamps_Get(p.files, path, present);
    if (!isKnown && !File_Exists(p.files, path))
        return Row_Fail(counters, "Missing");
    FileTimes wanted;
    DT_Undo_Parse(p.main.lsvRename.Cell(row, p.state.colUndoName), wanted);
    if (!isKnown || !File_Times_Set(p.files, path, Stamps_Of(p.files, wanted), present))
        return Row_Fail(counters, "Unknown");
    return Row_Done(p, row, present, counters);
}

} // namespace tavo
