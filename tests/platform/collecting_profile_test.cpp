#include "platform/collecting_profile.h"

#include "support/memory_profile.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

using namespace std::string_literals;

const std::string file = "/a.ini", other = "/b.ini";

class CollectingProfiles : public testing::Test {
protected:
    bool Put(const std::string& section, const std::string& key, const std::string& value,
             const std::string& path = file)
    {
        return profile.WritePrivateProfileStringA(section, key, value, path);
    }
    bool Clear(const std::string& section, const std::string& path = file)
    {
        return profile.WritePrivateProfileStringA(section, std::nullopt, std::nullopt, path);
    }
    std::string Get(const std::string& section, const std::optional<std::string>& key,
                    const std::string& path = file)
    {
        return profile.GetPrivateProfileStringA(section, key, "none", 2048, path);
    }

    MemoryProfile profile;
};

TEST_F(CollectingProfiles, A_write_without_a_save_is_one_of_its_own)
{
    EXPECT_TRUE(Put("S", "k", "1"));
    EXPECT_TRUE(Put("S", "l", "2"));
    EXPECT_EQ(profile.Text(file), "[S]\nk=1\nl=2\n");
    EXPECT_EQ(profile.Saves(), 2);
}

TEST_F(CollectingProfiles, A_save_is_seen_at_once_and_written_at_its_end)
{
    profile.SetText(file, "[S]\nk=1\nl=2\n[T]\nt=3\n");
    ProfileSave save(profile, file);
    EXPECT_EQ(Get("S", "k"), "1");
    EXPECT_TRUE(Clear("S"));
    EXPECT_EQ(Get("S", "k"), "none");
    EXPECT_TRUE(Put("S", "k", " '4' "));
    EXPECT_TRUE(Put("U", "u", "5"));
    EXPECT_TRUE(profile.WritePrivateProfileStringA("T", "t", std::nullopt, file));
    EXPECT_EQ(Get("S", "k"), "4");
    EXPECT_EQ(Get("S", std::nullopt), "k\0"s);
    EXPECT_EQ(Get("T", "t"), "none");
    EXPECT_EQ(profile.Text(file), "[S]\nk=1\nl=2\n[T]\nt=3\n");
    EXPECT_TRUE(save.End());
    EXPECT_EQ(profile.Text(file), "[T]\n[S]\nk='4' \n[U]\nu=5\n");
    EXPECT_EQ(profile.Saves(), 1);
    EXPECT_FALSE(save.End());
}

TEST_F(CollectingProfiles, The_end_of_the_block_ends_a_save)
{
    {
        const ProfileSave save(profile, file);
        Put("S", "k", "1");
    }
    EXPECT_EQ(profile.Text(file), "[S]\nk=1\n");
    EXPECT_FALSE(profile.EndSave(file));
}

TEST_F(CollectingProfiles, The_outermost_of_nested_saves_writes)
{
    ProfileSave outer(profile, file);
    Put("S", "a", "1");
    {
        ProfileSave inner(profile, file);
        Put("S", "b", "2");
        EXPECT_TRUE(inner.End());
        EXPECT_EQ(profile.Text(file), std::nullopt);
    }
    EXPECT_EQ(Get("S", "b"), "2");
    Put("S", "c", "3");
    EXPECT_EQ(profile.Saves(), 0);
    EXPECT_TRUE(outer.End());
    EXPECT_EQ(profile.Text(file), "[S]\na=1\nb=2\nc=3\n");
    EXPECT_EQ(profile.Saves(), 1);
}

TEST_F(CollectingProfiles, Each_file_has_saves_of_its_own)
{
    ProfileSave save(profile, file);
    Put("S", "k", "1");
    Put("S", "k", "2", other);
    EXPECT_EQ(profile.Text(other), "[S]\nk=2\n");
    EXPECT_EQ(Get("S", "k", other), "2");
    ProfileSave second(profile, other);
    Put("S", "k", "3", other);
    EXPECT_TRUE(save.End());
    EXPECT_EQ(profile.Text(file), "[S]\nk=1\n");
    EXPECT_EQ(profile.Text(other), "[S]\nk=2\n");
    EXPECT_TRUE(second.End());
    EXPECT_EQ(profile.Text(other), "[S]\nk=3\n");
}

TEST_F(CollectingProfiles, The_file_is_changed_as_it_is_at_the_end)
{
    profile.SetText(file, "[S]\nk=1\n[T]\nt=1\n");
    ProfileSave save(profile, file);
    Clear("S");
    Put("S", "k", "2");
    // Another program saves in between.
    profile.SetText(file, "[S]\nk=9\nl=9\n[T]\nt=9\n[U]\nu=9\n");
    EXPECT_EQ(Get("S", "k"), "2");
    EXPECT_TRUE(save.End());
    EXPECT_EQ(profile.Text(file), "[T]\nt=9\n[U]\nu=9\n[S]\nk=2\n");
}

TEST_F(CollectingProfiles, Before_the_first_write_a_save_reads_the_file)
{
    profile.SetText(file, "[S]\nk=1\n");
    ProfileSave save(profile, file);
    EXPECT_EQ(Get("S", "k"), "1");
    profile.SetText(file, "[S]\nk=2\n");
    EXPECT_EQ(Get("S", "k"), "2");
    EXPECT_TRUE(save.End());
    EXPECT_EQ(profile.Saves(), 0);
}

TEST_F(CollectingProfiles, What_changes_nothing_is_not_written)
{
    EXPECT_TRUE(Clear("S"));
    EXPECT_TRUE(profile.WritePrivateProfileStringA("S", "k", std::nullopt, file));
    {
        ProfileSave save(profile, file);
        Put("S", "k", "1");
        Clear("S");
        EXPECT_TRUE(save.End());
    }
    EXPECT_EQ(profile.Text(file), std::nullopt);
    const std::string stable = "[T]\n t = 1\n[S]\nk=1\n";
    profile.SetText(file, stable);
    {
        ProfileSave save(profile, file);
        Clear("S");
        Put("T", "t", "1");
        Put("S", "k", "1");
        EXPECT_TRUE(save.End());
    }
    EXPECT_EQ(profile.Text(file), stable);
    EXPECT_EQ(profile.Saves(), 0);
}

TEST_F(CollectingProfiles, A_refused_save_fails_at_its_end_and_is_over)
{
    profile.SetText(file, "[S]\nk=1\n");
    profile.RefuseWrites();
    EXPECT_FALSE(Put("S", "k", "2"));
    EXPECT_TRUE(Put("S", "k", "1"));
    ProfileSave save(profile, file);
    EXPECT_TRUE(Put("S", "k", "2"));
    EXPECT_FALSE(save.End());
    EXPECT_EQ(Get("S", "k"), "1");
    profile.RefuseWrites(false);
    EXPECT_TRUE(Put("S", "k", "3"));
    EXPECT_EQ(Get("S", "k"), "3");
}

} // namespace
} // namespace tavo
