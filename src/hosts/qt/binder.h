#pragma once

#include "hosts/qt/binding.h"
#include "toolkit/buttons.h"
#include "toolkit/combo_box.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"

#include <QHash>
#include <QObject>

class QAbstractButton;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QWidget;

namespace tavo {

inline constexpr double twipsPerPixel = 15;

// Ties the widgets of one window to the controls of its form, a line a
// control: what the program changes is shown with the next frame, what the
// person does goes to the control. Which widget has the focus follows the
// form's active control.
class Binder : public QObject {
    Q_OBJECT

public:
    Binder(Form& form, QWidget& window);

    void Bind(QLineEdit& line, TextBox& box);
    void Bind(QComboBox& combo, ComboBox& box);
    void Bind(QAbstractButton& button, CommandButton& command);
    void Bind(QAbstractButton& button, CheckBox& check);
    void Bind(QAbstractButton& button, OptionButton& option);
    // A label that does something when it is clicked.
    void Bind(QAbstractButton& link, Label& label);
    void Bind(QLabel& text, Label& label);
    void Bind(QProgressBar& bar, ProgressBar& progress);
    void Bind(QWidget& panel, Control& control);
    void Bind(Timer& timer);

    // Gives the widget the control's place within its container, too.
    void Place(QWidget& widget, Control& control);

    // Gets the keys while the form's active control is out of reach.
    void AddHome(QWidget& widget) { homes_.push_back(&widget); }

    // What a kind of widget of its own shows of its control. `apply` runs
    // beside what all widgets have in common.
    Binding* Bind(QWidget& widget, Control& control, Binding::Apply apply);

    // The widget has the focus now: what it shows only then is shown.
    void FocusCame(const QWidget& widget);

    // The control of the widget, or of the nearest one that holds it; null for
    // none.
    Control* ControlOf(const QWidget* widget) const;
    QWidget* WidgetOf(const Control* control) const { return widgets_.value(control); }
    Form& BoundForm() const { return form_; }
    QWidget& Window() const { return window_; }
    FrameQueue& Queue() { return queue_; }

private:
    void FollowFocus();
    void Edited(QLineEdit& line, TextBox& box, const QString& before);

    Form& form_;
    QWidget& window_;
    FrameQueue queue_;
    QHash<const QWidget*, Control*> controls_;
    QHash<const Control*, QWidget*> widgets_;
    std::vector<QWidget*> homes_;
};

} // namespace tavo
