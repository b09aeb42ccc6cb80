#include "renamelist/nn_run.h"

#include "renamelist/act_run.h"
#include "support/disk_ground.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class NnRun : public ::testing::TestWithParam<Ground> {
protected:
    NnRun() : ground(GetParam()), p(ground.P), s(ground.P.state) {}

    bool IsBlind() const
    {
        return GetParam() == Ground::Windows || GetParam() == Ground::CaseBlindStick;
    }
    Texts Names() const { return ground.G.Names(); }
    Texts Undo() const { return ground.G.Column("UndoName"); }
    Texts Errors() const { return ground.G.Column("Errors"); }

    DiskGround ground;
    Program& p;
    SharedState& s;
};

INSTANTIATE_TEST_SUITE_P(OnEveryDisk, NnRun, ::testing::ValuesIn(everyGround),
                         [](const auto& test) { return Ground_Name(test.param); });

struct RunCase {
    const char* What;
    Texts Rows; // names in the order of the list, in folder d if none is told
    const char *Name, *Ext;
    int PreList = 1;
    std::vector<int> Selected = {}; // none: all rows run
    Texts Outside = {};             // files that are no rows
    Texts Missing = {};             // rows whose files are gone
    std::string Start = "1";
    // What comes of it.
    Texts Names, Undo, Errors;
    const char* Counts;
};

const Texts nothing2{"", ""}, nothing3{"", "", ""};

