// Name & Number held against a second telling of it, over random lists.

#include "platform/posix/posix_files.h"
#include "renamelist/act_run.h"
#include "support/list_ground.h"
#include "support/random_list.h"
#include "support/temp_folder.h"
#include "support/text_points.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>

namespace tavo::model {

namespace {

// What a run of the program left behind. A count is 0 where the panel shows
// none; one that has fallen to 0 again is still shown.
struct Found {
    Disk Files;
    std::vector<Row> Rows;
    int Renamed = 0, Errors = 0, Unnecessary = 0;
};

void Task_ToProgram(const NnTask& task, ListGround& ground)
{
    SharedState& s = ground.P.state;
    s.RenMode = modeNameNumber;
    s.SupWarnRen = 1;
    s.actClose = 1;
    s.AutoSelNext = 0;
    s.PreList = static_cast<std::int16_t>(task.PreList);
    s.SelFolderMode = task.FolderMode ? 1 : 0;
    s.nnStyle = static_cast<std::uint8_t>(task.Style);
    s.nnStart = task.Start;
    s.nnDigits = static_cast<std::int16_t>(task.Digits);
    ground.SetTemplates(task.NameTemplate, task.ExtTemplate);
    for (const Row& row : task.Rows) {
        const int at = ground.List.Add(row.Name);
        ground.List.SetCell(at, s.colPath, row.Path);
        ground.List.SetCell(at, s.colType, row.Type);
        ground.List.SetCell(at, s.colUndoName, row.UndoName);
        ground.List.SetCell(at, s.colErrors, row.Errors);
        ground.List.SetSelected(at, row.Selected);
    }
    s.RenCount = ground.List.Count();
}

int Count_Of(const Label& label)
{
    return std::atoi(label.Caption.Get().c_str());
}

Found Task_Run(const NnTask& task, ListGround& ground)
{
    Task_ToProgram(task, ground);
    Act_Run(ground.P, task.SelectedOnly ? actSelected : actAll);
    Found found;
    for (int at = 1; at <= ground.List.Count(); ++at)
        found.Rows.push_back({ground.Cell(at, "Path"), ground.Cell(at, "Name"),
                              ground.List.Selected(at), ground.Cell(at, "Type"),
                              ground.Cell(at, "UndoName"), ground.Cell(at, "Errors")});
    const auto& values = ground.Main.lblActionInfo;
    found.Renamed = Count_Of(values[1]);
    found.Errors = Count_Of(values[2]);
    found.Unnecessary = Count_Of(values[3]);
    return found;
}

// Programs on disks in memory, one a flavour: to start one takes longer than to
// run a task in it.
class Grounds {
public:
    Found Run(const NnTask& task)
    {
        MemoryListGround& ground = Of(Task_Flavour(task));
        ground.List.DeleteAllItems();
        for (const char* folder : {"work", "other"})
            ground.Disk.Remove(ground.Full(folder));
        Task_ToDisk(task, ground.Disk);
        Found found = Task_Run(task, ground);
        found.Files = Task_FromDisk(task, ground.Disk);
        EXPECT_EQ(ground.Disk.OpenSearches(), 0);
        return found;
    }

private:
    MemoryListGround& Of(MemoryDisk::Flavour flavour)
    {
        auto& ground = grounds_[flavour];
        if (!ground)
            ground = std::make_unique<MemoryListGround>(flavour);
        return *ground;
    }

    std::map<MemoryDisk::Flavour, std::unique_ptr<MemoryListGround>> grounds_;
};

std::vector<int> Contents_Of(const Disk& disk)
{
    std::vector<int> contents;
    for (const auto& [full, content] : disk)
        contents.push_back(content);
    std::sort(contents.begin(), contents.end());
    return contents;
}

// A panel shows the last count above 0.
bool Shows(int shown, int count)
{
    return count > 0 ? shown == count : shown >= 0;
}

// Can a name be its own new one, whatever stands before it? Then a row may be
// in its own way, again and again.
bool MayStandInItsOwnWay(const NnTask& task)
{
    return task.PreList == 1 && (task.NameTemplate + "." + task.ExtTemplate).starts_with("<ON>.");
}

// The walk came back to one row for ever, or until its path was as long as a
// path can be.
bool IsEndless(const NnOutcome& outcome)
{
    const std::string zeros(20, '0');
    const auto isLong = [&](const Row& row) { return row.Name.starts_with(zeros); };
    return outcome.Endless || std::ranges::any_of(outcome.Rows, isLong);
}

// A token that is replaced by itself is searched for ever; how that ends is
// nobody's rule.
bool HasTokenForValue(const NnTask& task)
{
    const auto isToken = [](const Row& row) {
        return points::SameBlind(row.Name.substr(0, row.Name.rfind('.')), "<ON>");
    };
    const std::string name = points::Upper(task.NameTemplate);
    return std::ranges::any_of(task.Rows, isToken) && name.find("<ON>") != name.rfind("<ON>");
}

bool IsSame(const Found& found, const NnOutcome& wanted)
{
    return found.Rows == wanted.Rows && found.Files == wanted.Files
           && Shows(found.Renamed, wanted.Renamed) && Shows(found.Errors, wanted.Errors)
           && Shows(found.Unnecessary, wanted.Unnecessary);
}

// Holds the outcomes of many tasks against those of the model.
class Judge {
public:
    // False for a task that went wrong.
    bool Agrees(const NnTask& task, const Found& found)
    {
        ++tasks_;
        const NnOutcome wanted = Nn_Model_Run(task);
        const bool kept = Contents_Of(found.Files) == Contents_Of(task.Files);
        EXPECT_TRUE(kept) << "A file was lost.";
        if (task.Rows.empty() || IsEndless(wanted) || HasTokenForValue(task))
            return kept;
        if (IsSame(found, wanted))
            return kept;
        // Such a row is given up at once, also where the model finds all
        // temporary names taken and gives it up for that.
        if (MayStandInItsOwnWay(task)) {
            ++pardoned_;
            return kept;
        }
        const NnOutcome came{found.Files,  found.Rows,        found.Renamed,
                             found.Errors, found.Unnecessary, false};
        ADD_FAILURE() << "wanted: " << Outcome_Text(wanted) << "came: " << Outcome_Text(came);
        return false;
    }

