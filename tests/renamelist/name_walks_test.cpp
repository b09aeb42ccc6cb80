#include "renamelist/name_walks.h"

#include "core/screens.h"
#include "renamelist/rename_list.h"
#include "support/list_run.h"

namespace tavo {
namespace {

using Texts = std::vector<std::string>;

class NameWalks : public ListRun {
protected:
    void Search(const char* find, const char* replace)
    {
        Mode_Set(p, modeSearchReplace);
        f.txtSearchFind.Text = find;
        f.txtSearchReplace.Text = replace;
    }
    void Run()
    {
        s.SupWarnRen = 1;
        Act_Run(p, actAll);
    }
    std::string Outcome() { return ground.Panel(2); }
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, NameWalks, bothDialects, Dialect_Name);

// -- Search & Replace

TEST_P(NameWalks, Texts_are_replaced_in_all_names)
{
    ground.Load({"d/IMG_1.jpg", "d/IMG_2.jpg", "d/other.jpg"});
    Search("img_", "holiday ");
    Run();
    EXPECT_EQ(ground.Names(), (Texts{"holiday 1.jpg", "holiday 2.jpg", "other.jpg"}));
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"IMG_1.jpg", "IMG_2.jpg", ""}));
    EXPECT_EQ(ground.ContentOf("d/holiday 1.jpg"), "d/IMG_1.jpg");
    EXPECT_EQ(Value(1), "2");
    EXPECT_EQ(Value(2), "");
    EXPECT_EQ(Value(3), "1");
}

TEST_P(NameWalks, An_extension_comes_and_goes)
{
    ground.Load({"d/a.b.txt"});
    Search(".", "_");
    Run();
    EXPECT_EQ(ground.Names(), (Texts{"a_b_txt"}));
    EXPECT_EQ(ground.Column("Type"), (Texts{""}));
}

TEST_P(NameWalks, A_conflict_is_reported_and_nothing_steps_aside)
{
    ground.Load({"d/a1.txt", "d/a2.txt", "d/b1.txt"});
    Search("a", "b");
    Run();
    EXPECT_EQ(ground.Names(), (Texts{"a1.txt", "b2.txt", "b1.txt"}));
    EXPECT_EQ(ground.Column("Errors"), (Texts{"Name Conflict", "", ""}));
    EXPECT_EQ(ground.ContentOf("d/b1.txt"), "d/b1.txt");
    EXPECT_EQ(Value(2), "1");
    EXPECT_EQ(ErrorsHeader(), "Errors: 1");
}

TEST_P(NameWalks, A_range_follows_its_boxes)
{
    ground.Load({"d/abcde.txt"});
    Mode_Set(p, modeSearchReplace);
    f.optSearchType[2].Value = true;
    f.txtSearchReplace.Text = "X";
    f.txtSearchStart.Text = "2";
    f.txtSearchEnd.Text = "3";
    EXPECT_EQ(Outcome(), "aXde.txt");
    f.txtSearchEnd.Text = "0";
    EXPECT_EQ(Outcome(), "aXbcde.txt");
    f.txtSearchEnd.Text = "";
    EXPECT_EQ(Outcome(), "aXbcde.txt") << "an empty end box inserts";
    Run();
    EXPECT_EQ(ground.Names(), (Texts{"aXbcde.txt"}));
}

TEST_P(NameWalks, Nothing_to_find_refuses_texts_and_no_range)
{
    LoadRows(2);
    ground.List.SetCell(1, s.colUndoName, "kept");
    Search("", "x");
    Run();
    EXPECT_EQ(ground.Desktop.BoxTexts(), (Texts{"Nothing to Find!"}));
    EXPECT_EQ(ground.Cell(1, "UndoName"), "kept");
    f.optSearchType[2].Value = true;
    Run();
    EXPECT_EQ(ground.Desktop.BoxTexts().size(), 1u);
    EXPECT_EQ(ground.Cell(1, "UndoName"), "");
}

