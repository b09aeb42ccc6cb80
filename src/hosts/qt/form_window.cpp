#include "hosts/qt/form_window.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/qt_text.h"

#include <QCloseEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

int Pixels(double twips)
{
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

QRect Place_Of(const Form& form)
{
    return {Pixels(form.Left()), Pixels(form.Top()), Pixels(form.Width()), Pixels(form.Height())};
}

WindowState State_Of(const QWidget& window)
{
    if (window.isMinimized())
        return WindowState::Minimised;
    return window.isMaximized() || window.isFullScreen() ? WindowState::Maximised
                                                         : WindowState::Normal;
}

// A place kept from a screen that is there no more would be out of sight.
bool IsOnAScreen(const QRect& place)
{
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen->availableGeometry().intersects(place);
    });
}

} // namespace

FormWindow::FormWindow(Form& form, QWidget& window, FrameQueue& queue)
    : QObject(&window), form_(form), window_(window), shown_(QPoint(), Place_Of(form).size())
{
    window.setObjectName(ToQt(form.Name()));
    window.resize(shown_.size());
    window.installEventFilter(this);
    unloaded_ = form.Unloaded.Listen([&window] { window.hide(); });
    new Binding(queue, window, form.Changed, [this](const PropSet& changed) { Show(changed); });
}

void FormWindow::Show(const PropSet& changed)
{
    const QScopedValueRollback<bool> taking(taking_, true);
    if (changed.Has({Prop::Caption}))
        window_.setWindowTitle(ToQt(form_.Caption()));
    if (changed.Has({Prop::Geometry}))
        ShowPlace();
    // A form that is kept is shown again by the desktop.
    if (changed.Has({Prop::Visible}) && !form_.Visible())
        window_.hide();
    if (changed.Has({Prop::State}) && form_.State() != State_Of(window_)) {
        const bool big = form_.State() == WindowState::Maximised;
        const bool small = form_.State() == WindowState::Minimised;
        window_.setWindowState(big     ? Qt::WindowMaximized
                               : small ? Qt::WindowMinimized
                                       : Qt::WindowNoState);
    }
}

// Only what the program itself has changed: where a window comes up is left to
// the window manager as long as nobody says anything else.
void FormWindow::ShowPlace()
{
    const QRect place = Place_Of(form_);
    if (place.size() != shown_.size() && place.size() != window_.size())
        window_.resize(place.size());
    const bool moved = place.topLeft() != shown_.topLeft() && place.topLeft() != window_.pos();
    if (moved && IsOnAScreen(place))
        window_.move(place.topLeft());
    shown_ = place;
}

void FormWindow::TellInside(int width, int height)
{
    const double outerWidth = window_.width() * twipsPerPixel;
    const double outerHeight = window_.height() * twipsPerPixel;
    form_.SetFrame(outerWidth - width * twipsPerPixel, outerHeight - height * twipsPerPixel);
}

// What the program has changed and is not yet shown goes before what the window
// has been until now.
void FormWindow::TellPlace()
{
    if (taking_ || !window_.isVisible() || window_.isMinimized() || shown_ != Place_Of(form_))
        return;
    TellState(); // else the size of a maximised window is taken for the normal one
    const QScopedValueRollback<bool> taking(taking_, true);
    form_.PersonMove(window_.x() * twipsPerPixel, window_.y() * twipsPerPixel);
    form_.PersonResize(window_.width() * twipsPerPixel, window_.height() * twipsPerPixel);
    shown_ = Place_Of(form_);
}

void FormWindow::TellState()
{
    const WindowState state = State_Of(window_);
    if (taking_ || state == form_.State())
        return;
    const QRect normal = window_.normalGeometry();
    form_.PersonState(state);
    if (state != WindowState::Maximised || !normal.isValid())
        return;
    // It may have grown before it said why.
    const QScopedValueRollback<bool> taking(taking_, true);
    form_.Move(form_.Left(), form_.Top(), normal.width() * twipsPerPixel,
               normal.height() * twipsPerPixel);
    shown_ = Place_Of(form_);
}

// What comes over a dialog is the desktop's to tell: a message box is no other
// form, and behind it the person goes on where it came up.
void FormWindow::TellActive(bool active)
{
    if (form_.Loaded() && !qobject_cast<QDialog*>(&window_))
        form_.PersonActivate(active);
}

// A form may keep itself, or be busy and go later.
bool FormWindow::StaysOpen()
{
    if (form_.Loaded())
        form_.PersonClose();
    return form_.Loaded();
}

bool FormWindow::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize: TellPlace(); return false;
    case QEvent::WindowStateChange: TellState(); return false;
    case QEvent::WindowActivate: TellActive(true); return false;
    case QEvent::WindowDeactivate: TellActive(false); return false;
    case QEvent::Close:
        if (!StaysOpen())
            return false;
        event->ignore();
        return true;
    default: return false;
    }
}

} // namespace tavo
