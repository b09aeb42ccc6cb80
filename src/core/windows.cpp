#include "core/windows.h"

#include "core/program.h"
#include "toolkit/form.h"

namespace tavo {

void Win_Lock(Program&, bool on, Form& form)
{
    form.Freeze(on);
    if (!on)
        form.Refresh();
}

void Cursor_Busy(Program& p, bool on)
{
    p.desktop.SetPointer(on ? Pointer::Busy : Pointer::Default);
}

void Win_CenterScreen(Program& p, Form& form)
{
    const double left = (p.desktop.ScreenWidth() - form.Width()) / 2;
    const double top = (p.desktop.ScreenHeight() - form.Height()) / 2;
    form.Move(left, top, form.Width(), form.Height());
}

void Win_CenterOwner(const Form& owner, Form& form)
{
    const double left = owner.Left() + (owner.Width() - form.Width()) / 2;
    const double top = owner.Top() + (owner.Height() - form.Height()) / 2;
    form.Move(left, top, form.Width(), form.Height());
}

void Help_Show(Program& p, std::string_view)
{
    const std::string separator(1, p.files.Rules().Separator);
    std::string why;
    if (!p.desktop.ShellExecuteA("open", p.state.AppFolder + "help" + separator + "index.htm", why))
        p.Say(why, BoxIcon::Information);
}

} // namespace tavo
