#include "toolkit/row_index.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <vector>

namespace tavo {
namespace {

// Rows with a value each; many values share a hash.
class Ground {
    std::uint32_t HashOf(int value) const { return static_cast<std::uint32_t>(value) % hashes_; }
    auto Same(int value) const
    {
        return [this, value](RowId row) { return Values[row] == value; };
    }

public:
    explicit Ground(std::uint32_t hashes) : hashes_(hashes) { Index.Start(16); }

    RowIndex Index;
    std::vector<int> Values = std::vector<int>(2000, -1);

    void Insert(RowId row, int value)
    {
        Values[row] = value;
        Index.Insert(row, HashOf(value), Same(value));
    }
    void Remove(RowId row)
    {
        Index.Remove(row);
        Values[row] = -1;
    }
    std::multiset<RowId> Find(int value) const
    {
        std::multiset<RowId> rows;
        for (RowId row = Index.Find(HashOf(value), Same(value)); row != noRow;
             row = Index.Next(row))
            rows.insert(row);
        return rows;
    }
    std::multiset<RowId> Wanted(int value) const
    {
        std::multiset<RowId> rows;
        for (RowId row = 0; row < Values.size(); ++row)
            if (Values[row] == value)
                rows.insert(row);
        return rows;
    }

private:
    std::uint32_t hashes_;
};

TEST(RowIndex, An_index_not_begun_finds_nothing)
{
    const RowIndex index;
    EXPECT_FALSE(index.Built());
    EXPECT_EQ(index.Find(1, [](RowId) { return true; }), noRow);
    EXPECT_EQ(index.MemoryBytes(), 0u);
}

TEST(RowIndex, Random_changes_agree_with_a_walk_whatever_the_hashes)
{
    for (const std::uint32_t hashes : {1u, 7u, 100000u}) {
        SCOPED_TRACE(hashes);
        Ground ground(hashes);
        std::mt19937 random(hashes);
        for (int step = 0; step < 5000; ++step) {
            const RowId row = random() % 2000;
            const int value = static_cast<int>(random() % 120);
            if (ground.Values[row] >= 0)
                ground.Remove(row);
            else
                ground.Insert(row, value);
            if (step % 10 == 0) {
                ASSERT_EQ(ground.Find(value), ground.Wanted(value)) << "step " << step;
            }
        }
    }
}

} // namespace
} // namespace tavo
