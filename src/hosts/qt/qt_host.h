#pragma once

#include "core/program.h"
#include "hosts/qt/main_window.h"
#include "hosts/qt/qt_desktop.h"
#include "hosts/qt/viewer_window.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_profile.h"

namespace tavo {

// One Tavo with its windows, on the disk of this machine.
class QtHost {
public:
    explicit QtHost(const StartInfo& info);

    // Loads and shows the main window; false when it is gone again already.
    bool Start();

    Program& Running() { return program_; }
    MainWindow& Window() { return window_; }
    // Null before its first use.
    ViewerWindow* Viewer() { return viewer_.get(); }

private:
    void AddWindows();
    std::optional<std::string> Browse(const std::string& title, QWidget* owner);

    PosixFiles files_;
    PosixProfile profile_;
    QtDesktop desktop_;
    Program program_;
    MainWindow window_;
    std::unique_ptr<ViewerWindow> viewer_; // from its first use on
    Connection unloaded_;
};

} // namespace tavo
