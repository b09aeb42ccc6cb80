#include "window/person.h"

#include "hosts/qt/bar_view.h"
#include "hosts/qt/folder_view.h"
#include "hosts/qt/list_page.h"
#include "hosts/qt/parts.h"
#include "hosts/qt/qt_text.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTimer>

namespace tavo {

using Strings = std::vector<std::string>;

namespace {

const Strings threeFiles = {"a.txt", "b.txt", "c.txt"};

// Drops these paths on a widget, as another program would.
bool Drop(QWidget& target, const Strings& paths)
{
    QMimeData files;
    files.setData("text/uri-list", UriList_Of(paths));
    const QPoint middle = target.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted() || enter.dropAction() != Qt::CopyAction)
        return false;
    QDropEvent drop(middle, Qt::CopyAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
    return drop.isAccepted();
}

} // namespace

TEST(WindowInput, A_character_that_no_name_may_hold_is_refused_with_a_message)
{
    Person p("window_slash", threeFiles);
    p.RenameAllFiles();
    auto& name = p.Of<QLineEdit>("txtNameNum(0)");
    p.Click(name);
    name.selectAll();
    p.Type(name, "x");
    p.AnswerNext("OK");
    p.Type(name, "/");
    ASSERT_EQ(p.BoxTexts.size(), 1);
    EXPECT_TRUE(p.BoxTexts[0].startsWith("File Names may not Contain"));
    EXPECT_EQ(name.text(), "x");
    EXPECT_EQ(p.Main().txtNameNum[0].Text.Get(), "x");
}

TEST(WindowInput, What_is_pasted_is_cut_to_the_room_of_the_box)
{
    Person p("window_room", threeFiles);
    p.RenameAllFiles();
    TextBox& box = p.Main().txtNameNum[0];
    auto& name = p.Of<QLineEdit>("txtNameNum(0)");
    box.MaxLength = 4;
    box.Text = "ad";
    p.Click(name);
    name.setCursorPosition(1);
    QGuiApplication::clipboard()->setText("\u00e4\U0001F600y");
    name.paste();
    p.Settle();
    EXPECT_EQ(name.text(), "a\u00e4\U0001F600d");
    EXPECT_EQ(box.Text.Get(), "a\xC3\xA4\xF0\x9F\x98\x80"
                              "d");
    EXPECT_EQ(box.SelStart(), 3);
    p.Type(name, "z");
    EXPECT_EQ(name.text(), "a\u00e4\U0001F600d");
}

TEST(WindowInput, A_text_set_by_the_program_may_be_longer_than_the_box_has_room_for)
{
    Person p("window_longer", threeFiles);
    p.RenameAllFiles();
    p.Main().txtNameNum[0].MaxLength = 2;
    p.Main().txtNameNum[0].Text = "12345";
    p.Settle();
    EXPECT_EQ(p.Of<QLineEdit>("txtNameNum(0)").text(), "12345");
}

TEST(WindowInput, Typing_beside_characters_of_two_units_and_stray_bytes_keeps_them)
{
    const std::string odd = "a\xF0\x9F\x98\x80\xFFz";
    Person p("window_units", threeFiles);
    p.RenameAllFiles();
    TextBox& box = p.Main().txtNameNum[0];
    auto& name = p.Of<QLineEdit>("txtNameNum(0)");
    p.Click(name);
    box.Text = odd;
    box.Select(3, 0);
    p.Settle();
    EXPECT_EQ(name.cursorPosition(), 4);
    p.Type(name, "-");
    EXPECT_EQ(box.Text.Get(), "a\xF0\x9F\x98\x80\xFF-z");
    p.Key(Qt::Key_Left);
    p.Key(Qt::Key_Left);
    EXPECT_EQ(box.SelStart(), 2);
    p.Key(Qt::Key_Backspace);
    EXPECT_EQ(box.Text.Get(), "a\xFF-z");
}

TEST(WindowInput, Cut_copy_paste_and_undo_go_through_the_program)
{
    Person p("window_clip", threeFiles);
    p.RenameAllFiles();
    auto& name = p.Of<QLineEdit>("txtNameNum(0)");
    p.Click(name);
    name.selectAll();
    p.Type(name, "one");
    name.setSelection(0, 2);
    p.Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(name.text(), "e");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "on");
    p.Key(Qt::Key_End);
    p.Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(name.text(), "eon");
    p.Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(name.text(), "e");
    EXPECT_EQ(p.Main().txtNameNum[0].Text.Get(), "e");
}

