#pragma once

#include <QWidget>

namespace tavo {

class Binder;
class FrmMain;

// The panel of a run: what is being done, how far it is, what has been counted,
// and its three buttons.
class ActionPane : public QWidget {
    Q_OBJECT

public:
    ActionPane(FrmMain& form, Binder& binder, QWidget* parent);
};

} // namespace tavo
