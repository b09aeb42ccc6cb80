#include "platform/path_rules.h"

namespace tavo {

bool PathRules::IsRealPath(std::string_view path) const
{
    if (Separator == '/')
        return path.starts_with('/');
    return path.starts_with("\\\\") || (path.size() >= 3 && path.substr(1, 2) == ":\\");
}

PathRules PosixRules()
{
    return {};
}

PathRules WindowsRules()
{
    PathRules rules;
    rules.Separator = '\\';
    rules.CaseBlind = true;
    rules.WildcardsInNames = true;
    rules.RootKeepsSlash = false;
    rules.DotHides = false;
    rules.ReadOnlyKeepsTimes = true;
    // That disk refuses bad characters itself, so nobody has to look before.
    rules.Forbidden = "";
    rules.WordSort = true;
    rules.Utf8 = false;
    return rules;
}

} // namespace tavo
