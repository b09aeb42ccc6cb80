#include "window/viewer_person.h"

#include "hosts/qt/bar_view.h"
#include "hosts/qt/qt_text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QWheelEvent>

namespace tavo {

TEST(WindowViewer, It_opens_on_the_row_it_is_asked_for)
{
    ViewerPerson p("viewer_open");
    EXPECT_EQ(p.Tavo().Viewer(), nullptr);
    p.Open(4);
    ASSERT_NE(p.Tavo().Viewer(), nullptr);
    EXPECT_TRUE(p.Shown().isVisible());
    EXPECT_TRUE(p.Shown().isActiveWindow());
    EXPECT_EQ(p.Panel(1), "Image: 4 of 4");
    EXPECT_EQ(p.Panel(2), "d.bmp");
    EXPECT_EQ(p.Image().size(), QSize(64, 48));
    EXPECT_EQ(p.Middle(0.25), paper);
    EXPECT_EQ(p.Middle(0.75), ink);
    EXPECT_EQ(p.Image().center(), p.View().rect().center());
    EXPECT_EQ(p.In<QScrollBar>("hsbCurImage").value(), 4);
    EXPECT_EQ(p.In<QScrollBar>("hsbCurImage").maximum(), 4);
}

TEST(WindowViewer, What_lies_under_the_bar_shares_the_window_out)
{
    ViewerPerson p("viewer_layout");
    p.Open(1);
    for (const QSize& size : {QSize(640, 480), QSize(1000, 620), QSize(420, 360)}) {
        p.Resize(size.width(), size.height());
        const QRect inside = p.Shown().centralWidget()->rect();
        std::vector<QRect> parts;
        for (const char* name : {"picViewWin", "vsbImage", "hsbImage", "hsbCurImage"})
            parts.push_back(p.In(name).geometry());
        for (std::size_t i = 0; i < parts.size(); ++i) {
            EXPECT_TRUE(inside.contains(parts[i])) << i;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(parts[i].intersects(parts[j])) << i << j;
        }
        EXPECT_GE(inside.bottom() - parts[3].bottom(), 1);
        EXPECT_LE(inside.bottom() - parts[3].bottom(), 4);
        EXPECT_EQ(p.Image().center(), p.View().rect().center());
        EXPECT_EQ(p.Form().Width(), p.Shown().width() * twipsPerPixel);
        EXPECT_EQ(p.Form().Height(), p.Shown().height() * twipsPerPixel);
    }
}

TEST(WindowViewer, Next_and_previous_pass_what_is_no_picture)
{
    ViewerPerson p("viewer_walk");
    p.Open(2);
    p.Press("ID_ImgNext");
    EXPECT_EQ(p.Panel(2), "d.bmp");
    p.Press("ID_ImgNext");
    EXPECT_EQ(p.Panel(2), "a.bmp");
    p.Press("ID_ImgPrev");
    EXPECT_EQ(p.Panel(2), "d.bmp");
    p.Press("ID_ImgPrev");
    EXPECT_EQ(p.Panel(2), "b.bmp");
}

TEST(WindowViewer, Any_row_can_be_gone_to)
{
    ViewerPerson p("viewer_rows");
    p.Open(2);
    p.ClickPart(p.In<QScrollBar>("hsbCurImage"), QStyle::SC_ScrollBarAddLine);
    EXPECT_EQ(p.Panel(2), "c.txt");
    EXPECT_EQ(p.Image().size(), QSize(32, 32)) << "the icon of the text";
    p.Key(Qt::Key_Right);
    EXPECT_EQ(p.Panel(2), "d.bmp");
    p.Key(Qt::Key_Home);
    EXPECT_EQ(p.Panel(2), "a.bmp");
    p.Key(Qt::Key_End);
    EXPECT_EQ(p.Panel(2), "d.bmp");
    p.Key(Qt::Key_PageUp);
    EXPECT_EQ(p.Panel(2), "c.txt");
}

TEST(WindowViewer, The_wheel_walks_the_list_or_pans)
{
    ViewerPerson p("viewer_wheel");
    const auto turn = [&p](int notches) {
        const QPointF place = p.View().rect().center();
        QWheelEvent event(place, p.View().mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&p.View(), &event);
        p.Wait();
    };
    p.Open(1);
    turn(-1);
    EXPECT_GT(p.Form().hsbCurImage.Value, 1);
    p.Open(2);
    ASSERT_TRUE(p.Form().vsbImage.Enabled);
    turn(-1);
    EXPECT_GT(p.Form().vsbImage.Value, 0);
    EXPECT_EQ(p.Form().hsbCurImage.Value, 2);
    EXPECT_EQ(p.Form().imgOriginal.Top, -p.Form().vsbImage.Value.Get());
}

TEST(WindowViewer, The_picture_follows_the_hand)
{
    ViewerPerson p("viewer_pan");
    p.Open(2);
    p.Resize(640, 480);
    PictureView& view = p.View();
    QTest::mouseMove(&view, {300, 200});
    EXPECT_EQ(view.cursor().shape(), Qt::OpenHandCursor);
    QTest::mousePress(&view, Qt::LeftButton, {}, {300, 200});
    EXPECT_EQ(view.cursor().shape(), Qt::ClosedHandCursor);
    for (const QPoint& place : {QPoint(290, 195), QPoint(200, 150), QPoint(120, 60)}) {
        QTest::mouseMove(&view, place);
        p.Wait();
        EXPECT_EQ(p.Image().topLeft(), place - QPoint(300, 200));
        EXPECT_EQ(p.In<QScrollBar>("hsbImage").value(), 300 - place.x());
        EXPECT_EQ(p.In<QScrollBar>("vsbImage").value(), 200 - place.y());
    }
    // Past its end it stays, and comes back at once.
    QTest::mouseMove(&view, {600, 400});
    QTest::mouseMove(&view, {595, 393});
    p.Wait();
    EXPECT_EQ(p.Image().topLeft(), QPoint(-5, -7));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {595, 393});
    EXPECT_EQ(view.cursor().shape(), Qt::OpenHandCursor);
    QTest::mouseMove(&view, {300, 300});
    EXPECT_EQ(p.Image().topLeft(), QPoint(-5, -7)) << "let go";
    p.Open(1);
    QTest::mouseMove(&view, view.rect().center());
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor) << "nothing to move";
}

