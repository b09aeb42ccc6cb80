#include "fileactions/attributes.h"

#include "support/disk_ground.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

using Texts = std::vector<std::string>;

struct RecordCase {
    std::int16_t Bits;
    const char* Record;
};

const RecordCase recordCases[] = {
    {0, "Attr: "},    {1, "Attr: R"},     {32, "Attr: A"},   {2, "Attr: H"},  {4, "Attr: S"},
    {33, "Attr: RA"}, {39, "Attr: RAHS"}, {38, "Attr: AHS"}, {6, "Attr: HS"}, {35, "Attr: RAH"},
    {16, "Attr: "},   {49, "Attr: RA"},   {1040, "Attr: "},
};

TEST(Attributes, The_undo_record_names_the_four_in_its_own_order)
{
    for (const RecordCase& row : recordCases) {
        EXPECT_EQ(Attr_Undo_Build(row.Bits), row.Record) << row.Bits;
        EXPECT_EQ(Attr_Undo_Parse(row.Record), row.Bits & 39) << row.Bits;
    }
}

TEST(Attributes, A_record_is_read_from_its_sixth_character_in_any_case)
{
    const std::pair<const char*, int> rows[] = {
        {"Attr: rahs", 39}, {"Attr: SHAR", 39}, {"Attr: a", 32}, {"Attr:R", 1},
        {"RASHARS", 5},     {"Attr", 0},        {"", 0},         {"Attr: xyz", 0},
    };
    for (const auto& [record, bits] : rows)
        EXPECT_EQ(Attr_Undo_Parse(record), bits) << record;
}

TEST(Attributes, A_number_is_split_into_its_flags)
{
    EXPECT_EQ(File_Attr_Split(0), (AttrFlags{0, 0, 0, 0}));
    EXPECT_EQ(File_Attr_Split(1), (AttrFlags{1, 0, 0, 0}));
    EXPECT_EQ(File_Attr_Split(32), (AttrFlags{0, 1, 0, 0}));
    EXPECT_EQ(File_Attr_Split(2), (AttrFlags{0, 0, 1, 0}));
    EXPECT_EQ(File_Attr_Split(4), (AttrFlags{0, 0, 0, 1}));
    EXPECT_EQ(File_Attr_Split(16 + 39), (AttrFlags{1, 1, 1, 1}));
}

class AttributeRun : public testing::TestWithParam<Ground> {
protected:
    AttributeRun() : ground(GetParam()), p(ground.P), disk(*ground.Memory())
    {
        p.state.RenMode = modeAttributes;
    }

    void Give(const std::string& path, std::uint32_t attributes)
    {
        disk.SetAttributes(ground.Full(path), attributes);
    }
    int Has(const std::string& path) { return File_Attr_Get(disk, ground.Full(path)); }
    // Archive, Read-Only, System, Hidden.
    void Tick(int archive, int readOnly, int system, int hidden)
    {
        const int values[] = {archive, readOnly, system, hidden};
        for (int i = 0; i < 4; ++i)
            p.main.chkAttr[i].Value = values[i];
    }
    Texts Undo() const { return ground.G.Column("UndoName"); }
    Texts Errors() const { return ground.G.Column("Errors"); }
    std::string Back(int row)
    {
        const std::string status = Attr_Undo_Row(p, row, counters);
        p.main.lsvRename.SetCell(row, p.state.colErrors, status);
        return status;
    }
    std::string Counted() const
    {
        return std::to_string(counters.Done) + "/" + std::to_string(counters.Errors) + "/"
               + std::to_string(counters.Unchanged);
    }

    DiskGround ground;
    Program& p;
    MemoryDisk& disk;
    RowCounters counters;
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, AttributeRun,
                         testing::Values(Ground::Windows, Ground::Linux),
                         [](const auto& test) { return Ground_Name(test.param); });

TEST_P(AttributeRun, The_boxes_are_the_whole_new_state)
{
    ground.Load({"d/a", "d/b", "d/c"});
    Give("d/a", 0);
    Give("d/b", 1 + 32);
    Give("d/c", 2 + 4);
    Tick(0, 1, 0, 1);
    Attr_Run(p, {1, 2, 3});
    EXPECT_EQ(Has("d/a"), 3);
    EXPECT_EQ(Has("d/b"), 3);
    EXPECT_EQ(Has("d/c"), 3);
    EXPECT_EQ(Undo(), (Texts{"Attr: ", "Attr: RA", "Attr: HS"}));
    EXPECT_EQ(Errors(), (Texts{"", "", ""}));
    EXPECT_EQ(ground.Counts(), "3//");
    EXPECT_EQ(p.main.lblActionInfo[0].Caption.Get(), "Changing Attributes...");
}

TEST_P(AttributeRun, Each_box_is_its_bit)
{
    static constexpr int bits[] = {32, 1, 4, 2};
    ground.Load({"d/a"});
    for (int box = 0; box < 4; ++box) {
        Tick(box == 0, box == 1, box == 2, box == 3);
        Attr_Run(p, {1});
        EXPECT_EQ(Has("d/a"), bits[box]) << box;
    }
}

