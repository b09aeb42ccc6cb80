#include "fileactions/mp3_run.h"

#include "mp3_ground.h"

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

const MP3Tag heyJoe{"TAG", "Hey", "Joe", "", "1999", "", 7, 17};
const std::string heyJoeRecord = "MP3: 03Hey03Joe00041999000170217";
const std::string sound(300, '\xFB');

std::string Tagged(const MP3Tag& tag)
{
    return sound + MP3_Tag_Encode(tag);
}

class Mp3Run : public ::testing::TestWithParam<MemoryDisk::Flavour> {
protected:
    Mp3Run() : g(GetParam()) {}

    Texts Undo(RowCounters& counters)
    {
        Texts errors;
        for (int row = 1; row <= g.List.Count(); ++row)
            errors.push_back(MP3_Undo_Row(g.P, row, counters));
        EXPECT_EQ(g.Disk.OpenFiles(), 0);
        return errors;
    }

    Mp3Ground g;
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Mp3Run, mp3Dialects, Mp3Dialect_Name);

} // namespace

// -- The fields.

TEST_P(Mp3Run, Only_ticked_fields_change)
{
    const struct {
        int Field;
        const char* Text;
        MP3Tag Wanted;
    } rows[] = {
        {1, "x", {"TAG", "x", "Joe", "", "1999", "", 7, 17}},
        {2, "x", {"TAG", "Hey", "x", "", "1999", "", 7, 17}},
        {3, "x", {"TAG", "Hey", "Joe", "x", "1999", "", 7, 17}},
        {4, "x", {"TAG", "Hey", "Joe", "", "1999", "x", 7, 17}},
        {5, "x", {"TAG", "Hey", "Joe", "", "x", "", 7, 17}},
        {6, "9", {"TAG", "Hey", "Joe", "", "1999", "", 9, 17}},
    };
    for (const auto& row : rows) {
        g.Load({{"a.mp3", Tagged(heyJoe)}});
        for (int field = 1; field <= 6; ++field)
            g.Type(field, "1");
        for (int field = 1; field <= 7; ++field)
            g.Tick(field, field == row.Field);
        g.Type(row.Field, row.Text);
        g.Run();
        EXPECT_EQ(g.TagOf("a.mp3"), row.Wanted) << row.Field;
        EXPECT_EQ(g.Content("a.mp3"), Tagged(row.Wanted)) << row.Field;
        EXPECT_EQ(g.Column("UndoName"), Texts{heyJoeRecord}) << row.Field;
        EXPECT_EQ(g.Counts(), "1//") << row.Field;
    }
}

TEST_P(Mp3Run, New_tag_goes_behind_the_end_with_0_where_nothing_was_ticked)
{
    g.Load({{"a.mp3", sound}, {"b.mp3", ""}, {"c.mp3", "short"}});
    g.Type(tagTitle, "Hey");
    g.Run();
    const MP3Tag made{"TAG", "Hey", "", "", "", "", 0, 0};
    EXPECT_EQ(g.Content("a.mp3"), Tagged(made));
    EXPECT_EQ(g.Content("b.mp3"), MP3_Tag_Encode(made));
    EXPECT_EQ(g.Content("c.mp3"), "short" + MP3_Tag_Encode(made));
    EXPECT_EQ(g.Column("UndoName"), (Texts{"MP3: ", "MP3: ", "MP3: "}));
    EXPECT_EQ(g.Counts(), "3//");
}

TEST_P(Mp3Run, Genre_without_a_choice_becomes_255)
{
    g.Load({{"a.mp3", Tagged(heyJoe)}});
    g.Tick(tagGenre);
    g.Run();
    EXPECT_EQ(g.TagOf("a.mp3"), (MP3Tag{"TAG", "Hey", "Joe", "", "1999", "", 7, 255}));
}

TEST_P(Mp3Run, Genre_chosen_is_written_by_its_place)
{
    for (const int genre : {0, 17, 125}) {
        g.Load({{"a.mp3", Tagged({"TAG", "", "", "", "", "", 0, 99})}});
        g.Main.cboMP3Genre.PersonChoose(genre);
        g.Run();
        EXPECT_EQ(g.TagOf("a.mp3").Genre, genre);
    }
}

