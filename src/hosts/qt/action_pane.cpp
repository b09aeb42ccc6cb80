#include "hosts/qt/action_pane.h"

#include "core/frm_main.h"
#include "hosts/qt/binder.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace tavo {

namespace {

constexpr int paneWidthChars = 62, gap = 12, margin = 20;

QGridLayout* Counters(FrmMain& form, Binder& binder, QWidget* pane)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(gap);
    for (int k = form.lblAction.Low(); k <= form.lblAction.High(); ++k) {
        auto* caption = new QLabel(pane);
        auto* value = new QLabel(pane);
        caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        binder.Bind(*caption, form.lblAction[k]);
        binder.Bind(*value, form.lblActionInfo[k]);
        grid->addWidget(caption, k, 0);
        grid->addWidget(value, k, 1);
        // The pane keeps its size whatever is counted.
        for (QLabel* label : {caption, value}) {
            QSizePolicy policy = label->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            label->setSizePolicy(policy);
        }
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

} // namespace

ActionPane::ActionPane(FrmMain& form, Binder& binder, QWidget* parent) : QWidget(parent)
{
    binder.Place(*this, form.picAction);
    auto* pane = new QFrame(this);
    pane->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    auto* stage = new QLabel(pane);
    binder.Bind(*stage, form.lblActionInfo[0]);
    auto* bar = new QProgressBar(pane);
    binder.Bind(*bar, form.prbAction);
    column->addWidget(stage);
    column->addWidget(bar);
    column->addLayout(Counters(form, binder, pane));
    column->addStretch();
    auto* buttons = new QHBoxLayout;
    for (CommandButton* command : {&form.cmdActPause, &form.cmdActCancel, &form.cmdActDone}) {
        auto* button = new QPushButton(pane);
        binder.Bind(*button, *command);
        buttons->addWidget(button);
    }
    column->addLayout(buttons);
    pane->setFixedWidth(paneWidthChars * pane->fontMetrics().averageCharWidth());
    const QSize size = pane->sizeHint();
    form.fraActControls.Width = pane->width() * twipsPerPixel;
    form.fraActControls.Height = size.height() * twipsPerPixel;
    binder.Bind(*pane, form.fraActControls);
    binder.Place(*pane, form.fraActControls);
    binder.Bind(*this, form.picAction);
}

} // namespace tavo
