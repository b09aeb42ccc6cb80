#include "settings/settings_ok.h"

#include "core/program.h"
#include "settings/named_lists.h"
#include "settings/settings_file.h"
#include "settings/settings_pages.h"
#include "settings/settings_show.h"
#include "settings/settings_words.h"
#include "thumbnails/thumb_grid.h"

#include <type_traits>

namespace tavo {

namespace {

constexpr int sendToBox = 0;

// The key of each option box; the first one has none.
constexpr std::string_view optionKeys[FrmSettings::optionCount] = {
    "",           "SavePos",    "SaveDef",     "ShowFile",    "SetDigits",
    "PreList",    "SupWarnRen", "SupWarnUndo", "AutoSelNext", "RetRename",
    "AutoThumbs", "ProExt",     "actClose"};

bool Option_IsOn(const SharedState& state, std::string_view key)
{
    return Variable_Text(state, *Variable_Find(key)) == "1";
}

void Option_Set(SharedState& state, std::string_view key, bool on)
{
    Variable_Use(state, *Variable_Find(key), [on](auto& value) {
        if constexpr (std::is_integral_v<std::remove_reference_t<decltype(value)>>)
            value = on ? 1 : 0;
    });
}

// The default template is the row that carries the mark, wherever it is now.
void Templates_TakeUp(Program& p)
{
    const ListView& list = p.Settings().lsvSettings[pageTemplates];
    p.state.nnAppTmpDef = 0;
    for (int row = 1; row <= list.Count(); ++row)
        if (list.Tag(row) == "DEF")
            p.state.nnAppTmpDef = static_cast<std::int16_t>(row);
    Show_TemplateDefault(p, "");
}

// What shows a list is made to match it.
void List_TakeUp(Program& p, const SettingsList& page)
{
    ListMenu_Rebuild(p, page.List);
    switch (page.Page) {
    case pageTemplates: return Templates_TakeUp(p);
    case pageFavorites: return FavPath_Rebuild(p);
    case pageFilters: return Filter_Rebuild(p);
    case pageSchemes: return Thumb_Scheme_TakeUp(p);
    default: return;
    }
}

bool IsDirty(Program& p, int page)
{
    return p.Settings().ListDirty[static_cast<std::size_t>(page)];
}

void All_Save(Program& p)
{
    const std::string file = Ini_OwnFile(p);
    const ProfileSave save(p.profile, file);
    Settings_Options_Read(p);
    Ini_Save(p, "Settings", file);
    if (IsDirty(p, pageDefaults)) {
        CaseWords_Read(p);
        Ini_Save(p, "CaseWordList", file);
    }
    for (const SettingsList& page : Settings_ListPages())
        if (IsDirty(p, page.Page)) {
            Settings_List_Read(p.Settings().lsvSettings[page.Page], p.state.*page.List);
            Ini_Save(p, std::string(page.Section), file);
        }
}

} // namespace

// The boxes tell of each change, as of a person's click.
void Settings_Options_Show(Program& p)
{
    FrmSettings& form = p.Settings();
    form.chkSet[sendToBox].Click = nullptr;
    form.chkSet[sendToBox].Value = p.files.SendToStands() ? 1 : 0;
    form.chkSet[sendToBox].Click = [&p] {
        SendTo_Set(p, static_cast<std::uint8_t>(p.Settings().chkSet[sendToBox].Value.Get()));
    };
    for (int box = 1; box < FrmSettings::optionCount; ++box)
        form.chkSet[box].Value = Option_IsOn(p.state, optionKeys[box]) ? 1 : 0;
}

void Settings_Options_Read(Program& p)
{
    for (int box = 1; box < FrmSettings::optionCount; ++box)
        Option_Set(p.state, optionKeys[box], p.Settings().chkSet[box].Value == 1);
}

void SendTo_Set(Program& p, std::uint8_t value)
{
    p.files.SendToSet(value == 1);
}

void Settings_Ok(Program& p)
{
    if (p.Settings().ItemDirty)
        Settings_Item_Ask(p);
    {
        const BusyPointer busy(p);
        All_Save(p);
        for (const SettingsList& page : Settings_ListPages())
            if (IsDirty(p, page.Page))
                List_TakeUp(p, page);
    }
    p.Settings().Unload();
}

} // namespace tavo
