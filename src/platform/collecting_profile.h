#pragma once

#include "platform/profile.h"
#include "platform/profile_text.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tavo {

// What all settings files have in common, wherever they lie: the answers from
// their text, and the collecting of what one save writes.
class CollectingProfile : public Profile {
public:
    std::string GetPrivateProfileStringA(const std::string& section, std::optional<std::string> key,
                                         const std::string& fallback, int size,
                                         const std::string& file) override;
    bool WritePrivateProfileStringA(const std::string& section, std::optional<std::string> key,
                                    std::optional<std::string> value,
                                    const std::string& file) override;
    void BeginSave(const std::string& file) override;
    bool EndSave(const std::string& file) override;

protected:
    // The file as it is now; an empty text when it cannot be read. Good until
    // the next call.
    virtual const ProfileText& TextOf(const std::string& file) = 0;
    // Makes the changes to the file as it is now, in one step, as
    // WritePrivateProfileStringA promises it.
    virtual bool Apply(const std::string& file, const std::vector<ProfileChange>& changes) = 0;

private:
    struct Save {
        int Depth = 0;
        std::vector<ProfileChange> Changes;
        // The file with the changes, from the first one on.
        std::optional<ProfileText> Changed;
    };

    std::map<std::string, Save> saves_;
};

} // namespace tavo