TEST_P(AttributeRun, A_box_counts_only_at_1)
{
    ground.Load({"d/a"});
    Give("d/a", 32 + 1);
    Tick(2, 1, -1, 2);
    Attr_Run(p, {1});
    EXPECT_EQ(Has("d/a"), 1);
}

TEST_P(AttributeRun, Without_a_tick_all_four_go_and_none_counts_as_unchanged)
{
    ground.Load({"d/a", "d/b"});
    Give("d/a", 39);
    Give("d/b", 0);
    Tick(0, 0, 0, 0);
    Attr_Run(p, {1, 2});
    EXPECT_EQ(Has("d/a"), 0);
    EXPECT_EQ(Has("d/b"), 0);
    EXPECT_EQ(Undo(), (Texts{"Attr: RAHS", ""}));
    EXPECT_EQ(ground.Counts(), "1//1");
}

TEST_P(AttributeRun, An_equal_file_is_not_written)
{
    ground.Load({"d/a"});
    Give("d/a", 33);
    Tick(1, 1, 0, 0);
    disk.ForgetCalls();
    Attr_Run(p, {1});
    EXPECT_EQ(disk.Calls("SetFileAttributesA"), 0);
    EXPECT_EQ(ground.Counts(), "//1");
}

TEST_P(AttributeRun, A_folder_is_never_unchanged)
{
    ground.LoadFolders({"d/f"});
    Give("d/f", 16 + 1);
    Tick(0, 1, 0, 0);
    Attr_Run(p, {1});
    EXPECT_EQ(Has("d/f"), 16 + 1);
    EXPECT_EQ(Undo(), Texts{"Attr: R"});
    EXPECT_EQ(ground.Counts(), "1//");
}

TEST_P(AttributeRun, A_file_that_has_gone_is_missing)
{
    ground.Load({"d/a", "d/b"});
    ground.Remove("d/a");
    Give("d/b", 0);
    Tick(0, 1, 0, 0);
    Attr_Run(p, {1, 2});
    EXPECT_EQ(Errors(), (Texts{"Missing", ""}));
    EXPECT_EQ(Undo(), (Texts{"", "Attr: "}));
    EXPECT_EQ(ground.Counts(), "1/1/");
}

TEST_P(AttributeRun, A_change_that_fails_leaves_its_record_and_says_why)
{
    ground.Load({"d/a", "d/b"});
    Give("d/a", 33);
    Give("d/b", 33);
    Tick(0, 0, 0, 1);
    disk.Fail("SetFileAttributesA", 1, diskDenied);
    Attr_Run(p, {1, 2});
    EXPECT_EQ(Has("d/a"), 33);
    EXPECT_EQ(Has("d/b"), 2);
    EXPECT_EQ(Undo(), (Texts{"Attr: RA", "Attr: RA"}));
    EXPECT_EQ(Errors().at(0),
              ground.Kind == Ground::Windows ? "Access denied" : "Permission denied");
    EXPECT_EQ(Errors().at(1), "");
    EXPECT_EQ(ground.Counts(), "1/1/");
}

TEST_P(AttributeRun, The_record_stands_before_the_change_is_tried)
{
    ground.Load({"d/a"});
    Give("d/a", 1);
    Tick(0, 0, 0, 0);
    Texts seen;
    disk.Before("SetFileAttributesA", 1, [&](const auto&) { seen = Undo(); });
    Attr_Run(p, {1});
    EXPECT_EQ(seen, Texts{"Attr: R"});
}

TEST_P(AttributeRun, What_cannot_be_read_is_not_changed)
{
    ground.Load({"d/a"});
    Give("d/a", 1);
    Tick(0, 0, 0, 0);
    disk.Fail("GetFileAttributesA", 1, diskDenied);
    Attr_Run(p, {1});
    EXPECT_EQ(Has("d/a"), 1);
    EXPECT_EQ(Undo(), Texts{""});
    EXPECT_NE(Errors(), Texts{""});
    EXPECT_EQ(ground.Counts(), "/1/");
}

TEST_P(AttributeRun, A_cancel_ends_it_behind_the_row_in_hand)
{
    ground.Load({"d/a", "d/b", "d/c"});
    Tick(0, 0, 0, 1);
    Give("d/c", 0);
    ground.G.During(2, [&] { p.state.ActCancel = true; });
    Attr_Run(p, {1, 2, 3});
    EXPECT_EQ(Has("d/a"), 2);
    EXPECT_EQ(Has("d/b"), 2);
    EXPECT_EQ(Has("d/c"), 0);
    EXPECT_EQ(p.main.prbAction.Value.Get(), 66);
}

TEST_P(AttributeRun, Ticks_made_during_a_run_come_too_late)
{
    ground.Load({"d/a", "d/b"});
    Tick(0, 0, 0, 1);
    ground.G.During(1, [&] { Tick(0, 1, 0, 0); });
    Attr_Run(p, {1, 2});
    EXPECT_EQ(Has("d/b"), 2);
}

