#include "toolkit/folder_tree.h"

#include "toolkit/form.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace tavo {
namespace {

// A disk of folder names.
struct Disk {
    std::map<std::string, std::vector<std::string>> Folders{
        {"/", {"etc", "home", "mnt"}},
        {"/etc/", {}},
        {"/home/", {"ann", "bob"}},
        {"/home/ann/", {"docs", "Pics"}},
        {"/home/ann/docs/", {"old"}},
        {"/home/ann/docs/old/", {}},
        {"/home/ann/Pics/", {}},
        {"/home/bob/", {}},
        {"/mnt/", {"usb"}},
        {"/mnt/usb/", {"data"}},
        {"/mnt/usb/data/", {}},
    };
    std::set<std::string> Secret; // there, but not listed
    bool CaseBlind = false;
    std::vector<std::string> Listed; // what was read, in order

    std::string Stored(const std::string& path) const
    {
        const auto same = [&](const auto& entry) { return SameAs(entry.first, path); };
        const auto found = std::find_if(Folders.begin(), Folders.end(), same);
        return found == Folders.end() ? std::string() : found->first;
    }
    bool SameAs(const std::string& left, const std::string& right) const
    {
        return left == right || (CaseBlind && EqualButForCase(left, right));
    }
    static bool EqualButForCase(const std::string& left, const std::string& right)
    {
        return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                          [](char a, char b) { return std::tolower(a) == std::tolower(b); });
    }
};

class FolderTrees : public testing::Test {
protected:
    FolderTrees()
    {
        tree.Source.Roots = [this] { return places; };
        tree.Source.Children = [this](const std::string& path) {
            disk.Listed.push_back(path);
            auto names = disk.Folders[path];
            std::erase_if(names, [&](auto& name) { return disk.Secret.contains(name); });
            return names;
        };
        tree.Source.HasChildren = [this](const std::string& path) {
            return !disk.Folders[path].empty();
        };
        tree.Source.IsFolder = [this](const std::string& path) {
            return !disk.Stored(path).empty();
        };
        const auto add = [this](const std::string& path) { log.Add("[" + path + "]"); };
        clicks = tree.FolderClick.Listen(add);
    }
    std::string Sight()
    {
        std::string sight;
        for (const FolderNode* node : tree.NodesInSight())
            sight += (sight.empty() ? "" : " ") + node->Caption;
        return sight;
    }
    void Press(const char* name)
    {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key)) << name;
        form.PersonKey(&tree, key);
    }

    Disk disk;
    std::vector<FolderSource::Place> places{{"Home", "/home/ann/"}, {"Places", ""}, {"/", "/"}};
    Form form{"frm"};
    FolderTree tree{form, "ftv"};
    EventLog log;
    Connection clicks;
};

struct SetCase {
    const char* Path;
    bool Known;
    const char *Log, *Folder, *Sight;
};

// Each row goes on from the one before.
const SetCase setCases[] = {
    {"/home/ann", true, "[/home/ann/]", "/home/ann/", "Home Places /"},
    {"/home/ann/docs/", true, "[/home/ann/docs/]", "/home/ann/docs/", "Home docs Pics Places /"},
    {"/home/ann/docs/", true, "[/home/ann/docs/]", "/home/ann/docs/", "Home docs Pics Places /"},
    {"/home/none", false, "", "/home/ann/docs/", "Home docs Pics Places /"},
    {"", false, "", "/home/ann/docs/", "Home docs Pics Places /"},
    {"/home/ann/DOCS", false, "", "/home/ann/docs/", "Home docs Pics Places /"},
    {"/mnt", true, "[/mnt/]", "/mnt/", "Home docs Pics Places / etc home mnt"},
    {"/", true, "[/]", "/", "Home docs Pics Places / etc home mnt"},
    {"//mnt/./usb/", true, "[/mnt/usb/]", "/mnt/usb/", "Home docs Pics Places / etc home mnt usb"},
    {"/mnt/../etc", false, "", "/mnt/usb/", "Home docs Pics Places / etc home mnt usb"},
};

TEST_F(FolderTrees, A_folder_is_reached_from_the_nearest_root_and_reported)
{
    disk.Folders["//mnt/./usb/"] = {};
    disk.Folders["/mnt/../"] = {};
    disk.Folders["/mnt/../etc/"] = {};
    for (const SetCase& row : setCases) {
        EXPECT_EQ(tree.SetFolder(row.Path), row.Known) << row.Path;
        EXPECT_EQ(log.Take(), row.Log) << row.Path;
        EXPECT_EQ(tree.Folder(), row.Folder) << row.Path;
        EXPECT_EQ(tree.PropertyText("Folder"), row.Folder) << row.Path;
        EXPECT_EQ(Sight(), row.Sight) << row.Path;
    }
}

