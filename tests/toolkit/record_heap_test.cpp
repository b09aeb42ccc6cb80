#include "toolkit/record_heap.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

namespace tavo {
namespace {

struct Block {
    char* Bytes;
    std::size_t Size;
    char Fill;
};

bool IsFilled(const Block& block)
{
    for (std::size_t i = 0; i < block.Size; ++i)
        if (block.Bytes[i] != block.Fill)
            return false;
    return true;
}

TEST(RecordHeap, Blocks_of_any_size_lie_apart_and_aligned)
{
    RecordHeap heap;
    std::vector<Block> blocks;
    std::mt19937 random(3);
    for (int step = 0; step < 30000; ++step) {
        if (blocks.empty() || random() % 5 < 3) {
            const std::size_t wanted = random() % 50 == 0 ? random() % 5000 : random() % 200;
            const std::size_t size = RecordHeap::Capacity(wanted);
            ASSERT_GE(size, wanted);
            Block block{heap.Allocate(size), size, static_cast<char>(step)};
            ASSERT_EQ(reinterpret_cast<std::uintptr_t>(block.Bytes) % 8, 0u);
            std::memset(block.Bytes, block.Fill, size);
            blocks.push_back(block);
        } else {
            std::swap(blocks[random() % blocks.size()], blocks.back());
            ASSERT_TRUE(IsFilled(blocks.back())) << "step " << step;
            heap.Free(blocks.back().Bytes, blocks.back().Size);
            blocks.pop_back();
        }
    }
    for (const Block& block : blocks)
        EXPECT_TRUE(IsFilled(block));
}

TEST(RecordHeap, Pages_that_become_empty_serve_other_sizes)
{
    RecordHeap heap;
    std::vector<char*> blocks;
    for (int i = 0; i < 20000; ++i)
        blocks.push_back(heap.Allocate(80));
    const std::size_t before = heap.MemoryBytes();
    for (char*& block : blocks) {
        char* larger = heap.Allocate(104);
        heap.Free(block, 80);
        block = larger;
    }
    EXPECT_LT(heap.MemoryBytes(), before * 14 / 10);
    for (char* block : blocks)
        heap.Free(block, 104);
    EXPECT_LT(heap.MemoryBytes(), before * 5 / 10);
    heap.Clear();
    EXPECT_EQ(heap.MemoryBytes(), 0u);
}

} // namespace
} // namespace tavo
