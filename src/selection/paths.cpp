#include "selection/paths.h"

#include "toolkit/text.h"

#include <array>
#include <limits>
#include <utility>

namespace tavo {

std::string Path_AddSlash(std::string_view path, const PathRules& rules)
{
    std::string result(path);
    if (result.empty() || result.back() != rules.Separator)
        result += rules.Separator;
    return result;
}

std::string Path_RemoveSlash(std::string_view path, const PathRules& rules)
{
    const bool isRoot = path.size() == 1 && rules.RootKeepsSlash;
    if (!path.empty() && path.back() == rules.Separator && !isRoot)
        path.remove_suffix(1);
    return std::string(path);
}

void Path_Split(std::string& path, std::string& name, const PathRules& rules)
{
    const auto last = path.rfind(rules.Separator);
    if (last == std::string::npos)
        return;
    name = path.substr(last + 1);
    path.resize(last + 1);
}

void Name_Split(std::string& name, std::string& ext)
{
    const auto point = name.rfind('.');
    if (point == std::string::npos)
        return;
    ext = name.substr(point + 1);
    name.resize(point);
}

std::string Name_GetExt(std::string_view name)
{
    const auto point = name.rfind('.');
    return point == std::string_view::npos ? std::string() : std::string(name.substr(point + 1));
}

bool File_Exists(Files& files, const std::string& path)
{
    return files.Exists(path);
}

bool Folder_Exists(Files& files, std::string& path)
{
    path = Path_RemoveSlash(path, files.Rules());
    FindData found;
    if (!files.Rules().WildcardsInNames) {
        const auto entry = files.Stat(path);
        return entry && (entry->Attributes & attrDirectory);
    }
    const FindHandle handle = files.FindFirstFileA(path, found);
    if (handle == invalidFind)
        return false;
    files.FindClose(handle);
    return (found.Attributes & attrDirectory) != 0;
}

bool IsOneFolder(Files& files, const std::string& left, const std::string& right)
{
    const auto identity = files.FolderIdentity(left);
    return identity && identity == files.FolderIdentity(right);
}

std::string Path_WithoutDetours(Files& files, const std::string& path)
{
    const char separator = files.Rules().Separator;
    const std::string up = std::string(1, separator) + ".." + separator;
    std::string plain;
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t end = std::min(path.find(separator, at), path.size() - 1) + 1;
        plain += path.substr(at, end - at);
        at = end;
        const bool isUp =
            plain.ends_with(up) || (at == path.size() && plain.ends_with(up.substr(0, 3)));
        if (!isUp)
            continue;
        const std::size_t here = plain.rfind("..") - 1;
        const std::size_t above = here == 0 ? 0 : plain.rfind(separator, here - 1);
        plain.erase((above == std::string::npos ? here : above) + 1);
    }
    return plain != path && IsOneFolder(files, plain, path) ? plain : path;
}

std::string Str_CutAtNul(std::string& text)
{
    const auto nul = text.find('\0');
    if (nul != std::string::npos)
        text.resize(nul);
    return text;
}

std::string Str_PadNul(std::string_view text, std::int16_t length)
{
    std::string result = Left(text, length);
    const int missing = length - Len(result);
    if (missing > 0)
        result.append(static_cast<std::size_t>(missing), '\0');
    return result;
}

std::string Str_GetToken(std::string& text, std::string_view delimiter, std::string_view fallback)
{
    if (text.empty())
        return std::string(fallback);
    const auto at = delimiter.empty() ? std::string::npos : text.find(delimiter);
    if (at == std::string::npos)
        return std::exchange(text, std::string());
    std::string token = text.substr(0, at);
    text.erase(0, at + delimiter.size());
    return token;
}

void Str_ReplaceAll(std::string& text, std::string_view find, std::string_view replace,
                    std::uint8_t matchCase)
{
    const Compare compare = matchCase == 1 ? Compare::Binary : Compare::Text;
    int pos = 1;
    while (!find.empty()) {
        const int hit = InStr(pos, text, find, compare);
        if (hit == 0 || hit > std::numeric_limits<std::int16_t>::max())
            return;
        text = Left(text, hit - 1).append(replace) + Mid(text, hit + Len(find));
        pos = hit + Len(replace);
    }
}

char Sel_Class_Get(std::string_view typeText, std::uint8_t gif)
{
    static constexpr std::array<std::string_view, 7> pictures{"jpeg", "jpg", "bmp", "rle",
                                                              "ico",  "wmf", "emf"};
    if (typeText == "-")
        return 'D';
    for (const std::string_view picture : pictures)
        if (SameText(typeText, picture))
            return 'P';
    if (SameText(typeText, "gif"))
        return gif == 1 ? 'P' : 'F';
    return SameText(typeText, "mp3") ? 'M' : 'F';
}

} // namespace tavo
