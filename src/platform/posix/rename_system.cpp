#include "platform/posix/rename.h"

#include "platform/posix/descriptor.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace tavo {

namespace {

template <typename Call>
int ErrorOf(Call call)
{
    return WithoutInterrupts(call) == 0 ? 0 : errno;
}

class SystemCalls : public RenameDisk {
public:
    int MoveNoReplace(const std::string& from, const std::string& to) override
    {
        return ErrorOf([&] {
            return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
        });
    }

    int Move(const std::string& from, const std::string& to) override
    {
        return ErrorOf([&] { return ::rename(from.c_str(), to.c_str()); });
    }

    int Link(const std::string& from, const std::string& to) override
    {
        return ErrorOf([&] { return ::linkat(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), 0); });
    }

    int Unlink(const std::string& path) override
    {
        return ErrorOf([&] { return ::unlink(path.c_str()); });
    }

    int Look(const std::string& path, Entry& entry) override
    {
        struct stat data;
        if (const int error = ErrorOf([&] { return ::lstat(path.c_str(), &data); }))
            return error;
        entry = {{data.st_dev, data.st_ino}, data.st_nlink, S_ISDIR(data.st_mode)};
        return 0;
    }

    int HasName(const std::string& folder, const std::string& name, bool& has) override
    {
        const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(folder.c_str()), ::closedir);
        has = false;
        if (!listing)
            return errno;
        errno = 0;
        while (const dirent* entry = ::readdir(listing.get())) {
            if (name == entry->d_name) {
                has = true;
                return 0;
            }
        }
        return errno;
    }
};

} // namespace

std::unique_ptr<RenameDisk> SystemRenameDisk()
{
    return std::make_unique<SystemCalls>();
}

} // namespace tavo
