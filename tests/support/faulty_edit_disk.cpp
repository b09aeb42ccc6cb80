#include "support/faulty_edit_disk.h"

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>

namespace tavo {

template <typename Call>
int FaultyEditDisk::Do(std::string_view name, Call call)
{
    Calls.emplace_back(name);
    if (KillBefore == Calls.size())
        std::raise(SIGKILL);
    if (FailAt == Calls.size() || FailAll == name)
        return Error;
    const int error = call();
    if (KillBehind == Calls.size())
        std::raise(SIGKILL);
    return error;
}

std::size_t FaultyEditDisk::CountOf(std::string_view call) const
{
    return static_cast<std::size_t>(std::count(Calls.begin(), Calls.end(), call));
}

void FaultyEditDisk::WaitForEver(const std::string& folder)
{
    Waited = [folder] {
        const Descriptor waiting(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        WithoutInterrupts([&] { return ::flock(waiting.Number(), LOCK_EX); });
    };
}

int FaultyEditDisk::ReadLink(const std::string& path, std::string& target)
{
    return Do("ReadLink", [&] { return system_->ReadLink(path, target); });
}

int FaultyEditDisk::OpenFolder(const std::string& path, Descriptor& folder)
{
    return Do("OpenFolder", [&] { return system_->OpenFolder(path, folder); });
}

int FaultyEditDisk::Lock(const Descriptor& folder)
{
    return Do("Lock", [&] { return system_->Lock(folder); });
}

void FaultyEditDisk::Pause()
{
    ++Pauses;
    if (Waited)
        Waited();
}

int FaultyEditDisk::Read(const std::string& path, std::string& bytes)
{
    return Do("Read", [&] { return system_->Read(path, bytes); });
}

int FaultyEditDisk::Look(const std::string& path, Rights& rights)
{
    return Do("Look", [&] { return system_->Look(path, rights); });
}

int FaultyEditDisk::MayWrite(const std::string& path)
{
    return Do("MayWrite", [&] { return system_->MayWrite(path); });
}

int FaultyEditDisk::MakeUnique(std::string& text)
{
    return Do("MakeUnique", [&] { return system_->MakeUnique(text); });
}

int FaultyEditDisk::Create(const std::string& path, std::uint32_t mode, Descriptor& file)
{
    return Do("Create", [&] { return system_->Create(path, mode, file); });
}

int FaultyEditDisk::Look(const Descriptor& file, Rights& rights)
{
    return Do("Look at the new file", [&] { return system_->Look(file, rights); });
}

int FaultyEditDisk::SetOwner(const Descriptor& file, std::uint32_t owner, std::uint32_t group)
{
    return Do("SetOwner", [&] { return system_->SetOwner(file, owner, group); });
}

int FaultyEditDisk::SetMode(const Descriptor& file, std::uint32_t mode)
{
    return Do("SetMode", [&] { return system_->SetMode(file, mode); });
}

int FaultyEditDisk::Write(const Descriptor& file, std::string_view bytes, std::size_t& written)
{
    return Do("Write", [&] { return system_->Write(file, bytes.substr(0, MostWritten), written); });
}

int FaultyEditDisk::Sync(const Descriptor& entry)
{
    return Do("Sync", [&] { return IsHasty ? 0 : system_->Sync(entry); });
}

int FaultyEditDisk::Move(const std::string& from, const std::string& to)
{
    return Do("Move", [&] { return system_->Move(from, to); });
}

int FaultyEditDisk::Unlink(const std::string& path)
{
    return Do("Unlink", [&] { return system_->Unlink(path); });
}

} // namespace tavo
