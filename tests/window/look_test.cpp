#include "window/panel_person.h"

#include "core/commands.h"
#include "hosts/qt/binding.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/list_page.h"
#include "hosts/qt/qt_text.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

const QPalette lightColours(QColor("#dddddd"), QColor("#efefef"));
const QPalette darkColours(QColor("#303030"), QColor("#202020"));

// Puts a palette in force, and the one before back.
class Colours_Set {
public:
    explicit Colours_Set(const QPalette& colours) : before_(QApplication::palette())
    {
        QApplication::setPalette(colours);
    }
    ~Colours_Set() { QApplication::setPalette(before_); }

private:
    QPalette before_;
};

// Puts letters of a size in force, and those before back.
class Font_Set {
public:
    ~Font_Set() { QApplication::setFont(before_); }
    void Use(int points)
    {
        QFont font = before_;
        font.setPointSize(points);
        QApplication::setFont(font);
    }

private:
    QFont before_ = QApplication::font();
};

// How light what is drawn is as a whole, from 0 to 255.
int Lightness(const QImage& picture)
{
    qint64 sum = 0, weight = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor dot = picture.pixelColor(x, y);
            sum += qint64(dot.lightness()) * dot.alpha();
            weight += dot.alpha();
        }
    return weight == 0 ? -1 : static_cast<int>(sum / weight);
}

} // namespace

TEST(WindowLook, Icons_stand_out_on_light_and_dark_windows)
{
    constexpr int leastDifference = 70;
    for (const QPalette& colours : {lightColours, darkColours}) {
        Colours_Set in_force(colours);
        const int ground = colours.color(QPalette::Window).lightness();
        for (const QString& file : QDir(":/icons").entryList()) {
            const QIcon icon = Icon_Named(file.chopped(4).toStdString());
            const int drawn = Lightness(icon.pixmap(32, 32).toImage());
            ASSERT_GE(drawn, 0) << file.toStdString();
            EXPECT_GE(std::abs(drawn - ground), leastDifference) << file.toStdString();
        }
    }
}

TEST(WindowLook, Every_icon_that_a_command_names_is_drawn)
{
    for (const Command& command : Commands())
        EXPECT_TRUE(command.Icon.empty() || !Icon_Named(command.Icon).isNull()) << command.Id;
    for (const char* letter : {"F", "D", "P", "M"})
        EXPECT_FALSE(Icon_OfClass(letter).isNull()) << letter;
}

TEST(WindowLook, Everything_that_takes_the_focus_has_a_name_to_be_read_out)
{
    Person p("window_names", {"a.txt"});
    p.RenameAllFiles();
    for (const Control* control : p.Main().Controls()) {
        QWidget* widget = p.Window().Bound().WidgetOf(control);
        if (!widget || !control->TakesFocus())
            continue;
        const bool hasText = control->MnemonicCaption() && !control->MnemonicCaption()->empty();
        EXPECT_TRUE(hasText || !widget->accessibleName().isEmpty()) << control->FullName();
    }
}

TEST(WindowLook, A_label_that_changes_a_hundred_thousand_times_is_shown_once)
{
    Person p("window_frames", {"a.txt"});
    Label& label = p.Main().lblActionInfo[1];
    FrameQueue& queue = p.Window().Bound().Queue();
    queue.Flush();
    int shown = 0;
    Binding counted(queue, p.Window(), label.Changed, [&](const PropSet&) { ++shown; });
    shown = 0;
    for (int count = 1; count <= 100000; ++count)
        label.Caption = std::to_string(count);
    EXPECT_EQ(shown, 0);
    queue.Flush();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(p.Of<QLabel>("lblActionInfo(1)").text(), "100000");
}

TEST(WindowLook, Rows_that_come_one_by_one_reach_the_view_together)
{
    Person p("window_many", {});
    ListView& list = p.Main().lsvSelMain;
    QTableView& table = p.Table("lsvSelMain");
    QSignalSpy inserted(table.model(), &QAbstractItemModel::rowsInserted);
    constexpr int many = 200000;
    for (int row = 0; row < many; ++row)
        list.Add("row");
    p.Settle();
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(table.model()->rowCount(), many);
    table.setFocus();
    p.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.SelCount(), many);
    EXPECT_EQ(p.ShownPanel(3), "Selected: 200000");
    list.DeleteAllItems();
    EXPECT_EQ(table.model()->data(table.model()->index(many - 1, 0), Qt::DisplayRole), "");
    p.Settle();
    EXPECT_EQ(table.model()->rowCount(), 0);
}

