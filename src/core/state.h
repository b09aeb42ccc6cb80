#pragma once

#include "platform/files.h"
#include "thumbnails/thumb_look.h"
#include "toolkit/bitmap.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace tavo {

// The four screens of the main window.
enum Screen : std::int16_t {
    screenNone = -1,
    screenSelection = 0,
    screenRename = 1,
    screenThumbnails = 2,
    screenAction = 3,
};

// What a run does to the rows. `modeEmpty` is never chosen by the user.
enum RenameMode : std::int16_t {
    modeAttributes = 0,
    modeCase = 1,
    modeDateTime = 2,
    modeMoveCopy = 3,
    modeNameNumber = 4,
    modeSearchReplace = 5,
    modeMp3Tag = 6,
    modeEmpty = 7,
};

// One entry of a named list: a favourite, filter, template, scheme or layout.
struct NamedItem {
    std::string Name, Data;
};

// A growing list whose rows count from 1; element 0 holds a built-in entry or
// stays empty.
using NamedList = std::vector<NamedItem>;

// The last index of a named list.
inline int List_Last(const NamedList& list)
{
    return static_cast<int>(list.size()) - 1;
}

// A window's place: twips, and the state (0 normal, 1 minimised, 2 maximised).
struct WindowPos {
    std::int32_t Left = 0, Top = 0, Width = 0, Height = 0;
    std::int16_t State = 0;
};

inline constexpr std::int32_t noDrag = 2147483647;

// Everything that the program remembers while it runs. The first block mirrors
// the settings file, each variable under its key's name and with the width
// that the file's format lays down; `settings/settings_table.h` ties the two
// together.
struct SharedState {
    // Section Settings
    std::int16_t SavePos = 0, SaveDef = 0;
    std::uint8_t actClose = 0;
    std::int16_t ShowFile = 0, SetDigits = 0, PreList = 0;
    std::uint8_t ProExt = 0;
    std::int16_t SupWarnRen = 0, SupWarnUndo = 0, AutoSelNext = 0;
    std::uint8_t AutoThumbs = 0;
    std::int16_t RetRename = 0;

    // Section Defaults
    std::int16_t RenMode = 0;
    std::int32_t ColViewWin = 0;
    std::string Scheme;
    std::uint8_t Gif = 0;
    std::uint8_t tbsAddress = 0, tbsTextLabels = 0, tbtTextLabels = 0, tbvTextLabels = 0;
    std::uint8_t SelPreview = 0;
    std::uint8_t ccMode = 0, ccCap = 0, ccWord = 0;
    std::array<std::string, 7> ccTemp; // 1 to 6
    std::uint8_t nnStyle = 0;          // 1 number, 2 small letters, 3 capital letters
    std::string nnStart;               // the counter's start, as text
    std::int16_t nnDigits = 0;         // the counter's width
    std::int16_t nnAppTmpDef = 0;
    std::uint8_t nnAppTmp = 0, nnAutoFill = 0;
    std::uint8_t srMode = 0, srMatchCase = 0, srType = 0;
    std::uint8_t dtCreate = 0, dtMod = 0, dtAccess = 0;
    std::uint8_t mcdMode = 0;
    std::uint8_t lsvView = 0;

    // Named lists
    NamedList Favorites{1}, Filters{1}, Templates{1}, ThumbSchemes{1}, Windows{1};
    std::vector<std::string> CaseWordList{1}; // words from 1

    // The rest of the shared variables
    std::string AppFolder; // with its separator at the end
    std::string StartPath, Filter = "*.*", CurFile;
    std::int16_t CurScreen = screenNone, PrevMode = modeEmpty;
    std::int32_t RenCount = 0;
    bool ResizeOn = true, MainAlive = true;
    std::uint8_t SelFolderMode = 0;
    std::int16_t DeleteChoice = 0;
    std::int32_t WinDefaultW = 0, WinDefaultH = 0;
    WindowPos MainPos, ViewerPos;
    std::uint8_t colName = 0, colPath = 0, colSize = 0, colType = 0, colModified = 0,
                 colUndoName = 0, colErrors = 0;

