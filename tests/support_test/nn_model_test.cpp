#include "support/nn_model.h"

#include <gtest/gtest.h>

namespace tavo::model {

namespace {

Row Row_Of(const std::string& name, bool selected = false)
{
    return {"/d/", name, selected, "", "", ""};
}

// A task on names in one folder, each with a file whose content is its place.
NnTask Task_Of(const std::vector<std::string>& names, const std::string& nameTemplate,
               const std::string& extTemplate, int preList = 1)
{
    NnTask task;
    task.NameTemplate = nameTemplate;
    task.ExtTemplate = extTemplate;
    task.PreList = preList;
    for (const auto& name : names) {
        task.Rows.push_back(Row_Of(name));
        task.Files["/d/" + name] = static_cast<int>(task.Rows.size());
    }
    return task;
}

std::vector<std::string> Names(const NnOutcome& outcome)
{
    std::vector<std::string> names;
    for (const Row& row : outcome.Rows)
        names.push_back(row.Name);
    return names;
}

std::vector<std::string> UndoNames(const NnOutcome& outcome)
{
    std::vector<std::string> names;
    for (const Row& row : outcome.Rows)
        names.push_back(row.UndoName);
    return names;
}

std::vector<int> Counters(const NnOutcome& outcome)
{
    return {outcome.Renamed, outcome.Errors, outcome.Unnecessary};
}

using Texts = std::vector<std::string>;
using Numbers = std::vector<int>;

} // namespace

struct CounterCase {
    const char* What;
    int Value, Style, Digits;
    const char* Wanted;
};

TEST(NnModel, Counters_are_padded_to_their_digits)
{
    const CounterCase cases[] = {
        {"three digits", 1, 1, 3, "001"},
        {"outgrown", 1000, 1, 3, "1000"},
        {"digits 9", 5, 1, 9, "000000005"},
        {"letters from 0", 0, 2, 1, "a"},
        {"b", 1, 2, 3, "aab"},
        {"z", 25, 2, 3, "aaz"},
        {"no carry to aa", 26, 2, 1, "ba"},
        {"701", 701, 2, 1, "baz"},
        {"capital", 26, 3, 3, "ABA"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Counter_Text(row.Value, row.Style, row.Digits), row.Wanted) << row.What;
}

struct StartCase {
    const char* Text;
    int Style, Wanted;
};

TEST(NnModel, Start_texts_are_numbers_or_letters)
{
    const StartCase cases[] = {{"1", 1, 1}, {"007", 1, 7}, {"", 1, 0},      {"12ab", 1, 12},
                               {"b", 2, 1}, {"ba", 2, 26}, {"BAZ", 3, 701}, {"a", 2, 0}};
    for (const auto& row : cases)
        EXPECT_EQ(Counter_Start(row.Text, row.Style), row.Wanted) << row.Text;
}

struct ReplaceCase {
    const char *What, *Text, *Token, *Value, *Wanted;
};

TEST(NnModel, Tokens_are_replaced_in_any_case_and_searched_again)
{
    const ReplaceCase cases[] = {
        {"twice", "<ON>-<ON>", "<ON>", "a", "a-a"},
        {"lower case too", "<on><ON>", "<ON>", "a", "aa"},
        {"empty value", "x<OE>y", "<OE>", "", "xy"},
        {"what the value and the text make together", "<ON>N>", "<ON>", "<O", "<O"},
        {"a value that is the token", "<ON>", "<ON>", "<ON>", "<ON>"},
        {"a value that is the token in another case", "<ON>", "<ON>", "<on>", "<on>"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Token_Replace(row.Text, row.Token, row.Value), row.Wanted) << row.What;
}

TEST(NnModel, A_value_that_holds_its_token_outgrows_every_name)
{
    EXPECT_GT(Token_Replace("<ON>", "<ON>", "x<ON>").size(), 255u);
}

TEST(NnModel, Twelve_hundred_rows_outgrow_three_digits)
{
    Texts names;
    for (int i = 0; i < 1200; ++i)
        names.push_back("f" + std::to_string(i));
    NnTask task = Task_Of(names, "<#>", "");
    task.Digits = 3;
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(outcome.Rows[0].Name, "001");
    EXPECT_EQ(outcome.Rows[998].Name, "999");
    EXPECT_EQ(outcome.Rows[999].Name, "1000");
    EXPECT_EQ(outcome.Renamed, 1200);
}

TEST(NnModel, Letters_run_from_aab_to_aba)
{
    NnTask task = Task_Of(Texts(26, ""), "<#>", "");
    task.Rows.clear();
    task.Files.clear();
    for (int i = 0; i < 26; ++i) {
        task.Rows.push_back(Row_Of("file" + std::to_string(i)));
        task.Files["/d/file" + std::to_string(i)] = i;
    }
    task.Style = 2;
    task.Digits = 3;
    task.Start = "b";
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(outcome.Rows[0].Name, "aab");
    EXPECT_EQ(outcome.Rows[24].Name, "aaz");
    EXPECT_EQ(outcome.Rows[25].Name, "aba");
}

TEST(NnModel, PreList_1_moves_the_row_in_the_way_aside)
{
    const auto outcome = Nn_Model_Run(Task_Of({"a.txt", "1.txt"}, "<#>", "<OE>", 1));
    EXPECT_EQ(Names(outcome), (Texts{"1.txt", "2.txt"}));
    EXPECT_EQ(UndoNames(outcome), (Texts{"a.txt", "1.txt"}));
    EXPECT_EQ(Counters(outcome), (Numbers{2, 0, 0}));
    EXPECT_EQ(outcome.Files, (Disk{{"/d/1.txt", 1}, {"/d/2.txt", 2}}));
}

TEST(NnModel, PreList_0_counts_the_row_in_the_way_as_unnecessary)
{
    const auto outcome = Nn_Model_Run(Task_Of({"a.txt", "1.txt"}, "<#>", "<OE>", 0));
    EXPECT_EQ(Names(outcome), (Texts{"a.txt", "1.txt"}));
    EXPECT_EQ(UndoNames(outcome), (Texts{"", ""}));
    EXPECT_EQ(outcome.Rows[0].Errors, "Name Conflict");
    // The first row does not run again, so its error is taken back for good.
    EXPECT_EQ(Counters(outcome), (Numbers{0, 0, 1}));
}

TEST(NnModel, PreList_0_gives_the_row_in_the_way_the_name_in_another_case)
{
    NnTask task = Task_Of({"a.TXT", "X1.txt"}, "x<#>", "txt", 0);
    task.CaseBlind = true;
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(Names(outcome), (Texts{"x2.txt", "x1.txt"}));
    EXPECT_EQ(Counters(outcome), (Numbers{2, 0, 0}));
    EXPECT_EQ(outcome.Files, (Disk{{"/d/x1.txt", 2}, {"/d/x2.txt", 1}}));
}

TEST(NnModel, Two_files_swap_their_names)
{
    const auto outcome = Nn_Model_Run(Task_Of({"2.txt", "1.txt"}, "<#>", "<OE>", 1));
    EXPECT_EQ(Names(outcome), (Texts{"1.txt", "2.txt"}));
    EXPECT_EQ(outcome.Files, (Disk{{"/d/1.txt", 1}, {"/d/2.txt", 2}}));
    EXPECT_EQ(Counters(outcome), (Numbers{2, 0, 0}));
}

TEST(NnModel, A_shift_by_one_moves_each_row_aside_once)
{
    const auto outcome = Nn_Model_Run(Task_Of({"2", "3", "4", "5"}, "<#>", "", 1));
    EXPECT_EQ(Names(outcome), (Texts{"1", "2", "3", "4"}));
    const auto back = Nn_Model_Run(Task_Of({"0", "1", "2", "3"}, "<#>", "", 1));
    EXPECT_EQ(Names(back), (Texts{"1", "2", "3", "4"}));
    EXPECT_EQ(UndoNames(back), (Texts{"0", "1", "2", "3"}));
    EXPECT_EQ(Counters(back), (Numbers{4, 0, 0}));
}

TEST(NnModel, A_row_moved_aside_gives_its_name_the_leading_0)
{
    const auto outcome = Nn_Model_Run(Task_Of({"a", "a_1"}, "<ON>_<#>", "", 1));
    EXPECT_EQ(Names(outcome), (Texts{"a_1", "0a_1_2"}));
    EXPECT_EQ(UndoNames(outcome), (Texts{"a", "a_1"}));
}

TEST(NnModel, Taken_temporary_names_are_passed_over_up_to_8)
{
    NnTask task = Task_Of({"a", "1"}, "<#>", "", 1);
    for (const char* digit : {"0", "1", "2"})
        task.Files["/d/" + std::string(digit) + "1"] = 90;
    const auto free = Nn_Model_Run(task);
    EXPECT_EQ(Names(free), (Texts{"1", "2"}));
    EXPECT_EQ(Counters(free), (Numbers{2, 0, 0}));

    for (int digit = 3; digit <= 8; ++digit)
        task.Files["/d/" + std::to_string(digit) + "1"] = 90;
    const auto full = Nn_Model_Run(task);
    EXPECT_EQ(Names(full), (Texts{"a", "1"}));
    EXPECT_EQ(full.Rows[0].Errors, "Name Conflict");
    EXPECT_EQ(full.Rows[1].Errors, "Name Conflict");
    // The second row has its right name, but the conflict before it still
    // stands: it is counted out once more for being in its own way.
    EXPECT_EQ(Counters(full), (Numbers{0, -1, 1}));
}

TEST(NnModel, A_file_outside_the_list_stays_a_conflict)
{
    NnTask task = Task_Of({"a", "b"}, "<#>", "", 1);
    task.Files["/d/1"] = 50;
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(Names(outcome), (Texts{"a", "b"}));
    EXPECT_EQ(Counters(outcome), (Numbers{0, 2, 0}));
    EXPECT_EQ(outcome.Rows[1].Errors, "Name Conflict");
}

TEST(NnModel, A_row_outside_the_selection_is_not_moved)
{
    NnTask task = Task_Of({"a", "1", "b"}, "<#>", "", 1);
    task.SelectedOnly = true;
    task.Rows[0].Selected = task.Rows[2].Selected = true;
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(Names(outcome), (Texts{"a", "1", "b"}));
    EXPECT_EQ(Counters(outcome), (Numbers{0, 2, 0}));
}

TEST(NnModel, Only_a_row_of_the_same_folder_blocks)
{
    NnTask task = Task_Of({"a", "1"}, "<#>", "", 1);
    task.Rows[1].Path = "/e/";
    task.Files = {{"/d/a", 1}, {"/e/1", 2}, {"/d/1", 3}};
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(outcome.Rows[0].Name, "a");
    EXPECT_EQ(outcome.Rows[0].Errors, "Name Conflict");
    EXPECT_EQ(outcome.Files.at("/d/1"), 3);
}

TEST(NnModel, A_row_with_another_error_uses_up_no_number)
{
    NnTask task = Task_Of({"a", "b", "c"}, "<#>", "", 1);
    task.Files.erase("/d/a");
    task.InUse = {"/d/b"};
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(Names(outcome), (Texts{"a", "b", "1"}));
    EXPECT_EQ(outcome.Rows[0].Errors, "Missing");
    EXPECT_EQ(outcome.Rows[1].Errors, "Access Denied");
    EXPECT_EQ(Counters(outcome), (Numbers{1, 2, 0}));
}

// "Unnecessary" leaves the code of the row before as it stood, so the row is
// taken for one in conflict and finds itself in its way.
TEST(NnModel, A_right_name_behind_a_conflict_is_moved_out_of_its_own_way)
{
    NnTask task = Task_Of({"a.txt", "1.jpg"}, "<#>", "<OE>", 1);
    task.Files["/d/1.txt"] = 50;
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(Names(outcome), (Texts{"a.txt", "01.jpg"}));
    EXPECT_EQ(UndoNames(outcome), (Texts{"", "1.jpg"}));
    EXPECT_EQ(Counters(outcome), (Numbers{0, 0, 2}));
}

TEST(NnModel, A_run_that_never_ends_is_broken_off)
{
    NnTask task = Task_Of({"x.9", "x.1"}, "<ON>", "<#>", 1);
    task.Files.erase("/d/x.9");
    EXPECT_TRUE(Nn_Model_Run(task).Endless);
    task.Files["/d/x.9"] = 1;
    EXPECT_FALSE(Nn_Model_Run(task).Endless);
}

TEST(NnModel, Without_a_counter_a_conflict_is_left_alone)
{
    const auto outcome = Nn_Model_Run(Task_Of({"a.txt", "b.txt"}, "b", "<OE>", 1));
    EXPECT_EQ(Names(outcome), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(Counters(outcome), (Numbers{0, 1, 1}));
}

TEST(NnModel, An_empty_extension_box_drops_the_extension)
{
    const auto outcome = Nn_Model_Run(Task_Of({"a.b.txt", "c"}, "<ON>", "", 1));
    EXPECT_EQ(Names(outcome), (Texts{"a.b", "c"}));
    EXPECT_EQ(outcome.Rows[0].Type, "");
    EXPECT_EQ(Counters(outcome), (Numbers{1, 0, 1}));
}

TEST(NnModel, A_folder_row_keeps_its_type_and_takes_along_what_lies_in_it)
{
    NnTask task = Task_Of({"one.d", "two"}, "<#>_<ON>", "<OE>", 1);
    task.FolderMode = true;
    task.Rows[0].Type = task.Rows[1].Type = "-";
    task.Files["/d/one.d/x"] = 7;
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(Names(outcome), (Texts{"1_one.d", "2_two"}));
    EXPECT_EQ(outcome.Rows[0].Type, "-");
    EXPECT_EQ(outcome.Files.count("/d/1_one.d/x"), 1u);
}

TEST(NnModel, A_case_only_change_reaches_the_disk)
{
    NnTask task = Task_Of({"a.txt"}, "A", "TXT", 1);
    task.CaseBlind = true;
    EXPECT_EQ(Nn_Model_Run(task).Files, (Disk{{"/d/A.TXT", 1}}));
    task.CaseBlind = false;
    task.Files["/d/A.TXT"] = 2;
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(outcome.Rows[0].Errors, "Name Conflict");
    EXPECT_EQ(outcome.Files, task.Files);
}

TEST(NnModel, An_exact_row_goes_before_one_in_another_case)
{
    const auto outcome = Nn_Model_Run(Task_Of({"1", "Xb", "XB", "xb"}, "X<#>", "", 1));
    EXPECT_EQ(Counters(outcome), (Numbers{4, 0, 0}));
    NnTask task = Task_Of({"q", "XB", "xb"}, "x<#>", "", 1);
    task.Style = 2;
    task.Start = "b";
    const auto exact = Nn_Model_Run(task);
    EXPECT_EQ(exact.Files, (Disk{{"/d/xb", 1}, {"/d/xc", 2}, {"/d/xd", 3}}));
    EXPECT_EQ(Counters(exact), (Numbers{3, 0, 0}));
}

struct NameCase {
    const char* What;
    Dialect System;
    const char *OldName, *Template;
    const char* Errors; // empty: renamed
};

TEST(NnModel, New_names_that_the_dialect_refuses)
{
    const NameCase cases[] = {
        {"tokens left", Dialect::Linux, "a", "<T>", "Name Conflict"},
        {"a colon brought in", Dialect::Linux, "a", "b:c", "Name Conflict"},
        {"a colon that was there", Dialect::Linux, "a:b", "b:c", ""},
        {"another sign than was there", Dialect::Linux, "a:b", "b:?", "Name Conflict"},
        {"empty", Dialect::Linux, "a", "", "Name Conflict"},
        {"the folder itself", Dialect::Linux, "a", ".", "Name Conflict"},
        {"the folder above", Dialect::Linux, "a", "..", "Name Conflict"},
        {"a device's name", Dialect::Linux, "a", "con", ""},
        {"a blank at the end", Dialect::Linux, "a", "b ", ""},
        {"tokens left", Dialect::Windows, "a", "<T>", "Name Conflict"},
        {"a wildcard", Dialect::Windows, "a", "*", "Name Conflict"},
        {"empty", Dialect::Windows, "a", "", "Name Conflict"},
        {"dots alone", Dialect::Windows, "a", "..", "Name Conflict"},
        {"a device's name", Dialect::Windows, "a", "Nul .x", "Name Conflict"},
        {"a port's number that is none", Dialect::Windows, "a", "com0", ""},
        {"the same but for a dot", Dialect::Windows, "a", "a.", "Name Conflict"},
        {"a blank at the end", Dialect::Windows, "a", "b ", ""},
    };
    for (const auto& row : cases) {
        NnTask task = Task_Of({row.OldName}, row.Template, "", 1);
        task.System = row.System;
        const auto outcome = Nn_Model_Run(task);
        EXPECT_EQ(outcome.Rows[0].Errors, row.Errors) << row.What;
        EXPECT_EQ(outcome.Renamed, *row.Errors ? 0 : 1) << row.What;
    }
}

TEST(NnModel, Names_over_255_bytes_are_conflicts)
{
    const std::string longest(255, 'x');
    EXPECT_EQ(Nn_Model_Run(Task_Of({"a"}, longest, "")).Renamed, 1);
    EXPECT_EQ(Nn_Model_Run(Task_Of({"a"}, longest + "x", "")).Rows[0].Errors, "Name Conflict");
}

// Of 255 bytes in letters of two, 253 would begin inside a letter.
TEST(NnModel, A_temporary_name_is_cut_in_front_and_splits_no_character)
{
    std::string base = "y", cut;
    for (int i = 0; i < 126; ++i)
        base += "\u00e4";
    for (int i = 0; i < 125; ++i)
        cut += "\u00e4";
    NnTask task = Task_Of({"a", base + "1x"}, base, "", 1);
    task.NameTemplate = base + "<#>x";
    task.InUse = {"/d/a"};
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(Names(outcome), (Texts{"a", "0" + cut + "1x"}));
    EXPECT_EQ(outcome.Rows[0].Errors, "Access Denied");
}

TEST(NnModel, An_old_run_leaves_nothing_behind)
{
    NnTask task = Task_Of({"a", "b"}, "<ON>", "", 1);
    task.Rows[1].UndoName = "old";
    task.Rows[1].Errors = "Missing";
    task.SelectedOnly = true;
    const auto outcome = Nn_Model_Run(task);
    EXPECT_EQ(outcome.Rows[1].UndoName, "");
    EXPECT_EQ(outcome.Rows[1].Errors, "");
    EXPECT_EQ(Counters(outcome), (Numbers{0, 0, 0}));
}

} // namespace tavo::model
