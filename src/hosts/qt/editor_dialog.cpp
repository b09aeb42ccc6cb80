#include "hosts/qt/editor_dialog.h"

#include "hosts/qt/bar_view.h"
#include "hosts/qt/bar_walk.h"
#include "hosts/qt/color_box.h"
#include "hosts/qt/dialog_parts.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/person_input.h"
#include "hosts/qt/preview_view.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/tool_actions.h"
#include "thumbnails/frm_thumb_editor.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QMenuBar>
#include <QPushButton>

#include <cmath>

namespace tavo {

namespace {

constexpr std::string_view menuBand = "Menu", toolBand = "Standard";
constexpr int chipPixels = 24, captionChars = 30;

} // namespace

EditorDialog::EditorDialog(FrmThumbEditor& form, QWidget* owner)
    : QDialog(owner), form_(form), binder_(new Binder(form, *this)),
      actions_(new ToolActions(form.atbThumbs, binder_->Queue(), *this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, dialogMargin);
    column->setSpacing(dialogGap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    AddBars(*column);
    auto* inside = new QHBoxLayout;
    inside->setContentsMargins(dialogMargin, 0, dialogMargin, 0);
    inside->setSpacing(2 * dialogGap);
    auto* preview = new PreviewView(form, *binder_, this);
    preview->setMinimumSize(static_cast<int>(std::lround(form.picPreview.Width / twipsPerPixel)),
                            static_cast<int>(std::lround(form.picPreview.Height / twipsPerPixel)));
    inside->addWidget(preview, 1);
    inside->addWidget(colors_ = Colors());
    column->addLayout(inside, 1);
    QHBoxLayout* buttons = DialogButtons(this, {&form.cmdOk, &form.cmdCancel}, *binder_);
    buttons->setContentsMargins(dialogMargin, 0, dialogMargin, 0);
    column->addLayout(buttons);
    Form_TakeSize(form, sizeHint());
    new FormWindow(form, *this, binder_->Queue());
    auto* input = new PersonInput(*binder_);
    auto* walk = new BarWalk(*this, layout()->menuBar(), bars_);
    input->BarKey = [walk](QWidget& receiver, QKeyEvent& event) {
        return walk->Key(receiver, event);
    };
}

void EditorDialog::AddBars(QBoxLayout& column)
{
    const ToolBars& bars = form_.atbThumbs;
    if (const Band* band = bars.FindBand(menuBand)) {
        auto* menus = new QMenuBar(this);
        actions_->Fill(*menus, *band);
        column.setMenuBar(menus);
    }
    if (const Band* band = bars.FindBand(toolBand)) {
        bars_.push_back(new BarView(*band, *actions_, *binder_, this));
        column.addWidget(bars_.back());
    }
}

QWidget* EditorDialog::Colors()
{
    auto* frame = new QGroupBox(this);
    binder_->Bind(*frame, form_.fraColor, [this, frame](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            frame->setTitle(ToQt(form_.fraColor.Caption));
    });
    auto* grid = new QGridLayout(frame);
    grid->setHorizontalSpacing(dialogGap);
    grid->setVerticalSpacing(dialogGap);
    grid->setColumnMinimumWidth(1, captionChars * frame->fontMetrics().averageCharWidth());
    for (const auto& chip : form_.picColor) {
        const int row = chip->Index();
        auto* box = new ColorBox(*chip, *binder_, {chipPixels, chipPixels}, frame);
        box->installEventFilter(this);
        grid->addWidget(box, row, 0);
        grid->addWidget(BoundLink(frame, form_.lblColor[row], *binder_), row, 1);
    }
    grid->setRowStretch(form_.picColor.High() + 1, 1);
    frame->installEventFilter(this);
    return frame;
}

// The program lets a colour be chosen over its chip.
void EditorDialog::TellColors()
{
    Place_Tell(*colors_, form_.fraColor);
    for (const auto& chip : form_.picColor)
        Place_Tell(*binder_->WidgetOf(chip.get()), *chip);
}

bool EditorDialog::eventFilter(QObject* object, QEvent* event)
{
    const bool placed = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (placed && colors_)
        TellColors();
    return QDialog::eventFilter(object, event);
}

} // namespace tavo