    // Fields of the main window
    bool ActCancel = false, ActReady = true, ActPaused = false, ClockFlag = false;
    std::int32_t DragX = noDrag, DragY = noDrag, SplitX = noDrag, SplitY = noDrag;
    // A folder that the tree reports is walked, unless the one who set the
    // tree is about to walk it.
    bool TreeWalks = true;
    std::int32_t MinWidth = 6732, MinHeight = 0, ClientW = 0, ClientH = 0;

    // What is under way and must not answer to its own doing: a change of
    // screen, a mode that puts itself into its box, a filter box being filled.
    bool ScreenChanging = false, ModeShowing = false, FilterFilling = false;

    // The run driver
    bool ActShow = false;
    std::int16_t ActPrevView = 0;
    std::string ActSavedInfo;
    std::int32_t LastRows = 0;
    std::int16_t LastMode = 0;
    bool RenFailed = false;
    std::int32_t RenErrCode = 0;
    bool ListDragging = false;

    // The thumbnails: their look (with the key ThumbCaption as its CaptionShown),
    // the pictures by slot (slot 0 stays empty), and the grid as it fits.
    tavo::ThumbLook ThumbLook;
    std::vector<BitmapPtr> ThumbBuffer{1};
    std::int16_t Columns = 0, Rows = 0, Cells = 0;
    // The fixed end of a range, and the row of the last press.
    std::int16_t SelAnchor = 0;
    std::int32_t LastRow = 0;

    // The viewer: natural size of its picture in pixels, where a drag of it
    // began, what is done to small and to large pictures, and which way the
    // slide show goes.
    std::int32_t ImgWidth = 0, ImgHeight = 0, PanX = 0, PanY = 0;
    bool ViewEnlarge = false, ViewShrink = false, ShowForward = false;

    // What goes to and fro between the colour selector and its callers.
    std::int32_t ColorCurrent = 0, ColorDefault = 0;
    bool ColorCustom = false;
    // And to and fro between the settings and the editor of a scheme.
    bool SchemeEditMode = false;
    std::string SchemeEditText;

    // The live preview. CurRow is the text of the selected row's position.
    bool PreviewOn = false;
    std::string CurRow, OldName, OldExt, FullName;
    // Which of the boxes had the focus last: txtNameNum(0) or (1).
    std::int16_t NameBoxFocus = 0;
    // And of the tag's fields (1 to 7) and the date boxes (their index + 10).
    std::int16_t FieldFocus = 0;
    // The start box is being rewritten by its own change.
    bool StartBoxGuard = false;
};

// One of the texts in ccTemp, 1 to 6.
struct CaseTemp {
    std::size_t Index = 0;
};

// One of the look's colours, 0 to 5.
struct LookColor {
    std::size_t Index = 0;
};

// A shared variable by its name, for the settings and the console. Several
// names may stand for one variable.
struct Variable {
    std::string_view Name;
    std::variant<std::uint8_t SharedState::*, std::int16_t SharedState::*,
                 std::int32_t SharedState::*, bool SharedState::*, std::string SharedState::*,
                 CaseTemp, std::int16_t ThumbLook::*, bool ThumbLook::*, LookColor>
        Where;
};

// Calls `use` with the variable itself.
template <class State, class Use>
decltype(auto) Variable_Use(State& state, const Variable& variable, Use&& use)
{
    return std::visit(
        [&](auto where) -> decltype(auto) {
            using Where = decltype(where);
            if constexpr (std::is_same_v<Where, CaseTemp>)
                return use(state.ccTemp[where.Index]);
            else if constexpr (std::is_same_v<Where, LookColor>)
                return use(state.ThumbLook.Color[where.Index]);
            else if constexpr (std::is_same_v<
                                   Where,
                                   std::int16_t
                                       ThumbLook::*> || std::is_same_v<Where, bool ThumbLook::*>)
                return use(state.ThumbLook.*where);
            else
                return use(state.*where);
        },
        variable.Where);
}

const std::vector<Variable>& Variables();
// Null when no variable has this name (case matters).
const Variable* Variable_Find(std::string_view name);
// Its value as the console prints it.
std::string Variable_Text(const SharedState& state, const Variable& variable);

} // namespace tavo
