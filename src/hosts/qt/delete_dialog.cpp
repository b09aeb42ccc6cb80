#include "hosts/qt/delete_dialog.h"

#include "fileactions/frm_delete.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/person_input.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tavo {

namespace {

constexpr int textWidthChars = 52, gap = 14, margin = 18;

} // namespace

DeleteDialog::DeleteDialog(FrmDelete& form, QWidget* owner) : QDialog(owner)
{
    auto* binder = new Binder(form, *this);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gap);
    for (int row = form.cmdRemove.Low(); row <= form.cmdRemove.High(); ++row) {
        auto* button = new QPushButton(this);
        button->setAutoDefault(false);
        binder->Bind(*button, form.cmdRemove[row]);
        auto* text = new QLabel(this);
        text->setWordWrap(true);
        text->setFixedWidth(textWidthChars * fontMetrics().averageCharWidth());
        binder->Bind(*text, form.lblRemove[row]);
        button->setAccessibleDescription(text->text());
        grid->addWidget(button, row, 0, Qt::AlignTop);
        grid->addWidget(text, row, 1, Qt::AlignTop);
    }
    auto* cancel = new QPushButton(this);
    cancel->setAutoDefault(false);
    binder->Bind(*cancel, form.cmdCancel);
    grid->addWidget(cancel, form.cmdRemove.High() + 1, 1, Qt::AlignRight);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    const QSize needed = sizeHint();
    form.Move(form.Left(), form.Top(), needed.width() * twipsPerPixel,
              needed.height() * twipsPerPixel);
    new FormWindow(form, *this, binder->Queue());
    new PersonInput(*binder);
}

} // namespace tavo