TEST(WindowViewer, The_bars_pan)
{
    ViewerPerson p("viewer_bars");
    p.Open(2);
    p.Resize(640, 480);
    auto& across = p.In<QScrollBar>("hsbImage");
    auto& down = p.In<QScrollBar>("vsbImage");
    EXPECT_EQ(across.maximum(), 2000 - p.View().width());
    EXPECT_EQ(down.maximum(), 1500 - p.View().height());
    p.ClickPart(across, QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(across.value(), p.View().width()) << "a view's width is a page";
    EXPECT_EQ(p.Image().x(), -across.value());
    QTest::mousePress(&down, Qt::LeftButton, {}, p.Part(down, QStyle::SC_ScrollBarSlider));
    QTest::mouseMove(&down, {4, down.height() * 2});
    p.Wait();
    EXPECT_EQ(p.Image().bottom(), p.View().rect().bottom()) << "while it is dragged";
    QTest::mouseRelease(&down, Qt::LeftButton, {}, {4, down.height() * 2});
    EXPECT_EQ(p.Form().vsbImage.Value, down.maximum());
}

TEST(WindowViewer, What_the_program_scrolls_is_shown_and_not_told_back)
{
    ViewerPerson p("viewer_echo");
    p.Open(2);
    p.Resize(640, 480);
    int scrolls = 0, changes = 0;
    const auto scrolled = p.Form().vsbImage.Scroll.Listen([&] { ++scrolls; });
    const auto changed = p.Form().vsbImage.Change.Listen([&] { ++changes; });
    p.Form().vsbImage.Value = 321;
    p.Wait();
    EXPECT_EQ(p.In<QScrollBar>("vsbImage").value(), 321);
    EXPECT_EQ(scrolls, 0);
    EXPECT_EQ(changes, 1);
    p.Press("ID_Shrink"); // there is nothing to pan any more
    auto& bar = p.In<QScrollBar>("vsbImage");
    EXPECT_EQ(bar.minimum(), bar.maximum());
    EXPECT_EQ(scrolls, 0);
    p.Press("ID_Shrink");
    EXPECT_EQ(bar.maximum(), 1500 - p.View().height());
}

TEST(WindowViewer, A_large_picture_shrinks_and_a_small_one_grows)
{
    ViewerPerson p("viewer_fit");
    p.Open(2);
    p.Resize(640, 480);
    p.Press("ID_Shrink");
    EXPECT_TRUE(p.Running().state.ViewShrink);
    EXPECT_TRUE(p.Button("ID_Shrink").isChecked());
    EXPECT_FALSE(p.Button("ID_SizeWindow").isEnabled());
    EXPECT_TRUE(p.View().rect().contains(p.Image()));
    EXPECT_TRUE(p.Image().width() == p.View().width() || p.Image().height() == p.View().height());
    EXPECT_FALSE(p.In<QScrollBar>("hsbImage").isEnabled());
    EXPECT_EQ(p.Middle(0.1), paper);
    EXPECT_EQ(p.Middle(0.9), ink);
    p.Press("ID_ImgNext");
    EXPECT_EQ(p.Image().size(), QSize(64, 48)) << "a small one stays";
    p.Press("ID_Enlarge");
    EXPECT_TRUE(p.Image().width() == p.View().width() || p.Image().height() == p.View().height());
    EXPECT_EQ(p.Middle(0.1), paper);
    EXPECT_EQ(p.Middle(0.9), ink);
    p.Press("ID_Enlarge");
    EXPECT_EQ(p.Image().size(), QSize(64, 48));
}

TEST(WindowViewer, A_shrunk_picture_is_an_average_of_its_dots)
{
    ViewerPerson p("viewer_smooth");
    QImage board(1600, 1200, QImage::Format_RGB32);
    for (int y = 0; y < board.height(); ++y)
        for (int x = 0; x < board.width(); ++x)
            board.setPixelColor(x, y, (x + y) % 2 ? Qt::black : Qt::white);
    p.Folder().Write("files/b.bmp", Bmp(board));
    p.Open(2);
    p.Resize(640, 480);
    p.Press("ID_Shrink");
    const QImage shown = p.View().grab(p.Image().adjusted(2, 2, -2, -2)).toImage();
    int lowest = 255, highest = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) {
            lowest = std::min(lowest, shown.pixelColor(x, y).green());
            highest = std::max(highest, shown.pixelColor(x, y).green());
        }
    EXPECT_LE(highest - lowest, 64) << "it is one gray";
    EXPECT_GT(lowest, 90);
    EXPECT_LT(highest, 170);
}

