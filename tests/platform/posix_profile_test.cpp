#include "platform/posix/posix_profile.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace tavo {
namespace {

class PosixProfiles : public testing::Test {
protected:
    std::string Get(const std::string& key)
    {
        return profile.GetPrivateProfileStringA("S", key, "default", 2048, file);
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

} // namespace
} // namespace tavo
