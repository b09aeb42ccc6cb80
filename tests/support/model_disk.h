#pragma once

#include "support/nn_model.h"

#include <map>
#include <string>
#include <utility>

namespace tavo::model {

// The disk of the model: full names, each with the number of its content. It
// knows existence and renaming within one folder, and answers with the codes
// of the platform.
class ModelDisk {
public:
    explicit ModelDisk(const NnTask& task);

    // Does `name` lie in `path`? On Windows a name that the system keeps for a
    // device lies everywhere.
    bool Exists(const std::string& path, const std::string& name) const;
    // 0, or why not. Never replaces.
    int Rename(const std::string& path, const std::string& oldName, const std::string& newName);

    Disk Contents() const;

private:
    int Refusal(const std::string& path, const std::string& name) const;
    int RefusalOnLinux(const std::string& name) const;
    int RefusalOnWindows(const std::string& path, const std::string& name) const;
    std::string Stored(const std::string& name) const;
    std::string Key(const std::string& full) const;
    void Move(const std::string& from, const std::string& to);

    Dialect system_;
    bool blind_;
    std::map<std::string, std::pair<std::string, int>> entries_; // key -> name, content
    std::map<std::string, bool> inUse_, locked_;
};

} // namespace tavo::model
