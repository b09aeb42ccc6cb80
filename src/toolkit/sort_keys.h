#pragma once

#include "toolkit/collation.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// The sort keys of many texts side by side, numbered from 0 as they come.
class SortKeys {
public:
    void Reserve(std::size_t count, std::size_t bytes);
    void Add(std::string_view text, Collation collation);
    std::size_t Count() const { return ends_.size(); }
    std::string_view Key(std::size_t number) const;

    // Do they stand in order as they are?
    bool InOrder(bool descending) const;
    // The numbers in the order of their keys. Equal keys stay as they came,
    // in both directions.
    std::vector<std::uint32_t> Order(bool descending) const;

private:
    std::string bytes_;
    std::vector<std::size_t> ends_;
};

} // namespace tavo
