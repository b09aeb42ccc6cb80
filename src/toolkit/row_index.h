#pragma once

#include "toolkit/row_order.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavo {

// Finds rows by a hash. Rows that are the same hang on one chain, of which
// only the first stands in the table: any number of them can come and go at a
// fixed cost each. What "the same" is, the caller says: `same(row)` compares a
// row of equal hash with what is looked for.
class RowIndex {
public:
    bool Built() const { return built_; }
    // Begins an index for rows below `limit`; more may follow.
    void Start(std::size_t limit);
    void Drop() { *this = RowIndex(); }

    template <class Same>
    RowId Find(std::uint32_t hash, const Same& same) const;
    // The next on the chain; noRow at its end.
    RowId Next(RowId row) const { return nodes_[row].Next; }
    std::uint32_t HashOf(RowId row) const { return nodes_[row].Hash; }
    template <class Same>
    void Insert(RowId row, std::uint32_t hash, const Same& same);
    // A row that is in the index.
    void Remove(RowId row);
    std::size_t MemoryBytes() const;

private:
    struct Node {
        std::uint32_t Hash = 0;
        RowId Previous = noRow, Next = noRow;
    };

    void AddNode(RowId row, std::uint32_t hash);
    void LinkBehind(RowId row, RowId head);
    void AddHead(RowId row);
    void PlaceHead(RowId row);
    std::size_t SlotOf(RowId head) const;
    void EraseSlot(std::size_t slot);

    std::vector<Node> nodes_;  // by row
    std::vector<RowId> slots_; // open addressing, heads of chains
    std::size_t heads_ = 0;
    bool built_ = false;
};

template <class Same>
RowId RowIndex::Find(std::uint32_t hash, const Same& same) const
{
    if (slots_.empty())
        return noRow;
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = hash & mask; slots_[i] != noRow; i = (i + 1) & mask) {
        if (nodes_[slots_[i]].Hash == hash && same(slots_[i]))
            return slots_[i];
    }
    return noRow;
}

template <class Same>
void RowIndex::Insert(RowId row, std::uint32_t hash, const Same& same)
{
    AddNode(row, hash);
    const RowId head = Find(hash, same);
    if (head != noRow)
        LinkBehind(row, head);
    else
        AddHead(row);
}

} // namespace tavo
