#include "platform/profile_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tavo {
namespace {

using namespace std::string_literals;
using Text = std::optional<std::string>;

constexpr std::nullopt_t none = std::nullopt;

std::string Written(const std::string& file, ProfileDialect dialect, const ProfileChange& change)
{
    ProfileText text(file, dialect);
    text.Write(change);
    // What lies in memory is what a new read of the bytes would give.
    const ProfileText again(text.Bytes(), dialect);
    EXPECT_EQ(again.Lines().size(), text.Lines().size());
    for (std::size_t index = 0; index < std::min(again.Lines().size(), text.Lines().size());
         ++index) {
        EXPECT_EQ(again.Lines()[index].Text, text.Lines()[index].Text);
        EXPECT_EQ(again.Lines()[index].End, text.Lines()[index].End);
        EXPECT_EQ(again.Lines()[index].Folded, text.Lines()[index].Folded);
        EXPECT_EQ(again.Lines()[index].Value, text.Lines()[index].Value);
    }
    return text.Bytes();
}

// One kind of file. The rows below are ASCII with LF, and are put into it.
struct Ground {
    const char* What;
    ProfileDialect Dialect;
    std::string Mark;
    std::string LineEnd;
    int UnitBytes = 1;
};

const std::vector<Ground>& Grounds()
{
    static const std::vector<Ground> grounds = {
        {"Linux, LF", ProfileDialect::Linux, "", "\n"},
        {"Linux, CR LF", ProfileDialect::Linux, "", "\r\n"},
        {"Linux, CR", ProfileDialect::Linux, "", "\r"},
        {"Linux, UTF-8 mark", ProfileDialect::Linux, "\xEF\xBB\xBF", "\n"},
        {"Linux, UTF-16", ProfileDialect::Linux, "\xFF\xFE", "\r\n", 2},
        {"Windows", ProfileDialect::Windows, "", "\r\n"},
        {"Windows, UTF-8 mark", ProfileDialect::Windows, "\xEF\xBB\xBF", "\r\n"},
        {"Windows, UTF-16", ProfileDialect::Windows, "\xFF\xFE", "\r\n", 2},
    };
    return grounds;
}

std::string OnGround(const std::string& text, const std::string& lineEnd, const Ground& ground)
{
    std::string bytes = ground.Mark;
    const auto add = [&](char byte) {
        bytes.push_back(byte);
        bytes.append(static_cast<std::size_t>(ground.UnitBytes) - 1, '\0');
    };
    for (const char byte : text) {
        if (byte != '\n')
            add(byte);
        else
            for (const char end : lineEnd)
                add(end);
    }
    return bytes;
}

struct WriteRow {
    const char* What;
    std::string Before;
    std::string Section;
    Text Key, Value;
    std::string After;
};

void CheckAll(const std::vector<WriteRow>& rows)
{
    for (const Ground& ground : Grounds()) {
        for (const WriteRow& row : rows) {
            const bool hasEnd = row.Before.find('\n') != row.Before.npos;
            const std::string newEnd =
                hasEnd || ground.Dialect == ProfileDialect::Windows ? ground.LineEnd : "\n";
            EXPECT_EQ(Written(OnGround(row.Before, ground.LineEnd, ground), ground.Dialect,
                              {row.Section, row.Key, row.Value}),
                      OnGround(row.After, newEnd, ground))
                << ground.What << ": " << row.What;
        }
    }
}

TEST(ProfileWrite, New_sections_go_to_the_end)
{
    CheckAll({
        {"a new file", "", "S", "k", "v", "[S]\nk=v\n"},
        {"no blank line before", "[A]\na=1\n", "S", "k", "v", "[A]\na=1\n[S]\nk=v\n"},
        {"blank lines stay", "[A]\na=1\n\n\n", "S", "k", "v", "[A]\na=1\n\n\n[S]\nk=v\n"},
        {"a missing line end", "[A]\na=1", "S", "k", "v", "[A]\na=1\n[S]\nk=v\n"},
        {"a missing line end of one line", "[A]", "S", "k", "v", "[A]\n[S]\nk=v\n"},
        {"behind text alone", "; c\n", "S", "k", "v", "; c\n[S]\nk=v\n"},
        {"no section, no bracket", "[S\nk=1\n", "S", "k", "v", "[S\nk=1\n[S]\nk=v\n"},
        {"an empty value", "", "S", "k", "", "[S]\nk=\n"},
    });
}

TEST(ProfileWrite, New_keys_go_behind_the_last_line_of_their_section)
{
    CheckAll({
        {"at the end", "[S]\na=1\n", "S", "k", "v", "[S]\na=1\nk=v\n"},
        {"in the middle", "[S]\na=1\n[T]\nb=2\n", "S", "k", "v", "[S]\na=1\nk=v\n[T]\nb=2\n"},
        {"behind comments", "[S]\na=1\n; c\n[T]\n", "S", "k", "v", "[S]\na=1\n; c\nk=v\n[T]\n"},
        {"behind what is no key", "[S]\nwhat\n[T]\n", "S", "k", "v", "[S]\nwhat\nk=v\n[T]\n"},
        {"before blank lines", "[S]\na=1\n\n \t\n[T]\n", "S", "k", "v",
         "[S]\na=1\nk=v\n\n \t\n[T]\n"},
        {"before blank lines at the end", "[S]\na=1\n\n", "S", "k", "v", "[S]\na=1\nk=v\n\n"},
        {"before a blank line without end", "[S]\na=1\n ", "S", "k", "v", "[S]\na=1\nk=v\n "},
        {"behind blank lines inside", "[S]\n\na=1\n", "S", "k", "v", "[S]\n\na=1\nk=v\n"},
        {"a section of nothing", "[S]\n[T]\n", "S", "k", "v", "[S]\nk=v\n[T]\n"},
        {"a section of blank lines", "[S]\n\n\n[T]\n", "S", "k", "v", "[S]\nk=v\n\n\n[T]\n"},
        {"a missing line end", "[S]\na=1", "S", "k", "v", "[S]\na=1\nk=v\n"},
        {"a header without end", "[S]", "S", "k", "v", "[S]\nk=v\n"},
        {"the first of two sections", "[S]\na=1\n[s]\nk=2\n", "S", "k", "v",
         "[S]\na=1\nk=v\n[s]\nk=2\n"},
        {"names without case", "[sEC]\na=1\n", "Sec", "k", "v", "[sEC]\na=1\nk=v\n"},
        {"junk behind the header stays", " [ S ] ; c\n", "S", "k", "v", " [ S ] ; c\nk=v\n"},
        {"a commented key is none", "[S]\n;k=1\n", "S", "k", "v", "[S]\n;k=1\nk=v\n"},
        {"a key without sign is none", "[S]\nk\n", "S", "k", "v", "[S]\nk\nk=v\n"},
        {"before all headers", "a=1\n[S]\n", "", "k", "v", "a=1\nk=v\n[S]\n"},
        {"before all headers, none there", "[S]\n", "", "k", "v", "k=v\n[S]\n"},
        {"before all headers, new file", "", "", "k", "v", "k=v\n"},
    });
}

TEST(ProfileWrite, A_key_that_is_there_is_changed_in_place)
{
    CheckAll({
        {"its value alone", "[S]\nk=1\nb=2\n", "S", "k", "v", "[S]\nk=v\nb=2\n"},
        {"the file's case stays", "[S]\nKeY=1\n", "s", "kEy", "v", "[S]\nKeY=v\n"},
        {"what stands before the value stays", "[S]\n \tk \t= \t1 \t\n", "S", "k", "v",
         "[S]\n \tk \t= \tv\n"},
        {"no value yet", "[S]\nk=\n", "S", "k", "v", "[S]\nk=v\n"},
        {"no value any more", "[S]\nk=1\n", "S", "k", "", "[S]\nk=\n"},
        {"a missing line end stays away", "[S]\nk=1", "S", "k", "v", "[S]\nk=v"},
        {"a sign in the value", "[S]\nk=a=b\n", "S", "k", "v", "[S]\nk=v\n"},
        {"a comment is part of the value", "[S]\nk=1 ; c\n", "S", "k", "v", "[S]\nk=v\n"},
        {"the first of two keys", "[S]\nk=1\nK=2\n", "S", "k", "v", "[S]\nk=v\nK=2\n"},
        {"the first of two sections", "[S]\nk=1\n[S]\nk=2\n", "S", "k", "v",
         "[S]\nk=v\n[S]\nk=2\n"},
        {"only the first section", "[S]\n[S]\nk=2\n", "S", "k", "v", "[S]\nk=v\n[S]\nk=2\n"},
        {"longer", "[S]\nk=1\n", "S", "k", std::string(3000, 'x'),
         "[S]\nk=" + std::string(3000, 'x') + "\n"},
        {"before all headers", "k=1\n[S]\nk=2\n", "", "k", "v", "k=v\n[S]\nk=2\n"},
        {"an empty name", "[S]\n=1\n", "S", "", "v", "[S]\n=v\n"},
    });
}

TEST(ProfileWrite, A_value_that_is_there_already_changes_nothing)
{
    CheckAll({
        {"the same", "[S]\nk=v\n", "S", "k", "v", "[S]\nk=v\n"},
        {"blanks round it", "[ S ] x\n k = v \t\n", "S", "K", "v", "[ S ] x\n k = v \t\n"},
        {"blanks in front of the new one", "[S]\nk=v\n", "S", "k", " \tv", "[S]\nk=v\n"},
        {"both empty", "[S]\nk= \t\n", "S", "k", " ", "[S]\nk= \t\n"},
        {"without line end", "[S]\nk=v", "S", "k", "v", "[S]\nk=v"},
        {"quotes count", "[S]\nk=\"v\"\n", "S", "k", "v", "[S]\nk=v\n"},
        {"with the same quotes", "[S]\nk = 'v'\n", "S", "k", "'v'", "[S]\nk = 'v'\n"},
        {"case counts", "[S]\nk=V\n", "S", "k", "v", "[S]\nk=v\n"},
        {"blanks behind it count", "[S]\nk=v\n", "S", "k", "v ", "[S]\nk=v \n"},
        {"and are there the second time", "[S]\nk=v \n", "S", "k", "v ", "[S]\nk=v \n"},
    });
}

TEST(ProfileWrite, Without_a_value_the_key_goes)
{
    CheckAll({
        {"its line", "[S]\na=1\nk=2\nb=3\n", "S", "k", none, "[S]\na=1\nb=3\n"},
        {"the header stays", "[S]\nk=1\n", "S", "k", none, "[S]\n"},
        {"comments stay", "[S]\n; c\n\nk=1\n\n", "S", "k", none, "[S]\n; c\n\n\n"},
        {"the first of two", "[S]\nk=1\nK=2\n", "S", "k", none, "[S]\nK=2\n"},
        {"in the first section", "[S]\n[S]\nk=2\n", "S", "k", none, "[S]\n[S]\nk=2\n"},
        {"names without case", "[S]\nKEY=1\n", "s", " key ", none, "[S]\n"},
        {"the last line without end", "[S]\na=1\nk=2", "S", "k", none, "[S]\na=1\n"},
        {"no such key", "[S]\na=1\n", "S", "k", none, "[S]\na=1\n"},
        {"no such section", "[S]\nk=1\n", "T", "k", none, "[S]\nk=1\n"},
        {"no sign, no key", "[S]\nk\n", "S", "k", none, "[S]\nk\n"},
        {"nothing at all", "", "S", "k", none, ""},
        {"before all headers", "k=1\n[S]\nk=2\n", "", "k", none, "[S]\nk=2\n"},
    });
}

TEST(ProfileWrite, Without_a_key_the_section_goes)
{
    CheckAll({
        {"up to the next header", "[A]\na=1\n[S]\nk=1\n; c\n\nx\n[B]\nb=1\n", "S", none, none,
         "[A]\na=1\n[B]\nb=1\n"},
        {"though there is a value", "[S]\nk=1\n[B]\n", "S", none, "v", "[B]\n"},
        {"up to the end", "[A]\n[S]\nk=1", "S", none, none, "[A]\n"},
        {"the only one", "[S]\nk=1\n", "S", none, none, ""},
        {"what stands before it stays", "; c\n\n[S]\nk=1\n", "S", none, none, "; c\n\n"},
        {"the first of two", "[S]\nk=1\n[s]\nk=2\n", "S", none, none, "[s]\nk=2\n"},
        {"names without case", "[ sEc ] x\nk=1\n", "SeC", none, none, ""},
        {"no bracket is no header", "[S]\n[T\nk=1\n[U]\n", "S", none, none, "[U]\n"},
        {"no such section", "[S]\nk=1\n", "T", none, none, "[S]\nk=1\n"},
        {"nothing at all", "", "S", none, none, ""},
        {"before all headers", "; c\nk=1\n[S]\nk=2\n", "", none, none, "[S]\nk=2\n"},
        {"before all headers, none there", "[S]\nk=2\n", "", none, none, "[S]\nk=2\n"},
    });
}

TEST(ProfileWrite, Blanks_in_front_are_dropped_and_all_else_is_written)
{
    CheckAll({
        {"blanks and tabs in front", "", " \tS", "\t k", " \t v", "[S]\nk=v\n"},
        {"blanks and tabs behind", "", "S ", "k\t", "v \t", "[S ]\nk\t=v \t\n"},
        {"found again by trimmed names", "[S ]\nk\t=1\n", " S", " k ", "v", "[S ]\nk\t=v\n"},
        {"quotes", "", "S", "k", "\"v\"", "[S]\nk=\"v\"\n"},
        {"blanks inside quotes", "", "S", "k", "' v'", "[S]\nk=' v'\n"},
        {"a sign in the key", "[S]\na=1\n", "S", "a=b", "v", "[S]\na=1\na=b=v\n"},
        {"a comment for a key", "[S]\n", "S", ";k", "v", "[S]\n;k=v\n"},
        {"a section for a key", "[S]\n", "S", "[k]", "v", "[S]\n[k]=v\n"},
        {"a bracket in a section", "", "a]b", "k", "v", "[a]b]\nk=v\n"},
        {"a sign and a comment in a value", "", "S", "k", "a=b;c", "[S]\nk=a=b;c\n"},
        {"a NUL ends a value", "", "S", "k", "v\0w"s, "[S]\nk=v\n"},
        {"and a name", "", "S\0x"s, "k\0x"s, "v", "[S]\nk=v\n"},
        {"and is no reason to write", "[S]\nk=v\n", "S", "k", "v\0w"s, "[S]\nk=v\n"},
    });
}

TEST(ProfileWrite, A_line_end_inside_does_its_harm_at_once)
{
    ProfileText text("[S]\n");
    text.Write({"S", "k", "v\na=1\n[T]"});
    EXPECT_EQ(text.Bytes(), "[S]\nk=v\na=1\n[T]\n");
    EXPECT_EQ(text.Value("S", "k"), "v");
    EXPECT_EQ(text.Value("S", "a"), "1");
    text.Write({"T", "b", "2"});
    EXPECT_EQ(text.Bytes(), "[S]\nk=v\na=1\n[T]\nb=2\n");
    text.Write({"S", "k", "w\r"});
    EXPECT_EQ(text.Bytes(), "[S]\nk=w\r\na=1\n[T]\nb=2\n");
    EXPECT_EQ(text.Value("S", "k"), "w");
}

TEST(ProfileWrite, A_key_that_spells_something_else_is_not_found_again)
{
    ProfileText text("[S]\n");
    for (int time = 0; time < 2; ++time)
        text.Write({"S", "a=b", "v"});
    EXPECT_EQ(text.Bytes(), "[S]\na=b=v\na=b=v\n");
    EXPECT_EQ(text.Value("S", "a"), "b=v");
    text.Write({"S", "[k]", "v"});
    text.Write({"S", "x", "y"});
    EXPECT_EQ(text.Bytes(), "[S]\na=b=v\na=b=v\nx=y\n[k]=v\n");
}

TEST(ProfileWrite, A_section_that_is_cleared_and_written_again_moves_to_the_end)
{
    ProfileText text("[A]\na=1\n[B]\nb=1\n\n[C]\nc=1\n");
    const auto save = [&text](const std::string& section, const std::string& key) {
        text.Write({section, none, none});
        text.Write({section, key, "1"});
    };
    save("A", "a");
    EXPECT_EQ(text.Bytes(), "[B]\nb=1\n\n[C]\nc=1\n[A]\na=1\n");
    save("C", "c");
    save("A", "a");
    EXPECT_EQ(text.Bytes(), "[B]\nb=1\n\n[C]\nc=1\n[A]\na=1\n");
}

TEST(ProfileWrite, New_lines_end_as_the_first_one_does)
{
    struct Row {
        const char* What;
        std::string Before;
        ProfileDialect Dialect;
        std::string After;
    };
    const std::vector<Row> rows = {
        {"mixed, CR LF first", "[S]\r\na=1\n", ProfileDialect::Linux, "[S]\r\na=1\nk=v\r\n"},
        {"mixed, LF first", "[S]\na=1\r\n", ProfileDialect::Linux, "[S]\na=1\r\nk=v\n"},
        {"mixed, CR first", "[S]\ra=1\n", ProfileDialect::Linux, "[S]\ra=1\nk=v\r"},
        {"Windows knows one end", "[S]\na=1\n", ProfileDialect::Windows, "[S]\na=1\nk=v\r\n"},
        {"and supplies it", "[S]\na=1", ProfileDialect::Windows, "[S]\na=1\r\nk=v\r\n"},
        {"a value keeps the line's own", "[S]\r\nk=1\n", ProfileDialect::Linux, "[S]\r\nk=v\n"},
        {"on Windows too", "[S]\r\nk=1\n", ProfileDialect::Windows, "[S]\r\nk=v\n"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Written(row.Before, row.Dialect, {"S", "k", "v"}), row.After) << row.What;
    ProfileText emptied("[S]\r\nk=1\r\n");
    emptied.Write({"S", none, none});
    emptied.Write({"S", "k", "v"});
    EXPECT_EQ(emptied.Bytes(), "[S]\r\nk=v\r\n");
}

TEST(ProfileWrite, Text_is_spelled_as_the_file_spells_it)
{
    constexpr auto linux = ProfileDialect::Linux, windows = ProfileDialect::Windows;
    struct Row {
        const char* What;
        std::string Before;
        ProfileDialect Dialect;
        ProfileChange Change;
        std::string After;
    };
    const std::string mark = "\xEF\xBB\xBF";
    const std::vector<Row> rows = {
        {"UTF-8", "", linux, {"Ä", "ö", "日"}, "[Ä]\nö=日\n"},
        {"names without case", "[Ä]\nÖ=1\n", linux, {"ä", "ö", "2"}, "[Ä]\nÖ=2\n"},
        {"other lines of 1252 stay",
         "[S]\na=\xE4\nk=1\n; \xF6\n",
         linux,
         {"S", "k", "ä"},
         "[S]\na=\xE4\nk=ä\n; \xF6\n"},
        {"a line of 1252 becomes UTF-8",
         "[S]\n\xD6 = \xE4\n",
         linux,
         {"S", "ö", "ü"},
         "[S]\nÖ = ü\n"},
        {"unless its value is there",
         "[S]\n\xD6 = \xE4\n",
         linux,
         {"S", "ö", "ä"},
         "[S]\n\xD6 = \xE4\n"},
        {"a header of 1252 stays", "[\xD6]\n", linux, {"ö", "k", "v"}, "[\xD6]\nk=v\n"},
        {"a byte that is no UTF-8", "[S]\nä=1\n", linux, {"S", "ä", "\xE4"}, "[S]\nä=ä\n"},
        {"and one behind UTF-8", "", linux, {"S", "k", "ö\xE4"}, "[S]\nk=öä\n"},
        {"is there already", "[S]\nk=\xE4\n", linux, {"S", "k", "\xE4"}, "[S]\nk=\xE4\n"},
        {"1252 on Windows", "", windows, {"Ä", "ö", "€"}, "[\xC4]\r\n\xF6=\x80\r\n"},
        {"and nothing beyond it", "", windows, {"S", "k", "日"}, "[S]\r\nk=?\r\n"},
        {"which is there already",
         "[S]\r\nk = ?\r\n",
         windows,
         {"S", "k", "日"},
         "[S]\r\nk = ?\r\n"},
        {"all bytes have a character",
         "[S]\r\nk=\x81\xC3\xA4\r\n",
         windows,
         {"S", "k", "\xC2\x81\xC3\x83\xC2\xA4"},
         "[S]\r\nk=\x81\xC3\xA4\r\n"},
        {"names without case",
         "[\xC4]\r\n\xD6=1\r\n",
         windows,
         {"ä", "ö", "2"},
         "[\xC4]\r\n\xD6=2\r\n"},
        {"a mark makes UTF-8 of it",
         mark + "[S]\r\n",
         windows,
         {"S", "ö", "日"},
         mark + "[S]\r\nö=日\r\n"},
        {"a mark alone", mark, linux, {"S", "k", "v"}, mark + "[S]\nk=v\n"},
        {"UTF-16",
         "\xFF\xFE"s,
         linux,
         {"Ä", "😀", "\xE4"},
         "\xFF\xFE[\0\xC4\0]\0\n\0\x3D\xD8\x00\xDE=\0\xE4\0\n\0"s},
        {"UTF-16 with half a pair elsewhere",
         "\xFF\xFE[\0]\0\n\0\x3D\xD8\n\0"s,
         linux,
         {"", "k", "v"},
         "\xFF\xFEk\0=\0v\0\n\0[\0]\0\n\0\x3D\xD8\n\0"s},
        {"UTF-16 that looks like line ends",
         "\xFF\xFE;\0\n\x0D\x0D\n\n\0"s,
         linux,
         {"", "k", "v"},
         "\xFF\xFE;\0\n\x0D\x0D\n\n\0k\0=\0v\0\n\0"s},
        {"UTF-16 with half a unit",
         "\xFF\xFE[\0S\0]\0\n\0a\0x"s,
         linux,
         {"S", "k", "v"},
         "\xFF\xFE[\0S\0]\0\n\0a\0\n\0k\0=\0v\0\n\0"s},
        {"half a unit stays elsewhere",
         "\xFF\xFEk\0=\0\n\0[\0]\0x"s,
         linux,
         {"", "k", "v"},
         "\xFF\xFEk\0=\0v\0\n\0[\0]\0x"s},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Written(row.Before, row.Dialect, row.Change), row.After) << row.What;
}

// A file as the other system leaves it, and a person who wrote into it.
TEST(ProfileWrite, A_file_from_Windows_is_edited_in_place)
{
    const std::string head = "; Einstellungen f\xFCr Tavo\r\n\r\n[Favorites]\r\n"
                             "Gr\xF6\xDF"
                             "e=C:\\Bilder\\Gr\xF6\xDF"
                             "e\\\r\nWork = D:\\Work\\ \r\n\r\n";
    const std::string tail = "\r\n[Unknown] ; kept\r\n\tx\t=\ty\r\njunk\r\n[Position]\r\n"
                             "Main=1,2,3,4,0";
    const std::string file = head + "[Defaults]\r\nPath=C:\\Bilder\\\xC4\\\r\nRenMode=4\r\n" + tail;
    ProfileText text(file);
    EXPECT_EQ(text.Bytes(), file);
    text.Write({"Defaults", "RenMode", "5"});
    text.Write({"Defaults", "Path", "C:\\Bilder\\Ä\\"});
    text.Write({"Defaults", "Gif", "1"});
    text.Write({"favorites", "größe", "C:\\Bilder\\Größe\\"});
    const std::string path = "[Defaults]\r\nPath=C:\\Bilder\\\xC4\\\r\n";
    EXPECT_EQ(text.Bytes(), head + path + "RenMode=5\r\nGif=1\r\n" + tail);
    text.Write({"Defaults", "Path", "D:\\Ä\\"});
    text.Write({"Position", "Main", "0,0,0,0,0"});
    EXPECT_EQ(text.Bytes(), head + "[Defaults]\r\nPath=D:\\Ä\\\r\nRenMode=5\r\nGif=1\r\n"
                                + tail.substr(0, tail.find("1,2")) + "0,0,0,0,0");
}

TEST(ProfileWrite, Damaged_files_keep_their_bytes)
{
    std::string allBytes;
    for (int byte = 0; byte < 256; ++byte)
        allBytes.append(3, static_cast<char>(byte));
    const std::vector<std::string> files = {"\0\0\0"s,
                                            "=\n=\n",
                                            "[",
                                            "]",
                                            "[]]\n",
                                            "\r\r\n\n",
                                            allBytes,
                                            "\xFF\xFE" + allBytes,
                                            "\xEF\xBB\xBF" + allBytes,
                                            std::string(1 << 20, 'x') + "\nk=1\n",
                                            "\xFF",
                                            "\xEF\xBB",
                                            "\xFE\xFF\0["s,
                                            "\xFF\xFEx"};
    for (const ProfileDialect dialect : {ProfileDialect::Linux, ProfileDialect::Windows}) {
        for (const std::string& file : files) {
            EXPECT_EQ(ProfileText(file, dialect).Bytes(), file);
            // A section that comes and goes leaves at most a line end.
            ProfileText text(file, dialect);
            text.Write({"Quite new", "k", "v"});
            EXPECT_EQ(text.Value("quite NEW", "K"), "v");
            text.Write({"Quite new", none, none});
            EXPECT_LE(text.Bytes().size(), file.size() + 4) << file.substr(0, 20);
            EXPECT_EQ(text.Bytes().substr(0, file.size() - file.size() % 2),
                      file.substr(0, file.size() - file.size() % 2));
        }
    }
}

// The number of lines that two files share at their beginnings and ends.
std::size_t SharedLines(const std::vector<ProfileText::Line>& left,
                        const std::vector<ProfileText::Line>& right)
{
    const std::size_t most = std::min(left.size(), right.size());
    std::size_t front = 0, back = 0;
    while (front < most && left[front].Text == right[front].Text)
        ++front;
    while (front + back < most
           && left[left.size() - 1 - back].Text == right[right.size() - 1 - back].Text)
        ++back;
    return front + back;
}

TEST(ProfileWrite, Of_any_file_only_what_is_meant_changes)
{
    const std::vector<std::string> parts = {"[S]",  " [s ] x", "[T]", "k=1", " K = 2",    "k",
                                            ";k=3", "",        " \t", "a=4", "\xE4=\xE4", "[x"};
    // A CR that comes to stand before an LF would make one line end of two.
    const std::vector<std::string> mixedEnds = {"\n", "\r\n"}, oldEnds = {"\r"};
    std::minstd_rand random(16);
    const auto oneOf = [&random](const std::vector<std::string>& texts) {
        return texts[random() % texts.size()];
    };
    for (int turn = 0; turn < 20'000; ++turn) {
        const std::vector<std::string>& ends = turn % 8 == 0 ? oldEnds : mixedEnds;
        std::string file;
        for (auto count = random() % 12; count > 0; --count)
            file += oneOf(parts) + oneOf(ends);
        if (random() % 2 == 0)
            file += oneOf(parts);
        const ProfileChange change{oneOf({"S", "t", "U", ""}),
                                   random() % 4 == 0 ? none : Text(oneOf({"k", "A", "ä", "n"})),
                                   random() % 3 == 0 ? none : Text(oneOf({"1", "2", "new", ""}))};
        const ProfileText before(file);
        const ProfileText after(Written(file, ProfileDialect::Linux, change));
        const std::size_t shared = SharedLines(before.Lines(), after.Lines());
        const std::size_t had = before.Lines().size(), has = after.Lines().size();
        if (!change.Key) {
            EXPECT_EQ(shared, has) << file;
        } else if (!change.Value) {
            EXPECT_EQ(shared, has) << file;
            EXPECT_EQ(had - has, before.Value(change.Section, *change.Key) ? 1u : 0u) << file;
        } else {
            const bool wasThere = before.Value(change.Section, *change.Key).has_value();
            EXPECT_EQ(after.Value(change.Section, *change.Key), change.Value) << file;
            EXPECT_GE(shared + wasThere, had) << file;
            EXPECT_LE(has - had, wasThere ? 0u : 2u) << file;
        }
        if (HasFailure())
            return;
    }
}

TEST(ProfileWrite, Ten_thousand_keys_are_written_in_order)
{
    ProfileText text("[CaseWordList]\nold=1\n[Z]\n");
    text.Write({"CaseWordList", none, none});
    std::string wanted = "[Z]\n[CaseWordList]\n";
    for (int number = 1; number <= 10000; ++number) {
        const std::string key = std::to_string(number);
        text.Write({"CaseWordList", key, "word" + key});
        wanted += key + "=word" + key + '\n';
    }
    EXPECT_EQ(text.Bytes(), wanted);
}

} // namespace
} // namespace tavo
