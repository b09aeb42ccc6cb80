#include "window/person.h"

#include "core/commands.h"
#include "hosts/qt/bar_view.h"
#include "hosts/qt/folder_view.h"
#include "hosts/qt/list_page.h"
#include "hosts/qt/parts.h"
#include "hosts/qt/qt_text.h"
#include "settings/named_lists.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QTableView>

namespace tavo {

using Strings = std::vector<std::string>;

namespace {

const Strings sixFiles = {"a.txt", "b.txt", "c.jpg", "d.jpg", "e.jpg", "f.mp3"};

void AddPictureFilter(Person& p)
{
    p.Running().state.Filters.push_back({"Pictures", "*.jpg"});
    Filter_Rebuild(p.Running());
    p.Settle();
}

// The list of a combo box, opened by its arrow.
QAbstractItemView& OpenByArrow(Person& p, QComboBox& combo)
{
    QTest::mouseClick(&combo, Qt::LeftButton, {}, {combo.width() - 6, combo.height() / 2});
    p.Settle();
    return *combo.view();
}

void ClickEntry(Person& p, QAbstractItemView& list, int row)
{
    const QPoint middle = list.visualRect(list.model()->index(row, 0)).center();
    // A release soon after the list has come up would belong to the press that
    // opened it.
    QTest::mouseMove(list.viewport(), middle);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
    p.Settle();
}

// Drags a bar from its middle by steps of some pixels, as often as told.
void Drag(Person& p, SplitBar& bar, QPoint step, int times)
{
    QPoint at = bar.mapToParent(bar.rect().center());
    QTest::mousePress(&bar, Qt::LeftButton, {}, bar.mapFromParent(at));
    for (int done = 0; done < times; ++done) {
        at += step;
        QTest::mouseMove(&bar, bar.mapFromParent(at));
        p.Settle();
    }
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, bar.mapFromParent(at));
    p.Settle();
}

} // namespace

TEST(WindowBar, A_filter_is_chosen_by_mouse)
{
    Person p("window_filter_mouse", sixFiles);
    AddPictureFilter(p);
    auto& combo = p.Of<QComboBox>("ID_sFilter");
    QAbstractItemView& list = OpenByArrow(p, combo);
    ASSERT_TRUE(list.isVisible());
    ASSERT_EQ(list.model()->rowCount(), p.Main().atbMain.Find("ID_sFilter")->Combo()->ListCount());
    ClickEntry(p, list, list.model()->rowCount() - 1);
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(combo.currentText(), "Pictures (*.jpg)");
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), (Strings{"c.jpg", "d.jpg", "e.jpg"}));
    EXPECT_EQ(p.ShownPanel(1), "Total: 3");
}

TEST(WindowBar, A_filter_is_chosen_by_keys)
{
    Person p("window_filter_keys", sixFiles);
    AddPictureFilter(p);
    auto& combo = p.Of<QComboBox>("ID_sFilter");
    p.Click(*combo.lineEdit());
    const int last = combo.count() - 1;
    for (int row = 1; row <= last; ++row)
        p.Key(Qt::Key_Down);
    EXPECT_EQ(combo.currentIndex(), last);
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), (Strings{"c.jpg", "d.jpg", "e.jpg"}));
    for (int row = 1; row <= last; ++row)
        p.Key(Qt::Key_Up);
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), sixFiles);
    EXPECT_TRUE(combo.hasFocus() || combo.lineEdit()->hasFocus());
}

TEST(WindowBar, Use_Filter_applies_what_is_typed_and_Clear_goes_back)
{
    Person p("window_use_filter", sixFiles);
    auto& line = *p.Of<QComboBox>("ID_sFilter").lineEdit();
    p.Click(line);
    line.selectAll();
    p.Type(line, "*.mp3");
    p.Press("ID_SelUseFilter");
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), (Strings{"f.mp3"}));
    EXPECT_EQ(line.text(), "*.mp3");
    p.Press("ID_SelClear");
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), sixFiles);
    EXPECT_EQ(p.Of<QComboBox>("ID_sFilter").currentIndex(), 0);
}

