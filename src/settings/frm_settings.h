#pragma once

#include "toolkit/buttons.h"
#include "toolkit/combo_box.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/list_box.h"
#include "toolkit/list_view.h"
#include "toolkit/panels.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/tab_strip.h"
#include "toolkit/text_box.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tavo {

class Program;

// The pages of the settings, by the index that a list page's controls share.
enum SettingsPage {
    pageDefaults = 0,
    pageTemplates = 1,
    pageFavorites = 2,
    pageFilters = 3,
    pageSchemes = 4,
    pageWindows = 5,
};
inline constexpr int firstListPage = pageTemplates, lastListPage = pageWindows;

// The value box of a list page; a template has a second one, templateExt.
inline constexpr int templateName = 0, templateExt = 1;

// A new row that a caller lays into the boxes of a list page.
struct SettingsProposal {
    std::string Name, Data;
    std::string Caption; // of the dialog; empty leaves its own
};

// Shows the settings modally over the main window, with this page in front.
// With a proposal they are adding: its texts stand in the boxes as they are,
// and no row does, so that nothing asks for it until the person adds it.
// Refused while a long operation is under way, and while they are up already.
void Settings_Open(Program& p, SettingsPage page,
                   const std::optional<SettingsProposal>& proposal = std::nullopt);

// All options and the five lists, edited on copies until OK. All that lies on
// its pages counts as visible, whichever page is in front.
class FrmSettings : public Form {
public:
    explicit FrmSettings(Program& p);

    static constexpr int optionCount = 13;

    // Pages have the keys "Defaults", "Templates", "Favorites", "Filters",
    // "Schemes" and "Windows"; atpSettings are their panels, by SettingsPage.
    TabStrip ataSettings{*this, "ataSettings"};
    ControlArray<Frame> atpSettings{*this, "atpSettings", 0, lastListPage};

    // Page Defaults: the options, in a frame that scrolls within its box
    PictureBox picDefaults{*this, "picDefaults"};
    Frame fraDefaults{*this, "fraDefaults"};
    ControlArray<Label> lblDefault{*this, "lblDefault", 0, 3};
    ControlArray<CheckBox> chkSet{*this, "chkSet", 0, optionCount - 1};
    ScrollBar vsbDefaults{*this, "vsbDefaults"};
    // and the words of Smart Case
    Frame fraCaseWord{*this, "fraCaseWord"};
    Label lblCaseWord{*this, "lblCaseWord"};
    TextBox txtCaseWord{*this, "txtCaseWord"};
    CommandButton cmdCWAdd{*this, "cmdCWAdd"};
    ListBox lstCaseWord{*this, "lstCaseWord"};
    CommandButton cmdCWRemove{*this, "cmdCWRemove"};

    // The list pages, by SettingsPage
    ControlArray<ListView> lsvSettings{*this, "lsvSettings", firstListPage, lastListPage};
    ControlArray<CommandButton> cmdUp{*this, "cmdUp", firstListPage, lastListPage};
    ControlArray<CommandButton> cmdDown{*this, "cmdDown", firstListPage, lastListPage};
    // 0 is the label of cboMode
    ControlArray<Label> lblName{*this, "lblName", 0, lastListPage};
    ComboBox cboMode{*this, "cboMode", -1, ComboKind::List};
    ControlArray<TextBox> txtName{*this, "txtName", firstListPage, lastListPage};
    // 0 and 1 are the two of a template
    ControlArray<Label> lblData{*this, "lblData", 0, lastListPage};
    ControlArray<TextBox> txtData{*this, "txtData", 0, lastListPage};
    CommandButton cmdEditScheme{*this, "cmdEditScheme"};
    // 0 "Insert:", then the tokens
    ControlArray<Label> lblTmpInsert{*this, "lblTmpInsert", 0, 11};
    ControlArray<CommandButton> cmdAdd{*this, "cmdAdd", firstListPage, lastListPage};
    ControlArray<CommandButton> cmdUpdate{*this, "cmdUpdate", firstListPage, lastListPage};
    ControlArray<CommandButton> cmdRemove{*this, "cmdRemove", firstListPage, lastListPage};
    ControlArray<CommandButton> cmdNew{*this, "cmdNew", firstListPage, lastListPage};

    CommandButton cmdOk{*this, "cmdOk"}, cmdCancel{*this, "cmdCancel"}, cmdHelp{*this, "cmdHelp"};

    // 0 the word list, then the list pages: something of it was changed.
    std::array<bool, lastListPage + 1> ListDirty{};
    // A box of the page in front was edited since it was filled.
    bool ItemDirty = false;
    // The list page in front and the row in its boxes (from 1); -1 for none.
    int CurPage = -1, CurRow = -1;
    // The program fills boxes: no edit of a person.
    bool Filling = false;

    // Fits the bar of the options to the sizes of frame and box: for a host
    // whose fonts need others.
    void Defaults_Scroll_Measure();

private:
    // What frm_settings_design.cpp sets, page by page.
    void DesignPages();
    void DesignDefaults();
    void DesignCaseWords();
    void DesignListPage(int page);
    void DesignTemplates();
    void DesignButtons();
};

} // namespace tavo
