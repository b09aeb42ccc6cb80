#include "renamelist/change_case.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

CaseRules Rules(int mode, int firstIsCapital, const std::vector<std::string>& preceding)
{
    CaseRules rules;
    rules.Mode = static_cast<std::uint8_t>(mode);
    rules.FirstIsCapital = static_cast<std::uint8_t>(firstIsCapital);
    for (std::size_t index = 0; index < preceding.size(); ++index)
        rules.Preceding[index + 1] = preceding[index];
    return rules;
}

struct Row {
    const char *What, *Text;
    CaseRules Rules;
    std::vector<std::string> Words;
    const char* Result;
};

TEST(ChangeCase, Letters_stand_as_the_rules_say)
{
    const Row rows[] = {
        {"upper", "aBc.mp3", Rules(1, 1, {}), {}, "ABC.MP3"},
        {"lower", "aBc.MP3", Rules(2, 1, {" "}), {}, "abc.mp3"},
        {"beyond A to Z", "ärger.TXT", Rules(1, 1, {}), {}, "ÄRGER.TXT"},
        {"a letter without the other case stays", "straße", Rules(1, 1, {}), {}, "STRAßE"},
        {"smart",
         "the quick-brown fox.MP3",
         Rules(3, 1, {" ", "-"}),
         {},
         "The Quick-Brown Fox.mp3"},
        {"first letter small", "The quick", Rules(3, 0, {" "}), {}, "the Quick"},
        {"no sign precedes", "the QUICK", Rules(3, 1, {}), {}, "The quick"},
        {"a letter precedes", "banana", Rules(3, 0, {"a"}), {}, "baNaNa"},
        {"its case counts", "bAnana", Rules(3, 0, {"a"}), {}, "banaNa"},
        {"any other flag is no capital", "abc", Rules(3, 2, {}), {}, "abc"},
        {"nothing", "", Rules(3, 1, {" "}), {}, ""},
        {"a stray byte",
         "\xff"
         "ab",
         Rules(3, 1, {"\xff"}),
         {},
         "\xff"
         "Ab"},
        {"another mode", "aBc", Rules(9, 1, {}), {}, "aBc"},
    };
    for (const Row& row : rows) {
        std::string text = row.Text;
        Case_Apply(text, row.Rules, {""}, 1);
        EXPECT_EQ(text, row.Result) << row.What;
    }
}

TEST(ChangeCase, Words_of_the_list_are_put_right)
{
    const CaseRules smart = Rules(3, 1, {" "});
    const Row rows[] = {
        {"a sign ends the word", "my dvd.txt", smart, {"DVD"}, "My DVD.txt"},
        {"the last word is not looked up", "a dvd", smart, {"DVD"}, "A Dvd"},
        {"nor the extension", "a.dvd", smart, {"DVD"}, "A.dvd"},
        {"digits end words", "abc1def.x", smart, {"ABC", "DEF"}, "ABC1DEF.x"},
        {"an entry with a digit", "my mp3 file.txt", smart, {"MP3"}, "My MP3 File.txt"},
        {"the scan goes on behind it", "mp3file.txt", smart, {"MP3", "FILE"}, "MP3FILE.txt"},
        {"and at the very end", "my mp3", smart, {"MP3"}, "My MP3"},
        {"only where a word begins", "xmp3.txt", smart, {"MP3"}, "Xmp3.txt"},
        {"a longer word is another", "dvds.txt", smart, {"DVD"}, "Dvds.txt"},
        {"the first entry counts", "usa.txt", smart, {"uSa", "USA"}, "uSa.txt"},
        {"several", "of the sea.txt", smart, {"of", "the"}, "of the Sea.txt"},
        {"an entry of several words",
         "new york city.txt",
         smart,
         {"NEW York"},
         "NEW York City.txt"},
        {"an entry that reaches beyond the end", "my mp", smart, {"MP3"}, "My Mp"},
        {"an empty entry", "my x.txt", smart, {"", "X"}, "My X.txt"},
        {"signs alone", "--.txt", smart, {"--"}, "--.txt"},
        {"letters beyond A to Z end words", "aärx.txt", smart, {"RX"}, "AäRX.txt"},
        {"an entry with such a letter", "müll.txt", smart, {"MÜLL"}, "MÜLL.txt"},
        {"an entry longer in bytes", "us.us.x", smart, {"U\u017f"}, "U\u017f.U\u017f.x"},
        {"not in upper case", "dvd.x", Rules(1, 1, {}), {"dvd"}, "DVD.X"},
    };
    for (const Row& row : rows) {
        std::vector<std::string> list = {"built-in"};
        list.insert(list.end(), row.Words.begin(), row.Words.end());
        std::string text = row.Text;
        Case_Apply(text, row.Rules, list, 1);
        EXPECT_EQ(text, row.Result) << row.What;
    }
}

TEST(ChangeCase, Words_are_left_alone_unless_they_are_wanted)
{
    std::string text = "dvd.x";
    Case_Apply(text, Rules(3, 1, {}), {"", "DVD"}, 0);
    EXPECT_EQ(text, "Dvd.x");
    Case_Apply(text, Rules(3, 1, {}), {"", "DVD"}, 7);
    EXPECT_EQ(text, "DVD.x");
}

} // namespace
} // namespace tavo
