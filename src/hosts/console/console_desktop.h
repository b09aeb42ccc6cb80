#pragma once

#include "platform/desktop.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tavo::console {

class Session;

// One answer that waits for a box or a dialog.
struct Answer {
    std::string Word; // OK, Cancel, Yes, No, path
    std::string Path;
};

// The desktop of a person who works by lines: boxes are answered from a queue,
// nothing is painted, and what would have been shown or opened is kept to be
// asked for.
class ConsoleDesktop : public Desktop {
public:
    struct BoxRecord {
        MessageBox Box;
        BoxAnswer Answered;
    };
    struct Opened {
        std::string Verb, Address;
    };

    void Attach(Session* session) { session_ = session; }

    void DoEvents() override;
    void StillAlive() override {}
    BoxAnswer MsgBox(const MessageBox& box) override;
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void SetForegroundWindow(Form& form) override;
    void PopUpMenu(Tool& menu, int xTwips, int yTwips) override;
    void SetPointer(Pointer pointer) override { PointerNow = pointer; }
    double ScreenWidth() const override;
    double ScreenHeight() const override;
    std::string ClipboardText() override { return Clipboard; }
    void SetClipboardText(const std::string& text) override { Clipboard = text; }
    std::optional<std::string> SHBrowseForFolderA(const std::string& title) override;
    std::optional<std::string> GetSaveFileNameA(const SaveQuestion& question) override;
    bool ShellExecuteA(const std::string& verb, const std::string& address,
                       std::string& why) override;
    BitmapPtr LoadPicture(const std::string& path, PictureBound bound) override;
    BitmapPtr PaintPicture(const Bitmap& picture, int widthPixels, int heightPixels) override;
    SystemTime Now() override;
    void DragFiles(Control& source, const std::vector<std::string>& paths) override;

    // The forms that are up, the front one last.
    const std::vector<Form*>& Forms();
    Form* Front();
    // A form that was hidden leaves the front to the one behind it.
    void FollowFront();

    std::deque<Answer> Answers;
    std::vector<BoxRecord> Boxes;
    std::vector<Opened> OpenedNow;
    std::vector<std::string> Dragged;
    std::string Clipboard;
    Pointer PointerNow = Pointer::Default;
    // Where the drag under way will be let go; null for outside.
    Control* DropTarget = nullptr;

private:
    void BringToFront(Form& form);
    std::optional<std::string> Path_Ask(const std::string& title);

    Session* session_ = nullptr;
    std::vector<Form*> forms_;
    Form* active_ = nullptr; // the front one that has been told so
};

std::string Answer_Name(BoxAnswer answer);
std::string Buttons_Name(BoxButtons buttons);
std::string Icon_Name(BoxIcon icon);

} // namespace tavo::console
