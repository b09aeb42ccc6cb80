#include "hosts/qt/export_dialog.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/person_input.h"
#include "selection/frm_export_dir.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

namespace tavo {

namespace {

constexpr int margin = 18, gap = 10, indent = 18, groupGap = 8;
constexpr int separatorChars = 18;

} // namespace

ExportDialog::ExportDialog(FrmExportDir& form, QWidget* owner)
    : QDialog(owner), form_(form), binder_(new Binder(form, *this)), column_(new QVBoxLayout(this))
{
    column_->setContentsMargins(margin, margin, margin, margin);
    column_->setSpacing(gap);
    column_->setSizeConstraint(QLayout::SetFixedSize);
    AddHeading(0);
    AddColumns();
    column_->addSpacing(groupGap);
    AddHeading(1);
    AddStyles();
    column_->addSpacing(groupGap);
    AddProgress();
    column_->addSpacing(groupGap);
    AddButtons();
    // The button in hand goes out of reach while it does its work.
    binder_->AddHome(*this);
    const QSize needed = sizeHint();
    form.Move(form.Left(), form.Top(), needed.width() * twipsPerPixel,
              needed.height() * twipsPerPixel);
    new FormWindow(form, *this, binder_->Queue());
    new PersonInput(*binder_);
}

void ExportDialog::AddHeading(int index)
{
    auto* heading = new QLabel(this);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    binder_->Bind(*heading, form_.lblExport[index]);
    column_->addWidget(heading);
}

void ExportDialog::AddColumns()
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(indent, 0, 0, 0);
    row->setSpacing(2 * gap);
    for (const auto& box : form_.chkColumn) {
        auto* check = new QCheckBox(this);
        binder_->Bind(*check, *box);
        row->addWidget(check);
    }
    row->addStretch();
    column_->addLayout(row);
}

void ExportDialog::AddStyles()
{
    auto* grid = new QGridLayout;
    grid->setContentsMargins(indent, 0, 0, 0);
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gap / 2);
    for (int i = form_.optStyle.Low(); i <= form_.optStyle.High(); ++i) {
        auto* option = new QRadioButton(this);
        binder_->Bind(*option, form_.optStyle[i]);
        grid->addWidget(option, i, 0);
    }
    auto* separator = new QComboBox(this);
    separator->setMinimumContentsLength(separatorChars);
    binder_->Bind(*separator, form_.cboSeperator);
    grid->addWidget(separator, form_.optStyle.High(), 1);
    grid->setColumnStretch(2, 1);
    column_->addLayout(grid);
}

void ExportDialog::AddProgress()
{
    auto* text = new QLabel(this);
    binder_->Bind(*text, form_.lblProgress);
    auto* bar = new QProgressBar(this);
    binder_->Bind(*bar, form_.prbProgress);
    column_->addWidget(text);
    column_->addWidget(bar);
}

void ExportDialog::AddButtons()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addStretch();
    for (CommandButton* command : {&form_.cmdSave, &form_.cmdCancel, &form_.cmdExit}) {
        auto* button = new QPushButton(this);
        button->setAutoDefault(false);
        binder_->Bind(*button, *command);
        row->addWidget(button);
    }
    column_->addLayout(row);
}

} // namespace tavo
