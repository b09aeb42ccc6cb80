#include "hosts/qt/color_dialog.h"

#include "controls/frm_color.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/color_box.h"
#include "hosts/qt/colours.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/person_input.h"
#include "hosts/qt/scroll_binding.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

#include <algorithm>

namespace tavo {

namespace {

constexpr int boxesInARow = 8, boxPixels = 22, boxGap = 3, swatchWidth = 56;
constexpr int margin = 12, gap = 10, sliderWidth = 190, fieldChars = 5;

QPushButton* Button_For(CommandButton& command, Binder& binder, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setAutoDefault(false);
    binder.Bind(*button, command);
    return button;
}

QLabel* Label_For(Label& label, Binder& binder, QWidget* parent)
{
    auto* text = new QLabel(parent);
    binder.Bind(*text, label);
    return text;
}

// A slider with its name in front and its field behind.
void AddChannel(FrmColor& form, int index, Binder& binder, QGridLayout& grid, QWidget* parent)
{
    auto* slider = new QSlider(Qt::Horizontal, parent);
    slider->setMinimumWidth(sliderWidth);
    ScrollBar_Bind(binder, *slider, form.hsbColor[index]);
    auto* field = new QLineEdit(parent);
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(fieldChars * field->fontMetrics().horizontalAdvance('0')
                         + 2 * field->fontMetrics().averageCharWidth());
    binder.Bind(*field, form.txtColor[index]);
    grid.addWidget(Label_For(form.lblColor[index], binder, parent), index - 1, 0);
    grid.addWidget(slider, index - 1, 1);
    grid.addWidget(field, index - 1, 2);
}

} // namespace

ColorDialog::ColorDialog(FrmColor& form, QWidget* owner) : QDialog(owner)
{
    auto* binder = new Binder(form, *this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(2 * gap);
    row->setSizeConstraint(QLayout::SetFixedSize);
    QWidget* boxes = Boxes(form, *binder);
    QWidget* custom = Custom(form, *binder);
    const int height = std::max(boxes->sizeHint().height(), custom->sizeHint().height());
    for (QWidget* side : {boxes, custom}) {
        side->setFixedHeight(height);
        row->addWidget(side);
    }
    Measure(form, *custom);
    binder->Bind(*custom, form.picCustom);
    new FormWindow(form, *this, binder->Queue());
    new PersonInput(*binder);
}

void ColorDialog::TellExtent(FrmColor& form)
{
    const ColorDialog measured(form, nullptr);
}

void ColorDialog::Measure(FrmColor& form, QWidget& custom)
{
    custom.hide();
    const QSize narrow = layout()->sizeHint();
    custom.show();
    const QSize wide = layout()->sizeHint();
    form.SetExtent({narrow.width() * twipsPerPixel, wide.width() * twipsPerPixel,
                    wide.height() * twipsPerPixel});
}

QWidget* ColorDialog::Boxes(FrmColor& form, Binder& binder)
{
    auto* side = new QWidget(this);
    auto* grid = new QGridLayout(side);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(boxGap);
    for (int i = 0; i < FrmColor::boxCount; ++i) {
        auto* box = new ColorBox(form.picColorSys[i], binder, {boxPixels, boxPixels}, side);
        box->setAccessibleName(Color_Of(form.picColorSys[i].BackColor, palette()).name());
        grid->addWidget(box, i / boxesInARow, i % boxesInARow);
    }
    const int under = FrmColor::boxCount / boxesInARow;
    grid->setRowStretch(under, 1);
    grid->addWidget(Button_For(form.cmdCustom, binder, side), under + 1, 0, 1, boxesInARow);
    return side;
}

QWidget* ColorDialog::Custom(FrmColor& form, Binder& binder)
{
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(gap);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gap / 2);
    for (int i = 1; i <= 3; ++i)
        AddChannel(form, i, binder, *grid, side);
    column->addLayout(grid);
    auto* swatches = new QHBoxLayout;
    swatches->setSpacing(gap);
    const QSize size(swatchWidth, boxPixels + 2 * boxGap);
    swatches->addWidget(Label_For(form.lblColorOld, binder, side));
    swatches->addWidget(new ColorBox(form.picColorCur, binder, size, side));
    swatches->addStretch();
    swatches->addWidget(Label_For(form.lblColorNew, binder, side));
    swatches->addWidget(new ColorBox(form.picColorNew, binder, size, side));
    column->addLayout(swatches);
    column->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap);
    for (CommandButton* command : {&form.cmdColorDef, &form.cmdOk, &form.cmdCancel})
        buttons->addWidget(Button_For(*command, binder, side));
    column->addLayout(buttons);
    return side;
}

} // namespace tavo
