#include "core/state.h"

#include <gtest/gtest.h>

#include <set>

namespace tavo {
namespace {

std::string Text_Of(const SharedState& state, std::string_view name)
{
    const Variable* variable = Variable_Find(name);
    return variable ? Variable_Text(state, *variable) : "no such variable";
}

TEST(State, No_variable_has_a_double_name)
{
    std::set<std::string_view> names;
    for (const Variable& variable : Variables())
        EXPECT_TRUE(names.insert(variable.Name).second) << variable.Name;
}

TEST(State, Variables_start_as_the_program_begins)
{
    struct Row {
        const char* Name;
        const char* Text;
    };
    static constexpr Row rows[] = {
        {"Filter", "*.*"},        {"CurScreen", "-1"},      {"PrevMode", "7"},
        {"RenCount", "0"},        {"ResizeOn", "True"},     {"MainAlive", "True"},
        {"SelFolderMode", "0"},   {"ActCancel", "False"},   {"ActReady", "True"},
        {"ActPaused", "False"},   {"ClockFlag", "False"},   {"DragX", "2147483647"},
        {"DragY", "2147483647"},  {"SplitX", "2147483647"}, {"SplitY", "2147483647"},
        {"MinWidth", "6732"},     {"ClientW", "0"},         {"ClientH", "0"},
        {"ThumbCaption", "True"}, {"StartPath", ""}};
    const SharedState state;
    for (const Row& row : rows)
        EXPECT_EQ(Text_Of(state, row.Name), row.Text) << row.Name;
}

TEST(State, Other_spellings_stand_for_the_same_variable)
{
    SharedState state;
    state.nnStyle = 3;
    state.nnStart = "B";
    state.nnDigits = 4;
    state.nnAutoFill = 1;
    for (const auto& [name, text] :
         {std::pair("NNStyle", "3"), std::pair("nnStyle", "3"), std::pair("NNStart", "B"),
          std::pair("nnStart", "B"), std::pair("NNDigits", "4"), std::pair("nnDigits", "4"),
          std::pair("AutoFill", "1"), std::pair("nnAutoFill", "1")})
        EXPECT_EQ(Text_Of(state, name), text) << name;
}

TEST(State, A_name_in_another_case_is_no_variable)
{
    EXPECT_EQ(Variable_Find("renmode"), nullptr);
    EXPECT_EQ(Variable_Find(""), nullptr);
    EXPECT_NE(Variable_Find("RenMode"), nullptr);
}

TEST(State, A_variable_keeps_the_width_of_its_key)
{
    struct Row {
        const char* Name;
        std::size_t Bytes;
    };
    static constexpr Row rows[] = {
        {"SavePos", 2},   {"actClose", 1},     {"ProExt", 1},   {"AutoThumbs", 1},
        {"RetRename", 2}, {"ColViewWin", 4},   {"RenMode", 2},  {"nnStyle", 1},
        {"nnDigits", 2},  {"nnAppTmpDef", 2},  {"nnAppTmp", 1}, {"SelPreview", 1},
        {"lsvView", 1},   {"DeleteChoice", 2}, {"RenCount", 4}, {"colErrors", 1}};
    SharedState state;
    for (const Row& row : rows) {
        const Variable* variable = Variable_Find(row.Name);
        ASSERT_NE(variable, nullptr) << row.Name;
        const auto size = Variable_Use(state, *variable, [](auto& v) { return sizeof(v); });
        EXPECT_EQ(size, row.Bytes) << row.Name;
    }
}

TEST(State, Each_letter_that_precedes_capitals_has_its_own_name)
{
    SharedState state;
    for (std::size_t i = 1; i <= 6; ++i)
        state.ccTemp[i] = "t" + std::to_string(i);
    for (int i = 1; i <= 6; ++i)
        EXPECT_EQ(Text_Of(state, "ccTemp" + std::to_string(i)), "t" + std::to_string(i));
}

} // namespace
} // namespace tavo
