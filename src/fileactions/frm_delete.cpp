#include "fileactions/frm_delete.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/windows.h"

namespace tavo {

namespace {

struct Choice {
    std::string_view Caption, Text;
};

constexpr Choice choices[] = {
    {"&Remove", "Click this Button to Remove the selected items from the rename list. The files "
                "will remain on your disk drive. No Undo for this operation."},
    {"Re&cycle", "Click this Button to move the Seleted Files to the Recycle Bin. Removable "
                 "Drives may not support this feature."},
    {"&Delete", "Click this Button to PERMANENTLY delete the Selected Files from the disk drive. "
                "There is No Undo for this operation."},
};

constexpr double rowHeight = 960;

} // namespace

FrmDelete::FrmDelete(Program& p) : Form("frmDelete"), p_(p)
{
    SetCaption("Remove Selected Items or Delete Selected Files");
    Move(0, 0, 6600, 4260);
    for (int i = 1; i <= 3; ++i) {
        const Choice& choice = choices[i - 1];
        const double top = 240 + (i - 1) * rowHeight;
        cmdRemove[i].Caption = std::string(choice.Caption);
        cmdRemove[i].Move(240, top, 1440, 420);
        cmdRemove[i].Click = [this, i] {
            p_.state.DeleteChoice = static_cast<std::int16_t>(i);
            Unload();
        };
        lblRemove[i].Caption = std::string(choice.Text);
        lblRemove[i].Move(1920, top, 4320, rowHeight - 120);
    }
    cmdCancel.Caption = "Cancel";
    cmdCancel.Move(240, 240 + 3 * rowHeight, 1440, 420);
    cmdCancel.Click = [this] { Unload(); };
    CancelButton = &cmdCancel;
    Load = [this] {
        p_.state.DeleteChoice = 0;
        Win_CenterOwner(p_.main, *this);
    };
}

} // namespace tavo
