#include "window/person.h"

#include "controls/frm_color.h"
#include "hosts/qt/colours.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tavo {

namespace {

constexpr std::int32_t System(int number)
{
    return static_cast<std::int32_t>(0x80000000u | static_cast<unsigned>(number));
}

// A person who is asked for a colour.
class ColorPerson : public Person {
public:
    explicit ColorPerson(std::string_view test) : Person(test, {}) {}

    FrmColor& Form() { return Running().Color(); }
    // Brings the dialog up, does the step in it and gives the colour chosen.
    std::int32_t Choose(std::int32_t current, bool custom, std::function<void()> step)
    {
        SharedState& state = Running().state;
        state.ColorCurrent = current;
        state.ColorDefault = System(5);
        state.ColorCustom = custom;
        InNextDialog([this, step](QWidget& dialog) {
            dialog_ = &dialog;
            Wait();
            step();
        });
        Running().desktop.ShowModal(Form());
        return state.ColorCurrent;
    }
    QWidget& Dialog() { return *dialog_; }
    template <class Widget = QWidget>
    Widget& In(const std::string& name)
    {
        auto* widget = dialog_->findChild<Widget*>(QString::fromStdString(name));
        if (!widget)
            qFatal("no widget %s in the dialog", name.c_str());
        return *widget;
    }
    void Click(const std::string& name) { ClickAt(In(name)); }
    void ClickAt(QWidget& widget)
    {
        QTest::mouseClick(&widget, Qt::LeftButton);
        Wait();
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {})
    {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : dialog_.data(), key, held);
        Wait();
    }
    // Until what the program has changed is shown.
    void Wait()
    {
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
            if (dialog_)
                dialog_->findChild<Binder*>()->Queue().Flush();
        }
    }
    // The colour in the middle of a widget, as it is painted.
    QColor Painted(const std::string& name)
    {
        QWidget& widget = In(name);
        return widget.grab().toImage().pixelColor(widget.width() / 2, widget.height() / 2);
    }
    // As the form counts it: the corner of the frame, the size of the inside.
    QRect Place() { return {dialog_->pos(), dialog_->size()}; }
    QPoint Thumb(QSlider& slider)
    {
        QStyleOptionSlider option;
        option.initFrom(&slider);
        option.minimum = slider.minimum();
        option.maximum = slider.maximum();
        option.sliderPosition = option.sliderValue = slider.value();
        option.orientation = Qt::Horizontal;
        return slider.style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
            .center();
    }

private:
    QPointer<QWidget> dialog_;
};

} // namespace

TEST(WindowColor, A_click_on_a_box_chooses_at_once)
{
    ColorPerson p("window_color_narrow");
    bool wide = true;
    const std::int32_t chosen = p.Choose(0x123456, false, [&] {
        wide = p.In("picCustom").isVisible();
        p.Click("picColorSys(17)");
    });
    EXPECT_FALSE(wide);
    EXPECT_EQ(chosen, 0x0000FF);
    EXPECT_FALSE(p.Form().Loaded());
}

TEST(WindowColor, Each_box_has_its_colour)
{
    ColorPerson p("window_color_boxes");
    std::vector<QColor> wanted, painted;
    p.Choose(0, false, [&] {
        for (const auto& box : p.Form().picColorSys) {
            wanted.push_back(Color_Of(box->BackColor, p.Dialog().palette()));
            painted.push_back(p.Painted(box->FullName()));
        }
        p.Key(Qt::Key_Escape);
    });
    EXPECT_EQ(painted.size(), 48U);
    EXPECT_EQ(painted, wanted);
}

TEST(WindowColor, The_escape_key_ends_both_forms_without_a_choice)
{
    ColorPerson p("window_color_escape");
    for (const bool custom : {false, true}) {
        EXPECT_EQ(p.Choose(System(15), custom, [&] { p.Key(Qt::Key_Escape); }), System(15));
        EXPECT_FALSE(p.Form().Loaded()) << custom;
    }
}

TEST(WindowColor, The_frame_ends_it_without_a_choice)
{
    ColorPerson p("window_color_frame");
    EXPECT_EQ(p.Choose(0x445566, true,
                       [&] {
                           p.Click("picColorSys(3)");
                           p.Dialog().close();
                       }),
              0x445566);
}

