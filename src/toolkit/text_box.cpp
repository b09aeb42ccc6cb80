#include "toolkit/text_box.h"

#include "toolkit/numbers.h"
#include "toolkit/property_table.h"
#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr PropertyRow<TextBox> properties[] = {
    {"Text", [](const TextBox& b) { return b.Text.Get(); }},
    {"MaxLength", [](const TextBox& b) { return IntToText(b.MaxLength); }},
    {"SelStart", [](const TextBox& b) { return IntToText(b.SelStart()); }},
    {"SelLength", [](const TextBox& b) { return IntToText(b.SelLength()); }},
    {"SelText", [](const TextBox& b) { return b.SelText(); }},
};

bool IsBlankAt(const std::string& text, int offset)
{
    const std::string character = CharAt(text, offset + 1);
    return character == " " || character == "\t";
}

// Where the word behind (before) this place begins.
int WordBehind(const std::string& text, int from)
{
    const int length = Len(text);
    while (from < length && !IsBlankAt(text, from))
        ++from;
    while (from < length && IsBlankAt(text, from))
        ++from;
    return from;
}

int WordBefore(const std::string& text, int from)
{
    while (from > 0 && IsBlankAt(text, from - 1))
        --from;
    while (from > 0 && !IsBlankAt(text, from - 1))
        --from;
    return from;
}

bool IsPrintable(const Key& key)
{
    return Key_Types(key) && key.Char >= ' ' && key.Char != 127;
}

} // namespace

std::string TextBox::SelText() const
{
    return Mid(Text, selStart_ + 1, selLength_);
}

void TextBox::Select(int start, int length)
{
    lastEdit_ = Edit::Whole;
    SetSelection({start, length}, false);
}

void TextBox::SetSelection(Selection selection, bool caretAtStart)
{
    const int all = Len(Text);
    const int start = std::clamp(selection.Start, 0, all);
    const int length = std::clamp(selection.Length, 0, all - start);
    caretAtStart_ = caretAtStart;
    if (start == selStart_ && length == selLength_)
        return;
    selStart_ = start;
    selLength_ = length;
    Changed(Prop::Selection);
}

void TextBox::SetSelText(const std::string& text)
{
    Insert(text, Edit::Whole);
}

void TextBox::PersonText(const std::string& text)
{
    if (!IsEditable())
        return;
    const std::string fits = MaxLength > 0 ? tavo::Left(text, MaxLength) : text;
    Put(fits, {Len(fits), 0}, Edit::Whole);
}

void TextBox::PersonEdited(const std::string& text, int selStart, int selLength)
{
    if (IsEditable())
        Put(text, {selStart, selLength}, Edit::Whole);
}

void TextBox::UndoEdit()
{
    if (!canUndo_)
        return;
    const std::string back = undoText_;
    Put(back, {Len(back), 0}, Edit::Whole);
}

void TextBox::Put(const std::string& text, Selection selection, Edit edit)
{
    if (Text.Get() == text) {
        // Typing over a selection is an edit, also when the text comes out the
        // same.
        const bool replaces = edit != Edit::Whole && selLength_ > 0;
        SetSelection(selection, false);
        if (replaces)
            Change();
        return;
    }
    const bool goesOn = canUndo_ && edit != Edit::Whole && edit == lastEdit_;
    if (!goesOn)
        undoText_ = Text;
    canUndo_ = true;
    lastEdit_ = edit;
    coming_ = selection;
    Text = text;
}

void TextBox::Insert(const std::string& text, Edit edit)
{
    if (!IsEditable())
        return;
    const int room = MaxLength - (Len(Text) - selLength_);
    const std::string fits = MaxLength > 0 ? tavo::Left(text, room) : text;
    if (fits.empty() && !text.empty())
        return;
    const std::string whole =
        tavo::Left(Text, selStart_) + fits + Mid(Text, selStart_ + selLength_ + 1);
    Put(whole, {selStart_ + Len(fits), 0}, edit);
}

void TextBox::SettleSelection()
{
    if (!coming_) {
        canUndo_ = false;
        lastEdit_ = Edit::Whole;
    }
    const Selection wanted = coming_.value_or(Selection{});
    const int all = Len(Text);
    coming_.reset();
    selStart_ = std::clamp(wanted.Start, 0, all);
    selLength_ = std::clamp(wanted.Length, 0, all - selStart_);
    caretAtStart_ = false;
}

void TextBox::PropertyChanged(Prop what)
{
    if (what == Prop::Text)
        SettleSelection();
    Control::PropertyChanged(what);
    if (what == Prop::Text)
        Change();
}

void TextBox::MoveCaret(int to, bool extend)
{
    const int end = selStart_ + selLength_;
    const int anchor = !extend ? to : caretAtStart_ ? end : selStart_;
    lastEdit_ = Edit::Whole;
    SetSelection({std::min(anchor, to), std::abs(anchor - to)}, to < anchor);
}

// Without Shift, Left and Right go to the edges of a selection first.
int TextBox::CaretTarget(const Key& key) const
{
    const bool extend = (key.Shift & shiftShift) != 0;
    const bool word = (key.Shift & shiftCtrl) != 0;
    const bool collapse = selLength_ > 0 && !extend && !word;
    const int end = selStart_ + selLength_;
    const int caret = caretAtStart_ ? selStart_ : end;
    switch (key.Code) {
    case keyHome: return 0;
    case keyEnd: return Len(Text);
    case keyLeft:
        return collapse ? selStart_ : word ? WordBefore(Text, caret) : std::max(0, caret - 1);
    default:
        return collapse ? end : word ? WordBehind(Text, caret) : std::min(Len(Text), caret + 1);
    }
}

void TextBox::Erase(bool forward)
{
    const int gone = forward ? selStart_ : selStart_ - 1;
    if (selLength_ > 0) {
        Insert("", Edit::Whole);
        return;
    }
    if (!IsEditable() || gone < 0 || gone >= Len(Text))
        return;
    Put(tavo::Left(Text, gone) + Mid(Text, gone + 2), {gone, 0}, Edit::Erasing);
}

void TextBox::PersonKey(const Key& key)
{
    if (IsPrintable(key)) {
        std::string typed;
        AppendChar(typed, key.Char);
        Insert(typed, Edit::Typing);
        return;
    }
    switch (key.Code) {
    case keyBackspace: Erase(false); break;
    case keyDelete:
        // With Shift it cuts, which is a matter of the clipboard.
        if ((key.Shift & shiftShift) == 0)
            Erase(true);
        break;
    case keyLeft:
    case keyRight:
    case keyHome:
    case keyEnd: MoveCaret(CaretTarget(key), (key.Shift & shiftShift) != 0); break;
    default: break;
    }
}

std::optional<std::string> TextBox::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(properties, *this, property);
    return text ? text : Control::PropertyText(property);
}

} // namespace tavo
