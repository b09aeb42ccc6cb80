#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// A real folder of its own for one test, gone with everything in it at the
// end. Names are bytes below the folder and may hold slashes; folders on the
// way are made. A step that cannot be done ends the test program with a text,
// since nothing after it would mean anything.
class TempFolder {
public:
    // `test` becomes part of the folder's name. It lies in the folder `above`,
    // by itself the one for temporary files.
    explicit TempFolder(std::string_view test, const std::string& above = {});
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // With a slash at the end, and no link on the way.
    const std::string& Path() const { return path_; }
    std::string Path(std::string_view name) const { return path_ + std::string(name); }

    void Write(const std::string& name, std::string_view bytes = {}) const;
    void MakeFolder(const std::string& name) const;
    // A symbolic link `name` with this text in it.
    void MakeLink(const std::string& name, const std::string& target) const;
    void MakeHardLink(const std::string& name, const std::string& oldName) const;
    void SetMode(const std::string& name, unsigned mode) const;
    void Remove(const std::string& name) const;

    std::string Read(const std::string& name) const;
    // The text in a link.
    std::string LinkTarget(const std::string& name) const;
    // Is there an entry, even if it is a link to nowhere?
    bool Has(const std::string& name) const;
    // Is it a folder, and no link to one?
    bool IsFolder(const std::string& name) const;
    // What the folder (or one below it) holds, in byte order.
    std::vector<std::string> Names(const std::string& below = {}) const;

private:
    std::string path_;
};

// Calls `work` in a process of its own that has no more rights than any user,
// even when the tests run as root, and gives its result (0 to 255). The
// process sees the disk as it is; what it changes in memory is lost.
int AsPlainUser(const std::function<int()>& work);

} // namespace tavo
