#pragma once

#include "platform/profile_text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// A settings file as its format tells it, with neither lines nor bytes: what
// ProfileText must agree with. It is the plainest reading that there is, and a
// change is one to the lists.
class PlainProfile {
public:
    struct Key {
        std::string Name, Value; // the value with its quotes
        std::string Folded;      // the name, for comparison
        bool operator==(const Key&) const = default;
    };
    struct Section {
        std::string Name;
        std::vector<Key> Keys;
        std::string Folded;
        bool operator==(const Section&) const = default;
    };

    PlainProfile(std::string_view bytes, ProfileDialect dialect);

    // The first one is what stands before all headers.
    const std::vector<Section>& Sections() const { return sections_; }
    // Null when it is missing.
    const Section* Find(std::string_view section) const;
    const Key* Find(std::string_view section, std::string_view key) const;

    // Makes the change; names and value are as they will be read.
    void Change(const ProfileChange& change);

    bool operator==(const PlainProfile&) const = default;

private:
    void ReadLine(std::string_view line);

    std::vector<Section> sections_{1};
};

} // namespace tavo
