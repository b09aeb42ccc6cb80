#include "support/faulty_entry_disk.h"

#include <cerrno>

namespace tavo {

int FaultyEntryDisk::Open(const std::string& path, Descriptor& entry)
{
    return Faults.Do("Open", [&] { return system_->Open(path, entry); });
}

int FaultyEntryDisk::OpenFile(const std::string& path, Descriptor& entry)
{
    return Faults.Do("Open", [&] { return system_->OpenFile(path, entry); });
}

int FaultyEntryDisk::Look(const Descriptor& entry, State& state)
{
    return Faults.Do("Look", [&] {
        const int error = system_->Look(entry, state);
        if (HidesBirth)
            state.Birth.reset();
        return error;
    });
}

int FaultyEntryDisk::GetText(const Descriptor& entry, const char* name, std::string& bytes)
{
    return Faults.Do("GetText",
                     [&] { return Fat ? ENOTSUP : system_->GetText(entry, name, bytes); });
}

int FaultyEntryDisk::SetText(const Descriptor& entry, const char* name, const std::string& bytes)
{
    return Faults.Do("SetText",
                     [&] { return Fat ? ENOTSUP : system_->SetText(entry, name, bytes); });
}

int FaultyEntryDisk::RemoveText(const Descriptor& entry, const char* name)
{
    return Faults.Do("RemoveText",
                     [&] { return Fat ? ENOTSUP : system_->RemoveText(entry, name); });
}

int FaultyEntryDisk::SetMode(const Descriptor& entry, std::uint32_t mode)
{
    return Faults.Do("SetMode", [&] { return LosesModes ? 0 : system_->SetMode(entry, mode); });
}

int FaultyEntryDisk::SetTimes(const Descriptor& entry, FileTime accessed, FileTime written)
{
    return Faults.Do("SetTimes", [&] { return system_->SetTimes(entry, accessed, written); });
}

int FaultyEntryDisk::Look(const std::string& path, State& state)
{
    return Faults.Do("Look", [&] {
        const int error = system_->Look(path, state);
        if (HidesBirth)
            state.Birth.reset();
        return error;
    });
}

int FaultyEntryDisk::GetText(const std::string& path, const char* name, std::string& bytes)
{
    return Faults.Do("GetText",
                     [&] { return Fat ? ENOTSUP : system_->GetText(path, name, bytes); });
}

int FaultyEntryDisk::SetText(const std::string& path, const char* name, const std::string& bytes)
{
    return Faults.Do("SetText",
                     [&] { return Fat ? ENOTSUP : system_->SetText(path, name, bytes); });
}

int FaultyEntryDisk::RemoveText(const std::string& path, const char* name)
{
    return Faults.Do("RemoveText", [&] { return Fat ? ENOTSUP : system_->RemoveText(path, name); });
}

int FaultyEntryDisk::SetTimes(const std::string& path, FileTime accessed, FileTime written)
{
    return Faults.Do("SetTimes", [&] { return system_->SetTimes(path, accessed, written); });
}

int FaultyEntryDisk::GetFat(const Descriptor& entry, std::uint32_t& attributes)
{
    return Faults.Do("GetFat", [&] {
        attributes = Fat.value_or(attributes);
        return Fat ? 0 : system_->GetFat(entry, attributes);
    });
}

int FaultyEntryDisk::SetFat(const Descriptor& entry, std::uint32_t attributes)
{
    return Faults.Do("SetFat", [&] {
        if (!Fat)
            return system_->SetFat(entry, attributes);
        Fat = attributes;
        return 0;
    });
}

std::uint32_t FaultyEntryDisk::UserMask()
{
    return Mask ? *Mask : system_->UserMask();
}

} // namespace tavo