    ~Judge() { EXPECT_LE(pardoned_, tasks_ / 5000); }

private:
    int tasks_ = 0, pardoned_ = 0;
};

// So many times as many tasks when there is time for them.
std::uint32_t Patience()
{
    return std::getenv("TAVO_LONG") ? 50 : 1;
}

template <class RunTask>
void Tasks_Check(std::uint32_t count, Dialect system, RunTask run)
{
    constexpr int mostFailures = 3;
    int failures = 0;
    for (std::uint32_t seed = 1; seed <= count && failures < mostFailures; ++seed) {
        const NnTask task = Random_Task(seed, system);
        if (run(task))
            continue;
        ++failures;
        ADD_FAILURE() << "seed " << seed << ": " << Task_Text(task);
    }
}

// -- The same on a real disk, below a folder of the test.

// What no test can bring about on a real disk as root.
bool IsForRealDisk(const NnTask& task)
{
    return !task.CaseBlind && task.InUse.empty() && task.Locked.empty();
}

constexpr const char* mark = "content of the folder";

void Task_ToFolder(const NnTask& task, const TempFolder& folder)
{
    for (const Row& row : task.Rows)
        if (const auto path = row.Path.substr(1, row.Path.size() - 2); !folder.Has(path))
            folder.MakeFolder(path);
    for (const auto& [full, content] : task.Files)
        folder.Write(full.substr(1) + (task.FolderMode ? std::string("/") + mark : ""),
                     std::to_string(content));
}

void Folder_Collect(const NnTask& task, const TempFolder& folder, const std::string& below,
                    Disk& out)
{
    for (const std::string& name : folder.Names(below)) {
        const std::string path = below.empty() ? name : below + "/" + name;
        if (folder.IsFolder(path))
            Folder_Collect(task, folder, path, out);
        else
            out["/" + (task.FolderMode ? below : path)] = std::stoi(folder.Read(path));
    }
}

NnTask Task_Moved(const NnTask& task, const TempFolder& folder)
{
    NnTask moved = task;
    for (Row& row : moved.Rows)
        row.Path = folder.Path(row.Path.substr(1));
    return moved;
}

Found Task_RunOnDisk(const NnTask& task)
{
    const TempFolder folder("nn_property"), app("nn_app");
    Task_ToFolder(task, folder);
    PosixFiles files;
    ListGround ground(files, app.Path());
    Found found = Task_Run(Task_Moved(task, folder), ground);
    for (Row& row : found.Rows)
        row.Path = row.Path.substr(folder.Path().size() - 1);
    Folder_Collect(task, folder, "", found.Files);
    return found;
}

} // namespace

TEST(NnProperty, Lists_on_Linux_come_out_as_the_model_has_it)
{
    Grounds grounds;
    Judge judge;
    Tasks_Check(3000 * Patience(), Dialect::Linux,
                [&](const NnTask& task) { return judge.Agrees(task, grounds.Run(task)); });
}

TEST(NnProperty, Lists_on_Windows_come_out_as_the_model_has_it)
{
    Grounds grounds;
    Judge judge;
    Tasks_Check(3000 * Patience(), Dialect::Windows,
                [&](const NnTask& task) { return judge.Agrees(task, grounds.Run(task)); });
}

TEST(NnProperty, Lists_on_a_real_disk_come_out_as_the_model_has_it)
{
    Judge judge;
    std::uint32_t run = 0;
    const std::uint32_t tasks = 200 * Patience();
    Tasks_Check(tasks, Dialect::Linux, [&](const NnTask& task) {
        if (!IsForRealDisk(task))
            return true;
        ++run;
        return judge.Agrees(task, Task_RunOnDisk(task));
    });
    EXPECT_TRUE(HasFailure() || run > tasks / 2) << run;
}

} // namespace tavo::model
