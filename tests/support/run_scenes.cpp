#include "support/run_scenes.h"

#include "core/screens.h"
#include "fileactions/mp3_panel.h"
#include "fileactions/mp3_tag.h"
#include "renamelist/act_run.h"
#include "support/memory_clock.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr const char* plainFiles[] = {"d/2.txt", "d/3.txt",   "d/1.txt",
                                      "e/1.txt", "d/B c.TXT", "d/2a.txt"};
constexpr const char* songs[] = {"d/2.mp3", "d/3.mp3",   "d/1.mp3",
                                 "e/1.mp3", "d/B c.MP3", "d/2a.mp3"};
constexpr const char* outsiders[] = {"d/5.txt", "d/out.txt", "e/out.txt", "to/3.txt", "to/x.txt"};

// What stands first in a file and tells it from all others.
std::string Id_Of(const std::string& path)
{
    return "<" + path + ">";
}

std::string Tag_Bytes(const std::string& path)
{
    MP3Tag tag{"TAG", "Title of " + path, "An artist", "", "1999", "As it was", 7, 12};
    return MP3_Tag_Encode(tag);
}

void Name_Counted(RunGround& ground, std::int16_t preList)
{
    ground.P.state.PreList = preList;
    ground.Main.optNNStyle[1].Value = true;
    ground.Main.txtNameNum[nnStartBox].Text = "1";
    ground.Main.txtNameNum[nnDigitsBox].Text = "1";
    ground.G.SetTemplates("<#>", "<OE>");
}

void Counted_Prepare(RunGround& ground)
{
    Name_Counted(ground, 1);
}

void Given_Prepare(RunGround& ground)
{
    Name_Counted(ground, 0);
    ground.Main.txtNameNum[nnStartBox].Text = "3";
}

void Plain_Prepare(RunGround& ground)
{
    ground.G.SetTemplates("x<ON>", "<OE>");
}

void Selected_Prepare(RunGround& ground)
{
    Name_Counted(ground, 1);
    ground.G.Select({1, 2, 4, 5});
}

// "2a" takes the name that "2" has left.
void Replace_Prepare(RunGround& ground)
{
    ground.P.state.srType = 1;
    ground.P.state.srMode = 1;
    ground.Main.txtSearchFind.Text = "2";
    ground.Main.txtSearchReplace.Text = "2a";
}

void Insert_Prepare(RunGround& ground)
{
    ground.P.state.srType = 2;
    ground.P.state.srMode = 1;
    ground.Main.txtSearchReplace.Text = "2";
    ground.Main.txtSearchStart.Text = "1";
    ground.Main.txtSearchEnd.Text = "0";
}

void Case_Prepare(RunGround& ground)
{
    ground.Main.optCase[1].Value = true;
}

void Attributes_Prepare(RunGround& ground)
{
    constexpr int ticks[] = {0, 1, 0, 1};
    for (int i = 0; i < 4; ++i)
        ground.Main.chkAttr[i].Value = ticks[i];
}

void Times_Prepare(RunGround& ground)
{
    constexpr const char* texts[] = {"01/02/1999", "03:04:05 PM", "06/07/1998", "08:09:10 AM",
                                     "11/12/1997"};
    ground.P.state.dtCreate = ground.P.state.dtMod = ground.P.state.dtAccess = 1;
    for (int i = 1; i <= 5; ++i)
        ground.Main.txtDateTime[i].Text = texts[i - 1];
}

void Tags_Prepare(RunGround& ground)
{
    ground.Main.txtMP3[tagTitle].Text = "A new title";
    ground.Main.txtMP3[tagYear].Text = "2004";
    for (const auto& box : ground.Main.chkMP3)
        box->Value = box->Index() == tagTitle || box->Index() == tagYear ? 1 : 0;
}

void Move_Prepare(RunGround& ground)
{
    ground.Main.optmcdMode[1].Value = true;
    ground.Main.txtmcdPath.Text = ground.Full("to");
}

void Copy_Prepare(RunGround& ground)
{
    ground.Main.optmcdMode[2].Value = true;
    ground.Main.txtmcdPath.Text = ground.Full("to");
}

