#include "hosts/qt/settings_dialog.h"

#include "hosts/qt/dialog_parts.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/person_input.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/settings_page.h"
#include "settings/frm_settings.h"

#include <QBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabWidget>

namespace tavo {

namespace {

// What a window manager's frame takes, roughly.
constexpr int frameRoom = 40;

} // namespace

SettingsDialog::SettingsDialog(FrmSettings& form, QWidget* owner)
    : QDialog(owner), form_(form), binder_(new Binder(form, *this)), tabs_(new QTabWidget(this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
    column->setSpacing(dialogGap);
    AddPages();
    AddKeys();
    column->addWidget(tabs_, 1);
    column->addLayout(DialogButtons(this, {&form.cmdOk, &form.cmdCancel, &form.cmdHelp}, *binder_));
    const QSize screen = this->screen()->availableGeometry().size() - QSize(0, frameRoom);
    Form_TakeSize(form, sizeHint().boundedTo(screen));
    new FormWindow(form, *this, binder_->Queue());
    new PersonInput(*binder_);
}

void SettingsDialog::AddPages()
{
    for (const TabStrip::Page& page : form_.ataSettings.Pages()) {
        const int number = page.Panel->Index();
        QWidget* shown = number == pageDefaults ? DefaultSettings_Make(form_, *binder_, tabs_)
                                                : ListSettings_Make(form_, number, *binder_, tabs_);
        binder_->Bind(*shown, *page.Panel);
        tabs_->addTab(shown, ToQt(page.Caption));
    }
    binder_->Bind(*tabs_, form_.ataSettings, [this](const PropSet& changed) {
        if (changed.Has({Prop::ListIndex}))
            ShowPage();
    });
    connect(tabs_, &QTabWidget::currentChanged, this, &SettingsDialog::GoToPage);
}

// As every dialog with pages has them.
void SettingsDialog::AddKeys()
{
    struct Way {
        QKeySequence::StandardKey Key;
        int Step;
    };
    for (const Way& way : {Way{QKeySequence::NextChild, 1}, Way{QKeySequence::PreviousChild, -1}}) {
        auto* keys = new QShortcut(way.Key, this);
        connect(keys, &QShortcut::activated, this, [this, step = way.Step] {
            GoToPage((tabs_->currentIndex() + step + tabs_->count()) % tabs_->count());
        });
    }
}

void SettingsDialog::ShowPage()
{
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(form_.ataSettings.Selected());
}

// The program may ask something first, with the old page still in sight.
void SettingsDialog::GoToPage(int page)
{
    ShowPage();
    form_.ataSettings.PersonTab(page);
    binder_->Queue().Flush();
}

} // namespace tavo
