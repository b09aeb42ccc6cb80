#include "core/frm_main.h"
#include "core/program.h"
#include "fuzz/plain_profile.h"
#include "fuzz/quiet_desktop.h"
#include "fuzz/require.h"
#include "selection/paths.h"
#include "settings/settings_file.h"
#include "settings/settings_table.h"
#include "support/memory_disk.h"
#include "support/memory_profile.h"
#include "toolkit/text.h"

#include <algorithm>
#include <map>
#include <set>

// The input is the settings file of a program that starts, ends, and starts
// again. Every start comes up, and remembers what the first one took.

namespace tavo {
namespace {

using Flavour = MemoryDisk::Flavour;
using Values = std::map<std::string, std::string>;

constexpr std::string_view sections[] = {"CaseWordList", "Favorites",    "Filters",
                                         "Templates",    "ThumbSchemes", "Windows",
                                         "Defaults",     "Settings",     "Position"};

// A disk, a settings file on it, and nobody in front of it.
struct Machine {
    explicit Machine(Flavour flavour, const std::string& settings)
        : AppFolder(flavour == Flavour::Windows ? "C:\\app\\" : "/app/"),
          File(AppFolder + "Tavo.ini"),
          Dialect(flavour == Flavour::Windows ? ProfileDialect::Windows : ProfileDialect::Linux),
          Disk(flavour), Profile(Dialect)
    {
        Disk.AddFile(File, settings);
        Disk.AddFile(AppFolder + "a.txt");
        Profile.SetText(File, settings);
    }