TEST(WindowViewer, The_window_takes_the_size_of_the_picture)
{
    ViewerPerson p("viewer_size");
    p.Open(1);
    p.Shown().move(40, 30);
    p.Resize(600, 500);
    p.Folder().Write("files/d.bmp", Bmp(Halves(420, 300)));
    p.Press("ID_ImgPrev");
    p.Press("ID_SizeWindow");
    EXPECT_EQ(p.View().size(), QSize(420, 300));
    EXPECT_EQ(p.Image(), p.View().rect());
    EXPECT_FALSE(p.In<QScrollBar>("hsbImage").isEnabled());
    EXPECT_FALSE(p.In<QScrollBar>("vsbImage").isEnabled());
    const QPoint corner = p.Shown().pos();
    p.Press("ID_ImgPrev"); // larger than the screen
    p.Press("ID_SizeWindow");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_EQ(p.Shown().pos(), corner);
    EXPECT_EQ(p.Shown().x() + p.Shown().width(), screen.width());
    EXPECT_EQ(p.Shown().y() + p.Shown().height(), screen.height());
}

TEST(WindowViewer, Dragging_the_position_bar_shows_previews_first)
{
    ViewerPerson p("viewer_preview");
    p.Open(1);
    auto& rows = p.In<QScrollBar>("hsbCurImage");
    auto& preview = p.In<FaceButton>("cmdThumb");
    EXPECT_FALSE(preview.isVisible());
    const QPoint from = p.Part(rows, QStyle::SC_ScrollBarSlider);
    const QPoint to(rows.width() * 2, from.y());
    QTest::mousePress(&rows, Qt::LeftButton, {}, from);
    QTest::mouseMove(&rows, to);
    p.Wait();
    EXPECT_TRUE(preview.isVisible());
    EXPECT_TRUE(p.View().rect().contains(preview.geometry()));
    const ThumbLook& look = p.Running().state.ThumbLook;
    EXPECT_EQ(preview.size(), QSize(look.Width + look.Margin, look.Height + look.Margin));
    EXPECT_EQ(p.Panel(2), "d.bmp");
    EXPECT_EQ(p.Panel(1), "Image: 1 of 4") << "nothing is loaded yet";
    EXPECT_TRUE(p.Form().tmrHideThumb.Enabled);
    QTest::mouseRelease(&rows, Qt::LeftButton, {}, to);
    p.Wait();
    EXPECT_FALSE(preview.isVisible());
    EXPECT_EQ(p.Panel(1), "Image: 4 of 4");
    EXPECT_FALSE(p.Form().tmrHideThumb.Enabled);
}

