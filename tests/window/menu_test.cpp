#include "window/person.h"

#include "core/commands.h"
#include "hosts/qt/bar_view.h"
#include "hosts/qt/list_page.h"
#include "hosts/qt/qt_text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>

#include <algorithm>
#include <map>

namespace tavo {

using Strings = std::vector<std::string>;

namespace {

const Strings threeFiles = {"a.txt", "b.txt", "c.txt"};

// The caption of an entry as it is now: some change with the state. The letter
// is that of an entry that can be chosen.
std::string Caption_Of(Person& p, const Command& command)
{
    const Tool& tool = *p.Main().atbMain.Find(command.Id);
    std::string caption = tool.Caption.Get();
    if (!tool.Enabled)
        std::erase(caption, '&');
    return command.Shortcut.empty() ? caption : caption + "\t" + std::string(command.Shortcut);
}

// What a menu is to hold, as lines: captions, "-", captions with shortcuts.
Strings Planned(Person& p, std::string_view menu)
{
    Strings lines;
    for (const BandPlan& plan : CommandBands()) {
        if (plan.Name != menu)
            continue;
        for (const std::string_view id : plan.Tools) {
            if (id.empty())
                break;
            const Command* command = Command_Find(id);
            lines.push_back(command ? Caption_Of(p, *command) : "-");
        }
    }
    return lines;
}

Strings Held(const QWidget& menu)
{
    Strings lines;
    for (const QAction* action : menu.actions())
        lines.push_back(action->isSeparator() ? "-" : action->text().toStdString());
    return lines;
}

// All menus below this one, by the ids of their tools.
void Collect(const QWidget& menu, std::map<std::string, QMenu*>& found)
{
    for (const QAction* action : menu.actions())
        if (QMenu* below = action->menu()) {
            found[action->objectName().toStdString()] = below;
            Collect(*below, found);
        }
}

QMenu* OpenMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

// A key in the menu that is up.
void MenuKey(Person& p, Qt::Key key)
{
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, key);
    p.Settle();
}

QAction* EntryOf(const QMenu& menu, const std::string& id)
{
    for (QAction* action : menu.actions())
        if (action->objectName().toStdString() == id)
            return action;
    return nullptr;
}

// The letters that two entries or more have for their own.
std::string Clashes(const Strings& captions)
{
    std::map<char, int> counts;
    for (const std::string& caption : captions)
        for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
            if (caption[at] != '&')
                continue;
            if (caption[++at] != '&')
                ++counts[static_cast<char>(std::toupper(caption[at]))];
        }
    std::string letters;
    for (const auto& [letter, count] : counts)
        if (count > 1)
            letters += letter;
    return letters;
}

} // namespace

TEST(WindowMenu, Each_menu_holds_what_is_planned_for_it)
{
    Person p("window_menus", threeFiles);
    EXPECT_EQ(Held(*p.Window().menuBar()), Planned(p, "Menu"));
    std::map<std::string, QMenu*> menus;
    Collect(*p.Window().menuBar(), menus);
    EXPECT_EQ(menus.size(), 15u);
    for (const auto& [id, menu] : menus)
        EXPECT_EQ(Held(*menu), Planned(p, id)) << id;
}

TEST(WindowMenu, Alt_with_a_letter_opens_each_menu_in_sight)
{
    struct Row {
        Qt::Key Letter;
        const char* Id;
    };
    const Row rows[] = {
        {Qt::Key_F, "ID_mnuFile"},      {Qt::Key_E, "ID_mnuEdit"},   {Qt::Key_V, "ID_mnuView"},
        {Qt::Key_A, "ID_mnuFavorites"}, {Qt::Key_W, "ID_mnuWindow"}, {Qt::Key_H, "ID_mnuHelp"},
    };
    Person p("window_alt", threeFiles);
    p.ClickRow("lsvSelMain", 1);
    for (const Row& row : rows) {
        p.Key(row.Letter, Qt::AltModifier);
        QMenu* menu = OpenMenu();
        ASSERT_NE(menu, nullptr) << row.Id;
        EXPECT_EQ(menu->menuAction()->objectName().toStdString(), row.Id);
        MenuKey(p, Qt::Key_Escape);
        EXPECT_EQ(OpenMenu(), nullptr) << row.Id;
        p.Table("lsvSelMain").setFocus();
        p.Settle();
    }
}

