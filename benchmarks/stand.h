#pragma once

#include "core/frm_main.h"
#include "core/program.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/posix_profile.h"
#include "quiet_desktop.h"

#include <string>

namespace tavo::bench {

// `count` rows in the rename list as a load would make them, without any files.
void Rows_Fill(Program& p, int count);

// The whole program on the real disk, with nobody in front of it. It asks no
// questions and closes its panel by itself.
class Stand {
    PosixFiles files_;
    PosixProfile profile_;
    QuietDesktop desktop_;

    // The run must have changed so many rows, and failed at none.
    void ChangedAre(int count);

public:
    // `folder` is an empty one, with its slash.
    explicit Stand(const std::string& folder);

    Program P;
    ListView& Selection;
    ListView& Renames;

    // Walks a folder into the selection list.
    void Walk(const std::string& folder, bool subFolders, const std::string& filter);
    // Takes all that a folder holds into the rename list.
    void Load(const std::string& folder);
    // A counter of six digits and the extension as it is.
    void Number(const std::string& nameTemplate, int start);
    // Runs this mode, as its panel stands, or takes the last run back. All rows
    // must change.
    void Run(RenameMode mode);
    void Undo();
    // What is called at each turn of a run; nothing when empty.
    void Watch(std::function<void()> eachTurn) { desktop_.EachTurn = std::move(eachTurn); }
    // `count` rows as a load would make them, without any files.
    void FillRows(int count) { Rows_Fill(P, count); }
    // Where nobody looks, pictures are not read unless this is given.
    QuietDesktop& Screen() { return desktop_; }
};

// The cells of a made-up row.
std::string Row_Name(int number);

} // namespace tavo::bench
