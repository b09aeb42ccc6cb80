#include "toolkit/form.h"

#include "toolkit/control_array.h"
#include "toolkit/panels.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <memory>

namespace tavo {
namespace {

class FormDrag : public testing::Test {
protected:
    FormDrag()
    {
        for (Control* control : std::initializer_list<Control*>{&source, &left, &right}) {
            control->DragOver = [this, control](Control& from, const Control::Mouse& at,
                                                Control::DragState state) {
                static constexpr const char* states[] = {"enter", "leave", "over"};
                log.Add(control->Name() + "." + states[static_cast<int>(state)] + ":"
                        + Length_Text(at.X) + "," + Length_Text(at.Y));
                EXPECT_EQ(&from, &source);
            };
            control->DragDrop = [this, control](Control& from, const Control::Mouse& at) {
                log.Add(control->Name() + ".drop:" + Length_Text(at.X) + "," + Length_Text(at.Y));
                EXPECT_EQ(&from, &source);
            };
        }
        log.On(form.DragChanged, "changed");
    }
    Form form{"frm"};
    PictureBox source{form, "s"}, left{form, "l"}, right{form, "r"};
    EventLog log;
};

TEST_F(FormDrag, Enter_over_leave_and_drop_come_in_their_order)
{
    source.Drag();
    EXPECT_EQ(form.DragSource(), &source);
    EXPECT_EQ(log.Take(), "changed");
    form.PersonDragOver(&left, 1, 2);
    EXPECT_EQ(log.Take(), "l.enter:1,2 l.over:1,2");
    form.PersonDragOver(&left, 3, 4);
    EXPECT_EQ(log.Take(), "l.over:3,4");
    form.PersonDragOver(&right, 5, 6);
    EXPECT_EQ(log.Take(), "l.leave:3,4 r.enter:5,6 r.over:5,6");
    form.PersonDragDrop();
    EXPECT_EQ(log.Take(), "r.drop:5,6 changed");
    EXPECT_EQ(form.DragSource(), nullptr);
    form.PersonDragOver(&left, 1, 1);
    form.PersonDragDrop();
    form.PersonDragCancel();
    EXPECT_EQ(log.Take(), "");
}

TEST_F(FormDrag, Escape_leaves_and_drops_nothing)
{
    source.Drag();
    form.PersonDragOver(&left, 1, 2);
    log.Take();
    Key key;
    key.Code = keyEscape;
    form.PersonKey(nullptr, key);
    EXPECT_EQ(log.Take(), "l.leave:1,2 changed");
    form.PersonDragDrop();
    EXPECT_EQ(log.Take(), "");
}

TEST_F(FormDrag, What_is_hidden_or_disabled_is_nothing)
{
    left.Visible = false;
    right.Enabled = false;
    source.Drag();
    log.Take();
    form.PersonDragOver(&left, 1, 2);
    form.PersonDragOver(&right, 1, 2);
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(form.DragTarget(), nullptr);
    left.Visible = true;
    form.PersonDragOver(&left, 1, 2);
    left.Visible = false;
    log.Take();
    form.PersonDragDrop();
    EXPECT_EQ(log.Take(), "changed");
}

TEST(FormDragEnds, A_control_that_goes_leaves_the_drag)
{
    Form form("frm");
    auto source = std::make_unique<PictureBox>(form, "s"),
         target = std::make_unique<PictureBox>(form, "t");
    source->Drag();
    form.PersonDragOver(target.get(), 1, 1);
    target.reset();
    EXPECT_EQ(form.DragTarget(), nullptr);
    EXPECT_EQ(form.DragSource(), source.get());
    source.reset();
    EXPECT_EQ(form.DragSource(), nullptr);
    form.PersonDragDrop();
}

TEST(FormControlAt, Finds_the_one_on_top_in_its_own_scale)
{
    Form form("frm");
    PictureBox page(form, "page"), grid(form, "grid");
    ImageBox below(form, "below"), above(form, "above"), hidden(form, "hidden");
    Shape shape(form, "shape");
    page.Move(0, 0, 9000, 9000);
    grid.Container = &page;
    grid.PixelScale = true;
    grid.Move(1500, 1500, 6000, 6000);
    for (Control* control : std::initializer_list<Control*>{&below, &above, &hidden, &shape}) {
        control->Container = &grid;
        control->Move(10, 10, 50, 50);
    }
    above.Move(40, 10, 50, 50);
    hidden.Visible = false;
    struct Row {
        double X, Y;
        const char* Name;
        double AtX, AtY;
    };
    static constexpr Row rows[] = {
        {0, 0, "page", 0, 0},
        {1500, 1500, "grid", 0, 0},
        {1650, 1650, "below", 0, 0},
        {1665, 1680, "below", 15, 30},
        {2100, 1650, "above", 0, 0},
        {2850, 1650, "grid", 90, 10},
        {8000, 8000, "page", 8000, 8000},
    };
    for (const Row& row : rows) {
        double x = row.X, y = row.Y;
        EXPECT_EQ(form.ControlAt(page, x, y).Name(), row.Name) << row.X << "," << row.Y;
        EXPECT_EQ(x, row.AtX) << row.X << "," << row.Y;
        EXPECT_EQ(y, row.AtY) << row.X << "," << row.Y;
    }
}

TEST(ControlArray, Elements_come_and_go_at_its_end)
{
    Form form("frm");
    ControlArray<Label> labels(form, "lbl", 1, 1);
    EXPECT_EQ(labels.Load().FullName(), "lbl(2)");
    labels.Load();
    EXPECT_EQ(labels.High(), 3);
    EXPECT_EQ(form.Find("lbl", 3), labels.At(3));
    labels.Unload();
    labels.Unload();
    EXPECT_EQ(labels.High(), 1);
    EXPECT_EQ(labels.At(2), nullptr);
    EXPECT_EQ(form.Find("lbl", 2), nullptr);
    int low = 0, high = 0;
    EXPECT_TRUE(form.ArrayBounds("lbl", low, high));
    EXPECT_EQ(high, 1);
}

TEST(ControlPress, A_control_that_drags_itself_hears_no_press)
{
    Form form("frm");
    ImageBox image(form, "img");
    image.DragsItself = true;
    EventLog log;
    log.On(image.MouseDown, "down");
    log.On(image.MouseUp, "up");
    log.On(image.Click, "click");
    image.PersonClick();
    EXPECT_EQ(log.Take(), "");
}

} // namespace
} // namespace tavo
