#pragma once

#include <string>
#include <string_view>

// A caption marks the letter that goes with Alt by `&`; `&&` is a plain `&`.
namespace tavo {

// The caption without the marks: "Cu&t" is "Cut".
std::string Caption_Plain(std::string_view caption);

// The letter marked, in the form that compares without regard to case; 0 for
// none.
char32_t Caption_Mnemonic(std::string_view caption);

} // namespace tavo
