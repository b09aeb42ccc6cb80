#pragma once

#include <QWidget>

#include <vector>

namespace tavo {

class Binder;
class FrmMain;

// The panel of Name & Number: the two templates, what can be put into them, and
// the counter.
class NameNumberPanel : public QWidget {
    Q_OBJECT

public:
    NameNumberPanel(FrmMain& form, Binder& binder, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* Templates(FrmMain& form, Binder& binder);
    QWidget* Inserts(FrmMain& form, Binder& binder);
    QWidget* Counter(FrmMain& form, Binder& binder);
    // The first captions of all rows begin and end where the widest one does.
    void Align();

    std::vector<QWidget*> firstCaptions_;
};

} // namespace tavo
