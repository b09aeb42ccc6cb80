#pragma once

#include <QDialog>

namespace tavo {

class Binder;
class FrmAbout;

// What this program is.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    AboutDialog(FrmAbout& form, QWidget* owner);

private:
    QWidget* Logo();
    QWidget* Info();

    FrmAbout& form_;
    Binder* binder_;
};

} // namespace tavo
