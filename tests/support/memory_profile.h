#pragma once

#include "platform/profile.h"
#include "platform/profile_text.h"

#include <map>
#include <optional>
#include <string>

namespace tavo {

// Settings files that are texts in memory, by their exact full names.
class MemoryProfile : public Profile {
public:
    void SetText(const std::string& file, const std::string& bytes);
    // A file that is not there any more, or never was, answers with fallbacks.
    void Remove(const std::string& file);
    std::optional<std::string> Text(const std::string& file) const;

    // How many questions were asked, of all files.
    int Calls() const { return calls_; }

    std::string GetPrivateProfileStringA(const std::string& section,
                                         std::optional<std::string> key,
                                         const std::string& fallback, int size,
                                         const std::string& file) override;

private:
    struct File {
        std::string Bytes;
        ProfileText Parsed;
    };
    std::map<std::string, File> files_;
    int calls_ = 0;
};

} // namespace tavo