TEST_P(NameWalks, The_outcome_follows_each_box)
{
    ground.Load({"d/banana.txt"});
    Search("a", "aa");
    EXPECT_EQ(Outcome(), "baanaanaa.txt");
    f.txtSearchFind.Text = "";
    EXPECT_EQ(Outcome(), "banana.txt") << "nothing to find shows the name as it is";
    f.txtSearchFind.Text = "TXT";
    f.txtSearchReplace.Text = "md";
    EXPECT_EQ(Outcome(), "banana.md");
    f.chkSearchCase.Value = 1;
    EXPECT_EQ(Outcome(), "banana.txt");
    f.chkSearchCase.Value = 0;
    f.optSearchMode[1].Value = true;
    EXPECT_EQ(Outcome(), "banana.txt") << "only the name";
    f.optSearchMode[2].Value = true;
    EXPECT_EQ(Outcome(), "banana.md");
    EXPECT_EQ(s.srMode, 2);
    EXPECT_EQ(f.lblSearchRange[1].Caption.Get(), "Len: 6.3");
}

TEST_P(NameWalks, The_type_shows_its_own_boxes)
{
    for (const int type : {2, 1}) {
        f.optSearchType[type].Value = true;
        const bool text = type == 1;
        EXPECT_EQ(s.srType, type);
        EXPECT_EQ(f.txtSearchFind.Visible.Get(), text);
        EXPECT_EQ(f.lblSearchFind.Visible.Get(), text);
        EXPECT_EQ(f.chkSearchCase.Visible.Get(), text);
        for (const Control* control : std::initializer_list<const Control*>{
                 &f.txtSearchStart, &f.txtSearchEnd, &f.lblSearchRange[0], &f.lblSearchRange[1],
                 &f.lblSearchRangeTo})
            EXPECT_EQ(control->Visible.Get(), !text) << control->FullName();
        EXPECT_TRUE(f.txtSearchReplace.Visible);
    }
}

struct PositionRow {
    const char *What, *Typed, *Start, *End;
};

TEST_P(NameWalks, Positions_are_held_between_their_bounds)
{
    static constexpr PositionRow rows[] = {
        {"inside", "7", "7", "7"},
        {"too large", "255", "254", "254"},
        {"much too large", "99999", "254", "254"},
        {"zero", "0", "1", "0"},
        {"no number", "x", "1", "0"},
    };
    for (const PositionRow& row : rows) {
        f.txtSearchStart.Text = row.Typed;
        f.txtSearchEnd.Text = row.Typed;
        EXPECT_EQ(f.txtSearchStart.Text.Get(), row.Start) << row.What;
        if (std::string(row.Typed) != "x") {
            EXPECT_EQ(f.txtSearchEnd.Text.Get(), row.End) << row.What;
        }
    }
}

TEST_P(NameWalks, A_position_box_that_is_left_empty_gets_its_least_value)
{
    LoadRows(1);
    Mode_Set(p, modeSearchReplace);
    f.optSearchType[2].Value = true;
    f.txtSearchStart.Text = "5";
    f.txtSearchStart.SetFocus();
    f.txtSearchStart.Text = "";
    EXPECT_EQ(f.txtSearchStart.Text.Get(), "") << "while it is being typed in";
    f.txtSearchEnd.SetFocus();
    EXPECT_EQ(f.txtSearchStart.Text.Get(), "1");
    f.txtSearchReplace.SetFocus();
    EXPECT_EQ(f.txtSearchEnd.Text.Get(), "");
}

