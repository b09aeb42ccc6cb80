#pragma once

#include <QDialog>

class QTabWidget;

namespace tavo {

class Binder;
class FrmSettings;

// All settings: a page for the options, and one for each list.
class SettingsDialog : public QDialog {
    Q_OBJECT

public:
    SettingsDialog(FrmSettings& form, QWidget* owner);

private:
    void AddPages();
    void AddKeys();
    void ShowPage();
    void GoToPage(int page);

    FrmSettings& form_;
    Binder* binder_;
    QTabWidget* tabs_;
};

} // namespace tavo
