#pragma once

#include "toolkit/control.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tavo {

// Where the tree gets its folders from. Paths end in the separator.
struct FolderSource {
    struct Place {
        std::string Caption, Path;
    };
    // The nodes at the top. A place with an empty path is none of the disk's.
    std::function<std::vector<Place>()> Roots;
    // The names of the folders in this folder that the tree is to show, in order.
    std::function<std::vector<std::string>(const std::string& path)> Children;
    // Has it any?
    std::function<bool(const std::string& path)> HasChildren;
    // May a look at it keep a person waiting? Such a folder is looked at only
    // when somebody opens it or goes to it.
    std::function<bool(const std::string& path)> IsSlow;
    // Is it a folder that can be gone to?
    std::function<bool(const std::string& path)> IsFolder;
    // Are they one folder on the disk, whatever their spelling?
    std::function<bool(const std::string& left, const std::string& right)> IsSameFolder;
    char Separator = '/';
};

// A node of the tree. Children are read when it is first expanded.
struct FolderNode {
    std::string Caption, Path;
    FolderNode* Parent = nullptr;
    bool Expanded = false, Read = false;
    // It is there, but the folder above does not list it.
    bool Unlisted = false;
    // What a look told, before the children are read.
    std::optional<bool> HasBelow;
    std::vector<std::unique_ptr<FolderNode>> Children;
};

// A tree of folders with one of them in hand. Going to a folder, from code or
// by a person, reports it by FolderClick, also when it is in hand already.
class FolderTree : public Control {
public:
    using Control::Control;

    FolderSource Source;
    // Does the source list hidden folders too? To be followed by a Refresh.
    bool ShowsHidden = false;

    // The folder in hand, with its separator at the end; empty before the first.
    const std::string& Folder() const { return folder_; }
    // Goes there: opens the nodes above it, and reports. False, and nothing
    // changed, when there is no such folder or no root leads to it. A folder
    // that its own parent does not list gets a node all the same.
    bool SetFolder(const std::string& path);
    // Opens the node of the folder in hand.
    void ExpandFolder();
    // Asks the host to bring its node into view.
    void EnsureVisible();
    // Reads all expanded nodes anew, the others when they are next expanded. A
    // folder in hand that is gone stays so, but has no node; one that is only
    // listed no more keeps its own.
    void Refresh();

    const std::vector<std::unique_ptr<FolderNode>>& Roots();
    // The node in hand; null for none.
    FolderNode* Current() const { return current_; }
    void Expand(FolderNode& node, bool on);
    // Reads a node's children if they have not been read.
    void Fill(FolderNode& node);
    // Is there something below it to open, as far as can be told without
    // waiting? A slow folder may turn out to be empty.
    bool MayOpen(FolderNode& node);
    // The nodes in sight, from the top.
    std::vector<FolderNode*> NodesInSight();

    // A person clicked this node. One with an empty path is reported, but the
    // folder in hand stays.
    void PersonNode(FolderNode& node);
    // Up, Down, Home, End go to another node in sight and report it; Right
    // opens a node or goes into it, Left closes it or goes to its parent.
    void PersonKey(const Key& key) override;
    bool TakesFocus() const override { return true; }
    std::optional<std::string> PropertyText(std::string_view property) const override;

    Event<const std::string&> FolderClick;
    // For the host. Before nodes go, and after the tree has other ones.
    Event<> NodesAboutToChange, NodesChanged;
    Event<FolderNode&> ShowNode;

private:
    using Nodes = std::vector<std::unique_ptr<FolderNode>>;
    FolderNode* Reach(const std::string& path);
    FolderNode* Descend(FolderNode& from, const std::string& path);
    std::vector<FolderNode*> RootsAbove(const std::string& path);
    FolderNode* FindChild(const FolderNode& node, const std::string& name) const;
    FolderNode* AddUnlisted(FolderNode& parent, const std::string& name);
    void ReadRoots();
    void Reread(FolderNode& node);
    void KeepUnlisted(FolderNode& node, Nodes& old);
    bool IsSlow(const std::string& path) const { return Source.IsSlow && Source.IsSlow(path); }
    void RefreshBelow(Nodes& nodes);
    FolderNode* FindRead(const Nodes& nodes, const std::string& path) const;
    FolderNode* KeyTarget(const Key& key);
    void OpenAbove(const FolderNode& node);
    void Report(FolderNode& node);

    std::vector<std::unique_ptr<FolderNode>> roots_;
    bool rootsRead_ = false;
    std::string folder_;
    FolderNode* current_ = nullptr;
};

} // namespace tavo
