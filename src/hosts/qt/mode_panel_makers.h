#pragma once

class QWidget;

namespace tavo {

class Binder;
class FrmMain;

// The panels that need no class of their own.
QWidget* Attributes_Panel(FrmMain& form, Binder& binder, QWidget* parent);
QWidget* Case_Panel(FrmMain& form, Binder& binder, QWidget* parent);
QWidget* DateTime_Panel(FrmMain& form, Binder& binder, QWidget* parent);
QWidget* MoveCopy_Panel(FrmMain& form, Binder& binder, QWidget* parent);
QWidget* SearchReplace_Panel(FrmMain& form, Binder& binder, QWidget* parent);
QWidget* Mp3Tag_Panel(FrmMain& form, Binder& binder, QWidget* parent);

} // namespace tavo
