#include "core/program.h"
#include "hosts/console/session.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_profile.h"
#include "platform/posix/start_info.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace {

constexpr int exitWrongArguments = 2;
constexpr const char* usage = "usage: tavo-console [--app-folder DIR] [-f FILE] [-k] [PATH...]\n";

struct Arguments {
    std::string AppFolder, CommandFile;
    bool KeepGoing = false;
    std::vector<std::string> Paths;
};

bool Takes_Value(const std::string& option)
{
    return option == "--app-folder" || option == "-f";
}

// Behind `--` everything is a path.
bool Arguments_Read(const std::vector<std::string>& words, Arguments& arguments)
{
    bool onlyPaths = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (onlyPaths || word.size() < 2 || word.front() != '-') {
            arguments.Paths.push_back(word);
        } else if (word == "--") {
            onlyPaths = true;
        } else if (word == "-k") {
            arguments.KeepGoing = true;
        } else if (Takes_Value(word) && i + 1 < words.size() && !words[i + 1].empty()) {
            (word == "-f" ? arguments.CommandFile : arguments.AppFolder) = words[++i];
        } else {
            return false;
        }
    }
    return true;
}

tavo::StartInfo Start_Info(const Arguments& arguments)
{
    tavo::StartInfo info;
    if (arguments.AppFolder.empty()) {
        const std::string program = tavo::Executable_Path();
        info.AppFolder = tavo::AppFolder_Find(program);
        tavo::AppFolder_Prepare(info.AppFolder, program);
    } else {
        info.AppFolder = tavo::Folder_Absolute(arguments.AppFolder);
    }
    info.CommandText = tavo::Command_Text(arguments.Paths);
    return info;
}

int Run(const Arguments& arguments, std::istream& in, bool isTerminal)
{
    tavo::PosixFiles files;
    tavo::PosixProfile profile;
    tavo::console::ConsoleDesktop desktop;
    tavo::Program program(files, profile, desktop, Start_Info(arguments));
    tavo::console::Session session(program, desktop, {in, std::cout, std::cerr, isTerminal},
                                   arguments.KeepGoing);
    program.Start();
    return session.Run();
}

} // namespace

int main(int argc, char** argv)
{
    Arguments arguments;
    if (!Arguments_Read({argv + 1, argv + argc}, arguments)) {
        std::cerr << usage;
        return exitWrongArguments;
    }
    if (arguments.CommandFile.empty())
        return Run(arguments, std::cin, isatty(STDIN_FILENO) == 1);
    std::ifstream file(arguments.CommandFile, std::ios::binary);
    if (!file || std::filesystem::is_directory(arguments.CommandFile)) {
        std::cerr << "tavo-console: cannot read " << arguments.CommandFile << '\n';
        return exitWrongArguments;
    }
    return Run(arguments, file, false);
}
