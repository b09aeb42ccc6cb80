#include "bare_disk.h"
#include "renamelist/change_case.h"
#include "stand.h"
#include "work.h"

#include <algorithm>
#include <cstdio>

namespace tavo::bench {

namespace {

using Names = std::vector<std::string>;

constexpr int allFiles = 100'000;
constexpr int someFiles = allFiles / 10;
constexpr double msPerSecond = 1000;

// One name in a hundred ends in .png.
Names WalkNames(int first, int count)
{
    Names names;
    for (int number = first; number < first + count; ++number) {
        char name[40];
        std::snprintf(name, sizeof name, "holiday_%06d.%s", number,
                      number % 100 == 0 ? "png" : "jpg");
        names.emplace_back(name);
    }
    return names;
}

Names Numbered(const std::string& prefix, int start, int count)
{
    Names names;
    for (int number = start; number < start + count; ++number) {
        char text[16];
        std::snprintf(text, sizeof text, "%06d", number);
        names.push_back(prefix + text + ".jpg");
    }
    return names;
}

struct WalkWork {
    const char* Name;
    bool Deep;
    const char* Filter;
    double Goal;
};

constexpr WalkWork walks[] = {
    {"walk 100,000 files in 1 folder", false, "", 1.5},
    {"walk 100,000 files in 1,000 folders", true, "", 1.5},
    {"walk with a filter for 1 in 100, 1 folder", false, "*.png", 0.5},
    {"walk with a filter for 1 in 100, 1,000 folders", true, "*.png", 0.5},
};

void Flat_Make(const std::string& folder)
{
    Folder_Make(folder);
    Files_Make(folder, WalkNames(0, allFiles));
}

void Deep_Make(const std::string& folder)
{
    constexpr int folders = 1000, filesInFolder = allFiles / folders;
    Folder_Make(folder);
    for (int number = 0; number < folders; ++number) {
        const std::string path = folder + "folder_" + std::to_string(number) + "/";
        Folder_Make(path);
        Files_Make(path, WalkNames(number * filesInFolder, filesInFolder));
    }
}

void Walk_Measure(Plan& plan, Stand& stand, const WalkWork& walk, const std::string& folder)
{
    if (!plan.Wants(walk.Name))
        return;
    Note(walk.Name);
    const std::string filter = walk.Filter;
    const Pair pair = Measure(plan, {{}, [&] { stand.Walk(folder, true, filter); }},
                              {{}, [&] { Bare_Walk(folder); }});
    const int wanted = filter.empty() ? allFiles : allFiles / 100;
    Require(stand.Selection.Count() == wanted, "the walk found another number of files");
    plan.Results.push_back(
        {walk.Name, pair.Tavo * msPerSecond, pair.Limit * msPerSecond, "ms", walk.Goal});
}

// Renames a folder's files over and over, each time to other names; the bare
// loop does the same with as many files beside it.
class RenameRace {
public:
    RenameRace(const Plan& plan, int count)
        : ours_(plan.Folder + "ours/"), theirs_(plan.Folder + "theirs/"), count_(count),
          stand_(MakeFolders(plan.Folder)), names_(Numbered("", 1, count))
    {
        Files_Make(ours_, names_);
        Files_Make(theirs_, names_);
        stand_.Load(ours_);
        stand_.P.state.PreList = 1;
        Require(stand_.Renames.Count() == count, "not all files were loaded");
    }
    ~RenameRace()
    {
        Folder_Remove(ours_);
        Folder_Remove(theirs_);
    }
    RenameRace(const RenameRace&) = delete;
    RenameRace& operator=(const RenameRace&) = delete;

    // Every file gets a name that no file had.
    Pair Counter(const Plan& plan)
    {
        int round = 0;
        std::string prefix;
        return Measure(
            plan, {[&] { prefix = Beginning(++round); }, [&] { stand_.Number(prefix + "<#>", 1); }},
            BareRename("r"));
    }

    // Every name gets another beginning.
    Pair Search(const Plan& plan)
    {
        int round = 0;
        stand_.Number(Beginning(round) + "<#>", 1);
        return Measure(plan,
                       {[&] {
                            stand_.P.main.txtSearchFind.Text = Beginning(round);
                            stand_.P.main.txtSearchReplace.Text = Beginning(++round);
                        },
                        [&] { stand_.Run(modeSearchReplace); }},
                       BareRename("s"));
    }

    // All letters in turn large and small.
    Pair Case(const Plan& plan)
    {
        stand_.Number("holiday_<#>", 1);
        return Measure(plan,
                       {[&] {
                            auto& mode = stand_.P.state.ccMode;
                            mode = mode == caseUpper ? caseLower : caseUpper;
                        },
                        [&] { stand_.Run(modeCase); }},
                       BareRename("c"));
    }

