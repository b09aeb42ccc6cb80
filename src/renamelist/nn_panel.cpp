#include "renamelist/nn_panel.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/counters.h"
#include "renamelist/key_filters.h"
#include "renamelist/preview.h"
#include "renamelist/templates.h"
#include "selection/paths.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr double highestNumber = 999999;

void Caret_ToEnd(TextBox& box)
{
    box.Select(Len(box.Text.Get()), 0);
}

// Holds a value between two bounds, which may come the wrong way round. True
// when it had to move.
bool Value_Hold(double& value, double low, double high)
{
    if (low > high)
        std::swap(low, high);
    const double held = std::clamp(value, low, high);
    const bool moved = held != value;
    value = held;
    return moved;
}

void Caret_AfterCheck(TextBox& box, bool moved)
{
    if (moved)
        Box_SelectAll(box);
    else
        Caret_ToEnd(box);
}

void NN_Start_Check(Program& p, TextBox& box)
{
    const double high = highestNumber - p.state.RenCount;
    if (p.state.nnStyle == cntNumber)
        Cnt_CheckNumber(box, 0, high);
    else
        Cnt_CheckLetters(box, 0, high, p.state.nnStyle == cntCapital);
}

void NN_Start_Changed(Program& p)
{
    TextBox& box = p.main.txtNameNum[nnStartBox];
    if (box.Text.Get().empty() || p.state.StartBoxGuard)
        return;
    p.state.StartBoxGuard = true;
    NN_Start_Check(p, box);
    p.state.StartBoxGuard = false;
    p.state.nnStart = box.Text.Get();
    Preview_Show(p);
    if (p.state.SetDigits == 1)
        NN_Digits_Auto(p);
}

void NN_Digits_Changed(Program& p)
{
    TextBox& box = p.main.txtNameNum[nnDigitsBox];
    if (const auto digits = ParseI16(box.Text.Get()))
        p.state.nnDigits = static_cast<std::int16_t>(*digits);
    Preview_Show(p);
    Box_SelectAll(box);
}

void NN_StartKey_Filter(int style, int& key)
{
    if (style == cntNumber) {
        Txt_NumericKey(key);
        return;
    }
    Key_Letters(key);
    if (style == cntSmall && key >= 'A' && key <= 'Z')
        key += 'a' - 'A';
    else if (style == cntCapital && key >= 'a' && key <= 'z')
        key -= 'a' - 'A';
}

// A digit takes the place of the whole text; the key then types it over the
// selection that the change has made.
void NN_DigitsKey(Program& p, int key)
{
    TextBox& box = p.main.txtNameNum[nnDigitsBox];
    if (key < '1' || key > '9')
        return;
    const std::string digit(1, static_cast<char>(key));
    if (box.Text.Get() != digit)
        box.Text = digit;
}

void NN_Digits_Step(Program& p, const Key& key)
{
    TextBox& box = p.main.txtNameNum[nnDigitsBox];
    if (key.Code == keyPageUp && box.Text.Get() != "9")
        box.Text = DoubleToText(Val(box.Text.Get()) + 1);
    else if (key.Code == keyPageDown && box.Text.Get() != "1")
        box.Text = DoubleToText(Val(box.Text.Get()) - 1);
}

void NN_Token_Key(TextBox& box, Key& key)
{
    constexpr int shortcuts = 3;
    const int index = key.Code - '1';
    if (!(key.Shift & shiftCtrl) || index < 0 || index >= shortcuts)
        return;
    key.Code = keyNone;
    box.SetSelText(std::string(Template_Tokens()[static_cast<std::size_t>(index)].Token));
}

void NN_Box_Leave(TextBox& box)
{
    std::string text = box.Text;
    if (!Tmpl_CheckBox(text, false))
        box.Text = text;
}

std::string Start_ForStyle(const std::string& text, int from, int to)
{
    if (to == cntNumber)
        return DoubleToText(Cnt_FromLetters(text));
    const std::string letters =
        from == cntNumber ? Cnt_ToLetters(Cnt_Start(text, cntNumber)) : text;
    return to == cntCapital ? UCase(letters) : LCase(letters);
}

void NN_Style_Chosen(Program& p, int style)
{
    if (style == p.state.nnStyle)
        return;
    TextBox& box = p.main.txtNameNum[nnStartBox];
    const std::string start = Start_ForStyle(box.Text, p.state.nnStyle, style);
    p.state.nnStyle = static_cast<std::uint8_t>(style);
    box.Text = start;
}