TEST_F(FolderTrees, Folders_are_read_one_at_a_time_and_once)
{
    EXPECT_EQ(Sight(), "Home Places /");
    EXPECT_TRUE(disk.Listed.empty());
    tree.SetFolder("/mnt/usb/data/");
    EXPECT_EQ(disk.Listed, (std::vector<std::string>{"/", "/mnt/", "/mnt/usb/"}));
    tree.SetFolder("/mnt/usb/");
    EXPECT_EQ(disk.Listed.size(), 3U);
    tree.ExpandFolder();
    EXPECT_EQ(disk.Listed.size(), 3U);
    EXPECT_EQ(Sight(), "Home Places / etc home mnt usb data");
}

TEST_F(FolderTrees, On_a_case_blind_disk_the_stored_case_is_reported)
{
    disk.CaseBlind = true;
    EXPECT_TRUE(tree.SetFolder("/HOME/ann/PICS"));
    EXPECT_EQ(tree.Folder(), "/home/ann/Pics/");
    EXPECT_TRUE(tree.SetFolder("/MNT"));
    EXPECT_EQ(tree.Folder(), "/mnt/");
}

TEST_F(FolderTrees, Of_two_names_that_differ_in_case_the_one_spelled_is_taken)
{
    disk.Folders["/etc/"] = {"x", "X"};
    disk.Folders["/etc/x/"] = {};
    disk.Folders["/etc/X/"] = {};
    tree.SetFolder("/etc/X");
    EXPECT_EQ(tree.Folder(), "/etc/X/");
    tree.SetFolder("/etc/x");
    EXPECT_EQ(tree.Folder(), "/etc/x/");
}

TEST_F(FolderTrees, The_nearest_root_that_leads_there_is_taken)
{
    places = {{"/", "/"}, {"Home", "/home/ann/"}, {"Stick", "/mnt/usb/"}};
    tree.SetFolder("/mnt/usb/data/");
    EXPECT_EQ(Sight(), "/ Home Stick data");
    tree.SetFolder("/home/bob/");
    EXPECT_EQ(Sight(), "/ etc home ann bob mnt Home Stick data");
}

TEST_F(FolderTrees, A_root_of_the_very_spelling_goes_before_one_that_is_alike)
{
    disk.Folders["/"].push_back("HOME");
    for (const char* path : {"/HOME/", "/HOME/ann/", "/HOME/ann/docs/"})
        disk.Folders[path] = {};
    disk.Folders["/HOME/"] = {"ann"};
    disk.Folders["/HOME/ann/"] = {"docs"};
    EXPECT_TRUE(tree.SetFolder("/HOME/ann/docs"));
    EXPECT_EQ(tree.Folder(), "/HOME/ann/docs/");
}

TEST_F(FolderTrees, Another_separator_and_drives_serve_too)
{
    std::set<std::string> folders{"C:\\", "C:\\Temp\\", "D:\\"};
    tree.Source.Separator = '\\';
    places = {{"C:", "C:\\"}, {"D:", "D:\\"}};
    tree.Source.Children = [](const std::string& path) {
        return path == "C:\\" ? std::vector<std::string>{"Temp"} : std::vector<std::string>();
    };
    tree.Source.IsFolder = [&](const std::string& path) {
        return folders.contains(path) || path == "c:\\TEMP\\";
    };
    EXPECT_TRUE(tree.SetFolder("c:\\TEMP"));
    EXPECT_EQ(tree.Folder(), "C:\\Temp\\");
    EXPECT_TRUE(tree.SetFolder("D:\\"));
    EXPECT_EQ(tree.Folder(), "D:\\");
    EXPECT_FALSE(tree.SetFolder("E:\\"));
}

TEST_F(FolderTrees, A_folder_that_is_not_listed_gets_a_node_when_gone_to)
{
    disk.Secret = {"bob"};
    EXPECT_TRUE(tree.SetFolder("/home/bob"));
    EXPECT_EQ(Sight(), "Home Places / etc home ann bob mnt");
    tree.Refresh();
    EXPECT_EQ(Sight(), "Home Places / etc home ann bob mnt");
    EXPECT_EQ(tree.Current()->Path, "/home/bob/");
    disk.Folders.erase("/home/bob/");
    tree.Refresh();
    EXPECT_EQ(Sight(), "Home Places / etc home ann mnt");
}

TEST_F(FolderTrees, A_place_that_is_none_of_the_disks_is_reported_but_not_taken_in_hand)
{
    tree.SetFolder("/etc/");
    log.Take();
    tree.PersonNode(*tree.Roots()[1]);
    EXPECT_EQ(log.Take(), "[]");
    EXPECT_EQ(tree.Folder(), "/etc/");
    tree.PersonNode(*tree.Roots()[2]);
    EXPECT_EQ(log.Take(), "[/]");
    EXPECT_EQ(tree.Folder(), "/");
    EXPECT_TRUE(tree.HasFocus());
}

