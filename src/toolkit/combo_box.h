#pragma once

#include "toolkit/text_box.h"

#include <vector>

namespace tavo {

enum class ComboKind {
    Editable, // a box to type in, with a list of proposals
    List,     // one of the list and nothing else
};

// A box with a list. ListIndex counts from 0, -1 is none of the list. To choose
// a row raises Click, not Change; to type, or to set the text, raises Change
// and takes the choice away. A box of kind List takes the text of one of its
// rows from code, which chooses that row, and passes over any other.
class ComboBox : public TextBox {
public:
    ComboBox(Form& form, std::string name, int index = -1, ComboKind kind = ComboKind::Editable);

    ComboKind Style() const { return style_; }
    // Before a host shows it.
    void SetStyle(ComboKind kind) { style_ = kind; }
    const std::vector<std::string>& Items() const { return items_; }
    // Takes away all rows, and with them choice and text. Raises nothing.
    void Clear();
    void AddItem(const std::string& text);
    int ListCount() const { return static_cast<int>(items_.size()); }
    int ListIndex() const { return listIndex_; }
    // From code as by a person: the text becomes the row's, and Click follows.
    // An index that is no row is passed over (false); -1 takes choice and text
    // away and raises nothing.
    bool SetListIndex(int index);

    // A person chose this row, also the one that is chosen already.
    bool PersonChoose(int index);

    void PersonText(const std::string& text) override;
    // Up and Down choose the row beside, in a List also Home, End and letters.
    // Only takes the focus: Click tells of a choice.
    void PersonClick() override { PersonPress(); }
    void PersonKey(const Key& key) override;
    std::optional<std::string> PropertyText(std::string_view property) const override;
    void PropertyChanged(Prop what) override;

protected:
    bool IsEditable() const override { return style_ == ComboKind::Editable && !Locked; }

private:
    void TakeRow(int index);
    void PutText(const std::string& text);
    int RowOf(std::string_view text) const;
    int RowBeside(const Key& key) const;
    int NextRowBy(char32_t letter) const;

    ComboKind style_;
    std::vector<std::string> items_;
    int listIndex_ = -1;
    bool taking_ = false;
};

} // namespace tavo
