#include "window/dialog_person.h"

#include "hosts/qt/list_page.h"
#include "hosts/qt/qt_text.h"
#include "settings/frm_settings.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

// A person at the settings, with a few entries in each list.
class SettingsPerson : public DialogPerson {
public:
    explicit SettingsPerson(std::string_view test) : DialogPerson(test, {"a.txt"})
    {
        SharedState& state = Running().state;
        state.Favorites = {
            {}, {"Home", "/home/"}, {"照片 📷 صور", "/صور/照片/"}, {"Work", "/jobs/"}};
        state.Templates = {{}, {"Numbers", "<#>:<OE>"}, {"Plain", "<ON>:<OE>"}};
        state.ThumbSchemes.push_back({"Mine", "90,70,4,255,255,255,0,255,0,65280"});
        state.CaseWordList = {"", "and", "of"};
    }

    FrmSettings& Form() { return Running().Settings(); }
    void AtPage(SettingsPage page, std::function<void()> step)
    {
        At([this, page] { Settings_Open(Running(), page); }, std::move(step));
    }
    QTabWidget& Tabs() { return In<QTabWidget>("ataSettings"); }
    void ClickTab(int page)
    {
        QTabBar& bar = *Tabs().tabBar();
        ClickAt(bar, bar.tabRect(page).center());
    }
    void ClickListRow(int page, int row)
    {
        QTableView& table = In<ListPage>(Form().lsvSettings[page].FullName()).Details();
        ClickAt(*table.viewport(), table.visualRect(table.model()->index(row - 1, 0)).center());
    }
    Texts Rows(int page) { return Names(Form().lsvSettings[page]); }
    std::string Shown(const std::string& box) { return FromQt(In<QLineEdit>(box).text()); }
    std::string Ini() { return Folder().Has("app/Tavo.ini") ? Folder().Read("app/Tavo.ini") : ""; }
};

// The dialog as it was left by the steps.
void Leave(SettingsPerson& p)
{
    p.KeyIn(Qt::Key_Escape);
}

} // namespace

TEST(WindowSettings, A_click_on_a_tab_brings_its_page_to_the_front)
{
    SettingsPerson p("window_settings_tabs");
    p.AtPage(pageDefaults, [&] {
        for (int page = lastListPage; page >= firstListPage; --page) {
            p.ClickTab(page);
            const std::string number = "(" + std::to_string(page) + ")";
            EXPECT_EQ(p.Form().ataSettings.Selected(), page);
            EXPECT_TRUE(p.In("atpSettings" + number).isVisible());
            EXPECT_EQ(p.FocusName(), "txtName" + number);
        }
        EXPECT_FALSE(p.In("atpSettings(0)").isVisible());
        Leave(p);
    });
    EXPECT_FALSE(p.Form().Loaded());
}

TEST(WindowSettings, Keys_go_to_the_pages)
{
    struct Row {
        Qt::Key Key;
        Qt::KeyboardModifiers Held;
        int Page;
    };
    SettingsPerson p("window_settings_keys");
    p.AtPage(pageDefaults, [&] {
        for (const Row& row :
             {Row{Qt::Key_V, Qt::AltModifier, pageFavorites},
              Row{Qt::Key_W, Qt::AltModifier, pageWindows},
              Row{Qt::Key_T, Qt::AltModifier, pageTemplates},
              Row{Qt::Key_S, Qt::AltModifier, pageSchemes},
              Row{Qt::Key_F, Qt::AltModifier, pageFilters},
              Row{Qt::Key_D, Qt::AltModifier, pageDefaults},
              Row{Qt::Key_Tab, Qt::ControlModifier, pageTemplates},
              Row{Qt::Key_Tab, Qt::ControlModifier, pageFavorites},
              Row{Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, pageTemplates},
              Row{Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, pageDefaults},
              Row{Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, pageWindows}}) {
            p.KeyIn(row.Key, row.Held);
            EXPECT_EQ(p.Form().ataSettings.Selected(), row.Page);
            EXPECT_EQ(p.Tabs().currentIndex(), row.Page);
        }
        Leave(p);
    });
}

TEST(WindowSettings, The_arrows_walk_the_tabs)
{
    SettingsPerson p("window_settings_arrows");
    p.AtPage(pageDefaults, [&] {
        p.ClickTab(pageDefaults);
        EXPECT_EQ(p.FocusName(), "ataSettings");
        p.KeyIn(Qt::Key_Right);
        EXPECT_EQ(p.Tabs().currentIndex(), pageTemplates);
        EXPECT_EQ(p.Form().CurPage, pageTemplates);
        Leave(p);
    });
}

