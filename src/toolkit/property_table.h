#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavo {

// A property of a kind of control by its name, and how it prints.
template <class T>
struct PropertyRow {
    std::string_view Name;
    std::string (*Text)(const T& control);
};

// The text of the row of this name; none if the table has no such row.
template <class T, std::size_t size>
std::optional<std::string> PropertyTable_Text(const PropertyRow<T> (&table)[size], const T& control,
                                              std::string_view property)
{
    for (const PropertyRow<T>& row : table)
        if (row.Name == property)
            return row.Text(control);
    return std::nullopt;
}

} // namespace tavo
