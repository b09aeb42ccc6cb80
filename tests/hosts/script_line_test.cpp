#include "hosts/console/script_line.h"

#include <gtest/gtest.h>

using tavo::console::Line_Split;
using tavo::console::Value_Escape;
using Words = std::vector<std::string>;

TEST(ScriptLine, Words_are_parted_by_blanks_and_quotes_hold_them)
{
    const struct {
        const char* Line;
        Words Wanted;
    } rows[] = {
        {"", {}},
        {"   ", {}},
        {"click ID_RenAll", {"click", "ID_RenAll"}},
        {"  a   b ", {"a", "b"}},
        {R"(set x "a b")", {"set", "x", "a b"}},
        {R"(set x "")", {"set", "x", ""}},
        {R"(a\tb)", {R"(a\tb)"}},
        {R"("\t\n\r\\\"")", {"\t\n\r\\\""}},
        {R"("\x41\xff")", {"A\xff"}},
        {R"(a"b c")", {"a\"b", "c\""}},
        {"\xff\xfe", {"\xff\xfe"}},
    };
    for (const auto& row : rows) {
        Words words;
        std::string why;
        EXPECT_TRUE(Line_Split(row.Line, words, why)) << row.Line << ": " << why;
        EXPECT_EQ(words, row.Wanted) << row.Line;
    }
    Words words;
    std::string why;
    EXPECT_TRUE(Line_Split("\"a\\0b\"", words, why));
    EXPECT_EQ(words, Words{std::string("a\0b", 3)});
}

TEST(ScriptLine, Broken_quotes_are_refused_with_a_reason)
{
    const struct {
        const char *Line, *Why;
    } rows[] = {
        {R"("abc)", "unfinished quote"},
        {R"(set x ")", "unfinished quote"},
        {R"("abc\")", "unfinished quote"},
        {R"("a\q")", "unknown escape in quotes"},
        {R"("\x4")", "unknown escape in quotes"},
        {R"("\xzz")", "unknown escape in quotes"},
        {R"("a"b)", "text right behind a closing quote"},
    };
    for (const auto& row : rows) {
        Words words;
        std::string why;
        EXPECT_FALSE(Line_Split(row.Line, words, why)) << row.Line;
        EXPECT_EQ(why, row.Why) << row.Line;
    }
}

TEST(ScriptLine, Values_are_printed_on_one_line)
{
    EXPECT_EQ(Value_Escape(std::string_view("a\tb\nc\rd\0e\\", 10)), "a\\tb\\nc\\rd\\0e\\\\");
    EXPECT_EQ(Value_Escape("\xff\"ä"), "\xff\"ä");
}
