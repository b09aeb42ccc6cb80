#include "hosts/qt/binder.h"
#include "hosts/qt/qt_text.h"
#include "toolkit/mask_box.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace tavo {

namespace {

struct CharRange {
    int Start = 0, Length = 0;
};

CharRange Selection_Of(const QLineEdit& line)
{
    const QString text = line.text();
    const bool selected = line.hasSelectedText();
    const int start = selected ? line.selectionStart() : line.cursorPosition();
    const int end = selected ? line.selectionEnd() : start;
    const int chars = Chars_OfUnits(text, start);
    return {chars, Chars_OfUnits(text, end) - chars};
}

void ShowSelection(QLineEdit& line, const TextBox& box)
{
    const CharRange shown = Selection_Of(line);
    if (shown.Start == box.SelStart() && shown.Length == box.SelLength())
        return;
    const QString text = line.text();
    const int start = Units_OfChars(text, box.SelStart());
    const int end = Units_OfChars(text, box.SelStart() + box.SelLength());
    if (end > start)
        line.setSelection(start, end - start);
    else
        line.setCursorPosition(start);
}

void ShowText(QLineEdit& line, const TextBox& box, const PropSet& changed)
{
    const QSignalBlocker quiet(line);
    const QString text = ToQt(box.Text);
    if (changed.Has({Prop::Text}) && line.text() != text)
        line.setText(text);
    // A box without the focus shows no selection.
    if (!line.hasFocus())
        line.setCursorPosition(Units_OfChars(text, box.SelStart()));
    else if (changed.Has({Prop::Text, Prop::Selection, Prop::Focus}))
        ShowSelection(line, box);
}

// Takes what the box has no room for off what has just come in, before the
// caret. A text that the program has set may be longer.
void CutToRoom(QLineEdit& line, int mostChars, int charsBefore)
{
    const QString text = line.text();
    const int over = Chars_In(text) - std::max(mostChars, charsBefore);
    if (mostChars <= 0 || over <= 0)
        return;
    const int caret = line.cursorPosition();
    const int from = Units_OfChars(text, std::max(0, Chars_OfUnits(text, caret) - over));
    const QSignalBlocker quiet(line);
    line.setText(text.left(from) + text.mid(caret));
    line.setCursorPosition(from);
}

void TellCaret(const QLineEdit& line, TextBox& box)
{
    const CharRange now = Selection_Of(line);
    if (FromQt(line.text()) == box.Text.Get())
        box.Select(now.Start, now.Length);
}

// What has come in stands before the caret. It goes into the places of the
// pattern from where it was put in, instead of pushing the others on.
void EditedInMask(const QLineEdit& line, MaskBox& box)
{
    const QString after = line.text(), before = ToQt(box.Text);
    const auto caret = static_cast<qsizetype>(line.cursorPosition());
    const auto kept = std::max<qsizetype>(0, before.size() - (after.size() - caret));
    qsizetype same = 0;
    while (same < std::min(kept, caret) && before[same] == after[same])
        ++same;
    const QString comes = after.mid(same, caret - same);
    box.Select(static_cast<int>(same), static_cast<int>(kept - same));
    box.SetSelText(FromQt(comes));
}

} // namespace

void Binder::Edited(QLineEdit& line, TextBox& box, const QString& before)
{
    auto* mask = dynamic_cast<MaskBox*>(&box);
    if (mask && !mask->Mask().empty()) {
        EditedInMask(line, *mask);
        queue_.Flush();
        return;
    }
    CutToRoom(line, box.MaxLength, Chars_In(before));
    const CharRange now = Selection_Of(line);
    box.PersonEdited(FromQt(line.text()), now.Start, now.Length);
    queue_.Flush();
}

void Binder::Bind(QLineEdit& line, TextBox& box)
{
    Binding* binding = Bind(line, box, [&](const PropSet& changed) {
        if (changed.Has({Prop::Style}))
            line.setReadOnly(box.Locked);
        ShowText(line, box, changed);
    });
    connect(&line, &QLineEdit::textEdited, this, [this, &line, &box, binding] {
        binding->Mark(Prop::Text); // the box may refuse what the widget took
        Edited(line, box, ToQt(box.Text));
    });
    connect(&line, &QLineEdit::cursorPositionChanged, this, [&] { TellCaret(line, box); });
    connect(&line, &QLineEdit::selectionChanged, this, [&] { TellCaret(line, box); });
}

void Binder::Bind(QComboBox& combo, ComboBox& box)
{
    const bool editable = box.Style() == ComboKind::Editable;
    combo.setEditable(editable);
    combo.setInsertPolicy(QComboBox::NoInsert);
    if (editable)
        combo.setCompleter(nullptr); // it would put in what nobody typed
    Binding* binding = Bind(combo, box, [&combo, &box](const PropSet& changed) {
        const QSignalBlocker quiet(combo);
        if (changed.Has({Prop::Items})) {
            combo.clear();
            for (const std::string& item : box.Items())
                combo.addItem(ToQt(item));
        }
        if (changed.Has({Prop::Items, Prop::ListIndex}))
            combo.setCurrentIndex(box.ListIndex());
        PropSet text = changed;
        if (changed.Has({Prop::Items, Prop::ListIndex}))
            text.Add(Prop::Text);
        if (combo.lineEdit())
            ShowText(*combo.lineEdit(), box, text);
    });
    connect(&combo, &QComboBox::activated, this, [&box, binding](int row) {
        binding->Mark(Prop::ListIndex);
        box.PersonChoose(row);
    });
    if (!editable)
        return;
    QLineEdit& line = *combo.lineEdit();
    connect(&line, &QLineEdit::textEdited, this, [this, &line, &box, binding] {
        binding->Mark(Prop::Text);
        Edited(line, box, ToQt(box.Text));
    });
    connect(&line, &QLineEdit::cursorPositionChanged, this, [&] { TellCaret(line, box); });
    connect(&line, &QLineEdit::selectionChanged, this, [&] { TellCaret(line, box); });
}

} // namespace tavo
