#include "platform/pattern.h"

#include <gtest/gtest.h>

#include <string>

namespace tavo {
namespace {

struct Row {
    const char* Pattern;
    const char* Name;
    bool Matches;
};

void Check(const Row& row, const PathRules& rules = PosixRules())
{
    EXPECT_EQ(Pattern(row.Pattern, rules).Matches(row.Name), row.Matches)
        << "pattern [" << row.Pattern << "] name [" << row.Name << "]";
}

template <std::size_t Count>
void CheckAll(const Row (&rows)[Count], const PathRules& rules = PosixRules())
{
    for (const Row& row : rows)
        Check(row, rules);
}

TEST(Pattern, Names_compare_without_regard_to_case_or_its_accent)
{
    const Row rows[] = {
        {"readme.txt", "ReadMe.TXT", true},
        {"*.TXT", "a.txt", true},
        {"*.txt", "a.TXT", true},
        {"äöü*", "ÄÖÜber", true},
        {"*ÉTÉ", "été", true},
        {"ß*", "SS", false},
        {"Σ", "ς", true},
        {"*.k", "a.\u212A", true},
        {"*.txt", "a.tx\u212A", false},
        {"я?.txt", "ЯЖ.txt", true},
        {"readme.txt", "readme.tx", false},
        {"readme.txt", "readme.txts", false},
    };
    CheckAll(rows);
}

TEST(Pattern, Dots_of_a_folder_are_names_like_others)
{
    const Row rows[] = {
        {"*", ".", true},       {"*", "..", true},        {"*.*", ".", true},
        {"*.*", "..", true},    {".*", ".", true},        {".*", "..", true},
        {"*..*", ".", true},    {"*..*", "..", true},     {"*.txt", ".", false},
        {"*.txt", "..", false}, {".*", ".profile", true}, {".*", "a.b", false},
    };
    CheckAll(rows);
}

TEST(Pattern, Star_dot_star_takes_everything)
{
    const char* patterns[] = {"*.*", "*", "**", "*.*.*", "***", "*.**", "*.*.*.*"};
    const char* names[] = {"a",   "a.b", "a.b.c", "a.b.c.d", ".a", "a.", "..a",
                           "a b", " ",   "ä",     "\xFF",    "\n", ".",  ".."};
    for (const char* pattern : patterns) {
        for (const char* name : names)
            Check({pattern, name, true});
    }
}

TEST(Pattern, Only_the_star_and_the_question_mark_are_special)
{
    const Row rows[] = {
        {"a.*", "a", true},       {"a.*", "a.b", true},         {"a.*", "a.b.c", true},
        {"a.*", "ab", false},     {"[ab].txt", "a.txt", false}, {"[ab].txt", "[ab].txt", true},
        {"a,b;c", "a,b;c", true}, {"{a}*", "{a}b", true},       {"\\*", "\\a", true},
        {"\\*", "a", false},      {"<*", "<a", true},           {"a>", "ab", false},
    };
    CheckAll(rows);
}

TEST(Pattern, Trailing_dots_and_blanks_of_the_pattern_are_dropped_and_leading_blanks_kept)
{
    const Row rows[] = {
        {"*.txt ", "a.txt", true},
        {"*.txt . ", "a.txt", true},
        {"a.txt.", "a.txt", true},
        {" *.txt", "a.txt", false},
        {" *.txt", " a.txt", true},
        {" *.jpg", "b.jpg", false},
        {"a.txt", "a.txt.", false},
        {"a.txt", "a.txt ", false},
        {"*.txt", "a.txt ", false},
        {"*", "a. ", true},
        {"", "a", false},
        {" ", " ", false},
        {".", ".", false},
        {"..", "..", false},
        {"", "", false},
    };
    CheckAll(rows);
}

TEST(Pattern, A_question_mark_is_one_character_but_a_dot_or_nothing_before_one_or_at_the_end)
{
    const Row rows[] = {
        {"a?.txt", "a.txt", true},
        {"a?.txt", "ab.txt", true},
        {"a?.txt", "abc.txt", false},
        {"???", "a", true},
        {"???", "ab", true},
        {"???", "abc", true},
        {"???", "abcd", false},
        {"???", "a.b", false},
        {"?", ".", false},
        {"*?", "anything.at.all", true},
        {"*?.txt", "a.txt", true},
        {"*?.txt", ".txt", true},
        {"?b", "b", false},
        {"?b", "ab", true},
        {"a?b", "ab", false},
        {"a?b", "a.b", false},
        {"?.?", "a.b", true},
        {"?.?", "a", true},
        {"?.?", "ab.c", false},
        {"????.jpg", "img.jpg", true},
    };
    CheckAll(rows);
}

TEST(Pattern, A_dot_before_a_wildcard_is_a_dot_or_the_end)
{
    const Row rows[] = {
        {"*.???", "a", true},          {"*.???", "a.b", true},   {"*.???", "a.txt", true},
        {"*.???", "a.html", false},    {"*.???", "a.b.c", true}, {"*.???", "a.txt.html", false},
        {"*.???", "a.html.txt", true}, {"*.???", "a.", true},    {"*.???", ".bashrc", false},
        {"*.???", ".git", true},       {"a.?", "a", true},       {"a.?", "a.b", true},
        {"a.?", "a.bc", false},        {"*.t*", "a.txt", true},  {"*.t*", "a", false},
        {"*.t*", "a.txt.bak", true},   {"a.*b", "a", false},     {"a.*b", "a.xb", true},
    };
    CheckAll(rows);
}

TEST(Pattern, Star_dot_takes_names_without_a_dot)
{
    const Row rows[] = {
        {"*.", "a", true},     {"*.", "Makefile", true}, {"*.", "a.b", false},
        {"*.", ".a", false},   {"*.", "a.", false},      {"*. ", "a", true},
        {"*. ", "a.b", false}, {"*..", "a", true},       {"*..", "a.b", false},
        {"m*.", "Make", true}, {"m*.", "make.c", false}, {"* ", "a.b", true},
        {"*.", ".", false},    {"*.", "..", false},
    };
    CheckAll(rows);
}

TEST(Pattern, No_name_has_a_short_form)
{
    const Row rows[] = {
        {"*.htm", "page.htm", true},          {"*.htm", "page2.html", false},
        {"*.txt", "x.txtx", false},           {"*.jpe", "FILE.JPEG", false},
        {"PROGRA~1", "Program Files", false},
    };
    CheckAll(rows);
}

TEST(Pattern, Runs_try_every_place)
{
    const Row rows[] = {
        {"*a*b*c", "xaybzc", true}, {"*a*b*c", "xaybz", false}, {"*aab", "aaab", true},
        {"a*b*a", "abba", true},    {"*x*.???", "x.x", true},   {"*x*.???", "ax.html", false},
        {"*aa*aa*", "aaa", false},  {"*aa*aa*", "aaaa", true},  {"*.tar.*", "a.tar.gz", true},
        {"*.tar.*", "a.tar", true},
    };
    CheckAll(rows);
}

TEST(Pattern, A_stray_byte_and_a_code_point_are_one_character)
{
    const Row rows[] = {
        {"?.txt", "\xFF.txt", true},      {"?.txt", "\xC3\xA4.txt", true},
        {"?.txt", "\xFF\xFE.txt", false}, {"??.txt", "\xFF\xFE.txt", true},
        {"?.txt", "😀.txt", true},         {"\xE4*", "\xE4x", true},
        {"\xE4*", "äx", false},           {"a?", "a\xCC\x88", true},
        {"\xC3?", "\xC3\xA4", false},
    };
    CheckAll(rows);
}

TEST(Pattern, In_code_page_1252_a_byte_is_a_character)
{
    const Row rows[] = {
        {"\xE4*", "\xC4x", true},         {"?.txt", "\xC3\xA4.txt", false},
        {"??.txt", "\xC3\xA4.txt", true}, {"*\x8A", "\x9A", true},
        {"\xFF", "\x9F", true},           {"\xD7", "\xF7", false},
        {"*.txt", "\x80.TXT", true},      {"\xDF", "ss", false},
    };
    CheckAll(rows, WindowsRules());
}

TEST(Pattern, A_long_pattern_is_as_good_as_a_short_one)
{
    std::string pattern, name;
    for (int part = 0; part < 200; ++part) {
        pattern += "*a?";
        name += "xab";
    }
    EXPECT_TRUE(Pattern(pattern).Matches(name));
    EXPECT_FALSE(Pattern(pattern + "z").Matches(name));
    // A match that tries every way would not end within anybody's life.
    EXPECT_FALSE(Pattern(pattern + "z").Matches(std::string(600, 'a')));
}

} // namespace
} // namespace tavo
