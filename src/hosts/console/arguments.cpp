#include "hosts/console/arguments.h"

#include <charconv>
#include <cmath>

namespace tavo::console {

namespace {

template <class T>
bool Read_All(const std::string& word, T& value)
{
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    return error == std::errc() && stop == end && !word.empty();
}

} // namespace

bool Read_Whole(const std::string& word, int& value, Outcome& outcome)
{
    return Read_All(word, value) || outcome.Fail(word + " is no whole number");
}

bool Read_Positive(const std::string& word, int& value, Outcome& outcome)
{
    return (Read_All(word, value) && value >= 1) || outcome.Fail(word + " is no number from 1 on");
}

bool Read_Number(const std::string& word, double& value, Outcome& outcome)
{
    return (Read_All(word, value) && std::isfinite(value)) || outcome.Fail(word + " is no number");
}

} // namespace tavo::console
