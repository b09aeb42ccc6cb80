#pragma once

#include "core/state.h"
#include "settings/frm_settings.h"

#include <string>
#include <string_view>

namespace tavo {

// What happens on the list pages of the settings, all on p.Settings(). A page
// goes by its index, a row by its position from 1.

// A list page: the named list behind it, its section of the settings file, and
// the short name that its rows' icons go by.
struct SettingsList {
    SettingsPage Page;
    NamedList SharedState::*List;
    std::string_view Section, ShortName;
};
// In the order in which they are filled and saved.
const std::array<SettingsList, 5>& Settings_ListPages();

// Makes the list anew from the named list: rows 1 and up, the first one
// selected.
void Settings_List_Fill(ListView& list, const NamedList& items, std::string_view shortName);
// Makes the named list anew from the rows; its element 0 stays.
void Settings_List_Read(const ListView& list, NamedList& items);

void Settings_Pages_Wire(Program& p, FrmSettings& form);
void Settings_Pages_Fill(Program& p);
// Empties all boxes.
void Settings_Boxes_Clear(Program& p);

// What coming to a page does: its selected row into the boxes, the focus to its
// name box.
void Settings_Page_Show(Program& p);
void Settings_Page_Focus(Program& p);
// Lays a proposal into the boxes of the page in front.
void Settings_Proposal_Show(Program& p, const SettingsProposal& proposal);

// Rows and what shows them (settings_rows.cpp).
// Makes this row the only selected one.
void Settings_Row_Select(ListView& list, int row);
// The selected row into the boxes; without one they stay.
void Settings_Row_Show(Program& p, int page);
// The same by a person, who is asked first about what stands there unsaved.
void Settings_Row_Click(Program& p, int page);
// Swaps the selected row with its neighbour above (-1) or below (1).
void Settings_Row_Move(Program& p, int page, int direction);
// By the number of rows and the place of the selected one.
void Settings_Buttons_Set(Program& p, int page);
// Stores the boxes in a row, unless the name is empty or another row's: then it
// tells so.
void Settings_Row_Update(Program& p, int page, int row);
// Asks whether the row in the boxes is to be updated, and does so.
void Settings_Item_Ask(Program& p);

// The text that the value boxes of a page stand for, and back into them.
// A text as one line of the file: a pasted end of a line would begin another
// one there, and with it another key or section.
std::string Settings_Line(std::string text);
std::string Settings_Value_Get(const FrmSettings& form, int page);
void Settings_Value_Show(FrmSettings& form, int page, const std::string& value);

// Filters and clean-up of the boxes (settings_boxes.cpp).
void Settings_Boxes_Wire(Program& p, FrmSettings& form);

// Shows a text in a box without passing for an edit.
void Settings_Box_Fill(FrmSettings& form, TextBox& box, const std::string& text);

} // namespace tavo
