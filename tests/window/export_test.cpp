#include "window/dialog_person.h"

#include "selection/frm_export_dir.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace tavo {

namespace {

const std::vector<std::string> manyScripts = {"bad\xFF.txt", "long name.jpeg", "صورة.png",
                                              "照片 2001.jpg", "😀.txt"};

// A person who exports the selection list.
class ExportPerson : public DialogPerson {
public:
    using DialogPerson::DialogPerson;

    FrmExportDir& Form() { return Running().ExportDir(); }

    // Opens the dialog by the menu, does the step in it and leaves it.
    void Open(std::function<void()> step)
    {
        const auto byMenu = [this] {
            QTest::keyClick(&Window(), Qt::Key_F, Qt::AltModifier);
            Settle();
            ASSERT_NE(QApplication::activePopupWidget(), nullptr);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_E);
            Settle();
        };
        At(byMenu, [this, step = std::move(step)] {
            step();
            if (Form().Loaded())
                ClickIn("cmdExit");
        });
    }
    // In the next window of this kind.
    template <class Kind>
    void InNext(std::function<void(Kind& window)> step)
    {
        auto* waiting = new QTimer(&Window());
        QObject::connect(waiting, &QTimer::timeout, &Window(), [waiting, step = std::move(step)] {
            auto* window = qobject_cast<Kind*>(QApplication::activeModalWidget());
            if (!window || !window->isVisible())
                return;
            waiting->stop();
            waiting->deleteLater();
            step(*window);
        });
        waiting->start(0);
    }
    // Answers the next question where to save.
    void SaveUnder(const std::string& name,
                   QDialogButtonBox::StandardButton button = QDialogButtonBox::Save)
    {
        InNext<QFileDialog>([this, name, button](QFileDialog& asking) {
            SaveTitle = asking.windowTitle();
            Kinds = asking.nameFilters();
            auto& edit = *asking.findChild<QLineEdit*>("fileNameEdit");
            edit.setText(QString::fromStdString(Folder().Path(name)));
            QTest::mouseClick(asking.findChild<QDialogButtonBox*>()->button(button),
                              Qt::LeftButton);
        });
    }
    void Save(const std::string& name)
    {
        SaveUnder(name);
        ClickIn("cmdSave");
        ComeBack();
    }
    // The screen in memory activates nothing by itself when a window goes.
    void ComeBack()
    {
        if (Form().Loaded())
            Dialog().activateWindow();
        Wait();
    }
    // Does this once, when half of the rows are written.
    Connection HalfWay(std::function<void()> step)
    {
        return Form().prbProgress.Changed.Listen([this, step, done = false](Prop) mutable {
            if (done || Form().prbProgress.Value != 50)
                return;
            done = true;
            Wait();
            step();
        });
    }
    bool IsTicked(const std::string& name) { return In<QAbstractButton>(name).isChecked(); }
    QString Said() { return In<QLabel>("lblProgress").text(); }

    QString SaveTitle;
    QStringList Kinds;
};

std::vector<std::string> ManyFiles()
{
    std::vector<std::string> names;
    for (int i = 100; i < 160; ++i)
        names.push_back(std::to_string(i));
    return names;
}

std::string Lines(int first, int behind)
{
    std::string text;
    for (int i = first; i < behind; ++i)
        text += std::to_string(i) + "\r\n";
    return text;
}

} // namespace