const RunCase runCases[] = {
    {.What = "numbers in the order of the list",
     .Rows = {"b.txt", "a.jpg"},
     .Name = "x<#>",
     .Ext = "<OE>",
     .Names = {"x1.txt", "x2.jpg"},
     .Undo = {"b.txt", "a.jpg"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "an empty extension box drops the extension",
     .Rows = {"a.txt", "b.tar.gz"},
     .Name = "<ON>",
     .Ext = "",
     .Names = {"a", "b.tar"},
     .Undo = {"a.txt", "b.tar.gz"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "a file without an extension gets none",
     .Rows = {"README", ".profile"},
     .Name = "<ON>_<#>",
     .Ext = "<OE>",
     .Names = {"README_1", "_2.profile"},
     .Undo = {"README", ".profile"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "the counter in the extension alone",
     .Rows = {"a.txt", "b.txt"},
     .Name = "<ON>",
     .Ext = "<#>",
     .Names = {"a.1", "b.2"},
     .Undo = {"a.txt", "b.txt"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "the row in the way is moved aside",
     .Rows = {"a.txt", "1.txt"},
     .Name = "<#>",
     .Ext = "<OE>",
     .Names = {"1.txt", "2.txt"},
     .Undo = {"a.txt", "1.txt"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "the row in the way keeps its number where the list does not count",
     .Rows = {"a.txt", "1.txt"},
     .Name = "<#>",
     .Ext = "<OE>",
     .PreList = 0,
     .Names = {"a.txt", "1.txt"},
     .Undo = nothing2,
     .Errors = {"Name Conflict", ""},
     .Counts = "//1"},
    {.What = "a chain: each name is that of the next row",
     .Rows = {"0", "1", "2"},
     .Name = "<#>",
     .Ext = "",
     .Names = {"1", "2", "3"},
     .Undo = {"0", "1", "2"},
     .Errors = nothing3,
     .Counts = "3//"},
    {.What = "a swap",
     .Rows = {"2", "1"},
     .Name = "<#>",
     .Ext = "",
     .Names = {"1", "2"},
     .Undo = {"2", "1"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "a row moved aside brings its temporary name along",
     .Rows = {"a", "a_1"},
     .Name = "<ON>_<#>",
     .Ext = "",
     .Names = {"a_1", "0a_1_2"},
     .Undo = {"a", "a_1"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "temporary names that are taken are passed over",
     .Rows = {"a", "1"},
     .Name = "<#>",
     .Ext = "",
     .Outside = {"01", "11", "21"},
     .Names = {"1", "2"},
     .Undo = {"a", "1"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "nine temporary names are tried, the tenth is not",
     .Rows = {"a", "1"},
     .Name = "<#>",
     .Ext = "",
     .Outside = {"01", "11", "21", "31", "41", "51", "61", "71", "81"},
     .Names = {"a", "1"},
     .Undo = nothing2,
     .Errors = {"Name Conflict", "Name Conflict"},
     .Counts = "//1"},
    {.What = "the ninth temporary name is taken",
     .Rows = {"a", "1"},
     .Name = "<#>",
     .Ext = "",
     .Outside = {"01", "11", "21", "31", "41", "51", "61", "71"},
     .Names = {"1", "2"},
     .Undo = {"a", "1"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "a file that is no row stays, and all rows want its name",
     .Rows = {"a", "b"},
     .Name = "<#>",
     .Ext = "",
     .Outside = {"1"},
     .Names = {"a", "b"},
     .Undo = nothing2,
     .Errors = {"Name Conflict", "Name Conflict"},
     .Counts = "/2/"},
    {.What = "a selected row in the way is moved aside",
     .Rows = {"x", "a", "1"},
     .Name = "<#>",
     .Ext = "",
     .Selected = {2, 3},
     .Names = {"x", "1", "2"},
     .Undo = {"", "a", "1"},
     .Errors = nothing3,
     .Counts = "2//"},
    {.What = "a row outside the selection cannot be moved",
     .Rows = {"1", "a", "b"},
     .Name = "<#>",
     .Ext = "",
     .Selected = {2, 3},
     .Names = {"1", "a", "b"},
     .Undo = nothing3,
     .Errors = {"", "Name Conflict", "Name Conflict"},
     .Counts = "/2/"},
    {.What = "errors use no number",
     .Rows = {"a", "gone", "c"},
     .Name = "x<#>",
     .Ext = "",
     .Missing = {"gone"},
     .Names = {"x1", "gone", "x2"},
     .Undo = {"a", "", "c"},
     .Errors = {"", "Missing", ""},
     .Counts = "2/1/"},
    {.What = "a name that is right already uses its number",
     .Rows = {"x1", "b"},
     .Name = "x<#>",
     .Ext = "",
     .Names = {"x1", "x2"},
     .Undo = {"", "b"},
     .Errors = nothing2,
     .Counts = "1//1"},
    // The failure of the row before stands, so the number is not used up, and
    // the list position of the right row is marked as done.
    {.What = "a right name behind a failure uses none",
     .Rows = {"e/gone", "1", "b"},
     .Name = "<#>",
     .Ext = "",
     .Missing = {"e/gone"},
     .Names = {"gone", "1", "b"},
     .Undo = nothing3,
     .Errors = {"Missing", "", "Name Conflict"},
     .Counts = "/1/1"},
    // The same in a selection: done by walk is not done by list, and the right
    // row has to make way.
    {.What = "a right name behind a failure makes way in a selection",
     .Rows = {"x", "e/gone", "1", "b"},
     .Name = "<#>",
     .Ext = "",
     .Selected = {2, 3, 4},
     .Missing = {"e/gone"},
     .Names = {"x", "gone", "01", "1"},
     .Undo = {"", "", "1", "b"},
     .Errors = {"", "Missing", "", ""},
     .Counts = "1/1/1"},
    // Marked by its list position, asked by its walk position: it runs again,
    // still finds the conflict of the row before, and takes that for its own.
    {.What = "a row that keeps its number runs again in a selection",
     .Rows = {"x", "a", "1"},
     .Name = "<#>",
     .Ext = "",
     .PreList = 0,
     .Selected = {2, 3},
     .Names = {"x", "a", "1"},
     .Undo = nothing3,
     .Errors = {"", "Name Conflict", ""},
     .Counts = "//2"},
    {.What = "a number that is kept is not counted on",
     .Rows = {"b", "1", "2"},
     .Name = "<#>",
     .Ext = "",
     .PreList = 0,
     .Names = {"b", "1", "2"},
     .Undo = nothing3,
     .Errors = {"Name Conflict", "", "Name Conflict"},
     .Counts = "//1"},
    {.What = "small tokens stay where no capital one stands, and no name takes them",
     .Rows = {"a.txt", "b.txt"},
     .Name = "<on>",
     .Ext = "<OE>",
     .Names = {"a.txt", "b.txt"},
     .Undo = nothing2,
     .Errors = {"Name Conflict", "Name Conflict"},
     .Counts = "/2/"},
    {.What = "small tokens go along with a capital one",
     .Rows = {"a.txt", "b.txt"},
     .Name = "<on>-<ON>",
     .Ext = "<OE>",
     .Names = {"a-a.txt", "b-b.txt"},
     .Undo = {"a.txt", "b.txt"},
     .Errors = nothing2,
     .Counts = "2//"},
    {.What = "tokens of a tag stay in the name, and no name takes them",
     .Rows = {"a.mp3"},
     .Name = "<T>_<#>",
     .Ext = "<OE>",
     .Names = {"a.mp3"},
     .Undo = {""},
     .Errors = {"Name Conflict"},
     .Counts = "/1/"},
    // It takes the conflict of the row before for its own and makes way for
    // itself; then its first name counts as right.
    {.What = "a right name behind a conflict is left aside",
     .Rows = {"e/a", "x1", "c"},
     .Name = "x<#>",
     .Ext = "",
     .Outside = {"e/x1"},
     .Names = {"a", "0x1", "x2"},
     .Undo = {"", "x1", "c"},
     .Errors = {"Name Conflict", "", ""},
     .Counts = "1/1/2"},
    // The row that is gone is in nobody's way, but its target is.
    {.What = "a row makes way for one that is gone",
     .Rows = {"gone", "1", "b"},
     .Name = "<#>",
     .Ext = "",
     .Missing = {"gone"},
     .Names = {"gone", "01", "1"},
     .Undo = {"", "1", "b"},
     .Errors = {"Missing", "", ""},
     .Counts = "1/1/1"},
    {.What = "without a counter a conflict stays one",
     .Rows = {"a.1", "a.2"},
     .Name = "<ON>",
     .Ext = "",
     .Names = {"a", "a.2"},
     .Undo = {"a.1", ""},
     .Errors = {"", "Name Conflict"},
     .Counts = "1/1/"},
    {.What = "without a counter a right name is unnecessary",
     .Rows = {"a", "b.txt"},
     .Name = "<ON>",
     .Ext = "",
     .Names = {"a", "b"},
     .Undo = {"", "b.txt"},
     .Errors = nothing2,
     .Counts = "1//1"},
    {.What = "an empty name",
     .Rows = {"a", "b"},
     .Name = "<OE>",
     .Ext = "",
     .Names = {"a", "b"},
     .Undo = nothing2,
     .Errors = {"Name Conflict", "Name Conflict"},
     .Counts = "/2/"},
};

bool Contains(const Texts& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::string InFolder(const std::string& row)
{
    return row.find('/') == row.npos ? "d/" + row : row;
}

Texts InFolder(Texts rows)
{
    for (std::string& row : rows)
        row = InFolder(row);
    return rows;
}

} // namespace

TEST_P(NnRun, Each_row_ends_as_the_rules_have_it)
{
    for (const RunCase& wanted : runCases) {
        SCOPED_TRACE(wanted.What);
        DiskGround own(GetParam());
        own.Load(InFolder(wanted.Rows));
        for (const std::string& name : wanted.Outside)
            own.AddFile(InFolder(name));
        for (const std::string& name : wanted.Missing)
            own.Remove(InFolder(name));
        own.G.SetTemplates(wanted.Name, wanted.Ext);
        own.SetCounter(wanted.Start, 1);
        own.P.state.PreList = static_cast<std::int16_t>(wanted.PreList);

        if (wanted.Selected.empty())
            own.RunAll();
        else
            own.RunSelected(wanted.Selected);

        EXPECT_EQ(own.G.Names(), wanted.Names);
        EXPECT_EQ(own.G.Column("UndoName"), wanted.Undo);
        EXPECT_EQ(own.G.Column("Errors"), wanted.Errors);
        EXPECT_EQ(own.Counts(), wanted.Counts);
        for (std::size_t i = 0; i < wanted.Rows.size(); ++i) {
            const std::string row = InFolder(wanted.Rows[i]);
            const std::string folder = row.substr(0, row.rfind('/') + 1);
            const std::string content = Contains(wanted.Missing, wanted.Rows[i]) ? "" : row;
            EXPECT_EQ(own.ContentOf(folder + wanted.Names[i]), content);
        }
        for (const std::string& name : wanted.Outside)
            EXPECT_EQ(own.ContentOf(InFolder(name)), InFolder(name));
    }
}

// -- Counters.

TEST_P(NnRun, Numbers_outgrow_their_width)
{
    Texts rows;
    for (int i = 1; i <= 1200; ++i)
        rows.push_back("d/file" + std::to_string(10000 + i));
    ground.Load(rows);
    ground.G.SetTemplates("<#>", "");
    ground.SetCounter("1", 3);
    ground.RunAll();

    const Texts names = Names();
    EXPECT_EQ(names.front(), "001");
    EXPECT_EQ(names[998], "999");
    EXPECT_EQ(names[999], "1000");
    EXPECT_EQ(names.back(), "1200");
    EXPECT_EQ(ground.Counts(), "1200//");
    for (std::size_t i = 0; i < rows.size(); ++i)
        ASSERT_EQ(ground.ContentOf("d/" + names[i]), rows[i]);
}

TEST_P(NnRun, Letters_count_on_with_a_for_zero)
{
    Texts rows;
    for (int i = 0; i < 26; ++i)
        rows.push_back("d/" + std::to_string(100 + i));
    ground.Load(rows);
    ground.G.SetTemplates("<#>", "");
    ground.SetCounter("b", 3, 2);
    ground.RunAll();
    const Texts names = Names();
    EXPECT_EQ(names[0], "aab");
    EXPECT_EQ(names[1], "aac");
    EXPECT_EQ(names[24], "aaz");
    EXPECT_EQ(names[25], "aba");

    ground.SetCounter("Y", 3, 3);
    ground.G.SetTemplates("x<#>", "");
    ground.RunAll();
    EXPECT_EQ(Names()[0], "xAAY");
    EXPECT_EQ(Names()[2], "xABA");
}

TEST_P(NnRun, Nine_digits_are_eight_zeros_and_a_digit)
{
    ground.Load({"d/a", "d/b"});
    ground.G.SetTemplates("<#>", "");
    ground.SetCounter("9", 9);
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"000000009", "000000010"}));
}

// -- What stands in the way.

TEST_P(NnRun, A_row_of_another_folder_is_never_in_the_way)
{
    ground.Load({"d/a", "e/1"});
    ground.AddFile("d/1");
    ground.G.SetTemplates("<#>", "");
    ground.RunSelected({1});
    EXPECT_EQ(Errors(), (Texts{"Name Conflict", ""}));
    ground.G.Select({1, 2});
    ground.SetCounter("2", 1);
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"2", "3"}));
    EXPECT_EQ(ground.ContentOf("e/3"), "e/1");
    EXPECT_EQ(ground.ContentOf("d/1"), "d/1");
}

TEST_P(NnRun, The_same_name_in_two_folders_is_no_conflict)
{
    ground.Load({"d/1", "e/1", "e/2"});
    ground.G.SetTemplates("<#>", "");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"1", "2", "3"}));
    EXPECT_EQ(ground.ContentOf("e/2"), "e/1");
    EXPECT_EQ(ground.ContentOf("e/3"), "e/2");
}

