#include "fileactions/mp3_panel.h"

#include "mp3_ground.h"

#include "toolkit/text.h"

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

const Texts noTag{"No Tag Found", "", "", "", "", "", ""};

class Mp3Panel : public ::testing::TestWithParam<MemoryDisk::Flavour> {
protected:
    Mp3Panel() : g(GetParam()) {}

    void Show(const MP3Tag& tag)
    {
        g.Disk.AddFile(g.Full("a.mp3"), "sound" + MP3_Tag_Encode(tag));
        MP3_Tag_Show(g.P, g.Full("a.mp3"));
    }
    // Goes to a box, types, and leaves for another.
    std::string TypeAndLeave(int field, const std::string& text)
    {
        TextBox& box = g.Main.txtMP3[field];
        box.SetFocus();
        EXPECT_TRUE(box.HasFocus()) << field;
        box.PersonText(text);
        g.Main.txtMP3[tagTitle].SetFocus();
        return box.Text;
    }

    Mp3Ground g;
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Mp3Panel, mp3Dialects, Mp3Dialect_Name);

} // namespace

// -- Showing a tag.

TEST_P(Mp3Panel, Tag_fills_the_boxes_and_ticks_none)
{
    Show({"", "Title", "Artist", "Album", "1987", "Comment", 12, 17});
    EXPECT_EQ(g.Boxes(), (Texts{"Title", "Artist", "Album", "Comment", "1987", "12", "Rock"}));
    EXPECT_EQ(g.Main.cboMP3Genre.ListIndex(), 17);
    EXPECT_EQ(g.Panel(2), "ID3v1.1 Tag was Found...");
    EXPECT_EQ(g.Ticks(), "-------");
}

TEST_P(Mp3Panel, Track_0_shows_as_0_and_genre_0_as_Blues)
{
    Show({"", "", "", "", "", "", 0, 0});
    EXPECT_EQ(g.Boxes(), (Texts{"", "", "", "", "", "0", "Blues"}));
}

TEST_P(Mp3Panel, Genre_without_a_name_leaves_the_choice)
{
    for (const int genre : {126, 255}) {
        g.Main.cboMP3Genre.PersonChoose(8);
        Show({"", "t", "", "", "", "", 0, static_cast<std::uint8_t>(genre)});
        EXPECT_EQ(g.Main.cboMP3Genre.ListIndex(), 8) << genre;
        EXPECT_EQ(g.Ticks(), "-------") << genre;
    }
    Show({"", "t", "", "", "", "", 0, 125});
    EXPECT_EQ(g.Main.cboMP3Genre.ListIndex(), 125);
}

TEST_P(Mp3Panel, Without_a_tag_the_title_says_so_and_the_rest_is_empty)
{
    const struct {
        const char* What;
        const char* Name;
    } rows[] = {{"no tag", "plain.mp3"}, {"no file", "gone.mp3"}, {"not to be opened", "shut.mp3"}};
    g.Disk.AddFile(g.Full("plain.mp3"), "sound");
    g.Disk.AddFile(g.Full("shut.mp3"), MP3_Tag_Encode({"", "t", "", "", "", "", 0, 0}));
    g.Disk.Closed = {g.Full("shut.mp3")};
    for (const auto& row : rows) {
        Show({"", "Title", "Artist", "Album", "1987", "Comment", 12, 17});
        MP3_Tag_Show(g.P, g.Full(row.Name));
        EXPECT_EQ(g.Boxes(), noTag) << row.What;
        EXPECT_EQ(g.Main.cboMP3Genre.ListIndex(), -1) << row.What;
        EXPECT_EQ(g.Panel(2), "No ID3v1.1 Tag Found...") << row.What;
        EXPECT_EQ(g.Ticks(), "-------") << row.What;
    }
    EXPECT_EQ(g.Disk.OpenFiles(), 0);
}

TEST_P(Mp3Panel, Empty_path_is_a_file_without_a_tag_and_opens_none)
{
    Show({"", "Title", "Artist", "Album", "1987", "Comment", 12, 17});
    g.Disk.Opened.clear();
    MP3_Tag_Show(g.P, "");
    EXPECT_EQ(g.Boxes(), noTag);
    EXPECT_EQ(g.Panel(2), "No ID3v1.1 Tag Found...");
    EXPECT_TRUE(g.Disk.Opened.empty());
}

TEST_P(Mp3Panel, Showing_takes_away_the_ticks_of_before)
{
    for (int field = 1; field <= 7; ++field)
        g.Tick(field);
    MP3_Tag_Show(g.P, "");
    EXPECT_EQ(g.Ticks(), "-------");
}

