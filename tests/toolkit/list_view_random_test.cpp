#include "toolkit/form.h"
#include "toolkit/list_view.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace tavo {
namespace {

constexpr int columns = 3;

struct ModelRow {
    int Number = 0;
    std::string Cells[columns], Icon, Key, Tag;
    bool Selected = false;
};

// A list as a vector, by the plainest means. Positions from 1.
class Model {
public:
    std::vector<ModelRow> Rows;
    int Item = 0; // number of the SelectedItem; 0 none

    int Count() const { return static_cast<int>(Rows.size()); }
    ModelRow& At(int position) { return Rows[static_cast<std::size_t>(position - 1)]; }
    const ModelRow& At(int position) const { return Rows[static_cast<std::size_t>(position - 1)]; }
    int PositionOf(int number) const
    {
        for (int i = 1; i <= Count(); ++i)
            if (At(i).Number == number)
                return i;
        return 0;
    }
    void Remove(int position)
    {
        const bool wasItem = At(position).Number == Item;
        Rows.erase(Rows.begin() + (position - 1));
        if (wasItem)
            Item = Rows.empty() ? 0 : At(std::min(position, Count())).Number;
    }
    void Move(int from, int to)
    {
        if (from == to)
            return;
        ModelRow row = At(from);
        row.Selected = false;
        Rows.erase(Rows.begin() + (from - 1));
        Rows.insert(Rows.begin() + (to - 1), row);
    }
    void Sort(int column, bool descending, Collation order)
    {
        const auto key = [&](const ModelRow& row) {
            std::string text;
            Sort_Key_Append(text, row.Cells[column], order);
            return text;
        };
        const auto before = [&](const ModelRow& left, const ModelRow& right) {
            return descending ? key(right) < key(left) : key(left) < key(right);
        };
        std::stable_sort(Rows.begin(), Rows.end(), before);
    }
    int Find(const std::string& text, int after) const
    {
        for (int i = after + 1; i <= Count(); ++i)
            if (SameText(At(i).Cells[0], text))
                return i;
        return 0;
    }
    int FindWhere(const std::string& text, int column, const std::string& cell, bool exact) const
    {
        int found = 0;
        for (int i = Count(); i >= 1; --i) {
            if (!SameText(At(i).Cells[0], text) || At(i).Cells[column] != cell)
                continue;
            const bool better =
                !exact || found == 0 || At(i).Cells[0] == text || At(found).Cells[0] != text;
            found = better ? i : found;
        }
        return found;
    }
};

// A host that believes what it is told: its own picture of texts and selection
// is put right by the notices alone.
class Mirror : public ListObserver {
public:
    explicit Mirror(const ListView& list) : list_(list) {}

    void BeginInsert(int first, int last) override { Open(first, last); }
    void EndInsert() override
    {
        Close();
        for (int i = first_; i <= last_; ++i)
            rows_.insert(rows_.begin() + (i - 1), Read(i));
    }
    void BeginRemove(int first, int last) override { Open(first, last); }
    void EndRemove() override
    {
        Close();
        rows_.erase(rows_.begin() + (first_ - 1), rows_.begin() + last_);
    }
    void BeginReset() override { Open(0, 0); }
    void EndReset() override
    {
        Close();
        rows_.clear();
        for (int i = 1; i <= list_.Count(); ++i)
            rows_.push_back(Read(i));
    }
    void CellsChanged(int first, int last) override { ReadAgain(first, last); }
    void SelectionChanged(int first, int last) override { ReadAgain(first, last); }
    void SelectedItemChanged() override {}
    void ColumnsChanged() override {}
    void ShowRow(int) override {}

    bool IsTrue() const
    {
        if (open_ || static_cast<int>(rows_.size()) != list_.Count())
            return false;
        for (int i = 1; i <= list_.Count(); ++i)
            if (rows_[static_cast<std::size_t>(i - 1)] != Read(i))
                return false;
        return true;
    }

private:
    void Open(int first, int last)
    {
        EXPECT_FALSE(open_);
        open_ = true;
        first_ = first;
        last_ = last;
    }
    void Close()
    {
        EXPECT_TRUE(open_);
        open_ = false;
    }
    void ReadAgain(int first, int last)
    {
        EXPECT_FALSE(open_);
        EXPECT_TRUE(first >= 1 && first <= last && last <= list_.Count());
        for (int i = first; i <= last; ++i)
            rows_[static_cast<std::size_t>(i - 1)] = Read(i);
    }
    std::string Read(int i) const
    {
        std::string text = list_.Selected(i) ? "*" : " ";
        for (int column = 0; column < columns; ++column)
            text += std::string(list_.Cell(i, column)) + "|";
        return text + std::string(list_.Icon(i));
    }