TEST_P(NameWalks, The_replacement_takes_no_sign_that_names_refuse)
{
    LoadRows(1);
    Mode_Set(p, modeSearchReplace);
    f.txtSearchReplace.SetFocus();
    for (const char key : std::string("a<:b>"))
        p.main.PersonKey(&f.txtSearchReplace, Key_FromChar(static_cast<char32_t>(key)));
    EXPECT_EQ(f.txtSearchReplace.Text.Get(), "ab");
    EXPECT_EQ(ground.Desktop.Boxes.size(), 3u);
    f.txtSearchReplace.Text = "x<y>|z";
    f.txtSearchFind.SetFocus();
    EXPECT_EQ(f.txtSearchReplace.Text.Get(), "xyz");
    for (const char key : std::string("<:"))
        p.main.PersonKey(&f.txtSearchFind, Key_FromChar(static_cast<char32_t>(key)));
    EXPECT_EQ(f.txtSearchFind.Text.Get(), "<:") << "anything may be looked for";
}

// -- Change Case

TEST_P(NameWalks, Case_changes_the_whole_name_and_empties_the_type)
{
    ground.Load({"d/one two.TXT", "d/Three.txt"});
    Mode_Set(p, modeCase);
    f.optCase[3].Value = true;
    f.txtCasePreCap[1].Text = " ";
    Run();
    EXPECT_EQ(ground.Names(), (Texts{"One Two.txt", "Three.txt"}));
    EXPECT_EQ(ground.Column("Type"), (Texts{"", "txt"})) << "only of the row that changed";
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"one two.TXT", ""}));
    EXPECT_EQ(Value(1), "1");
    EXPECT_EQ(Value(3), "1");
    EXPECT_EQ(ground.Disk.StoredName(ground.Full("d/One Two.txt")), "One Two.txt");
}

TEST_P(NameWalks, The_outcome_follows_the_case_boxes)
{
    ground.Load({"d/my dvd.txt"});
    s.CaseWordList = {"", "DVD"};
    Mode_Set(p, modeCase);
    f.optCase[1].Value = true;
    EXPECT_EQ(Outcome(), "MY DVD.TXT");
    f.optCase[2].Value = true;
    EXPECT_EQ(Outcome(), "my dvd.txt");
    f.optCase[3].Value = true;
    f.chkCaseFirst.Value = 1;
    f.chkCaseWord.Value = 0;
    f.txtCasePreCap[1].Text = " ";
    EXPECT_EQ(Outcome(), "My Dvd.txt");
    f.chkCaseWord.Value = 1;
    EXPECT_EQ(Outcome(), "My DVD.txt");
    f.chkCaseFirst.Value = 0;
    EXPECT_EQ(Outcome(), "my DVD.txt");
    f.txtCasePreCap[6].Text = "m";
    EXPECT_EQ(Outcome(), "mY DVD.txt");
    EXPECT_EQ(s.ccTemp[6], "m");
    EXPECT_EQ(s.ccWord, 1);
    EXPECT_EQ(s.ccCap, 0);
}

TEST_P(NameWalks, Smart_case_alone_shows_its_boxes)
{
    for (const int mode : {1, 3, 2}) {
        f.optCase[mode].Value = true;
        const bool smart = mode == 3;
        EXPECT_EQ(s.ccMode, mode);
        for (const Control* control : std::initializer_list<const Control*>{
                 &f.chkCaseFirst, &f.chkCaseWord, &f.lblCaseSmart, &f.linCase1, &f.linCase2,
                 &f.txtCasePreCap[1], &f.txtCasePreCap[6]})
            EXPECT_EQ(control->Visible.Get(), smart) << control->FullName();
    }
}

TEST_P(NameWalks, A_cancel_stops_behind_the_row_in_hand)
{
    LoadRows(3);
    Mode_Set(p, modeCase);
    f.optCase[1].Value = true;
    s.SupWarnRen = 1;
    ground.Desktop.EachTurn = [this](int) {
        if (ground.Names()[0] == "A.TXT")
            s.ActCancel = true;
    };
    Act_Run(p, actAll);
    EXPECT_EQ(ground.Names(), (Texts{"A.TXT", "b.txt", "c.txt"}));
}

} // namespace
} // namespace tavo
