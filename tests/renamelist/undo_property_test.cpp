// Runs over random lists, taken back: every folder is as it was, and taking
// that back gives the run's result again.

#include "core/screens.h"
#include "fileactions/mp3_panel.h"
#include "fileactions/mp3_tag.h"
#include "renamelist/act_run.h"
#include "renamelist/rename_list.h"
#include "support/memory_clock.h"
#include "support/run_ground.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>
#include <set>

namespace tavo {
namespace {

constexpr std::array names = {
    "1.txt", "2.txt", "3.txt", "4.txt",  "01.txt", "02.txt", "001.txt", "a.txt",   "A.txt",
    "b.txt", "ab",    "aB",    "Ab.TXT", "a1.txt", "0a.txt", "11.txt",  "1",       "2",
    "aa",    "b.c",   "b.c.d", "a b",    "x1",     "1x.txt", "x2.txt",  "0a1.txt", "111.txt",
    "c",     "d",     "01",    "001",    "c1",     "d.txt",  "B",       "BB.txt",  "bb.txt",
};
constexpr std::array asideNames = {"~1.txt", "~a.txt", "~2.txt", "~ab", "~~1.txt", "~1"};
constexpr std::array nameTemplates = {"<#>",     "<#>",   "<#>",   "<ON><#>", "x<#>",
                                      "<#><ON>", "0<#>",  "a<ON>", "<ON>",    "<OE><#>",
                                      "<#>x",    "0<ON>", "<ON>1", "1",       "<ON><ON>"};
constexpr std::array extTemplates = {"<OE>", "<OE>", "<OE>", "txt", "", "<#>"};
constexpr std::array starts = {"1", "1", "2", "0", "10", "9", "001"};
constexpr std::array pieces = {"a", "1", "b", "A", "0", ".", "x", "aa", ".txt", "11", "ab", "2"};
constexpr std::array newPieces = {"b", "a", "", "1", "2", "0", "aa", ".", "A", "c", "~", "bb"};
constexpr std::array folders = {"d", "d", "e", "d/in"};
constexpr std::array tagTexts = {"One", "Two", "", "A longer text", "\u00e4\u00f6\u00fc"};
constexpr std::array modes = {modeNameNumber,    modeNameNumber, modeNameNumber,
                              modeSearchReplace, modeCase,       modeAttributes,
                              modeSearchReplace, modeDateTime,   modeMp3Tag};

// One random list with one random run over it.
class RandomRun {
public:
    RandomRun(std::uint32_t seed, RunGround& ground) : random_(seed), ground_(ground) {}

    // Empty, or what went wrong.
    std::string Try();
    // Did the run change a file?
    bool HasChanged() const { return hasChanged_; }

private:
    std::uint32_t Below(std::uint32_t limit)
    {
        return static_cast<std::uint32_t>(random_()) % limit;
    }
    bool Chance(std::uint32_t percent) { return Below(100) < percent; }
    template <class Array>
    auto Any(const Array& array)
    {
        return array[Below(static_cast<std::uint32_t>(array.size()))];
    }

    void AddFiles();
    bool AddFile(std::string path);
    std::string TagBytes();
    void ChooseMode();
    void ChooseNames();
    void ChooseReplace();
    void ChooseCase();
    void ChooseTimes();
    void ChooseTag();
    void Disorder();
    void Run();
    void UndoOnce();
    FolderState Seen() const;
    std::string Compare(const char* what, const FolderState& wanted);
    FolderState WithoutNewTags(const FolderState& before, FolderState now) const;

