#pragma once

#include "platform/files.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// One entry of a disk in memory: a file, a folder, or a link.
struct MemoryNode {
    std::string Name; // in its stored case
    std::uint32_t Attributes = 0;
    FileTime Created, Accessed, Written;
    std::uint64_t Size = 0; // may be more than Content holds
    std::string Content;
    std::string LinkTo;      // full name; not empty for a link
    bool InUse = false;      // cannot be renamed now
    bool Locked = false;     // a folder whose entries cannot be changed
    bool Unreadable = false; // a folder that cannot be listed, a file that cannot be read
    std::uint64_t Id = 0;
    // By the name's key, which is also the order in which they are listed.
    std::map<std::string, std::shared_ptr<MemoryNode>> Children;

    bool IsFolder() const { return (Attributes & attrDirectory) != 0 && LinkTo.empty(); }
    bool IsLink() const { return !LinkTo.empty(); }
};

using NodePtr = std::shared_ptr<MemoryNode>;

// The folders and files of a disk in memory and the reading of their paths,
// in the dialect of its rules.
class MemoryTree {
public:
    explicit MemoryTree(const PathRules& rules);

    // A path taken apart. `Folder` is the folder that its last part lies in,
    // null when there is none (or no such drive); `Name` is that part as the
    // disk keeps it, empty when the path is a root.
    struct Place {
        NodePtr Folder;
        std::string Name;
        NodePtr Root;
        bool EndsInSeparator = false;
        bool IsRoot() const { return Root != nullptr && Name.empty(); }
    };
    Place Locate(std::string_view path) const;

    // The entry of a full name, a link as itself; null for none. A separator
    // behind a folder's name does no harm.
    NodePtr Find(std::string_view path) const;
    // The same with the links of the last part followed.
    NodePtr FindTarget(std::string_view path) const;
    NodePtr Target(const NodePtr& node) const;

    // Entries are told apart by this form of their names.
    std::string Key(std::string_view name) const;
    // A name as the disk keeps it: without dots and blanks at its end, where
    // the disk drops them.
    std::string Stored(std::string_view name) const;

    // "C:", or "" for the one root of a disk without drives.
    void AddRoot(const std::string& name);
    const std::vector<NodePtr>& Roots() const { return roots_; }

    // Makes the entry with all folders above it, or gives the one there is.
    // Null when the path begins with no root or runs through a file.
    NodePtr Make(std::string_view path, std::uint32_t attributes);
    // Puts a copy of the node, with all that is in it, into the folder.
    void Copy(const NodePtr& node, const NodePtr& folder, const std::string& name);
    static bool Unlink(const NodePtr& folder, const std::string& key);

private:
    struct Parts {
        NodePtr Root;
        std::vector<std::string> Names;
        bool EndsInSeparator = false;
    };
    Parts TakeApart(std::string_view path) const;
    NodePtr RootOf(std::string_view& path) const;
    NodePtr Child(const NodePtr& folder, const std::string& name) const;
    NodePtr Walk(const Parts& parts, std::size_t count, int linksLeft) const;
    NodePtr Follow(NodePtr node, int linksLeft) const;
    NodePtr NewChild(const NodePtr& folder, const std::string& name, std::uint32_t attributes);

    PathRules rules_;
    std::vector<NodePtr> roots_;
    std::uint64_t lastId_ = 0;
};

} // namespace tavo
