#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// The program's own sources as text, for tests of how the house is built.

struct IncludeLine {
    std::string Name; // what stands between the quotes or brackets
    bool Bracketed = false;
    int Line = 0; // from 1
    friend bool operator==(const IncludeLine&, const IncludeLine&) = default;
};

struct SourceFile {
    std::string Path; // below src/, such as "toolkit/text.h"
    std::vector<IncludeLine> Includes;
    std::vector<std::string> Conditions; // lines of conditional compilation
    int CodeLines = 0;                   // neither blank nor comment

    bool IsHeader() const { return Path.ends_with(".h"); }
    // The folder, such as "platform/posix".
    std::string Room() const { return Path.substr(0, Path.rfind('/')); }
};

// Takes apart the text of one file. What stands in a comment or a text does
// not count.
SourceFile Source_Read(const std::string& path, std::string_view text);

// All .h, .cpp and .inc files below a folder, by path.
std::vector<SourceFile> Source_Tree(const std::string& folder);

// One circle among these files by what they include, as "a.h b.h a.h"; empty
// if there is none.
std::string Include_Circle(const std::vector<SourceFile>& files);
// What a file includes, by whatever way, from within the tree.
std::vector<std::string> Include_Reach(const std::vector<SourceFile>& files,
                                       const std::string& path);

} // namespace tavo
