#pragma once

#include <string_view>

namespace tavo {

class Control;
class Program;
class Tool;

// Takes back the last edit of a text box; any other control, or none, is passed
// over.
void Edit_Undo(Control* control);
// "Cut", "Copy" or "Paste" in the active control of the main window, where that
// is a box with a text.
void Edit_Clip(Program& p, std::string_view op);

// What the tools of the command table do. Each takes the tool that was
// clicked: a toggle stands as it does after the click.

// File, edit and windows (command_handlers_file.cpp)
void Cmd_NewList(Program& p, Tool& tool);
void Cmd_CreateList(Program& p, Tool& tool);
void Cmd_DefSave(Program& p, Tool& tool);
void Cmd_DefLoad(Program& p, Tool& tool);
void Cmd_ExportList(Program& p, Tool& tool);
void Cmd_Exit(Program& p, Tool& tool);
void Cmd_EditUndo(Program& p, Tool& tool);
void Cmd_Cut(Program& p, Tool& tool);
void Cmd_Copy(Program& p, Tool& tool);
void Cmd_Paste(Program& p, Tool& tool);
void Cmd_DefaultSize(Program& p, Tool& tool);
void Cmd_AddressBar(Program& p, Tool& tool);
void Cmd_TextLabels(Program& p, Tool& tool);
void Cmd_HelpContents(Program& p, Tool& tool);
void Cmd_HelpIndex(Program& p, Tool& tool);
void Cmd_About(Program& p, Tool& tool);

// Selection screen (command_handlers_select.cpp)
void Cmd_SelAll(Program& p, Tool& tool);
void Cmd_SelInvert(Program& p, Tool& tool);
void Cmd_SelClear(Program& p, Tool& tool);
void Cmd_SelFolder(Program& p, Tool& tool);
void Cmd_SelSubFiles(Program& p, Tool& tool);
void Cmd_SelUseFilter(Program& p, Tool& tool);
void Cmd_SelUsePath(Program& p, Tool& tool);
void Cmd_PreviewOn(Program& p, Tool& tool);
void Cmd_PreviewOff(Program& p, Tool& tool);

// Rename screen (command_handlers_rename.cpp)
void Cmd_RenAll(Program& p, Tool& tool);
void Cmd_RenSelected(Program& p, Tool& tool);
void Cmd_RenUndo(Program& p, Tool& tool);
void Cmd_RefreshList(Program& p, Tool& tool);
void Cmd_SelDelete(Program& p, Tool& tool);
void Cmd_SelGroup(Program& p, Tool& tool);
void Cmd_SelUp(Program& p, Tool& tool);
void Cmd_SelDown(Program& p, Tool& tool);
void Cmd_Views(Program& p, Tool& tool);
void Cmd_ArrangeList(Program& p, Tool& tool);
void Cmd_ArrangeDetails(Program& p, Tool& tool);
void Cmd_ArrangeThumb(Program& p, Tool& tool);
void Cmd_SortList(Program& p, Tool& tool);
void Cmd_Viewer(Program& p, Tool& tool);
void Cmd_ViewerUp(Program& p, Tool& tool);
void Cmd_AutoFill(Program& p, Tool& tool);
void Cmd_RenameMode(Program& p, Tool& tool);
void Cmd_TmpApply(Program& p, Tool& tool);
void Cmd_TmpApplySel(Program& p, Tool& tool);

// Thumbnails (command_handlers_thumbs.cpp)
void Cmd_ThumbLayout(Program& p, Tool& tool);
void Cmd_ThumbClear(Program& p, Tool& tool);
void Cmd_ThumbCreateAll(Program& p, Tool& tool);
void Cmd_ThumbCreateSel(Program& p, Tool& tool);
void Cmd_ThumbUpdateAll(Program& p, Tool& tool);
void Cmd_ThumbUpdateSel(Program& p, Tool& tool);
void Cmd_ThumbCaption(Program& p, Tool& tool);
void Cmd_Align(Program& p, Tool& tool);
void Cmd_SchemeAdd(Program& p, Tool& tool);
void Cmd_SchemeDefault(Program& p, Tool& tool);

// What opens the settings (command_handlers_settings.cpp). Refused while a long
// operation is under way.
void Cmd_Settings(Program& p, Tool& tool);
void Cmd_FavAdd(Program& p, Tool& tool);
void Cmd_FilAdd(Program& p, Tool& tool);
void Cmd_WinAdd(Program& p, Tool& tool);
void Cmd_FavOrganize(Program& p, Tool& tool);
void Cmd_TmpOrg(Program& p, Tool& tool);
void Cmd_WinOrganize(Program& p, Tool& tool);
void Cmd_TSchemesOrg(Program& p, Tool& tool);

} // namespace tavo
