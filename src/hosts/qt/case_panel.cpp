#include "core/frm_main.h"
#include "hosts/qt/mode_panel_makers.h"
#include "hosts/qt/panel_parts.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QRadioButton>

namespace tavo {

namespace {

// A column for each group, a column for the line in front of it.
enum CaseColumn { caseOptions, caseLine1, caseChecks, caseLine2, caseSigns };
// Room at both sides of a line.
constexpr int lineGap = 10;
// As wide as any letter.
constexpr char signSample[] = "M";

// The six boxes and the label over them.
void Signs_Add(QGridLayout& grid, FrmMain& form, Binder& binder, QWidget* frame)
{
    auto* label = BoundLabel(frame, form.lblCaseSmart, binder);
    KeepRoom(*label);
    grid.addWidget(label, 0, caseSigns);
    auto* holder = new QWidget(frame);
    auto* row = PanelRow(*holder);
    for (const auto& sign : form.txtCasePreCap) {
        auto* box = BoundBox(holder, *sign, binder, signSample);
        KeepRoom(*box);
        box->setAlignment(Qt::AlignHCenter);
        row->addWidget(box);
    }
    row->addStretch();
    grid.addWidget(holder, 1, caseSigns);
}

void Line_Add(QGridLayout& grid, int column, int rows, Line& line, Binder& binder, QWidget* frame)
{
    auto* drawn = new QFrame(frame);
    drawn->setFrameStyle(QFrame::VLine | QFrame::Sunken);
    KeepRoom(*drawn);
    binder.Bind(*drawn, line);
    grid.addWidget(drawn, 0, column, rows, 1);
}

} // namespace

QWidget* Case_Panel(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* frame = new QWidget(parent);
    auto* grid = PanelGrid(*frame);
    grid->setHorizontalSpacing(lineGap);
    for (const auto& option : form.optCase)
        grid->addWidget(Bound<QRadioButton>(frame, *option, binder), option->Index() - 1,
                        caseOptions);
    const int rows = form.optCase.High();
    Line_Add(*grid, caseLine1, rows, form.linCase1, binder, frame);
    int row = 0;
    for (CheckBox* check : {&form.chkCaseFirst, &form.chkCaseWord}) {
        auto* box = Bound<QCheckBox>(frame, *check, binder);
        KeepRoom(*box);
        grid->addWidget(box, row++, caseChecks);
    }
    Line_Add(*grid, caseLine2, rows, form.linCase2, binder, frame);
    Signs_Add(*grid, form, binder, frame);
    binder.Bind(*frame, form.fraCaseCtr);
    return CentredPanel(frame, parent);
}

} // namespace tavo