TEST(WindowExport, It_opens_as_it_is_laid_down)
{
    ExportPerson p("window_export_opens", {"a.txt"});
    p.Open([&] {
        EXPECT_EQ(p.Dialog().windowTitle(), "Export Selection List as Text File");
        EXPECT_TRUE(p.IsTicked("optStyle(0)"));
        for (int i = 0; i < 5; ++i) {
            const std::string box = "chkColumn(" + std::to_string(i) + ")";
            EXPECT_TRUE(p.IsTicked(box)) << i;
            EXPECT_EQ(p.In(box).isEnabled(), i > 1) << i;
        }
        EXPECT_EQ(p.In<QComboBox>("cboSeperator").currentText(), ",");
        EXPECT_EQ(p.Said(), "Waiting to Start...");
        EXPECT_EQ(p.In<QProgressBar>("prbProgress").value(), 0);
        EXPECT_FALSE(p.In("cmdCancel").isEnabled());
        EXPECT_EQ(p.CutTexts(), std::vector<std::string>{});
        EXPECT_EQ(p.Nameless(p.Form()), std::vector<std::string>{});
        p.KeyIn(Qt::Key_Escape);
        EXPECT_FALSE(p.Form().Loaded());
    });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(WindowExport, Names_of_all_scripts_are_grouped_under_their_folder)
{
    ExportPerson p("window_export_groups", manyScripts);
    p.Open([&] {
        p.ClickIn("chkColumn(4)");
        p.Save("list.txt");
        EXPECT_EQ(p.Said(), "Finished!");
        auto& bar = p.In<QProgressBar>("prbProgress");
        EXPECT_EQ(bar.value(), bar.maximum());
    });
    EXPECT_EQ(p.SaveTitle, "Save File As...");
    EXPECT_EQ(p.Kinds, QStringList{"Text Files (*.txt)"});
    EXPECT_EQ(p.Folder().Read("list.txt"), "** " + p.Folder().Path("files/")
                                               + "\r\n"
                                                 "bad\xFF.txt        1KB  txt \r\n"
                                                 "long name.jpeg  1KB  jpeg\r\n"
                                                 "صورة.png        1KB  png \r\n"
                                                 "照片 2001.jpg     1KB  jpg \r\n"
                                                 "😀.txt           1KB  txt \r\n");
}

TEST(WindowExport, Columns_and_separator_are_chosen_by_mouse_and_keys)
{
    ExportPerson p("window_export_columns", {"a.txt", "b.jpg"});
    p.Open([&] {
        p.ClickIn("optStyle(1)");
        EXPECT_FALSE(p.IsTicked("optStyle(0)"));
        EXPECT_TRUE(p.In("chkColumn(0)").isEnabled());
        for (const char* box : {"chkColumn(1)", "chkColumn(4)"})
            p.ClickIn(box);
        p.Save("comma.txt");
        auto& separator = p.In<QComboBox>("cboSeperator");
        p.ClickAt(*separator.lineEdit(), {5, 5});
        p.KeyIn(Qt::Key_Down);
        EXPECT_EQ(separator.currentText(), "Tab Key");
        p.Save("tab.txt");
        p.ClickAt(*separator.lineEdit(), {5, 5});
        separator.lineEdit()->selectAll();
        p.TypeHere(" ; ");
        p.Save("own"); // and the extension that goes without saying
    });
    EXPECT_EQ(p.Folder().Read("comma.txt"), "a.txt,1KB,txt\r\nb.jpg,1KB,jpg\r\n");
    EXPECT_EQ(p.Folder().Read("tab.txt"), "a.txt\t1KB\ttxt\r\nb.jpg\t1KB\tjpg\r\n");
    EXPECT_EQ(p.Folder().Read("own.txt"), "a.txt ; 1KB ; txt\r\nb.jpg ; 1KB ; jpg\r\n");
}

TEST(WindowExport, Without_a_file_nothing_is_written)
{
    ExportPerson p("window_export_none", {"a.txt"});
    p.Open([&] {
        p.SaveUnder("list.txt", QDialogButtonBox::Cancel);
        p.ClickIn("cmdSave");
        EXPECT_EQ(p.Said(), "Waiting to Start...");
        EXPECT_TRUE(p.In("cmdSave").isEnabled());
    });
    EXPECT_FALSE(p.Folder().Has("list.txt"));
}

TEST(WindowExport, An_old_file_is_replaced_when_the_person_agrees)
{
    ExportPerson p("window_export_replaces", {"a.txt"});
    p.Folder().Write("list.txt", "old");
    p.Open([&] {
        for (int i = 2; i < 5; ++i)
            p.ClickIn("chkColumn(" + std::to_string(i) + ")");
        p.InNext<QMessageBox>([&](QMessageBox& box) {
            p.BoxTexts.push_back(box.text());
            EXPECT_EQ(p.Folder().Read("list.txt"), "old");
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        p.Save("list.txt");
    });
    EXPECT_EQ(p.BoxTexts.size(), 1);
    EXPECT_EQ(p.Folder().Read("list.txt"), "** " + p.Folder().Path("files/") + "\r\na.txt\r\n");
}

TEST(WindowExport, A_list_in_another_order_is_sorted_when_the_person_agrees)
{
    ExportPerson p("window_export_sorts", {"a.txt", "b.txt"});
    p.Running().main.lsvSelMain.ColumnClick(1); // down
    p.Open([&] {
        for (int i = 2; i < 5; ++i)
            p.ClickIn("chkColumn(" + std::to_string(i) + ")");
        p.InNext<QMessageBox>([&](QMessageBox& box) {
            p.BoxTexts.push_back(box.text());
            EXPECT_EQ(box.defaultButton()->text().remove('&'), "Cancel");
            QTest::keyClick(&box, Qt::Key_Return);
        });
        p.Save("refused.txt");
        EXPECT_TRUE(p.In("cmdSave").isEnabled());
        p.InNext<QMessageBox>([&](QMessageBox& box) {
            QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        });
        p.Save("list.txt");
    });
    EXPECT_EQ(p.BoxTexts.size(), 1);
    EXPECT_FALSE(p.Folder().Has("refused.txt"));
    EXPECT_EQ(p.Folder().Read("list.txt"),
              "** " + p.Folder().Path("files/") + "\r\na.txt\r\nb.txt\r\n");
}

TEST(WindowExport, Cancel_stops_it_and_leaves_what_is_written)
{
    ExportPerson p("window_export_cancel", ManyFiles());
    p.Open([&] {
        p.ClickIn("optStyle(1)");
        for (int i = 1; i < 5; ++i)
            p.ClickIn("chkColumn(" + std::to_string(i) + ")");
        const Connection watch = p.HalfWay([&] {
            EXPECT_FALSE(p.In("cmdExit").isEnabled());
            EXPECT_FALSE(p.In("cmdSave").isEnabled());
            EXPECT_EQ(p.Said(), "Outputing File Selection List");
            p.ClickIn("cmdCancel");
        });
        p.Save("list.txt");
        EXPECT_EQ(p.Said(), "Finished!");
        EXPECT_FALSE(p.In("cmdCancel").isEnabled());
        EXPECT_TRUE(p.In("cmdExit").isEnabled());
    });
    EXPECT_EQ(p.Folder().Read("list.txt"), Lines(100, 130));
}

TEST(WindowExport, Closed_by_its_frame_it_stops_and_goes)
{
    ExportPerson p("window_export_frame", ManyFiles());
    bool stayed = false;
    p.Open([&] {
        const Connection watch = p.HalfWay([&] {
            p.Dialog().close();
            stayed = p.Form().Loaded() && p.Dialog().isVisible();
        });
        p.Save("list.txt");
        EXPECT_FALSE(p.Form().Loaded());
    });
    EXPECT_TRUE(stayed);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(p.Window().isVisible());
    EXPECT_TRUE(p.Folder().Has("list.txt"));
}

TEST(WindowExport, The_keys_go_through_all_that_can_be_changed)
{
    ExportPerson p("window_export_keys", {"a.txt"});
    p.Open([&] {
        p.ClickIn("optStyle(1)");
        EXPECT_EQ(p.Stops(9),
                  (std::vector<std::string>{"optStyle(1)", "cboSeperator", "cmdSave", "cmdExit",
                                            "chkColumn(0)", "chkColumn(1)", "chkColumn(2)",
                                            "chkColumn(3)", "chkColumn(4)"}));
        p.SaveUnder("list.txt");
        p.KeyIn(Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return p.Said() == "Finished!"; }));
        p.ComeBack();
        EXPECT_EQ(p.FocusName(), "cmdSave");
        p.KeyIn(Qt::Key_X, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !p.Form().Loaded(); }));
    });
    EXPECT_TRUE(p.Folder().Has("list.txt"));
}

TEST(WindowExport, Nothing_is_cut_at_large_letters)
{
    const QFont before = QApplication::font();
    for (const int points : {8, 14, 24}) {
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        ExportPerson p("window_export_fonts", {"a.txt"});
        p.Open([&] {
            EXPECT_EQ(p.CutTexts(), std::vector<std::string>{}) << points;
            for (const QWidget* widget : p.Dialog().findChildren<QWidget*>())
                if (widget->isVisible() && widget->parentWidget() == &p.Dialog()) {
                    EXPECT_TRUE(p.Dialog().rect().contains(widget->geometry()))
                        << widget->objectName().toStdString() << points;
                }
            EXPECT_EQ(p.Form().Width(), p.Dialog().width() * 15) << points;
        });
    }
    QApplication::setFont(before);
}

} // namespace tavo
