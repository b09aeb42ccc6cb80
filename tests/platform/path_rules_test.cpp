#include "platform/path_rules.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

struct RealPathRow {
    const char* Path;
    bool OnLinux, OnWindows;
};

TEST(PathRules, A_real_path_is_told_by_how_it_begins)
{
    const RealPathRow rows[] = {
        {"/", true, false},     {"/home/a", true, false}, {"", false, false},
        {"home", false, false}, {"C:\\", false, true},    {"c:\\a\\b", false, true},
        {"C:", false, false},   {"C:/a", false, false},   {"\\\\host\\share", false, true},
        {"\\a", false, false},  {":\\", false, false},    {"//host", true, false},
    };
    for (const RealPathRow& row : rows) {
        EXPECT_EQ(PosixRules().IsRealPath(row.Path), row.OnLinux) << row.Path;
        EXPECT_EQ(WindowsRules().IsRealPath(row.Path), row.OnWindows) << row.Path;
    }
}

TEST(PathRules, The_two_dialects_differ_in_their_values)
{
    const PathRules here = PosixRules(), there = WindowsRules();
    EXPECT_EQ(here.Separator, '/');
    EXPECT_EQ(there.Separator, '\\');
    EXPECT_FALSE(here.CaseBlind);
    EXPECT_TRUE(there.CaseBlind);
    EXPECT_FALSE(here.WildcardsInNames);
    EXPECT_TRUE(there.WildcardsInNames);
    EXPECT_TRUE(here.RootKeepsSlash);
    EXPECT_FALSE(there.RootKeepsSlash);
    EXPECT_EQ(here.Forbidden, "\\:*?\"<>|");
    EXPECT_EQ(here.MaxNameBytes, 255);
    EXPECT_FALSE(here.WordSort);
    EXPECT_TRUE(there.WordSort);
    EXPECT_TRUE(here.Utf8);
    EXPECT_FALSE(there.Utf8);
}

} // namespace
} // namespace tavo
