#include "support/model_disk.h"

#include "support/text_points.h"
#include "support/windows_names.h"

namespace tavo::model {

namespace {

constexpr std::size_t longestLinuxName = 255; // bytes

} // namespace

ModelDisk::ModelDisk(const NnTask& task)
    : system_(task.System), blind_(task.CaseBlind || task.System == Dialect::Windows)
{
    for (const auto& [full, content] : task.Files)
        entries_[Key(full)] = {full, content};
    for (const auto& full : task.InUse)
        inUse_[Key(full)] = true;
    for (const auto& folder : task.Locked)
        locked_[Key(folder)] = true;
}

std::string ModelDisk::Key(const std::string& full) const
{
    return blind_ ? points::Upper(full) : full;
}

// The name as the disk keeps it.
std::string ModelDisk::Stored(const std::string& name) const
{
    return system_ == Dialect::Linux ? name : windows::Stored(name);
}

bool ModelDisk::Exists(const std::string& path, const std::string& name) const
{
    if (system_ == Dialect::Windows && windows::IsDevice(name))
        return true;
    return entries_.count(Key(path + Stored(name))) > 0;
}

int ModelDisk::RefusalOnLinux(const std::string& name) const
{
    if (name.empty() || name == "." || name == ".." || name.size() > longestLinuxName)
        return 123;
    const bool bad = name.find('/') != std::string::npos || name.find('\0') != std::string::npos;
    return bad ? 123 : 0;
}

int ModelDisk::RefusalOnWindows(const std::string& path, const std::string& name) const
{
    const std::string stored = Stored(name);
    if (windows::HasBadCharacter(name) || points::Count(stored) > windows::longestName)
        return 123;
    if (stored.empty() || windows::IsDevice(name))
        return 183;
    return points::Count(path + stored) > windows::longestPath ? 206 : 0;
}

int ModelDisk::Refusal(const std::string& path, const std::string& name) const
{
    return system_ == Dialect::Linux ? RefusalOnLinux(name) : RefusalOnWindows(path, name);
}

int ModelDisk::Rename(const std::string& path, const std::string& oldName,
                      const std::string& newName)
{
    const std::string from = path + Stored(oldName), to = path + Stored(newName);
    if (const int refusal = Refusal(path, newName))
        return refusal;
    if (entries_.count(Key(from)) == 0)
        return 2;
    const bool taken = entries_.count(Key(to)) > 0;
    if (taken && (from == to || Key(from) != Key(to)))
        return 183;
    if (locked_.count(Key(path)) > 0)
        return 5;
    if (inUse_.count(Key(from)) > 0)
        return 32;
    // The folder above may be spelled in another case than the row has it.
    const std::string above = entries_[Key(from)].first.substr(0, path.size());
    Move(from, above + Stored(newName));
    return 0;
}

void ModelDisk::Move(const std::string& from, const std::string& to)
{
    const char separator = system_ == Dialect::Linux ? '/' : '\\';
    const auto own = entries_.extract(Key(from));
    std::map<std::string, std::pair<std::string, int>> moved;
    moved[Key(to)] = {to, own.mapped().second};

    const std::string below = Key(from) + separator;
    for (auto it = entries_.lower_bound(below); it != entries_.end();) {
        if (it->first.rfind(below, 0) != 0)
            break;
        const std::string full = to + it->second.first.substr(from.size());
        moved[Key(full)] = {full, it->second.second};
        it = entries_.erase(it);
    }
    entries_.merge(moved);
}

Disk ModelDisk::Contents() const
{
    Disk out;
    for (const auto& [key, entry] : entries_)
        out[entry.first] = entry.second;
    return out;
}

} // namespace tavo::model
