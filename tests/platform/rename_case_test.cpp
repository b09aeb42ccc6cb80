#include "platform/posix/rename.h"

#include "toolkit/text.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace tavo {
namespace {

// One folder, `/d/`, of a disk that is blind to case.
class CaseBlindDisk : public RenameDisk {
public:
    struct Stored {
        std::string Name;
        std::uint64_t Node;
    };
    // What a plain rename to another case of the same name does.
    enum class Habit { ChangesCase, KeepsCase };

    explicit CaseBlindDisk(Habit habit) : habit_(habit) {}

    std::vector<Stored> Entries;
    bool NoReplace = true;
    bool Listable = true;
    int Listings = 0;
    int FailMoveTo = 0; // error for a move to the name `Refused`
    std::string Refused;

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const Stored& entry : Entries)
            names.push_back(entry.Name);
        return names;
    }

    int MoveNoReplace(const std::string& from, const std::string& to) override
    {
        if (!NoReplace)
            return EINVAL;
        if (!Find(from))
            return ENOENT;
        return Find(to) ? EEXIST : Move(from, to);
    }
    int Move(const std::string& from, const std::string& to) override
    {
        Stored* entry = Find(from);
        if (!entry)
            return ENOENT;
        if (FailMoveTo && NameOf(to) == Refused)
            return FailMoveTo;
        Stored* target = Find(to);
        if (target && target->Node == entry->Node && habit_ == Habit::KeepsCase)
            return 0;
        EXPECT_TRUE(!target || target == entry) << "replaced " << to;
        entry->Name = NameOf(to);
        return 0;
    }
    int Link(const std::string&, const std::string&) override { return EPERM; }
    int Unlink(const std::string&) override { return EPERM; }
    int Look(const std::string& path, Entry& entry) override
    {
        if (path == "/d/") {
            entry = {{7, 1}, 1, true};
            return 0;
        }
        const Stored* found = Find(path);
        if (!found)
            return ENOENT;
        std::uint64_t links = 0;
        for (const Stored& other : Entries)
            links += other.Node == found->Node ? 1 : 0;
        entry = {{7, found->Node}, links, false};
        return 0;
    }
    int HasName(const std::string& folder, const std::string& name, bool& has) override
    {
        EXPECT_EQ(folder, "/d/");
        ++Listings;
        has = false;
        for (const Stored& entry : Entries)
            has = has || entry.Name == name;
        return Listable ? 0 : EACCES;
    }

private:
    static std::string NameOf(const std::string& path) { return path.substr(3); }
    Stored* Find(const std::string& path)
    {
        for (Stored& entry : Entries) {
            if (path.starts_with("/d/") && SameText(entry.Name, NameOf(path)))
                return &entry;
        }
        return nullptr;
    }

    Habit habit_;
};

using Habit = CaseBlindDisk::Habit;
using Names = std::vector<std::string>;

class CaseChange : public testing::TestWithParam<std::tuple<Habit, bool>> {
protected:
    CaseChange() { disk.NoReplace = std::get<1>(GetParam()); }

    CaseBlindDisk disk{std::get<0>(GetParam())};
    Renamer renamer{disk};
};

INSTANTIATE_TEST_SUITE_P(Disks, CaseChange,
                         testing::Combine(testing::Values(Habit::ChangesCase, Habit::KeepsCase),
                                          testing::Bool()));

TEST_P(CaseChange, It_changes_the_stored_name)
{
    disk.Entries = {{"name", 2}, {"other", 3}};
    EXPECT_EQ(renamer.Rename("/d/name", "/d/NAME"), diskOk);
    EXPECT_EQ(disk.Names(), (Names{"NAME", "other"}));
    EXPECT_EQ(renamer.Rename("/d/NAME", "/d/Name"), diskOk);
    EXPECT_EQ(disk.Names(), (Names{"Name", "other"}));
}

TEST_P(CaseChange, Another_file_of_that_name_is_left_alone)
{
    disk.Entries = {{"name", 2}, {"other", 3}};
    EXPECT_EQ(renamer.Rename("/d/name", "/d/OTHER"), diskExists);
    EXPECT_EQ(renamer.Rename("/d/name", "/d/name"), diskExists);
    EXPECT_EQ(disk.Names(), (Names{"name", "other"}));
}

TEST_P(CaseChange, One_that_has_a_second_hard_link_of_another_name_changes_too)
{
    disk.Entries = {{"name", 2}, {"link", 2}};
    EXPECT_EQ(renamer.Rename("/d/name", "/d/NAME"), diskOk);
    EXPECT_EQ(disk.Names(), (Names{"NAME", "link"}));
}

TEST_P(CaseChange, Two_stored_spellings_are_two_files)
{
    disk.Entries = {{"name", 2}, {"NAME", 2}};
    EXPECT_EQ(renamer.Rename("/d/name", "/d/NAME"), diskExists);
    EXPECT_EQ(disk.Names(), (Names{"name", "NAME"}));
}

TEST_P(CaseChange, Where_the_folder_cannot_be_listed_it_goes_by_a_third_name)
{
    disk.Listable = false;
    disk.Entries = {{"name", 2}};
    EXPECT_EQ(renamer.Rename("/d/name", "/d/NAME"), diskOk);
    EXPECT_EQ(disk.Names(), Names{"NAME"});
}

TEST_P(CaseChange, The_third_name_is_a_free_one)
{
    disk.Listable = false;
    disk.Entries = {{"name", 2}, {"name~1", 3}, {"NAME~2", 4}};
    EXPECT_EQ(renamer.Rename("/d/name", "/d/NAME"), diskOk);
    EXPECT_EQ(disk.Names(), (Names{"NAME", "name~1", "NAME~2"}));
}

TEST_P(CaseChange, The_folder_is_listed_for_the_first_file_only)
{
    for (int number = 0; number < 20; ++number)
        disk.Entries.push_back({"name" + std::to_string(number), 10u + number});
    for (int number = 0; number < 20; ++number) {
        const std::string tail = std::to_string(number);
        EXPECT_EQ(renamer.Rename("/d/name" + tail, "/d/Name" + tail), diskOk);
    }
    EXPECT_EQ(disk.Names().back(), "Name19");
    EXPECT_EQ(disk.Listings, 1);
}

TEST(Rename, A_case_change_that_fails_half_way_gives_the_old_name_back)
{
    CaseBlindDisk disk(Habit::KeepsCase);
    Renamer renamer(disk);
    disk.Entries = {{"first", 1}, {"name", 2}};
    ASSERT_EQ(renamer.Rename("/d/first", "/d/First"), diskOk);
    disk.FailMoveTo = EIO;
    disk.Refused = "NAME";
    EXPECT_EQ(renamer.Rename("/d/name", "/d/NAME"), 2000 + EIO);
    EXPECT_EQ(disk.Names(), (Names{"First", "name"}));
}

} // namespace
} // namespace tavo
