#include "platform/files.h"

#include <algorithm>

namespace tavo {

namespace {

bool Is_Hidden(const FindData& found, const PathRules& rules)
{
    return rules.DotHides ? found.Name.starts_with('.') : (found.Attributes & attrHidden) != 0;
}

} // namespace

std::vector<ListedFolder> Files::ListFolders(const std::string& folder)
{
    std::vector<ListedFolder> folders;
    FindData found;
    const FindHandle handle = FindFirstFolder(folder + "*.*", found);
    if (handle == invalidFind)
        return folders;
    do {
        // A name of a fixed width may stand in front of its NULs.
        found.Name.resize(std::min(found.Name.find('\0'), found.Name.size()));
        const bool isDots = found.Name == "." || found.Name == "..";
        if ((found.Attributes & attrDirectory) && !isDots)
            folders.push_back({found.Name, Is_Hidden(found, Rules())});
    } while (FindNextFileA(handle, found));
    FindClose(handle);
    return folders;
}

} // namespace tavo
