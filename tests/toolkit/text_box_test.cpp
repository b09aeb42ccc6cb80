#include "toolkit/text_box.h"

#include "toolkit/form.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tavo {
namespace {

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
    const auto at = [&](int count) {
        std::size_t bytes = 0;
        const std::string& text = box.Text;
        for (; count > 0 && bytes < text.size(); --count)
            for (++bytes; bytes < text.size() && (text[bytes] & 0xC0) == 0x80;)
                ++bytes;
        return bytes;
    };
    std::string look = box.Text;
    const std::size_t start = at(box.SelStart()), end = at(box.SelStart() + box.SelLength());
    if (start == end)
        return look.insert(start, "|");
    look.insert(end, "]");
    return look.insert(start, "[");
}

struct KeyCase {
    const char* What;
    const char* Text;
    int Start, Length, MaxLength;
    const char *Keys, *Look;
    int Changes;
};

const KeyCase keyCases[] = {
    {"typed at the caret", "ac", 1, 0, 0, "b", "ab|c", 1},
    {"typed over a selection", "abcd", 1, 2, 0, "X", "aX|d", 1},
    {"the same over a selection", "abc", 1, 1, 0, "b", "ab|c", 1},
    {"characters, not bytes", "\xC3\xA4\xC3\xB6", 1, 0, 0, "\xC3\xBC", "\xC3\xA4\xC3\xBC|\xC3\xB6",
     1},
    {"no room", "abc", 3, 0, 3, "d", "abc|", 0},
    {"room by the selection", "abc", 0, 1, 3, "d", "d|bc", 1},
    {"longer by code", "abcdef", 0, 1, 3, "x", "[a]bcdef", 0},
    {"backspace", "abc", 2, 0, 0, "Backspace", "a|c", 1},
    {"backspace at the front", "abc", 0, 0, 0, "Backspace", "|abc", 0},
    {"backspace over a selection", "abcd", 1, 2, 0, "Backspace", "a|d", 1},
    {"backspace takes a whole character", "a\xE2\x82\xAC", 2, 0, 0, "Backspace", "a|", 1},
    {"delete", "abc", 1, 0, 0, "Delete", "a|c", 1},
    {"delete at the end", "abc", 3, 0, 0, "Delete", "abc|", 0},
    {"delete over a selection", "abcd", 0, 4, 0, "Delete", "|", 1},
    {"a cut is the host's", "abcd", 0, 4, 0, "Shift+Delete", "[abcd]", 0},
    {"left", "abc", 2, 0, 0, "Left", "a|bc", 0},
    {"left at the front", "abc", 0, 0, 0, "Left", "|abc", 0},
    {"right", "abc", 2, 0, 0, "Right", "abc|", 0},
    {"right at the end", "abc", 3, 0, 0, "Right", "abc|", 0},
    {"left ends a selection at its front", "abcd", 1, 2, 0, "Left", "a|bcd", 0},
    {"right ends a selection behind it", "abcd", 1, 2, 0, "Right", "abc|d", 0},
    {"home", "abc", 2, 0, 0, "Home", "|abc", 0},
    {"end", "abc", 1, 1, 0, "End", "abc|", 0},
    {"shift extends", "abcd", 1, 0, 0, "Shift+Right Shift+Right", "a[bc]d", 0},
    {"shift shrinks", "abcd", 1, 2, 0, "Shift+Left", "a[b]cd", 0},
    {"shift extends to the left", "abcd", 2, 0, 0, "Shift+Left Shift+Left Shift+Right", "a[b]cd",
     0},
    {"across the anchor", "abcd", 2, 0, 0, "Shift+Left Shift+Right Shift+Right", "ab[c]d", 0},
    {"shift home", "abcd", 2, 0, 0, "Shift+Home", "[ab]cd", 0},
    {"shift end from a selection", "abcd", 1, 1, 0, "Shift+End", "a[bcd]", 0},
    {"home and end keep the anchor", "abcd", 2, 0, 0, "Shift+Home Shift+End", "ab[cd]", 0},
    {"a word on", "one  two three", 0, 0, 0, "Ctrl+Right", "one  |two three", 0},
    {"two words on", "one two", 0, 0, 0, "Ctrl+Right Ctrl+Right", "one two|", 0},
    {"a word back", "one two", 7, 0, 0, "Ctrl+Left", "one |two", 0},
    {"two words back", "one  two", 6, 0, 0, "Ctrl+Left Ctrl+Left", "|one  two", 0},
    {"words with shift", "one two", 0, 0, 0, "Ctrl+Shift+Right", "[one ]two", 0},
    {"Ctrl+A is none of the box's", "abc", 1, 0, 0, "Ctrl+A", "a|bc", 0},
    {"F5 does nothing", "abc", 1, 0, 0, "F5 Up Down", "a|bc", 0},
    {"typing, then erasing", "", 0, 0, 0, "a b c Backspace Left d", "ad|b", 5},
};

