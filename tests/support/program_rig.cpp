#include "support/program_rig.h"

#include "core/commands.h"

namespace tavo {

namespace {

// Everything in the selection list, then "Rename".
void List_Make(Program& p)
{
    p.main.lsvSelMain.PersonSelectAll();
    p.main.atbMain.PersonClick(*p.main.atbMain.Find("ID_CreateList"));
}

} // namespace

std::vector<std::string> List_Column(const ListView& list, const std::string& key)
{
    std::vector<std::string> cells;
    const int column = list.ColumnByKey(key);
    for (int row = 1; row <= list.Count(); ++row)
        cells.emplace_back(list.Cell(row, column));
    return cells;
}

ProgramRig::ProgramRig(MemoryDisk::Flavour flavour)
    : AppFolder(flavour == MemoryDisk::Flavour::Windows ? "C:\\app\\" : "/app/"), Disk(flavour),
      Profile(flavour == MemoryDisk::Flavour::Windows ? ProfileDialect::Windows
                                                      : ProfileDialect::Linux)
{
    Disk.AddFolder(AppFolder);
}

ProgramRig::~ProgramRig() = default;

Program& ProgramRig::Start(const std::string& commandText, const std::string& settings)
{
    if (!settings.empty()) {
        Disk.AddFile(AppFolder + "Tavo.ini", settings);
        Profile.SetText(AppFolder + "Tavo.ini", settings);
    }
    program_ = std::make_unique<Program>(Disk, Profile, Desktop, StartInfo{AppFolder, commandText});
    program_->Start();
    return *program_;
}

void ProgramRig::MakeList()
{
    List_Make(*program_);
}

std::vector<std::string> ProgramRig::Column(const std::string& key) const
{
    return List_Column(program_->main.lsvRename, key);
}

void ProgramRig::Click(const std::string& tool)
{
    ToolBars& bars = program_->main.atbMain;
    bars.PersonClick(*bars.Find(tool));
}

void ProgramRig::Box(int index, const std::string& text)
{
    TextBox& box = program_->main.txtNameNum[index];
    box.SetFocus();
    box.PersonText(text);
}

Program& RealRig::Start(const std::string& settings)
{
    if (!settings.empty()) {
        app_.Write("Tavo.ini", settings);
        Profile.SetText(app_.Path("Tavo.ini"), settings);
    }
    program_ =
        std::make_unique<Program>(Files, Profile, Desktop, StartInfo{app_.Path(), Folder.Path()});
    program_->Start();
    return *program_;
}

void RealRig::MakeList()
{
    List_Make(*program_);
}

std::vector<std::string> RealRig::Column(const std::string& key) const
{
    return List_Column(program_->main.lsvRename, key);
}

} // namespace tavo