TEST_F(FolderTrees, A_hidden_or_disabled_tree_takes_no_click)
{
    tree.Enabled = false;
    tree.PersonNode(*tree.Roots()[2]);
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(tree.Folder(), "");
    EXPECT_EQ(tree.Current(), nullptr);
}

struct KeyCase {
    const char *Name, *Log, *Sight;
};

// Each row goes on from the one before.
const KeyCase keyCases[] = {
    {"Down", "[/home/ann/]", "Home Places /"},
    {"Right", "", "Home docs Pics Places /"},
    {"Right", "[/home/ann/docs/]", "Home docs Pics Places /"},
    {"Left", "[/home/ann/]", "Home docs Pics Places /"},
    {"Up", "", "Home docs Pics Places /"},
    {"Down", "[/home/ann/docs/]", "Home docs Pics Places /"},
    {"Down", "[/home/ann/Pics/]", "Home docs Pics Places /"},
    {"Right", "", "Home docs Pics Places /"},
    {"Right", "", "Home docs Pics Places /"},
    {"Down", "[]", "Home docs Pics Places /"},
    {"Down", "[/]", "Home docs Pics Places /"},
    {"Down", "", "Home docs Pics Places /"},
    {"Left", "", "Home docs Pics Places /"},
    {"Ctrl+Home", "", "Home docs Pics Places /"},
    {"Home", "[/home/ann/]", "Home docs Pics Places /"},
    {"Left", "", "Home Places /"},
    {"End", "[/]", "Home Places /"},
    {"Up", "[]", "Home Places /"},
    {"x", "", "Home Places /"},
};

TEST_F(FolderTrees, Keys_walk_the_nodes_in_sight)
{
    int number = 0;
    for (const KeyCase& row : keyCases) {
        ++number;
        Press(row.Name);
        EXPECT_EQ(log.Take(), row.Log) << number << " " << row.Name;
        EXPECT_EQ(Sight(), row.Sight) << number << " " << row.Name;
    }
}

TEST_F(FolderTrees, A_refresh_reads_what_is_open_anew_and_reports_nothing)
{
    tree.SetFolder("/home/ann/docs/");
    tree.ExpandFolder();
    tree.Expand(*tree.Roots()[2], true);
    EXPECT_EQ(Sight(), "Home docs old Pics Places / etc home mnt");
    disk.Folders["/home/ann/"] = {"docs", "New"};
    disk.Folders["/home/ann/New/"] = {};
    disk.Folders["/"] = {"home", "mnt"};
    disk.Folders.erase("/etc/");
    places.push_back({"Stick", "/mnt/usb/"});
    log.Take();
    tree.Refresh();
    EXPECT_EQ(Sight(), "Home docs old New Places / home mnt Stick");
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(tree.Folder(), "/home/ann/docs/");
    ASSERT_NE(tree.Current(), nullptr);
    EXPECT_EQ(tree.Current()->Path, "/home/ann/docs/");
}

TEST_F(FolderTrees, A_folder_in_hand_that_is_gone_stays_in_hand_without_a_node)
{
    tree.SetFolder("/home/ann/Pics/");
    disk.Folders["/home/ann/"] = {"docs"};
    disk.Folders.erase("/home/ann/Pics/");
    tree.Refresh();
    EXPECT_EQ(tree.Folder(), "/home/ann/Pics/");
    EXPECT_EQ(tree.Current(), nullptr);
    tree.ExpandFolder();
    tree.EnsureVisible();
    disk.Folders["/home/ann/"] = {"docs", "Pics"};
    disk.Folders["/home/ann/Pics/"] = {};
    tree.Refresh();
    ASSERT_NE(tree.Current(), nullptr);
    EXPECT_EQ(tree.Current()->Path, "/home/ann/Pics/");
}

TEST_F(FolderTrees, A_folder_in_hand_that_is_listed_no_more_keeps_its_node)
{
    tree.SetFolder("/home/ann/docs/old/");
    disk.Secret = {"docs"};
    tree.Refresh();
    EXPECT_EQ(Sight(), "Home Pics docs old Places /");
    ASSERT_NE(tree.Current(), nullptr);
    EXPECT_EQ(tree.Current()->Path, "/home/ann/docs/old/");
    disk.Secret.clear();
    tree.Refresh();
    EXPECT_EQ(Sight(), "Home docs old Pics Places /");
}

