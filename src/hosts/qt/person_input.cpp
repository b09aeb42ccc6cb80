#include "hosts/qt/person_input.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/key_of_event.h"
#include "toolkit/folder_tree.h"
#include "toolkit/list_view.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMouseEvent>

namespace tavo {

namespace {

bool IsPrintable(const Key& key)
{
    return Key_Types(key) && key.Char > ' ' && key.Char != 127;
}

// The widget's own editing knows the clipboard, words and input methods; plain
// typing and erasing are the box's, which knows its filter and its room.
bool Box_Takes(const Key& key)
{
    if (key.Code == keyBackspace || key.Code == keyDelete)
        return (key.Shift & (shiftShift | shiftCtrl | shiftAlt)) == 0;
    return IsPrintable(key) || (key.Code == keySpace && Key_Types(key));
}

bool Combo_Takes(const ComboBox& combo, const Key& key)
{
    if (key.Shift & shiftAlt)
        return false; // it opens the list
    return combo.Style() == ComboKind::List || key.Code == keyUp || key.Code == keyDown
           || Box_Takes(key);
}

// Does the control do by itself what this key does in it?
bool Control_Takes(const Control& control, const Key& key)
{
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control))
        return Combo_Takes(*combo, key);
    if (dynamic_cast<const TextBox*>(&control))
        return Box_Takes(key);
    // Rows are searched for by their first letters.
    const bool rows =
        dynamic_cast<const ListView*>(&control) || dynamic_cast<const FolderTree*>(&control);
    return !rows || !IsPrintable(key);
}

} // namespace

PersonInput::PersonInput(Binder& binder) : QObject(&binder), binder_(binder)
{
    qApp->installEventFilter(this);
}

bool PersonInput::eventFilter(QObject* object, QEvent* event)
{
    if (!object->isWidgetType())
        return false;
    auto& widget = static_cast<QWidget&>(*object);
    if (widget.window() != &binder_.Window())
        return false;
    switch (event->type()) {
    case QEvent::KeyPress: return KeyPressed(widget, static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: binder_.Queue().Flush(); return Pressed(widget);
    case QEvent::FocusIn:
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::ShortcutFocusReason)
            Enter(widget);
        binder_.FocusCame(widget);
        return false;
    case QEvent::Wheel:
        // Else a list that is scrolled under the pointer changes a choice.
        return qobject_cast<QComboBox*>(object) && !widget.hasFocus();
    default: return false;
    }
}

void PersonInput::Enter(QWidget& receiver)
{
    Control* target = binder_.ControlOf(&receiver);
    if (target && target->TakesFocus())
        binder_.BoundForm().Enter(*target);
}

// Where the program selects a text as its box is entered, the click that enters
// it puts no caret there.
bool PersonInput::Pressed(QWidget& receiver)
{
    auto* box = dynamic_cast<TextBox*>(binder_.ControlOf(&receiver));
    const bool enters = box && !box->HasFocus();
    if (enters)
        box->Select(box->SelStart(), 0);
    Enter(receiver);
    if (!enters || !box->HasFocus() || box->SelLength() == 0)
        return false;
    receiver.setFocus(Qt::MouseFocusReason);
    binder_.Queue().Flush();
    return true;
}

bool PersonInput::KeyPressed(QWidget& receiver, QKeyEvent& event)
{
    const QWidget* focus = QApplication::focusWidget();
    const bool mine = focus && focus->window() == &binder_.Window();
    const bool propagated = &receiver != (mine ? focus : &binder_.Window());
    if (propagated)
        return false;
    if (BarKey && BarKey(receiver, event))
        return true;
    if (qobject_cast<QMenuBar*>(&receiver))
        return false;
    binder_.Queue().Flush();
    Key key = Key_OfEvent(event);
    if (key.Code == keyNone)
        return false;
    Enter(receiver);
    Form& form = binder_.BoundForm();
    Control* target = binder_.ControlOf(&receiver);
    QPointer<QWidget> stillThere(&receiver);
    Key released = key;
    if (form.FilterKey(target, key) && !form.DialogKey(target, key) && target)
        HandOn(*target, key, stillThere, event);
    if (target)
        target->KeyUp(released);
    binder_.Queue().Flush();
    return true;
}

void PersonInput::HandOn(Control& target, const Key& key, const QPointer<QWidget>& receiver,
                         QKeyEvent& event)
{
    if (Control_Takes(target, key))
        target.PersonKey(key);
    else if (receiver)
        static_cast<QObject*>(receiver)->event(&event);
}

} // namespace tavo
