#include "window/grid_person.h"

#include "hosts/qt/colours.h"
#include "hosts/qt/thumb_captions.h"
#include "hosts/qt/thumb_pointers.h"
#include "settings/named_lists.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <set>

namespace tavo {

namespace {

bool IsAbout(const QColor& one, const QColor& other)
{
    return std::abs(one.red() - other.red()) < 8 && std::abs(one.green() - other.green()) < 8
           && std::abs(one.blue() - other.blue()) < 8;
}

// Clicks on an entry of a menu; those on the way open at once.
void Choose(Person& p, const std::vector<std::string>& ids)
{
    QWidget* menu = p.Window().menuBar();
    for (const std::string& id : ids) {
        QAction* entry = nullptr;
        for (QAction* action : menu->actions())
            if (action->objectName().toStdString() == id)
                entry = action;
        ASSERT_NE(entry, nullptr) << id;
        auto* bar = qobject_cast<QMenuBar*>(menu);
        auto* list = qobject_cast<QMenu*>(menu);
        const bool below = list && entry->menu();
        const QRect place = bar ? bar->actionGeometry(entry) : list->actionGeometry(entry);
        if (below)
            list->setActiveAction(entry);
        else
            QTest::mouseClick(menu, Qt::LeftButton, {}, place.center());
        if (id == ids.back())
            break;
        ASSERT_NE(entry->menu(), nullptr) << id;
        menu = entry->menu();
        ASSERT_TRUE(menu->isVisible()) << id;
    }
    p.Settle();
}

bool IsChecked(Person& p, const std::string& id)
{
    const auto* action = p.Window().findChild<QAction*>(QString::fromStdString(id));
    return action && action->isChecked();
}

bool HasPointer(GridPerson& p, int number)
{
    const QCursor wanted = Pointer_OfDrag(number, p.Page().devicePixelRatioF());
    return p.Page().cursor().pixmap().toImage() == wanted.pixmap().toImage()
           && p.Page().cursor().hotSpot() == wanted.hotSpot();
}

bool HasPlainPointer(GridPerson& p)
{
    return p.Page().cursor().shape() == Qt::ArrowCursor;
}

void Turn(GridPerson& p, int steps)
{
    const QPointF middle = p.PlaceOn(p.Main().picThumbs);
    QWheelEvent wheel(middle, p.Page().mapToGlobal(middle), {}, {0, -120 * steps}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&p.Page(), &wheel);
    p.Settle();
}

QString TipOn(GridPerson& p, const Control& control)
{
    const QPoint place = p.PlaceOn(control);
    QHelpEvent help(QEvent::ToolTip, place, p.Page().mapToGlobal(place));
    QApplication::sendEvent(&p.Page(), &help);
    const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
    QEvent away(QEvent::WindowActivate); // hides it at once
    QApplication::sendEvent(&p.Window(), &away);
    return text;
}

// How many dots of the caption are in its text's colour or near to it, and
// where the middle of them is, as a share of its width.
struct Ink {
    int Dots = 0;
    double Middle = 0;
};

Ink Ink_Of(GridPerson& p, const Control& caption)
{
    p.Settle();
    const QImage page = p.Page().grab().toImage();
    const QRect place(p.PlaceOn(caption, 0, 0), p.PlaceOn(caption, 1, 1));
    const QRgb ground = page.pixel(place.topLeft());
    Ink ink;
    for (int y = place.top(); y < place.bottom(); ++y)
        for (int x = place.left(); x < place.right(); ++x)
            if (qAbs(qGray(page.pixel(x, y)) - qGray(ground)) > 80) {
                ++ink.Dots;
                ink.Middle += static_cast<double>(x - place.left()) / place.width();
            }
    ink.Middle = ink.Dots ? ink.Middle / ink.Dots : 0;
    return ink;
}

// A desktop in the dark, for as long as it lives.
class Night {
public:
    Night() : day_(QApplication::palette())
    {
        QPalette dark(QColor(50, 52, 54), QColor(30, 32, 34));
        dark.setColor(QPalette::Highlight, QColor(40, 120, 200));
        QApplication::setPalette(dark);
    }
    ~Night() { QApplication::setPalette(day_); }

private:
    QPalette day_;
};

} // namespace

TEST(CaptionCuts, A_caption_without_room_loses_its_middle)
{
    struct Row {
        const char* Text;
        bool IsCut;
    };
    const Row rows[] = {
        {"p01.jpg", false},
        {"", false},
        {"IMG_20260714_153012_Holiday at the lake with everybody 066.png", true},
        {"iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii.jpg", true},
        {"\u6625\u8282\u5bb6\u5ead\u805a\u4f1a\u7167\u7247\u4e8c\u96f6\u4e8c\u516d.jpg", true},
    };
    const QFont font = QApplication::font();
    const QFontMetrics metrics(font);
    CaptionCuts cuts;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Text);
        const QString whole = QString::fromUtf8(row.Text);
        const QString cut = cuts.Of(row.Text, font, 90);
        EXPECT_EQ(cut, metrics.elidedText(whole, Qt::ElideMiddle, 90));
        EXPECT_EQ(cut != whole, row.IsCut);
        EXPECT_LE(metrics.horizontalAdvance(cut), 90);
    }
}

