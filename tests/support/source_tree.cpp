#include "support/source_tree.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace tavo {

namespace {

// What is blanked out of a text: comments, and what quotes hold.
enum class Within { Code, LineComment, BlockComment, Text, Sign };

// Lines stay where they are. An include's own quotes are kept for the caller,
// who gives such lines by themselves.
std::string WithoutComments(std::string_view text)
{
    std::string code(text);
    Within within = Within::Code;
    for (std::size_t at = 0; at < code.size(); ++at) {
        const std::string_view two = std::string_view(text).substr(at, 2);
        const char sign = text[at];
        const bool blank = within == Within::LineComment || within == Within::BlockComment;
        if (blank && sign != '\n')
            code[at] = ' ';
        if (within == Within::Code && (two == "//" || two == "/*")) {
            within = two == "//" ? Within::LineComment : Within::BlockComment;
            code[at] = code[at + 1] = ' ';
            ++at;
        } else if (within == Within::Code && sign == '"') {
            within = Within::Text;
        } else if (within == Within::Code && sign == '\'' && (at == 0 || !isalnum(text[at - 1]))) {
            within = Within::Sign; // behind a letter or digit it parts digits
        } else if (within == Within::LineComment && sign == '\n') {
            within = Within::Code;
        } else if (within == Within::BlockComment && two == "*/") {
            code[at + 1] = ' ';
            ++at;
            within = Within::Code;
        } else if ((within == Within::Text || within == Within::Sign) && sign == '\\') {
            ++at;
        } else if ((within == Within::Text && sign == '"')
                   || (within == Within::Sign && sign == '\'')) {
            within = Within::Code;
        }
    }
    return code;
}

std::string_view Trimmed(std::string_view text)
{
    const auto from = text.find_first_not_of(" \t\r");
    if (from == text.npos)
        return {};
    return text.substr(from, text.find_last_not_of(" \t\r") - from + 1);
}

// What stands behind the # of a preprocessor line; empty for another line.
std::string_view Directive(std::string_view line)
{
    return line.starts_with('#') ? Trimmed(line.substr(1)) : std::string_view();
}

bool IsCondition(std::string_view directive)
{
    return directive.starts_with("if") || directive.starts_with("elif");
}

bool TakeInclude(std::string_view directive, int line, std::vector<IncludeLine>& includes)
{
    constexpr std::string_view word = "include";
    if (!directive.starts_with(word))
        return false;
    const std::string_view what = Trimmed(directive.substr(word.size()));
    const bool bracketed = what.starts_with('<');
    const auto end = what.find(bracketed ? '>' : '"', 1);
    if (end == what.npos)
        return false;
    includes.push_back({std::string(what.substr(1, end - 1)), bracketed, line});
    return true;
}

std::string Whole(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

using Edges = std::map<std::string, std::vector<std::string>>;

Edges EdgesOf(const std::vector<SourceFile>& files)
{
    Edges edges;
    for (const SourceFile& file : files)
        for (const IncludeLine& include : file.Includes)
            if (!include.Bracketed)
                edges[file.Path].push_back(include.Name);
    return edges;
}

// Walks depth first; `way` holds the files from the start to the one in hand.
class CircleFinder {
public:
    explicit CircleFinder(const Edges& edges) : edges_(edges) {}

    bool Visit(const std::string& path)
    {
        const auto again = std::find(way_.begin(), way_.end(), path);
        if (again != way_.end()) {
            for (auto step = again; step != way_.end(); ++step)
                circle_ += *step + " ";
            circle_ += path;
            return true;
        }
        if (!seen_.insert(path).second || !edges_.contains(path))
            return false;
        way_.push_back(path);
        for (const std::string& next : edges_.at(path))
            if (Visit(next))
                return true;
        way_.pop_back();
        return false;
    }

    const std::string& Circle() const { return circle_; }

private:
    const Edges& edges_;
    std::set<std::string> seen_;
    std::vector<std::string> way_;
    std::string circle_;
};

} // namespace

SourceFile Source_Read(const std::string& path, std::string_view text)
{
    SourceFile file;
    file.Path = path;
    std::istringstream lines(WithoutComments(text));
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        const std::string_view code = Trimmed(line);
        file.CodeLines += code.empty() ? 0 : 1;
        const std::string_view directive = Directive(code);
        if (!TakeInclude(directive, number, file.Includes) && IsCondition(directive))
            file.Conditions.emplace_back(code);
    }
    return file;
}

std::vector<SourceFile> Source_Tree(const std::string& folder)
{
    std::vector<SourceFile> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const auto extension = entry.path().extension();
        if (!entry.is_regular_file()
            || (extension != ".h" && extension != ".cpp" && extension != ".inc"))
            continue;
        files.push_back(Source_Read(entry.path().lexically_relative(folder).generic_string(),
                                    Whole(entry.path())));
    }
    std::sort(files.begin(), files.end(),
              [](const auto& one, const auto& other) { return one.Path < other.Path; });
    return files;
}

std::string Include_Circle(const std::vector<SourceFile>& files)
{
    const Edges edges = EdgesOf(files);
    CircleFinder finder(edges);
    for (const SourceFile& file : files)
        if (finder.Visit(file.Path))
            break;
    return finder.Circle();
}

std::vector<std::string> Include_Reach(const std::vector<SourceFile>& files,
                                       const std::string& path)
{
    const Edges edges = EdgesOf(files);
    std::set<std::string> reached;
    std::vector<std::string> waiting{path};
    while (!waiting.empty()) {
        const std::string next = waiting.back();
        waiting.pop_back();
        const auto found = edges.find(next);
        if (found == edges.end())
            continue;
        for (const std::string& name : found->second)
            if (reached.insert(name).second)
                waiting.push_back(name);
    }
    return {reached.begin(), reached.end()};
}

} // namespace tavo