TEST_P(Mp3Panel, File_is_opened_for_reading_alone)
{
    g.Disk.Opened.clear();
    Show({"", "t", "", "", "", "", 0, 0});
    EXPECT_EQ(g.Disk.Opened, Texts{"R " + g.Full("a.mp3")});
}

// -- The fields.

TEST_P(Mp3Panel, Change_of_a_field_ticks_its_box)
{
    const char* wanted[] = {"1------", "12-----", "123----", "1234---", "12345--", "123456-"};
    for (int field = 1; field <= 6; ++field) {
        g.Main.txtMP3[field].Text = "5"; // from code too
        EXPECT_EQ(g.Ticks(), wanted[field - 1]) << field;
    }
    g.Main.cboMP3Genre.PersonChoose(0);
    EXPECT_EQ(g.Ticks(), "1234567");
}

TEST_P(Mp3Panel, Genre_chosen_once_more_ticks_again)
{
    g.Main.cboMP3Genre.PersonChoose(4);
    g.Tick(tagGenre, false);
    g.Main.cboMP3Genre.PersonChoose(4);
    EXPECT_EQ(g.Ticks(), "------7");
}

TEST_P(Mp3Panel, Entering_a_field_selects_it_and_is_remembered)
{
    for (int field = 1; field <= 6; ++field) {
        TextBox& box = g.Main.txtMP3[field];
        box.Text = "äbc";
        box.SetFocus();
        EXPECT_EQ(box.SelStart(), 0) << field;
        EXPECT_EQ(box.SelLength(), Len(box.Text.Get())) << field;
        EXPECT_EQ(g.P.state.FieldFocus, field);
    }
    g.Main.cboMP3Genre.SetFocus();
    EXPECT_EQ(g.P.state.FieldFocus, 7);
    for (int field = 1; field <= 7; ++field) {
        g.Main.chkMP3[field].SetFocus();
        EXPECT_EQ(g.P.state.FieldFocus, field);
    }
}

TEST_P(Mp3Panel, Year_and_track_take_digits_and_a_point_alone)
{
    for (int field = 1; field <= 6; ++field) {
        const bool filtered = field == tagYear || field == tagTrack;
        for (const int key : std::initializer_list<int>{'0', '9', '.', 8, 3, 22, 24, 26, 'a', ' ',
                                                        '-', '/', ':', 0xE9}) {
            const bool passes = !filtered || (key >= '0' && key <= '9') || key == '.' || key < ' ';
            int filteredKey = key;
            g.Main.txtMP3[field].KeyPress(filteredKey);
            EXPECT_EQ(filteredKey, passes ? key : 0) << field << ' ' << key;
        }
    }
}

TEST_P(Mp3Panel, Year_and_track_are_brought_into_their_bounds_on_leaving)
{
    const struct {
        int Field;
        const char *Text, *Wanted;
    } rows[] = {
        {tagYear, "85", "1000"},
        {tagYear, "1000", "1000"},
        {tagYear, "999", "1000"},
        {tagYear, "9999", "9999"},
        {tagYear, "1987", "1987"},
        {tagYear, "", ""},
        {tagYear, "x", "1000"},
        {tagYear, ".", "1000"},
        {tagTrack, "0", "0"},
        {tagTrack, "255", "255"},
        {tagTrack, "256", "255"},
        {tagTrack, "999", "255"},
        {tagTrack, "", ""},
        {tagTrack, "-1", "0"},
        {tagTrack, "007", "007"},
        {tagComment, "85", "85"},
        {tagAlbum, "9999999", "9999999"},
    };
    for (const auto& row : rows) {
        g.Main.txtMP3[row.Field].Text = "1500";
        EXPECT_EQ(TypeAndLeave(row.Field, row.Text), row.Wanted) << row.Field << ' ' << row.Text;
    }
}

TEST_P(Mp3Panel, Year_from_a_file_is_forced_and_ticked_only_by_leaving_it)
{
    Show({"", "t", "", "", "85", "", 0, 0});
    EXPECT_EQ(g.Main.txtMP3[tagYear].Text.Get(), "85");
    g.Main.txtMP3[tagYear].SetFocus();
    EXPECT_EQ(g.Ticks(), "-------");
    g.Main.txtMP3[tagTrack].SetFocus();
    EXPECT_EQ(g.Main.txtMP3[tagYear].Text.Get(), "1000");
    EXPECT_EQ(g.Ticks(), "----5--");
}

} // namespace tavo
