#include "support/disk_ground.h"

#include "renamelist/act_run.h"
#include "renamelist/rename_list.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr const char* mark = "mark";

std::unique_ptr<MemoryListGround> Memory_Make(Ground kind)
{
    switch (kind) {
    case Ground::Windows: return std::make_unique<MemoryListGround>(MemoryDisk::Flavour::Windows);
    case Ground::Linux: return std::make_unique<MemoryListGround>(MemoryDisk::Flavour::Posix);
    case Ground::CaseBlindStick:
        return std::make_unique<MemoryListGround>(MemoryDisk::Flavour::PosixCaseBlind);
    default: return nullptr;
    }
}

std::unique_ptr<TempFolder> Folder_Make(Ground kind, const char* name)
{
    return kind == Ground::RealDisk ? std::make_unique<TempFolder>(name) : nullptr;
}

} // namespace

std::string Ground_Name(Ground kind)
{
    switch (kind) {
    case Ground::Windows: return "Windows";
    case Ground::Linux: return "Linux";
    case Ground::CaseBlindStick: return "CaseBlindStick";
    default: return "RealDisk";
    }
}

DiskGround::DiskGround(Ground kind)
    : memory_(Memory_Make(kind)), folder_(Folder_Make(kind, "run")), app_(Folder_Make(kind, "app")),
      files_(std::make_unique<PosixFiles>()),
      real_(memory_ ? nullptr : std::make_unique<ListGround>(*files_, app_->Path())), Kind(kind),
      G(memory_ ? static_cast<ListGround&>(*memory_) : *real_), P(G.P), Main(G.Main), List(G.List)
{
}

DiskGround::~DiskGround() = default;

std::string DiskGround::Full(const std::string& path) const
{
    return memory_ ? memory_->Full(path) : folder_->Path(path);
}

void DiskGround::AddFile(const std::string& path)
{
    if (memory_)
        memory_->AddFile(path);
    else
        folder_->Write(path, path);
}

void DiskGround::AddFolder(const std::string& path)
{
    if (memory_)
        memory_->Disk.AddFolder(Full(path));
    else
        folder_->MakeFolder(path);
}

void DiskGround::AddLink(const std::string& path, const std::string& to)
{
    if (memory_)
        memory_->Disk.AddLink(Full(path), Full(to));
    else
        folder_->MakeLink(path, Full(to));
}

void DiskGround::Remove(const std::string& path)
{
    if (memory_)
        memory_->Disk.Remove(Full(path));
    else
        folder_->Remove(path);
}

bool DiskGround::Has(const std::string& path) const
{
    return memory_ ? memory_->Disk.Has(Full(path)) : folder_->Has(path);
}

std::string DiskGround::ContentOf(const std::string& path) const
{
    if (memory_)
        return memory_->ContentOf(path);
    return folder_->Has(path) ? folder_->Read(path) : "";
}

// A drop sorts the list by name; the rows are then brought into this order.
void DiskGround::Drop(const std::vector<std::string>& paths)
{
    std::vector<std::string> full;
    for (const std::string& path : paths)
        full.push_back(Full(path));
    Ren_List_FromDrop(P, full);
    for (int to = 1; to <= static_cast<int>(full.size()); ++to)
        for (int from = to; from <= List.Count(); ++from)
            if (G.Cell(from, "Path") + G.Cell(from, "Name") == full[static_cast<size_t>(to - 1)]) {
                Ren_Row_Move(P, from, to);
                break;
            }
}

void DiskGround::Load(const std::vector<std::string>& paths)
{
    for (const std::string& path : paths)
        AddFile(path);
    Drop(paths);
}

void DiskGround::LoadFolders(const std::vector<std::string>& paths)
{
    for (const std::string& path : paths)
        AddFile(path + "/" + mark);
    Ren_FolderMode_Apply(P, 1);
    Drop(paths);
}

void DiskGround::SetCounter(const std::string& start, int digits, int style)
{
    Main.optNNStyle[style].Value = true;
    Main.txtNameNum[nnStartBox].Text = start;
    Main.txtNameNum[nnDigitsBox].Text = std::to_string(digits);
}

void DiskGround::RunAll()
{
    P.state.SupWarnRen = 1;
    P.state.actClose = 1;
    Act_Run(P, actAll);
}

void DiskGround::RunSelected(const std::vector<int>& rows)
{
    P.state.SupWarnRen = 1;
    P.state.actClose = 1;
    P.state.AutoSelNext = 0;
    G.Select(rows);
    Act_Run(P, actSelected);
}

std::string DiskGround::Counts() const
{
    const auto& values = Main.lblActionInfo;
    return values[1].Caption.Get() + "/" + values[2].Caption.Get() + "/" + values[3].Caption.Get();
}

} // namespace tavo
