#include "core/program.h"
#include "renamelist/key_filters.h"
#include "renamelist/preview.h"
#include "toolkit/numbers.h"
#include "viewer/frm_viewer.h"
#include "viewer/viewer_parts.h"

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

constexpr double leastSeconds = 1, mostSeconds = 60, millisecondsInASecond = 1000;

void PlayTools_Set(FrmViewer& v, bool forward, bool reverse)
{
    if (Tool* tool = v.atbView.Find("ID_ShowPlayF"))
        tool->Checked = forward;
    if (Tool* tool = v.atbView.Find("ID_ShowPlayR"))
        tool->Checked = reverse;
}

// The box may hold any text: a delay that no timer can have leaves the one
// before it.
void Interval_Take(FrmViewer& v)
{
    const Tool* tool = v.atbView.Find("ID_Seconds");
    if (!tool)
        return;
    const double wanted = std::trunc(Val(tool->Box->Text.Get()) * millisecondsInASecond);
    int interval = 0;
    if (wanted >= 0 && AssignChecked(interval, wanted))
        v.tmrAutoShow.Interval = interval;
}

void Show_Start(Program& p, bool forward)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    v->tmrAutoShow.Enabled = false;
    Interval_Take(*v);
    p.state.ShowForward = forward;
    v->tmrAutoShow.Enabled = true;
    PlayTools_Set(*v, forward, !forward);
}

} // namespace

void Viewer_Show_Stop(FrmViewer& v)
{
    v.tmrAutoShow.Enabled = false;
    PlayTools_Set(v, false, false);
}

void Cmd_ViewPlayForward(Program& p, Tool&)
{
    Show_Start(p, true);
}

void Cmd_ViewPlayReverse(Program& p, Tool&)
{
    Show_Start(p, false);
}

void Cmd_ViewStop(Program& p, Tool&)
{
    if (FrmViewer* v = Viewer_Find(p))
        Viewer_Show_Stop(*v);
}

void Seconds_KeyFilter(int& key)
{
    Txt_NumericKey(key);
}

void Seconds_Enter(Tool& tool)
{
    Box_SelectAll(*tool.Box);
}

void Seconds_Hold(Tool& tool)
{
    const double seconds = Val(tool.Box->Text.Get());
    tool.Box->Text = DoubleToText(std::clamp(seconds, leastSeconds, mostSeconds));
}

void Seconds_Return(FrmViewer& v, Tool& tool)
{
    Seconds_Hold(tool);
    Interval_Take(v);
    if (!v.tmrAutoShow.Enabled)
        return;
    // The delay begins anew.
    v.tmrAutoShow.Enabled = false;
    v.tmrAutoShow.Enabled = true;
}

} // namespace tavo
