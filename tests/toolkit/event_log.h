#pragma once

#include "toolkit/combo_box.h"
#include "toolkit/form.h"

#include <string>
#include <vector>

namespace tavo {

// Writes down what happens, a word each, in order.
class EventLog {
public:
    void Add(const std::string& word) { words_ += (words_.empty() ? "" : " ") + word; }

    // What has come since the last asking.
    std::string Take() { return std::exchange(words_, std::string()); }

    template <class... Args>
    void On(Event<Args...>& event, const std::string& word)
    {
        ends_.push_back(event.Listen([this, word](Args...) { Add(word); }));
    }

    void WatchFocus(Control& control)
    {
        On(control.LostFocus, "-" + control.FullName());
        On(control.GotFocus, "+" + control.FullName());
    }

    // The notices of this kind, as the host hears them.
    void WatchNotice(Control& control, Prop what, const std::string& word)
    {
        ends_.push_back(control.Changed.Listen([this, what, word](Prop told) {
            if (told == what)
                Add(word);
        }));
    }

private:
    std::string words_;
    std::vector<Connection> ends_;
};

} // namespace tavo