    const ListView& list_;
    std::vector<std::string> rows_;
    bool open_ = false;
    int first_ = 0, last_ = 0;
};

class Walk {
public:
    Walk(unsigned seed, int most) : random_(seed), most_(most), mirror_(list_)
    {
        for (int column = 0; column < columns; ++column)
            list_.AddColumn(
                {"c" + std::to_string(column), "", 1440, false, SortMark::None, column == 1});
        list_.SetObserver(&mirror_);
    }
    ~Walk() { list_.SetObserver(nullptr); }

    void Step()
    {
        if (!list_.Frozen() && Below(20) == 0)
            list_.Freeze(true);
        const int kind = Below(100);
        if (list_.Count() == 0 || (kind < 40 && list_.Count() < most_))
            Add();
        else if (kind < 55)
            Remove();
        else if (kind < 70)
            Write();
        else if (kind < 85)
            Select();
        else if (kind < 92)
            Move();
        else
            Rare();
        if (list_.Frozen() && Below(8) == 0)
            list_.Freeze(false);
    }

    void Check()
    {
        Find();
        ASSERT_EQ(list_.Count(), model_.Count());
        ASSERT_EQ(list_.SelectedItem(), model_.PositionOf(model_.Item));
    }

    void CheckAll()
    {
        int selected = 0;
        for (int i = 1; i <= model_.Count(); ++i) {
            const ModelRow& row = model_.At(i);
            for (int column = 0; column < columns; ++column)
                ASSERT_EQ(list_.Cell(i, column), row.Cells[column]) << "row " << i;
            ASSERT_EQ(list_.Icon(i), row.Icon) << "row " << i;
            ASSERT_EQ(list_.Key(i), row.Key) << "row " << i;
            ASSERT_EQ(list_.Tag(i), row.Tag) << "row " << i;
            ASSERT_EQ(list_.Selected(i), row.Selected) << "row " << i;
            selected += row.Selected;
        }
        ASSERT_EQ(list_.SelCount(), selected);
        ASSERT_TRUE(list_.Frozen() || mirror_.IsTrue());
    }

private:
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    int Place() { return Below(list_.Count()) + 1; }
    // Few names, so that many rows share one; in any case, some beyond ASCII.
    std::string Name()
    {
        const int number = Below(8) == 0 ? Below(most_) : Below(5);
        std::string name = "name " + std::to_string(number);
        if (Below(2) == 0)
            name[static_cast<std::size_t>(Below(4))] -= 32;
        if (number % 3 == 0)
            name += Below(2) == 0 ? "\xC3\x84" : "\xC3\xA4";
        return Below(40) == 0 ? std::string(static_cast<std::size_t>(Below(300)), 'x') : name;
    }
    std::string CellText(int column)
    {
        return column == 0 ? Name() : "p" + std::to_string(Below(9));
    }

