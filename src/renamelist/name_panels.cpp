#include "renamelist/name_panels.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/change_case.h"
#include "renamelist/key_filters.h"
#include "renamelist/nn_panel.h"
#include "renamelist/preview.h"
#include "renamelist/search_replace.h"
#include "renamelist/templates.h"

namespace tavo {

namespace {

// The longest name that the program reckons with.
constexpr double lastPosition = 254;

void SearchType_Chosen(Program& p, int type)
{
    FrmMain& f = p.main;
    p.state.srType = static_cast<std::uint8_t>(type);
    const bool isText = type == searchText;
    for (Control* control :
         std::initializer_list<Control*>{&f.lblSearchFind, &f.txtSearchFind, &f.chkSearchCase})
        control->Visible = isText;
    for (Control* control :
         std::initializer_list<Control*>{&f.txtSearchStart, &f.txtSearchEnd, &f.lblSearchRange[0],
                                         &f.lblSearchRange[1], &f.lblSearchRangeTo})
        control->Visible = !isText;
    Preview_Show(p);
}

void Position_Wire(Program& p, TextBox& box, double low)
{
    box.KeyPress = [](int& key) { Txt_NumericKey(key); };
    box.GotFocus = [&box] { Box_SelectAll(box); };
    box.Change = [&p, &box, low] {
        if (!box.Text.Get().empty())
            Cnt_CheckNumber(box, low, lastPosition);
        Preview_Show(p);
    };
    box.LostFocus = [&p, &box, low] {
        Cnt_CheckNumber(box, low, lastPosition);
        Preview_Show(p);
    };
}

void Replacement_Leave(TextBox& box)
{
    std::string text = box.Text;
    if (!Str_StripBadChars(text))
        box.Text = text;
}

void CaseMode_Chosen(Program& p, int mode)
{
    FrmMain& f = p.main;
    p.state.ccMode = static_cast<std::uint8_t>(mode);
    const bool isSmart = mode == caseSmart;
    for (Control* control : std::initializer_list<Control*>{
             &f.chkCaseFirst, &f.chkCaseWord, &f.lblCaseSmart, &f.linCase1, &f.linCase2})
        control->Visible = isSmart;
    for (const auto& box : f.txtCasePreCap)
        box->Visible = isSmart;
    Preview_Show(p);
}

} // namespace

void SR_Panel_Wire(Program& p)
{
    FrmMain& f = p.main;
    for (const auto& option : f.optSearchType) {
        const int type = option->Index();
        option->Click = [&p, type] { SearchType_Chosen(p, type); };
    }
    for (const auto& option : f.optSearchMode) {
        const int scope = option->Index();
        option->Click = [&p, scope] {
            p.state.srMode = static_cast<std::uint8_t>(scope);
            Preview_Show(p);
        };
    }
    f.chkSearchCase.Click = [&p] {
        p.state.srMatchCase = static_cast<std::uint8_t>(p.main.chkSearchCase.Value.Get());
        Preview_Show(p);
    };
    f.txtSearchFind.Change = [&p] { Preview_Show(p); };
    f.txtSearchReplace.KeyPress = [&p](int& key) { Key_FileName(p, key); };
    f.txtSearchReplace.Change = [&p] { Preview_Show(p); };
    f.txtSearchReplace.LostFocus = [&f] { Replacement_Leave(f.txtSearchReplace); };
    Position_Wire(p, f.txtSearchStart, 1);
    Position_Wire(p, f.txtSearchEnd, 0);
}

void Case_Panel_Wire(Program& p)
{
    FrmMain& f = p.main;
    for (const auto& option : f.optCase) {
        const int mode = option->Index();
        option->Click = [&p, mode] { CaseMode_Chosen(p, mode); };
    }
    f.chkCaseFirst.Click = [&p] {
        p.state.ccCap = static_cast<std::uint8_t>(p.main.chkCaseFirst.Value.Get());
        Preview_Show(p);
    };
    f.chkCaseWord.Click = [&p] {
        p.state.ccWord = static_cast<std::uint8_t>(p.main.chkCaseWord.Value.Get());
        Preview_Show(p);
    };
    for (const auto& box : f.txtCasePreCap) {
        TextBox& sign = *box;
        sign.Change = [&p, &sign] {
            p.state.ccTemp[static_cast<std::size_t>(sign.Index())] = sign.Text.Get();
            Preview_Show(p);
        };
    }
}

} // namespace tavo
