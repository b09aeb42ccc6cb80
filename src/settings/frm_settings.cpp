#include "settings/frm_settings.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/windows.h"
#include "settings/settings_ok.h"
#include "settings/settings_pages.h"
#include "settings/settings_words.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::string_view ownCaption = "Settings";

// The dialog begins as if it had been made for this use alone.
void Form_Begin(Program& p)
{
    FrmSettings& form = p.Settings();
    form.SetCaption(std::string(ownCaption));
    form.ListDirty.fill(false);
    form.ItemDirty = false;
    form.CurPage = form.CurRow = -1;
    Settings_Boxes_Clear(p);
    form.Defaults_Scroll_Measure();
    form.vsbDefaults.Value = 0;
    Settings_Options_Show(p);
    CaseWords_Fill(p);
    Settings_Pages_Fill(p);
    form.ataSettings.Show(pageDefaults);
    Win_CenterOwner(p.main, form);
}

void Scroll_Follow(FrmSettings& form)
{
    form.fraDefaults.Top = -form.vsbDefaults.Value.Get();
}

} // namespace

FrmSettings::FrmSettings(Program& p) : Form("frmSettings")
{
    SetCaption(std::string(ownCaption));
    DesignPages();
    DesignDefaults();
    DesignCaseWords();
    for (int page = firstListPage; page <= lastListPage; ++page)
        DesignListPage(page);
    DesignTemplates();
    DesignButtons();

    Load = [&p] { Form_Begin(p); };
    Activate = [&p] { Settings_Page_Focus(p); };
    vsbDefaults.Change = [this] { Scroll_Follow(*this); };
    vsbDefaults.Scroll = [this] { Scroll_Follow(*this); };
    Settings_Pages_Wire(p, *this);
    CaseWords_Wire(p, *this);
    cmdOk.Click = [&p] { Settings_Ok(p); };
    cmdCancel.Click = [this] { Unload(); };
    cmdHelp.Click = [this, &p] { Help_Show(p, ataSettings.SelectedKey()); };
}

void FrmSettings::Defaults_Scroll_Measure()
{
    const double hidden = fraDefaults.Height - picDefaults.ScaleHeight();
    vsbDefaults.LargeChange = static_cast<int>(std::max(1.0, picDefaults.ScaleHeight()));
    vsbDefaults.Max = static_cast<int>(std::max(0.0, hidden));
    vsbDefaults.Enabled = vsbDefaults.Max > 0;
}

void Settings_Open(Program& p, SettingsPage page, const std::optional<SettingsProposal>& proposal)
{
    FrmSettings& form = p.Settings();
    if (p.Busy() || form.Loaded())
        return;
    form.EnsureLoaded();
    if (page != pageDefaults) {
        form.ataSettings.Show(page);
        Settings_Page_Show(p);
    }
    if (proposal)
        Settings_Proposal_Show(p, *proposal);
    p.desktop.ShowModal(form);
}

} // namespace tavo