    void Add()
    {
        const int at = Below(2) == 0 ? 0 : Below(list_.Count() + 1) + 1;
        ModelRow row;
        row.Number = ++numbers_;
        row.Cells[0] = Name();
        if (at == 0) {
            row.Cells[1] = CellText(1);
            row.Icon = "PMF"[Below(3)];
            const std::string_view cells[] = {row.Cells[0], row.Cells[1]};
            EXPECT_EQ(list_.AddRow(cells, 2, row.Icon), model_.Count() + 1);
            model_.Rows.push_back(row);
        } else {
            EXPECT_EQ(list_.Add(row.Cells[0], at), at);
            model_.Rows.insert(model_.Rows.begin() + (at - 1), row);
        }
    }
    void Remove()
    {
        const int position = Place();
        EXPECT_TRUE(list_.Remove(position));
        model_.Remove(position);
    }
    void Write()
    {
        const int position = Place();
        ModelRow& row = model_.At(position);
        const int what = Below(6);
        if (what < columns) {
            row.Cells[what] = CellText(what);
            list_.SetCell(position, what, row.Cells[what]);
        } else if (what == 3) {
            row.Icon = "icon" + std::to_string(Below(4));
            list_.SetIcons(position, row.Icon, "small");
        } else if (what == 4) {
            row.Key = Name();
            list_.SetKey(position, row.Key);
        } else {
            row.Tag = Name();
            list_.SetTag(position, row.Tag);
        }
    }
    void Select()
    {
        const int position = Place();
        const bool on = Below(3) > 0;
        list_.SetSelected(position, on);
        model_.At(position).Selected = on;
        if (on)
            model_.Item = model_.At(position).Number;
        const int after = Below(list_.Count() + 1);
        int wanted = 0;
        for (int i = after + 1; i <= model_.Count() && wanted == 0; ++i)
            wanted = model_.At(i).Selected ? i : 0;
        EXPECT_EQ(list_.NextSelected(after), wanted);
    }
    void Move()
    {
        const int from = Place(), to = Place();
        EXPECT_TRUE(list_.MoveRow(from, to));
        model_.Move(from, to);
    }
    void Rare()
    {
        const int kind = Below(400) == 0 ? 0 : Below(59) + 1;
        if (kind == 0) {
            list_.DeleteAllItems();
            model_ = Model();
        } else if (kind < 20) {
            Sort();
        } else if (kind < 25) {
            const int column = Below(columns);
            const std::string text = CellText(column);
            list_.SetColumnCells(column, text);
            for (ModelRow& row : model_.Rows)
                row.Cells[column] = text;
        } else if (kind < 35) {
            SelectMany(kind);
        } else {
            PersonSelect();
        }
    }
    void Sort()
    {
        list_.SetSorted(false);
        list_.Order = Below(2) == 0 ? Collation::CodePoint : Collation::WordSort;
        list_.SetSortKey(Below(columns));
        list_.SetSortOrder(Below(2));
        list_.SetSorted(true);
        model_.Sort(list_.SortKey(), list_.SortOrder() == 1, list_.Order);
    }
    void SelectMany(int kind)
    {
        if (kind < 30)
            list_.SetAllSelected(kind % 2 == 0);
        else
            list_.InvertSelection();
        for (ModelRow& row : model_.Rows)
            row.Selected = kind < 30 ? kind % 2 == 0 : !row.Selected;
    }
    void PersonSelect()
    {
        std::vector<int> positions;
        for (int i = Below(10); i > 0; --i)
            positions.push_back(Place());
        const int clicked = Below(2) == 0 ? 0 : Place();
        list_.PersonSelect(positions, clicked);
        for (ModelRow& row : model_.Rows)
            row.Selected = false;
        for (const int position : positions)
            model_.At(position).Selected = true;
        if (clicked > 0)
            model_.Item = model_.At(clicked).Number;
    }
    void Find()
    {
        const std::string name = Name();
        const int after = Below(3) == 0 ? Below(list_.Count() + 2) : 0;
        ASSERT_EQ(list_.FindItem(name, after), model_.Find(name, after)) << name << " " << after;
        const int column = 1 + Below(2);
        const std::string cell = CellText(column);
        const bool exact = Below(2) == 0;
        ASSERT_EQ(list_.FindItemWhere(name, column, cell, exact),
                  model_.FindWhere(name, column, cell, exact))
            << name << " " << column << " " << cell << " " << exact;
    }

    std::mt19937 random_;
    int most_, numbers_ = 0;
    Form form_{"frmTest"};
    ListView list_{form_, "lsvTest"};
    Model model_;
    Mirror mirror_;
};

struct WalkRow {
    unsigned Seed;
    int Most, Steps, WholeCheckEvery;
};

const WalkRow walks[] = {
    {1, 12, 8000, 1},
    {2, 60, 8000, 1},
    {3, 700, 8000, 50},
    {4, 2500, 8000, 200},
};

TEST(ListViewRandom, Random_changes_agree_with_a_vector_and_reach_the_host)
{
    for (const WalkRow& row : walks) {
        Walk walk(row.Seed, row.Most);
        for (int step = 0; step < row.Steps; ++step) {
            SCOPED_TRACE("seed " + std::to_string(row.Seed) + " step " + std::to_string(step));
            walk.Step();
            ASSERT_NO_FATAL_FAILURE(walk.Check());
            if (step % row.WholeCheckEvery == 0) {
                ASSERT_NO_FATAL_FAILURE(walk.CheckAll());
            }
        }
        walk.CheckAll();
    }
}

} // namespace
} // namespace tavo
