#pragma once

#include "toolkit/list_box.h"

#include <QListWidget>

namespace tavo {

class Binder;

// A list of texts in the window. A press on a row is the control's, which may
// do something each time.
class ListBoxView : public QListWidget {
    Q_OBJECT

public:
    ListBoxView(ListBox& list, Binder& binder, QWidget* parent);

protected:
    // A press that moves on chooses nothing more.
    void mouseMoveEvent(QMouseEvent*) override {}

private:
    void Fill();

    ListBox& list_;
};

} // namespace tavo
