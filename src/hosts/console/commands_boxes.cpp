#include "hosts/console/arguments.h"
#include "hosts/console/commands.h"
#include "toolkit/buttons.h"
#include "toolkit/form.h"
#include "toolkit/list_box.h"
#include "toolkit/tab_strip.h"
#include "toolkit/tool_bars.h"
#include "toolkit/utf8.h"

namespace tavo::console {

namespace {

bool Find_Reached(Session& session, const std::string& name, Named& found, Outcome& outcome)
{
    return session.Find(name, found, outcome) && session.Reach(name, found, outcome);
}

// Edit and combo tools are touched by their box.
void Click_Named(const Named& found)
{
    const bool isPlainTool = found.AsTool && found.Target == found.AsTool;
    if (isPlainTool && found.Bars)
        found.Bars->PersonClick(*found.AsTool);
    else if (found.Target)
        found.Target->PersonClick();
}

bool Do_Click(Session& session, const Words& words, Outcome& outcome)
{
    Named found;
    if (!Find_Reached(session, words[0], found, outcome))
        return false;
    Click_Named(found);
    return true;
}

bool Do_Check(Session& session, const Words& words, Outcome& outcome)
{
    Named found;
    if (words[1] != "0" && words[1] != "1")
        return outcome.Fail(words[1] + " is neither 0 nor 1");
    if (!Find_Reached(session, words[0], found, outcome))
        return false;
    const int wanted = words[1] == "1" ? 1 : 0;
    const auto* const box = dynamic_cast<CheckBox*>(found.Target);
    const bool isToggle = found.AsTool && found.AsTool->Kind() == ToolKind::Toggle;
    if (!box && !isToggle)
        return outcome.Fail(words[0] + " is no check box or toggle");
    const int stands = box ? box->Value.Get() : static_cast<int>(found.AsTool->Checked.Get());
    if (stands != wanted)
        Click_Named(found);
    return true;
}

// A box that text can be typed into.
TextBox* Reach_TextBox(Session& session, const std::string& name, Outcome& outcome)
{
    auto* const box = Reach_Kind<TextBox>(session, name, "text box", outcome);
    const auto* const combo = dynamic_cast<ComboBox*>(box);
    if (combo && combo->Style() == ComboKind::List) {
        outcome.Fail(name + " takes no text");
        return nullptr;
    }
    return box;
}

bool Do_Set(Session& session, const Words& words, Outcome& outcome)
{
    TextBox* const box = Reach_TextBox(session, words[0], outcome);
    if (box == nullptr)
        return false;
    box->SetFocus();
    box->PersonText(words[1]);
    return true;
}

bool Do_Type(Session& session, const Words& words, Outcome& outcome)
{
    TextBox* const box = Reach_TextBox(session, words[0], outcome);
    if (box == nullptr)
        return false;
    box->SetFocus();
    // A Tab among the characters takes the next ones along.
    Form& form = box->Owner();
    for (std::size_t at = 0; at < words[1].size();) {
        Control* const active = form.ActiveControl();
        form.PersonKey(active ? active : box, Key_FromChar(NextChar(words[1], at).Code));
    }
    return true;
}

bool Do_Key(Session& session, const Words& words, Outcome& outcome)
{
    Key key;
    if (!Key_FromName(words[1], key))
        return outcome.Fail("unknown key " + words[1]);
    if (Form* const form = session.FindForm(words[0])) {
        if (!session.ReachForm(*form, outcome))
            return false;
        form->PersonKey(nullptr, key);
        return true;
    }
    Named found;
    if (!Find_Reached(session, words[0], found, outcome))
        return false;
    if (!found.Target->TakesFocus())
        return outcome.Fail(words[0] + " takes no keys");
    found.Target->SetFocus();
    found.Window->PersonKey(found.Target, key);
    return true;
}

bool Do_Focus(Session& session, const Words& words, Outcome& outcome)
{
    Named found;
    if (!Find_Reached(session, words[0], found, outcome))
        return false;
    if (!found.Target->TakesFocus())
        return outcome.Fail(words[0] + " takes no focus");
    found.Target->SetFocus();
    return true;
}

bool Do_Choose(Session& session, const Words& words, Outcome& outcome)
{
    int row = 0;
    Named found;
    if (!session.Find(words[0], found, outcome))
        return false;
    auto* const combo = dynamic_cast<ComboBox*>(found.Target);
    auto* const list = dynamic_cast<ListBox*>(found.Target);
    if (!combo && !list)
        return outcome.Fail(words[0] + " is no list to choose from");
    if (!session.Reach(words[0], found, outcome) || !Read_Whole(words[1], row, outcome))
        return false;
    found.Target->SetFocus();
    const bool done = combo ? combo->PersonChoose(row) : list->PersonChoose(row);
    return done || outcome.Fail(words[0] + " has no row " + words[1]);
}

bool Do_DropDown(Session& session, const Words& words, Outcome& outcome)
{
    Named found;
    if (!Find_Reached(session, words[0], found, outcome))
        return false;
    if (!found.AsTool || found.AsTool->Kind() != ToolKind::DropDown)
        return outcome.Fail(words[0] + " has no arrow");
    found.Bars->PersonDropDown(*found.AsTool);
    return true;
}

bool Do_Tab(Session& session, const Words& words, Outcome& outcome)
{
    Named found;
    if (!session.Find(words[0], found, outcome))
        return false;
    auto* const strip = dynamic_cast<TabStrip*>(found.Target);
    if (strip == nullptr)
        return outcome.Fail(words[0] + " has no pages");
    if (!session.Reach(words[0], found, outcome))
        return false;
    return strip->PersonTab(strip->PageByKey(words[1]))
           || outcome.Fail(words[0] + " has no page " + words[1]);
}

} // namespace

const std::vector<CommandRow>& Commands_Boxes()
{
    static const std::vector<CommandRow> rows{
        {"click", 1, 1, Do_Click},   {"check", 2, 2, Do_Check}, {"set", 2, 2, Do_Set},
        {"type", 2, 2, Do_Type},     {"key", 2, 2, Do_Key},     {"focus", 1, 1, Do_Focus},
        {"choose", 2, 2, Do_Choose}, {"tab", 2, 2, Do_Tab},     {"dropdown", 1, 1, Do_DropDown},
    };
    return rows;
}

} // namespace tavo::console