TEST(WindowViewer, The_preview_goes_by_itself_and_answers_a_click)
{
    ViewerPerson p("viewer_click");
    p.Open(1);
    auto& rows = p.In<QScrollBar>("hsbCurImage");
    auto& preview = p.In<FaceButton>("cmdThumb");
    const QPoint from = p.Part(rows, QStyle::SC_ScrollBarSlider);
    QTest::mousePress(&rows, Qt::LeftButton, {}, from);
    QTest::mouseMove(&rows, {rows.width() * 2, from.y()});
    p.Wait();
    ASSERT_TRUE(preview.isVisible());
    p.AnswerNext("OK");
    QTest::mouseClick(&preview, Qt::LeftButton);
    p.Wait();
    ASSERT_EQ(p.BoxTexts.size(), 1);
    EXPECT_EQ(p.BoxTexts[0], "Error: 22067 ( User Fast like Cheetah! )\n"
                             "Exposed Programmer Flaw: ( Button used to Pretty Up Thumbnail! )\n\n"
                             "No Errors were Harmed during the Making of this Message!");
    p.Form().tmrHideThumb.Tick();
    p.Wait();
    EXPECT_FALSE(preview.isVisible());
}

TEST(WindowViewer, A_slide_show_goes_both_ways_until_it_is_stopped)
{
    ViewerPerson p("viewer_show");
    p.Open(1);
    p.Press("ID_ShowPlayF");
    EXPECT_TRUE(p.Button("ID_ShowPlayF").isChecked());
    EXPECT_EQ(p.Form().tmrAutoShow.Interval, 1000);
    const auto tick = [&p] {
        p.Form().tmrAutoShow.Tick();
        p.Wait();
        return FromQt(p.Panel(2));
    };
    EXPECT_EQ(tick(), "b.bmp");
    EXPECT_EQ(tick(), "d.bmp");
    EXPECT_EQ(tick(), "a.bmp");
    p.Press("ID_ShowPlayR");
    EXPECT_FALSE(p.Button("ID_ShowPlayF").isChecked());
    EXPECT_TRUE(p.Button("ID_ShowPlayR").isChecked());
    EXPECT_EQ(tick(), "d.bmp");
    p.Press("ID_ShowStop");
    EXPECT_FALSE(p.Form().tmrAutoShow.Enabled);
    EXPECT_FALSE(p.Button("ID_ShowPlayR").isChecked());
}

