#include "selection/enumeration.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/screens.h"
#include "core/windows.h"
#include "platform/pattern.h"
#include "selection/paths.h"
#include "toolkit/dates.h"
#include "toolkit/size_text.h"

#include <array>
#include <optional>
#include <vector>

namespace tavo {

std::string Size_Text(const FindData& data)
{
    return Size_Text_Load(data.Size);
}

std::string Modified_Text(const SystemTime& local)
{
    return Modified_Text(DateTime{local.Year, local.Month, local.Day, local.Hour, local.Minute, 0});
}

namespace {

constexpr std::int16_t walkSubFolders = -1;

// One walk over the disk. The local time is kept from row to row: a stamp that
// cannot be told shows the one before it.
class Walk {
public:
    Walk(Program& p, const std::string& filter, bool subFolders, ListView& list, Form& form)
        : p_(p), filter_(filter), subFolders_(subFolders), list_(list), form_(form)
    {
    }

    void Folder(const std::string& path, bool isLink = false)
    {
        chain_.push_back({path, std::nullopt});
        links_ += isLink ? 1 : 0;
        OwnEntries(path);
        if (subFolders_)
            SubFolders(path);
        links_ -= isLink ? 1 : 0;
        chain_.pop_back();
    }

private:
    static bool IsDots(const std::string& name) { return name == "." || name == ".."; }
    static bool IsFolder(const FindData& found) { return (found.Attributes & attrDirectory) != 0; }

    // Calls `each` for all that the search finds.
    template <class Each>
    void Search(FindHandle handle, FindData& found, Each each)
    {
        if (handle == invalidFind)
            return;
        do
            each();
        while (p_.files.FindNextFileA(handle, found));
        p_.files.FindClose(handle);
    }

    void OwnEntries(const std::string& path)
    {
        const bool wantFolders = p_.state.SelFolderMode == 1;
        FindData found;
        const FindHandle handle = wantFolders ? p_.files.FindFirstFolder(path + filter_, found)
                                              : p_.files.FindFirstFileA(path + filter_, found);
        Search(handle, found, [&] {
            Str_CutAtNul(found.Name);
            if (IsFolder(found) == wantFolders && !(wantFolders && IsDots(found.Name)))
                AddRow(path, found);
        });
    }

    void AddRow(const std::string& path, const FindData& found)
    {
        const bool isFolder = p_.state.SelFolderMode == 1;
        const std::string type = isFolder ? "-" : Name_GetExt(found.Name);
        const std::string size = isFolder ? "-" : Size_Text(found);
        p_.files.FileTimeToLocalSystemTime(found.Written, local_);
        const std::string modified = Modified_Text(local_);
        const char icon = Sel_Class_Get(type, p_.state.Gif);
        const std::array<std::string_view, 5> cells{found.Name, path, size, type, modified};
        list_.AddRow(cells.data(), static_cast<int>(cells.size()), std::string_view(&icon, 1));
    }

    void SubFolders(const std::string& path)
    {
        FindData found;
        const FindHandle handle = p_.files.FindFirstFolder(path + "*.*", found);
        Search(handle, found, [&] {
            Str_CutAtNul(found.Name);
            if (!IsFolder(found) || IsDots(found.Name) || LeadsBack(path, found))
                return;
            const std::string folder = path + found.Name;
            form_.SetCaption(folder);
            form_.Refresh();
            p_.desktop.StillAlive();
            Folder(Path_AddSlash(folder, p_.files.Rules()), IsLink(found));
        });
    }

    static bool IsLink(const FindData& found) { return (found.Attributes & attrReparse) != 0; }

    // Without a link on the way nothing can lead back to a folder that the
    // walk stands in; behind one, real folders can, too.
    bool LeadsBack(const std::string& path, const FindData& found)
    {
        if (!IsLink(found) && links_ == 0)
            return false;
        const auto target = p_.files.FolderIdentity(path + found.Name);
        if (!target)
            return true;
        for (Step& above : chain_) {
            if (!above.Id)
                above.Id = p_.files.FolderIdentity(above.Path);
            if (above.Id == target)
                return true;
        }
        return false;
    }

    // A folder on the way down; its identity is asked for when it is needed.
    struct Step {
        std::string Path;
        std::optional<FolderId> Id;
    };

    Program& p_;
    const std::string& filter_;
    bool subFolders_;
    ListView& list_;
    Form& form_;
    SystemTime local_;
    std::vector<Step> chain_; // the folders from the start to here
    int links_ = 0;           // how many of them are links
};

std::vector<std::string> Filter_Split(std::string filter)
{
    std::vector<std::string> patterns;
    while (!filter.empty())
        patterns.push_back(Str_GetToken(filter, ";", ""));
    return patterns;
}

// By Path, and by Name within a Path: the second sort keeps what the first
// did among equal ones.
void List_SortByPathAndName(Program& p, ListView& list)
{
    list.SetSortOrder(0);
    list.SetSortKey(0);
    list.SetSorted(true);
    list.SetSortKey(1);
    list.SetSorted(true);
    p.desktop.DoEvents();
    list.SetSorted(false);
}

} // namespace

void Sel_Files_Get(Program& p, const std::string& startPath, const std::string& filter,
                   std::int16_t subFolders, ListView& list, Form& form)
{
    Walk walk(p, filter, subFolders == walkSubFolders, list, form);
    walk.Folder(Path_AddSlash(startPath, p.files.Rules()));
}

void Sel_List_Fill(Program& p, const std::string& path, bool subFolders, const std::string& filter)
{
    const LongOperation operation(p);
    if (!operation)
        return;
    FrmMain& main = p.main;
    ListView& list = main.lsvSelMain;
    Tools_SelEnable(p, false);
    Cursor_Busy(p, true);
    const std::string folder = Path_AddSlash(path, p.files.Rules());
    list.DeleteAllItems();
    list.Refresh();
    list.SetSorted(false);
    p.desktop.DoEvents();
    {
        const ListFreezeGuard freeze(list);
        for (const std::string& pattern : Filter_Split(filter.empty() ? "*.*" : filter))
            Sel_Files_Get(p, folder, pattern, subFolders ? walkSubFolders : 0, list, main);
        List_SortByPathAndName(p, list);
    }
    list.Refresh();
    Cursor_Busy(p, false);
    list.SetAllSelected(false);
    list.SetSelectedItem(0);
    // No row is in hand: a splitter must not fit the old picture in again.
    main.imgSelPreview.Visible = false;
    main.imgSelPreview.Picture = PictureRef();
    main.SetCaption(std::string(appTitle));
    main.stbMain.SetPanel(1, "Total: " + std::to_string(list.Count()));
    main.stbMain.SetPanel(3, "Selected: 0");
    Tools_SelEnable(p, true);
}

} // namespace tavo
