#include "hosts/qt/dialog_parts.h"
#include "hosts/qt/list_box_view.h"
#include "hosts/qt/options_view.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/settings_page.h"
#include "settings/frm_settings.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

namespace tavo {

namespace {

constexpr int leastWordChars = 24;

QWidget* Words(FrmSettings& form, Binder& binder, QWidget* parent)
{
    auto* frame = new QGroupBox(parent);
    binder.Bind(*frame, form.fraCaseWord, [&, frame](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            frame->setTitle(ToQt(form.fraCaseWord.Caption));
    });
    auto* box = Bound<QLineEdit>(frame, form.txtCaseWord, binder);
    box->setMinimumWidth(leastWordChars * box->fontMetrics().averageCharWidth());
    auto* grid = new QGridLayout(frame);
    grid->setHorizontalSpacing(dialogGap);
    grid->setVerticalSpacing(panelRowGap);
    grid->addWidget(BoundLabel(frame, form.lblCaseWord, binder), 0, 0);
    grid->addWidget(box, 1, 0);
    grid->addWidget(DialogButton(frame, form.cmdCWAdd, binder), 1, 1);
    grid->addWidget(new ListBoxView(form.lstCaseWord, binder, frame), 2, 0);
    grid->addWidget(DialogButton(frame, form.cmdCWRemove, binder), 2, 1, Qt::AlignTop);
    return frame;
}

} // namespace

QWidget* DefaultSettings_Make(FrmSettings& form, Binder& binder, QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
    row->setSpacing(2 * dialogGap);
    row->addWidget(new OptionsView(form, binder, page));
    row->addWidget(Words(form, binder, page), 1);
    return page;
}

} // namespace tavo
