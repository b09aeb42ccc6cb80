#pragma once

#include "hosts/qt/binder.h"
#include "toolkit/tool_bars.h"

#include <QMainWindow>

#include <memory>
#include <vector>

namespace tavo {

class BarView;
class BarWalk;
class FormWindow;
class FrmMain;
class ListPage;
class PersonInput;
class StatusPanels;
class ToolActions;

// The main window: menus and bars, the four screens, the status bar. The
// program places what the screens hold; the window tells it how much room
// there is, and what the panels need.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(FrmMain& form);
    ~MainWindow() override;

    // Brings up the menu of a menu tool at a point of the button pressed last.
    void PopUp(Tool& menu, const QPoint& place);
    Binder& Bound() { return *binder_; }

    QMenu* createPopupMenu() override { return nullptr; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void BuildBars();
    void BuildScreens();
    void BuildPanels();
    void ShowBand(const Band& band);
    void TellHeights();
    void TellInside();

    FrmMain& form_;
    Binder* binder_;
    FormWindow* frame_;
    PersonInput* input_;
    ToolActions* actions_;
    BarWalk* walk_ = nullptr;
    std::vector<BarView*> bars_;
    StatusPanels* status_ = nullptr;
    std::vector<std::pair<Frame*, QWidget*>> panels_; // with what they hold
    Connection bandChanged_;
};

} // namespace tavo
