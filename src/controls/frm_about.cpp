#include "controls/frm_about.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/windows.h"

namespace tavo {

namespace {

constexpr std::string_view revision = "0";
constexpr std::string_view copyright = "Copyright © 2026 the developers of Tavo";
constexpr std::string_view text =
    "Tavo renames and changes many files at once. Choose files, say what is to become of them, "
    "see the outcome before anything happens, and run it.\r\n"
    "\r\n"
    "No rename ever replaces another file, and a run can be taken back.\r\n"
    "\r\n"
    "Tavo comes without warranty of any kind. Keep a copy of what you cannot do without.";

constexpr double formWidth = 6600, formHeight = 4200;
constexpr double gap = 180, logoSize = 1440;
constexpr double lineHeight = 300, buttonWidth = 1200, buttonHeight = 420;

} // namespace

FrmAbout::FrmAbout(Program& p) : Form("frmAbout"), ctlWebSite(p, *this, "ctlWebSite"), p_(p)
{
    Form::Move(0, 0, formWidth, formHeight);
    lblWebSite.Caption = "Web:";
    cmdClose.Caption = "&Close";
    txtInfo.Locked = true;
    txtInfo.MultiLine = true;
    txtInfo.AccessibleName = "About this program";
    txtInfo.Text.SetQuietly(std::string(text));
    imgLogo.Stretch = true;
    for (Control* part : std::initializer_list<Control*>{&lblVersion, &lblCopyright, &lblWebSite,
                                                         &ctlWebSite, &txtInfo})
        part->Container = &picInfo;
    cmdClose.Click = [this] { Unload(); };
    DefaultButton = CancelButton = &cmdClose;
    Load = [this] { Open(); };
}

// The logo's size decides where all begins.
void FrmAbout::Design()
{
    const double bottom = formHeight - gap - buttonHeight;
    imgLogo.Move(gap, gap, logoSize, logoSize);
    const double left = imgLogo.Left + imgLogo.Width + gap;
    picInfo.Move(left, gap, formWidth - left - gap, bottom - 2 * gap);
    const double width = picInfo.ScaleWidth();
    lblVersion.Move(0, 0, width, lineHeight);
    lblCopyright.Move(0, lineHeight, width, lineHeight);
    lblWebSite.Move(0, 2 * lineHeight, 600, lineHeight);
    ctlWebSite.Move(600, 2 * lineHeight, width - 600, lineHeight);
    const double top = 3 * lineHeight + gap;
    txtInfo.Move(0, top, width, picInfo.ScaleHeight() - top);
    cmdClose.Move(formWidth - gap - buttonWidth, bottom, buttonWidth, buttonHeight);
}

void FrmAbout::Open()
{
    const std::string title(appTitle);
    Design();
    SetCaption("About " + title);
    Win_CenterOwner(owner_ ? *owner_ : p_.main, *this);
    lblVersion.Caption = title + " v" + std::string(appVersion) + "." + std::string(revision);
    lblCopyright.Caption = std::string(copyright);
}

void About_Show(Program& p, Form& owner)
{
    FrmAbout& about = p.About();
    about.owner_ = &owner;
    p.desktop.ShowModal(about);
}

} // namespace tavo
