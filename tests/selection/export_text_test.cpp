#include "selection/export_text.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using namespace std::string_literals;

constexpr ExportColumns all = {true, true, true, true, true};
const ExportRow photo = {"photo.jpg", "C:\\pics\\", "     12KB", "jpg", "03/07/2001 09:05 PM"};
const ExportRow longName = {"long name.jpeg", "C:\\pics\\", "  1,203KB", "jpeg",
                            "03/07/2001 09:06 PM"};

ExportColumns Only(std::initializer_list<ExportColumn> wanted)
{
    ExportColumns columns{};
    for (const ExportColumn column : wanted)
        columns[column] = true;
    return columns;
}

} // namespace

TEST(ExportText, A_choice_stands_for_its_separator_in_any_case)
{
    struct Row {
        const char* What;
        std::string Choice, Separator;
    };
    const Row rows[] = {
        {"tab", "Tab Key", "\t"},
        {"tab, in capitals", "TAB KEY", "\t"},
        {"tab, small", "tab key", "\t"},
        {"line end", "Return + Linefeed", "\r\n"},
        {"line end, mixed", "rETURN + lINEFEED", "\r\n"},
        {"NUL", "Null Character", "\0"s},
        {"NUL, small", "null character", "\0"s},
        {"nothing", "", ""},
        {"a comma", ",", ","},
        {"blanks count", " ; ", " ; "},
        {"a blank alone", " ", " "},
        {"any length", "<---------------------------->", "<---------------------------->"},
        {"case stays", "aBc", "aBc"},
        {"a blank behind makes it a text", "Tab Key ", "Tab Key "},
        {"half a name", "Tab", "Tab"},
        {"another script", "、", "、"},
        {"no UTF-8", "\xFF", "\xFF"},
        {"a NUL as typed", "\0"s, "\0"s},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Export_Separator(row.Choice), row.Separator) << row.What;
}

