#include "hosts/qt/main_window.h"

#include "core/frm_main.h"
#include "hosts/qt/action_pane.h"
#include "hosts/qt/bar_view.h"
#include "hosts/qt/bar_walk.h"
#include "hosts/qt/folder_view.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/list_page.h"
#include "hosts/qt/mode_panels.h"
#include "hosts/qt/parts.h"
#include "hosts/qt/person_input.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/thumb_page.h"
#include "hosts/qt/tool_actions.h"

#include <QBoxLayout>
#include <QEvent>
#include <QMenuBar>
#include <QStatusTipEvent>

namespace tavo {

namespace {

constexpr std::string_view menuBand = "Menu", addressBand = "Address";
// The bars from the top; the last one has a row of its own.
constexpr std::string_view barBands[] = {"Standard", "Selection", addressBand};

} // namespace

MainWindow::MainWindow(FrmMain& form)
    : form_(form), binder_(new Binder(form, *this)),
      frame_(new FormWindow(form, *this, binder_->Queue())), input_(new PersonInput(*binder_)),
      actions_(new ToolActions(form.atbMain, binder_->Queue(), *this))
{
    setWindowIcon(Icon_OfProgram());
    BuildBars();
    status_ = new StatusPanels(form.stbMain, *binder_, this);
    setStatusBar(status_);
    setCentralWidget(new QWidget(this));
    centralWidget()->installEventFilter(this);
    BuildScreens();
    BuildPanels();
    for (Timer* timer : {&form.tmrDateTimeClock, &form.tmrRedrawThumbs, &form.tmrRefreshThumbs,
                         &form.tmrThumbsScrollD, &form.tmrThumbsScrollU})
        binder_->Bind(*timer);
    walk_ = new BarWalk(*this, bars_);
    input_->BarKey = [this](QWidget& receiver, QKeyEvent& event) {
        return walk_->Key(receiver, event);
    };
    TellHeights();
    // Before it is shown nothing has shared out the room under the bars.
    layout()->activate();
    TellInside();
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildBars()
{
    ToolBars& bars = form_.atbMain;
    if (const Band* menus = bars.FindBand(menuBand))
        actions_->Fill(*menuBar(), *menus);
    for (const std::string_view name : barBands) {
        const Band* band = bars.FindBand(name);
        if (!band)
            continue;
        if (name == addressBand)
            addToolBarBreak();
        auto* bar = new BarView(*band, *actions_, *binder_, this);
        addToolBar(bar);
        bar->setVisible(band->Visible());
        bars_.push_back(bar);
    }
    bandChanged_ = bars.BandChanged.Listen([this](const Band& band) { ShowBand(band); });
}

// At once: the program lays out behind it, and must know what room is left.
void MainWindow::ShowBand(const Band& band)
{
    for (BarView* bar : bars_) {
        if (&bar->Shown() != &band || bar->isHidden() != band.Visible())
            continue;
        bar->setVisible(band.Visible());
        layout()->activate();
        TellInside();
    }
}

void MainWindow::BuildScreens()
{
    QWidget* screens = centralWidget();
    auto* select = new QWidget(screens);
    binder_->Place(*select, form_.fraSelect);
    new FolderView(form_.ftvSelMain, *binder_, select);
    binder_->AddHome(*new ListPage(form_.lsvSelMain, *binder_, select));
    auto* preview = new QFrame(select);
    preview->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    binder_->Place(*preview, form_.picSelPreview);
    new PicturePane(form_.imgSelPreview, *binder_, preview);
    binder_->Bind(*preview, form_.picSelPreview);
    new SplitBar(form_.lblSelDBX, Qt::SplitHCursor, *binder_, select);
    new SplitBar(form_.lblSelDBY, Qt::SplitVCursor, *binder_, select);
    binder_->Bind(*select, form_.fraSelect);
    new ThumbPage(form_, *binder_, screens);
    new ActionPane(form_, *binder_, screens);
    binder_->AddHome(*new ListPage(form_.lsvRename, *binder_, screens));
}

void MainWindow::BuildPanels()
{
    for (const auto& panel : form_.ctlRbRenMode) {
        auto* face = new RaisedPane(centralWidget());
        auto* column = new QVBoxLayout(face);
        column->setContentsMargins(0, 0, 0, 0);
        QWidget* inside = ModePanel_Make(panel->Index(), form_, *binder_, face);
        if (inside) {
            column->addWidget(inside);
            panels_.emplace_back(panel.get(), inside);
        }
        binder_->Bind(*face, *panel);
        binder_->Place(*face, *panel);
    }
}

void MainWindow::TellHeights()
{
    for (const auto& [panel, inside] : panels_)
        panel->Height = inside->sizeHint().height() * twipsPerPixel;
    form_.stbMain.Height = status_->sizeHint().height() * twipsPerPixel;
}

// The form's inside is what lies under the bars, with the status bar.
void MainWindow::TellInside()
{
    if (status_)
        frame_->TellInside(centralWidget()->width(),
                           centralWidget()->height() + status_->sizeHint().height());
}

void MainWindow::PopUp(Tool& menu, const QPoint& place)
{
    binder_->Queue().Flush();
    for (BarView* bar : bars_)
        if (bar->HasDropped())
            return bar->PopUp(*actions_->MenuOf(menu), place);
    actions_->MenuOf(menu)->popup(QCursor::pos());
}

bool MainWindow::event(QEvent* event)
{
    if (event->type() != QEvent::StatusTip)
        return QMainWindow::event(event);
    status_->ShowTip(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

bool MainWindow::eventFilter(QObject* object, QEvent* event)
{
    if (object == centralWidget() && event->type() == QEvent::Resize)
        TellInside();
    return QMainWindow::eventFilter(object, event);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (status_ && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) {
        TellHeights();
        form_.Resize();
    }
}

} // namespace tavo
