#pragma once

#include "platform/desktop.h"

#include <QElapsedTimer>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <string>

class QDialog;
class QWidget;

namespace tavo {

// The person in front of the screen, reached through Qt.
class QtDesktop : public Desktop {
public:
    explicit QtDesktop(Files& files) : files_(files) {}

    // The window of a form that is shown without waiting for its end.
    void AddWindow(Form& form, QWidget& window);
    // What makes such a window when its form is first shown, by the form's name.
    using WindowMaker = std::function<QWidget*(Form& form)>;
    void AddWindow(const std::string& formName, WindowMaker make);
    // What makes the dialog of a modal form, by the form's name.
    using DialogMaker = std::function<std::unique_ptr<QDialog>(Form& form, QWidget* owner)>;
    void AddDialog(const std::string& formName, DialogMaker make);

    // Asked in a turn of the pump: does the program only wait for the person?
    std::function<bool()> IsPaused;
    // Shows the menu of a menu tool.
    std::function<void(Tool& menu, int xTwips, int yTwips)> OnPopUp;
    // Lets the person choose a folder, over this window.
    std::function<std::optional<std::string>(const std::string& title, QWidget* owner)> OnBrowse;
    // Called in front of everything that lets the person see or do something.
    std::function<void()> BeforeShowing;

    // Is a call of the program under way that waits for the person, or pumps?
    bool IsInside() const { return inside_ > 0; }

    void DoEvents() override;
    void StillAlive() override;
    BoxAnswer MsgBox(const MessageBox& box) override;
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void SetForegroundWindow(Form& form) override;
    void PopUpMenu(Tool& menu, int xTwips, int yTwips) override;
    void SetPointer(Pointer pointer) override;
    double ScreenWidth() const override;
    double ScreenHeight() const override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;
    std::optional<std::string> SHBrowseForFolderA(const std::string& title) override;
    std::optional<std::string> GetSaveFileNameA(const SaveQuestion& question) override;
    bool ShellExecuteA(const std::string& verb, const std::string& address,
                       std::string& why) override;
    BitmapPtr LoadPicture(const std::string& path, PictureBound bound) override;
    BitmapPtr PaintPicture(const Bitmap& picture, int widthPixels, int heightPixels) override;
    SystemTime Now() override;
    void DragFiles(Control& source, const std::vector<std::string>& paths) override;

private:
    bool TurnIsDue();
    QWidget* FrontWindow() const;
    QWidget* WindowOf(Form& form);
    void RunDialog(Form& form, QDialog& dialog);

    Files& files_;
    std::map<const Form*, QPointer<QWidget>> windows_;
    std::map<std::string, WindowMaker> windowMakers_;
    std::map<std::string, DialogMaker> dialogs_;
    QElapsedTimer sinceTurn_;
    Form* modal_ = nullptr; // whose dialog is in front
    int inside_ = 0;
    bool busyPointer_ = false;
};

} // namespace tavo
