#include "hosts/console/session.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "hosts/console/commands.h"
#include "hosts/console/script_line.h"
#include "toolkit/tab_strip.h"

#include <algorithm>
#include <iostream>

namespace tavo::console {

void Outcome::Print(std::string_view value)
{
    Output += Value_Escape(value);
    Output += '\n';
}

void Outcome::PrintRow(const std::vector<std::string>& cells)
{
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0)
            Output += '\t';
        Output += Value_Escape(cells[i]);
    }
    Output += '\n';
}

Session::Session(Program& p, ConsoleDesktop& screen, Streams streams, bool keepGoing)
    : program(p), desktop(screen), streams_(streams), keepGoing_(keepGoing)
{
    desktop.Attach(this);
}

Session::~Session()
{
    desktop.Attach(nullptr);
}

int Session::Run()
{
    while (!IsOver() && NextLine()) {
    }
    Leave();
    return failed_ || !streams_.Out.flush() ? 1 : 0;
}

bool Session::IsOver() const
{
    return stopped_ || !program.main.Loaded();
}

void Session::Leave()
{
    for (const Kept& kept : std::exchange(next_, {}))
        PrintError(kept.Line, "no command follows");
    if (program.main.Loaded())
        program.main.PersonClose();
    program.Settle();
}

bool Session::ReadLine(std::string& line)
{
    if (streams_.IsTerminal)
        streams_.Out << "> " << std::flush;
    if (!std::getline(streams_.In, line))
        return false;
    ++line_;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return true;
}

bool Session::NextLine()
{
    std::string line;
    if (stopped_ || !ReadLine(line))
        return false;
    const auto first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#')
        return true;
    Words words;
    std::string why;
    if (!Line_Split(line, words, why)) {
        PrintError(line_, why);
        return true;
    }
    Do(words, line_);
    return true;
}

// A command read from the input: what was kept for its turns of the pump
// belongs to it, and what of that was not reached is dropped with it.
void Session::Do(const Words& words, int line)
{
    if (words.front() == "during") {
        Perform(words, line);
        return;
    }
    frames_.push_back({0, std::move(next_)});
    next_.clear();
    Perform(words, line);
    const Frame ended = std::move(frames_.back());
    frames_.pop_back();
    for (const Kept& kept : ended.Pending)
        PrintError(kept.Line, "turn " + std::to_string(kept.Turn) + " was not reached");
    if (frames_.empty())
        program.Settle();
}

void Session::Perform(const Words& words, int line)
{
    const int before = std::exchange(current_, line);
    Outcome outcome;
    const CommandRow* const row = Command_Row(words.front());
    const Words rest(words.begin() + 1, words.end());
    const int count = static_cast<int>(rest.size());
    if (row == nullptr)
        outcome.Fail("unknown command " + words.front());
    else if (count < row->LeastWords || (row->MostWords >= 0 && count > row->MostWords))
        outcome.Fail("wrong number of words for " + words.front());
    else if (row->Run(*this, rest, outcome))
        streams_.Out << outcome.Output << std::flush;
    else if (outcome.Why.empty())
        outcome.Why = words.front() + " failed";
    if (!outcome.Why.empty())
        PrintError(line, outcome.Why);
    desktop.FollowFront();
    current_ = before;
}

void Session::PrintError(int line, const std::string& why)
{
    streams_.Error << line << ": error: " << Value_Escape(why) << std::endl;
    failed_ = true;
    if (keepGoing_ || stopped_)
        return;
    stopped_ = true;
    // In the midst of a run this only cancels it.
    if (program.Busy())
        program.main.PersonClose();
}

void Session::Report(const std::string& why)
{
    PrintError(current_, why);
}

std::string Session::Ask(const std::string& question)
{
    std::string answer;
    streams_.Out << question << std::flush;
    if (std::getline(streams_.In, answer))
        ++line_;
    return answer;
}

void Session::Postpone(int turn, Words words)
{
    next_.push_back({turn, current_, std::move(words)});
}

bool Session::AnyPending() const
{
    return std::any_of(frames_.begin(), frames_.end(),
                       [](const Frame& frame) { return !frame.Pending.empty(); });
}

void Session::PumpTurn()
{
    for (Frame& frame : frames_)
        ++frame.Turns;
    for (std::size_t at = frames_.size(); at-- > 0;)
        RunDue(at);
    if (!program.state.ActPaused || AnyPending())
        return;
    if (!NextLine())
        program.main.cmdActCancel.PersonClick();
}

