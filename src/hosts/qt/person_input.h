#pragma once

#include "toolkit/keys.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QKeyEvent;
class QWidget;

namespace tavo {

class Binder;
class Control;

// Watches one window: what the person presses goes to the form first, and then
// to the control or to the widget's own editing. Before any of it the widgets
// are brought in line with the program.
class PersonInput : public QObject {
    Q_OBJECT

public:
    explicit PersonInput(Binder& binder);

    // Takes a key for widgets that belong to no control, such as tool buttons;
    // true when it has done something with it.
    std::function<bool(QWidget& receiver, QKeyEvent& event)> BarKey;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool Pressed(QWidget& receiver);
    bool KeyPressed(QWidget& receiver, QKeyEvent& event);
    void HandOn(Control& target, const Key& key, const QPointer<QWidget>& receiver,
                QKeyEvent& event);
    void Enter(QWidget& receiver);

    Binder& binder_;
};

} // namespace tavo
