#include "toolkit/row_order.h"

#include <algorithm>
#include <bit>

namespace tavo {

const RowOrder::Chunk* RowOrder::ChunkOf(RowId row) const
{
    if (row >= places_.size() || places_[row].Chunk == nowhere)
        return nullptr;
    return &chunks_[places_[row].Chunk];
}

RowId RowOrder::At(int position) const
{
    const Spot spot = Locate(position);
    return InSequence(spot.Number).Rows[position - spot.Before - 1];
}

int RowOrder::PositionOf(RowId row) const
{
    return PositionBetween(row, 0, count_ + 1);
}

int RowOrder::PositionBetween(RowId row, int after, int before) const
{
    const Chunk* chunk = ChunkOf(row);
    if (chunk == nullptr)
        return 0;
    const int start = Before(chunk->Number);
    if (start + chunk->Count <= after || start + 1 >= before)
        return 0;
    const RowId* rows = chunk->Rows.get();
    const int offset = static_cast<int>(std::find(rows, rows + chunk->Count, row) - rows);
    const int position = start + offset + 1;
    return position > after && position < before ? position : 0;
}

// The sum over all chunks before this one.
int RowOrder::Before(std::uint32_t number) const
{
    int sum = 0;
    for (std::uint32_t i = number; i > 0; i &= i - 1)
        sum += tree_[i];
    return sum;
}

RowOrder::Spot RowOrder::Locate(int position) const
{
    const Chunk& chunk = InSequence(hint_.Number);
    const int offset = position - hint_.Before;
    if (offset > 0 && offset <= chunk.Count)
        return hint_;
    if (offset == chunk.Count + 1)
        hint_ = {hint_.Number + 1, hint_.Before + chunk.Count};
    else if (offset == 0)
        hint_ = {hint_.Number - 1, hint_.Before - InSequence(hint_.Number - 1).Count};
    else
        hint_ = Descend(position);
    return hint_;
}

RowOrder::Spot RowOrder::Descend(int position) const
{
    Spot spot;
    const auto size = static_cast<std::uint32_t>(sequence_.size());
    for (std::uint32_t step = std::bit_floor(size); step > 0; step /= 2) {
        const std::uint32_t next = spot.Number + step;
        if (next <= size && spot.Before + tree_[next] < position)
            spot = {next, spot.Before + tree_[next]};
    }
    return spot;
}

void RowOrder::AddToTree(std::uint32_t number, int change)
{
    for (std::uint32_t i = number + 1; i < tree_.size(); i += i & (0 - i))
        tree_[i] += change;
}

void RowOrder::Renumber()
{
    tree_.assign(sequence_.size() + 1, 0);
    for (std::uint32_t i = 1; i < tree_.size(); ++i) {
        Chunk& chunk = InSequence(i - 1);
        chunk.Number = i - 1;
        tree_[i] += chunk.Count;
        const std::uint32_t parent = i + (i & (0 - i));
        if (parent < tree_.size())
            tree_[parent] += tree_[i];
    }
    hint_ = Spot();
}

void RowOrder::NewChunk(std::uint32_t number)
{
    auto index = static_cast<std::uint32_t>(chunks_.size());
    if (freeChunks_.empty()) {
        chunks_.emplace_back();
    } else {
        index = freeChunks_.back();
        freeChunks_.pop_back();
    }
    chunks_[index].Rows.reset(new RowId[chunkSize]);
    sequence_.insert(sequence_.begin() + number, index);
}

void RowOrder::DropChunk(std::uint32_t number)
{
    freeChunks_.push_back(sequence_[number]);
    InSequence(number) = Chunk();
    sequence_.erase(sequence_.begin() + number);
}

// Hands the rows of `from`, beginning with `first`, to the end of `into`.
void RowOrder::Append(std::uint32_t into, std::uint32_t from, int first)
{
    Chunk& target = InSequence(into);
    Chunk& source = InSequence(from);
    for (int i = first; i < source.Count; ++i) {
        const RowId row = source.Rows[i];
        target.Rows[target.Count++] = row;
        places_[row].Chunk = sequence_[into];
        target.Marked += places_[row].Marked;
        source.Marked -= places_[row].Marked;
    }
    source.Count = first;
}

void RowOrder::Split(std::uint32_t number)
{
    NewChunk(number + 1);
    Append(number + 1, number, chunkSize / 2);
    Renumber();
}

void RowOrder::MergeSmall(std::uint32_t number)
{
    const int count = InSequence(number).Count;
    if (count > chunkSize / 4)
        return;
    // Not quite full, so that the next insert does not split again.
    const int limit = chunkSize * 3 / 4;
    const auto fits = [&](std::uint32_t other) {
        return other < sequence_.size() && count + InSequence(other).Count <= limit;
    };
    std::uint32_t into = number;
    if (number > 0 && fits(number - 1))
        into = number - 1;
    else if (count > 0 && !fits(number + 1))
        return;
    if (count > 0) {
        Append(into, into + 1, 0);
        DropChunk(into + 1);
    } else {
        DropChunk(number);
    }
    Renumber();
}

// Rows mostly come at the end: there the tree grows by one sum and the other
// chunks keep their numbers.
std::uint32_t RowOrder::LastWithRoom()
{
    const auto size = static_cast<std::uint32_t>(sequence_.size());
    if (size > 0 && InSequence(size - 1).Count < chunkSize)
        return size - 1;
    NewChunk(size);
    InSequence(size).Number = size;
    if (tree_.empty())
        tree_.push_back(0);
    tree_.push_back(Before(size) - Before(size & (size + 1)));
    return size;
}

// Where a row that is to stand at `position` goes in; makes the room.
RowOrder::Spot RowOrder::SpotFor(int position)
{
    if (position > count_) {
        const std::uint32_t last = LastWithRoom();
        return {last, count_ - InSequence(last).Count};
    }
    Spot spot = Locate(position);
    if (InSequence(spot.Number).Count == chunkSize) {
        Split(spot.Number);
        spot = Locate(position);
    }
    return spot;
}

void RowOrder::Insert(int position, RowId row)
{
    const Spot spot = SpotFor(position);
    Chunk& chunk = InSequence(spot.Number);
    RowId* at = chunk.Rows.get() + (position - spot.Before - 1);
    std::copy_backward(at, chunk.Rows.get() + chunk.Count, chunk.Rows.get() + chunk.Count + 1);
    *at = row;
    ++chunk.Count;
    ++count_;
    AddToTree(spot.Number, 1);
    if (row >= places_.size())
        places_.resize(row + std::size_t{1}, Place{nowhere, 0});
    places_[row] = {sequence_[spot.Number], 0};
}

void RowOrder::Erase(int position)
{
    const Spot spot = Locate(position);
    Chunk& chunk = InSequence(spot.Number);
    RowId* at = chunk.Rows.get() + (position - spot.Before - 1);
    const RowId row = *at;
    if (places_[row].Marked)
        Mark(row, false);
    places_[row].Chunk = nowhere;
    std::copy(at + 1, chunk.Rows.get() + chunk.Count, at);
    --chunk.Count;
    --count_;
    AddToTree(spot.Number, -1);
    MergeSmall(spot.Number);
}

void RowOrder::Clear()
{
    *this = RowOrder();
}

void RowOrder::Assign(const std::vector<RowId>& rows)
{
    auto next = rows.begin();
    for (const std::uint32_t index : sequence_) {
        Chunk& chunk = chunks_[index];
        chunk.Marked = 0;
        for (int i = 0; i < chunk.Count; ++i, ++next) {
            chunk.Rows[i] = *next;
            places_[*next].Chunk = index;
            chunk.Marked += places_[*next].Marked;
        }
    }
}

void RowOrder::Mark(RowId row, bool on)
{
    Place& place = places_[row];
    if (place.Marked == on)
        return;
    place.Marked = on;
    chunks_[place.Chunk].Marked += on ? 1 : -1;
    marked_ += on ? 1 : -1;
}

int RowOrder::NextMarked(int after) const
{
    if (marked_ == 0 || after >= count_)
        return 0;
    Spot spot = Locate(std::max(after, 0) + 1);
    int offset = std::max(after, 0) - spot.Before;
    while (spot.Number < sequence_.size()) {
        const Chunk& chunk = InSequence(spot.Number);
        for (int i = offset; chunk.Marked > 0 && i < chunk.Count; ++i) {
            if (places_[chunk.Rows[i]].Marked)
                return spot.Before + i + 1;
        }
        spot = {spot.Number + 1, spot.Before + chunk.Count};
        offset = 0;
    }
    return 0;
}

RowRange RowOrder::MarkAll(bool on)
{
    RowRange changed;
    int before = 0;
    for (const std::uint32_t index : sequence_) {
        Chunk& chunk = chunks_[index];
        const int wanted = on ? chunk.Count : 0;
        for (int i = 0; chunk.Marked != wanted; ++i) {
            Place& place = places_[chunk.Rows[i]];
            if (place.Marked == on)
                continue;
            place.Marked = on;
            chunk.Marked += on ? 1 : -1;
            changed.Include(before + i + 1, before + i + 1);
        }
        before += chunk.Count;
    }
    marked_ = on ? count_ : 0;
    return changed;
}

void RowOrder::InvertMarks()
{
    ForEach([this](RowId row) { places_[row].Marked ^= 1; });
    for (Chunk& chunk : chunks_)
        chunk.Marked = chunk.Count - chunk.Marked;
    marked_ = count_ - marked_;
}

std::size_t RowOrder::MemoryBytes() const
{
    const std::size_t rows = sequence_.size() * (chunkSize * sizeof(RowId) + 16);
    const std::size_t numbers = sequence_.capacity() + freeChunks_.capacity() + tree_.capacity();
    return rows + chunks_.capacity() * sizeof(Chunk) + numbers * sizeof(std::uint32_t)
           + places_.capacity() * sizeof(Place);
}

} // namespace tavo
