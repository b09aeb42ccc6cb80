#include "renamelist/search_replace.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

struct TextRow {
    const char *What, *Target, *Find, *Replace;
    int MatchCase;
    const char* Result;
};

TEST(SearchReplace, Texts_are_replaced_once_from_the_left)
{
    static constexpr TextRow rows[] = {
        {"what was put in is not searched", "banana", "a", "aa", 0, "baanaanaa"},
        {"nothing found", "banana", "x", "y", 0, "banana"},
        {"without regard to case", "aBAb", "ab", "-", 0, "--"},
        {"with regard to case", "abAbab", "ab", "-", 1, "-Ab-"},
        {"removed", "a b c", " ", "", 0, "abc"},
        {"overlapping", "aaaa", "aa", "b", 0, "bb"},
        {"nothing to find", "abc", "", "x", 0, "abc"},
        {"the whole", "abc", "abc", "", 0, ""},
        {"letters beyond A to Z", "ÄRGER", "ärger", "ruhe", 0, "ruhe"},
        {"signs of patterns are plain", "a.b*c", ".b*", "?", 0, "a?c"},
        {"tokens are plain", "a<#>", "<#>", "<ON>", 0, "a<ON>"},
        {"a stray byte",
         "a\xff"
         "b",
         "\xff", "x", 0, "axb"},
    };
    for (const TextRow& row : rows) {
        std::string target = row.Target;
        SR_ReplaceText(target, row.Find, row.Replace, static_cast<std::uint8_t>(row.MatchCase));
        EXPECT_EQ(target, row.Result) << row.What;
    }
}

struct RangeRow {
    const char *What, *Target, *Replace;
    int First, Last;
    const char* Result;
};

TEST(SearchReplace, Ranges_are_replaced_within_the_ends)
{
    static constexpr RangeRow rows[] = {
        {"range is replaced", "abcde", "X", 2, 3, "aXde"},
        {"end 0 inserts", "abcde", "X", 2, 0, "aXbcde"},
        {"end 0 and nothing to put in", "abcde", "", 2, 0, "abcde"},
        {"nothing to put in deletes", "abcde", "", 2, 4, "ae"},
        {"the whole", "abcde", "X", 1, 5, "X"},
        {"the wrong way round", "abcde", "X", 3, 2, "aXde"},
        {"last beyond the end", "abcde", "X", 4, 254, "abcX"},
        {"both beyond the end", "abcde", "X", 9, 12, "abcdX"},
        {"first beyond the end is the last character", "abcde", "X", 9, 0, "abcdXe"},
        {"first 0 changes nothing", "abcde", "X", 0, 3, "abcde"},
        {"first 0 inserts nothing", "abcde", "X", 0, 0, "abcde"},
        {"first below 0 is 1", "abcde", "X", -3, 2, "Xcde"},
        {"last below 0 is 1, and swapped before", "abcde", "X", 4, -2, "Xe"},
        {"both below 0", "abcde", "X", -1, -2, "Xbcde"},
        {"an empty target", "", "X", 1, 1, ""},
        {"an empty target and an insert", "", "X", 1, 0, ""},
        {"characters, not bytes", "äöü", "X", 2, 2, "äXü"},
        {"one character", "a", "X", 1, 1, "X"},
    };
    for (const RangeRow& row : rows) {
        std::string target = row.Target;
        SR_ReplaceRange(target, row.Replace, static_cast<std::int16_t>(row.First),
                        static_cast<std::int16_t>(row.Last));
        EXPECT_EQ(target, row.Result) << row.What;
    }
}

struct ScopeRow {
    const char *What, *Name, *Ext;
    SearchTask Task;
    const char *NewName, *NewExt;
};

TEST(SearchReplace, A_scope_limits_what_changes)
{
    const ScopeRow rows[] = {
        {"name only", "TXT", "txt", {searchText, scopeName, 0, "TXT", "a", 0, 0}, "a", "txt"},
        {"extension only",
         "txt",
         "txt",
         {searchText, scopeExtension, 0, "TXT", "a", 0, 0},
         "txt",
         "a"},
        {"both", "txt", "txt", {searchText, scopeBoth, 0, "TXT", "a", 0, 0}, "a", "a"},
        {"all points go", "a.b", "txt", {searchText, scopeBoth, 0, ".", "_", 0, 0}, "a_b_txt", ""},
        {"a point comes", "a_b", "", {searchText, scopeBoth, 0, "_", ".", 0, 0}, "a", "b"},
        {"across the point", "ab", "cd", {searchText, scopeBoth, 0, "b.c", "-", 0, 0}, "a-d", ""},
        {"only an extension left", "ab", "c", {searchText, scopeBoth, 0, "ab", "", 0, 0}, "", "c"},
        {"range over both", "ab", "cd", {searchRange, scopeBoth, 0, "", "X", 2, 4}, "aXd", ""},
        {"range in an empty extension",
         "ab",
         "",
         {searchRange, scopeExtension, 0, "", "X", 1, 1},
         "ab",
         ""},
        {"no such scope", "ab", "c", {searchText, 9, 0, "a", "x", 0, 0}, "ab", "c"},
    };
    for (const ScopeRow& row : rows) {
        std::string name = row.Name, ext = row.Ext;
        SR_Apply(name, ext, row.Task);
        EXPECT_EQ(name, row.NewName) << row.What;
        EXPECT_EQ(ext, row.NewExt) << row.What;
    }
}

} // namespace
} // namespace tavo
