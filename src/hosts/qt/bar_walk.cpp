#include "hosts/qt/bar_walk.h"

#include "hosts/qt/bar_view.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>

#include <algorithm>

namespace tavo {

namespace {

// The program has a focus of its own, which goes to boxes and not to buttons:
// this reason tells it to go along.
constexpr Qt::FocusReason programGoesAlong = Qt::ShortcutFocusReason;

BarView* Bar_Of(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget())
        if (auto* bar = qobject_cast<BarView*>(widget))
            return bar;
    return nullptr;
}

bool IsStop(const QWidget* widget)
{
    const bool kind = qobject_cast<const QToolButton*>(widget)
                      || qobject_cast<const QComboBox*>(widget)
                      || (qobject_cast<const QLineEdit*>(widget)
                          && !qobject_cast<const QComboBox*>(widget->parentWidget()));
    return kind && widget->isVisible() && widget->isEnabled();
}

// What keys can stop at in a bar, from the left.
QList<QWidget*> Stops(const BarView& bar)
{
    QList<QWidget*> stops;
    for (QWidget* widget : bar.findChildren<QWidget*>())
        if (IsStop(widget))
            stops.push_back(widget);
    std::sort(stops.begin(), stops.end(), [&bar](QWidget* left, QWidget* right) {
        return left->mapTo(&bar, QPoint()).x() < right->mapTo(&bar, QPoint()).x();
    });
    return stops;
}

} // namespace

BarWalk::BarWalk(QMainWindow& window, const std::vector<BarView*>& bars)
    : BarWalk(window, window.menuWidget(), bars)
{
}

BarWalk::BarWalk(QWidget& window, QWidget* menus, const std::vector<BarView*>& bars)
    : QObject(&window), window_(window), menus_(menus), bars_(bars)
{
}

bool BarWalk::Key(QWidget& receiver, QKeyEvent& event)
{
    if (event.key() == Qt::Key_F6) {
        NextRegion(event.modifiers() & Qt::ShiftModifier);
        return true;
    }
    BarView* bar = Bar_Of(&receiver);
    // Boxes in a bar are controls of the program, with keys of their own.
    return bar && qobject_cast<QToolButton*>(&receiver) && KeyInBar(*bar, receiver, event);
}

// A flat button stands out while the keys are at it.
void BarWalk::StopAt(QWidget& stop)
{
    auto* button = qobject_cast<QToolButton*>(&stop);
    stop.setFocus(button ? Qt::TabFocusReason : programGoesAlong);
    if (!button || !button->autoRaise())
        return;
    button->setAutoRaise(false);
    button->installEventFilter(this);
}

bool BarWalk::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        static_cast<QToolButton*>(object)->setAutoRaise(true);
        object->removeEventFilter(this);
    }
    return false;
}

void BarWalk::NextRegion(bool backwards)
{
    QWidget* focus = window_.focusWidget();
    std::vector<QWidget*> regions{nullptr}; // null is the content
    if (menus_)
        regions.push_back(menus_);
    for (BarView* bar : bars_)
        if (bar->isVisible() && !Stops(*bar).empty())
            regions.push_back(bar);
    QWidget* now = qobject_cast<QMenuBar*>(focus) ? focus : Bar_Of(focus);
    const auto at = std::find(regions.begin(), regions.end(), now) - regions.begin();
    const auto count = static_cast<std::ptrdiff_t>(regions.size());
    QWidget* next = regions[static_cast<std::size_t>((at + (backwards ? count - 1 : 1)) % count)];
    if (!now)
        before_ = focus;
    if (auto* menus = qobject_cast<QMenuBar*>(next)) {
        menus->setFocus(Qt::MenuBarFocusReason);
        menus->setActiveAction(menus->actions().value(0));
    } else if (auto* bar = qobject_cast<BarView*>(next)) {
        StopAt(*Stops(*bar).front());
    } else {
        GoBack();
    }
}

void BarWalk::GoBack()
{
    const bool fromBox =
        Bar_Of(window_.focusWidget()) && !qobject_cast<QToolButton*>(window_.focusWidget());
    if (before_)
        before_->setFocus(fromBox ? programGoesAlong : Qt::OtherFocusReason);
}

bool BarWalk::KeyInBar(BarView& bar, QWidget& receiver, QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: Step(bar, receiver, event.key() == Qt::Key_Left); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        GoBack();
        qobject_cast<QToolButton*>(&receiver)->click();
        return true;
    case Qt::Key_Escape: GoBack(); return true;
    case Qt::Key_Down:
        if (auto* arrow = qobject_cast<ArrowButton*>(&receiver))
            emit arrow->ArrowPressed();
        return true;
    default: return false;
    }
}

void BarWalk::Step(BarView& bar, QWidget& from, bool backwards)
{
    const auto stops = Stops(bar);
    const auto at = stops.indexOf(&from);
    const auto count = stops.size();
    if (at >= 0)
        StopAt(*stops[(at + (backwards ? count - 1 : 1)) % count]);
}

} // namespace tavo
