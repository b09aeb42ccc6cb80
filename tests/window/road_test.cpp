#include "window/person.h"

#include "hosts/qt/list_page.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace tavo {

using Strings = std::vector<std::string>;
using Rows = std::vector<int>;

namespace {

const Strings sixFiles = {"a.txt", "b.txt", "c.jpg", "d.jpg", "e.jpg", "f.mp3"};

QString Shown(QTableView& table, int row, int column)
{
    return table.model()->index(row - 1, column).data().toString();
}

} // namespace

TEST(WindowRoad, The_folder_of_the_command_line_is_shown_with_its_files)
{
    Person p("window_folder", sixFiles);
    QTableView& table = p.Table("lsvSelMain");
    ASSERT_EQ(table.model()->rowCount(), 6);
    EXPECT_EQ(Shown(table, 1, 0), "a.txt");
    EXPECT_EQ(Shown(table, 6, 0), "f.mp3");
    EXPECT_EQ(Shown(table, 1, 1).toStdString(), p.Folder().Path("files/"));
    EXPECT_TRUE(table.isVisible());
    EXPECT_FALSE(p.Of<ListPage>("lsvRename").isVisible());
    EXPECT_EQ(p.ShownPanel(1), "Total: 6");
    EXPECT_EQ(p.ShownPanel(2), "Select Files for New List");
    EXPECT_EQ(p.Window().windowTitle(), "Tavo");
}

TEST(WindowRoad, Names_of_any_bytes_are_shown_on_one_line)
{
    Person p("window_bytes", {"a\xFF.txt", "new\nline", "\xC3\xA4"});
    QTableView& table = p.Table("lsvSelMain");
    QStringList shown;
    for (int row = 1; row <= 3; ++row)
        shown.push_back(Shown(table, row, 0));
    shown.sort();
    const QString stray = QString("a") + QChar(0xDCFF) + ".txt";
    EXPECT_EQ(shown, (QStringList{stray, "new\u240Aline", "\u00e4"}));
}

TEST(WindowRoad, A_filter_typed_with_Return_walks_anew)
{
    Person p("window_filter", sixFiles);
    auto& box = *p.Of<QComboBox>("ID_sFilter").lineEdit();
    p.Click(box);
    box.selectAll();
    p.Type(box, "*.jpg");
    EXPECT_EQ(p.Main().lsvSelMain.Count(), 6);
    p.Key(Qt::Key_Return);
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), (Strings{"c.jpg", "d.jpg", "e.jpg"}));
    EXPECT_EQ(p.Table("lsvSelMain").model()->rowCount(), 3);
    EXPECT_EQ(p.ShownPanel(1), "Total: 3");
}

TEST(WindowRoad, The_mouse_selects_rows_with_Shift_and_Ctrl)
{
    struct Row {
        int Position;
        Qt::KeyboardModifiers Held;
        Rows Selected;
    };
    const Row rows[] = {
        {2, {}, {2}},
        {4, Qt::ShiftModifier, {2, 3, 4}},
        {6, Qt::ControlModifier, {2, 3, 4, 6}},
        {3, Qt::ControlModifier, {2, 4, 6}},
        {5, {}, {5}},
        {2, Qt::ShiftModifier, {2, 3, 4, 5}},
    };
    Person p("window_mouse", sixFiles);
    ListView& list = p.Main().lsvSelMain;
    for (const Row& row : rows) {
        p.ClickRow("lsvSelMain", row.Position, row.Held);
        EXPECT_EQ(p.Selected(list), row.Selected) << row.Position;
        EXPECT_EQ(list.SelectedItem(), row.Position);
        EXPECT_EQ(p.Panel(3), "Selected: " + std::to_string(row.Selected.size()));
    }
}

TEST(WindowRoad, A_click_on_one_of_several_selected_rows_leaves_it_alone)
{
    Person p("window_several", sixFiles);
    ListView& list = p.Main().lsvSelMain;
    p.ClickRow("lsvSelMain", 1);
    p.ClickRow("lsvSelMain", 4, Qt::ShiftModifier);
    QTableView& table = p.Table("lsvSelMain");
    const QPoint third = table.visualRect(table.model()->index(2, 0)).center();
    QTest::mousePress(table.viewport(), Qt::LeftButton, {}, third);
    EXPECT_EQ(p.Selected(list), (Rows{1, 2, 3, 4})); // it might begin a drag
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, third);
    EXPECT_EQ(p.Selected(list), (Rows{3}));
}

