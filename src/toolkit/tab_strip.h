#pragma once

#include "toolkit/panels.h"

#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// Pages of which one is in front. What lies on the others counts as visible: a
// person only has to bring its page to the front.
class TabStrip : public Control {
public:
    struct Page {
        std::string Key, Caption;
        Frame* Panel = nullptr;
    };

    using Control::Control;

    void AddPage(const std::string& key, const std::string& caption, Frame& panel);
    const std::vector<Page>& Pages() const { return pages_; }

    // The page in front, from 0; -1 while there is none. From code it is only
    // shown.
    int Selected() const { return selected_; }
    const std::string& SelectedKey() const;
    // False for a page that is not there.
    bool Show(int page);
    int PageByKey(std::string_view key) const;
    // The page that holds the control, however deep; -1 for none.
    int PageOf(const Control& control) const;

    // A person goes to this page: the strip takes the focus, Leaving is raised while the old one is
    // still in front, TabClick when the new one is. The page that is in front already raises
    // nothing.
    bool PersonTab(int page);
    Event<> Leaving, TabClick;
    // The same by Alt and the letter that a page's caption marks, as
    // Caption_Mnemonic gives it. False when no page has that letter.
    bool PersonLetter(char32_t letter);
    // Left and Right go to the page beside, Home and End to the ends.
    void PersonKey(const Key& key) override;

    bool TakesFocus() const override { return true; }
    std::optional<std::string> PropertyText(std::string_view property) const override;

private:
    std::vector<Page> pages_;
    int selected_ = -1;
};

} // namespace tavo
