#pragma once

#include "hosts/qt/binding.h"
#include "toolkit/folder_tree.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <QTreeView>

namespace tavo {

class Binder;

// The nodes of a folder tree as Qt's views read them. The children of a node
// are read when the view asks for them, which it does when it opens the node.
class FolderModel : public QAbstractItemModel {
    Q_OBJECT

public:
    FolderModel(FolderTree& tree, QObject* parent);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role) const override;

    QModelIndex IndexOf(const FolderNode* node) const;
    static FolderNode* NodeOf(const QModelIndex& index);

private:
    const std::vector<std::unique_ptr<FolderNode>>& ChildrenOf(const QModelIndex& parent) const;

    FolderTree& tree_;
    QIcon folder_;
    bool fetching_ = false;
    int resets_ = 0;
    std::vector<Connection> connections_;
};

// The folder tree in the window.
class FolderView : public QTreeView {
    Q_OBJECT

public:
    FolderView(FolderTree& tree, Binder& binder, QWidget* parent);

    void keyboardSearch(const QString& search) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void Follow();
    void FollowNodes(const QModelIndex& parent);
    void Reveal(const FolderNode& node);

    FolderTree& tree_;
    FolderModel* model_;
    bool following_ = false;
    int scrolledTo_ = -1; // before the nodes were read anew; -1 when they were not
    Connection shows_;
};

} // namespace tavo
