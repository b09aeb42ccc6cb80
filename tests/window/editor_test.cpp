#include "window/dialog_person.h"

#include "hosts/qt/bar_view.h"
#include "hosts/qt/colours.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/thumb_scene.h"
#include "thumbnails/frm_thumb_editor.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QToolButton>
#include <QToolTip>

namespace tavo {

namespace {

constexpr std::int32_t red = 0x0000FF, green = 0x00FF00;

// A person at the editor of the thumbnails' look.
class EditorPerson : public DialogPerson {
public:
    explicit EditorPerson(std::string_view test) : DialogPerson(test, {"a.txt"})
    {
        ThumbLook& look = Running().state.ThumbLook;
        look.Color[thumbSelectedBorder] = red;
        look.Color[thumbNormalBorder] = green;
    }

    FrmThumbEditor& Form() { return Running().ThumbEditor(); }
    ThumbLook& Look() { return Running().state.ThumbLook; }
    void AtEditor(std::function<void()> step)
    {
        Running().state.SchemeEditMode = false;
        At([this] { Thumb_Editor_Show(Running()); }, std::move(step));
    }
    void AtScheme(const std::string& record, std::function<void()> step)
    {
        Running().state.SchemeEditMode = true;
        Running().state.SchemeEditText = record;
        At([this] { Thumb_Editor_Show(Running()); }, std::move(step));
    }
    // Where something of the preview is, in pixels of the preview.
    QRect PlaceOf(const Control& control)
    {
        return Place_InBox(control, Form().picPreview).toRect();
    }
    QColor Painted(const QPoint& place)
    {
        const QImage shown = In("picPreview").grab().toImage();
        return shown.pixelColor(place * qRound(shown.devicePixelRatio()));
    }
    QColor Border() { return Painted(PlaceOf(Form().shpPreview).topLeft()); }
    void PressTool(const std::string& id)
    {
        for (QToolButton* button : Dialog().findChildren<QToolButton*>())
            if (button->defaultAction() && button->defaultAction()->objectName() == ToQt(id))
                return ClickAt(*button, button->rect().center());
        qFatal("no tool %s", id.c_str());
    }
    QAction& Action(const std::string& id)
    {
        auto* action = Dialog().findChild<QAction*>(ToQt(id));
        if (!action)
            qFatal("no action %s", id.c_str());
        return *action;
    }
};

QColor Colour(std::int32_t colour)
{
    return Color_Of(colour, QApplication::palette());
}

} // namespace

TEST(WindowEditor, A_click_on_the_picture_shows_the_other_border)
{
    EditorPerson p("window_editor_border");
    p.AtEditor([&] {
        EXPECT_EQ(p.Border(), Colour(red));
        const QPoint middle = p.PlaceOf(p.Form().imgPreview).center();
        p.ClickAt(p.In("picPreview"), middle);
        EXPECT_EQ(p.Border(), Colour(green));
        EXPECT_EQ(p.In<QAbstractButton>("lblColor(0)").text(), "Normal Border - Active");
        EXPECT_EQ(p.CutTexts(), std::vector<std::string>{});
        p.ClickAt(p.In("picPreview"), QPoint(1, 1));
        EXPECT_EQ(p.Border(), Colour(green)) << "beside the picture";
        p.ClickAt(p.In("picPreview"), middle);
        EXPECT_EQ(p.Border(), Colour(red));
        p.KeyIn(Qt::Key_Escape);
    });
    EXPECT_FALSE(p.Form().Loaded());
}

TEST(WindowEditor, The_preview_stands_in_the_middle_of_its_room)
{
    EditorPerson p("window_editor_middle");
    p.AtEditor([&] {
        const QRect room = p.In("picPreview").rect(), frame = p.PlaceOf(p.Form().shpPreview);
        EXPECT_LE(std::abs(frame.center().x() - room.center().x()), 1);
        EXPECT_LE(std::abs(frame.center().y() - room.center().y()), 1);
        EXPECT_TRUE(room.contains(p.PlaceOf(p.Form().lblPreview)));
        p.KeyIn(Qt::Key_Escape);
    });
}

TEST(WindowEditor, The_sample_fills_the_box_of_the_picture)
{
    EditorPerson p("window_editor_sample");
    p.Look().Width = 128;
    p.Look().Height = 60;
    p.AtEditor([&] {
        const QRect box = p.PlaceOf(p.Form().imgPreview);
        EXPECT_EQ(box.size(), QSize(128, 60));
        const QColor ground = Colour(p.Form().Work.Color[thumbBackground]);
        for (const QPoint& corner :
             {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
            EXPECT_NE(p.Painted(corner), ground) << corner.x() << " " << corner.y();
        EXPECT_NE(p.Painted(box.topLeft()), p.Painted(box.bottomRight()));
        p.KeyIn(Qt::Key_Escape);
    });
}

TEST(WindowEditor, A_size_is_typed_and_held_to_its_bounds)
{
    EditorPerson p("window_editor_size");
    p.AtEditor([&] {
        p.Retype("ID_Width", "5x00");
        p.KeyIn(Qt::Key_Return);
        EXPECT_EQ(p.In<QLineEdit>("ID_Width").text(), "128");
        EXPECT_EQ(p.PlaceOf(p.Form().imgPreview).width(), 128);
        p.Retype("ID_Height", "7");
        p.KeyIn(Qt::Key_Tab);
        EXPECT_EQ(p.In<QLineEdit>("ID_Height").text(), "60");
        p.ClickIn("cmdOk");
    });
    EXPECT_EQ(p.Look().Width, 128);
    EXPECT_EQ(p.Look().Height, 60);
}

TEST(WindowEditor, The_bar_sets_border_and_alignment)
{
    EditorPerson p("window_editor_bar");
    p.AtEditor([&] {
        auto& border = p.In<QComboBox>("ID_BorderWidth");
        border.setFocus();
        p.KeyIn(Qt::Key_End);
        EXPECT_EQ(border.currentText(), "9");
        EXPECT_EQ(p.Painted(p.PlaceOf(p.Form().shpPreview).topLeft() + QPoint(8, 8)), Colour(red));
        p.PressTool("ID_AlignRight");
        EXPECT_TRUE(p.Action("ID_AlignRight").isChecked());
        EXPECT_FALSE(p.Action("ID_AlignCenter").isChecked());
        p.ClickIn("cmdOk");
    });
    EXPECT_EQ(p.Look().BorderWidth, 9);
    EXPECT_EQ(p.Look().Align, 1);
}

TEST(WindowEditor, A_chip_lets_a_colour_be_chosen_over_it)
{
    EditorPerson p("window_editor_chip");
    p.AtEditor([&] {
        QWidget& chip = p.In("picColor(1)");
        const int row = chip.mapToGlobal(QPoint()).y();
        QRect selector;
        p.At([&] { p.ClickIn("picColor(1)"); },
             [&] {
                 selector = p.Dialog().geometry();
                 p.ClickIn("picColorSys(20)");
             });
        EXPECT_EQ(selector.y(), row);
        const std::int32_t chosen = p.Form().Work.Color[thumbSelectedBorder];
        EXPECT_NE(chosen, red);
        EXPECT_EQ(p.Border(), Colour(chosen));
        EXPECT_EQ(chip.grab().toImage().pixelColor(chip.rect().center()), Colour(chosen));
        p.ClickIn("lblColor(1)");
        EXPECT_EQ(p.Border(), QApplication::palette().color(QPalette::Highlight));
        p.ClickIn("cmdCancel");
    });
    EXPECT_EQ(p.Look().Color[thumbSelectedBorder], red);
}

TEST(WindowEditor, The_ground_of_the_grid_is_shown_as_it_will_be)
{
    EditorPerson p("window_editor_ground");
    p.Look().Color[thumbWindow] = 0x336699;
    p.AtEditor([&] {
        EXPECT_EQ(p.Painted(QPoint(0, 0)), Colour(0x336699));
        p.KeyIn(Qt::Key_Escape);
    });
}

TEST(WindowEditor, A_scheme_of_the_menu_is_taken)
{
    EditorPerson p("window_editor_menu");
    p.Running().state.ThumbSchemes = {p.Running().state.ThumbSchemes.at(0),
                                      {"照片", "90,70,4,255,255,255,0,255,0,65280"}};
    p.AtEditor([&] {
        EXPECT_TRUE(p.Action("ID_Scheme1").text().contains("照片"));
        p.Action("ID_Scheme1").trigger();
        p.Wait();
        EXPECT_EQ(p.In<QLineEdit>("ID_Width").text(), "70");
        EXPECT_EQ(p.In<QComboBox>("ID_BorderWidth").currentText(), "4");
        EXPECT_EQ(p.Painted(QPoint(0, 0)), QColor(0, 255, 0));
        p.KeyIn(Qt::Key_Escape);
    });
}

TEST(WindowEditor, A_record_comes_back_with_OK_and_stays_with_Cancel)
{
    EditorPerson p("window_editor_record");
    const std::string record = "90,30,4,255,255,255,0,255,0,65280";
    p.AtScheme(record, [&] {
        EXPECT_FALSE(p.Action("ID_TSchemesAdd").isEnabled());
        EXPECT_EQ(p.In<QLineEdit>("ID_Width").text(), "30");
        p.PressTool("ID_AlignRight");
        p.ClickIn("cmdCancel");
    });
    EXPECT_EQ(p.Running().state.SchemeEditText, record);
    p.AtScheme(record, [&] {
        p.PressTool("ID_AlignRight");
        p.ClickIn("cmdOk");
    });
    EXPECT_EQ(p.Running().state.SchemeEditText, "90,30,4,255,255,255,1,255,0,65280");
}

TEST(WindowEditor, The_look_becomes_a_scheme_in_the_settings)
{
    EditorPerson p("window_editor_add");
    p.AtEditor([&] {
        p.At([&] { p.PressTool("ID_TSchemesAdd"); },
             [&] {
                 EXPECT_EQ(p.In<QLineEdit>("txtName(4)").text(), "New Scheme");
                 p.ClickIn("cmdAdd(4)");
                 p.ClickIn("cmdOk");
             });
        EXPECT_TRUE(p.Form().Loaded());
        p.Wait();
        const int last = List_Last(p.Running().state.ThumbSchemes);
        EXPECT_EQ(p.Action("ID_Scheme" + std::to_string(last)).text(), "New Scheme");
        p.KeyIn(Qt::Key_Escape);
    });
}

TEST(WindowEditor, Keys_reach_the_bar)
{
    EditorPerson p("window_editor_keys");
    p.AtEditor([&] {
        p.In("cmdOk").setFocus();
        p.KeyIn(Qt::Key_F6);
        EXPECT_NE(qobject_cast<QMenuBar*>(QApplication::focusWidget()), nullptr);
        p.KeyIn(Qt::Key_F6);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "ID_Width");
        p.KeyIn(Qt::Key_F6);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdOk");
        p.KeyIn(Qt::Key_Escape);
    });
}

TEST(WindowEditor, Texts_of_the_bar_come_and_go_and_the_dialog_follows)
{
    EditorPerson p("window_editor_texts");
    p.AtEditor([&] {
        const int tall = p.Dialog().height();
        p.Action("ID_tbTextLabels").trigger();
        p.Wait();
        EXPECT_NE(p.Dialog().height(), tall);
        EXPECT_EQ(p.Form().Height(), p.Dialog().height() * 15);
        auto* bar = p.Dialog().findChild<BarView*>();
        EXPECT_GE(bar->width(), bar->sizeHint().width());
        p.KeyIn(Qt::Key_Escape);
    });
}

TEST(WindowEditor, The_picture_tells_what_a_click_does)
{
    EditorPerson p("window_editor_tip");
    p.AtEditor([&] {
        QWidget& preview = p.In("picPreview");
        const QPoint middle = p.PlaceOf(p.Form().imgPreview).center();
        QHelpEvent asks(QEvent::ToolTip, middle, preview.mapToGlobal(middle));
        QCoreApplication::sendEvent(&preview, &asks);
        EXPECT_EQ(QToolTip::text(), "Click to Show Normal Border Color");
        QToolTip::hideText();
        EXPECT_EQ(p.In("lblColor(3)").toolTip(), "Click to Set Default Color");
        p.KeyIn(Qt::Key_Escape);
    });
}

TEST(WindowEditor, Everything_can_be_read_and_has_a_name)
{
    const QFont before = QApplication::font();
    for (const int points : {before.pointSize(), 2 * before.pointSize()}) {
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        EditorPerson p("window_editor_names");
        p.AtEditor([&] {
            EXPECT_EQ(p.Nameless(p.Form()), std::vector<std::string>{});
            EXPECT_EQ(p.CutTexts(), std::vector<std::string>{}) << points;
            p.KeyIn(Qt::Key_Escape);
        });
    }
    QApplication::setFont(before);
}

} // namespace tavo
