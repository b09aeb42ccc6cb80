#include "renamelist/search_replace.h"

#include "selection/paths.h"
#include "toolkit/text.h"

#include <algorithm>
#include <limits>

namespace tavo {

namespace {

void Target_Change(std::string& target, const SearchTask& task)
{
    if (task.Type == searchRange)
        SR_ReplaceRange(target, task.Replace, task.First, task.Last);
    else
        SR_ReplaceText(target, task.Find, task.Replace, task.MatchCase);
}

void Whole_Change(std::string& baseName, std::string& extension, const SearchTask& task)
{
    if (!extension.empty())
        baseName += '.' + extension;
    Target_Change(baseName, task);
    extension.clear();
    Name_Split(baseName, extension);
}

} // namespace

void SR_Apply(std::string& baseName, std::string& extension, const SearchTask& task)
{
    switch (task.Scope) {
    case scopeName: return Target_Change(baseName, task);
    case scopeExtension: return Target_Change(extension, task);
    case scopeBoth: return Whole_Change(baseName, extension, task);
    default: return;
    }
}

void SR_ReplaceText(std::string& target, std::string_view find, std::string_view replace,
                    std::uint8_t matchCase)
{
    Str_ReplaceAll(target, find, replace, matchCase);
}

void SR_ReplaceRange(std::string& target, std::string_view replace, std::int16_t first,
                     std::int16_t last)
{
    const int length = Len(target);
    if (length > std::numeric_limits<std::int16_t>::max())
        return;
    int from = first, to = last;
    if (to != 0) {
        if (from > to)
            std::swap(from, to);
        if (to < 0)
            to = 1;
        to = std::min(to, length);
    }
    if (from < 0)
        from = 1;
    from = std::min(from, length);
    if (from < 1)
        return;
    const std::string rest = to != 0 ? Mid(target, to + 1) : Mid(target, from);
    target = Left(target, from - 1).append(replace) + rest;
}

} // namespace tavo
