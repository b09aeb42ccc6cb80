#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QKeyEvent;
class QMainWindow;
class QWidget;

namespace tavo {

class BarView;

// Lets keys reach what no Tab reaches: F6 goes from the window's content to the
// menu bar and from bar to bar, the arrows walk a bar, Return and the space bar
// press, Escape goes back.
class BarWalk : public QObject {
    Q_OBJECT

public:
    BarWalk(QMainWindow& window, const std::vector<BarView*>& bars);
    BarWalk(QWidget& window, QWidget* menus, const std::vector<BarView*>& bars);

    // True when the key was for the walk.
    bool Key(QWidget& receiver, QKeyEvent& event);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void StopAt(QWidget& stop);
    void NextRegion(bool backwards);
    bool KeyInBar(BarView& bar, QWidget& receiver, QKeyEvent& event);
    void Step(BarView& bar, QWidget& from, bool backwards);
    void GoBack();

    QWidget& window_;
    QWidget* menus_;
    const std::vector<BarView*>& bars_;
    QPointer<QWidget> before_; // had the focus when the walk began
};

} // namespace tavo
