#pragma once

#include "controls/raised_border.h"
#include "toolkit/buttons.h"
#include "toolkit/combo_box.h"
#include "toolkit/control_array.h"
#include "toolkit/folder_tree.h"
#include "toolkit/form.h"
#include "toolkit/list_view.h"
#include "toolkit/mask_box.h"
#include "toolkit/panels.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/text_box.h"
#include "toolkit/tool_bars.h"

namespace tavo {

// Indexes of txtNameNum.
enum NameNumBox { nnName = 0, nnExt = 1, nnStartBox = 2, nnDigitsBox = 3 };
// Index of the insert label that applies the current template.
inline constexpr int tmplCurrentLabel = 11;

// The main window. Controls come in the order in which Tab walks them; what
// they hold, show and where they stand is set by the constructor.
class FrmMain : public Form {
public:
    FrmMain();

    ToolBars atbMain{*this, "atbMain"};
    StatusBar stbMain{*this, "stbMain", 3};

    // Selection screen
    Frame fraSelect{*this, "fraSelect"};
    FolderTree ftvSelMain{*this, "ftvSelMain"};
    ListView lsvSelMain{*this, "lsvSelMain"};
    PictureBox picSelPreview{*this, "picSelPreview"};
    ImageBox imgSelPreview{*this, "imgSelPreview"};
    Label lblSelDBX{*this, "lblSelDBX"}, lblSelDBY{*this, "lblSelDBY"};

    // The panels of the rename modes, one a mode; 7 is the empty list's
    ControlArray<RaisedBorder> ctlRbRenMode{*this, "ctlRbRenMode", 0, 7};

    Frame fraAttribCtr{*this, "fraAttribCtr"};
    ControlArray<CheckBox> chkAttr{*this, "chkAttr", 0, 3};

    Frame fraCaseCtr{*this, "fraCaseCtr"};
    ControlArray<OptionButton> optCase{*this, "optCase", 1, 3};
    Line linCase1{*this, "linCase1"}, linCase2{*this, "linCase2"};
    CheckBox chkCaseFirst{*this, "chkCaseFirst"}, chkCaseWord{*this, "chkCaseWord"};
    Label lblCaseSmart{*this, "lblCaseSmart"};
    ControlArray<TextBox> txtCasePreCap{*this, "txtCasePreCap", 1, 6};

    Frame fraDTCtr{*this, "fraDTCtr"};
    ControlArray<CheckBox> chkDateTime{*this, "chkDateTime", 1, 3};
    ControlArray<MaskBox> txtDateTime{*this, "txtDateTime", 1, 5};
    ControlArray<Label> lblDateTime{*this, "lblDateTime", 1, 5};

    ControlArray<OptionButton> optmcdMode{*this, "optmcdMode", 1, 2};
    ControlArray<Label> lblmcd{*this, "lblmcd", 0, 1};
    TextBox txtmcdPath{*this, "txtmcdPath"};
    CommandButton cmdmcdPath{*this, "cmdmcdPath"};
    ComboBox cbomcdPath{*this, "cbomcdPath", -1, ComboKind::List};

    Frame fraNNCtr{*this, "fraNNCtr"};
    // 0 name, 1 extension, 2 start, 3 digits
    ControlArray<Label> lblNameNum{*this, "lblNameNum", 0, 3};
    ControlArray<TextBox> txtNameNum{*this, "txtNameNum", 0, 3};
    Label lblNNStyle{*this, "lblNNStyle"};
    ControlArray<OptionButton> optNNStyle{*this, "optNNStyle", 1, 3};
    // 0 "Insert:", then the tokens, 11 the current template
    ControlArray<Label> lblTmpInsert{*this, "lblTmpInsert", 0, 11};

    ControlArray<OptionButton> optSearchType{*this, "optSearchType", 1, 2};
    ControlArray<OptionButton> optSearchMode{*this, "optSearchMode", 1, 3};
    CheckBox chkSearchCase{*this, "chkSearchCase"};
    Label lblSearchFind{*this, "lblSearchFind"};
    TextBox txtSearchFind{*this, "txtSearchFind"};
    Label lblSearchReplace{*this, "lblSearchReplace"};
    TextBox txtSearchReplace{*this, "txtSearchReplace"};
    ControlArray<Label> lblSearchRange{*this, "lblSearchRange", 0, 1};
    TextBox txtSearchStart{*this, "txtSearchStart"};
    Label lblSearchRangeTo{*this, "lblSearchRangeTo"};
    TextBox txtSearchEnd{*this, "txtSearchEnd"};

    Frame fraMP3{*this, "fraMP3"};
    ControlArray<CheckBox> chkMP3{*this, "chkMP3", 1, 7};
    ControlArray<TextBox> txtMP3{*this, "txtMP3", 1, 6};
    ComboBox cboMP3Genre{*this, "cboMP3Genre", -1, ComboKind::List};

    Label lblEmpty{*this, "lblEmpty"};

    // Rename list and thumbnail view
    ListView lsvRename{*this, "lsvRename"};
    PictureBox picThumbnails{*this, "picThumbnails"};
    // The side box, where one picture is parked
    Shape shpThumbsSelC{*this, "shpThumbsSelC"};
    ImageBox imgThumbsC{*this, "imgThumbsC"};
    CommandButton cmdThumbsFind{*this, "cmdThumbsFind"};
    // The grid, in pixels, between two strips that scroll it during a drag
    Label lblThumbsSD{*this, "lblThumbsSD"}, lblThumbsSU{*this, "lblThumbsSU"};
    PictureBox picThumbs{*this, "picThumbs"};
    ScrollBar vsbThumbs{*this, "vsbThumbs"};
    // Cells from 1; those behind the first come and go with the window's size
    ControlArray<Shape> shpThumbsSel{*this, "shpThumbsSel", 1, 1};
    ControlArray<ImageBox> imgThumbs{*this, "imgThumbs", 1, 1};
    ControlArray<Label> lblThumbs{*this, "lblThumbs", 1, 1};
    // Pointers of a drag: 0 no drop, 1 left, 2 right, 3 up, 4 down, 5 drop
    ControlArray<ImageBox> imgDragIcon{*this, "imgDragIcon", 0, 5};
    // Where a picture is loaded and drawn at another size
    ImageBox imgOriginal{*this, "imgOriginal"};
    PictureBox picThumb{*this, "picThumb"};

    // Action panel
    PictureBox picAction{*this, "picAction"};
    Frame fraActControls{*this, "fraActControls"};
    ProgressBar prbAction{*this, "prbAction"};
    // 0 is the stage text, 1 to 3 the values behind lblAction
    ControlArray<Label> lblActionInfo{*this, "lblActionInfo", 0, 3};
    ControlArray<Label> lblAction{*this, "lblAction", 1, 3};
    CommandButton cmdActPause{*this, "cmdActPause"}, cmdActCancel{*this, "cmdActCancel"},
        cmdActDone{*this, "cmdActDone"};

    Timer tmrDateTimeClock{*this, "tmrDateTimeClock"};
    Timer tmrRedrawThumbs{*this, "tmrRedrawThumbs"}, tmrRefreshThumbs{*this, "tmrRefreshThumbs"};
    Timer tmrThumbsScrollD{*this, "tmrThumbsScrollD"}, tmrThumbsScrollU{*this, "tmrThumbsScrollU"};

private:
    // What frm_main_design.cpp sets, screen by screen.
    void DesignSelection();
    void DesignLists();
    void DesignThumbnails();
    void DesignPanels();
    void DesignActionPanel();
};

} // namespace tavo
