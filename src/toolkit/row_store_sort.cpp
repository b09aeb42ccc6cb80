#include "toolkit/row_store.h"
#include "toolkit/sort_keys.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tavo {

namespace {

constexpr std::size_t usualKeyBytes = 24;
constexpr std::uint32_t noRank = 0xFFFFFFFF;

} // namespace

std::vector<RowId> RowStore::InOrder() const
{
    std::vector<RowId> rows;
    rows.reserve(static_cast<std::size_t>(Count()));
    order_.ForEach([&](RowId row) { rows.push_back(row); });
    return rows;
}

std::vector<RowId> RowStore::SortedRows(int column, bool descending, Collation collation) const
{
    if (!HasColumn(column))
        return {};
    return IsShared(column) ? SortedByRank(column, descending, collation)
                            : SortedByText(column, descending, collation);
}

// Rows lie all over the memory: each step is taken for many before the next, so
// that the waits run side by side.
void RowStore::AddKeys(const std::vector<RowId>& rows, int column, Collation collation,
                       SortKeys& keys) const
{
    std::array<RowRecord, 64> records;
    std::array<std::string_view, 64> cells;
    for (std::size_t at = 0; at < rows.size(); at += cells.size()) {
        const std::size_t many = std::min(cells.size(), rows.size() - at);
        for (std::size_t i = 0; i < many; ++i)
            records[i] = RowOf(rows[at + i]).Record;
        for (std::size_t i = 0; i < many; ++i)
            cells[i] = records[i].Field(firstCell + static_cast<std::size_t>(column));
        for (std::size_t i = 0; i < many; ++i)
            keys.Add(cells[i], collation);
    }
}

std::vector<RowId> RowStore::SortedByText(int column, bool descending, Collation collation) const
{
    const std::vector<RowId> rows = InOrder();
    SortKeys keys;
    keys.Reserve(rows.size(), rows.size() * usualKeyBytes);
    AddKeys(rows, column, collation, keys);
    if (keys.InOrder(descending))
        return {};
    std::vector<RowId> sorted = keys.Order(descending);
    for (RowId& row : sorted)
        row = rows[row];
    return sorted;
}

// The rank of each text of the pool among those of `ids`; texts of equal keys
// share one. Downwards the first rank is that of the last text.
std::vector<std::uint32_t> RowStore::PoolRanks(const std::vector<std::uint32_t>& ids,
                                               bool descending, Collation collation) const
{
    std::vector<std::uint32_t> ranks(pool_.IdLimit(), noRank), distinct;
    SortKeys keys;
    for (const std::uint32_t id : ids) {
        if (ranks[id] != noRank)
            continue;
        ranks[id] = 0;
        distinct.push_back(id);
        keys.Add(pool_.Text(id), collation);
    }
    const std::vector<std::uint32_t> order = keys.Order(descending);
    std::uint32_t rank = 0;
    for (std::size_t i = 1; i < order.size(); ++i) {
        rank += keys.Key(order[i - 1]) != keys.Key(order[i]);
        ranks[distinct[order[i]]] = rank;
    }
    return ranks;
}

// Few texts: each row goes at once to its place among those of its rank.
std::vector<RowId> RowStore::SortedByRank(int column, bool descending, Collation collation) const
{
    const std::vector<RowId> rows = InOrder();
    std::vector<std::uint32_t> ids(rows.size());
    std::transform(rows.begin(), rows.end(), ids.begin(),
                   [&](RowId row) { return SharedCell(row, column); });
    const std::vector<std::uint32_t> ranks = PoolRanks(ids, descending, collation);
    for (std::uint32_t& id : ids)
        id = ranks[id];
    if (std::is_sorted(ids.begin(), ids.end()))
        return {};
    std::vector<std::size_t> next(pool_.IdLimit() + 1);
    for (const std::uint32_t rank : ids)
        ++next[rank + std::size_t{1}];
    for (std::size_t i = 1; i < next.size(); ++i)
        next[i] += next[i - 1];
    std::vector<RowId> sorted(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        sorted[next[ids[i]]++] = rows[i];
    return sorted;
}

} // namespace tavo
