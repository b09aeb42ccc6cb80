#include "hosts/qt/row_input.h"

#include "hosts/qt/key_of_event.h"
#include "hosts/qt/qt_text.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <numeric>
#include <utility>

namespace tavo {

namespace {

constexpr char uriList[] = "text/uri-list";

std::vector<int> Rows_Between(int one, int other)
{
    std::vector<int> rows(static_cast<std::size_t>(std::abs(one - other)) + 1);
    std::iota(rows.begin(), rows.end(), std::min(one, other));
    return rows;
}

} // namespace

RowInput::RowInput(QAbstractItemView& view, ListView& list)
    : QObject(&view), view_(view), list_(list)
{
    view.viewport()->installEventFilter(this);
    view.viewport()->setAcceptDrops(true);
}

bool RowInput::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: return Press(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonDblClick:
        Press(static_cast<QMouseEvent&>(*event));
        list_.DblClick();
        return true;
    case QEvent::MouseMove: return Move(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease: return Release(static_cast<QMouseEvent&>(*event));
    case QEvent::DragEnter:
    case QEvent::DragMove: return DragOver(static_cast<QDropEvent&>(*event));
    case QEvent::Drop: return Drop(static_cast<QDropEvent&>(*event));
    default: return false;
    }
}

int RowInput::RowAt(const QPoint& pos) const
{
    const QModelIndex index = view_.indexAt(pos);
    return index.isValid() ? index.row() + 1 : 0;
}

bool RowInput::Press(const QMouseEvent& event)
{
    const int row = RowAt(event.pos());
    const int shift = Shift_Of(event.modifiers()) & (shiftShift | shiftCtrl);
    const bool left = event.button() == Qt::LeftButton;
    onRelease_ = nullptr;
    held_ = !left ? Held::Nothing : row > 0 ? Held::Row : Held::Band;
    pressedAt_ = event.pos();
    const bool picked = row > 0 && list_.Selected(row) && shift != shiftShift;
    if (!left) {
        if (!picked)
            list_.PersonPress(row, shiftNone);
    } else if (row == 0) {
        bandFrom_ = 0;
        if (shift == shiftNone)
            list_.PersonSelect({}, 0);
    } else if (picked && (shift & shiftCtrl || list_.SelCount() > 1)) {
        onRelease_ = [this, row, shift] { list_.PersonPress(row, shift); };
    } else {
        list_.PersonPress(row, shift);
    }
    return true;
}

bool RowInput::Move(const QMouseEvent& event)
{
    if (!(event.buttons() & Qt::LeftButton))
        return false;
    if (held_ == Held::Band)
        Band(event.pos());
    const int moved = (event.pos() - pressedAt_).manhattanLength();
    if (held_ == Held::Row && moved >= QApplication::startDragDistance()) {
        held_ = Held::Nothing;
        onRelease_ = nullptr;
        list_.DragStarted();
    }
    return true;
}

bool RowInput::Release(const QMouseEvent&)
{
    held_ = Held::Nothing;
    if (const auto decide = std::exchange(onRelease_, nullptr))
        decide();
    return true;
}

// From the first row that the pointer has touched to the one it is on.
void RowInput::Band(const QPoint& pos)
{
    const int height = view_.viewport()->height();
    if (pos.y() < 0 || pos.y() >= height)
        view_.verticalScrollBar()->triggerAction(pos.y() < 0
                                                     ? QAbstractSlider::SliderSingleStepSub
                                                     : QAbstractSlider::SliderSingleStepAdd);
    const int row = RowAt({pos.x(), std::clamp(pos.y(), 0, std::max(0, height - 1))});
    if (row == 0)
        return;
    if (bandFrom_ == 0)
        bandFrom_ = row;
    list_.PersonSelect(Rows_Between(bandFrom_, row), row);
}

bool RowInput::DragOver(QDropEvent& event)
{
    if (!event.mimeData()->hasFormat(uriList)) {
        event.ignore();
        return true;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    return true;
}

bool RowInput::Drop(QDropEvent& event)
{
    if (!event.mimeData()->hasFormat(uriList))
        return false;
    event.setDropAction(Qt::CopyAction);
    event.accept();
    const auto paths = Paths_InUriList(event.mimeData()->data(uriList));
    if (paths.empty())
        return true;
    // The program asks before it takes them. A window that waits for the end
    // of its drag must not hang on that; our own drag has no end yet that the
    // program could know of.
    const auto* from = qobject_cast<QWidget*>(event.source());
    if (from && from->isAncestorOf(&view_))
        list_.FilesDropped(paths);
    else
        QMetaObject::invokeMethod(
            this, [this, paths] { list_.FilesDropped(paths); }, Qt::QueuedConnection);
    return true;
}

} // namespace tavo
