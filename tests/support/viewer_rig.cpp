#include "support/viewer_rig.h"

namespace tavo {

ViewerRig::ViewerRig(const std::vector<ViewedFile>& files, const std::string& settings,
                     MemoryDisk::Flavour flavour)
    : ProgramRig(flavour)
{
    const bool windows = flavour == MemoryDisk::Flavour::Windows;
    const std::string folder = windows ? "C:\\p\\" : "/p/";
    Disk.AddFolder(folder);
    for (const ViewedFile& file : files) {
        Disk.AddFile(folder + file.Name);
        if (file.Width > 0)
            Desktop.Pictures[folder + file.Name] = {file.Width, file.Height};
    }
    Start(folder, settings);
    if (!files.empty())
        MakeList();
}

FrmViewer& ViewerRig::Open(int row)
{
    if (List().Count() > 0)
        List().PersonSelect({row}, row);
    Click("ID_Viewer");
    Main().PersonActivate(false);
    V().PersonActivate(true);
    return V();
}

void ViewerRig::Press(int key, char32_t character)
{
    Key pressed;
    pressed.Code = key;
    pressed.Char = character;
    V().PersonKey(&Seconds(), pressed);
}

void ViewerRig::Size_View(int width, int height)
{
    FrmViewer& v = V();
    const double twips = Desktop.TwipsPerPixel();
    v.PersonResize(v.Width() - v.picViewWin.Width + width * twips,
                   v.Height() - v.picViewWin.Height + height * twips);
}

std::string ViewerRig::Image()
{
    const ImageBox& image = V().imgOriginal;
    if (!image.Visible)
        return "nothing";
    return Length_Text(image.Left) + "," + Length_Text(image.Top) + " " + Length_Text(image.Width)
           + "x" + Length_Text(image.Height);
}

std::string ViewerRig::Panels()
{
    return V().stbMain.Panel(1) + "|" + V().stbMain.Panel(2);
}

void ViewerRig::Cell(int row, const std::string& key, const std::string& text)
{
    List().SetCell(row, List().ColumnByKey(key), text);
}

std::vector<std::string> ViewerRig::Wishes()
{
    std::vector<std::string> names;
    for (const std::string& path : Desktop.PictureWishes)
        names.push_back(path.substr(path.find_last_of("/\\") + 1));
    Desktop.PictureWishes.clear();
    return names;
}

} // namespace tavo
