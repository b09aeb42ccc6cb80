#include "support/source_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <set>

// Who may use whom. docs/architecture.md tells why.

namespace tavo {
namespace {

using Names = std::vector<std::string>;

constexpr std::string_view programRooms[] = {"core",      "settings",   "renamelist", "fileactions",
                                             "selection", "thumbnails", "viewer",     "controls"};

// What a room may include in brackets.
enum class Outside {
    Portable, // the standard library, without disk, clock, language and threads
    System,   // all but Qt
    Anything,
};

struct Room {
    std::string_view Name;
    Names Uses; // rooms; a host uses the program as a whole
    bool UsesProgram = false;
    Outside Brackets = Outside::Portable;
};

const std::vector<Room>& Rooms()
{
    static const std::vector<Room> rooms = {
        {"toolkit", {"toolkit"}},
        {"platform", {"platform", "toolkit"}},
        {"platform/posix", {"platform/posix", "platform", "toolkit"}, false, Outside::System},
        {"core", {"platform", "toolkit"}, true},
        {"settings", {"platform", "toolkit"}, true},
        {"renamelist", {"platform", "toolkit"}, true},
        {"fileactions", {"platform", "toolkit"}, true},
        {"selection", {"platform", "toolkit"}, true},
        {"thumbnails", {"platform", "toolkit"}, true},
        {"viewer", {"platform", "toolkit"}, true},
        {"controls", {"platform", "toolkit"}, true},
        {"hosts/pictures",
         {"hosts/pictures", "platform/posix", "platform", "toolkit"},
         false,
         Outside::Anything},
        {"hosts/console",
         {"hosts/console", "hosts/pictures", "platform/posix", "platform", "toolkit"},
         true,
         Outside::System},
        {"hosts/qt",
         {"hosts/qt", "hosts/pictures", "platform/posix", "platform", "toolkit"},
         true,
         Outside::Anything},
    };
    return rooms;
}

// The headers of the standard library that reach nothing outside the process
// and mean the same on every machine and in every language.
const std::set<std::string_view>& PortableHeaders()
{
    static const std::set<std::string_view> headers = {
        "algorithm",
        "any",
        "array",
        "bit",
        "bitset",
        "cctype",
        "charconv",
        "chrono",
        "climits",
        "cmath",
        "compare",
        "concepts",
        "cstddef",
        "cstdint",
        "cstring",
        "deque",
        "exception",
        "forward_list",
        "functional",
        "initializer_list",
        "iterator",
        "limits",
        "list",
        "map",
        "memory",
        "memory_resource",
        "new",
        "numbers",
        "numeric",
        "optional",
        "queue",
        "random",
        "ranges",
        "ratio",
        "scoped_allocator",
        "set",
        "source_location",
        "span",
        "stack",
        "string",
        "string_view",
        "tuple",
        "type_traits",
        "typeindex",
        "typeinfo",
        "unordered_map",
        "unordered_set",
        "utility",
        "valarray",
        "variant",
        "vector",
    };
    return headers;
}

const Room* Room_Find(std::string_view name)
{
    const auto& rooms = Rooms();
    const auto found = std::ranges::find(rooms, name, &Room::Name);
    return found == rooms.end() ? nullptr : &*found;
}

bool IsProgramRoom(std::string_view name)
{
    return std::ranges::find(programRooms, name) != std::end(programRooms);
}

bool IsQt(const std::string& header)
{
    return header.starts_with('Q');
}

bool MayInclude(const Room& room, const IncludeLine& include)
{
    if (include.Bracketed) {
        if (room.Brackets == Outside::Portable)
            return PortableHeaders().contains(include.Name);
        return room.Brackets == Outside::Anything || !IsQt(include.Name);
    }
    const std::string target = include.Name.substr(0, include.Name.rfind('/'));
    return (room.UsesProgram && IsProgramRoom(target))
           || std::ranges::find(room.Uses, target) != room.Uses.end();
}

// What is wrong with one file, a line each.
Names Faults(const SourceFile& file)
{
    const Room* room = Room_Find(file.Room());
    if (room == nullptr)
        return {file.Path + ": stands in no room of the house"};
    Names faults;
    for (const IncludeLine& include : file.Includes)
        if (!MayInclude(*room, include))
            faults.push_back(file.Path + ":" + std::to_string(include.Line) + ": may not include "
                             + include.Name);
    if (room->Brackets == Outside::Portable)
        for (const std::string& condition : file.Conditions)
            faults.push_back(file.Path + ": compiles otherwise elsewhere: " + condition);
    return faults;
}

const std::vector<SourceFile>& Sources()
{
    static const std::vector<SourceFile> files = Source_Tree(TAVO_SOURCE_DIR "/src");
    return files;
}

std::vector<SourceFile> Headers()
{
    std::vector<SourceFile> headers;
    std::ranges::copy_if(Sources(), std::back_inserter(headers), &SourceFile::IsHeader);
    return headers;
}

TEST(Layers, The_table_catches_each_kind_of_breach)
{
    struct Row {
        const char* Path;
        std::string_view Text;
        bool Good;
    };
    const Row rows[] = {
        {"toolkit/a.cpp", "#include \"toolkit/text.h\"\n#include <vector>\n", true},
        {"toolkit/a.cpp", "#include \"platform/files.h\"\n", false},
        {"toolkit/a.cpp", "#include \"core/program.h\"\n", false},
        {"toolkit/a.cpp", "#include <unistd.h>\n", false},
        {"toolkit/a.cpp", "#include <QString>\n", false},
        {"toolkit/a.cpp", "#include <filesystem>\n", false},
        {"toolkit/a.cpp", "#include <locale>\n", false},
        {"toolkit/a.cpp", "#ifdef _WIN32\n#endif\n", false},
        {"platform/a.h", "#include \"toolkit/text.h\"\n", true},
        {"platform/a.h", "#include \"platform/posix/places.h\"\n", false},
        {"platform/a.h", "#include \"core/state.h\"\n", false},
        {"platform/posix/a.cpp", "#include <sys/stat.h>\n#if X\n#endif\n", true},
        {"platform/posix/a.cpp", "#include \"core/state.h\"\n", false},
        {"platform/posix/a.cpp", "#include <QString>\n", false},
        {"core/a.cpp", "#include \"selection/paths.h\"\n#include \"toolkit/text.h\"\n", true},
        {"core/a.cpp", "#include \"platform/posix/posix_files.h\"\n", false},
        {"core/a.cpp", "#include \"hosts/console/session.h\"\n", false},
        {"renamelist/a.cpp", "#include <fstream>\n", false},
        {"renamelist/a.cpp", "#include <thread>\n", false},
        {"selection/a.cpp", "#if defined(__linux__)\n#endif\n", false},
        {"hosts/console/a.cpp", "#include \"core/program.h\"\n#include <unistd.h>\n", true},
        {"hosts/console/a.cpp", "#include <QImage>\n", false},
        {"hosts/console/a.cpp", "#include \"hosts/qt/frame.h\"\n", false},
        {"hosts/qt/a.cpp", "#include <QWidget>\n#include \"core/program.h\"\n", true},
        {"hosts/qt/a.cpp", "#include \"hosts/console/session.h\"\n", false},
        {"hosts/pictures/a.cpp", "#include <QImage>\n", true},
        {"hosts/pictures/a.cpp", "#include \"core/program.h\"\n", false},
        {"attic/a.cpp", "", false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Faults(Source_Read(row.Path, row.Text)).empty(), row.Good) << row.Path << "\n"
                                                                             << row.Text;
}

TEST(Layers, Every_file_includes_only_what_its_room_may_use)
{
    ASSERT_GT(Sources().size(), 50u);
    for (const SourceFile& file : Sources())
        EXPECT_EQ(Faults(file), Names());
}

TEST(Layers, Every_quoted_include_is_a_file_below_src)
{
    std::set<std::string> paths;
    for (const SourceFile& file : Sources())
        paths.insert(file.Path);
    for (const SourceFile& file : Sources())
        for (const IncludeLine& include : file.Includes)
            EXPECT_TRUE(include.Bracketed || paths.contains(include.Name))
                << file.Path << ":" << include.Line << ": " << include.Name;
}

TEST(Layers, No_header_comes_back_to_itself)
{
    EXPECT_EQ(Include_Circle(Headers()), "");
}

// By their headers, two rooms of the program never need each other.
TEST(Layers, No_room_comes_back_to_itself_by_its_headers)
{
    std::map<std::string, std::set<std::string>> uses;
    for (const SourceFile& file : Headers())
        for (const IncludeLine& include : file.Includes) {
            const std::string target = include.Name.substr(0, include.Name.rfind('/'));
            if (!include.Bracketed && target != file.Room())
                uses[file.Room()].insert(target);
        }
    std::vector<SourceFile> rooms;
    for (const auto& [room, targets] : uses) {
        SourceFile& node = rooms.emplace_back();
        node.Path = room;
        for (const std::string& target : targets)
            node.Includes.push_back({target, false, 0});
    }
    EXPECT_EQ(Include_Circle(rooms), "");
}

// The engines compute: they take values, and neither their header nor their
// source knows the program or a form.
TEST(Layers, Engines_know_no_form)
{
    const std::string engines[] = {
        "renamelist/counters", "renamelist/templates", "renamelist/name_builder",
        "selection/paths",     "platform/pattern",
    };
    for (const std::string& engine : engines)
        for (const char* extension : {".h", ".cpp"}) {
            ASSERT_TRUE(std::ranges::count(Sources(), engine + extension, &SourceFile::Path))
                << engine << extension;
            const Names reach = Include_Reach(Sources(), engine + extension);
            for (const char* above : {"core/program.h", "core/frm_main.h", "toolkit/form.h"})
                EXPECT_EQ(std::ranges::count(reach, above), 0)
                    << engine << extension << " reaches " << above;
        }
}

// What both hosts need stands below them, so they stay small. The reader of
// pictures is no host: both of them use it.
TEST(Layers, Hosts_are_below_a_quarter_of_the_code)
{
    int hosts = 0, all = 0;
    for (const SourceFile& file : Sources()) {
        if (file.Path.ends_with(".inc"))
            continue; // tables made by a script
        all += file.CodeLines;
        const bool isHost =
            file.Path.starts_with("hosts/") && !file.Path.starts_with("hosts/pictures/");
        hosts += isHost ? file.CodeLines : 0;
    }
    std::cout << "hosts: " << hosts << " of " << all << " lines of code, " << 100.0 * hosts / all
              << " %\n";
    EXPECT_LT(hosts * 4, all);
}

} // namespace
} // namespace tavo