TEST(WindowInput, Tools_take_no_focus_from_a_box)
{
    Person p("window_focus", threeFiles);
    p.RenameAllFiles();
    auto& name = p.Of<QLineEdit>("txtNameNum(0)");
    p.Click(name);
    name.selectAll();
    p.Type(name, "n");
    p.Click(p.Of<LinkButton>("lblTmpInsert(1)"));
    EXPECT_EQ(name.text(), "n<#>");
    p.Press("ID_AutoFill");
    EXPECT_TRUE(name.hasFocus());
    EXPECT_EQ(p.Main().ActiveControl(), &p.Main().txtNameNum[0]);
}

TEST(WindowInput, Tab_walks_in_the_order_of_the_form)
{
    Person p("window_tab", threeFiles);
    p.RenameAllFiles();
    p.Click(p.Of<QLineEdit>("txtNameNum(0)"));
    p.Key(Qt::Key_Tab);
    EXPECT_TRUE(p.Of<QLineEdit>("txtNameNum(1)").hasFocus());
    p.Key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(p.Of<QLineEdit>("txtNameNum(0)").hasFocus());
}

TEST(WindowInput, Alt_D_goes_to_the_address_and_Return_in_it_to_the_folder)
{
    Person p("window_address", threeFiles);
    p.Folder().Write("other/x.txt");
    p.ClickRow("lsvSelMain", 1);
    p.Key(Qt::Key_D, Qt::AltModifier);
    auto& address = p.Of<QLineEdit>("ID_sAddress");
    ASSERT_TRUE(address.hasFocus());
    address.setText(ToQt(p.Folder().Path("other")));
    emit address.textEdited(address.text());
    p.Key(Qt::Key_Return);
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), (Strings{"x.txt"}));
    EXPECT_EQ(address.text().toStdString(), p.Folder().Path("other/"));
}

TEST(WindowInput, Options_and_their_groups_follow_the_mouse)
{
    Person p("window_options", threeFiles);
    p.RenameAllFiles();
    p.Click(p.Of<QRadioButton>("optNNStyle(2)"));
    EXPECT_TRUE(p.Of<QRadioButton>("optNNStyle(2)").isChecked());
    EXPECT_FALSE(p.Of<QRadioButton>("optNNStyle(1)").isChecked());
    p.Click(p.Of<QRadioButton>("optNNStyle(2)"));
    EXPECT_TRUE(p.Of<QRadioButton>("optNNStyle(2)").isChecked());
    EXPECT_EQ(p.Running().state.nnStyle, 2);
}

TEST(WindowInput, The_mode_box_changes_the_mode_and_back)
{
    Person p("window_modes", threeFiles);
    p.RenameAllFiles();
    auto& modes = p.Of<QComboBox>("ID_RenameList");
    EXPECT_EQ(modes.currentText(), "Name & Number");
    p.Click(modes);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); // the list of it
    p.Settle();
    p.Key(Qt::Key_Up);
    EXPECT_EQ(p.Running().state.RenMode, modeMoveCopy);
    EXPECT_FALSE(p.Of<QLineEdit>("txtNameNum(0)").isVisible());
    EXPECT_EQ(p.Window().windowTitle(), "Tavo - Move & Copy");
    p.Key(Qt::Key_Down);
    EXPECT_TRUE(p.Of<QLineEdit>("txtNameNum(0)").isVisible());
}

