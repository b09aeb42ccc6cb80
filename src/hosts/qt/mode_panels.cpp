#include "hosts/qt/mode_panels.h"

#include "core/frm_main.h"
#include "core/state.h"
#include "hosts/qt/mode_panel_makers.h"
#include "hosts/qt/name_number_panel.h"
#include "hosts/qt/panel_parts.h"

#include <QLabel>

namespace tavo {

namespace {

QWidget* NameNumber_Panel(FrmMain& form, Binder& binder, QWidget* parent)
{
    return new NameNumberPanel(form, binder, parent);
}

QWidget* Empty_Panel(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* text = Bound<QLabel>(parent, form.lblEmpty, binder);
    text->setAlignment(Qt::AlignCenter);
    text->setMargin(text->fontMetrics().height() / 2);
    return text;
}

struct PanelMaker {
    int Mode;
    QWidget* (*Make)(FrmMain& form, Binder& binder, QWidget* parent);
};

constexpr PanelMaker makers[] = {
    {modeAttributes, Attributes_Panel}, {modeCase, Case_Panel},
    {modeDateTime, DateTime_Panel},     {modeMoveCopy, MoveCopy_Panel},
    {modeNameNumber, NameNumber_Panel}, {modeSearchReplace, SearchReplace_Panel},
    {modeMp3Tag, Mp3Tag_Panel},         {modeEmpty, Empty_Panel},
};

} // namespace

QWidget* ModePanel_Make(int mode, FrmMain& form, Binder& binder, QWidget* parent)
{
    for (const PanelMaker& maker : makers)
        if (maker.Mode == mode)
            return maker.Make(form, binder, parent);
    return nullptr;
}

} // namespace tavo
