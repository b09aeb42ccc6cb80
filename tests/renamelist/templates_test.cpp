#include "renamelist/templates.h"

#include <gtest/gtest.h>

#include <set>

using namespace tavo;

namespace {

TmplFlags Flags(std::initializer_list<int> on)
{
    TmplFlags flags{};
    for (const int flag : on)
        flags[static_cast<std::size_t>(flag)] = true;
    return flags;
}

} // namespace

TEST(Templates, Scan_sees_capital_tokens_only_and_sums_up_in_0_and_4)
{
    const struct {
        const char* Text;
        TmplFlags Wanted;
    } rows[] = {
        {"", Flags({})},
        {"plain", Flags({})},
        {"<#>", Flags({0, 1})},
        {"x<ON>y<OE>", Flags({0, 2, 3})},
        {"<on><oe>", Flags({})},
        {"<T>", Flags({4, 5})},
        {"<AR><AL><G><Y><TR>", Flags({4, 6, 7, 8, 9, 10})},
        {"<#><T>", Flags({0, 1, 4, 5})},
        {"<ER><E>", Flags({})},
    };
    for (const auto& row : rows) {
        TmplFlags flags{};
        Tmpl_Scan(row.Text, flags);
        EXPECT_EQ(flags, row.Wanted) << row.Text;
    }
}

TEST(Templates, Replace_is_blind_to_case_and_takes_every_occurrence)
{
    const struct {
        const char *Text, *Token, *Value, *Wanted;
    } rows[] = {
        {"<ON>_<ON>", "<ON>", "a", "a_a"},
        {"<on>_<ON>", "<ON>", "a", "a_a"},
        {"none", "<ON>", "a", "none"},
        {"<ON>", "<ON>", "", ""},
        {"ä<ON>ö", "<ON>", "ü", "äüö"},
        // A value that is the token itself is stepped over, not looped on.
        {"<ON>-<ON>", "<ON>", "<on>", "<on>-<on>"},
    };
    for (const auto& row : rows) {
        std::string text = row.Text;
        Tmpl_Replace(text, row.Token, row.Value);
        EXPECT_EQ(text, row.Wanted) << row.Text;
    }
}

TEST(Templates, A_value_that_holds_its_token_ends_where_positions_end)
{
    std::string text = "<ON>";
    Tmpl_Replace(text, "<ON>", "x<ON>");
    EXPECT_GT(text.size(), 255U);
    EXPECT_LT(text.size(), 70000U);
}

TEST(Templates, Old_parts_come_in_their_order_and_only_by_their_flags)
{
    TmplFlags flags{};
    Tmpl_Scan("<ON><OE><#>", flags);
    std::string text = "<ON>-<OE>-<#>";
    Tmpl_ApplyOld(text, "name", "ext", "07", flags);
    EXPECT_EQ(text, "name-ext-07");

    // What <ON> brings in is still searched for <OE> and <#>.
    text = "<ON>.<OE>";
    Tmpl_ApplyOld(text, "<#>", "e", "07", flags);
    EXPECT_EQ(text, "07.e");

    text = "<ON><#>";
    Tmpl_ApplyOld(text, "n", "e", "1", Flags({0, 1}));
    EXPECT_EQ(text, "<ON>1");
}

TEST(Templates, Digits_are_dropped_and_nothing_else)
{
    EXPECT_EQ(Str_KeepNonDigits("a1b22c"), "abc");
    EXPECT_EQ(Str_KeepNonDigits("0123456789"), "");
    EXPECT_EQ(Str_KeepNonDigits("Ä/:"), "Ä/:");
}

TEST(Templates, Leaving_a_template_box_keeps_tokens_and_drops_what_no_name_holds)
{
    const struct {
        const char* Text;
        bool AllowExisting;
        const char* Wanted;
        bool IsGood;
    } rows[] = {
        {"<ON>_<#>", false, "<ON>_<#>", true},
        {"<on>", false, "<on>", true},
        {"<T><AR><AL><G><Y><TR>", false, "<T><AR><AL><G><Y><TR>", true},
        {"a/b", false, "ab", false},
        {"\\/:*?>|\"", false, "", false},
        {"<X>", false, "X", false},
        {"<e>", false, "e", false},
        {"<e>", true, "<e>", true},
        {"<ER>x", true, "<ER>x", true},
        {"<ER>x", false, "ERx", false},
        {"a<", false, "a", false},
        {"<<#>", false, "<#>", false},
        {"<ABCD>", true, "ABCD", false},
        {"ä<ON>ö*", false, "ä<ON>ö", false},
        {"", false, "", true},
    };
    for (const auto& row : rows) {
        std::string text = row.Text;
        EXPECT_EQ(Tmpl_CheckBox(text, row.AllowExisting), row.IsGood) << row.Text;
        EXPECT_EQ(text, row.Wanted) << row.Text;
    }
}

TEST(Templates, Bad_characters_are_stripped_from_a_replacement)
{
    std::string text = "a\\/:*?<>|\"b";
    EXPECT_FALSE(Str_StripBadChars(text));
    EXPECT_EQ(text, "ab");
    EXPECT_TRUE(Str_StripBadChars(text));
}

TEST(Templates, Table_has_no_token_twice_and_a_tip_for_each)
{
    std::set<std::string_view> tokens;
    for (const TemplateToken& token : Template_Tokens()) {
        EXPECT_TRUE(tokens.insert(token.Token).second) << token.Token;
        EXPECT_FALSE(token.Tip.empty()) << token.Token;
    }
}
