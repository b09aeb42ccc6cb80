#include "platform/posix/trash.h"

#include "platform/files.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

// In a process of its own, since where the trash lies is read once a process.
// No desktop runs for it.
int TakeAtHome(const std::string& home, const std::string& path)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::setenv("HOME", home.c_str(), 1);
        ::setenv("XDG_DATA_HOME", (home + "data").c_str(), 1);
        ::unsetenv("DBUS_SESSION_BUS_ADDRESS");
        ::_exit(DesktopTrash()->Take(path) % 256);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(Trash, Files_folders_and_links_go_there_and_can_come_back)
{
    TempFolder home("trash");
    home.Write("read only", "1");
    home.SetMode("read only", 0444);
    home.Write("kept/a", "2");
    home.Write("f/below", "3");
    home.MakeLink("link", "kept");
    home.Write("\xFF%\n", "4");
    for (const char* name : {"read only", "f", "link", "\xFF%\n"})
        EXPECT_EQ(TakeAtHome(home.Path(), home.Path(name)), diskOk) << name;
    EXPECT_EQ(home.Names(), (Names{"data", "kept"}));
    EXPECT_EQ(home.Read("data/Trash/files/read only"), "1");
    EXPECT_EQ(home.Read("data/Trash/files/f/below"), "3");
    EXPECT_EQ(home.LinkTarget("data/Trash/files/link"), "kept");
    EXPECT_EQ(home.Names("data/Trash/files").size(), 4u);
    EXPECT_EQ(home.Names("data/Trash/info").size(), 4u);
    const std::string info = home.Read("data/Trash/info/read only.trashinfo");
    EXPECT_NE(info.find("Path=" + home.Path("read%20only") + '\n'), info.npos) << info;
    EXPECT_EQ(home.Read("kept/a"), "2");
}

TEST(Trash, One_name_can_go_there_twice)
{
    TempFolder home("trash_twice");
    for (const char* content : {"1", "2"}) {
        home.Write("a", content);
        EXPECT_EQ(TakeAtHome(home.Path(), home.Path("a")), diskOk);
    }
    EXPECT_EQ(home.Names("data/Trash/files").size(), 2u);
    EXPECT_EQ(home.Read("data/Trash/files/a"), "1");
}

TEST(Trash, Dots_behind_a_link_are_those_of_the_disk)
{
    TempFolder home("trash_dots");
    home.Write("a", "1");
    home.Write("real/a", "2");
    home.MakeFolder("real/below");
    home.MakeLink("link", "real/below");
    EXPECT_EQ(TakeAtHome(home.Path(), home.Path("link/../a")), diskOk);
    EXPECT_TRUE(home.Has("a"));
    EXPECT_FALSE(home.Has("real/a"));
}

TEST(Trash, What_fails_stays)
{
    TempFolder home("trash_fails");
    home.Write("closed/a", "1");
    home.SetMode("", 0777);
    home.SetMode("closed", 0555);
    EXPECT_EQ(TakeAtHome(home.Path(), home.Path("missing")), diskMissing);
    EXPECT_EQ(TakeAtHome(home.Path(), home.Path("missing/a")), diskMissingFolder);
    EXPECT_EQ(AsPlainUser([&] { return TakeAtHome(home.Path(), home.Path("closed/a")); }),
              diskDenied);
    EXPECT_EQ(home.Names("closed"), Names{"a"});
    EXPECT_EQ(home.Names("data/Trash/info"), Names{});
}

TEST(Trash, Where_none_can_be_made_the_entry_stays)
{
    TempFolder home("trash_unmade");
    home.Write("data", "a file");
    home.Write("b", "1");
    EXPECT_NE(TakeAtHome(home.Path(), home.Path("b")), diskOk);
    EXPECT_EQ(home.Names(), (Names{"b", "data"}));
}

TEST(Trash, On_a_disk_of_the_system_there_is_none)
{
    TempFolder home("trash_none"), memory("trash_memory", "/dev/shm");
    struct stat here = {}, there = {};
    ASSERT_EQ(::stat(home.Path().c_str(), &here), 0);
    ASSERT_EQ(::stat(memory.Path().c_str(), &there), 0);
    memory.Write("a", "1");
    const int code = TakeAtHome(home.Path(), memory.Path("a"));
    const bool isOther = here.st_dev != there.st_dev;
    EXPECT_EQ(code != diskOk, isOther);
    EXPECT_EQ(memory.Has("a"), isOther);
}

} // namespace
} // namespace tavo
