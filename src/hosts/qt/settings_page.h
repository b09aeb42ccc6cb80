#pragma once

class QWidget;

namespace tavo {

class Binder;
class FrmSettings;

// The page of a list: its rows with what puts them in order, and under them the
// boxes of the row in hand with what is done to it.
QWidget* ListSettings_Make(FrmSettings& form, int page, Binder& binder, QWidget* parent);

// The page of the options, with the words of Smart Case beside them.
QWidget* DefaultSettings_Make(FrmSettings& form, Binder& binder, QWidget* parent);

} // namespace tavo
