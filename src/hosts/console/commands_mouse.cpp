#include "core/program.h"
#include "hosts/console/arguments.h"
#include "hosts/console/commands.h"
#include "toolkit/form.h"
#include "toolkit/list_view.h"
#include "toolkit/scroll_bar.h"

#include <filesystem>

namespace tavo::console {

namespace {

bool Read_Mouse(const Words& words, std::size_t from, Control::Mouse& mouse, Outcome& outcome)
{
    if (!Read_Number(words[from], mouse.X, outcome)
        || !Read_Number(words[from + 1], mouse.Y, outcome))
        return false;
    for (std::size_t i = from + 2; i < words.size(); ++i) {
        if (words[i] == "right")
            mouse.Button = 2;
        else if (words[i] == "shift")
            mouse.Shift |= shiftShift;
        else if (words[i] == "ctrl")
            mouse.Shift |= shiftCtrl;
        else
            return outcome.Fail("unknown word " + words[i]);
    }
    return true;
}

// The control under a place that is told from the corner of another one, where
// it may lie outside; null for none. The place becomes the found one's own.
Control* Control_Under(Control& control, Control::Mouse& mouse)
{
    if (control.Container == nullptr)
        return &control;
    const double own = control.UnitTwips(), outer = control.Container->UnitTwips();
    double x = control.Left + mouse.X * own / outer, y = control.Top + mouse.Y * own / outer;
    if (x < 0 || y < 0 || x >= control.Container->ScaleWidth()
        || y >= control.Container->ScaleHeight())
        return nullptr;
    Control& found = control.Owner().ControlAt(*control.Container, x, y);
    mouse.X = x;
    mouse.Y = y;
    return &found;
}

void Mouse_Drags(Control& control, bool letsGo, Control::Mouse mouse)
{
    Form& form = control.Owner();
    Control* const under = Control_Under(control, mouse);
    form.PersonDragOver(under, mouse.X, mouse.Y);
    if (letsGo)
        form.PersonDragDrop();
}

void Mouse_Down(Control& control, const Control::Mouse& mouse)
{
    if (control.DragsItself)
        return control.Drag();
    control.SetFocus();
    control.MouseDown(mouse);
}

bool Do_Mouse(Session& session, const Words& words, Outcome& outcome)
{
    Control::Mouse mouse;
    Named found;
    if (!Read_Mouse(words, 2, mouse, outcome) || !session.Find(words[0], found, outcome)
        || !session.Reach(words[0], found, outcome))
        return false;
    Control& control = *found.Target;
    const bool down = words[1] == "down", up = words[1] == "up";
    if (!down && !up && words[1] != "move")
        return outcome.Fail("unknown word " + words[1]);
    if (words[1] == "move")
        mouse.Button = session.HeldButton;
    session.HeldButton = down ? mouse.Button : up ? 0 : session.HeldButton;
    if (down)
        Mouse_Down(control, mouse);
    else if (control.Owner().DragSource())
        Mouse_Drags(control, up, mouse);
    else if (up)
        control.MouseUp(mouse);
    else
        control.MouseMove(mouse);
    return true;
}

bool Do_Drop(Session& session, const Words& words, Outcome& outcome)
{
    auto* const list = Reach_Kind<ListView>(session, words[0], "list", outcome);
    if (list == nullptr)
        return false;
    std::vector<std::string> paths;
    for (std::size_t i = 1; i < words.size(); ++i) {
        std::error_code error;
        const auto path = std::filesystem::absolute(words[i], error);
        paths.push_back(error ? words[i] : path.string());
    }
    list->FilesDropped(paths);
    return true;
}

// From a list its selected rows are dragged, out of the window or onto a list.
void List_Drag(Session& session, ListView& from, Control& to)
{
    session.desktop.Dragged.clear();
    session.desktop.DropTarget = &to;
    from.DragStarted();
    session.desktop.DropTarget = nullptr;
}

// Presses in the middle and moves far enough that nobody could take it for a
// click.
bool Drag_Begin(const std::string& name, Control& from, Outcome& outcome)
{
    constexpr double farTwips = 3000;
    Form& form = from.Owner();
    Control::Mouse mouse{1, shiftNone, from.ScaleWidth() / 2, from.ScaleHeight() / 2};
    form.PersonDragCancel();
    Mouse_Down(from, mouse);
    mouse.X += farTwips;
    if (form.DragSource() == nullptr)
        from.MouseMove(mouse);
    if (form.DragSource() != &from)
        return outcome.Fail(name + " cannot be dragged");
    form.PersonDragOver(&from, from.ScaleWidth() / 2, from.ScaleHeight() / 2);
    return true;
}

// Takes FROM to TO and leaves it hovering there. A drag that hovers goes on
// from where it is.
bool Drag_To(Session& session, const Words& words, Named& from, Outcome& outcome)
{
    double x = 0, y = 0;
    Named to;
    if (!Read_Number(words[2], x, outcome) || !Read_Number(words[3], y, outcome)
        || !session.Find(words[0], from, outcome) || from.Target == nullptr)
        return false;
    // What hovers may have been scrolled away under the pointer.
    const bool hovers = from.Window->DragSource() == from.Target;
    if ((!hovers && !session.Reach(words[0], from, outcome)) || !session.Find(words[1], to, outcome)
        || !session.Reach(words[1], to, outcome))
        return false;
    if (dynamic_cast<ListView*>(from.Target))
        return true;
    Form& form = *from.Window;
    if (form.DragSource() != from.Target && !Drag_Begin(words[0], *from.Target, outcome))
        return false;
    form.PersonDragOver(to.Target, x, y);
    return true;
}

bool Do_DragDrop(Session& session, const Words& words, Outcome& outcome)
{
    Named from, to;
    if (!Drag_To(session, words, from, outcome) || !session.Find(words[1], to, outcome))
        return false;
    if (auto* const list = dynamic_cast<ListView*>(from.Target))
        List_Drag(session, *list, *to.Target);
    else
        from.Window->PersonDragDrop();
    return true;
}

bool Do_DragOver(Session& session, const Words& words, Outcome& outcome)
{
    Named from;
    return Drag_To(session, words, from, outcome);
}

// Moves the thumb of a bar there, and lets it go or holds it.
bool Thumb_Move(Session& session, const Words& words, void (ScrollBar::*move)(int),
                Outcome& outcome)
{
    Named found;
    int to = 0;
    if (!Read_Whole(words[1], to, outcome) || !session.Find(words[0], found, outcome)
        || !session.Reach(words[0], found, outcome))
        return false;
    auto* bar = dynamic_cast<ScrollBar*>(found.Target);
    if (!bar)
        return outcome.Fail(words[0] + " has no thumb to drag");
    (bar->*move)(to);
    return true;
}

bool Do_Scroll(Session& session, const Words& words, Outcome& outcome)
{
    return Thumb_Move(session, words, &ScrollBar::PersonScroll, outcome);
}

bool Do_Scrolling(Session& session, const Words& words, Outcome& outcome)
{
    return Thumb_Move(session, words, &ScrollBar::PersonDrag, outcome);
}

bool Do_Dragged(Session& session, const Words&, Outcome& outcome)
{
    for (const std::string& path : session.desktop.Dragged)
        outcome.Print(path);
    return true;
}

} // namespace

const std::vector<CommandRow>& Commands_Mouse()
{
    static const std::vector<CommandRow> rows{
        {"mouse", 4, 7, Do_Mouse},       {"drop", 2, -1, Do_Drop},
        {"dragdrop", 4, 4, Do_DragDrop}, {"dragover", 4, 4, Do_DragOver},
        {"scroll", 2, 2, Do_Scroll},     {"scrolling", 2, 2, Do_Scrolling},
        {"dragged", 0, 0, Do_Dragged},
    };
    return rows;
}

} // namespace tavo::console
