#include "support/run_ground.h"

#include "renamelist/act_run.h"
#include "renamelist/rename_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace tavo {

namespace {

constexpr const char* topFolders[] = {"d", "e", "to"};
constexpr std::uint32_t settable = attrReadOnly | attrHidden | attrSystem | attrArchive;
constexpr std::uint64_t anyLength = 1 << 20;

MemoryDisk::Flavour Flavour_Of(Ground kind)
{
    switch (kind) {
    case Ground::Windows: return MemoryDisk::Flavour::Windows;
    case Ground::CaseBlindStick: return MemoryDisk::Flavour::PosixCaseBlind;
    default: return MemoryDisk::Flavour::Posix;
    }
}

std::int64_t Seconds(FileTime time)
{
    constexpr std::int64_t ticksPerSecond = 10'000'000;
    return time.Ticks / ticksPerSecond;
}

// The start of a content, and how long it is.
std::string Readable(const std::string& content)
{
    constexpr std::size_t shown = 20;
    return content.substr(0, shown) + " (" + std::to_string(content.size()) + ", "
           + std::to_string(std::hash<std::string>{}(content) % 10'000) + ")";
}

} // namespace

std::string State_Text(const FolderState& state)
{
    std::string out;
    for (const auto& [path, file] : state)
        out += "  " + path + " = " + Readable(file.Content) + " attributes "
               + std::to_string(file.Attributes) + " times " + std::to_string(file.Created) + " "
               + std::to_string(file.Modified) + " " + std::to_string(file.Accessed) + "\n";
    return out;
}

FolderState State_WithoutTimes(FolderState state)
{
    for (auto& [path, file] : state)
        file.Created = file.Modified = file.Accessed = 0;
    return state;
}

FolderState State_WithoutAttributes(FolderState state)
{
    for (auto& [path, file] : state)
        file.Attributes = 0;
    return state;
}

RunGround::RunGround(Ground kind, std::unique_ptr<Files> files)
    : memory_(kind == Ground::RealDisk ? nullptr
                                       : std::make_unique<MemoryListGround>(Flavour_Of(kind))),
      folder_(memory_ ? nullptr : std::make_unique<TempFolder>("run")),
      app_(memory_ ? nullptr : std::make_unique<TempFolder>("app")),
      files_(files ? std::move(files) : std::make_unique<PosixFiles>()),
      real_(memory_ ? nullptr : std::make_unique<ListGround>(*files_, app_->Path())), Kind(kind),
      G(memory_ ? static_cast<ListGround&>(*memory_) : *real_), P(G.P), Main(G.Main), List(G.List)
{
    SharedState& s = P.state;
    s.SupWarnRen = s.SupWarnUndo = 1;
    s.actClose = 1;
    s.AutoSelNext = 0;
}

RunGround::~RunGround() = default;

std::string RunGround::Full(const std::string& path) const
{
    return memory_ ? memory_->Full(path) : folder_->Path(path);
}

void RunGround::Clear()
{
    List.DeleteAllItems();
    for (const char* folder : topFolders)
        memory_->Disk.Remove(Full(folder));
}

void RunGround::AddFile(const std::string& path, const std::string& content)
{
    if (memory_)
        memory_->Disk.AddFile(Full(path), content);
    else
        folder_->Write(path, content);
}

void RunGround::AddFolder(const std::string& path)
{
    if (memory_)
        memory_->Disk.AddFolder(Full(path));
    else
        folder_->MakeFolder(path);
}

// A disk that cannot keep all of them keeps what it can.
void RunGround::SetAttributes(const std::string& path, std::uint32_t attributes)
{
    if (!P.files.SetFileAttributesA(Full(path), attributes))
        P.files.SetFileAttributesA(Full(path), attributes & attrReadOnly);
}

void RunGround::SetTimes(const std::string& path, FileTime created, FileTime modified,
                         FileTime accessed)
{
    if (memory_) {
        memory_->Disk.SetTimes(Full(path), modified, created, accessed);
        return;
    }
    const FileHandle file = P.files.OpenFile(Full(path), OpenMode::Times);
    if (!P.files.SetFileTime(file, created, accessed, modified))
        P.files.SetFileTime(file, {}, accessed, modified);
    P.files.CloseHandle(file);
}

// A drop sorts the list by name; the rows are then brought into this order.
void RunGround::Show(const std::vector<std::string>& paths)
{
    std::vector<std::string> full;
    for (const std::string& path : paths)
        full.push_back(Full(path));
    Ren_List_FromDrop(P, full);
    int to = 0;
    for (const std::string& path : paths) {
        ++to;
        int from = to;
        while (from < List.Count() && RowPath(from) != path)
            ++from;
        Ren_Row_Move(P, from, to);
    }
    ASSERT_EQ(List.Count(), static_cast<int>(paths.size()));
}

FolderState RunGround::State()
{
    FolderState state;
    for (const char* folder : topFolders)
        Collect(folder, state);
    return state;
}

void RunGround::Collect(const std::string& below, FolderState& out)
{
    FindData found;
    const FindHandle search =
        P.files.FindFirstFileA(Full(below) + P.files.Rules().Separator + "*", found);
    if (search == invalidFind)
        return;
    do {
        const std::string path = below + "/" + found.Name;
        if (found.Name == "." || found.Name == "..")
            continue;
        if (found.Attributes & attrDirectory)
            Collect(path, out);
        else
            out[path] = StateOf(Full(path));
    } while (P.files.FindNextFileA(search, found));
    P.files.FindClose(search);
}

// Looking at a file must not be what changes its time.
FileState RunGround::StateOf(const std::string& full)
{
    const FindData data = P.files.Stat(full).value_or(FindData{});
    FileState state;
    state.Content = P.files.ReadWhole(full, anyLength).value_or("unreadable");
    if (!memory_) {
        const FileHandle file = P.files.OpenFile(full, OpenMode::Times);
        P.files.SetFileTime(file, {}, data.Accessed, {});
        P.files.CloseHandle(file);
    }
    state.Attributes = data.Attributes & settable;
    state.Created = Seconds(data.Created);
    state.Modified = Seconds(data.Written);
    state.Accessed = Seconds(data.Accessed);
    return state;
}

std::string RunGround::RowPath(int row) const
{
    std::string path = G.Cell(row, "Path") + G.Cell(row, "Name");
    path = path.substr(Full("").size());
    if (P.files.Rules().Separator == '\\')
        std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string RunGround::ListText() const
{
    std::string out;
    for (int row = 1; row <= List.Count(); ++row)
        out += std::string(List.Selected(row) ? " * " : "   ") + RowPath(row) + " | "
               + G.Cell(row, "Type") + " | " + G.Cell(row, "UndoName") + " | "
               + G.Cell(row, "Errors") + "\n";
    return out;
}

int RunGround::Act(int action)
{
    return Act(action, 0, [] {});
}

int RunGround::Act(int action, int turn, const ScriptedDesktop::Step& step)
{
    int turns = 0;
    G.Desktop.EachTurn = [&](int) {
        if (++turns == turn)
            step();
    };
    Act_Run(P, action);
    G.Desktop.EachTurn = nullptr;
    return turns;
}

} // namespace tavo
