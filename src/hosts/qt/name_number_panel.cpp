#include "hosts/qt/name_number_panel.h"

#include "core/frm_main.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/parts.h"
#include "hosts/qt/qt_text.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>

#include <algorithm>

namespace tavo {

namespace {

constexpr int extensionChars = 14, startChars = 8, digitsChars = 4, rowGap = 6, groupGap = 18;
constexpr int linkPadding = 6;
constexpr int firstTagToken = 4; // the tokens behind it stand for parts of a tag

QLineEdit* Box(QWidget* parent, int chars)
{
    auto* box = new QLineEdit(parent);
    if (chars > 0)
        box->setFixedWidth(chars * box->fontMetrics().averageCharWidth()
                           + box->sizeHint().height());
    return box;
}

QHBoxLayout* Row(QWidget& holder)
{
    auto* row = new QHBoxLayout(&holder);
    row->setContentsMargins(0, 0, 0, 0);
    return row;
}

QLabel* BoundLabel(QWidget* parent, Label& label, Binder& binder, QWidget* buddy = nullptr)
{
    auto* text = new QLabel(parent);
    text->setBuddy(buddy);
    binder.Bind(*text, label);
    return text;
}

LinkButton* BoundLink(QWidget* parent, Label& label, Binder& binder, int padding = 0)
{
    auto* link = new LinkButton(padding, parent);
    binder.Bind(*link, label);
    return link;
}

// Room between two groups that a narrow window may take.
void AddGap(QHBoxLayout& row)
{
    row.addSpacerItem(new QSpacerItem(groupGap, 0, QSizePolicy::Maximum, QSizePolicy::Minimum));
}

// The first captions of all rows begin and end where the widest one does.
void Align(std::initializer_list<QWidget*> captions)
{
    int width = 0;
    for (const QWidget* caption : captions)
        width = std::max(width, caption->sizeHint().width());
    for (QWidget* caption : captions)
        caption->setFixedWidth(width);
}

} // namespace

NameNumberPanel::NameNumberPanel(FrmMain& form, Binder& binder, QWidget* parent) : QWidget(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setSpacing(rowGap);
    column->addWidget(Templates(form, binder));
    auto* below = new QWidget(this);
    auto* rows = new QVBoxLayout(below);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(rowGap);
    rows->addWidget(Inserts(form, binder));
    rows->addWidget(Counter(form, binder));
    column->addWidget(below);
    column->addStretch();
    binder.Bind(*below, form.fraNNCtr);
    Align({binder.WidgetOf(&form.lblNameNum[nnName]), binder.WidgetOf(&form.lblTmpInsert[0]),
           binder.WidgetOf(&form.lblNameNum[nnStartBox])});
}

QWidget* NameNumberPanel::Templates(FrmMain& form, Binder& binder)
{
    auto* holder = new QWidget(this);
    auto* row = Row(*holder);
    const int widths[] = {0, extensionChars};
    for (const int index : {nnName, nnExt}) {
        auto* box = Box(holder, widths[index]);
        binder.Bind(*box, form.txtNameNum[index]);
        row->addWidget(BoundLabel(holder, form.lblNameNum[index], binder, box));
        row->addWidget(box, index == nnName ? 1 : 0);
        if (index == nnName)
            row->addSpacing(rowGap);
    }
    return holder;
}

QWidget* NameNumberPanel::Inserts(FrmMain& form, Binder& binder)
{
    auto* holder = new QWidget(this);
    auto* row = Row(*holder);
    row->addWidget(BoundLabel(holder, form.lblTmpInsert[0], binder));
    row->addSpacing(rowGap - linkPadding
                    + style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    for (int index = 1; index <= form.lblTmpInsert.High(); ++index) {
        if (index == firstTagToken || index == tmplCurrentLabel)
            AddGap(*row);
        auto* link = BoundLink(holder, form.lblTmpInsert[index], binder, linkPadding);
        if (index == tmplCurrentLabel) // a template may have a long name
            link->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
        row->addWidget(link);
    }
    row->addStretch();
    row->setSpacing(0);
    return holder;
}

QWidget* NameNumberPanel::Counter(FrmMain& form, Binder& binder)
{
    auto* holder = new QWidget(this);
    auto* row = Row(*holder);
    const int widths[] = {startChars, digitsChars};
    for (const int index : {nnStartBox, nnDigitsBox}) {
        row->addWidget(BoundLink(holder, form.lblNameNum[index], binder));
        auto* box = Box(holder, widths[index - nnStartBox]);
        binder.Bind(*box, form.txtNameNum[index]);
        row->addWidget(box);
        AddGap(*row);
    }
    row->addWidget(BoundLabel(holder, form.lblNNStyle, binder));
    for (const auto& option : form.optNNStyle) {
        auto* button = new QRadioButton(holder);
        binder.Bind(*button, *option);
        row->addWidget(button);
    }
    row->addStretch();
    return holder;
}

} // namespace tavo
