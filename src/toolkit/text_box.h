#pragma once

#include "toolkit/control.h"

namespace tavo {

// A box with one line of text. Positions count characters; SelStart 0 is the
// front, as the caret stands before the character behind it.
class TextBox : public Control {
public:
    using Control::Control;

    Property<std::string> Text{*this, Prop::Text};
    // The longest text that a person can bring in, in characters; 0 is any.
    Property<int> MaxLength{*this, Prop::State};
    // A person can read, select and copy it, and change nothing.
    Property<bool> Locked{*this, Prop::Style};
    // Is it shown in several lines?
    bool MultiLine = false;

    int SelStart() const { return selStart_; }
    int SelLength() const { return selLength_; }
    std::string SelText() const;
    // Held to the text's length.
    void Select(int start, int length);
    // Replaces the selection, by what MaxLength leaves room for; the caret ends
    // behind the new text.
    void SetSelText(const std::string& text);

    Event<> Change;

    bool TakesFocus() const override { return true; }
    // A person replaced the whole text (pasted it), no key filter runs;
    // MaxLength cuts.
    virtual void PersonText(const std::string& text);
    // A host's own widget has edited: text, caret and selection as they stand
    // there now.
    void PersonEdited(const std::string& text, int selStart, int selLength);
    // Takes back the last edit of a person, or of SetSelText; again brings it
    // back. Letters typed in one go are one edit. A text set from code cannot
    // be taken back.
    void UndoEdit();

    void PersonKey(const Key& key) override;
    std::optional<std::string> PropertyText(std::string_view property) const override;
    void PropertyChanged(Prop what) override;

protected:
    // Can a person edit the text at all?
    virtual bool IsEditable() const { return !Locked; }
    // Brings the selection in line with a text that is another now.
    void SettleSelection();

    enum class Edit { Whole, Typing, Erasing };
    struct Selection {
        int Start = 0, Length = 0;
    };

    // An edit of the whole text: what it is now, and what is selected then.
    void Put(const std::string& text, Selection selection, Edit edit);
    // Puts the text in place of the selection.
    virtual void Insert(const std::string& text, Edit edit);
    // Takes away the selection, or without one the character behind the caret
    // (before it).
    virtual void Erase(bool forward);

private:
    void SetSelection(Selection selection, bool caretAtStart);
    void MoveCaret(int to, bool extend);
    int CaretTarget(const Key& key) const;

    int selStart_ = 0, selLength_ = 0;
    bool caretAtStart_ = false;       // the end of the selection that moves
    std::optional<Selection> coming_; // stands once the new text does
    std::string undoText_;
    bool canUndo_ = false;
    Edit lastEdit_ = Edit::Whole;
};

} // namespace tavo