TEST(WindowColor, It_widens_in_place)
{
    ColorPerson p("window_color_widens");
    QRect before, after, screen = QGuiApplication::primaryScreen()->geometry();
    QSize told;
    bool shown = false, enabled = true;
    p.Form().Move(1500, 1200, p.Form().Width(), p.Form().Height());
    p.Choose(0x00FF00, false, [&] {
        before = p.Place();
        p.Click("cmdCustom");
        after = p.Place();
        told = QSize(static_cast<int>(p.Form().Width()), static_cast<int>(p.Form().Height()))
               / static_cast<int>(twipsPerPixel);
        shown = p.In("picCustom").isVisible();
        enabled = p.In("cmdCustom").isEnabled();
        p.Click("cmdCancel");
    });
    EXPECT_TRUE(shown);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(before.topLeft(), QPoint(100, 80));
    EXPECT_EQ(after.topLeft(), before.topLeft());
    EXPECT_EQ(after.height(), before.height());
    EXPECT_GT(after.width(), 2 * before.width());
    EXPECT_EQ(after.size(), told);
    EXPECT_TRUE(screen.contains(after));
}

TEST(WindowColor, At_the_edge_of_the_screen_it_moves_in)
{
    ColorPerson p("window_color_edge");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QRect narrow, wide;
    p.Form().Move((screen.width() - 60) * twipsPerPixel, (screen.height() - 30) * twipsPerPixel,
                  p.Form().Width(), p.Form().Height());
    p.Choose(0, false, [&] {
        narrow = p.Place();
        p.Click("cmdCustom");
        wide = p.Place();
        p.Key(Qt::Key_Escape);
    });
    EXPECT_EQ(narrow.bottomRight(), screen.bottomRight());
    EXPECT_EQ(wide.bottomRight(), screen.bottomRight());
    EXPECT_GT(wide.width(), narrow.width());
}

TEST(WindowColor, Its_size_is_known_before_it_opens)
{
    ColorPerson p("window_color_known");
    const double width = p.Form().Width(), height = p.Form().Height();
    QSize shown;
    p.Choose(0, false, [&] {
        shown = p.Dialog().size();
        p.Key(Qt::Key_Escape);
    });
    EXPECT_EQ(shown.width() * twipsPerPixel, width);
    EXPECT_EQ(shown.height() * twipsPerPixel, height);
}

TEST(WindowColor, A_slider_is_dragged)
{
    ColorPerson p("window_color_drag");
    std::string during;
    QColor shown;
    const std::int32_t chosen = p.Choose(0x000000, true, [&] {
        auto& slider = p.In<QSlider>("hsbColor(2)");
        const QPoint from = p.Thumb(slider);
        const QPoint to(slider.width(), from.y());
        QTest::mousePress(&slider, Qt::LeftButton, {}, from);
        QTest::mouseMove(&slider, to);
        p.Wait();
        during = p.Form().txtColor[2].Text.Get();
        shown = p.Painted("picColorNew");
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, to);
        p.Wait();
        p.Click("cmdOk");
    });
    EXPECT_EQ(during, "255");
    EXPECT_EQ(shown, QColor(0, 255, 0));
    EXPECT_EQ(chosen, 0x00FF00);
}

TEST(WindowColor, Fields_are_typed_in_and_sliders_follow)
{
    ColorPerson p("window_color_fields");
    QStringList texts;
    QList<int> places;
    const std::int32_t chosen = p.Choose(System(5), true, [&] {
        for (const auto& [index, typed] :
             std::initializer_list<std::pair<int, const char*>>{{1, "300"}, {2, "1.6"}, {3, "7"}}) {
            const std::string number = "(" + std::to_string(index) + ")";
            p.ClickAt(p.In("txtColor" + number));
            for (const char* c = typed; *c; ++c) {
                QTest::keyClick(QApplication::focusWidget(), *c);
                p.Wait();
            }
            texts.push_back(p.In<QLineEdit>("txtColor" + number).text());
            places.push_back(p.In<QSlider>("hsbColor" + number).value());
        }
        p.Key(Qt::Key_Return);
    });
    EXPECT_EQ(texts, (QStringList{"255", "16", "7"}));
    EXPECT_EQ(places, (QList<int>{255, 16, 7}));
    EXPECT_EQ(chosen, 0x0710FF);
}

