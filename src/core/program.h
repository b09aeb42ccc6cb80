#pragma once

#include "core/state.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/profile.h"
#include "toolkit/event.h"

#include <memory>
#include <string>
#include <string_view>

namespace tavo {

class FrmAbout;
class FrmColor;
class FrmDelete;
class FrmExportDir;
class FrmMain;
class FrmSettings;
class FrmThumbEditor;
class FrmThumbResize;
class FrmViewer;

inline constexpr std::string_view appTitle = "Tavo";
inline constexpr std::string_view appVersion = "1.0";

// What a start of the program is given.
struct StartInfo {
    std::string AppFolder;   // with its separator at the end
    std::string CommandText; // the raw command line
};

// One running Tavo: its ports, its shared state, its forms. Two may live side
// by side. The main window is made at once and loaded by Start; the other forms
// are made when first asked for.
class Program {
    std::unique_ptr<FrmMain> mainForm_;

public:
    Program(Files& files, Profile& profile, Desktop& desktop, StartInfo info);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Files& files;
    Profile& profile;
    Desktop& desktop;
    const StartInfo info;

    SharedState state;
    FrmMain& main;

    // Loads the main window and shows it. A host has bound its widgets before.
    void Start();
    // Every host calls this when a command or an event of the person has come
    // back to where nothing of the program runs: a close that waited for a
    // long operation is carried out now. The main window is then no longer
    // loaded, and the host leaves.
    void Settle();

    FrmDelete& Delete();
    FrmColor& Color();
    FrmThumbResize& ThumbResize();
    FrmThumbEditor& ThumbEditor();
    FrmExportDir& ExportDir();
    FrmSettings& Settings();
    FrmAbout& About();
    FrmViewer& Viewer();
    // Null while it is not in sight.
    FrmViewer* ViewerInSight() const;
    // A form that is up or has been, by its name; null when there is none.
    Form* FindForm(std::string_view name) const;
    // Those that are loaded, in the order of their making.
    std::vector<Form*> LoadedForms() const;

    // The rows of the rename list are others: a host or a screen above may
    // have to draw them anew.
    Event<> RowsRedrawn;
    // And there are more or fewer of them.
    Event<> RowsCounted;
    // A click on a row begins: the viewer follows.
    Event<int> RowTaken;
    // And has shown the row (the thumbnails follow).
    Event<int> RowShown;

    // Shows a message box with the program's caption.
    BoxAnswer Say(const std::string& text, BoxIcon icon, BoxButtons buttons = BoxButtons::Ok,
                  BoxAnswer fallback = BoxAnswer::Ok);

    // True while a run, a load, a walk or the like is under way.
    bool Busy() const { return busy_ > 0; }
    // A close came in the midst of one and waits for Settle.
    bool ClosePending = false;

private:
    friend class LongOperation;
    std::vector<Form*> Forms() const;

    int busy_ = 0;
    std::unique_ptr<FrmDelete> deleteForm_;
    std::unique_ptr<FrmColor> colorForm_;
    std::unique_ptr<FrmThumbResize> thumbResizeForm_;
    std::unique_ptr<FrmThumbEditor> thumbEditorForm_;
    std::unique_ptr<FrmExportDir> exportForm_;
    std::unique_ptr<FrmSettings> settingsForm_;
    std::unique_ptr<FrmAbout> aboutForm_;
    std::unique_ptr<FrmViewer> viewerForm_;
};

// Holds the right to the one long operation for as long as it lives. Tests
// false when another one is under way: the caller then leaves.
class LongOperation {
public:
    explicit LongOperation(Program& program);
    ~LongOperation();
    LongOperation(const LongOperation&) = delete;
    LongOperation& operator=(const LongOperation&) = delete;
    explicit operator bool() const { return mine_; }

private:
    Program& program_;
    bool mine_;
};

// Shows the hourglass while it lives.
class BusyPointer {
public:
    explicit BusyPointer(Program& program);
    ~BusyPointer();
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Program& program_;
};

} // namespace tavo
