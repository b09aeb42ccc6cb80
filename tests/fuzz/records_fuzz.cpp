#include "core/frm_main.h"
#include "core/program.h"
#include "fuzz/quiet_desktop.h"
#include "fuzz/require.h"
#include "selection/paths.h"
#include "settings/settings_file.h"
#include "settings/window_layout.h"
#include "support/memory_disk.h"
#include "support/memory_profile.h"
#include "toolkit/numbers.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

// The input is a record: fields parted by commas, as the settings file keeps
// places of windows.

namespace tavo {
namespace {

// The fields, one behind the last comma too.
std::vector<std::string> Fields(std::string_view record)
{
    std::vector<std::string> fields;
    for (std::size_t at = record.find(','); at != record.npos; at = record.find(',')) {
        fields.emplace_back(record.substr(0, at));
        record.remove_prefix(at + 1);
    }
    fields.emplace_back(record);
    return fields;
}

// What a record says in a field that it may not have. The one behind a comma
// at the end counts as missing.
std::string Field(const std::vector<std::string>& fields, std::size_t index,
                  const std::string& fallback)
{
    const bool isThere =
        index < fields.size() && (index + 1 < fields.size() || !fields[index].empty());
    return isThere ? fields[index] : fallback;
}

void Token_Check(const std::string& record, std::string_view delimiter)
{
    std::string rest = record, joined;
    std::size_t tokens = 0;
    while (!rest.empty()) {
        const std::size_t before = rest.size();
        const std::string token = Str_GetToken(rest, delimiter, "fallback");
        Require(rest.size() < before, "a token is taken off", record);
        Require(token.find(delimiter) == token.npos, "a token holds no delimiter", token);
        joined += (tokens++ > 0 ? std::string(delimiter) : "") + token;
    }
    Require(joined == record || joined + std::string(delimiter) == record,
            "the tokens are the text", record);
    Require(Str_GetToken(rest, delimiter, "fallback") == "fallback", "nothing gives the fallback");
}

template <typename Number>
void Number_Check(Number value, std::optional<int> wanted, Number before, const std::string& record)
{
    Require(value == (wanted ? static_cast<Number>(*wanted) : before),
            "a field is its number, or leaves what was there", record);
}

void Pos_Check(const std::string& record)
{
    constexpr WindowPos before{-7, 77, 777, 7777, 1};
    WindowPos pos = before;
    Pos_Parse(pos, record);
    const std::vector<std::string> fields = Fields(record);
    const auto field = [&fields](std::size_t index) {
        const std::string text = Field(fields, index, "0");
        return text.empty() ? std::string("0") : text;
    };
    Number_Check(pos.Left, ParseI32(field(0)), before.Left, record);
    Number_Check(pos.Top, ParseI32(field(1)), before.Top, record);
    Number_Check(pos.Width, ParseI32(field(2)), before.Width, record);
    Number_Check(pos.Height, ParseI32(field(3)), before.Height, record);
    Number_Check(pos.State, ParseI16(field(4)), before.State, record);

    // Below a million every place is written with all its digits.
    WindowPos again, small = pos;
    for (std::int32_t* twips : {&small.Left, &small.Top, &small.Width, &small.Height})
        *twips %= 1'000'000;
    Pos_Parse(again, Pos_Text(small));
    Require(Pos_Text(again) == Pos_Text(small), "a place that is written is read", Pos_Text(small));
}

// A number of a layout; 0 for what no window can have.
double Layout_Number(const std::vector<std::string>& fields, std::size_t index,
                     const std::string& fallback)
{
    const double number = Val(Field(fields, index, fallback));
    return std::abs(number) <= std::numeric_limits<std::int32_t>::max() ? number : 0;
}

// The window to which all records are applied, one behind the other.
struct Machine {
    MemoryDisk Disk{MemoryDisk::Flavour::Posix};
    MemoryProfile Profile;
    QuietDesktop Desktop;
    Program P{Disk, Profile, Desktop, {"/app/", ""}};

    Machine()
    {
        Disk.AddFolder("/app/");
        P.Start();
    }
};

void Layout_Check(Program& p, const std::string& record)
{
    constexpr std::array<double, 4> before{150, 300, 9000, 7500};
    const FrmMain& main = p.main;
    p.main.SetState(WindowState::Normal);
    p.main.Move(before[0], before[1], before[2], before[3]);
    Win_Layout_Apply(p, record);

    const std::vector<std::string> fields = Fields(record);
    const double state = Layout_Number(fields, 4, "3");
    const bool isKnown = state == 0 || state == 1 || state == 2;
    Require(main.State() == (isKnown ? static_cast<WindowState>(state) : WindowState::Normal),
            "the window takes the record's state", record);
    const std::array<double, 4> after{main.Left(), main.Top(), main.Width(), main.Height()};
    std::array<double, 4> wanted{};
    for (std::size_t index = 0; index < wanted.size(); ++index)
        wanted[index] = Layout_Number(fields, index, "0");
    const bool isPlace = state == 0 && wanted[2] >= 1 && wanted[3] >= 1;
    Require(after == (isPlace ? wanted : before), "the window takes the record's place or none",
            record);
}

} // namespace
} // namespace tavo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tavo;
    static Machine machine;
    const std::string record(Input_Text(data, size));
    Token_Check(record, ",");
    Token_Check(record, "0,");
    Token_Check(record, std::string_view("\0", 1));
    Pos_Check(record);
    Layout_Check(machine.P, record);
    return 0;
}
