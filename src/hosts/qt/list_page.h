#pragma once

#include "hosts/qt/list_model.h"

#include <QStackedWidget>

class QListView;
class QTableView;

namespace tavo {

class Binder;

// A list in the window: its rows with their columns, or closely packed without
// them, as the list's view says.
class ListPage : public QStackedWidget {
    Q_OBJECT

public:
    ListPage(ListView& list, Binder& binder, QWidget* parent);

    QTableView& Details() const { return *details_; }
    QListView& Packed() const { return *packed_; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void Build();
    void ShowMarks();
    void FollowItem();
    void ShowPosition(int position);
    void FitRows();
    void TellPage();

    ListView& list_;
    ListModel* model_;
    QTableView* details_;
    QListView* packed_;
};

} // namespace tavo
