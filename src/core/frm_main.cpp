#include "core/frm_main.h"

namespace tavo {

FrmMain::FrmMain() : Form("frmMain")
{
    Move(0, 0, 12000, 9000);
    stbMain.Move(0, 0, 12000, 375);
    DesignSelection();
    DesignLists();
    DesignThumbnails();
    DesignPanels();
    DesignActionPanel();
    tmrDateTimeClock.Interval = 1000;
    tmrRedrawThumbs.Interval = 250;
    tmrRefreshThumbs.Interval = 10;
    tmrThumbsScrollD.Interval = tmrThumbsScrollU.Interval = 200;
}

void FrmMain::DesignSelection()
{
    fraSelect.Visible = false;
    for (Control* control : std::initializer_list<Control*>{&ftvSelMain, &lsvSelMain,
                                                            &picSelPreview, &lblSelDBX, &lblSelDBY})
        control->Container = &fraSelect;
    imgSelPreview.Container = &picSelPreview;
    imgSelPreview.Visible = false;
    lblSelDBX.Move(3600, 0, 50, 3000);
    lblSelDBY.Move(0, 3600, 3600, 50);
    ftvSelMain.AccessibleName = "Folders";
    lsvSelMain.AccessibleName = "Files of the folder";
    picSelPreview.AccessibleName = "Preview";
}

namespace {

// The columns that both lists begin with.
void Columns_Add(ListView& list)
{
    list.AddColumn({"Name", "Name", 2460, false, SortMark::None, false});
    list.AddColumn({"Path", "Path", 1860, false, SortMark::None, true});
    list.AddColumn({"Size", "Size", 1020, true, SortMark::None, false});
    list.AddColumn({"Type", "Type", 750, false, SortMark::None, true});
    list.AddColumn({"Modified", "Modified", 1980, false, SortMark::None, false});
}

} // namespace

void FrmMain::DesignLists()
{
    Columns_Add(lsvSelMain);
    Columns_Add(lsvRename);
    lsvRename.AddColumn({"UndoName", "UndoName", 2160, false, SortMark::None, false});
    lsvRename.AddColumn({"Errors", "Errors", 1440, false, SortMark::None, true});
    lsvRename.AccessibleName = "Rename list";
    picThumbnails.AccessibleName = "Thumbnails";
    for (Control* control : std::initializer_list<Control*>{&lsvRename, &picThumbnails, &picAction})
        control->Visible = false;
}

void FrmMain::DesignThumbnails()
{
    constexpr double gap = 120, stripHeight = 240, buttonHeight = 420;
    for (Control* control :
         std::initializer_list<Control*>{&shpThumbsSelC, &imgThumbsC, &cmdThumbsFind, &lblThumbsSD,
                                         &lblThumbsSU, &picThumbs, &vsbThumbs})
        control->Container = &picThumbnails;
    shpThumbsSelC.Move(gap, gap, 1350, 1350);
    shpThumbsSelC.BackColor = static_cast<std::int32_t>(0x8000000F);
    shpThumbsSelC.BorderColor = static_cast<std::int32_t>(0x80000010);
    shpThumbsSelC.Tag = imgThumbsC.Tag = std::string("0");
    imgThumbsC.DragsItself = true;
    imgThumbsC.AccessibleName = "Parked picture";
    cmdThumbsFind.Caption = "Find";
    cmdThumbsFind.Height = buttonHeight;
    lblThumbsSD.Caption = "5"; // arrows in the font Marlett
    lblThumbsSU.Caption = "6";
    lblThumbsSD.Alignment = lblThumbsSU.Alignment = 2;
    lblThumbsSD.Height = lblThumbsSU.Height = stripHeight;
    vsbThumbs.Min = 1;
    vsbThumbs.Max = 1;
    vsbThumbs.Width = 255;
    picThumbs.PixelScale = true;
    for (Control* control : std::initializer_list<Control*>{
             &shpThumbsSel[1], &imgThumbs[1], &lblThumbs[1], &imgOriginal, &picThumb}) {
        control->Container = &picThumbs;
        control->Visible = false;
    }
    picThumb.PixelScale = true;
    static constexpr const char* icons[] = {"No Drag", "Drag Left", "Drag Right",
                                            "Drag Up", "Drag Down", "Drag"};
    for (const auto& icon : imgDragIcon) {
        icon->Container = &picThumbnails;
        icon->Visible = false;
        icon->ToolTipText = std::string(icons[icon->Index()]);
    }
}

void FrmMain::DesignActionPanel()
{
    struct Pair {
        double Top;
        const char* Tip;
    };
    static constexpr Pair pairs[] = {
        {1500, "Number of Files Renamed"},
        {1860, "Number of Files Skipped Due to Error during Rename Attempt"},
        {2220, "Number of Files with Correct Name Already"},
    };
    fraActControls.Container = &picAction;
    fraActControls.Move(0, 0, 5400, 3480);
    for (Control* control : std::initializer_list<Control*>{
             &prbAction, &lblActionInfo[0], &cmdActPause, &cmdActCancel, &cmdActDone})
        control->Container = &fraActControls;
    lblActionInfo[0].Move(240, 240, 4920, 300);
    prbAction.Move(240, 720, 4920, 330);
    for (int k = 1; k <= 3; ++k) {
        const Pair& pair = pairs[k - 1];
        lblAction[k].Container = lblActionInfo[k].Container = &fraActControls;
        lblAction[k].Move(240, pair.Top, 2640, 300);
        lblActionInfo[k].Move(3000, pair.Top, 2160, 300);
        lblAction[k].Alignment = 1;
        lblAction[k].ToolTipText = lblActionInfo[k].ToolTipText = std::string(pair.Tip);
        lblAction[k].Visible = lblActionInfo[k].Visible = false;
    }
    cmdActPause.Caption = "&Pause";
    cmdActCancel.Caption = "&Cancel";
    cmdActDone.Caption = "&Done";
    cmdActPause.Move(240, 2820, 1560, 420);
    cmdActCancel.Move(1920, 2820, 1560, 420);
    cmdActDone.Move(3600, 2820, 1560, 420);
    prbAction.AccessibleName = "Progress";
}

} // namespace tavo