TEST(WindowInput, A_wheel_over_a_box_without_the_focus_changes_no_choice)
{
    Person p("window_wheel", threeFiles);
    p.RenameAllFiles();
    auto& modes = p.Of<QComboBox>("ID_RenameList");
    QWheelEvent wheel(QPointF(5, 5), modes.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&modes, &wheel);
    EXPECT_EQ(modes.currentText(), "Name & Number");
}

TEST(WindowInput, A_click_in_the_tree_walks_its_folder)
{
    Person p("window_tree", threeFiles);
    p.Folder().Write("files/below/deep.txt");
    FolderView& tree = p.Of<FolderView>("ftvSelMain");
    FolderTree& control = p.Main().ftvSelMain;
    control.Refresh();
    ASSERT_TRUE(control.SetFolder(p.Folder().Path("files/")));
    control.ExpandFolder();
    p.Settle();
    const QModelIndex files = tree.currentIndex();
    ASSERT_EQ(files.data().toString(), "files");
    ASSERT_TRUE(tree.isExpanded(files));
    const QModelIndex below = tree.model()->index(0, 0, files);
    ASSERT_EQ(below.data().toString(), "below");
    tree.scrollTo(below);
    const QRect seen = tree.visualRect(below) & tree.viewport()->rect();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, seen.center());
    p.Settle();
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), (Strings{"deep.txt"}));
    EXPECT_EQ(p.Of<QLineEdit>("ID_sAddress").text().toStdString(), p.Folder().Path("files/below/"));
    p.Key(Qt::Key_Left);
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), threeFiles);
}

TEST(WindowInput, A_node_that_is_opened_in_the_view_reads_its_folders)
{
    Person p("window_expand", threeFiles);
    p.Folder().MakeFolder("files/one/two");
    FolderView& tree = p.Of<FolderView>("ftvSelMain");
    FolderTree& control = p.Main().ftvSelMain;
    control.Refresh();
    ASSERT_TRUE(control.SetFolder(p.Folder().Path("files/")));
    p.Settle();
    const QPersistentModelIndex files = tree.currentIndex();
    tree.setExpanded(files, true);
    p.Settle();
    ASSERT_EQ(tree.model()->rowCount(files), 1);
    EXPECT_TRUE(control.Current()->Expanded);
    tree.setExpanded(files, false);
    p.Settle();
    EXPECT_FALSE(control.Current()->Expanded);
}

TEST(WindowInput, Files_dropped_on_the_rename_list_are_asked_for_once_the_drop_is_over)
{
    Person p("window_drop", threeFiles);
    p.RenameAllFiles();
    p.Folder().Write("other/odd\xFF.txt");
    p.AnswerNext("OK");
    EXPECT_TRUE(Drop(*p.Table("lsvRename").viewport(), {p.Folder().Path("other/odd\xFF.txt")}));
    EXPECT_TRUE(p.BoxTexts.empty());
    p.Settle();
    EXPECT_EQ(p.BoxTexts, QStringList{"This will Clear the current File List!"});
    EXPECT_EQ(p.Names(p.Main().lsvRename), (Strings{"odd\xFF.txt"}));
}

TEST(WindowInput, A_file_dropped_on_the_selection_goes_to_its_folder)
{
    Person p("window_drop_select", threeFiles);
    p.Folder().Write("other/m.txt");
    p.Folder().Write("other/n.txt");
    EXPECT_TRUE(Drop(*p.Table("lsvSelMain").viewport(), {p.Folder().Path("other/n.txt")}));
    p.Settle();
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), (Strings{"m.txt", "n.txt"}));
    EXPECT_EQ(p.Selected(p.Main().lsvSelMain), std::vector<int>{2});
}

