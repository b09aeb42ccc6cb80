#include "window/panel_person.h"

#include "hosts/qt/folder_view.h"
#include "hosts/qt/qt_text.h"
#include "settings/named_lists.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tavo {

using Strings = std::vector<std::string>;

namespace {

const Strings twoFiles = {"a.txt", "b.txt"};

// The row below the one in hand of the dialog's tree, by its place in it.
void ClickFolder(QWidget& dialog, int row)
{
    auto* tree = dialog.findChild<FolderView*>();
    const QModelIndex index = tree->model()->index(row, 0, tree->currentIndex());
    tree->scrollTo(index);
    const QRect seen = tree->visualRect(index) & tree->viewport()->rect();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, seen.center());
}

void PressButton(QWidget& dialog, const char* name)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(name), Qt::LeftButton);
}

} // namespace

TEST(WindowMovePanel, Files_go_to_the_folder_that_is_typed)
{
    PanelPerson p("window_move_files", modeMoveCopy, twoFiles);
    p.Folder().MakeFolder("target");
    p.Click(p.Of<QRadioButton>("optmcdMode(1)"));
    EXPECT_EQ(p.Of<QLabel>("lblmcd(0)").text(), "Move To");
    p.Type(p.Of<QLineEdit>("txtmcdPath"), ToQt(p.Folder().Path("target")));
    p.RunAll();
    EXPECT_EQ(p.Files(), Strings());
    EXPECT_EQ(p.Folder().Names("target"), twoFiles);
    p.Click(p.Of<QRadioButton>("optmcdMode(2)"));
    EXPECT_EQ(p.Of<QLabel>("lblmcd(0)").text(), "Copy To");
    p.Folder().MakeFolder("copies");
    auto& path = p.Of<QLineEdit>("txtmcdPath");
    p.Click(path);
    path.selectAll();
    p.Type(path, ToQt(p.Folder().Path("copies/")));
    p.RunAll();
    EXPECT_EQ(p.Folder().Names("target"), twoFiles);
    EXPECT_EQ(p.Folder().Names("copies"), twoFiles);
}

TEST(WindowMovePanel, A_run_without_a_folder_is_refused)
{
    PanelPerson p("window_move_none", modeMoveCopy, twoFiles);
    p.AnswerNext("OK");
    p.Press("ID_RenAll");
    EXPECT_EQ(p.BoxTexts, QStringList{"There is No Destination Path!"});
    p.Type(p.Of<QLineEdit>("txtmcdPath"), "/no-such-folder-here");
    p.AnswerNext("OK");
    p.Press("ID_RenAll");
    EXPECT_EQ(p.BoxTexts.back(), "The Destination Path Appears to be Invalid!");
}

TEST(WindowMovePanel, A_favorite_is_put_into_the_box)
{
    PanelPerson p("window_favorites", modeMoveCopy, twoFiles);
    p.Running().state.Favorites.push_back({"First", "/first"});
    p.Running().state.Favorites.push_back({"Second", "/second"});
    FavPath_Rebuild(p.Running());
    p.Settle();
    auto& favorites = p.Of<QComboBox>("cbomcdPath");
    ASSERT_EQ(favorites.count(), 2);
    p.Click(favorites);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); // the list of it
    p.Settle();
    p.Key(Qt::Key_S);
    EXPECT_EQ(favorites.currentText(), "Second");
    EXPECT_EQ(p.Of<QLineEdit>("txtmcdPath").text(), "/second");
}

TEST(WindowMovePanel, The_dialog_begins_at_the_folder_of_the_box)
{
    PanelPerson p("window_browse", modeMoveCopy, twoFiles);
    p.Folder().MakeFolder("target/one");
    p.Folder().MakeFolder("target/two");
    auto& path = p.Of<QLineEdit>("txtmcdPath");
    p.Type(path, ToQt(p.Folder().Path("target")));
    QString title, current;
    bool modal = false;
    p.InNextDialog([&](QWidget& dialog) {
        title = dialog.windowTitle();
        modal = dialog.isModal();
        current = dialog.findChild<FolderView*>()->currentIndex().data().toString();
        ClickFolder(dialog, 1);
        PressButton(dialog, "cmdOk");
    });
    p.Click(p.Of<QPushButton>("cmdmcdPath"));
    EXPECT_EQ(title, "Select a Path");
    EXPECT_TRUE(modal);
    EXPECT_EQ(current, "target");
    EXPECT_EQ(path.text().toStdString(), p.Folder().Path("target/two"));
}

TEST(WindowMovePanel, A_folder_whose_name_is_no_text_is_chosen_whole)
{
    const std::string odd = "odd\xFF";
    PanelPerson p("window_browse_odd", modeMoveCopy, twoFiles);
    p.Folder().MakeFolder("files/" + odd);
    for (const char* typed : {"", "/no-such-folder-here"}) {
        p.Main().txtmcdPath.Text = typed;
        p.InNextDialog([&](QWidget& dialog) {
            EXPECT_EQ(dialog.findChild<FolderView*>()->currentIndex().data().toString(), "files");
            ClickFolder(dialog, 0);
            PressButton(dialog, "cmdOk");
        });
        p.Click(p.Of<QPushButton>("cmdmcdPath"));
        EXPECT_EQ(p.Main().txtmcdPath.Text.Get(), p.Folder().Path("files/" + odd)) << typed;
    }
    p.Click(p.Of<QRadioButton>("optmcdMode(2)"));
    p.RunAll();
    EXPECT_EQ(p.Folder().Names("files/" + odd), twoFiles);
}

TEST(WindowMovePanel, A_dialog_that_is_left_keeps_the_box)
{
    PanelPerson p("window_browse_left", modeMoveCopy, twoFiles);
    p.Folder().MakeFolder("files/below");
    auto& path = p.Of<QLineEdit>("txtmcdPath");
    p.Type(path, ToQt(p.Folder().Path("files")));
    const QString before = path.text();
    int seen = 0;
    const auto leave = [&](std::function<void(QWidget&)> how) {
        p.InNextDialog([&seen, how](QWidget& dialog) {
            ++seen;
            ClickFolder(dialog, 0);
            how(dialog);
        });
        p.Click(p.Of<QPushButton>("cmdmcdPath"));
        EXPECT_EQ(path.text(), before) << seen;
    };
    leave([](QWidget& dialog) { PressButton(dialog, "cmdCancel"); });
    leave([](QWidget& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape); });
    leave([](QWidget& dialog) { dialog.close(); });
    EXPECT_EQ(seen, 3);
}

TEST(WindowMovePanel, Keys_alone_choose_a_folder)
{
    PanelPerson p("window_browse_keys", modeMoveCopy, twoFiles);
    p.Folder().MakeFolder("files/below");
    p.InNextDialog([&](QWidget& dialog) {
        auto* tree = dialog.findChild<FolderView*>();
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return tree->hasFocus(); }));
        QTest::keyClick(tree, Qt::Key_Right);
        QTest::keyClick(tree, Qt::Key_Return);
    });
    p.Click(p.Of<QPushButton>("cmdmcdPath"));
    EXPECT_EQ(p.Of<QLineEdit>("txtmcdPath").text().toStdString(), p.Folder().Path("files/below"));
}

} // namespace tavo
