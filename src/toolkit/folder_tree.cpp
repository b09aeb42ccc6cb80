#include "toolkit/folder_tree.h"

#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

using Nodes = std::vector<std::unique_ptr<FolderNode>>;

std::unique_ptr<FolderNode> MakeNode(std::string caption, std::string path, FolderNode* parent)
{
    auto node = std::make_unique<FolderNode>();
    node->Caption = std::move(caption);
    node->Path = std::move(path);
    node->Parent = parent;
    return node;
}

// How a root stands to a path: nothing, above it but for case, or above it.
enum class Fit { None, Alike, Exact };

Fit FitOf(const FolderNode& root, const std::string& path)
{
    if (root.Path.empty())
        return Fit::None;
    if (path.starts_with(root.Path))
        return Fit::Exact;
    return StartsWithText(path, root.Path) ? Fit::Alike : Fit::None;
}

// The parts of a path's end, without those that name the folder itself.
std::vector<std::string> Parts(const std::string& path, std::size_t from, char separator)
{
    std::vector<std::string> parts;
    while (from < path.size()) {
        const std::size_t end = std::min(path.find(separator, from), path.size());
        const std::string part = path.substr(from, end - from);
        if (!part.empty() && part != ".")
            parts.push_back(part);
        from = end + 1;
    }
    return parts;
}

void AddInSight(const Nodes& nodes, std::vector<FolderNode*>& sight)
{
    for (const auto& node : nodes) {
        sight.push_back(node.get());
        if (node->Expanded)
            AddInSight(node->Children, sight);
    }
}

// Takes the node of this caption and path out of the old ones; null if there is
// none.
std::unique_ptr<FolderNode> TakeNode(Nodes& old, const std::string& caption,
                                     const std::string& path)
{
    for (auto& node : old)
        if (node && node->Path == path && node->Caption == caption)
            return std::move(node);
    return nullptr;
}

} // namespace

const Nodes& FolderTree::Roots()
{
    if (rootsRead_)
        return roots_;
    rootsRead_ = true;
    NodesAboutToChange();
    ReadRoots();
    NodesChanged();
    return roots_;
}

void FolderTree::ReadRoots()
{
    Nodes old = std::move(roots_);
    roots_.clear();
    for (auto& place : Source.Roots ? Source.Roots() : std::vector<FolderSource::Place>()) {
        auto node = TakeNode(old, place.Caption, place.Path);
        if (!node)
            node = MakeNode(place.Caption, place.Path, nullptr);
        roots_.push_back(std::move(node));
    }
}

void FolderTree::Fill(FolderNode& node)
{
    if (node.Read)
        return;
    NodesAboutToChange();
    Reread(node);
    NodesChanged();
}

// Nodes that are still there keep what they have below them.
void FolderTree::Reread(FolderNode& node)
{
    Nodes old = std::move(node.Children);
    node.Children.clear();
    node.Read = true;
    if (node.Path.empty() || !Source.Children)
        return;
    for (auto& name : Source.Children(node.Path)) {
        const std::string path = node.Path + name + Source.Separator;
        auto child = TakeNode(old, name, path);
        if (!child)
            child = MakeNode(name, path, &node);
        child->Unlisted = false;
        node.Children.push_back(std::move(child));
    }
    KeepUnlisted(node, old);
}

// Somebody went to these by their names, or is in them.
void FolderTree::KeepUnlisted(FolderNode& node, Nodes& old)
{
    for (auto& child : old) {
        const bool wanted = child && (child->Unlisted || folder_.starts_with(child->Path));
        if (!wanted || !(IsSlow(child->Path) || Source.IsFolder(child->Path)))
            continue;
        child->Unlisted = true;
        node.Children.push_back(std::move(child));
    }
}

bool FolderTree::MayOpen(FolderNode& node)
{
    if (node.Read || !node.Children.empty() || node.Path.empty())
        return !node.Children.empty();
    if (!node.HasBelow)
        node.HasBelow = IsSlow(node.Path) || !Source.HasChildren || Source.HasChildren(node.Path);
    return *node.HasBelow;
}

void FolderTree::RefreshBelow(Nodes& nodes)
{
    for (const auto& node : nodes) {
        node->HasBelow.reset();
        if (node->Expanded) {
            Reread(*node);
            RefreshBelow(node->Children);
        } else {
            node->Read = false;
            node->Children.clear();
        }
    }
}

void FolderTree::Refresh()
{
    if (!rootsRead_)
        return;
    // The nodes may all be others afterwards: keep what to look for.
    const std::string inHand = current_ ? current_->Path : folder_;
    current_ = nullptr;
    NodesAboutToChange();
    ReadRoots();
    RefreshBelow(roots_);
    current_ = FindRead(roots_, inHand);
    NodesChanged();
}

FolderNode* FolderTree::FindRead(const Nodes& nodes, const std::string& path) const
{
    for (const auto& node : nodes) {
        if (node->Path == path)
            return node.get();
        if (FolderNode* below = FindRead(node->Children, path))
            return below;
    }
    return nullptr;
}

bool FolderTree::SetFolder(const std::string& path)
{
    if (path.empty() || !Source.IsFolder)
        return false;
    std::string full = path;
    if (full.back() != Source.Separator)
        full += Source.Separator;
    FolderNode* node = Source.IsFolder(full) ? Reach(full) : nullptr;
    if (!node)
        return false;
    OpenAbove(*node);
    Report(*node);
    return true;
}

