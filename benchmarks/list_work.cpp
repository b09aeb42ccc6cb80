#include "core/screens.h"
#include "renamelist/act_run.h"
#include "renamelist/rename_list.h"
#include "stand.h"
#include "toolkit/text.h"
#include "work.h"

#include <algorithm>
#include <random>

namespace tavo::bench {

namespace {

constexpr int manyRows = 1'000'000;
constexpr double msPerSecond = 1000, usPerSecond = 1e6;

// The names in a random order that is the same in every run.
std::vector<std::string> ShuffledNames(int count)
{
    std::vector<std::string> names;
    for (int number = 1; number <= count; ++number)
        names.push_back(Row_Name(number));
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    return names;
}

// Words of random letters in both cases, some the same but for the case.
std::vector<std::string> RandomNames(int count)
{
    std::mt19937 random(2);
    std::uniform_int_distribution<int> letter('a', 'z'), length(4, 24), capital(0, 9);
    std::vector<std::string> names;
    for (int number = 0; number < count; ++number) {
        std::string name;
        for (int left = length(random); left > 0; --left) {
            const auto sign = static_cast<char>(letter(random));
            name += capital(random) == 0 ? static_cast<char>(sign - 'a' + 'A') : sign;
        }
        names.push_back(name + ".jpg");
    }
    return names;
}

bool IsSorted(const ListView& list)
{
    for (int row = 2; row <= list.Count(); ++row)
        if (FoldCase(list.Text(row - 1)) > FoldCase(list.Text(row)))
            return false;
    return true;
}

void Sort_Measure(Plan& plan, Stand& stand, const std::string& work,
                  const std::vector<std::string>& names)
{
    if (!plan.Wants(work))
        return;
    Note(work);
    ListView& list = stand.Renames;
    const auto refill = [&] {
        list.SetSorted(false);
        stand.FillRows(static_cast<int>(names.size()));
        const ListFreezeGuard freeze(list);
        for (std::size_t index = 0; index < names.size(); ++index)
            list.SetCell(static_cast<int>(index) + 1, stand.P.state.colName, names[index]);
    };
    std::vector<std::string> texts;
    const Pair pair =
        Measure(plan,
                {refill,
                 [&] {
                     list.SetSortKey(stand.P.state.colName);
                     list.SetSorted(true);
                 }},
                {[&] { texts = names; }, [&] { std::stable_sort(texts.begin(), texts.end()); }});
    list.SetSorted(false);
    Require(IsSorted(list), "the rows were not sorted");
    plan.Results.push_back({work, pair.Tavo * msPerSecond, pair.Limit * msPerSecond, "ms", 1.0});
}

void Find_Measure(Plan& plan, Stand& stand)
{
    const std::string found = "FindItem in 1,000,000 rows, found";
    const std::string missing = "FindItem in 1,000,000 rows, not found";
    if (!plan.Wants(found) && !plan.Wants(missing))
        return;
    Note(found);
    constexpr int asked = 100'000;
    stand.FillRows(manyRows);
    std::vector<std::string> there = ShuffledNames(manyRows), elsewhere;
    there.resize(asked);
    for (const std::string& name : there)
        elsewhere.push_back("x" + name);
    const ListView& list = stand.Renames;
    const double index = Seconds(plan.By, [&] { list.FindItem("nothing"); });
    Note("  the index was built in " + std::to_string(index * msPerSecond) + " ms");
    const auto ask = [&](const std::vector<std::string>& names, int wanted) {
        int count = 0;
        for (const std::string& name : names)
            count += list.FindItem(name) > 0 ? 1 : 0;
        Require(count == wanted, "FindItem found others than it should");
    };
    const double yes = Measure(plan, {{}, [&] { ask(there, asked); }});
    const double no = Measure(plan, {{}, [&] { ask(elsewhere, 0); }});
    plan.Results.push_back({found, yes / asked * usPerSecond, 0, "us", 2});
    plan.Results.push_back({missing, no / asked * usPerSecond, 0, "us", 2});
}

// Takes every tenth row off.
double Remove_Seconds(const Plan& plan, Stand& stand, int rows)
{
    const auto ready = [&] {
        stand.FillRows(rows);
        stand.Renames.SetAllSelected(false);
        const ListFreezeGuard freeze(stand.Renames);
        for (int row = 10; row <= rows; row += 10)
            stand.Renames.SetSelected(row, true);
    };
    const double seconds = Measure(plan, {ready, [&] { Act_Run(stand.P, actRemove); }});
    Require(stand.Renames.Count() == rows - rows / 10, "other rows were removed");
    return seconds;
}

// Takes the first rows to the end.
double Move_Seconds(const Plan& plan, Stand& stand, int rows, int moved)
{
    const auto ready = [&] {
        stand.FillRows(rows);
        stand.Renames.SetAllSelected(false);
        const ListFreezeGuard freeze(stand.Renames);
        for (int row = 1; row <= moved; ++row)
            stand.Renames.SetSelected(row, true);
    };
    const double seconds =
        Measure(plan, {ready, [&] { Ren_Rows_MoveSelected(stand.P, rows - moved, true); }});
    Require(stand.Renames.Text(rows) == Row_Name(moved)
                && stand.Renames.Text(1) == Row_Name(moved + 1),
            "the rows were not moved");
    return seconds;
}

// What a person waits for at each row clicked and each letter typed, with all
// rows selected, the last one in hand.
void Preview_Measure(Plan& plan, Stand& stand)
{
    const std::string click = "click on one of 1,000,000 rows, with its outcome";
    const std::string letter = "letter typed in a template, the same rows";
    if (!plan.Wants(click) && !plan.Wants(letter))
        return;
    Note(click);
    constexpr int asked = 1000;
    stand.FillRows(manyRows);
    FrmMain& main = stand.P.main;
    Screen_Show(stand.P, screenRename, false);
    Mode_Set(stand.P, modeNameNumber);
    stand.P.state.nnAutoFill = 0;
    stand.Renames.SetAllSelected(true);
    TextBox& box = main.txtNameNum[nnName];
    box.Text = "<ON>_<#>_";
    const auto outcome = [&] { return main.stbMain.Panel(2); };
    const double clicked =
        Measure(plan, {{}, [&] {
                           for (int row = manyRows; row > manyRows - asked; --row)
                               stand.Renames.PersonClicked(row);
                       }});
    Require(stand.P.state.CurRow == std::to_string(manyRows - asked + 1), "no row was clicked");
    const double typed = Measure(plan, {[&] { box.Text = "<ON>_<#>_"; },
                                        [&] {
                                            for (int key = 0; key < asked; ++key)
                                                main.PersonKey(&box, Key_FromChar(U'x'));
                                        }});
    Require(outcome().find("xxx") != std::string::npos, "no outcome was shown");
    plan.Results.push_back({click, clicked / asked * usPerSecond, 0, "us", 1000});
    plan.Results.push_back({letter, typed / asked * usPerSecond, 0, "us", 1000});
}

template <class Timed>
void Growth_Measure(Plan& plan, const std::string& work, Timed timed)
{
    if (!plan.Wants(work))
        return;
    Note(work);
    const double few = timed(manyRows / 10), many = timed(manyRows);
    plan.Results.push_back({work, many * msPerSecond, 0, "ms", 100});
    plan.Results.push_back(
        {"  against a tenth of the rows", many * msPerSecond, few * msPerSecond, "ms", 11});
}

void Memory_Measure(Plan& plan, const std::string& folder)
{
    const std::string work = "memory of a row with everything in it";
    if (!plan.Wants(work))
        return;
    Note(work);
    Stand stand(folder);
    const double before = HeapBytes();
    stand.FillRows(manyRows);
    const SharedState& s = stand.P.state;
    {
        const ListFreezeGuard freeze(stand.Renames);
        for (int row = 1; row <= manyRows; ++row) {
            stand.Renames.SetCell(row, s.colUndoName, Row_Name(row));
            stand.Renames.SetCell(row, s.colName, "IMG_" + Row_Name(row));
            stand.Renames.SetCell(row, s.colErrors, row % 10 == 0 ? "Name Conflict" : "");
        }
    }
    const double rows = HeapBytes() - before;
    stand.Renames.FindItem("");
    const double indexed = HeapBytes() - before;
    plan.Results.push_back({work, rows / manyRows, 0, "B", 256});
    plan.Results.push_back({"  and with the index of FindItem", indexed / manyRows, 0, "B", 256});
}

} // namespace

void Lists_Measure(Plan& plan)
{
    Memory_Measure(plan, plan.Folder);
    Stand stand(plan.Folder);
    Sort_Measure(plan, stand, "sort 1,000,000 rows by Name, numbered", ShuffledNames(manyRows));
    Sort_Measure(plan, stand, "sort 1,000,000 rows by Name, random words", RandomNames(manyRows));
    Find_Measure(plan, stand);
    Preview_Measure(plan, stand);
    Growth_Measure(plan, "remove 100,000 of 1,000,000 rows",
                   [&](int rows) { return Remove_Seconds(plan, stand, rows); });
    Growth_Measure(plan, "move 1,000 of 1,000,000 rows to the other end",
                   [&](int rows) { return Move_Seconds(plan, stand, rows, 1000); });
}

} // namespace tavo::bench