TEST(WindowBar, A_rename_mode_is_chosen_by_mouse)
{
    Person p("window_mode_mouse", sixFiles);
    p.RenameAllFiles();
    auto& modes = p.Of<QComboBox>("ID_RenameList");
    QAbstractItemView& list = OpenByArrow(p, modes);
    ASSERT_TRUE(list.isVisible());
    ASSERT_EQ(list.model()->rowCount(), 7);
    ClickEntry(p, list, modeSearchReplace);
    EXPECT_EQ(modes.currentText(), "Search & Replace");
    EXPECT_EQ(p.Running().state.RenMode, modeSearchReplace);
    EXPECT_EQ(p.Window().windowTitle(), "Tavo - Search & Replace");
}

TEST(WindowBar, The_distance_takes_digits_within_the_list)
{
    struct Row {
        const char *Typed, *Text;
    };
    const Row rows[] = {{"x-/", ""}, {"0", "1"}, {"4", "4"}, {"99", "6"}, {"a2b", "2"}};
    Person p("window_distance", sixFiles);
    p.RenameAllFiles();
    auto& box = p.Of<QLineEdit>("ID_SelDistance");
    p.Click(box);
    for (const Row& row : rows) {
        const QString before = box.text();
        box.selectAll();
        p.Type(box, row.Typed);
        EXPECT_EQ(box.text(), *row.Text ? QString(row.Text) : before) << row.Typed;
    }
}

TEST(WindowBar, A_tool_under_the_pointer_tells_what_it_does)
{
    Person p("window_hover", sixFiles);
    p.ClickRow("lsvSelMain", 1);
    const std::string before = p.ShownPanel(2);
    QWidget* const tools[] = {p.ToolButton("ID_SelAll"), p.ToolButton("ID_SelClear"),
                              &p.Of<QComboBox>("ID_sFilter")};
    const char* const ids[] = {"ID_SelAll", "ID_SelClear", "ID_sFilter"};
    for (int index = 0; index < 3; ++index) {
        QWidget& tool = *tools[index];
        const QPointF middle = tool.rect().center(), inWindow = tool.mapTo(&p.Window(), middle);
        QEnterEvent enter(middle, inWindow, tool.mapToGlobal(middle));
        QApplication::sendEvent(&tool, &enter);
        p.Settle();
        EXPECT_EQ(p.ShownPanel(2), Command_Find(ids[index])->Description) << ids[index];
        EXPECT_EQ(p.Panel(2), before);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&tool, &leave);
        p.Settle();
        EXPECT_EQ(p.ShownPanel(2), before) << ids[index];
    }
}

TEST(WindowBar, F6_reaches_every_band_and_each_tool_in_it)
{
    Person p("window_f6_all", sixFiles);
    p.ClickRow("lsvSelMain", 2);
    p.Key(Qt::Key_F6);
    p.Key(Qt::Key_F6);
    const char* const tools[] = {"ID_CreateList", "ID_SelAll",      "ID_SelClear",
                                 "ID_SelFolder",  "ID_SelSubFiles", nullptr};
    for (int index = 0; tools[index]; ++index) {
        EXPECT_EQ(QApplication::focusWidget(), p.ToolButton(tools[index])) << tools[index];
        p.Key(Qt::Key_Right);
    }
    auto& filter = p.Of<QComboBox>("ID_sFilter");
    EXPECT_TRUE(filter.hasFocus() || filter.lineEdit()->hasFocus());
    p.Key(Qt::Key_F6);
    EXPECT_TRUE(p.Of<QLineEdit>("ID_sAddress").hasFocus());
    p.Key(Qt::Key_F6);
    EXPECT_TRUE(p.Table("lsvSelMain").hasFocus());
}

