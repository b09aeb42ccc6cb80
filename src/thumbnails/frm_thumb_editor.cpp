#include "thumbnails/frm_thumb_editor.h"

namespace tavo {

FrmThumbEditor::FrmThumbEditor(Program& p) : Form("frmThumbEditor"), p_(p) {}

} // namespace tavo
