#include "toolkit/row_index.h"

#include <bit>
#include <utility>

namespace tavo {

void RowIndex::Start(std::size_t limit)
{
    Drop();
    nodes_.resize(limit);
    slots_.assign(std::bit_ceil(limit * 3 / 2 + 16), noRow);
    built_ = true;
}

void RowIndex::AddNode(RowId row, std::uint32_t hash)
{
    if (row >= nodes_.size())
        nodes_.resize(row + std::size_t{1});
    nodes_[row] = {hash, noRow, noRow};
}

void RowIndex::LinkBehind(RowId row, RowId head)
{
    const RowId next = nodes_[head].Next;
    nodes_[row].Previous = head;
    nodes_[row].Next = next;
    nodes_[head].Next = row;
    if (next != noRow)
        nodes_[next].Previous = row;
}

void RowIndex::AddHead(RowId row)
{
    if ((heads_ + 1) * 3 > slots_.size() * 2) {
        const auto old = std::exchange(slots_, std::vector<RowId>(slots_.size() * 2, noRow));
        for (const RowId head : old) {
            if (head != noRow)
                PlaceHead(head);
        }
    }
    PlaceHead(row);
    ++heads_;
}

void RowIndex::PlaceHead(RowId row)
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = nodes_[row].Hash & mask;
    while (slots_[i] != noRow)
        i = (i + 1) & mask;
    slots_[i] = row;
}

std::size_t RowIndex::SlotOf(RowId head) const
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = nodes_[head].Hash & mask;
    while (slots_[i] != head)
        i = (i + 1) & mask;
    return i;
}

void RowIndex::Remove(RowId row)
{
    const Node node = nodes_[row];
    if (node.Next != noRow)
        nodes_[node.Next].Previous = node.Previous;
    if (node.Previous != noRow)
        nodes_[node.Previous].Next = node.Next;
    else if (node.Next != noRow)
        slots_[SlotOf(row)] = node.Next;
    else
        EraseSlot(SlotOf(row));
}

// Moves those behind up, so that no search ends too early at the gap.
void RowIndex::EraseSlot(std::size_t slot)
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t gap = slot;
    for (std::size_t i = (gap + 1) & mask; slots_[i] != noRow; i = (i + 1) & mask) {
        const std::size_t home = nodes_[slots_[i]].Hash & mask;
        if (((i - home) & mask) >= ((i - gap) & mask)) {
            slots_[gap] = slots_[i];
            gap = i;
        }
    }
    slots_[gap] = noRow;
    --heads_;
}

std::size_t RowIndex::MemoryBytes() const
{
    return nodes_.capacity() * sizeof(Node) + slots_.capacity() * sizeof(RowId);
}

} // namespace tavo
