#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

// A second, slow and simple telling of a Name & Number run, for holding the
// program's own against. It knows no control, no port and none of the
// program's functions: everything that a run needs comes in as values, and
// everything that a run does goes out as values.
namespace tavo::model {

enum class Dialect { Linux, Windows };

struct Row {
    std::string Path, Name; // Path with its separator at the end
    bool Selected = false;
    std::string Type, UndoName, Errors;
    friend bool operator==(const Row&, const Row&) = default;
};

// Full name -> number of the content that lies there. Files and folders alike:
// what begins with a folder's full name and a separator goes along with it.
using Disk = std::map<std::string, int>;

struct NnTask {
    Dialect System = Dialect::Linux;
    bool CaseBlind = false; // names that differ in case are one; Windows: always
    std::vector<Row> Rows;
    Disk Files;
    std::set<std::string> InUse;  // full names of files that cannot be renamed now
    std::set<std::string> Locked; // folders, with separator, that refuse all changes
    std::string NameTemplate, ExtTemplate;
    std::string Start = "1";
    int Style = 1; // 1 number, 2 small letters, 3 capital letters
    int Digits = 1;
    int PreList = 1;
    bool FolderMode = false;
    bool SelectedOnly = false; // else all rows run
};

struct NnOutcome {
    Disk Files;
    std::vector<Row> Rows;
    int Renamed = 0, Errors = 0, Unnecessary = 0;
    // The walk came back to the same row again and again and was broken off;
    // what the other fields say is the state at that point.
    bool Endless = false;
};

// Runs the task, from the clearing of `UndoName` and `Errors` to the last row.
// Templates hold no separator, and MP3 tokens stay in the text.
NnOutcome Nn_Model_Run(const NnTask& task);

// The counter's text for a value; `style` and `digits` as in NnTask.
std::string Counter_Text(int value, int style, int digits);
// The value that a run begins with.
int Counter_Start(const std::string& text, int style);
// Every `token` in `text` replaced by `value`, without regard to case; what a
// value brings in is searched again. A text that would grow without end is
// given back when it has outgrown every name.
std::string Token_Replace(std::string text, const std::string& token, const std::string& value);

} // namespace tavo::model
