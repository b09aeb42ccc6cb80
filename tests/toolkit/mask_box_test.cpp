#include "toolkit/mask_box.h"

#include "toolkit/form.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tavo {
namespace {

constexpr const char *date = "##/##/####", *time = "##:##:## ??";

void Press(TextBox& box, const std::string& names)
{
    std::istringstream words(names);
    for (std::string name; words >> name;) {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key)) << name;
        box.Owner().PersonKey(&box, key);
    }
}

// The text with the selection in brackets, or a bar for the caret.
std::string Look(const TextBox& box)
{
    std::string look = box.Text;
    const auto start = static_cast<std::size_t>(box.SelStart());
    const std::size_t end = start + static_cast<std::size_t>(box.SelLength());
    if (start == end)
        return look.insert(start, "|");
    look.insert(end, "]");
    return look.insert(start, "[");
}

struct KeyCase {
    const char *What, *Mask, *Text;
    int Start, Length;
    const char *Keys, *Look;
    int Changes;
};

const KeyCase keyCases[] = {
    {"an empty place", date, "", 0, 0, "0", "0|_/__/____", 1},
    {"behind the last place of a group", date, "0", 1, 0, "3", "03/|__/____", 1},
    {"from before a fixed sign", date, "03", 2, 0, "1", "03/1|_/____", 1},
    {"a whole date", date, "", 0, 0, "0 3 0 7 2 0 0 1", "03/07/2001|", 8},
    {"over all", date, "03/07/2001", 0, 10, "1", "1|_/__/____", 1},
    {"over a part", date, "03/07/2001", 1, 3, "9", "09/|_7/2001", 1},
    {"over a part of a fixed sign", date, "03/07/2001", 2, 1, "9", "03/9|7/2001", 1},
    {"the same over all of a text", date, "1", 0, 10, "1", "1|_/__/____", 1},
    {"in place of what stands there", date, "03/07/2001", 0, 0, "1", "1|3/07/2001", 1},
    {"the same in its place", date, "03/07/2001", 0, 0, "0", "0|3/07/2001", 0},
    {"at the end", date, "03/07/2001", 10, 0, "5", "03/07/2001|", 0},
    {"a letter for a digit", date, "03", 3, 0, "a", "03/|__/____", 0},
    {"a letter over all", date, "03", 0, 10, "a", "[03/__/____]", 0},
    {"a point", date, "03", 1, 0, ".", "0|3/__/____", 0},
    {"a blank", time, "09:05:12", 0, 0, "Space", "|09:05:12 __", 0},
    {"a fixed sign goes behind it", date, "", 1, 0, "/", "__/|__/____", 0},
    {"letters in their places", time, "09:05:12", 8, 0, "P M", "09:05:12 PM|", 2},
    {"a digit for a letter", time, "09:05:12", 9, 0, "1", "09:05:12 |__", 0},
    {"a small letter stays small", time, "", 9, 0, "a", "__:__:__ a|_", 1},
    {"no other letters", time, "", 9, 0, "\xC3\xA4", "__:__:__ |__", 0},
    {"backspace", date, "03/07/2001", 2, 0, "Backspace", "0|_/07/2001", 1},
    {"backspace over a fixed sign", date, "03/07/2001", 3, 0, "Backspace", "0|_/07/2001", 1},
    {"backspaces", date, "03/07/2001", 4, 0, "Backspace Backspace", "0|_/_7/2001", 2},
    {"backspace at the front", date, "03/07/2001", 0, 0, "Backspace", "|03/07/2001", 0},
    {"backspace at an empty place", date, "", 1, 0, "Backspace", "|__/__/____", 0},
    {"backspace over a selection", date, "03/07/2001", 1, 5, "Backspace", "0|_/__/2001", 1},
    {"delete", date, "03/07/2001", 0, 0, "Delete", "|_3/07/2001", 1},
    {"delete before a fixed sign", date, "03/07/2001", 2, 0, "Delete", "03|/_7/2001", 1},
    {"delete at the end", date, "03/07/2001", 10, 0, "Delete", "03/07/2001|", 0},
    {"delete all", date, "03/07/2001", 0, 10, "Delete", "|__/__/____", 1},
    {"arrows count fixed signs", date, "03", 1, 0, "Right Right", "03/|__/____", 0},
    {"no mask", "", "ab", 1, 0, "x Backspace Delete", "a|", 3},
};

TEST(MaskBox, Keys_fill_the_places_of_its_pattern)
{
    for (const KeyCase& row : keyCases) {
        Form form("frm");
        MaskBox box(form, "txt");
        box.SetMask(row.Mask);
        box.Text = row.Text;
        box.Select(row.Start, row.Length);
        int changes = 0;
        box.Change = [&] { ++changes; };
        Press(box, row.Keys);
        EXPECT_EQ(Look(box), row.Look) << row.What;
        EXPECT_EQ(changes, row.Changes) << row.What;
    }
}

struct TextCase {
    const char *What, *Mask, *Text, *Shown;
};

