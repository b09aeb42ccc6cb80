#include "core/start_up.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

struct Line {
    const char *Text, *Folder;
};

TEST(CommandLine, Windows_text_is_taken_apart_at_its_last_path)
{
    static constexpr Line lines[] = {
        {"", ""},
        {R"(C:\a\b.txt)", R"(C:\a\)"},
        {R"("C:\a\b.txt")", R"(C:\a\)"},
        {R"(C:\a)", R"(C:\a)"},
        {R"("C:\a")", R"(C:\a")"},
        {R"(C:\a.b\c)", R"(C:\a.b\)"},
        {R"("C:\one\x.txt" "D:\two\y.txt")", R"(D:\two\)"},
        {R"(C:\one D:\two)", R"(D:\two)"},
        {R"(\\srv\share\f.txt)", R"(\\srv\share\)"},
        {R"(\\srv\share)", R"(\\srv\share)"},
        {R"("\\srv\share\f.txt")", R"("\\srv\share\)"},
        {R"(:x)", R"(:x)"},
        {"name.txt", ""},
        {"name", "name"},
    };
    for (const Line& line : lines)
        EXPECT_EQ(Command_Folder(line.Text, WindowsRules()), line.Folder) << line.Text;
}

TEST(CommandLine, On_linux_a_path_from_the_root_is_taken_as_it_is)
{
    static constexpr Line lines[] = {
        {"", ""},
        {"/a/b.txt", "/a/"},
        {"/a/", "/a/"},
        {"/a.b/", "/a.b/"},
        {"/a.b/c", "/a.b/"},
        {"/a:b/c/", "/a:b/c/"},
        {"/a//b/", "/a//b/"},
        {"/x y:z/q.txt", "/x y:z/"},
        {"/", "/"},
        {"x:/a/", "x:/a/"},
        {"one x://b/", "x://b/"},
    };
    for (const Line& line : lines)
        EXPECT_EQ(Command_Folder(line.Text, PosixRules()), line.Folder) << line.Text;
}

struct Begin {
    const char *Text, *Tree;
};

TEST(CommandLine, Windows_start_goes_to_the_folder_or_to_the_programs_own)
{
    static constexpr Begin begins[] = {
        {R"(C:\a\b.txt)", R"(C:\a\)"},
        {R"("C:\a\b.txt")", R"(C:\a\)"},
        {R"(C:\a)", R"(C:\a\)"},
        {R"("C:\a")", R"(C:\app\)"}, // the closing mark stays and spoils the name
        {R"(C:\a.b\c)", R"(C:\a.b\)"},
        {R"("C:\a\b.txt" "C:\d\e.txt")", R"(C:\d\)"},
        {R"(\\srv\share\x\f.txt)", R"(\\srv\share\x\)"},
        {R"(C:\gone\)", R"(C:\app\)"},
        {"", R"(C:\app\)"},
    };
    for (const Begin& begin : begins) {
        ProgramRig rig;
        rig.Disk.AddDrive(R"(\\srv\share)");
        for (const char* folder : {R"(C:\a)", R"(C:\a.b\c)", R"(C:\d)", R"(\\srv\share\x)"})
            rig.Disk.AddFolder(folder);
        Program& p = rig.Start(begin.Text);
        EXPECT_EQ(p.main.ftvSelMain.Folder(), begin.Tree) << begin.Text;
        EXPECT_EQ(p.state.StartPath, begin.Tree) << begin.Text;
        EXPECT_EQ(p.state.CurScreen, screenSelection) << begin.Text;
    }
}

TEST(CommandLine, Linux_start_goes_to_the_folder_or_to_the_programs_own)
{
    static constexpr Begin begins[] = {
        {"/a/b.txt", "/a/"},    {"/a/", "/a/"},      {"/a.b/c/", "/a.b/c/"}, {"/a.b/", "/a.b/"},
        {"/a:b/c/", "/a:b/c/"}, {"/gone/", "/app/"}, {"", "/app/"},          {"/", "/"}};
    for (const Begin& begin : begins) {
        ProgramRig rig(MemoryDisk::Flavour::Posix);
        for (const char* folder : {"/a", "/a.b/c", "/a:b/c"})
            rig.Disk.AddFolder(folder);
        Program& p = rig.Start(begin.Text);
        EXPECT_EQ(p.main.ftvSelMain.Folder(), begin.Tree) << begin.Text;
        EXPECT_EQ(p.state.StartPath, begin.Tree) << begin.Text;
    }
}

TEST(CommandLine, Without_one_the_saved_folder_is_opened)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    rig.Disk.AddFolder("/saved");
    Program& p = rig.Start("", "[Defaults]\nPath=/saved\n");
    EXPECT_EQ(p.state.StartPath, "/saved/");
}

TEST(CommandLine, A_saved_folder_that_is_gone_gives_the_programs_own)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start("", "[Defaults]\nPath=/gone/\n");
    EXPECT_EQ(p.state.StartPath, "/app/");
}

} // namespace
} // namespace tavo
