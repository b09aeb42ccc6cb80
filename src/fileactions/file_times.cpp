#include "fileactions/file_times.h"

namespace tavo {

namespace {

constexpr std::int64_t ticksPerSecond = 10'000'000;

// What lies before the disk's own beginning cannot be set at all.
FileTime WholeSeconds(FileTime time)
{
    return time.Ticks <= 0 ? FileTime{} : FileTime{time.Ticks - time.Ticks % ticksPerSecond};
}

FileTime Stamp_Wanted(Files& files, const std::string& wanted, const std::string& present,
                      FileTime stamp)
{
    if (wanted == present)
        return WholeSeconds(stamp);
    return Local_To_FileTime(files, Time_Text_Parse(wanted));
}

bool Stamps_Write(Files& files, const std::string& path, const FileTimes& times,
                  const FileStamps& present)
{
    const FileHandle file = files.OpenFile(path, OpenMode::Times);
    if (file == noFile)
        return false;
    const FileTimes& now = present.Texts;
    const FileTime created = Stamp_Wanted(files, times.Created, now.Created, present.Created);
    const FileTime modified = Stamp_Wanted(files, times.Modified, now.Modified, present.Modified);
    const FileTime accessed = Stamp_Wanted(files, times.Accessed, now.Accessed, present.Accessed);
    const bool done = files.SetFileTime(file, created, accessed, modified);
    files.CloseHandle(file);
    return done;
}

} // namespace

SystemTime FileTime_To_Local(Files& files, FileTime time)
{
    SystemTime local;
    files.FileTimeToLocalSystemTime(time, local);
    Time_Repair(local);
    return local;
}

FileTime Local_To_FileTime(Files& files, const SystemTime& time)
{
    FileTime moment;
    return files.LocalSystemTimeToFileTime(time, moment) ? moment : FileTime{};
}

bool File_Stamps_Get(Files& files, const std::string& path, FileStamps& stamps)
{
    stamps = {};
    const auto data = files.Stat(path);
    if (!data)
        return false;
    const auto text = [&files](FileTime time) {
        return Time_To_Text(FileTime_To_Local(files, time));
    };
    stamps.Created = data->Created;
    stamps.Modified = data->Written;
    stamps.Accessed = data->Accessed;
    stamps.Texts = {text(stamps.Created), text(stamps.Modified), text(stamps.Accessed)};
    return true;
}

FileTimes File_Times_Get(Files& files, const std::string& path)
{
    FileStamps stamps;
    File_Stamps_Get(files, path, stamps);
    return stamps.Texts;
}

bool File_Times_Set(Files& files, const std::string& path, const FileTimes& times)
{
    FileStamps present;
    File_Stamps_Get(files, path, present);
    return File_Times_Set(files, path, times, present);
}

bool File_Times_Set(Files& files, const std::string& path, const FileTimes& times,
                    const FileStamps& present)
{
    if (!files.Rules().ReadOnlyKeepsTimes)
        return Stamps_Write(files, path, times, present);
    const auto attributes = files.GetFileAttributesA(path);
    files.SetFileAttributesA(path, 0);
    const bool done = Stamps_Write(files, path, times, present);
    if (attributes)
        files.SetFileAttributesA(path, *attributes);
    return done;
}

} // namespace tavo
