#include "core/state.h"

#include "toolkit/numbers.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

using S = SharedState;
using L = ThumbLook;

template <class Number>
std::string Value_Text(Number value)
{
    return IntToText(value);
}

std::string Value_Text(bool value)
{
    return BoolToText(value);
}

std::string Value_Text(const std::string& value)
{
    return value;
}

// Those of the settings file, under their keys.
constexpr Variable settingVariables[] = {
    {"SavePos", &S::SavePos},
    {"SaveDef", &S::SaveDef},
    {"actClose", &S::actClose},
    {"ShowFile", &S::ShowFile},
    {"SetDigits", &S::SetDigits},
    {"PreList", &S::PreList},
    {"ProExt", &S::ProExt},
    {"SupWarnRen", &S::SupWarnRen},
    {"SupWarnUndo", &S::SupWarnUndo},
    {"AutoSelNext", &S::AutoSelNext},
    {"AutoThumbs", &S::AutoThumbs},
    {"RetRename", &S::RetRename},

    {"RenMode", &S::RenMode},
    {"ColViewWin", &S::ColViewWin},
    {"Scheme", &S::Scheme},
    {"ThumbCaption", &L::CaptionShown},
    {"Gif", &S::Gif},
    {"tbsAddress", &S::tbsAddress},
    {"tbsTextLabels", &S::tbsTextLabels},
    {"tbtTextLabels", &S::tbtTextLabels},
    {"tbvTextLabels", &S::tbvTextLabels},
    {"SelPreview", &S::SelPreview},
    {"ccMode", &S::ccMode},
    {"ccCap", &S::ccCap},
    {"ccWord", &S::ccWord},
    {"ccTemp1", CaseTemp{1}},
    {"ccTemp2", CaseTemp{2}},
    {"ccTemp3", CaseTemp{3}},
    {"ccTemp4", CaseTemp{4}},
    {"ccTemp5", CaseTemp{5}},
    {"ccTemp6", CaseTemp{6}},
    {"nnStyle", &S::nnStyle},
    {"NNStyle", &S::nnStyle},
    {"nnStart", &S::nnStart},
    {"NNStart", &S::nnStart},
    {"nnDigits", &S::nnDigits},
    {"NNDigits", &S::nnDigits},
    {"nnAppTmpDef", &S::nnAppTmpDef},
    {"nnAppTmp", &S::nnAppTmp},
    {"nnAutoFill", &S::nnAutoFill},
    {"AutoFill", &S::nnAutoFill},
    {"srMode", &S::srMode},
    {"srMatchCase", &S::srMatchCase},
    {"srType", &S::srType},
    {"dtCreate", &S::dtCreate},
    {"dtMod", &S::dtMod},
    {"dtAccess", &S::dtAccess},
    {"mcdMode", &S::mcdMode},
    {"lsvView", &S::lsvView},
};

constexpr Variable otherVariables[] = {
    {"AppFolder", &S::AppFolder},
    {"StartPath", &S::StartPath},
    {"Filter", &S::Filter},
    {"CurFile", &S::CurFile},
    {"CurScreen", &S::CurScreen},
    {"PrevMode", &S::PrevMode},
    {"RenCount", &S::RenCount},
    {"ResizeOn", &S::ResizeOn},
    {"MainAlive", &S::MainAlive},
    {"SelFolderMode", &S::SelFolderMode},
    {"DeleteChoice", &S::DeleteChoice},
    {"WinDefaultW", &S::WinDefaultW},
    {"WinDefaultH", &S::WinDefaultH},
    {"colName", &S::colName},
    {"colPath", &S::colPath},
    {"colSize", &S::colSize},
    {"colType", &S::colType},
    {"colModified", &S::colModified},
    {"colUndoName", &S::colUndoName},
    {"colErrors", &S::colErrors},

    {"ActCancel", &S::ActCancel},
    {"ActReady", &S::ActReady},
    {"ActPaused", &S::ActPaused},
    {"ClockFlag", &S::ClockFlag},
    {"DragX", &S::DragX},
    {"DragY", &S::DragY},
    {"SplitX", &S::SplitX},
    {"SplitY", &S::SplitY},
    {"MinWidth", &S::MinWidth},
    {"MinHeight", &S::MinHeight},
    {"ClientW", &S::ClientW},
    {"ClientH", &S::ClientH},

    {"ActShow", &S::ActShow},
    {"ActPrevView", &S::ActPrevView},
    {"ActSavedInfo", &S::ActSavedInfo},
    {"LastRows", &S::LastRows},
    {"LastMode", &S::LastMode},
    {"RenFailed", &S::RenFailed},
    {"RenErrCode", &S::RenErrCode},
    {"ListDragging", &S::ListDragging},
    {"ThumbLook.CaptionShown", &L::CaptionShown},
    {"ThumbLook.Align", &L::Align},
    {"ThumbLook.CaptionHeight", &L::CaptionHeight},
    {"ThumbLook.Width", &L::Width},
    {"ThumbLook.Height", &L::Height},
    {"ThumbLook.CellWidth", &L::CellWidth},
    {"ThumbLook.CellHeight", &L::CellHeight},
    {"ThumbLook.Margin", &L::Margin},
    {"ThumbLook.BorderWidth", &L::BorderWidth},
    {"ThumbLook.Color(0)", LookColor{0}},
    {"ThumbLook.Color(1)", LookColor{1}},
    {"ThumbLook.Color(2)", LookColor{2}},
    {"ThumbLook.Color(3)", LookColor{3}},
    {"ThumbLook.Color(4)", LookColor{4}},
    {"ThumbLook.Color(5)", LookColor{5}},
    {"Columns", &S::Columns},
    {"Rows", &S::Rows},
    {"Cells", &S::Cells},
    {"SelAnchor", &S::SelAnchor},
    {"LastRow", &S::LastRow},
    {"ImgWidth", &S::ImgWidth},
    {"ImgHeight", &S::ImgHeight},
    {"PanX", &S::PanX},
    {"PanY", &S::PanY},
    {"ViewEnlarge", &S::ViewEnlarge},
    {"ViewShrink", &S::ViewShrink},
    {"ShowForward", &S::ShowForward},
    {"ColorCurrent", &S::ColorCurrent},
    {"ColorDefault", &S::ColorDefault},
    {"ColorCustom", &S::ColorCustom},
    {"SchemeEditMode", &S::SchemeEditMode},
    {"SchemeEditText", &S::SchemeEditText},

    {"PreviewOn", &S::PreviewOn},
    {"CurRow", &S::CurRow},
    {"OldName", &S::OldName},
    {"OldExt", &S::OldExt},
    {"FullName", &S::FullName},
};

} // namespace

const std::vector<Variable>& Variables()
{
    static const std::vector<Variable> table = [] {
        std::vector<Variable> all(std::begin(settingVariables), std::end(settingVariables));
        all.insert(all.end(), std::begin(otherVariables), std::end(otherVariables));
        return all;
    }();
    return table;
}

const Variable* Variable_Find(std::string_view name)
{
    const auto& table = Variables();
    const auto row =
        std::find_if(table.begin(), table.end(), [&](const Variable& v) { return v.Name == name; });
    return row == table.end() ? nullptr : &*row;
}

std::string Variable_Text(const SharedState& state, const Variable& variable)
{
    return Variable_Use(state, variable, [](const auto& value) { return Value_Text(value); });
}

} // namespace tavo
