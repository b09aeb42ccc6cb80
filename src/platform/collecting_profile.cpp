#include "platform/collecting_profile.h"

#include <utility>

namespace tavo {

std::string CollectingProfile::GetPrivateProfileStringA(const std::string& section,
                                                        std::optional<std::string> key,
                                                        const std::string& fallback, int size,
                                                        const std::string& file)
{
    const auto save = saves_.find(file);
    const bool isChanged = save != saves_.end() && save->second.Changed;
    return ProfileAnswer(isChanged ? *save->second.Changed : TextOf(file), section, key, fallback,
                         size);
}

bool CollectingProfile::WritePrivateProfileStringA(const std::string& section,
                                                   std::optional<std::string> key,
                                                   std::optional<std::string> value,
                                                   const std::string& file)
{
    ProfileChange change{section, std::move(key), std::move(value)};
    const auto found = saves_.find(file);
    if (found == saves_.end())
        return Apply(file, {std::move(change)});
    Save& save = found->second;
    if (!save.Changed)
        save.Changed = TextOf(file);
    save.Changed->Write(change);
    save.Changes.push_back(std::move(change));
    return true;
}

void CollectingProfile::BeginSave(const std::string& file)
{
    ++saves_[file].Depth;
}

bool CollectingProfile::EndSave(const std::string& file)
{
    const auto found = saves_.find(file);
    if (found == saves_.end())
        return false;
    if (--found->second.Depth > 0)
        return true;
    const std::vector<ProfileChange> changes = std::move(found->second.Changes);
    saves_.erase(found);
    return changes.empty() || Apply(file, changes);
}

} // namespace tavo
