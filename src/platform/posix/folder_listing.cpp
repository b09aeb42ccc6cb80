#include "platform/posix/folder_listing.h"

#include "platform/posix/descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <dirent.h>
#include <numeric>

namespace tavo {

namespace {

// Large enough that a folder of a thousand files is one call.
constexpr std::size_t readBytes = std::size_t{64} * 1024;

ListedKind KindOf(unsigned char type)
{
    switch (type) {
    case DT_DIR: return ListedKind::Folder;
    case DT_LNK: return ListedKind::Link;
    case DT_UNKNOWN: return ListedKind::Untold;
    default: return ListedKind::Other;
    }
}

bool IsDots(std::string_view name)
{
    return name == "." || name == "..";
}

// The bytes as a number that compares as they do; missing ones count as 0,
// which no name holds.
std::uint64_t KeyOf(std::string_view bytes)
{
    std::uint64_t key = 0;
    for (std::size_t pos = 0; pos < 8; ++pos)
        key = key << 8 | (pos < bytes.size() ? static_cast<unsigned char>(bytes[pos]) : 0);
    return key;
}

} // namespace

int FolderListing::Read(int folder, const Pattern& pattern, ListScope scope, bool withDots)
{
    names_.clear();
    entries_.clear();
    std::size_t dots = 0;
    alignas(dirent64) std::array<char, readBytes> buffer;
    for (;;) {
        const ssize_t filled =
            WithoutInterrupts([&] { return getdents64(folder, buffer.data(), buffer.size()); });
        if (filled < 0 && errno != ENOENT)
            return errno;
        if (filled <= 0)
            break;
        for (ssize_t pos = 0; pos < filled;) {
            const auto* entry = reinterpret_cast<const dirent64*>(buffer.data() + pos);
            pos += entry->d_reclen;
            const std::string_view name = entry->d_name;
            const ListedKind kind = KindOf(entry->d_type);
            if ((scope == ListScope::Folders && kind == ListedKind::Other)
                || !pattern.Matches(name))
                continue;
            const bool isDots = IsDots(name);
            if (isDots && !withDots)
                continue;
            Add(name, kind);
            if (isDots)
                std::swap(entries_[dots++], entries_.back());
        }
    }
    // `.` and `..` stand in front of all others, whatever these begin with.
    Sort(0, dots);
    Sort(dots, entries_.size());
    return 0;
}

void FolderListing::Add(std::string_view name, ListedKind kind)
{
    const auto start = static_cast<std::uint32_t>(names_.size());
    names_.append(name);
    names_.push_back('\0');
    entries_.push_back({0, start, static_cast<std::uint16_t>(name.size()), kind});
}

void FolderListing::Sort(std::size_t first, std::size_t end)
{
    if (end - first < 2)
        return;
    std::string_view common = Name(first);
    for (std::size_t index = first + 1; index < end && !common.empty(); ++index) {
        const std::string_view name = Name(index);
        const auto differ = std::mismatch(common.begin(), common.end(), name.begin(), name.end());
        common = common.substr(0, static_cast<std::size_t>(differ.first - common.begin()));
    }
    for (std::size_t index = first; index < end; ++index)
        entries_[index].SortKey = KeyOf(Name(index).substr(common.size()));
    SortByKey(first, end);
    // What the keys leave open is settled by the whole names.
    for (std::size_t start = first; start < end;) {
        std::size_t next = start + 1;
        while (next < end && entries_[next].SortKey == entries_[start].SortKey)
            ++next;
        std::sort(At(start), At(next), [this](const Entry& left, const Entry& right) {
            return NameOf(left) < NameOf(right);
        });
        start = next;
    }
}

// Byte by byte from the last one, each pass keeping the order of the one
// before: far quicker than comparisons, which would cost a walk of a large
// folder a tenth more.
void FolderListing::SortByKey(std::size_t first, std::size_t end)
{
    constexpr std::size_t byteValues = 256;
    const std::size_t count = end - first;
    if (count < 2 * byteValues) {
        std::sort(At(first), At(end), [](const Entry& left, const Entry& right) {
            return left.SortKey < right.SortKey;
        });
        return;
    }
    std::vector<Entry> sorted(count);
    for (unsigned shift = 0; shift < 64; shift += 8) {
        const auto byteOf = [shift](const Entry& entry) { return entry.SortKey >> shift & 0xFF; };
        std::array<std::size_t, byteValues> places{};
        for (auto entry = At(first); entry != At(end); ++entry)
            ++places[byteOf(*entry)];
        if (places[byteOf(entries_[first])] == count)
            continue;
        std::exclusive_scan(places.begin(), places.end(), places.begin(), std::size_t{0});
        for (auto entry = At(first); entry != At(end); ++entry)
            sorted[places[byteOf(*entry)]++] = *entry;
        std::copy(sorted.begin(), sorted.end(), At(first));
    }
}

} // namespace tavo
