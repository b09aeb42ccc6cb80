#include "controls/frm_about.h"

namespace tavo {

FrmAbout::FrmAbout(Program& p) : Form("frmAbout"), p_(p) {}

} // namespace tavo
