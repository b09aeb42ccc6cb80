#include "settings/settings_table.h"

#include "core/state.h"

#include <gtest/gtest.h>

#include <set>

namespace tavo {
namespace {

std::vector<std::string> Keys_Of(std::string_view section)
{
    std::vector<std::string> keys;
    for (const Setting& row : Settings_Table())
        if (row.Section == section)
            keys.emplace_back(row.Key);
    return keys;
}

TEST(SettingsTable, Keys_stand_in_the_order_of_writing)
{
    EXPECT_EQ(Keys_Of("Settings"),
              (std::vector<std::string>{"SavePos", "SaveDef", "actClose", "ShowFile", "SetDigits",
                                        "PreList", "ProExt", "SupWarnRen", "SupWarnUndo",
                                        "AutoSelNext", "AutoThumbs", "RetRename"}));
    EXPECT_EQ(Keys_Of("Defaults"),
              (std::vector<std::string>{
                  "Path",       "RenMode",    "ColViewWin",    "Scheme",        "ThumbCaption",
                  "Gif",        "tbsAddress", "tbsTextLabels", "tbtTextLabels", "tbvTextLabels",
                  "SelPreview", "ccMode",     "ccCap",         "ccWord",        "ccTemp1",
                  "ccTemp2",    "ccTemp3",    "ccTemp4",       "ccTemp5",       "ccTemp6",
                  "nnStyle",    "nnStart",    "nnDigits",      "nnAppTmpDef",   "nnAppTmp",
                  "nnAutoFill", "srMode",     "srMatchCase",   "srType",        "dtCreate",
                  "dtMod",      "dtAccess",   "mcdMode",       "SortDis",       "lsvView"}));
}

TEST(SettingsTable, No_key_stands_twice_in_a_section)
{
    std::set<std::pair<std::string_view, std::string_view>> seen;
    for (const Setting& row : Settings_Table())
        EXPECT_TRUE(seen.insert({row.Section, row.Key}).second) << row.Key;
}

TEST(SettingsTable, Every_key_drives_a_variable_or_a_control)
{
    for (const Setting& row : Settings_Table())
        EXPECT_TRUE(Variable_Find(row.Key) || row.Show) << row.Key;
}

TEST(SettingsTable, What_a_range_puts_in_lies_in_it)
{
    for (const Setting& row : Settings_Table())
        if (row.Range.IsOn()) {
            EXPECT_GE(row.Range.Otherwise, row.Range.Low) << row.Key;
            EXPECT_LE(row.Range.Otherwise, row.Range.High) << row.Key;
        }
}

} // namespace
} // namespace tavo
