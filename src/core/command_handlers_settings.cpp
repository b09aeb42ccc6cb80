#include "core/command_handlers.h"

#include "core/layout.h"
#include "core/tools.h"
#include "renamelist/nn_panel.h"
#include "renamelist/preview.h"
#include "selection/paths.h"
#include "settings/frm_settings.h"
#include "settings/named_lists.h"
#include "settings/window_layout.h"
#include "thumbnails/thumb_grid.h"

namespace tavo {

namespace {

// What the rename list shows goes by the options and lists.
void Preview_Follow(Program& p)
{
    if (p.state.CurScreen != screenSelection)
        Preview_Show(p);
}

void Page_Open(Program& p, SettingsPage page,
               const std::optional<SettingsProposal>& proposal = std::nullopt)
{
    if (p.Busy())
        return;
    Settings_Open(p, page, proposal);
    Preview_Follow(p);
    if (page == pageFavorites)
        FavPath_Rebuild(p);
}

} // namespace

void Cmd_Settings(Program& p, Tool&)
{
    if (p.Busy())
        return;
    Settings_Open(p, pageDefaults);
    if (p.state.SetDigits == 1)
        NN_Digits_Auto(p);
    Preview_Follow(p);
}

void Cmd_FavAdd(Program& p, Tool&)
{
    const std::string hint = "Enter New Name and Press Add";
    Page_Open(p, pageFavorites,
              SettingsProposal{hint, Path_AddSlash(p.state.StartPath, p.files.Rules()), hint});
}

void Cmd_FilAdd(Program& p, Tool&)
{
    const std::string hint = "Enter New Filter and Press Add";
    const TextBox* box = Tool_Box(p, "ID_sFilter");
    Page_Open(p, pageFilters, SettingsProposal{hint, box ? box->Text.Get() : std::string(), hint});
}

void Cmd_WinAdd(Program& p, Tool&)
{
    Page_Open(p, pageWindows, SettingsProposal{"New Window Layout", Win_Layout_Text(p), ""});
}

void Cmd_FavOrganize(Program& p, Tool&)
{
    Page_Open(p, pageFavorites);
}

void Cmd_TmpOrg(Program& p, Tool&)
{
    Page_Open(p, pageTemplates);
}

void Cmd_WinOrganize(Program& p, Tool&)
{
    Page_Open(p, pageWindows);
}

// The look of the thumbnails may be another one now.
void Cmd_TSchemesOrg(Program& p, Tool&)
{
    if (p.Busy())
        return;
    Page_Open(p, pageSchemes);
    Main_Layout(p);
    if (p.state.CurScreen == screenThumbnails)
        Thumb_Layout(p);
}

} // namespace tavo
