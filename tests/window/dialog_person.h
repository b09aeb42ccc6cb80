#pragma once

#include "window/person.h"

#include <QApplication>
#include <QDialog>

namespace tavo {

// A person at a dialog of the program, and at what comes up over it.
class DialogPerson : public Person {
public:
    using Person::Person;

    // Runs `show`, which brings up a dialog and ends with it, and in the
    // dialog the step. Within a step it may come up over the dialog in hand.
    void At(const std::function<void()>& show, std::function<void()> step);
    // Does this in what next comes up over the dialog in hand.
    void InNextOver(std::function<void(QWidget& over)> step);
    // Presses this button of a message box over it, and keeps the box's text.
    void AnswerOver(const QString& button);

    QWidget& Dialog() { return *dialog_; }
    template <class Widget = QWidget>
    Widget& In(const std::string& name)
    {
        auto* widget = dialog_->findChild<Widget*>(QString::fromStdString(name));
        if (!widget)
            qFatal("no widget %s in the dialog", name.c_str());
        return *widget;
    }
    void ClickIn(const std::string& name);
    void ClickAt(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers held = {});
    void KeyIn(Qt::Key key, Qt::KeyboardModifiers held = {});
    // Into what has the focus.
    void TypeHere(const QString& text);
    // In place of the text of this box.
    void Retype(const std::string& box, const QString& text);
    // Until what the program has changed is shown.
    void Wait();
    std::string FocusName();
    // Where Tab goes, from what has the focus on.
    std::vector<std::string> Stops(int count);
    // What takes the focus and has no name to be read out.
    std::vector<std::string> Nameless(const Form& form);
    // Texts of labels and buttons in sight that have too little room.
    std::vector<std::string> CutTexts();

private:
    QPointer<QWidget> dialog_;
};

} // namespace tavo
