#include "hosts/console/script_line.h"

namespace tavo::console {

namespace {

struct Escape {
    char Sign, Value;
};
constexpr Escape escapes[] = {{'"', '"'},  {'\\', '\\'}, {'t', '\t'},
                              {'n', '\n'}, {'r', '\r'},  {'0', '\0'}};

bool Is_Blank(char c)
{
    return c == ' ' || c == '\t';
}

int Hex_Digit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

// Reads the escape behind the backslash at `at`, and moves behind it.
bool Escape_Read(std::string_view line, std::size_t& at, std::string& word)
{
    const char sign = at + 1 < line.size() ? line[at + 1] : '\0';
    if (sign == 'x' && at + 3 < line.size()) {
        const int high = Hex_Digit(line[at + 2]), low = Hex_Digit(line[at + 3]);
        if (high < 0 || low < 0)
            return false;
        word += static_cast<char>(high * 16 + low);
        at += 4;
        return true;
    }
    for (const Escape& escape : escapes)
        if (at + 1 < line.size() && escape.Sign == sign) {
            word += escape.Value;
            at += 2;
            return true;
        }
    return false;
}

// Reads a quoted word whose quote stands at `at`.
bool Quoted_Read(std::string_view line, std::size_t& at, std::string& word, std::string& why)
{
    ++at;
    while (at < line.size() && line[at] != '"') {
        if (line[at] != '\\') {
            word += line[at++];
        } else if (at + 1 == line.size()) {
            break;
        } else if (!Escape_Read(line, at, word)) {
            why = "unknown escape in quotes";
            return false;
        }
    }
    if (at >= line.size() || line[at] != '"') {
        why = "unfinished quote";
        return false;
    }
    ++at;
    if (at < line.size() && !Is_Blank(line[at])) {
        why = "text right behind a closing quote";
        return false;
    }
    return true;
}

} // namespace

bool Line_Split(std::string_view line, std::vector<std::string>& words, std::string& why)
{
    words.clear();
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && Is_Blank(line[at]))
            ++at;
        if (at >= line.size())
            return true;
        std::string word;
        if (line[at] == '"') {
            if (!Quoted_Read(line, at, word, why))
                return false;
        } else {
            while (at < line.size() && !Is_Blank(line[at]))
                word += line[at++];
        }
        words.push_back(std::move(word));
    }
}

std::string Value_Escape(std::string_view value)
{
    std::string text;
    for (const char c : value) {
        switch (c) {
        case '\t': text += "\\t"; break;
        case '\n': text += "\\n"; break;
        case '\r': text += "\\r"; break;
        case '\0': text += "\\0"; break;
        case '\\': text += "\\\\"; break;
        default: text += c;
        }
    }
    return text;
}

} // namespace tavo::console