TEST(WindowSettings, A_row_is_added_and_saved_by_the_keys_alone)
{
    SettingsPerson p("window_settings_add");
    p.AtPage(pageFavorites, [&] {
        p.KeyIn(Qt::Key_C, Qt::AltModifier);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return p.Form().txtName[pageFavorites].Text.Get().empty(); }));
        p.TypeHere("Music");
        p.KeyIn(Qt::Key_Tab);
        p.TypeHere("/music/");
        p.KeyIn(Qt::Key_A, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return p.Rows(pageFavorites).size() == 4; }));
        p.Wait();
        for (int i = 0; i < 9 && p.FocusName() != "cmdOk"; ++i)
            p.KeyIn(Qt::Key_Tab);
        p.KeyIn(Qt::Key_Return);
    });
    ASSERT_EQ(p.Running().state.Favorites.size(), 5U);
    EXPECT_EQ(p.Running().state.Favorites[4].Name, "Music");
    EXPECT_EQ(p.Running().state.Favorites[4].Data, "/music/");
    EXPECT_NE(p.Ini().find("Music=/music/"), std::string::npos) << p.Ini();
}

TEST(WindowSettings, Escape_saves_nothing)
{
    SettingsPerson p("window_settings_escape");
    p.AtPage(pageFavorites, [&] {
        p.ClickIn("cmdRemove(2)");
        EXPECT_EQ(p.Rows(pageFavorites).size(), 2U);
        Leave(p);
    });
    EXPECT_EQ(p.Running().state.Favorites.size(), 4U);
    EXPECT_EQ(p.Ini(), "");
}

