#include "hosts/qt/binder.h"

#include "hosts/qt/colours.h"
#include "hosts/qt/qt_text.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QToolBar>

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

constexpr int progressSteps = 1000;

// Invalid for a colour of the system, which the widget's own palette has.
QColor OwnColour(std::int32_t colour, const QPalette& palette)
{
    return Color_IsOfSystem(colour) ? QColor() : Color_Of(colour, palette);
}

// Marks a widget whose palette the program has had a hand in.
constexpr char ownColours[] = "ownColours";

void ShowColours(QWidget& widget, const Control& control)
{
    const QColor back = OwnColour(control.BackColor, widget.palette());
    const QColor fore = OwnColour(control.ForeColor, widget.palette());
    const bool own = back.isValid() || fore.isValid();
    if (!own && !widget.property(ownColours).toBool())
        return;
    QPalette palette;
    if (back.isValid())
        palette.setColor(widget.backgroundRole(), back);
    if (fore.isValid())
        palette.setColor(widget.foregroundRole(), fore);
    widget.setProperty(ownColours, own);
    widget.setPalette(palette);
}

void ShowCommon(QWidget& widget, const Control& control, const PropSet& changed)
{
    if (changed.Has({Prop::Enabled}))
        widget.setEnabled(control.Enabled);
    if (changed.Has({Prop::ToolTip}))
        widget.setToolTip(ToQt(control.ToolTipText));
    if (changed.Has({Prop::Colours}))
        ShowColours(widget, control);
    if (changed.Has({Prop::Visible}))
        widget.setVisible(control.Visible);
}

int Pixels(double twips)
{
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

// Edges are rounded, not sizes, so that neighbours meet.
QRect Pixels_Of(const Control& control)
{
    const double unit = control.Container ? control.Container->UnitTwips() : 1;
    const double left = control.Left * unit, top = control.Top * unit;
    return {QPoint(Pixels(left), Pixels(top)), QPoint(Pixels(left + control.Width * unit) - 1,
                                                      Pixels(top + control.Height * unit) - 1)};
}

// Tool buttons and menus have the focus while the person walks them by keys.
bool IsInBars(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget())
        if (qobject_cast<const QToolBar*>(widget) || qobject_cast<const QMenuBar*>(widget))
            return true;
    return false;
}

} // namespace

Binder::Binder(Form& form, QWidget& window) : QObject(&window), form_(form), window_(window)
{
    queue_.AfterFlush = [this] { FollowFocus(); };
}

Binding* Binder::Bind(QWidget& widget, Control& control, Binding::Apply apply)
{
    controls_[&widget] = &control;
    widgets_[&control] = &widget;
    if (!control.AccessibleName.empty())
        widget.setAccessibleName(ToQt(control.AccessibleName));
    widget.setObjectName(ToQt(control.FullName()));
    connect(&widget, &QObject::destroyed, this, [this, &widget, &control] {
        controls_.remove(&widget);
        widgets_.remove(&control);
    });
    return new Binding(queue_, widget, control.Changed,
                       [&widget, &control, show = std::move(apply)](const PropSet& changed) {
                           ShowCommon(widget, control, changed);
                           if (show)
                               show(changed);
                       });
}

void Binder::Bind(QWidget& panel, Control& control)
{
    Bind(panel, control, {});
}

void Binder::Place(QWidget& widget, Control& control)
{
    new Binding(queue_, widget, control.Changed, [&](const PropSet& changed) {
        if (changed.Has({Prop::Geometry}))
            widget.setGeometry(Pixels_Of(control));
    });
}

void Binder::Bind(QAbstractButton& button, CommandButton& command)
{
    Bind(button, command, [&](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            button.setText(ToQt(command.Caption));
    });
    connect(&button, &QAbstractButton::clicked, this, [&] { command.PersonClick(); });
}

void Binder::Bind(QAbstractButton& button, CheckBox& check)
{
    Binding* binding = Bind(button, check, [&](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            button.setText(ToQt(check.Caption));
        if (changed.Has({Prop::Value}))
            button.setChecked(check.Value != 0);
    });
    connect(&button, &QAbstractButton::clicked, this, [&check, binding] {
        check.PersonClick();
        binding->Mark(Prop::Value);
    });
}

void Binder::Bind(QAbstractButton& button, OptionButton& option)
{
    button.setAutoExclusive(false); // the controls keep their groups themselves
    Binding* binding = Bind(button, option, [&](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            button.setText(ToQt(option.Caption));
        if (changed.Has({Prop::Value}))
            button.setChecked(option.Value);
    });
    connect(&button, &QAbstractButton::clicked, this, [&option, binding] {
        option.PersonClick();
        binding->Mark(Prop::Value);
    });
}

void Binder::Bind(QAbstractButton& link, Label& label)
{
    link.setFocusPolicy(Qt::NoFocus);
    Bind(link, label, [&](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            link.setText(Plain_Caption(label.Caption).replace('&', "&&"));
    });
    connect(&link, &QAbstractButton::clicked, this, [&] { label.PersonClick(); });
}

void Binder::Bind(QLabel& text, Label& label)
{
    text.setTextFormat(Qt::PlainText);
    Bind(text, label, [&](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            text.setText(text.buddy() ? ToQt(label.Caption) : Plain_Caption(label.Caption));
    });
}

void Binder::Bind(QProgressBar& bar, ProgressBar& progress)
{
    bar.setRange(0, progressSteps);
    Bind(bar, progress, [&](const PropSet& changed) {
        const double range = progress.Max - progress.Min;
        if (changed.Has({Prop::Value, Prop::Range}) && range > 0)
            bar.setValue(static_cast<int>((progress.Value - progress.Min) / range * progressSteps));
    });
}

void Binder::Bind(Timer& timer)
{
    auto* clock = new QTimer(&window_);
    connect(clock, &QTimer::timeout, this, [&timer] {
        if (timer.Enabled) // it may have been switched off in this very frame
            timer.Tick();
    });
    new Binding(queue_, *clock, timer.Changed, [clock, &timer](const PropSet& changed) {
        const bool runs = timer.Enabled && timer.Interval > 0;
        if (changed.Has({Prop::Range}))
            clock->setInterval(timer.Interval);
        if (changed.Has({Prop::Enabled, Prop::Range}))
            runs ? clock->start() : clock->stop();
    });
}

void Binder::FocusCame(const QWidget& widget)
{
    for (Binding* binding : widget.findChildren<Binding*>(Qt::FindDirectChildrenOnly))
        binding->Mark(Prop::Focus);
}

Control* Binder::ControlOf(const QWidget* widget) const
{
    for (; widget && widget != &window_; widget = widget->parentWidget())
        if (Control* control = controls_.value(widget))
            return control;
    return nullptr;
}

// To the active control; where that is out of reach, to the list in sight.
void Binder::FollowFocus()
{
    const auto inReach = [](const QWidget* widget) {
        return widget && widget->isVisible() && widget->isEnabled();
    };
    QWidget* wanted = WidgetOf(form_.ActiveControl());
    if (!inReach(wanted)) {
        const auto home = std::find_if(homes_.begin(), homes_.end(), inReach);
        wanted = home == homes_.end() ? nullptr : *home;
    }
    QWidget* now = window_.focusWidget();
    const bool walksBars = IsInBars(now) && !ControlOf(now);
    if (wanted && !wanted->hasFocus() && !walksBars)
        wanted->setFocus(Qt::OtherFocusReason);
}

} // namespace tavo
