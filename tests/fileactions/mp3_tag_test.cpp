#include "fileactions/mp3_tag.h"

#include "mp3_ground.h"

namespace tavo {

namespace {

std::string Padded(std::string text, std::size_t size, char with = '\0')
{
    text.resize(size, with);
    return text;
}

// The bytes of a tag as the format lays them down, put together by hand.
std::string Bytes(const std::string& marker, const std::string& title, const std::string& artist,
                  const std::string& album, const std::string& year, const std::string& comment,
                  int track, int genre, char padding = '\0')
{
    return marker + Padded(title, 30, padding) + Padded(artist, 30, padding)
           + Padded(album, 30, padding) + Padded(year, 4, padding) + Padded(comment, 29, padding)
           + static_cast<char>(track) + static_cast<char>(genre);
}

const MP3Tag heyJoe{"TAG", "Hey", "Joe", "", "1999", "", 7, 17};

std::string Repeated(int count, const std::string& part)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += part;
    return text;
}

} // namespace

// -- The bytes.

TEST(MP3Tag, Each_field_lies_at_its_place_in_the_128_bytes)
{
    const MP3Tag tag{"TAG", "Title", "Artist", "Album", "1987", "Comment", 12, 125};
    const std::string bytes = Bytes("TAG", "Title", "Artist", "Album", "1987", "Comment", 12, 125);
    ASSERT_EQ(bytes.size(), mp3TagSize);
    EXPECT_EQ(MP3_Tag_Encode(tag), bytes);
    EXPECT_EQ(MP3_Tag_Decode(bytes), tag);
    const struct {
        std::size_t FromEnd;
        const char* Wanted;
    } rows[] = {{128, "TAG"}, {125, "Title"},  {95, "Artist"}, {65, "Album"},
                {35, "1987"}, {31, "Comment"}, {2, "\x0C\x7D"}};
    for (const auto& row : rows)
        EXPECT_EQ(bytes.find(row.Wanted), mp3TagSize - row.FromEnd) << row.Wanted;
}

TEST(MP3Tag, Marker_is_read_in_any_case_and_written_in_capitals)
{
    const struct {
        const char *Marker, *Tag;
    } rows[] = {{"TAG", "TAG"},
                {"tag", "TAG"},
                {"Tag", "TAG"},
                {"tAG", "TAG"},
                {"TAX", "No"},
                {"No ", "No"},
                {"ID3", "No"},
                {"T\0G", "No"},
                {"\xD4"
                 "AG",
                 "No"}};
    for (const auto& row : rows) {
        const std::string bytes =
            Bytes(std::string(row.Marker, 3), "Title", "A", "B", "1987", "C", 1, 2);
        const MP3Tag tag = MP3_Tag_Decode(bytes);
        EXPECT_EQ(tag.Tag, row.Tag) << row.Marker;
        EXPECT_EQ(MP3_Tag_Encode(tag).substr(0, 3), "TAG") << row.Marker;
    }
}

TEST(MP3Tag, Without_the_marker_all_fields_are_empty)
{
    const MP3Tag none{"No", "", "", "", "", "", 0, 0};
    EXPECT_EQ(MP3_Tag_Decode(Bytes("ABC", "Title", "A", "B", "1987", "C", 1, 2)), none);
    EXPECT_EQ(MP3_Tag_Decode(""), none);
    EXPECT_EQ(MP3_Tag_Decode("TA"), none);
    EXPECT_EQ(MP3_Tag_Decode(" TAG"), none);
}

TEST(MP3Tag, Field_ends_at_its_first_NUL_and_keeps_its_blanks)
{
    using namespace std::string_literals;
    const MP3Tag cut =
        MP3_Tag_Decode(Bytes("TAG", "a\0b"s, "\0x"s, " l "s, "19\0\0"s, "c\0d"s, 0, 0));
    EXPECT_EQ(cut, (MP3Tag{"TAG", "a", "", " l ", "19", "c", 0, 0}));

    const MP3Tag blank = MP3_Tag_Decode(Bytes("TAG", "Hey", "", "", "85", "", 32, 32, ' '));
    EXPECT_EQ(blank.Title, Padded("Hey", 30, ' '));
    EXPECT_EQ(blank.Year, "85  ");
    EXPECT_FALSE(MP3_Tag_Same(blank, {"TAG", "Hey", "", "", "85", "", 32, 32}));
    EXPECT_EQ(MP3_Tag_Encode(blank), Bytes("TAG", "Hey", "", "", "85", "", 32, 32, ' '));
}

