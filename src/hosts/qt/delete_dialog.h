#pragma once

#include <QDialog>

namespace tavo {

class FrmDelete;

// The dialog that removes rows, recycles or deletes their files: a button for
// each, with the text that explains it beside it.
class DeleteDialog : public QDialog {
    Q_OBJECT

public:
    DeleteDialog(FrmDelete& form, QWidget* owner);
};

} // namespace tavo