TEST_F(FolderTrees, A_node_may_be_opened_when_something_lies_below_it)
{
    EXPECT_TRUE(tree.MayOpen(*tree.Roots()[0]));
    EXPECT_FALSE(tree.MayOpen(*tree.Roots()[1])); // none of the disk's
    tree.SetFolder("/etc/");
    EXPECT_FALSE(tree.MayOpen(*tree.Current()));
    disk.Folders["/etc/"] = {"new"};
    EXPECT_FALSE(tree.MayOpen(*tree.Current())); // looked at once
    tree.Refresh();
    EXPECT_TRUE(tree.MayOpen(*tree.Current()));
}

TEST_F(FolderTrees, A_slow_folder_is_looked_at_only_when_somebody_opens_it)
{
    places.push_back({"Share", "/mnt/usb/"});
    std::vector<std::string> looks;
    const auto slow = [](const std::string& path) { return path.starts_with("/mnt/usb/"); };
    tree.Source.IsSlow = slow;
    const auto hasChildren = tree.Source.HasChildren;
    tree.Source.HasChildren = [&](const std::string& path) {
        looks.push_back(path);
        return hasChildren(path);
    };
    const auto isFolder = tree.Source.IsFolder;
    tree.Source.IsFolder = [&](const std::string& path) {
        looks.push_back(path);
        return isFolder(path);
    };
    disk.Folders["/mnt/usb/"] = {};
    tree.SetFolder("/mnt/");
    tree.ExpandFolder();
    for (FolderNode* node : tree.NodesInSight())
        EXPECT_EQ(tree.MayOpen(*node), !node->Path.empty() && node->Path != "/etc/") << node->Path;
    tree.Refresh();
    for (const auto* seen : {&looks, &disk.Listed})
        EXPECT_TRUE(std::none_of(seen->begin(), seen->end(), slow));
    FolderNode& share = *tree.Roots()[3];
    tree.Expand(share, true);
    EXPECT_EQ(disk.Listed.back(), "/mnt/usb/");
    EXPECT_FALSE(tree.MayOpen(share));
}

TEST_F(FolderTrees, A_slow_folder_that_was_gone_to_by_name_stays_without_a_look)
{
    disk.Secret = {"usb"};
    tree.Source.IsSlow = [](const std::string& path) { return path.starts_with("/mnt/usb/"); };
    tree.SetFolder("/mnt/usb/");
    tree.SetFolder("/etc/");
    disk.Folders.erase("/mnt/usb/"); // a look would find it gone
    tree.Refresh();
    EXPECT_EQ(Sight(), "Home Places / etc home mnt usb");
}

TEST_F(FolderTrees, A_closed_node_is_read_anew_after_a_refresh_when_it_is_opened)
{
    tree.SetFolder("/home/ann/docs/old/");
    tree.Expand(*tree.Roots()[0], false);
    disk.Folders["/home/ann/"] = {"other"};
    tree.Refresh();
    EXPECT_EQ(Sight(), "Home Places /");
    tree.Expand(*tree.Roots()[0], true);
    EXPECT_EQ(Sight(), "Home other Places /");
}

TEST_F(FolderTrees, The_host_hears_before_and_after_nodes_change)
{
    log.On(tree.NodesAboutToChange, "before");
    log.On(tree.NodesChanged, "after");
    tree.Roots();
    EXPECT_EQ(log.Take(), "before after");
    tree.Fill(*tree.Roots()[0]);
    tree.Fill(*tree.Roots()[0]);
    EXPECT_EQ(log.Take(), "before after");
    tree.Refresh();
    EXPECT_EQ(log.Take(), "before after");
}

TEST_F(FolderTrees, EnsureVisible_opens_what_is_above_and_asks_the_host)
{
    tree.SetFolder("/home/ann/docs/old/");
    tree.Expand(*tree.Roots()[0], false);
    std::string shown;
    tree.ShowNode = [&](FolderNode& node) { shown = node.Path; };
    tree.EnsureVisible();
    EXPECT_EQ(shown, "/home/ann/docs/old/");
    EXPECT_EQ(Sight(), "Home docs old Pics Places /");
}

TEST_F(FolderTrees, A_handler_may_go_to_another_folder)
{
    tree.FolderClick = [&](const std::string& path) {
        if (path == "/etc/")
            tree.SetFolder("/mnt/");
    };
    tree.SetFolder("/etc/");
    EXPECT_EQ(log.Take(), "[/mnt/] [/etc/]");
    EXPECT_EQ(tree.Folder(), "/mnt/");
}

TEST(FolderTree, A_tree_without_a_source_is_empty)
{
    Form form("frm");
    FolderTree tree(form, "ftv");
    EXPECT_TRUE(tree.Roots().empty());
    EXPECT_FALSE(tree.SetFolder("/"));
    tree.Refresh();
    tree.ExpandFolder();
    tree.PersonKey({keyDown, shiftNone, 0});
    EXPECT_EQ(tree.Folder(), "");
}

} // namespace
} // namespace tavo
