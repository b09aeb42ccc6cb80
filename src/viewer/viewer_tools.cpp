#include "viewer/viewer_parts.h"

namespace tavo {

namespace {

constexpr auto button = ToolKind::Button;
constexpr auto toggle = ToolKind::Toggle;
constexpr auto menu = ToolKind::Menu;

// Id, kind, caption, description, tip, icon, shortcut, category, handler.
constexpr Command table[] = {
    {"ID_mnuFile", menu, "&File", "", "", "", "", "Menu", nullptr},
    {"ID_mnuView", menu, "&View", "", "", "", "", "Menu", nullptr},
    {"ID_mnuHelp", menu, "&Help", "", "", "", "", "Menu", nullptr},

    {"ID_Enlarge", toggle, "Enlarge", "", "Enlarge Small Images to Fit Display", "zoom-in", "",
     "View", Cmd_ViewEnlarge},
    {"ID_Shrink", toggle, "Shrink", "", "Shrink Large Images to Fit Display", "zoom-out", "",
     "View", Cmd_ViewShrink},
    {"ID_SizeWindow", button, "Size Window", "", "Size Window to Show Entire Image",
     "zoom-fit-best", "", "View", Cmd_ViewSizeWindow},
    {"ID_Seconds", ToolKind::Edit, "Seconds", "Time (Seconds) used for Picture Delay in Auto Show",
     "Seconds to Delay", "", "", "Show", nullptr},
    {"ID_BackColor", button, "Background Color", "", "Set Background Color",
     "preferences-desktop-wallpaper", "", "View", Cmd_ViewBackColor},
    {"ID_ImgNext", button, "Next Image", "", "Find Next Image", "go-next", "", "Image",
     Cmd_ViewNext},
    {"ID_ImgPrev", button, "Previous Image", "", "Find Previous Image", "go-previous", "", "Image",
     Cmd_ViewPrev},
    {"ID_ShowTavo", button, "Show Tavo", "", "Show Rename Window", "go-home", "", "Window",
     Cmd_ViewShowTavo},
    {"ID_ShowPlayF", toggle, "Play Forward", "", "Auto Show Next Image", "media-playback-start", "",
     "Show", Cmd_ViewPlayForward},
    {"ID_ShowStop", button, "Stop", "", "Stop Auto Show", "media-playback-stop", "", "Show",
     Cmd_ViewStop},
    {"ID_ShowPlayR", toggle, "Play Reverse", "", "Auto Show Previous Image", "media-seek-backward",
     "", "Show", Cmd_ViewPlayReverse},
    // It stands on the bar, and nothing acts on it.
    {"ID_ShowPreview", button, "Show Preview", "", "Hide Thumbnail Preview during Scrolling",
     "image-x-generic", "", "Inert", nullptr},
    {"ID_tbTextLabels", toggle, "&Text Labels", "Displays Text Labels under Toolbar Buttons",
     "Display Text Labels under Toolbar Buttons", "", "", "Toolbars", Cmd_ViewTextLabels},
    {"ID_HelpContents", button, "&Help Topics", "Open the Help File", "", "help-contents", "",
     "Help", Cmd_ViewHelp},
    {"ID_About", button, "&About", "Shows the About Form", "", "help-about", "", "Help",
     Cmd_ViewAbout},
    {"ID_Exit", button, "E&xit", "Exits", "", "application-exit", "", "Window", Cmd_ViewExit},
};

constexpr BandPlan bands[] = {
    {"Menu", {"ID_mnuFile", "ID_mnuView", "ID_mnuHelp"}},
    {"Standard",
     {"ID_ImgPrev", "ID_ImgNext", "-", "ID_ShowPlayR", "ID_ShowStop", "ID_ShowPlayF", "ID_Seconds",
      "-", "ID_Enlarge", "ID_Shrink", "ID_SizeWindow", "ID_BackColor", "-", "ID_ShowPreview",
      "ID_ShowTavo"}},
    {"ID_mnuFile", {"ID_ShowTavo", "-", "ID_Exit"}},
    {"ID_mnuView",
     {"ID_Enlarge", "ID_Shrink", "ID_SizeWindow", "-", "ID_BackColor", "-", "ID_tbTextLabels"}},
    {"ID_mnuHelp", {"ID_HelpContents", "-", "ID_About"}},
};

} // namespace

std::span<const Command> Viewer_Commands()
{
    return table;
}

std::span<const BandPlan> Viewer_Bands()
{
    return bands;
}

} // namespace tavo