TEST(CaptionCuts, Another_width_or_font_cuts_anew)
{
    const std::string name = "a name that is much too long for its room.jpg";
    QFont font = QApplication::font();
    CaptionCuts cuts;
    const QString first = cuts.Of(name, font, 90);
    EXPECT_GT(cuts.Of(name, font, 140).size(), first.size());
    EXPECT_EQ(cuts.Of(name, font, 90), first);
    font.setPixelSize(2 * QFontInfo(font).pixelSize());
    EXPECT_LT(cuts.Of(name, font, 90).size(), first.size());
    cuts.HoldTo(0);
    EXPECT_EQ(cuts.Of(name, QApplication::font(), 90), first);
}

TEST(WindowThumbs, The_offer_taken_shows_each_picture_in_its_cell)
{
    GridPerson p("thumbs_offer", 8);
    ASSERT_EQ(p.BoxTexts.size(), 1);
    EXPECT_EQ(p.BoxTexts[0], "Would you like to Create Thumbnail Images Now?");
    EXPECT_TRUE(p.Grid().isVisible());
    for (int cell = 1; cell <= 8; ++cell)
        EXPECT_TRUE(IsAbout(p.Shown(p.Cell(cell)), GridPerson::Colour_Of(cell))) << cell;
    EXPECT_EQ(p.Grid().accessibleName(), "Thumbnails");
}

TEST(WindowThumbs, The_offer_refused_shows_the_icon_of_each_class)
{
    GridPerson p("thumbs_icons", 3, false);
    const QColor frame = Color_Of(p.Main().shpThumbsSel[1].BackColor, QApplication::palette());
    const QImage page = p.Page().grab().toImage();
    for (int cell = 1; cell <= 3; ++cell) {
        const QRect place(p.PlaceOn(p.Cell(cell), 0, 0), p.PlaceOn(p.Cell(cell), 1, 1));
        std::set<QRgb> colours;
        for (int y = place.top(); y < place.bottom(); ++y)
            for (int x = place.left(); x < place.right(); ++x)
                colours.insert(page.pixel(x, y));
        EXPECT_EQ(place.size(), QSize(33, 33)) << cell;
        EXPECT_TRUE(colours.count(frame.rgb())) << cell;
        EXPECT_GT(colours.size(), 2u) << cell;
    }
}

TEST(WindowThumbs, An_icon_lies_on_a_plate_where_it_could_not_be_seen)
{
    GridPerson p("thumbs_plate", 2, false);
    const QColor plate = QApplication::palette().color(QPalette::Window);
    const Shape& frame = p.Main().shpThumbsSel[1];
    const double across = (p.Cell(1).Left - 2 - frame.Left) / frame.Width;
    const auto paint = [&](std::int32_t colour) {
        for (const auto& one : p.Main().shpThumbsSel)
            one->BackColor = colour;
    };
    paint(0xFFFFFF);
    EXPECT_EQ(p.Shown(frame, across), QColor(Qt::white));
    paint(0x101010);
    EXPECT_EQ(p.Shown(frame, across), plate);
    EXPECT_EQ(p.Shown(frame, across / 2), QColor(16, 16, 16));
}

