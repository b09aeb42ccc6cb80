#include "renamelist/act_panel.h"

#include "core/frm_main.h"
#include "core/program.h"

#include <array>
#include <charconv>

namespace tavo {

namespace {

// A walk calls for each row, so a label that stands as it should costs no
// more than a look.
void Label_ShowCount(Label& label, int count)
{
    if (count <= 0)
        return;
    std::array<char, 12> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), count).ptr;
    const std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
    if (label.Caption.Get() == text)
        return;
    label.Caption = std::string(text);
    label.Refresh();
}

} // namespace

void Act_Panel_Setup(Program& p, bool hideOnly, std::string_view label1, std::string_view label2,
                     std::string_view label3)
{
    FrmMain& f = p.main;
    const std::array captions = {label1, label2, label3};
    int shown = 0;
    for (int k = 1; k <= 3; ++k) {
        f.lblAction[k].Visible = false;
        f.lblActionInfo[k].Visible = false;
        if (!captions[static_cast<std::size_t>(k - 1)].empty())
            shown = k;
    }
    if (hideOnly || shown == 0)
        return;
    for (int k = 1; k <= 3; ++k) {
        f.lblAction[k].Caption = std::string(captions[static_cast<std::size_t>(k - 1)]);
        f.lblAction[k].ToolTipText = "";
        f.lblActionInfo[k].Caption = "";
        f.lblAction[k].Visible = k <= shown;
        f.lblActionInfo[k].Visible = k <= shown;
    }
}

void Act_Panel_Update(Program& p, int count1, int count2, int count3)
{
    const auto& values = p.main.lblActionInfo;
    Label_ShowCount(values[1], count1);
    Label_ShowCount(values[2], count2);
    Label_ShowCount(values[3], count3);
}

void Act_Stage(Program& p, std::string_view text)
{
    p.main.lblActionInfo[0].Caption = std::string(text);
}

void Act_Progress(Program& p, int step, int count)
{
    if (count < 1)
        return;
    const auto percent = static_cast<int>(std::int64_t{step} * 100 / count);
    p.main.prbAction.Value = percent;
    std::string caption(appTitle);
    caption += ' ';
    caption += std::to_string(percent);
    caption += '%';
    if (p.main.Caption() != caption)
        p.main.SetCaption(caption);
}

} // namespace tavo
