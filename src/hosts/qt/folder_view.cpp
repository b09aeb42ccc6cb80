#include "hosts/qt/folder_view.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/qt_text.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace tavo {

FolderModel::FolderModel(FolderTree& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree), folder_(Icon_OfClass("D"))
{
    tree_.Roots();
    connections_.push_back(tree.NodesAboutToChange.Listen([this] {
        if (!fetching_ && resets_++ == 0)
            beginResetModel();
    }));
    connections_.push_back(tree.NodesChanged.Listen([this] {
        if (!fetching_ && --resets_ == 0)
            endResetModel();
    }));
}

FolderNode* FolderModel::NodeOf(const QModelIndex& index)
{
    return static_cast<FolderNode*>(index.internalPointer());
}

const std::vector<std::unique_ptr<FolderNode>>&
FolderModel::ChildrenOf(const QModelIndex& parent) const
{
    const FolderNode* node = parent.isValid() ? NodeOf(parent) : nullptr;
    return node ? node->Children : tree_.Roots();
}

QModelIndex FolderModel::index(int row, int column, const QModelIndex& parent) const
{
    const auto& children = ChildrenOf(parent);
    if (column != 0 || row < 0 || row >= static_cast<int>(children.size()))
        return {};
    return createIndex(row, 0, children[static_cast<std::size_t>(row)].get());
}

QModelIndex FolderModel::IndexOf(const FolderNode* node) const
{
    if (!node)
        return {};
    const auto& brothers = node->Parent ? node->Parent->Children : tree_.Roots();
    const auto found = std::find_if(brothers.begin(), brothers.end(),
                                    [&](const auto& one) { return one.get() == node; });
    return found == brothers.end()
               ? QModelIndex()
               : createIndex(static_cast<int>(found - brothers.begin()), 0, node);
}

QModelIndex FolderModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? IndexOf(NodeOf(child)->Parent) : QModelIndex();
}

int FolderModel::rowCount(const QModelIndex& parent) const
{
    return static_cast<int>(ChildrenOf(parent).size());
}

int FolderModel::columnCount(const QModelIndex&) const
{
    return 1;
}

bool FolderModel::hasChildren(const QModelIndex& parent) const
{
    return !parent.isValid() || tree_.MayOpen(*NodeOf(parent));
}

bool FolderModel::canFetchMore(const QModelIndex& parent) const
{
    return parent.isValid() && !NodeOf(parent)->Read;
}

// The children are known only once they have been read, so they come in as
// rows of a node that had none.
void FolderModel::fetchMore(const QModelIndex& parent)
{
    FolderNode& node = *NodeOf(parent);
    if (!node.Children.empty()) {
        tree_.Fill(node);
        return;
    }
    FolderNode read;
    {
        const QScopedValueRollback<bool> fetching(fetching_, true);
        tree_.Fill(node);
    }
    std::swap(read.Children, node.Children);
    if (read.Children.empty())
        return;
    beginInsertRows(parent, 0, static_cast<int>(read.Children.size()) - 1);
    std::swap(read.Children, node.Children);
    endInsertRows();
}

QVariant FolderModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const FolderNode& node = *NodeOf(index);
    switch (role) {
    case Qt::DisplayRole: return ToQtLine(node.Caption);
    case Qt::DecorationRole: return folder_;
    case Qt::ToolTipRole: return ToQtLine(node.Path);
    default: return {};
    }
}

FolderView::FolderView(FolderTree& tree, Binder& binder, QWidget* parent)
    : QTreeView(parent), tree_(tree), model_(new FolderModel(tree, this))
{
    setModel(model_);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setExpandsOnDoubleClick(true);
    setTextElideMode(Qt::ElideNone);
    setTabKeyNavigation(false);
    setAccessibleName(tr("Folders"));
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        if (!following_)
            tree_.Expand(*FolderModel::NodeOf(index), true);
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!following_)
            tree_.Expand(*FolderModel::NodeOf(index), false);
    });
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(false);
    binder.Place(*this, tree);
    Binding* binding = binder.Bind(*this, tree, [this](const PropSet& changed) {
        if (changed.Has({Prop::State}))
            Follow();
    });
    connect(this, &QAbstractItemView::clicked, this, [this, binding](const QModelIndex& index) {
        binding->Mark(Prop::State); // the tree may stay where it is
        tree_.PersonNode(*FolderModel::NodeOf(index));
    });
    connect(model_, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { scrolledTo_ = verticalScrollBar()->value(); });
    connect(model_, &QAbstractItemModel::modelReset, this,
            [binding] { binding->Mark(Prop::State); });
    shows_ = tree.ShowNode.Listen([this](FolderNode& node) { Reveal(node); });
}

// A press with the right button chooses nothing.
void FolderView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QTreeView::mousePressEvent(event);
}

void FolderView::keyboardSearch(const QString& search)
{
    const QModelIndex before = currentIndex();
    QTreeView::keyboardSearch(search);
    if (currentIndex().isValid() && currentIndex() != before)
        tree_.PersonNode(*FolderModel::NodeOf(currentIndex()));
}

// Opens, closes and picks nodes as the tree has them.
void FolderView::Follow()
{
    const QScopedValueRollback<bool> following(following_, true);
    FollowNodes({});
    if (scrolledTo_ >= 0) {
        executeDelayedItemsLayout();
        verticalScrollBar()->setValue(std::exchange(scrolledTo_, -1));
    }
    const QModelIndex current = model_->IndexOf(tree_.Current());
    if (current != currentIndex())
        setCurrentIndex(current);
}

void FolderView::FollowNodes(const QModelIndex& parent)
{
    for (int row = 0; row < model_->rowCount(parent); ++row) {
        const QModelIndex index = model_->index(row, 0, parent);
        const FolderNode& node = *FolderModel::NodeOf(index);
        if (node.Expanded != isExpanded(index))
            setExpanded(index, node.Expanded);
        if (node.Expanded)
            FollowNodes(index);
    }
}

void FolderView::Reveal(const FolderNode& node)
{
    Follow();
    scrollTo(model_->IndexOf(&node), QAbstractItemView::EnsureVisible);
}

} // namespace tavo
