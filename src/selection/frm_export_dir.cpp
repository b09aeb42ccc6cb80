#include "selection/frm_export_dir.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/windows.h"
#include "renamelist/rename_list.h"
#include "toolkit/numbers.h"

namespace tavo {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view columnCaptions[] = {"Name", "Path", "Size", "Type", "Modified"};
constexpr std::string_view headings[] = {"1. Check the File List Columns to Export ",
                                         "2. Select the Output Style "};
constexpr std::string_view styles[] = {"Save File Names under Folder Name",
                                       "Save File List with Columns Separated by :"};
constexpr std::string_view separators[] = {"Tab Key", "Return + Linefeed", "Null Character"};
constexpr std::string_view firstSeparator = ",";

constexpr std::string_view waiting = "Waiting to Start...";
constexpr std::string_view writing = "Outputing File Selection List";
constexpr std::string_view finished = "Finished!";

constexpr std::string_view textFiles = "Text Files (*.txt)\0*.txt\0\0"sv;

constexpr std::string_view sortQuestion =
    "This Operation Requires the Selection List to be Sorted by Path!\r\n"
    "Click OK if you wish to Sort the List Now and Continue.\r\n"
    "Click Cancel if you wish to Abort Exporting the List";

// The columns of the list, by their numbers.
enum ListColumn { listName, listPath, listSize, listType, listModified };

} // namespace

bool Export_File_Ask(Program& p, std::string& fileName, const std::string& filter)
{
    fileName.clear();
    const auto chosen = p.desktop.GetSaveFileNameA({"Save File As...", filter, "*.txt"});
    if (chosen)
        fileName = chosen->substr(0, chosen->find('\0'));
    return chosen.has_value();
}

FrmExportDir::FrmExportDir(Program& p) : Form("frmExportDir"), p_(p)
{
    SetCaption("Export Selection List as Text File");
    Design();
    DesignProgress();
    Wire();
}

void FrmExportDir::Design()
{
    constexpr double left = 240, indent = 480, lineHeight = 300, columnWidth = 1080;
    Move(0, 0, 6300, 4500);
    for (int i = 0; i <= 1; ++i) {
        const double top = 240 + i * 960;
        lblExport[i].Caption = std::string(headings[i]);
        lblExport[i].Move(left, top, 5700, lineHeight);
        optStyle[i].Caption = std::string(styles[i]);
        optStyle[i].Move(indent, 1620 + i * 420, 3900, lineHeight);
    }
    for (int i = exportName; i <= exportModified; ++i) {
        chkColumn[i].Caption = std::string(columnCaptions[i]);
        chkColumn[i].Move(indent + i * columnWidth, 660, columnWidth, lineHeight);
    }
    for (const std::string_view separator : separators)
        cboSeperator.AddItem(std::string(separator));
    cboSeperator.Move(4440, 2010, 1560, 360);
    cboSeperator.AccessibleName = "Separator";
}

void FrmExportDir::DesignProgress()
{
    lblProgress.Move(240, 2640, 5700, 300);
    prbProgress.Move(240, 3000, 5760, 330);
    prbProgress.AccessibleName = "Progress";
    cmdSave.Caption = "&Save";
    cmdCancel.Caption = "Cancel";
    cmdExit.Caption = "E&xit";
    double left = 240;
    for (CommandButton* button : {&cmdSave, &cmdCancel, &cmdExit}) {
        button->Move(left, 3600, 1440, 420);
        left += 2160;
    }
}

void FrmExportDir::Wire()
{
    Load = [this] { Begin(); };
    // What an export stands on stays until it has ended.
    QueryUnload = [this](bool& keep) {
        keep = saving_;
        closing_ = saving_;
    };
    for (int i = 0; i <= 1; ++i)
        optStyle[i].Click = [this, i] {
            chkColumn[exportName].Enabled = chkColumn[exportPath].Enabled = i == 1;
        };
    cmdSave.Click = [this] { Save_Click(); };
    cmdCancel.Click = [this] { cancel_ = true; };
    cmdExit.Click = [this] { Unload(); };
}

// The form outlives its windows; each one begins anew.
void FrmExportDir::Begin()
{
    for (const auto& box : chkColumn)
        box->Value = 1;
    optStyle[0].Value = true;
    chkColumn[exportName].Enabled = chkColumn[exportPath].Enabled = false;
    cboSeperator.Text = std::string(firstSeparator);
    prbProgress.Value = prbProgress.Min.Get();
    lblProgress.Caption = std::string(waiting);
    cmdSave.Enabled = true;
    Buttons_Set(false);
    Win_CenterOwner(p_.main, *this);
}

