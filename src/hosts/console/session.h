#pragma once

#include "hosts/console/console_desktop.h"
#include "toolkit/control.h"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {
class Form;
class ListView;
class Program;
class TextBox;
class Tool;
class ToolBars;
} // namespace tavo

namespace tavo::console {

// Where the commands come from, and where their outcome goes.
struct Streams {
    std::istream& In;
    std::ostream& Out;
    std::ostream& Error;
    bool IsTerminal = false; // a person types: prompt, and ask in boxes
};

using Words = std::vector<std::string>;

// What one command has come to. `Output` is printed when nothing failed.
struct Outcome {
    std::string Output;
    std::string Why; // empty when it was done

    bool Fail(std::string why)
    {
        Why = std::move(why);
        return false;
    }
    void Print(std::string_view value);
    void PrintRow(const std::vector<std::string>& cells);
};

// What a name stands for. `Target` is what a person would touch: the control,
// for a tool its box where it has one.
struct Named {
    Form* Window = nullptr;
    Control* Target = nullptr;
    Tool* AsTool = nullptr;
    ToolBars* Bars = nullptr;
};

// Works a program by lines of text: one command a line, done as it arrives.
class Session {
public:
    Session(Program& program, ConsoleDesktop& desktop, Streams streams, bool keepGoing);
    ~Session();

    // Runs to the end of the input or of the program. 0 when all commands were
    // done, 1 when one failed.
    int Run();

    // For the desktop: one turn of the pump, and the life of a modal form.
    void PumpTurn();
    void ModalLoop(Form& form);
    // An error of the command in hand beside its own.
    void Report(const std::string& why);
    // Asks the person, where there is one; empty otherwise.
    std::string Ask(const std::string& question);
    bool IsTerminal() const { return streams_.IsTerminal; }

    // For the commands.
    Program& program;
    ConsoleDesktop& desktop;
    // The names a command gives. Each fails with a text in `outcome`.
    bool Find(const std::string& name, Named& found, Outcome& outcome) const;
    bool FindList(const std::string& name, ListView*& list, Outcome& outcome) const;
    Form* FindForm(std::string_view name) const;
    // Is the person able to work it now? Brings its window to the front.
    bool Reach(const std::string& name, const Named& found, Outcome& outcome);
    bool ReachForm(Form& form, Outcome& outcome);
    bool IsModalUp() const { return !modal_.empty(); }
    bool IsBehindModal(const Form& form) const;
    // Keeps a command back for the `turn`th turn of the next command's pump.
    void Postpone(int turn, Words words);

    // The mouse button that is held down, 0 for none.
    int HeldButton = 0;

private:
    struct Kept {
        int Turn;
        int Line;
        Words Command;
    };
    // A command under way: the turns it has given to the pump so far, and what
    // is kept for later ones.
    struct Frame {
        int Turns = 0;
        std::vector<Kept> Pending;
    };

    bool ReadLine(std::string& line);
    bool NextLine(); // reads and does one; false when there is no more to do
    void Do(const Words& words, int line);
    void Perform(const Words& words, int line);
    void RunDue(std::size_t frame);
    bool AnyPending() const;
    void PrintError(int line, const std::string& why);
    void Leave();
    bool IsOver() const;

    Streams streams_;
    const bool keepGoing_;
    int line_ = 0;    // of the line read last
    int current_ = 0; // of the command in hand
    bool failed_ = false, stopped_ = false;
    std::vector<Kept> next_;
    std::vector<Frame> frames_;
    std::vector<Form*> modal_;
};

} // namespace tavo::console
