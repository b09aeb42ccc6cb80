#include "core/start_up.h"

#include "core/layout.h"
#include "core/screens.h"
#include "core/tools.h"
#include "core/windows.h"
#include "renamelist/act_run.h"
#include "selection/paths.h"
#include "selection/selection_screen.h"
#include "settings/settings_file.h"
#include "thumbnails/thumb_grid.h"
#include "toolkit/text.h"
#include "viewer/frm_viewer.h"

#include <array>

namespace tavo {

namespace {

constexpr double defaultWidthPixels = 800, defaultHeightPixels = 600;
constexpr std::int32_t smallestWidth = 6732;
constexpr double smallestHeight = 5250;
constexpr double captionTwips = 252; // of the first thumbnail

// The order in which the sections of the settings file are read. Templates
// come before Defaults, which names one of them.
constexpr std::array<std::string_view, 9> sectionsInOrder = {
    "CaseWordList", "Favorites", "Filters",  "Templates", "ThumbSchemes",
    "Windows",      "Defaults",  "Settings", "Position"};

// And in which they are written. The word list is not among them: it is
// written where it is edited, and nowhere else.
constexpr std::array<std::string_view, 7> sectionsToSave = {
    "Defaults", "Settings", "Templates", "Favorites", "Filters", "ThumbSchemes", "Windows"};

void State_Begin(SharedState& state)
{
    state.PrevMode = modeEmpty;
    state.CurScreen = screenNone;
    state.ResizeOn = state.MainAlive = state.ActReady = true;
    state.ClockFlag = false;
    state.Gif = 0;
    state.DragX = state.DragY = state.SplitX = state.SplitY = noDrag;
}

std::string Settings_File(Program& p)
{
    const std::string own = Ini_OwnFile(p);
    return File_Exists(p.files, own) ? own : p.state.AppFolder + "Default.ini";
}

void Sizes_Begin(Program& p)
{
    SharedState& s = p.state;
    const double twips = p.desktop.TwipsPerPixel();
    s.WinDefaultH = static_cast<std::int32_t>(defaultHeightPixels * twips);
    s.WinDefaultW = static_cast<std::int32_t>(defaultWidthPixels * twips);
    s.ClientW = s.ClientH = 0;
    s.MinWidth = smallestWidth;
    s.MinHeight =
        static_cast<std::int32_t>(smallestHeight - p.main.FrameHeight() - p.main.stbMain.Height);
}

// All screens lie on top of each other.
void Screens_Stack(FrmMain& main)
{
    for (const auto& panel : main.ctlRbRenMode)
        panel->Move(0, 0, panel->Width, panel->Height);
    for (Control* control : std::initializer_list<Control*>{&main.picThumbnails, &main.fraSelect})
        control->Move(0, 0, control->Width, control->Height);
}

// A folder that was looked for has lost its separator: it comes back when the
// tree reports it.
void CommandLine_Take(Program& p)
{
    SharedState& s = p.state;
    std::string folder = Command_Folder(p.info.CommandText, p.files.Rules());
    if (!folder.empty())
        s.StartPath = Folder_Exists(p.files, folder) ? folder : "";
    else
        s.StartPath = Folder_Exists(p.files, s.CurFile) ? s.CurFile : s.AppFolder;
}

void FirstScreen_Show(Program& p)
{
    if (p.state.ShowFile == 1) {
        Sel_Open(p, p.state.StartPath);
        return;
    }
    Screen_Show(p, screenRename, false);
    List_SetEmptyState(p);
}

// -- Keys of the form, which sees them before its controls.

bool Return_Renames(Program& p)
{
    const SharedState& s = p.state;
    const bool onList = s.CurScreen == screenRename || s.CurScreen == screenThumbnails;
    return onList && s.RetRename == 1 && p.main.lsvRename.SelCount() == 1;
}

void Form_KeyDown(Program& p, Key& key)
{
    if (key.Code == keyEscape) {
        p.state.ActCancel = true;
    } else if (key.Code == keyReturn && Return_Renames(p)) {
        key.Code = keyNone;
        Act_Run(p, actSelected);
    } else if (key.Code == 'D' && (key.Shift & shiftAlt) != 0) {
        key.Code = keyNone;
        if (TextBox* box = Tool_Box(p, "ID_sAddress"))
            box->SetFocus();
    }
}

// A close in the midst of a long operation ends that, and waits for it.
void Form_QueryUnload(Program& p, bool& keep)
{
    if (!p.Busy())
        return;
    p.state.ActCancel = true;
    p.state.ActPaused = false;
    p.ClosePending = true;
    keep = true;
}

} // namespace

std::string Command_Folder(std::string_view commandText, const PathRules& rules)
{
    std::string text(commandText);
    const std::string separator(1, rules.Separator);
    // A path from the root is taken as it is: there ":" and doubled separators
    // are parts of names like any other.
    const bool fromRoot = rules.Separator == '/' && text.starts_with('/');
    if (!text.empty() && !fromRoot) {
        int position = InStrRev(text, ":");
        if (position == 0)
            position = InStrRev(text, separator + separator);
        text = Right(text, Len(text) - position + 2);
    }
    if (InStr(text, ".") > 0)
        text = Left(text, InStrRev(text, separator));
    return text;
}

void Cols_Init(Program& p)
{
    struct Place {
        std::string_view Key;
        std::uint8_t SharedState::*Number;
    };
    static constexpr Place places[] = {
        {"Name", &SharedState::colName},         {"Path", &SharedState::colPath},
        {"Size", &SharedState::colSize},         {"Type", &SharedState::colType},
        {"Modified", &SharedState::colModified}, {"UndoName", &SharedState::colUndoName},
        {"Errors", &SharedState::colErrors}};
    for (const Place& place : places) {
        const int column = p.main.lsvRename.ColumnByKey(place.Key);
        if (column >= 0)
            p.state.*place.Number = static_cast<std::uint8_t>(column);
    }
}

void Form_Load(Program& p)
{
    SharedState& s = p.state;
    State_Begin(s);
    s.AppFolder = Path_AddSlash(p.info.AppFolder, p.files.Rules());
    s.CurFile = s.AppFolder;
    const std::string file = Settings_File(p);
    p.main.SetCaption(Title_Get(modeNone));
    Sizes_Begin(p);
    Screens_Stack(p.main);
    p.main.lblThumbs[1].Height = captionTwips / p.desktop.TwipsPerPixel();
    for (const std::string_view section : sectionsInOrder)
        Ini_Load(p, std::string(section), file);
    Thumb_Scheme_TakeUp(p);
    Cols_Init(p);
    CommandLine_Take(p);
    FirstScreen_Show(p);
}

void Form_Activate(Program& p)
{
    p.main.Refresh();
}

void Form_Unload(Program& p)
{
    const std::string file = Ini_OwnFile(p);
    {
        const ProfileSave save(p.profile, file);
        if (p.state.SaveDef == 1)
            for (const std::string_view section : sectionsToSave)
                Ini_Save(p, std::string(section), file);
        if (p.state.SavePos == 1)
            Ini_Save(p, "Position", file);
    }
    p.state.MainAlive = false;
    // From now on it does not only hide.
    if (FrmViewer* viewer = Viewer_Find(p))
        viewer->Unload();
}

void Main_Wire(Program& p)
{
    FrmMain& main = p.main;
    const Collation order = p.files.Rules().WordSort ? Collation::WordSort : Collation::CodePoint;
    main.lsvSelMain.Order = main.lsvRename.Order = order;
    main.Load = [&p] { Form_Load(p); };
    main.QueryUnload = [&p](bool& keep) { Form_QueryUnload(p, keep); };
    main.Unloaded = [&p] { Form_Unload(p); };
    main.Resize = [&p] { Form_Resize(p); };
    main.Activate = [&p] { Form_Activate(p); };
    main.KeyDown = [&p](Key& key) { Form_KeyDown(p, key); };
    main.tmrDateTimeClock.Tick = [&p] { Clock_Show(p); };
}

} // namespace tavo
