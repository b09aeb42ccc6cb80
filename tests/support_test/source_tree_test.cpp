#include "support/source_tree.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

Names IncludeNames(std::string_view text)
{
    Names names;
    for (const IncludeLine& include : Source_Read("a/b.h", text).Includes)
        names.push_back((include.Bracketed ? "<" : "") + include.Name + ":"
                        + std::to_string(include.Line));
    return names;
}

TEST(SourceTree, Includes_are_read_with_their_lines)
{
    struct Row {
        const char* What;
        std::string_view Text;
        Names Wanted;
    };
    const Row rows[] = {
        {"nothing", "", {}},
        {"both kinds", "#include \"a/b.h\"\n#include <string>\n", {"a/b.h:1", "<string:2"}},
        {"no line end", "\n#include <map>", {"<map:2"}},
        {"blanks", "  #  include   <map>  \r\n", {"<map:1"}},
        {"a comment behind", "#include <map> // maps\n", {"<map:1"}},
        {"in a line comment", "// #include <map>\n#include <set>", {"<set:2"}},
        {"in a block comment", "/*\n#include <map>\n*/#include <set>\n", {"<set:3"}},
        {"in a text", "x = \"\\\"\n/*\";\n#include <set>\n", {"<set:3"}},
        {"behind a quote sign", "x = '\"';\n#include <set>\n", {"<set:2"}},
        {"behind parted digits", "x = 1'000; // '\n#include <set>\n", {"<set:2"}},
        {"no end", "#include <map\n", {}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(IncludeNames(row.Text), row.Wanted) << row.What;
}

TEST(SourceTree, Conditions_are_every_kind_of_if)
{
    const SourceFile file = Source_Read("a/b.h", "#pragma once\n"
                                                 "#if defined(__linux__)\n"
                                                 "#elif X\n"
                                                 "# ifdef _WIN32\n"
                                                 "#ifndef Y\n"
                                                 "#else\n"
                                                 "#endif\n"
                                                 "// #if Z\n");
    const Names wanted = {"#if defined(__linux__)", "#elif X", "# ifdef _WIN32", "#ifndef Y"};
    EXPECT_EQ(file.Conditions, wanted);
}

TEST(SourceTree, Code_lines_are_neither_blank_nor_comment)
{
    struct Row {
        std::string_view Text;
        int Lines;
    };
    const Row rows[] = {
        {"", 0},
        {"\n  \n\t\n", 0},
        {"int a;\n\nint b; // two\n", 2},
        {"// a\n/* b\n c */\nint d;", 1},
        {"/* a */ int b;", 1},
        {"f(\"// no comment\");\n", 1},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Source_Read("a/b.cpp", row.Text).CodeLines, row.Lines) << row.Text;
}

TEST(SourceTree, A_room_is_the_folder)
{
    EXPECT_EQ(Source_Read("toolkit/text.h", "").Room(), "toolkit");
    EXPECT_EQ(Source_Read("platform/posix/places.cpp", "").Room(), "platform/posix");
}

std::vector<SourceFile> Chain(std::string_view lastIncludes)
{
    return {Source_Read("a/a.h", "#include \"a/b.h\"\n"),
            Source_Read("a/b.h", "#include \"a/c.h\"\n#include <vector>\n"),
            Source_Read("a/c.h", lastIncludes)};
}

TEST(SourceTree, Circles_are_found_and_named)
{
    EXPECT_EQ(Include_Circle(Chain("")), "");
    EXPECT_EQ(Include_Circle(Chain("#include \"a/b.h\"\n")), "a/b.h a/c.h a/b.h");
    EXPECT_EQ(Include_Circle(Chain("#include \"a/a.h\"\n")), "a/a.h a/b.h a/c.h a/a.h");
    EXPECT_EQ(Include_Circle({Source_Read("a/a.h", "#include \"a/a.h\"")}), "a/a.h a/a.h");
}

TEST(SourceTree, Reach_goes_through_other_files)
{
    const Names fromA = {"a/b.h", "a/c.h"};
    EXPECT_EQ(Include_Reach(Chain(""), "a/a.h"), fromA);
    EXPECT_EQ(Include_Reach(Chain(""), "a/c.h"), Names());
}

} // namespace
} // namespace tavo
