#include "toolkit/row_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace tavo {
namespace {

RowOrder OrderOf(int count)
{
    RowOrder order;
    for (int i = 0; i < count; ++i)
        order.Insert(i + 1, static_cast<RowId>(i));
    return order;
}

std::vector<RowId> RowsOf(const RowOrder& order)
{
    std::vector<RowId> rows;
    order.ForEach([&](RowId row) { rows.push_back(row); });
    return rows;
}

TEST(RowOrder, Rows_stand_where_they_were_put)
{
    const RowOrder order = OrderOf(5000);
    EXPECT_EQ(order.Count(), 5000);
    for (int i = 5000; i >= 1; i -= 7) {
        EXPECT_EQ(order.At(i), static_cast<RowId>(i - 1));
        EXPECT_EQ(order.PositionOf(static_cast<RowId>(i - 1)), i);
    }
    EXPECT_EQ(order.PositionOf(5000), 0);
    EXPECT_EQ(order.PositionOf(noRow), 0);
}

TEST(RowOrder, A_position_between_leaves_out_both_ends)
{
    const RowOrder order = OrderOf(1000);
    EXPECT_EQ(order.PositionBetween(499, 499, 501), 500);
    EXPECT_EQ(order.PositionBetween(499, 500, 501), 0);
    EXPECT_EQ(order.PositionBetween(499, 499, 500), 0);
    EXPECT_EQ(order.PositionBetween(499, 0, 1001), 500);
    EXPECT_EQ(order.PositionBetween(499, 900, 1001), 0);
    EXPECT_EQ(order.PositionBetween(499, 0, 20), 0);
}

TEST(RowOrder, Marks_go_with_their_rows_into_another_order)
{
    RowOrder order = OrderOf(1000);
    order.Mark(10, true);
    order.Mark(990, true);
    std::vector<RowId> rows = RowsOf(order);
    std::reverse(rows.begin(), rows.end());
    order.Assign(rows);
    EXPECT_EQ(order.NextMarked(0), 10);
    EXPECT_EQ(order.NextMarked(10), 990);
    EXPECT_EQ(order.NextMarked(990), 0);
    EXPECT_EQ(order.MarkedCount(), 2);
}

TEST(RowOrder, Marking_all_tells_where_marks_have_changed)
{
    RowOrder order = OrderOf(1000);
    order.Mark(0, true);
    order.Mark(999, true);
    RowRange changed = order.MarkAll(true);
    EXPECT_EQ(changed.First, 2);
    EXPECT_EQ(changed.Last, 999);
    EXPECT_TRUE(order.MarkAll(true).Empty());
    order.InvertMarks();
    EXPECT_EQ(order.MarkedCount(), 0);
    EXPECT_TRUE(order.MarkAll(false).Empty());
}

TEST(RowOrder, Thinned_out_rows_give_back_memory)
{
    RowOrder order = OrderOf(100000);
    const std::size_t before = order.MemoryBytes();
    for (int i = 100000; i >= 1; --i) {
        if (i % 50 != 0)
            order.Erase(i);
    }
    EXPECT_EQ(order.Count(), 2000);
    EXPECT_LT(order.MemoryBytes(), before * 7 / 10);
    for (int i = 1; i <= 2000; ++i)
        ASSERT_EQ(order.At(i), static_cast<RowId>(i * 50 - 1));
}

class Model {
public:
    std::vector<RowId> Rows;
    std::vector<bool> Marks = std::vector<bool>(10000);

    void Insert(int position, RowId row)
    {
        Rows.insert(Rows.begin() + (position - 1), row);
        Marks[row] = false;
    }
    void Erase(int position) { Rows.erase(Rows.begin() + (position - 1)); }
    int NextMarked(int after) const
    {
        for (std::size_t i = static_cast<std::size_t>(after); i < Rows.size(); ++i)
            if (Marks[Rows[i]])
                return static_cast<int>(i) + 1;
        return 0;
    }
};

// Long phases of growing and of shrinking, at random places and in walks.
TEST(RowOrder, Random_changes_agree_with_a_vector)
{
    RowOrder order;
    Model model;
    std::vector<RowId> unused;
    for (RowId row = 0; row < 10000; ++row)
        unused.push_back(row);
    std::mt19937 random(23);
    const auto below = [&](int limit) { return static_cast<int>(random() % unsigned(limit)); };
    int walk = 1;
    for (int step = 0; step < 60000; ++step) {
        const bool grows = step / 6000 % 2 == 0;
        const int count = order.Count();
        walk = step % 700 == 0 ? below(count + 1) + 1 : std::min(walk + below(2), count + 1);
        const int position = step / 1500 % 2 == 0 ? walk : below(count + 1) + 1;
        if ((below(10) < (grows ? 8 : 2) || count == 0) && !unused.empty()) {
            order.Insert(position, unused.back());
            model.Insert(position, unused.back());
            unused.pop_back();
        } else if (position <= count) {
            unused.push_back(order.At(position));
            ASSERT_EQ(unused.back(), model.Rows[static_cast<std::size_t>(position - 1)]);
            order.Erase(position);
            model.Erase(position);
        }
        if (order.Count() == 0)
            continue;
        const int probe = below(order.Count()) + 1;
        const RowId row = model.Rows[static_cast<std::size_t>(probe - 1)];
        ASSERT_EQ(order.At(probe), row) << "step " << step;
        ASSERT_EQ(order.PositionOf(row), probe) << "step " << step;
        if (below(4) == 0) {
            order.Mark(row, below(2) == 0);
            model.Marks[row] = order.Marked(row);
        }
        ASSERT_EQ(order.NextMarked(probe), model.NextMarked(probe)) << "step " << step;
        if (step % 5000 == 0) {
            ASSERT_EQ(RowsOf(order), model.Rows);
        }
    }
    EXPECT_EQ(RowsOf(order), model.Rows);
}

} // namespace
} // namespace tavo
