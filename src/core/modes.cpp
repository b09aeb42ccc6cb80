#include "core/screens.h"

#include "core/layout.h"
#include "core/tools.h"
#include "core/windows.h"
#include "renamelist/nn_panel.h"
#include "renamelist/preview.h"
#include "toolkit/dates.h"

#include <array>

namespace tavo {

namespace {

constexpr std::array<std::string_view, 8> titleSuffixes = {
    " - Attributes",    " - Change Case",      " - Date & Time",       " - Move & Copy",
    " - Name & Number", " - Search & Replace", " - MP3 Tag (ID3v1.1)", " - Empty List"};

bool IsChoice(int mode)
{
    return mode >= modeAttributes && mode <= modeMp3Tag;
}

// The panel's fields show the row in hand; boxes that Auto Fill would
// overwrite are left alone.
void Mode_ShowRow(Program& p)
{
    ListView& list = p.main.lsvRename;
    if (list.Count() < 1)
        return;
    const int row = list.SelectedItem();
    list.SetSelected(row, true);
    list.EnsureVisible(row);
    p.state.ActReady = false;
    Row_Click(p);
    p.state.ActReady = true;
}

void Panels_Show(Program& p)
{
    for (const auto& panel : p.main.ctlRbRenMode)
        panel->Visible = panel->Index() == p.state.RenMode;
}

} // namespace

std::string Title_Get(int mode)
{
    std::string title(appTitle);
    if (mode >= 0 && mode < static_cast<int>(titleSuffixes.size()))
        title += titleSuffixes[static_cast<std::size_t>(mode)];
    return title;
}

void Clock_Show(Program& p)
{
    const SystemTime now = p.desktop.Now();
    const DateTime when{now.Year, now.Month, now.Day, now.Hour, now.Minute, now.Second};
    const std::string_view timeMask = p.state.ClockFlag ? "hh:mm:ss" : "hh:mm:ss AMPM";
    p.main.stbMain.SetPanel(2, "Todays: " + DateTime_Format(when, "mm/dd/yyyy") + "   "
                                   + DateTime_Format(when, timeMask));
}

void Mode_Box_Show(Program& p)
{
    ComboBox* box = Tool_Combo(p, "ID_RenameList");
    if (!box || !IsChoice(p.state.RenMode))
        return;
    const bool before = p.state.ModeShowing;
    p.state.ModeShowing = true;
    box->SetListIndex(p.state.RenMode);
    p.state.ModeShowing = before;
}

void Mode_Set(Program& p, int mode)
{
    if (mode != p.state.RenMode)
        p.state.PrevMode = p.state.RenMode;
    p.state.RenMode = static_cast<std::int16_t>(mode);
    Win_Lock(p, true, p.main);
    Panels_Show(p);
    Focus_Follow(p);
    p.main.tmrDateTimeClock.Enabled = false;
    Main_Layout(p);
    Mode_Box_Show(p);
    Tools_Show(p, {"ID_mnuTemplates"}, mode == modeNameNumber || mode == modeSearchReplace);
    if (mode == modeNameNumber && p.state.SetDigits == 1)
        NN_Digits_Auto(p);
    if (mode == modeDateTime) {
        p.main.tmrDateTimeClock.Enabled = true;
        Clock_Show(p);
    }
    p.main.SetCaption(Title_Get(p.state.RenMode));
    Win_Lock(p, false, p.main);
    Mode_ShowRow(p);
}

void List_SetEmptyState(Program& p)
{
    p.state.RenCount = 0;
    Tools_ListEnable(p, false);
    p.main.lsvRename.Visible = true;
    p.main.lsvRename.DeleteAllItems();
    p.main.stbMain.SetPanel(1, "");
    p.main.stbMain.SetPanel(2, "Create a New List");
    p.main.stbMain.SetPanel(3, "");
    p.main.tmrDateTimeClock.Enabled = false;
    Mode_Set(p, modeEmpty);
}

void List_LeaveEmptyState(Program& p)
{
    if (!IsChoice(p.state.RenMode))
        p.state.RenMode = modeNameNumber;
    Mode_Set(p, p.state.RenMode);
    Tools_ListEnable(p, true);
}

void View_Set(Program& p, int code)
{
    struct View {
        int Code;
        std::string_view Tool;
    };
    static constexpr View views[] = {
        {2, "ID_ArrangeList"}, {3, "ID_ArrangeDetails"}, {viewThumbnails, "ID_ArrangeThumb"}};
    for (const View& view : views)
        Tool_Check(p, view.Tool, view.Code == code);
    if (code == 2 || code == 3) {
        p.state.lsvView = static_cast<std::uint8_t>(code);
        p.main.lsvRename.SetView(static_cast<ListLook>(code));
    }
    Tool* button = p.main.atbMain.Find("ID_Views");
    for (const View& view : views)
        if (const Tool* tool = p.main.atbMain.Find(view.Tool); tool && button && view.Code == code)
            button->IconName = tool->IconName.Get();
}

} // namespace tavo