TEST(WindowThumbs, Frames_are_painted_as_wide_as_they_are_and_show_the_selection)
{
    GridPerson p("thumbs_frames", 4);
    p.ClickOn(p.Cell(2));
    const QPalette palette = QApplication::palette();
    const Shape& picked = p.Main().shpThumbsSel[2];
    const QImage page = p.Page().grab().toImage();
    const QPoint corner = p.PlaceOn(picked, 0, 0);
    const int width = picked.BorderWidth;
    const QRgb border = Color_Of(p.Running().state.ThumbLook.Color[1], palette).rgb();
    EXPECT_EQ(page.pixel(corner), border);
    EXPECT_EQ(page.pixel(corner + QPoint(width - 1, width - 1)), border);
    EXPECT_EQ(page.pixel(corner + QPoint(width, width)), Color_Of(picked.BackColor, palette).rgb());
    EXPECT_NE(page.pixel(corner - QPoint(1, 1)), border);
    EXPECT_NE(page.pixel(p.PlaceOn(p.Main().shpThumbsSel[3], 0, 0)), border);
}

TEST(WindowThumbs, The_wheel_scrolls_three_lines_and_the_bar_shows_it)
{
    GridPerson p("thumbs_wheel", 90);
    ScrollBar& lines = p.Main().vsbThumbs;
    auto& bar = p.Of<QScrollBar>("vsbThumbs");
    lines.Value = 1;
    p.Settle();
    ASSERT_GT(lines.Max, 4);
    Turn(p, 1);
    const int step = std::min<int>(3, lines.LargeChange);
    EXPECT_EQ(lines.Value, 1 + step);
    EXPECT_EQ(bar.value(), 1 + step);
    const int first = step * p.Running().state.Columns + 1;
    EXPECT_TRUE(IsAbout(p.Shown(p.Cell(1)), GridPerson::Colour_Of(first)));
    Turn(p, -5);
    Turn(p, -1); // it is at its end, and does not take it
    EXPECT_EQ(lines.Value, 1);
}

TEST(WindowThumbs, The_scroll_bar_scrolls_by_its_own_parts)
{
    GridPerson p("thumbs_bar", 90);
    ScrollBar& lines = p.Main().vsbThumbs;
    auto& bar = p.Of<QScrollBar>("vsbThumbs");
    lines.Value = 1;
    p.Settle();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, bar.height() - 4});
    p.Settle();
    EXPECT_EQ(lines.Value, 2);
    EXPECT_TRUE(IsAbout(p.Shown(p.Cell(1)), GridPerson::Colour_Of(p.Running().state.Columns + 1)));
}

TEST(WindowThumbs, Shift_and_Ctrl_select_and_a_click_beside_the_cells_clears)
{
    GridPerson p("thumbs_select", 8);
    p.ClickOn(p.Cell(2));
    EXPECT_EQ(p.Picked(), "2");
    p.ClickOn(p.Cell(5), Qt::ShiftModifier);
    EXPECT_EQ(p.Picked(), "2 3 4 5");
    p.ClickOn(p.Cell(3), Qt::ControlModifier);
    EXPECT_EQ(p.Picked(), "2 4 5");
    p.ClickOn(p.Cell(8), Qt::ControlModifier);
    EXPECT_EQ(p.Picked(), "2 4 5 8");
    p.ClickOn(p.Cell(4));
    EXPECT_EQ(p.Picked(), "4");
    QTest::mouseClick(&p.Page(), Qt::LeftButton, {}, p.PlaceOn(p.Main().picThumbs, 0.5, 0.97));
    p.Settle();
    EXPECT_EQ(p.Picked(), "");
}

TEST(WindowThumbs, A_press_that_is_let_go_elsewhere_is_no_click)
{
    GridPerson p("thumbs_no_click", 4);
    p.ClickOn(p.Cell(2));
    const QPoint ground = p.PlaceOn(p.Main().picThumbs, 0.5, 0.97);
    QTest::mousePress(&p.Page(), Qt::LeftButton, {}, ground);
    QTest::mouseRelease(&p.Page(), Qt::LeftButton, {}, p.PlaceOn(p.Cell(1)));
    p.Settle();
    EXPECT_EQ(p.Picked(), "2");
}

TEST(WindowThumbs, The_mouse_reaches_nothing_while_the_page_is_disabled)
{
    GridPerson p("thumbs_disabled", 4);
    p.Main().picThumbnails.Enabled = false;
    ASSERT_EQ(p.Picked(), "1");
    p.ClickOn(p.Cell(2)); // with the control ahead of its widget
    p.ClickOn(p.Cell(2));
    EXPECT_EQ(p.Picked(), "1");
    EXPECT_FALSE(p.Page().isEnabled());
}