TEST(WindowMenu, Arrows_walk_the_menus_and_Return_chooses)
{
    Person p("window_menu_keys", threeFiles);
    p.ClickRow("lsvSelMain", 1);
    p.Key(Qt::Key_F, Qt::AltModifier);
    ASSERT_NE(OpenMenu(), nullptr);
    MenuKey(p, Qt::Key_Right);
    ASSERT_NE(OpenMenu(), nullptr);
    EXPECT_EQ(OpenMenu()->menuAction()->objectName(), "ID_mnuEdit");
    MenuKey(p, Qt::Key_Up); // around to the last
    EXPECT_EQ(OpenMenu()->activeAction()->objectName(), "ID_SelInvert");
    MenuKey(p, Qt::Key_Return);
    EXPECT_EQ(OpenMenu(), nullptr);
    EXPECT_EQ(p.Selected(p.Main().lsvSelMain), (std::vector<int>{2, 3}));
    EXPECT_EQ(p.ShownPanel(3), "Selected: 2");
}

TEST(WindowMenu, A_disabled_entry_refuses_mouse_and_keys)
{
    Person p("window_disabled", threeFiles);
    p.ClickRow("lsvSelMain", 1);
    int clicks = 0;
    const Connection heard = p.Main().atbMain.ToolClick.Listen([&](Tool&) { ++clicks; });
    p.Key(Qt::Key_V, Qt::AltModifier);
    QMenu* view = OpenMenu();
    ASSERT_NE(view, nullptr);
    for (const char* id : {"ID_mnuRenMode", "ID_ArrangeList", "ID_ArrangeDetails",
                           "ID_ArrangeThumb", "ID_mnuArrange"}) {
        QAction* entry = EntryOf(*view, id);
        ASSERT_NE(entry, nullptr) << id;
        EXPECT_FALSE(entry->isEnabled()) << id;
        QTest::mouseClick(view, Qt::LeftButton, {}, view->actionGeometry(entry).center());
        p.Settle();
        EXPECT_EQ(OpenMenu(), view) << id;
    }
    EXPECT_EQ(clicks, 0);
    MenuKey(p, Qt::Key_Escape);
}

TEST(WindowMenu, The_menus_of_the_rename_screen_come_and_go_with_the_screen)
{
    const auto seen = [](Person& p) {
        Strings ids;
        for (const QAction* action : p.Window().menuBar()->actions())
            if (action->isVisible())
                ids.push_back(action->objectName().toStdString().substr(6));
        return ids;
    };
    Person p("window_menu_screen", threeFiles);
    const Strings atSelection = {"File", "Edit", "View", "Favorites", "Window", "Help"};
    EXPECT_EQ(seen(p), atSelection);
    p.RenameAllFiles();
    EXPECT_EQ(seen(p), (Strings{"File", "Edit", "View", "Favorites", "Thumbnail", "TSchemes",
                                "Templates", "Window", "Help"}));
    p.Press("ID_NewList");
    EXPECT_EQ(seen(p), atSelection);
}

TEST(WindowMenu, The_description_of_an_entry_stands_in_the_status_bar_meanwhile)
{
    Person p("window_descriptions", threeFiles);
    p.ClickRow("lsvSelMain", 1);
    const std::string before = p.ShownPanel(2);
    EXPECT_EQ(before, "Select Files for New List");
    p.Key(Qt::Key_F, Qt::AltModifier);
    ASSERT_NE(OpenMenu(), nullptr);
    for (const char* id : {"ID_DefSave", "ID_DefLoad", "ID_ExportList", "ID_Exit"}) {
        if (OpenMenu()->activeAction()->objectName() != id)
            MenuKey(p, Qt::Key_Down);
        EXPECT_EQ(OpenMenu()->activeAction()->objectName(), id);
        EXPECT_EQ(p.ShownPanel(2), Command_Find(id)->Description);
        EXPECT_EQ(p.Panel(2), before);
    }
    MenuKey(p, Qt::Key_Escape);
    p.Table("lsvSelMain").setFocus();
    p.Settle();
    EXPECT_EQ(p.ShownPanel(2), before);
}

