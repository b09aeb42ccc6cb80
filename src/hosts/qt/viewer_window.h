#pragma once

#include "hosts/qt/binder.h"
#include "toolkit/tool_bars.h"

#include <QMainWindow>

#include <vector>

namespace tavo {

class BarView;
class BarWalk;
class FormWindow;
class FrmViewer;
class PersonInput;
class StatusPanels;
class ToolActions;

// The window of the image viewer. The program places what lies under the tool
// bar; the window tells it how much room there is.
class ViewerWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit ViewerWindow(FrmViewer& form);

    Binder& Bound() { return *binder_; }
    QMenu* createPopupMenu() override { return nullptr; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void BuildBars();
    void BuildView();
    void TellHeight();
    void TellInside();

    FrmViewer& form_;
    Binder* binder_;
    FormWindow* frame_;
    PersonInput* input_;
    ToolActions* actions_;
    BarWalk* walk_ = nullptr;
    std::vector<BarView*> bars_;
    StatusPanels* status_ = nullptr;
};

} // namespace tavo