TEST(WindowThumbs, The_right_button_opens_the_viewer_on_the_picture)
{
    GridPerson p("thumbs_viewer", 4);
    p.ClickOn(p.Cell(3), {}, Qt::RightButton);
    EXPECT_NE(p.Running().ViewerInSight(), nullptr);
    p.Window().activateWindow();
    p.Settle();
    p.ClickOn(p.Cell(2));
    EXPECT_EQ(p.Picked(), "2");
}

TEST(WindowThumbs, A_picture_is_dragged_before_or_behind_another)
{
    struct Row {
        int From, To;
        double Across;
        int Pointer;
        const char* Wanted;
    };
    constexpr Row rows[] = {
        {1, 4, 0.2, 1, "2 3 1 4 5 6"}, {1, 4, 0.8, 2, "2 3 4 1 5 6"}, {5, 2, 0.2, 1, "1 5 2 3 4 6"},
        {5, 2, 0.8, 2, "1 2 5 3 4 6"}, {3, 3, 0.8, 2, "1 2 3 4 5 6"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Wanted);
        GridPerson p("thumbs_drag_one", 6);
        p.DragTo(p.Cell(row.From), p.Cell(row.To), row.Across);
        EXPECT_EQ(p.Main().DragSource(), &p.Cell(row.From));
        EXPECT_TRUE(HasPointer(p, row.Pointer));
        p.Drop(p.Cell(row.To), row.Across);
        EXPECT_EQ(p.Order(), row.Wanted);
        EXPECT_EQ(p.Main().DragSource(), nullptr);
        EXPECT_TRUE(HasPlainPointer(p));
        const int first = p.Order()[0] - '0';
        EXPECT_TRUE(IsAbout(p.Shown(p.Cell(1)), GridPerson::Colour_Of(first)));
    }
}

TEST(WindowThumbs, A_group_is_gathered_where_one_of_it_is_dropped)
{
    GridPerson p("thumbs_drag_group", 8);
    p.ClickOn(p.Cell(1));
    p.ClickOn(p.Cell(3), Qt::ControlModifier);
    p.ClickOn(p.Cell(7), Qt::ControlModifier);
    ASSERT_EQ(p.Picked(), "1 3 7");
    p.DragTo(p.Cell(3), p.Cell(5), 0.8);
    p.Drop(p.Cell(5), 0.8);
    EXPECT_EQ(p.Order(), "2 4 5 1 3 7 6 8");
    EXPECT_EQ(p.Main().lsvRename.SelCount(), 3);
}

TEST(WindowThumbs, Moves_within_four_pixels_are_no_drag)
{
    GridPerson p("thumbs_still", 4);
    const QPoint place = p.PlaceOn(p.Cell(2));
    QTest::mousePress(&p.Page(), Qt::LeftButton, {}, place);
    p.Move(place + QPoint(4, 4));
    EXPECT_EQ(p.Main().DragSource(), nullptr);
    p.Move(place + QPoint(5, 4));
    EXPECT_EQ(p.Main().DragSource(), &p.Cell(2));
    p.Drop(p.Cell(2));
}

TEST(WindowThumbs, Escape_gives_a_drag_up_and_the_button_then_does_nothing)
{
    GridPerson p("thumbs_escape", 6);
    p.ClickOn(p.Cell(1));
    p.ClickOn(p.Cell(2), Qt::ControlModifier);
    p.DragTo(p.Cell(2), p.Cell(5));
    ASSERT_NE(p.Main().DragSource(), nullptr);
    p.Key(Qt::Key_Escape);
    EXPECT_EQ(p.Main().DragSource(), nullptr);
    EXPECT_TRUE(HasPlainPointer(p));
    p.Move(p.PlaceOn(p.Cell(6)));
    p.Drop(p.Cell(6));
    EXPECT_EQ(p.Order(), "1 2 3 4 5 6");
    EXPECT_EQ(p.Picked(), "1 2");
}

TEST(WindowThumbs, Another_window_in_front_gives_a_drag_up)
{
    GridPerson p("thumbs_away", 6);
    p.DragTo(p.Cell(2), p.Cell(5));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(p.Main().DragSource(), nullptr);
    EXPECT_TRUE(HasPlainPointer(p));
}

