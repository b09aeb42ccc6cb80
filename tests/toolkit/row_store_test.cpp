#include "toolkit/row_store.h"

#include "toolkit/text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavo {
namespace {

enum Column { Name, Path, Size };

void AddColumns(RowStore& rows)
{
    rows.AddColumn(false);
    rows.AddColumn(true);
    rows.AddColumn(false);
}

void Append(RowStore& rows, std::string_view name, std::string_view path)
{
    const std::string_view cells[] = {name, path};
    rows.Insert(rows.Count() + 1, cells, 2, "F");
}

std::vector<std::string> Names(const RowStore& rows)
{
    std::vector<std::string> names;
    for (int i = 1; i <= rows.Count(); ++i)
        names.emplace_back(rows.Cell(i, Name));
    return names;
}

class RowStoreTest : public testing::Test {
protected:
    RowStoreTest() { AddColumns(rows); }
    void Sort(int column, bool descending)
    {
        const auto order = rows.SortedRows(column, descending, Collation::CodePoint);
        if (!order.empty())
            rows.SetOrder(order);
    }
    RowStore rows;
};

TEST_F(RowStoreTest, A_new_row_has_its_cells_and_the_icon_in_both_sizes)
{
    const std::string_view cells[] = {"a.txt", "/x/", "12", "one cell too many"};
    rows.Insert(1, cells, 4, "M");
    EXPECT_EQ(rows.Cell(1, Name), "a.txt");
    EXPECT_EQ(rows.Cell(1, Path), "/x/");
    EXPECT_EQ(rows.Cell(1, Size), "12");
    EXPECT_EQ(rows.Cell(1, 3), "");
    EXPECT_EQ(rows.Icon(1), "M");
    EXPECT_EQ(rows.SmallIcon(1), "M");
    EXPECT_EQ(rows.Key(1), "");
    EXPECT_EQ(rows.Tag(1), "");
}

TEST_F(RowStoreTest, Positions_and_columns_beyond_the_list_are_empty_and_unwritable)
{
    Append(rows, "a", "p");
    for (const int position : {-1, 0, 2, 1000}) {
        SCOPED_TRACE(position);
        EXPECT_EQ(rows.Cell(position, Name), "");
        EXPECT_EQ(rows.Icon(position), "");
        EXPECT_EQ(rows.IdAt(position), noRow);
        EXPECT_FALSE(rows.SetCell(position, Name, "x"));
        EXPECT_FALSE(rows.SetIcons(position, "x", "y"));
        EXPECT_FALSE(rows.SetKey(position, "x"));
        EXPECT_FALSE(rows.SetTag(position, "x"));
        EXPECT_FALSE(rows.Select(position, true));
        EXPECT_FALSE(rows.Selected(position));
    }
    for (const int column : {-1, 3, 1000}) {
        EXPECT_EQ(rows.Cell(1, column), "");
        EXPECT_FALSE(rows.SetCell(1, column, "x"));
        EXPECT_TRUE(rows.SetColumnCells(column, "x").Empty());
        EXPECT_EQ(rows.FindItemWhere("a", column, "", false), 0);
        EXPECT_TRUE(rows.SortedRows(column, false, Collation::CodePoint).empty());
    }
}

TEST_F(RowStoreTest, Writing_tells_whether_anything_changed)
{
    Append(rows, "a", "p");
    EXPECT_FALSE(rows.SetCell(1, Name, "a"));
    EXPECT_TRUE(rows.SetCell(1, Name, "A"));
    EXPECT_FALSE(rows.SetCell(1, Path, "p"));
    EXPECT_TRUE(rows.SetCell(1, Path, ""));
    EXPECT_FALSE(rows.SetIcons(1, "F", "F"));
    EXPECT_TRUE(rows.SetIcons(1, "F", "G"));
    EXPECT_FALSE(rows.SetTag(1, ""));
    EXPECT_TRUE(rows.SetTag(1, "7"));
}

TEST_F(RowStoreTest, Texts_may_be_pieces_of_the_store)
{
    Append(rows, "long name of a row", "/path/of/it/");
    Append(rows, "b", "/other/");
    rows.SetCell(1, Name, rows.Cell(1, Name).substr(5, 4));
    EXPECT_EQ(rows.Cell(1, Name), "name");
    rows.SetCell(1, Path, rows.Cell(1, Path).substr(5));
    EXPECT_EQ(rows.Cell(1, Path), "/of/it/");
    rows.SetCell(2, Path, rows.Cell(1, Path));
    rows.SetCell(2, Size, rows.Cell(2, Path));
    EXPECT_EQ(rows.Cell(2, Size), "/of/it/");
    rows.SetColumnCells(Name, rows.Cell(2, Size).substr(1, 2));
    EXPECT_EQ(Names(rows), (std::vector<std::string>{"of", "of"}));
    rows.SetIcons(1, rows.Cell(1, Path), rows.Icon(1));
    EXPECT_EQ(rows.Icon(1), "/of/it/");
    EXPECT_EQ(rows.SmallIcon(1), "F");
    const std::string_view cells[] = {rows.Cell(1, Path), rows.Cell(1, Name)};
    rows.Insert(1, cells, 2, rows.SmallIcon(2));
    EXPECT_EQ(rows.Cell(1, Name), "/of/it/");
    EXPECT_EQ(rows.Cell(1, Path), "of");
}

TEST_F(RowStoreTest, NUL_stray_bytes_and_a_megabyte_are_texts_as_any)
{
    const std::string odd("a\0b\xFF\xC3", 5);
    const std::string large(1 << 20, 'x');
    Append(rows, odd, odd);
    Append(rows, large, large);
    EXPECT_EQ(rows.Cell(1, Name), odd);
    EXPECT_EQ(rows.Cell(1, Path), odd);
    EXPECT_EQ(rows.Cell(2, Name), large);
    EXPECT_EQ(rows.FindItem(odd, 0), 1);
    EXPECT_EQ(rows.FindItem("a", 0), 0);
    EXPECT_EQ(rows.FindItemWhere(large, Path, large, true), 2);
    rows.SetCell(2, Name, "small");
    EXPECT_EQ(rows.FindItem(large, 0), 0);
}

TEST_F(RowStoreTest, A_column_added_later_is_empty_in_rows_that_are_there)
{
    Append(rows, "a", "p");
    rows.AddColumn(true);
    EXPECT_EQ(rows.Cell(1, 3), "");
    EXPECT_TRUE(rows.SetCell(1, 3, "late"));
    EXPECT_EQ(rows.Cell(1, 3), "late");
    EXPECT_EQ(rows.Cell(1, Name), "a");
    rows.Erase(1);
}

TEST_F(RowStoreTest, One_text_goes_into_a_column_of_all_rows)
{
    for (const char* name : {"a", "b", "c", "d"})
        Append(rows, name, "p");
    rows.SetCell(1, Size, "0");
    rows.SetCell(4, Size, "0");
    EXPECT_EQ(rows.FindItem("b", 0), 2);
    RowRange changed = rows.SetColumnCells(Size, "0");
    EXPECT_EQ(changed.First, 2);
    EXPECT_EQ(changed.Last, 3);
    EXPECT_TRUE(rows.SetColumnCells(Size, "0").Empty());
    EXPECT_FALSE(rows.SetColumnCells(Name, "same").Empty());
    EXPECT_EQ(rows.FindItem("b", 0), 0);
    EXPECT_EQ(rows.FindItem("SAME", 2), 3);
}

TEST_F(RowStoreTest, Finding_takes_whole_texts_without_case_and_the_lowest_position)
{
    for (const char* name : {"b", "A", "a", "ab", "a", "\xC3\x84"})
        Append(rows, name, "p");
    struct {
        const char* Text;
        int After, Wanted;
    } const table[] = {
        {"a", 0, 2}, {"a", -5, 2}, {"A", 2, 3},  {"a", 3, 5},        {"a", 5, 0},
        {"a", 6, 0}, {"a", 99, 0}, {"B", 0, 1},  {"ab", 0, 4},       {"abc", 0, 0},
        {"", 0, 0},  {"AB", 3, 4}, {"AB", 4, 0}, {"\xC3\xA4", 0, 6},
    };
    for (const auto& row : table)
        EXPECT_EQ(rows.FindItem(row.Text, row.After), row.Wanted) << row.Text << " " << row.After;
}

TEST_F(RowStoreTest, The_index_keeps_true_through_every_change)
{
    for (const char* name : {"a", "b", "c"})
        Append(rows, name, "p");
    ASSERT_EQ(rows.FindItem("b", 0), 2);
    rows.SetCell(2, Name, "x");
    EXPECT_EQ(rows.FindItem("b", 0), 0);
    EXPECT_EQ(rows.FindItem("X", 0), 2);
    rows.SetCell(2, Name, "X");
    EXPECT_EQ(rows.FindItem("x", 0), 2);
    Append(rows, "b", "p");
    EXPECT_EQ(rows.FindItem("b", 0), 4);
    rows.PutBack(1, rows.TakeOut(4));
    EXPECT_EQ(rows.FindItem("b", 0), 1);
    rows.Erase(1);
    EXPECT_EQ(rows.FindItem("b", 0), 0);
    rows.Clear();
    EXPECT_EQ(rows.FindItem("a", 0), 0);
    Append(rows, "a", "p");
    EXPECT_EQ(rows.FindItem("a", 0), 1);
}

TEST_F(RowStoreTest, Finding_where_a_cell_is_given_prefers_the_exact_spelling_if_asked)
{
    const char* table[][2] = {{"A", "p"}, {"a", "q"}, {"A", "q"}, {"a", "Q"}, {"a", "q"}};
    for (const auto& row : table) {
        Append(rows, row[0], row[1]);
        rows.SetCell(rows.Count(), Size, row[1]);
    }
    for (const int column : {int{Path}, int{Size}}) {
        SCOPED_TRACE(column);
        EXPECT_EQ(rows.FindItemWhere("a", column, "q", false), 2);
        EXPECT_EQ(rows.FindItemWhere("A", column, "q", false), 2);
        EXPECT_EQ(rows.FindItemWhere("A", column, "q", true), 3);
        EXPECT_EQ(rows.FindItemWhere("A", column, "Q", true), 4);
        EXPECT_EQ(rows.FindItemWhere("a", column, "r", true), 0);
        EXPECT_EQ(rows.FindItemWhere("b", column, "q", true), 0);
        EXPECT_EQ(rows.FindItemWhere("a", column, "", false), 0);
    }
}

TEST_F(RowStoreTest, Many_rows_of_one_name_are_known_by_their_path)
{
    for (int i = 0; i < 500; ++i)
        Append(rows, i % 3 == 0 ? "Index.html" : "index.html", "/" + std::to_string(i) + "/");
    Append(rows, "INDEX.html", "/7/");
    EXPECT_EQ(rows.FindItemWhere("index.html", Path, "/7/", false), 8);
    EXPECT_EQ(rows.FindItemWhere("INDEX.html", Path, "/7/", true), 501);
    EXPECT_EQ(rows.FindItemWhere("index.html", Path, "/500/", true), 0);
    rows.SetCell(8, Path, "/500/");
    EXPECT_EQ(rows.FindItemWhere("index.html", Path, "/7/", false), 501);
    EXPECT_EQ(rows.FindItemWhere("index.html", Path, "/500/", true), 8);
    rows.SetCell(8, Name, "other");
    EXPECT_EQ(rows.FindItemWhere("index.html", Path, "/500/", true), 0);
    rows.Erase(501);
    EXPECT_EQ(rows.FindItemWhere("index.html", Path, "/7/", false), 0);
    EXPECT_EQ(rows.FindItemWhere("index.html", Path, "/8/", false), 9);
    rows.SetColumnCells(Path, "/8/");
    EXPECT_EQ(rows.FindItemWhere("index.html", Path, "/8/", true), 2);
    EXPECT_EQ(rows.FindItemWhere("Index.html", Size, "", true), 1);
}

TEST_F(RowStoreTest, Rows_of_one_name_are_found_one_behind_the_other)
{
    for (int i = 0; i < 3000; ++i)
        Append(rows, i % 10 == 4 ? "same" : std::to_string(i), "p");
    int found = 0;
    for (int wanted = 5; wanted <= 3000; wanted += 10) {
        found = rows.FindItem("SAME", found);
        ASSERT_EQ(found, wanted);
    }
    EXPECT_EQ(rows.FindItem("same", found), 0);
}

TEST_F(RowStoreTest, Sorting_keeps_equal_rows_in_order_both_ways)
{
    const char* table[][2] = {{"b", "2"}, {"a", "1"}, {"B", "1"}, {"A", "2"}, {"c", "1"}};
    for (const auto& row : table)
        Append(rows, row[0], row[1]);
    Sort(Name, false);
    EXPECT_EQ(Names(rows), (std::vector<std::string>{"a", "A", "b", "B", "c"}));
    EXPECT_TRUE(rows.SortedRows(Name, false, Collation::CodePoint).empty());
    Sort(Path, false);
    EXPECT_EQ(Names(rows), (std::vector<std::string>{"a", "B", "c", "A", "b"}));
    EXPECT_TRUE(rows.SortedRows(Path, false, Collation::CodePoint).empty());
    Sort(Path, true);
    EXPECT_EQ(Names(rows), (std::vector<std::string>{"A", "b", "a", "B", "c"}));
    Sort(Name, true);
    EXPECT_EQ(Names(rows), (std::vector<std::string>{"c", "b", "B", "A", "a"}));
}

TEST_F(RowStoreTest, Shared_texts_of_other_case_sort_as_equals)
{
    const char* table[][2] = {{"1", "P"}, {"2", "o"}, {"3", "p"}, {"4", "O"},
                              {"5", ""},  {"6", "P"}, {"7", "o"}};
    for (const auto& row : table)
        Append(rows, row[0], row[1]);
    Sort(Path, false);
    EXPECT_EQ(Names(rows), (std::vector<std::string>{"5", "2", "4", "7", "1", "3", "6"}));
    Sort(Path, true);
    EXPECT_EQ(Names(rows), (std::vector<std::string>{"1", "3", "6", "2", "4", "7", "5"}));
}

std::string Padded(int number, std::size_t width)
{
    const std::string digits = std::to_string(number);
    return std::string(width - digits.size(), '0') + digits;
}

// With everything in it: index, undo name, key and tag.
TEST(RowStoreMemory, A_typical_row_takes_no_more_than_256_bytes)
{
    RowStore rows;
    for (int column = 0; column < 7; ++column)
        rows.AddColumn(column == Path);
    const int count = 100000;
    for (int i = 0; i < count; ++i) {
        const std::string name = Padded(i, 20), path = Padded(i / 100, 60);
        const std::string_view cells[] = {name, path, "      123 KB", "jpg", "2001-03-09 13:05:00"};
        rows.Insert(i + 1, cells, 5, "P");
    }
    EXPECT_EQ(rows.FindItem(Padded(7, 20), 0), 8);
    for (int i = 1; i <= count; ++i) {
        rows.SetCell(i, 5, Padded(i, 20));
        rows.SetTag(i, "123456");
    }
    const std::size_t each = rows.MemoryBytes() / static_cast<std::size_t>(count);
    EXPECT_LE(each, 256u);
    EXPECT_GE(each, 20u + 12 + 3 + 19 + 20 + 6) << "less than the texts cannot be";
    rows.Clear();
    EXPECT_LT(rows.MemoryBytes(), 20000u);
}

} // namespace
} // namespace tavo