TEST(ExportText, A_line_has_the_wanted_columns_in_their_order)
{
    struct Row {
        const char* What;
        ExportRow Cells;
        ExportColumns Wanted;
        std::string Separator, Line;
    };
    const Row rows[] = {
        {"all", photo, all, ",", "photo.jpg,C:\\pics\\,12KB,jpg,03/07/2001 09:05 PM\r\n"},
        {"name alone", photo, Only({exportName}), ",", "photo.jpg\r\n"},
        {"size alone", photo, Only({exportSize}), ",", "12KB\r\n"},
        {"first and last", photo, Only({exportName, exportModified}), ",",
         "photo.jpg,03/07/2001 09:05 PM\r\n"},
        {"none", photo, {}, ",", "\r\n"},
        {"no separator", photo, all, "", "photo.jpgC:\\pics\\12KBjpg03/07/2001 09:05 PM\r\n"},
        {"blanks of a separator", photo, Only({exportName, exportType}), " ; ",
         "photo.jpg ; jpg\r\n"},
        {"NUL", photo, Only({exportName, exportSize, exportType}), "\0"s,
         "photo.jpg\0"s + "12KB\0"s + "jpg\r\n"},
        {"a line for each", photo, Only({exportName, exportPath, exportType}), "\r\n",
         "photo.jpg\r\nC:\\pics\\\r\njpg\r\n"},
        {"tab", photo, Only({exportPath, exportSize}), "\t", "C:\\pics\\\t12KB\r\n"},
        {"an empty name has no separator behind it",
         {"", "/d/", "", "", "m"},
         all,
         ",",
         "/d/,,,m\r\n"},
        {"nor have several empty fields", {"", "", "", "t", "m"}, all, ",", "t,m\r\n"},
        {"an empty field in between has one", {"n", "/d/", "", "", ""}, all, ",", "n,/d/,,,\r\n"},
        {"all empty", {"", "", " ", "", ""}, all, ",", "\r\n"},
        {"only the size is trimmed",
         {" n ", " p ", " 1KB ", " t ", " m "},
         all,
         ",",
         " n , p ,1KB, t , m \r\n"},
        {"bytes stay",
         {"a,\xFF\xFE", "/d/", "", "é", ""},
         Only({exportName, exportType}),
         ",",
         "a,\xFF\xFE,é\r\n"},
        {"a line end in a name stays",
         {"a\nb", "", "", "", ""},
         Only({exportName}),
         ",",
         "a\nb\r\n"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Export_Columns_Line(row.Cells, row.Wanted, row.Separator), row.Line) << row.What;
}

TEST(ExportText, Widths_are_those_of_the_widest_cells)
{
    ExportWidths widths;
    for (const ExportRow& row : {photo, longName})
        widths.Take(row);
    EXPECT_EQ(widths.Name, 14);
    EXPECT_EQ(widths.Size, 7);
    EXPECT_EQ(widths.Type, 4);
}

TEST(ExportText, Widths_count_characters)
{
    struct Row {
        const char *What, *Cell;
        int Width;
    };
    constexpr Row rows[] = {
        {"none", "", 0},
        {"accents", "äöü", 3},
        {"Chinese", "照片", 2},
        {"Arabic", "صورة", 4},
        {"emoji", "😀😀", 2},
        {"joined marks count", "a\xCC\x88", 2},
        {"stray bytes", "\xFF\xFE", 2},
        {"half a character", "a\xE4\xB8", 3},
    };
    for (const Row& row : rows) {
        ExportWidths widths;
        widths.Take({row.Cell, "", row.Cell, row.Cell, ""});
        EXPECT_EQ(widths.Name, row.Width) << row.What;
        EXPECT_EQ(widths.Size, row.Width) << row.What;
        EXPECT_EQ(widths.Type, row.Width) << row.What;
    }
}

TEST(ExportText, Rows_of_a_group_stand_in_columns)
{
    ExportWidths widths;
    for (const ExportRow& row : {photo, longName})
        widths.Take(row);
    struct Row {
        const char* What;
        ExportColumns Wanted;
        std::string First, Second;
    };
    const Row rows[] = {
        {"all", all, "photo.jpg          12KB  jpg   03/07/2001 09:05 PM\r\n",
         "long name.jpeg  1,203KB  jpeg  03/07/2001 09:06 PM\r\n"},
        {"names alone are padded, too", {}, "photo.jpg     \r\n", "long name.jpeg\r\n"},
        {"name and path make no difference", Only({exportName, exportPath}), "photo.jpg     \r\n",
         "long name.jpeg\r\n"},
        {"size", Only({exportSize}), "photo.jpg          12KB\r\n", "long name.jpeg  1,203KB\r\n"},
        {"type", Only({exportType}), "photo.jpg       jpg \r\n", "long name.jpeg  jpeg\r\n"},
        {"modified", Only({exportModified}), "photo.jpg       03/07/2001 09:05 PM\r\n",
         "long name.jpeg  03/07/2001 09:06 PM\r\n"},
        {"size and modified", Only({exportSize, exportModified}),
         "photo.jpg          12KB  03/07/2001 09:05 PM\r\n",
         "long name.jpeg  1,203KB  03/07/2001 09:06 PM\r\n"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Export_Group_Line(photo, row.Wanted, widths), row.First) << row.What;
        EXPECT_EQ(Export_Group_Line(longName, row.Wanted, widths), row.Second) << row.What;
    }
}

TEST(ExportText, A_row_wider_than_its_group_stays_whole)
{
    EXPECT_EQ(Export_Group_Line(photo, all, {}), "photo.jpg  12KB  jpg  03/07/2001 09:05 PM\r\n");
    EXPECT_EQ(Export_Group_Line({"", "", "", "", ""}, all, {1, 2, 3}),
              std::string(12, ' ') + "\r\n");
}

TEST(ExportText, A_group_begins_with_its_folder)
{
    EXPECT_EQ(Export_Group_Heading("C:\\pics\\"), "** C:\\pics\\\r\n");
    EXPECT_EQ(Export_Group_Heading("/写真/\xFF/"), "** /写真/\xFF/\r\n");
}

} // namespace tavo
