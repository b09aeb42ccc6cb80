#pragma once

#include "hosts/qt/binding.h"
#include "toolkit/tool_bars.h"

#include <QHash>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QSet>

class QAction;
class QWidget;

namespace tavo {

// The tools as Qt's actions, one a tool wherever it stands, and the menus.
class ToolActions : public QObject {
    Q_OBJECT

public:
    ToolActions(ToolBars& bars, FrameQueue& queue, QWidget& window);

    // Of a button, toggle, menu or separator.
    QAction* Of(Tool& tool);
    // To be said before the first Of: on buttons its caption stands in one line.
    void KeepOneLine(const Tool& tool) { oneLine_.insert(&tool); }
    // The menu of a menu tool; it follows its band.
    QMenu* MenuOf(Tool& tool);
    // Puts the tools of a band into a menu bar or menu, in place of what it
    // holds.
    void Fill(QWidget& menu, const Band& band);

    ToolBars& Bars() const { return bars_; }
    FrameQueue& Queue() { return queue_; }

private:
    QAction* Make(Tool& tool);
    void Show(QAction& action, const Tool& tool, const PropSet& changed);
    void Follow(const Band& band);
    void DropGone();

    ToolBars& bars_;
    FrameQueue& queue_;
    QWidget& window_;
    QHash<const Tool*, QPointer<QAction>> actions_;
    QHash<const Tool*, QPointer<QMenu>> menus_;
    QSet<const Tool*> oneLine_;
    QHash<const Band*, QPointer<Binding>> fillings_;
    Event<Prop> never_; // bands tell of themselves
    Connection connection_;
};

} // namespace tavo
