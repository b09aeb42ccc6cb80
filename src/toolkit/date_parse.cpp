#include "toolkit/dates.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <span>
#include <vector>

namespace tavo {

namespace {

constexpr std::array<std::string_view, 12> MonthNames{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December",
};

enum class WordKind { Number, Month, HalfDay, Sign };

// One piece of a date text. Blanks part words and are kept nowhere.
struct Word {
    WordKind Kind = WordKind::Sign;
    int Value = 0;          // of a number; month 1 to 12; half day 0 AM, 1 PM; the sign
    std::size_t Digits = 0; // of a number
};

using Words = std::span<const Word>;

constexpr bool IsDigit(char sign)
{
    return sign >= '0' && sign <= '9';
}

constexpr bool IsLetter(char sign)
{
    const unsigned char low = AsciiLower(static_cast<unsigned char>(sign));
    return low >= 'a' && low <= 'z';
}

bool IsSign(const Word& word, char sign)
{
    return word.Kind == WordKind::Sign && word.Value == sign;
}

// Length of the run of signs at the start of `text` that `belongs` accepts.
template <typename Belongs>
std::size_t RunLength(std::string_view text, Belongs belongs)
{
    std::size_t count = 0;
    while (count < text.size() && belongs(text[count]))
        ++count;
    return count;
}

std::optional<Word> NumberWord(std::string_view digits)
{
    constexpr std::size_t MostDigits = 4;
    if (digits.size() > MostDigits)
        return std::nullopt;
    Word word{WordKind::Number, 0, digits.size()};
    std::from_chars(digits.data(), digits.data() + digits.size(), word.Value);
    return word;
}

std::optional<Word> NamedWord(std::string_view name)
{
    if (SameText(name, "AM") || SameText(name, "A"))
        return Word{WordKind::HalfDay, 0};
    if (SameText(name, "PM") || SameText(name, "P"))
        return Word{WordKind::HalfDay, 1};
    for (std::size_t i = 0; name.size() >= 3 && i < MonthNames.size(); ++i) {
        if (StartsWithText(MonthNames[i], name))
            return Word{WordKind::Month, static_cast<int>(i) + 1};
    }
    return std::nullopt;
}

// Takes the word at the start of `text` off it.
std::optional<Word> TakeWord(std::string_view& text)
{
    const std::size_t digits = RunLength(text, IsDigit);
    const std::size_t letters = RunLength(text, IsLetter);
    const std::size_t count = digits + letters;
    const std::string_view run = text.substr(0, count == 0 ? 1 : count);
    text.remove_prefix(run.size());
    if (digits != 0)
        return NumberWord(run);
    if (letters != 0)
        return NamedWord(run);
    if (std::string_view("/-,:.").find(run[0]) == std::string_view::npos)
        return std::nullopt;
    return Word{WordKind::Sign, run[0]};
}

// Empty when something stands in the text that no date has.
std::vector<Word> WordsOf(std::string_view text)
{
    std::vector<Word> words;
    while (!text.empty()) {
        if (text[0] == ' ') {
            text.remove_prefix(1);
            continue;
        }
        const auto word = TakeWord(text);
        if (!word)
            return {};
        words.push_back(*word);
    }
    return words;
}

bool IsTimeSign(const Word& word)
{
    return IsSign(word, ':') || IsSign(word, '.');
}

// Number of words at the start that are a time: numbers parted by one and the
// same sign, AM or PM; a number alone is one only with that.
std::size_t TimeLength(Words words)
{
    std::size_t count = 1;
    while (count + 1 < words.size() && IsTimeSign(words[count])
           && words[count].Value == words[1].Value && words[count + 1].Kind == WordKind::Number)
        count += 2;
    if (count < words.size() && words[count].Kind == WordKind::HalfDay)
        return count + 1;
    return count == 1 ? 0 : count;
}

// Takes 12-hour values to 24; a half day that contradicts the hour is no
// matter.
int HourIn(int hour, std::optional<int> halfDay)
{
    if (halfDay == 1 && hour < 12)
        return hour + 12;
    return halfDay == 0 && hour == 12 ? 0 : hour;
}

bool ReadTime(Words words, DateTime& when)
{
    std::array<int, 3> parts{};
    std::size_t count = 0;
    std::optional<int> halfDay;
    for (const Word& word : words) {
        if (word.Kind == WordKind::HalfDay)
            halfDay = word.Value;
        if (word.Kind != WordKind::Number)
            continue;
        if (count == parts.size() || word.Digits > 2)
            return false;
        parts[count++] = word.Value;
    }
    when.Hour = HourIn(parts[0], halfDay);
    when.Minute = parts[1];
    when.Second = parts[2];
    return Time_IsValid(parts[0], when.Minute, when.Second);
}

// A number with three digits or more is a year and nothing else.
bool IsLongYear(const Word& number)
{
    return number.Digits >= 3;
}

int YearOf(const Word& number)
{
    constexpr int LastOf2000s = 29;
    if (IsLongYear(number))
        return number.Value;
    return number.Value + (number.Value <= LastOf2000s ? 2000 : 1900);
}

// Which number is which part, by its place; -1 for a part that is not told.
struct PartOrder {
    int Month;
    int Day;
    int Year;
};

constexpr PartOrder OrdersOf3[] = {{0, 1, 2}, {1, 0, 2}, {1, 2, 0}, {2, 1, 0}};
constexpr PartOrder OrdersOf2[] = {{0, 1, -1}, {1, 0, -1}, {0, -1, 1}, {1, -1, 0}};
constexpr PartOrder OrdersOfNameAnd2[] = {{-1, 0, 1}, {-1, 1, 0}};
constexpr PartOrder OrdersOfNameAnd1[] = {{-1, 0, -1}, {-1, -1, 0}};

// What a date text consists of, the signs between left out.
struct DateNumbers {
    std::vector<Word> Numbers;
    int Month = 0; // by its name
};

bool OrderFits(const DateNumbers& date, const PartOrder& order, int currentYear, DateTime& when)
{
    const auto number = [&date](int place) -> const Word& {
        return date.Numbers[static_cast<std::size_t>(place)];
    };
    const bool longMonth = order.Month >= 0 && IsLongYear(number(order.Month));
    const bool longDay = order.Day >= 0 && IsLongYear(number(order.Day));
    if (longMonth || longDay)
        return false;
    when.Month = order.Month >= 0 ? number(order.Month).Value : date.Month;
    when.Day = order.Day >= 0 ? number(order.Day).Value : 1;
    when.Year = order.Year >= 0 ? YearOf(number(order.Year)) : currentYear;
    return Date_IsValid(when.Year, when.Month, when.Day);
}

std::span<const PartOrder> OrdersFor(const DateNumbers& date)
{
    const std::size_t count = date.Numbers.size();
    if (date.Month == 0)
        return count == 3   ? std::span<const PartOrder>(OrdersOf3)
               : count == 2 ? std::span<const PartOrder>(OrdersOf2)
                            : std::span<const PartOrder>();
    return count == 2   ? std::span<const PartOrder>(OrdersOfNameAnd2)
           : count == 1 ? std::span<const PartOrder>(OrdersOfNameAnd1)
                        : std::span<const PartOrder>();
}

// False when the words are no numbers and at most one month name, parted by
// single signs. A comma, or nothing but a blank, parts only beside a name.
bool CollectNumbers(Words words, DateNumbers& date)
{
    bool expectsValue = true;
    bool hasLooseParts = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const Word& word = words[i];
        if (word.Kind == WordKind::Sign) {
            const bool parts = IsSign(word, '/') || IsSign(word, '-') || IsSign(word, ',');
            if (expectsValue || !parts)
                return false;
            hasLooseParts = hasLooseParts || IsSign(word, ',');
            expectsValue = true;
            continue;
        }
        const bool isSecondMonth = word.Kind == WordKind::Month && date.Month != 0;
        if (word.Kind == WordKind::HalfDay || isSecondMonth)
            return false;
        hasLooseParts = hasLooseParts || !expectsValue;
        expectsValue = false;
        if (word.Kind == WordKind::Month)
            date.Month = word.Value;
        else
            date.Numbers.push_back(word);
    }
    return !expectsValue && (date.Month != 0 || !hasLooseParts);
}

bool ReadDate(Words words, int currentYear, DateTime& when)
{
    DateNumbers date;
    if (!CollectNumbers(words, date))
        return false;
    for (const PartOrder& order : OrdersFor(date)) {
        if (OrderFits(date, order, currentYear, when))
            return true;
    }
    return false;
}

std::optional<DateTime> ReadWords(Words words, int currentYear)
{
    DateTime when;
    std::size_t first = 0;
    std::size_t length = 0;
    for (; first < words.size(); ++first) {
        const bool isNumber = words[first].Kind == WordKind::Number;
        length = isNumber ? TimeLength(words.subspan(first)) : 0;
        if (length != 0)
            break;
    }
    if (length != 0 && !ReadTime(words.subspan(first, length), when))
        return std::nullopt;
    const Words before = words.first(first);
    const Words behind = words.subspan(first + length);
    if (before.empty() && behind.empty() && length != 0)
        return when;
    if (!before.empty() && !behind.empty())
        return std::nullopt;
    const Words date = before.empty() ? behind : before;
    return ReadDate(date, currentYear, when) ? std::optional(when) : std::nullopt;
}

// Days since 12/30/1899 and a fraction of a day, rounded to seconds. The
// fraction counts forward from midnight for days before that one too.
std::optional<DateTime> FromDayCount(double count)
{
    constexpr double FirstCount = -657434; // 01/01/100
    constexpr double LastCount = 2958465;  // 12/31/9999
    constexpr int SecondsOfDay = 86400;
    using namespace std::chrono;
    const double whole = std::trunc(count);
    if (whole < FirstCount || whole > LastCount)
        return std::nullopt;
    int second = static_cast<int>(std::round(std::fabs(count - whole) * SecondsOfDay));
    const days carry(second / SecondsOfDay);
    second %= SecondsOfDay;
    const sys_days origin = 1899y / December / 30;
    const year_month_day date(origin + days(static_cast<int>(whole)) + carry);
    const DateTime when{static_cast<int>(date.year()),
                        static_cast<int>(static_cast<unsigned>(date.month())),
                        static_cast<int>(static_cast<unsigned>(date.day())),
                        second / 3600,
                        second / 60 % 60,
                        second % 60};
    return DateTime_IsValid(when) ? std::optional(when) : std::nullopt;
}

std::optional<DateTime> ReadDayCount(std::string_view text)
{
    const std::size_t start = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    if (text.find_first_not_of("0123456789.", start) != std::string_view::npos)
        return std::nullopt;
    const auto count = ParseDouble(text);
    return count ? FromDayCount(*count) : std::nullopt;
}

} // namespace

std::optional<DateTime> DateTime_Parse(std::string_view text, int currentYear)
{
    const std::string trimmed = Trim(text);
    if (const auto when = ReadWords(WordsOf(trimmed), currentYear))
        return when;
    return ReadDayCount(trimmed);
}

} // namespace tavo