TEST(WindowRoad, A_click_beside_the_rows_takes_the_selection_away)
{
    Person p("window_beside", sixFiles);
    p.ClickRow("lsvSelMain", 2);
    QTableView& table = p.Table("lsvSelMain");
    const QPoint low(40, table.viewport()->height() - 4);
    ASSERT_FALSE(table.indexAt(low).isValid());
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, low);
    EXPECT_EQ(p.Selected(p.Main().lsvSelMain), Rows());
    EXPECT_EQ(p.Panel(3), "Selected: 0");
}

TEST(WindowRoad, A_drag_that_begins_beside_the_rows_selects_what_it_passes)
{
    Person p("window_band", sixFiles);
    QTableView& table = p.Table("lsvSelMain");
    const auto middle = [&](int row) {
        return table.visualRect(table.model()->index(row - 1, 0)).center();
    };
    QTest::mousePress(table.viewport(), Qt::LeftButton, {}, {40, table.viewport()->height() - 4});
    for (const int row : {6, 5, 4})
        QTest::mouseMove(table.viewport(), middle(row));
    p.Settle();
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, middle(4));
    EXPECT_EQ(p.Selected(p.Main().lsvSelMain), (Rows{4, 5, 6}));
}

TEST(WindowRoad, Keys_select_rows)
{
    Person p("window_keys", sixFiles);
    p.ClickRow("lsvSelMain", 2);
    ListView& list = p.Main().lsvSelMain;
    p.Key(Qt::Key_Down, Qt::ShiftModifier);
    p.Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(p.Selected(list), (Rows{2, 3, 4}));
    p.Key(Qt::Key_End);
    EXPECT_EQ(p.Selected(list), (Rows{6}));
    EXPECT_EQ(p.Table("lsvSelMain").currentIndex().row(), 5);
    p.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(p.Selected(list).size(), 6u);
    EXPECT_EQ(p.Panel(3), "Selected: 6");
}

TEST(WindowRoad, A_letter_goes_to_the_row_that_begins_with_it)
{
    Person p("window_letter", sixFiles);
    p.ClickRow("lsvSelMain", 1);
    QTest::keyClick(&p.Table("lsvSelMain"), 'e');
    p.Settle();
    EXPECT_EQ(p.Main().lsvSelMain.SelectedItem(), 5);
    EXPECT_EQ(p.Selected(p.Main().lsvSelMain), (Rows{5}));
}

TEST(WindowRoad, Files_are_renamed_by_a_template_typed_key_by_key)
{
    Person p("window_road", sixFiles);
    p.ClickRow("lsvSelMain", 3);
    p.ClickRow("lsvSelMain", 5, Qt::ShiftModifier);
    p.Press("ID_CreateList");
    ASSERT_EQ(p.Names(p.Main().lsvRename), (Strings{"c.jpg", "d.jpg", "e.jpg"}));
    EXPECT_TRUE(p.Table("lsvRename").isVisible());
    EXPECT_EQ(p.ShownPanel(1), "Total Files: 3");

    auto& name = p.Of<QLineEdit>("txtNameNum(0)");
    p.Click(name);
    p.Key(Qt::Key_A, Qt::ControlModifier);
    name.selectAll();
    const QString text = "x_<#>";
    const Strings previews = {"x.jpg", "x_.jpg", "x_<.jpg", "x_<#.jpg", "x_1.jpg"};
    for (int at = 0; at < text.size(); ++at) {
        p.Type(name, text.mid(at, 1));
        EXPECT_EQ(name.text(), text.left(at + 1));
        EXPECT_EQ(p.ShownPanel(2), previews[static_cast<std::size_t>(at)]);
    }

    p.AnswerNext("OK");
    p.Press("ID_RenAll");
    EXPECT_EQ(p.BoxTexts, QStringList{"Update All the Files?"});
    EXPECT_EQ(p.Of<QLabel>("lblActionInfo(0)").text(), "Finished! Click Done to Continue...");
    EXPECT_EQ(p.Of<QLabel>("lblActionInfo(1)").text(), "3");
    EXPECT_TRUE(p.Of<QPushButton>("cmdActDone").isVisible());
    EXPECT_FALSE(p.Of<QPushButton>("cmdActPause").isEnabled());
    EXPECT_FALSE(name.isEnabled());
    EXPECT_TRUE(p.Of<QPushButton>("cmdActDone").hasFocus());

    p.Key(Qt::Key_Return);
    EXPECT_FALSE(p.Of<QPushButton>("cmdActDone").isVisible());
    EXPECT_TRUE(name.isEnabled());
    EXPECT_EQ(p.Files(), (Strings{"a.txt", "b.txt", "f.mp3", "x_1.jpg", "x_2.jpg", "x_3.jpg"}));
    EXPECT_EQ(p.Folder().Read("files/x_2.jpg"), "d.jpg");
    QTableView& table = p.Table("lsvRename");
    EXPECT_EQ(Shown(table, 2, 0), "x_2.jpg");
    EXPECT_EQ(Shown(table, 2, 5), "d.jpg");
    EXPECT_EQ(table.model()->headerData(6, Qt::Horizontal).toString(), "Errors: ");
}

