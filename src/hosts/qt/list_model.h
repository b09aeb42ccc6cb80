#pragma once

#include "hosts/qt/binding.h"
#include "toolkit/list_view.h"

#include <QAbstractTableModel>

#include <QIcon>

#include <map>
#include <string>

namespace tavo {

// The rows of a list as Qt's views read them: live, with no copy. What the
// list tells is gathered and passed on with the next frame, so that a walk
// that adds a hundred thousand rows costs the views nothing; in between a view
// may ask for rows that are gone, and finds them empty.
class ListModel : public QAbstractTableModel, public ListObserver {
    Q_OBJECT

public:
    ListModel(ListView& list, FrameQueue& queue, QObject* parent);
    ~ListModel() override;

    ListView& List() const { return list_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    // With the next frame: rows look different, the row in hand is another, a
    // row (from 1) is to be brought into view.
    void Redraw();
    void ItemMoved();
    void ShowWanted(int position);

private:
    void BeginInsert(int, int) override {}
    void EndInsert() override { Changed_Mark(Prop::Items); }
    void BeginRemove(int, int) override {}
    void EndRemove() override { Changed_Mark(Prop::Items); }
    void BeginReset() override {}
    void EndReset() override { Changed_Mark(Prop::Items); }
    void CellsChanged(int, int) override { Changed_Mark(Prop::Text); }
    void SelectionChanged(int, int) override { Changed_Mark(Prop::Text); }
    void SelectedItemChanged() override { Changed_Mark(Prop::ListIndex); }
    void ColumnsChanged() override { Changed_Mark(Prop::Caption); }
    void ShowRow(int position) override;
    void Changed_Mark(Prop what) { binding_->Mark(what); }
    void Follow(const PropSet& changed);
    void FollowCount();
    const QIcon& Icon(std::string_view key) const;

    ListView& list_;
    Event<Prop> none_; // the observer tells what changes
    Binding* binding_;
    int shownRows_ = 0;
    int showPosition_ = 0;
    mutable std::map<std::string, QIcon, std::less<>> icons_; // by the key, as they come up
};

} // namespace tavo
