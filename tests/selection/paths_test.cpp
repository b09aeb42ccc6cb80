#include "selection/paths.h"

#include "support/disk_ground.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using namespace std::string_literals;

const PathRules windows = WindowsRules(), linuxRules = PosixRules();

struct SlashCase {
    const PathRules& Rules;
    const char *Path, *Added, *Removed;
};

const SlashCase slashCases[] = {
    {windows, "C:\\a", "C:\\a\\", "C:\\a"},
    {windows, "C:\\a\\", "C:\\a\\", "C:\\a"},
    {windows, "C:\\a\\\\", "C:\\a\\\\", "C:\\a\\"},
    {windows, "C:\\", "C:\\", "C:"},
    {windows, "C:", "C:\\", "C:"},
    {windows, "\\", "\\", ""},
    {windows, "", "\\", ""},
    {windows, "C:/a/", "C:/a/\\", "C:/a/"},
    {linuxRules, "/a", "/a/", "/a"},
    {linuxRules, "/a/", "/a/", "/a"},
    {linuxRules, "/a//", "/a//", "/a/"},
    {linuxRules, "/", "/", "/"},
    {linuxRules, "//", "//", "/"},
    {linuxRules, "", "/", ""},
    {linuxRules, "/a\\", "/a\\/", "/a\\"},
};

struct SplitCase {
    const PathRules& Rules;
    const char *Path, *Folder, *Name;
};

// What `Name` holds beforehand shows where nothing is split.
const SplitCase splitCases[] = {
    {windows, "C:\\a\\b.txt", "C:\\a\\", "b.txt"}, {windows, "C:\\b", "C:\\", "b"},
    {windows, "C:\\a\\", "C:\\a\\", ""},           {windows, "b.txt", "b.txt", "as before"},
    {windows, "C:/a", "C:/a", "as before"},        {windows, "", "", "as before"},
    {linuxRules, "/a/b.txt", "/a/", "b.txt"},      {linuxRules, "/b", "/", "b"},
    {linuxRules, "/a/b\\c", "/a/", "b\\c"},        {linuxRules, "/a/\xff", "/a/", "\xff"},
};

struct NameCase {
    const char *Name, *Base, *Ext, *OnlyExt;
};

const NameCase nameCases[] = {
    {"a.txt", "a", "txt", "txt"},           {"archive.tar.gz", "archive.tar", "gz", "gz"},
    {".profile", "", "profile", "profile"}, {"x.", "x", "", ""},
    {"README", "README", "as before", ""},  {"", "", "as before", ""},
    {"a.b\\c", "a", "b\\c", "b\\c"},        {"\u00e4.\u00f6", "\u00e4", "\u00f6", "\u00f6"},
};

} // namespace

TEST(Paths, A_separator_is_added_or_taken_off_once)
{
    for (const SlashCase& wanted : slashCases) {
        EXPECT_EQ(Path_AddSlash(wanted.Path, wanted.Rules), wanted.Added) << wanted.Path;
        EXPECT_EQ(Path_RemoveSlash(wanted.Path, wanted.Rules), wanted.Removed) << wanted.Path;
    }
}

TEST(Paths, A_path_is_split_at_its_last_separator)
{
    for (const SplitCase& wanted : splitCases) {
        std::string path = wanted.Path, name = "as before";
        Path_Split(path, name, wanted.Rules);
        EXPECT_EQ(path, wanted.Folder) << wanted.Path;
        EXPECT_EQ(name, wanted.Name) << wanted.Path;
    }
}

TEST(Paths, A_name_is_split_at_its_last_point)
{
    for (const NameCase& wanted : nameCases) {
        std::string name = wanted.Name, ext = "as before";
        Name_Split(name, ext);
        EXPECT_EQ(name, wanted.Base) << wanted.Name;
        EXPECT_EQ(ext, wanted.Ext) << wanted.Name;
        EXPECT_EQ(Name_GetExt(wanted.Name), wanted.OnlyExt) << wanted.Name;
    }
}

// -- What is there.

struct ExistsCase {
    const char* What;
    std::string Path;
    bool File, Folder;
    std::string Looked; // the path behind the look for a folder
};

