#pragma once

#include "core/frm_main.h"
#include "core/program.h"
#include "platform/posix/posix_files.h"
#include "support/memory_disk.h"
#include "support/memory_profile.h"
#include "support/scripted_desktop.h"
#include "support/temp_folder.h"

#include <string>
#include <vector>

namespace tavo {

// A whole program on a disk in memory, in the dialect asked for, with a
// scripted person in front of it. Nothing runs before Start.
class ProgramRig {
public:
    explicit ProgramRig(MemoryDisk::Flavour flavour = MemoryDisk::Flavour::Windows);
    ~ProgramRig();

    // `C:\app\` or `/app/`, where the settings file lies.
    const std::string AppFolder;
    MemoryDisk Disk;
    MemoryProfile Profile;
    ScriptedDesktop Desktop;

    // Loads the program with this command text and `Tavo.ini`.
    Program& Start(const std::string& commandText = "", const std::string& settings = "");
    Program& P() { return *program_; }
    FrmMain& Main() { return program_->main; }

    // Selects all that the selection list shows and makes the rename list.
    void MakeList();
    // The cells of one column of the rename list, by the column's key.
    std::vector<std::string> Column(const std::string& key) const;
    // A click on a tool, a text put into a box of the Name & Number panel.
    void Click(const std::string& tool);
    void Box(int index, const std::string& text);

private:
    std::unique_ptr<Program> program_;
};

// The same on a real folder.
class RealRig {
public:
    explicit RealRig(std::string_view test) : Folder(test), app_("app") {}

    TempFolder Folder;
    PosixFiles Files;
    MemoryProfile Profile;
    ScriptedDesktop Desktop;

    Program& Start(const std::string& settings = "");
    Program& P() { return *program_; }
    void MakeList();
    std::vector<std::string> Column(const std::string& key) const;

private:
    TempFolder app_;
    std::unique_ptr<Program> program_;
};

// The cells of one column of a list, by the column's key.
std::vector<std::string> List_Column(const ListView& list, const std::string& key);

} // namespace tavo
