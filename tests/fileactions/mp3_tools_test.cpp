// Tags as other programs see and write them.

#include "core/tag_genres.h"
#include "fileactions/mp3_file.h"
#include "fileactions/mp3_tag.h"
#include "mp3_ground.h"
#include "platform/posix/posix_files.h"
#include "support/program_rig.h"
#include "support/temp_folder.h"
#include "toolkit/text.h"

#include <cstdio>
#include <sstream>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

// What a command prints. One that fails ends the test with its text.
std::string Printed(const std::string& command)
{
    std::string text;
    FILE* pipe = popen(("LC_ALL=C.UTF-8 " + command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) {
        ADD_FAILURE() << "cannot start: " << command;
        return text;
    }
    for (int c = fgetc(pipe); c != EOF; c = fgetc(pipe))
        text += static_cast<char>(c);
    EXPECT_EQ(pclose(pipe), 0) << command << '\n' << text;
    return text;
}

// Title, artist ... track, genre, a line each.
std::string ExifTool_Fields(const std::string& path)
{
    return Printed("exiftool -s3 -f -charset ID3=Latin -Title -Artist -Album -Year -Comment -Track "
                   "-Genre '"
                   + path + "'");
}

std::string Id3v2_Write(const std::string& options, const std::string& path)
{
    return Printed("id3v2 --id3v1-only " + options + " '" + path + "'");
}

// Letters and digits alone, in small letters.
std::string Letters(std::string_view text)
{
    std::string letters;
    for (const char c : LCase(text))
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
            letters += c;
    return letters;
}

// A frame of silence, so that the file is music to whoever looks.
std::string Silence()
{
    std::string frame = "\xFF\xFB\x90\x64";
    frame.resize(417);
    return frame + frame;
}

class Mp3Tools : public ::testing::Test {
protected:
    MP3Tag ReadTag(const std::string& name)
    {
        MP3Tag tag;
        MP3_Tag_Read(Files, Folder.Path(name), tag);
        return tag;
    }
    bool WriteTag(const std::string& name, const MP3Tag& tag, bool append)
    {
        return MP3File(Files, Folder.Path(name)).Write(tag, append);
    }

    TempFolder Folder{"mp3"};
    PosixFiles Files;
};

} // namespace

TEST_F(Mp3Tools, Tag_written_here_is_read_by_exiftool)
{
    const struct {
        MP3Tag Tag;
        const char* Wanted;
    } rows[] = {
        {{"", "Title", "Artist", "Album", "1987", "Comment", 12, 17},
         "Title\nArtist\nAlbum\n1987\nComment\n12\nRock\n"},
        {{"", "Ä “€” ÿ", "Björk", "ñ", "2024", "28 characters of a comment 8", 255, 79},
         "Ä “€” ÿ\nBjörk\nñ\n2024\n28 characters of a comment 8\n255\nHard Rock\n"},
        {{"", "123456789012345678901234567890", "a", "b", "0001", "c", 1, 125},
         "123456789012345678901234567890\na\nb\n0001\nc\n1\nDance Hall\n"},
    };
    for (const auto& row : rows) {
        Folder.Write("a.mp3", Silence());
        ASSERT_TRUE(WriteTag("a.mp3", row.Tag, true));
        EXPECT_EQ(ExifTool_Fields(Folder.Path("a.mp3")), row.Wanted);
        EXPECT_EQ(Folder.Read("a.mp3"), Silence() + MP3_Tag_Encode(row.Tag));
    }
}

TEST_F(Mp3Tools, Tag_written_here_is_read_by_id3v2)
{
    Folder.Write("a.mp3", Silence());
    ASSERT_TRUE(
        WriteTag("a.mp3", {"", "Title", "Artist", "Album", "1987", "Comment", 12, 17}, true));
    const std::string listed = Printed("id3v2 -l '" + Folder.Path("a.mp3") + "'");
    for (const char* part :
         {"Title", "Artist", "Album", "Year: 1987", "Comment", "Track: 12", "(17)"})
        EXPECT_NE(listed.find(part), std::string::npos) << part << '\n' << listed;
}

TEST_F(Mp3Tools, Tag_written_by_id3v2_is_read_and_changed_here)
{
    Folder.Write("a.mp3", Silence());
    Id3v2_Write("-t 'Hey' -a 'Joe' -A 'Best of' -y 1999 -c 'a comment' -T 7 -g 17",
                Folder.Path("a.mp3"));
    const MP3Tag tag = ReadTag("a.mp3");
    EXPECT_EQ(tag, (MP3Tag{"TAG", "Hey", "Joe", "Best of", "1999", "a comment", 7, 17}));

    MP3Tag changed = tag;
    changed.Title = "Ho";
    changed.Genre = 8;
    ASSERT_TRUE(WriteTag("a.mp3", changed, false));
    EXPECT_EQ(Folder.Read("a.mp3").size(), Silence().size() + mp3TagSize);
    EXPECT_EQ(ExifTool_Fields(Folder.Path("a.mp3")),
              "Ho\nJoe\nBest of\n1999\na comment\n7\nJazz\n");

    Id3v2_Write("-t 'Again' -T 9", Folder.Path("a.mp3"));
    EXPECT_EQ(ReadTag("a.mp3"),
              (MP3Tag{"TAG", "Again", "Joe", "Best of", "1999", "a comment", 9, 8}));
}

