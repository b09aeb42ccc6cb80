#include "hosts/qt/name_number_panel.h"

#include "core/frm_main.h"
#include "hosts/qt/panel_parts.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QRadioButton>
#include <QStyle>

#include <algorithm>

namespace tavo {

namespace {

constexpr char extensionSample[] = "extension12345", startSample[] = "00000000";
constexpr char digitsSample[] = "0000";
constexpr int linkPadding = 6;
constexpr int firstTagToken = 4; // the tokens behind it stand for parts of a tag

} // namespace

NameNumberPanel::NameNumberPanel(FrmMain& form, Binder& binder, QWidget* parent) : QWidget(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setSpacing(panelRowGap);
    column->addWidget(Templates(form, binder));
    auto* below = new QWidget(this);
    auto* rows = new QVBoxLayout(below);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(panelRowGap);
    rows->addWidget(Inserts(form, binder));
    rows->addWidget(Counter(form, binder));
    column->addWidget(below);
    column->addStretch();
    binder.Bind(*below, form.fraNNCtr);
    firstCaptions_ = {binder.WidgetOf(&form.lblNameNum[nnName]),
                      binder.WidgetOf(&form.lblTmpInsert[0]),
                      binder.WidgetOf(&form.lblNameNum[nnStartBox])};
    Align();
}

void NameNumberPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Align();
}

void NameNumberPanel::Align()
{
    int width = 0;
    for (const QWidget* caption : firstCaptions_)
        width = std::max(width, caption->sizeHint().width());
    for (QWidget* caption : firstCaptions_)
        caption->setFixedWidth(width);
}

QWidget* NameNumberPanel::Templates(FrmMain& form, Binder& binder)
{
    auto* holder = new QWidget(this);
    auto* row = PanelRow(*holder);
    auto* name = Bound<QLineEdit>(holder, form.txtNameNum[nnName], binder);
    auto* extension = BoundBox(holder, form.txtNameNum[nnExt], binder, extensionSample);
    row->addWidget(BoundLabel(holder, form.lblNameNum[nnName], binder, name));
    row->addWidget(name, 1);
    row->addSpacing(panelRowGap);
    row->addWidget(BoundLabel(holder, form.lblNameNum[nnExt], binder, extension));
    row->addWidget(extension);
    return holder;
}

QWidget* NameNumberPanel::Inserts(FrmMain& form, Binder& binder)
{
    auto* holder = new QWidget(this);
    auto* row = PanelRow(*holder);
    row->addWidget(BoundLabel(holder, form.lblTmpInsert[0], binder));
    row->addSpacing(panelRowGap - linkPadding
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
    auto* row = PanelRow(*holder);
    for (const int index : {nnStartBox, nnDigitsBox}) {
        const char* sample = index == nnStartBox ? startSample : digitsSample;
        row->addWidget(BoundLink(holder, form.lblNameNum[index], binder));
        row->addWidget(BoundBox(holder, form.txtNameNum[index], binder, sample));
        AddGap(*row);
    }
    row->addWidget(BoundLabel(holder, form.lblNNStyle, binder));
    for (const auto& option : form.optNNStyle)
        row->addWidget(Bound<QRadioButton>(holder, *option, binder));
    row->addStretch();
    return holder;
}

} // namespace tavo
