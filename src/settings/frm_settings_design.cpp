#include "settings/frm_settings.h"

namespace tavo {

namespace {

constexpr double gap = 120, rowPitch = 345, boxHeight = 315, buttonWidth = 1320, buttonHeight = 360;
constexpr double panelWidth = 8160, panelHeight = 5160;

struct PagePlan {
    const char *Key, *Caption;
};
constexpr PagePlan pages[] = {
    {"Defaults", "&Defaults"}, {"Templates", "&Templates"}, {"Favorites", "Fa&vorites"},
    {"Filters", "&Filters"},   {"Schemes", "&Schemes"},     {"Windows", "&Windows"},
};

struct ListPlan {
    const char *Column, *Label;
    int NameLength;
    int Box; // of its value
};
constexpr ListPlan lists[] = {
    {"", "", 0, 0}, // the page of the options has no list
    {"Filename:Ext", "File Name", 30, templateName},
    {"Path", "Path", 30, pageFavorites},
    {"Filter", "Filter", 20, pageFilters},
    {"Data", "Scheme", 30, pageSchemes},
    {"Data", "Data", 30, pageWindows},
};

struct OptionPlan {
    const char *Caption, *Tip;
};
constexpr OptionPlan options[FrmSettings::optionCount] = {
    {"Show in \"Send To\" Menu", ""},
    {"Save Window Position on Exit", ""},
    {"Save Defaults on Exit", ""},
    {"Show File Selector at Start Up", ""},
    {"Auto Set Digits", "Automatically Set Digit Field when other Fields Change"},
    {"Preserve List Order", "Number Files According to List Position"},
    {"Suppress Rename Warnings", ""},
    {"Suppress Undo Warnings", ""},
    {"Auto Select Next Single File on Rename", ""},
    {"Return Key Renames Single Files", ""},
    {"Create Thumbnails during Viewer Use", ""},
    {"Protect Extension on Auto Fill", ""},
    {"Close Action Panel after Renaming", ""},
};

// The options under their headings, from the top; -1 ends a group.
struct GroupPlan {
    const char* Caption;
    int Options[7];
};
constexpr GroupPlan groups[] = {
    {"General", {0, 1, 2, 3, 10, -1, -1}},
    {"Warnings", {6, 7, -1, -1, -1, -1, -1}},
    {"Renaming", {5, 8, 9, 12, -1, -1, -1}},
    {"Name and Number", {4, 11, -1, -1, -1, -1, -1}},
};

struct InsertPlan {
    const char *Caption, *Tip;
};
constexpr InsertPlan inserts[] = {
    {"Insert:", ""},
    {"<T>", "MP3 Title - Used by Renaming"},
    {"<AR>", "MP3 Artist - Used by Renaming"},
    {"<AL>", "MP3 Album - Used by Renaming"},
    {"<Y>", "MP3 Year - Used by Renaming"},
    {"<G>", "MP3 Genre - Used by Renaming"},
    {"<TR>", "MP3 Track - Used by Renaming"},
    {"<#>", "Number Counter - Used by Renaming"},
    {"<ON>", "Old Name - Used by Renaming"},
    {"<OE>", "Old Extension - Used by Renaming"},
    {"<E>", "Existing Text - Used by Template"},
    {"<ER>", "Existing Text (Remove Numbers) - Used by Template"},
};

void Put(Control& control, Control& holder, double left, double top, double width, double height)
{
    control.Container = &holder;
    control.Move(left, top, width, height);
}

} // namespace

void FrmSettings::DesignPages()
{
    Move(0, 0, panelWidth + 4 * gap, panelHeight + 1740);
    ataSettings.Move(gap, gap, panelWidth + gap, panelHeight + 480);
    ataSettings.AccessibleName = "Settings";
    for (int page = pageDefaults; page <= lastListPage; ++page) {
        Put(atpSettings[page], ataSettings, gap / 2, 420, panelWidth, panelHeight);
        ataSettings.AddPage(pages[page].Key, pages[page].Caption, atpSettings[page]);
    }
}

void FrmSettings::DesignDefaults()
{
    constexpr double width = 4560, height = panelHeight - 2 * gap, barWidth = 255;
    Put(picDefaults, atpSettings[pageDefaults], gap, gap, width, height);
    Put(vsbDefaults, atpSettings[pageDefaults], gap + width, gap, barWidth, height);
    fraDefaults.Container = &picDefaults;
    double top = gap;
    int group = 0;
    for (const GroupPlan& plan : groups) {
        Label& heading = lblDefault[group++];
        heading.Caption = std::string(plan.Caption);
        Put(heading, fraDefaults, gap, top, width - 2 * gap, 270);
        top += rowPitch;
        for (const int* option = plan.Options; *option >= 0; ++option) {
            CheckBox& box = chkSet[*option];
            box.Caption = std::string(options[*option].Caption);
            box.ToolTipText = std::string(options[*option].Tip);
            Put(box, fraDefaults, 2 * gap, top, width - 3 * gap, 270);
            top += rowPitch;
        }
        top += gap;
    }
    fraDefaults.Move(0, 0, width, top);
    vsbDefaults.SmallChange = static_cast<int>(rowPitch);
    vsbDefaults.AccessibleName = "Options";
}

void FrmSettings::DesignCaseWords()
{
    constexpr double left = 5055, width = panelWidth - left - gap, inner = width - 2 * gap;
    Put(fraCaseWord, atpSettings[pageDefaults], left, gap, width, panelHeight - 2 * gap);
    fraCaseWord.Caption = "Smart Case Word List";
    lblCaseWord.Caption = "Word";
    Put(lblCaseWord, fraCaseWord, gap, 300, inner, 255);
    Put(txtCaseWord, fraCaseWord, gap, 570, inner, boxHeight);
    cmdCWAdd.Caption = "&Add";
    Put(cmdCWAdd, fraCaseWord, gap, 1005, buttonWidth, buttonHeight);
    Put(lstCaseWord, fraCaseWord, gap, 1485, inner, 2835);
    cmdCWRemove.Caption = "&Remove";
    Put(cmdCWRemove, fraCaseWord, gap, 4440, buttonWidth, buttonHeight);
    txtCaseWord.AccessibleName = lblCaseWord.Caption;
    lstCaseWord.AccessibleName = fraCaseWord.Caption;
}

void FrmSettings::DesignListPage(int page)
{
    constexpr double side = panelWidth - buttonWidth - gap, listWidth = side - 2 * gap;
    constexpr double nameTop = 2940, dataTop = 3600;
    const ListPlan& plan = lists[page];
    Frame& panel = atpSettings[page];
    ListView& list = lsvSettings[page];
    Put(list, panel, gap, gap, listWidth, 2640);
    list.AddColumn({"Name", "Name", 2460, false, SortMark::None, false});
    list.AddColumn({plan.Column, plan.Column, 3600, false, SortMark::None, false});
    list.AccessibleName = pages[page].Key;
    cmdUp[page].Caption = "Up";
    cmdDown[page].Caption = "Down";
    Put(cmdUp[page], panel, side, gap, buttonWidth, buttonHeight);
    Put(cmdDown[page], panel, side, gap + 480, buttonWidth, buttonHeight);

    lblName[page].Caption = "Name";
    Put(lblName[page], panel, gap, nameTop, listWidth, 255);
    Put(txtName[page], panel, gap, nameTop + 255, listWidth, boxHeight);
    txtName[page].MaxLength = plan.NameLength;
    txtName[page].AccessibleName = lblName[page].Caption;
    lblData[plan.Box].Caption = plan.Label;
    Put(lblData[plan.Box], panel, gap, dataTop, listWidth, 255);
    Put(txtData[plan.Box], panel, gap, dataTop + 255, listWidth, boxHeight);
    txtData[plan.Box].AccessibleName = lblData[plan.Box].Caption;

    struct ButtonPlan {
        ControlArray<CommandButton>& Buttons;
        const char* Caption;
    };
    double top = nameTop;
    for (const ButtonPlan& button :
         {ButtonPlan{cmdAdd, "&Add"}, ButtonPlan{cmdUpdate, "&Update"},
          ButtonPlan{cmdRemove, "&Remove"}, ButtonPlan{cmdNew, "&Clear"}}) {
        button.Buttons[page].Caption = button.Caption;
        Put(button.Buttons[page], panel, side, top, buttonWidth, buttonHeight);
        top += 420;
    }
}

void FrmSettings::DesignTemplates()
{
    constexpr double dataTop = 3600, dataWidth = 3180, extLeft = dataWidth + 2 * gap;
    constexpr double modeLeft = 3960, insertTop = 4320;
    Frame& panel = atpSettings[pageTemplates];
    lblName[0].Caption = "Mode";
    lblName[0].ToolTipText = "Rename Mode for Template";
    Put(lblName[0], panel, modeLeft, 2940, 2520, 255);
    Put(cboMode, panel, modeLeft, 3195, 2520, boxHeight);
    for (const char* mode : {"Name & Number", "Search & Replace"})
        cboMode.AddItem(mode);
    cboMode.AccessibleName = lblName[0].Caption;
    txtName[pageTemplates].Width = modeLeft - 2 * gap;
    lblName[pageTemplates].Width = modeLeft - 2 * gap;
    lblData[templateName].Width = dataWidth;
    txtData[templateName].Width = dataWidth;
    lblData[templateExt].Caption = "Ext";
    Put(lblData[templateExt], panel, extLeft, dataTop, dataWidth, 255);
    Put(txtData[templateExt], panel, extLeft, dataTop + 255, dataWidth, boxHeight);
    txtData[templateExt].AccessibleName = lblData[templateExt].Caption;
    for (const auto& label : lblTmpInsert) {
        const int index = label->Index();
        label->Caption = std::string(inserts[index].Caption);
        label->ToolTipText = std::string(inserts[index].Tip);
        Put(*label, panel, gap + index * 545, insertTop, index == 0 ? 540 : 510, 255);
    }

    for (const int page : {pageFavorites, pageWindows})
        lblName[page].ToolTipText = "Click to Enter Path";
    txtData[pageSchemes].Locked = true;
    txtData[pageWindows].Locked = true;
    cmdEditScheme.Caption = "&Edit...";
    Put(cmdEditScheme, atpSettings[pageSchemes], gap, 4320, buttonWidth, buttonHeight);
}

void FrmSettings::DesignButtons()
{
    const double top = panelHeight + 780;
    double left = panelWidth + 2 * gap - 3 * (buttonWidth + gap) + gap;
    cmdOk.Caption = "OK";
    cmdCancel.Caption = "Cancel";
    cmdHelp.Caption = "&Help";
    for (CommandButton* button : {&cmdOk, &cmdCancel, &cmdHelp}) {
        button->Move(left, top, buttonWidth, buttonHeight);
        left += buttonWidth + gap;
    }
    DefaultButton = &cmdOk;
    CancelButton = &cmdCancel;
}

} // namespace tavo
