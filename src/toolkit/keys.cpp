#include "toolkit/keys.h"

#include "toolkit/unicode_case.h"
#include "toolkit/utf8.h"

namespace tavo {

namespace {

struct NamedKey {
    std::string_view Name;
    KeyCode Code;
    char32_t Char;
};

constexpr NamedKey namedKeys[] = {
    {"Return", keyReturn, 13}, {"Escape", keyEscape, 27},    {"Backspace", keyBackspace, 8},
    {"Tab", keyTab, 9},        {"Space", keySpace, ' '},     {"Delete", keyDelete, 0},
    {"Up", keyUp, 0},          {"Down", keyDown, 0},         {"Left", keyLeft, 0},
    {"Right", keyRight, 0},    {"Home", keyHome, 0},         {"End", keyEnd, 0},
    {"PageUp", keyPageUp, 0},  {"PageDown", keyPageDown, 0}, {"F5", keyF5, 0},
    {"F6", keyF6, 0},
};

struct NamedShift {
    std::string_view Prefix;
    KeyShift Shift;
};

constexpr NamedShift namedShifts[] = {
    {"Ctrl+", shiftCtrl},
    {"Alt+", shiftAlt},
    {"Shift+", shiftShift},
};

// Takes one shift off the front of the name; false if there is none, or one
// that stood there before.
bool TakeShift(std::string_view& name, int& shift)
{
    for (const NamedShift& row : namedShifts) {
        if (!name.starts_with(row.Prefix) || (shift & row.Shift) != 0)
            continue;
        name.remove_prefix(row.Prefix.size());
        shift |= row.Shift;
        return true;
    }
    return false;
}

bool FindUnshifted(std::string_view name, Key& key)
{
    for (const NamedKey& row : namedKeys) {
        if (row.Name != name)
            continue;
        key = {row.Code, shiftNone, row.Char};
        return true;
    }
    if (name.empty())
        return false;
    std::size_t bytePos = 0;
    const Character character = NextChar(name, bytePos);
    if (bytePos != name.size())
        return false;
    key = Key_FromChar(character.Code);
    return true;
}

bool IsLetter(int code)
{
    return code >= 'A' && code <= 'Z';
}

// What the key types while these are held.
char32_t ShiftedChar(const Key& key, int shift)
{
    const bool control = (shift & (shiftCtrl | shiftAlt)) == shiftCtrl;
    if (control && IsLetter(key.Code))
        return static_cast<char32_t>(key.Code - 'A' + 1);
    if ((shift & (shiftCtrl | shiftAlt)) != 0)
        return 0;
    return (shift & shiftShift) != 0 ? SimpleUpper(key.Char) : key.Char;
}

// A held Ctrl or Alt goes with the key of the letter, in whatever case it is
// written.
int ShiftOf(const Key& key, int shift)
{
    return (shift & (shiftCtrl | shiftAlt)) != 0 ? shift : key.Shift | shift;
}

} // namespace

bool Key_FromName(std::string_view name, Key& key)
{
    int shift = shiftNone;
    while (TakeShift(name, shift)) {
    }
    Key plain;
    if (!FindUnshifted(name, plain))
        return false;
    key = {plain.Code, ShiftOf(plain, shift), ShiftedChar(plain, shift)};
    return true;
}

Key Key_FromChar(char32_t character)
{
    switch (character) {
    case 0: return {};
    case '\n':
    case '\r': return {keyReturn, shiftNone, 13};
    case '\b':
    case '\t':
    case keyEscape:
    case ' ': return {static_cast<int>(character), shiftNone, character};
    default: break;
    }
    if (character <= 26)
        return {static_cast<int>('A' + character - 1), shiftCtrl, character};
    if (character >= 'A' && character <= 'Z')
        return {static_cast<int>(character), shiftShift, character};
    if (character >= 'a' && character <= 'z')
        return {static_cast<int>(character - 'a' + 'A'), shiftNone, character};
    if (character >= '0' && character <= '9')
        return {static_cast<int>(character), shiftNone, character};
    return {keyOther, shiftNone, character};
}

bool Key_Types(const Key& key)
{
    return key.Char != 0 && (key.Shift & (shiftCtrl | shiftAlt)) != shiftAlt;
}

} // namespace tavo