TEST(Paths, Windows_honours_wildcards_in_a_question_for_a_name)
{
    DiskGround ground(Ground::Windows);
    ground.AddFile("d/a.txt");
    ground.AddFolder("folder");
    const ExistsCase cases[] = {
        {"a file", "C:\\d\\a.txt", true, false, "C:\\d\\a.txt"},
        {"in another case", "c:\\D\\A.TXT", true, false, "c:\\D\\A.TXT"},
        {"a folder", "C:\\folder", true, true, "C:\\folder"},
        {"a folder with its separator", "C:\\folder\\", false, true, "C:\\folder"},
        {"a pattern for a file", "C:\\d\\*.txt", true, false, "C:\\d\\*.txt"},
        {"a pattern for a folder", "C:\\fold*", true, true, "C:\\fold*"},
        {"nothing", "C:\\d\\b", false, false, "C:\\d\\b"},
        {"a missing folder", "C:\\x\\b", false, false, "C:\\x\\b"},
        {"the root, which is asked for as the drive", "C:\\", false, false, "C:"},
        {"empty", "", false, false, ""},
    };
    for (const ExistsCase& wanted : cases) {
        std::string path = wanted.Path;
        EXPECT_EQ(File_Exists(*ground.Memory(), path), wanted.File) << wanted.What;
        EXPECT_EQ(Folder_Exists(*ground.Memory(), path), wanted.Folder) << wanted.What;
        EXPECT_EQ(path, wanted.Looked) << wanted.What;
    }
    EXPECT_EQ(ground.Memory()->OpenSearches(), 0);
}

TEST(Paths, Linux_takes_a_name_as_it_is)
{
    for (const Ground kind : {Ground::Linux, Ground::RealDisk}) {
        DiskGround ground(kind);
        ground.AddFile("d/a.txt");
        ground.AddFile("d/*");
        ground.AddFolder("folder");
        ground.AddFolder("w?ld");
        ground.AddLink("link", "folder");
        ground.AddLink("nowhere", "gone");
        const auto full = [&](const char* path) { return ground.Full(path); };
        const ExistsCase cases[] = {
            {"a file", full("d/a.txt"), true, false, full("d/a.txt")},
            {"in another case", full("d/A.TXT"), false, false, full("d/A.TXT")},
            {"a star in a name", full("d/*"), true, false, full("d/*")},
            {"a star that matches", full("d/a*"), false, false, full("d/a*")},
            {"a folder", full("folder"), true, true, full("folder")},
            {"a question mark in a name", full("w?ld"), true, true, full("w?ld")},
            {"a question mark that matches", full("fold?r"), false, false, full("fold?r")},
            {"a link to a folder", full("link"), true, true, full("link")},
            {"a link to nowhere", full("nowhere"), true, false, full("nowhere")},
            {"nothing", full("d/b"), false, false, full("d/b")},
            {"the root", "/", true, true, "/"},
            {"no full name", "d/a.txt", false, false, "d/a.txt"},
            {"empty", "", false, false, ""},
        };
        for (const ExistsCase& wanted : cases) {
            std::string path = wanted.Path;
            EXPECT_EQ(File_Exists(ground.P.files, path), wanted.File)
                << wanted.What << " on " << Ground_Name(kind);
            EXPECT_EQ(Folder_Exists(ground.P.files, path), wanted.Folder)
                << wanted.What << " on " << Ground_Name(kind);
            EXPECT_EQ(path, wanted.Looked) << wanted.What;
        }
        std::string path = full("folder/");
        EXPECT_TRUE(Folder_Exists(ground.P.files, path));
        EXPECT_EQ(path, full("folder"));
    }
}

// -- Texts.

TEST(Paths, A_text_is_cut_at_its_first_nul)
{
    const std::pair<std::string, std::string> cases[] = {
        {"abc", "abc"}, {"a\0b\0c"s, "a"}, {"\0a"s, ""}, {"", ""}, {"abc\0"s, "abc"},
    };
    for (const auto& [given, wanted] : cases) {
        std::string text = given;
        EXPECT_EQ(Str_CutAtNul(text), wanted);
        EXPECT_EQ(text, wanted);
    }
}