    std::mt19937 random_;
    RunGround& ground_;
    int mode_ = 0;
    bool hasChanged_ = false;
    std::set<std::string> taken_;
    std::vector<std::string> rows_;
    std::string story_;
};

FileTime Moment_Of(std::uint32_t number)
{
    return Clock_Moment(1990 + static_cast<int>(number % 40), 1 + static_cast<int>(number % 12), 9,
                        static_cast<int>(number % 24), 3, static_cast<int>(number % 60), 250);
}

std::string RandomRun::TagBytes()
{
    const MP3Tag tag{"TAG",
                     Any(tagTexts),
                     Any(tagTexts),
                     Any(tagTexts),
                     Chance(50) ? "1999" : "",
                     Any(tagTexts),
                     static_cast<std::uint8_t>(Below(256)),
                     static_cast<std::uint8_t>(Below(256))};
    return MP3_Tag_Encode(tag);
}

bool RandomRun::AddFile(std::string path)
{
    if (mode_ == modeMp3Tag)
        path = path.substr(0, path.rfind('.')) + ".mp3";
    const bool isBlind =
        ground_.P.files.Rules().CaseBlind || ground_.Kind == Ground::CaseBlindStick;
    if (!taken_.insert(isBlind ? UCase(path) : path).second)
        return false;
    std::string content = "<" + path + ">";
    if (mode_ == modeMp3Tag && Chance(70))
        content += std::string(Below(200), 'b') + TagBytes();
    ground_.AddFile(path, content);
    ground_.SetTimes(path, Moment_Of(Below(1000)), Moment_Of(Below(1000)), Moment_Of(Below(1000)));
    constexpr std::array bits = {attrArchive, attrReadOnly, attrHidden, attrSystem};
    std::uint32_t attributes = 0;
    for (const std::uint32_t bit : bits)
        attributes |= Chance(40) ? bit : 0;
    if (mode_ != modeMp3Tag || Chance(10))
        ground_.SetAttributes(path, attributes);
    return true;
}

void RandomRun::AddFiles()
{
    const std::uint32_t wanted = 1 + Below(Chance(25) ? 20 : 7);
    const std::uint32_t folderCount = 1 + Below(4);
    for (std::uint32_t i = 0; i < wanted; ++i) {
        const std::string name = Chance(4) ? Any(asideNames) : Any(names);
        const std::string path = std::string(folders[Below(folderCount)]) + "/" + name;
        if (AddFile(path) && (Chance(90) || rows_.empty()))
            rows_.push_back(mode_ == modeMp3Tag ? path.substr(0, path.rfind('.')) + ".mp3" : path);
    }
    std::shuffle(rows_.begin(), rows_.end(), random_);
}

void RandomRun::ChooseMode()
{
    switch (mode_) {
    case modeNameNumber: ChooseNames(); break;
    case modeSearchReplace: ChooseReplace(); break;
    case modeCase: ChooseCase(); break;
    case modeDateTime: ChooseTimes(); break;
    case modeMp3Tag: ChooseTag(); break;
    default:
        for (const auto& box : ground_.Main.chkAttr)
            box->Value = static_cast<int>(Below(2));
    }
}

void RandomRun::ChooseNames()
{
    const std::string name = Any(nameTemplates), extension = Any(extTemplates), start = Any(starts);
    const int digits = 1 + static_cast<int>(Below(Chance(30) ? 3 : 1));
    ground_.P.state.PreList = static_cast<std::int16_t>(Below(2));
    ground_.Main.optNNStyle[1].Value = true;
    ground_.Main.txtNameNum[nnStartBox].Text = start;
    ground_.Main.txtNameNum[nnDigitsBox].Text = std::to_string(digits);
    ground_.G.SetTemplates(name, extension);
    story_ += name + "." + extension + " from " + start + " digits " + std::to_string(digits)
              + " PreList " + std::to_string(ground_.P.state.PreList);
}

void RandomRun::ChooseReplace()
{
    const std::string find = Any(pieces), by = Any(newPieces);
    SharedState& s = ground_.P.state;
    s.srType = static_cast<std::uint8_t>(Chance(70) ? 1 : 2);
    s.srMode = static_cast<std::uint8_t>(1 + Below(3));
    s.srMatchCase = static_cast<std::uint8_t>(Below(2));
    ground_.Main.txtSearchFind.Text = find;
    ground_.Main.txtSearchReplace.Text = by;
    const std::string first = std::to_string(1 + Below(3)), last = std::to_string(Below(3));
    ground_.Main.txtSearchStart.Text = first;
    ground_.Main.txtSearchEnd.Text = last;
    story_ += find + " -> " + by + " type " + std::to_string(s.srType) + " scope "
              + std::to_string(s.srMode) + " from " + first + " to " + last;
}

void RandomRun::ChooseCase()
{
    const auto option = static_cast<int>(1 + Below(3));
    ground_.Main.optCase[option].Value = true;
    ground_.Main.chkCaseFirst.Value = static_cast<int>(Below(2));
    story_ += "case " + std::to_string(option);
}

void RandomRun::ChooseTimes()
{
    constexpr std::array dates = {"01/02/1999", "12/31/2010", "02/29/2000"};
    constexpr std::array clocks = {"03:04:05 PM", "12:00:00 AM", "11:59:59 AM"};
    auto& boxes = ground_.Main.txtDateTime;
    for (const int box : {1, 3, 5})
        boxes[box].Text = Any(dates);
    for (const int box : {2, 4})
        boxes[box].Text = Any(clocks);
    SharedState& s = ground_.P.state;
    for (std::uint8_t* flag : {&s.dtCreate, &s.dtMod, &s.dtAccess})
        *flag = static_cast<std::uint8_t>(Below(2));
}

void RandomRun::ChooseTag()
{
    for (int field = 1; field <= 4; ++field)
        ground_.Main.txtMP3[field].Text = Any(tagTexts);
    ground_.Main.txtMP3[tagTrack].Text = std::to_string(Below(256));
    ground_.Main.txtMP3[tagYear].Text = "2004";
    for (const auto& box : ground_.Main.chkMP3)
        box->Value = static_cast<int>(Below(2));
    ground_.Main.chkMP3[1 + static_cast<int>(Below(6))].Value = 1;
}

// What a person may do to the list between a run and its undo.
void RandomRun::Disorder()
{
    constexpr std::array keys = {"Name", "Path", "Type", "UndoName", "Errors"};
    for (std::uint32_t steps = Below(4); steps > 0; --steps) {
        const int count = ground_.List.Count();
        const int from = 1 + static_cast<int>(Below(static_cast<std::uint32_t>(count)));
        const int to = 1 + static_cast<int>(Below(static_cast<std::uint32_t>(count)));
        switch (Below(4)) {
        case 0: Ren_List_Sort(ground_.P, ground_.List, ground_.List.ColumnByKey(Any(keys))); break;
        case 1: Ren_Row_Move(ground_.P, from, to); break;
        case 2:
            ground_.G.Select({std::min(from, to), std::max(from, to)});
            Ren_List_Arrange(ground_.P, "Group");
            break;
        default: ground_.G.Select({from}); Ren_List_Arrange(ground_.P, "Down");
        }
    }
}

void RandomRun::Run()
{
    const bool selected = Chance(40);
    if (selected) {
        std::vector<int> chosen;
        for (int row = 1; row <= ground_.List.Count(); ++row)
            if (Chance(60))
                chosen.push_back(row);
        ground_.G.Select(chosen.empty() ? std::vector<int>{1} : chosen);
    }
    const int cancelTurn = Chance(30) ? 1 + static_cast<int>(Below(30)) : 0;
    story_ += (selected ? ", selected" : ", all") + std::string(", cancel in turn ")
              + std::to_string(cancelTurn) + "\n" + ground_.ListText()
              + State_Text(ground_.State());
    ground_.Act(selected ? actSelected : actAll, cancelTurn,
                [this] { ground_.P.state.ActCancel = true; });
    story_ += "run:\n" + ground_.ListText();
}

// A person who cancels an undo of names, and then goes on with No.
void RandomRun::UndoOnce()
{
    const bool isAsked = mode_ == modeNameNumber || mode_ == modeSearchReplace;
    const int turn = isAsked && Chance(30) ? 1 + static_cast<int>(Below(40)) : 0;
    Disorder();
    ground_.Act(actUndo, turn, [this] { ground_.P.state.ActCancel = true; });
    story_ += "undo, cancel in turn " + std::to_string(turn) + ":\n" + ground_.ListText();
}

// Writing a tag changes the times.
FolderState RandomRun::Seen() const
{
    return mode_ == modeMp3Tag ? State_WithoutTimes(ground_.State()) : ground_.State();
}

// A tag that the run made stays, empty.
FolderState RandomRun::WithoutNewTags(const FolderState& before, FolderState now) const
{
    const std::string empty = MP3_Tag_Encode({"TAG", "", "", "", "", "", 0, 0});
    for (auto& [path, file] : now)
        if (const auto was = before.find(path); was != before.end() && mode_ == modeMp3Tag
                                                && file.Content != was->second.Content
                                                && file.Content == was->second.Content + empty)
            file.Content = was->second.Content;
    return now;
}

std::string RandomRun::Compare(const char* what, const FolderState& wanted)
{
    const FolderState now = WithoutNewTags(wanted, Seen());
    if (now == wanted)
        return {};
    return std::string(what) + " is wrong. " + story_ + "came:\n" + State_Text(now) + "wanted:\n"
           + State_Text(wanted);
}

std::string RandomRun::Try()
{
    mode_ = Any(modes);
    story_ = "mode " + std::to_string(mode_) + ": ";
    AddFiles();
    ground_.Show(rows_);
    Mode_Set(ground_.P, mode_);
    ChooseMode();
    const FolderState before = Seen();
    Run();
    const FolderState after = Seen();
    hasChanged_ = after != before;
    UndoOnce();
    std::string wrong = Compare("The undo", before);
    if (wrong.empty()) {
        UndoOnce();
        wrong = Compare("The undo of the undo", after);
    }
    if (wrong.empty()) {
        UndoOnce();
        wrong = Compare("The third undo", before);
    }
    return wrong;
}

// So many times as many tasks when there is time for them.
std::uint32_t Patience()
{
    return std::getenv("TAVO_LONG") ? 50 : 1;
}

// Tries one list after the other. Runs that change nothing would tell nothing,
// so most have to change something.
class Tally {
public:
    void Try(std::uint32_t seed, RunGround& ground)
    {
        RandomRun run(seed, ground);
        const std::string wrong = run.Try();
        ++tries_;
        failures_ += wrong.empty() ? 0 : 1;
        changes_ += run.HasChanged() ? 1 : 0;
        EXPECT_EQ(wrong, "") << "seed " << seed;
    }
    bool GoesOn() const { return failures_ < 3; }
    ~Tally() { EXPECT_TRUE(failures_ > 0 || changes_ > tries_ / 2) << changes_ << "/" << tries_; }

private:
    int tries_ = 0, failures_ = 0, changes_ = 0;
};

void Memory_Check(Ground kind)
{
    RunGround ground(kind);
    Tally tally;
    for (std::uint32_t seed = 1; seed <= 3000 * Patience() && tally.GoesOn(); ++seed) {
        ground.Clear();
        tally.Try(seed, ground);
    }
}

TEST(UndoProperty, Any_run_on_Windows_is_taken_back_and_done_again)
{
    Memory_Check(Ground::Windows);
}

TEST(UndoProperty, Any_run_on_Linux_is_taken_back_and_done_again)
{
    Memory_Check(Ground::Linux);
}

TEST(UndoProperty, Any_run_on_a_stick_is_taken_back_and_done_again)
{
    Memory_Check(Ground::CaseBlindStick);
}

TEST(UndoProperty, Any_run_on_a_real_disk_is_taken_back_and_done_again)
{
    Tally tally;
    for (std::uint32_t seed = 1; seed <= 150 * Patience() && tally.GoesOn(); ++seed) {
        RunGround ground(Ground::RealDisk);
        tally.Try(seed, ground);
    }
}

} // namespace
} // namespace tavo