const TextCase textCases[] = {
    {"as it is", date, "03/07/2001", "03/07/2001"},
    {"nothing", date, "", "__/__/____"},
    {"with prompts", date, "0_/_7/20__", "0_/_7/20__"},
    {"digits alone", date, "03072001", "03/07/2001"},
    {"short numbers", date, "3/7/2001", "3_/7_/2001"},
    {"no date", date, "99/99/9999", "99/99/9999"},
    {"too long", date, "03/07/20011", "03/07/2001"},
    {"letters", date, "a03b/07", "03/07/____"},
    {"other signs", date, "03-07-2001", "03/07/2001"},
    {"characters of several bytes", date,
     "\xC3\xA4"
     "03\xE2\x82\xAC",
     "03/__/____"},
    {"12 hours", time, "09:05:12 PM", "09:05:12 PM"},
    {"24 hours", time, "21:05:12", "21:05:12 __"},
    {"short hour", time, "9:05:12 PM", "9_:05:12 PM"},
    {"no blank", time, "09:05:12am", "09:05:12 am"},
    {"a suffix too early", time, "09:PM", "09:__:__ __"},
    {"no mask", "", "ab/12", "ab/12"},
};

TEST(MaskBox, Any_text_is_brought_into_its_pattern)
{
    for (const TextCase& row : textCases) {
        Form form("frm");
        MaskBox byCode(form, "a"), pasted(form, "b"), edited(form, "c");
        for (MaskBox* box : {&byCode, &pasted, &edited})
            box->SetMask(row.Mask);
        byCode.Text = row.Text;
        pasted.PersonText(row.Text);
        edited.PersonEdited(row.Text, 1, 0);
        EXPECT_EQ(byCode.Text.Get(), row.Shown) << row.What;
        EXPECT_EQ(pasted.Text.Get(), row.Shown) << row.What;
        EXPECT_EQ(edited.Text.Get(), row.Shown) << row.What;
    }
}

struct PasteCase {
    const char *What, *Text;
    int Start, Length;
    const char *Pasted, *Look;
};

const PasteCase pasteCases[] = {
    {"into the middle", "03/07/2001", 3, 0, "12", "03/12/|2001"},
    {"over a selection", "03/07/2001", 3, 7, "12/1", "03/12/1|___"},
    {"across fixed signs", "", 0, 0, "0307", "03/07/|____"},
    {"nothing that fits", "03/07/2001", 0, 10, "abc", "[03/07/2001]"},
    {"nothing, as a cut", "03/07/2001", 0, 3, "", "|__/07/2001"},
    {"past the end", "03/07/2001", 8, 0, "1234", "03/07/2012|"},
};

TEST(MaskBox, Pasting_goes_on_from_the_caret)
{
    for (const PasteCase& row : pasteCases) {
        Form form("frm");
        MaskBox box(form, "txt");
        box.SetMask(date);
        box.Text = row.Text;
        box.Select(row.Start, row.Length);
        box.SetSelText(row.Pasted);
        EXPECT_EQ(Look(box), row.Look) << row.What;
    }
}

TEST(MaskBox, The_last_edit_can_be_taken_back)
{
    Form form("frm");
    MaskBox box(form, "txt");
    box.SetMask(date);
    box.Text = "03/07/2001";
    box.Select(0, 10);
    Press(box, "1 2 3");
    EXPECT_EQ(box.Text.Get(), "12/3_/____");
    box.UndoEdit();
    EXPECT_EQ(box.Text.Get(), "03/07/2001");
    box.UndoEdit();
    EXPECT_EQ(box.Text.Get(), "12/3_/____");
}

TEST(MaskBox, A_text_that_comes_out_the_same_changes_nothing_for_the_person)
{
    Form form("frm");
    MaskBox box(form, "txt");
    box.SetMask(date);
    box.Text = "03/07/2001";
    EventLog log;
    log.On(box.Change, "change");
    box.PersonText("03072001");
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(Look(box), "03/07/2001|");
}

TEST(MaskBox, The_host_hears_that_its_text_did_not_stay)
{
    Form form("frm");
    MaskBox box(form, "txt");
    box.SetMask(date);
    EventLog log;
    log.WatchNotice(box, Prop::Text, "text");
    box.PersonEdited("x__/__/____", 1, 0);
    EXPECT_EQ(log.Take(), "text");
    EXPECT_EQ(Look(box), "_|_/__/____");
}

TEST(MaskBox, A_new_mask_empties_it)
{
    Form form("frm");
    MaskBox box(form, "txt");
    EXPECT_EQ(box.Text.Get(), "");
    box.SetMask(date);
    box.Text = "03/07/2001";
    box.SetMask(time);
    EXPECT_EQ(box.Text.Get(), "__:__:__ __");
    EXPECT_EQ(box.Mask(), time);
}

TEST(MaskBox, Properties_print_as_texts)
{
    Form form("frm");
    MaskBox box(form, "txt");
    box.SetMask(date);
    const std::pair<const char*, const char*> rows[] = {
        {"Text", "__/__/____"}, {"Mask", date}, {"PromptChar", "_"}, {"SelStart", "0"}};
    for (const auto& [property, text] : rows)
        EXPECT_EQ(box.PropertyText(property), text) << property;
    EXPECT_EQ(box.PropertyText("ListIndex"), std::nullopt);
}

} // namespace
} // namespace tavo
