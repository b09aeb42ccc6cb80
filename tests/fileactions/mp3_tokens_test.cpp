// The tokens of a tag in the templates of Name & Number.

#include "mp3_ground.h"

#include "renamelist/name_builder.h"
#include "renamelist/nn_run.h"
#include "renamelist/templates.h"

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

const MP3Tag song{"TAG", "Hey", "Joe", "Best", "1999", "c", 7, 17};

std::string Applied(std::string text, const MP3Tag& tag, int digits)
{
    TmplFlags flags{};
    Tmpl_Scan(text, flags);
    Tmpl_ApplyTag(text, tag, digits, flags);
    return text;
}

class Mp3Tokens : public ::testing::TestWithParam<MemoryDisk::Flavour> {
protected:
    Mp3Tokens() : g(GetParam()) { Mode_Set(g.P, modeNameNumber); }

    void Run()
    {
        RunRows rows;
        for (int row = 1; row <= g.List.Count(); ++row)
            rows.push_back(row);
        NN_Run(g.P, rows);
    }

    Mp3Ground g;
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Mp3Tokens, mp3Dialects, Mp3Dialect_Name);

} // namespace

TEST(Mp3TokenText, Each_token_gives_its_field)
{
    const struct {
        const char* Text;
        int Digits;
        MP3Tag Tag;
        const char* Wanted;
    } rows[] = {
        {"<T>", 1, song, "Hey"},
        {"<AR>", 1, song, "Joe"},
        {"<AL>", 1, song, "Best"},
        {"<G>", 1, song, "Rock"},
        {"<Y>", 1, song, "1999"},
        {"<TR>", 1, song, "7"},
        {"<TR>", 3, song, "007"},
        {"<TR>-<T> (<AR>, <T>)", 2, song, "07-Hey (Joe, Hey)"},
        {"<ON> <#> <OE> <T>", 1, song, "<ON> <#> <OE> Hey"},
        {"<t> <ar>", 1, song, "<t> <ar>"},
        {"<t><T>", 1, song, "HeyHey"},
        // Track 0 and genre 0 are none, and so is a genre without a name.
        {"[<TR>][<G>]", 3, {"TAG", "", "", "", "", "", 0, 0}, "[][]"},
        {"[<TR>][<G>]", 2, {"TAG", "", "", "", "", "", 255, 126}, "[255][]"},
        {"<G>", 2, {"TAG", "", "", "", "", "", 0, 255}, ""},
        {"<G>", 2, {"TAG", "", "", "", "", "", 0, 1}, "Classic Rock"},
        {"<G>", 2, {"TAG", "", "", "", "", "", 0, 125}, "Dance Hall"},
        // A value is looked through for the tokens behind its own, if these
        // stand in the template too.
        {"<T>|<AR>", 1, {"TAG", "<AR>", "Joe", "", "", "", 0, 0}, "Joe|Joe"},
        {"<T>", 1, {"TAG", "<AR>", "Joe", "", "", "", 0, 0}, "<AR>"},
        {"<AR>|<T>", 1, {"TAG", "Hey", "<T>", "", "", "", 0, 0}, "<T>|Hey"},
        // Without a tag all stay; of a file that could not be read they go.
        {"<T><AR><AL><G><Y><TR>", 1, {"No", "", "", "", "", "", 0, 0}, "<T><AR><AL><G><Y><TR>"},
        {"x<T><AR><AL><G><Y><TR>", 1, {"", "", "", "", "", "", 0, 0}, "x"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Applied(row.Text, row.Tag, row.Digits), row.Wanted) << row.Text;
}

TEST_P(Mp3Tokens, Run_names_each_file_by_its_own_tag_in_name_and_extension)
{
    MP3Tag other = song;
    other.Title = "Ä";
    other.Track = 12;
    g.Load({{"a.mp3", MP3_Tag_Encode(song)}, {"b.mp3", "x" + MP3_Tag_Encode(other)}});
    g.P.state.nnDigits = 3;
    g.SetTemplates("<TR> <AR> - <T> <ON>", "<Y>");
    Run();
    EXPECT_EQ(g.Names(), (Texts{"007 Joe - Hey a.1999", "012 Joe - Ä b.1999"}));
    EXPECT_EQ(g.Column("UndoName"), (Texts{"a.mp3", "b.mp3"}));
    EXPECT_EQ(g.Disk.OpenFiles(), 0);
}

TEST_P(Mp3Tokens, Counting_run_reads_the_tag_of_a_row_moved_aside_too)
{
    MP3Tag one = song, two = song;
    one.Title = "b";
    two.Title = "c";
    g.Load({{"a.mp3", MP3_Tag_Encode(one)}, {"b1.mp3", MP3_Tag_Encode(two)}});
    g.P.state.PreList = 1;
    g.P.state.nnDigits = 1;
    g.P.state.nnStart = "1";
    g.SetTemplates("<T><#>", "<OE>");
    Run();
    EXPECT_EQ(g.Names(), (Texts{"b1.mp3", "c2.mp3"}));
    EXPECT_EQ(g.Column("UndoName"), (Texts{"a.mp3", "b1.mp3"}));
}

// The brackets that stay may be in no name.
TEST_P(Mp3Tokens, File_without_a_tag_keeps_the_tokens_and_so_its_name)
{
    g.Load({{"a.mp3", "sound"}});
    g.SetTemplates("<T>", "<OE>");
    Run();
    EXPECT_EQ(g.Names(), Texts{"a.mp3"});
    EXPECT_EQ(g.Column("Errors"), Texts{"Name Conflict"});
}

TEST_P(Mp3Tokens, Tag_is_read_once_a_row_and_only_where_a_template_asks_for_it)
{
    const struct {
        const char *Name, *Extension;
        int Reads;
    } rows[] = {{"x<ON>", "<OE>", 0},
                {"x<t>", "y", 0},
                {"<T><AR>", "<Y>", 2},
                {"z<#>", "<TR>", 2},
                {"<AL> <#>", "<OE>", 2}};
    for (const auto& row : rows) {
        Mp3Ground fresh(GetParam());
        Mode_Set(fresh.P, modeNameNumber);
        fresh.Load({{"a.mp3", MP3_Tag_Encode(song)}, {"b.mp3", MP3_Tag_Encode(song)}});
        fresh.SetTemplates(row.Name, row.Extension);
        fresh.Disk.Opened.clear();
        NN_Run(fresh.P, {1, 2});
        EXPECT_EQ(static_cast<int>(fresh.Disk.Opened.size()), row.Reads) << row.Name;
        for (const std::string& opened : fresh.Disk.Opened)
            EXPECT_EQ(opened.front(), 'R') << row.Name;
    }
}

TEST_P(Mp3Tokens, Preview_reads_the_tag_of_the_row_in_hand)
{
    g.Load({{"a.mp3", MP3_Tag_Encode(song)}, {"b.mp3", "sound"}});
    g.P.state.nnDigits = 2;
    g.P.state.nnStart = "1";
    g.SetTemplates("<TR> <T> <#>", "<OE>");
    g.Select({1});
    EXPECT_EQ(g.Panel(2), "07 Hey 01.mp3");
    g.Select({2});
    EXPECT_EQ(g.Panel(2), "<TR> <T> 02.mp3");
    g.Main.txtNameNum[nnName].PersonText("<AR>");
    EXPECT_EQ(g.Panel(2), "<AR>.mp3");
}

} // namespace tavo