TEST(MP3Tag, Comment_of_29_fills_its_bytes_and_stays_apart_from_the_track)
{
    const std::string comment = "abcdefghijklmnopqrstuvwxyz123";
    ASSERT_EQ(comment.size(), 29u);
    const MP3Tag tag{"TAG", "", "", "", "", comment, 200, 255};
    const std::string bytes = MP3_Tag_Encode(tag);
    EXPECT_EQ(bytes[125], '3');
    EXPECT_EQ(static_cast<unsigned char>(bytes[126]), 200);
    EXPECT_EQ(static_cast<unsigned char>(bytes[127]), 255);
    EXPECT_EQ(MP3_Tag_Decode(bytes), tag);
}

TEST(MP3Tag, Thirtieth_character_of_a_plain_comment_is_the_track)
{
    std::string bytes = Bytes("TAG", "", "", "", "", "", 0, 0);
    bytes.replace(97, 30, "abcdefghijklmnopqrstuvwxyz1234");
    const MP3Tag tag = MP3_Tag_Decode(bytes);
    EXPECT_EQ(tag.Comment, "abcdefghijklmnopqrstuvwxyz123");
    EXPECT_EQ(tag.Track, '4');
}

TEST(MP3Tag, Text_too_long_is_cut_to_its_field)
{
    const std::string text = Repeated(5, "0123456789");
    const MP3Tag tag = MP3_Tag_Decode(MP3_Tag_Encode({"", text, text, text, text, text, 1, 2}));
    EXPECT_EQ(tag, (MP3Tag{"TAG", text.substr(0, 30), text.substr(0, 30), text.substr(0, 30),
                           "0123", text.substr(0, 29), 1, 2}));
}

// A short file is read from its front, and what it lacks reads as NULs.
TEST(MP3Tag, Short_tag_reads_as_if_NULs_followed)
{
    EXPECT_EQ(MP3_Tag_Decode("TAG"), (MP3Tag{"TAG", "", "", "", "", "", 0, 0}));
    EXPECT_EQ(MP3_Tag_Decode("tagged"), (MP3Tag{"TAG", "ged", "", "", "", "", 0, 0}));
    const std::string whole = Bytes("TAG", "T", "A", "B", "1987", "C", 3, 4);
    EXPECT_EQ(MP3_Tag_Decode(whole.substr(0, 127)),
              (MP3Tag{"TAG", "T", "A", "B", "1987", "C", 3, 0}));
}

TEST(MP3Tag, Every_byte_goes_through_text_and_back)
{
    for (int byte = 1; byte < 256; ++byte) {
        const std::string field(30, static_cast<char>(byte));
        const std::string bytes =
            Bytes("TAG", field, field, field, field.substr(0, 4), field.substr(0, 29), byte, byte);
        const MP3Tag tag = MP3_Tag_Decode(bytes);
        EXPECT_EQ(MP3_Tag_Encode(tag), bytes) << byte;
        EXPECT_EQ(MP3_Tag_Encode(MP3_Undo_Parse(MP3_Undo_Build(tag))), bytes) << byte;
    }
}

// Bytes that would be one character in UTF-8 are two here.
TEST(MP3Tag, Bytes_that_look_like_UTF_8_are_single_characters)
{
    const std::string pairs = Repeated(15, "\xC3\xA9");
    const MP3Tag tag = MP3_Tag_Decode(Bytes("TAG", pairs, "", "", "", "", 0, 0));
    EXPECT_EQ(tag.Title, Repeated(15, "Ã©"));
    EXPECT_EQ(MP3_Tag_Encode(tag), Bytes("TAG", pairs, "", "", "", "", 0, 0));
    EXPECT_EQ(MP3_Undo_Build(tag).substr(0, 7), "MP3: 30");
}