TEST(WindowColor, The_keys_alone_do)
{
    ColorPerson p("window_color_keys");
    QStringList stops;
    const std::int32_t chosen = p.Choose(0x0A0A0A, false, [&] {
        p.Key(Qt::Key_C, Qt::AltModifier); // &Custom >>, whose button is seen to go down
        if (!QTest::qWaitFor([&] { return p.Form().picCustom.Visible.Get(); }))
            return p.Key(Qt::Key_Escape);
        p.Wait();
        for (int i = 0; i < 9; ++i) {
            stops.push_back(QApplication::focusWidget()->objectName());
            p.Key(Qt::Key_Tab);
        }
        for (int i = 0; i < 9 && QApplication::focusWidget()->objectName() != "hsbColor(3)"; ++i)
            p.Key(Qt::Key_Tab);
        p.Key(Qt::Key_Right);
        p.Key(Qt::Key_PageDown);
        p.Key(Qt::Key_Return);
        if (p.Form().Loaded())
            p.Click("cmdCancel");
    });
    EXPECT_EQ(stops,
              (QStringList{"hsbColor(1)", "hsbColor(2)", "hsbColor(3)", "txtColor(1)",
                           "txtColor(2)", "txtColor(3)", "cmdColorDef", "cmdOk", "cmdCancel"}));
    EXPECT_EQ(chosen, 0x150A0A);
}

TEST(WindowColor, The_default_is_the_desktops_own_colour)
{
    ColorPerson p("window_color_default");
    QPalette dark = QGuiApplication::palette();
    dark.setColor(QPalette::Base, QColor(30, 31, 32));
    const QPalette before = QGuiApplication::palette();
    QColor light, darkened;
    QString fields;
    const std::int32_t chosen = p.Choose(0xFF0000, true, [&] {
        p.Click("cmdColorDef");
        light = p.Painted("picColorNew");
        for (int i = 1; i <= 3; ++i)
            fields += p.In<QLineEdit>("txtColor(" + std::to_string(i) + ")").text() + " ";
        QApplication::setPalette(dark);
        p.Wait();
        darkened = p.Painted("picColorNew");
        p.Click("cmdOk");
    });
    QApplication::setPalette(before);
    EXPECT_EQ(light, before.color(QPalette::Base));
    EXPECT_EQ(darkened, QColor(30, 31, 32));
    EXPECT_EQ(fields, "5 0 0 ");
    EXPECT_EQ(chosen, System(5));
}

TEST(WindowColor, A_form_that_goes_while_it_comes_up_ends_its_dialog)
{
    ColorPerson p("window_color_gone");
    FrmColor& form = p.Form();
    const auto kept = form.Load.Listen([&] { form.Unload(); });
    p.Running().desktop.ShowModal(form);
    EXPECT_FALSE(form.Loaded());
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(WindowColor, A_form_may_do_its_work_and_go_when_it_is_up)
{
    ColorPerson p("window_color_work");
    FrmColor& form = p.Form();
    int activations = 0;
    form.Activate = [&] {
        ++activations;
        form.Unload();
    };
    p.Running().desktop.ShowModal(form);
    EXPECT_EQ(activations, 1);
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(WindowColor, System_colours_are_those_of_the_palette)
{
    QPalette palette;
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        for (int group = 0; group < QPalette::NColorGroups; ++group)
            palette.setColor(static_cast<QPalette::ColorGroup>(group),
                             static_cast<QPalette::ColorRole>(role), QColor(role, group, 77));
    struct Row {
        int Number;
        QPalette::ColorRole Role;
        QPalette::ColorGroup Group = QPalette::Active;
    };
    for (const Row& row :
         {Row{5, QPalette::Base}, Row{8, QPalette::Text}, Row{9, QPalette::HighlightedText},
          Row{13, QPalette::Highlight}, Row{14, QPalette::HighlightedText},
          Row{15, QPalette::Button}, Row{16, QPalette::Dark},
          Row{17, QPalette::WindowText, QPalette::Disabled}, Row{18, QPalette::ButtonText},
          Row{24, QPalette::ToolTipBase}, Row{25, QPalette::Text}, Row{99999, QPalette::Text}})
        EXPECT_EQ(Color_Of(System(row.Number), palette), palette.color(row.Group, row.Role))
            << row.Number;
    EXPECT_EQ(Color_Of(0x00102030, palette), QColor(0x30, 0x20, 0x10));
    EXPECT_FALSE(Color_IsOfSystem(0x00FFFFFF));
    EXPECT_TRUE(Color_IsOfSystem(System(0)));
}

} // namespace tavo
