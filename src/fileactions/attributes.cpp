#include "fileactions/attributes.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/row_walk.h"
#include "selection/paths.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int outcomePanel = 2;
constexpr std::string_view undoMark = "Attr: ";
constexpr std::int16_t unreadable = -1;

// One of the four, with its check box.
struct Attribute {
    std::int16_t Bit;
    char Letter;
    int Box;
};

// In the order of the undo record; the status bar goes by the boxes.
constexpr Attribute attributeTable[] = {
    {attrReadOnly, 'R', 1},
    {attrArchive, 'A', 0},
    {attrHidden, 'H', 3},
    {attrSystem, 'S', 2},
};

const Attribute& Attribute_OfBox(int box)
{
    return *std::ranges::find(attributeTable, box, &Attribute::Box);
}

std::int16_t Mask_Of(FrmMain& f)
{
    int mask = 0;
    for (const Attribute& each : attributeTable)
        if (f.chkAttr[each.Box].Value == 1)
            mask += each.Bit;
    return static_cast<std::int16_t>(mask);
}

std::string Row_Path(Program& p, int row)
{
    const ListView& list = p.main.lsvRename;
    std::string path(list.Cell(row, p.state.colPath));
    return path.append(list.Text(row));
}

bool Attributes_Set(Files& files, const std::string& path, std::int16_t attributes)
{
    return files.SetFileAttributesA(path, static_cast<std::uint32_t>(attributes));
}

// Attributes that cannot be read could not be brought back either, so such a
// file is not changed.
std::string Row_Apply(Program& p, int row, std::int16_t mask, RowCounters& counters)
{
    const std::string path = Row_Path(p, row);
    const std::int16_t present = File_Attr_Get(p.files, path);
    if (present == unreadable) {
        const std::string reason = p.files.LastErrorText();
        ++counters.Errors;
        return File_Exists(p.files, path) ? reason : "Missing";
    }
    if (present == mask) {
        ++counters.Unchanged;
        return {};
    }
    p.main.lsvRename.SetCell(row, p.state.colUndoName, Attr_Undo_Build(present));
    if (Attributes_Set(p.files, path, mask)) {
        ++counters.Done;
        return {};
    }
    ++counters.Errors;
    return p.files.LastErrorText();
}

} // namespace

std::int16_t File_Attr_Get(Files& files, const std::string& path)
{
    std::int16_t attributes = unreadable;
    if (const auto read = files.GetFileAttributesA(path))
        AssignChecked(attributes, *read);
    return attributes;
}

AttrFlags File_Attr_Split(std::int16_t attributes)
{
    const auto flag = [attributes](FileAttribute bit) {
        return static_cast<std::uint8_t>((attributes & static_cast<int>(bit)) != 0);
    };
    return {flag(attrReadOnly), flag(attrArchive), flag(attrHidden), flag(attrSystem)};
}

std::string Attr_Undo_Build(std::int16_t attributes)
{
    std::string record(undoMark);
    for (const Attribute& each : attributeTable)
        if (attributes & each.Bit)
            record += each.Letter;
    return record;
}

std::int16_t Attr_Undo_Parse(std::string_view record)
{
    const std::string letters = UCase(Mid(record, static_cast<int>(undoMark.size())));
    int attributes = 0;
    for (const Attribute& each : attributeTable)
        if (letters.find(each.Letter) != std::string::npos)
            attributes += each.Bit;
    return static_cast<std::int16_t>(attributes);
}

void Attr_Run(Program& p, const RunRows& rows)
{
    Act_Stage(p, "Changing Attributes...");
    const std::int16_t mask = Mask_Of(p.main);
    Rows_Walk(p, rows,
              [&](int row, RowCounters& counters) { return Row_Apply(p, row, mask, counters); });
}

std::string Attr_Undo_Row(Program& p, int row, RowCounters& counters)
{
    ListView& list = p.main.lsvRename;
    const std::string path = Row_Path(p, row);
    const std::int16_t present = File_Attr_Get(p.files, path);
    if (present == unreadable && !File_Exists(p.files, path)) {
        ++counters.Errors;
        return "Missing";
    }
    const std::int16_t wanted = Attr_Undo_Parse(list.Cell(row, p.state.colUndoName));
    if (present == wanted) {
        ++counters.Unchanged;
        return {};
    }
    if (present == unreadable || !Attributes_Set(p.files, path, wanted)) {
        ++counters.Errors;
        return "Unknown";
    }
    list.SetCell(row, p.state.colUndoName, Attr_Undo_Build(present));
    ++counters.Done;
    return {};
}

bool Attr_Row_Show(Program& p)
{
    FrmMain& f = p.main;
    const int row = f.lsvRename.SelectedItem();
    const std::int16_t present = File_Attr_Get(p.files, Row_Path(p, row));
    if (present == unreadable) {
        f.stbMain.SetPanel(outcomePanel, "Error Getting Attributes!");
        return false;
    }
    std::string text = std::string(f.lsvRename.Text(row)) + " ( ";
    for (const auto& check : f.chkAttr) {
        const Attribute& each = Attribute_OfBox(check->Index());
        const bool isSet = (present & each.Bit) != 0;
        if (isSet)
            text.append(1, each.Letter).append(" ");
        if (p.state.nnAutoFill == 1)
            check->Value = isSet ? 1 : 0;
    }
    f.stbMain.SetPanel(outcomePanel, text + ")");
    return true;
}

} // namespace tavo
