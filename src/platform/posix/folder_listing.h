#pragma once

#include "platform/pattern.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// Which entries of a folder somebody wants: all, or folders alone.
enum class ListScope { Everything, Folders };

// The kind of entry as the folder itself tells it. A link may lead to a
// folder, and some disks don't tell.
enum class ListedKind : std::uint8_t { Other, Folder, Link, Untold };

// The names of a folder that a pattern takes, in byte order, `.` and `..` in
// front. All names lie in one block of memory, so that a name costs no
// allocation; nothing but the names is read from the disk.
class FolderListing {
public:
    // Reads the names of the open folder. With ListScope::Folders, entries that
    // are surely no folder are left out, and `.` and `..` when `withDots` is
    // false. Gives 0 or the system's error number; a folder deleted meanwhile
    // is empty.
    int Read(int folder, const Pattern& pattern, ListScope scope, bool withDots);

    std::size_t Count() const { return entries_.size(); }
    // Ends in a NUL, for the system's calls.
    std::string_view Name(std::size_t index) const { return NameOf(entries_[index]); }
    ListedKind Kind(std::size_t index) const { return entries_[index].Kind; }

private:
    struct Entry {
        // Eight bytes of the name behind what all names begin with: most
        // comparisons need no more.
        std::uint64_t SortKey;
        std::uint32_t Start;
        std::uint16_t Bytes;
        ListedKind Kind;
    };

    void Add(std::string_view name, ListedKind kind);
    std::string_view NameOf(const Entry& entry) const
    {
        return {names_.data() + entry.Start, entry.Bytes};
    }
    std::vector<Entry>::iterator At(std::size_t index)
    {
        return entries_.begin() + static_cast<std::ptrdiff_t>(index);
    }
    void Sort(std::size_t first, std::size_t end);
    void SortByKey(std::size_t first, std::size_t end);

    std::string names_;
    std::vector<Entry> entries_;
};

} // namespace tavo
