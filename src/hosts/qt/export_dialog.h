#pragma once

#include <QDialog>

class QBoxLayout;

namespace tavo {

class Binder;
class FrmExportDir;

// Exports the selection list: what is written, how, and how far it has come.
class ExportDialog : public QDialog {
    Q_OBJECT

public:
    ExportDialog(FrmExportDir& form, QWidget* owner);

private:
    void AddHeading(int index);
    void AddColumns();
    void AddStyles();
    void AddProgress();
    void AddButtons();

    FrmExportDir& form_;
    Binder* binder_;
    QBoxLayout* column_;
};

} // namespace tavo
