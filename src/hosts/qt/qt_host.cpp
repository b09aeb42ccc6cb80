#include "hosts/qt/qt_host.h"

#include "controls/frm_about.h"
#include "controls/frm_color.h"
#include "core/frm_main.h"
#include "fileactions/frm_delete.h"
#include "hosts/qt/about_dialog.h"
#include "hosts/qt/color_dialog.h"
#include "hosts/qt/delete_dialog.h"
#include "hosts/qt/editor_dialog.h"
#include "hosts/qt/export_dialog.h"
#include "hosts/qt/folder_dialog.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/resize_dialog.h"
#include "hosts/qt/settings_dialog.h"
#include "selection/frm_export_dir.h"
#include "selection/paths.h"
#include "settings/frm_settings.h"
#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/frm_thumb_resize.h"
#include "viewer/frm_viewer.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <cmath>

namespace tavo {

namespace {

// A dialog for a form of this kind.
template <class Dialog, class FormKind>
QtDesktop::DialogMaker Maker_Of()
{
    return [](Form& form, QWidget* owner) -> std::unique_ptr<QDialog> {
        return std::make_unique<Dialog>(dynamic_cast<FormKind&>(form), owner);
    };
}

int Pixels(int twips)
{
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

} // namespace

QtHost::QtHost(const StartInfo& info)
    : desktop_(files_), program_(files_, profile_, desktop_, info), window_(program_.main)
{
    AddWindows();
    desktop_.IsPaused = [this] { return program_.state.ActPaused; };
    desktop_.OnPopUp = [this](Tool& menu, int x, int y) {
        window_.PopUp(menu, {Pixels(x), Pixels(y)});
    };
    desktop_.OnBrowse = [this](const std::string& title, QWidget* owner) {
        return Browse(title, owner);
    };
    desktop_.BeforeShowing = [this] {
        window_.Bound().Queue().Flush();
        if (viewer_)
            viewer_->Bound().Queue().Flush();
    };
    unloaded_ = program_.main.Unloaded.Listen([] { QCoreApplication::quit(); });
    // When Qt is about to wait for events and no call of the program is under
    // way, its commands have all come back.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &window_, [this] {
                         if (!desktop_.IsInside())
                             program_.Settle();
                     });
}

void QtHost::AddWindows()
{
    desktop_.AddWindow(program_.main, window_);
    desktop_.AddWindow("frmViewer", [this](Form& form) {
        viewer_ = std::make_unique<ViewerWindow>(dynamic_cast<FrmViewer&>(form));
        return viewer_.get();
    });
    desktop_.AddDialog("frmAbout", Maker_Of<AboutDialog, FrmAbout>());
    desktop_.AddDialog("frmColor", Maker_Of<ColorDialog, FrmColor>());
    desktop_.AddDialog("frmDelete", Maker_Of<DeleteDialog, FrmDelete>());
    desktop_.AddDialog("frmExportDir", Maker_Of<ExportDialog, FrmExportDir>());
    desktop_.AddDialog("frmSettings", Maker_Of<SettingsDialog, FrmSettings>());
    desktop_.AddDialog("frmThumbEditor", Maker_Of<EditorDialog, FrmThumbEditor>());
    desktop_.AddDialog("frmThumbResize", Maker_Of<ResizeDialog, FrmThumbResize>());
    ColorDialog::TellExtent(program_.Color());
}

// Begins where the panel points to, else where the files were picked.
std::optional<std::string> QtHost::Browse(const std::string& title, QWidget* owner)
{
    const PathRules& rules = files_.Rules();
    const FrmMain& main = program_.main;
    std::string named = main.txtmcdPath.Text;
    if (!named.empty())
        named = Path_WithoutDetours(files_, Path_AddSlash(named, rules));
    const auto chosen = Folder_Choose(main.ftvSelMain.Source, {named, program_.state.StartPath},
                                      ToQt(title), owner);
    if (!chosen)
        return std::nullopt;
    return Path_RemoveSlash(*chosen, rules);
}

bool QtHost::Start()
{
    program_.Start();
    return program_.main.Loaded();
}

} // namespace tavo
