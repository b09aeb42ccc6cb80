#pragma once

class QWidget;

namespace tavo {

class Binder;
class FrmMain;

// What the panel of a rename mode holds, bound to its controls; null for a
// mode that there is none of.
QWidget* ModePanel_Make(int mode, FrmMain& form, Binder& binder, QWidget* parent);

} // namespace tavo
