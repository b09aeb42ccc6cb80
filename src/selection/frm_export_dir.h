#pragma once

#include "platform/files.h"
#include "selection/export_text.h"
#include "toolkit/buttons.h"
#include "toolkit/combo_box.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"

#include <functional>
#include <string>

namespace tavo {

class Program;

// Asks where to save a file. The filter names a kind of files and, behind NUL,
// their pattern. False when nothing was chosen, and `fileName` is then empty.
bool Export_File_Ask(Program& p, std::string& fileName, const std::string& filter);

// The dialog of ID_ExportList: writes all rows of the selection list into a
// text file, a row a line with separated columns, or grouped under their
// folders. A file that could not be written whole is not there, and an older
// one of its name is as it was.
class FrmExportDir : public Form {
public:
    explicit FrmExportDir(Program& p);

    ControlArray<Label> lblExport{*this, "lblExport", 0, 1};
    ControlArray<CheckBox> chkColumn{*this, "chkColumn", 0, 4}; // by ExportColumn
    ControlArray<OptionButton> optStyle{*this, "optStyle", 0, 1};
    ComboBox cboSeperator{*this, "cboSeperator"};
    Label lblProgress{*this, "lblProgress"};
    ProgressBar prbProgress{*this, "prbProgress"}; // percent
    CommandButton cmdSave{*this, "cmdSave"};
    CommandButton cmdCancel{*this, "cmdCancel"};
    CommandButton cmdExit{*this, "cmdExit"};

private:
    // What row `row` (from 1) adds to the file.
    using RowText = std::function<std::string(int row)>;

    void Design();
    void DesignProgress();
    void Wire();
    void Begin();
    void Buttons_Set(bool exporting);
    bool IsEnding() const;

    void Save_Click();
    void Save(const std::string& fileName);
    bool List_IsSortedByPath() const;
    bool List_Sort_Agreed();
    void Rows_Write(const std::string& fileName, const RowText& text);
    void Rows_Walk(FileHandle file, const RowText& text);

    ExportRow Row(int row) const;
    ExportWidths Group_Measure(int firstRow) const;
    std::string Row_Grouped(int row);

    Program& p_;
    bool saving_ = false;
    bool cancel_ = false;
    bool closing_ = false; // it is to go when the export has ended
    ExportColumns columns_{};
    int count_ = 0;
    std::string groupPath_; // of the group in hand
    ExportWidths groupWidths_;
};

} // namespace tavo
