#include "core/frm_main.h"
#include "core/tools.h"
#include "selection/paths.h"
#include "settings/settings_file.h"
#include "settings/settings_table.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

using Flavour = MemoryDisk::Flavour;

// -- Values

enum class Width { Byte, Word, Long, Truth, Text, Starred, Folder };

// What a width cannot hold, above and below. A text is cut instead.
const char* Text_Above(Width width)
{
    static constexpr const char* texts[] = {"256", "32768", "2147483648", "1E400"};
    return texts[static_cast<int>(width)];
}

const char* Text_Below(Width width)
{
    static constexpr const char* texts[] = {"-256", "-32769", "-2147483649", "-1E400"};
    return texts[static_cast<int>(width)];
}

bool IsNumber(Width width)
{
    return width < Width::Text;
}

// What comes of a key at a first load, before which every variable is 0 or
// empty. `Missing` is for an empty value too.
struct Key {
    const char *Section, *Name;
    Width Is;
    const char *Missing, *Letters, *Above, *Negative, *Below;
};

constexpr auto aByte = Width::Byte;
constexpr auto aWord = Width::Word;
constexpr auto aText = Width::Text;
constexpr auto stars = Width::Starred;

constexpr Key keys[] = {
    // section, key, width, missing, "abc", above the width, "-1", below the width
    {"Settings", "SavePos", aWord, "1", "0", "0", "-1", "0"},
    {"Settings", "SaveDef", aWord, "1", "0", "0", "-1", "0"},
    {"Settings", "actClose", aByte, "0", "0", "0", "0", "0"},
    {"Settings", "ShowFile", aWord, "1", "0", "0", "-1", "0"},
    {"Settings", "SetDigits", aWord, "0", "0", "0", "-1", "0"},
    {"Settings", "PreList", aWord, "1", "0", "0", "-1", "0"},
    {"Settings", "ProExt", aByte, "1", "0", "0", "0", "0"},
    {"Settings", "SupWarnRen", aWord, "0", "0", "0", "-1", "0"},
    {"Settings", "SupWarnUndo", aWord, "0", "0", "0", "-1", "0"},
    {"Settings", "AutoSelNext", aWord, "1", "0", "0", "-1", "0"},
    {"Settings", "AutoThumbs", aByte, "0", "0", "0", "0", "0"},
    {"Settings", "RetRename", aWord, "1", "0", "0", "-1", "0"},

    {"Defaults", "Path", Width::Folder, "", "", "", "", ""},
    {"Defaults", "RenMode", aWord, "4", "0", "0", "4", "0"},
    {"Defaults", "ColViewWin", Width::Long, "-2147483643", "0", "0", "-1", "0"},
    {"Defaults", "Scheme", aText, "0", "abc", "", "-1", ""},
    // The list of schemes, which is read before, has set it.
    {"Defaults", "ThumbCaption", Width::Truth, "True", "True", "True", "True", "True"},
    {"Defaults", "Gif", aByte, "0", "0", "0", "0", "0"},
    {"Defaults", "tbsAddress", aByte, "1", "0", "0", "0", "0"},
    {"Defaults", "tbsTextLabels", aByte, "1", "0", "0", "0", "0"},
    {"Defaults", "tbtTextLabels", aByte, "1", "0", "0", "0", "0"},
    {"Defaults", "tbvTextLabels", aByte, "1", "0", "0", "0", "0"},
    {"Defaults", "SelPreview", aByte, "0", "0", "0", "0", "0"},
    // A range looks at the variable, so that 0 may lie outside it.
    {"Defaults", "ccMode", aByte, "3", "3", "3", "3", "3"},
    {"Defaults", "ccCap", aByte, "1", "0", "0", "0", "0"},
    {"Defaults", "ccWord", aByte, "0", "0", "0", "0", "0"},
    {"Defaults", "ccTemp1", stars, " ", "abc", "", "-1", ""},
    {"Defaults", "ccTemp2", stars, "_", "abc", "", "-1", ""},
    {"Defaults", "ccTemp3", stars, "-", "abc", "", "-1", ""},
    {"Defaults", "ccTemp4", stars, "", "abc", "", "-1", ""},
    {"Defaults", "ccTemp5", stars, "", "abc", "", "-1", ""},
    {"Defaults", "ccTemp6", stars, "", "abc", "", "-1", ""},
    {"Defaults", "nnStyle", aByte, "1", "1", "1", "1", "1"},
    // Its box takes no number below 0.
    {"Defaults", "nnStart", aText, "1", "abc", "", "0", ""},
    {"Defaults", "nnDigits", aWord, "1", "0", "0", "-1", "0"},
    {"Defaults", "nnAppTmpDef", aWord, "0", "0", "0", "0", "0"},
    {"Defaults", "nnAppTmp", aByte, "0", "0", "0", "0", "0"},
    {"Defaults", "nnAutoFill", aByte, "1", "0", "0", "0", "0"},
    {"Defaults", "srMode", aByte, "3", "3", "3", "3", "3"},
    {"Defaults", "srMatchCase", aByte, "0", "0", "0", "0", "0"},
    {"Defaults", "srType", aByte, "1", "1", "1", "1", "1"},
    {"Defaults", "dtCreate", aByte, "1", "0", "0", "0", "0"},
    {"Defaults", "dtMod", aByte, "0", "0", "0", "0", "0"},
    {"Defaults", "dtAccess", aByte, "0", "0", "0", "0", "0"},
    {"Defaults", "mcdMode", aByte, "2", "2", "2", "2", "2"},
    {"Defaults", "SortDis", aText, "1", "abc", "", "-1", ""},
    {"Defaults", "lsvView", aByte, "3", "3", "3", "3", "3"},
};