TEST_P(NnRun, A_name_in_another_case_is_in_the_way_where_the_disk_says_so)
{
    ground.Load({"d/b", "d/X1"});
    ground.G.SetTemplates("x<#>", "");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"x1", "x2"}));
    EXPECT_EQ(Undo(), (Texts{"b", "X1"}));
    EXPECT_EQ(ground.ContentOf("d/x1"), "d/b");
    EXPECT_EQ(ground.ContentOf("d/x2"), "d/X1");
}

TEST_P(NnRun, Where_the_list_does_not_count_a_row_gets_the_name_in_its_own_case)
{
    ground.Load({"d/b", "d/X1"});
    ground.G.SetTemplates("x<#>", "");
    s.PreList = 0;
    ground.RunAll();
    if (IsBlind()) {
        EXPECT_EQ(Names(), (Texts{"x2", "x1"}));
        EXPECT_EQ(ground.ContentOf("d/x1"), "d/X1");
    } else {
        EXPECT_EQ(Names(), (Texts{"x1", "x2"}));
    }
    EXPECT_EQ(ground.Counts(), "2//");
}

TEST_P(NnRun, Of_two_rows_that_match_the_one_of_the_same_case_is_moved)
{
    if (IsBlind())
        return; // such a disk cannot hold both
    ground.Load({"d/b", "d/X1", "d/x1"});
    ground.G.SetTemplates("x<#>", "");
    ground.RunSelected({1});
    EXPECT_EQ(Errors(), (Texts{"Name Conflict", "", ""}));
    ground.RunSelected({1, 3});
    EXPECT_EQ(Names(), (Texts{"x1", "X1", "x2"}));
    EXPECT_EQ(ground.ContentOf("d/X1"), "d/X1");
}