TEST(MP3Tag, Character_outside_the_page_becomes_a_question_mark)
{
    const struct {
        const char *Text, *Bytes, *Fit;
    } rows[] = {
        {"plain", "plain", "plain"}, {"Ärger für 5 €", "\xC4rger f\xFCr 5 \x80", "Ärger für 5 €"},
        {"日本 č", "?? ?", "?? ?"},  {"＊", "?", "?"},
        {"\xFFx", "\xFFx", "ÿx"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(MP3_Tag_Encode({"", row.Text, "", "", "", "", 0, 0}),
                  Bytes("TAG", row.Bytes, "", "", "", "", 0, 0))
            << row.Text;
        EXPECT_EQ(MP3_Text_Fit(row.Text), row.Fit) << row.Text;
    }
}

TEST(MP3Tag, Same_looks_at_all_seven_fields_and_not_at_the_marker)
{
    EXPECT_TRUE(MP3_Tag_Same(heyJoe, heyJoe));
    MP3Tag unmarked = heyJoe;
    unmarked.Tag = "No";
    EXPECT_TRUE(MP3_Tag_Same(heyJoe, unmarked));
    const MP3Tag others[] = {
        {"TAG", "hey", "Joe", "", "1999", "", 7, 17},
        {"TAG", "Hey", "Joe ", "", "1999", "", 7, 17},
        {"TAG", "Hey", "Joe", "x", "1999", "", 7, 17},
        {"TAG", "Hey", "Joe", "", "1998", "", 7, 17},
        {"TAG", "Hey", "Joe", "", "1999", "x", 7, 17},
        {"TAG", "Hey", "Joe", "", "1999", "", 8, 17},
        {"TAG", "Hey", "Joe", "", "1999", "", 7, 18},
    };
    for (const MP3Tag& other : others)
        EXPECT_FALSE(MP3_Tag_Same(heyJoe, other)) << ::testing::PrintToString(other);
}

// -- The undo record.

TEST(MP3Undo, Record_holds_each_field_behind_its_length)
{
    EXPECT_EQ(MP3_Undo_Build(heyJoe), "MP3: 03Hey03Joe00041999000170217");
    EXPECT_EQ(MP3_Undo_Parse("MP3: 03Hey03Joe00041999000170217"), heyJoe);
    const MP3Tag wide{"TAG", Repeated(30, "ü"), "", "a 05b", "", "12", 255, 0};
    EXPECT_EQ(MP3_Undo_Build(wide), "MP3: 30" + Repeated(30, "ü")
                                        + "0005a 05b000212"
                                          "03255"
                                          "010");
    EXPECT_EQ(MP3_Undo_Parse(MP3_Undo_Build(wide)), wide);
}

TEST(MP3Undo, File_without_a_tag_leaves_the_prefix_alone)
{
    for (const char* marker : {"No", ""})
        EXPECT_EQ(MP3_Undo_Build({marker, "x", "", "", "", "", 1, 1}), "MP3: ") << marker;
    EXPECT_EQ(MP3_Undo_Parse("MP3: "), (MP3Tag{"TAG", "", "", "", "", "", 0, 0}));
}

TEST(MP3Undo, Field_takes_its_length_and_text_off_the_front)
{
    const struct {
        const char *Record, *Value, *Rest;
    } rows[] = {
        {"03Hey03Joe", "Hey", "03Joe"},
        {"00x", "", "x"},
        {"02äöü", "äö", "ü"},
        {"99ab", "ab", ""},
        {"7", "", ""},
        {"", "", ""},
        {"xyHey", "", "Hey"},
        {"-5Hey", "", "Hey"},
        {" 2Hey", "He", "y"},
    };
    for (const auto& row : rows) {
        std::string record = row.Record;
        EXPECT_EQ(MP3_Undo_Field(record), row.Value) << row.Record;
        EXPECT_EQ(record, row.Rest) << row.Record;
    }
}

TEST(MP3Undo, Damaged_record_gives_what_can_be_read)
{
    const struct {
        const char* Record;
        MP3Tag Wanted;
    } rows[] = {
        {"", {"TAG", "", "", "", "", "", 0, 0}},
        {"MP3", {"TAG", "", "", "", "", "", 0, 0}},
        {"MP3: 0", {"TAG", "", "", "", "", "", 0, 0}},
        {"MP3: 03He", {"TAG", "He", "", "", "", "", 0, 0}},
        {"MP3: 03Hey03Joe", {"TAG", "Hey", "Joe", "", "", "", 0, 0}},
        {"MP3: 00000000000325603999", {"TAG", "", "", "", "", "", 0, 0}},
        {"MP3: 000000000001x0217", {"TAG", "", "", "", "", "", 0, 17}},
        {"MP3: 03Hey03Joe00041999000170217 and more", heyJoe},
    };
    for (const auto& row : rows)
        EXPECT_EQ(MP3_Undo_Parse(row.Record), row.Wanted) << row.Record;
}

} // namespace tavo
