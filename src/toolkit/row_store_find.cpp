#include "toolkit/row_store.h"
#include "toolkit/text.h"
#include "toolkit/text_hash.h"

namespace tavo {

namespace {

// From so many rows of one text on it pays to know them by another cell, too.
constexpr int longChain = 64;
constexpr int stepsInTurn = 16;

std::uint32_t PairHash(std::uint32_t name, std::uint32_t cell)
{
    return name ^ (cell * 0x9E3779B1u);
}

bool IsSame(std::string_view left, std::string_view right)
{
    return left == right || SameText(left, right);
}

} // namespace

void RowStore::AddToNames(RowId row) const
{
    const std::string_view text = CellOf(row, 0);
    names_.Insert(row, Text_FoldHash(text),
                  [&](RowId other) { return IsSame(CellOf(other, 0), text); });
}

void RowStore::AddToPairs(RowId row) const
{
    const std::string_view text = CellOf(row, 0);
    const std::uint32_t cell = SharedCell(row, pairColumn_);
    pairs_.Insert(row, PairHash(Text_FoldHash(text), cell), [&](RowId other) {
        return SharedCell(other, pairColumn_) == cell && IsSame(CellOf(other, 0), text);
    });
}

void RowStore::Index(RowId row, int column)
{
    if (names_.Built() && column == 0)
        AddToNames(row);
    if (pairs_.Built() && (column == 0 || column == pairColumn_))
        AddToPairs(row);
}

void RowStore::Unindex(RowId row, int column)
{
    if (names_.Built() && column == 0)
        names_.Remove(row);
    if (pairs_.Built() && (column == 0 || column == pairColumn_))
        pairs_.Remove(row);
}

RowId RowStore::FirstNamed(std::string_view text) const
{
    if (!names_.Built()) {
        names_.Start(nextRow_);
        order_.ForEach([this](RowId row) { AddToNames(row); });
    }
    return names_.Find(Text_FoldHash(text),
                       [&](RowId row) { return IsSame(CellOf(row, 0), text); });
}

RowId RowStore::FirstPair(std::string_view text, int column, std::uint32_t cell) const
{
    if (!pairs_.Built()) {
        pairColumn_ = column;
        pairs_.Start(nextRow_);
        order_.ForEach([this](RowId row) { AddToPairs(row); });
    }
    return pairs_.Find(PairHash(Text_FoldHash(text), cell), [&](RowId row) {
        return SharedCell(row, column) == cell && IsSame(CellOf(row, 0), text);
    });
}

bool RowStore::ChainIsLong(RowId row) const
{
    int length = 0;
    while (row != noRow && length < longChain) {
        row = names_.Next(row);
        ++length;
    }
    return length == longChain;
}

int RowStore::FindItem(std::string_view text, int after) const
{
    if (after >= Count())
        return 0;
    RowId row = FirstNamed(text);
    int before = Count() + 1;
    int walked = after < 0 ? 0 : after;
    // The chain has no order. Where it is long the rows themselves are walked
    // in turn with it: one of the two is soon at its end.
    while (row != noRow) {
        const std::uint32_t hash = names_.HashOf(row);
        for (int i = 0; i < stepsInTurn && row != noRow; ++i, row = names_.Next(row)) {
            if (const int position = order_.PositionBetween(row, after, before))
                before = position;
        }
        for (int i = 0; i < stepsInTurn && row != noRow; ++i) {
            if (++walked >= before)
                return before > Count() ? 0 : before;
            const RowId here = order_.At(walked);
            if (names_.HashOf(here) == hash && IsSame(CellOf(here, 0), text))
                return walked;
        }
    }
    return before > Count() ? 0 : before;
}

// The lowest position before `before` of a wanted row on the chain; 0 if none.
template <class Wanted>
int RowStore::FirstOnChain(const RowIndex& index, RowId row, int before, const Wanted& wanted) const
{
    int first = 0;
    for (; row != noRow; row = index.Next(row)) {
        if (!wanted(row))
            continue;
        if (const int position = order_.PositionBetween(row, 0, before))
            before = first = position;
    }
    return first;
}

int RowStore::FindItemWhere(std::string_view text, int column, std::string_view cell,
                            bool exactFirst) const
{
    if (!HasColumn(column))
        return 0;
    const bool shared = IsShared(column);
    const std::uint32_t id = shared ? pool_.Find(cell) : 0;
    RowId row = id == TextPool::none ? noRow : FirstNamed(text);
    const RowIndex* index = &names_;
    if (shared && row != noRow && (!pairs_.Built() || pairColumn_ == column) && ChainIsLong(row)) {
        row = FirstPair(text, column, id);
        index = &pairs_;
    }
    const auto hasCell = [&](RowId other) {
        return shared ? SharedCell(other, column) == id : CellOf(other, column) == cell;
    };
    if (exactFirst) {
        const auto isExact = [&](RowId other) {
            return hasCell(other) && CellOf(other, 0) == text;
        };
        if (const int position = FirstOnChain(*index, row, Count() + 1, isExact))
            return position;
    }
    return FirstOnChain(*index, row, Count() + 1, hasCell);
}

} // namespace tavo
