#include "window/panel_person.h"

#include "hosts/qt/parts.h"
#include "hosts/qt/qt_text.h"
#include "toolkit/dates.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QRadioButton>

namespace tavo {

using Strings = std::vector<std::string>;

namespace {

const Strings threeFiles = {"a one.txt", "b-two.txt", "c.mp3"};
const QString emptyDate = "__/__/____", emptyTime = "__:__:__ __";

} // namespace

TEST(WindowPanels, Ticked_attributes_are_given_to_the_files_and_taken_back)
{
    PanelPerson p("window_attributes", modeAttributes, threeFiles);
    EXPECT_EQ(p.ShownPanel(2), "a one.txt ( )");
    auto& readOnly = p.Of<QCheckBox>("chkAttr(1)");
    ASSERT_FALSE(readOnly.isChecked());
    p.Click(readOnly);
    EXPECT_TRUE(readOnly.isChecked());
    EXPECT_EQ(p.Main().chkAttr[1].Value.Get(), 1);
    p.RunAll();
    p.ClickRow("lsvRename", 2);
    EXPECT_EQ(p.ShownPanel(2), "b-two.txt ( R )");
    EXPECT_TRUE(readOnly.isChecked());
    p.Undo();
    p.ClickRow("lsvRename", 3);
    EXPECT_EQ(p.ShownPanel(2), "c.mp3 ( )");
    EXPECT_FALSE(readOnly.isChecked()); // filled from the row
}

TEST(WindowPanels, The_boxes_of_Smart_Case_are_there_for_Smart_Case_alone)
{
    PanelPerson p("window_case", modeCase, threeFiles);
    p.ClickRow("lsvRename", 1);
    auto& upper = p.Of<QRadioButton>("optCase(1)");
    auto& smart = p.Of<QRadioButton>("optCase(3)");
    p.Click(smart);
    const QPoint place = smart.mapTo(&p.Window(), QPoint());
    p.Click(upper);
    EXPECT_FALSE(smart.isChecked());
    EXPECT_EQ(p.ShownPanel(2), "A ONE.TXT");
    const Strings smartParts = {"chkCaseFirst", "chkCaseWord",      "lblCaseSmart",    "linCase1",
                                "linCase2",     "txtCasePreCap(1)", "txtCasePreCap(6)"};
    for (const std::string& name : smartParts)
        EXPECT_FALSE(p.Of<QWidget>(name).isVisible()) << name;
    EXPECT_EQ(smart.mapTo(&p.Window(), QPoint()), place);
    p.Click(smart);
    for (const std::string& name : smartParts)
        EXPECT_TRUE(p.Of<QWidget>(name).isVisible()) << name;
}

TEST(WindowPanels, A_letter_typed_for_Smart_Case_shows_in_the_name_and_runs)
{
    PanelPerson p("window_smart", modeCase, threeFiles);
    p.ClickRow("lsvRename", 2);
    p.Click(p.Of<QRadioButton>("optCase(3)"));
    if (!p.Of<QCheckBox>("chkCaseFirst").isChecked())
        p.Click(p.Of<QCheckBox>("chkCaseFirst"));
    EXPECT_EQ(p.ShownPanel(2), "B-Two.txt");
    auto& sign = p.Of<QLineEdit>("txtCasePreCap(6)");
    p.Type(sign, "w");
    EXPECT_EQ(p.ShownPanel(2), "B-TwO.txt");
    p.Type(sign, "t"); // there is room for one
    EXPECT_EQ(sign.text(), "w");
    p.RunAll();
    EXPECT_EQ(p.Files(), (Strings{"A One.txt", "B-TwO.txt", "C.mp3"}));
    p.Undo();
    EXPECT_EQ(p.Files(), threeFiles);
}

TEST(WindowPanels, A_group_of_times_can_be_used_while_its_box_is_ticked)
{
    PanelPerson p("window_groups", modeDateTime, threeFiles);
    struct Row {
        int Check;
        Strings Group;
    };
    const Row rows[] = {
        {1, {"lblDateTime(1)", "lblDateTime(2)", "txtDateTime(1)", "txtDateTime(2)"}},
        {2, {"lblDateTime(3)", "lblDateTime(4)", "txtDateTime(3)", "txtDateTime(4)"}},
        {3, {"lblDateTime(5)", "txtDateTime(5)"}},
    };
    for (const Row& row : rows) {
        auto& check = p.Of<QCheckBox>("chkDateTime(" + std::to_string(row.Check) + ")");
        for (int click = 0; click < 2; ++click) {
            p.Click(check);
            for (const std::string& name : row.Group)
                EXPECT_EQ(p.Of<QWidget>(name).isEnabled(), check.isChecked()) << name;
        }
    }
}

TEST(WindowPanels, A_date_typed_key_by_key_passes_over_the_fixed_signs)
{
    PanelPerson p("window_date", modeDateTime, threeFiles);
    if (!p.Of<QCheckBox>("chkDateTime(1)").isChecked())
        p.Click(p.Of<QCheckBox>("chkDateTime(1)"));
    auto& date = p.Of<QLineEdit>("txtDateTime(1)");
    p.Main().txtDateTime[1].Text = "";
    p.Settle();
    EXPECT_EQ(date.text(), emptyDate);
    p.Click(date);
    EXPECT_EQ(date.selectedText(), emptyDate);
    struct Row {
        const char* Keys;
        const char* Shown;
        int Caret;
    };
    const Row rows[] = {
        {"0", "0_/__/____", 1}, {"3", "03/__/____", 3},  {"x", "03/__/____", 3},
        {"0", "03/0_/____", 4}, {"7", "03/07/____", 6},  {"20", "03/07/20__", 8},
        {"0", "03/07/200_", 9}, {"1", "03/07/2001", 10}, {"9", "03/07/2001", 10},
    };
    for (const Row& row : rows) {
        p.Type(date, row.Keys);
        EXPECT_EQ(date.text(), row.Shown) << row.Keys;
        EXPECT_EQ(date.cursorPosition(), row.Caret) << row.Shown;
    }
    p.Key(Qt::Key_Backspace);
    EXPECT_EQ(date.text(), "03/07/200_");
    p.Type(date, "2");
    p.Key(Qt::Key_Home);
    p.Type(date, "13"); // takes the place of what is there
    EXPECT_EQ(date.text(), "13/07/2002");
    p.Key(Qt::Key_Tab);
    EXPECT_EQ(date.text(), "12/07/2002");
    EXPECT_TRUE(p.Of<QLineEdit>("txtDateTime(2)").hasFocus());
}

TEST(WindowPanels, A_letter_in_a_time_names_the_half_of_the_day)
{
    PanelPerson p("window_time", modeDateTime, threeFiles);
    if (!p.Of<QCheckBox>("chkDateTime(1)").isChecked())
        p.Click(p.Of<QCheckBox>("chkDateTime(1)"));
    auto& time = p.Of<QLineEdit>("txtDateTime(2)");
    p.Main().txtDateTime[2].Text = "";
    p.Settle();
    ASSERT_EQ(time.text(), emptyTime);
    p.Type(time, "0915p");
    EXPECT_EQ(time.text(), "09:15:__ PM");
    EXPECT_EQ(time.cursorPosition(), p.Main().txtDateTime[2].SelStart());
    p.Type(time, "30a");
    EXPECT_EQ(time.text(), "09:15:30 AM");
}

TEST(WindowPanels, What_is_pasted_into_a_date_goes_into_its_places)
{
    struct Row {
        int Caret, Selected;
        const char* Pasted;
        const char* Shown;
    };
    const Row rows[] = {
        {0, 0, "12", "12/05/2024"},      {3, 0, "31", "01/31/2024"},
        {0, 10, "9", "9_/__/____"},      {0, 10, "12/24/1999", "12/24/1999"},
        {2, 0, "/06", "01/06/2024"},     {6, 4, "1990", "01/05/1990"},
        {0, 2, "letters", "01/05/2024"}, {10, 0, "7", "01/05/2024"},
    };
    PanelPerson p("window_paste_date", modeDateTime, threeFiles);
    if (!p.Of<QCheckBox>("chkDateTime(1)").isChecked())
        p.Click(p.Of<QCheckBox>("chkDateTime(1)"));
    auto& date = p.Of<QLineEdit>("txtDateTime(1)");
    p.Click(date);
    for (const Row& row : rows) {
        p.Main().txtDateTime[1].Text = "01/05/2024";
        p.Settle();
        if (row.Selected > 0)
            date.setSelection(row.Caret, row.Selected);
        else
            date.setCursorPosition(row.Caret);
        QGuiApplication::clipboard()->setText(row.Pasted);
        date.paste();
        p.Settle();
        EXPECT_EQ(date.text(), row.Shown) << row.Pasted << " at " << row.Caret;
        EXPECT_EQ(p.Main().txtDateTime[1].Text.Get(), row.Shown) << row.Pasted;
    }
}

TEST(WindowPanels, The_link_of_a_box_puts_in_what_is_now)
{
    PanelPerson p("window_now", modeDateTime, threeFiles);
    if (!p.Of<QCheckBox>("chkDateTime(3)").isChecked())
        p.Click(p.Of<QCheckBox>("chkDateTime(3)"));
    const SystemTime before = p.Running().desktop.Now();
    p.Click(p.Of<LinkButton>("lblDateTime(5)"));
    const SystemTime after = p.Running().desktop.Now();
    const auto asDate = [](const SystemTime& now) {
        return DateTime_Format({now.Year, now.Month, now.Day, 0, 0, 0}, "mm/dd/yyyy");
    };
    const std::string shown = p.Of<QLineEdit>("txtDateTime(5)").text().toStdString();
    EXPECT_TRUE(shown == asDate(before) || shown == asDate(after)) << shown;
}

TEST(WindowPanels, Times_are_set_and_taken_back_and_the_box_in_hand_keeps_the_focus)
{
    PanelPerson p("window_times", modeDateTime, threeFiles);
    auto& date = p.Of<QLineEdit>("txtDateTime(3)");
    p.ClickRow("lsvRename", 1);
    const QString before = date.text();
    ASSERT_NE(before, emptyDate);
    for (const int group : {1, 2, 3}) {
        auto& check = p.Of<QCheckBox>("chkDateTime(" + std::to_string(group) + ")");
        if (check.isChecked() != (group == 2))
            p.Click(check);
    }
    p.Type(date, "02031999");
    p.Press("ID_RenSelected");
    EXPECT_TRUE(date.hasFocus());
    EXPECT_EQ(p.Selected(p.Main().lsvRename), std::vector<int>{2});
    EXPECT_EQ(date.text(), before); // the next row's
    EXPECT_EQ(date.selectedText(), before);
    p.ClickRow("lsvRename", 1);
    EXPECT_EQ(date.text(), "02/03/1999");
    p.Press("ID_RenUndo");
    p.ClickRow("lsvRename", 2);
    p.ClickRow("lsvRename", 1);
    EXPECT_EQ(date.text(), before);
}

TEST(WindowPanels, The_type_of_a_search_decides_what_can_be_typed)
{
    PanelPerson p("window_search_type", modeSearchReplace, threeFiles);
    const Strings ofText = {"lblSearchFind", "txtSearchFind", "chkSearchCase"};
    const Strings ofRange = {"lblSearchRange(0)", "lblSearchRange(1)", "txtSearchStart",
                             "lblSearchRangeTo", "txtSearchEnd"};
    const int height = p.Of<QLineEdit>("txtSearchReplace").y();
    for (const int type : {2, 1}) {
        p.Click(p.Of<QRadioButton>("optSearchType(" + std::to_string(type) + ")"));
        for (const std::string& name : ofText)
            EXPECT_EQ(p.Of<QWidget>(name).isVisible(), type == 1) << name;
        for (const std::string& name : ofRange)
            EXPECT_EQ(p.Of<QWidget>(name).isVisible(), type == 2) << name;
        EXPECT_EQ(p.Of<QLineEdit>("txtSearchReplace").y(), height);
    }
}

TEST(WindowPanels, A_search_typed_key_by_key_shows_the_new_name_and_runs)
{
    PanelPerson p("window_search", modeSearchReplace, threeFiles);
    p.ClickRow("lsvRename", 2);
    auto& find = p.Of<QLineEdit>("txtSearchFind");
    auto& replace = p.Of<QLineEdit>("txtSearchReplace");
    p.Click(p.Of<QRadioButton>("optSearchMode(1)"));
    p.Type(find, "TWO");
    EXPECT_EQ(p.ShownPanel(2), "b-.txt");
    p.Type(replace, "2");
    EXPECT_EQ(p.ShownPanel(2), "b-2.txt");
    p.Click(p.Of<QCheckBox>("chkSearchCase"));
    EXPECT_EQ(p.ShownPanel(2), "b-two.txt");
    p.Click(p.Of<QCheckBox>("chkSearchCase"));
    for (const char* refused : {"/", "<"}) {
        p.BoxTexts.clear();
        p.AnswerNext("OK");
        p.Type(replace, refused);
        ASSERT_EQ(p.BoxTexts.size(), 1) << refused;
        EXPECT_EQ(replace.text(), "2");
    }
    p.RunAll();
    EXPECT_EQ(p.Files(), (Strings{"a one.txt", "b-2.txt", "c.mp3"}));
    p.Undo();
    EXPECT_EQ(p.Files(), threeFiles);
}

TEST(WindowPanels, A_range_takes_digits_within_its_bounds)
{
    PanelPerson p("window_range", modeSearchReplace, {"abcde.txt", "xy.txt"});
    p.ClickRow("lsvRename", 1);
    p.Click(p.Of<QRadioButton>("optSearchType(2)"));
    p.Click(p.Of<QRadioButton>("optSearchMode(1)"));
    EXPECT_EQ(p.Of<QLabel>("lblSearchRange(1)").text(), "Len: 5.3");
    auto& start = p.Of<QLineEdit>("txtSearchStart");
    auto& end = p.Of<QLineEdit>("txtSearchEnd");
    p.Click(start);
    start.selectAll();
    p.Type(start, "x2");
    EXPECT_EQ(start.text(), "2");
    p.Click(end);
    p.Type(end, "999");
    EXPECT_EQ(end.text(), "254");
    end.selectAll();
    p.Type(end, "3");
    p.Type(p.Of<QLineEdit>("txtSearchReplace"), "X");
    EXPECT_EQ(p.ShownPanel(2), "aXde.txt");
}

TEST(WindowPanels, What_is_typed_into_a_tag_is_ticked)
{
    PanelPerson p("window_tag", modeMp3Tag, threeFiles);
    for (int index = 1; index <= 6; ++index) {
        auto& check = p.Of<QCheckBox>("chkMP3(" + std::to_string(index) + ")");
        auto& box = p.Of<QLineEdit>("txtMP3(" + std::to_string(index) + ")");
        EXPECT_FALSE(check.isChecked()) << index;
        p.Type(box, "7");
        EXPECT_TRUE(check.isChecked()) << index;
        p.Click(check);
        EXPECT_FALSE(check.isChecked()) << index;
    }
    auto& year = p.Of<QLineEdit>("txtMP3(5)");
    p.Click(year);
    p.Type(year, "8x5");
    EXPECT_EQ(year.text(), "85");
    p.Key(Qt::Key_Tab);
    EXPECT_EQ(year.text(), "1000");
}

TEST(WindowPanels, A_genre_is_chosen_by_its_letter_and_by_the_mouse)
{
    PanelPerson p("window_genre", modeMp3Tag, threeFiles);
    auto& genres = p.Of<QComboBox>("cboMP3Genre");
    auto& check = p.Of<QCheckBox>("chkMP3(7)");
    ASSERT_EQ(genres.count(), 126);
    EXPECT_EQ(genres.currentIndex(), -1);
    p.Click(genres);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); // the list of it
    p.Settle();
    p.Key(Qt::Key_J);
    EXPECT_EQ(genres.currentText(), "Jazz");
    EXPECT_TRUE(check.isChecked());
    p.Click(check);
    // Else the list takes a click that comes at once for the second half of a
    // double one.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    p.Click(genres);
    QAbstractItemView* list = genres.view();
    const QModelIndex pop = list->model()->index(13, 0);
    list->scrollTo(pop);
    const QPoint place = list->visualRect(pop).center();
    QTest::mouseMove(list->viewport(), place);
    p.Settle();
    EXPECT_EQ(list->currentIndex(), pop);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    p.Settle();
    QApplication::setDoubleClickInterval(interval);
    EXPECT_EQ(genres.currentText(), "Pop");
    EXPECT_EQ(p.Main().cboMP3Genre.ListIndex(), 13);
    EXPECT_TRUE(check.isChecked());
}

