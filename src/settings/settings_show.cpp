#include "settings/settings_show.h"

#include "core/layout.h"
#include "core/screens.h"
#include "core/tools.h"
#include "fileactions/date_time_panel.h"
#include "fileactions/move_copy.h"
#include "renamelist/rename_list.h"
#include "selection/paths.h"
#include "toolkit/numbers.h"

#include <array>

namespace tavo {

namespace {

template <class T>
void Option_Choose(const ControlArray<T>& options, int index)
{
    if (T* option = options.At(index))
        option->Value = true;
}

// Nothing but 1 ticks a box.
void Tick(CheckBox& box, std::uint8_t flag)
{
    box.Value = flag == 1 ? 1 : 0;
}

// The list of folders, if one was up, is one of files from here on.
void FolderMode_End(Program& p)
{
    Ren_FolderMode_Apply(p, 0);
    Tool_Check(p, "ID_SelFolder", false);
    Tool_Caption(p, "ID_SelFolder", "Files");
    Tools_Enable(p, {"ID_SelSubFiles"}, true);
}

} // namespace

void Show_Path(Program& p, const std::string& text)
{
    const std::string folder =
        Path_AddSlash(text.empty() ? p.state.AppFolder : text, p.files.Rules());
    std::string looked = folder;
    if (Folder_Exists(p.files, looked))
        p.state.CurFile = folder;
}

// On the selection screen no panel is up that could change.
void Show_RenMode(Program& p, const std::string&)
{
    if (p.state.CurScreen >= screenRename)
        Mode_Set(p, p.state.RenMode);
    else
        Mode_Box_Show(p);
    FolderMode_End(p);
}

void Show_ThumbCaption(Program& p, const std::string&)
{
    Tool_Caption(p, "ID_ThumbCaption",
                 p.state.ThumbLook.CaptionShown ? "&Hide Caption" : "&Show Caption");
}

void Show_Address(Program& p, const std::string&)
{
    const bool on = p.state.tbsAddress == 1;
    Tool_Check(p, "ID_tbAddress", on);
    // The other screens never show it; the selection screen asks the flag.
    if (Band* band = p.main.atbMain.FindBand("Address"))
        band->SetVisible(on && p.state.CurScreen == screenSelection);
    Focus_Follow(p);
}

void Show_TextLabels(Program& p, const std::string&)
{
    const bool on = p.state.tbsTextLabels == 1;
    Tool_Check(p, "ID_tbTextLabels", on);
    Tools_SetLabels(p, on);
}

void Show_SelPreview(Program& p, const std::string&)
{
    const bool on = p.state.SelPreview == 1;
    Tools_Show(p, {"ID_SelPreviewOn"}, !on);
    Tools_Show(p, {"ID_SelPreviewOff"}, on);
    Main_Layout(p);
}

void Show_CaseMode(Program& p, const std::string&)
{
    Option_Choose(p.main.optCase, p.state.ccMode);
}

void Show_CaseFirst(Program& p, const std::string&)
{
    Tick(p.main.chkCaseFirst, p.state.ccCap);
}

void Show_CaseWord(Program& p, const std::string&)
{
    Tick(p.main.chkCaseWord, p.state.ccWord);
}

template <int Index>
void Show_CaseTemp(Program& p, const std::string& text)
{
    p.main.txtCasePreCap[Index].Text = text;
}

template void Show_CaseTemp<1>(Program&, const std::string&);
template void Show_CaseTemp<2>(Program&, const std::string&);
template void Show_CaseTemp<3>(Program&, const std::string&);
template void Show_CaseTemp<4>(Program&, const std::string&);
template void Show_CaseTemp<5>(Program&, const std::string&);
template void Show_CaseTemp<6>(Program&, const std::string&);

void Show_CounterStyle(Program& p, const std::string&)
{
    Option_Choose(p.main.optNNStyle, p.state.nnStyle);
}

void Show_CounterStart(Program& p, const std::string& text)
{
    p.main.txtNameNum[nnStartBox].Text = text;
}

void Show_CounterDigits(Program& p, const std::string&)
{
    p.main.txtNameNum[nnDigitsBox].Text = IntToText(p.state.nnDigits);
}

void Show_TemplateDefault(Program& p, const std::string&)
{
    std::int16_t& index = p.state.nnAppTmpDef;
    if (index < 0 || index > List_Last(p.state.Templates))
        index = 0;
    Label& label = p.main.lblTmpInsert[tmplCurrentLabel];
    label.Caption = p.state.Templates[static_cast<std::size_t>(index)].Name;
    label.Tag = IntToText(index);
}

void Show_TemplateOnFill(Program& p, const std::string&)
{
    Tool_Check(p, "ID_TmpApplySel", p.state.nnAppTmp == 1);
}

void Show_AutoFill(Program& p, const std::string&)
{
    Tool_Check(p, "ID_AutoFill", p.state.nnAutoFill == 1);
}

void Show_SearchMode(Program& p, const std::string&)
{
    Option_Choose(p.main.optSearchMode, p.state.srMode);
}

void Show_SearchCase(Program& p, const std::string&)
{
    Tick(p.main.chkSearchCase, p.state.srMatchCase);
}

void Show_SearchType(Program& p, const std::string&)
{
    Option_Choose(p.main.optSearchType, p.state.srType);
}

// Each tick makes the click handler read all three flags from their boxes. A
// flag whose box has not been told yet must not be lost to it.
void Show_TimeChecks(Program& p, const std::string&)
{
    SharedState& s = p.state;
    const std::array flags = {s.dtCreate, s.dtMod, s.dtAccess};
    for (int box = 1; box <= 3; ++box)
        Tick(p.main.chkDateTime[box], flags[static_cast<std::size_t>(box - 1)]);
    s.dtCreate = flags[0];
    s.dtMod = flags[1];
    s.dtAccess = flags[2];
    DT_Groups_Enable(p);
}

void Show_MoveMode(Program& p, const std::string&)
{
    Option_Choose(p.main.optmcdMode, p.state.mcdMode);
    Copy_Mode_Show(p);
}

// The text stands as it was saved, beyond the list's length too: the box's own
// check is for what a person types.
void Show_Distance(Program& p, const std::string& text)
{
    TextBox* box = Tool_Box(p, "ID_SelDistance");
    if (!box || box->Text.Get() == text)
        return;
    box->Text.SetQuietly(text);
    box->Changed(Prop::Text);
}

void Show_View(Program& p, const std::string&)
{
    View_Set(p, p.state.lsvView);
}

// No folder has been in hand when the start was given one that does not exist
// and the tree was not asked. The separator alone would be a folder where the
// root keeps its slash, and the next start would go there.
std::string Take_Path(Program& p)
{
    const PathRules& rules = p.files.Rules();
    if (p.state.StartPath.empty() && rules.RootKeepsSlash)
        return {};
    return Path_AddSlash(p.state.StartPath, rules);
}

std::string Take_Distance(Program& p)
{
    const TextBox* box = Tool_Box(p, "ID_SelDistance");
    return box ? box->Text.Get() : std::string();
}

} // namespace tavo
