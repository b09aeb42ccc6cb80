#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace tavo {

// Keeps each of few texts once and gives it a number. The empty text is number
// 0 and is never counted. A text goes when as many have let go of it as have
// taken it; its number is then given anew.
class TextPool {
public:
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    std::uint32_t Acquire(std::string_view text);
    void Release(std::uint32_t id);
    // The number of a text that is there, exactly; `none` if it is not.
    std::uint32_t Find(std::string_view text) const;
    // Holds until the text is let go.
    std::string_view Text(std::uint32_t id) const
    {
        return {entries_[id].Bytes.get(), entries_[id].Size};
    }
    // Every number is below this.
    std::size_t IdLimit() const { return entries_.size(); }
    void Clear();
    std::size_t MemoryBytes() const;

private:
    struct Entry {
        std::unique_ptr<char[]> Bytes;
        std::size_t Size = 0;
        std::uint32_t Hash = 0, Uses = 0;
    };

    // The text last taken of each length (modulo the size): the next is often
    // the same, and then needs no hash.
    std::uint32_t& RecentFor(std::string_view text)
    {
        return recent_[text.size() % recent_.size()];
    }
    std::uint32_t Find(std::string_view text, std::uint32_t hash) const;
    std::uint32_t NewEntry(std::string_view text, std::uint32_t hash);
    void AddSlot(std::uint32_t id);
    void EraseSlot(std::uint32_t id);
    void Grow();

    std::vector<Entry> entries_{1};
    std::vector<std::uint32_t> free_;
    std::vector<std::uint32_t> slots_; // open addressing; 0 is an empty slot
    std::array<std::uint32_t, 16> recent_{};
    std::size_t used_ = 0;
    std::size_t textBytes_ = 0;
};

} // namespace tavo
