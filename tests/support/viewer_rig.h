#pragma once

#include "support/program_rig.h"
#include "viewer/frm_viewer.h"

#include <string>
#include <vector>

namespace tavo {

// A file of the list, and its size where it can be read as a picture.
struct ViewedFile {
    std::string Name;
    int Width = 0, Height = 0;
};

// A program with these files in its rename list, in the order of their names,
// and a person before its viewer.
class ViewerRig : public ProgramRig {
public:
    explicit ViewerRig(const std::vector<ViewedFile>& files, const std::string& settings = "",
                       MemoryDisk::Flavour flavour = MemoryDisk::Flavour::Posix);

    // Through the tool of the main window, on this row; in front from then on.
    FrmViewer& Open(int row = 1);
    FrmViewer& V() { return P().Viewer(); }
    ListView& List() { return Main().lsvRename; }

    void Tool_Click(const std::string& id) { V().atbView.PersonClick(*Tool_Of(id)); }
    Tool* Tool_Of(const std::string& id) { return V().atbView.Find(id); }
    TextBox& Seconds() { return *Tool_Of("ID_Seconds")->Box; }
    void Press(int key, char32_t character = 0);

    // The window becomes so large that its view has this size in pixels.
    void Size_View(int width, int height);
    // What is seen of the picture: "left,top widthxheight", or "nothing".
    std::string Image();
    // Both panels, parted by a bar.
    std::string Panels();
    // A cell of the list gets another text.
    void Cell(int row, const std::string& key, const std::string& text);
    // The files that were read as pictures since the last call, without their
    // folder.
    std::vector<std::string> Wishes();
};

} // namespace tavo
