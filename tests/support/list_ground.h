#pragma once

#include "core/frm_main.h"
#include "core/program.h"
#include "support/memory_disk.h"
#include "support/memory_profile.h"
#include "support/scripted_desktop.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// A started program with an empty rename screen, Auto Fill off, and a scripted
// person before it: ground for tests of what happens to the rename list.
class ListGround {
public:
    ListGround(Files& files, const std::string& appFolder);

    MemoryProfile Settings;
    ScriptedDesktop Desktop;
    Program P;
    FrmMain& Main;
    ListView& List;

    // Runs at the `turn`th DoEvents from now on.
    void During(int turn, ScriptedDesktop::Step step);

    // The cells of a column, from the top.
    std::vector<std::string> Column(std::string_view key) const;
    std::vector<std::string> Names() const { return Column("Name"); }
    std::string Cell(int row, std::string_view key) const;
    // The names of the selected rows.
    std::vector<std::string> SelectedNames() const;
    // The position of a row by its name, exactly; 0 if none.
    int RowOf(std::string_view name) const;

    // A person makes exactly these rows the selected ones, the last one by a
    // click; rows of these names.
    void Select(const std::vector<int>& rows);
    void SelectNames(const std::vector<std::string>& names);

    std::string Panel(int number) const { return Main.stbMain.Panel(number); }
    Tool& ToolOf(std::string_view id) const;
    // Templates of Name & Number.
    void SetTemplates(const std::string& name, const std::string& extension);
};

// Hears which rows a list asks its host to bring into view.
class ShownRows : public ListObserver {
public:
    explicit ShownRows(ListView& list) : list_(list) { list_.SetObserver(this); }
    ~ShownRows() override { list_.SetObserver(nullptr); }
    ShownRows(const ShownRows&) = delete;
    ShownRows& operator=(const ShownRows&) = delete;

    // The last one; 0 for none.
    int Last = 0;

    void BeginInsert(int, int) override {}
    void EndInsert() override {}
    void BeginRemove(int, int) override {}
    void EndRemove() override {}
    void BeginReset() override {}
    void EndReset() override {}
    void CellsChanged(int, int) override {}
    void SelectionChanged(int, int) override {}
    void SelectedItemChanged() override {}
    void ColumnsChanged() override {}
    void ShowRow(int position) override { Last = position; }

private:
    ListView& list_;
};

// A disk in memory made ready before the program that stands on it.
struct MemoryDiskHolder {
    explicit MemoryDiskHolder(MemoryDisk::Flavour flavour) : Disk(flavour) {}
    MemoryDisk Disk;
};

// The same on a disk in memory. Paths are written with slashes and without a
// root: "d/a.txt" is C:\d\a.txt there and /d/a.txt here.
class MemoryListGround : private MemoryDiskHolder, public ListGround {
public:
    explicit MemoryListGround(MemoryDisk::Flavour flavour);
    using MemoryDiskHolder::Disk;

    bool IsWindows() const { return Disk.Rules().Separator == '\\'; }
    std::string Full(std::string_view path) const;
    // Puts a file on the disk; its path, as written here, is its content.
    void AddFile(std::string_view path);
    // Which file lies there now; empty for none.
    std::string ContentOf(std::string_view path) const;
    // Puts the files on the disk and drops them on the list, which then stands
    // sorted by name with the first row selected.
    void Load(const std::vector<std::string>& paths);
};

} // namespace tavo