TEST(WindowBar, F5_reads_the_tree_or_the_list_anew)
{
    Person p("window_f5", sixFiles);
    p.Folder().Write("files/new.txt");
    p.Folder().MakeFolder("files/sub");
    p.ClickRow("lsvSelMain", 1);
    p.Key(Qt::Key_F5);
    EXPECT_EQ(p.Main().lsvSelMain.Count(), 7);
    FolderTree& tree = p.Main().ftvSelMain;
    EXPECT_TRUE(tree.Current()->Children.empty());
    auto& view = p.Of<FolderView>("ftvSelMain");
    p.Folder().Write("files/newer.txt");
    tree.SetFocus();
    p.Settle();
    EXPECT_TRUE(view.hasFocus());
    p.Key(Qt::Key_F5);
    ASSERT_EQ(tree.Current()->Children.size(), 1u);
    EXPECT_EQ(p.Main().lsvSelMain.Count(), 7);
    EXPECT_EQ(view.model()->rowCount(view.currentIndex()), 1);
}

TEST(WindowBar, Ctrl_H_in_the_tree_shows_hidden_folders)
{
    Person p("window_hidden", sixFiles);
    p.Folder().MakeFolder("files/.secret");
    p.Folder().MakeFolder("files/sub");
    auto& view = p.Of<FolderView>("ftvSelMain");
    p.Main().ftvSelMain.SetFocus();
    p.Settle();
    for (const int rows : {1, 2, 1}) {
        p.Key(rows == 2 || p.Main().ftvSelMain.ShowsHidden ? Qt::Key_H : Qt::Key_F5,
              rows == 2 || p.Main().ftvSelMain.ShowsHidden ? Qt::ControlModifier : Qt::NoModifier);
        EXPECT_EQ(view.model()->rowCount(view.currentIndex()), rows);
        EXPECT_EQ(view.currentIndex().data().toString(), "files");
    }
}

TEST(WindowBar, The_keys_of_the_clipboard_do_nothing_on_the_list)
{
    Person p("window_clip_list", sixFiles);
    p.ClickRow("lsvSelMain", 2);
    QGuiApplication::clipboard()->setText("kept");
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_X, Qt::Key_V, Qt::Key_Z})
        p.Key(key, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "kept");
    EXPECT_EQ(p.Names(p.Main().lsvSelMain), sixFiles);
    EXPECT_EQ(p.Selected(p.Main().lsvSelMain), std::vector<int>{2});
}

TEST(WindowBar, Ctrl_A_selects_all_rows_also_from_a_box)
{
    Person p("window_ctrl_a", sixFiles);
    p.Click(p.Of<QLineEdit>("ID_sAddress"));
    p.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(p.Main().lsvSelMain.SelCount(), 6);
}

TEST(WindowBar, The_bar_between_tree_and_list_stops_short_of_its_limits)
{
    constexpr int limit = 1200 / 15, step = 7;
    Person p("window_limit_x", sixFiles);
    auto& bar = p.Of<SplitBar>("lblSelDBX");
    QWidget& tree = p.Of<FolderView>("ftvSelMain");
    QWidget& list = p.Of<ListPage>("lsvSelMain");
    const int both = tree.width() + list.width();
    Drag(p, bar, {-step, 0}, 100);
    EXPECT_GT(tree.width(), limit);
    EXPECT_LE(tree.width(), limit + 2 * step);
    Drag(p, bar, {step, 0}, 200);
    EXPECT_GT(list.width(), limit);
    EXPECT_LE(list.width(), limit + 2 * step);
    EXPECT_EQ(tree.width() + list.width(), both);
    EXPECT_EQ(list.x(), tree.width() + bar.width());
}

TEST(WindowBar, The_bar_over_the_preview_stops_short_of_its_limits)
{
    constexpr int limit = 1000 / 15, step = 7;
    Person p("window_limit_y", sixFiles);
    p.Press("ID_SelPreviewOn");
    auto& bar = p.Of<SplitBar>("lblSelDBY");
    QWidget& tree = p.Of<FolderView>("ftvSelMain");
    auto& panel = p.Of<QWidget>("picSelPreview");
    ASSERT_TRUE(bar.isVisible());
    Drag(p, bar, {0, -step}, 100);
    EXPECT_GT(tree.height(), limit);
    EXPECT_LE(tree.height(), limit + 2 * step);
    Drag(p, bar, {0, step}, 150);
    EXPECT_GT(panel.height(), limit);
    EXPECT_LE(panel.height(), limit + 2 * step);
    EXPECT_GE(panel.y(), bar.y());
}