// Blanks and hyphens are a matter of taste, and one name is spelled otherwise.
TEST_F(Mp3Tools, Every_genre_has_the_number_that_others_know_it_by)
{
    constexpr std::size_t spelledOtherwise = 67;
    std::istringstream list(Printed("id3v2 -L"));
    Texts others;
    for (std::string line; std::getline(list, line);)
        if (const std::size_t colon = line.find(": "); colon != std::string::npos)
            others.push_back(Letters(line.substr(colon)));
    ASSERT_GE(others.size(), Tag_Genres().size());
    for (std::size_t i = 0; i < Tag_Genres().size(); ++i)
        EXPECT_EQ(Letters(Tag_Genres()[i]), i == spelledOtherwise ? "psychadelic" : others[i]) << i;
    EXPECT_EQ(others[spelledOtherwise], "psychedelic");
}

TEST_F(Mp3Tools, What_is_no_file_opens_for_nothing)
{
    Folder.MakeFolder("a.mp3");
    Folder.MakeLink("b.mp3", "nowhere.mp3");
    for (const char* name : {"a.mp3", "b.mp3", "gone.mp3"}) {
        EXPECT_EQ(ReadTag(name).Tag, "") << name;
        EXPECT_FALSE(WriteTag(name, {}, true)) << name;
    }
    EXPECT_FALSE(Folder.Has("nowhere.mp3"));
    EXPECT_FALSE(Folder.Has("gone.mp3"));
}

TEST_F(Mp3Tools, Link_leads_to_its_file)
{
    Folder.Write("a.mp3", "sound");
    Folder.MakeLink("b.mp3", "a.mp3");
    ASSERT_TRUE(WriteTag("b.mp3", {"", "t", "", "", "", "", 0, 0}, true));
    EXPECT_EQ(ReadTag("a.mp3").Title, "t");
    EXPECT_EQ(Folder.LinkTarget("b.mp3"), "a.mp3");
}

// A whole run on real files, looked at from outside.
TEST(Mp3Journey, Run_and_undo_on_real_files)
{
    RealRig rig("mp3");
    rig.Folder.Write("a.mp3", Silence());
    rig.Folder.Write("b.mp3", Silence());
    Id3v2_Write("-t 'Hey' -a 'Joe' -T 7 -g 17", rig.Folder.Path("b.mp3"));
    const std::string before = rig.Folder.Read("b.mp3");
    Program& p = rig.Start();
    rig.MakeList();
    ASSERT_EQ(rig.Column("Name"), (Texts{"a.mp3", "b.mp3"}));
    Mode_Set(p, modeMp3Tag);
    p.main.txtMP3[tagTitle].PersonText("Ü");
    p.main.txtMP3[tagTrack].PersonText("12");
    for (const int field : {tagArtist, tagAlbum, tagComment, tagYear, tagGenre})
        p.main.chkMP3[field].Value = 0;
    MP3_Run(p, {1, 2});
    EXPECT_EQ(rig.Column("Errors"), (Texts{"", ""}));
    EXPECT_EQ(ExifTool_Fields(rig.Folder.Path("a.mp3")), "Ü\n\n\n\n\n12\nBlues\n");
    EXPECT_EQ(ExifTool_Fields(rig.Folder.Path("b.mp3")), "Ü\nJoe\n\n\n\n12\nRock\n");
    RowCounters counters;
    EXPECT_EQ(MP3_Undo_Row(p, 2, counters), "");
    EXPECT_EQ(rig.Folder.Read("b.mp3"), before);
    EXPECT_EQ(counters.Done, 1);
}

TEST(Mp3Journey, File_that_no_one_may_write_is_left_as_it_is)
{
    const TempFolder folder("mp3");
    const std::string content = Silence() + MP3_Tag_Encode({"", "t", "", "", "", "", 1, 2});
    folder.Write("a.mp3", content);
    folder.SetMode("a.mp3", 0444);
    folder.SetMode("", 0755);
    EXPECT_EQ(AsPlainUser([&] {
                  PosixFiles files;
                  MP3File file(files, folder.Path("a.mp3"));
                  MP3Tag tag;
                  file.Read(tag);
                  return (tag.Title == "t" ? 1 : 0) + (file.Write({}, false) ? 2 : 0);
              }),
              1);
    EXPECT_EQ(folder.Read("a.mp3"), content);
}

} // namespace tavo