TEST(WindowThumbs, A_button_that_went_up_unseen_gives_a_drag_up)
{
    GridPerson p("thumbs_unseen", 6);
    p.DragTo(p.Cell(2), p.Cell(5));
    QMouseEvent move(QEvent::MouseMove, p.PlaceOn(p.Cell(4)),
                     p.Page().mapToGlobal(p.PlaceOn(p.Cell(4))), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&p.Page(), &move);
    EXPECT_EQ(p.Main().DragSource(), nullptr);
    EXPECT_EQ(p.Order(), "1 2 3 4 5 6");
}

TEST(WindowThumbs, Nothing_takes_a_drop_beside_the_cells_or_beside_the_page)
{
    GridPerson p("thumbs_beside", 6);
    p.DragTo(p.Cell(2), p.Cell(5));
    p.Move(p.PlaceOn(p.Main().picThumbs, 0.5, 0.97));
    EXPECT_EQ(p.Main().DragTarget(), &p.Main().picThumbs);
    EXPECT_TRUE(HasPointer(p, 0));
    p.Move({-20, -20});
    EXPECT_EQ(p.Main().DragTarget(), nullptr);
    QTest::mouseRelease(&p.Page(), Qt::LeftButton, {}, {-20, -20});
    p.Settle();
    EXPECT_EQ(p.Order(), "1 2 3 4 5 6");
    EXPECT_EQ(p.Main().DragSource(), nullptr);
}

TEST(WindowThumbs, The_strips_scroll_as_long_as_a_drag_is_over_them)
{
    GridPerson p("thumbs_strips", 90);
    FrmMain& main = p.Main();
    main.vsbThumbs.Value = 1;
    p.Settle();
    p.DragTo(p.Cell(2), main.lblThumbsSU);
    EXPECT_TRUE(main.tmrThumbsScrollU.Enabled);
    EXPECT_TRUE(HasPointer(p, 4));
    main.tmrThumbsScrollU.Tick();
    main.tmrThumbsScrollU.Tick();
    EXPECT_EQ(main.vsbThumbs.Value, 3);
    EXPECT_TRUE(
        IsAbout(p.Shown(p.Cell(1)), GridPerson::Colour_Of(2 * p.Running().state.Columns + 1)));
    p.Move(p.PlaceOn(main.lblThumbsSD));
    EXPECT_FALSE(main.tmrThumbsScrollU.Enabled);
    EXPECT_TRUE(main.tmrThumbsScrollD.Enabled);
    EXPECT_TRUE(HasPointer(p, 3));
    main.tmrThumbsScrollD.Tick();
    main.tmrThumbsScrollD.Tick();
    EXPECT_EQ(main.vsbThumbs.Value, 1);
    p.Move(p.PlaceOn(main.lblThumbsSD) + QPoint(1, 0));
    EXPECT_FALSE(main.tmrThumbsScrollD.Enabled);
    EXPECT_TRUE(HasPointer(p, 0));
    p.Drop(main.lblThumbsSD);
    EXPECT_EQ(p.Order().substr(0, 9), "1 2 3 4 5");
}

TEST(WindowThumbs, A_picture_parked_in_the_side_box_is_found_and_dragged_back)
{
    GridPerson p("thumbs_park", 90);
    FrmMain& main = p.Main();
    main.vsbThumbs.Value = 1;
    p.Settle();
    p.DragTo(p.Cell(2), main.imgThumbsC);
    EXPECT_TRUE(HasPointer(p, 5));
    p.Drop(main.imgThumbsC);
    EXPECT_TRUE(IsAbout(p.Shown(main.imgThumbsC), GridPerson::Colour_Of(2)));
    EXPECT_EQ(TipOn(p, main.imgThumbsC), "p02.png");
    main.vsbThumbs.Value = main.vsbThumbs.Max.Get();
    p.Settle();
    const int first = (main.vsbThumbs.Value - 1) * p.Running().state.Columns + 1;
    p.Click(p.Of<QPushButton>("cmdThumbsFind"));
    EXPECT_EQ(main.vsbThumbs.Value, 1);
    main.vsbThumbs.Value = main.vsbThumbs.Max.Get();
    p.Settle();
    QTest::mousePress(&p.Page(), Qt::LeftButton, {}, p.PlaceOn(main.imgThumbsC));
    EXPECT_EQ(main.DragSource(), &main.imgThumbsC);
    p.Move(p.PlaceOn(p.Cell(1), 0.8));
    EXPECT_TRUE(HasPointer(p, 2));
    p.Drop(p.Cell(1), 0.8);
    const auto names = p.Names(main.lsvRename);
    EXPECT_EQ(names[1], "p03.jpg");
    EXPECT_EQ(names[static_cast<std::size_t>(first - 1)], "p02.png");
}

