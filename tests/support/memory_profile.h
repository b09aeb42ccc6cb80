#pragma once

#include "platform/collecting_profile.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tavo {

// Settings files that are texts in memory, by their exact full names.
class MemoryProfile : public CollectingProfile {
public:
    explicit MemoryProfile(ProfileDialect dialect = ProfileDialect::Linux)
        : dialect_(dialect), nothing_({}, dialect)
    {
    }

    void SetText(const std::string& file, const std::string& bytes);
    // A file that is not there any more, or never was, answers with fallbacks.
    void Remove(const std::string& file);
    std::optional<std::string> Text(const std::string& file) const;

    // How many questions were asked, of all files.
    int Calls() const { return calls_; }
    // How often a file was replaced or made by writing.
    int Saves() const { return saves_; }
    // From now on no file can be written, as on a full disk.
    void RefuseWrites(bool refuse = true) { refusesWrites_ = refuse; }

    std::string GetPrivateProfileStringA(const std::string& section, std::optional<std::string> key,
                                         const std::string& fallback, int size,
                                         const std::string& file) override;

protected:
    const ProfileText& TextOf(const std::string& file) override;
    bool Apply(const std::string& file, const std::vector<ProfileChange>& changes) override;

private:
    struct File {
        std::string Bytes;
        ProfileText Parsed;
    };
    ProfileDialect dialect_;
    ProfileText nothing_;
    std::map<std::string, File> files_;
    bool refusesWrites_ = false;
    int calls_ = 0, saves_ = 0;
};

} // namespace tavo
