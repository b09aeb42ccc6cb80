#include "hosts/qt/options_view.h"

#include "hosts/qt/dialog_parts.h"
#include "hosts/qt/scroll_binding.h"
#include "settings/frm_settings.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace tavo {

namespace {

constexpr int indent = 14, groupGap = 12, leastRows = 6;
enum OptionColumn { headings, options };

// What lies in the frame, from the top.
std::vector<Control*> FromTheTop(const FrmSettings& form)
{
    std::vector<Control*> inside;
    for (Control* control : form.Controls())
        if (control->Container == &form.fraDefaults)
            inside.push_back(control);
    std::stable_sort(inside.begin(), inside.end(), [](const Control* one, const Control* other) {
        return one->Top < other->Top;
    });
    return inside;
}

QLabel* Heading(Label& label, Binder& binder, QWidget* parent)
{
    QLabel* heading = BoundLabel(parent, label, binder);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

} // namespace

OptionsView::OptionsView(FrmSettings& form, Binder& binder, QWidget* parent)
    : QWidget(parent), form_(form), box_(new QWidget(this)), options_(new QWidget(box_)),
      bar_(new QScrollBar(Qt::Vertical, this))
{
    AddOptions(binder);
    auto* row = PanelRow(*this);
    row->setSpacing(0);
    row->addWidget(box_, 1);
    row->addWidget(bar_);
    binder.Bind(*box_, form.picDefaults);
    binder.Bind(*options_, form.fraDefaults);
    ScrollBar_Bind(binder, *bar_, form.vsbDefaults);
    new Binding(binder.Queue(), *bar_, form.vsbDefaults.Changed, [this](const PropSet& changed) {
        if (changed.Has({Prop::Enabled}))
            bar_->setVisible(form_.vsbDefaults.Enabled);
    });
    binder.Place(*options_, form.fraDefaults);
    box_->installEventFilter(this);
    options_->installEventFilter(this);
    const QSize needed = options_->sizeHint();
    box_->setMinimumSize(needed.width(),
                         std::min(needed.height(), leastRows * fontMetrics().lineSpacing()));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void OptionsView::AddOptions(Binder& binder)
{
    auto* grid = PanelGrid(*options_);
    grid->setHorizontalSpacing(0);
    grid->setColumnMinimumWidth(headings, indent);
    grid->setColumnStretch(options, 1);
    int row = 0;
    for (Control* control : FromTheTop(form_)) {
        if (auto* label = dynamic_cast<Label*>(control)) {
            if (row > 0)
                grid->setRowMinimumHeight(row++, groupGap);
            grid->addWidget(Heading(*label, binder, options_), row++, headings, 1, 2);
        } else if (auto* check = dynamic_cast<CheckBox*>(control)) {
            auto* box = Bound<QCheckBox>(options_, *check, binder);
            box->installEventFilter(this);
            grid->addWidget(box, row++, options);
        }
    }
    grid->setRowStretch(row, 1);
}

QSize OptionsView::sizeHint() const
{
    return options_->sizeHint();
}

bool OptionsView::eventFilter(QObject* object, QEvent* event)
{
    const bool sized = object == box_ && event->type() == QEvent::Resize;
    if (sized || (object == options_ && event->type() == QEvent::LayoutRequest))
        Fit();
    else if (object != box_ && object != options_ && event->type() == QEvent::FocusIn)
        Reveal(static_cast<QWidget&>(*object));
    return false;
}

void OptionsView::Fit()
{
    const QSize room = box_->size();
    const QSize needed(room.width(), options_->sizeHint().height());
    form_.picDefaults.Width = room.width() * twipsPerPixel;
    form_.picDefaults.Height = room.height() * twipsPerPixel;
    form_.fraDefaults.Width = needed.width() * twipsPerPixel;
    form_.fraDefaults.Height = needed.height() * twipsPerPixel;
    form_.Defaults_Scroll_Measure();
    options_->resize(needed);
}

// Keys may come to an option that is out of sight.
void OptionsView::Reveal(const QWidget& option)
{
    const int top = option.y() * static_cast<int>(twipsPerPixel);
    const int bottom = (option.y() + option.height()) * static_cast<int>(twipsPerPixel);
    const int room = static_cast<int>(form_.picDefaults.ScaleHeight());
    if (top < form_.vsbDefaults.Value)
        form_.vsbDefaults.PersonScroll(top);
    else if (bottom > form_.vsbDefaults.Value + room)
        form_.vsbDefaults.PersonScroll(bottom - room);
}

void OptionsView::wheelEvent(QWheelEvent* event)
{
    if (bar_->isVisible())
        QCoreApplication::sendEvent(bar_, event);
}

} // namespace tavo
