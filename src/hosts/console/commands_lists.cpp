#include "core/frm_main.h"
#include "core/program.h"
#include "hosts/console/arguments.h"
#include "hosts/console/commands.h"
#include "toolkit/list_view.h"

#include <functional>

namespace tavo::console {

namespace {

// `3` or `5-9`, within the list.
bool Read_Range(const std::string& word, int count, int& first, int& last, Outcome& outcome)
{
    const auto dash = word.find('-');
    const std::string end = dash == std::string::npos ? word : word.substr(dash + 1);
    if (!Read_Positive(word.substr(0, dash), first, outcome) || !Read_Positive(end, last, outcome))
        return false;
    if (first > last)
        return outcome.Fail(word + " is no range");
    return last <= count || outcome.Fail("there is no row " + std::to_string(last));
}

bool Do_Select(Session& session, const Words& words, Outcome& outcome)
{
    auto* const list = Reach_Kind<ListView>(session, words[0], "list", outcome);
    if (list == nullptr)
        return false;
    const bool isWord = words.size() == 2;
    std::vector<int> positions;
    int first = 0, last = 0;
    if (!(isWord && (words[1] == "all" || words[1] == "none")))
        for (std::size_t i = 1; i < words.size(); ++i) {
            if (!Read_Range(words[i], list->Count(), first, last, outcome))
                return false;
            for (int row = first; row <= last; ++row)
                positions.push_back(row);
        }
    list->SetFocus();
    if (isWord && words[1] == "all")
        list->PersonSelectAll();
    else
        list->PersonSelect(positions, positions.empty() ? 0 : positions.back());
    return true;
}

bool Do_Sort(Session& session, const Words& words, Outcome& outcome)
{
    auto* const list = Reach_Kind<ListView>(session, words[0], "list", outcome);
    if (list == nullptr)
        return false;
    const int column = list->ColumnByKey(words[1]);
    if (column < 0)
        return outcome.Fail(words[0] + " has no column " + words[1]);
    list->ColumnClick(column);
    return true;
}

// Gives the text of one column of a row by its position.
using CellReader = std::function<std::string(int)>;

bool Reader_For(const ListView& list, const std::string& key, CellReader& reader)
{
    const int column = list.ColumnByKey(key);
    if (column >= 0)
        reader = [&list, column](int row) { return std::string(list.Cell(row, column)); };
    else if (key == "Tag")
        reader = [&list](int row) { return std::string(list.Tag(row)); };
    else if (key == "Icon")
        reader = [&list](int row) { return std::string(list.Icon(row)); };
    else if (key == "Selected")
        reader = [&list](int row) { return Bool_Text(list.Selected(row)); };
    else
        return false;
    return true;
}

bool Do_Rows(Session& session, const Words& words, Outcome& outcome)
{
    ListView* list = nullptr;
    if (!session.FindList(words[0], list, outcome))
        return false;
    Words keys(words.begin() + 1, words.end());
    for (int column = 0; words.size() == 1 && column < list->ColumnCount(); ++column)
        keys.push_back(list->Column(column).Key);
    std::vector<CellReader> readers;
    for (const std::string& key : keys) {
        readers.emplace_back();
        if (!Reader_For(*list, key, readers.back()))
            return outcome.Fail(words[0] + " has no column " + key);
    }
    for (int row = 1; row <= list->Count(); ++row) {
        std::vector<std::string> cells;
        cells.reserve(readers.size());
        for (const CellReader& read : readers)
            cells.push_back(read(row));
        outcome.PrintRow(cells);
    }
    return true;
}

bool Do_Selected(Session& session, const Words& words, Outcome& outcome)
{
    ListView* list = nullptr;
    if (!session.FindList(words[0], list, outcome))
        return false;
    for (int row = list->NextSelected(0); row > 0; row = list->NextSelected(row))
        outcome.Print(std::to_string(row));
    return true;
}

std::string Mark_Name(SortMark mark)
{
    static constexpr const char* names[] = {"none", "up", "down"};
    return names[static_cast<std::size_t>(mark)];
}

bool Do_Columns(Session& session, const Words& words, Outcome& outcome)
{
    ListView* list = nullptr;
    if (!session.FindList(words[0], list, outcome))
        return false;
    for (int column = 0; column < list->ColumnCount(); ++column) {
        const ColumnHeader& header = list->Column(column);
        outcome.PrintRow({header.Key, header.Caption, Mark_Name(header.Mark)});
    }
    return true;
}

bool Do_Tree(Session& session, const Words& words, Outcome& outcome)
{
    auto* const tree = Reach_Kind<FolderTree>(session, "ftvSelMain", "folder tree", outcome);
    if (tree == nullptr)
        return false;
    tree->SetFocus();
    return tree->SetFolder(words[0]) || outcome.Fail("there is no folder " + words[0]);
}

} // namespace

const std::vector<CommandRow>& Commands_Lists()
{
    static const std::vector<CommandRow> rows{
        {"select", 2, -1, Do_Select},    {"sort", 2, 2, Do_Sort},       {"rows", 1, -1, Do_Rows},
        {"selected", 1, 1, Do_Selected}, {"columns", 1, 1, Do_Columns}, {"tree", 1, 1, Do_Tree},
    };
    return rows;
}

} // namespace tavo::console
