#include "platform/profile_text.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

// "none" when there is no such key.
std::string Value(const std::string& text, const std::string& section, const std::string& key)
{
    return ProfileText(text).Value(section, key).value_or("none");
}

struct ValueRow {
    const char* What;
    std::string Text;
    std::string Section, Key, Wanted;
};

void CheckAll(const std::vector<ValueRow>& rows)
{
    for (const ValueRow& row : rows)
        EXPECT_EQ(Value(row.Text, row.Section, row.Key), row.Wanted) << row.What;
}

TEST(ProfileText, Lines_end_in_CR_LF_or_one_of_them)
{
    CheckAll({
        {"CR LF", "[S]\r\na=1\r\nb=2\r\n", "S", "b", "2"},
        {"LF", "[S]\na=1\nb=2\n", "S", "b", "2"},
        {"CR", "[S]\ra=1\rb=2\r", "S", "b", "2"},
        {"mixed", "[S]\ra=1\n\r\nb=2", "S", "b", "2"},
        {"no end", "[S]\na=1", "S", "a", "1"},
        {"1A is text", "[S]\na=1\x1A\n\x1A\nb=2", "S", "a", "1\x1A"},
        {"behind 1A", "[S]\na=1\x1A\n\x1A\nb=2", "S", "b", "2"},
        {"a NUL cuts the value", "[S]\na=1 \0 2\nb=3"s, "S", "a", "1"},
        {"and nothing else", "[S]\na=1\0 2\nb=3"s, "S", "b", "3"},
    });
}

TEST(ProfileText, A_section_runs_to_the_last_bracket)
{
    CheckAll({
        {"blanks outside", " \t[S]\na=1", "S", "a", "1"},
        {"blanks inside", "[ \tS ]\na=1", "S", "a", "1"},
        {"the last bracket", "[a]b]\nk=1", "a]b", "k", "1"},
        {"junk behind", "[S] junk\na=1", "S", "a", "1"},
        {"a comment behind", "[S] ; c\na=1", "S", "a", "1"},
        {"a section is no key", "[x]y=v\n", "", "[x]y", "none"},
        {"but a section", "[x]y=v\nk=1", "x", "k", "1"},
        {"a key in front of no bracket", "[k=v\n", "", "[k", "v"},
        {"nothing at all", "[S\na=1", "S", "a", "none"},
        {"goes to the section above", "[S\na=1", "", "a", "1"},
        {"a comment is no section", ";[S]\na=1", "", "a", "1"},
        {"blanks before a comment", " \t;a=1\na=2", "", "a", "2"},
    });
}

TEST(ProfileText, Key_and_value_part_at_the_first_sign)
{
    CheckAll({
        {"trimmed", "\t a \t=\t 1 \t", "", "a", "1"},
        {"second sign", "a=b=c", "", "a", "b=c"},
        {"a number sign is a name", "#h=x", "", "#h", "x"},
        {"a semicolon in a value", "a=1 ; c", "", "a", "1 ; c"},
        {"no sign, no value", "a\nb=1", "", "a", "none"},
        {"no sign, then one", "a\na=1", "", "a", "1"},
        {"an empty value", "a=", "", "a", ""},
        {"only blanks", "a= \t ", "", "a", ""},
        {"a no-break space stays", "a=\xC2\xA0x\xC2\xA0", "", "a", "\xC2\xA0x\xC2\xA0"},
        {"one of code page 1252 too", "a=\xA0x", "", "a", "\xC2\xA0x"},
        {"an empty name", "=v", "", "", "v"},
    });
}

