#include "hosts/qt/list_model.h"

#include "hosts/qt/icons.h"
#include "hosts/qt/qt_text.h"

#include <QIcon>

#include <utility>

namespace tavo {

ListModel::ListModel(ListView& list, FrameQueue& queue, QObject* parent)
    : QAbstractTableModel(parent), list_(list)
{
    binding_ =
        new Binding(queue, *this, none_, [this](const PropSet& changed) { Follow(changed); });
    list_.SetObserver(this);
}

ListModel::~ListModel()
{
    list_.SetObserver(nullptr);
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : shownRows_;
}

int ListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : list_.ColumnCount();
}

QVariant ListModel::data(const QModelIndex& index, int role) const
{
    const int position = index.row() + 1;
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole: return ToQtLine(list_.Cell(position, column));
    case Qt::DecorationRole: {
        const QIcon& icon = Icon(list_.SmallIcon(position));
        return column == 0 && !icon.isNull() ? QVariant(icon) : QVariant();
    }
    case Qt::TextAlignmentRole:
        return static_cast<int>(
            Qt::AlignVCenter
            | (list_.Column(column).RightAligned ? Qt::AlignRight : Qt::AlignLeft));
    default: return {};
    }
}

const QIcon& ListModel::Icon(std::string_view key) const
{
    const auto made = icons_.find(key);
    if (made != icons_.end())
        return made->second;
    return icons_.emplace(key, Icon_OfRow(key)).first->second;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= list_.ColumnCount())
        return {};
    const ColumnHeader& column = list_.Column(section);
    if (role == Qt::DisplayRole)
        return ToQt(column.Caption);
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignVCenter
                                | (column.RightAligned ? Qt::AlignRight : Qt::AlignLeft));
    return {};
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

void ListModel::ShowRow(int position)
{
    showPosition_ = position;
    Changed_Mark(Prop::Geometry);
}

void ListModel::Follow(const PropSet& changed)
{
    if (changed.Has({Prop::Items}))
        FollowCount();
    if (changed.Has({Prop::Caption}))
        emit headerDataChanged(Qt::Horizontal, 0, list_.ColumnCount() - 1);
    if (changed.Has({Prop::Items, Prop::Text}))
        emit Redraw();
    if (changed.Has({Prop::Items, Prop::ListIndex}))
        emit ItemMoved();
    const int show = std::exchange(showPosition_, 0);
    if (show > 0)
        emit ShowWanted(show);
}

// Which rows came or went does not matter to views that keep nothing of them:
// the end of the list moves, and all that is in sight is drawn anew.
void ListModel::FollowCount()
{
    const int rows = list_.Count();
    if (rows > shownRows_) {
        beginInsertRows({}, shownRows_, rows - 1);
        shownRows_ = rows;
        endInsertRows();
    } else if (rows < shownRows_) {
        beginRemoveRows({}, rows, shownRows_ - 1);
        shownRows_ = rows;
        endRemoveRows();
    }
}

} // namespace tavo
