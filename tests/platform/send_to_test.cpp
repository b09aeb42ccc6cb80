#include "platform/posix/send_to.h"

#include "platform/posix/posix_files.h"
#include "support/temp_folder.h"
#include "support/variable_set.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tavo {
namespace {

struct ManagerRow {
    const char *Program, *Entry;
    bool Executable;
};
constexpr ManagerRow managerRows[] = {
    {"thunar", "data/Thunar/sendto/tavo.desktop", false},
    {"nautilus", "data/nautilus/scripts/Tavo", true},
    {"caja", "config/caja/scripts/Tavo", true},
    {"nemo", "data/nemo/actions/tavo.nemo_action", false},
    {"dolphin", "data/kio/servicemenus/tavo.desktop", true},
};

class SendTo : public testing::Test {
protected:
    SendTo() { folder.MakeFolder("bin"); }
    void Install(const std::string& program)
    {
        folder.Write("bin/" + program);
        folder.SetMode("bin/" + program, 0755);
    }
    bool IsExecutable(const std::string& name) const
    {
        struct stat data;
        return ::stat(folder.Path(name).c_str(), &data) == 0 && (data.st_mode & S_IXUSR) != 0;
    }

    TempFolder folder{"send_to"};
    SendToGround ground{
        folder.Path("data/"), folder.Path("config/"), {folder.Path("bin/")}, "/opt/my tools/tavo"};
};

TEST_F(SendTo, Without_a_manager_nothing_is_written_and_nothing_stands)
{
    EXPECT_FALSE(SendTo_Stands(ground));
    SendTo_Put(ground, true);
    EXPECT_FALSE(SendTo_Stands(ground));
    SendTo_Put(ground, false);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"bin"}));
}

TEST_F(SendTo, Each_manager_has_its_place)
{
    for (const ManagerRow& row : managerRows) {
        Install(row.Program);
        EXPECT_FALSE(SendTo_Stands(ground)) << row.Program;
        SendTo_Put(ground, true);
        EXPECT_TRUE(SendTo_Stands(ground)) << row.Program;
        EXPECT_TRUE(folder.Has(row.Entry)) << row.Program;
        EXPECT_EQ(IsExecutable(row.Entry), row.Executable) << row.Program;
        SendTo_Put(ground, false);
        EXPECT_FALSE(folder.Has(row.Entry)) << row.Program;
        EXPECT_FALSE(SendTo_Stands(ground)) << row.Program;
        folder.Remove(std::string("bin/") + row.Program);
    }
}

TEST_F(SendTo, It_stands_when_the_link_is_there_for_every_manager_found)
{
    Install("thunar");
    SendTo_Put(ground, true);
    Install("caja");
    EXPECT_FALSE(SendTo_Stands(ground));
    SendTo_Put(ground, true);
    EXPECT_TRUE(SendTo_Stands(ground));
    folder.Remove("data/Thunar/sendto/tavo.desktop");
    EXPECT_FALSE(SendTo_Stands(ground));
}

TEST_F(SendTo, A_manager_is_a_program_that_can_be_started)
{
    folder.Write("bin/thunar"); // may not be run
    folder.SetMode("bin/thunar", 0644);
    folder.MakeFolder("bin/nemo");
    SendTo_Put(ground, true);
    EXPECT_FALSE(folder.Has("data"));
}

TEST_F(SendTo, The_link_of_a_manager_that_has_gone_is_taken_away_too)
{
    Install("nemo");
    SendTo_Put(ground, true);
    folder.Remove("bin/nemo");
    SendTo_Put(ground, false);
    EXPECT_FALSE(folder.Has("data/nemo/actions/tavo.nemo_action"));
}

TEST_F(SendTo, A_strange_file_of_that_name_stays)
{
    Install("nautilus");
    folder.Write("data/nautilus/scripts/Tavo", "mine");
    EXPECT_FALSE(SendTo_Stands(ground));
    SendTo_Put(ground, true);
    EXPECT_FALSE(SendTo_Stands(ground));
    SendTo_Put(ground, false);
    EXPECT_EQ(folder.Read("data/nautilus/scripts/Tavo"), "mine");
}

TEST_F(SendTo, A_folder_of_that_name_stays)
{
    Install("thunar");
    folder.MakeFolder("data/Thunar/sendto/tavo.desktop");
    SendTo_Put(ground, true);
    SendTo_Put(ground, false);
    EXPECT_TRUE(folder.IsFolder("data/Thunar/sendto/tavo.desktop"));
}

TEST_F(SendTo, Neighbours_stay_and_nothing_passing_is_left)
{
    Install("thunar");
    folder.Write("data/Thunar/sendto/mail.desktop", "mail");
    SendTo_Put(ground, true);
    EXPECT_EQ(folder.Names("data/Thunar/sendto"),
              (std::vector<std::string>{"mail.desktop", "tavo.desktop"}));
    SendTo_Put(ground, false);
    EXPECT_EQ(folder.Names("data/Thunar/sendto"), (std::vector<std::string>{"mail.desktop"}));
}