TEST(ProfileText, Names_are_looked_up_trimmed_and_without_case)
{
    CheckAll({
        {"key asked with blanks", "[S]\na=1", "S", " \ta ", "1"},
        {"section asked with blanks", "[S]\na=1", "\t S ", "a", "1"},
        {"ASCII case", "[sEc]\nKeY=1", "SeC", "kEy", "1"},
        {"other letters", "[Größe]\nÉtat=1", "GRÖSSE", "état", "none"},
        {"other letters, one to one", "[GRÖẞE]\nÉtat=1", "größe", "ÉTAT", "1"},
        {"Greek and Cyrillic", "[ΩЯ]\nk=1", "ωя", "k", "1"},
        {"code page 1252 and UTF-8", "[\xC4]\nk=1", "ä", "K", "1"},
        {"no such section", "[S]\na=1", "T", "a", "none"},
        {"no such key", "[S]\na=1", "S", "b", "none"},
    });
}

TEST(ProfileText, The_first_of_a_name_wins)
{
    CheckAll({
        {"key", "[S]\na=1\nA=2", "S", "a", "1"},
        {"section", "[S]\na=1\n[T]\n[s]\na=2\nb=3", "S", "a", "1"},
        {"only the first section is looked at", "[S]\na=1\n[T]\n[s]\nb=3", "S", "b", "none"},
        {"an empty first section too", "[S]\n[S]\nb=3", "S", "b", "none"},
        {"text before all headers", "a=1\n[S]\na=2", "", "a", "1"},
        {"hides a header without a name", "[S]\n[]\na=2", "", "a", "none"},
    });
}

TEST(ProfileText, One_pair_of_quotes_is_taken_off)
{
    CheckAll({
        {"double", "a=\"v\"", "", "a", "v"},
        {"single", "a='v'", "", "a", "v"},
        {"blanks inside stay", "a=\" v \" ", "", "a", " v "},
        {"one pair only", "a=\"\"v\"\"", "", "a", "\"v\""},
        {"whatever is between", "a=\"a\" \"b\"", "", "a", "a\" \"b"},
        {"a lone one stays", "a=\"", "", "a", "\""},
        {"mixed ones stay", "a=\"v'", "", "a", "\"v'"},
        {"two of them are empty", "a=\"\"", "", "a", ""},
        {"one side only", "a=\"v", "", "a", "\"v"},
    });
}

TEST(ProfileText, A_mark_in_front_is_passed_over)
{
    CheckAll({
        {"UTF-8", "\xEF\xBB\xBF[S]\na=\xC3\xA4", "S", "a", "ä"},
        {"UTF-16", "\xFF\xFE[\0S\0]\0\r\0\n\0a\0=\0\xE4\0"s, "S", "a", "ä"},
        {"UTF-16 beyond 16 bits",
         "\xFF\xFE"
         "a\0=\0\x3D\xD8\x00\xDE"s,
         "", "a", "😀"},
        {"UTF-16 with half a pair",
         "\xFF\xFE"
         "a\0=\0\x3D\xD8"
         "b\0"s,
         "", "a",
         "\xEF\xBF\xBD"
         "b"},
        {"UTF-16 with half a unit",
         "\xFF\xFE"
         "a\0=\0"
         "1\0x"s,
         "", "a", "1"},
        {"nothing but the mark", "\xEF\xBB\xBF", "", "a", "none"},
    });
}

TEST(ProfileText, A_line_that_is_no_UTF_8_is_code_page_1252)
{
    CheckAll({
        {"1252", "a=\x80\x81\xE4", "", "a", "\xE2\x82\xAC\xC2\x81\xC3\xA4"},
        {"UTF-8", "a=\xC3\xA4\xE2\x82\xAC", "", "a", "ä€"},
        {"the one leaves the other", "a=\xE4\nb=\xC3\xA4", "", "b", "ä"},
        {"both in one line", "a=\xE4\xC3\xA4", "", "a", "\xC3\xA4\xC3\x83\xC2\xA4"},
    });
}

TEST(ProfileText, Keys_come_in_file_order_with_repeated_ones)
{
    const ProfileText text("x=0\n[S]\nb=1\n;c=2\na = 2\nnothing\n\nB=3\n=v\n[T]\nf=4\n[S]\ne=5");
    EXPECT_EQ(text.Keys("s"), (Names{"b", "a", "B", ""}));
    EXPECT_EQ(text.Keys(""), Names{"x"});
    EXPECT_EQ(text.Keys("T"), Names{"f"});
    EXPECT_EQ(text.Keys("U"), Names{});
}