TEST(WindowPanels, A_tag_is_written_and_taken_back_and_its_box_keeps_the_focus)
{
    PanelPerson p("window_tag_run", modeMp3Tag, {"a.mp3", "b.mp3"});
    p.ClickRow("lsvRename", 1);
    auto& artist = p.Of<QLineEdit>("txtMP3(2)");
    p.Type(artist, "Joe");
    p.Press("ID_RenSelected");
    EXPECT_TRUE(artist.hasFocus());
    EXPECT_EQ(p.Selected(p.Main().lsvRename), std::vector<int>{2});
    const std::string written = p.Folder().Read("files/a.mp3");
    ASSERT_EQ(written.size(), 5u + 128u);
    EXPECT_EQ(written.substr(5, 3), "TAG");
    EXPECT_EQ(written.substr(5 + 33, 3), "Joe");
    p.ClickRow("lsvRename", 1);
    EXPECT_EQ(artist.text(), "Joe");
    p.Press("ID_RenUndo");
    p.ClickRow("lsvRename", 2);
    p.ClickRow("lsvRename", 1);
    EXPECT_EQ(artist.text(), "");
}

TEST(WindowPanels, Tags_of_all_rows_are_written_and_taken_back)
{
    PanelPerson p("window_tags_all", modeMp3Tag, {"a.mp3", "b.mp3", "c.txt"});
    p.Type(p.Of<QLineEdit>("txtMP3(6)"), "12");
    p.RunAll();
    for (const char* name : {"files/a.mp3", "files/b.mp3"}) {
        const std::string written = p.Folder().Read(name);
        ASSERT_EQ(written.size(), 5u + 128u) << name;
        EXPECT_EQ(written[5 + 126], '\x0C') << name;
    }
    EXPECT_EQ(p.Folder().Read("files/c.txt"), "c.txt");
    p.Undo();
    for (const char* name : {"files/a.mp3", "files/b.mp3"})
        EXPECT_EQ(p.Folder().Read(name)[5 + 126], '\0') << name;
}

TEST(WindowPanels, A_click_on_the_status_bar_changes_the_form_of_the_clock)
{
    PanelPerson p("window_clock", modeDateTime, threeFiles);
    auto& bar = p.Of<StatusPanels>("stbMain");
    const auto hasHalf = [&] {
        const std::string text = p.ShownPanel(2);
        EXPECT_EQ(text.substr(0, 8), "Todays: ");
        return text.ends_with("AM") || text.ends_with("PM");
    };
    p.Click(bar);
    EXPECT_FALSE(hasHalf());
    p.Click(bar);
    EXPECT_TRUE(hasHalf());
}

TEST(WindowPanels, A_tag_with_nothing_ticked_is_refused)
{
    PanelPerson p("window_tag_none", modeMp3Tag, {"a.mp3"});
    p.AnswerNext("OK");
    p.Press("ID_RenAll");
    EXPECT_EQ(p.BoxTexts, QStringList{"Check an Item to Update!"});
    EXPECT_EQ(p.Folder().Read("files/a.mp3"), "a.mp3");
}

} // namespace tavo