TEST(TextBox, Keys_edit_at_the_caret_or_selection)
{
    for (const KeyCase& row : keyCases) {
        Form form("frm");
        TextBox box(form, "txt");
        box.Text = row.Text;
        box.MaxLength = row.MaxLength;
        box.Select(row.Start, row.Length);
        int changes = 0;
        box.Change = [&] { ++changes; };
        Press(box, row.Keys);
        EXPECT_EQ(Look(box), row.Look) << row.What;
        EXPECT_EQ(changes, row.Changes) << row.What;
    }
}

TEST(TextBox, A_text_from_code_puts_the_caret_to_the_front)
{
    Form form("frm");
    TextBox box(form, "txt");
    box.MaxLength = 2;
    box.Text = "abcdef";
    EXPECT_EQ(box.Text.Get(), "abcdef");
    box.Select(2, 3);
    EXPECT_EQ(box.SelText(), "cde");
    box.Text = "ghi";
    EXPECT_EQ(Look(box), "|ghi");
}

TEST(TextBox, The_notice_comes_before_Change_and_both_see_the_new_state)
{
    Form form("frm");
    TextBox box(form, "txt");
    EventLog log;
    log.WatchNotice(box, Prop::Text, "notice");
    const auto seen = box.Change.Listen([&] { log.Add(Look(box)); });
    Press(box, "a");
    EXPECT_EQ(log.Take(), "notice a|");
    box.Text = "x";
    EXPECT_EQ(log.Take(), "notice |x");
    box.Text = "x";
    EXPECT_EQ(log.Take(), "");
}

TEST(TextBox, A_handler_of_Change_may_set_text_and_selection_again)
{
    Form form("frm");
    TextBox box(form, "txt");
    box.Change = [&] {
        if (box.Text.Get() != "1") {
            box.Text = "1";
            box.Select(0, 1);
        }
    };
    Press(box, "7");
    EXPECT_EQ(Look(box), "[1]");
}

struct PersonCase {
    const char *Before, *Pasted;
    int MaxLength;
    const char* Look;
    int Changes;
};

const PersonCase personCases[] = {
    {"old", "new", 0, "new|", 1},    {"old", "old", 0, "old|", 0},
    {"old", "", 0, "|", 1},          {"", "abcdef", 3, "abc|", 1},
    {"abc", "abcdef", 3, "abc|", 0}, {"", "\xC3\xA4\xC3\xB6\xC3\xBC", 2, "\xC3\xA4\xC3\xB6|", 1},
};

TEST(TextBox, A_pasted_text_is_cut_and_the_caret_stands_behind_it)
{
    for (const PersonCase& row : personCases) {
        Form form("frm");
        TextBox box(form, "txt");
        box.Text = row.Before;
        box.MaxLength = row.MaxLength;
        int changes = 0, filtered = 0;
        box.Change = [&] { ++changes; };
        box.KeyPress = [&](int&) { ++filtered; };
        box.PersonText(row.Pasted);
        EXPECT_EQ(Look(box), row.Look) << row.Before << " " << row.Pasted;
        EXPECT_EQ(changes, row.Changes) << row.Before << " " << row.Pasted;
        EXPECT_EQ(filtered, 0);
    }
}

TEST(TextBox, What_a_hosts_widget_edited_is_taken_over)
{
    Form form("frm");
    TextBox box(form, "txt");
    int changes = 0;
    box.Change = [&] { ++changes; };
    box.PersonEdited("hello", 1, 2);
    EXPECT_EQ(Look(box), "h[el]lo");
    EXPECT_EQ(changes, 1);
    box.PersonEdited("hello", 4, 0);
    EXPECT_EQ(Look(box), "hell|o");
    EXPECT_EQ(changes, 1);
    box.PersonEdited("hi", 9, 9);
    EXPECT_EQ(Look(box), "hi|");
}

struct SelectCase {
    int Start, Length, SelStart, SelLength;
};

const SelectCase selectCases[] = {
    {0, 0, 0, 0},  {1, 1, 1, 1},  {0, 99, 0, 3}, {3, 5, 3, 0},
    {99, 1, 3, 0}, {-4, 2, 0, 2}, {1, -1, 1, 0}, {1, 2147483647, 1, 2},
};

