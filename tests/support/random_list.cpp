#include "support/random_list.h"

#include "support/text_points.h"

#include <algorithm>
#include <array>
#include <random>
#include <vector>

namespace tavo::model {

namespace {

constexpr std::array nameTemplates = {
    "<#>",      "<#>",       "<#>",     "<#>",         "x<#>",      "<#>x",     "0<#>",
    "<ON>_<#>", "<ON><#>",   "<#><ON>", "<#><#>",      "<ON>.<#>",  "<ON>",     "<ON>",
    "a",        "1",         "X",       "<OE>",        "<on><ON>",  "<on>",     "b<#>.c",
    "<X>_<#>",  "<ON> <XR>", "a:<#>",   "<#>.<OE>",    "\u00e4<#>", "\u00c4",   "",
    "<#",       "<OE><#>",   "<ON>#",   "<#>.<#>.<#>", "0<ON>",     "what?<#>", "<ON><OE><#>",
};
constexpr std::array extTemplates = {
    "<OE>", "<OE>", "<OE>", "<OE>", "",    "",        "txt",       "TXT",
    "<#>",  "<ON>", "a.b",  "<oe>", "<Z>", "<#><OE>", "<OE>.<OE>",
};
constexpr std::array plainNames = {
    "a.txt", "A.txt",  "a.TXT",  "b.jpg",      "1.txt",       "01.txt",         "001.txt",
    "1",     "2",      "a",      "b",          ".profile",    "archive.tar.gz", "x1.txt",
    "a_1",   "0a.txt", "00.txt", "\u00e4.txt", "\u00c4.txt",  "\u00e4",         "a b.txt",
    "9.txt", "a.b.1",  "1.1",    "x.",         "holiday.jpg",
};
constexpr std::array linuxNames = {
    "a:1.txt",  "what?.txt", "*",          "back\\slash.txt",  "\xff.txt", "new\nline.txt",
    "tail. ",   "<on>",      "what?1.txt", "\u65e5\u672c.txt", "con",      "nul.txt",
    "\xe4.txt", "a:1",
};
constexpr std::array extensions = {"txt", "TXT", "jpg", "", "gz"};

class Maker {
public:
    Maker(std::uint32_t seed, Dialect system) : random_(seed) { task_.System = system; }
    NnTask Make();

private:
    std::uint32_t Below(std::uint32_t limit)
    {
        return static_cast<std::uint32_t>(random_()) % limit;
    }
    bool Chance(std::uint32_t percent) { return Below(100) < percent; }
    template <class Array>
    std::string Any(const Array& array)
    {
        return array[Below(static_cast<std::uint32_t>(array.size()))];
    }

    void ChooseSettings();
    void ChooseTemplates();
    void ChooseFolders();
    void AddRows();
    void AddRow(const std::string& path, const std::string& name);
    void AddDoubles();
    void AddInnerFolders();
    void AddTemporaries();
    void AddOutsiders();
    void Shuffle();
    void AddTroubles();

    std::string Target(int counter);
    std::string RowName(int index);
    std::string SomeName();
    std::string Twisted(std::string name);
    std::string LongName(const std::string& path);
    bool IsGood(const std::string& name) const;
    bool Put(const std::string& path, const std::string& name);
    std::string Key(const std::string& full) const;
    char Separator() const { return task_.System == Dialect::Linux ? '/' : '\\'; }