TEST_P(NnRun, A_change_of_case_alone_is_a_rename)
{
    ground.Load({"d/a1.txt", "d/A2.txt"});
    ground.G.SetTemplates("A<#>", "TXT");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"A1.TXT", "A2.TXT"}));
    EXPECT_EQ(ground.G.Column("Type"), (Texts{"TXT", "TXT"}));
    EXPECT_EQ(ground.ContentOf("d/A1.TXT"), "d/a1.txt");
}

// The row that was to have its name fails for another reason, so it stands
// under a temporary name that is its new one, too. To move it aside for itself
// would go on for ever.
TEST_P(NnRun, A_row_in_its_own_way_ends_as_a_conflict)
{
    if (ground.Memory() == nullptr)
        return; // needs a file that is in use
    ground.Load({"d/x.a", "d/x.2"});
    ground.Memory()->SetInUse(ground.Full("d/x.a"));
    ground.G.SetTemplates("<ON>", "<#>");
    ground.SetCounter("2", 1);
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"x.a", "0x.2"}));
    EXPECT_EQ(Undo(), (Texts{"", "x.2"}));
    EXPECT_EQ(Errors(), (Texts{"Access Denied", "Name Conflict"}));
    EXPECT_EQ(ground.Counts(), "/2/");
    EXPECT_EQ(ground.ContentOf("d/0x.2"), "d/x.2");
}