enum Damage { missing, empty, letters, above, negative, below, damageCount };

// The text behind the key's sign; none where the key itself is missing.
std::optional<std::string> Damaged_Text(const Key& key, Damage damage)
{
    const std::string longText(3000, 'x');
    switch (damage) {
    case missing: return std::nullopt;
    case empty: return "";
    case letters: return "abc";
    case above: return IsNumber(key.Is) ? Text_Above(key.Is) : longText;
    case negative: return "-1";
    default: return IsNumber(key.Is) ? Text_Below(key.Is) : '-' + longText;
    }
}

std::string Damaged_Line(const Key& key, Damage damage)
{
    const auto text = Damaged_Text(key, damage);
    return text ? std::string(key.Name) + "=" + *text + "\n" : "";
}

std::string Expected_Text(const Key& key, Damage damage, const std::string& appFolder)
{
    constexpr std::size_t mostBytes = 2047;
    if (key.Is == Width::Folder)
        return appFolder;
    if (!IsNumber(key.Is) && (damage == above || damage == below))
        return Damaged_Text(key, damage)->substr(0, mostBytes);
    const char* const texts[] = {key.Missing, key.Missing,  key.Letters,
                                 key.Above,   key.Negative, key.Below};
    return texts[damage];
}

// What the program has made of the key.
std::string Value_Of(Program& p, const Key& key)
{
    if (key.Is == Width::Folder)
        return Path_AddSlash(p.state.StartPath, p.files.Rules());
    const Variable* variable = Variable_Find(key.Name);
    if (variable)
        return Variable_Text(p.state, *variable);
    const TextBox* box = Tool_Box(p, "ID_SelDistance");
    return box ? box->Text.Get() : "no box";
}

TEST(DamagedSettings, Every_key_has_its_row)
{
    std::size_t row = 0;
    for (const Setting& setting : Settings_Table()) {
        ASSERT_LT(row, std::size(keys)) << setting.Key;
        EXPECT_EQ(setting.Section, keys[row].Section) << setting.Key;
        EXPECT_EQ(setting.Key, keys[row].Name);
        ++row;
    }
    EXPECT_EQ(row, std::size(keys));
}

TEST(DamagedSettings, Each_key_by_itself)
{
    for (const Key& key : keys)
        for (int damage = missing; damage < damageCount; ++damage) {
            const std::string line = Damaged_Line(key, static_cast<Damage>(damage));
            ProgramRig rig(Flavour::Posix);
            Program& p = rig.Start("", "[" + std::string(key.Section) + "]\n" + line);
            EXPECT_EQ(Value_Of(p, key),
                      Expected_Text(key, static_cast<Damage>(damage), rig.AppFolder))
                << key.Name << ", damage " << damage;
        }
}

// A start on the other screen puts the mode of an empty list in force, so files
// that say much at once begin with this.
constexpr std::string_view settingsHeader = "[Settings]\nShowFile=1\n";

bool IsScreen(const Key& key)
{
    return std::string_view(key.Name) == "ShowFile";
}

