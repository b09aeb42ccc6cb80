#include "fileactions/mp3_run.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "fileactions/mp3_file.h"
#include "fileactions/mp3_panel.h"
#include "renamelist/row_walk.h"
#include "selection/paths.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <array>

namespace tavo {

namespace {

// What the panel held at the start of a run, by the fields' indexes.
struct TagInput {
    std::array<bool, tagGenre + 1> IsTicked{};
    std::array<std::string, tagGenre + 1> Text;
};

struct TextTarget {
    MP3Field Index;
    std::string MP3Tag::*Text;
};
constexpr TextTarget textTargets[] = {{tagTitle, &MP3Tag::Title},
                                      {tagArtist, &MP3Tag::Artist},
                                      {tagAlbum, &MP3Tag::Album},
                                      {tagComment, &MP3Tag::Comment},
                                      {tagYear, &MP3Tag::Year}};

struct ByteTarget {
    MP3Field Index;
    std::uint8_t MP3Tag::*Byte;
};
constexpr ByteTarget byteTargets[] = {{tagTrack, &MP3Tag::Track}, {tagGenre, &MP3Tag::Genre}};

// The texts are taken as a file would give them back, or a tag that holds "?"
// for a typed character would never count as identical.
TagInput Input_Take(const FrmMain& f)
{
    TagInput input;
    for (const auto& box : f.chkMP3)
        input.IsTicked[static_cast<std::size_t>(box->Index())] = box->Value == 1;
    for (const auto& box : f.txtMP3)
        input.Text[static_cast<std::size_t>(box->Index())] = MP3_Text_Fit(box->Text.Get());
    std::string& track = input.Text[tagTrack];
    if (track.empty())
        track = "0";
    const int genre = f.cboMP3Genre.ListIndex();
    input.Text[tagGenre] = genre == -1 ? "255" : IntToText(genre);
    return input;
}

// A text that is no byte leaves the one that the file has.
void Input_Apply(const TagInput& input, MP3Tag& tag)
{
    for (const TextTarget& target : textTargets)
        if (input.IsTicked[target.Index])
            tag.*target.Text = input.Text[target.Index];
    for (const ByteTarget& target : byteTargets)
        if (input.IsTicked[target.Index])
            if (const auto value = ParseByte(input.Text[target.Index]))
                tag.*target.Byte = static_cast<std::uint8_t>(*value);
}

std::string Row_Path(Program& p, int row)
{
    std::string path(p.main.lsvRename.Cell(row, p.state.colPath));
    path += p.main.lsvRename.Text(row);
    return path;
}

void MP3_Tag_Write(Program& p, MP3File& file, const MP3Tag& tag, RowCounters& counters, bool append)
{
    if (file.Write(tag, append)) {
        ++counters.Done;
        return;
    }
    p.state.RenFailed = true;
    ++counters.Errors;
}

std::string_view Row_Write(Program& p, int row, MP3File& file, const MP3Tag& old,
                           const MP3Tag& wanted, RowCounters& counters)
{
    const std::int32_t errorsBefore = counters.Errors;
    MP3_Tag_Write(p, file, wanted, counters, !old.IsPresent());
    if (counters.Errors != errorsBefore) {
        ++counters.Errors; // a failed write counts twice
        return "Unknown";
    }
    p.main.lsvRename.SetCell(row, p.state.colUndoName, MP3_Undo_Build(old));
    return "";
}

// Gives the row's status. A file that opens is there, so that only the others
// have to be asked after.
std::string_view Row_Update(Program& p, int row, const TagInput& input, RowCounters& counters)
{
    const std::string path = Row_Path(p, row);
    const bool isMp3 = UCase(p.main.lsvRename.Cell(row, p.state.colType)) == "MP3";
    if (!isMp3) {
        ++counters.Errors;
        return File_Exists(p.files, path) ? "No MP3 Ext" : "Missing";
    }
    MP3File file(p.files, path);
    if (!file.IsOpen() && !File_Exists(p.files, path)) {
        ++counters.Errors;
        return "Missing";
    }
    MP3Tag old;
    file.Read(old);
    MP3Tag wanted = old;
    Input_Apply(input, wanted);
    if (MP3_Tag_Same(wanted, old)) {
        ++counters.Unchanged;
        return "";
    }
    return Row_Write(p, row, file, old, wanted, counters);
}

} // namespace

void MP3_Run(Program& p, const RunRows& rows)
{
    Act_Stage(p, "Updating MP3 Tags...");
    const TagInput input = Input_Take(p.main);
    Rows_Walk(p, rows,
              [&](int row, RowCounters& counters) { return Row_Update(p, row, input, counters); });
}

std::string MP3_Undo_Row(Program& p, int row, RowCounters& counters)
{
    const std::string path = Row_Path(p, row);
    MP3File file(p.files, path);
    if (!file.IsOpen() && !File_Exists(p.files, path)) {
        ++counters.Errors;
        return "Missing";
    }
    MP3Tag old;
    file.Read(old);
    if (!old.IsPresent()) {
        ++counters.Errors;
        return "No MP3 Tag";
    }
    ListView& list = p.main.lsvRename;
    const std::int32_t errorsBefore = counters.Errors;
    MP3_Tag_Write(p, file, MP3_Undo_Parse(list.Cell(row, p.state.colUndoName)), counters, false);
    if (counters.Errors != errorsBefore)
        return "Unknown";
    list.SetCell(row, p.state.colUndoName, MP3_Undo_Build(old));
    return "";
}

} // namespace tavo