TEST(WindowBar, The_preview_shows_what_is_a_picture_and_an_icon_for_the_rest)
{
    Person p("window_preview", {});
    QImage red(400, 100, QImage::Format_RGB32);
    red.fill(QColor(200, 0, 0));
    ASSERT_TRUE(red.save(ToQt(p.Folder().Path("files/a.png"))));
    p.Folder().Write("files/b.png", "broken");
    // The smallest gif: one dot.
    const unsigned char gif[] = {'G', 'I', 'F', '8', '9', 'a', 1, 0,   1, 0, 0x80, 0,
                                 0,   9,   9,   9,   0,   0,   0, ',', 0, 0, 0,    0,
                                 1,   0,   1,   0,   0,   2,   2, 'D', 1, 0, ';'};
    p.Folder().Write("files/c.gif", std::string(std::begin(gif), std::end(gif)));
    p.ClickRow("lsvSelMain", 1);
    p.Key(Qt::Key_F5);
    ASSERT_EQ(p.Main().lsvSelMain.Count(), 3);
    p.ClickRow("lsvSelMain", 1);
    auto& pane = p.Of<PicturePane>("imgSelPreview");
    EXPECT_FALSE(pane.isVisible());
    p.Press("ID_SelPreviewOn");
    ASSERT_TRUE(pane.isVisible());
    EXPECT_EQ(p.ToolButton("ID_SelPreviewOn"), nullptr);
    const QRect room = p.Of<QWidget>("picSelPreview").rect();
    EXPECT_EQ(pane.width(), room.width());
    EXPECT_NEAR(pane.height(), room.width() / 4, 1);
    EXPECT_NEAR(pane.geometry().center().y(), room.center().y(), 1);
    EXPECT_EQ(pane.grab().toImage().pixelColor(pane.rect().center() * pane.devicePixelRatio()),
              QColor(200, 0, 0));
    using Kind = PictureRef::Kind;
    const PictureBox& shown = p.Main().imgSelPreview;
    EXPECT_EQ(shown.Picture.Get().Shown, Kind::Bitmap);
    for (const int row : {2, 3}) {
        p.ClickRow("lsvSelMain", row);
        EXPECT_EQ(shown.Picture.Get().Shown, Kind::Icon) << row;
        EXPECT_TRUE(pane.isVisible()) << row;
    }
    p.Running().state.Gif = 1;
    p.ClickRow("lsvSelMain", 1);
    p.ClickRow("lsvSelMain", 3);
    EXPECT_EQ(shown.Picture.Get().Shown, Kind::Bitmap);
    p.Press("ID_SelPreviewOff");
    EXPECT_FALSE(pane.isVisible());
    EXPECT_NE(p.ToolButton("ID_SelPreviewOn"), nullptr);
}

TEST(WindowBar, Everything_on_the_bars_has_a_name_to_be_read_out)
{
    Person p("window_bar_names", sixFiles);
    for (const bool rename : {false, true}) {
        if (rename)
            p.RenameAllFiles();
        for (const BarView* bar : p.Window().findChildren<BarView*>()) {
            for (QWidget* widget : bar->findChildren<QWidget*>()) {
                const bool box =
                    qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget);
                if (!widget->isVisible() || !(box || qobject_cast<QToolButton*>(widget)))
                    continue;
                const auto* read = QAccessible::queryAccessibleInterface(widget);
                EXPECT_FALSE(read->text(QAccessible::Name).isEmpty())
                    << bar->objectName().toStdString() << " " << widget->objectName().toStdString();
            }
        }
    }
}

} // namespace tavo
