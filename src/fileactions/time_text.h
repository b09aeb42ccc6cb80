#pragma once

#include "platform/files.h"

#include <string>
#include <string_view>

// The times of a file as texts. None of it depends on the system's language,
// clock or zone.
namespace tavo {

// Each is a date, "|", and a time: `03/07/2001|09:05:12 PM` when it was read
// from a file, `03/07/2001|21:05:12` when it was made from the boxes. Mind the
// order: the disk takes accessed before modified.
struct FileTimes {
    std::string Created, Modified, Accessed;
    friend bool operator==(const FileTimes&, const FileTimes&) = default;
};

inline constexpr std::string_view dateMask = "mm/dd/yyyy";
inline constexpr std::string_view time12Mask = "hh:mm:ss AMPM";
inline constexpr std::string_view time24Mask = "hh:mm:ss";

// Gives each field that is out of range the fixed value that stands for it.
void Time_Repair(SystemTime& time);

// A date or time that is none stands as its plain numbers.
std::string Time_To_Text(const SystemTime& time);
// Takes either form of time. What is no number becomes 0, so that a text that
// is no date gives a time that no disk takes.
SystemTime Time_Text_Parse(std::string_view text);

// `DT: ` and the three texts with "=" between them.
std::string DT_Undo_Build(const FileTimes& times);
void DT_Undo_Parse(std::string_view record, FileTimes& times);

// What a date box (time box) holds once it has been left. A date that does not
// exist stays as it was typed; a time always ends in the form of 12 hours.
std::string Date_Box_Text(std::string_view typed, int currentYear);
std::string Time_Box_Text(std::string_view typed);

} // namespace tavo
