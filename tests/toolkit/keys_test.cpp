#include "toolkit/keys.h"

#include "toolkit/utf8.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

struct NameCase {
    const char* Name;
    bool Known;
    int Code, Shift;
    char32_t Char;
};

const NameCase nameCases[] = {
    {"Return", true, keyReturn, shiftNone, 13},
    {"Escape", true, keyEscape, shiftNone, 27},
    {"Backspace", true, keyBackspace, shiftNone, 8},
    {"Tab", true, keyTab, shiftNone, 9},
    {"Space", true, keySpace, shiftNone, ' '},
    {" ", true, keySpace, shiftNone, ' '},
    {"Delete", true, keyDelete, shiftNone, 0},
    {"Up", true, keyUp, shiftNone, 0},
    {"Down", true, keyDown, shiftNone, 0},
    {"Left", true, keyLeft, shiftNone, 0},
    {"Right", true, keyRight, shiftNone, 0},
    {"Home", true, keyHome, shiftNone, 0},
    {"End", true, keyEnd, shiftNone, 0},
    {"PageUp", true, keyPageUp, shiftNone, 0},
    {"PageDown", true, keyPageDown, shiftNone, 0},
    {"F5", true, keyF5, shiftNone, 0},
    {"F6", true, keyF6, shiftNone, 0},
    {"a", true, 'A', shiftNone, 'a'},
    {"A", true, 'A', shiftShift, 'A'},
    {"7", true, '7', shiftNone, '7'},
    {".", true, keyOther, shiftNone, '.'},
    {"+", true, keyOther, shiftNone, '+'},
    {"\xC3\xA4", true, keyOther, shiftNone, 0xE4},
    {"\xFF", true, keyOther, shiftNone, Character::StrayBase + 0xFF},
    {"Ctrl+A", true, 'A', shiftCtrl, 1},
    {"Ctrl+c", true, 'C', shiftCtrl, 3},
    {"Ctrl+Z", true, 'Z', shiftCtrl, 26},
    {"Ctrl+Shift+z", true, 'Z', shiftCtrl | shiftShift, 26},
    {"Shift+Ctrl+z", true, 'Z', shiftCtrl | shiftShift, 26},
    {"Ctrl+Home", true, keyHome, shiftCtrl, 0},
    {"Ctrl+Return", true, keyReturn, shiftCtrl, 0},
    {"Ctrl++", true, keyOther, shiftCtrl, 0},
    {"Alt+D", true, 'D', shiftAlt, 0},
    {"Alt+d", true, 'D', shiftAlt, 0},
    {"Shift+Tab", true, keyTab, shiftShift, 9},
    {"Shift+a", true, 'A', shiftShift, 'A'},
    {"Shift+\xC3\xA4", true, keyOther, shiftShift, 0xC4},
    {"Ctrl+Alt+x", true, 'X', shiftCtrl | shiftAlt, 0},
    {"", false, 0, 0, 0},
    {"ab", false, 0, 0, 0},
    {"return", false, 0, 0, 0},
    {"F99", false, 0, 0, 0},
    {"Ctrl+", false, 0, 0, 0},
    {"Ctrl+Ctrl+A", false, 0, 0, 0},
    {"ctrl+A", false, 0, 0, 0},
    {"Meta+A", false, 0, 0, 0},
};

TEST(Keys, A_name_gives_code_shift_and_character)
{
    for (const NameCase& row : nameCases) {
        Key key{77, 1, 'q'};
        ASSERT_EQ(Key_FromName(row.Name, key), row.Known) << row.Name;
        const Key wanted = row.Known ? Key{row.Code, row.Shift, row.Char} : Key{77, 1, 'q'};
        EXPECT_EQ(key.Code, wanted.Code) << row.Name;
        EXPECT_EQ(key.Shift, wanted.Shift) << row.Name;
        EXPECT_EQ(key.Char, wanted.Char) << row.Name;
    }
}

struct CharCase {
    char32_t From;
    int Code, Shift;
    char32_t Char;
};

const CharCase charCases[] = {
    {0, keyNone, shiftNone, 0},       {'x', 'X', shiftNone, 'x'},
    {'X', 'X', shiftShift, 'X'},      {'0', '0', shiftNone, '0'},
    {'\n', keyReturn, shiftNone, 13}, {'\r', keyReturn, shiftNone, 13},
    {'\t', keyTab, shiftNone, 9},     {8, keyBackspace, shiftNone, 8},
    {27, keyEscape, shiftNone, 27},   {3, 'C', shiftCtrl, 3},
    {26, 'Z', shiftCtrl, 26},         {'%', keyOther, shiftNone, '%'},
    {'.', keyOther, shiftNone, '.'},  {0x1F600, keyOther, shiftNone, 0x1F600},
};

TEST(Keys, A_character_gives_the_key_that_types_it)
{
    for (const CharCase& row : charCases) {
        const Key key = Key_FromChar(row.From);
        EXPECT_EQ(key.Code, row.Code) << static_cast<unsigned>(row.From);
        EXPECT_EQ(key.Shift, row.Shift) << static_cast<unsigned>(row.From);
        EXPECT_EQ(key.Char, row.Char) << static_cast<unsigned>(row.From);
    }
}

TEST(Keys, Alt_alone_types_nothing_and_Ctrl_with_Alt_does)
{
    EXPECT_TRUE(Key_Types({'A', shiftNone, 'a'}));
    EXPECT_FALSE(Key_Types({'A', shiftAlt, 'a'}));
    EXPECT_TRUE(Key_Types({keyOther, shiftCtrl | shiftAlt, '@'}));
    EXPECT_FALSE(Key_Types({keyUp, shiftNone, 0}));
}

} // namespace
} // namespace tavo