FolderNode* FolderTree::Reach(const std::string& path)
{
    for (FolderNode* root : RootsAbove(path))
        if (FolderNode* node = Descend(*root, path))
            return node;
    return nullptr;
}

// The roots that may lead there, the nearest one first.
std::vector<FolderNode*> FolderTree::RootsAbove(const std::string& path)
{
    std::vector<FolderNode*> above;
    for (const auto& root : Roots())
        if (FitOf(*root, path) != Fit::None)
            above.push_back(root.get());
    std::stable_sort(above.begin(), above.end(), [&path](auto* left, auto* right) {
        const Fit leftFit = FitOf(*left, path), rightFit = FitOf(*right, path);
        return leftFit != rightFit ? leftFit > rightFit : left->Path.size() > right->Path.size();
    });
    return above;
}

FolderNode* FolderTree::Descend(FolderNode& from, const std::string& path)
{
    const auto separator = Source.Separator;
    // A case-blind fit may have other byte lengths, so the parts are counted.
    const auto skipped = Parts(from.Path, 0, separator).size();
    const auto parts = Parts(path, 0, separator);
    FolderNode* node = &from;
    for (std::size_t at = skipped; at < parts.size(); ++at) {
        Fill(*node);
        FolderNode* child = FindChild(*node, parts[at]);
        if (!child)
            child = AddUnlisted(*node, parts[at]);
        if (!child)
            return nullptr;
        node = child;
    }
    return node;
}

// The spelling itself goes before one that differs in case alone, which may be
// a folder of its own.
FolderNode* FolderTree::FindChild(const FolderNode& node, const std::string& name) const
{
    const std::string path = node.Path + name + Source.Separator;
    FolderNode* alike = nullptr;
    for (const auto& child : node.Children) {
        if (child->Caption == name)
            return child.get();
        if (!alike && SameText(child->Caption, name))
            alike = child.get();
    }
    const bool isSame = alike && (!Source.IsSameFolder || Source.IsSameFolder(alike->Path, path));
    return isSame ? alike : nullptr;
}

// A folder may be open to those who know its name while the one above it
// cannot be listed.
FolderNode* FolderTree::AddUnlisted(FolderNode& parent, const std::string& name)
{
    const std::string path = parent.Path + name + Source.Separator;
    if (name == ".." || !Source.IsFolder(path))
        return nullptr;
    NodesAboutToChange();
    parent.Children.push_back(MakeNode(name, path, &parent));
    parent.Children.back()->Unlisted = true;
    NodesChanged();
    return parent.Children.back().get();
}

void FolderTree::OpenAbove(const FolderNode& node)
{
    for (FolderNode* above = node.Parent; above; above = above->Parent)
        Expand(*above, true);
}

void FolderTree::Expand(FolderNode& node, bool on)
{
    if (on)
        Fill(node);
    if (node.Expanded == on)
        return;
    node.Expanded = on;
    Changed(Prop::State);
}

void FolderTree::ExpandFolder()
{
    if (current_)
        Expand(*current_, true);
}

void FolderTree::EnsureVisible()
{
    if (!current_)
        return;
    OpenAbove(*current_);
    ShowNode(*current_);
}

std::vector<FolderNode*> FolderTree::NodesInSight()
{
    std::vector<FolderNode*> sight;
    AddInSight(Roots(), sight);
    return sight;
}

void FolderTree::Report(FolderNode& node)
{
    current_ = &node;
    if (!node.Path.empty())
        folder_ = node.Path;
    // A handler may go to another folder, or read the tree anew.
    const std::string path = node.Path;
    Changed(Prop::State);
    FolderClick(path);
}

void FolderTree::PersonNode(FolderNode& node)
{
    SetFocus();
    if (IsShown() && IsUsable())
        Report(node);
}

// Where the key leads; null when it is for no other node.
FolderNode* FolderTree::KeyTarget(const Key& key)
{
    const auto sight = NodesInSight();
    if (sight.empty())
        return nullptr;
    const auto found = std::find(sight.begin(), sight.end(), current_);
    const bool none = found == sight.end();
    switch (key.Code) {
    case keyHome: return sight.front();
    case keyEnd: return sight.back();
    case keyUp: return none ? sight.front() : found == sight.begin() ? nullptr : *(found - 1);
    case keyDown: return none ? sight.front() : found + 1 == sight.end() ? nullptr : *(found + 1);
    case keyLeft: return none || (*found)->Expanded ? nullptr : (*found)->Parent;
    case keyRight:
        return none || !(*found)->Expanded || (*found)->Children.empty()
                   ? nullptr
                   : (*found)->Children.front().get();
    default: return nullptr;
    }
}

void FolderTree::PersonKey(const Key& key)
{
    if ((key.Shift & (shiftCtrl | shiftAlt)) != 0)
        return;
    FolderNode* target = KeyTarget(key);
    if (target && target != current_)
        Report(*target);
    else if (!target && current_ && (key.Code == keyLeft || key.Code == keyRight))
        Expand(*current_, key.Code == keyRight);
}

std::optional<std::string> FolderTree::PropertyText(std::string_view property) const
{
    return property == "Folder" ? folder_ : Control::PropertyText(property);
}

} // namespace tavo
