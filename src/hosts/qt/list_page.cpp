#include "hosts/qt/list_page.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/row_input.h"

#include <QEvent>
#include <QHeaderView>
#include <QListView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

constexpr int rowPadding = 4;
constexpr int packedColumnChars = 28;

// Paints a row as selected when the list says so; Qt's own selection stays
// empty. The row in hand gets its mark in the first column only.
class RowPainter : public QStyledItemDelegate {
public:
    RowPainter(const ListView& list, QObject* parent) : QStyledItemDelegate(parent), list_(list) {}

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto* view = qobject_cast<const QWidget*>(option->styleObject);
        option->state.setFlag(QStyle::State_Selected, list_.Selected(index.row() + 1));
        option->state.setFlag(QStyle::State_Active, view && view->hasFocus());
        option->state.setFlag(QStyle::State_MouseOver, false); // rows, not cells, are picked
        option->textElideMode = Qt::ElideMiddle;
        if (index.column() > 0 || index.row() + 1 != list_.SelectedItem())
            option->state.setFlag(QStyle::State_HasFocus, false);
    }

private:
    const ListView& list_;
};

// A view that goes to rows by their first letters, and tells the list.
template <class View>
class RowView : public View {
public:
    explicit RowView(ListView& list) : list_(list) {}

    void keyboardSearch(const QString& search) override
    {
        const int before = this->currentIndex().row();
        View::keyboardSearch(search);
        const int position = this->currentIndex().row() + 1;
        if (position > 0 && position != before + 1)
            list_.PersonPress(position, shiftNone);
    }

private:
    ListView& list_;
};

void Prepare(QAbstractItemView& view, ListModel& model)
{
    view.setModel(&model);
    view.setItemDelegate(new RowPainter(model.List(), &view));
    view.setSelectionMode(QAbstractItemView::NoSelection);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setFrameShape(QFrame::StyledPanel);
    view.setTabKeyNavigation(false);
    view.setAccessibleName(view.tr("Files"));
    new RowInput(view, model.List());
}

} // namespace

ListPage::ListPage(ListView& list, Binder& binder, QWidget* parent)
    : QStackedWidget(parent), list_(list), model_(new ListModel(list, binder.Queue(), this)),
      details_(new RowView<QTableView>(list)), packed_(new RowView<QListView>(list))
{
    Build();
    connect(model_, &ListModel::Redraw, this, [this] {
        details_->viewport()->update();
        packed_->viewport()->update();
    });
    connect(model_, &ListModel::ItemMoved, this, &ListPage::FollowItem);
    connect(model_, &ListModel::ShowWanted, this, &ListPage::ShowPosition);
    connect(model_, &ListModel::headerDataChanged, this, &ListPage::ShowMarks);
    connect(details_->verticalScrollBar(), &QScrollBar::rangeChanged, this, &ListPage::TellPage);
    binder.Place(*this, list);
    binder.Bind(*this, list, [this](const PropSet& changed) {
        if (!changed.Has({Prop::Style, Prop::State}))
            return;
        const bool packed = list_.View() != ListLook::Details;
        setCurrentWidget(packed ? static_cast<QWidget*>(packed_) : details_);
        setFocusProxy(currentWidget());
    });
}

void ListPage::Build()
{
    for (QAbstractItemView* view :
         {static_cast<QAbstractItemView*>(details_), static_cast<QAbstractItemView*>(packed_)}) {
        addWidget(view);
        Prepare(*view, *model_);
    }
    details_->setShowGrid(false);
    details_->setWordWrap(false);
    details_->verticalHeader()->hide();
    details_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    details_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    details_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    QHeaderView& header = *details_->horizontalHeader();
    header.setSectionsClickable(true);
    header.setHighlightSections(false);
    header.setStretchLastSection(true);
    for (int column = 0; column < list_.ColumnCount(); ++column)
        header.resizeSection(
            column, static_cast<int>(std::lround(list_.Column(column).WidthTwips / twipsPerPixel)));
    connect(&header, &QHeaderView::sectionClicked, this,
            [this](int column) { list_.ColumnClick(column); });
    packed_->setFlow(QListView::TopToBottom);
    packed_->setWrapping(true);
    packed_->setUniformItemSizes(true);
    packed_->setResizeMode(QListView::Adjust);
    packed_->setLayoutMode(QListView::Batched);
    FitRows();
    ShowMarks();
}

// As high as text and icon need at the font in force.
void ListPage::FitRows()
{
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
    details_->setIconSize({icon, icon});
    packed_->setIconSize({icon, icon});
    const int height = std::max(fontMetrics().height(), icon) + rowPadding;
    details_->verticalHeader()->setMinimumSectionSize(height);
    details_->verticalHeader()->setDefaultSectionSize(height);
    packed_->setGridSize({fontMetrics().averageCharWidth() * packedColumnChars, height});
}

void ListPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitRows();
    QStackedWidget::changeEvent(event);
}

void ListPage::ShowMarks()
{
    QHeaderView& header = *details_->horizontalHeader();
    int marked = -1;
    for (int column = 0; column < list_.ColumnCount(); ++column)
        if (list_.Column(column).Mark != SortMark::None)
            marked = column;
    const bool up = marked >= 0 && list_.Column(marked).Mark == SortMark::Up;
    header.setSortIndicatorShown(marked >= 0);
    header.setSortIndicator(marked, up ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void ListPage::FollowItem()
{
    const QModelIndex item = model_->index(list_.SelectedItem() - 1, 0);
    for (QAbstractItemView* view :
         {static_cast<QAbstractItemView*>(details_), static_cast<QAbstractItemView*>(packed_)})
        view->selectionModel()->setCurrentIndex(item, QItemSelectionModel::NoUpdate);
    if (item.isValid() && hasFocus())
        ShowPosition(list_.SelectedItem());
}

void ListPage::ShowPosition(int position)
{
    const QModelIndex index = model_->index(position - 1, 0);
    static_cast<QAbstractItemView*>(currentWidget())->scrollTo(index);
}

void ListPage::TellPage()
{
    const int height = details_->verticalHeader()->defaultSectionSize();
    list_.PageRows = std::max(1, details_->viewport()->height() / height - 1);
}

} // namespace tavo
