#pragma once

#include "platform/files.h"
#include "toolkit/bitmap.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tavo {

class Control;
class Form;
class Timer;
class Tool;

enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxButtons { Ok, OkCancel, YesNo };
enum class BoxAnswer { Ok, Cancel, Yes, No };

// A message box. `Default` is the button that Return presses; where nothing is
// said it is the first one.
struct MessageBox {
    std::string Text, Caption;
    BoxIcon Icon = BoxIcon::None;
    BoxButtons Buttons = BoxButtons::Ok;
    BoxAnswer Default = BoxAnswer::Ok;
};

enum class Pointer { Default = 0, Busy = 11 };

// The port to the person in front of the screen. A host implements it; the
// program calls it and nothing else of the host.
class Desktop {
public:
    virtual ~Desktop() = default;

    // Lets everything that waits happen: keys, mouse, timers, painting. May
    // call back into the program at any depth.
    virtual void DoEvents() = 0;
    // Paints and answers the window system, but takes no input.
    virtual void StillAlive() = 0;

    virtual BoxAnswer MsgBox(const MessageBox& box) = 0;

    // Shows the form; ShowModal returns when the form is gone (Form::Unload).
    virtual void Show(Form& form) = 0;
    virtual void ShowModal(Form& form) = 0;
    virtual void SetForegroundWindow(Form& form) = 0;
    // Brings up the menu of `menu` at a point of the tool's face, in twips.
    virtual void PopUpMenu(Tool& menu, int xTwips, int yTwips) = 0;
    virtual void SetPointer(Pointer pointer) = 0;

    // The screen's size, in twips, and how many twips a pixel has.
    virtual double ScreenWidth() const = 0;
    virtual double ScreenHeight() const = 0;
    virtual double TwipsPerPixel() const { return 15; }

    virtual std::string ClipboardText() = 0;
    virtual void SetClipboardText(const std::string& text) = 0;

    // Lets the person choose a folder; none when nothing was chosen.
    virtual std::optional<std::string> SHBrowseForFolderA(const std::string& title) = 0;

    // Lets the person choose where to save a file, and asks before an existing
    // one is taken. The filter names a kind of files and, behind NUL, their
    // pattern. None when nothing was chosen.
    struct SaveQuestion {
        std::string Title, Filter, DefaultExtension;
    };
    virtual std::optional<std::string> GetSaveFileNameA(const SaveQuestion& question) = 0;

    // Hands an address to the desktop's opener with a verb such as "open".
    // False, with a text a user can read in `why`, when that failed.
    virtual bool ShellExecuteA(const std::string& verb, const std::string& address,
                               std::string& why) = 0;

    // The pictures that are shown are no larger than this; 0 for their own size.
    struct PictureBound {
        int WidthPixels = 0, HeightPixels = 0;
    };
    // Reads a picture, upright. It has its own size whatever the bound: that
    // only lets the host keep fewer dots of it. Null for a file that cannot be
    // read as a picture.
    virtual BitmapPtr LoadPicture(const std::string& path, PictureBound bound) = 0;
    // Draws it smoothly on an empty surface of this size; null when there is no
    // memory for that, or no size.
    virtual BitmapPtr PaintPicture(const Bitmap& picture, int widthPixels, int heightPixels) = 0;

    // The local time now.
    virtual SystemTime Now() = 0;

    // Starts a drag of files out of `source`; comes back when it has ended.
    virtual void DragFiles(Control& source, const std::vector<std::string>& paths) = 0;
};

} // namespace tavo
