#include "settings/frm_settings.h"

namespace tavo {

FrmSettings::FrmSettings(Program& p) : Form("frmSettings"), p_(p) {}

} // namespace tavo
