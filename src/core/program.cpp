#include "core/program.h"

#include "controls/frm_about.h"
#include "controls/frm_color.h"
#include "core/commands.h"
#include "core/frm_main.h"
#include "core/screens.h"
#include "core/start_up.h"
#include "core/windows.h"
#include "fileactions/date_time_panel.h"
#include "fileactions/frm_delete.h"
#include "fileactions/move_copy.h"
#include "fileactions/mp3_panel.h"
#include "renamelist/act_run.h"
#include "renamelist/name_panels.h"
#include "renamelist/nn_panel.h"
#include "renamelist/rename_list.h"
#include "selection/frm_export_dir.h"
#include "selection/selection_screen.h"
#include "settings/frm_settings.h"
#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/frm_thumb_resize.h"
#include "thumbnails/thumb_grid.h"
#include "viewer/frm_viewer.h"

namespace tavo {

Program::Program(Files& filesPort, Profile& profilePort, Desktop& desktopPort, StartInfo start)
    : mainForm_(std::make_unique<FrmMain>()), files(filesPort), profile(profilePort),
      desktop(desktopPort), info(std::move(start)), main(*mainForm_)
{
    Commands_Build(*this);
    Main_Wire(*this);
    Sel_Screen_Wire(*this);
    Ren_List_Wire(*this);
    NN_Panel_Wire(*this);
    SR_Panel_Wire(*this);
    Case_Panel_Wire(*this);
    Copy_Panel_Wire(*this);
    DT_Panel_Wire(*this);
    MP3_Panel_Wire(*this);
    Act_Wire(*this);
    Thumb_Wire(*this);
    Viewer_Wire(*this);
}

Program::~Program() = default;

void Program::Start()
{
    main.EnsureLoaded();
    if (main.Loaded() && !main.Visible())
        desktop.Show(main);
    Settle();
}

void Program::Settle()
{
    if (!ClosePending || Busy())
        return;
    ClosePending = false;
    main.Unload();
}

namespace {

template <class T>
T& Form_Made(std::unique_ptr<T>& form, Program& p)
{
    if (!form)
        form = std::make_unique<T>(p);
    return *form;
}

} // namespace

FrmDelete& Program::Delete()
{
    return Form_Made(deleteForm_, *this);
}

FrmColor& Program::Color()
{
    return Form_Made(colorForm_, *this);
}

FrmThumbResize& Program::ThumbResize()
{
    return Form_Made(thumbResizeForm_, *this);
}

FrmThumbEditor& Program::ThumbEditor()
{
    return Form_Made(thumbEditorForm_, *this);
}

FrmExportDir& Program::ExportDir()
{
    return Form_Made(exportForm_, *this);
}

FrmSettings& Program::Settings()
{
    return Form_Made(settingsForm_, *this);
}

FrmAbout& Program::About()
{
    return Form_Made(aboutForm_, *this);
}

FrmViewer& Program::Viewer()
{
    return Form_Made(viewerForm_, *this);
}

FrmViewer* Program::ViewerInSight() const
{
    return viewerForm_ && viewerForm_->Visible() ? viewerForm_.get() : nullptr;
}

// Every form that has been made so far.
std::vector<Form*> Program::Forms() const
{
    std::vector<Form*> forms{mainForm_.get()};
    for (Form* form : std::initializer_list<Form*>{
             deleteForm_.get(), colorForm_.get(), thumbResizeForm_.get(), thumbEditorForm_.get(),
             exportForm_.get(), settingsForm_.get(), aboutForm_.get(), viewerForm_.get()})
        if (form)
            forms.push_back(form);
    return forms;
}

Form* Program::FindForm(std::string_view name) const
{
    for (Form* form : Forms())
        if (form->Name() == name)
            return form;
    return nullptr;
}

std::vector<Form*> Program::LoadedForms() const
{
    std::vector<Form*> forms = Forms();
    std::erase_if(forms, [](const Form* form) { return !form->Loaded(); });
    return forms;
}

BoxAnswer Program::Say(const std::string& text, BoxIcon icon, BoxButtons buttons,
                       BoxAnswer fallback)
{
    // A box of Yes and No has no OK to fall back on.
    if (buttons == BoxButtons::YesNo && fallback == BoxAnswer::Ok)
        fallback = BoxAnswer::Yes;
    return desktop.MsgBox({text, std::string(appTitle) + " Says...", icon, buttons, fallback});
}

LongOperation::LongOperation(Program& program) : program_(program), mine_(program.busy_ == 0)
{
    if (!mine_)
        return;
    ++program_.busy_;
    program_.main.lsvRename.HoldSelection(true);
    program_.main.lsvSelMain.HoldSelection(true);
}

LongOperation::~LongOperation()
{
    if (!mine_)
        return;
    --program_.busy_;
    program_.main.lsvRename.HoldSelection(false);
    program_.main.lsvSelMain.HoldSelection(false);
}

BusyPointer::BusyPointer(Program& program) : program_(program)
{
    Cursor_Busy(program_, true);
}

BusyPointer::~BusyPointer()
{
    Cursor_Busy(program_, false);
}

} // namespace tavo
