#include "toolkit/collation.h"

#include "toolkit/code_page.h"
#include "toolkit/unicode_case.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tavo {

namespace {

// Weight bytes of a word sort key. The end of a level sorts before all of
// them, so a text stands before the ones that go on.
constexpr unsigned char LevelEnd = 1;
constexpr unsigned char FirstWeight = 2;
constexpr unsigned char OtherCharacter = 0xFE;
constexpr unsigned char StrayByte = 0xFF;

// Bytes of code page 1252 in the order of a word sort, control characters
// first; `a` to `z` follow, then characters of no page.
constexpr unsigned char CharacterOrder[] = {
    0x00, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0x09, 0x0A, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F,
    0x10, 0x11, 0x12, 0x13, 0x14, 0x15, 0x16, 0x17, 0x18, 0x19, 0x1A, 0x1B, 0x1C, 0x1D, 0x1E, 0x1F,
    ' ',  0xA0, '!',  '"',  '#',  '$',  '%',  '&',  '(',  ')',  '*',  ',',  '.',  '/',  ':',  ';',
    '?',  '@',  '[',  '\\', ']',  '^',  '_',  '`',  '{',  '|',  '}',  '~',  0xA1, 0xA6, 0xA8, 0xAF,
    0xB4, 0xB8, 0xBF, 0x98, 0x91, 0x92, 0x82, 0x93, 0x94, 0x84, 0x8B, 0x9B, 0xA2, 0xA3, 0xA4, 0xA5,
    0x80, '+',  '<',  '=',  '>',  0xB1, 0xAB, 0xBB, 0xD7, 0xF7, 0xA7, 0xA9, 0xAC, 0xAE, 0xB0, 0xB5,
    0xB6, 0xB7, 0x85, 0x86, 0x87, 0x95, 0x89, 0x81, 0x8D, 0x8F, 0x90, 0x9D, '0',  0xBC, 0xBD, 0xBE,
    '1',  0xB9, '2',  0xB2, '3',  0xB3, '4',  '5',  '6',  '7',  '8',  '9',
};

// Signs that only break ties, in the order in which they do.
constexpr unsigned char TieSigns[] = {0x2D, 0x27, 0x96, 0x97, 0xAD, 0x7F};

enum class Accent : unsigned char {
    None,
    Acute,
    Grave,
    Circumflex,
    Umlaut,
    Tilde,
    Ring,
    Cedilla,
    Caron,
    Stroke,
    Raised,
};

// Letters beyond a to z, as the plain letters they are sorted as.
struct LetterForm {
    unsigned char Byte;
    char Letters[3];
    Accent Mark;
};

constexpr LetterForm LetterForms[] = {
    {0xAA, "a", Accent::Raised},     {0xBA, "o", Accent::Raised}, {0xDF, "ss", Accent::None},
    {0x83, "f", Accent::Stroke},     {0x9A, "s", Accent::Caron},  {0x9C, "oe", Accent::None},
    {0x9E, "z", Accent::Caron},      {0xFF, "y", Accent::Umlaut}, {0x99, "tm", Accent::Raised},
    {0x88, "^", Accent::None},       {0xE0, "a", Accent::Grave},  {0xE1, "a", Accent::Acute},
    {0xE2, "a", Accent::Circumflex}, {0xE3, "a", Accent::Tilde},  {0xE4, "a", Accent::Umlaut},
    {0xE5, "a", Accent::Ring},       {0xE6, "ae", Accent::None},  {0xE7, "c", Accent::Cedilla},
    {0xE8, "e", Accent::Grave},      {0xE9, "e", Accent::Acute},  {0xEA, "e", Accent::Circumflex},
    {0xEB, "e", Accent::Umlaut},     {0xEC, "i", Accent::Grave},  {0xED, "i", Accent::Acute},
    {0xEE, "i", Accent::Circumflex}, {0xEF, "i", Accent::Umlaut}, {0xF0, "d", Accent::Stroke},
    {0xF1, "n", Accent::Tilde},      {0xF2, "o", Accent::Grave},  {0xF3, "o", Accent::Acute},
    {0xF4, "o", Accent::Circumflex}, {0xF5, "o", Accent::Tilde},  {0xF6, "o", Accent::Umlaut},
    {0xF8, "o", Accent::Stroke},     {0xF9, "u", Accent::Grave},  {0xFA, "u", Accent::Acute},
    {0xFB, "u", Accent::Circumflex}, {0xFC, "u", Accent::Umlaut}, {0xFD, "y", Accent::Acute},
    {0xFE, "th", Accent::None},
};

// What one byte of the page adds to a key.
struct ByteWeight {
    unsigned char First = 0; // 0 for a sign that only breaks ties
    unsigned char Second = 0;
    unsigned char Mark = 0; // accent, or which tie sign
};

using WeightTable = std::array<ByteWeight, 256>;

constexpr unsigned char LetterWeight(char letter)
{
    return static_cast<unsigned char>(FirstWeight + std::size(CharacterOrder) + (letter - 'a'));
}

constexpr WeightTable MakeWeights()
{
    WeightTable table{};
    unsigned char weight = FirstWeight;
    for (const unsigned char byte : CharacterOrder)
        table[byte].First = weight++;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        table[static_cast<unsigned char>(letter)].First = LetterWeight(letter);
        table[static_cast<unsigned char>(letter - 32)].First = LetterWeight(letter);
    }
    for (const LetterForm& form : LetterForms) {
        ByteWeight& entry = table[form.Byte];
        entry.First = table[static_cast<unsigned char>(form.Letters[0])].First;
        if (form.Letters[1] != '\0')
            entry.Second = LetterWeight(form.Letters[1]);
        entry.Mark = static_cast<unsigned char>(form.Mark);
    }
    for (unsigned byte = 0xC0; byte <= 0xDE; ++byte) {
        if (byte != 0xD7)
            table[byte] = table[byte + 0x20];
    }
    table[0x8A] = table[0x9A];
    table[0x8C] = table[0x9C];
    table[0x8E] = table[0x9E];
    table[0x9F] = table[0xFF];
    unsigned char tie = FirstWeight;
    for (const unsigned char byte : TieSigns)
        table[byte].Mark = tie++;
    return table;
}

