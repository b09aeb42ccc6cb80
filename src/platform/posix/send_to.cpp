#include "platform/posix/send_to.h"

#include "platform/posix/disk_entry.h"
#include "platform/posix/file_edit.h"
#include "platform/posix/places.h"
#include "platform/posix/start_info.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace tavo {

namespace {

namespace fs = std::filesystem;

// Stands in every entry that is ours.
constexpr std::string_view mark = "X-Tavo-SendTo=true";
constexpr std::uint64_t largestEntry = 65536;

// -- What the entries look like. Where "@" stands comes the quoted program.

constexpr std::string_view sendToEntry = "[Desktop Entry]\n"
                                         "Type=Application\n"
                                         "Version=1.0\n"
                                         "Name=Tavo\n"
                                         "Comment=Rename with Tavo\n"
                                         "Icon=tavo\n"
                                         "Exec=@ %F\n"
                                         "X-Tavo-SendTo=true\n";

constexpr std::string_view serviceMenu = "[Desktop Entry]\n"
                                         "Type=Service\n"
                                         "X-KDE-ServiceTypes=KonqPopupMenu/Plugin\n"
                                         "MimeType=application/octet-stream;inode/directory;\n"
                                         "Actions=sendToTavo\n"
                                         "X-Tavo-SendTo=true\n"
                                         "\n"
                                         "[Desktop Action sendToTavo]\n"
                                         "Name=Tavo\n"
                                         "Icon=tavo\n"
                                         "Exec=@ %F\n";

// Addresses hold no blanks and no quotes, whatever the names do.
constexpr std::string_view nemoAction = "[Nemo Action]\n"
                                        "Name=Tavo\n"
                                        "Comment=Rename with Tavo\n"
                                        "Icon-Name=tavo\n"
                                        "Exec=@ %U\n"
                                        "Selection=notnone\n"
                                        "Extensions=any;\n"
                                        "X-Tavo-SendTo=true\n";

constexpr std::string_view script = "#!/bin/sh\n"
                                    "# X-Tavo-SendTo=true\n"
                                    "exec @ \"$@\"\n";

struct Manager {
    std::string_view Program; // what shows that it is there
    std::string SendToGround::*Folder;
    std::string_view Entry, Text;
    std::string (*Quoted)(const std::string& path);
    bool Executable;
};

const Manager managers[] = {
    {"thunar", &SendToGround::DataFolder, "Thunar/sendto/tavo.desktop", sendToEntry, Exec_Quoted,
     false},
    {"nautilus", &SendToGround::DataFolder, "nautilus/scripts/Tavo", script, Shell_Quoted, true},
    {"caja", &SendToGround::ConfigFolder, "caja/scripts/Tavo", script, Shell_Quoted, true},
    {"nemo", &SendToGround::DataFolder, "nemo/actions/tavo.nemo_action", nemoAction, Exec_Quoted,
     false},
    {"dolphin", &SendToGround::DataFolder, "kio/servicemenus/tavo.desktop", serviceMenu,
     Exec_Quoted, true},
};

bool IsProgram(const std::string& path)
{
    struct stat data;
    return ::stat(path.c_str(), &data) == 0 && S_ISREG(data.st_mode)
           && ::access(path.c_str(), X_OK) == 0;
}

bool IsFound(const SendToGround& ground, const Manager& manager)
{
    return std::any_of(ground.ProgramFolders.begin(), ground.ProgramFolders.end(),
                       [&](const std::string& folder) {
                           return IsProgram(folder + std::string(manager.Program));
                       });
}

// A line of an entry has no way to hold a path with a line feed in it.
bool CanStand(const SendToGround& ground)
{
    return !ground.Program.empty() && ground.Program.find_first_of("\r\n") == std::string::npos;
}

std::string Entry_Path(const SendToGround& ground, const Manager& manager)
{
    return ground.*manager.Folder + std::string(manager.Entry);
}

std::string Entry_Text(const SendToGround& ground, const Manager& manager)
{
    std::string text(manager.Text);
    return text.replace(text.find('@'), 1, manager.Quoted(ground.Program));
}

bool IsOurs(const std::string& path)
{
    std::string bytes;
    return ReadRegularFile(path, largestEntry, bytes) == 0 && bytes.find(mark) != std::string::npos;
}

bool IsThere(const std::string& path)
{
    struct stat data;
    return ::lstat(path.c_str(), &data) == 0;
}

void Entry_Write(const SendToGround& ground, const Manager& manager)
{
    const std::string path = Entry_Path(ground, manager);
    if (IsThere(path) && !IsOurs(path))
        return;
    std::error_code failed;
    fs::create_directories(fs::path(path).parent_path(), failed);
    const auto disk = SystemEditDisk();
    const auto change = [&](const std::string&) { return Entry_Text(ground, manager); };
    if (ChangeFile(*disk, path, change) == 0 && manager.Executable)
        ::chmod(path.c_str(), S_IRWXU | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH);
}

void Entry_Remove(const SendToGround& ground, const Manager& manager)
{
    const std::string path = Entry_Path(ground, manager);
    if (IsOurs(path))
        ::unlink(path.c_str());
}

std::vector<std::string> ProgramFolders()
{
    const char* set = std::getenv("PATH");
    std::string_view rest = set ? set : "/usr/local/bin:/usr/bin:/bin";
    std::vector<std::string> folders;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        if (rest.starts_with('/'))
            folders.push_back(std::string(rest.substr(0, end)) + '/');
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return folders;
}

std::string WithEscapes(const std::string& text, std::string_view special)
{
    std::string escaped;
    for (const char c : text) {
        if (special.find(c) != special.npos)
            escaped += '\\';
        escaped += c;
    }
    return escaped;
}

} // namespace

// Quoted as an argument first, and then once more as the text of a key.
std::string Exec_Quoted(const std::string& path)
{
    std::string argument = '"' + WithEscapes(path, "\"`$\\") + '"';
    for (std::size_t at = 0; (at = argument.find('%', at)) != std::string::npos; at += 2)
        argument.insert(at, 1, '%');
    return WithEscapes(argument, "\\");
}

std::string Shell_Quoted(const std::string& path)
{
    std::string quoted = "'";
    for (const char c : path)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

std::string SendTo_Program(const std::string& executablePath)
{
    constexpr std::string_view windowless = "-console";
    if (!executablePath.ends_with(windowless))
        return executablePath;
    const std::string beside = executablePath.substr(0, executablePath.size() - windowless.size());
    return IsProgram(beside) ? beside : std::string();
}

SendToGround SendTo_OfSystem()
{
    return {DataHomeFolder(), ConfigHomeFolder(), ProgramFolders(),
            SendTo_Program(Executable_Path())};
}

bool SendTo_Stands(const SendToGround& ground)
{
    bool any = false;
    for (const Manager& manager : managers) {
        if (!IsFound(ground, manager))
            continue;
        if (!IsOurs(Entry_Path(ground, manager)))
            return false;
        any = true;
    }
    return any;
}

void SendTo_Put(const SendToGround& ground, bool on)
{
    for (const Manager& manager : managers) {
        if (!on)
            Entry_Remove(ground, manager);
        else if (CanStand(ground) && IsFound(ground, manager))
            Entry_Write(ground, manager);
    }
}

} // namespace tavo
