#include "core/frm_main.h"
#include "hosts/qt/mode_panel_makers.h"
#include "hosts/qt/panel_parts.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace tavo {

namespace {

enum SearchColumn { searchLabels, searchBoxes };
enum SearchRow { searchOptions, searchFind, searchReplace };
constexpr char positionSample[] = "0000";

QWidget* Options(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* holder = new QWidget(parent);
    auto* row = PanelRow(*holder);
    for (const auto& option : form.optSearchType)
        row->addWidget(Bound<QRadioButton>(holder, *option, binder));
    AddGap(*row);
    for (const auto& option : form.optSearchMode)
        row->addWidget(Bound<QRadioButton>(holder, *option, binder));
    row->addStretch();
    return holder;
}

// The text to look for, or the range: the program shows one of them.
QWidget* Wanted(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* holder = new QWidget(parent);
    auto* row = PanelRow(*holder);
    row->addWidget(Bound<QLineEdit>(holder, form.txtSearchFind, binder), 1);
    row->addWidget(Bound<QCheckBox>(holder, form.chkSearchCase, binder));
    row->addWidget(BoundBox(holder, form.txtSearchStart, binder, positionSample));
    row->addWidget(BoundLabel(holder, form.lblSearchRangeTo, binder));
    row->addWidget(BoundBox(holder, form.txtSearchEnd, binder, positionSample));
    AddGap(*row);
    row->addWidget(BoundLabel(holder, form.lblSearchRange[1], binder));
    row->addStretch();
    return holder;
}

} // namespace

QWidget* SearchReplace_Panel(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* panel = new QWidget(parent);
    auto* column = new QVBoxLayout(panel);
    auto* rows = new QWidget(panel);
    auto* grid = PanelGrid(*rows);
    grid->addWidget(Options(form, binder, rows), searchOptions, searchLabels, 1, 2);
    grid->addWidget(Wanted(form, binder, rows), searchFind, searchBoxes);
    auto* replace = Bound<QLineEdit>(rows, form.txtSearchReplace, binder);
    grid->addWidget(replace, searchReplace, searchBoxes);
    grid->addWidget(
        BoundLabel(rows, form.lblSearchFind, binder, binder.WidgetOf(&form.txtSearchFind)),
        searchFind, searchLabels);
    grid->addWidget(
        BoundLabel(rows, form.lblSearchRange[0], binder, binder.WidgetOf(&form.txtSearchStart)),
        searchFind, searchLabels);
    grid->addWidget(BoundLabel(rows, form.lblSearchReplace, binder, replace), searchReplace,
                    searchLabels);
    grid->setColumnStretch(searchBoxes, 1);
    column->addWidget(rows);
    column->addStretch();
    return panel;
}

} // namespace tavo
