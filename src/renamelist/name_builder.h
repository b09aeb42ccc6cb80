#pragma once

#include "renamelist/templates.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tavo {

class Files;
struct SharedState;

// The two templates of Name & Number, scanned once for a run, and the counter
// that goes into them. A file is read only where a template asks for its tag.
class NameBuilder {
public:
    NameBuilder(std::string_view nameTemplate, std::string_view extTemplate,
                const SharedState& state, Files& files);

    // Does either template hold the counter?
    bool Counts() const { return nameFlags_[1] || extFlags_[1]; }
    std::int64_t Start() const { return start_; }

    // Builds the new name of the file at `fullPath`, called `baseName` and
    // `extension`. The parts stand in NewName and NewExt until the next call.
    void Build(const std::string& fullPath, std::string_view baseName, std::string_view extension,
               std::int64_t counter);
    const std::string& NewName() const { return newName_; }
    const std::string& NewExt() const { return extText_; }

private:
    void ApplyTag(const std::string& fullPath);

    Files* files_;
    std::string nameTemplate_, extTemplate_;
    TmplFlags nameFlags_{}, extFlags_{};
    int style_, digits_;
    std::int64_t start_;
    std::string extText_, newName_;
};

} // namespace tavo