TEST(WindowSettings, The_old_page_stays_in_front_until_its_row_is_asked_for)
{
    SettingsPerson p("window_settings_ask");
    p.AtPage(pageFavorites, [&] {
        p.Retype("txtName(2)", "House");
        int inFront = -1;
        p.InNextOver([&](QWidget& over) {
            inFront = p.Tabs().currentIndex();
            auto& box = dynamic_cast<QMessageBox&>(over);
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        p.ClickTab(pageFilters);
        EXPECT_EQ(inFront, pageFavorites);
        EXPECT_EQ(p.Tabs().currentIndex(), pageFilters);
        EXPECT_EQ(p.FocusName(), "txtName(3)");
        EXPECT_EQ(p.Rows(pageFavorites).front(), "House");
        Leave(p);
    });
}

TEST(WindowSettings, A_key_that_a_box_refuses_is_told)
{
    SettingsPerson p("window_settings_refused");
    p.AtPage(pageFavorites, [&] {
        p.Retype("txtData(2)", "a");
        p.AnswerOver("OK");
        p.TypeHere("*");
        p.TypeHere("b");
        EXPECT_EQ(p.Shown("txtData(2)"), "ab");
        p.ClickIn("txtName(2)");
        p.AnswerOver("OK");
        p.TypeHere("=");
        Leave(p);
    });
    EXPECT_EQ(p.BoxTexts,
              (QStringList{"Paths may not Contain * ? < > | \" ", "Names may not Contain = "}));
}

TEST(WindowSettings, An_insert_label_puts_its_token_to_the_caret_and_takes_no_focus)
{
    SettingsPerson p("window_settings_insert");
    p.AtPage(pageTemplates, [&] {
        p.Retype("txtData(0)", "ab");
        p.KeyIn(Qt::Key_Left);
        p.ClickIn("lblTmpInsert(7)");
        EXPECT_EQ(p.FocusName(), "txtData(0)");
        p.TypeHere("c");
        EXPECT_EQ(p.Shown("txtData(0)"), "a<#>cb");
        p.In<QComboBox>("cboMode").setFocus();
        p.KeyIn(Qt::Key_Down);
        EXPECT_FALSE(p.In("lblTmpInsert(7)").isEnabled());
        EXPECT_EQ(p.In("txtData(0)").accessibleName(), "Search");
        EXPECT_EQ(p.In("txtData(1)").accessibleName(), "Replace");
        p.Form().ItemDirty = false;
        Leave(p);
    });
}

TEST(WindowSettings, A_locked_box_is_read_and_copied_and_not_changed)
{
    SettingsPerson p("window_settings_locked");
    const std::string scheme = p.Running().state.ThumbSchemes.at(1).Data;
    p.AtPage(pageSchemes, [&] {
        p.ClickIn("txtData(4)");
        EXPECT_EQ(p.FocusName(), "txtData(4)");
        p.TypeHere("x");
        p.KeyIn(Qt::Key_Delete);
        p.KeyIn(Qt::Key_A, Qt::ControlModifier);
        p.KeyIn(Qt::Key_C, Qt::ControlModifier);
        p.KeyIn(Qt::Key_X, Qt::ControlModifier);
        p.KeyIn(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(p.Shown("txtData(4)"), scheme);
        EXPECT_EQ(p.Form().txtData[pageSchemes].Text.Get(), scheme);
        EXPECT_EQ(FromQt(QGuiApplication::clipboard()->text()), scheme);
        EXPECT_TRUE(p.In<QLineEdit>("txtData(5)").isReadOnly());
        EXPECT_FALSE(p.In<QLineEdit>("txtData(2)").isReadOnly());
        Leave(p);
    });
}

TEST(WindowSettings, Labels_that_say_so_fill_their_boxes)
{
    SettingsPerson p("window_settings_labels");
    p.AtPage(pageFavorites, [&] {
        p.ClickIn("lblName(2)");
        EXPECT_EQ(p.Shown("txtName(2)"), "/home/");
        EXPECT_EQ(p.FocusName(), "txtName(2)");
        EXPECT_EQ(p.In("lblName(2)").toolTip(), "Click to Enter Path");
        p.Form().ItemDirty = false;
        p.ClickTab(pageSchemes);
        p.ClickIn("lblData(4)");
        EXPECT_EQ(p.Shown("txtData(4)"), p.Running().state.ThumbSchemes.at(0).Data);
        Leave(p);
    });
}

TEST(WindowSettings, A_row_is_clicked_and_moved)
{
    SettingsPerson p("window_settings_move");
    p.AtPage(pageFavorites, [&] {
        EXPECT_FALSE(p.In("cmdUp(2)").isEnabled());
        p.ClickListRow(pageFavorites, 2);
        EXPECT_EQ(p.Shown("txtName(2)"), "照片 📷 صور");
        EXPECT_EQ(p.Shown("txtData(2)"), "/صور/照片/");
        p.ClickIn("cmdUp(2)");
        EXPECT_EQ(p.Rows(pageFavorites), (Texts{"照片 📷 صور", "Home", "Work"}));
        EXPECT_FALSE(p.In("cmdUp(2)").isEnabled());
        p.ClickIn("cmdOk");
    });
    EXPECT_EQ(p.Running().state.Favorites.at(1).Name, "照片 📷 صور");
}

TEST(WindowSettings, A_row_has_the_icon_of_its_list)
{
    SettingsPerson p("window_settings_icons");
    p.AtPage(pageFavorites, [&] {
        p.Retype("txtName(2)", "New");
        p.ClickIn("cmdAdd(2)");
        for (const int page : {pageTemplates, pageFavorites}) {
            const auto& table = p.In<ListPage>(p.Form().lsvSettings[page].FullName()).Details();
            for (int row = 0; row < table.model()->rowCount(); ++row) {
                const QModelIndex cell = table.model()->index(row, 0);
                EXPECT_FALSE(cell.data(Qt::DecorationRole).value<QIcon>().isNull())
                    << page << " " << row;
            }
        }
        Leave(p);
    });
}

TEST(WindowSettings, Words_are_typed_chosen_and_removed)
{
    SettingsPerson p("window_settings_words");
    p.AtPage(pageDefaults, [&] {
        auto& list = p.In<QListWidget>("lstCaseWord");
        p.Retype("txtCaseWord", "the");
        p.KeyIn(Qt::Key_Return);
        EXPECT_TRUE(p.Form().Loaded());
        EXPECT_EQ(list.count(), 3);
        EXPECT_EQ(p.In<QLineEdit>("txtCaseWord").selectedText(), "the");
        p.ClickAt(*list.viewport(), list.visualItemRect(list.item(0)).center());
        EXPECT_EQ(p.Shown("txtCaseWord"), "and");
        EXPECT_EQ(p.FocusName(), "lstCaseWord");
        p.KeyIn(Qt::Key_Down);
        EXPECT_EQ(p.Shown("txtCaseWord"), "of");
        EXPECT_EQ(list.currentRow(), 1);
        p.ClickIn("cmdCWRemove");
        EXPECT_EQ(list.count(), 2);
        p.ClickIn("cmdOk");
    });
    EXPECT_EQ(p.Running().state.CaseWordList, (Texts{"", "and", "the"}));
}

TEST(WindowSettings, Options_are_ticked_and_saved)
{
    SettingsPerson p("window_settings_options");
    const bool before = p.Running().state.SupWarnRen;
    p.AtPage(pageDefaults, [&] {
        auto& box = p.In<QCheckBox>("chkSet(6)");
        EXPECT_EQ(box.isChecked(), before);
        p.ClickAt(box, {8, box.height() / 2});
        EXPECT_EQ(box.isChecked(), !before);
        p.ClickIn("cmdOk");
    });
    EXPECT_EQ(static_cast<bool>(p.Running().state.SupWarnRen), !before);
}

TEST(WindowSettings, Options_without_room_scroll)
{
    SettingsPerson p("window_settings_scroll");
    p.AtPage(pageDefaults, [&] {
        QWidget& room = p.In("picDefaults");
        const auto inSight = [&](const std::string& option) {
            QWidget& box = p.In(option);
            const QRect place(box.mapTo(&room, QPoint()), box.size());
            return room.rect().contains(place.adjusted(0, 0, room.width() - place.right() - 1, 0));
        };
        const auto options = p.Form().chkSet[11].FullName(), first = p.Form().chkSet[0].FullName();
        p.Dialog().resize(p.Dialog().sizeHint());
        p.Wait();
        EXPECT_FALSE(p.In("vsbDefaults").isVisible());
        EXPECT_TRUE(inSight(options));
        p.Dialog().resize(p.Dialog().minimumSizeHint());
        p.Wait();
        EXPECT_TRUE(p.In("vsbDefaults").isVisible());
        EXPECT_FALSE(inSight(options));
        p.In("chkSet(11)").setFocus();
        p.Wait();
        EXPECT_TRUE(inSight(options));
        EXPECT_FALSE(inSight(first));
        p.In<QScrollBar>("vsbDefaults").setValue(0);
        p.Wait();
        EXPECT_TRUE(inSight(first));
        EXPECT_EQ(p.Form().fraDefaults.Top.Get(), 0);
        Leave(p);
    });
}

TEST(WindowSettings, Everything_can_be_read_and_has_a_name)
{
    const QFont before = QApplication::font();
    for (const int points : {before.pointSize(), 2 * before.pointSize()}) {
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        SettingsPerson p("window_settings_names");
        p.AtPage(pageDefaults, [&] {
            EXPECT_EQ(p.Nameless(p.Form()), Texts{});
            for (int page = pageDefaults; page <= lastListPage; ++page) {
                p.ClickTab(page);
                EXPECT_EQ(p.CutTexts(), Texts{}) << page << " at " << points;
            }
            Leave(p);
        });
    }
    QApplication::setFont(before);
}

TEST(WindowSettings, Tab_walks_the_page_in_front)
{
    SettingsPerson p("window_settings_order");
    p.AtPage(pageFavorites, [&] {
        EXPECT_EQ(p.Stops(12), (Texts{"txtName(2)", "txtData(2)", "cmdAdd(2)", "cmdUpdate(2)",
                                      "cmdRemove(2)", "cmdNew(2)", "cmdOk", "cmdCancel", "cmdHelp",
                                      "ataSettings", "lsvSettings(2)", "cmdDown(2)"}));
        EXPECT_EQ(p.FocusName(), "txtName(2)");
        Leave(p);
    });
}

TEST(WindowSettings, It_comes_up_with_the_keys_at_its_tabs)
{
    SettingsPerson p("window_settings_first");
    p.AtPage(pageDefaults, [&] {
        EXPECT_EQ(p.Stops(3), (Texts{"ataSettings", "chkSet(0)", "chkSet(1)"}));
        p.KeyIn(Qt::Key_Space);
        EXPECT_EQ(p.FocusName(), "chkSet(2)");
        EXPECT_EQ(p.Form().chkSet[2].Value.Get(), p.Running().state.SaveDef ? 0 : 1);
        Leave(p);
    });
}

TEST(WindowSettings, A_scheme_is_edited_in_the_editor_over_it)
{
    SettingsPerson p("window_settings_scheme");
    p.AtPage(pageSchemes, [&] {
        p.At([&] { p.ClickIn("cmdEditScheme"); },
             [&] {
                 EXPECT_EQ(p.Dialog().windowTitle(), "Scheme Editor");
                 p.ClickIn("cmdCancel");
             });
        EXPECT_EQ(p.Shown("txtData(4)"), p.Running().state.ThumbSchemes.at(1).Data);
        Leave(p);
    });
}

} // namespace tavo
