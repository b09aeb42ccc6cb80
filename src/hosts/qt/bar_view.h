#pragma once

#include "hosts/qt/binding.h"
#include "toolkit/tool_bars.h"

#include <QPointer>
#include <QToolBar>
#include <QToolButton>

class QLabel;

namespace tavo {

class Binder;
class ToolActions;

// A band in the window. Its buttons take no focus from a box; keys walk them
// when the person asks for it.
class BarView : public QToolBar {
    Q_OBJECT

public:
    BarView(const Band& band, ToolActions& actions, Binder& binder, QWidget* parent);

    const Band& Shown() const { return band_; }
    // Brings up a menu under the tool whose arrow was pressed last.
    void PopUp(QMenu& menu, const QPoint& place);
    bool HasDropped() const { return dropped_ != nullptr; }

private:
    void FitFont();
    void AddTool(Tool& tool);
    void AddButton(Tool& tool);
    void AddDropDown(Tool& tool);
    void AddBox(Tool& tool);
    void AddLabel(Tool& tool);
    // The widget stands for the tool in this bar.
    void Stand(QWidget& widget, Tool& tool);

    const Band& band_;
    ToolActions& actions_;
    Binder& binder_;
    bool oneRow_; // texts stand beside the pictures
    QPointer<QWidget> dropped_;
};

// A button with an arrow beside it, which is a button of its own.
class ArrowButton : public QToolButton {
    Q_OBJECT

public:
    using QToolButton::QToolButton;

signals:
    void ArrowPressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tavo
