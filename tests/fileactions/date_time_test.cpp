#include "fileactions/date_time.h"

#include "core/screens.h"
#include "fileactions/file_times.h"
#include "support/disk_ground.h"
#include "support/memory_clock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace tavo {
namespace {

using Texts = std::vector<std::string>;

constexpr std::int64_t ticksPerSecond = 10'000'000;

// 03/07/2001 at this time of day, and a fraction of a second.
FileTime Stamp(int hour, int minute, int second, int milliseconds = 0)
{
    return Clock_Moment(2001, 3, 7, hour, minute, second, milliseconds);
}

std::string Joined(const FileTimes& times)
{
    return times.Created + " " + times.Modified + " " + times.Accessed;
}

class DateTimeRun : public testing::TestWithParam<Ground> {
protected:
    DateTimeRun() : ground(GetParam()), p(ground.P), s(ground.P.state), disk(*ground.Memory())
    {
        s.RenMode = modeDateTime;
        ground.G.Desktop.Clock = {2024, 2, 4, 29, 13, 5, 7, 0};
    }

    // Created 9:05:12 PM, modified 9:05:13 PM, accessed on the 8th at midnight.
    void Give(const std::string& path)
    {
        disk.SetTimes(ground.Full(path), Stamp(21, 5, 13, 250), Stamp(21, 5, 12, 750),
                      Clock_Moment(2001, 3, 8, 0, 0, 0, 500));
    }
    void LoadOne()
    {
        ground.Load({"d/a"});
        Give("d/a");
    }
    void Form(const char* created, const char* createdTime, const char* modified,
              const char* modifiedTime, const char* accessed)
    {
        const char* texts[] = {created, createdTime, modified, modifiedTime, accessed};
        for (int i = 1; i <= 5; ++i)
            p.main.txtDateTime[i].Text = texts[i - 1];
    }
    void FormNew() { Form("01/02/1999", "03:04:05 PM", "06/07/1998", "08:09:10 AM", "11/12/1997"); }
    void Flags(int created, int modified, int accessed)
    {
        s.dtCreate = static_cast<std::uint8_t>(created);
        s.dtMod = static_cast<std::uint8_t>(modified);
        s.dtAccess = static_cast<std::uint8_t>(accessed);
    }
    FileTimes TimesOf(const std::string& path) { return File_Times_Get(disk, ground.Full(path)); }
    FindData DataOf(const std::string& path) { return disk.Stat(ground.Full(path)).value(); }
    Texts Undo() const { return ground.G.Column("UndoName"); }
    Texts Errors() const { return ground.G.Column("Errors"); }
    std::string Counted() const
    {
        return std::to_string(counters.Done) + "/" + std::to_string(counters.Errors) + "/"
               + std::to_string(counters.Unchanged);
    }