TEST(WindowLook, The_panels_take_the_height_that_they_need)
{
    Font_Set font;
    PanelPerson p("window_heights", modeNameNumber, {"a.txt"});
    for (const int points : {9, 18, 8}) {
        font.Use(points);
        p.Settle();
        for (int mode = modeAttributes; mode <= modeMp3Tag; ++mode) {
            p.Goto(mode);
            const Frame& panel = p.Main().ctlRbRenMode[mode];
            QWidget* shown = p.Window().Bound().WidgetOf(&panel);
            EXPECT_EQ(shown->height(), std::lround(panel.Height / twipsPerPixel)) << mode;
            EXPECT_GE(shown->height(), shown->sizeHint().height()) << mode << " at " << points;
            EXPECT_EQ(p.Of<ListPage>("lsvRename").y(), shown->height() - 2) << mode;
        }
    }
}

TEST(WindowLook, Nothing_on_the_panels_is_cut_in_any_font)
{
    Font_Set font;
    PanelPerson p("window_uncut", modeNameNumber, {"a.txt"});
    p.Window().resize(1200, 800);
    for (const int points : {8, 12, 18}) {
        font.Use(points);
        p.Settle();
        for (int mode = modeAttributes; mode <= modeMp3Tag; ++mode) {
            p.Goto(mode);
            QWidget* panel = p.Window().Bound().WidgetOf(&p.Main().ctlRbRenMode[mode]);
            for (const QWidget* part : panel->findChildren<QWidget*>()) {
                if (!part->isVisible() || !p.Window().Bound().ControlOf(part))
                    continue;
                const QSize least = part->minimumSizeHint();
                EXPECT_GE(part->height(), least.height())
                    << part->objectName().toStdString() << " at " << points;
                EXPECT_GE(part->width(), least.width())
                    << part->objectName().toStdString() << " at " << points;
                EXPECT_LE(part->mapTo(panel, part->rect().bottomRight()).x(), panel->width())
                    << part->objectName().toStdString() << " at " << points;
            }
        }
    }
}

TEST(WindowLook, Tab_walks_all_of_a_panel_in_the_order_of_the_form_and_nothing_unseen)
{
    PanelPerson p("window_tab_panels", modeNameNumber, {"a.mp3"});
    for (int mode = modeAttributes; mode <= modeMp3Tag; ++mode) {
        p.Goto(mode);
        p.Table("lsvRename").setFocus();
        p.ClickRow("lsvRename", 1);
        std::vector<Control*> wanted, walked;
        for (Control* control : p.Main().Controls())
            if (control->TakesFocus() && control->IsShown() && control->IsUsable())
                wanted.push_back(control);
        const auto list = std::find(wanted.begin(), wanted.end(), &p.Main().lsvRename);
        ASSERT_NE(list, wanted.end());
        std::rotate(wanted.begin(), list + 1, wanted.end());
        for (std::size_t stop = 0; stop < wanted.size(); ++stop) {
            p.Key(Qt::Key_Tab);
            walked.push_back(p.Window().Bound().ControlOf(QApplication::focusWidget()));
        }
        for (std::size_t stop = 0; stop < wanted.size(); ++stop)
            EXPECT_EQ(walked[stop] ? walked[stop]->FullName() : "nothing", wanted[stop]->FullName())
                << "mode " << mode;
    }
}

TEST(WindowLook, Captions_tips_and_boxes_of_the_panels_are_those_of_the_controls)
{
    PanelPerson p("window_tips", modeNameNumber, {"a.txt"});
    for (const Control* control : p.Main().Controls()) {
        QWidget* widget = p.Window().Bound().WidgetOf(control);
        auto* button = qobject_cast<QAbstractButton*>(widget);
        const std::string* caption = control->MnemonicCaption();
        const Control* panel = control;
        while (panel && panel->Name() != "ctlRbRenMode")
            panel = panel->Container;
        if (!widget || !panel)
            continue;
        EXPECT_EQ(widget->toolTip().toStdString(), control->ToolTipText.Get())
            << control->FullName();
        if (!button || !caption)
            continue;
        EXPECT_EQ(Plain_Caption(button->text().toStdString()), Plain_Caption(*caption))
            << control->FullName();
    }
    for (const char* name : {"chkAttr(0)", "optCase(1)", "chkDateTime(1)", "cmdmcdPath",
                             "optSearchType(1)", "chkMP3(1)"})
        EXPECT_FALSE(p.Of<QAbstractButton>(name).text().isEmpty()) << name;
}