TEST_P(Mp3Run, Track_text_that_is_no_byte_leaves_the_track)
{
    const struct {
        const char* Text;
        int Wanted;
    } rows[] = {{"", 0},    {"0", 0},   {"12", 12}, {"007", 7}, {"255", 255},
                {"256", 7}, {"999", 7}, {".", 7},   {"1.5", 2}, {"2.5", 2}};
    for (const auto& row : rows) {
        g.Load({{"a.mp3", Tagged(heyJoe)}});
        g.Type(tagTrack, row.Text);
        g.Tick(tagTrack);
        g.Run();
        EXPECT_EQ(g.TagOf("a.mp3").Track, row.Wanted) << row.Text;
    }
}

TEST_P(Mp3Run, Comment_of_29_is_written_whole_beside_the_track)
{
    const std::string comment = "abcdefghijklmnopqrstuvwxyz123";
    g.Load({{"a.mp3", sound}});
    g.Type(tagComment, comment + "4");
    g.Type(tagTrack, "52");
    g.Run();
    EXPECT_EQ(g.TagOf("a.mp3"), (MP3Tag{"TAG", "", "", "", "", comment, 52, 0}));
}

// -- Identical.

TEST_P(Mp3Run, Identical_tag_is_counted_and_the_file_left_alone)
{
    std::string marked = Tagged(heyJoe);
    marked[sound.size() + 1] = 'a'; // a marker in small letters is one too
    g.Load({{"a.mp3", marked}, {"b.mp3", sound}});
    g.List.SetCell(2, g.P.state.colUndoName, "as it was");
    g.Tick(tagComment);
    g.Tick(tagAlbum);
    g.Run();
    EXPECT_EQ(g.Content("a.mp3"), marked);
    EXPECT_EQ(g.Content("b.mp3"), sound); // and no tag is made of empty fields
    EXPECT_EQ(g.Disk.Writes, 0);
    EXPECT_EQ(g.Column("UndoName"), (Texts{"", "as it was"}));
    EXPECT_EQ(g.Counts(), "//2");
}

TEST_P(Mp3Run, Blanks_behind_a_text_in_the_file_are_a_difference)
{
    g.Load({{"a.mp3", Tagged({"TAG", "Hey ", "", "", "", "", 0, 0})}});
    g.Type(tagTitle, "Hey");
    g.Run();
    EXPECT_EQ(g.TagOf("a.mp3").Title, "Hey");
    EXPECT_EQ(g.Counts(), "1//");
    EXPECT_EQ(g.Column("UndoName"), Texts{"MP3: 04Hey 00000000"
                                          "010"
                                          "010"});
}

TEST_P(Mp3Run, Second_run_is_identical_also_with_characters_outside_the_page)
{
    g.Load({{"a.mp3", sound}});
    g.Type(tagTitle, "Ä 日本");
    g.Type(tagArtist, "“Björk”");
    g.Run();
    EXPECT_EQ(g.TagOf("a.mp3"), (MP3Tag{"TAG", "Ä ??", "“Björk”", "", "", "", 0, 0}));
    g.Run();
    EXPECT_EQ(g.Counts(), "//1");
}

TEST_P(Mp3Run, Marker_in_small_letters_is_written_over_in_capitals)
{
    std::string marked = Tagged(heyJoe);
    marked.replace(sound.size(), 3, "tag");
    g.Load({{"a.mp3", marked}});
    g.Type(tagAlbum, "x");
    g.Run();
    EXPECT_EQ(g.Content("a.mp3"), Tagged({"TAG", "Hey", "Joe", "x", "1999", "", 7, 17}));
}

// -- Short files.

TEST_P(Mp3Run, File_shorter_than_a_tag_is_judged_by_its_first_three_bytes)
{
    g.Load({{"a.mp3", "TAGHey"}, {"b.mp3", std::string(127, 'x')}});
    g.Type(tagTrack, "5");
    g.Run();
    EXPECT_EQ(g.Content("a.mp3"), MP3_Tag_Encode({"", "Hey", "", "", "", "", 5, 0}));
    EXPECT_EQ(g.Content("b.mp3"),
              std::string(127, 'x') + MP3_Tag_Encode({"", "", "", "", "", "", 5, 0}));
}

TEST_P(Mp3Run, Marker_elsewhere_is_no_tag)
{
    const std::string early = "x" + Tagged(heyJoe).substr(1) + "x";
    g.Load({{"a.mp3", early}, {"b.mp3", "TAG" + std::string(126, 'x')}});
    g.Type(tagTitle, "t");
    g.Run();
    const std::string made = MP3_Tag_Encode({"", "t", "", "", "", "", 0, 0});
    EXPECT_EQ(g.Content("a.mp3"), early + made);
    EXPECT_EQ(g.Content("b.mp3"), "TAG" + std::string(126, 'x') + made);
}