TEST(WindowRoad, A_question_answered_with_Cancel_changes_nothing)
{
    Person p("window_cancel", sixFiles);
    p.RenameAllFiles();
    p.AnswerNext("Cancel");
    p.Press("ID_RenAll");
    EXPECT_EQ(p.Files(), sixFiles);
    EXPECT_TRUE(p.Table("lsvRename").isVisible());
}

TEST(WindowRoad, The_Delete_key_asks_and_removes_rows)
{
    Person p("window_delete", sixFiles);
    p.RenameAllFiles();
    p.ClickRow("lsvRename", 2);
    QStringList texts;
    p.InNextDialog([&](QWidget& dialog) {
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            texts.push_back(label->text());
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdRemove(1)"), Qt::LeftButton);
    });
    p.Key(Qt::Key_Delete);
    EXPECT_EQ(texts.size(), 3);
    EXPECT_EQ(p.Names(p.Main().lsvRename), (Strings{"a.txt", "c.jpg", "d.jpg", "e.jpg", "f.mp3"}));
    EXPECT_EQ(p.Files(), sixFiles);
}

TEST(WindowRoad, Escape_closes_the_dialog_of_the_Delete_key)
{
    Person p("window_delete_escape", sixFiles);
    p.RenameAllFiles();
    p.ClickRow("lsvRename", 2);
    bool seen = false;
    p.InNextDialog([&](QWidget& dialog) {
        seen = true;
        QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, Qt::Key_Escape);
    });
    p.Key(Qt::Key_Delete);
    EXPECT_TRUE(seen);
    EXPECT_EQ(p.Main().lsvRename.Count(), 6);
}

TEST(WindowRoad, A_header_that_is_clicked_sorts_and_bears_the_mark)
{
    Person p("window_sort", sixFiles);
    p.RenameAllFiles();
    QHeaderView& header = *p.Table("lsvRename").horizontalHeader();
    const auto click = [&](int column) {
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(column) + 20, header.height() / 2});
        p.Settle();
    };
    EXPECT_FALSE(header.isSortIndicatorShown());
    click(3);
    EXPECT_EQ(p.Names(p.Main().lsvRename),
              (Strings{"c.jpg", "d.jpg", "e.jpg", "f.mp3", "a.txt", "b.txt"}));
    EXPECT_TRUE(header.isSortIndicatorShown());
    EXPECT_EQ(header.sortIndicatorSection(), 3);
    click(3);
    EXPECT_EQ(p.Names(p.Main().lsvRename),
              (Strings{"a.txt", "b.txt", "f.mp3", "c.jpg", "d.jpg", "e.jpg"}));
    EXPECT_EQ(Shown(p.Table("lsvRename"), 3, 0), "f.mp3");
}

TEST(WindowRoad, Selected_rows_go_down_and_up_by_the_buttons)
{
    Person p("window_move", sixFiles);
    p.RenameAllFiles();
    p.ClickRow("lsvRename", 2);
    auto& distance = p.Of<QLineEdit>("ID_SelDistance");
    p.Click(distance);
    EXPECT_EQ(distance.selectedText(), "1"); // selected whole by the program
    p.Type(distance, "3");
    p.Press("ID_SelUp");
    EXPECT_EQ(p.Names(p.Main().lsvRename),
              (Strings{"a.txt", "c.jpg", "d.jpg", "e.jpg", "b.txt", "f.mp3"}));
    EXPECT_EQ(p.Selected(p.Main().lsvRename), (Rows{5}));
    p.Press("ID_SelDown");
    EXPECT_EQ(p.Names(p.Main().lsvRename), sixFiles);
    EXPECT_EQ(Shown(p.Table("lsvRename"), 2, 0), "b.txt");
}

} // namespace tavo