    std::mt19937 random_;
    NnTask task_;
    std::vector<std::string> folders_;
    std::set<std::string> taken_;
    enum class Shape { Chain, Swap, Scattered } shape_ = Shape::Scattered;
    int wanted_ = 0, nextContent_ = 1;
};

NnTask Maker::Make()
{
    ChooseSettings();
    ChooseTemplates();
    ChooseFolders();
    AddRows();
    AddInnerFolders();
    AddTemporaries();
    AddOutsiders();
    Shuffle();
    AddDoubles();
    AddTroubles();
    return task_;
}

void Maker::ChooseSettings()
{
    constexpr std::array numbers = {"1", "1", "0", "9", "99", "7", "007", ""};
    constexpr std::array letters = {"b", "a", "z", "az", "zz", "Y"};
    task_.CaseBlind = task_.System == Dialect::Windows || Chance(20);
    task_.Style = Chance(70) ? 1 : 2 + static_cast<int>(Below(2));
    task_.Start = task_.Style == 1 ? Any(numbers) : Any(letters);
    task_.Digits = Chance(60) ? 1 : static_cast<int>(1 + Below(Chance(30) ? 9 : 3));
    task_.PreList = Chance(50) ? 1 : 0;
    task_.FolderMode = Chance(15);
    task_.SelectedOnly = Chance(40);
    shape_ = static_cast<Shape>(Below(3));
    wanted_ = static_cast<int>(1 + Below(Chance(20) ? 25 : 8));
}

void Maker::ChooseTemplates()
{
    task_.NameTemplate = Any(nameTemplates);
    task_.ExtTemplate = Any(extTemplates);
    if (!Chance(10))
        return;
    constexpr std::array pieces = {"<#>", "<ON>", "<OE>", "a", "1", ".", "<", "0", " "};
    task_.NameTemplate.clear();
    for (std::uint32_t left = 1 + Below(4); left > 0; --left)
        task_.NameTemplate += Any(pieces);
}

void Maker::ChooseFolders()
{
    const std::string root = task_.System == Dialect::Linux ? "/" : "C:\\";
    folders_ = {root + "work" + Separator()};
    if (Chance(30))
        folders_.push_back(root + "work" + Separator() + "inner one" + Separator());
    if (Chance(20))
        folders_.push_back(root + "other" + Separator());
}

std::string Maker::Key(const std::string& full) const
{
    return task_.CaseBlind ? points::Upper(full) : full;
}

bool Maker::IsGood(const std::string& name) const
{
    if (name.empty() || name == "." || name == ".." || name.size() > 255)
        return false;
    if (task_.System == Dialect::Linux)
        return name.find('/') == name.npos;
    return name.find_first_of("\\/:*?\"<>|") == name.npos && name.back() != '.'
           && name.back() != ' ';
}

// A file or folder of that name, unless there is one.
bool Maker::Put(const std::string& path, const std::string& name)
{
    const bool tooLong = task_.System == Dialect::Windows && path.size() + name.size() > 259;
    if (!IsGood(name) || tooLong || !taken_.insert(Key(path + name)).second)
        return false;
    task_.Files[path + name] = nextContent_++;
    return true;
}

void Maker::AddRow(const std::string& path, const std::string& name)
{
    const auto point = name.rfind('.');
    Row row{path, name, Chance(60), "", "", ""};
    if (task_.FolderMode)
        row.Type = "-";
    else if (point != name.npos)
        row.Type = name.substr(point + 1);
    if (Chance(10))
        row.UndoName = "left over";
    if (Chance(10))
        row.Errors = "Missing";
    task_.Rows.push_back(row);
}

// What a row could be called when the counter stands so.
std::string Maker::Target(int counter)
{
    const std::string number = Counter_Text(counter, task_.Style, task_.Digits);
    const std::string ext = Any(extensions);
    const auto fill = [&](std::string text) {
        text = Token_Replace(text, "<ON>", "a");
        text = Token_Replace(text, "<OE>", ext);
        return Token_Replace(text, "<#>", number);
    };
    const std::string name = fill(task_.NameTemplate), end = fill(task_.ExtTemplate);
    return end.empty() ? name : name + "." + end;
}

std::string Maker::Twisted(std::string name)
{
    if (Chance(8))
        name = points::Upper(name);
    if (Chance(6))
        name = "0" + name;
    return name;
}

std::string Maker::SomeName()
{
    if (task_.System == Dialect::Linux && Chance(10))
        return Any(linuxNames);
    if (Chance(40))
        return Any(plainNames);
    const int start = Counter_Start(task_.Start, task_.Style);
    return Target(start + static_cast<int>(Below(static_cast<std::uint32_t>(wanted_) + 2)));
}

std::string Maker::RowName(int index)
{
    const int start = Counter_Start(task_.Start, task_.Style);
    if (shape_ == Shape::Chain && !Chance(10))
        return Target(start + index + 1);
    if (shape_ == Shape::Swap && !Chance(10))
        return Target(start + wanted_ - 1 - index);
    return Twisted(SomeName());
}

std::string Maker::LongName(const std::string& path)
{
    const std::string tail = "." + Any(extensions);
    std::size_t length = 253 + Below(3);
    if (task_.System == Dialect::Windows)
        length = std::min(length, 259 - path.size());
    const std::string letter = task_.System == Dialect::Linux && Chance(30) ? "\u00e4" : "x";
    std::string name = Chance(50) ? "0" : "";
    while (name.size() + letter.size() + tail.size() <= length)
        name += letter;
    return name + tail;
}

void Maker::AddRows()
{
    for (int index = 0; index < wanted_; ++index) {
        const std::string path = folders_[Below(static_cast<std::uint32_t>(folders_.size()))];
        const std::string name = Chance(3) ? LongName(path) : RowName(index);
        if (Put(path, name))
            AddRow(path, name);
    }
}

// Rows that lie in the folder of another row.
void Maker::AddInnerFolders()
{
    if (!task_.FolderMode || task_.Rows.empty() || !Chance(30))
        return;
    const Row& outer = task_.Rows[Below(static_cast<std::uint32_t>(task_.Rows.size()))];
    const std::string path = outer.Path + outer.Name + Separator();
    for (int index = 0; index < 2; ++index) {
        const std::string name = RowName(index);
        if (path.size() + name.size() < 200 && Put(path, name))
            AddRow(path, name);
    }
}

// Files of the names that a row moved aside would take.
void Maker::AddTemporaries()
{
    const auto rows = task_.Rows;
    for (const Row& row : rows) {
        if (!Chance(12))
            continue;
        const std::uint32_t names = Chance(30) ? 10 : 1 + Below(3);
        for (std::uint32_t digit = 0; digit < names; ++digit) {
            const std::string name = std::to_string(digit) + row.Name;
            if (Put(row.Path, name) && Chance(30))
                AddRow(row.Path, name);
        }
    }
}

void Maker::AddOutsiders()
{
    for (std::uint32_t left = Chance(50) ? Below(5) : 0; left > 0; --left)
        Put(folders_[Below(static_cast<std::uint32_t>(folders_.size()))], Twisted(SomeName()));
}

void Maker::Shuffle()
{
    if (shape_ != Shape::Scattered && !Chance(30))
        return;
    for (std::size_t i = task_.Rows.size(); i > 1; --i)
        std::swap(task_.Rows[i - 1], task_.Rows[Below(static_cast<std::uint32_t>(i))]);
}

void Maker::AddDoubles()
{
    if (task_.Rows.empty() || !Chance(8))
        return;
    const Row row = task_.Rows[Below(static_cast<std::uint32_t>(task_.Rows.size()))];
    task_.Rows.push_back(row);
}

void Maker::AddTroubles()
{
    const bool missing = Chance(25), inUse = !task_.FolderMode && Chance(15);
    for (const Row& row : task_.Rows) {
        const std::string full = row.Path + row.Name;
        if (missing && !task_.FolderMode && Chance(20))
            task_.Files.erase(full);
        else if (inUse && Chance(20))
            task_.InUse.insert(full);
    }
    if (Chance(4))
        task_.Locked.insert(folders_.back());
}

// The file inside a folder that tells which folder it is.
constexpr const char* mark = "content of the folder";

} // namespace

NnTask Random_Task(std::uint32_t seed, Dialect system)
{
    return Maker(seed, system).Make();
}

MemoryDisk::Flavour Task_Flavour(const NnTask& task)
{
    if (task.System == Dialect::Windows)
        return MemoryDisk::Flavour::Windows;
    return task.CaseBlind ? MemoryDisk::Flavour::PosixCaseBlind : MemoryDisk::Flavour::Posix;
}

void Task_ToDisk(const NnTask& task, MemoryDisk& disk)
{
    const std::string separator(1, disk.Rules().Separator);
    for (const Row& row : task.Rows)
        disk.AddFolder(row.Path);
    for (const auto& [full, content] : task.Files)
        disk.AddFile(task.FolderMode ? full + separator + mark : full, std::to_string(content));
    for (const auto& full : task.InUse)
        if (disk.Has(full))
            disk.SetInUse(full);
    for (const auto& folder : task.Locked)
        disk.SetLocked(folder);
}

Disk Task_FromDisk(const NnTask& task, const MemoryDisk& disk)
{
    Disk out;
    const std::string ending = disk.Rules().Separator + std::string(mark);
    for (const auto& entry : disk.Entries()) {
        if (entry.Folder)
            continue;
        const auto length = entry.Path.size() - (task.FolderMode ? ending.size() : 0);
        out[entry.Path.substr(0, length)] = std::stoi(entry.Content);
    }
    return out;
}

namespace {

std::string Rows_Text(const std::vector<Row>& rows)
{
    std::string out;
    int pos = 0;
    for (const Row& row : rows)
        out += "  " + std::to_string(++pos) + (row.Selected ? " * " : "   ") + row.Path + " | "
               + row.Name + " | " + row.Type + " | " + row.UndoName + " | " + row.Errors + "\n";
    return out;
}

std::string Disk_Text(const Disk& disk)
{
    std::string out;
    for (const auto& [full, content] : disk)
        out += "  " + full + " = " + std::to_string(content) + "\n";
    return out;
}

} // namespace

std::string Task_Text(const NnTask& task)
{
    std::string out = task.System == Dialect::Linux ? "Linux" : "Windows";
    out += task.CaseBlind ? ", case-blind" : "";
    out += ", template \"" + task.NameTemplate + "\" . \"" + task.ExtTemplate + "\", start \""
           + task.Start + "\", style " + std::to_string(task.Style) + ", digits "
           + std::to_string(task.Digits) + ", PreList " + std::to_string(task.PreList)
           + (task.FolderMode ? ", folders" : "")
           + (task.SelectedOnly ? ", selected\n" : ", all\n");
    out += Rows_Text(task.Rows) + Disk_Text(task.Files);
    for (const auto& full : task.InUse)
        out += "  in use: " + full + "\n";
    for (const auto& folder : task.Locked)
        out += "  locked: " + folder + "\n";
    return out;
}

std::string Outcome_Text(const NnOutcome& outcome)
{
    return "renamed " + std::to_string(outcome.Renamed) + ", errors "
           + std::to_string(outcome.Errors) + ", unnecessary " + std::to_string(outcome.Unnecessary)
           + (outcome.Endless ? ", endless\n" : "\n") + Rows_Text(outcome.Rows)
           + Disk_Text(outcome.Files);
}

} // namespace tavo::model
