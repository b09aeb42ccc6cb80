#include "support/random_list.h"

#include "support/model_disk.h"
#include "support/text_points.h"

#include <gtest/gtest.h>

#include <map>

namespace tavo::model {

namespace {

constexpr std::uint32_t seeds = 3000;
constexpr Dialect dialects[] = {Dialect::Linux, Dialect::Windows};

std::multiset<int> Contents_Of(const Disk& disk)
{
    std::multiset<int> contents;
    for (const auto& [full, content] : disk)
        contents.insert(content);
    return contents;
}

// Calls `visit` for many tasks of both dialects.
template <class Visit>
void ForEachTask(Visit visit)
{
    for (const Dialect system : dialects)
        for (std::uint32_t seed = 1; seed <= seeds; ++seed) {
            const NnTask task = Random_Task(seed, system);
            visit(task, seed);
            if (::testing::Test::HasFailure())
                return;
        }
}

} // namespace

TEST(RandomList, A_seed_gives_the_same_task_each_time)
{
    for (const Dialect system : dialects) {
        EXPECT_EQ(Task_Text(Random_Task(7, system)), Task_Text(Random_Task(7, system)));
        EXPECT_NE(Task_Text(Random_Task(7, system)), Task_Text(Random_Task(8, system)));
    }
}

TEST(RandomList, A_disk_in_memory_takes_a_task_and_gives_it_back)
{
    ForEachTask([](const NnTask& task, std::uint32_t seed) {
        MemoryDisk disk(Task_Flavour(task));
        Task_ToDisk(task, disk);
        EXPECT_EQ(Task_FromDisk(task, disk), task.Files) << seed << "\n" << Task_Text(task);
    });
}

TEST(RandomList, The_model_loses_no_content)
{
    ForEachTask([](const NnTask& task, std::uint32_t seed) {
        const NnOutcome outcome = Nn_Model_Run(task);
        EXPECT_EQ(Contents_Of(outcome.Files), Contents_Of(task.Files))
            << seed << "\n"
            << Task_Text(task) << Outcome_Text(outcome);
    });
}

// Everything that these lists are made for must come up in good numbers.
TEST(RandomList, Tasks_meet_all_that_can_happen)
{
    std::map<std::string, int> met;
    ForEachTask([&](const NnTask& task, std::uint32_t) {
        const NnOutcome outcome = Nn_Model_Run(task);
        met["rows"] += !task.Rows.empty();
        met["all"] += !task.SelectedOnly;
        met["PreList"] += task.PreList;
        met["folders"] += task.FolderMode;
        met["several folders"] +=
            !task.Rows.empty() && task.Rows.front().Path != task.Rows.back().Path;
        met["renamed"] += outcome.Renamed > 0;
        met["errors"] += outcome.Errors > 0;
        met["unnecessary"] += outcome.Unnecessary > 0;
        met["errors below 0"] += outcome.Errors < 0;
        met["endless"] += outcome.Endless;
        for (std::size_t i = 0; i < outcome.Rows.size(); ++i) {
            const Row& row = outcome.Rows[i];
            met[row.Errors] += 1;
            met["left aside"] += row.Name == "0" + task.Rows[i].Name;
            met["content changed hands"] +=
                task.Files.count(row.Path + row.Name) != 0 && row.Name != task.Rows[i].Name;
        }
    });
    for (const char* what : {"rows", "all", "PreList", "folders", "several folders", "renamed",
                             "errors", "unnecessary", "errors below 0", "Missing", "Access Denied",
                             "Name Conflict", "left aside", "content changed hands"})
        EXPECT_GT(met[what], 20) << what;
    EXPECT_LT(met["endless"], 60);
}

// Codes that come to the same for a row.
int Kind_OfCode(int code)
{
    if (code == 2 || code == 3 || code == 1026)
        return 53;
    if (code == 5 || code == 32)
        return 75;
    return code == 123 || code == 183 ? 58 : code;
}

TEST(RandomList, The_disks_of_model_and_tests_agree_on_renames)
{
    ForEachTask([](const NnTask& task, std::uint32_t seed) {
        if (task.Rows.empty())
            return;
        MemoryDisk disk(Task_Flavour(task));
        Task_ToDisk(task, disk);
        ModelDisk model(task);
        for (std::size_t i = 0; i < task.Rows.size(); ++i) {
            const Row& row = task.Rows[i];
            const Row& other = task.Rows[(i * 7 + 3) % task.Rows.size()];
            for (const std::string& name :
                 {other.Name, points::Upper(row.Name), "0" + other.Name, other.Name + ". "}) {
                const bool exists = disk.Exists(row.Path + name);
                EXPECT_EQ(exists, model.Exists(row.Path, name)) << row.Path << name;
                const int code =
                    disk.SHFileOperationA({foRename, row.Path + row.Name, row.Path + name, 20});
                EXPECT_EQ(Kind_OfCode(code), Kind_OfCode(model.Rename(row.Path, row.Name, name)))
                    << row.Path << row.Name << " -> " << name;
            }
        }
        EXPECT_EQ(Task_FromDisk(task, disk), model.Contents()) << seed << "\n" << Task_Text(task);
    });
}

} // namespace tavo::model
