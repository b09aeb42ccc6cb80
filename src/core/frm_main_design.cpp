#include "core/frm_main.h"

#include "core/state.h"
#include "core/tag_genres.h"
#include "renamelist/templates.h"

namespace tavo {

namespace {

constexpr double boxHeight = 330, labelHeight = 270, rowHeight = 360;
constexpr std::int32_t linkColour = static_cast<std::int32_t>(0x8000000D);

struct Place {
    double Left = 0, Top = 0, Width = 0, Height = 0;
};

void Put(Control& control, Control& container, const Place& place)
{
    control.Container = &container;
    control.Move(place.Left, place.Top, place.Width, place.Height);
}

// A control with a text on it, as a panel shows it.
template <class T>
void Put(T& control, Control& container, const Place& place, std::string_view caption,
         std::string_view tip = "")
{
    Put(control, container, place);
    control.Caption = std::string(caption);
    control.ToolTipText = std::string(tip);
}

struct Entry {
    int Index;
    Place At;
    std::string_view Caption, Tip;
};

template <class T, std::size_t Count>
void Put(ControlArray<T>& array, Control& container, const Entry (&entries)[Count])
{
    for (const Entry& entry : entries)
        Put(array[entry.Index], container, entry.At, entry.Caption, entry.Tip);
}

// A label that does something when it is clicked looks like it.
void MarkAsLink(Label& label)
{
    label.ForeColor = linkColour;
}

constexpr Entry attributeBoxes[] = {
    {0, {120, 120, 1500, 300}, "Archive", "Mark File for Backup"},
    {1, {1620, 120, 1500, 300}, "Read-Only", "Prohibit File from being Changed"},
    {2, {3120, 120, 1500, 300}, "System", "File Belongs to Operating System"},
    {3, {4620, 120, 1500, 300}, "Hidden", "Hide the File from View"},
};

void Attributes_Design(FrmMain& f)
{
    Put(f.fraAttribCtr, f.ctlRbRenMode[modeAttributes], {240, 90, 6240, 540});
    Put(f.chkAttr, f.fraAttribCtr, attributeBoxes);
}

constexpr Entry caseOptions[] = {
    {1, {120, 90, 1620, 300}, "UPPER CASE", "Change All Letters to UPPER CASE"},
    {2, {120, 450, 1620, 300}, "lower case", "Change All Letters to lower case"},
    {3, {120, 810, 1620, 300}, "Smart Case", "Change Letter Case based on User Template"},
};

void Case_Design(FrmMain& f)
{
    Put(f.fraCaseCtr, f.ctlRbRenMode[modeCase], {240, 60, 6240, 1200});
    Put(f.optCase, f.fraCaseCtr, caseOptions);
    Put(f.linCase1, f.fraCaseCtr, {1860, 90, 15, 1020});
    Put(f.chkCaseFirst, f.fraCaseCtr, {1980, 90, 1800, 300}, "Capitalize 1st",
        "Capitalize the First Letter");
    Put(f.chkCaseWord, f.fraCaseCtr, {1980, 450, 1800, 300}, "Use Word List",
        "Replace Matching Words with Words in Case Word List");
    Put(f.linCase2, f.fraCaseCtr, {3840, 90, 15, 1020});
    Put(f.lblCaseSmart, f.fraCaseCtr, {3960, 90, 2160, labelHeight}, "Precede Capital Letters");
    for (int i = 1; i <= 6; ++i) {
        Put(f.txtCasePreCap[i], f.fraCaseCtr, {3960.0 + (i - 1) * rowHeight, 450, 300, boxHeight});
        f.txtCasePreCap[i].ToolTipText = "Letters following this Letter will be Capitalized";
        f.txtCasePreCap[i].MaxLength = 1;
        f.txtCasePreCap[i].AccessibleName = "Precede Capital Letters " + std::to_string(i);
    }
}

constexpr Entry timeChecks[] = {
    {1, {120, 90, 1800, 300}, "Created", "Click to Update Created Time"},
    {2, {2160, 90, 1800, 300}, "Modified", "Click to Update Modified Time"},
    {3, {4200, 90, 1800, 300}, "Accessed", "Click to Update Accessed Time"},
};
constexpr Entry timeLabels[] = {
    {1, {120, 450, 780, 270}, "mm/dd/yyyy", "Click for Now"},
    {2, {120, 810, 780, 270}, "hh:mm:ss AM", "Click for Now"},
    {3, {2160, 450, 780, 270}, "mm/dd/yyyy", "Click for Now"},
    {4, {2160, 810, 780, 270}, "hh:mm:ss PM", "Click for Now"},
    {5, {4200, 450, 780, 270}, "mm/dd/yyyy", "Click for Now"},
};
constexpr std::string_view timeBoxNames[] = {"Created date", "Created time", "Modified date",
                                             "Modified time", "Accessed date"};
constexpr std::string_view datePattern = "##/##/####", timePattern = "##:##:## ??";

void DateTime_Design(FrmMain& f)
{
    Put(f.fraDTCtr, f.ctlRbRenMode[modeDateTime], {240, 60, 6240, 1200});
    Put(f.chkDateTime, f.fraDTCtr, timeChecks);
    Put(f.lblDateTime, f.fraDTCtr, timeLabels);
    for (int i = 1; i <= 5; ++i) {
        const Label& label = f.lblDateTime[i];
        Put(f.txtDateTime[i], f.fraDTCtr,
            {label.Left + label.Width + 60, label.Top - 30, 1080, boxHeight});
        f.txtDateTime[i].SetMask(std::string(i == 2 || i == 4 ? timePattern : datePattern));
        f.txtDateTime[i].AccessibleName = std::string(timeBoxNames[i - 1]);
        MarkAsLink(f.lblDateTime[i]);
    }
}

constexpr Entry moveOptions[] = {
    {1, {120, 120, 900, 300}, "Move", "Move Files to a New Location"},
    {2, {120, 480, 900, 300}, "Copy", "Make a Second Copy of the File at a New Location"},
};
constexpr Entry moveLabels[] = {
    {0, {1140, 120, 900, 270}, "Copy To", ""},
    {1, {1140, 480, 900, 270}, "Favorites", ""},
};

void MoveCopy_Design(FrmMain& f)
{
    Frame& panel = f.ctlRbRenMode[modeMoveCopy];
    Put(f.optmcdMode, panel, moveOptions);
    Put(f.lblmcd, panel, moveLabels);
    Put(f.txtmcdPath, panel, {2100, 90, 3900, boxHeight});
    Put(f.cmdmcdPath, panel, {6120, 90, 360, boxHeight}, "...");
    Put(f.cbomcdPath, panel, {2100, 450, 3900, boxHeight});
    f.txtmcdPath.AccessibleName = "Destination folder";
    f.cmdmcdPath.AccessibleName = "Browse for the destination folder";
    f.cbomcdPath.AccessibleName = "Favorites";
}

constexpr Entry nameLabels[] = {
    {nnName, {120, 120, 960, 270}, "Name", ""},
    {nnExt, {120, 480, 960, 270}, "Extension", ""},
};
constexpr Entry counterLabels[] = {
    {nnStartBox, {0, 90, 600, 270}, "Start", "Click to Reset Start Value"},
    {nnDigitsBox, {1740, 90, 600, 270}, "Digits", "Click to Automatically Set Digits Value"},
};
constexpr Entry styleOptions[] = {
    {1, {3660, 60, 780, 300}, "1, 2", "Number Counter"},
    {2, {4440, 60, 780, 300}, "a, b", "Letter Counter Small Case"},
    {3, {5220, 60, 780, 300}, "A, B", "Letter Counter Upper Case"},
};

void InsertLabels_Design(FrmMain& f)
{
    constexpr double top = 450, width = 480;
    Put(f.lblTmpInsert[0], f.fraNNCtr, {0, top, 600, labelHeight}, "Insert:");
    int index = 1;
    for (const TemplateToken& token : Template_Tokens()) {
        const double left = 660 + (index - 1) * width;
        Put(f.lblTmpInsert[index], f.fraNNCtr, {left, top, width, labelHeight}, token.Token,
            token.Tip);
        MarkAsLink(f.lblTmpInsert[index++]);
    }
    for (; index < tmplCurrentLabel; ++index) {
        f.lblTmpInsert[index].Container = &f.fraNNCtr;
        f.lblTmpInsert[index].Visible = false;
    }
    Label& current = f.lblTmpInsert[tmplCurrentLabel];
    Put(current, f.fraNNCtr, {5040, top, 1440, labelHeight}, "Empty",
        "Click to Apply Current Template");
    current.Tag = "0";
    MarkAsLink(current);
}

void NameNumber_Design(FrmMain& f)
{
    Frame& panel = f.ctlRbRenMode[modeNameNumber];
    Put(f.lblNameNum, panel, nameLabels);
    Put(f.txtNameNum[nnName], panel, {1140, 90, 5460, boxHeight});
    Put(f.txtNameNum[nnExt], panel, {1140, 450, 5460, boxHeight});
    Put(f.fraNNCtr, panel, {120, 840, 6480, 780});
    Put(f.lblNameNum, f.fraNNCtr, counterLabels);
    Put(f.txtNameNum[nnStartBox], f.fraNNCtr, {660, 60, 960, boxHeight});
    Put(f.txtNameNum[nnDigitsBox], f.fraNNCtr, {2400, 60, 480, boxHeight});
    Put(f.lblNNStyle, f.fraNNCtr, {3060, 90, 540, labelHeight}, "Style");
    Put(f.optNNStyle, f.fraNNCtr, styleOptions);
    InsertLabels_Design(f);
    for (const auto& label : f.lblNameNum)
        f.txtNameNum[label->Index()].AccessibleName = label->Caption;
    MarkAsLink(f.lblNameNum[nnStartBox]);
    MarkAsLink(f.lblNameNum[nnDigitsBox]);
}

constexpr Entry searchTypes[] = {
    {1, {120, 120, 900, 300}, "Text", "Search and Replace based on the Text"},
    {2, {120, 480, 900, 300}, "Range", "Search and Replace based on a Location"},
};
constexpr Entry searchModes[] = {
    {1, {4920, 60, 1560, 300}, "Name", "Only Search and Replace in Name"},
    {2, {4920, 360, 1560, 300}, "Extension", "Only Search and Replace in Extension"},
    {3, {4920, 660, 1560, 300}, "Name and Extension", "Search and Replace both Name and Extension"},
};
constexpr Entry rangeLabels[] = {
    {0, {1140, 120, 840, 270}, "Range", ""},
    {1, {3900, 120, 960, 270}, "Len:", ""},
};

void SearchReplace_Design(FrmMain& f)
{
    Frame& panel = f.ctlRbRenMode[modeSearchReplace];
    Put(f.optSearchType, panel, searchTypes);
    Put(f.optSearchMode, panel, searchModes);
    Put(f.lblSearchFind, panel, {1140, 120, 840, labelHeight}, "Search");
    Put(f.txtSearchFind, panel, {2040, 90, 1620, boxHeight});
    Put(f.chkSearchCase, panel, {3720, 90, 1140, 300}, "Match Case",
        "When Searching, Match Words Exactly based on Case");
    Put(f.lblSearchRange, panel, rangeLabels);
    Put(f.txtSearchStart, panel, {2040, 90, 600, boxHeight});
    Put(f.lblSearchRangeTo, panel, {2700, 120, 300, labelHeight}, "to");
    Put(f.txtSearchEnd, panel, {3060, 90, 600, boxHeight});
    Put(f.lblSearchReplace, panel, {1140, 1020, 840, labelHeight}, "Replace");
    Put(f.txtSearchReplace, panel, {2040, 990, 4560, boxHeight});
    f.txtSearchFind.AccessibleName = "Search";
    f.txtSearchReplace.AccessibleName = "Replace";
    f.txtSearchStart.AccessibleName = "First position";
    f.txtSearchEnd.AccessibleName = "Last position";
    // Range is the other type; its boxes lie where those of Text stand.
    for (Control* control :
         std::initializer_list<Control*>{&f.lblSearchRange[0], &f.lblSearchRange[1],
                                         &f.txtSearchStart, &f.lblSearchRangeTo, &f.txtSearchEnd})
        control->Visible = false;
}

struct TagField {
    std::string_view Caption;
    int MaxLength;
};
constexpr TagField tagFields[] = {{"Title", 30}, {"Artist", 30}, {"Album", 30}, {"Comment", 29},
                                  {"Year", 4},   {"Track", 3},   {"Genre", 0}};

void Mp3Tag_Design(FrmMain& f)
{
    constexpr double left = 1260, width = 5160;
    constexpr int genre = 7;
    Put(f.fraMP3, f.ctlRbRenMode[modeMp3Tag], {120, 60, 6480, 2580});
    for (int i = 1; i <= genre; ++i) {
        const TagField& field = tagFields[i - 1];
        const double top = (i - 1) * rowHeight + 30;
        Put(f.chkMP3[i], f.fraMP3, {60, top, 1140, 300}, field.Caption,
            "Check to Update this Item");
        Control& box = i == genre ? static_cast<Control&>(f.cboMP3Genre) : f.txtMP3[i];
        Put(box, f.fraMP3, {left, top, width, boxHeight});
        box.AccessibleName = std::string(field.Caption);
        if (i != genre)
            f.txtMP3[i].MaxLength = field.MaxLength;
    }
    for (const std::string_view genreName : Tag_Genres())
        f.cboMP3Genre.AddItem(std::string(genreName));
}

// What each panel needs of the window's height, by mode.
constexpr double panelHeights[] = {720, 1320, 1320, 900, 1680, 1380, 2700, 600};

} // namespace

void FrmMain::DesignPanels()
{
    for (const auto& panel : ctlRbRenMode) {
        panel->Visible = false;
        panel->Move(0, 0, 6732, panelHeights[panel->Index()]);
    }
    Attributes_Design(*this);
    Case_Design(*this);
    DateTime_Design(*this);
    MoveCopy_Design(*this);
    NameNumber_Design(*this);
    SearchReplace_Design(*this);
    Mp3Tag_Design(*this);
    Put(lblEmpty, ctlRbRenMode[modeEmpty], {240, 150, 6240, labelHeight},
        "The list is empty. Press Select, pick files, and press Rename.");
}

} // namespace tavo
