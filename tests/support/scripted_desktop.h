#pragma once

#include "platform/desktop.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tavo {

// A person and a screen made of a script. What the program asks is answered
// from queues that a test fills beforehand, and all that it does is written
// down. What cannot go on as scripted (a modal form that nobody expected or
// that is still there in the end, an answer that the box has no button for, a
// wait that never ends) fails the running test.
class ScriptedDesktop : public Desktop {
public:
    // -- The script

    // Answers the next message box that has no answer yet; with none left a
    // box gets its default button.
    void Answer(BoxAnswer answer) { answers_.push_back(answer); }

    using FormStep = std::function<void(Form&)>;
    // What the person does with the next modal form. The form must be gone
    // when it comes back.
    void OnModal(FormStep step) { modalSteps_.push_back(std::move(step)); }

    using Step = std::function<void()>;
    // Runs at the `turn`th DoEvents from the very first one, counted on
    // through calls made from inside a step.
    void At(int turn, Step step);
    // Runs at every DoEvents, behind the steps of that turn; it gets the
    // number of the turn. Turns made from inside it do not run it again.
    std::function<void(int turn)> EachTurn;
    // A program that waits for longer than this is stopped for good.
    int MostTurns = 50'000'000;

    std::function<void(Tool&)> OnPopUp;
    std::function<void()> OnDrag; // while the drag goes on

    // What is chosen in a folder dialog; none is Cancel. And its titles so far.
    std::optional<std::string> FolderChoice;
    std::vector<std::string> FolderTitles;
    // The same of a dialog that asks where to save.
    std::optional<std::string> SaveChoice;
    std::vector<SaveQuestion> SaveQuestions;
    // Why an address cannot be opened; empty lets it be opened.
    std::string ShellRefusal;
    // What can be read as a picture, with its size in pixels.
    struct Picture {
        int Width = 0, Height = 0;
    };
    std::map<std::string, Picture> Pictures;
    SystemTime Clock{2024, 2, 4, 29, 13, 5, 7, 0};

    // -- What has happened

    struct BoxShown {
        MessageBox Box;
        BoxAnswer Answer = BoxAnswer::Ok;
    };
    struct FormShown {
        std::string Name;
        bool Modal = false;
    };
    struct Execution {
        std::string Verb, Address;
    };
    struct PopUp {
        Tool* Menu = nullptr;
        int XTwips = 0, YTwips = 0;
    };
    struct Drag {
        Control* Source = nullptr;
        std::vector<std::string> Paths;
    };

    std::vector<BoxShown> Boxes;
    std::vector<FormShown> Forms;
    std::vector<Execution> Executions;
    std::vector<PopUp> PopUps;
    std::vector<Drag> Drags;
    std::vector<std::string> Foregrounds;   // names of the forms
    std::vector<std::string> PictureWishes; // paths, in order
    std::vector<Picture> Paintings;         // sizes drawn, in order
    std::vector<Pointer> Pointers;          // every change, the last one in force
    std::string Clipboard;

    // The texts of all boxes, in order.
    std::vector<std::string> BoxTexts() const;
    int Turns() const { return turns_; }
    int StillAlives() const { return stillAlives_; }
    Pointer PointerNow() const { return Pointers.empty() ? Pointer::Default : Pointers.back(); }
    // How much of the script nobody has asked for.
    int AnswersLeft() const { return static_cast<int>(answers_.size()); }
    int ModalsLeft() const { return static_cast<int>(modalSteps_.size()); }

    // -- The port

    void DoEvents() override;
    void StillAlive() override { ++stillAlives_; }
    BoxAnswer MsgBox(const MessageBox& box) override;
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void SetForegroundWindow(Form& form) override;
    void PopUpMenu(Tool& menu, int xTwips, int yTwips) override;
    void SetPointer(Pointer pointer) override { Pointers.push_back(pointer); }
    double ScreenWidth() const override { return 1920 * TwipsPerPixel(); }
    double ScreenHeight() const override { return 1080 * TwipsPerPixel(); }
    std::string ClipboardText() override { return Clipboard; }
    void SetClipboardText(const std::string& text) override { Clipboard = text; }
    std::optional<std::string> SHBrowseForFolderA(const std::string& title) override;
    std::optional<std::string> GetSaveFileNameA(const SaveQuestion& question) override
    {
        SaveQuestions.push_back(question);
        return SaveChoice;
    }
    bool ShellExecuteA(const std::string& verb, const std::string& address,
                       std::string& why) override;
    BitmapPtr LoadPicture(const std::string& path, PictureBound bound) override;
    BitmapPtr PaintPicture(const Bitmap& picture, int widthPixels, int heightPixels) override;
    SystemTime Now() override { return Clock; }
    void DragFiles(Control& source, const std::vector<std::string>& paths) override;

private:
    BoxAnswer NextAnswer(const MessageBox& box);

    std::deque<BoxAnswer> answers_;
    std::deque<FormStep> modalSteps_;
    std::multimap<int, Step> steps_;
    int turns_ = 0, stillAlives_ = 0;
    bool insideEachTurn_ = false;
};

} // namespace tavo