// -- Rows that fail.

TEST_P(Mp3Run, Missing_and_foreign_rows_count_one_error_each_and_the_run_goes_on)
{
    g.Load({{"a.mp3", sound},
            {"b.txt", sound},
            {"c.mp3", sound},
            {"d.MP3", sound},
            {"e", sound},
            {"f.txt", sound}});
    g.Disk.Remove(g.Full("a.mp3"));
    g.Disk.Remove(g.Full("f.txt"));
    g.Type(tagTitle, "t");
    g.Run();
    EXPECT_EQ(g.Column("Errors"),
              (Texts{"Missing", "No MP3 Ext", "", "", "No MP3 Ext", "Missing"}));
    EXPECT_EQ(g.Column("UndoName"), (Texts{"", "", "MP3: ", "MP3: ", "", ""}));
    EXPECT_EQ(g.Counts(), "2/4/");
    EXPECT_EQ(g.Content("b.txt"), sound);
    EXPECT_FALSE(g.P.state.RenFailed);
}

TEST_P(Mp3Run, Write_that_fails_counts_twice_and_raises_the_flag)
{
    g.Load({{"a.mp3", Tagged(heyJoe)}, {"b.mp3", Tagged(heyJoe)}, {"c.mp3", Tagged(heyJoe)}});
    g.Disk.ReadOnly = {g.Full("a.mp3")};
    g.Disk.Full = {g.Full("b.mp3")};
    g.List.SetCell(1, g.P.state.colUndoName, "as it was");
    g.Type(tagTitle, "t");
    g.Run();
    EXPECT_EQ(g.Column("Errors"), (Texts{"Unknown", "Unknown", ""}));
    EXPECT_EQ(g.Column("UndoName"), (Texts{"as it was", "", heyJoeRecord}));
    EXPECT_EQ(g.Counts(), "1/4/");
    EXPECT_TRUE(g.P.state.RenFailed);
    EXPECT_EQ(g.Content("a.mp3"), Tagged(heyJoe));
    EXPECT_EQ(g.Content("b.mp3"), Tagged(heyJoe));
}

TEST_P(Mp3Run, Read_only_file_with_the_same_tag_is_identical)
{
    g.Load({{"a.mp3", Tagged(heyJoe)}});
    g.Disk.ReadOnly = {g.Full("a.mp3")};
    g.Type(tagTitle, "Hey");
    g.Run();
    EXPECT_EQ(g.Counts(), "//1");
    EXPECT_FALSE(g.P.state.RenFailed);
}

TEST_P(Mp3Run, File_that_cannot_be_opened_takes_the_way_of_a_new_tag_and_fails_there)
{
    g.Load({{"a.mp3", Tagged(heyJoe)}});
    g.Disk.Closed = {g.Full("a.mp3")};
    g.Type(tagTitle, "t");
    g.Run();
    EXPECT_EQ(g.Column("Errors"), Texts{"Unknown"});
    EXPECT_EQ(g.Counts(), "/2/");
    // With nothing to write it is as good as a file without a tag.
    g.Type(tagTitle, "");
    g.Run();
    EXPECT_EQ(g.Column("Errors"), Texts{""});
    EXPECT_EQ(g.Counts(), "//1");
}

// -- The walk.

TEST_P(Mp3Run, Form_is_read_once_before_the_first_row)
{
    g.Load({{"a.mp3", sound}, {"b.mp3", sound}});
    g.Type(tagTitle, "first");
    g.During(1, [&] {
        g.Type(tagTitle, "second");
        g.Type(tagAlbum, "second");
        g.Main.cboMP3Genre.PersonChoose(3);
    });
    g.Run();
    EXPECT_EQ(g.TagOf("b.mp3"), (MP3Tag{"TAG", "first", "", "", "", "", 0, 0}));
}