TEST(WindowThumbs, An_empty_side_box_gives_nothing_to_drop)
{
    GridPerson p("thumbs_empty_box", 6);
    QTest::mousePress(&p.Page(), Qt::LeftButton, {}, p.PlaceOn(p.Main().imgThumbsC));
    EXPECT_EQ(p.Main().DragSource(), &p.Main().imgThumbsC);
    p.Move(p.PlaceOn(p.Cell(3)));
    p.Drop(p.Cell(3));
    EXPECT_EQ(p.Order(), "1 2 3 4 5 6");
    EXPECT_TRUE(HasPlainPointer(p));
}

TEST(WindowThumbs, A_scheme_of_the_menu_changes_sizes_and_colours)
{
    GridPerson p("thumbs_scheme", 6);
    auto& schemes = p.Running().state.ThumbSchemes;
    schemes.push_back({"Green", "80,80,6,65280,255,16711680,0,0,16777215,8388736"});
    Menu_Rebuild(p.Main().atbMain, schemes, "image-x-generic", "ID_Scheme", 4, "ID_mnuTSchemes");
    p.Settle();
    const double before = p.Main().shpThumbsSel[1].Width;
    p.ClickOn(p.Cell(2));
    Choose(p, {"ID_mnuTSchemes", "ID_Scheme1"});
    EXPECT_EQ(p.Main().shpThumbsSel[1].Width, before + 8);
    const QImage page = p.Page().grab().toImage();
    const QPoint plain = p.PlaceOn(p.Main().shpThumbsSel[1], 0, 0);
    EXPECT_EQ(page.pixelColor(plain), QColor(0, 0, 255));
    EXPECT_EQ(page.pixelColor(p.PlaceOn(p.Main().shpThumbsSel[2], 0, 0)), QColor(255, 0, 0));
    EXPECT_EQ(page.pixelColor(plain + QPoint(6, 6)), QColor(0, 255, 0));
    EXPECT_EQ(page.pixelColor(plain - QPoint(2, 2)), QColor(128, 0, 128));
    EXPECT_EQ(page.pixelColor(p.PlaceOn(p.Main().lblThumbs[1], 0.99, 0.1)), QColor(0, 0, 0));
    Choose(p, {"ID_mnuTSchemes", "ID_TSchemesDef"});
    EXPECT_EQ(p.Main().shpThumbsSel[1].Width, before + 2);
}

TEST(WindowThumbs, Captions_go_and_come_and_keep_to_their_side)
{
    GridPerson p("thumbs_captions", 4);
    const Label& caption = p.Main().lblThumbs[2];
    EXPECT_GT(Ink_Of(p, caption).Dots, 20);
    EXPECT_NEAR(Ink_Of(p, caption).Middle, 0.5, 0.08);
    Choose(p, {"ID_mnuThumbnail", "ID_mnuCapAlign", "ID_AlignLeft"});
    EXPECT_LT(Ink_Of(p, caption).Middle, 0.4);
    EXPECT_TRUE(IsChecked(p, "ID_AlignLeft"));
    EXPECT_FALSE(IsChecked(p, "ID_AlignCenter"));
    Choose(p, {"ID_mnuThumbnail", "ID_mnuCapAlign", "ID_AlignRight"});
    EXPECT_GT(Ink_Of(p, caption).Middle, 0.6);
    EXPECT_TRUE(IsChecked(p, "ID_AlignRight"));
    Choose(p, {"ID_mnuThumbnail", "ID_mnuCapAlign", "ID_AlignCenter"});
    EXPECT_NEAR(Ink_Of(p, caption).Middle, 0.5, 0.08);
    EXPECT_TRUE(IsChecked(p, "ID_AlignCenter"));
    EXPECT_FALSE(IsChecked(p, "ID_AlignRight"));
    Choose(p, {"ID_mnuThumbnail", "ID_ThumbCaption"});
    EXPECT_EQ(Ink_Of(p, caption).Dots, 0);
    Choose(p, {"ID_mnuThumbnail", "ID_ThumbCaption"});
    EXPECT_GT(Ink_Of(p, caption).Dots, 20);
}

