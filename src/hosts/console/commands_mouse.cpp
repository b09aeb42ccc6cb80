#include "core/program.h"
#include "hosts/console/arguments.h"
#include "hosts/console/commands.h"
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

bool Do_Mouse(Session& session, const Words& words, Outcome& outcome)
{
    Control::Mouse mouse;
    Named found;
    if (!Read_Mouse(words, 2, mouse, outcome) || !session.Find(words[0], found, outcome)
        || !session.Reach(words[0], found, outcome))
        return false;
    Control& control = *found.Target;
    if (words[1] == "down") {
        control.SetFocus();
        control.MouseDown(mouse);
    } else if (words[1] == "move") {
        control.MouseMove(mouse);
    } else if (words[1] == "up") {
        control.MouseUp(mouse);
    } else {
        return outcome.Fail("unknown word " + words[1]);
    }
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

// Both ends of a drag; the first must be a control that lets itself be
// dragged. A drag that hovers goes on from where it is.
bool Reach_Drag(Session& session, const Words& words, ListView*& from, Named& to, Outcome& outcome)
{
    double x = 0, y = 0;
    if (!Read_Number(words[2], x, outcome) || !Read_Number(words[3], y, outcome))
        return false;
    from = Reach_Kind<ListView>(session, words[0], "control to drag from", outcome);
    return from != nullptr && session.Find(words[1], to, outcome)
           && session.Reach(words[1], to, outcome);
}

bool Do_DragDrop(Session& session, const Words& words, Outcome& outcome)
{
    ListView* from = nullptr;
    Named to;
    if (!Reach_Drag(session, words, from, to, outcome))
        return false;
    session.desktop.Dragged.clear();
    session.desktop.DropTarget = to.Target;
    from->DragStarted();
    session.DropAll();
    return true;
}

bool Do_DragOver(Session& session, const Words& words, Outcome& outcome)
{
    ListView* from = nullptr;
    Named to;
    if (!Reach_Drag(session, words, from, to, outcome))
        return false;
    session.Dragging = from;
    return true;
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