TEST_P(NnRun, A_long_name_is_cut_for_its_temporary_one_and_splits_no_character)
{
    if (GetParam() == Ground::Windows)
        return; // its paths are too short for such names
    std::string kept;
    for (int i = 0; i < 126; ++i)
        kept += "\u00e4";
    const std::string tail = "\u00e4" + kept; // 254 bytes
    ground.Load({"d/a", "d/1" + tail});
    std::string seen;
    ground.G.Desktop.EachTurn = [&](int) {
        if (ground.G.Cell(2, "UndoName") != "" && seen.empty())
            seen = ground.G.Cell(2, "Name");
    };
    ground.G.SetTemplates("<#>" + tail, "");
    ground.RunAll();
    EXPECT_EQ(seen, "0" + kept);
    EXPECT_EQ(Names(), (Texts{"1" + tail, "2" + tail}));
    EXPECT_EQ(Undo(), (Texts{"a", "1" + tail}));
    EXPECT_EQ(ground.ContentOf("d/2" + tail), "d/1" + tail);
}

TEST_P(NnRun, A_temporary_name_keeps_the_last_253_characters)
{
    if (GetParam() == Ground::Windows)
        return; // its paths are too short for such names
    const std::string tail = "abc" + std::string(251, 'x'); // with a digit 255
    ground.Load({"d/a", "d/1" + tail});
    Texts seen;
    ground.G.Desktop.EachTurn = [&](int) { seen.push_back(ground.G.Cell(2, "Name")); };
    ground.G.SetTemplates("<#>" + tail, "");
    ground.RunAll();
    EXPECT_TRUE(Contains(seen, "0" + tail.substr(1)));
    EXPECT_EQ(Names(), (Texts{"1" + tail, "2" + tail}));
}

TEST_P(NnRun, A_long_chain_is_renamed_without_losing_a_file)
{
    Texts rows;
    for (int i = 0; i < 200; ++i)
        rows.push_back("d/" + std::to_string(i));
    ground.Load(rows);
    ground.G.SetTemplates("<#>", "");
    ground.RunAll();
    for (std::size_t i = 0; i < rows.size(); ++i)
        ASSERT_EQ(ground.ContentOf("d/" + std::to_string(i + 1)), rows[i]);
    EXPECT_FALSE(ground.Has("d/0"));
    EXPECT_EQ(ground.Counts(), "200//");
}

// -- Bad ground.

