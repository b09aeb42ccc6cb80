#include "toolkit/text_pool.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace tavo {
namespace {

TEST(TextPool, The_same_text_has_one_number)
{
    TextPool pool;
    const std::uint32_t jpg = pool.Acquire("jpg");
    EXPECT_EQ(pool.Acquire("jpg"), jpg);
    EXPECT_NE(pool.Acquire("JPG"), jpg);
    EXPECT_EQ(pool.Find("jpg"), jpg);
    EXPECT_EQ(pool.Text(jpg), "jpg");
}

TEST(TextPool, The_empty_text_is_number_0_and_always_there)
{
    TextPool pool;
    EXPECT_EQ(pool.Find(""), 0u);
    EXPECT_EQ(pool.Acquire(""), 0u);
    pool.Release(0);
    pool.Release(0);
    EXPECT_EQ(pool.Text(0), "");
}

TEST(TextPool, A_text_goes_with_the_last_that_uses_it)
{
    TextPool pool;
    const std::uint32_t id = pool.Acquire("jpg");
    pool.Acquire("jpg");
    pool.Release(id);
    EXPECT_EQ(pool.Find("jpg"), id);
    pool.Release(id);
    EXPECT_EQ(pool.Find("jpg"), TextPool::none);
    EXPECT_EQ(pool.Acquire("gif"), id) << "the number is given anew";
    EXPECT_EQ(pool.Find("jpg"), TextPool::none);
}

TEST(TextPool, Views_hold_while_other_texts_come)
{
    TextPool pool;
    const std::string_view first = pool.Text(pool.Acquire("short"));
    for (int i = 0; i < 1000; ++i)
        pool.Acquire("text " + std::to_string(i));
    EXPECT_EQ(first, "short");
}

TEST(TextPool, Random_use_agrees_with_a_map_of_counts)
{
    TextPool pool;
    std::map<std::string, std::pair<std::uint32_t, int>> model;
    std::mt19937 random(5);
    for (int step = 0; step < 20000; ++step) {
        const std::string text = "t" + std::to_string(random() % 300);
        auto& [id, uses] = model[text];
        if (random() % 2 == 0) {
            const std::uint32_t given = pool.Acquire(text);
            ASSERT_TRUE(uses == 0 || given == id) << text;
            id = given;
            ++uses;
        } else if (uses > 0) {
            pool.Release(id);
            --uses;
        }
        ASSERT_EQ(pool.Find(text), uses > 0 ? id : TextPool::none) << text;
    }
    for (const auto& [text, entry] : model) {
        if (entry.second > 0) {
            EXPECT_EQ(pool.Text(entry.first), text);
        }
    }
}

} // namespace
} // namespace tavo