void Delete_Prepare(RunGround& ground)
{
    ground.G.Select({1, 3, 4, 6});
}

template <class Array>
std::vector<std::string> Paths_Of(const Array& array)
{
    return {std::begin(array), std::end(array)};
}

// A mixture, the same each time.
void File_Put(RunGround& ground, const std::string& path, int number, bool hasTag)
{
    const std::string body = Id_Of(path) + std::string(static_cast<std::size_t>(number) * 60, 'b');
    ground.AddFile(path, body + (hasTag ? Tag_Bytes(path) : ""));
    constexpr std::uint32_t kinds[] = {attrArchive, attrReadOnly | attrArchive, 0,
                                       attrHidden,  attrSystem | attrArchive,   attrArchive};
    const FileTime time = Clock_Moment(2001, 3, 7, number, 5, 13, 250);
    ground.SetTimes(path, time, Clock_Moment(2002, 4, 8, number, 6, 14, 0),
                    Clock_Moment(2003, 5, 9, number, 7, 15, 500));
    // A tag cannot be written into a file that is read-only.
    if (!hasTag)
        ground.SetAttributes(path, kinds[number % 6]);
}

std::string Name_Of(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

} // namespace

const std::vector<RunScene> runScenes = {
    {"attributes", modeAttributes, actAll, Attributes_Prepare},
    {"case", modeCase, actAll, Case_Prepare},
    {"times", modeDateTime, actAll, Times_Prepare},
    {"move", modeMoveCopy, actAll, Move_Prepare},
    {"copy", modeMoveCopy, actAll, Copy_Prepare},
    {"counted", modeNameNumber, actAll, Counted_Prepare},
    {"given", modeNameNumber, actAll, Given_Prepare},
    {"plain", modeNameNumber, actAll, Plain_Prepare},
    {"selected", modeNameNumber, actSelected, Selected_Prepare},
    {"replace", modeSearchReplace, actAll, Replace_Prepare},
    {"insert", modeSearchReplace, actAll, Insert_Prepare},
    {"tags", modeMp3Tag, actAll, Tags_Prepare},
    {"delete", modeNameNumber, actDelete, Delete_Prepare},
    {"recycle", modeNameNumber, actRecycle, Delete_Prepare},
};

bool RunScene::IsUndone() const
{
    return Mode != modeMoveCopy && !Deletes();
}

bool RunScene::Deletes() const
{
    return Action == actDelete || Action == actRecycle;
}

bool RunScene::Copies() const
{
    return Prepare == Copy_Prepare;
}

bool RunScene::WritesTags() const
{
    return Mode == modeMp3Tag;
}

void Scene_SetUp(const RunScene& scene, RunGround& ground)
{
    const bool isMusic = scene.WritesTags();
    const auto rows = isMusic ? Paths_Of(songs) : Paths_Of(plainFiles);
    int number = 0;
    for (const std::string& path : rows) {
        File_Put(ground, path, number, isMusic && number % 3 != 2);
        ++number;
    }
    for (const char* path : outsiders)
        File_Put(ground, path, ++number, false);
    ground.Show(rows);
    ground.P.state.LastRows = 0;
    Mode_Set(ground.P, scene.Mode);
    scene.Prepare(ground);
}

// -- What must hold

SceneJudge::SceneJudge(const RunScene& scene, RunGround& ground)
    : scene_(scene), before_(ground.State())
{
    for (int row = 1; row <= ground.List.Count(); ++row)
        rows_.push_back(ground.RowPath(row));
    for (const int row : ground.List.SelectedRows())
        chosen_.insert(ground.RowPath(row));
}

// A row that fails takes no number, so the ones before the last may come too.
void SceneJudge::LearnNames(const FolderState& after)
{
    for (const auto& [path, file] : after)
        names_.insert(Name_Of(path));
    for (int number = 1; scene_.Mode == modeNameNumber && number <= 9; ++number)
        for (const char* extension : {".txt", ".TXT"})
            names_.insert(std::to_string(number) + extension);
    for (int number = 1; scene_.Mode == modeMoveCopy && number <= 2; ++number)
        for (const std::string& row : rows_)
            names_.insert("Copy [" + std::to_string(number) + "] " + Name_Of(row));
}

