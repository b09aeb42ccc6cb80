#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavo {

enum CounterStyle : std::uint8_t { cntNumber = 1, cntSmall = 2, cntCapital = 3 };

// A number with zeros in front to `digits` characters (at most eight zeros);
// one that is longer keeps all its digits.
std::string Cnt_PadDigits(std::string_view value, int digits);
// The same with "a", or "A" where the value begins with a capital.
std::string Cnt_PadLetters(std::string_view value, int digits);
// Base 26 with "a" as zero: 0 is a, 25 z, 26 ba.
std::string Cnt_ToLetters(std::int64_t number);
double Cnt_FromLetters(std::string_view text);
// The counter as it goes into a name.
std::string Cnt_Text(std::int64_t counter, int style, int digits);
// The first value of a counter from the text of its box.
std::int64_t Cnt_Start(std::string_view startText, int style);

} // namespace tavo
