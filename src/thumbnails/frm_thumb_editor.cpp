#include "thumbnails/frm_thumb_editor.h"

#include "core/commands.h"
#include "core/frm_main.h"
#include "core/program.h"
#include "core/windows.h"
#include "thumbnails/thumb_editor_parts.h"

namespace tavo {

namespace {

constexpr double formWidth = 6600, formHeight = 4200;
constexpr double gap = 120, previewSize = 2880;
constexpr double chipSize = 300, chipPitch = 420, firstChip = 300;
constexpr double buttonWidth = 1200, buttonHeight = 420;

constexpr std::string_view borderWidths[] = {"2", "3", "4", "5", "6", "7", "8", "9"};

// By ThumbColor.
constexpr std::string_view colorCaptions[] = {"Normal Border",        "Selected Border - Active",
                                              "Thumbnail Background", "Caption Text",
                                              "Caption Background",   "Window Background"};

// The settings open it for a record, the main window for all else.
const Form& Owner_Of(Program& p)
{
    const Form* settings = p.state.SchemeEditMode ? p.FindForm("frmSettings") : nullptr;
    return settings && settings->Loaded() ? *settings : p.main;
}

} // namespace

FrmThumbEditor::FrmThumbEditor(Program& p) : Form("frmThumbEditor")
{
    SetCaption("Thumbnail Editor");
    Bars_Build(atbThumbs, Editor_Commands(), Editor_Bands());
    Design(p);
    DesignColors();
    Wire(p);
    WireTools(p);
}

void FrmThumbEditor::Design(Program& p)
{
    Form::Move(0, 0, formWidth, formHeight);
    picPreview.Move(gap, gap, previewSize, previewSize);
    picPreview.TwipsPerPixel = imgPreview.TwipsPerPixel = p.desktop.TwipsPerPixel();
    picPreview.PixelScale = true;
    picPreview.AccessibleName = "Preview";
    for (Control* inside : std::initializer_list<Control*>{&shpPreview, &imgPreview, &lblPreview})
        inside->Container = &picPreview;
    imgPreview.Stretch = true;
    imgPreview.Picture = PictureRef::OfIcon('P', largeIconPixels);
    lblPreview.Caption = "Name.Ext";
    for (Control* unseen : std::initializer_list<Control*>{&imgOriginal, &picThumb})
        unseen->Visible = false;
    const double top = formHeight - gap - buttonHeight;
    cmdOk.Caption = "&OK";
    cmdOk.Move(formWidth - 2 * (buttonWidth + gap), top, buttonWidth, buttonHeight);
    cmdCancel.Caption = "&Cancel";
    cmdCancel.Move(formWidth - buttonWidth - gap, top, buttonWidth, buttonHeight);
    DefaultButton = &cmdOk;
    CancelButton = &cmdCancel;
    Tool& border = *atbThumbs.Find("ID_BorderWidth");
    border.Combo()->SetStyle(ComboKind::List);
    for (const std::string_view width : borderWidths)
        border.Combo()->AddItem(std::string(width));
    for (const auto* id : {"ID_BorderWidth", "ID_Width", "ID_Height"}) {
        Tool& tool = *atbThumbs.Find(id);
        tool.Box->AccessibleName = tool.Caption.Get();
    }
}

void FrmThumbEditor::DesignColors()
{
    fraColor.Caption = "Colors";
    const double left = gap + previewSize + gap;
    fraColor.Move(left, gap, formWidth - left - gap, previewSize);
    for (int i = 0; i <= picColor.High(); ++i) {
        const double top = firstChip + i * chipPitch;
        picColor[i].Container = lblColor[i].Container = &fraColor;
        picColor[i].Move(gap, top, chipSize, chipSize);
        lblColor[i].Move(gap + chipSize + gap, top, 2400, chipSize);
        lblColor[i].Caption = std::string(colorCaptions[i]);
        lblColor[i].ToolTipText = "Click to Set Default Color";
        picColor[i].AccessibleName = std::string(colorCaptions[i]);
    }
}

void FrmThumbEditor::Wire(Program& p)
{
    Load = [this, &p] {
        Win_CenterOwner(Owner_Of(p), *this);
        Editor_Open(p, *this);
    };
    imgPreview.Click = [this] {
        ShowNormal = !ShowNormal;
        Thumb_Editor_Preview(*this);
    };
    for (int i = 0; i <= picColor.High(); ++i) {
        picColor[i].Click = [this, &p, i] { Editor_Chip_Click(p, *this, i); };
        lblColor[i].Click = [this, i] { Editor_Label_Click(*this, i); };
    }
    cmdOk.Click = [this, &p] { Editor_Ok(p, *this); };
    cmdCancel.Click = [this] { Unload(); };
}

void FrmThumbEditor::WireTools(Program& p)
{
    atbThumbs.ToolClick = [&p](Tool& tool) { Editor_Tool_Click(p, tool); };
    // There is one list.
    atbThumbs.ToolComboClick = [this](Tool&) { Editor_Border_Take(*this); };
    atbThumbs.ToolKeyPress = [this](Tool& tool, int& key) {
        Editor_Tool_KeyPress(*this, tool, key);
    };
    atbThumbs.ToolLostFocus = [this](Tool& tool) { Editor_Tool_LostFocus(*this, tool); };
}

void Thumb_Editor_Show(Program& p)
{
    FrmThumbEditor& editor = p.ThumbEditor();
    if (!editor.Loaded())
        p.desktop.ShowModal(editor);
}

} // namespace tavo
