#include "platform/posix/start_info.h"

#include "platform/posix/places.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tavo {

namespace {

namespace fs = std::filesystem;

// Any one of these makes the program's own folder a portable copy.
constexpr std::string_view portableMarks[] = {"Tavo.ini", "Default.ini", "portable"};
// Where the installed files lie, seen from the program's own folder.
constexpr std::string_view installedData = "../share/tavo/";
constexpr std::string_view urlScheme = "file://";
constexpr std::string_view plainInUrls = "-_.~/!$&'()*+,;=:@";

std::string OwnFolder(const std::string& executablePath)
{
    return executablePath.substr(0, executablePath.rfind('/') + 1);
}

bool IsThere(const std::string& path)
{
    return ::access(path.c_str(), F_OK) == 0;
}

bool IsFolder(const std::string& path)
{
    struct stat data;
    return ::stat(path.c_str(), &data) == 0 && S_ISDIR(data.st_mode);
}

bool IsPortable(const std::string& folder)
{
    const auto holds = [&](std::string_view mark) { return IsThere(folder + std::string(mark)); };
    return std::any_of(std::begin(portableMarks), std::end(portableMarks), holds)
           && ::access(folder.c_str(), W_OK) == 0;
}

// The first of these that is there, with no detours in its path; else empty.
std::string InstalledEntry(const std::string& executablePath, std::string_view name)
{
    const std::string own = OwnFolder(executablePath);
    for (const std::string& folder : {own + std::string(installedData), own}) {
        std::error_code failed;
        const fs::path found = fs::canonical(folder + std::string(name), failed);
        if (!failed)
            return found.string();
    }
    return {};
}

void LinkHelp(const std::string& appFolder, const std::string& executablePath)
{
    const std::string link = appFolder + "help";
    const std::string pages = InstalledEntry(executablePath, "help");
    if (pages.empty() || IsThere(link))
        return;
    std::error_code failed;
    if (fs::is_symlink(fs::symlink_status(link, failed)))
        fs::remove(link, failed);
    fs::create_directory_symlink(pages, link, failed);
}

void CopyDefaults(const std::string& appFolder, const std::string& executablePath)
{
    const std::string defaults = InstalledEntry(executablePath, "Default.ini");
    std::error_code failed;
    if (!defaults.empty())
        fs::copy_file(defaults, appFolder + "Default.ini", fs::copy_options::skip_existing, failed);
}

int HexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string PercentDecode(std::string_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool coded = text[i] == '%' && i + 2 < text.size() && HexValue(text[i + 1]) >= 0
                           && HexValue(text[i + 2]) >= 0;
        if (!coded) {
            bytes += text[i];
            continue;
        }
        bytes += static_cast<char>(HexValue(text[i + 1]) * 16 + HexValue(text[i + 2]));
        i += 2;
    }
    return bytes;
}

bool IsThisMachine(std::string_view host)
{
    std::array<char, 256> name{};
    if (host.empty() || host == "localhost")
        return true;
    return ::gethostname(name.data(), name.size() - 1) == 0 && host == name.data();
}

bool HoldsPart(const std::string& path, std::string_view part)
{
    return (path + "/").find("/" + std::string(part) + "/") != std::string::npos;
}

// Without "." and "..": what a link leads to decides what lies above it.
std::string WithoutDetours(const std::string& path)
{
    std::error_code failed;
    if (HoldsPart(path, "..")) {
        // What does not exist still has a folder that may.
        const fs::path real = fs::weakly_canonical(path, failed);
        return failed ? path : real.string();
    }
    return HoldsPart(path, ".") ? fs::path(path).lexically_normal().string() : path;
}

} // namespace

std::string Folder_Absolute(const std::string& folder)
{
    std::error_code failed;
    const std::string path = WithoutDetours(fs::absolute(folder, failed).string());
    return path.ends_with('/') ? path : path + '/';
}

std::string Executable_Path()
{
    std::error_code failed;
    return fs::read_symlink("/proc/self/exe", failed).string();
}

std::string AppFolder_Find(const std::string& executablePath)
{
    std::string own = OwnFolder(executablePath);
    if (!own.empty() && IsPortable(own))
        return own;
    return ConfigHomeFolder() + "tavo/";
}

void AppFolder_Prepare(const std::string& appFolder, const std::string& executablePath)
{
    std::error_code failed;
    fs::create_directories(appFolder, failed);
    if (appFolder == OwnFolder(executablePath))
        return;
    LinkHelp(appFolder, executablePath);
    CopyDefaults(appFolder, executablePath);
}

std::string Command_Text(const std::vector<std::string>& args)
{
    if (args.empty() || args.back().empty())
        return {};
    const std::string fromUrl = Path_FromFileUrl(args.back());
    std::string path = fromUrl.empty() ? args.back() : fromUrl;
    std::error_code failed;
    if (path[0] != '/')
        path = fs::current_path(failed).string() + "/" + path;
    path = WithoutDetours(path);
    return IsFolder(path) && !path.ends_with('/') ? path + "/" : path;
}

std::string Path_FromFileUrl(std::string_view url)
{
    if (!url.starts_with(urlScheme))
        return {};
    url.remove_prefix(urlScheme.size());
    const std::size_t slash = url.find('/');
    if (slash == url.npos || !IsThisMachine(url.substr(0, slash)))
        return {};
    return PercentDecode(url.substr(slash));
}

std::string Path_ToFileUrl(std::string_view path)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string url(urlScheme);
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80 && (std::isalnum(byte) || plainInUrls.find(c) != plainInUrls.npos))
            url += c;
        else
            url.append({'%', digits[byte >> 4], digits[byte & 15]});
    }
    return url;
}

} // namespace tavo