TEST_P(Mp3Run, Each_row_is_complete_before_events_come_in_and_a_cancel_stops_behind_it)
{
    g.Load({{"a.mp3", sound}, {"b.txt", sound}, {"c.mp3", sound}});
    g.Type(tagTitle, "t");
    Texts seen;
    g.Desktop.EachTurn = [&](int) {
        seen.push_back(g.Main.lblActionInfo[0].Caption.Get() + " " + g.Main.Caption() + " "
                       + g.Counts() + " " + g.Cell(2, "Errors"));
        g.P.state.ActCancel = seen.size() == 2;
    };
    g.Run();
    g.Desktop.EachTurn = nullptr;
    EXPECT_EQ(seen, (Texts{"Updating MP3 Tags... Tavo 33% 1// ",
                           "Updating MP3 Tags... Tavo 66% 1/1/ No MP3 Ext"}));
    EXPECT_EQ(g.Content("c.mp3"), sound);
    EXPECT_EQ(g.Column("UndoName"), (Texts{"MP3: ", "", ""}));
}

TEST_P(Mp3Run, Rows_are_worked_on_in_the_order_given)
{
    g.Load({{"a.mp3", sound}, {"b.mp3", sound}, {"c.mp3", sound}});
    g.Type(tagTitle, "t");
    g.Disk.Opened.clear();
    MP3_Run(g.P, {3, 1});
    EXPECT_EQ(g.Disk.Opened, (Texts{"W " + g.Full("c.mp3"), "W " + g.Full("a.mp3")}));
    EXPECT_EQ(g.Content("b.mp3"), sound);
}

// -- One row of an undo.

TEST_P(Mp3Run, Undo_brings_the_tag_back_and_the_next_one_does_it_again)
{
    g.Load({{"a.mp3", Tagged(heyJoe)}});
    g.Type(tagTitle, "Ü");
    g.Type(tagComment, "abcdefghijklmnopqrstuvwxyz123");
    g.Main.cboMP3Genre.PersonChoose(125);
    g.Run();
    const std::string after = g.Content("a.mp3");
    RowCounters counters;
    EXPECT_EQ(Undo(counters), Texts{""});
    EXPECT_EQ(g.Content("a.mp3"), Tagged(heyJoe));
    EXPECT_EQ(g.Column("UndoName"),
              Texts{"MP3: 01Ü03Joe0004199929abcdefghijklmnopqrstuvwxyz12301703125"});
    EXPECT_EQ(Undo(counters), Texts{""});
    EXPECT_EQ(g.Content("a.mp3"), after);
    EXPECT_EQ(g.Column("UndoName"), Texts{heyJoeRecord});
    EXPECT_EQ(counters.Done, 2);
    EXPECT_EQ(counters.Errors, 0);
}

TEST_P(Mp3Run, Undo_of_a_new_tag_leaves_an_empty_one)
{
    g.Load({{"a.mp3", sound}});
    g.Type(tagTitle, "Hey");
    g.Type(tagTrack, "5");
    g.Run();
    RowCounters counters;
    EXPECT_EQ(Undo(counters), Texts{""});
    EXPECT_EQ(g.Content("a.mp3"), Tagged({"", "", "", "", "", "", 0, 0}));
    EXPECT_EQ(g.Column("UndoName"), Texts{"MP3: 03Hey00000000"
                                          "015"
                                          "010"});
    EXPECT_EQ(Undo(counters), Texts{""});
    EXPECT_EQ(g.Content("a.mp3"), Tagged({"", "Hey", "", "", "", "", 5, 0}));
}

TEST_P(Mp3Run, Undo_of_a_row_that_fails_counts_once_and_keeps_its_record)
{
    g.Load({{"a.mp3", Tagged(heyJoe)},
            {"b.mp3", Tagged(heyJoe)},
            {"c.mp3", Tagged(heyJoe)},
            {"d.mp3", Tagged(heyJoe)},
            {"e.mp3", Tagged(heyJoe)}});
    g.Type(tagTitle, "t");
    g.Run();
    g.Disk.Remove(g.Full("a.mp3"));
    g.Disk.AddFile(g.Full("b.mp3"), sound);
    g.Disk.ReadOnly = {g.Full("c.mp3")};
    g.Disk.Full = {g.Full("d.mp3")};
    g.Disk.Closed = {g.Full("e.mp3")};
    RowCounters counters;
    EXPECT_EQ(Undo(counters), (Texts{"Missing", "No MP3 Tag", "Unknown", "Unknown", "No MP3 Tag"}));
    EXPECT_EQ(counters.Done, 0);
    EXPECT_EQ(counters.Errors, 5);
    EXPECT_EQ(g.Column("UndoName"), Texts(5, heyJoeRecord));
    EXPECT_EQ(g.Content("b.mp3"), sound);
    EXPECT_TRUE(g.P.state.RenFailed);
}

} // namespace tavo