TEST(WindowMenu, Text_labels_go_and_come_by_the_menu)
{
    const auto styleOf = [](Person& p, const std::string& id) {
        return p.ToolButton(id)->toolButtonStyle();
    };
    const auto toggle = [](Person& p) {
        p.Key(Qt::Key_V, Qt::AltModifier);
        MenuKey(p, Qt::Key_T);
        if (OpenMenu()->menuAction()->objectName() != "ID_mnuToolbars")
            MenuKey(p, Qt::Key_Right);
        ASSERT_EQ(OpenMenu()->menuAction()->objectName(), "ID_mnuToolbars");
        MenuKey(p, Qt::Key_T);
        EXPECT_EQ(OpenMenu(), nullptr);
    };
    Person p("window_labels", threeFiles);
    p.ClickRow("lsvSelMain", 1);
    const int before = p.Of<ListPage>("lsvSelMain").height();
    for (const char* id : {"ID_CreateList", "ID_SelAll", "ID_FilAdd", "ID_SelPreviewOn"})
        EXPECT_EQ(styleOf(p, id), Qt::ToolButtonTextUnderIcon) << id;
    toggle(p);
    EXPECT_EQ(p.Running().state.tbsTextLabels, 0);
    for (const char* id : {"ID_CreateList", "ID_SelClear", "ID_SelFolder", "ID_SelPreviewOn"})
        EXPECT_EQ(styleOf(p, id), Qt::ToolButtonIconOnly) << id;
    for (const char* id : {"ID_SelAll", "ID_FilAdd"})
        EXPECT_EQ(styleOf(p, id), Qt::ToolButtonTextOnly) << id;
    EXPECT_EQ(styleOf(p, "ID_SelUsePath"), Qt::ToolButtonTextBesideIcon); // none of theirs
    EXPECT_GT(p.Of<ListPage>("lsvSelMain").height(), before);
    toggle(p);
    EXPECT_EQ(p.Running().state.tbsTextLabels, 1);
    for (const char* id : {"ID_CreateList", "ID_SelAll", "ID_FilAdd", "ID_SelPreviewOn"})
        EXPECT_EQ(styleOf(p, id), Qt::ToolButtonTextUnderIcon) << id;
    EXPECT_EQ(p.Of<ListPage>("lsvSelMain").height(), before);
}

TEST(WindowMenu, The_address_band_goes_and_comes_by_the_menu)
{
    Person p("window_address_menu", threeFiles);
    p.ClickRow("lsvSelMain", 1);
    for (const bool shown : {false, true}) {
        p.Key(Qt::Key_V, Qt::AltModifier);
        MenuKey(p, Qt::Key_T);
        if (OpenMenu()->menuAction()->objectName() != "ID_mnuToolbars")
            MenuKey(p, Qt::Key_Right);
        MenuKey(p, Qt::Key_A);
        EXPECT_EQ(p.Of<QLineEdit>("ID_sAddress").isVisible(), shown);
        EXPECT_EQ(p.Running().state.tbsAddress, shown ? 1 : 0);
    }
    p.Key(Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(p.Of<QLineEdit>("ID_sAddress").hasFocus());
}

// The captions are laid down. In this menu two entries share a letter, and a key
// goes from the one to the other; anywhere else it chooses at once.
TEST(WindowMenu, Letters_clash_in_one_menu_alone)
{
    Person p("window_clashes", threeFiles);
    p.RenameAllFiles();
    const std::map<std::string, std::string> known = {{"ID_mnuView", "T"}};
    for (const BandPlan& plan : CommandBands()) {
        if (plan.Name != "Menu" && !plan.Name.starts_with("ID_mnu"))
            continue;
        const auto row = known.find(std::string(plan.Name));
        EXPECT_EQ(Clashes(Planned(p, plan.Name)), row == known.end() ? "" : row->second)
            << plan.Name;
    }
}

} // namespace tavo
