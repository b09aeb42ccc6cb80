#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tavo {

// The lines of an exported list. All end in CR LF.

// The cells of one row, as the list shows them.
struct ExportRow {
    std::string_view Name, Path, Size, Type, Modified;
};

enum ExportColumn { exportName, exportPath, exportSize, exportType, exportModified };
// Which columns are wanted, by ExportColumn.
using ExportColumns = std::array<bool, 5>;

// What a choice in the box of separators stands for, whatever its case: a tab,
// CR LF, or one NUL. Any other text is the separator itself.
std::string Export_Separator(std::string_view choice);

// The wanted columns in their order, with the size trimmed. A separator stands
// in front of a field only where the line has begun.
std::string Export_Columns_Line(const ExportRow& row, const ExportColumns& wanted,
                                std::string_view separator);

// What a group of one folder begins with.
std::string Export_Group_Heading(std::string_view path);

// The widest name, trimmed size and type of a group, in characters.
struct ExportWidths {
    int Name = 0, Size = 0, Type = 0;
    void Take(const ExportRow& row);
};

// Name, and of Size, Type and Modified what is wanted, in columns of these
// widths, two blanks apart.
std::string Export_Group_Line(const ExportRow& row, const ExportColumns& wanted,
                              const ExportWidths& widths);

} // namespace tavo
