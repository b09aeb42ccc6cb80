#include "core/frm_main.h"
#include "core/program.h"
#include "hosts/console/arguments.h"
#include "hosts/console/commands.h"
#include "toolkit/panels.h"

namespace tavo::console {

namespace {

bool Find_Form(Session& session, const std::string& name, Form*& form, Outcome& outcome)
{
    form = session.FindForm(name);
    return form != nullptr || outcome.Fail("unknown form " + name);
}

bool Do_Window(Session& session, const Words& words, Outcome& outcome)
{
    static constexpr const char* states[] = {"normal", "minimised", "maximised"};
    Form* form = nullptr;
    if (!Find_Form(session, words[0], form, outcome))
        return false;
    for (int state = 0; state < 3; ++state)
        if (words[1] == states[state]) {
            form->PersonState(static_cast<WindowState>(state));
            return true;
        }
    return outcome.Fail("unknown state " + words[1]);
}

bool Do_Resize(Session& session, const Words& words, Outcome& outcome)
{
    Form* form = nullptr;
    int width = 0, height = 0;
    if (!Find_Form(session, words[0], form, outcome) || !Read_Positive(words[1], width, outcome)
        || !Read_Positive(words[2], height, outcome))
        return false;
    const double twips = session.desktop.TwipsPerPixel();
    form->PersonResize(width * twips, height * twips);
    return true;
}

// The main window can't go while a dialog stands on it.
bool Close(Session& session, Form& form, Outcome& outcome)
{
    if (session.IsBehindModal(form))
        return outcome.Fail("a dialog is up");
    form.PersonClose();
    return true;
}

bool Do_Close(Session& session, const Words& words, Outcome& outcome)
{
    Form* form = nullptr;
    if (!Find_Form(session, words[0], form, outcome))
        return false;
    if (!form->Visible())
        return outcome.Fail(words[0] + " is not visible");
    return Close(session, *form, outcome);
}

bool Do_Exit(Session& session, const Words&, Outcome& outcome)
{
    return Close(session, session.program.main, outcome);
}

bool Do_Tick(Session& session, const Words& words, Outcome& outcome)
{
    Named found;
    int times = 1;
    if (!session.Find(words[0], found, outcome)
        || (words.size() > 1 && !Read_Positive(words[1], times, outcome)))
        return false;
    auto* const timer = dynamic_cast<Timer*>(found.Target);
    if (timer == nullptr)
        return outcome.Fail(words[0] + " is no timer");
    for (; times > 0; --times) {
        if (!timer->Enabled || timer->Interval <= 0)
            return outcome.Fail(words[0] + " is off");
        timer->Tick();
    }
    return true;
}

bool Do_Answer(Session& session, const Words& words, Outcome& outcome)
{
    std::vector<Answer> answers;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "path") {
            if (++i == words.size())
                return outcome.Fail("path wants a path");
            answers.push_back({word, words[i]});
        } else if (word == "OK" || word == "Cancel" || word == "Yes" || word == "No") {
            answers.push_back({word, std::string()});
        } else {
            return outcome.Fail("unknown answer " + word);
        }
    }
    session.desktop.Answers.insert(session.desktop.Answers.end(), answers.begin(), answers.end());
    return true;
}

bool Do_Clipboard(Session& session, const Words& words, Outcome&)
{
    session.desktop.Clipboard = words[0];
    return true;
}

bool Do_During(Session& session, const Words& words, Outcome& outcome)
{
    int turn = 0;
    if (!Read_Positive(words[0], turn, outcome))
        return false;
    const Words command(words.begin() + 1, words.end());
    if (Command_Row(command.front()) == nullptr || command.front() == "during")
        return outcome.Fail("unknown command " + command.front());
    session.Postpone(turn, command);
    return true;
}

} // namespace

const std::vector<CommandRow>& Commands_Windows()
{
    static const std::vector<CommandRow> rows{
        {"window", 2, 2, Do_Window},       {"resize", 3, 3, Do_Resize},
        {"close", 1, 1, Do_Close},         {"exit", 0, 0, Do_Exit},
        {"tick", 1, 2, Do_Tick},           {"answer", 1, -1, Do_Answer},
        {"clipboard", 1, 1, Do_Clipboard}, {"during", 2, -1, Do_During},
    };
    return rows;
}

} // namespace tavo::console