TEST_F(SendTo, A_link_of_ours_follows_a_program_that_has_moved)
{
    Install("caja");
    SendTo_Put(ground, true);
    ground.Program = "/elsewhere/tavo";
    SendTo_Put(ground, true);
    EXPECT_EQ(folder.Read("config/caja/scripts/Tavo"),
              "#!/bin/sh\n# X-Tavo-SendTo=true\nexec '/elsewhere/tavo' \"$@\"\n");
}

TEST_F(SendTo, Where_nothing_can_be_written_it_does_not_stand)
{
    Install("thunar");
    folder.Write("data", "a file in the way");
    SendTo_Put(ground, true);
    EXPECT_FALSE(SendTo_Stands(ground));
}

TEST_F(SendTo, The_entry_starts_the_program_with_the_files)
{
    Install("thunar");
    Install("nemo");
    SendTo_Put(ground, true);
    EXPECT_NE(
        folder.Read("data/Thunar/sendto/tavo.desktop").find("\nExec=\"/opt/my tools/tavo\" %F\n"),
        std::string::npos);
    EXPECT_NE(folder.Read("data/nemo/actions/tavo.nemo_action")
                  .find("\nExec=\"/opt/my tools/tavo\" %U\n"),
              std::string::npos);
}

TEST_F(SendTo, No_program_and_no_path_in_lines_is_written)
{
    Install("thunar");
    for (const char* program : {"", "/a\nb/tavo"}) {
        ground.Program = program;
        SendTo_Put(ground, true);
        EXPECT_FALSE(folder.Has("data")) << program;
    }
}

TEST_F(SendTo, A_script_of_odd_names_runs_the_program_with_them)
{
    Install("nautilus");
    folder.Write("odd 'folder' $x/show", "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$OUT\"\n");
    folder.SetMode("odd 'folder' $x/show", 0755);
    ground.Program = folder.Path("odd 'folder' $x/show");
    SendTo_Put(ground, true);
    const std::string command = "OUT='" + folder.Path("out") + "' '"
                                + folder.Path("data/nautilus/scripts/Tavo")
                                + "' 'a b' '*' \"it's\"";
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(folder.Read("out"), "a b\n*\nit's\n");
}

TEST_F(SendTo, The_disk_goes_by_the_users_folders_and_programs)
{
    const Variable_Set data("XDG_DATA_HOME", folder.Path("data"));
    const Variable_Set config("XDG_CONFIG_HOME", folder.Path("config"));
    const Variable_Set path("PATH", "relative:" + folder.Path("none") + "::" + folder.Path("bin"));
    Install("thunar");
    Install("caja");
    PosixFiles files;
    EXPECT_FALSE(files.SendToStands());
    files.SendToSet(true);
    EXPECT_TRUE(files.SendToStands());
    EXPECT_TRUE(folder.Has("data/Thunar/sendto/tavo.desktop"));
    EXPECT_TRUE(folder.Has("config/caja/scripts/Tavo"));
    files.SendToSet(false);
    EXPECT_FALSE(files.SendToStands());
    EXPECT_FALSE(folder.Has("config/caja/scripts/Tavo"));
}

TEST(SendToText, Paths_are_quoted)
{
    struct Row {
        const char *Path, *Exec, *Shell;
    };
    const Row rows[] = {
        {"/a/tavo", "\"/a/tavo\"", "'/a/tavo'"},
        {"/a b/tavo", "\"/a b/tavo\"", "'/a b/tavo'"},
        {"/50%/tavo", "\"/50%%/tavo\"", "'/50%/tavo'"},
        {"/%f%%", "\"/%%f%%%%\"", "'/%f%%'"},
        {"/a\"b", "\"/a\\\\\"b\"", "'/a\"b'"},
        {"/a$b`c", "\"/a\\\\$b\\\\`c\"", "'/a$b`c'"},
        {"/a\\b", "\"/a\\\\\\\\b\"", "'/a\\b'"},
        {"/it's", "\"/it's\"", "'/it'\\''s'"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Exec_Quoted(row.Path), row.Exec) << row.Path;
        EXPECT_EQ(Shell_Quoted(row.Path), row.Shell) << row.Path;
    }
}

TEST(SendToProgram, What_has_no_window_stands_in_for_the_one_beside_it)
{
    const TempFolder folder("send_to_program");
    folder.Write("tavo-console");
    EXPECT_EQ(SendTo_Program(folder.Path("tavo-console")), "");
    folder.Write("tavo");
    folder.SetMode("tavo", 0755);
    EXPECT_EQ(SendTo_Program(folder.Path("tavo-console")), folder.Path("tavo"));
    EXPECT_EQ(SendTo_Program(folder.Path("tavo")), folder.Path("tavo"));
    EXPECT_EQ(SendTo_Program(""), "");
}

} // namespace
} // namespace tavo
