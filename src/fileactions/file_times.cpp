#include "fileactions/file_times.h"

#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::int64_t ticksPerSecond = 10'000'000;

// What lies before the disk's own beginning cannot be set at all.
FileTime WholeSeconds(FileTime time)
{
    return time.Ticks <= 0 ? FileTime{} : FileTime{time.Ticks - time.Ticks % ticksPerSecond};
}

// How far clocks are put back, of all zones.
constexpr std::int64_t putBackSeconds[] = {1800, 3600, 7200};

// Behind the text of a moment in an hour that occurs a second time. It shows
// nothing, and what reads times passes it over.
constexpr char secondTimeMark = ' ';

bool IsSameSecond(const SystemTime& left, const SystemTime& right)
{
    return left.Second == right.Second && left.Minute == right.Minute && left.Hour == right.Hour
           && left.Day == right.Day && left.Month == right.Month && left.Year == right.Year;
}

// Does the local time of this moment stand for that of `steps` before it, too?
bool TellsTheSame(Files& files, FileTime time, FileTime other)
{
    SystemTime local, otherLocal;
    return files.FileTimeToLocalSystemTime(time, local)
           && files.FileTimeToLocalSystemTime(other, otherLocal) && IsSameSecond(local, otherLocal);
}

bool IsSecondTime(Files& files, FileTime time)
{
    return std::ranges::any_of(putBackSeconds, [&](std::int64_t seconds) {
        return TellsTheSame(files, time, {time.Ticks - seconds * ticksPerSecond});
    });
}

// From a moment to the one of the same local time behind it, if there is one.
FileTime SecondTime(Files& files, FileTime time)
{
    for (const std::int64_t seconds : putBackSeconds) {
        const FileTime later{time.Ticks + seconds * ticksPerSecond};
        if (TellsTheSame(files, time, later))
            return later;
    }
    return time;
}

// A text that is the present one, in whatever form, keeps the present second.
FileTime Stamp_Wanted(Files& files, const std::string& text, FileTime stamp,
                      const std::string& presentText, FileTime present)
{
    constexpr std::int64_t farthest = 7200 * ticksPerSecond;
    const FileTime kept = WholeSeconds(present);
    const auto [low, high] = std::minmax(stamp.Ticks, kept.Ticks);
    const std::int64_t apart = high - low;
    const bool mayBeSame = apart <= farthest && stamp.Ticks != 0 && !text.ends_with(secondTimeMark);
    const bool isSame =
        text == presentText || (mayBeSame && apart != 0 && TellsTheSame(files, stamp, kept));
    return isSame ? kept : stamp;
}

bool Stamps_Write(Files& files, const std::string& path, const FileStamps& wanted,
                  const FileStamps& present)
{
    const FileTimes &texts = wanted.Texts, &now = present.Texts;
    return files.ChangeTimes(
        path, Stamp_Wanted(files, texts.Created, wanted.Created, now.Created, present.Created),
        Stamp_Wanted(files, texts.Accessed, wanted.Accessed, now.Accessed, present.Accessed),
        Stamp_Wanted(files, texts.Modified, wanted.Modified, now.Modified, present.Modified));
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
        const FileTime first = Local_To_FileTime(files, Time_Text_Parse(RTrim(text)));
        return text.ends_with(secondTimeMark) ? SecondTime(files, first) : first;
    };
    return {moment(texts.Created), moment(texts.Modified), moment(texts.Accessed), texts};
}

FileTimes Times_Marked(Files& files, const FileStamps& stamps)
{
    FileTimes texts = stamps.Texts;
    const auto mark = [&files](std::string& text, FileTime time) {
        if (IsSecondTime(files, time))
            text += secondTimeMark;
    };
    mark(texts.Created, stamps.Created);
    mark(texts.Modified, stamps.Modified);
    mark(texts.Accessed, stamps.Accessed);
    return texts;
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
