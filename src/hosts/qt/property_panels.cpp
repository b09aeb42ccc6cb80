#include "core/frm_main.h"
#include "hosts/qt/mode_panel_makers.h"
#include "hosts/qt/panel_parts.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>

// The panels of what files have beside their names: attributes, times, tags.

namespace tavo {

namespace {

constexpr char dateSample[] = "00/00/0000", timeSample[] = "00:00:00 MM";
constexpr int dateBoxes = 5;

// Columns of the times: the check box, then a link and its box for the date,
// and another pair for the time.
enum TimeColumn { timeCheck, timeDate, timeTime = timeDate + 3 };

// The boxes from here on stand in the second half of the panel.
constexpr int tagYear = 5, tagGenreBox = 7;
enum TagColumn { tagCheck, tagBox, tagGap, tagHalf };

} // namespace

QWidget* Attributes_Panel(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* frame = new QWidget(parent);
    auto* row = PanelRow(*frame);
    row->setSpacing(panelGroupGap);
    for (const auto& check : form.chkAttr)
        row->addWidget(Bound<QCheckBox>(frame, *check, binder));
    binder.Bind(*frame, form.fraAttribCtr);
    return CentredPanel(frame, parent);
}

QWidget* DateTime_Panel(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* frame = new QWidget(parent);
    auto* grid = PanelGrid(*frame);
    for (const auto& check : form.chkDateTime)
        grid->addWidget(Bound<QCheckBox>(frame, *check, binder), check->Index() - 1, timeCheck);
    for (int index = 1; index <= dateBoxes; ++index) {
        const int row = (index - 1) / 2;
        const bool isDate = index % 2 != 0;
        const int column = isDate ? timeDate : timeTime;
        auto* link = BoundLink(frame, form.lblDateTime[index], binder);
        auto* box =
            BoundBox(frame, form.txtDateTime[index], binder, isDate ? dateSample : timeSample);
        grid->addWidget(link, row, column, Qt::AlignLeft | Qt::AlignVCenter);
        grid->addWidget(box, row, column + 1);
    }
    for (const int gap : {timeDate - 1, timeTime - 1})
        grid->setColumnMinimumWidth(gap, panelRowGap);
    binder.Bind(*frame, form.fraDTCtr);
    return CentredPanel(frame, parent);
}

QWidget* Mp3Tag_Panel(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* panel = new QWidget(parent);
    auto* column = new QVBoxLayout(panel);
    auto* frame = new QWidget(panel);
    auto* grid = PanelGrid(*frame);
    for (const auto& check : form.chkMP3) {
        const int index = check->Index();
        const int row = index < tagYear ? index - 1 : index - tagYear;
        const int half = index < tagYear ? 0 : tagHalf;
        QWidget* box = index == tagGenreBox
                           ? static_cast<QWidget*>(BoundCombo(frame, form.cboMP3Genre, binder))
                           : Bound<QLineEdit>(frame, form.txtMP3[index], binder);
        grid->addWidget(Bound<QCheckBox>(frame, *check, binder), row, half + tagCheck);
        grid->addWidget(box, row, half + tagBox);
    }
    grid->setColumnMinimumWidth(tagGap, panelRowGap);
    grid->setColumnStretch(tagBox, 3);
    grid->setColumnStretch(tagHalf + tagBox, 2);
    column->addWidget(frame);
    column->addStretch();
    binder.Bind(*frame, form.fraMP3);
    return panel;
}

} // namespace tavo
