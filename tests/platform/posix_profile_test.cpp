#include "platform/posix/posix_profile.h"

#include "support/faulty_edit_disk.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace tavo {
namespace {

class PosixProfiles : public testing::Test {
protected:
    std::string Get(const std::string& key)
    {
        return profile.GetPrivateProfileStringA("S", key, "default", 2048, file);
    }

    bool Put(const std::string& key, const std::string& value)
    {
        return profile.WritePrivateProfileStringA("S", key, value, file);
    }

    TempFolder folder{"profile"};
    std::string file = folder.Path("Tavo.ini");
    PosixProfile profile;
};

TEST_F(PosixProfiles, A_missing_or_closed_file_gives_the_default)
{
    EXPECT_EQ(Get("k"), "default");
    EXPECT_EQ(profile.GetPrivateProfileStringA("S", std::nullopt, "", 2048, file), "");
    file = folder.Path("missing/Tavo.ini");
    EXPECT_EQ(Get("k"), "default");
    file = folder.Path();
    EXPECT_EQ(Get("k"), "default");
    file = "Tavo.ini";
    EXPECT_EQ(Get("k"), "default");
    file = folder.Path("closed.ini");
    folder.Write("closed.ini", "[S]\nk=v");
    folder.SetMode("closed.ini", 0000);
    EXPECT_EQ(AsPlainUser([&] { return Get("k") == "default"; }), 1);
}

TEST_F(PosixProfiles, Values_and_lists_come_from_the_file)
{
    folder.Write("Tavo.ini", "[S]\nk=v\nq=\"*a b*\"\n");
    EXPECT_EQ(Get("K"), "v");
    EXPECT_EQ(Get("q"), "*a b*");
    EXPECT_EQ(Get("r"), "default");
    EXPECT_EQ(profile.GetPrivateProfileStringA("s", std::nullopt, "", 2048, file),
              std::string("k\0q\0", 4));
}

TEST_F(PosixProfiles, Each_call_sees_the_file_as_it_is)
{
    folder.Write("Tavo.ini", "[S]\nk=1");
    EXPECT_EQ(Get("k"), "1");
    // The same size, and written so soon that its time may be the same.
    folder.Write("Tavo.ini", "[S]\nk=2");
    EXPECT_EQ(Get("k"), "2");
    folder.Remove("Tavo.ini");
    EXPECT_EQ(Get("k"), "default");
    folder.Write("Tavo.ini", "[S]\nk=3");
    EXPECT_EQ(Get("k"), "3");
    folder.Write("new.ini", "[S]\nk=4");
    ASSERT_EQ(std::rename(folder.Path("new.ini").c_str(), file.c_str()), 0);
    EXPECT_EQ(Get("k"), "4");
}

TEST_F(PosixProfiles, A_written_time_set_back_hides_no_change)
{
    folder.Write("Tavo.ini", "[S]\nk=1");
    const timespec times[2] = {{1000, 0}, {1000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    EXPECT_EQ(Get("k"), "1");
    folder.Write("Tavo.ini", "[S]\nk=2");
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    EXPECT_EQ(Get("k"), "2");
}

TEST_F(PosixProfiles, A_link_leads_to_the_file)
{
    folder.Write("real.ini", "[S]\nk=1");
    folder.MakeLink("Tavo.ini", "real.ini");
    EXPECT_EQ(Get("k"), "1");
    folder.Write("real.ini", "[S]\nk=22");
    EXPECT_EQ(Get("k"), "22");
}

TEST_F(PosixProfiles, Writes_are_seen_in_the_file_and_by_reads)
{
    EXPECT_TRUE(Put("k", "1"));
    EXPECT_EQ(folder.Read("Tavo.ini"), "[S]\nk=1\n");
    EXPECT_EQ(Get("k"), "1");
    EXPECT_TRUE(Put("k", "2"));
    EXPECT_EQ(Get("k"), "2");
    // Of the same size, by another program, right behind.
    folder.Write("Tavo.ini", "[S]\nk=3\n");
    EXPECT_EQ(Get("k"), "3");
    EXPECT_TRUE(profile.WritePrivateProfileStringA("S", "k", std::nullopt, file));
    EXPECT_EQ(Get("k"), "default");
    EXPECT_TRUE(profile.WritePrivateProfileStringA("S", std::nullopt, std::nullopt, file));
    EXPECT_EQ(folder.Read("Tavo.ini"), "");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"Tavo.ini"});
}

TEST_F(PosixProfiles, A_save_replaces_the_file_once)
{
    auto owned = std::make_unique<FaultyEditDisk>();
    const FaultyEditDisk& disk = *owned;
    PosixProfile counted(std::move(owned));
    folder.Write("Tavo.ini", "; mine\r\n[S]\r\nk=1\r\n[T]\r\nt=\xE4\\\r\n");
    const auto put = [&](const std::string& section, const std::string& key,
                         const std::string& value) {
        return counted.WritePrivateProfileStringA(section, key, value, file);
    };
    const auto save = [&] {
        ProfileSave whole(counted, file);
        counted.WritePrivateProfileStringA("S", std::nullopt, std::nullopt, file);
        for (int number = 1; number <= 500; ++number)
            put("S", std::to_string(number), "ä");
        EXPECT_EQ(counted.GetPrivateProfileStringA("S", "500", "", 9, file), "ä");
        EXPECT_EQ(disk.CountOf("Move"), disk.Calls.empty() ? 0u : 1u);
        return whole.End();
    };
    EXPECT_TRUE(save());
    std::string wanted = "; mine\r\n[T]\r\nt=\xE4\\\r\n[S]\r\n";
    for (int number = 1; number <= 500; ++number)
        wanted += std::to_string(number) + "=ä\r\n";
    EXPECT_EQ(folder.Read("Tavo.ini"), wanted);
    EXPECT_EQ(disk.CountOf("Move"), 1u);
    EXPECT_TRUE(save());
    EXPECT_EQ(disk.CountOf("Create"), 1u) << "the second one changes nothing";
}

TEST_F(PosixProfiles, A_save_that_fails_leaves_the_file_and_what_reads_see)
{
    folder.Write("Tavo.ini", "[S]\nk=1\n");
    auto owned = std::make_unique<FaultyEditDisk>();
    owned->FailAll = "Write";
    owned->Error = ENOSPC;
    PosixProfile full(std::move(owned));
    {
        ProfileSave save(full, file);
        EXPECT_TRUE(full.WritePrivateProfileStringA("S", "k", "2", file));
        EXPECT_EQ(full.GetPrivateProfileStringA("S", "k", "", 9, file), "2");
        EXPECT_FALSE(save.End());
    }
    EXPECT_EQ(full.GetPrivateProfileStringA("S", "k", "", 9, file), "1");
    EXPECT_EQ(folder.Read("Tavo.ini"), "[S]\nk=1\n");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"Tavo.ini"});
}

