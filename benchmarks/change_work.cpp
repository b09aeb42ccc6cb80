#include "bare_disk.h"
#include "stand.h"
#include "work.h"

#include <algorithm>
#include <cstdio>

namespace tavo::bench {

namespace {

using Names = std::vector<std::string>;

constexpr double msPerSecond = 1000;
constexpr std::size_t tagSize = 128;

Names SongNames(int count)
{
    Names names;
    for (int number = 1; number <= count; ++number) {
        char name[32];
        std::snprintf(name, sizeof name, "song_%06d.mp3", number);
        names.emplace_back(name);
    }
    return names;
}

std::string TagOf(const std::string& title)
{
    std::string tag = "TAG" + title;
    tag.resize(tagSize);
    return tag;
}

std::string SongContent()
{
    constexpr std::size_t soundSize = 1000;
    return std::string(soundSize, 's') + TagOf("Song");
}

// Changes a folder's files over and over, each time to something else; the bare
// calls do the same with as many files beside it.
class ChangeRace {
public:
    explicit ChangeRace(const Plan& plan)
        : ours_(plan.Folder + "ours/"), theirs_(plan.Folder + "theirs/"),
          names_(SongNames(plan.Files)), stand_(MakeFiles(plan.Folder)), f_(stand_.P.main)
    {
        stand_.Load(ours_);
        Require(stand_.Renames.Count() == plan.Files, "not all files were loaded");
    }
    ~ChangeRace()
    {
        Folder_Remove(ours_);
        Folder_Remove(theirs_);
    }
    ChangeRace(const ChangeRace&) = delete;
    ChangeRace& operator=(const ChangeRace&) = delete;

    // A contender changes the panel, untimed, and then runs.
    Contender Tags()
    {
        constexpr int title = 1;
        f_.chkMP3[title].Value = 1;
        return {[this] { f_.txtMP3[title].Text = Title(++round_); },
                [this] { stand_.Run(modeMp3Tag); }};
    }
    Contender BareTags()
    {
        return {[this] { tag_ = TagOf(Title(++bareRound_)); },
                [this] { Bare_Tags(theirs_, names_, tag_); }};
    }

    Contender Written()
    {
        SharedState& s = stand_.P.state;
        s.dtMod = 1;
        s.dtCreate = s.dtAccess = 0;
        return Times();
    }
    Contender BareWritten()
    {
        return {[this] { ++bareRound_; },
                [this] { Bare_Times(theirs_, names_, {}, Moment(bareRound_)); }};
    }

    Contender AllTimes()
    {
        SharedState& s = stand_.P.state;
        s.dtCreate = s.dtMod = s.dtAccess = 1;
        return Times();
    }
    Contender BareAllTimes()
    {
        return {[this] { ++bareRound_; },
                [this] {
                    const std::string created =
                        std::to_string(125'000'000'000'000'000 + bareRound_);
                    Bare_Times(theirs_, names_, created, Moment(bareRound_));
                }};
    }

    // Read-Only and Archive, and then Hidden, and so on.
    Contender Attributes()
    {
        constexpr int archive = 0, readOnly = 1, hidden = 3;
        return {[this] {
                    const int odd = ++round_ % 2;
                    f_.chkAttr[archive].Value = f_.chkAttr[readOnly].Value = odd;
                    f_.chkAttr[hidden].Value = 1 - odd;
                },
                [this] { stand_.Run(modeAttributes); }};
    }
    Contender BareAttributes()
    {
        return {[this] { ++bareRound_; },
                [this] {
                    const bool odd = bareRound_ % 2 == 1;
                    Bare_Attributes(theirs_, names_, odd ? 0444 : 0644, odd ? "0x20" : "0x2");
                }};
    }

    Contender Undo()
    {
        return {{}, [this] { stand_.Undo(); }};
    }
    Stand& TheStand() { return stand_; }

private:
    const std::string& MakeFiles(const std::string& folder)
    {
        for (const std::string& each : {ours_, theirs_}) {
            Folder_Make(each);
            Files_Make(each, names_, SongContent());
        }
        return folder;
    }
    static std::string Title(int round) { return "Song of round " + std::to_string(round); }
    static long Moment(int round) { return 915'000'000 + 86'400L * round; }

    Contender Times()
    {
        f_.txtDateTime[2].Text = "03:04:05 PM";
        f_.txtDateTime[4].Text = "08:09:10 AM";
        return {[this] {
                    const std::string date = "06/07/" + std::to_string(1990 + ++round_);
                    for (const int box : {1, 3, 5})
                        f_.txtDateTime[box].Text = date;
                },
                [this] { stand_.Run(modeDateTime); }};
    }

    std::string ours_, theirs_;
    Names names_;
    Stand stand_;
    FrmMain& f_;
    int round_ = 0, bareRound_ = 0;
    std::string tag_;
};

// A run against its bare calls, and its undo against the run.
struct ChangeWork {
    const char *Name, *UndoName;
    Contender (ChangeRace::*Run)();
    Contender (ChangeRace::*Bare)();
};

constexpr ChangeWork works[] = {
    {"tags, 100,000 files", "undo of tags, against its run", &ChangeRace::Tags,
     &ChangeRace::BareTags},
    {"modified times, 100,000 files", "undo of modified times, against its run",
     &ChangeRace::Written, &ChangeRace::BareWritten},
    {"all times, 100,000 files", "undo of all times, against its run", &ChangeRace::AllTimes,
     &ChangeRace::BareAllTimes},
    {"attributes, 100,000 files", "undo of attributes, against its run", &ChangeRace::Attributes,
     &ChangeRace::BareAttributes},
};

void Change_Measure(Plan& plan, const ChangeWork& work)
{
    if (!plan.Wants(work.Name) && !plan.Wants(work.UndoName))
        return;
    Note(work.Name);
    ChangeRace race(plan);
    const Contender run = (race.*work.Run)();
    const auto add = [&](const char* name, const Pair& pair, double goal) {
        plan.Results.push_back(
            {name, pair.Tavo * msPerSecond, pair.Limit * msPerSecond, "ms", goal});
    };
    if (plan.Wants(work.Name))
        add(work.Name, Measure(plan, run, (race.*work.Bare)()), 1.5);
    if (!plan.Wants(work.UndoName))
        return;
    run.Ready();
    add(work.UndoName, Measure(plan, race.Undo(), {{}, run.Work}), 2.2);
}

// What the rows keep of a run is there before and behind it, since the one
// before left as much with them: all else would be memory that a run takes.
void Memory_Measure(Plan& plan)
{
    const std::string work = "memory that a run takes for a row";
    if (!plan.Wants(work))
        return;
    Note(work);
    ChangeRace race(plan);
    const Contender run = race.Tags();
    const auto once = [&run] {
        run.Ready();
        run.Work();
    };
    once();
    once();
    const double before = HeapBytes();
    double most = before;
    int turn = 0;
    race.TheStand().Watch([&] {
        if (++turn % 100 == 0)
            most = std::max(most, HeapBytes());
    });
    once();
    race.TheStand().Watch({});
    plan.Results.push_back({work, (most - before) / plan.Files, 0, "B", 8});
    for (int count = 0; count < 5; ++count)
        once();
    plan.Results.push_back(
        {"  and keeps after five runs", (HeapBytes() - before) / plan.Files, 0, "B", 1});
}

} // namespace

void Changes_Measure(Plan& plan)
{
    for (const ChangeWork& work : works)
        Change_Measure(plan, work);
    Memory_Measure(plan);
}

} // namespace tavo::bench