// A value for the key that no damage gives, and no default.
std::string Good_Text(const Key& key)
{
    if (key.Is == Width::Truth)
        return "False";
    return std::string(key.Name) == "nnAutoFill" ? "0" : "2";
}

// Both sections with this behind the name of each key that is a number.
template <typename Line>
std::string Numbers_File(Line line)
{
    std::string text = "[Templates]\nA=1\nB=2\n" + std::string(settingsHeader);
    for (const Key& key : keys) {
        if (key.Is == Width::Folder)
            text += "[Defaults]\n";
        if (IsNumber(key.Is))
            text += line(key);
    }
    return text;
}

std::string Good_Line(const Key& key)
{
    return std::string(key.Name) + "=" + Good_Text(key) + "\n";
}

TEST(DamagedSettings, What_is_no_number_leaves_what_the_load_before_has_given)
{
    for (const Damage damage : {letters, above, below}) {
        ProgramRig rig(Flavour::Posix);
        Program& p = rig.Start("", Numbers_File(Good_Line));
        const std::string file = rig.AppFolder + "Tavo.ini";
        rig.Profile.SetText(
            file, Numbers_File([damage](const Key& key) { return Damaged_Line(key, damage); }));
        Ini_Load(p, "Defaults", file);
        Ini_Load(p, "Settings", file);
        for (const Key& key : keys)
            if (IsNumber(key.Is) && !IsScreen(key)) {
                EXPECT_EQ(Value_Of(p, key), Good_Text(key)) << key.Name << ", damage " << damage;
            }
    }
}

// -- Files, in both dialects

