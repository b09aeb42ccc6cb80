#include "toolkit/sort_keys.h"

#include <algorithm>

namespace tavo {

namespace {

// Seven bytes of a key at some depth, in front of the number of bytes that the
// key still has there (8 for more): one comparison settles seven bytes, and a
// key that ends stands before one that goes on, even with a NUL.
struct Item {
    std::uint64_t Piece;
    std::uint32_t Number;
};

constexpr std::size_t pieceBytes = 7;
constexpr std::uint64_t goesOn = pieceBytes + 1;

// Items alike up to `Depth`.
struct Run {
    std::size_t First, Last, Depth;
};

// Few items are compared as wholes.
constexpr std::size_t fewItems = 12;

std::uint64_t Piece(std::string_view key, std::size_t depth)
{
    const std::size_t left = key.size() - depth;
    const std::size_t taken = std::min(left, pieceBytes);
    std::uint64_t piece = 0;
    for (std::size_t i = 0; i < taken; ++i)
        piece |= std::uint64_t{static_cast<unsigned char>(key[depth + i])} << (56 - 8 * i);
    return piece | std::min<std::uint64_t>(left, goesOn);
}

bool ItemBefore(const Item& left, const Item& right)
{
    if (left.Piece != right.Piece)
        return left.Piece < right.Piece;
    return left.Number < right.Number;
}

class Sorter {
public:
    Sorter(const SortKeys& keys, bool descending)
        : keys_(keys), flip_(descending ? ~std::uint64_t{0} : 0), items_(keys.Count())
    {
    }

    std::vector<std::uint32_t> Sort()
    {
        for (std::size_t i = 0; i < items_.size(); ++i)
            items_[i].Number = static_cast<std::uint32_t>(i);
        runs_.push_back({0, items_.size(), 0});
        while (!runs_.empty()) {
            const Run run = runs_.back();
            runs_.pop_back();
            SortRun(run);
        }
        std::vector<std::uint32_t> numbers(items_.size());
        std::transform(items_.begin(), items_.end(), numbers.begin(),
                       [](const Item& item) { return item.Number; });
        return numbers;
    }

private:
    void SortRun(const Run& run)
    {
        if (run.Last - run.First <= fewItems) {
            SortFew(run);
            return;
        }
        for (std::size_t i = run.First; i < run.Last; ++i)
            items_[i].Piece = Piece(keys_.Key(items_[i].Number), run.Depth) ^ flip_;
        const auto first = items_.begin() + static_cast<std::ptrdiff_t>(run.First);
        const auto last = items_.begin() + static_cast<std::ptrdiff_t>(run.Last);
        if (!std::is_sorted(first, last, ItemBefore))
            std::sort(first, last, ItemBefore);
        FindRuns(run);
    }

    // What is alike in a whole piece and goes on is looked at further on.
    void FindRuns(const Run& run)
    {
        std::size_t first = run.First;
        for (std::size_t i = run.First + 1; i <= run.Last; ++i) {
            if (i < run.Last && items_[i].Piece == items_[first].Piece)
                continue;
            if (i - first > 1 && ((items_[first].Piece ^ flip_) & 0xFF) == goesOn)
                runs_.push_back({first, i, run.Depth + pieceBytes});
            first = i;
        }
    }

    void SortFew(const Run& run)
    {
        const auto before = [&](const Item& left, const Item& right) {
            const int order = keys_.Key(left.Number)
                                  .substr(run.Depth)
                                  .compare(keys_.Key(right.Number).substr(run.Depth));
            return flip_ ? order > 0 : order < 0;
        };
        // By insertion, which keeps equal keys as they stand.
        for (std::size_t i = run.First + 1; i < run.Last; ++i) {
            const Item item = items_[i];
            std::size_t to = i;
            for (; to > run.First && before(item, items_[to - 1]); --to)
                items_[to] = items_[to - 1];
            items_[to] = item;
        }
    }

    const SortKeys& keys_;
    const std::uint64_t flip_;
    std::vector<Item> items_;
    std::vector<Run> runs_;
};

} // namespace

void SortKeys::Reserve(std::size_t count, std::size_t bytes)
{
    ends_.reserve(count);
    bytes_.reserve(bytes);
}

void SortKeys::Add(std::string_view text, Collation collation)
{
    Sort_Key_Append(bytes_, text, collation);
    ends_.push_back(bytes_.size());
}

std::string_view SortKeys::Key(std::size_t number) const
{
    const std::size_t begin = number == 0 ? 0 : ends_[number - 1];
    return {bytes_.data() + begin, ends_[number] - begin};
}

bool SortKeys::InOrder(bool descending) const
{
    for (std::size_t i = 1; i < Count(); ++i) {
        const int order = Key(i - 1).compare(Key(i));
        if (descending ? order < 0 : order > 0)
            return false;
    }
    return true;
}

std::vector<std::uint32_t> SortKeys::Order(bool descending) const
{
    return Sorter(*this, descending).Sort();
}

} // namespace tavo
