#include "support/faulty_transfer_disk.h"

#include <algorithm>
#include <cerrno>
#include <csignal>

namespace tavo {

std::size_t CallScript::CountOf(std::string_view call) const
{
    return static_cast<std::size_t>(std::count(Calls.begin(), Calls.end(), call));
}

bool CallScript::IsAcross(const std::string& from, const std::string& to) const
{
    const auto lies = [](const std::string& path, const std::string& folder) {
        return !folder.empty() && path.starts_with(folder);
    };
    return (lies(from, OneDisk) && lies(to, OtherDisk))
           || (lies(from, OtherDisk) && lies(to, OneDisk));
}

template <typename Call>
int CallScript::Do(std::string_view name, Call call)
{
    Calls.emplace_back(name);
    const std::size_t number = Calls.size();
    if (Before)
        Before(name);
    if (KillBefore == number)
        std::raise(SIGKILL);
    if (FailAt == number || FailAll == name)
        return Error;
    const int error = call();
    if (KillBehind == number)
        std::raise(SIGKILL);
    return error;
}

int FaultyRenameDisk::MoveNoReplace(const std::string& from, const std::string& to)
{
    return script_.Do("MoveNoReplace", [&] {
        return script_.IsAcross(from, to) ? EXDEV : system_->MoveNoReplace(from, to);
    });
}

int FaultyRenameDisk::Move(const std::string& from, const std::string& to)
{
    return script_.Do("Move",
                      [&] { return script_.IsAcross(from, to) ? EXDEV : system_->Move(from, to); });
}

int FaultyRenameDisk::Link(const std::string& from, const std::string& to)
{
    return script_.Do("Link",
                      [&] { return script_.IsAcross(from, to) ? EXDEV : system_->Link(from, to); });
}

int FaultyRenameDisk::Unlink(const std::string& path)
{
    return script_.Do("Unlink a path", [&] { return system_->Unlink(path); });
}

int FaultyRenameDisk::Look(const std::string& path, Entry& entry)
{
    return script_.Do("Look at a path", [&] { return system_->Look(path, entry); });
}

int FaultyRenameDisk::HasName(const std::string& folder, const std::string& name, bool& has)
{
    return script_.Do("HasName", [&] { return system_->HasName(folder, name, has); });
}

int FaultyTransferDisk::OpenFolder(const std::string& path, Descriptor& folder)
{
    return script_.Do("OpenFolder", [&] { return system_->OpenFolder(path, folder); });
}

int FaultyTransferDisk::OpenFolder(const Descriptor& above, const std::string& name,
                                   Descriptor& folder)
{
    return script_.Do("OpenFolder", [&] { return system_->OpenFolder(above, name, folder); });
}

int FaultyTransferDisk::OpenAbove(const Descriptor& folder, Descriptor& above)
{
    return script_.Do("OpenAbove", [&] { return system_->OpenAbove(folder, above); });
}

int FaultyTransferDisk::Look(const Descriptor& open, Entry& entry)
{
    return script_.Do("Look", [&] { return system_->Look(open, entry); });
}

int FaultyTransferDisk::Look(const Descriptor& folder, const std::string& name, Entry& entry)
{
    return script_.Do("Look", [&] { return system_->Look(folder, name, entry); });
}

int FaultyTransferDisk::MayChange(const Descriptor& folder)
{
    return script_.Do("MayChange", [&] { return system_->MayChange(folder); });
}

int FaultyTransferDisk::List(const Descriptor& folder, std::vector<std::string>& names)
{
    return script_.Do("List", [&] { return system_->List(folder, names); });
}

int FaultyTransferDisk::MakeUnique(std::string& text)
{
    return script_.Do("MakeUnique", [&] { return system_->MakeUnique(text); });
}

int FaultyTransferDisk::MakeFolder(const Descriptor& folder, const std::string& name)
{
    return script_.Do("MakeFolder", [&] { return system_->MakeFolder(folder, name); });
}

int FaultyTransferDisk::MakeFile(const Descriptor& folder, const std::string& name,
                                 Descriptor& file)
{
    return script_.Do("MakeFile", [&] { return system_->MakeFile(folder, name, file); });
}

int FaultyTransferDisk::MakeLink(const Descriptor& folder, const std::string& name,
                                 const std::string& target)
{
    return script_.Do("MakeLink", [&] { return system_->MakeLink(folder, name, target); });
}

int FaultyTransferDisk::ReadLink(const Descriptor& folder, const std::string& name,
                                 std::string& target)
{
    return script_.Do("ReadLink", [&] { return system_->ReadLink(folder, name, target); });
}

int FaultyTransferDisk::OpenFile(const Descriptor& folder, const std::string& name,
                                 Descriptor& file)
{
    return script_.Do("OpenFile", [&] { return system_->OpenFile(folder, name, file); });
}

int FaultyTransferDisk::Clone(const Descriptor& from, const Descriptor& to)
{
    return script_.Do("Clone", [&] { return system_->Clone(from, to); });
}

int FaultyTransferDisk::CopyRange(const Descriptor& from, const Descriptor& to,
                                  std::uint64_t offset, std::size_t count, std::size_t& copied)
{
    return script_.Do("CopyRange", [&] {
        return system_->CopyRange(from, to, offset, std::min(count, script_.MostBytes), copied);
    });
}

int FaultyTransferDisk::Read(const Descriptor& file, std::uint64_t offset, std::string& bytes)
{
    bytes.resize(std::min(bytes.size(), script_.MostBytes));
    return script_.Do("Read", [&] { return system_->Read(file, offset, bytes); });
}

int FaultyTransferDisk::Write(const Descriptor& file, std::uint64_t offset, std::string_view bytes,
                              std::size_t& written)
{
    return script_.Do("Write", [&] {
        return system_->Write(file, offset, bytes.substr(0, script_.MostBytes), written);
    });
}

int FaultyTransferDisk::Close(Descriptor& file)
{
    return script_.Do("Close", [&] { return system_->Close(file); });
}

int FaultyTransferDisk::ListAttributes(const Descriptor& entry, std::vector<std::string>& names)
{
    return script_.Do("ListAttributes", [&] { return system_->ListAttributes(entry, names); });
}

int FaultyTransferDisk::GetAttribute(const Descriptor& entry, const std::string& name,
                                     std::string& value)
{
    return script_.Do("GetAttribute", [&] { return system_->GetAttribute(entry, name, value); });
}

int FaultyTransferDisk::SetAttribute(const Descriptor& entry, const std::string& name,
                                     std::string_view value)
{
    return script_.Do("SetAttribute", [&] { return system_->SetAttribute(entry, name, value); });
}

int FaultyTransferDisk::GetFat(const Descriptor& entry, std::uint32_t& attributes)
{
    return script_.Do("GetFat", [&] { return system_->GetFat(entry, attributes); });
}

int FaultyTransferDisk::SetFat(const Descriptor& entry, std::uint32_t attributes)
{
    return script_.Do("SetFat", [&] { return system_->SetFat(entry, attributes); });
}

int FaultyTransferDisk::SetOwner(const Descriptor& entry, std::uint32_t owner, std::uint32_t group)
{
    return script_.Do("SetOwner", [&] { return system_->SetOwner(entry, owner, group); });
}

int FaultyTransferDisk::SetMode(const Descriptor& entry, std::uint32_t mode)
{
    return script_.Do("SetMode", [&] { return system_->SetMode(entry, mode); });
}

int FaultyTransferDisk::SetTimes(const Descriptor& entry, Stamp accessed, Stamp written)
{
    return script_.Do("SetTimes", [&] { return system_->SetTimes(entry, accessed, written); });
}

int FaultyTransferDisk::SetLinkOwner(const Descriptor& folder, const std::string& name,
                                     std::uint32_t owner, std::uint32_t group)
{
    return script_.Do("SetLinkOwner",
                      [&] { return system_->SetLinkOwner(folder, name, owner, group); });
}

int FaultyTransferDisk::SetLinkTimes(const Descriptor& folder, const std::string& name,
                                     Stamp accessed, Stamp written)
{
    return script_.Do("SetLinkTimes",
                      [&] { return system_->SetLinkTimes(folder, name, accessed, written); });
}

int FaultyTransferDisk::Sync(const Descriptor& entry)
{
    return script_.Do("Sync", [&] { return script_.IsHasty ? 0 : system_->Sync(entry); });
}

int FaultyTransferDisk::SyncAll(const Descriptor& entry)
{
    return script_.Do("SyncAll", [&] { return script_.IsHasty ? 0 : system_->SyncAll(entry); });
}

int FaultyTransferDisk::Unlink(const Descriptor& folder, const std::string& name)
{
    return script_.Do("Unlink", [&] { return system_->Unlink(folder, name); });
}

int FaultyTransferDisk::RemoveFolder(const Descriptor& folder, const std::string& name)
{
    return script_.Do("RemoveFolder", [&] { return system_->RemoveFolder(folder, name); });
}

} // namespace tavo