bool SceneJudge::IsGoodName(const std::string& was, const std::string& now) const
{
    const std::string_view signs = "~0123456789";
    const std::string aside = signs.find(now[0]) != signs.npos ? now.substr(1) : now;
    return now == was || names_.contains(now) || aside == was || names_.contains(aside);
}

// A tag is written over, or put behind the end.
bool SceneJudge::IsWhole(const FileState& before, const FileState& now) const
{
    if (!scene_.WritesTags())
        return before.Content == now.Content;
    const std::size_t had = before.Content.size(), has = now.Content.size();
    const std::size_t body = before.Content.find("TAG");
    return now.Content.substr(0, std::min(body, had)) == before.Content.substr(0, body)
           && (has == had || has == had + mp3TagSize);
}

std::string SceneJudge::FileComplaint(const std::string& path, const FileState& file,
                                      const FolderState& now) const
{
    const std::string id = Id_Of(path);
    int count = 0;
    for (const auto& [place, found] : now) {
        if (!found.Content.starts_with(id))
            continue;
        ++count;
        if (!IsWhole(file, found))
            return place + " is not whole";
        if (!IsGoodName(Name_Of(path), Name_Of(place)))
            return path + " is called " + place;
    }
    const bool isRow = std::ranges::find(rows_, path) != rows_.end();
    if (count == 0 && scene_.Deletes() && chosen_.contains(path))
        return {};
    const bool isCopied = scene_.Copies() && isRow && now.contains(path) && count == 2;
    return count == 1 || isCopied ? "" : path + " is there " + std::to_string(count) + " times";
}

std::string SceneJudge::RowsComplaint(RunGround& ground, const FolderState& now) const
{
    for (int row = 1; row <= ground.List.Count(); ++row) {
        const std::string path = ground.RowPath(row);
        const auto file = now.find(path);
        if (file == now.end())
            return "row " + std::to_string(row) + " shows no file: " + path;
        const std::string id =
            scene_.Deletes() ? Id_Of(path) : Id_Of(rows_[static_cast<std::size_t>(row - 1)]);
        if (!file->second.Content.starts_with(id))
            return "row " + std::to_string(row) + " shows another's file: " + path;
    }
    return {};
}

std::string SceneJudge::FilesComplaint(RunGround& ground) const
{
    const FolderState now = ground.State();
    for (const auto& [path, file] : before_)
        if (const std::string complaint = FileComplaint(path, file, now); !complaint.empty())
            return complaint + "\n" + State_Text(now);
    for (const auto& [path, file] : now)
        if (!file.Content.starts_with("<"))
            return path + " is nobody's file\n" + State_Text(now);
    return {};
}

std::string SceneJudge::Complaint(RunGround& ground) const
{
    const FolderState now = ground.State();
    const std::string complaint = RowsComplaint(ground, now);
    if (complaint.empty())
        return FilesComplaint(ground);
    return complaint + "\n" + ground.ListText() + State_Text(now);
}

// The tag that a run made stays, empty; and writing is what changes times.
std::string SceneJudge::ComplaintAfterUndo(RunGround& ground, bool attributesCount,
                                           bool timesCount) const
{
    FolderState wanted = before_, now = ground.State();
    if (scene_.WritesTags())
        for (auto& [path, file] : now)
            if (const auto was = wanted.find(path);
                was != wanted.end()
                && file.Content.size() == was->second.Content.size() + mp3TagSize
                && file.Content.starts_with(was->second.Content))
                file.Content = was->second.Content;
    if (scene_.WritesTags() || !timesCount) {
        wanted = State_WithoutTimes(wanted);
        now = State_WithoutTimes(now);
    }
    if (!attributesCount) {
        wanted = State_WithoutAttributes(wanted);
        now = State_WithoutAttributes(now);
    }
    if (wanted == now)
        return {};
    return "not as it was:\n" + ground.ListText() + State_Text(now) + "wanted:\n"
           + State_Text(wanted);
}

} // namespace tavo
