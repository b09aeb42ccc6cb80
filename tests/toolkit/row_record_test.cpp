#include "toolkit/row_record.h"

#include "toolkit/record_heap.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace tavo {
namespace {

TEST(RowRecord, Fields_never_written_are_empty)
{
    RecordHeap heap;
    RowRecord record;
    EXPECT_EQ(record.Field(0), "");
    record.SetField(heap, 2, "two");
    EXPECT_EQ(record.Field(0), "");
    EXPECT_EQ(record.Field(2), "two");
    EXPECT_EQ(record.Field(3), "");
    EXPECT_EQ(record.Field(70000), "");
}

TEST(RowRecord, A_piece_of_the_record_can_be_written_into_it)
{
    RecordHeap heap;
    const std::string_view fields[] = {"abcdefgh", "x", "tail"};
    RowRecord record(heap, fields, 3);
    record.SetField(heap, 0, record.Field(0).substr(2, 3));
    EXPECT_EQ(record.Field(0), "cde");
    record.SetField(heap, 1, record.Field(2));
    record.SetField(heap, 1, record.Field(1).substr(1));
    EXPECT_EQ(record.Field(1), "ail");
    EXPECT_EQ(record.Field(2), "tail");
}

TEST(RowRecord, Long_texts_widen_the_record_and_short_ones_narrow_it)
{
    RecordHeap heap;
    RowRecord record;
    const std::string large(1 << 20, 'x');
    record.SetField(heap, 0, "a");
    record.SetField(heap, 1, large);
    record.SetField(heap, 2, "c");
    EXPECT_EQ(record.Field(1), large);
    EXPECT_GT(heap.MemoryBytes(), large.size());
    record.SetField(heap, 1, "b");
    EXPECT_LT(heap.MemoryBytes(), large.size());
    EXPECT_EQ(std::string(record.Field(0)) + std::string(record.Field(1)), "ab");
    EXPECT_EQ(record.Field(2), "c");
}

TEST(RowRecord, Random_writes_agree_with_a_vector_of_texts)
{
    RecordHeap heap;
    RowRecord record;
    std::vector<std::string> model(9);
    std::mt19937 random(11);
    for (int step = 0; step < 20000; ++step) {
        const std::size_t number = random() % model.size();
        const std::size_t size = random() % 100 == 0 ? random() % 70000 : random() % 40;
        model[number] = std::string(size, static_cast<char>(random()));
        record.SetField(heap, number, model[number]);
        for (std::size_t i = 0; i < model.size(); ++i)
            ASSERT_EQ(record.Field(i), model[i]) << "step " << step << " field " << i;
    }
    record.Free(heap);
    EXPECT_EQ(record.Field(0), "");
}

} // namespace
} // namespace tavo