TEST(WindowInput, A_folder_dropped_on_the_selection_is_gone_into)
{
    Person p("window_drop_folder", threeFiles);
    p.Folder().Write("other/m.txt");
    EXPECT_TRUE(Drop(*p.Table("lsvSelMain").viewport(), {p.Folder().Path("other")}));
    p.Settle();
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), (Strings{"m.txt"}));
    EXPECT_EQ(p.Selected(p.Main().lsvSelMain), std::vector<int>());
    EXPECT_EQ(p.Of<QLineEdit>("ID_sAddress").text().toStdString(), p.Folder().Path("other/"));
}

TEST(WindowInput, Ctrl_with_a_digit_puts_in_a_place_holder)
{
    Person p("window_ctrl_digits", threeFiles);
    p.RenameAllFiles();
    for (const char* box : {"txtNameNum(0)", "txtNameNum(1)"}) {
        auto& line = p.Of<QLineEdit>(box);
        p.Click(line);
        line.selectAll();
        p.Key(Qt::Key_Delete);
        for (const Qt::Key digit : {Qt::Key_1, Qt::Key_2, Qt::Key_3})
            p.Key(digit, Qt::ControlModifier);
        EXPECT_EQ(line.text(), "<#><ON><OE>") << box;
    }
}

TEST(WindowInput, A_drag_of_anything_but_files_is_refused)
{
    Person p("window_drop_text", threeFiles);
    QMimeData text;
    text.setText("a.txt");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &text, Qt::LeftButton, {});
    QApplication::sendEvent(p.Table("lsvSelMain").viewport(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST(WindowInput, The_arrow_of_Views_brings_up_its_menu)
{
    Person p("window_views", threeFiles);
    p.RenameAllFiles();
    auto* views = dynamic_cast<ArrowButton*>(p.ToolButton("ID_Views"));
    ASSERT_NE(views, nullptr);
    QTest::mouseClick(views, Qt::LeftButton, {}, {views->width() - 3, views->height() / 2});
    p.Settle();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QStringList entries;
    QAction* list = nullptr;
    for (QAction* action : menu->actions()) {
        entries.push_back(action->text().remove('&'));
        if (action->objectName() == "ID_ArrangeList")
            list = action;
    }
    EXPECT_EQ(entries, (QStringList{"Large Icons", "Small Icons", "List", "Details", "Thumbnail"}));
    ASSERT_NE(list, nullptr);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(list).center());
    p.Settle();
    EXPECT_TRUE(p.Of<ListPage>("lsvRename").Packed().isVisible());
    EXPECT_TRUE(list->isChecked());
    EXPECT_EQ(p.Running().state.lsvView, 2);
}

TEST(WindowInput, F6_walks_from_bar_to_bar_and_Escape_comes_back)
{
    Person p("window_f6", threeFiles);
    p.ClickRow("lsvSelMain", 2);
    p.Key(Qt::Key_F6);
    EXPECT_TRUE(p.Window().menuBar()->hasFocus());
    p.Key(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), p.ToolButton("ID_CreateList"));
    p.Key(Qt::Key_Right);
    EXPECT_EQ(QApplication::focusWidget(), p.ToolButton("ID_SelAll"));
    p.Key(Qt::Key_Return);
    EXPECT_EQ(p.Selected(p.Main().lsvSelMain).size(), 3u);
    EXPECT_TRUE(p.Table("lsvSelMain").hasFocus());
    p.Key(Qt::Key_F6, Qt::ShiftModifier);
    p.Key(Qt::Key_F6, Qt::ShiftModifier);
    p.Key(Qt::Key_Escape);
    EXPECT_TRUE(p.Table("lsvSelMain").hasFocus());
}