TEST(ProfileText, Lines_keep_their_bytes_and_ends)
{
    const std::string bytes = " [S] x\r\n\r\n\tk = \xE4 \n;c\r=\r\n\0\nlast"s;
    const ProfileText text(bytes);
    std::string joined;
    for (const ProfileText::Line& line : text.Lines())
        joined += line.Text + line.End;
    EXPECT_EQ(joined, bytes);
    EXPECT_EQ(text.Lines().size(), 7u);
}

std::string Answer(const std::string& text, const std::optional<std::string>& key,
                   const std::string& fallback, int size)
{
    return ProfileAnswer(ProfileText(text), "S", key, fallback, size);
}

struct AnswerRow {
    const char* What;
    std::string Text;
    std::optional<std::string> Key;
    std::string Fallback;
    int Size;
    std::string Wanted;
};

TEST(ProfileAnswer, Values_lists_and_defaults_are_cut_to_their_size)
{
    const std::string full(2047, 'x');
    const std::vector<AnswerRow> rows = {
        {"a value", "[S]\nk=v", "k", "d", 2048, "v"},
        {"an empty value is not the default", "[S]\nk=", "k", "d", 2048, ""},
        {"no key", "[S]", "k", "d", 2048, "d"},
        {"no sign", "[S]\nk", "k", "d", 2048, "d"},
        {"2047 fit", "[S]\nk=" + full, "k", "", 2048, full},
        {"2048 don't", "[S]\nk=" + full + "y", "k", "", 2048, full},
        {"no character is split", "[S]\nk=aä", "k", "", 3, "a"},
        {"one that fits", "[S]\nk=aä", "k", "", 4, "aä"},
        {"size 1", "[S]\nk=v", "k", "d", 1, ""},
        {"size 0", "[S]\nk=v", "k", "d", 0, ""},
        {"negative size", "[S]\nk=v", std::nullopt, "d", -1, ""},
        {"default without its end", "", "k", "  d  ", 2048, "  d"},
        {"default without quotes", "", "k", "'d ' ", 2048, "d "},
        {"default cut", "", "k", "default", 4, "def"},
        {"default of blanks", "", "k", "   ", 2048, ""},
        {"list", "[S]\na=1\nb=2", std::nullopt, "d", 2048, "a\0b\0"s},
        {"list without keys", "[S]\nnothing", std::nullopt, "d", 2048, "d"},
        {"no section", "", std::nullopt, "", 2048, ""},
        {"list that fits", "[S]\nabc=1\nde=2", std::nullopt, "", 9, "abc\0de\0"s},
        {"list cut in a name", "[S]\nabc=1\nde=2", std::nullopt, "", 7, "abc\0d"s},
        {"list cut at a character", "[S]\nab=1\ncä=2", std::nullopt, "", 7, "ab\0c"s},
        {"list of size 2", "[S]\nab=1", std::nullopt, "d", 2, ""},
        {"empty name in a list", "[S]\n=1\nb=2", std::nullopt, "", 2048, "\0b\0"s},
    };
    for (const AnswerRow& row : rows)
        EXPECT_EQ(Answer(row.Text, row.Key, row.Fallback, row.Size), row.Wanted) << row.What;
}

TEST(ProfileAnswer, A_list_of_2048_is_cut_to_2046_bytes)
{
    std::string text = "[S]\n";
    for (int number = 1000; number < 1500; ++number)
        text += std::to_string(number) + "=x\n";
    const std::string list = Answer(text, std::nullopt, "", 2048);
    EXPECT_EQ(list.size(), 2046u);
    EXPECT_EQ(list.substr(2035), "1407\0001408\0001"s);
}

} // namespace
} // namespace tavo
