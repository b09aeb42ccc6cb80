#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tavo {

using RowId = std::uint32_t;
constexpr RowId noRow = 0xFFFFFFFF;

// First and last position that something touched; both 0: nothing.
struct RowRange {
    int First = 0, Last = 0;
    bool Empty() const { return First == 0; }
    void Include(int first, int last)
    {
        First = First == 0 || first < First ? first : First;
        Last = last > Last ? last : Last;
    }
};

// In which order rows stand, and which of them are marked. Rows are small
// numbers that somebody else gives; positions count from 1. Rows lie in small
// chunks with a tree of sums over them, so every single step costs no more
// than a chunk, and steps side by side cost next to nothing.
class RowOrder {
public:
    int Count() const { return count_; }
    // `position` must be one.
    RowId At(int position) const;
    // 0 for a row that stands nowhere.
    int PositionOf(RowId row) const;
    // The same if it lies between both, which are left out; else 0.
    int PositionBetween(RowId row, int after, int before) const;

    // Before `position`, or at the end with Count() + 1. Not marked.
    void Insert(int position, RowId row);
    void Erase(int position);
    void Clear();
    // The same rows in another order; marks go with them.
    void Assign(const std::vector<RowId>& rows);
    template <class Visit>
    void ForEach(const Visit& visit) const;

    bool Marked(RowId row) const { return places_[row].Marked; }
    void Mark(RowId row, bool on); // a row that stands somewhere
    int MarkedCount() const { return marked_; }
    // The first marked position behind `after`; 0 if none.
    int NextMarked(int after) const;
    // Where marks have changed.
    RowRange MarkAll(bool on);
    void InvertMarks();

    std::size_t MemoryBytes() const;

private:
    // Below 1 KB: the heap gives such blocks without tidying itself up first.
    static constexpr int chunkSize = 248;

    struct Chunk {
        std::unique_ptr<RowId[]> Rows;
        std::uint32_t Number = 0; // in the sequence
        int Count = 0, Marked = 0;
    };
    struct Place {
        std::uint32_t Chunk : 31;
        std::uint32_t Marked : 1;
    };
    static constexpr std::uint32_t nowhere = 0x7FFFFFFF;
    // A chunk by its number, and how many rows stand before it.
    struct Spot {
        std::uint32_t Number = 0;
        int Before = 0;
    };

    Chunk& InSequence(std::uint32_t number) { return chunks_[sequence_[number]]; }
    const Chunk& InSequence(std::uint32_t number) const { return chunks_[sequence_[number]]; }
    const Chunk* ChunkOf(RowId row) const;
    Spot Locate(int position) const;
    Spot Descend(int position) const;
    Spot SpotFor(int position);
    int Before(std::uint32_t number) const;
    void AddToTree(std::uint32_t number, int change);
    void Renumber();
    void NewChunk(std::uint32_t number);
    std::uint32_t LastWithRoom();
    void DropChunk(std::uint32_t number);
    void Split(std::uint32_t number);
    void MergeSmall(std::uint32_t number);
    void Append(std::uint32_t into, std::uint32_t from, int first);

    std::vector<Chunk> chunks_;
    std::vector<std::uint32_t> sequence_, freeChunks_;
    std::vector<int> tree_;     // Fenwick: [i] sums the chunks that i stands for
    std::vector<Place> places_; // by row
    int count_ = 0, marked_ = 0;
    mutable Spot hint_; // always a true spot while there are rows
};

template <class Visit>
void RowOrder::ForEach(const Visit& visit) const
{
    for (const std::uint32_t index : sequence_) {
        const Chunk& chunk = chunks_[index];
        for (int i = 0; i < chunk.Count; ++i)
            visit(chunk.Rows[i]);
    }
}

} // namespace tavo