TEST(WindowInput, The_split_bar_follows_the_mouse)
{
    Person p("window_split", threeFiles);
    auto& bar = p.Of<SplitBar>("lblSelDBX");
    FolderView& tree = p.Of<FolderView>("ftvSelMain");
    const int before = tree.width();
    const auto at = [&](int x) { return bar.mapFrom(bar.parentWidget(), QPoint(x, 100)); };
    QTest::mousePress(&bar, Qt::LeftButton, {}, at(before + 1));
    for (int step = 1; step <= 8; ++step) {
        QTest::mouseMove(&bar, at(before + step * step));
        p.Settle();
    }
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, at(before + 64));
    p.Settle();
    EXPECT_NEAR(tree.width(), before + 64, 16);
    EXPECT_EQ(p.Of<ListPage>("lsvSelMain").x(), tree.width() + bar.width());
}

TEST(WindowInput, A_timer_of_the_program_ticks_for_as_long_as_it_is_on)
{
    Person p("window_timer", threeFiles);
    Timer& timer = p.Main().tmrDateTimeClock;
    int ticks = 0;
    const Connection heard = timer.Tick.Listen([&] {
        if (++ticks == 3)
            timer.Enabled = false;
    });
    timer.Interval = 1;
    timer.Enabled = true;
    while (ticks < 3)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    p.Settle();
    for (const QTimer* clock : p.Window().findChildren<QTimer*>())
        EXPECT_FALSE(clock->isActive() && clock->interval() == 1);
    EXPECT_EQ(ticks, 3);
}

TEST(WindowInput, A_message_box_has_its_buttons_and_its_default)
{
    struct Row {
        BoxButtons Buttons;
        BoxAnswer Default;
        const char* DefaultText;
        QStringList Texts;
        BoxAnswer Closed;
    };
    const Row rows[] = {
        {BoxButtons::Ok, BoxAnswer::Ok, "OK", {"OK"}, BoxAnswer::Ok},
        {BoxButtons::OkCancel, BoxAnswer::Ok, "OK", {"OK", "Cancel"}, BoxAnswer::Cancel},
        {BoxButtons::OkCancel, BoxAnswer::Cancel, "Cancel", {"OK", "Cancel"}, BoxAnswer::Cancel},
        {BoxButtons::YesNo, BoxAnswer::Yes, "Yes", {"Yes", "No"}, BoxAnswer::No},
    };
    Person p("window_boxes", {});
    for (const Row& row : rows) {
        QStringList texts;
        QString byDefault, caption, text;
        p.InNextDialog([&](QWidget& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            for (QAbstractButton* button : box.buttons())
                texts.push_back(button->text().remove('&'));
            byDefault = box.defaultButton()->text().remove('&');
            caption = box.windowTitle();
            text = box.text();
            box.close();
        });
        const BoxAnswer answer =
            p.Running().Say("<b>a & b</b>", BoxIcon::Question, row.Buttons, row.Default);
        EXPECT_EQ(texts, row.Texts) << row.DefaultText;
        EXPECT_EQ(byDefault, row.DefaultText);
        EXPECT_EQ(answer, row.Closed) << row.DefaultText;
        EXPECT_EQ(caption, "Tavo Says...");
        EXPECT_EQ(text, "<b>a & b</b>");
    }
}

TEST(WindowInput, The_address_bar_comes_and_goes_and_the_list_takes_its_room)
{
    Person p("window_bars", threeFiles);
    const int before = p.Of<ListPage>("lsvSelMain").height();
    Tool& toggle = *p.Main().atbMain.Find("ID_tbAddress");
    const bool shown = p.Of<QLineEdit>("ID_sAddress").isVisible();
    ASSERT_TRUE(shown);
    p.Main().atbMain.PersonClick(toggle);
    p.Settle();
    EXPECT_FALSE(p.Of<QLineEdit>("ID_sAddress").isVisible());
    EXPECT_GT(p.Of<ListPage>("lsvSelMain").height(), before);
    p.Main().atbMain.PersonClick(toggle);
    p.Settle();
    EXPECT_EQ(p.Of<ListPage>("lsvSelMain").height(), before);
}

} // namespace tavo
