#include "support/temp_folder.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tavo {

namespace {

namespace fs = std::filesystem;

// The user that owns nothing, by custom.
constexpr unsigned nobody = 65534;

void Must(bool done, const std::string& what)
{
    if (done)
        return;
    std::fprintf(stderr, "temp folder: %s: %s\n", what.c_str(), std::strerror(errno));
    std::abort();
}

void MakeParents(const std::string& path)
{
    std::error_code error;
    fs::create_directories(fs::path(path).parent_path(), error);
    Must(!error, "parents of " + path);
}

} // namespace

TempFolder::TempFolder(std::string_view test, const std::string& above)
{
    std::error_code error;
    const fs::path folder =
        fs::canonical(above.empty() ? fs::temp_directory_path(error) : fs::path(above), error);
    Must(!error, "the folder for temporary files");
    path_ = folder.string() + "/tavo_" + std::string(test) + "_XXXXXX";
    Must(::mkdtemp(path_.data()) != nullptr, path_);
    // Tests with the rights of another user look in too.
    Must(::chmod(path_.c_str(), 0755) == 0, path_);
    path_.push_back('/');
}

TempFolder::~TempFolder()
{
    // Folders that a test has closed must be opened to be emptied.
    std::error_code error;
    for (fs::recursive_directory_iterator entry(path_, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->symlink_status(error).type() == fs::file_type::directory)
            fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, error);
    }
    fs::remove_all(path_, error);
}

void TempFolder::Write(const std::string& name, std::string_view bytes) const
{
    const std::string path = Path(name);
    MakeParents(path);
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    Must(file.good(), path);
}

void TempFolder::MakeFolder(const std::string& name) const
{
    MakeParents(Path(name));
    Must(::mkdir(Path(name).c_str(), 0755) == 0, Path(name));
}

void TempFolder::MakeLink(const std::string& name, const std::string& target) const
{
    MakeParents(Path(name));
    Must(::symlink(target.c_str(), Path(name).c_str()) == 0, Path(name));
}

void TempFolder::MakeHardLink(const std::string& name, const std::string& oldName) const
{
    Must(::link(Path(oldName).c_str(), Path(name).c_str()) == 0, Path(name));
}

void TempFolder::SetMode(const std::string& name, unsigned mode) const
{
    Must(::chmod(Path(name).c_str(), mode) == 0, Path(name));
}

void TempFolder::Remove(const std::string& name) const
{
    Must(std::remove(Path(name).c_str()) == 0, Path(name));
}

std::string TempFolder::Read(const std::string& name) const
{
    std::ifstream file(Path(name), std::ios::binary);
    Must(file.good(), Path(name));
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string TempFolder::LinkTarget(const std::string& name) const
{
    std::error_code error;
    const std::string target = fs::read_symlink(Path(name), error).string();
    Must(!error, Path(name));
    return target;
}

bool TempFolder::Has(const std::string& name) const
{
    struct stat data;
    return ::lstat(Path(name).c_str(), &data) == 0;
}

bool TempFolder::IsFolder(const std::string& name) const
{
    struct stat data;
    return ::lstat(Path(name).c_str(), &data) == 0 && S_ISDIR(data.st_mode);
}

std::vector<std::string> TempFolder::Names(const std::string& below) const
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(Path(below), error))
        names.push_back(entry.path().filename().string());
    Must(!error, Path(below));
    std::sort(names.begin(), names.end());
    return names;
}

int AsPlainUser(const std::function<int()>& work)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    Must(child >= 0, "fork");
    if (child == 0) {
        if (::geteuid() == 0)
            Must(::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 && ::setuid(nobody) == 0,
                 "to be a plain user");
        ::_exit(work());
    }
    int status = 0;
    Must(::waitpid(child, &status, 0) == child && WIFEXITED(status), "a plain user's process");
    return WEXITSTATUS(status);
}

} // namespace tavo