TEST(WindowThumbs, A_wider_window_shows_more_columns)
{
    GridPerson p("thumbs_resize", 90);
    const int before = p.Running().state.Columns;
    p.Window().resize(p.Window().width() + 300, p.Window().height());
    p.LayOut();
    const int columns = p.Running().state.Columns;
    EXPECT_GE(columns, before + 2);
    EXPECT_GT(p.Grid().width(), 700);
    p.Main().vsbThumbs.Value = 1;
    EXPECT_TRUE(IsAbout(p.Shown(p.Cell(columns)), GridPerson::Colour_Of(columns)));
    EXPECT_EQ(p.Of<QScrollBar>("vsbThumbs").maximum(), p.Main().vsbThumbs.Max);
}

TEST(WindowThumbs, Escape_ends_the_making_behind_the_picture_in_hand)
{
    GridPerson p("thumbs_stop", 12, false);
    int drawn = 0;
    const Connection drawing = p.Main().picThumb.Changed.Listen([&](Prop what) {
        if (what == Prop::Picture && p.Main().picThumb.Picture.Get().Dots && ++drawn == 3)
            QTest::keyClick(&p.Window(), Qt::Key_Escape);
    });
    p.ShowGridAgain();
    EXPECT_EQ(drawn, 3);
    EXPECT_TRUE(IsAbout(p.Shown(p.Cell(3)), GridPerson::Colour_Of(3)));
    EXPECT_FALSE(IsAbout(p.Shown(p.Cell(4)), GridPerson::Colour_Of(4)));
}

TEST(WindowThumbs, Colours_of_the_system_are_those_of_a_dark_desktop)
{
    GridPerson p("thumbs_dark", 4);
    p.ClickOn(p.Cell(2));
    const QColor day = p.Shown(p.Main().picThumbs, 0.5, 0.97);
    const Night night;
    p.Settle();
    const QPalette palette = QApplication::palette();
    const auto& colours = p.Running().state.ThumbLook.Color;
    const QColor ground = p.Shown(p.Main().picThumbs, 0.5, 0.97);
    EXPECT_EQ(ground, Color_Of(colours[5], palette));
    EXPECT_NE(ground, day);
    const QPoint corner = p.PlaceOn(p.Main().shpThumbsSel[2], 0, 0);
    const QImage page = p.Page().grab().toImage();
    EXPECT_EQ(page.pixelColor(corner), QColor(40, 120, 200));
    EXPECT_EQ(page.pixelColor(corner + QPoint(3, 3)), Color_Of(colours[2], palette));
    EXPECT_TRUE(IsAbout(page.pixelColor(p.PlaceOn(p.Cell(2))), GridPerson::Colour_Of(2)));
}

TEST(WindowThumbs, The_tip_of_a_picture_is_its_name)
{
    GridPerson p("thumbs_tips", 4);
    EXPECT_EQ(TipOn(p, p.Cell(3)), "p03.jpg");
    EXPECT_EQ(TipOn(p, p.Main().lblThumbs[3]), ""); // it can be read there
    p.Main().lblThumbs[3].Caption = std::string("a name that has no room under its picture.jpg");
    EXPECT_EQ(TipOn(p, p.Main().lblThumbs[3]), "a name that has no room under its picture.jpg");
    p.Cell(3).ToolTipText = std::string("<b>x</b>.jpg");
    EXPECT_EQ(TipOn(p, p.Cell(3)), "&lt;b&gt;x&lt;/b&gt;.jpg");
    EXPECT_EQ(TipOn(p, p.Main().picThumbs), "");
}

TEST(WindowThumbs, Keys_reach_the_form_while_the_grid_is_up)
{
    GridPerson p("thumbs_keys", 4);
    EXPECT_TRUE(p.Grid().hasFocus());
    std::vector<int> keys;
    const Connection heard =
        p.Main().picThumbs.KeyDown.Listen([&](const Key& key) { keys.push_back(key.Code); });
    p.Key(Qt::Key_Delete);
    p.Key(Qt::Key_Escape);
    EXPECT_EQ(keys, (std::vector<int>{keyDelete, keyEscape}));
    p.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(p.Picked(), "1 2 3 4");
    EXPECT_EQ(p.Shown(p.Main().shpThumbsSel[1], 0.01, 0.01),
              Color_Of(p.Running().state.ThumbLook.Color[1], QApplication::palette()));
}

} // namespace tavo
