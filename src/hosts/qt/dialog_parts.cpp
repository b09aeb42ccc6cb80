#include "hosts/qt/dialog_parts.h"

#include <QBoxLayout>
#include <QPushButton>

namespace tavo {

QPushButton* DialogButton(QWidget* parent, CommandButton& command, Binder& binder)
{
    auto* button = Bound<QPushButton>(parent, command, binder);
    button->setAutoDefault(false);
    button->setDefault(&command == binder.BoundForm().DefaultButton);
    return button;
}

QHBoxLayout* DialogButtons(QWidget* parent, std::initializer_list<CommandButton*> commands,
                           Binder& binder)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (CommandButton* command : commands)
        row->addWidget(DialogButton(parent, *command, binder));
    return row;
}

void Form_TakeSize(Form& form, QSize size)
{
    const double width = size.width() * twipsPerPixel, height = size.height() * twipsPerPixel;
    const double left = form.Left() + (form.Width() - width) / 2;
    const double top = form.Top() + (form.Height() - height) / 2;
    form.Move(left, top, width, height);
}

void Place_Tell(const QWidget& widget, Control& control)
{
    control.Move(widget.x() * twipsPerPixel, widget.y() * twipsPerPixel,
                 widget.width() * twipsPerPixel, widget.height() * twipsPerPixel);
}

} // namespace tavo
