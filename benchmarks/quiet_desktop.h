#pragma once

#include "platform/desktop.h"
#include "toolkit/form.h"

#include <functional>

namespace tavo::bench {

// Nobody in front of a screen that shows nothing: what is measured on it is
// the program alone.
class QuietDesktop : public Desktop {
public:
    // Called whenever a long work lets the person have a turn.
    std::function<void()> EachTurn;
    // How pictures are read and drawn; without it none can be.
    std::function<BitmapPtr(const std::string& path, PictureBound bound)> Load;
    std::function<BitmapPtr(const Bitmap& picture, int width, int height)> Paint;

    void DoEvents() override
    {
        if (EachTurn)
            EachTurn();
    }
    void StillAlive() override {}
    BoxAnswer MsgBox(const MessageBox& box) override { return box.Default; }
    void Show(Form& form) override
    {
        form.EnsureLoaded();
        form.SetVisible(true);
    }
    void ShowModal(Form& form) override { form.Unload(); }
    void SetForegroundWindow(Form&) override {}
    void PopUpMenu(Tool&, int, int) override {}
    void SetPointer(Pointer) override {}
    double ScreenWidth() const override { return 1920 * TwipsPerPixel(); }
    double ScreenHeight() const override { return 1080 * TwipsPerPixel(); }
    std::string ClipboardText() override { return {}; }
    void SetClipboardText(const std::string&) override {}
    std::optional<std::string> SHBrowseForFolderA(const std::string&) override { return {}; }
    bool ShellExecuteA(const std::string&, const std::string&, std::string&) override
    {
        return true;
    }
    std::optional<std::string> GetSaveFileNameA(const SaveQuestion&) override
    {
        return std::nullopt;
    }
    BitmapPtr LoadPicture(const std::string& path, PictureBound bound) override
    {
        return Load ? Load(path, bound) : nullptr;
    }
    BitmapPtr PaintPicture(const Bitmap& picture, int width, int height) override
    {
        return Paint ? Paint(picture, width, height) : nullptr;
    }
    SystemTime Now() override { return {2024, 2, 4, 29, 13, 5, 7, 0}; }
    void DragFiles(Control&, const std::vector<std::string>&) override {}
};

} // namespace tavo::bench
