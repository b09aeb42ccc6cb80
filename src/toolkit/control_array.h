#pragma once

#include "toolkit/control.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tavo {

// Controls of one kind under one name, by index. An index beyond the bounds is
// no control: `At` gives null, `operator[]` is for indexes known to be good.
template <class T>
class ControlArray {
public:
    template <class... Args>
    ControlArray(Form& form, const std::string& name, int low, int high, Args... args)
        : low_(low), make_([&form, name, args...](int index) {
              return std::make_unique<T>(form, name, index, args...);
          })
    {
        while (High() < high)
            Load();
    }

    // One more element, behind the last one.
    T& Load()
    {
        items_.push_back(make_(High() + 1));
        return *items_.back();
    }
    // Ends the last one.
    void Unload() { items_.pop_back(); }

    int Low() const { return low_; }
    int High() const { return low_ + static_cast<int>(items_.size()) - 1; }
    T* At(int index) const
    {
        return index < low_ || index > High() ? nullptr
                                              : items_[static_cast<size_t>(index - low_)].get();
    }
    T& operator[](int index) const { return *items_[static_cast<size_t>(index - low_)]; }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    int low_;
    std::function<std::unique_ptr<T>(int index)> make_;
    std::vector<std::unique_ptr<T>> items_;
};

} // namespace tavo
