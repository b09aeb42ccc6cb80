#include "fuzz/require.h"
#include "toolkit/numbers.h"

#include <algorithm>
#include <cmath>

// The input is the text of a number, of whatever kind.

namespace tavo {
namespace {

bool IsRadix(const std::string& text)
{
    return text.find('&') != text.npos;
}

// What all widths have in common.
template <typename Number>
void Width_Check(const std::string& text, std::optional<int> value, std::optional<int> wider)
{
    if (!value)
        return;
    Require(*value >= std::numeric_limits<Number>::min()
                && *value <= std::numeric_limits<Number>::max(),
            "a number fits into its width", text);
    Require(wider.has_value(), "what fits fits into what is wider", text);
    Require(*wider == *value || IsRadix(text), "a number is the same in every width", text);
}

void Whole_Check(const std::string& text)
{
    const auto real = ParseDouble(text);
    Width_Check<std::uint8_t>(text, ParseByte(text), ParseI16(text));
    Width_Check<std::int16_t>(text, ParseI16(text), ParseI32(text));
    const auto whole = ParseI32(text);
    Require(!whole || real, "a whole number is a number", text);
    if (whole && !IsRadix(text))
        Require(*whole == RoundHalfEven(*real), "a whole number is the nearest one", text);
    if (real && !IsRadix(text)) {
        std::int32_t target = 77;
        const bool fits = AssignChecked(target, *real);
        Require(fits == whole.has_value(), "a number is taken when it fits", text);
        Require(target == whole.value_or(77), "what does not fit leaves what was there", text);
    }
    if (whole)
        Require(ParseI32(IntToText(*whole)) == *whole, "a number that is written is read", text);
}

void Real_Check(const std::string& text)
{
    const auto single = ParseSingle(text);
    const auto real = ParseDouble(text);
    Require(!single || real, "what fits into a single fits into a double", text);
    Require(!real || std::isfinite(*real), "a number is no infinity", text);
    Require(!single || std::isfinite(*single), "a single is no infinity", text);
    if (real) {
        const std::string written = DoubleToText(*real);
        const auto again = ParseDouble(written);
        // The largest ones may be rounded up beyond what there is.
        Require(again.has_value() || std::abs(*real) > 1e307, "a number that is written is read",
                written);
        Require(!again || std::abs(*again - *real) <= std::abs(*real) * 1e-14,
                "it keeps fifteen digits", written);
        Require(!again || DoubleToText(*again) == written, "it is written the same again", written);
        Require(!again || Val(written) == *again, "both readings agree on what is written",
                written);
    }
}

void Bool_Check(const std::string& text)
{
    const auto truth = ParseBool(text);
    const auto real = ParseDouble(text);
    Require(!real || (truth && *truth == (*real != 0)), "a number that is not 0 is true", text);
    if (truth)
        Require(ParseBool(BoolToText(*truth)) == truth, "a truth that is written is read", text);
}

void Val_Check(const std::string& text)
{
    const double value = Val(text);
    Require(!std::isnan(value), "a prefix is a number", text);
    std::string packed;
    for (const char sign : text)
        if (sign != ' ' && sign != '\t' && sign != '\n')
            packed += sign;
    Require(Val(packed) == value, "blanks are passed over", text);
    // A byte that no number holds ends it.
    Require(Val(packed + '!') == value && Val('!' + packed) == 0, "other signs end it", text);
    const bool isDigits = !text.empty() && text.size() < 16
                          && std::all_of(text.begin(), text.end(),
                                         [](char sign) { return sign >= '0' && sign <= '9'; });
    Require(!isDigits || value == std::stod(text), "digits are their number", text);
}

} // namespace
} // namespace tavo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tavo;
    const std::string text(Input_Text(data, size));
    Whole_Check(text);
    Real_Check(text);
    Bool_Check(text);
    Val_Check(text);
    return 0;
}
