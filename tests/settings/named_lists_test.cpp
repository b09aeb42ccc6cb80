#include "settings/named_lists.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class NamedLists : public testing::Test {
protected:
    ProgramRig rig{MemoryDisk::Flavour::Posix};
    Program& p = rig.Start();

    std::string Entries(const char* menu)
    {
        std::string text;
        for (const Tool* tool : p.main.atbMain.FindBand(menu)->Tools())
            text += (tool->Kind() == ToolKind::Separator ? "-" : tool->Name()) + " ";
        return text;
    }
    void Rebuild(const NamedList& list)
    {
        Menu_Rebuild(p.main.atbMain, list, "folder", "ID_Favorite", 4, "ID_mnuFavorites");
    }
};

NamedList List_Of(const std::vector<std::string>& names)
{
    NamedList list(1);
    for (const std::string& name : names)
        list.push_back({name, "/" + name + "/"});
    return list;
}

TEST_F(NamedLists, An_empty_list_shows_the_fixed_tools_and_no_separator)
{
    EXPECT_EQ(Entries("ID_mnuFavorites"), "ID_FavAdd ID_FavOrganize ");
}

TEST_F(NamedLists, Entries_stand_behind_one_separator)
{
    Rebuild(List_Of({"A", "B"}));
    EXPECT_EQ(Entries("ID_mnuFavorites"), "ID_FavAdd ID_FavOrganize - ID_Favorite1 ID_Favorite2 ");
    EXPECT_EQ(p.main.atbMain.Find("ID_Favorite2")->Caption.Get(), "B");
    EXPECT_EQ(p.main.atbMain.Find("ID_Favorite2")->IconName.Get(), "folder");
}

TEST_F(NamedLists, A_rebuild_follows_the_list)
{
    Rebuild(List_Of({"A", "B", "C"}));
    Rebuild(List_Of({"X"}));
    EXPECT_EQ(Entries("ID_mnuFavorites"), "ID_FavAdd ID_FavOrganize - ID_Favorite1 ");
    EXPECT_EQ(p.main.atbMain.Find("ID_Favorite1")->Caption.Get(), "X");
    EXPECT_EQ(p.main.atbMain.Find("ID_Favorite2"), nullptr);
    Rebuild(List_Of({"P", "Q"}));
    EXPECT_EQ(Entries("ID_mnuFavorites"), "ID_FavAdd ID_FavOrganize - ID_Favorite1 ID_Favorite2 ");
}

TEST_F(NamedLists, The_separator_stays_when_the_last_entry_goes)
{
    Rebuild(List_Of({"A"}));
    Rebuild(List_Of({}));
    EXPECT_EQ(Entries("ID_mnuFavorites"), "ID_FavAdd ID_FavOrganize - ");
    Rebuild(List_Of({"B"}));
    EXPECT_EQ(Entries("ID_mnuFavorites"), "ID_FavAdd ID_FavOrganize - ID_Favorite1 ");
}

TEST_F(NamedLists, Two_entries_of_one_name_reach_their_own_rows)
{
    Rebuild(List_Of({"Same", "Same"}));
    EXPECT_EQ(p.main.atbMain.Find("ID_Favorite1")->Caption.Get(), "Same");
    EXPECT_EQ(p.main.atbMain.Find("ID_Favorite2")->Caption.Get(), "Same");
}

TEST_F(NamedLists, Each_list_builds_its_own_menu)
{
    ProgramRig full(MemoryDisk::Flavour::Posix);
    Program& q = full.Start("", "[Favorites]\nF=/f/\n[Templates]\nT=a:b\n"
                                "[ThumbSchemes]\nS=1\n[Windows]\nW=0,0,0,0,0\n");
    struct Row {
        const char *Menu, *Last;
        std::size_t Count;
    };
    static constexpr Row rows[] = {
        {"ID_mnuFavorites", "ID_Favorite1", 4},
        {"ID_mnuTemplates", "ID_TmpLst1", 6},
        {"ID_mnuTSchemes", "ID_Scheme1", 4},
        {"ID_mnuWindow", "ID_Window1", 5},
    };
    for (const Row& row : rows) {
        const auto& tools = q.main.atbMain.FindBand(row.Menu)->Tools();
        ASSERT_EQ(tools.size(), row.Count) << row.Menu;
        EXPECT_EQ(tools.back()->Name(), row.Last);
        EXPECT_EQ(tools[tools.size() - 2]->Kind(), ToolKind::Separator) << row.Menu;
    }
}

TEST_F(NamedLists, A_menu_whose_separator_lies_among_the_entries_gets_it_again)
{
    const auto rebuild = [this](const NamedList& list) {
        Menu_Rebuild(p.main.atbMain, list, "", "ID_TmpLst", 5, "ID_mnuTemplates");
    };
    rebuild(List_Of({"A", "B"}));
    rebuild(List_Of({"C"}));
    EXPECT_EQ(Entries("ID_mnuTemplates"), "ID_TmpApply ID_TmpApplySel - ID_TmpOrg - ID_TmpLst1 ");
}

TEST_F(NamedLists, The_filter_box_begins_with_all_files)
{
    p.state.Filters = {{"All Files", "*.*"}, {"Pictures", "*.jpg;*.png"}};
    p.state.Filter = "x*";
    Filter_Rebuild(p);
    const ComboBox& box = *p.main.atbMain.Find("ID_sFilter")->Combo();
    EXPECT_EQ(box.Items(), (std::vector<std::string>{"All Files (*.*)", "Pictures (*.jpg;*.png)"}));
    EXPECT_EQ(box.ListIndex(), 0);
    EXPECT_EQ(p.state.Filter, "*.*");
}

TEST_F(NamedLists, Filling_the_filter_box_walks_nothing)
{
    rig.Disk.ForgetCalls();
    Filter_Rebuild(p);
    Filter_Rebuild(p);
    EXPECT_EQ(rig.Disk.Calls(), 0);
    EXPECT_FALSE(p.state.FilterFilling);
}

TEST_F(NamedLists, The_box_of_destinations_lists_the_favourites)
{
    p.state.Favorites = List_Of({"A", "B"});
    FavPath_Rebuild(p);
    EXPECT_EQ(p.main.cbomcdPath.Items(), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(p.main.cbomcdPath.ListIndex(), -1);
}

} // namespace
} // namespace tavo
