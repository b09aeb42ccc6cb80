// What a person sees of a Name & Number run, and where they can stop it.

#include "renamelist/nn_run.h"

#include "support/disk_ground.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tavo {

using Texts = std::vector<std::string>;

class NnRunPanel : public ::testing::TestWithParam<Ground> {
protected:
    NnRunPanel() : ground(GetParam()), s(ground.P.state) {}

    DiskGround ground;
    SharedState& s;
};

INSTANTIATE_TEST_SUITE_P(OnEveryDisk, NnRunPanel, ::testing::ValuesIn(everyGround),
                         [](const auto& test) { return Ground_Name(test.param); });

// -- The panel and the pump.

struct Seen {
    std::string Stage, Caption, Counts, Bar;
    friend bool operator==(const Seen&, const Seen&) = default;
};

void PrintTo(const Seen& seen, std::ostream* out)
{
    *out << seen.Stage << " | " << seen.Caption << " | " << seen.Counts << " | " << seen.Bar;
}

namespace {

// What a person sees at each turn of the pump in the walk itself.
std::vector<Seen> Walk_Watch(DiskGround& ground)
{
    std::vector<Seen> seen;
    ground.G.Desktop.EachTurn = [&](int) {
        const std::string stage = ground.Main.lblActionInfo[0].Caption;
        if (stage.ends_with("Files...") || stage.starts_with("Buffering"))
            seen.push_back({stage, ground.Main.Caption(), ground.Counts(),
                            Length_Text(ground.Main.prbAction.Value)});
    };
    ground.RunAll();
    ground.G.Desktop.EachTurn = nullptr;
    return seen;
}

} // namespace

// Each success lets events in by itself, and so does each row at its end.
TEST_P(NnRunPanel, A_single_pass_shows_each_row_as_it_goes)
{
    ground.Load({"d/a", "d/b", "d/c", "d/xd"});
    ground.Remove("d/b");
    ground.G.SetTemplates("x<ON>", "");
    const std::string stage = "Renaming Files...";
    const std::vector<Seen> wanted{
        {stage, "Tavo 25%", "//", "25"},     {stage, "Tavo 25%", "1//", "25"},
        {stage, "Tavo 50%", "1/1/", "50"},   {stage, "Tavo 75%", "1/1/", "75"},
        {stage, "Tavo 75%", "2/1/", "75"},   {stage, "Tavo 100%", "2/1/", "100"},
        {stage, "Tavo 100%", "3/1/", "100"},
    };
    EXPECT_EQ(Walk_Watch(ground), wanted);
}

TEST_P(NnRunPanel, A_numbering_keeps_the_first_names_and_then_shows_each_row)
{
    ground.Load({"d/a", "d/1"});
    ground.G.SetTemplates("<#>", "");
    const std::string stage = "Numbering Files...";
    const std::vector<Seen> wanted{
        {"Buffering Undo Names...", "Tavo - Name & Number", "//", "0"},
        // Row 2 is moved aside, and that is not counted.
        {stage, "Tavo 50%", "//", "50"},
        {stage, "Tavo 50%", "//", "50"},
        {stage, "Tavo 50%", "//", "50"},
        {stage, "Tavo 50%", "1//", "50"},
        {stage, "Tavo 100%", "1//", "100"},
        {stage, "Tavo 100%", "2//", "100"},
    };
    EXPECT_EQ(Walk_Watch(ground), wanted);
    EXPECT_EQ(ground.Main.lblActionInfo[0].Caption.Get(), "Finished! Click Done to Continue...");
    EXPECT_EQ(ground.Main.Caption(), "Tavo - Name & Number");
}

// A row that is done already takes no turn.
TEST_P(NnRunPanel, A_row_that_was_named_out_of_its_turn_is_passed_over)
{
    ground.Load({"d/a", "d/1"});
    ground.G.SetTemplates("<#>", "");
    s.PreList = 0;
    const std::vector<Seen> wanted{
        {"Buffering Undo Names...", "Tavo - Name & Number", "//", "0"},
        {"Numbering Files...", "Tavo 50%", "//1", "50"},
    };
    // The conflict is counted for good only where nobody stands in the way.
    EXPECT_EQ(Walk_Watch(ground), wanted);
    EXPECT_EQ(ground.Counts(), "//1");
}

// -- Cancel.

TEST_P(NnRunPanel, A_cancel_ends_the_run_behind_the_row_in_progress)
{
    struct CancelCase {
        const char *What, *Name;
        int AtTurn; // of the walk
        const char* Counts;
    };
    // Turns of a plain run: 1 in row a, 2 behind it, 3 in row b ... A counted
    // one has a turn in front, where the names have been kept, and stops
    // before it shows the counts.
    const CancelCase cases[] = {
        {"plain, in the rename of the second row", "x<ON>", 3, "2//"},
        {"plain, behind the second row", "x<ON>", 4, "2//"},
        {"counted, in the rename of the second row", "x<ON><#>", 4, "1//"},
        {"counted, behind the second row", "x<ON><#>", 5, "2//"},
    };
    for (const CancelCase& wanted : cases) {
        SCOPED_TRACE(wanted.What);
        DiskGround own(GetParam());
        own.Load({"d/a", "d/b", "d/c", "d/e"});
        own.G.SetTemplates(wanted.Name, "");
        int turn = 0;
        own.G.Desktop.EachTurn = [&](int) {
            const std::string stage = own.Main.lblActionInfo[0].Caption;
            const bool walks = stage.ends_with("Files...") || stage.starts_with("Buffering");
            if (walks && ++turn == wanted.AtTurn)
                own.Main.cmdActCancel.PersonClick();
        };
        own.RunAll();
        EXPECT_TRUE(own.G.Names()[1].starts_with("xb"));
        EXPECT_EQ(own.G.Names()[2], "c");
        EXPECT_EQ(own.G.Column("UndoName"), (Texts{"a", "b", "", ""}));
        EXPECT_EQ(own.Counts(), wanted.Counts);
        EXPECT_TRUE(own.P.state.ActCancel);
    }
}

// The cancel is asked for behind each row, and so behind the first.
TEST_P(NnRunPanel, A_cancel_before_the_first_row_lets_that_one_run)
{
    for (const bool isBlocked : {false, true}) {
        DiskGround own(GetParam());
        own.Load({"d/a", isBlocked ? "d/1" : "d/b"});
        own.G.SetTemplates("<#>", "");
        own.G.Desktop.EachTurn = [&](int) {
            if (own.Main.lblActionInfo[0].Caption.Get().starts_with("Buffering"))
                own.P.state.ActCancel = true;
        };
        own.RunAll();
        EXPECT_EQ(own.G.Names(), isBlocked ? (Texts{"a", "1"}) : (Texts{"1", "b"}));
        EXPECT_EQ(own.G.Column("Errors"),
                  isBlocked ? (Texts{"Name Conflict", ""}) : (Texts{"", ""}));
    }
}

// What was moved aside stays so; its first name is kept for undo.
TEST_P(NnRunPanel, A_cancel_while_a_row_stands_aside_keeps_its_first_name)
{
    ground.Load({"d/a", "d/1"});
    ground.G.SetTemplates("<#>", "");
    ground.G.Desktop.EachTurn = [&](int) {
        if (ground.G.Cell(2, "UndoName") == "1")
            s.ActCancel = true;
    };
    ground.RunAll();
    EXPECT_EQ(ground.G.Names(), (Texts{"a", "01"}));
    EXPECT_EQ(ground.G.Column("UndoName"), (Texts{"", "1"}));
    EXPECT_EQ(ground.ContentOf("d/01"), "d/1");
}

} // namespace tavo
