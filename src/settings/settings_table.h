#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tavo {

class Program;

// How a value stands in the file.
enum class SettingForm {
    Plain,   // by its variable: a number, True or False, or the text as it is
    Starred, // a text between two stars, so that blanks at its ends survive
};

// What the file's text of a number may be; a value outside is replaced.
struct SettingRange {
    int Low = 0, High = -1, Otherwise = 0; // none while High lies below Low
    bool IsOn() const { return Low <= High; }
};

// One key of the settings file. Its variable has the key's own name; a key
// without one hands its text to `Show` alone, and `Take` gives the text to be
// saved. `Show` brings the value to the controls that it belongs to; null
// where it has none.
struct Setting {
    std::string_view Section, Key;
    SettingForm Form = SettingForm::Plain;
    std::string_view Default;
    SettingRange Range;
    void (*Show)(Program& p, const std::string& text) = nullptr;
    std::string (*Take)(Program& p) = nullptr;
};

// The keys of the sections Settings and Defaults, in the order of writing.
std::span<const Setting> Settings_Table();

} // namespace tavo
