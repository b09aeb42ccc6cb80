#include "core/commands.h"

#include "core/command_handlers.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

constexpr auto button = ToolKind::Button;
constexpr auto toggle = ToolKind::Toggle;
constexpr auto menu = ToolKind::Menu;

// Id, kind, caption, description, tip, icon, shortcut, category, handler.
constexpr Command table[] = {
    // Menus
    {"ID_mnuFile", menu, "&File", "", "", "", "", "Menu", nullptr},
    {"ID_mnuEdit", menu, "&Edit", "", "", "", "", "Menu", nullptr},
    {"ID_mnuView", menu, "&View", "", "", "", "", "Menu", nullptr},
    {"ID_mnuRenMode", menu, "Re&name Mode", "", "", "", "", "Menu", nullptr},
    {"ID_mnuToolbars", menu, "&Toolbars", "", "", "", "", "Menu", nullptr},
    {"ID_mnuArrange", menu, "Arrange &Icons", "", "", "", "", "Menu", nullptr},
    {"ID_mnuViews", menu, "Views", "", "", "", "", "Menu", nullptr},
    {"ID_mnuFavorites", menu, "F&avorites", "", "", "", "", "Menu", nullptr},
    {"ID_mnuThumbnail", menu, "&Thumbnails", "", "", "", "", "Menu", nullptr},
    {"ID_mnuThumbCreate", menu, "&Create", "", "Create Thumbnails", "", "", "Menu", nullptr},
    {"ID_mnuThumbUpdate", menu, "&Update", "", "Update Thumbnails for All Items", "", "", "Menu",
     nullptr},
    {"ID_mnuCapAlign", menu, "Caption &Alignment", "", "", "", "", "Menu", nullptr},
    {"ID_mnuTSchemes", menu, "&Schemes", "", "", "", "", "Menu", nullptr},
    {"ID_mnuTemplates", menu, "Tem&plates", "", "", "", "", "Menu", nullptr},
    {"ID_mnuWindow", menu, "&Window", "", "", "", "", "Menu", nullptr},
    {"ID_mnuHelp", menu, "&Help", "", "", "", "", "Menu", nullptr},

    // File and edit
    {"ID_NewList", button, "&Select", "Creates a New Rename List", "Switch to Selection Mode",
     "folder-open", "", "File", Cmd_NewList},
    {"ID_CreateList", button, "&Rename", "Creates a New Rename List", "Switch to Rename Mode",
     "go-next", "", "File", Cmd_CreateList},
    {"ID_DefSave", button, "&Save Defaults", "Saves the Default Settings", "", "document-save", "",
     "File", Cmd_DefSave},
    {"ID_DefLoad", button, "&Load Defaults", "Loads the Saved Default Settings",
     "Load Default Settings", "document-open", "", "File", Cmd_DefLoad},
    {"ID_ExportList", button, "&Export Selection List", "Export List as Text File", "",
     "document-save-as", "", "File", Cmd_ExportList},
    {"ID_Exit", button, "E&xit", "Exits", "", "application-exit", "", "File", Cmd_Exit},
    {"ID_Undo", button, "Undo", "Undo the Last Cut, Copy or Paste", "", "edit-undo", "Ctrl+Z",
     "Edit", Cmd_EditUndo},
    {"ID_Cut", button, "Cu&t", "Removes the selected text and places it on the Clipboard", "",
     "edit-cut", "Ctrl+X", "Edit", Cmd_Cut},
    {"ID_Copy", button, "&Copy", "Copies the selected text to the Clipboard", "", "edit-copy",
     "Ctrl+C", "Edit", Cmd_Copy},
    {"ID_Paste", button, "&Paste",
     "Inserts the Contents of the Clipboard at the Insertion Point, and Replaces any Selection", "",
     "edit-paste", "Ctrl+V", "Edit", Cmd_Paste},
    {"ID_Settings", button, "&Settings...", "Display the Settings Form", "", "preferences-system",
     "", "Edit", Cmd_Settings},

    // Selection screen
    {"ID_SelAll", button, "Select &All", "Selects All Files in the Selection List",
     "Select All Files in File List", "edit-select-all", "Ctrl+A", "Selection", Cmd_SelAll},
    {"ID_SelInvert", button, "&Invert Selection",
     "Unselect the Selected Items and Select the Unselected Items.", "", "edit-select-invert", "",
     "Selection", Cmd_SelInvert},
    {"ID_SelClear", button, "C&lear Selection", "Clear the File List", "", "edit-clear", "",
     "Selection", Cmd_SelClear},
    {"ID_SelFolder", toggle, "Files", "Toggle File to Folder Renaming Support",
     "Enable\\Disable Folder Renaming", "folder", "", "Selection", Cmd_SelFolder},
    {"ID_SelSubFiles", button, "Get Subfolders", "Get Files from the Subfolders",
     "Get Files in Subfolders", "view-list-tree", "", "Selection", Cmd_SelSubFiles},
    {"ID_sFilter", ToolKind::Combo, "Filter", "Type New File Filter and Press Return to Apply", "",
     "view-filter", "", "Selection", nullptr},
    {"ID_SelUseFilter", button, "Use &Filter", "Apply the Current Filter", "", "view-filter", "",
     "Selection", Cmd_SelUseFilter},
    {"ID_FilAdd", button, "Add to Filters...", "Add to Filters...", "", "list-add", "", "Selection",
     Cmd_FilAdd},
    {"ID_SelPreviewOn", button, "Preview On", "Shows the Preview Image on the Selection Screen",
     "Show Image Preview Panel", "image-x-generic", "", "Selection", Cmd_PreviewOn},
    {"ID_SelPreviewOff", button, "Preview Off", "Hides the Preview Image on the Selection Screen",
     "Hide Image Preview Panel", "image-missing", "", "Selection", Cmd_PreviewOff},
    {"ID_SelUsePath", button, "Use &Path", "Apply User Path", "", "go-jump", "", "Selection",
     Cmd_SelUsePath},
    {"ID_sAddress", ToolKind::Edit, "Ad&dress:", "", "", "", "", "Selection", nullptr},
    {"ID_lblAddress:", ToolKind::Label, "Ad&dress:", "", "", "", "", "Selection", nullptr},

    // Rename screen
    {"ID_RenAll", button, "All", "Rename All the Files", "Rename All Items", "system-run", "",
     "Rename", Cmd_RenAll},
    {"ID_RenSelected", button, "Selected", "Rename Selected Files", "Rename Selected Items",
     "media-playback-start", "", "Rename", Cmd_RenSelected},
    {"ID_RenUndo", button, "Undo Rename", "Undo Last Rename Action", "Undo Last Rename",
     "edit-undo", "", "Rename", Cmd_RenUndo},
    {"ID_RefreshList", button, "&Refresh", "Refresh the Rename List by Removing Missing Files", "",
     "view-refresh", "", "Rename", Cmd_RefreshList},
    {"ID_SelDelete", button, "&Delete", "Remove the Selected Files",
     "Remove the Selected Items, Delete Files", "edit-delete", "", "Rename", Cmd_SelDelete},
    {"ID_SelGroup", button, "&Group", "Move the Selected Files Together as a Group",
     "Group Selected Items", "format-indent-more", "", "Rename", Cmd_SelGroup},
    {"ID_SelUp", button, "&Down", "Move the Selected Files Up", "Move Selected Items Down",
     "go-down", "", "Rename", Cmd_SelUp},
    {"ID_SelDown", button, "&Up", "Move the Selected Files Down", "Move Selected Items Up", "go-up",
     "", "Rename", Cmd_SelDown},
    {"ID_SelDistance", ToolKind::Edit, "Distance", "Distance used During Moving a Selected File",
     "Distance to Move Selected Items", "", "", "Rename", nullptr},
    {"ID_Views", ToolKind::DropDown, "&Views",
     "Click Button to Toggle Between Thumbnail and List, Click Down Arrow for List of Views", "",
     "view-list-details", "", "Rename", Cmd_Views},
    {"ID_ArrangeList", button, "&List", "Arrange", "", "view-list-text", "", "Rename",
     Cmd_ArrangeList},
    {"ID_ArrangeDetails", button, "&Details", "Arrange", "", "view-list-details", "", "Rename",
     Cmd_ArrangeDetails},
    {"ID_ArrangeThumb", button, "&Thumbnail", "", "", "view-list-icons", "", "Rename",
     Cmd_ArrangeThumb},
    {"ID_byName", button, "by &Name", "Sort List by Name", "", "", "", "Rename", Cmd_SortList},
    {"ID_byPath", button, "by &Path", "Sort List by Path", "", "", "", "Rename", Cmd_SortList},
    {"ID_byType", button, "by &Type", "Sort List by Type", "", "", "", "Rename", Cmd_SortList},
    {"ID_bySize", button, "by &Size", "Sort List by Size", "", "", "", "Rename", Cmd_SortList},
    {"ID_byDate", button, "by &Date", "Sort List by Modified Time and  Date", "", "", "", "Rename",
     Cmd_SortList},
    {"ID_byUndoName", button, "by &UndoName", "Sort List by Undo Name", "", "", "", "Rename",
     Cmd_SortList},
    {"ID_byError", button, "by &Error", "Sort List by Error", "", "", "", "Rename", Cmd_SortList},
    {"ID_Viewer", button, "&Viewer", "Show the Image Viewer", "Show Image Viewer",
     "image-x-generic", "", "Rename", Cmd_Viewer},
    {"ID_ViewerUp", toggle, "Update Viewer",
     "Update the Image Displayed in the Viewer when a File is Selected",
     "Show Large Image in Viewer on Item Selection", "zoom-fit-best", "", "Rename", Cmd_ViewerUp},
    {"ID_AutoFill", toggle, "Fill", "Rename Fields are Auto Filled when a Listitem is Clicked.",
     "Auto Fill Information when Listitem is Clicked", "insert-text", "", "Rename", Cmd_AutoFill},
    {"ID_RenameList", ToolKind::Combo, "Re&name List", "", "", "", "", "Rename", nullptr},
    {"ID_Attributes", button, "&Attributes", "Rename Mode Attributes",
     "View / Set Attributes ( Archive, Hidden, System, Read Only )", "", "", "Rename",
     Cmd_RenameMode},
    {"ID_ChangeCase", button, "&Change Case", "Change Case ( UPPER, lower, Smart )", "", "", "",
     "Rename", Cmd_RenameMode},
    {"ID_DateTime", button, "&Date && Time", "View / Set Date and Time", "", "", "", "Rename",
     Cmd_RenameMode},
    {"ID_MoveCopy", button, "&Move && Copy", "Move and Copy Files to New Location", "", "", "",
     "Rename", Cmd_RenameMode},
    {"ID_NameNumber", button, "&Name && Number",
     "Change Name and Extension ( Number, Prefix, Suffix )", "", "", "", "Rename", Cmd_RenameMode},
    {"ID_SearchReplace", button, "&Search && Replace", "Search and Replace", "", "", "", "Rename",
     Cmd_RenameMode},
    {"ID_MP3Tag", button, "MP3 &Tag ( ID3v1.1 )", "Edit the Music File MP3 ID3v1.1 Version Tag", "",
     "", "", "Rename", Cmd_RenameMode},

    // Templates, favourites, windows and toolbars
    {"ID_TmpApply", button, "Apply Current Template", "Apply Selected Template", "Apply Template",
     "insert-text", "", "Templates", Cmd_TmpApply},
    {"ID_TmpApplySel", toggle, "Apply on Selection", "Apply Current Template on Selection",
     "Apply Template on Selection", "", "", "Templates", Cmd_TmpApplySel},
    {"ID_TmpOrg", button, "&Organize Templates...", "", "", "", "", "Templates", Cmd_TmpOrg},
    {"ID_FavAdd", button, "&Add to Favorites...", "Add the Current Path to the Favorites List", "",
     "bookmark-new", "", "Favorites", Cmd_FavAdd},
    {"ID_FavOrganize", button, "&Organize Favorites...", "Edit the Favorites List", "", "", "",
     "Favorites", Cmd_FavOrganize},
    {"ID_WinAdd", button, "&Add to Windows...", "", "", "window-new", "", "Windows", Cmd_WinAdd},
    {"ID_WinOrganize", button, "&Organize Windows...", "", "", "", "", "Windows", Cmd_WinOrganize},
    {"ID_DefaultSize", button, "&Default Size", "", "", "", "", "Windows", Cmd_DefaultSize},
    {"ID_tbAddress", toggle, "&Address", "", "", "", "", "Toolbars", Cmd_AddressBar},
    {"ID_tbTextLabels", toggle, "&Text Labels", "Displays Text Labels under Toolbar Buttons",
     "Display Text Labels under Toolbar Buttons", "", "", "Toolbars", Cmd_TextLabels},
    {"ID_HelpContents", button, "&Help Topics", "Open the Help File", "", "help-contents", "",
     "Help", Cmd_HelpContents},
    {"ID_HelpIndex", button, "&Index...", "Open the Help File in Search Mode", "", "", "", "Help",
     Cmd_HelpIndex},
    {"ID_About", button, "&About", "Shows the About Form", "", "help-about", "", "Help", Cmd_About},

    // Thumbnails
    {"ID_ThumbLayout", button, "&Editor...", "Edit Thumbnail Layout", "", "", "", "Thumbnails",
     Cmd_ThumbLayout},
    {"ID_ThumbClear", button, "Clea&r", "Clear the Thumbnail Buffer", "", "edit-clear", "",
     "Thumbnails", Cmd_ThumbClear},
    {"ID_ThumbCreateAll", button, "&All Items", "Create Thumbnails for All Items", "", "", "",
     "Thumbnails", Cmd_ThumbCreateAll},
    {"ID_ThumbCreateSel", button, "&Selected Items", "Create Thumbnails for Selected Items", "", "",
     "", "Thumbnails", Cmd_ThumbCreateSel},
    {"ID_ThumbUpdateAll", button, "&All Items", "Update all the Thumbnails", "", "", "",
     "Thumbnails", Cmd_ThumbUpdateAll},
    {"ID_ThumbUpdateSel", button, "&Selected Items", "Update Thumbnails for Selected Items", "", "",
     "", "Thumbnails", Cmd_ThumbUpdateSel},
    {"ID_ThumbCaption", button, "&Show Captions", "Hide/Show the Caption Text under the Thumbnails",
     "", "", "", "Thumbnails", Cmd_ThumbCaption},
    {"ID_AlignLeft", toggle, "&Left", "Aligns the Thumbnail Caption to the Left", "",
     "format-justify-left", "", "Thumbnails", Cmd_Align},
    {"ID_AlignRight", toggle, "&Right", "Aligns the Thumbnail Caption to the Right", "",
     "format-justify-right", "", "Thumbnails", Cmd_Align},
    {"ID_AlignCenter", toggle, "&Center", "Centers the Thumbnail Caption", "",
     "format-justify-center", "", "Thumbnails", Cmd_Align},
    {"ID_TSchemesOrg", button, "&Organize Schemes...", "", "", "", "", "Thumbnails",
     Cmd_TSchemesOrg},
    {"ID_TSchemesAdd", button, "&Create New Scheme...", "", "", "", "", "Thumbnails",
     Cmd_SchemeAdd},
    {"ID_TSchemesDef", button, "&Default Scheme", "", "", "", "", "Thumbnails", Cmd_SchemeDefault},

    // On the toolbar object, but nothing acts on them
    {"ID_ThumbShow", button, "Show &Thumbnails", "Show Thumbnails", "", "", "", "Inert", nullptr},
    {"ID_ListShow", button, "Show &List", "Show Rename List", "", "", "", "Inert", nullptr},
    {"ID_ArrangeLarge", button, "Lar&ge Icons", "", "", "", "", "Inert", nullptr},
    {"ID_ArrangeSmall", button, "S&mall Icons", "", "", "", "", "Inert", nullptr},
    {"ID_ph#", button, "<#>", "Number Place Holder", "Insert Number Place Holder", "", "", "Inert",
     nullptr},
    {"ID_phON", button, "<ON>", "Old Name Place Holder", "Insert Old Name Place Holder", "", "",
     "Inert", nullptr},
    {"ID_phOE", button, "<OE>", "Old Extension Place Holder", "Insert Old Extension Place Holder",
     "", "", "Inert", nullptr},
    {"ID_mnuAlign", menu, "Align", "", "", "", "", "Inert", nullptr},
    {"ID_mnuCaption", menu, "Captions", "", "", "", "", "Inert", nullptr},
    {"ID_Wizard", button, "&Wizard", "Start Rename Wizard", "Rename Wizards", "", "", "Inert",
     nullptr},
};

} // namespace

std::span<const Command> Commands()
{
    return table;
}

const Command* Command_Find(std::string_view id)
{
    const auto* row = std::ranges::find(table, id, &Command::Id);
    return row == std::end(table) ? nullptr : row;
}

} // namespace tavo
