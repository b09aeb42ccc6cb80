#include "selection/export_text.h"

#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view columnGap = "  ";

struct NamedSeparator {
    std::string_view Name, Text;
};

constexpr NamedSeparator namedSeparators[] = {
    {"TAB KEY", "\t"}, {"RETURN + LINEFEED", "\r\n"}, {"NULL CHARACTER", "\0"sv}};

std::string Blanks(int count)
{
    return std::string(static_cast<std::size_t>(std::max(count, 0)), ' ');
}

} // namespace

std::string Export_Separator(std::string_view choice)
{
    const std::string upper = UCase(choice);
    for (const NamedSeparator& row : namedSeparators)
        if (row.Name == upper)
            return std::string(row.Text);
    return std::string(choice);
}

std::string Export_Columns_Line(const ExportRow& row, const ExportColumns& wanted,
                                std::string_view separator)
{
    const std::string size = Trim(row.Size);
    const std::string_view fields[] = {row.Name, row.Path, size, row.Type, row.Modified};
    std::string line;
    for (std::size_t column = 0; column < wanted.size(); ++column) {
        if (!wanted[column])
            continue;
        if (!line.empty())
            line += separator;
        line += fields[column];
    }
    return line.append(lineEnd);
}

std::string Export_Group_Heading(std::string_view path)
{
    return std::string("** ").append(path).append(lineEnd);
}

void ExportWidths::Take(const ExportRow& row)
{
    Name = std::max(Name, Len(row.Name));
    Size = std::max(Size, Len(Trim(row.Size)));
    Type = std::max(Type, Len(row.Type));
}

std::string Export_Group_Line(const ExportRow& row, const ExportColumns& wanted,
                              const ExportWidths& widths)
{
    std::string line(row.Name);
    line += Blanks(widths.Name - Len(row.Name));
    if (wanted[exportSize]) {
        const std::string size = Trim(row.Size);
        line.append(columnGap).append(Blanks(widths.Size - Len(size))).append(size);
    }
    if (wanted[exportType])
        line.append(columnGap).append(row.Type).append(Blanks(widths.Type - Len(row.Type)));
    if (wanted[exportModified])
        line.append(columnGap).append(row.Modified);
    return line.append(lineEnd);
}

} // namespace tavo