TEST(WindowLook, The_program_and_the_window_agree_on_its_size)
{
    Person p("window_size", {"a.txt"});
    p.Window().resize(1000, 700);
    p.Settle();
    FrmMain& form = p.Main();
    EXPECT_EQ(form.Width(), 15000);
    EXPECT_EQ(form.Height(), 10500);
    QWidget* central = p.Window().centralWidget();
    EXPECT_EQ(p.Running().state.ClientW, central->width() * 15);
    EXPECT_EQ(p.Running().state.ClientH, central->height() * 15);
    EXPECT_EQ(p.Window().Bound().WidgetOf(&form.fraSelect)->size(), central->size());
    form.Move(form.Left(), form.Top(), 13500, 9000);
    p.Settle();
    EXPECT_EQ(p.Window().size(), QSize(900, 600));
    EXPECT_EQ(p.Window().Bound().WidgetOf(&form.fraSelect)->size(), central->size());
}

TEST(WindowLook, A_maximised_window_keeps_its_normal_size_in_mind)
{
    Person p("window_maximised", {"a.txt"});
    FrmMain& form = p.Main();
    p.Window().showMaximized();
    p.Settle();
    EXPECT_EQ(form.State(), WindowState::Maximised);
    EXPECT_EQ(form.Width(), 12000);
    EXPECT_EQ(form.Height(), 9000);
    EXPECT_EQ(p.Running().state.ClientW, p.Window().centralWidget()->width() * 15);
    form.SetState(WindowState::Normal);
    p.Settle();
    EXPECT_FALSE(p.Window().isMaximized());
    EXPECT_EQ(p.Window().size(), QSize(800, 600));
    EXPECT_EQ(p.Running().state.ClientW, p.Window().centralWidget()->width() * 15);
}

TEST(WindowLook, A_place_off_every_screen_is_not_gone_to)
{
    Person p("window_off_screen", {"a.txt"});
    FrmMain& form = p.Main();
    form.Move(300, 450, form.Width(), form.Height());
    p.Settle();
    EXPECT_EQ(p.Window().pos(), QPoint(20, 30));
    form.Move(-900000, 450, form.Width(), form.Height());
    p.Settle();
    EXPECT_EQ(p.Window().pos(), QPoint(20, 30));
}

TEST(WindowLook, The_panels_fit_into_the_smallest_layout)
{
    PanelPerson p("window_smallest", modeNameNumber, {"a.txt"});
    p.Main().lblTmpInsert[tmplCurrentLabel].Caption = "A template with a rather long name";
    p.Main().cbomcdPath.AddItem("A favorite with a name that is much longer than a window is wide");
    p.Window().resize(300, 300);
    p.Settle();
    for (int mode = modeAttributes; mode <= modeMp3Tag; ++mode) {
        p.Goto(mode);
        const Frame& panel = p.Main().ctlRbRenMode[mode];
        ASSERT_EQ(panel.Width, 6732) << mode;
        EXPECT_LE(p.Window().Bound().WidgetOf(&panel)->minimumSizeHint().width(), 449) << mode;
    }
}

TEST(WindowLook, Nothing_on_the_bars_is_cut_at_the_default_size)
{
    Person p("window_fits", {"a.txt"});
    ASSERT_EQ(p.Window().width(), 800);
    for (const bool rename : {false, true}) {
        if (rename)
            p.RenameAllFiles();
        for (const auto& band : p.Main().atbMain.Bands()) {
            if (!band->Visible() || p.Main().atbMain.Find(band->Name()) || band->Name() == "Menu")
                continue;
            for (Tool* tool : band->Tools()) {
                const bool isButton = tool->Kind() == ToolKind::Button && tool->Visible;
                EXPECT_TRUE(!isButton || p.ToolButton(tool->Name())) << tool->Name();
            }
        }
    }
}

TEST(WindowLook, The_panel_of_a_mode_stands_out_by_its_edge)
{
    for (const QPalette& colours : {lightColours, darkColours}) {
        Colours_Set in_force(colours);
        PanelPerson p("window_edge", modeNameNumber, {"a.txt"});
        auto& panel = p.Of<QWidget>("ctlRbRenMode(" + std::to_string(modeNameNumber) + ")");
        const QImage shown = panel.grab().toImage();
        const int right = shown.width() - 1, bottom = shown.height() - 1;
        const QColor light = colours.color(QPalette::Light), dark = colours.color(QPalette::Dark);
        EXPECT_EQ(shown.pixel(right / 2, 0), light.rgb());
        EXPECT_EQ(shown.pixel(0, bottom / 2), light.rgb());
        EXPECT_EQ(shown.pixel(right / 2, bottom), dark.rgb());
        EXPECT_EQ(shown.pixel(right, bottom / 2), dark.rgb());
    }
}

} // namespace tavo
