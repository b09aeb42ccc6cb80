#pragma once

#include "toolkit/list_view.h"

#include <QObject>
#include <QPoint>

#include <functional>

class QAbstractItemView;
class QDropEvent;
class QMouseEvent;

namespace tavo {

// The mouse over a list: presses select rows, a press that moves on drags them
// out or, beside the rows, selects what it passes; files are let fall. The
// view only paints and scrolls: which rows are selected stands in the list.
class RowInput : public QObject {
    Q_OBJECT

public:
    RowInput(QAbstractItemView& view, ListView& list);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool Press(const QMouseEvent& event);
    bool Move(const QMouseEvent& event);
    bool Release(const QMouseEvent& event);
    void Band(const QPoint& pos);
    bool DragOver(QDropEvent& event);
    bool Drop(QDropEvent& event);
    int RowAt(const QPoint& pos) const;

    QAbstractItemView& view_;
    ListView& list_;
    enum class Held { Nothing, Row, Band } held_ = Held::Nothing;
    QPoint pressedAt_;
    int bandFrom_ = 0;
    // A press on one of several selected rows may begin a drag of them all:
    // what it selects is decided when the button goes up.
    std::function<void()> onRelease_;
};

} // namespace tavo
