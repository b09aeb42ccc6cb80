#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

// Whole journeys through the program, worked from outside. Each folder of
// tests/console is one: `files` is what lies on the disk before (`name`,
// `name<TAB>content`, `name/`, `name -> target`), `script` the commands,
// `output` what the console prints (with FOLDER/ for the test's own folder,
// then its error lines behind `!`, then `exit N`), `disk` what lies there
// afterwards, with FOLDER/ in its texts likewise. `settings` is the settings
// file, `saved` what it is to be afterwards, `arguments` what stands on the
// command line in place of the folder. `again` is the script of a second start,
// without any arguments.

using namespace tavo;
namespace fs = std::filesystem;

namespace {

std::string File_Text(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::vector<std::string> Lines_Of(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

void Disk_Lay(const TempFolder& folder, const std::string& plan)
{
    for (const std::string& line : Lines_Of(plan)) {
        const auto tab = line.find('\t'), arrow = line.find(" -> ");
        if (arrow != std::string::npos)
            folder.MakeLink(line.substr(0, arrow), line.substr(arrow + 4));
        else if (line.back() == '/')
            folder.MakeFolder(line.substr(0, line.size() - 1));
        else if (tab != std::string::npos)
            folder.Write(line.substr(0, tab), line.substr(tab + 1));
        else
            folder.Write(line, line);
    }
}

// The same lines as a plan, sorted. Content equal to the name is left out.
std::string Disk_Tell(const TempFolder& folder)
{
    std::vector<std::string> lines;
    const fs::path root = folder.Path();
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const std::string name = entry.path().lexically_relative(root).string();
        if (entry.is_symlink())
            lines.push_back(name + " -> " + fs::read_symlink(entry.path()).string());
        else if (entry.is_directory())
            lines.push_back(name + "/");
        else if (const std::string content = File_Text(entry.path()); content == name)
            lines.push_back(name);
        else
            lines.push_back(name + "\t" + content);
    }
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

std::string Replaced(std::string text, const std::string& what, const std::string& by)
{
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

std::string Quoted(const std::string& word)
{
    return "'" + Replaced(word, "'", "'\\''") + "'";
}

// What stands on the command line of the first start.
std::string Arguments_Of(const fs::path& plan)
{
    std::string arguments = File_Text(plan / "arguments");
    std::erase(arguments, '\n');
    return fs::exists(plan / "arguments") ? arguments : "FOLDER/";
}

// Runs the console on the folder and gives all that it printed.
std::string Console_Run(const TempFolder& folder, const TempFolder& app, const fs::path& script,
                        const std::string& arguments)
{
    app.Write("script", Replaced(File_Text(script), "FOLDER/", folder.Path()));
    const std::string command = Quoted(std::string(TAVO_BUILD_DIR) + "/tavo-console")
                                + " --app-folder " + Quoted(app.Path("app")) + " "
                                + Replaced(arguments, "FOLDER/", Quoted(folder.Path())) + " < "
                                + Quoted(app.Path("script")) + " > " + Quoted(app.Path("out"))
                                + " 2> " + Quoted(app.Path("err"));
    const int status = std::system(command.c_str());
    std::string text = app.Read("out");
    for (const std::string& line : Lines_Of(app.Read("err")))
        text += "! " + line + "\n";
    text += "exit " + std::to_string(WIFEXITED(status) ? WEXITSTATUS(status) : -1) + "\n";
    return Replaced(text, folder.Path(), "FOLDER/");
}

std::vector<std::string> Cases()
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(TAVO_SOURCE_DIR "/tests/console"))
        if (entry.is_directory())
            names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

class ConsoleCase : public testing::TestWithParam<std::string> {};

} // namespace

TEST_P(ConsoleCase, Prints_and_leaves_what_is_laid_down)
{
    const fs::path plan = fs::path(TAVO_SOURCE_DIR "/tests/console") / GetParam();
    const TempFolder folder("console_" + GetParam());
    const TempFolder app("console_app");
    app.MakeFolder("app");
    if (fs::exists(plan / "settings"))
        app.Write("app/Tavo.ini", Replaced(File_Text(plan / "settings"), "FOLDER/", folder.Path()));
    Disk_Lay(folder, File_Text(plan / "files"));
    std::string output = Console_Run(folder, app, plan / "script", Arguments_Of(plan));
    if (fs::exists(plan / "again"))
        output += Console_Run(folder, app, plan / "again", "");
    EXPECT_EQ(output, File_Text(plan / "output"));
    if (fs::exists(plan / "saved")) {
        EXPECT_EQ(Replaced(app.Read("app/Tavo.ini"), folder.Path(), "FOLDER/"),
                  File_Text(plan / "saved"));
    }
    EXPECT_EQ(Replaced(Disk_Tell(folder), folder.Path(), "FOLDER/"), File_Text(plan / "disk"));
}

INSTANTIATE_TEST_SUITE_P(Journeys, ConsoleCase, testing::ValuesIn(Cases()),
                         [](const auto& each) { return each.param; });