TEST(TextBox, A_selection_is_held_to_the_text)
{
    for (const SelectCase& row : selectCases) {
        Form form("frm");
        TextBox box(form, "txt");
        box.Text = "\xC3\xA4"
                   "bc";
        box.Select(row.Start, row.Length);
        EXPECT_EQ(box.SelStart(), row.SelStart) << row.Start << " " << row.Length;
        EXPECT_EQ(box.SelLength(), row.SelLength) << row.Start << " " << row.Length;
    }
}

TEST(TextBox, SelText_is_replaced_within_the_room_there_is)
{
    Form form("frm");
    TextBox box(form, "txt");
    box.Text = "abcd";
    box.Select(1, 2);
    box.SetSelText("XYZ");
    EXPECT_EQ(Look(box), "aXYZ|d");
    box.Select(0, 1);
    box.SetSelText("");
    EXPECT_EQ(Look(box), "|XYZd");
    box.MaxLength = 5;
    box.SetSelText("123");
    EXPECT_EQ(Look(box), "1|XYZd");
    box.SetSelText("2");
    EXPECT_EQ(Look(box), "1|XYZd");
}

TEST(TextBox, The_host_hears_of_a_selection_that_is_another)
{
    Form form("frm");
    TextBox box(form, "txt");
    box.Text = "abc";
    EventLog log;
    log.WatchNotice(box, Prop::Selection, "sel");
    box.Select(1, 1);
    box.Select(1, 1);
    Press(box, "Right");
    EXPECT_EQ(log.Take(), "sel sel");
}

struct UndoCase {
    const char *What, *Keys, *After, *Undone;
};

const UndoCase undoCases[] = {
    {"a run of letters is one edit", "a b c", "startabc", "start"},
    {"a run of erasing too", "Backspace Backspace", "sta", "start"},
    {"erasing behind typing is its own", "a b Backspace", "starta", "startab"},
    {"moving the caret ends a run", "a Left b", "startba", "starta"},
};

TEST(TextBox, Undo_takes_back_the_last_edit_and_brings_it_back)
{
    for (const UndoCase& row : undoCases) {
        Form form("frm");
        TextBox box(form, "txt");
        box.Text = "start";
        box.Select(5, 0);
        Press(box, row.Keys);
        EXPECT_EQ(box.Text.Get(), row.After) << row.What;
        int changes = 0;
        box.Change = [&] { ++changes; };
        box.UndoEdit();
        EXPECT_EQ(box.Text.Get(), row.Undone) << row.What;
        EXPECT_EQ(changes, 1) << row.What;
        box.UndoEdit();
        EXPECT_EQ(box.Text.Get(), row.After) << row.What;
        box.UndoEdit();
        EXPECT_EQ(box.Text.Get(), row.Undone) << row.What;
    }
}

TEST(TextBox, Undo_takes_back_a_cut_and_a_paste_but_no_text_from_code)
{
    Form form("frm");
    TextBox box(form, "txt");
    box.Text = "abc";
    box.UndoEdit();
    EXPECT_EQ(box.Text.Get(), "abc");
    box.Select(0, 2);
    box.SetSelText("");
    box.UndoEdit();
    EXPECT_EQ(box.Text.Get(), "abc");
    box.PersonText("pasted");
    box.UndoEdit();
    EXPECT_EQ(box.Text.Get(), "abc");
    box.Text = "code";
    box.UndoEdit();
    EXPECT_EQ(box.Text.Get(), "code");
}

TEST(TextBox, A_stray_byte_is_one_character)
{
    Form form("frm");
    TextBox box(form, "txt");
    box.Text = "a\xFF"
               "b";
    box.Select(3, 0);
    Press(box, "Backspace");
    EXPECT_EQ(box.Text.Get(), "a\xFF");
    Press(box, "\xFE");
    EXPECT_EQ(box.Text.Get(), "a\xFF\xFE");
    Press(box, "Backspace Backspace");
    EXPECT_EQ(box.Text.Get(), "a");
}

TEST(TextBox, Properties_print_as_texts)
{
    Form form("frm");
    TextBox box(form, "txt");
    box.Text = "hello";
    box.MaxLength = 9;
    box.Select(1, 3);
    const std::pair<const char*, const char*> rows[] = {
        {"Text", "hello"},  {"MaxLength", "9"}, {"SelStart", "1"},
        {"SelLength", "3"}, {"SelText", "ell"}, {"Enabled", "True"},
    };
    for (const auto& [property, text] : rows)
        EXPECT_EQ(box.PropertyText(property), text) << property;
    EXPECT_EQ(box.PropertyText("ListIndex"), std::nullopt);
}

} // namespace
} // namespace tavo
