#include "support/memory_profile.h"

#include <gtest/gtest.h>

namespace tavo {

TEST(MemoryProfile, Answers_from_its_texts)
{
    MemoryProfile profile;
    profile.SetText("/a.ini", "[S]\r\nk = v\r\nlong=\u00e4\u00e4\r\n[T]\r\nx=1\r\n");
    const auto ask = [&](const char* section, const char* key, int size, const char* file) {
        return profile.GetPrivateProfileStringA(section, key, "none", size, file);
    };
    EXPECT_EQ(ask("s", "K", 100, "/a.ini"), "v");
    EXPECT_EQ(ask("S", "x", 100, "/a.ini"), "none");
    EXPECT_EQ(ask("S", "k", 100, "/b.ini"), "none");
    EXPECT_EQ(ask("S", "long", 4, "/a.ini"), "\u00e4");
    EXPECT_EQ(profile.GetPrivateProfileStringA("S", std::nullopt, "", 100, "/a.ini"),
              std::string("k\0long\0", 7));
    EXPECT_EQ(profile.Calls(), 5);
}

TEST(MemoryProfile, Texts_come_and_go)
{
    MemoryProfile profile;
    profile.SetText("/a.ini", "[S]\nk=1\n");
    profile.SetText("/a.ini", "[S]\nk=2\n");
    EXPECT_EQ(profile.GetPrivateProfileStringA("S", "k", "", 9, "/a.ini"), "2");
    EXPECT_EQ(profile.Text("/a.ini"), "[S]\nk=2\n");
    profile.Remove("/a.ini");
    EXPECT_EQ(profile.GetPrivateProfileStringA("S", "k", "gone", 9, "/a.ini"), "gone");
    EXPECT_FALSE(profile.Text("/a.ini").has_value());
}

TEST(MemoryProfile, Is_written_in_its_dialect)
{
    for (const auto dialect : {ProfileDialect::Linux, ProfileDialect::Windows}) {
        const bool isWindows = dialect == ProfileDialect::Windows;
        MemoryProfile profile(dialect);
        EXPECT_TRUE(profile.WritePrivateProfileStringA("S", "k", "\u00e4", "a.ini"));
        EXPECT_EQ(profile.Text("a.ini"), isWindows ? "[S]\r\nk=\xE4\r\n" : "[S]\nk=\u00e4\n");
        EXPECT_EQ(profile.GetPrivateProfileStringA("S", "k", "", 9, "a.ini"), "\u00e4");
        EXPECT_EQ(profile.Saves(), 1);
        ProfileSave save(profile, "b.ini");
        profile.WritePrivateProfileStringA("S", "k", "1", "b.ini");
        EXPECT_TRUE(save.End());
        EXPECT_EQ(profile.Text("b.ini"), isWindows ? "[S]\r\nk=1\r\n" : "[S]\nk=1\n");
    }
}

} // namespace tavo