TEST(Paths, A_text_is_padded_or_cut_to_its_length_in_characters)
{
    EXPECT_EQ(Str_PadNul("ab", 4), "ab\0\0"s);
    EXPECT_EQ(Str_PadNul("abcd", 2), "ab");
    EXPECT_EQ(Str_PadNul("ab", 2), "ab");
    EXPECT_EQ(Str_PadNul("\u00e4\u00f6\u00fc", 2), "\u00e4\u00f6");
    EXPECT_EQ(Str_PadNul("\u00e4", 3), "\u00e4\0\0"s);
    EXPECT_EQ(Str_PadNul("ab", 0), "");
    EXPECT_EQ(Str_PadNul("ab", -1), "");
    EXPECT_EQ(Str_PadNul("", 1), "\0"s);
}

struct TokenCase {
    const char *Text, *Delimiter, *Default, *Token, *Rest;
};

TEST(Paths, A_token_is_taken_off_the_front)
{
    const TokenCase cases[] = {
        {"a;b;c", ";", "x", "a", "b;c"}, {"a", ";", "x", "a", ""},
        {"", ";", "x", "x", ""},         {";a", ";", "x", "", "a"},
        {"a;", ";", "x", "a", ""},       {";", ";", "x", "", ""},
        {"a::b", "::", "x", "a", "b"},   {"a:b", "::", "x", "a:b", ""},
        {"a", "", "x", "a", ""},         {"\u00e4;b", ";", "x", "\u00e4", "b"},
    };
    for (const TokenCase& wanted : cases) {
        std::string text = wanted.Text;
        EXPECT_EQ(Str_GetToken(text, wanted.Delimiter, wanted.Default), wanted.Token)
            << wanted.Text;
        EXPECT_EQ(text, wanted.Rest) << wanted.Text;
    }
}

struct ReplaceCase {
    const char *Text, *Find, *Replace;
    int MatchCase;
    const char* Wanted;
};

TEST(Paths, Each_occurrence_is_replaced_and_what_was_put_in_is_not_searched)
{
    const ReplaceCase cases[] = {
        {"abcabc", "b", "x", 1, "axcaxc"},
        {"aBcabc", "b", "x", 1, "aBcaxc"},
        {"aBcabc", "b", "x", 0, "axcaxc"},
        {"aBcabc", "B", "x", 255, "axcaxc"},
        {"aaa", "a", "aa", 1, "aaaaaa"},
        {"aaa", "aa", "b", 1, "ba"},
        {"abc", "", "x", 1, "abc"},
        {"abc", "z", "x", 1, "abc"},
        {"abc", "abc", "", 1, ""},
        {"<E><e>", "<E>", "<ER>", 0, "<ER><ER>"},
        {"", "a", "b", 1, ""},
        {"\u00c4x\u00e4", "\u00e4", "o", 0, "oxo"},
        {"\u00c4x\u00e4", "\u00e4", "o", 1, "\u00c4xo"},
    };
    for (const ReplaceCase& wanted : cases) {
        std::string text = wanted.Text;
        Str_ReplaceAll(text, wanted.Find, wanted.Replace,
                       static_cast<std::uint8_t>(wanted.MatchCase));
        EXPECT_EQ(text, wanted.Wanted) << wanted.Text << ": " << wanted.Find;
    }
}

TEST(Paths, Beyond_32767_characters_nothing_is_replaced)
{
    std::string text(32770, 'a');
    Str_ReplaceAll(text, "a", "b", 1);
    EXPECT_EQ(text, std::string(32767, 'b') + "aaa");
}

struct ClassCase {
    const char* Type;
    int Gif;
    char Wanted;
};

TEST(Paths, The_class_goes_by_the_type_in_any_case)
{
    const ClassCase cases[] = {
        {"-", 0, 'D'},   {"jpeg", 0, 'P'}, {"jpg", 0, 'P'}, {"bmp", 0, 'P'},  {"rle", 0, 'P'},
        {"ico", 0, 'P'}, {"wmf", 0, 'P'},  {"emf", 0, 'P'}, {"JPG", 0, 'P'},  {"gif", 0, 'F'},
        {"gif", 1, 'P'}, {"GIF", 1, 'P'},  {"gif", 2, 'F'}, {"mp3", 0, 'M'},  {"Mp3", 0, 'M'},
        {"", 0, 'F'},    {"txt", 0, 'F'},  {"png", 1, 'F'}, {"jpgx", 0, 'F'}, {"--", 0, 'F'},
    };
    for (const ClassCase& wanted : cases)
        EXPECT_EQ(Sel_Class_Get(wanted.Type, static_cast<std::uint8_t>(wanted.Gif)), wanted.Wanted)
            << wanted.Type;
}

} // namespace tavo
