#include "viewer/frm_viewer.h"

#include "core/program.h"
#include "core/windows.h"
#include "viewer/viewer_parts.h"

namespace tavo {

namespace {

constexpr double startWidth = 9600, startHeight = 7200;
constexpr double statusHeight = 375;
constexpr int restMilliseconds = 1000;
// The delay that goes with the timer at rest.
constexpr std::string_view firstSeconds = "1";

void Viewer_QueryUnload(Program& p, bool& keep)
{
    keep = p.state.MainAlive;
    if (keep)
        Viewer_Hide(p);
}

} // namespace

FrmViewer::FrmViewer(Program& p) : Form("frmViewer")
{
    SetCaption(std::string(appTitle) + " - Image Viewer");
    Bars_Build(atbView, Viewer_Commands(), Viewer_Bands());
    Design(p);
    Wire(p);
    WireTools(p);
}

void FrmViewer::Design(Program& p)
{
    Form::Move(0, 0, startWidth, startHeight);
    const double twips = p.desktop.TwipsPerPixel();
    for (PictureBox* box : std::initializer_list<PictureBox*>{&picViewWin, &imgOriginal})
        box->TwipsPerPixel = twips;
    picViewWin.PixelScale = true;
    for (Control* inside :
         std::initializer_list<Control*>{&imgOriginal, &cmdThumb, &picThumbMake}) {
        inside->Container = &picViewWin;
        inside->Visible = false;
    }
    hsbCurImage.Max = hsbCurImage.Min = 1;
    for (ScrollBar* bar : std::initializer_list<ScrollBar*>{&hsbImage, &vsbImage}) {
        bar->Max = 0;
        bar->Enabled = false;
    }
    stbMain.Height = statusHeight;
    tmrAutoShow.Interval = tmrHideThumb.Interval = restMilliseconds;
    picViewWin.AccessibleName = "Picture";
    cmdThumb.AccessibleName = "Preview";
    hsbCurImage.AccessibleName = "Position in the list";
    hsbImage.AccessibleName = "Pan across";
    vsbImage.AccessibleName = "Pan up and down";
    TextBox& seconds = *atbView.Find("ID_Seconds")->Box;
    seconds.Text.SetQuietly(std::string(firstSeconds));
    seconds.AccessibleName = "Seconds";
}

void FrmViewer::Wire(Program& p)
{
    Load = [this, &p] {
        Viewer_Look_Take(p);
        Win_CenterScreen(p, *this);
        Viewer_Layout(p);
    };
    Resize = [&p] { Viewer_Layout(p); };
    Activate = [&p] { Viewer_Sync(p); };
    Deactivate = [this] { Viewer_Show_Stop(*this); };
    QueryUnload = [&p](bool& keep) { Viewer_QueryUnload(p, keep); };
    Unloaded = [&p] { Viewer_Hide(p); };

    hsbCurImage.Change = [&p] { Viewer_Show_Current(p); };
    hsbCurImage.Scroll = [&p] { Viewer_Preview_Show(p); };
    for (Event<>* moved : {&hsbImage.Change, &hsbImage.Scroll})
        *moved = [this] { Viewer_Pan_Across(*this); };
    for (Event<>* moved : {&vsbImage.Change, &vsbImage.Scroll})
        *moved = [this] { Viewer_Pan_Down(*this); };
    imgOriginal.MouseDown = [&p](const Control::Mouse& mouse) { Viewer_Pan_Press(p, mouse); };
    imgOriginal.MouseMove = [&p](const Control::Mouse& mouse) { Viewer_Pan_Move(p, mouse); };
    imgOriginal.MouseUp = [this](const Control::Mouse&) { Panning = false; };
    cmdThumb.Click = [&p] { Viewer_Preview_Click(p); };
    tmrAutoShow.Tick = [&p] { Viewer_Image_Find(p, p.state.ShowForward); };
    tmrHideThumb.Tick = [this] {
        tmrHideThumb.Enabled = false;
        cmdThumb.Visible = false;
    };
}

void FrmViewer::WireTools(Program& p)
{
    atbView.ToolClick = [&p](Tool& tool) {
        for (const Command& command : Viewer_Commands())
            if (command.Id == tool.Name() && command.Run)
                command.Run(p, tool);
    };
    // There is one box.
    atbView.ToolKeyPress = [](Tool&, int& key) { Seconds_KeyFilter(key); };
    atbView.ToolKeyDown = [this](Tool& tool, Key& key) {
        if (key.Code == keyReturn)
            Seconds_Return(*this, tool);
    };
    atbView.ToolGotFocus = [](Tool& tool) { Seconds_Enter(tool); };
    atbView.ToolLostFocus = [](Tool& tool) { Seconds_Hold(tool); };
}

FrmViewer* Viewer_Find(const Program& p)
{
    return dynamic_cast<FrmViewer*>(p.FindForm("frmViewer"));
}

} // namespace tavo
