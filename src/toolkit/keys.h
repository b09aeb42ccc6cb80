#pragma once

#include <string>
#include <string_view>

namespace tavo {

// Codes of the keys that the program knows; letters and digits go by their
// upper-case ASCII code.
enum KeyCode : int {
    keyNone = 0,
    keyBackspace = 8,
    keyTab = 9,
    keyReturn = 13,
    keyEscape = 27,
    keySpace = 32,
    keyPageUp = 33,
    keyPageDown = 34,
    keyEnd = 35,
    keyHome = 36,
    keyLeft = 37,
    keyUp = 38,
    keyRight = 39,
    keyDown = 40,
    keyDelete = 46,
    keyF5 = 116,
    keyF6 = 117,
    keyOther = 255, // a key that only types a character
};

enum KeyShift : int { shiftNone = 0, shiftShift = 1, shiftCtrl = 2, shiftAlt = 4 };

// One press of a key. `Char` is the code point that it types, 0 for none (a
// control code such as 3 for Ctrl+C is one, too).
struct Key {
    int Code = keyNone;
    int Shift = shiftNone;
    char32_t Char = 0;
};

// A key by its name: `Return`, `F5`, a single character, each with `Ctrl+`,
// `Alt+`, `Shift+` in front if wanted, in any order. False for a name that is
// none; `key` stays then.
bool Key_FromName(std::string_view name, Key& key);

// The key that types this character; a line feed is Return.
Key Key_FromChar(char32_t character);

// Does it type anything? A key with Alt alone does not, whatever its Char.
bool Key_Types(const Key& key);

} // namespace tavo
