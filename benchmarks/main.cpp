#include "bare_disk.h"
#include "work.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr const char* usage =
    "usage: tavo-bench [--folder DIR] [--repeats N] [--files N] [--cpu] [WORD]\n"
    "Measures the works whose name holds WORD. Files are made in DIR and removed.\n"
    "Runs work on N files, or on 100,000; their names say the latter in any case.\n"
    "With --cpu the time is that of the processor, not that of the clock.\n";

// At least 1, whatever the text says.
int Number(std::string_view text)
{
    int number = 1;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return std::max(1, number);
}

} // namespace

int main(int argc, char** argv)
{
    tavo::bench::Plan plan;
    std::string parent = ".";
    for (int at = 1; at < argc; ++at) {
        const std::string word = argv[at];
        if (word == "--folder" && at + 1 < argc)
            parent = argv[++at];
        else if (word == "--repeats" && at + 1 < argc)
            plan.Repeats = Number(argv[++at]);
        else if (word == "--files" && at + 1 < argc)
            plan.Files = Number(argv[++at]);
        else if (word == "--cpu")
            plan.By = tavo::bench::Clock::Cpu;
        else if (!word.starts_with('-') && plan.Only.empty())
            plan.Only = word;
        else {
            std::fputs(usage, stderr);
            return 2;
        }
    }
    std::string folder = parent + "/tavo-bench.XXXXXX";
    tavo::bench::Require(mkdtemp(folder.data()) != nullptr, "cannot make a folder in " + parent);
    char* whole = realpath(folder.c_str(), nullptr);
    plan.Folder = std::string(whole) + "/";
    std::free(whole);
    tavo::bench::Walks_Measure(plan);
    tavo::bench::Renames_Measure(plan);
    tavo::bench::Changes_Measure(plan);
    tavo::bench::Lists_Measure(plan);
    tavo::bench::Pictures_Measure(plan);
    tavo::bench::Grid_Measure(plan);
    tavo::bench::Folder_Remove(plan.Folder);
    tavo::bench::Print(plan);
}
