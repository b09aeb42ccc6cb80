#include "support/list_ground.h"

#include "renamelist/rename_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace tavo {

namespace {

std::string Windows_Full(std::string_view path)
{
    std::string full = "C:\\" + std::string(path);
    std::replace(full.begin(), full.end(), '/', '\\');
    return full;
}

std::string AppFolder_Of(MemoryDisk& disk)
{
    const std::string folder = disk.Rules().Separator == '\\' ? "C:\\app" : "/app";
    disk.AddFolder(folder);
    return folder + disk.Rules().Separator;
}

} // namespace

ListGround::ListGround(Files& files, const std::string& appFolder)
    : P(files, Settings, Desktop, {appFolder, ""}), Main(P.main), List(P.main.lsvRename)
{
    Settings.SetText(appFolder + "Default.ini",
                     "[Defaults]\nnnAutoFill=0\n[Settings]\nShowFile=0\n");
    P.Start();
}

void ListGround::During(int turn, ScriptedDesktop::Step step)
{
    Desktop.At(Desktop.Turns() + turn, std::move(step));
}

std::vector<std::string> ListGround::Column(std::string_view key) const
{
    std::vector<std::string> cells;
    for (int row = 1; row <= List.Count(); ++row)
        cells.push_back(Cell(row, key));
    return cells;
}

std::string ListGround::Cell(int row, std::string_view key) const
{
    return std::string(List.Cell(row, List.ColumnByKey(key)));
}

std::vector<std::string> ListGround::SelectedNames() const
{
    std::vector<std::string> names;
    for (int row = List.NextSelected(0); row > 0; row = List.NextSelected(row))
        names.push_back(Cell(row, "Name"));
    return names;
}

int ListGround::RowOf(std::string_view name) const
{
    for (int row = 1; row <= List.Count(); ++row)
        if (List.Text(row) == name)
            return row;
    return 0;
}

void ListGround::Select(const std::vector<int>& rows)
{
    List.PersonSelect(rows, rows.empty() ? 0 : rows.back());
}

void ListGround::SelectNames(const std::vector<std::string>& names)
{
    std::vector<int> rows;
    for (const std::string& name : names)
        rows.push_back(RowOf(name));
    Select(rows);
}

Tool& ListGround::ToolOf(std::string_view id) const
{
    Tool* tool = Main.atbMain.Find(id);
    if (tool == nullptr) {
        ADD_FAILURE() << "No such tool: " << id;
        std::abort();
    }
    return *tool;
}

void ListGround::SetTemplates(const std::string& name, const std::string& extension)
{
    Main.txtNameNum[nnName].Text = name;
    Main.txtNameNum[nnExt].Text = extension;
}

MemoryListGround::MemoryListGround(MemoryDisk::Flavour flavour)
    : MemoryDiskHolder(flavour), ListGround(Disk, AppFolder_Of(Disk))
{
}

std::string MemoryListGround::Full(std::string_view path) const
{
    return IsWindows() ? Windows_Full(path) : "/" + std::string(path);
}

void MemoryListGround::AddFile(std::string_view path)
{
    Disk.AddFile(Full(path), std::string(path));
}

std::string MemoryListGround::ContentOf(std::string_view path) const
{
    return Disk.Content(Full(path)).value_or("");
}

void MemoryListGround::Load(const std::vector<std::string>& paths)
{
    std::vector<std::string> full;
    for (const std::string& path : paths) {
        AddFile(path);
        full.push_back(Full(path));
    }
    Ren_List_FromDrop(P, full);
}

} // namespace tavo
