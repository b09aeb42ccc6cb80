#include "toolkit/sort_keys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace tavo {
namespace {

using Texts = std::vector<std::string>;

std::vector<std::uint32_t> WantedOrder(const Texts& texts, bool descending, Collation collation)
{
    Texts keys(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        Sort_Key_Append(keys[i], texts[i], collation);
    std::vector<std::uint32_t> numbers(texts.size());
    std::iota(numbers.begin(), numbers.end(), 0u);
    std::stable_sort(numbers.begin(), numbers.end(), [&](std::uint32_t left, std::uint32_t right) {
        return descending ? keys[right] < keys[left] : keys[left] < keys[right];
    });
    return numbers;
}

void ExpectSorted(const Texts& texts)
{
    for (const Collation collation : {Collation::CodePoint, Collation::WordSort}) {
        SortKeys keys;
        for (const std::string& text : texts)
            keys.Add(text, collation);
        for (const bool descending : {false, true}) {
            const auto wanted = WantedOrder(texts, descending, collation);
            EXPECT_EQ(keys.Order(descending), wanted);
            EXPECT_EQ(keys.InOrder(descending), std::is_sorted(wanted.begin(), wanted.end()));
        }
    }
}

Texts RandomTexts(unsigned seed, std::size_t count, std::size_t letters, std::size_t longest)
{
    const std::string alphabet = std::string("aAbB-_ 1\0\xFFzZ", 12);
    std::mt19937 random(seed);
    Texts texts(count);
    for (std::string& text : texts)
        for (std::size_t i = random() % (longest + 1); i > 0; --i)
            text += alphabet[random() % letters];
    return texts;
}

TEST(SortKeys, Orders_are_those_of_a_stable_sort_by_key)
{
    ExpectSorted({});
    ExpectSorted({"one"});
    ExpectSorted({"b", "B", "a", "A", "b"});
    ExpectSorted({"a", "a", "b", "c"});
    for (const std::size_t letters : {1u, 2u, 4u, 12u})
        for (const std::size_t longest : {2u, 8u, 30u})
            ExpectSorted(RandomTexts(static_cast<unsigned>(letters), 3000, letters, longest));
}

TEST(SortKeys, A_key_that_ends_stands_before_one_that_goes_on_with_NUL)
{
    Texts texts;
    for (int i = 0; i < 40; ++i)
        texts.push_back("same" + std::string(static_cast<std::size_t>(40 - i), '\0'));
    ExpectSorted(texts);
}

TEST(SortKeys, Very_long_texts_that_differ_at_their_end_are_told_apart)
{
    Texts texts;
    for (int i = 0; i < 30; ++i)
        texts.push_back(std::string(200000, 'x') + static_cast<char>('z' - i % 13));
    ExpectSorted(texts);
}

} // namespace
} // namespace tavo