void FrmExportDir::Buttons_Set(bool exporting)
{
    cmdCancel.Enabled = exporting;
    cmdExit.Enabled = !exporting;
    CancelButton = exporting ? &cmdCancel : &cmdExit;
}

// Is the dialog, or the whole program, to go?
bool FrmExportDir::IsEnding() const
{
    return closing_ || p_.ClosePending;
}

void FrmExportDir::Save_Click()
{
    const LongOperation operation(p_);
    if (!operation)
        return;
    saving_ = true;
    cancel_ = closing_ = false;
    cmdSave.Enabled = false;
    std::string fileName;
    const bool agreed = Export_File_Ask(p_, fileName, std::string(textFiles));
    p_.desktop.DoEvents();
    if (agreed && !IsEnding())
        Save(fileName);
    else
        cmdSave.Enabled = true;
    saving_ = false;
    if (IsEnding())
        Unload();
}

void FrmExportDir::Save(const std::string& fileName)
{
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_[i] = chkColumn[static_cast<int>(i)].Value != 0;
    lblProgress.Caption = std::string(writing);
    prbProgress.Value = prbProgress.Min.Get();
    count_ = p_.main.lsvSelMain.Count();
    if (!optStyle[0].Value) {
        const std::string separator = Export_Separator(cboSeperator.Text);
        return Rows_Write(fileName, [this, separator](int row) {
            return Export_Columns_Line(Row(row), columns_, separator);
        });
    }
    if (List_IsSortedByPath() || List_Sort_Agreed())
        Rows_Write(fileName, [this](int row) { return Row_Grouped(row); });
    else
        cmdSave.Enabled = true;
}

bool FrmExportDir::List_IsSortedByPath() const
{
    const ListView& list = p_.main.lsvSelMain;
    return list.SortKey() == list.ColumnByKey("Path") && list.SortOrder() == 0;
}

// The key stays what it is: a list sorted by another column is put in the
// ascending order of that one, and a folder may then have several groups.
bool FrmExportDir::List_Sort_Agreed()
{
    if (p_.Say(std::string(sortQuestion), BoxIcon::Question, BoxButtons::OkCancel,
               BoxAnswer::Cancel)
        != BoxAnswer::Ok)
        return false;
    ListView& list = p_.main.lsvSelMain;
    list.SetSortOrder(0);
    list.SetSorted(true);
    Ren_Marks_Clear(list);
    p_.desktop.DoEvents();
    return true;
}

// A file that cannot be opened ends the export without a word. One that cannot
// be written whole does not either, but then is not put in place.
void FrmExportDir::Rows_Write(const std::string& fileName, const RowText& text)
{
    if (IsEnding())
        return;
    const FileHandle file = p_.files.OpenOutput(fileName);
    if (file == noFile)
        return;
    Buttons_Set(true);
    const BusyPointer pointer(p_);
    Rows_Walk(file, text);
    p_.files.CloseOutput(file);
    lblProgress.Caption = std::string(finished);
    prbProgress.Value = prbProgress.Max.Get();
    Buttons_Set(false);
    cmdSave.Enabled = true;
}

void FrmExportDir::Rows_Walk(FileHandle file, const RowText& text)
{
    for (int row = 1; row <= count_; ++row) {
        p_.files.WriteOutput(file, text(row));
        prbProgress.Value = RoundHalfEven(row * 100.0 / count_);
        p_.desktop.DoEvents();
        if (cancel_ || IsEnding())
            return;
    }
}

ExportRow FrmExportDir::Row(int row) const
{
    const ListView& list = p_.main.lsvSelMain;
    return {list.Cell(row, listName), list.Cell(row, listPath), list.Cell(row, listSize),
            list.Cell(row, listType), list.Cell(row, listModified)};
}

// Over the rows from this one on whose folder is the same.
ExportWidths FrmExportDir::Group_Measure(int firstRow) const
{
    ExportWidths widths;
    for (int row = firstRow; row <= count_; ++row) {
        const ExportRow cells = Row(row);
        if (cells.Path != groupPath_)
            break;
        widths.Take(cells);
    }
    return widths;
}

std::string FrmExportDir::Row_Grouped(int row)
{
    const ExportRow cells = Row(row);
    std::string lines;
    if (row == 1 || cells.Path != groupPath_) {
        lines = (row == 1 ? "" : "\r\n") + Export_Group_Heading(cells.Path);
        groupPath_ = cells.Path;
        groupWidths_ = Group_Measure(row);
    }
    return lines + Export_Group_Line(cells, columns_, groupWidths_);
}

} // namespace tavo