void NN_NameBoxes_Wire(Program& p)
{
    for (const int index : {nnName, nnExt}) {
        TextBox& box = p.main.txtNameNum[index];
        box.KeyDown = [&box](Key& key) { NN_Token_Key(box, key); };
        box.KeyPress = [&p](int& key) { Key_FileName(p, key); };
        box.Change = [&p] { Preview_Show(p); };
        box.GotFocus = [&p, &box, index] {
            Box_SelectAll(box);
            p.state.NameBoxFocus = static_cast<std::int16_t>(index);
        };
        box.LostFocus = [&box] { NN_Box_Leave(box); };
    }
}

void NN_CounterBoxes_Wire(Program& p)
{
    TextBox& start = p.main.txtNameNum[nnStartBox];
    start.KeyPress = [&p](int& key) { NN_StartKey_Filter(p.state.nnStyle, key); };
    start.Change = [&p] { NN_Start_Changed(p); };
    start.GotFocus = [&start] { Box_SelectAll(start); };

    TextBox& digits = p.main.txtNameNum[nnDigitsBox];
    digits.KeyDown = [&p](Key& key) { NN_Digits_Step(p, key); };
    digits.KeyPress = [&p](int& key) { NN_DigitsKey(p, key); };
    digits.Change = [&p] { NN_Digits_Changed(p); };
    digits.GotFocus = [&digits] { Box_SelectAll(digits); };
}

// Puts the present text of a box into its half of a stored template.
void Tmpl_FillIn(TextBox& box, std::string half)
{
    std::string present = box.Text;
    Str_ReplaceAll(half, "<E>", present, 0);
    present = Str_KeepNonDigits(present);
    Str_ReplaceAll(half, "<ER>", present, 0);
    box.Text = half;
}

} // namespace

void Cnt_CheckNumber(TextBox& box, double low, double high)
{
    double value = Val(box.Text.Get());
    const bool moved = Value_Hold(value, low, high);
    if (moved)
        box.Text = DoubleToText(value);
    Caret_AfterCheck(box, moved);
}

void Cnt_CheckLetters(TextBox& box, double low, double high, bool upper)
{
    double value = Cnt_FromLetters(Trim(box.Text.Get()));
    const bool moved = Value_Hold(value, low, high);
    const std::string letters = Cnt_ToLetters(static_cast<std::int64_t>(value));
    box.Text = upper ? UCase(letters) : letters;
    Caret_AfterCheck(box, moved);
}

void NN_Digits_Auto(Program& p)
{
    const int startLength = Len(p.state.nnStart);
    const int countLength = p.state.nnStyle == cntNumber ? Len(IntToText(p.state.RenCount))
                                                         : Len(Cnt_ToLetters(p.state.RenCount));
    p.main.txtNameNum[nnDigitsBox].Text = IntToText(std::max(startLength, countLength));
}

void NN_Start_Reset(Program& p)
{
    static constexpr std::string_view first[] = {"1", "1", "b", "B"};
    const int style = p.state.nnStyle;
    const std::size_t at = style >= cntNumber && style <= cntCapital ? style : cntNumber;
    p.main.txtNameNum[nnStartBox].Text = std::string(first[at]);
}

void Tmpl_Insert(Program& p, int index)
{
    if (index == tmplCurrentLabel) {
        Tmpl_Load(p, p.state.nnAppTmpDef);
        return;
    }
    const Label* label = p.main.lblTmpInsert.At(index);
    if (index < 1 || label == nullptr)
        return;
    for (const auto& box : p.main.txtNameNum)
        if (box->HasFocus())
            box->SetSelText(label->Caption);
}

void Tmpl_Load(Program& p, int index)
{
    if (index < 0 || index > List_Last(p.state.Templates))
        return;
    std::string right = p.state.Templates[static_cast<std::size_t>(index)].Data;
    const std::string left = Str_GetToken(right, ":", "");
    if (p.state.RenMode == modeNameNumber) {
        Tmpl_FillIn(p.main.txtNameNum[nnName], left);
        Tmpl_FillIn(p.main.txtNameNum[nnExt], right);
    } else {
        p.main.txtSearchFind.Text = left;
        p.main.txtSearchReplace.Text = right;
    }
    for (const auto& box : p.main.txtNameNum)
        if (box->HasFocus())
            Caret_ToEnd(*box);
}

void NN_Panel_Wire(Program& p)
{
    NN_NameBoxes_Wire(p);
    NN_CounterBoxes_Wire(p);
    for (const auto& option : p.main.optNNStyle) {
        const int style = option->Index();
        option->Click = [&p, style] { NN_Style_Chosen(p, style); };
    }
    for (const auto& label : p.main.lblTmpInsert) {
        const int index = label->Index();
        label->Click = [&p, index] { Tmpl_Insert(p, index); };
    }
    p.main.lblNameNum[nnStartBox].Click = [&p] { NN_Start_Reset(p); };
    p.main.lblNameNum[nnDigitsBox].Click = [&p] { NN_Digits_Auto(p); };
}

} // namespace tavo