TEST_F(PosixProfiles, What_cannot_be_written_gives_false)
{
    file = folder.Path("missing/Tavo.ini");
    EXPECT_FALSE(Put("k", "v"));
    EXPECT_FALSE(folder.Has("missing"));
    file = folder.Path();
    EXPECT_FALSE(Put("k", "v"));
    file = "Tavo.ini";
    EXPECT_FALSE(Put("k", "v"));
    file = folder.Path("closed.ini");
    folder.Write("closed.ini", "[S]\nk=v\n");
    folder.SetMode("closed.ini", 0000);
    EXPECT_FALSE(Put("k", "w"));
    folder.SetMode("closed.ini", 0444);
    EXPECT_FALSE(Put("k", "w"));
    EXPECT_EQ(folder.Read("closed.ini"), "[S]\nk=v\n");
}

TEST_F(PosixProfiles, What_is_there_already_makes_and_touches_no_file)
{
    EXPECT_TRUE(profile.WritePrivateProfileStringA("S", "k", std::nullopt, file));
    EXPECT_TRUE(profile.WritePrivateProfileStringA("S", std::nullopt, std::nullopt, file));
    EXPECT_FALSE(folder.Has("Tavo.ini"));
    folder.Write("Tavo.ini", "[S]\n k = v\n");
    folder.SetMode("Tavo.ini", 0444);
    EXPECT_TRUE(Put("K", "v"));
    EXPECT_EQ(folder.Read("Tavo.ini"), "[S]\n k = v\n");
}

// Saves its own section again and again, and looks whether it is as it left
// it. The process ends with 0 when all went well.
pid_t SaveOver(const TempFolder& folder, const std::string& section, int saves)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    auto disk = std::make_unique<FaultyEditDisk>();
    disk->IsHasty = true;
    disk->WaitForEver(folder.Path());
    const std::string file = folder.Path("Tavo.ini");
    PosixProfile profile(std::move(disk));
    std::string last = "0";
    for (int number = 1; number <= saves; ++number) {
        if (profile.GetPrivateProfileStringA(section, "n", "0", 9, file) != last)
            ::_exit(2);
        last = std::to_string(number);
        ProfileSave save(profile, file);
        profile.WritePrivateProfileStringA(section, std::nullopt, std::nullopt, file);
        profile.WritePrivateProfileStringA(section, "m", last, file);
        profile.WritePrivateProfileStringA(section, "n", last, file);
        if (!save.End())
            ::_exit(3);
    }
    ::_exit(0);
}

TEST_F(PosixProfiles, Two_programs_that_save_other_sections_lose_nothing)
{
    folder.Write("Tavo.ini", "; mine\n[Kept]\nk=v\n");
    const pid_t children[] = {SaveOver(folder, "A", 80), SaveOver(folder, "B", 80)};
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 0);
    }
    const std::string head = "; mine\n[Kept]\nk=v\n";
    const std::string a = "[A]\nm=80\nn=80\n", b = "[B]\nm=80\nn=80\n";
    const std::string left = folder.Read("Tavo.ini");
    EXPECT_TRUE(left == head + a + b || left == head + b + a) << left;
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"Tavo.ini"});
}

} // namespace
} // namespace tavo
