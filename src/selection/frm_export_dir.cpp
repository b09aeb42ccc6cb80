#include "selection/frm_export_dir.h"

namespace tavo {

FrmExportDir::FrmExportDir(Program& p) : Form("frmExportDir"), p_(p) {}

} // namespace tavo
