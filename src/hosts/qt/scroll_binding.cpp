#include "hosts/qt/scroll_binding.h"

#include "hosts/qt/binder.h"

#include <QAbstractSlider>
#include <QSignalBlocker>

#include <algorithm>

namespace tavo {

namespace {

// A bar out of use shows no way to go: its ends are those of another time.
void ShowRange(QAbstractSlider& slider, const ScrollBar& bar)
{
    const bool turned = bar.Min > bar.Max;
    if (bar.Enabled)
        slider.setRange(turned ? bar.Max : bar.Min, turned ? bar.Min : bar.Max);
    else
        slider.setRange(bar.Value, bar.Value);
    slider.setSingleStep(std::max(1, bar.SmallChange.Get()));
    slider.setPageStep(std::max(1, bar.LargeChange.Get()));
    if (slider.invertedAppearance() == turned)
        return;
    slider.setInvertedAppearance(turned);
    slider.setInvertedControls(turned);
}

} // namespace

void ScrollBar_Bind(Binder& binder, QAbstractSlider& slider, ScrollBar& bar)
{
    Binding* binding = binder.Bind(slider, bar, [&](const PropSet& changed) {
        // A range that changes pulls the value of the widget in, which the
        // control has done by itself.
        const QSignalBlocker quiet(slider);
        if (changed.Has({Prop::Range, Prop::Enabled}))
            ShowRange(slider, bar);
        if (changed.Has({Prop::Range, Prop::Enabled, Prop::Value}) && !slider.isSliderDown())
            slider.setValue(bar.Value);
    });
    QObject::connect(&slider, &QAbstractSlider::sliderMoved, binding,
                     [&bar](int value) { bar.PersonDrag(value); });
    QObject::connect(&slider, &QAbstractSlider::sliderReleased, binding, [&slider, &bar, binding] {
        bar.PersonScroll(slider.value());
        binding->Mark(Prop::Value);
    });
    QObject::connect(&slider, &QAbstractSlider::valueChanged, binding,
                     [&slider, &bar, binding](int value) {
                         if (slider.isSliderDown())
                             return;
                         bar.PersonScroll(value);
                         binding->Mark(Prop::Value);
                     });
}

} // namespace tavo