// In the order given; one of them may come to the pump itself.
void Session::RunDue(std::size_t frame)
{
    // One before it may have let further turns go by.
    const auto isDue = [&](const Kept& kept) { return kept.Turn <= frames_[frame].Turns; };
    while (frame < frames_.size()) {
        std::vector<Kept>& pending = frames_[frame].Pending;
        const auto due = std::find_if(pending.begin(), pending.end(), isDue);
        if (due == pending.end())
            return;
        const Kept kept = *due;
        pending.erase(due);
        Perform(kept.Command, kept.Line);
    }
}

void Session::ModalLoop(Form& form)
{
    modal_.push_back(&form);
    while (form.Loaded() && !IsOver() && NextLine()) {
    }
    modal_.pop_back();
    if (form.Loaded())
        form.PersonClose();
    if (form.Loaded())
        form.SetVisible(false);
}

bool Session::IsBehindModal(const Form& form) const
{
    return !modal_.empty() && modal_.back() != &form;
}

Form* Session::FindForm(std::string_view name) const
{
    return program.FindForm(name);
}

namespace {

// Takes `name(3)` apart; false when the brackets hold no number.
bool Name_Split(std::string_view text, std::string_view& name, int& index)
{
    index = -1;
    name = text;
    if (text.empty() || text.back() != ')')
        return true;
    const auto open = text.rfind('(');
    const std::string_view digits = text.substr(open + 1, text.size() - open - 2);
    const bool isNumber = open != std::string_view::npos && !digits.empty() && digits.size() < 6
                          && digits.find_first_not_of("0123456789") == std::string_view::npos;
    if (!isNumber)
        return false;
    name = text.substr(0, open);
    index = std::stoi(std::string(digits));
    return true;
}

} // namespace

bool Session::Find(const std::string& name, Named& found, Outcome& outcome) const
{
    std::string_view rest = name;
    Form* form = &program.main;
    if (const auto point = name.find('.'); point != std::string::npos) {
        form = FindForm(rest.substr(0, point));
        rest.remove_prefix(point + 1);
    }
    std::string_view plain;
    int index = -1;
    Control* const control =
        form != nullptr && Name_Split(rest, plain, index) ? form->Find(plain, index) : nullptr;
    if (control == nullptr)
        return outcome.Fail("unknown name " + name);
    found = {form, control, dynamic_cast<Tool*>(control), form->Bars};
    if (found.AsTool && found.AsTool->Box)
        found.Target = found.AsTool->Box.get();
    return true;
}

bool Session::FindList(const std::string& name, ListView*& list, Outcome& outcome) const
{
    Named found;
    if (!Find(name, found, outcome))
        return false;
    list = dynamic_cast<ListView*>(found.Target);
    return list != nullptr || outcome.Fail(name + " is no list");
}

bool Session::ReachForm(Form& form, Outcome& outcome)
{
    if (!form.Visible())
        return outcome.Fail(form.Name() + " is not visible");
    if (IsBehindModal(form))
        return outcome.Fail(modal_.back()->Name() + " is up");
    desktop.SetForegroundWindow(form);
    return true;
}

namespace {

// The strip that holds the control on a page behind, and that page.
TabStrip* Strip_Of(const Control& control, int& page)
{
    for (Control* const other : control.Owner().Controls())
        if (auto* const strip = dynamic_cast<TabStrip*>(other)) {
            page = strip->PageOf(control);
            if (page >= 0 && page != strip->Selected())
                return strip;
        }
    return nullptr;
}

} // namespace

bool Session::Reach(const std::string& name, const Named& found, Outcome& outcome)
{
    const Control& control = *found.Target;
    if (!found.Window->Visible() || !control.IsShown())
        return outcome.Fail(name + " is not visible");
    int page = -1;
    TabStrip* const strip = Strip_Of(control, page);
    // To come to the front may enable it, or put it away.
    if (strip && strip->IsUsable()) {
        if (!ReachForm(*found.Window, outcome))
            return false;
        strip->PersonTab(page);
        if (!found.Window->Visible() || !control.IsShown())
            return outcome.Fail(name + " is not visible");
    }
    if (!control.IsUsable())
        return outcome.Fail(name + " is disabled");
    return ReachForm(*found.Window, outcome);
}

} // namespace tavo::console
