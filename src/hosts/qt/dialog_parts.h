#pragma once

#include "hosts/qt/panel_parts.h"

class QHBoxLayout;
class QPushButton;

namespace tavo {

// Room at the rim of a dialog, and between its parts.
inline constexpr int dialogMargin = 12, dialogGap = 10;

// A button that Return presses only while the form says so.
QPushButton* DialogButton(QWidget* parent, CommandButton& command, Binder& binder);
// Buttons at the right end of a row.
QHBoxLayout* DialogButtons(QWidget* parent, std::initializer_list<CommandButton*> commands,
                           Binder& binder);
// The form takes this size in pixels; its middle stays where it is.
void Form_TakeSize(Form& form, QSize size);
// The control hears where its widget stands, in the pixels of the widget's
// parent.
void Place_Tell(const QWidget& widget, Control& control);

} // namespace tavo
