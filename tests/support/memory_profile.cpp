#include "support/memory_profile.h"

namespace tavo {

void MemoryProfile::SetText(const std::string& file, const std::string& bytes)
{
    files_[file] = {bytes, ProfileText(bytes, dialect_)};
}

void MemoryProfile::Remove(const std::string& file)
{
    files_.erase(file);
}

std::optional<std::string> MemoryProfile::Text(const std::string& file) const
{
    const auto known = files_.find(file);
    if (known == files_.end())
        return std::nullopt;
    return known->second.Bytes;
}

std::string MemoryProfile::GetPrivateProfileStringA(const std::string& section,
                                                    std::optional<std::string> key,
                                                    const std::string& fallback, int size,
                                                    const std::string& file)
{
    ++calls_;
    return CollectingProfile::GetPrivateProfileStringA(section, std::move(key), fallback, size,
                                                       file);
}

const ProfileText& MemoryProfile::TextOf(const std::string& file)
{
    const auto known = files_.find(file);
    return known == files_.end() ? nothing_ : known->second.Parsed;
}

bool MemoryProfile::Apply(const std::string& file, const std::vector<ProfileChange>& changes)
{
    ProfileText text = TextOf(file);
    for (const ProfileChange& change : changes)
        text.Write(change);
    const std::string bytes = text.Bytes();
    if (bytes == Text(file).value_or(""))
        return true;
    if (refusesWrites_)
        return false;
    SetText(file, bytes);
    ++saves_;
    return true;
}

} // namespace tavo
