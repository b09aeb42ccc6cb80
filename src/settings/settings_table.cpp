#include "settings/settings_table.h"

#include "settings/settings_show.h"

namespace tavo {

namespace {

constexpr auto plain = SettingForm::Plain;
constexpr auto starred = SettingForm::Starred;
constexpr SettingRange any{};

constexpr Setting table[] = {
    {"Settings", "SavePos", plain, "1", any},
    {"Settings", "SaveDef", plain, "1", any},
    {"Settings", "actClose", plain, "0", any},
    {"Settings", "ShowFile", plain, "1", any},
    {"Settings", "SetDigits", plain, "0", any},
    {"Settings", "PreList", plain, "1", any},
    {"Settings", "ProExt", plain, "1", any},
    {"Settings", "SupWarnRen", plain, "0", any},
    {"Settings", "SupWarnUndo", plain, "0", any},
    {"Settings", "AutoSelNext", plain, "1", any},
    {"Settings", "AutoThumbs", plain, "0", any},
    {"Settings", "RetRename", plain, "1", any},

    {"Defaults", "Path", plain, "", any, Show_Path, Take_Path},
    {"Defaults", "RenMode", plain, "4", {0, 6, 4}, Show_RenMode},
    {"Defaults", "ColViewWin", plain, "-2147483643", any},
    {"Defaults", "Scheme", plain, "0", any},
    {"Defaults", "ThumbCaption", plain, "True", any, Show_ThumbCaption},
    {"Defaults", "Gif", plain, "0", any},
    {"Defaults", "tbsAddress", plain, "1", any, Show_Address},
    {"Defaults", "tbsTextLabels", plain, "1", any, Show_TextLabels},
    {"Defaults", "tbtTextLabels", plain, "1", any},
    {"Defaults", "tbvTextLabels", plain, "1", any},
    {"Defaults", "SelPreview", plain, "0", any, Show_SelPreview},
    {"Defaults", "ccMode", plain, "3", {1, 3, 3}, Show_CaseMode},
    {"Defaults", "ccCap", plain, "1", any, Show_CaseFirst},
    {"Defaults", "ccWord", plain, "0", any, Show_CaseWord},
    {"Defaults", "ccTemp1", starred, " ", any, Show_CaseTemp<1>},
    {"Defaults", "ccTemp2", starred, "_", any, Show_CaseTemp<2>},
    {"Defaults", "ccTemp3", starred, "-", any, Show_CaseTemp<3>},
    {"Defaults", "ccTemp4", starred, "", any, Show_CaseTemp<4>},
    {"Defaults", "ccTemp5", starred, "", any, Show_CaseTemp<5>},
    {"Defaults", "ccTemp6", starred, "", any, Show_CaseTemp<6>},
    {"Defaults", "nnStyle", plain, "1", {1, 3, 1}, Show_CounterStyle},
    {"Defaults", "nnStart", plain, "1", any, Show_CounterStart},
    {"Defaults", "nnDigits", plain, "1", any, Show_CounterDigits},
    {"Defaults", "nnAppTmpDef", plain, "0", any, Show_TemplateDefault},
    {"Defaults", "nnAppTmp", plain, "0", any, Show_TemplateOnFill},
    {"Defaults", "nnAutoFill", plain, "1", {0, 1, 1}, Show_AutoFill},
    {"Defaults", "srMode", plain, "3", {1, 3, 3}, Show_SearchMode},
    {"Defaults", "srMatchCase", plain, "0", any, Show_SearchCase},
    {"Defaults", "srType", plain, "1", {1, 2, 1}, Show_SearchType},
    {"Defaults", "dtCreate", plain, "1", any, Show_TimeChecks},
    {"Defaults", "dtMod", plain, "0", any, Show_TimeChecks},
    {"Defaults", "dtAccess", plain, "0", any, Show_TimeChecks},
    {"Defaults", "mcdMode", plain, "2", {1, 2, 2}, Show_MoveMode},
    {"Defaults", "SortDis", plain, "1", any, Show_Distance, Take_Distance},
    {"Defaults", "lsvView", plain, "3", {2, 3, 3}, Show_View},
};

} // namespace

std::span<const Setting> Settings_Table()
{
    return table;
}

} // namespace tavo