class DamagedFile : public testing::TestWithParam<Flavour> {
protected:
    Program& Start(const std::string& settings) { return rig.Start("", settings); }
    ProgramRig rig{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Dialects, DamagedFile, testing::Values(Flavour::Posix, Flavour::Windows),
                         [](const auto& each) {
                             return each.param == Flavour::Posix ? "Linux" : "Windows";
                         });

TEST_P(DamagedFile, All_keys_at_once)
{
    for (int damage = missing; damage < damageCount; ++damage) {
        std::string text(settingsHeader);
        for (const Key& key : keys) {
            if (key.Is == Width::Folder)
                text += "[Defaults]\n";
            text += Damaged_Line(key, static_cast<Damage>(damage));
        }
        ProgramRig one(GetParam());
        Program& p = one.Start("", text);
        for (const Key& key : keys)
            if (!IsScreen(key)) {
                EXPECT_EQ(Value_Of(p, key),
                          Expected_Text(key, static_cast<Damage>(damage), one.AppFolder))
                    << key.Name << ", damage " << damage;
            }
    }
}

TEST_P(DamagedFile, That_says_nothing_gives_the_defaults)
{
    using namespace std::string_literals;
    const std::string texts[] = {"\n"s,
                                 "\r"s,
                                 "\0"s,
                                 std::string(5000, '\0'),
                                 std::string(5000, '\xFF'),
                                 std::string(5000, '['),
                                 std::string(5000, '='),
                                 std::string(5000, ' '),
                                 "\xEF\xBB\xBF"s,
                                 "\xFF\xFE"s,
                                 "\xFF\xFE["s,
                                 "\xFE\xFF\0[\0S"s,
                                 "[]"s,
                                 "[Defaults"s,
                                 "[Defaults\nRenMode=1"s,
                                 "RenMode=1\n[Default]\nRenMode=1\n[Defaults ]"s,
                                 "[Defaults]\nRenMode\nRenMode;=1\n;RenMode=1\n =1\n"s,
                                 "MZ\x90\0\x03\0\0\0\x04\0\0\0\xFF\xFF\0\0\xB8"s};
    for (const std::string& text : texts) {
        ProgramRig one(GetParam());
        Program& p = one.Start("", text);
        for (const Key& key : keys)
            EXPECT_EQ(Value_Of(p, key), Expected_Text(key, missing, one.AppFolder))
                << key.Name << " of " << testing::PrintToString(text.substr(0, 40));
    }
}

TEST_P(DamagedFile, The_first_of_a_key_wins)
{
    Program& p = Start(Numbers_File([](const Key& key) {
        return Good_Line(key) + std::string(key.Name) + "=1\n" + std::string(key.Name) + "=abc\n";
    }));
    for (const Key& key : keys)
        if (IsNumber(key.Is) && !IsScreen(key)) {
            EXPECT_EQ(Value_Of(p, key), Good_Text(key)) << key.Name;
        }
}

TEST_P(DamagedFile, A_bad_key_is_not_mended_by_a_second_one)
{
    Program& p = Start("[Defaults]\nnnDigits=abc\nnnDigits=3\nRenMode=\nRenMode=5\n");
    EXPECT_EQ(p.state.nnDigits, 0);
    EXPECT_EQ(p.state.RenMode, modeNameNumber);
}

TEST_P(DamagedFile, Only_the_first_section_of_a_name_is_looked_at)
{
    Program& p = Start("[Defaults]\nRenMode=2\n[Favorites]\nA=1\n[Settings]\n"
                       "[DEFAULTS]\nRenMode=5\nlsvView=2\n[Favorites]\nB=2\n"
                       "[Settings]\nProExt=0\n[Windows]\n[Windows]\nC=3\n");
    EXPECT_EQ(p.state.RenMode, modeDateTime);
    EXPECT_EQ(p.state.lsvView, 3);
    EXPECT_EQ(p.state.ProExt, 1);
    EXPECT_EQ(List_Last(p.state.Windows), 0);
    ASSERT_EQ(List_Last(p.state.Favorites), 1);
    EXPECT_EQ(p.state.Favorites[1].Name, "A");
}

TEST_P(DamagedFile, The_first_of_two_rows_of_one_name_gives_the_value_of_both)
{
    Program& p = Start("[Filters]\nA=*.a\na=*.b\n[CaseWordList]\n1=MP3\n1=DVD\n");
    ASSERT_EQ(List_Last(p.state.Filters), 2);
    EXPECT_EQ(p.state.Filters[2].Name, "a");
    EXPECT_EQ(p.state.Filters[2].Data, "*.a");
    EXPECT_EQ(p.state.CaseWordList, (std::vector<std::string>{"", "MP3", "MP3"}));
}

// -- Large ones

constexpr NamedList SharedState::*lists[] = {&SharedState::Favorites, &SharedState::Filters,
                                             &SharedState::Templates, &SharedState::ThumbSchemes,
                                             &SharedState::Windows};
constexpr const char* listNames[] = {"Favorites", "Filters", "Templates", "ThumbSchemes",
                                     "Windows"};

// Ten thousand keys of six characters.
std::string Keys_Many()
{
    std::string text;
    for (int number = 10000; number < 20000; ++number)
        text += "k" + std::to_string(number) + "=v" + std::to_string(number) + "\n";
    return text;
}

TEST_P(DamagedFile, Behind_ten_thousand_keys_all_others_are_read)
{
    Program& p = Start("[Settings]\n" + Keys_Many() + "ProExt=0\n[Defaults]\n" + Keys_Many()
                       + "RenMode=5\n[Position]\n" + Keys_Many() + "Main=150,300,9000,7500,0\n");
    EXPECT_EQ(p.state.ProExt, 0);
    EXPECT_EQ(p.state.RenMode, modeSearchReplace);
    EXPECT_EQ(p.main.Width(), 9000);
}

TEST_P(DamagedFile, Of_ten_thousand_rows_a_list_has_what_fits)
{
    // 2046 bytes at 7 a name: 292 whole ones, and 2 bytes of the next.
    constexpr int whole = 292;
    std::string text = "[CaseWordList]\n" + Keys_Many();
    for (const char* name : listNames)
        text += "[" + std::string(name) + "]\n" + Keys_Many();
    Program& p = Start(text);
    for (std::size_t index = 0; index < std::size(lists); ++index) {
        const NamedList& list = p.state.*lists[index];
        ASSERT_EQ(List_Last(list), whole + 1) << listNames[index];
        EXPECT_EQ(list[whole].Name, "k10291") << listNames[index];
        EXPECT_EQ(list[whole].Data, "v10291") << listNames[index];
        EXPECT_EQ(list[whole + 1].Name, "k1") << listNames[index];
        EXPECT_EQ(list[whole + 1].Data, "") << listNames[index];
    }
    ASSERT_EQ(p.state.CaseWordList.size(), whole + 2u);
    EXPECT_EQ(p.state.CaseWordList[whole], "v10291");
    EXPECT_EQ(p.state.CaseWordList[whole + 1], "");
}

TEST_P(DamagedFile, A_line_of_a_megabyte_leaves_the_others_alone)
{
    const std::string mega(1 << 20, 'm');
    const std::string lines[] = {
        mega,            // no key
        mega + "=1",     // a key
        "Other=" + mega, // a value
        "; " + mega,     // a comment
        "[" + mega,      // no section
        std::string(1 << 20, ' '),
    };
    for (const std::string& line : lines) {
        ProgramRig one(GetParam());
        Program& p = one.Start("", line + "\n[Defaults]\nccCap=0\n" + line + "\nRenMode=5\n");
        EXPECT_EQ(p.state.RenMode, modeSearchReplace) << line.substr(0, 8);
        EXPECT_EQ(p.state.ccCap, 0) << line.substr(0, 8);
    }
}

TEST_P(DamagedFile, A_section_with_a_name_of_a_megabyte_is_another_one)
{
    const std::string mega(1 << 20, 'm');
    Program& p = Start("[Defaults" + mega + "]\nRenMode=1\n[Defaults]\nRenMode=5\n[" + mega
                       + "Settings]\nProExt=0\n");
    EXPECT_EQ(p.state.RenMode, modeSearchReplace);
    EXPECT_EQ(p.state.ProExt, 1);
}

TEST_P(DamagedFile, Rows_of_a_megabyte_are_cut)
{
    const std::string mega(1 << 20, 'm');
    Program& p = Start("[Favorites]\nA=" + mega + "\nB=b\n[Windows]\n" + mega
                       + "=w\nC=c\n[Defaults]\nnnStart=" + mega + "\nRenMode=" + mega + "\n");
    ASSERT_EQ(List_Last(p.state.Favorites), 2);
    EXPECT_EQ(p.state.Favorites[1].Data, mega.substr(0, 2047));
    EXPECT_EQ(p.state.Favorites[2].Data, "b");
    ASSERT_EQ(List_Last(p.state.Windows), 1) << "the long name takes all of the room";
    EXPECT_EQ(p.state.Windows[1].Name, mega.substr(0, 30));
    EXPECT_EQ(p.state.Windows[1].Data, "") << "no key has the name as it was cut";
    EXPECT_EQ(p.state.nnStart, mega.substr(0, 2047));
    EXPECT_EQ(p.state.RenMode, 0);
}

// -- Bytes

TEST_P(DamagedFile, A_value_ends_at_a_NUL)
{
    using namespace std::string_literals;
    Program& p = Start("[Defaults]\nRenMode=5\0"
                       "9\nnnStart=7 \0 8\nccCap=\0"
                       "0\n"
                       "ccTemp1=*x\0*\nlsvView=2\n[Favorites]\nA=/a/\0b/\nB=/b/\n"s);
    EXPECT_EQ(p.state.RenMode, modeSearchReplace);
    EXPECT_EQ(p.state.nnStart, "7");
    EXPECT_EQ(p.state.ccCap, 1) << "nothing is left, as if the key were missing";
    EXPECT_EQ(p.state.ccTemp[1], "x");
    EXPECT_EQ(p.state.lsvView, 2);
    EXPECT_EQ(p.state.Favorites[1].Data, "/a/");
    EXPECT_EQ(p.state.Favorites[2].Data, "/b/");
}

TEST_P(DamagedFile, A_name_with_a_NUL_is_another_name)
{
    using namespace std::string_literals;
    Program& p = Start("[Defaults]\nRen\0Mode=5\nlsvView\0=2\nccCap=0\n"
                       "[Set\0tings]\nProExt=0\n[Settings\0]\nProExt=0\n"s);
    EXPECT_EQ(p.state.RenMode, modeNameNumber);
    EXPECT_EQ(p.state.lsvView, 3);
    EXPECT_EQ(p.state.ccCap, 0);
    EXPECT_EQ(p.state.ProExt, 1);
}

TEST_P(DamagedFile, A_NUL_parts_a_row_in_two)
{
    using namespace std::string_literals;
    Program& p = Start("[Favorites]\nA\0B=/a/\nC=/c/\n"s);
    ASSERT_EQ(List_Last(p.state.Favorites), 3);
    EXPECT_EQ(p.state.Favorites[1].Name, "A");
    EXPECT_EQ(p.state.Favorites[1].Data, "");
    EXPECT_EQ(p.state.Favorites[2].Name, "B");
    EXPECT_EQ(p.state.Favorites[2].Data, "");
    EXPECT_EQ(p.state.Favorites[3].Data, "/c/");
}

TEST_P(DamagedFile, Lines_end_in_CR_LF_or_both_and_the_last_one_needs_no_end)
{
    for (const std::string end : {"\r", "\n", "\r\n", "\n\r", "\r\r\n"}) {
        ProgramRig one(GetParam());
        Program& p = one.Start("", "[Defaults]" + end + "RenMode=5\r" + "ccCap=0\r\n" + "ccWord=1\n"
                                       + end + "lsvView=2" + end + "[Favorites]" + end + "A=/a/");
        EXPECT_EQ(p.state.RenMode, modeSearchReplace) << testing::PrintToString(end);
        EXPECT_EQ(p.state.ccCap, 0) << testing::PrintToString(end);
        EXPECT_EQ(p.state.ccWord, 1) << testing::PrintToString(end);
        EXPECT_EQ(p.state.lsvView, 2) << testing::PrintToString(end);
        ASSERT_EQ(List_Last(p.state.Favorites), 1) << testing::PrintToString(end);
        EXPECT_EQ(p.state.Favorites[1].Data, "/a/") << testing::PrintToString(end);
    }
}

// -- A file that was made on Windows

constexpr const char* windowsFile =
    "[CaseWordList]\r\n1=MP3\r\n2=\xDC"
    "BER\r\n"
    "[Favorites]\r\nB\xFC"
    "cher=C:\\B\xFC"
    "cher\\\r\nMusik=D:\\\r\n"
    "[Filters]\r\nBilder=*.jpg;*.gif\r\n"
    "[Templates]\r\n\x80 Preis=<E>\x96<C>:<E>\r\n"
    "[ThumbSchemes]\r\nKlein=60,60,1,0,1,2,0,3,4,5\r\n"
    "[Windows]\r\nLinks=0,0,6000,7000,0,0,0,0,0,0\r\n"
    "[Defaults]\r\nPath=C:\\Bilder\\\r\nRenMode=5\r\nScheme=Klein\r\nccTemp4=*\xE4*\r\nlsvView="
    "2\r\n"
    "[Settings]\r\nSavePos=0\r\nSaveDef=0\r\nProExt=0\r\n"
    "[Position]\r\nMain=150,300,9000,7500,0\r\nViewer=0,0,0,0,0\r\n";

TEST_P(DamagedFile, From_Windows_is_read_in_full)
{
    Program& p = Start(windowsFile);
    const SharedState& s = p.state;
    EXPECT_EQ(s.CaseWordList, (std::vector<std::string>{"", "MP3", "ÜBER"}));
    ASSERT_EQ(List_Last(s.Favorites), 2);
    EXPECT_EQ(s.Favorites[1].Name, "Bücher");
    EXPECT_EQ(s.Favorites[1].Data, "C:\\Bücher\\");
    EXPECT_EQ(s.Favorites[2].Data, "D:\\");
    ASSERT_EQ(List_Last(s.Filters), 1);
    EXPECT_EQ(s.Filters[1].Data, "*.jpg;*.gif");
    ASSERT_EQ(List_Last(s.Templates), 1);
    EXPECT_EQ(s.Templates[1].Name, "€ Preis");
    EXPECT_EQ(s.Templates[1].Data, "<E>–<C>:<E>");
    EXPECT_EQ(s.ThumbSchemes[1].Data, "60,60,1,0,1,2,0,3,4,5");
    EXPECT_EQ(s.Windows[1].Data, "0,0,6000,7000,0,0,0,0,0,0");
    EXPECT_EQ(s.RenMode, modeSearchReplace);
    EXPECT_EQ(s.ccTemp[4], "ä");
    EXPECT_EQ(s.lsvView, 2);
    EXPECT_EQ(s.ProExt, 0);
    EXPECT_EQ(p.main.Width(), 9000);
}

TEST_P(DamagedFile, From_Windows_with_a_folder_that_is_not_here_begins_at_the_application_folder)
{
    Program& p = Start(windowsFile);
    EXPECT_EQ(Path_AddSlash(p.state.StartPath, p.files.Rules()), rig.AppFolder);
    EXPECT_EQ(p.state.CurScreen, screenSelection);
}

TEST_P(DamagedFile, From_Windows_that_nobody_wants_saved_keeps_its_bytes)
{
    Program& p = Start(windowsFile);
    p.main.Unload();
    EXPECT_EQ(rig.Profile.Text(rig.AppFolder + "Tavo.ini"), windowsFile);
}

} // namespace
} // namespace tavo