    const std::string AppFolder, File;
    const ProfileDialect Dialect;
    MemoryDisk Disk;
    MemoryProfile Profile;
    QuietDesktop Desktop;
};

void Ranges_Check(const SharedState& state)
{
    for (const Setting& row : Settings_Table()) {
        const Variable* variable = Variable_Find(row.Key);
        if (!variable || !row.Range.IsOn())
            continue;
        Variable_Use(state, *variable, [&](const auto& value) {
            // The mode of a list without rows is in force, and is no setting.
            if (row.Key == "RenMode" && state.CurScreen == screenRename)
                return;
            if constexpr (std::is_integral_v<std::decay_t<decltype(value)>>)
                Require(value >= row.Range.Low && value <= row.Range.High,
                        "a variable lies in its range", std::string(row.Key));
        });
    }
}

void List_Check(const NamedList& list, int longestName)
{
    constexpr std::size_t mostNameBytes = 2046, mostValueBytes = 2047;
    Require(!list.empty(), "a list has its element 0");
    std::size_t bytes = 0;
    for (const NamedItem& item : list) {
        Require(Len(item.Name) <= longestName, "a name is cut", item.Name);
        Require(item.Data.size() <= mostValueBytes, "a value is cut", item.Data);
        bytes += item.Name.size() + 1;
    }
    // What stands in element 0 was not in the file.
    Require(bytes - list[0].Name.size() - 1 <= mostNameBytes + 1, "a list of names is cut");
}

void Lists_Check(const SharedState& state)
{
    List_Check(state.Favorites, 30);
    List_Check(state.Filters, 20);
    List_Check(state.Templates, 30);
    List_Check(state.ThumbSchemes, 30);
    List_Check(state.Windows, 30);
    Require(state.Filters[0].Name == "All Files" && state.Filters[0].Data == "*.*",
            "the built-in filter is the first");
    Require(state.Templates[0].Name == "Empty" && state.Templates[0].Data == "<E>:<E>",
            "the built-in template is the first");
    Require(state.ThumbSchemes[0].Name == "Tavo Default", "the built-in scheme is the first");
    Require(state.Favorites[0].Name.empty() && state.Windows[0].Name.empty(),
            "lists without a built-in entry have none");
    Require(state.nnAppTmpDef >= 0 && state.nnAppTmpDef <= List_Last(state.Templates),
            "the default template is one of the list");
}

void State_Check(Program& p)
{
    const SharedState& state = p.state;
    Ranges_Check(state);
    Lists_Check(state);
    Require(state.CurScreen == (state.ShowFile == 1 ? screenSelection : screenRename),
            "the first screen is up");
    Require(state.SelFolderMode == 0 && state.Filter == "*.*", "files are shown, and all of them");
    std::string folder = state.StartPath;
    Require(Folder_Exists(p.files, folder), "the folder in hand is there", folder);
    Require(p.main.Width() > 0 && p.main.Height() > 0, "the window has a size");
}

Values Values_Of(const SharedState& state)
{
    Values values;
    for (const Setting& row : Settings_Table())
        if (const Variable* variable = Variable_Find(row.Key))
            values[std::string(row.Key)] = Variable_Text(state, *variable);
    return values;
}

// What a start has taken from the file.
struct Taken {
    Values Variables;
    std::vector<NamedList> Lists;
};

// The rename screen sets its mode, and corrects the box of its counter.
bool IsScreensOwn(const SharedState& state, const std::string& key)
{
    // Digits that follow the start by themselves do so at each reading.
    if (key == "nnDigits" && state.SetDigits == 1)
        return true;
    return state.CurScreen == screenRename && (key == "RenMode" || key == "nnStart");
}

// One start and one end of the program.
Taken Program_Run(Machine& machine)
{
    Program p(machine.Disk, machine.Profile, machine.Desktop, {machine.AppFolder, ""});
    p.Start();
    State_Check(p);
    const SharedState& s = p.state;
    Taken taken{Values_Of(s), {s.Favorites, s.Filters, s.Templates, s.ThumbSchemes, s.Windows}};
    for (const std::string_view section : sections)
        Ini_Load(p, std::string(section), machine.File);
    State_Check(p);
    for (const auto& [key, value] : Values_Of(p.state))
        Require(value == taken.Variables.at(key) || IsScreensOwn(s, key),
                "a file read again gives the same", key);
    p.main.Unload();
    return taken;
}

// -- What comes back. Some texts cannot: the file drops blanks at the ends and
// quotes round a text, and cuts a long one.

constexpr std::size_t mostBytesBack = 1900;

bool ComesBack(const std::string& text)
{
    return text.size() <= mostBytesBack && WithoutQuotes(TrimProfileText(text)) == text;
}

// The index counts on, though rows may have become one; the mode and the counter
// may be those of the rename screen.
void Variables_Check(const Taken& first, const Taken& second)
{
    for (const Setting& row : Settings_Table()) {
        const auto value = first.Variables.find(std::string(row.Key));
        if (value == first.Variables.end() || row.Key == "nnAppTmpDef" || row.Key == "RenMode"
            || row.Key == "nnStart"
            || (row.Key == "nnDigits" && first.Variables.at("SetDigits") == "1"))
            continue;
        const bool isSafe = row.Form == SettingForm::Starred ? value->second.size() <= mostBytesBack
                                                             : ComesBack(value->second);
        Require(!isSafe || second.Variables.at(value->first) == value->second,
                "a value that is saved is read", value->first);
    }
}

// Names that are one to the file become one row.
bool ComesBack(const NamedList& list)
{
    std::set<std::string> names;
    std::size_t bytes = 0;
    for (std::size_t row = 1; row < list.size(); ++row) {
        const NamedItem& item = list[row];
        bytes += item.Name.size() + 1;
        if (item.Name != TrimProfileText(item.Name) || !ComesBack(item.Data)
            || !names.insert(FoldCase(item.Name)).second)
            return false;
    }
    return bytes <= mostBytesBack;
}

bool IsSame(const NamedItem& left, const NamedItem& right)
{
    return left.Name == right.Name && left.Data == right.Data;
}

void Lists_Check(const Taken& first, const Taken& second)
{
    for (std::size_t index = 0; index < first.Lists.size(); ++index) {
        const NamedList& before = first.Lists[index];
        const NamedList& after = second.Lists[index];
        Require(!ComesBack(before)
                    || std::equal(before.begin(), before.end(), after.begin(), after.end(), IsSame),
                "a list that is saved is read", after.empty() ? "" : after.back().Name);
    }
}

// A section that stands there again comes up when the one before it goes.
bool IsOrderly(const Machine& machine)
{
    const PlainProfile plain(*machine.Profile.Text(machine.File), machine.Dialect);
    std::set<std::string> names;
    return std::all_of(plain.Sections().begin(), plain.Sections().end(), [&](const auto& section) {
        return names.insert(FoldCase(section.Name)).second;
    });
}

void Flavour_Try(Flavour flavour, const std::string& settings)
{
    Machine machine(flavour, settings);
    const bool isOrderly = IsOrderly(machine);
    const Taken first = Program_Run(machine);
    const ProfileEncoding before(settings, machine.Dialect);
    const ProfileEncoding after(*machine.Profile.Text(machine.File), machine.Dialect);
    const Taken second = Program_Run(machine);
    // With the lines above it gone, a line may begin as a mark does.
    if (!isOrderly || before.Mark() != after.Mark())
        return;
    Variables_Check(first, second);
    Lists_Check(first, second);
}

} // namespace
} // namespace tavo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tavo;
    const std::string settings(Input_Text(data, size));
    Flavour_Try(Flavour::Posix, settings);
    Flavour_Try(Flavour::Windows, settings);
    return 0;
}