    // The way back against the way there.
    Pair CounterBack(const Plan& plan)
    {
        return Measure(plan, {{}, [&] { stand_.Undo(); }},
                       {{}, [&] { stand_.Number("back_<#>", 1); }});
    }
    Pair ShiftBack(const Plan& plan)
    {
        return Measure(plan, {{}, [&] { stand_.Undo(); }}, {{}, [&] { stand_.Number("<#>", 2); }});
    }
    Pair CaseBack(const Plan& plan)
    {
        stand_.P.state.ccMode = caseUpper;
        return Measure(plan, {{}, [&] { stand_.Undo(); }}, {{}, [&] { stand_.Run(modeCase); }});
    }

    // Every file gets the name that the next one has.
    Pair Shift(const Plan& plan)
    {
        int start = 1;
        const Pair pair =
            Measure(plan, {{}, [&] { stand_.Number("<#>", ++start); }}, BareRename("b"));
        Require(stand_.Renames.Text(1) == Numbered("", start, 1)[0]
                    && stand_.Renames.Text(count_) == Numbered("", start + count_ - 1, 1)[0],
                "the rows were not shifted");
        return pair;
    }

private:
    static std::string Beginning(int round) { return "r" + std::to_string(round) + "_"; }

    // Every file gets a name that no file had.
    Contender BareRename(const std::string& letter)
    {
        return {[this, letter, round = 0]() mutable {
                    const std::string prefix = letter + std::to_string(++round) + "_";
                    newNames_ = Numbered(prefix, 1, count_);
                },
                [this] { Bare_Rename(theirs_, names_, newNames_); }};
    }

    const std::string& MakeFolders(const std::string& folder)
    {
        Folder_Make(ours_);
        Folder_Make(theirs_);
        return folder;
    }

    std::string ours_, theirs_;
    int count_;
    Stand stand_;
    Names names_, newNames_;
};

struct RenameWork {
    const char* Name;
    Pair (RenameRace::*Race)(const Plan& plan);
    double Goal;
};

constexpr RenameWork renames[] = {
    {"rename with a counter, 100,000 files", &RenameRace::Counter, 1.25},
    {"search and replace, 100,000 files", &RenameRace::Search, 1.25},
    {"change case, 100,000 files", &RenameRace::Case, 1.25},
    {"undo of a counter, against its run", &RenameRace::CounterBack, 2.2},
    {"undo of names that moved on, against its run", &RenameRace::ShiftBack, 2.2},
    {"undo of change case, against its run", &RenameRace::CaseBack, 2.2},
};

void Rename_Measure(Plan& plan, const RenameWork& work)
{
    if (!plan.Wants(work.Name))
        return;
    Note(work.Name);
    RenameRace race(plan, plan.Files);
    const Pair pair = (race.*work.Race)(plan);
    plan.Results.push_back(
        {work.Name, pair.Tavo * msPerSecond, pair.Limit * msPerSecond, "ms", work.Goal});
}

void Shift_Measure(Plan& plan)
{
    const std::string work = "rename each to the next one's name, 100,000 files";
    if (!plan.Wants(work))
        return;
    Note(work);
    const Pair some = RenameRace(plan, someFiles).Shift(plan);
    const Pair all = RenameRace(plan, allFiles).Shift(plan);
    plan.Results.push_back({work, all.Tavo * msPerSecond, all.Limit * msPerSecond, "ms", 2.6});
    plan.Results.push_back({"  against 10,000 files (the limit's own growth is "
                                + std::to_string(all.Limit / some.Limit).substr(0, 4) + ")",
                            all.Tavo * msPerSecond, some.Tavo * msPerSecond, "ms", 11});
}

} // namespace

void Walks_Measure(Plan& plan)
{
    if (std::ranges::none_of(walks, [&](const WalkWork& walk) { return plan.Wants(walk.Name); }))
        return;
    Note("making files");
    const std::string flat = plan.Folder + "flat/", deep = plan.Folder + "deep/";
    Flat_Make(flat);
    Deep_Make(deep);
    {
        Stand stand(plan.Folder);
        for (const WalkWork& walk : walks)
            Walk_Measure(plan, stand, walk, walk.Deep ? deep : flat);
    }
    Folder_Remove(flat);
    Folder_Remove(deep);
}

void Renames_Measure(Plan& plan)
{
    for (const RenameWork& work : renames)
        Rename_Measure(plan, work);
    Shift_Measure(plan);
}

} // namespace tavo::bench
