#include "fileactions/date_time_panel.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/screens.h"
#include "fileactions/time_text.h"
#include "renamelist/preview.h"
#include "toolkit/dates.h"
#include "toolkit/text.h"

namespace tavo {

namespace {

// FieldFocus knows the boxes by their index and this.
constexpr int focusBase = 10;

// The group that a box or label belongs to, by its check box.
constexpr int groupOf[] = {0, 1, 1, 2, 2, 3};

bool Is_TimeBox(int index)
{
    return index == 2 || index == 4;
}

std::uint8_t Flag_Of(Program& p, int group)
{
    return p.main.chkDateTime[group].Value == 1 ? 1 : 0;
}

void Group_Clicked(Program& p)
{
    p.state.dtCreate = Flag_Of(p, 1);
    p.state.dtMod = Flag_Of(p, 2);
    p.state.dtAccess = Flag_Of(p, 3);
    DT_Groups_Enable(p);
}

void Now_Put(Program& p, int index)
{
    const SystemTime now = p.desktop.Now();
    const DateTime when{now.Year, now.Month, now.Day, now.Hour, now.Minute, now.Second};
    p.main.txtDateTime[index].Text =
        DateTime_Format(when, Is_TimeBox(index) ? time12Mask : dateMask);
}

// "A" and "P" name the half of the day from wherever the caret stands.
void HalfDay_Put(MaskBox& box, char letter)
{
    const int caret = box.SelStart();
    box.Text = Left(box.Text, 8) + ' ' + letter + 'M';
    box.Select(caret, 0);
}

// Tab, Return and Escape are the form's and no characters here.
bool Is_FormKey(int key)
{
    return key == keyTab || key == keyReturn || key == keyEscape;
}

void Key_Filter(MaskBox& box, int& key)
{
    constexpr int point = 46;
    const bool isDigit = key >= '0' && key <= '9';
    if (isDigit || key == keyBackspace || key == point || Is_FormKey(key))
        return;
    if (Is_TimeBox(box.Index()) && (key == 'A' || key == 'a'))
        HalfDay_Put(box, 'A');
    else if (Is_TimeBox(box.Index()) && (key == 'P' || key == 'p'))
        HalfDay_Put(box, 'P');
    key = 0;
}

void Box_Enter(Program& p, MaskBox& box)
{
    Box_SelectAll(box);
    p.state.FieldFocus = static_cast<std::int16_t>(box.Index() + focusBase);
}

void Box_Leave(Program& p, MaskBox& box)
{
    box.Text = Is_TimeBox(box.Index()) ? Time_Box_Text(box.Text)
                                       : Date_Box_Text(box.Text, p.desktop.Now().Year);
}

void Clock_Clicked(Program& p)
{
    if (p.state.RenMode != modeDateTime)
        return;
    p.state.ClockFlag = !p.state.ClockFlag;
    if (p.main.tmrDateTimeClock.Runs())
        Clock_Show(p);
}

} // namespace

void DT_Groups_Enable(Program& p)
{
    for (int index = 1; index <= 5; ++index) {
        const bool ticked = Flag_Of(p, groupOf[index]) == 1;
        p.main.lblDateTime[index].Enabled = ticked;
        p.main.txtDateTime[index].Enabled = ticked;
    }
}

void DT_Panel_Wire(Program& p)
{
    for (const auto& check : p.main.chkDateTime)
        check->Click = [&p] { Group_Clicked(p); };
    for (const auto& label : p.main.lblDateTime) {
        const int index = label->Index();
        label->Click = [&p, index] { Now_Put(p, index); };
    }
    for (const auto& each : p.main.txtDateTime) {
        MaskBox& box = *each;
        box.KeyPress = [&box](int& key) { Key_Filter(box, key); };
        box.GotFocus = [&p, &box] { Box_Enter(p, box); };
        box.LostFocus = [&p, &box] { Box_Leave(p, box); };
    }
    p.main.stbMain.Click = [&p] { Clock_Clicked(p); };
    DT_Groups_Enable(p);
}

} // namespace tavo
