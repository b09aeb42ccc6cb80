#pragma once

#include "toolkit/control.h"

#include <string>
#include <vector>

namespace tavo {

// A list of texts of which one is chosen. ListIndex counts from 0, -1 is none.
// To choose a row raises Click, from code as by a person.
class ListBox : public Control {
public:
    using Control::Control;

    const std::vector<std::string>& Items() const { return items_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    // Takes away all rows and the choice. Raises nothing.
    void Clear();
    void AddItem(const std::string& text);
    // The choice goes with its row. False for a row that is not there.
    bool RemoveItem(int index);
    int ListIndex() const { return listIndex_; }
    // An index that is no row is passed over (false); -1 takes the choice away
    // and raises nothing.
    bool SetListIndex(int index);
    // The text of the chosen row, empty without one.
    std::string Text() const;

    // A person chose this row, also the one that is chosen already.
    bool PersonChoose(int index);
    // Up, Down, Home and End.
    void PersonKey(const Key& key) override;
    bool TakesFocus() const override { return true; }
    std::optional<std::string> PropertyText(std::string_view property) const override;

private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

} // namespace tavo