TEST(WindowViewer, The_delay_is_typed_into_its_box)
{
    ViewerPerson p("viewer_seconds");
    p.Open(1);
    auto& box = p.In<QLineEdit>("ID_Seconds");
    QTest::mouseClick(&box, Qt::LeftButton);
    p.Wait();
    for (const char c : std::string("x2.5")) {
        QTest::keyClick(&box, c);
        p.Wait();
    }
    EXPECT_EQ(box.text(), "2.5");
    p.Key(Qt::Key_Return);
    EXPECT_EQ(p.Form().tmrAutoShow.Interval, 2500);
    EXPECT_EQ(p.Form().hsbCurImage.Value, 1);
}

TEST(WindowViewer, A_slide_show_stops_when_another_window_comes_up)
{
    ViewerPerson p("viewer_deactivate");
    p.Open(1);
    p.Press("ID_ShowPlayF");
    ASSERT_TRUE(p.Form().tmrAutoShow.Enabled);
    p.Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&p.Window()));
    p.Wait();
    EXPECT_FALSE(p.Form().tmrAutoShow.Enabled);
    EXPECT_FALSE(p.Button("ID_ShowPlayF").isChecked());
}

TEST(WindowViewer, The_background_is_chosen_in_the_colour_dialog)
{
    ViewerPerson p("viewer_ground");
    p.Open(1);
    p.Resize(700, 500);
    const QPoint corner = p.View().rect().bottomRight() - QPoint(9, 9);
    EXPECT_EQ(p.At(corner), p.Shown().palette().color(QPalette::Base));
    QRect dialog;
    p.InNextDialog([&](QWidget& shown) {
        dialog = QRect(shown.pos(), shown.size());
        QTest::mouseClick(shown.findChild<QWidget*>("picColorSys(44)"), Qt::LeftButton);
    });
    p.Press("ID_BackColor");
    EXPECT_EQ(p.At(corner), QColor(0, 0x40, 0));
    EXPECT_EQ(p.Running().state.ColViewWin, 0x004000);
    const QRect viewer(p.Shown().pos(), p.Shown().size());
    EXPECT_NEAR(dialog.center().x(), viewer.center().x(), 1);
    EXPECT_NEAR(dialog.bottom(), viewer.bottom(), 1);
    p.InNextDialog([](QWidget& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    p.Press("ID_BackColor");
    EXPECT_EQ(p.At(corner), QColor(0, 0x40, 0));
}

TEST(WindowViewer, The_background_follows_the_desktop)
{
    ViewerPerson p("viewer_dark");
    p.Open(1);
    const QPalette before = QGuiApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(25, 25, 28));
    QApplication::setPalette(dark);
    p.Wait();
    const QColor ground = p.At({8, 8});
    QApplication::setPalette(before);
    p.Wait();
    EXPECT_EQ(ground, QColor(25, 25, 28));
    EXPECT_EQ(p.At({8, 8}), before.color(QPalette::Base));
}

TEST(WindowViewer, Closed_it_hides_and_comes_back_as_it_was)
{
    ViewerPerson p("viewer_close");
    p.Open(1);
    p.Shown().move(50, 60);
    p.Resize(666, 444);
    p.Press("ID_Enlarge");
    ViewerWindow* const window = &p.Shown();
    p.Shown().close();
    p.Wait();
    EXPECT_FALSE(p.Shown().isVisible());
    EXPECT_FALSE(p.Form().Visible());
    EXPECT_TRUE(p.Window().isVisible());
    p.Open(4);
    EXPECT_EQ(&p.Shown(), window);
    EXPECT_TRUE(p.Shown().isVisible());
    EXPECT_EQ(p.Panel(2), "d.bmp");
    EXPECT_EQ(p.Shown().pos(), QPoint(50, 60));
    EXPECT_EQ(p.Shown().size(), QSize(666, 444));
    EXPECT_TRUE(p.Button("ID_Enlarge").isChecked());
}

TEST(WindowViewer, Its_exit_hides_it_too)
{
    ViewerPerson p("viewer_exit");
    p.Open(1);
    Tool* exit = p.Form().atbView.Find("ID_Exit");
    p.Form().atbView.PersonClick(*exit);
    p.Wait();
    EXPECT_FALSE(p.Shown().isVisible());
    EXPECT_TRUE(p.Window().isVisible());
}

TEST(WindowViewer, Opened_again_it_comes_to_the_front)
{
    ViewerPerson p("viewer_front");
    p.Open(1);
    p.Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&p.Window()));
    p.Open(2);
    EXPECT_TRUE(p.Shown().isActiveWindow());
    EXPECT_EQ(p.Panel(2), "b.bmp");
}

