#include "hosts/qt/viewer_window.h"

#include "hosts/qt/bar_view.h"
#include "hosts/qt/bar_walk.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/parts.h"
#include "hosts/qt/person_input.h"
#include "hosts/qt/picture_view.h"
#include "hosts/qt/scroll_binding.h"
#include "hosts/qt/tool_actions.h"
#include "viewer/frm_viewer.h"

#include <QCoreApplication>
#include <QMenuBar>
#include <QScrollBar>
#include <QStatusTipEvent>
#include <QWheelEvent>

namespace tavo {

namespace {

QScrollBar* Bar_For(ScrollBar& bar, Qt::Orientation way, Binder& binder, QWidget* parent)
{
    auto* shown = new QScrollBar(way, parent);
    shown->setContextMenuPolicy(Qt::NoContextMenu);
    ScrollBar_Bind(binder, *shown, bar);
    binder.Place(*shown, bar);
    return shown;
}

} // namespace

ViewerWindow::ViewerWindow(FrmViewer& form)
    : form_(form), binder_(new Binder(form, *this)),
      frame_(new FormWindow(form, *this, binder_->Queue())), input_(new PersonInput(*binder_)),
      actions_(new ToolActions(form.atbView, binder_->Queue(), *this))
{
    setWindowIcon(Icon_OfProgram());
    BuildBars();
    status_ = new StatusPanels(form.stbMain, *binder_, this);
    setStatusBar(status_);
    setCentralWidget(new QWidget(this));
    centralWidget()->installEventFilter(this);
    BuildView();
    for (Timer* timer : {&form.tmrAutoShow, &form.tmrHideThumb})
        binder_->Bind(*timer);
    walk_ = new BarWalk(*this, bars_);
    input_->BarKey = [this](QWidget& receiver, QKeyEvent& event) {
        return walk_->Key(receiver, event);
    };
    TellHeight();
    TellInside();
}

void ViewerWindow::BuildBars()
{
    const ToolBars& bars = form_.atbView;
    if (const Band* menus = bars.FindBand("Menu"))
        actions_->Fill(*menuBar(), *menus);
    if (const Band* band = bars.FindBand("Standard")) {
        auto* bar = new BarView(*band, *actions_, *binder_, this);
        addToolBar(bar);
        bars_.push_back(bar);
    }
}

void ViewerWindow::BuildView()
{
    QWidget* inside = centralWidget();
    auto* view = new PictureView(form_.picViewWin, form_.imgOriginal, *binder_, inside);
    QScrollBar* up = Bar_For(form_.vsbImage, Qt::Vertical, *binder_, inside);
    QScrollBar* across = Bar_For(form_.hsbImage, Qt::Horizontal, *binder_, inside);
    QScrollBar* rows = Bar_For(form_.hsbCurImage, Qt::Horizontal, *binder_, inside);
    new FaceButton(form_.cmdThumb, *binder_, view);
    // It pans where there is something to pan, and else walks the list.
    view->OnWheel = [=](QWheelEvent& event) {
        const bool sideways = event.modifiers() & Qt::ShiftModifier;
        QScrollBar* pans = sideways || !up->isEnabled() ? across : up;
        QCoreApplication::sendEvent(pans->isEnabled() ? pans : rows, &event);
    };
    // The keys walk the list as long as nothing else has the focus.
    binder_->AddHome(*rows);
    binder_->AddHome(*view);
    rows->setFocus();
}

void ViewerWindow::TellHeight()
{
    form_.stbMain.Height = status_->sizeHint().height() * twipsPerPixel;
}

// The form's inside is what lies under the bar, with the status bar.
void ViewerWindow::TellInside()
{
    frame_->TellInside(centralWidget()->width(),
                       centralWidget()->height() + status_->sizeHint().height());
}

bool ViewerWindow::event(QEvent* event)
{
    if (event->type() != QEvent::StatusTip)
        return QMainWindow::event(event);
    status_->ShowTip(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

bool ViewerWindow::eventFilter(QObject* object, QEvent* event)
{
    if (object == centralWidget() && event->type() == QEvent::Resize)
        TellInside();
    return QMainWindow::eventFilter(object, event);
}

void ViewerWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (status_ && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) {
        TellHeight();
        form_.Resize();
    }
}

} // namespace tavo
