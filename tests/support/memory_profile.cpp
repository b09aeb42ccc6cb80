#include "support/memory_profile.h"

namespace tavo {

void MemoryProfile::SetText(const std::string& file, const std::string& bytes)
{
    files_[file] = {bytes, ProfileText(bytes)};
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
    const auto known = files_.find(file);
    const ProfileText nothing;
    const ProfileText& text = known == files_.end() ? nothing : known->second.Parsed;
    return ProfileAnswer(text, section, key, fallback, size);
}

} // namespace tavo
