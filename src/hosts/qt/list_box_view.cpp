#include "hosts/qt/list_box_view.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/qt_text.h"

#include <QSignalBlocker>

namespace tavo {

ListBoxView::ListBoxView(ListBox& list, Binder& binder, QWidget* parent)
    : QListWidget(parent), list_(list)
{
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Binding* binding = binder.Bind(*this, list, [this](const PropSet& changed) {
        const QSignalBlocker quiet(*this);
        if (changed.Has({Prop::Items}))
            Fill();
        if (changed.Has({Prop::Items, Prop::ListIndex}))
            setCurrentRow(list_.ListIndex());
    });
    connect(this, &QListWidget::itemPressed, this, [this, binding](QListWidgetItem* item) {
        binding->Mark(Prop::ListIndex);
        list_.PersonChoose(row(item));
    });
}

void ListBoxView::Fill()
{
    QStringList texts;
    for (const std::string& item : list_.Items())
        texts.push_back(ToQtLine(item));
    clear();
    addItems(texts);
}

} // namespace tavo