TEST(WindowViewer, It_brings_the_main_window_to_the_front)
{
    ViewerPerson p("viewer_main");
    p.Open(1);
    p.Press("ID_ShowTavo");
    EXPECT_TRUE(p.Window().isActiveWindow());
    p.Open(1);
    p.Window().showMinimized();
    p.Wait();
    p.Press("ID_ShowTavo");
    EXPECT_FALSE(p.Window().isMinimized());
}

TEST(WindowViewer, An_icon_can_be_seen_on_any_ground)
{
    ViewerPerson p("viewer_icon");
    p.Open(3);
    for (const QColor& ground : {QColor(Qt::black), QColor(Qt::white)}) {
        const int bits = ground.red();
        p.Form().picViewWin.BackColor = bits | bits << 8 | bits << 16;
        p.Wait();
        const QImage shown = p.View().grab(p.Image()).toImage();
        int strongest = 0;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                strongest = std::max(strongest, std::abs(shown.pixelColor(x, y).green() - bits));
        EXPECT_GT(strongest, 200) << bits;
    }
}

TEST(WindowViewer, It_comes_up_where_it_was_left)
{
    ViewerPerson p("viewer_place");
    FrmViewer& form = p.Form();
    form.EnsureLoaded();
    form.Move(900, 750, 9300, 6900);
    p.Open(1);
    EXPECT_EQ(p.Shown().pos(), QPoint(60, 50));
    EXPECT_EQ(p.Shown().size(), QSize(620, 460));
}

TEST(WindowViewer, On_an_empty_list_there_is_nothing_to_do)
{
    ViewerPerson p("viewer_empty", {});
    p.Open(1);
    EXPECT_TRUE(p.Shown().isVisible());
    for (const char* id : {"ID_ImgNext", "ID_ImgPrev", "ID_ShowPlayF", "ID_SizeWindow"})
        EXPECT_FALSE(p.Button(id).isEnabled()) << id;
    for (const char* bar : {"hsbCurImage", "hsbImage", "vsbImage"})
        EXPECT_FALSE(p.In<QScrollBar>(bar).isEnabled()) << bar;
    EXPECT_EQ(p.At(p.View().rect().center()), p.Shown().palette().color(QPalette::Base));
}

TEST(WindowViewer, Its_bar_is_walked_by_keys)
{
    ViewerPerson p("viewer_keys");
    p.Open(1);
    p.Key(Qt::Key_F6);
    EXPECT_EQ(p.Shown().focusWidget(), p.Shown().menuBar());
    p.Key(Qt::Key_F6);
    EXPECT_EQ(p.Shown().focusWidget(), &p.Button("ID_ImgPrev"));
    p.Key(Qt::Key_Right);
    p.Key(Qt::Key_Return);
    EXPECT_EQ(p.Panel(2), "b.bmp");
}

TEST(WindowViewer, Every_tool_of_the_bar_has_a_picture_and_a_tip)
{
    ViewerPerson p("viewer_tools");
    p.Open(1);
    int buttons = 0;
    for (QToolButton* button : p.Shown().findChild<BarView*>()->findChildren<QToolButton*>()) {
        if (!button->defaultAction())
            continue;
        ++buttons;
        EXPECT_FALSE(button->icon().isNull()) << FromQt(button->text());
        EXPECT_FALSE(button->toolTip().isEmpty()) << FromQt(button->text());
    }
    EXPECT_GE(buttons, 11);
}

} // namespace tavo