TEST_P(AttributeRun, Undo_brings_the_former_state_back_and_a_second_one_the_run)
{
    ground.Load({"d/a", "d/b"});
    Give("d/a", 33);
    Give("d/b", 0);
    Tick(0, 0, 1, 1);
    Attr_Run(p, {1, 2});
    EXPECT_EQ(Back(1) + Back(2), "");
    EXPECT_EQ(Has("d/a"), 33);
    EXPECT_EQ(Has("d/b"), 0) << "a record without a letter";
    EXPECT_EQ(Undo(), (Texts{"Attr: HS", "Attr: HS"}));
    EXPECT_EQ(Back(1) + Back(2), "");
    EXPECT_EQ(Has("d/a"), 6);
    EXPECT_EQ(Has("d/b"), 6);
    EXPECT_EQ(Undo(), (Texts{"Attr: RA", "Attr: "}));
    EXPECT_EQ(Counted(), "4/0/0");
}

TEST_P(AttributeRun, Undo_of_what_stands_so_already_is_unnecessary)
{
    ground.Load({"d/a"});
    Give("d/a", 33);
    p.main.lsvRename.SetCell(1, p.state.colUndoName, "Attr: ar");
    EXPECT_EQ(Back(1), "");
    EXPECT_EQ(Counted(), "0/0/1");
    EXPECT_EQ(Undo(), Texts{"Attr: ar"});
}

TEST_P(AttributeRun, An_undo_that_fails_keeps_its_record)
{
    ground.Load({"d/a", "d/b", "d/c"});
    for (const int row : {1, 2, 3})
        p.main.lsvRename.SetCell(row, p.state.colUndoName, "Attr: RH");
    ground.Remove("d/a");
    EXPECT_EQ(Back(1), "Missing");
    disk.Fail("SetFileAttributesA", 1, diskDenied);
    EXPECT_EQ(Back(2), "Unknown");
    disk.Fail("GetFileAttributesA", 1, diskDenied);
    EXPECT_EQ(Back(3), "Unknown");
    EXPECT_EQ(Undo(), (Texts{"Attr: RH", "Attr: RH", "Attr: RH"}));
    EXPECT_EQ(Counted(), "0/3/0");
    EXPECT_EQ(Back(2), "");
    EXPECT_EQ(Has("d/b"), 3);
}

struct ShowCase {
    std::uint32_t Bits;
    const char *Panel, *Boxes;
};

const ShowCase showCases[] = {
    {33, "a.mp3 ( A R )", "1100"}, {39, "a.mp3 ( A R S H )", "1111"}, {0, "a.mp3 ( )", "0000"},
    {2, "a.mp3 ( H )", "0001"},    {4, "a.mp3 ( S )", "0010"},
};

TEST_P(AttributeRun, A_row_shows_its_letters_in_the_order_of_the_boxes)
{
    ground.Load({"d/a.mp3"});
    for (const ShowCase& row : showCases) {
        for (const bool fills : {true, false}) {
            Give("d/a.mp3", row.Bits);
            Tick(0, 1, 1, 0);
            p.state.nnAutoFill = fills ? 1 : 0;
            EXPECT_TRUE(Attr_Row_Show(p));
            EXPECT_EQ(ground.G.Panel(2), row.Panel);
            std::string boxes;
            for (const auto& box : p.main.chkAttr)
                boxes += std::to_string(box->Value);
            EXPECT_EQ(boxes, fills ? row.Boxes : "0110") << row.Bits;
        }
    }
}

TEST_P(AttributeRun, A_row_that_cannot_be_read_leaves_the_boxes)
{
    ground.Load({"d/a"});
    ground.Remove("d/a");
    Tick(1, 0, 1, 0);
    p.state.nnAutoFill = 1;
    EXPECT_FALSE(Attr_Row_Show(p));
    EXPECT_EQ(ground.G.Panel(2), "Error Getting Attributes!");
    EXPECT_EQ(p.main.chkAttr[0].Value, 1);
    EXPECT_EQ(p.main.chkAttr[1].Value, 0);
    EXPECT_EQ(p.main.chkAttr[2].Value, 1);
}

TEST(AttributesOnDisk, A_read_only_file_is_changed_and_brought_back)
{
    DiskGround ground(Ground::RealDisk);
    Program& p = ground.P;
    ground.Load({"a", "*b?"});
    ground.Real()->SetMode("a", 0444);
    p.main.chkAttr[1].Value = 1;
    Attr_Run(p, {1, 2});
    EXPECT_EQ(ground.G.Column("UndoName"), (Texts{"", "Attr: "}));
    EXPECT_EQ(ground.Counts(), "1//1");
    p.main.chkAttr[1].Value = 0;
    Attr_Run(p, {1});
    EXPECT_EQ(File_Attr_Get(p.files, ground.Full("a")), 0);
    EXPECT_EQ(ground.G.Cell(1, "UndoName"), "Attr: R");
    RowCounters counters;
    EXPECT_EQ(Attr_Undo_Row(p, 1, counters), "");
    EXPECT_EQ(File_Attr_Get(p.files, ground.Full("a")), 1);
}

} // namespace
} // namespace tavo
