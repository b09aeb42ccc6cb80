#pragma once

#include <string>
#include <string_view>

namespace tavo {

// What differs between two disks in how paths are written and names compared.
// A value: the Files port hands it out and the path helpers take it, so that
// one process can work in two dialects side by side.
struct PathRules {
    char Separator = '/';
    // Names that differ in case alone are one name on this disk.
    bool CaseBlind = false;
    // Wildcards in a full name are expanded by an existence test.
    bool WildcardsInNames = false;
    // The root keeps its slash: Path_RemoveSlash("/") is "/".
    bool RootKeepsSlash = true;
    // A name that begins with a dot is hidden; elsewhere an attribute hides.
    bool DotHides = true;
    // The times of a read-only file can only be set while it is none.
    bool ReadOnlyKeepsTimes = false;
    // Characters that a new name may not bring in.
    std::string_view Forbidden = "\\:*?\"<>|";
    // The longest name of one entry, in bytes.
    int MaxNameBytes = 255;
    // How lists sort texts: by code point after simple case folding, or by the
    // word order of Windows.
    bool WordSort = false;
    // Text is UTF-8; otherwise each byte is a character of code page 1252.
    bool Utf8 = true;

    // Is this the path of a real folder, and not of a node that stands for
    // something else? "/..." here; "\\..." or "X:\..." there.
    bool IsRealPath(std::string_view path) const;
};

// The rules of Linux and of Windows.
PathRules PosixRules();
PathRules WindowsRules();

} // namespace tavo
