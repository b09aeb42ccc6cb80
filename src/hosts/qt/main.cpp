#include "hosts/qt/icons.h"
#include "hosts/qt/qt_host.h"
#include "platform/posix/start_info.h"

#include <QApplication>

// tavo [PATH...]: the window, on the folder of the last path.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("Tavo");
    QApplication::setDesktopFileName("tavo");
    QApplication::setQuitOnLastWindowClosed(false); // the main window's end is the end

    const std::string self = tavo::Executable_Path();
    tavo::StartInfo info;
    info.AppFolder = tavo::AppFolder_Find(self);
    tavo::AppFolder_Prepare(info.AppFolder, self);
    // Qt has taken out the options that are its own.
    info.CommandText = tavo::Command_Text({argv + 1, argv + argc});

    tavo::QtHost host(info);
    return host.Start() ? QApplication::exec() : 0;
}
