#include "fileactions/file_times.h"

namespace tavo {

namespace {

constexpr std::int64_t ticksPerSecond = 10'000'000;

// What lies before the disk's own beginning cannot be set at all.
FileTime WholeSeconds(FileTime time)
{
    return time.Ticks <= 0 ? FileTime{} : FileTime{time.Ticks - time.Ticks % ticksPerSecond};
}

FileTime Stamp_Wanted(const std::string& text, FileTime stamp, const std::string& presentText,
                      FileTime present)
{
    return text == presentText ? WholeSeconds(present) : stamp;
}

bool Stamps_Write(Files& files, const std::string& path, const FileStamps& wanted,
                  const FileStamps& present)
{
    const FileTimes &texts = wanted.Texts, &now = present.Texts;
    return files.ChangeTimes(
        path, Stamp_Wanted(texts.Created, wanted.Created, now.Created, present.Created),
        Stamp_Wanted(texts.Accessed, wanted.Accessed, now.Accessed, present.Accessed),
        Stamp_Wanted(texts.Modified, wanted.Modified, now.Modified, present.Modified));
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
    const auto data = files.StatTimes(path);
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

FileStamps Stamps_Of(Files& files, const FileTimes& texts)
{
    const auto moment = [&files](const std::string& text) {
        return Local_To_FileTime(files, Time_Text_Parse(text));
    };
    return {moment(texts.Created), moment(texts.Modified), moment(texts.Accessed), texts};
}

bool File_Times_Set(Files& files, const std::string& path, const FileTimes& times)
{
    FileStamps present;
    File_Stamps_Get(files, path, present);
    return File_Times_Set(files, path, Stamps_Of(files, times), present);
}

bool File_Times_Set(Files& files, const std::string& path, const FileStamps& wanted,
                    const FileStamps& present)
{
    if (!files.Rules().ReadOnlyKeepsTimes)
        return Stamps_Write(files, path, wanted, present);
    const auto attributes = files.GetFileAttributesA(path);
    if (attributes) // those that cannot be read could not be brought back
        files.SetFileAttributesA(path, 0);
    const bool done = Stamps_Write(files, path, wanted, present);
    if (attributes)
        files.SetFileAttributesA(path, *attributes);
    return done;
}

} // namespace tavo
