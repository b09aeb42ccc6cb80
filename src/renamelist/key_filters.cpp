#include "renamelist/key_filters.h"

#include "core/program.h"

#include <string_view>

namespace tavo {

namespace {

bool Is_Digit(int key)
{
    return key >= '0' && key <= '9';
}

bool Is_Letter(int key)
{
    return (key >= 'a' && key <= 'z') || (key >= 'A' && key <= 'Z');
}

// Backspace, the point's code, and the codes of copy, paste, cut and undo.
bool Is_EditCode(int key)
{
    return key == 8 || key == 46 || key == 3 || key == 22 || key == 24 || key == 26;
}

} // namespace

void Txt_NumericKey(int& key)
{
    if (!Is_Digit(key) && !Is_EditCode(key))
        key = 0;
}

void Key_Letters(int& key)
{
    if (!Is_Letter(key) && !Is_EditCode(key))
        key = 0;
}

void Key_FileName(Program& p, int& key)
{
    constexpr std::string_view refused = "\\/:*?|\"";
    constexpr std::string_view tokenSigns = "<>";
    if (key <= 0 || key > 127)
        return;
    const char c = static_cast<char>(key);
    const bool isRefused = refused.find(c) != std::string_view::npos;
    const bool isTokenSign = tokenSigns.find(c) != std::string_view::npos;
    if (!isRefused && !(isTokenSign && p.state.RenMode != modeNameNumber))
        return;
    key = 0;
    p.Say("File Names may not Contain \\ / : * ? < > | \" ", BoxIcon::Information);
}

} // namespace tavo
