#include "core/frm_main.h"
#include "core/program.h"
#include "hosts/console/arguments.h"
#include "hosts/console/commands.h"
#include "hosts/console/control_face.h"
#include "toolkit/combo_box.h"
#include "toolkit/list_box.h"

namespace tavo::console {

namespace {

struct ScreenProperty {
    std::string_view Name;
    std::string (*Text)(Session&);
};

const ScreenProperty screenProperties[] = {
    {"Focus",
     [](Session& s) {
         const Form* const front = s.desktop.Front();
         const Control* const active = front ? front->ActiveControl() : nullptr;
         return active ? active->FullName() : std::string();
     }},
    {"Clipboard", [](Session& s) { return s.desktop.Clipboard; }},
    {"Screen.Width", [](Session& s) { return Length_Text(s.desktop.ScreenWidth()); }},
    {"Screen.Height", [](Session& s) { return Length_Text(s.desktop.ScreenHeight()); }},
    {"Screen.MousePointer",
     [](Session& s) { return std::to_string(static_cast<int>(s.desktop.PointerNow)); }},
};

std::optional<std::string> Screen_Property(Session& session, const std::string& name)
{
    for (const ScreenProperty& property : screenProperties)
        if (property.Name == name)
            return property.Text(session);
    if (const Variable* const variable = Variable_Find(name))
        return Variable_Text(session.program.state, *variable);
    return std::nullopt;
}

std::optional<std::string> Array_Bound(Session& session, std::string_view name)
{
    const Form* form = &session.program.main;
    if (const auto point = name.find('.'); point != std::string_view::npos) {
        form = session.FindForm(name.substr(0, point));
        name.remove_prefix(point + 1);
    }
    int low = 0, high = 0;
    if (form == nullptr || !form->ArrayBounds(name, low, high))
        return std::nullopt;
    return std::to_string(high);
}

std::optional<std::string> Control_Property(const Named& found, const std::string& property)
{
    if (found.AsTool == nullptr)
        return found.Target->PropertyText(property);
    if (auto text = found.AsTool->PropertyText(property))
        return text;
    return found.Target->PropertyText(property);
}

bool Do_Get(Session& session, const Words& words, Outcome& outcome)
{
    if (const auto text = Screen_Property(session, words[0])) {
        outcome.Print(*text);
        return true;
    }
    const auto point = words[0].rfind('.');
    if (point == std::string::npos)
        return outcome.Fail("unknown name " + words[0]);
    const std::string name = words[0].substr(0, point), property = words[0].substr(point + 1);
    std::optional<std::string> text;
    Named found;
    if (property == "UBound")
        text = Array_Bound(session, name);
    else if (const Form* const form = session.FindForm(name))
        text = form->PropertyText(property);
    else if (session.Find(name, found, outcome))
        text = Control_Property(found, property);
    else
        return false;
    if (!text)
        return outcome.Fail(name + " has no " + property);
    outcome.Print(*text);
    return true;
}

void Print_Band(const Band& band, Outcome& outcome)
{
    for (const Tool* const tool : band.Tools()) {
        if (tool->Kind() == ToolKind::Separator)
            outcome.Print("-");
        else
            outcome.PrintRow({tool->Name(), tool->Caption});
    }
}

// A band or menu of the main window, or of the form named before it.
const Band* Band_Find(const Session& session, std::string_view name)
{
    const Form* form = &session.program.main;
    if (const auto point = name.find('.'); point != std::string_view::npos) {
        form = session.FindForm(name.substr(0, point));
        name.remove_prefix(point + 1);
    }
    return form && form->Bars ? form->Bars->FindBand(name) : nullptr;
}

bool Do_Items(Session& session, const Words& words, Outcome& outcome)
{
    if (const Band* const band = Band_Find(session, words[0])) {
        Print_Band(*band, outcome);
        return true;
    }
    Named found;
    if (!session.Find(words[0], found, outcome))
        return false;
    if (const auto* const combo = dynamic_cast<ComboBox*>(found.Target)) {
        for (const std::string& item : combo->Items())
            outcome.Print(item);
        return true;
    }
    if (const auto* const list = dynamic_cast<ListBox*>(found.Target)) {
        for (const std::string& item : list->Items())
            outcome.Print(item);
        return true;
    }
    if (auto* const tree = dynamic_cast<FolderTree*>(found.Target)) {
        for (const FolderNode* const node : tree->NodesInSight())
            outcome.Print(node->Path);
        return true;
    }
    return outcome.Fail(words[0] + " has no items");
}

bool Do_Boxes(Session& session, const Words&, Outcome& outcome)
{
    for (const ConsoleDesktop::BoxRecord& record : session.desktop.Boxes)
        outcome.PrintRow({Icon_Name(record.Box.Icon), Buttons_Name(record.Box.Buttons),
                          Answer_Name(record.Box.Default), record.Box.Caption, record.Box.Text,
                          Answer_Name(record.Answered)});
    session.desktop.Boxes.clear();
    return true;
}

bool Do_Opened(Session& session, const Words&, Outcome& outcome)
{
    for (const ConsoleDesktop::Opened& opened : session.desktop.OpenedNow)
        outcome.PrintRow({opened.Verb, opened.Address});
    session.desktop.OpenedNow.clear();
    return true;
}

bool Do_Forms(Session& session, const Words&, Outcome& outcome)
{
    for (const Form* const form : session.desktop.Forms())
        outcome.Print(form->Name());
    return true;
}

bool Do_Pictures(Session& session, const Words&, Outcome& outcome)
{
    const auto& buffer = session.program.state.ThumbBuffer;
    outcome.Print(std::to_string(static_cast<int>(buffer.size()) - 1));
    for (std::size_t slot = 1; slot < buffer.size(); ++slot)
        if (const BitmapPtr& picture = buffer[slot])
            outcome.PrintRow({std::to_string(slot), std::to_string(picture->Width()),
                              std::to_string(picture->Height())});
    return true;
}

bool Do_Save(Session& session, const Words& words, Outcome& outcome)
{
    Named found;
    if (!session.Find(words[0], found, outcome))
        return false;
    const std::string why = Face_Save(*found.Target, session.desktop.TwipsPerPixel(), words[1]);
    return why.empty() || outcome.Fail(why);
}

bool Do_Echo(Session&, const Words& words, Outcome& outcome)
{
    outcome.Print(words[0]);
    return true;
}

} // namespace

const std::vector<CommandRow>& Commands_Read()
{
    static const std::vector<CommandRow> rows{
        {"get", 1, 1, Do_Get},       {"items", 1, 1, Do_Items},       {"boxes", 0, 0, Do_Boxes},
        {"opened", 0, 0, Do_Opened}, {"forms", 0, 0, Do_Forms},       {"echo", 1, 1, Do_Echo},
        {"save", 2, 2, Do_Save},     {"pictures", 0, 0, Do_Pictures},
    };
    return rows;
}

} // namespace tavo::console
