#include "platform/posix/entry_times.h"

#include "support/entry_ground.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/wait.h>

namespace tavo {

namespace {

constexpr const char* textName = "user.tavo.created";
constexpr const char* noTexts = "the file system of temporary files keeps no extended attributes";
constexpr std::int64_t second = 10'000'000;

// Whole seconds on 2000-01-01 and the days behind it.
constexpr FileTime day1{125'911'584'000'000'000};
constexpr FileTime day2{125'912'448'000'000'000};
constexpr FileTime day3{125'913'312'000'000'000};
constexpr FileTime none{};

bool SetTimes(PosixFiles& files, const std::string& path, const EntryTimes& times)
{
    const FileHandle file = files.OpenFile(path, OpenMode::Times);
    if (file == noFile)
        return false;
    const bool done = files.SetFileTime(file, times.Created, times.Accessed, times.Written);
    const int code = files.LastError();
    files.CloseHandle(file);
    return done && code == diskOk;
}

// The same of an entry that is read before, which then needs not be opened.
bool ChangeTimes(PosixFiles& files, const std::string& path, const EntryTimes& times)
{
    const bool done = files.StatTimes(path)
                      && files.ChangeTimes(path, times.Created, times.Accessed, times.Written);
    return done && files.LastError() == diskOk;
}

using Setter = bool (*)(PosixFiles& files, const std::string& path, const EntryTimes& times);
constexpr Setter setters[] = {SetTimes, ChangeTimes};

FileTime WholeSecond(FileTime time)
{
    return {time.Ticks - time.Ticks % second};
}

// Accessed and written of a link, without following it, which would be an
// access.
std::pair<FileTime, FileTime> LinkStamps(const std::string& path)
{
    struct stat data {};
    ::lstat(path.c_str(), &data);
    return {
        FileTimeFromUnix(data.st_atim.tv_sec, static_cast<std::uint32_t>(data.st_atim.tv_nsec)),
        FileTimeFromUnix(data.st_mtim.tv_sec, static_cast<std::uint32_t>(data.st_mtim.tv_nsec))};
}

std::string Shown(const FindData& data)
{
    return std::to_string(data.Created.Ticks) + ' ' + std::to_string(data.Accessed.Ticks) + ' '
           + std::to_string(data.Written.Ticks);
}

std::string Shown(EntryGround& ground, const std::string& name)
{
    const auto data = ground.Files.Stat(ground.Folder.Path(name));
    return data ? Shown(*data) + ' ' + ground.Text(name, textName).value_or("nothing") : "missing";
}

} // namespace

TEST(EntryTimes, Three_times_of_a_file_and_a_folder_are_set)
{
    EntryGround ground("times");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.Write("file");
    ground.Folder.MakeFolder("folder");
    for (const std::string name : {"file", "folder"}) {
        const std::string path = ground.Folder.Path(name);
        const FileTime odd{day2.Ticks + 1'234'567};
        EXPECT_TRUE(SetTimes(ground.Files, path, {day1, odd, day3})) << name;
        const auto data = ground.Files.Stat(path);
        EXPECT_EQ(data->Created, day1) << name;
        EXPECT_EQ(data->Accessed, odd) << name;
        EXPECT_EQ(data->Written, day3) << name;
        FindData found;
        ASSERT_NE(ground.Files.FindFirstFileA(path, found), invalidFind);
        EXPECT_EQ(found.Created, day1) << name << ", found by its name";
        EXPECT_EQ(ground.Text(name, textName), std::to_string(day1.Ticks)) << name;
    }
}

TEST(EntryTimes, A_time_of_0_is_left_alone)
{
    EntryGround ground("times");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.Write("a");
    const std::string path = ground.Folder.Path("a");
    ASSERT_TRUE(SetTimes(ground.Files, path, {day1, day2, day3}));
    const EntryTimes rows[] = {
        {none, none, none}, {day2, none, none}, {none, day3, none}, {none, none, day1}};
    for (const EntryTimes& row : rows) {
        auto wanted = *ground.Files.Stat(path);
        wanted.Created = row.Created == none ? wanted.Created : row.Created;
        wanted.Accessed = row.Accessed == none ? wanted.Accessed : row.Accessed;
        wanted.Written = row.Written == none ? wanted.Written : row.Written;
        EXPECT_TRUE(SetTimes(ground.Files, path, row));
        EXPECT_EQ(Shown(*ground.Files.Stat(path)), Shown(wanted));
    }
}

TEST(EntryTimes, Created_is_stored_only_where_the_disk_shows_another_second)
{
    EntryGround ground("times");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.Write("a");
    const std::string path = ground.Folder.Path("a");
    const FileTime birth = ground.Files.Stat(path)->Created;
    EXPECT_TRUE(SetTimes(ground.Files, path, {birth, none, day1}));
    EXPECT_EQ(ground.Text("a", textName), std::nullopt) << "the very time";
    EXPECT_TRUE(SetTimes(ground.Files, path, {WholeSecond(birth), none, day1}));
    EXPECT_EQ(ground.Text("a", textName), std::nullopt) << "its second";

    const FileTime next{WholeSecond(birth).Ticks + second};
    EXPECT_TRUE(SetTimes(ground.Files, path, {next, none, none}));
    EXPECT_EQ(ground.Text("a", textName), std::to_string(next.Ticks));
    EXPECT_EQ(ground.Files.Stat(path)->Created, next);
    EXPECT_TRUE(SetTimes(ground.Files, path, {WholeSecond(birth), none, none}));
    EXPECT_EQ(ground.Text("a", textName), std::nullopt) << "back again";
}

TEST(EntryTimes, A_stored_part_of_a_second_stays_with_its_second)
{
    EntryGround ground("times");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.Write("a");
    const std::string path = ground.Folder.Path("a");
    for (const std::int64_t ticks : {day1.Ticks + 5, -3 * second - 5}) {
        const std::string text = std::to_string(ticks);
        const std::int64_t start = ticks > 0 ? day1.Ticks : -4 * second;
        ASSERT_TRUE(SetTimes(ground.Files, path, {{ticks}, none, none}));
        EXPECT_EQ(ground.Text("a", textName), text);
        EXPECT_TRUE(SetTimes(ground.Files, path, {{start}, none, none}));
        EXPECT_EQ(ground.Text("a", textName), text) << "its own second";
        EXPECT_TRUE(SetTimes(ground.Files, path, {{start + 1}, none, none}));
        EXPECT_EQ(ground.Text("a", textName), std::to_string(start + 1));
    }
}

TEST(EntryTimes, Texts_that_are_no_time_are_none)
{
    const std::pair<const char*, std::optional<std::int64_t>> rows[] = {
        {"125911584000000000", day1.Ticks},
        {"-5", -5},
        {"1", 1},
        {"", std::nullopt},
        {"0", std::nullopt},
        {"x", std::nullopt},
        {"12 ", std::nullopt},
        {" 12", std::nullopt},
        {"0x12", std::nullopt},
        {"9223372036854775807", INT64_MAX},
        {"9223372036854775808", std::nullopt},
    };
    for (const auto& [text, ticks] : rows) {
        const auto parsed = ParseCreated(text);
        EXPECT_EQ(parsed ? std::optional(parsed->Ticks) : std::nullopt, ticks) << text;
    }
}

TEST(EntryTimes, A_listing_shows_what_the_disk_tells)
{
    EntryGround ground("times");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.Write("a");
    const FileTime birth = ground.Files.Stat(ground.Folder.Path("a"))->Created;
    ASSERT_TRUE(SetTimes(ground.Files, ground.Folder.Path("a"), {day1, none, none}));
    FindData found;
    const FindHandle search = ground.Files.FindFirstFileA(ground.Folder.Path("a*"), found);
    EXPECT_EQ(found.Created, birth);
    ground.Files.FindClose(search);
}

TEST(EntryTimes, A_link_has_times_of_its_own)
{
    EntryGround ground("times");
    ground.Folder.Write("a");
    ground.Folder.MakeLink("link", "a");
    ground.Folder.MakeLink("to nowhere", "missing");
    const std::string target = Shown(ground, "a");
    for (const std::string name : {"link", "to nowhere"}) {
        const std::string path = ground.Folder.Path(name);
        const FileTime created = ground.Files.Stat(path)->Created;
        EXPECT_TRUE(SetTimes(ground.Files, path, {WholeSecond(created), day2, day3})) << name;
        EXPECT_EQ(LinkStamps(path), std::pair(day2, day3)) << name;
        EXPECT_FALSE(SetTimes(ground.Files, path, {day1, day1, day1})) << name;
        EXPECT_EQ(LinkStamps(path), std::pair(day2, day3)) << name;
    }
    EXPECT_EQ(Shown(ground, "a"), target);
}

TEST(EntryTimes, An_open_entry_is_meant_whatever_takes_its_name)
{
    EntryGround ground("times");
    ground.Folder.Write("a");
    ground.Folder.Write("other");
    const std::string other = Shown(ground, "other");
    const FileHandle file = ground.Files.OpenFile(ground.Folder.Path("a"), OpenMode::Times);
    ASSERT_NE(file, noFile);
    ASSERT_EQ(std::rename(ground.Folder.Path("a").c_str(), ground.Folder.Path("b").c_str()), 0);
    ground.Folder.MakeLink("a", "other");
    EXPECT_TRUE(ground.Files.SetFileTime(file, none, day2, day3));
    ground.Files.CloseHandle(file);
    EXPECT_EQ(ground.Files.Stat(ground.Folder.Path("b"))->Written, day3);
    EXPECT_NE(ground.Files.Stat(ground.Folder.Path("a"))->Written, day3);
    EXPECT_EQ(Shown(ground, "other"), other);
}

TEST(EntryTimes, The_owner_needs_no_right_to_the_content)
{
    EntryGround ground("times");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.MakeFolder("open");
    ground.Folder.SetMode("open", 0777);
    for (unsigned number = 0; number < 10; ++number) {
        constexpr unsigned modes[] = {0644, 0444, 0400, 0200, 0000};
        const unsigned mode = modes[number / 2];
        const Setter setter = setters[number % 2];
        const std::string name = "open/" + std::to_string(number);
        const int code = AsPlainUser([&] {
            ground.Folder.Write(name);
            ground.Folder.SetMode(name, mode);
            return setter(ground.Files, ground.Folder.Path(name), {day1, day2, day3})
                       ? 0
                       : ground.Files.LastError() % 256 + 1;
        });
        EXPECT_EQ(code, 0) << mode;
        EXPECT_EQ(ground.Mode(name), mode);
        ground.Folder.SetMode(name, 0644); // so that the test may read
        const auto data = ground.Files.Stat(ground.Folder.Path(name));
        EXPECT_EQ(data->Created, day1) << mode;
        EXPECT_EQ(data->Written, day3) << mode;
    }
}

TEST(EntryTimes, A_stranger_sets_none)
{
    EntryGround ground("times");
    ground.Folder.Write("a");
    ground.Folder.SetMode("a", 0666);
    if (::geteuid() != 0)
        GTEST_SKIP() << "the files of another user take root";
    const std::string before = Shown(ground, "a");
    const int done = AsPlainUser([&] {
        return SetTimes(ground.Files, ground.Folder.Path("a"), {day1, day2, day3}) ? 1 : 0;
    });
    EXPECT_EQ(done, 0);
    EXPECT_EQ(Shown(ground, "a"), before);
}

TEST(EntryTimes, Without_birth_times_Created_is_the_written_time_until_it_is_set)
{
    EntryGround ground("times");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Entries->HidesBirth = true;
    ground.Folder.Write("a");
    const std::string path = ground.Folder.Path("a");
    EXPECT_TRUE(SetTimes(ground.Files, path, {day1, none, day1}));
    EXPECT_EQ(ground.Text("a", textName), std::nullopt) << "the same as the new written time";
    EXPECT_TRUE(SetTimes(ground.Files, path, {day1, none, none}));
    EXPECT_EQ(ground.Text("a", textName), std::nullopt) << "the same as the old one";
    EXPECT_TRUE(SetTimes(ground.Files, path, {day1, none, day2}));
    EXPECT_EQ(ground.Files.Stat(path)->Created, day1) << "the written time moves away from it";
    EXPECT_TRUE(SetTimes(ground.Files, path, {day2, none, none}));
    EXPECT_EQ(ground.Text("a", textName), std::nullopt);
}

struct LackRow {
    const char* What;
    bool HidesBirth;
    FileTime Created; // 0 stands for the one that is shown
    bool Wanted;
};

TEST(EntryTimes, A_disk_that_cannot_keep_Created_fails_only_when_it_was_to_change)
{
    const LackRow rows[] = {
        {"birth, unchanged", false, none, true},
        {"birth, another", false, day1, false},
        {"no birth, unchanged while written moves", true, none, true},
        {"no birth, as the new written one", true, day3, true},
        {"no birth, another", true, day1, false},
    };
    for (const LackRow& row : rows) {
        EntryGround ground("times");
        ground.Entries->HidesBirth = row.HidesBirth;
        ground.Entries->Faults.FailAll = "GetText";
        ground.Entries->Faults.Error = ENOTSUP;
        ground.Folder.Write("a");
        const std::string before = Shown(ground, "a");
        const auto data = *ground.Files.Stat(ground.Folder.Path("a"));
        const FileTime shown = row.HidesBirth ? data.Written : data.Created;
        const FileTime created = row.Created == none ? WholeSecond(shown) : row.Created;
        const std::string path = ground.Folder.Path("a");
        const FileHandle file = ground.Files.OpenFile(path, OpenMode::Times);
        EXPECT_EQ(ground.Files.SetFileTime(file, created, day2, day3), row.Wanted) << row.What;
        EXPECT_EQ(ground.Files.LastErrorText(), row.Wanted ? "" : "Operation not supported")
            << row.What;
        EXPECT_EQ(ground.Files.Stat(path)->Written == day3, row.Wanted) << row.What;
        EXPECT_TRUE(row.Wanted || Shown(ground, "a") == before) << row.What;
    }
}

TEST(EntryTimes, Times_beyond_all_calendars_do_no_harm)
{
    EntryGround ground("times");
    ground.Folder.Write("a", "content");
    for (const std::int64_t ticks : {INT64_MIN, std::int64_t{-1}, std::int64_t{1}, INT64_MAX}) {
        SetTimes(ground.Files, ground.Folder.Path("a"), {{ticks}, {ticks}, {ticks}});
        EXPECT_TRUE(ground.Files.Stat(ground.Folder.Path("a"))) << ticks;
    }
    EXPECT_EQ(ground.Folder.Read("a"), "content");
}

// -- Faults

struct ChangeRow {
    const char* What;
    unsigned Mode;
    FileTime Before; // stored; 0 for nothing
    EntryTimes Wanted;
};

const ChangeRow changes[] = {
    {"all three, with nothing stored", 0644, none, {day1, day2, day3}},
    {"all three, with another stored", 0444, day3, {day1, day2, day3}},
    {"written alone", 0644, day3, {none, none, day2}},
    {"Created alone", 0644, none, {day2, none, none}},
};

// Each call of one change in turn fails with this error.
void Fail_EachCall(const ChangeRow& row, Setter setter, int error)
{
    for (std::size_t failing = 1;; ++failing) {
        EntryGround ground("times");
        ground.Folder.Write("a", "content");
        const std::string path = ground.Folder.Path("a");
        ASSERT_TRUE(SetTimes(ground.Files, path, {row.Before, day1, day1}));
        ground.Folder.SetMode("a", row.Mode);
        const std::string before = Shown(ground, "a");
        auto& faults = ground.Entries->Faults;
        faults.Calls.clear();
        faults.FailAt = failing;
        faults.Error = error;
        const bool done = setter(ground.Files, path, row.Wanted);
        faults.FailAt = 0;
        EXPECT_EQ(ground.Mode("a"), row.Mode) << row.What;
        if (!done) {
            EXPECT_EQ(Shown(ground, "a"), before)
                << row.What << ", " << error << " at call " << failing;
        } else if (row.Wanted.Created != none) {
            EXPECT_EQ(ground.Files.Stat(path)->Created, row.Wanted.Created) << row.What;
        }
        if (failing > faults.Calls.size()) {
            EXPECT_TRUE(done) << row.What;
            EXPECT_GE(failing, 3u) << row.What;
            return;
        }
    }
}

TEST(EntryTimes, A_call_that_fails_leaves_all_as_they_were)
{
    if (!EntryGround("times").KeepsTexts())
        GTEST_SKIP() << noTexts;
    for (const ChangeRow& row : changes)
        for (const Setter setter : setters)
            for (const int error : diskFaults)
                Fail_EachCall(row, setter, error);
}

TEST(EntryTimes, What_was_just_read_is_changed_without_opening)
{
    for (const ChangeRow& row : changes) {
        EntryGround ground("times");
        if (!ground.KeepsTexts())
            GTEST_SKIP() << noTexts;
        for (const std::string name : {"a", "b"}) {
            ground.Folder.Write(name);
            ASSERT_TRUE(SetTimes(ground.Files, ground.Folder.Path(name), {row.Before, day1, day1}));
        }
        auto& calls = ground.Entries->Faults.Calls;
        calls.clear();
        EXPECT_TRUE(ChangeTimes(ground.Files, ground.Folder.Path("a"), row.Wanted)) << row.What;
        EXPECT_EQ(std::ranges::count(calls, "Open"), 0) << row.What;
        EXPECT_LE(calls.size(), 4u) << row.What;
        EXPECT_TRUE(SetTimes(ground.Files, ground.Folder.Path("b"), row.Wanted));
        const auto a = *ground.Files.Stat(ground.Folder.Path("a"));
        const auto b = *ground.Files.Stat(ground.Folder.Path("b"));
        if (row.Wanted.Created != none || row.Before != none) {
            EXPECT_EQ(a.Created, b.Created) << row.What;
        }
        EXPECT_EQ(a.Written, b.Written) << row.What;
        EXPECT_EQ(ground.Text("a", textName), ground.Text("b", textName)) << row.What;
    }
}

TEST(EntryTimes, What_was_read_of_another_entry_does_not_count)
{
    EntryGround ground("times");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.Write("a");
    ground.Folder.Write("b");
    const std::string a = ground.Folder.Path("a"), b = ground.Folder.Path("b");
    ASSERT_TRUE(SetTimes(ground.Files, a, {day1, none, none}));
    ASSERT_TRUE(ground.Files.StatTimes(b));
    // By what "b" has, the day would have to be stored anew and its second not.
    EXPECT_TRUE(
        ground.Files.ChangeTimes(a, WholeSecond(ground.Files.Stat(b)->Created), none, none));
    EXPECT_NE(ground.Files.Stat(a)->Created, day1);
    EXPECT_FALSE(ground.Files.ChangeTimes(ground.Folder.Path("missing"), day1, day1, day1));
    EXPECT_EQ(ground.Files.LastError(), diskMissing);
}

TEST(EntryTimes, Times_are_read_as_with_all_else)
{
    EntryGround ground("times");
    ground.Folder.Write("file");
    ground.Folder.Write("set");
    ground.Folder.MakeFolder("folder");
    ground.Folder.MakeLink("link", "set");
    ground.Folder.MakeLink("to nowhere", "missing");
    if (ground.KeepsTexts()) {
        ASSERT_TRUE(SetTimes(ground.Files, ground.Folder.Path("set"), {day1, day2, day3}));
    }
    for (const std::string name : {"file", "set", "folder", "link", "to nowhere"}) {
        ground.Files.Stat(ground.Folder.Path(name)); // follows a link, which is an access to it
        const auto all = ground.Files.Stat(ground.Folder.Path(name));
        const auto times = ground.Files.StatTimes(ground.Folder.Path(name));
        ASSERT_TRUE(times) << name;
        EXPECT_EQ(Shown(*times), Shown(*all)) << name;
    }
    for (const std::string name : {"missing", "missing/a", "file/b"}) {
        EXPECT_FALSE(ground.Files.StatTimes(ground.Folder.Path(name))) << name;
        const int code = ground.Files.LastError();
        EXPECT_FALSE(ground.Files.Stat(ground.Folder.Path(name))) << name;
        EXPECT_EQ(code, ground.Files.LastError()) << name;
    }
}

TEST(EntryTimes, A_process_that_ends_leaves_old_or_new_ones)
{
    for (const ChangeRow& row : changes) {
        for (std::size_t step = 2; step < 14; ++step) {
            const std::size_t call = step / 2;
            const Setter setter = setters[step % 2];
            EntryGround ground("times");
            if (!ground.KeepsTexts())
                GTEST_SKIP() << noTexts;
            ground.Folder.Write("a", "content");
            const std::string path = ground.Folder.Path("a");
            ASSERT_TRUE(SetTimes(ground.Files, path, {row.Before, day1, day1}));
            const auto before = *ground.Files.Stat(path);
            const pid_t child = ::fork();
            ASSERT_GE(child, 0);
            if (child == 0) {
                ground.Entries->Faults.Calls.clear();
                ground.Entries->Faults.KillBehind = call;
                setter(ground.Files, path, row.Wanted);
                ::_exit(0);
            }
            ASSERT_EQ(::waitpid(child, nullptr, 0), child);
            const auto after = *ground.Files.Stat(path);
            const auto isEither = [](FileTime now, FileTime old, FileTime wanted) {
                return now == old || now == wanted;
            };
            EXPECT_TRUE(isEither(after.Created, before.Created, row.Wanted.Created)) << row.What;
            EXPECT_TRUE(isEither(after.Accessed, before.Accessed, row.Wanted.Accessed)) << row.What;
            EXPECT_TRUE(isEither(after.Written, before.Written, row.Wanted.Written)) << row.What;
            EXPECT_EQ(ground.Folder.Read("a"), "content");
        }
    }
}

} // namespace tavo