    DiskGround ground;
    Program& p;
    SharedState& s;
    MemoryDisk& disk;
    RowCounters counters;
    const std::string before =
        "03/07/2001|09:05:12 PM 03/07/2001|09:05:13 PM 03/08/2001|12:00:00 AM";
    const std::string record =
        "DT: 03/07/2001|09:05:12 PM=03/07/2001|09:05:13 PM=03/08/2001|12:00:00 AM";
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, DateTimeRun,
                         testing::Values(Ground::Windows, Ground::Linux),
                         [](const auto& test) { return Ground_Name(test.param); });

TEST_P(DateTimeRun, The_form_is_in_24_hours_and_its_accessed_time_is_midnight)
{
    FormNew();
    EXPECT_EQ(Joined(DT_Form_Get(p)),
              "01/02/1999|15:04:05 06/07/1998|08:09:10 11/12/1997|12:00:00 AM");
}

TEST_P(DateTimeRun, A_box_that_is_not_left_gives_its_raw_text)
{
    Form("02/30/2001", "09:__:__ AM", "1_/05/2001", "", "");
    EXPECT_EQ(Joined(DT_Form_Get(p)),
              "02/30/2001|09:__:__ AM 1_/05/2001|__:__:__ __ __/__/____|12:00:00 AM");
}

TEST_P(DateTimeRun, The_boxes_show_the_times_of_a_file_whatever_Auto_Fill_says)
{
    LoadOne();
    for (const int fills : {0, 1}) {
        s.nnAutoFill = static_cast<std::uint8_t>(fills);
        FormNew();
        DT_Form_Fill(p, ground.Full("d/a"));
        Texts shown;
        for (const auto& box : p.main.txtDateTime)
            shown.push_back(box->Text);
        EXPECT_EQ(shown,
                  (Texts{"03/07/2001", "09:05:12 PM", "03/07/2001", "09:05:13 PM", "03/08/2001"}));
    }
}

TEST_P(DateTimeRun, A_file_that_cannot_be_read_empties_the_boxes)
{
    FormNew();
    DT_Form_Fill(p, ground.Full("d/none"));
    EXPECT_EQ(p.main.txtDateTime[1].Text.Get(), "__/__/____");
    EXPECT_EQ(p.main.txtDateTime[2].Text.Get(), "__:__:__ __");
    EXPECT_EQ(p.main.txtDateTime[5].Text.Get(), "__/__/____");
}

struct FlagCase {
    int Created, Modified, Accessed;
    const char* After;
};

const FlagCase flagCases[] = {
    {1, 0, 0, "01/02/1999|03:04:05 PM 03/07/2001|09:05:13 PM 03/08/2001|12:00:00 AM"},
    {0, 1, 0, "03/07/2001|09:05:12 PM 06/07/1998|08:09:10 AM 03/08/2001|12:00:00 AM"},
    {0, 0, 1, "03/07/2001|09:05:12 PM 03/07/2001|09:05:13 PM 11/12/1997|12:00:00 AM"},
    {1, 1, 1, "01/02/1999|03:04:05 PM 06/07/1998|08:09:10 AM 11/12/1997|12:00:00 AM"},
};

TEST_P(DateTimeRun, Only_the_times_that_are_ticked_change)
{
    LoadOne();
    FormNew();
    for (const FlagCase& row : flagCases) {
        Give("d/a");
        p.main.lsvRename.SetCell(1, s.colUndoName, "");
        Flags(row.Created, row.Modified, row.Accessed);
        DT_Run(p, {1});
        EXPECT_EQ(Joined(TimesOf("d/a")), row.After);
        EXPECT_EQ(Undo(), Texts{record}) << row.After;
        EXPECT_EQ(Errors(), Texts{""}) << row.After;
        EXPECT_EQ(ground.Counts(), "1//");
    }
    EXPECT_EQ(p.main.lblActionInfo[0].Caption.Get(), "Changing Date and Time...");
    EXPECT_EQ(disk.OpenFiles(), 0);
}

TEST_P(DateTimeRun, A_flag_counts_only_at_1)
{
    LoadOne();
    FormNew();
    Flags(2, 255, 3);
    DT_Run(p, {1});
    EXPECT_EQ(Joined(TimesOf("d/a")), before);
    EXPECT_EQ(ground.Counts(), "//1");
}

TEST_P(DateTimeRun, Times_that_stay_lose_their_fraction)
{
    LoadOne();
    FormNew();
    Flags(0, 0, 1);
    DT_Run(p, {1});
    EXPECT_EQ(DataOf("d/a").Created, Stamp(21, 5, 12));
    EXPECT_EQ(DataOf("d/a").Written, Stamp(21, 5, 13));
}

TEST_P(DateTimeRun, With_nothing_ticked_every_row_is_unchanged)
{
    ground.Load({"d/a", "d/b"});
    FormNew();
    Flags(0, 0, 0);
    disk.ForgetCalls();
    DT_Run(p, {1, 2});
    EXPECT_EQ(ground.Counts(), "//2");
    EXPECT_EQ(disk.Calls("OpenFile"), 0);
    EXPECT_EQ(Undo(), (Texts{"", ""}));
}

TEST_P(DateTimeRun, Accessed_alone_is_unchanged_on_its_date_at_midnight)
{
    LoadOne();
    Form("", "", "", "", "03/08/2001");
    Flags(0, 0, 1);
    disk.ForgetCalls();
    DT_Run(p, {1});
    EXPECT_EQ(ground.Counts(), "//1");
    EXPECT_EQ(disk.Calls("OpenFile") + disk.Calls("SetFileTime"), 0);
    EXPECT_EQ(DataOf("d/a").Accessed, Clock_Moment(2001, 3, 8, 0, 0, 0, 500));
}

TEST_P(DateTimeRun, Accessed_later_on_its_date_is_changed)
{
    LoadOne();
    disk.SetTimes(ground.Full("d/a"), Stamp(1, 2, 3), Stamp(1, 2, 3),
                  Clock_Moment(2001, 3, 8, 0, 0, 1));
    Form("", "", "", "", "03/08/2001");
    Flags(0, 0, 1);
    DT_Run(p, {1});
    EXPECT_EQ(ground.Counts(), "1//");
    EXPECT_EQ(TimesOf("d/a").Accessed, "03/08/2001|12:00:00 AM");
}

TEST_P(DateTimeRun, The_very_times_of_the_file_count_as_a_change)
{
    LoadOne();
    DT_Form_Fill(p, ground.Full("d/a"));
    for (const bool created : {true, false}) {
        Flags(created, !created, 0);
        DT_Run(p, {1});
        EXPECT_EQ(ground.Counts(), "1//") << created;
        EXPECT_EQ(Joined(TimesOf("d/a")), before);
        EXPECT_EQ(Undo(), Texts{record});
    }
}

TEST_P(DateTimeRun, A_read_only_file_is_changed_and_stays_so)
{
    LoadOne();
    disk.SetAttributes(ground.Full("d/a"), attrReadOnly | attrHidden | attrArchive);
    FormNew();
    Flags(0, 1, 0);
    disk.ForgetCalls();
    DT_Run(p, {1});
    EXPECT_EQ(TimesOf("d/a").Modified, "06/07/1998|08:09:10 AM");
    EXPECT_EQ(disk.GetFileAttributesA(ground.Full("d/a")), 35u);
    const bool needsChange = ground.Kind == Ground::Windows;
    EXPECT_EQ(disk.Calls("SetFileAttributesA"), needsChange ? 2 : 0);
}

TEST_P(DateTimeRun, Attributes_come_back_also_when_the_file_cannot_be_opened_or_set)
{
    for (const char* call : {"OpenFile", "SetFileTime"}) {
        LoadOne();
        disk.SetAttributes(ground.Full("d/a"), attrReadOnly | attrSystem);
        FormNew();
        Flags(1, 1, 1);
        disk.Fail(call, 1, diskDenied);
        DT_Run(p, {1});
        EXPECT_EQ(disk.GetFileAttributesA(ground.Full("d/a")), 5u) << call;
        EXPECT_EQ(Joined(TimesOf("d/a")), before) << call;
        EXPECT_EQ(Errors(), Texts{"Unknown"}) << call;
        EXPECT_EQ(Undo(), Texts{""}) << call;
        EXPECT_EQ(ground.Counts(), "/1/") << call;
        EXPECT_EQ(disk.OpenFiles(), 0) << call;
    }
}

TEST_P(DateTimeRun, Times_that_cannot_be_read_are_not_changed)
{
    LoadOne();
    FormNew();
    Flags(1, 0, 0);
    disk.Fail("Stat", 1, diskDenied);
    DT_Run(p, {1});
    EXPECT_EQ(Joined(TimesOf("d/a")), before);
    EXPECT_EQ(Errors(), Texts{"Unknown"});
    EXPECT_EQ(Undo(), Texts{""});
}

TEST_P(DateTimeRun, A_file_that_has_gone_is_missing)
{
    ground.Load({"d/a", "d/b"});
    ground.Remove("d/a");
    FormNew();
    Flags(1, 0, 0);
    DT_Run(p, {1, 2});
    EXPECT_EQ(Errors(), (Texts{"Missing", ""}));
    EXPECT_EQ(ground.Counts(), "1/1/");
}

TEST_P(DateTimeRun, What_happens_during_a_run_has_no_effect_on_it)
{
    ground.Load({"d/a", "d/b"});
    FormNew();
    Flags(0, 1, 0);
    ground.G.During(1, [&] {
        Form("", "", "", "", "");
        Flags(1, 0, 1);
    });
    DT_Run(p, {1, 2});
    EXPECT_EQ(TimesOf("d/b").Modified, "06/07/1998|08:09:10 AM");
    EXPECT_NE(TimesOf("d/b").Created, "01/02/1999|03:04:05 PM");
}

TEST_P(DateTimeRun, A_cancel_ends_it_behind_the_row_in_hand)
{
    ground.Load({"d/a", "d/b", "d/c"});
    FormNew();
    Flags(0, 1, 0);
    ground.G.During(2, [&] { s.ActCancel = true; });
    DT_Run(p, {1, 2, 3});
    EXPECT_EQ(TimesOf("d/b").Modified, "06/07/1998|08:09:10 AM");
    EXPECT_NE(TimesOf("d/c").Modified, "06/07/1998|08:09:10 AM");
    EXPECT_EQ(p.main.prbAction.Value.Get(), 66);
    EXPECT_EQ(ground.Counts(), "2//");
}

struct NoDateCase {
    const char *Date, *Time;
};

const NoDateCase noDateCases[] = {
    {"02/30/2001", "09:05:12 PM"}, {"__/__/____", "09:05:12 PM"}, {"1_/05/2001", "09:05:12 PM"},
    {"13/32/2001", "09:05:12 PM"}, {"03/07/2001", "25:00:00 __"},
};

TEST_P(DateTimeRun, A_text_that_is_no_date_leaves_that_stamp_alone)
{
    for (const NoDateCase& row : noDateCases) {
        LoadOne();
        Form(row.Date, row.Time, "06/07/1998", "08:09:10 AM", "");
        Flags(1, 1, 1);
        DT_Run(p, {1});
        EXPECT_EQ(Joined(TimesOf("d/a")),
                  "03/07/2001|09:05:12 PM 06/07/1998|08:09:10 AM 03/08/2001|12:00:00 AM")
            << row.Date << " " << row.Time;
        EXPECT_EQ(ground.Counts(), "1//");
    }
}

TEST_P(DateTimeRun, Stamps_before_1900_show_their_good_fields)
{
    ground.Load({"d/a"});
    disk.SetTimes(ground.Full("d/a"), Clock_Moment(1850, 3, 7, 21, 5, 12), FileTime{0},
                  Clock_Moment(1896, 2, 29, 1, 2, 3));
    EXPECT_EQ(TimesOf("d/a").Modified, "03/07/1967|09:05:12 PM");
    EXPECT_EQ(TimesOf("d/a").Accessed, "2/29/1967|01:02:03 AM");
    DT_Form_Fill(p, ground.Full("d/a"));
    EXPECT_EQ(p.main.txtDateTime[5].Text.Get(), "2_/29/1967");
    FormNew();
    Flags(1, 0, 0);
    DT_Run(p, {1});
    EXPECT_EQ(DataOf("d/a").Written, Clock_Moment(1850, 3, 7, 21, 5, 12)) << "was not to change";
}

TEST_P(DateTimeRun, A_stamp_that_cannot_be_told_shows_the_fixed_date)
{
    ground.Load({"d/a"});
    disk.FailWhen([](const MemoryDisk::Call& call) {
        return call.Name == "FileTimeToLocalSystemTime" ? 87 : 0;
    });
    EXPECT_EQ(TimesOf("d/a").Created, "02/20/1967|12:00:00 AM");
}

TEST_P(DateTimeRun, Typed_times_are_local)
{
    ground.Load({"d/a"});
    disk.SetZone(90);
    Form("", "", "03/07/2001", "01:00:00 AM", "");
    Flags(0, 1, 0);
    DT_Run(p, {1});
    EXPECT_EQ(DataOf("d/a").Written, Clock_Moment(2001, 3, 6, 23, 30, 0));
    EXPECT_EQ(TimesOf("d/a").Modified, "03/07/2001|01:00:00 AM");
}

TEST_P(DateTimeRun, Undo_brings_the_times_back_and_a_second_one_the_run)
{
    LoadOne();
    FormNew();
    Flags(1, 1, 1);
    DT_Run(p, {1});
    EXPECT_EQ(DT_Undo_Row(p, 1, counters), "");
    EXPECT_EQ(Joined(TimesOf("d/a")), before);
    EXPECT_EQ(DataOf("d/a").Written, Stamp(21, 5, 13)) << "to the second";
    EXPECT_EQ(Undo(), Texts{"DT: 01/02/1999|03:04:05 PM=06/07/1998|08:09:10 AM="
                            "11/12/1997|12:00:00 AM"});
    EXPECT_EQ(DT_Undo_Row(p, 1, counters), "");
    EXPECT_EQ(TimesOf("d/a").Modified, "06/07/1998|08:09:10 AM");
    EXPECT_EQ(Undo(), Texts{record});
    EXPECT_EQ(Counted(), "2/0/0");
}

TEST_P(DateTimeRun, An_undo_that_fails_keeps_its_record)
{
    ground.Load({"d/a", "d/b", "d/c", "d/e"});
    for (const int row : {1, 2, 3, 4})
        p.main.lsvRename.SetCell(row, s.colUndoName, record);
    ground.Remove("d/a");
    EXPECT_EQ(DT_Undo_Row(p, 1, counters), "Missing");
    disk.Fail("SetFileTime", 1, diskDenied);
    EXPECT_EQ(DT_Undo_Row(p, 2, counters), "Unknown");
    disk.Fail("Stat", 1, diskDenied);
    EXPECT_EQ(DT_Undo_Row(p, 3, counters), "Unknown");
    disk.Fail("OpenFile", 1, diskDenied);
    EXPECT_EQ(DT_Undo_Row(p, 4, counters), "Unknown");
    EXPECT_EQ(Undo(), Texts(4, record));
    EXPECT_EQ(Counted(), "0/4/0");
    EXPECT_EQ(DT_Undo_Row(p, 2, counters), "");
    EXPECT_EQ(Joined(TimesOf("d/b")), before);
}

TEST_P(DateTimeRun, A_folder_and_a_long_path_have_times_where_the_disk_lets_them)
{
    const std::string longName = "d/" + std::string(140, 'x');
    ground.Load({longName});
    FormNew();
    Flags(0, 1, 0);
    const bool opens = ground.Kind == Ground::Linux;
    DT_Run(p, {1});
    EXPECT_EQ(Errors(), Texts{opens ? "" : "Unknown"});
    ground.LoadFolders({"d/f"});
    FormNew();
    DT_Run(p, {1});
    EXPECT_EQ(Errors(), Texts{opens ? "" : "Unknown"});
    EXPECT_EQ(TimesOf("d/f").Modified == "06/07/1998|08:09:10 AM", opens);
}

// Local time by the rules of this zone, for as long as it lives.
class InZone {
public:
    explicit InZone(const char* zone)
    {
        if (const char* former = std::getenv("TZ"))
            former_ = former;
        Set(zone);
    }
    ~InZone() { Set(former_.c_str()); }
    InZone(const InZone&) = delete;
    InZone& operator=(const InZone&) = delete;

private:
    static void Set(const char* zone)
    {
        if (*zone == '\0')
            ::unsetenv("TZ");
        else
            ::setenv("TZ", zone, 1);
        ::tzset();
    }
    std::string former_;
};

// On the last Sunday of October the hour from 2 to 3 comes twice.
TEST(DateTimeOnDisk, A_stamp_that_stays_keeps_its_second_in_the_hour_that_comes_twice)
{
    const InZone berlin("CET-1CEST,M3.5.0,M10.5.0/3");
    DiskGround ground(Ground::RealDisk);
    Files& files = ground.P.files;
    ground.Load({"a"});
    const std::string path = ground.Full("a");
    const FileTime first = Clock_Moment(2023, 10, 29, 0, 30, 15);
    for (const FileTime stamp : {first, FileTime{first.Ticks + 3600 * ticksPerSecond}}) {
        const FileHandle file = files.OpenFile(path, OpenMode::Times);
        ASSERT_TRUE(files.SetFileTime(file, {}, {}, {stamp.Ticks + 5'000'000}));
        files.CloseHandle(file);
        FileTimes times = File_Times_Get(files, path);
        EXPECT_EQ(times.Modified, "10/29/2023|02:30:15 AM");
        times.Accessed = "03/08/2001|12:00:00 AM";
        EXPECT_TRUE(File_Times_Set(files, path, times));
        EXPECT_EQ(files.Stat(path).value().Written, stamp);
        EXPECT_EQ(File_Times_Get(files, path).Accessed, "03/08/2001|12:00:00 AM");
    }
    const FileTime second{first.Ticks + 3600 * ticksPerSecond};
    FileTimes typed = File_Times_Get(files, path);
    typed.Modified = "10/29/2023|02:30:15";
    EXPECT_TRUE(File_Times_Set(files, path, typed));
    EXPECT_EQ(files.Stat(path).value().Written, second) << "the same time in the boxes' form";
    typed.Modified = "10/29/2023|02:30:16";
    EXPECT_TRUE(File_Times_Set(files, path, typed));
    EXPECT_EQ(files.Stat(path).value().Written.Ticks, first.Ticks + ticksPerSecond)
        << "another text means the first one";
}

TEST(DateTimeOnDisk, An_undo_goes_back_to_the_very_hour_that_comes_twice)
{
    const InZone berlin("CET-1CEST,M3.5.0,M10.5.0/3");
    const FileTime first = Clock_Moment(2023, 10, 29, 0, 30, 15);
    for (const std::int64_t later : {0, 3600}) {
        DiskGround ground(Ground::RealDisk);
        Program& p = ground.P;
        Files& files = p.files;
        ground.Load({"a"});
        const std::string path = ground.Full("a");
        const FileTime stamp{first.Ticks + later * ticksPerSecond};
        const FileHandle file = files.OpenFile(path, OpenMode::Times);
        ASSERT_TRUE(files.SetFileTime(file, {}, {}, stamp));
        files.CloseHandle(file);
        p.state.SupWarnRen = p.state.SupWarnUndo = 1;
        Mode_Set(p, modeDateTime);
        p.main.chkDateTime[1].Value = 0;
        p.main.chkDateTime[2].Value = 1;
        p.main.txtDateTime[3].Text = "07/04/2001";
        Act_Run(p, actAll);
        ASSERT_NE(files.Stat(path).value().Written, stamp);
        for (int times = 0; times < 3; ++times)
            Act_Run(p, actUndo);
        EXPECT_EQ(files.Stat(path).value().Written, stamp) << later;
    }
}

TEST(DateTimeOnDisk, A_run_and_its_undo_on_real_files)
{
    const InZone berlin("CET-1CEST,M3.5.0,M10.5.0/3");
    DiskGround ground(Ground::RealDisk);
    Program& p = ground.P;
    ground.Load({"a", "*b?"});
    ground.Real()->SetMode("a", 0444);
    const std::string path = ground.Full("a");
    const FileTimes before = File_Times_Get(p.files, path);
    p.state.dtCreate = p.state.dtAccess = 0;
    p.state.dtMod = 1;
    p.main.txtDateTime[3].Text = "07/07/2001";
    p.main.txtDateTime[4].Text = "01:00:00 AM";
    DT_Run(p, {1, 2});
    EXPECT_EQ(ground.Counts(), "2//");
    EXPECT_EQ(p.files.Stat(path).value().Written, Clock_Moment(2001, 7, 6, 23, 0, 0));
    EXPECT_EQ(File_Times_Get(p.files, path).Created, before.Created);
    EXPECT_EQ(p.files.GetFileAttributesA(path), 1u);
    RowCounters counters;
    EXPECT_EQ(DT_Undo_Row(p, 1, counters) + DT_Undo_Row(p, 2, counters), "");
    EXPECT_EQ(Joined(File_Times_Get(p.files, path)), Joined(before));
}

} // namespace
} // namespace tavo