constexpr WeightTable Weights = MakeWeights();

constexpr auto AsciiWeights = [] {
    std::array<unsigned char, 256> table{};
    for (std::size_t byte = 0; byte < 0x80; ++byte)
        table[byte] = Weights[byte].First;
    return table;
}();

// Case-folded UTF-8; a stray byte behind a byte that no UTF-8 holds, so that
// it stands behind all characters. Runs of ASCII are copied whole.
void AppendCodePointKey(std::string& out, std::string_view text)
{
    for (std::size_t pos = 0;;) {
        const std::string_view rest = text.substr(pos);
        const std::size_t plain = AsciiPrefix(rest);
        const std::size_t start = out.size();
        out.append(rest.substr(0, plain));
        AsciiLower(out.data() + start, plain);
        pos += plain;
        if (pos == text.size())
            return;
        const Character next = NextCharAny(text, pos);
        if (next.IsStray())
            out.push_back(static_cast<char>(StrayByte));
        AppendChar(out, next.IsStray() ? next.Code : SimpleFold(next.Code));
    }
}

// A word sort key while it grows: the first level goes to the end of `out` at
// once, the other two are kept until it is whole.
class WordKey {
public:
    explicit WordKey(std::string& out) : Out(out) {}

    void Add(std::string_view text)
    {
        for (std::size_t pos = 0; pos < text.size();) {
            const std::size_t start = pos;
            const Character next = NextChar(text, pos);
            const int byte = PageByte(next, text.substr(start, pos - start));
            if (byte >= 0)
                AddByte(Weights[static_cast<std::size_t>(byte)]);
            else
                AddOther(text.substr(start, pos - start));
        }
    }

    // An accent weighs more the nearer the start it stands, so marks of plain
    // characters behind the last accent count for nothing.
    void Close()
    {
        while (!Accents.empty() && Accents.back() == static_cast<char>(FirstWeight))
            Accents.pop_back();
        if (Accents.empty() && Ties.empty())
            return;
        Out.push_back(static_cast<char>(LevelEnd));
        Out += Accents;
        if (Ties.empty())
            return;
        Out.push_back(static_cast<char>(LevelEnd));
        Out += Ties;
    }

private:
    static int PageByte(Character character, std::string_view asText)
    {
        if (character.IsStray())
            return -1;
        if (character.Code < 0x80)
            return static_cast<int>(character.Code);
        const std::string bytes = Utf8ToCp1252(asText);
        return bytes == "?" ? -1 : static_cast<unsigned char>(bytes[0]);
    }

    void AddByte(const ByteWeight& weight)
    {
        if (weight.First == 0) {
            AddTie(weight.Mark);
            return;
        }
        AddWeight(weight.First, weight.Mark);
        if (weight.Second != 0)
            AddWeight(weight.Second, 0);
    }

    void AddWeight(unsigned char weight, unsigned char accent)
    {
        Out.push_back(static_cast<char>(weight));
        Accents.push_back(static_cast<char>(FirstWeight + accent));
        ++Place;
    }

    // A sign nearer the start makes the text stand later.
    void AddTie(unsigned char sign)
    {
        constexpr std::size_t Base = 254;
        constexpr std::size_t Farthest = Base * Base - 1;
        const std::size_t fromEnd = Farthest - std::min(Place, Farthest);
        Ties.push_back(static_cast<char>(FirstWeight + fromEnd / Base));
        Ties.push_back(static_cast<char>(FirstWeight + fromEnd % Base));
        Ties.push_back(static_cast<char>(sign));
    }

    void AddOther(std::string_view character)
    {
        Out.push_back(static_cast<char>(OtherCharacter));
        AppendCodePointKey(Out, character);
        Accents.push_back(static_cast<char>(FirstWeight));
        ++Place;
    }

    std::string& Out;
    std::string Accents;
    std::string Ties;
    std::size_t Place = 0;
};

// Plain ASCII without tie signs has a first level only; gives its length.
std::size_t AppendPlainWeights(std::string& out, std::string_view text)
{
    const std::size_t start = out.size();
    out.resize(start + text.size());
    char* key = out.data() + start;
    std::size_t i = 0;
    for (; i < text.size(); ++i) {
        const unsigned char weight = AsciiWeights[static_cast<unsigned char>(text[i])];
        if (weight == 0)
            break;
        key[i] = static_cast<char>(weight);
    }
    return i;
}

void AppendWordKey(std::string& out, std::string_view text)
{
    const std::size_t start = out.size();
    if (AppendPlainWeights(out, text) == text.size())
        return;
    out.resize(start);
    WordKey key(out);
    key.Add(text);
    key.Close();
}

} // namespace

void Sort_Key_Append(std::string& out, std::string_view text, Collation collation)
{
    if (collation == Collation::CodePoint)
        AppendCodePointKey(out, text);
    else
        AppendWordKey(out, text);
}

} // namespace tavo
