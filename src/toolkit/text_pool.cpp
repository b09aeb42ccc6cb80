#include "toolkit/text_pool.h"

#include "toolkit/text_hash.h"

#include <cstring>
#include <utility>

namespace tavo {

std::uint32_t TextPool::Find(std::string_view text, std::uint32_t hash) const
{
    if (slots_.empty())
        return none;
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = hash & mask; slots_[i] != 0; i = (i + 1) & mask) {
        const std::uint32_t id = slots_[i];
        if (entries_[id].Hash == hash && Text(id) == text)
            return id;
    }
    return none;
}

std::uint32_t TextPool::Find(std::string_view text) const
{
    return text.empty() ? 0 : Find(text, Text_Hash(text));
}

std::uint32_t TextPool::Acquire(std::string_view text)
{
    if (text.empty())
        return 0;
    std::uint32_t& id = RecentFor(text);
    if (Text(id) != text) {
        const std::uint32_t hash = Text_Hash(text);
        id = Find(text, hash);
        if (id == none)
            id = NewEntry(text, hash);
    }
    ++entries_[id].Uses;
    return id;
}

void TextPool::Release(std::uint32_t id)
{
    if (id == 0 || --entries_[id].Uses > 0)
        return;
    EraseSlot(id);
    textBytes_ -= entries_[id].Size;
    entries_[id] = Entry();
    free_.push_back(id);
}

std::uint32_t TextPool::NewEntry(std::string_view text, std::uint32_t hash)
{
    if ((used_ + 1) * 2 > slots_.size())
        Grow();
    std::uint32_t id = static_cast<std::uint32_t>(entries_.size());
    if (free_.empty()) {
        entries_.emplace_back();
    } else {
        id = free_.back();
        free_.pop_back();
    }
    Entry& entry = entries_[id];
    entry.Bytes.reset(new char[text.size()]);
    std::memcpy(entry.Bytes.get(), text.data(), text.size());
    entry.Size = text.size();
    entry.Hash = hash;
    textBytes_ += text.size();
    ++used_;
    AddSlot(id);
    return id;
}

void TextPool::AddSlot(std::uint32_t id)
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = entries_[id].Hash & mask;
    while (slots_[i] != 0)
        i = (i + 1) & mask;
    slots_[i] = id;
}

// Moves those behind up, so that no search ends too early at the gap.
void TextPool::EraseSlot(std::uint32_t id)
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t gap = entries_[id].Hash & mask;
    while (slots_[gap] != id)
        gap = (gap + 1) & mask;
    for (std::size_t i = (gap + 1) & mask; slots_[i] != 0; i = (i + 1) & mask) {
        const std::size_t home = entries_[slots_[i]].Hash & mask;
        if (((i - home) & mask) >= ((i - gap) & mask)) {
            slots_[gap] = slots_[i];
            gap = i;
        }
    }
    slots_[gap] = 0;
    --used_;
}

void TextPool::Grow()
{
    const std::size_t size = slots_.empty() ? 16 : slots_.size() * 2;
    const auto old = std::exchange(slots_, std::vector<std::uint32_t>(size));
    for (const std::uint32_t id : old) {
        if (id != 0)
            AddSlot(id);
    }
}

void TextPool::Clear()
{
    *this = TextPool();
}

std::size_t TextPool::MemoryBytes() const
{
    // Each text is a block of the heap with its own overhead.
    return entries_.capacity() * sizeof(Entry) + textBytes_ + used_ * 16
           + (free_.capacity() + slots_.capacity()) * sizeof(std::uint32_t);
}

} // namespace tavo
