#include "support/memory_tree.h"

#include "support/text_points.h"
#include "support/windows_names.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int mostLinks = 40;

} // namespace

MemoryTree::MemoryTree(const PathRules& rules) : rules_(rules) {}

std::string MemoryTree::Key(std::string_view name) const
{
    return rules_.CaseBlind ? points::Upper(name) : std::string(name);
}

std::string MemoryTree::Stored(std::string_view name) const
{
    return rules_.Separator == '/' ? std::string(name) : windows::Stored(name);
}

void MemoryTree::AddRoot(const std::string& name)
{
    auto root = std::make_shared<MemoryNode>();
    root->Name = name;
    root->Attributes = attrDirectory;
    root->Id = ++lastId_;
    roots_.push_back(std::move(root));
}

// Takes the root off the front of the path.
NodePtr MemoryTree::RootOf(std::string_view& path) const
{
    for (const NodePtr& root : roots_) {
        const std::string_view rest = path.substr(std::min(path.size(), root->Name.size()));
        const bool ends = rest.empty() || rest.front() == rules_.Separator;
        if (path.empty() || !ends || Key(path.substr(0, root->Name.size())) != Key(root->Name))
            continue;
        path = rest;
        return root;
    }
    return nullptr;
}

MemoryTree::Parts MemoryTree::TakeApart(std::string_view path) const
{
    std::string text(path);
    if (rules_.Separator != '/')
        std::replace(text.begin(), text.end(), '/', rules_.Separator);

    Parts parts;
    std::string_view rest = text;
    parts.Root = RootOf(rest);
    parts.EndsInSeparator = !rest.empty() && rest.back() == rules_.Separator;
    while (!rest.empty()) {
        const auto end = std::min(rest.find(rules_.Separator), rest.size());
        const std::string_view part = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (part == "..") {
            if (!parts.Names.empty())
                parts.Names.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.Names.emplace_back(part);
        }
    }
    for (std::string& name : parts.Names)
        name = Stored(name);
    std::erase(parts.Names, "");
    return parts;
}

NodePtr MemoryTree::Child(const NodePtr& folder, const std::string& name) const
{
    if (!folder || !folder->IsFolder())
        return nullptr;
    const auto it = folder->Children.find(Key(name));
    return it == folder->Children.end() ? nullptr : it->second;
}

NodePtr MemoryTree::Follow(NodePtr node, int linksLeft) const
{
    while (node && node->IsLink()) {
        if (linksLeft-- <= 0)
            return nullptr;
        const Parts parts = TakeApart(node->LinkTo);
        node = Walk(parts, parts.Names.size(), linksLeft);
    }
    return node;
}

// The entry that the first `count` names lead to; links before the last of
// them are followed.
NodePtr MemoryTree::Walk(const Parts& parts, std::size_t count, int linksLeft) const
{
    NodePtr node = parts.Root;
    for (std::size_t i = 0; i < count && node; ++i)
        node = Child(Follow(node, linksLeft), parts.Names[i]);
    return node;
}

MemoryTree::Place MemoryTree::Locate(std::string_view path) const
{
    const Parts parts = TakeApart(path);
    Place place;
    place.Root = parts.Root;
    place.EndsInSeparator = parts.EndsInSeparator;
    if (!parts.Root || parts.Names.empty())
        return place;
    place.Name = parts.Names.back();
    const NodePtr folder = Follow(Walk(parts, parts.Names.size() - 1, mostLinks), mostLinks);
    if (folder && folder->IsFolder())
        place.Folder = folder;
    return place;
}

NodePtr MemoryTree::Find(std::string_view path) const
{
    const Place place = Locate(path);
    if (place.IsRoot())
        return place.Root;
    const NodePtr node = Child(place.Folder, place.Name);
    const bool folderNeeded = node && place.EndsInSeparator;
    return folderNeeded && (node->Attributes & attrDirectory) == 0 ? nullptr : node;
}

NodePtr MemoryTree::FindTarget(std::string_view path) const
{
    return Target(Find(path));
}

NodePtr MemoryTree::Target(const NodePtr& node) const
{
    return Follow(node, mostLinks);
}

NodePtr MemoryTree::NewChild(const NodePtr& folder, const std::string& name,
                             std::uint32_t attributes)
{
    auto node = std::make_shared<MemoryNode>();
    node->Name = name;
    node->Attributes = attributes;
    node->Id = ++lastId_;
    folder->Children[Key(name)] = node;
    return node;
}

NodePtr MemoryTree::Make(std::string_view path, std::uint32_t attributes)
{
    const Parts parts = TakeApart(path);
    NodePtr node = parts.Root;
    for (std::size_t i = 0; i < parts.Names.size() && node; ++i) {
        const NodePtr folder = Target(node);
        if (!folder || !folder->IsFolder())
            return nullptr;
        const bool last = i + 1 == parts.Names.size();
        node = Child(folder, parts.Names[i]);
        if (!node)
            node = NewChild(folder, parts.Names[i], last ? attributes : attrDirectory);
    }
    return node;
}

void MemoryTree::Copy(const NodePtr& node, const NodePtr& folder, const std::string& name)
{
    const NodePtr copy = NewChild(folder, name, node->Attributes);
    copy->Created = node->Created;
    copy->Accessed = node->Accessed;
    copy->Written = node->Written;
    copy->Size = node->Size;
    copy->Content = node->Content;
    copy->LinkTo = node->LinkTo;
    for (const auto& [key, child] : node->Children)
        Copy(child, copy, child->Name);
}

bool MemoryTree::Unlink(const NodePtr& folder, const std::string& key)
{
    return folder && folder->Children.erase(key) > 0;
}

} // namespace tavo