TEST_P(NnRun, Characters_of_the_disk_come_through_unchanged)
{
    if (GetParam() == Ground::Windows)
        return; // holds no such names
    const Texts rows{"d/\xff\xfe.txt", "d/new\nline.txt", "d/e\u0301.txt", "d/\u00e9.txt",
                     "d/a:b?.txt"};
    ground.Load(rows);
    ground.G.SetTemplates("<#>-<ON>", "<OE>");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"1-\xff\xfe.txt", "2-new\nline.txt", "3-e\u0301.txt", "4-\u00e9.txt",
                              "5-a:b?.txt"}));
    for (std::size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(ground.ContentOf("d/" + Names()[i]), rows[i]);
}

TEST_P(NnRun, A_target_made_by_another_program_in_between_is_not_replaced)
{
    if (ground.Memory() == nullptr)
        return; // needs to act between look and rename
    ground.Load({"d/a", "d/b"});
    ground.Memory()->Before("SHFileOperationA", 1,
                            [&](const MemoryDisk::Call&) { ground.AddFile("d/x1"); });
    ground.G.SetTemplates("x<#>", "");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"a", "b"}));
    EXPECT_EQ(Errors(), (Texts{"Name Conflict", "Name Conflict"}));
    EXPECT_EQ(ground.ContentOf("d/x1"), "d/x1");
    EXPECT_EQ(ground.ContentOf("d/a"), "d/a");
}

TEST_P(NnRun, Files_that_cannot_be_renamed_now_are_told_and_passed_by)
{
    if (ground.Memory() == nullptr)
        return;
    ground.Load({"d/a", "d/b", "locked/c", "d/e"});
    ground.Memory()->SetInUse(ground.Full("d/b"));
    ground.Memory()->SetLocked(ground.Full("locked"));
    ground.G.SetTemplates("x<#>", "");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"x1", "b", "c", "x2"}));
    EXPECT_EQ(Errors(), (Texts{"", "Access Denied", "Access Denied", ""}));
    EXPECT_EQ(ground.Counts(), "2/2/");
}

// -- Folders.

TEST_P(NnRun, Folder_names_are_split_at_the_point_like_others)
{
    ground.LoadFolders({"d/my.data", "d/plain"});
    ground.G.SetTemplates("<ON>_<#>", "");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"my_1", "plain_2"}));
    EXPECT_EQ(ground.G.Column("Type"), (Texts{"-", "-"}));
    EXPECT_EQ(ground.ContentOf("d/my_1/mark"), "d/my.data/mark");
    ground.G.SetTemplates("<#>", "x");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"1.x", "2.x"}));
    EXPECT_EQ(ground.G.Column("Type"), (Texts{"-", "-"}));
}

TEST_P(NnRun, A_folder_in_the_way_is_moved_aside_with_all_in_it)
{
    ground.LoadFolders({"d/a", "d/1"});
    ground.G.SetTemplates("<#>", "");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"1", "2"}));
    EXPECT_EQ(ground.ContentOf("d/1/mark"), "d/a/mark");
    EXPECT_EQ(ground.ContentOf("d/2/mark"), "d/1/mark");
}

// -- Undo names and old cells.

TEST_P(NnRun, A_run_forgets_the_one_before)
{
    ground.Load({"d/a", "d/b", "d/c"});
    ground.G.SetTemplates("x<#>", "");
    ground.RunAll();
    ground.RunSelected({2, 3});
    EXPECT_EQ(Undo(), (Texts{"", "", ""}));
    EXPECT_EQ(Errors(), (Texts{"", "Name Conflict", "Name Conflict"}));
    EXPECT_EQ(Names(), (Texts{"x1", "x2", "x3"}));
}

TEST_P(NnRun, A_failure_of_the_run_before_is_not_remembered)
{
    ground.Load({"d/x1", "d/b"});
    ground.AddFile("d/1");
    ground.G.SetTemplates("<#>", "");
    ground.RunAll();
    ASSERT_EQ(Errors(), (Texts{"Name Conflict", "Name Conflict"}));
    // Else the right name of row 1 would be taken for a conflict now.
    ground.G.SetTemplates("x<#>", "");
    ground.RunAll();
    EXPECT_EQ(Names(), (Texts{"x1", "x2"}));
    EXPECT_EQ(ground.Counts(), "1//1");
}

} // namespace tavo
