#include "platform/posix/start_info.h"

#include "support/temp_folder.h"
#include "support/variable_set.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tavo {

namespace {

namespace fs = std::filesystem;

// Goes to a folder, and back.
class Folder_Entered {
public:
    explicit Folder_Entered(const std::string& path) : before_(fs::current_path())
    {
        fs::current_path(path);
    }
    ~Folder_Entered() { fs::current_path(before_); }

private:
    fs::path before_;
};

} // namespace

TEST(AppFolder, The_programs_own_folder_serves_when_it_is_a_portable_copy)
{
    for (const char* mark : {"Tavo.ini", "Default.ini", "portable"}) {
        TempFolder folder("app_portable");
        Variable_Set config("XDG_CONFIG_HOME", folder.Path("config"));
        EXPECT_EQ(AppFolder_Find(folder.Path("tavo")), folder.Path("config/tavo/"));
        folder.Write(mark);
        EXPECT_EQ(AppFolder_Find(folder.Path("tavo")), folder.Path()) << mark;
    }
}

TEST(AppFolder, A_portable_copy_that_cannot_be_written_to_is_none)
{
    TempFolder folder("app_read_only");
    Variable_Set config("XDG_CONFIG_HOME", folder.Path("config"));
    folder.Write("Tavo.ini");
    folder.SetMode("", 0555);
    const std::string expected = folder.Path("config/tavo/");
    EXPECT_EQ(AsPlainUser([&] { return AppFolder_Find(folder.Path("tavo")) == expected; }), 1);
    folder.SetMode("", 0755);
}

TEST(AppFolder, A_relative_folder_for_settings_is_passed_over)
{
    TempFolder folder("app_relative");
    Variable_Set config("XDG_CONFIG_HOME", "config");
    Variable_Set home("HOME", folder.Path("home"));
    EXPECT_EQ(AppFolder_Find(folder.Path("tavo")), folder.Path("home/.config/tavo/"));
}

TEST(AppFolder, The_first_start_makes_it_and_fits_it_out)
{
    TempFolder folder("app_first");
    folder.Write("usr/share/tavo/Default.ini", "[Settings]\n");
    folder.Write("usr/share/tavo/help/index.htm", "help");
    folder.MakeFolder("usr/bin");
    const std::string program = folder.Path("usr/bin/tavo");
    AppFolder_Prepare(folder.Path("config/tavo/"), program);
    EXPECT_EQ(folder.Names("config/tavo"), (std::vector<std::string>{"Default.ini", "help"}));
    EXPECT_EQ(folder.LinkTarget("config/tavo/help") + "/", folder.Path("usr/share/tavo/help/"));
    EXPECT_EQ(folder.Read("config/tavo/Default.ini"), "[Settings]\n");
}

TEST(AppFolder, What_is_there_already_stays)
{
    TempFolder folder("app_again");
    folder.Write("usr/share/tavo/Default.ini", "new");
    folder.Write("usr/share/tavo/help/index.htm", "help");
    folder.MakeFolder("usr/bin");
    folder.Write("config/tavo/Default.ini", "mine");
    folder.Write("config/tavo/help/index.htm", "mine");
    AppFolder_Prepare(folder.Path("config/tavo/"), folder.Path("usr/bin/tavo"));
    EXPECT_EQ(folder.Read("config/tavo/Default.ini"), "mine");
    EXPECT_EQ(folder.Read("config/tavo/help/index.htm"), "mine");
}

TEST(AppFolder, A_link_to_help_pages_that_have_gone_is_made_anew)
{
    TempFolder folder("app_help");
    folder.Write("usr/share/tavo/help/index.htm", "help");
    folder.MakeFolder("usr/bin");
    folder.MakeFolder("config/tavo");
    folder.MakeLink("config/tavo/help", folder.Path("gone"));
    AppFolder_Prepare(folder.Path("config/tavo/"), folder.Path("usr/bin/tavo"));
    EXPECT_EQ(folder.Read("config/tavo/help/index.htm"), "help");
}

TEST(AppFolder, A_portable_copy_is_not_fitted_out)
{
    TempFolder folder("app_own");
    folder.Write("portable");
    AppFolder_Prepare(folder.Path(), folder.Path("tavo"));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"portable"}));
}

TEST(CommandText, The_last_argument_is_made_absolute)
{
    TempFolder folder("command_text");
    folder.MakeFolder("a.b");
    folder.MakeFolder("dir/below");
    folder.Write("dir/x.txt");
    folder.Write("dir/odd\xFF #1");
    folder.MakeLink("link", "dir/below");
    Folder_Entered entered(folder.Path());
    const std::string here = folder.Path();
    struct Row {
        std::vector<std::string> Args;
        std::string Text;
    };
    const Row rows[] = {
        {{}, ""},
        {{""}, ""},
        {{"dir"}, here + "dir/"},
        {{"dir/"}, here + "dir/"},
        {{here + "dir"}, here + "dir/"},
        {{"a.b"}, here + "a.b/"},
        {{"dir/x.txt"}, here + "dir/x.txt"},
        {{"nowhere", "dir/x.txt"}, here + "dir/x.txt"},
        {{"nowhere"}, here + "nowhere"},
        {{"."}, here},
        {{"./dir/./below"}, here + "dir/below/"},
        {{"dir/.."}, here},
        {{"link/.."}, here + "dir/"}, // what the link leads to lies there
        {{"link"}, here + "link/"},
        {{"gone/../x"}, here + "x"},
        {{"file://" + here + "dir/odd%FF%20%231"}, here + "dir/odd\xFF #1"},
        {{"file://localhost" + here + "dir"}, here + "dir/"},
        {{"/"}, "/"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Command_Text(row.Args), row.Text)
            << (row.Args.empty() ? "(none)" : row.Args.back());
}

TEST(FileUrl, Paths_of_any_bytes_come_back)
{
    std::string path = "/";
    for (int byte = 1; byte < 256; ++byte)
        path += static_cast<char>(byte);
    EXPECT_EQ(Path_FromFileUrl(Path_ToFileUrl(path)), path);
}

TEST(FileUrl, Only_files_of_this_machine_have_a_path)
{
    struct Row {
        const char *Url, *Path;
    };
    const Row rows[] = {
        {"file:///a/b", "/a/b"},
        {"file://localhost/a", "/a"},
        {"file:///100%", "/100%"},
        {"file:///%zz%4", "/%zz%4"},
        {"file:///%41%c3%A4", "/A\xC3\xA4"},
        {"file://other.invalid/a", ""},
        {"file://", ""},
        {"http://localhost/a", ""},
        {"/a/b", ""},
        {"", ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Path_FromFileUrl(row.Url), row.Path) << row.Url;
}

} // namespace tavo
