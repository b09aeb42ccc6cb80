#pragma once

#include <QWidget>

namespace tavo {

class Binder;
class FrmMain;

// The panel of Name & Number: the two templates, what can be put into them, and
// the counter.
class NameNumberPanel : public QWidget {
    Q_OBJECT

public:
    NameNumberPanel(FrmMain& form, Binder& binder, QWidget* parent);

private:
    QWidget* Templates(FrmMain& form, Binder& binder);
    QWidget* Inserts(FrmMain& form, Binder& binder);
    QWidget* Counter(FrmMain& form, Binder& binder);
};

} // namespace tavo
