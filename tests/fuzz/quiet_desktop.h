#pragma once

#include "platform/desktop.h"

namespace tavo {

// A screen that nobody looks at, and a person who answers every box by its
// default button.
class QuietDesktop : public Desktop {
public:
    void DoEvents() override {}
    void StillAlive() override {}
    BoxAnswer MsgBox(const MessageBox& box) override { return box.Default; }
    void Show(Form&) override {}
    void ShowModal(Form&) override {}
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
    BitmapPtr LoadPicture(const std::string&, PictureBound) override { return nullptr; }
    BitmapPtr PaintPicture(const Bitmap&, int, int) override { return nullptr; }
    SystemTime Now() override { return {2024, 2, 4, 29, 13, 5, 7, 0}; }
    void DragFiles(Control&, const std::vector<std::string>&) override {}
};

} // namespace tavo
